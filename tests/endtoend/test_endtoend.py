"""The built tool takes one reading of the built simulator over a real pseudo-terminal."""

import datetime
import os
import pathlib
import shutil
import signal
import struct
import subprocess
import tempfile
import termios
import time
import unittest

from programs import Simulator, Zephon, finish, wait_until

VOLTS = "RMS Line Voltage"
FIRST_LINE_COUNTS = {
    "Power Outage": b"g>",
    "Under Voltage Shutdown": b"g@",
    "Under Voltage": b"g?",
    "Over Voltage": b"gA",
    "Over Voltage Shutdown": b"gB",
    "Surge": b"gC",
    "Overload": b"g_",
}
# Where the memory image keeps the highest byte of each counter.
SECOND_LINE_COUNTS = {"Under Voltage": 243, "Over Voltage": 246, "Power Outage": 249, "Surge": 252}


def first_line_counts(device):
    return {
        name: str(struct.unpack(">H", device.ask(termios.B115200, command, 2))[0])
        for name, command in FIRST_LINE_COUNTS.items()
    }


def second_line_counts(device):
    image = [code - 48 for code in device.ask(termios.B9600, b"+", 512)[::2]]
    joined = {name: image[top - 2 : top + 1][::-1] for name, top in SECOND_LINE_COUNTS.items()}
    return {name: str(int("".join(f"{byte:x}" for byte in three))) for name, three in joined.items()}


class OneReading(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.zephon = Zephon()
        cls.addClassCleanup(cls.zephon.remove)

    def read(self, device, **surroundings):
        ended = self.zephon.run("-m", ports=device.folder, **surroundings)
        self.assertEqual((ended.status, ended.errors), (0, ""))
        return ended

    def test_readings_are_those_of_the_device(self):
        devices = [
            # options, site's volts, how the link names it, counts, hertz
            (["--orvantis", "--120"], 118, "Orvantis PCS  120 V  firmware 1.KD1", first_line_counts, 60),
            (["--orvantis", "--240"], 230, "Orvantis PCS  208/240 V  firmware 1.KD1", first_line_counts, 50),
            (["--tessara", "--120"], 125, "Tessara PCS  120 V  firmware 2.00", second_line_counts, None),
            (["--tessara", "--240"], 208, "Tessara PCS  208/240 V  firmware 1*14", second_line_counts, None),
        ]
        for options, volts, name, counts, hertz in devices:
            with self.subTest(name), Simulator(*options, "--site-volts", str(volts), "--past", "20") as device:
                held = counts(device)
                ended = self.read(device)
                self.assertTrue(ended.link.startswith("COM1  " + name + "  chip "), ended.link)
                # The site wanders by two per cent, and its wires lose a volt.
                self.assertTrue(0.96 * volts <= ended.number(VOLTS) <= 1.03 * volts, ended.readings[VOLTS])
                self.assertEqual({count: ended.readings.get(count) for count in held}, held)
                self.assertGreater(sum(map(int, held.values())), 0)
                if hertz:
                    self.check_first_line(ended, hertz)
                else:
                    self.assertFalse({"Power", "Frequency", "Overload"} & ended.readings.keys())

    def check_first_line(self, ended, hertz):
        self.assertAlmostEqual(ended.number("Frequency"), hertz, delta=0.2)
        apparent = ended.number(VOLTS) * ended.number("Current RMS Load")
        self.assertAlmostEqual(ended.number("Power") / apparent, ended.number("Power Factor"), delta=0.03)
        self.assertAlmostEqual(ended.number("Crest Factor"), 1.405, delta=0.05)

    def test_energy_counts_from_its_date_in_local_time(self):
        with Simulator("--past", "3", "--name", "BENCH 7") as device:
            register = struct.unpack(">I", device.ask(termios.B115200, b"g9", 23)[:4])[0]
            ended = self.read(device, environment={"TZ": "XYZ-5:30"})
        self.assertTrue(ended.link.rstrip().endswith("ID BENCH 7"), ended.link)
        self.assertAlmostEqual(ended.number("Energy Usage (kWh)"), register / 2**24 * 232, delta=0.01)
        zone = datetime.timezone(datetime.timedelta(hours=5, minutes=30))
        since = datetime.datetime.strptime(ended.since, "%H:%M:%S %m/%d/%Y").replace(tzinfo=zone)
        age = datetime.datetime.now(zone) - since
        self.assertAlmostEqual(age.total_seconds(), 3 * 86400, delta=30)

    def test_old_firmware_counts_no_overloads(self):
        with Simulator("--firmware", "1.GA9") as device:
            self.assertNotIn("Overload", self.read(device).readings)

    def test_a_comma_locale_changes_no_number(self):
        locales = tempfile.mkdtemp(prefix="zephon-locale-")
        self.addCleanup(shutil.rmtree, locales)
        german = os.path.join(locales, "de_DE.UTF-8")
        try:
            subprocess.run(["localedef", "-i", "de_DE", "-f", "UTF-8", german], check=True, capture_output=True)
        except (OSError, subprocess.CalledProcessError) as why:
            self.skipTest(f"no comma locale to be had: {why}")
        with Simulator("--steady", "--past", "3") as device:
            plain = self.read(device)
            comma = self.read(device, environment={"LC_ALL": "de_DE.UTF-8", "LOCPATH": locales})
        self.assertEqual(comma.readings.keys(), plain.readings.keys())
        self.assertNotIn(",", comma.output)
        self.assertAlmostEqual(comma.number("Energy Usage (kWh)"), plain.number("Energy Usage (kWh)"), delta=0.01)

    def test_faults_of_the_line(self):
        faults = {"silent": 4, "short": 4, "cut:only=g6": 4, "stray": 0, "late:amount=40": 0}
        for fault, status in faults.items():
            with self.subTest(fault), Simulator("--fault", fault) as device:
                ended = self.zephon.run("-m", ports=device.folder)
                self.assertEqual(ended.status, status, ended.errors)
                self.assertEqual(VOLTS in ended.readings, status == 0)

    def test_a_line_that_goes_away(self):
        with Simulator("--fault", "late:only=gV,amount=1900") as device:
            process = self.zephon.start("-m", ports=device.folder)
            self.wait_for_port(process, device)
            time.sleep(0.5)  # the rating is owed now
            device.process.kill()
            self.assertEqual(finish(process).status, 4)

    def test_no_port(self):
        ended = self.zephon.run("-m")
        self.assertEqual((ended.status, ended.output), (3, ""))
        self.assertIn("COM Error: Error (2): CommOpen (CreateFile) - No such file or directory", ended.errors)

    def test_a_port_has_one_owner(self):
        with Simulator("--fault", "late:only=gV,amount=1500,count=1") as device:
            first = self.zephon.start("-m", ports=device.folder)
            self.wait_for_port(first, device)
            second = self.zephon.run("-m", ports=device.folder)
            self.assertEqual(finish(first).status, 0)
        self.assertEqual(second.status, 3)
        self.assertIn("CommOpen (CreateFile) - Device or resource busy", second.errors)
        self.assertIn(f"zephon (process {first.pid})", second.errors)

    def wait_for_port(self, process, device):
        line = device.port.resolve()
        files = pathlib.Path(f"/proc/{process.pid}/fd")
        wait_until("the port's owner", lambda: line in {file.resolve() for file in files.glob("*")})
        time.sleep(0.1)  # it locks what it has opened


class TheProgram(unittest.TestCase):
    def setUp(self):
        self.zephon = Zephon()
        self.addCleanup(self.zephon.remove)

    def test_the_port_is_the_configured_one(self):
        (self.zephon.folder / "config.txt").write_text("7\t;COM Port\nFalse\t;\nFalse\t;\nEN\t;\n")
        with Simulator("--port", "7") as device:
            ended = self.zephon.run("-m", ports=device.folder)
        self.assertEqual(ended.status, 0, ended.errors)
        self.assertTrue(ended.link.startswith("COM7  Orvantis"), ended.link)

    def test_it_says_that_its_texts_are_missing(self):
        (self.zephon.folder / "EN.dictionary").unlink()
        ended = self.zephon.run("-m")
        self.assertEqual(ended.status, 1)
        self.assertIn("Unable to locate or read dictionary file.", ended.errors)

    def test_expert_does_nothing(self):
        ended = self.zephon.run("EXPERT")
        self.assertEqual((ended.status, ended.output, ended.errors), (0, "", ""))

    def test_the_window_closes_within_a_second(self):
        process = self.zephon.start()
        time.sleep(2)
        if process.poll() == 2:
            finish(process)
            self.skipTest("built without a window")
        process.send_signal(signal.SIGTERM)
        asked = time.monotonic()
        self.assertEqual(finish(process).status, 0)
        self.assertLess(time.monotonic() - asked, 1)


if __name__ == "__main__":
    unittest.main()
