"""The built tool exports what the built simulator tells over a real pseudo-terminal."""

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

from programs import InstalledZephon, Simulator, Zephon, finish, wait_until

VOLTS = "Line Voltage"
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


def events_of(device):
    """The records of the device's own log: code and universal time."""
    frame = device.ask(termios.B115200, b"gE", 8196)
    records = [frame[place : place + 8] for place in range(4, 4 + 512 * 8, 8)]
    used = 512 if frame[:1] == b"1" else (int.from_bytes(frame[1:4], "big") - 110592) // 8
    moment = lambda year, day, month, second, minute, hour: datetime.datetime(
        2000 + year, month, day, hour, minute, second, tzinfo=datetime.timezone.utc
    )
    held = [record for record in records[:used] if record != bytes([0xFF] * 8)]
    return [(record[0], moment(*(int(f"{byte:x}") for byte in record[1:7]))) for record in held]


class UnattendedExport(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.zephon = Zephon()
        cls.addClassCleanup(cls.zephon.remove)

    def read(self, device, *switches, **surroundings):
        ended = self.zephon.export(*(switches or ("-m", "-c")), ports=device.folder, **surroundings)
        self.assertEqual((ended.status, ended.output, ended.errors), (0, "", ""))
        return ended

    def test_readings_are_those_of_the_device(self):
        devices = [
            # options, site's volts, rating and firmware, counts, hertz
            (["--orvantis", "--120"], 118, ("120", "1.KD1"), first_line_counts, 60),
            (["--orvantis", "--240"], 230, ("240", "1.KD1"), first_line_counts, 50),
            (["--tessara", "--120"], 125, ("120", "2.00"), second_line_counts, None),
            (["--tessara", "--240"], 208, ("240", "1*14"), second_line_counts, None),
        ]
        for options, volts, name, counts, hertz in devices:
            with self.subTest(name), Simulator(*options, "--site-volts", str(volts), "--past", "20") as device:
                held = counts(device)
                ended = self.read(device)
                self.assertEqual((ended.heading["Voltage Rating"], ended.heading["Firmware Version"]), name)
                # The site wanders by two per cent, and its wires lose a volt.
                self.assertTrue(0.96 * volts <= ended.number(VOLTS) <= 1.03 * volts, ended.text)
                told = ended.section("Surge")[0]
                self.assertEqual({count: told.get(count) for count in held}, held)
                self.assertGreater(sum(map(int, held.values())), 0)
                if hertz:
                    self.check_first_line(ended, hertz)
                else:
                    self.assertFalse({"Load Power", "Frequency", "Overload"} & {*ended.section(VOLTS)[0], *told})

    def check_first_line(self, ended, hertz):
        self.assertAlmostEqual(ended.number("Frequency"), hertz, delta=0.2)
        apparent = ended.number(VOLTS) * ended.number("Load Current")
        self.assertAlmostEqual(ended.number("Load Power") / apparent, ended.number("Power Factor"), delta=0.03)
        self.assertAlmostEqual(ended.number("Crest Factor"), 1.405, delta=0.05)

    def test_energy_and_name_are_those_of_the_device(self):
        with Simulator("--past", "3", "--name", "BENCH 7") as device:
            register = struct.unpack(">I", device.ask(termios.B115200, b"g9", 23)[:4])[0]
            ended = self.read(device)
        self.assertEqual(ended.heading["ID"].rstrip(), "BENCH 7")
        self.assertAlmostEqual(ended.number("Energy Usage"), register / 2**24 * 232, delta=0.01)

    def test_events_are_those_of_the_device_in_local_time(self):
        with Simulator("--past", "20") as device:
            held = events_of(device)
            ended = self.read(device, "-t", environment={"TZ": "XYZ-5:30"})
        zone = datetime.timezone(datetime.timedelta(hours=5, minutes=30))
        told = [
            datetime.datetime.strptime(f"{row['Date']} {row['Time']}", "%m/%d/%y %H:%M:%S").replace(tzinfo=zone)
            for row in ended.section("Event")
        ]
        self.assertEqual(told, [moment for _, moment in held])
        self.assertGreater(len(told), 100)
        surges = sum(row["Event"] == "Surge" for row in ended.section("Event"))
        self.assertEqual(surges, sum(code == 32 for code, _ in held))

    def test_it_appends_and_keeps_what_stands(self):
        with Simulator("--steady") as device:
            for _ in range(3):
                self.zephon.run("/o", self.zephon.exported, "-m", "-a", ports=device.folder)
            ended = self.read(device, "-m", "-a")
            self.assertEqual(len(ended.section(VOLTS)), 4)
            self.zephon.exported.write_text("old")
            failed = self.zephon.export("-m", "-z", ports=device.folder)
            self.assertEqual((failed.status, failed.text), (2, "old"))
            self.assertEqual(failed.errors, "zephon: usage: zephon /o FILE [-m] [-t] [-c] [-a]\n")
            missing = self.zephon.run("/o", self.zephon.folder / "no" / "file", "-m", ports=device.folder)
        self.assertEqual((missing.status, missing.output), (5, ""))
        self.assertIn("The file could not be saved.", missing.errors)
        self.assertIn("No such file or directory", missing.errors)

    def test_old_firmware_counts_no_overloads(self):
        with Simulator("--firmware", "1.GA9") as device:
            self.assertNotIn("Overload", self.read(device).section("Surge")[0])

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
            # The C library never gives back its list of LOCPATH's folders, which a leak check would tell.
            german_here = {"LC_ALL": "de_DE.UTF-8", "LOCPATH": locales, "ASAN_OPTIONS": "detect_leaks=0"}
            comma = self.read(device, environment=german_here)
        self.assertEqual(comma.section(VOLTS)[0].keys(), plain.section(VOLTS)[0].keys())
        self.assertAlmostEqual(comma.number("Energy Usage"), plain.number("Energy Usage"), delta=0.01)

    def test_faults_of_the_line(self):
        faults = {
            "silent": 4,
            "short": 4,
            "cut:only=g6": 4,
            "cut:only=gE,amount=5000": 4,
            "stray": 0,
            "late:amount=40": 0,
            "stall:only=gE,amount=500": 0,
        }
        for fault, status in faults.items():
            with self.subTest(fault), Simulator("--fault", fault) as device:
                self.zephon.exported.write_text("old")
                ended = self.zephon.export(ports=device.folder)
                self.assertEqual((ended.status, ended.output), (status, ""), ended.errors)
                self.assertEqual(ended.text == "old", status != 0)
                self.assertEqual(ended.errors == "", status == 0)

    def test_a_line_that_goes_away(self):
        with Simulator("--fault", "late:only=gV,amount=1900") as device:
            process = self.zephon.start("/o", "/dev/null", "-m", ports=device.folder)
            self.wait_for_port(process, device)
            time.sleep(0.5)  # the rating is owed now
            device.process.kill()
            self.assertEqual(finish(process).status, 4)

    def test_no_port(self):
        ended = self.zephon.export("-m")
        self.assertEqual((ended.status, ended.output, ended.text), (3, "", ""))
        self.assertIn("COM Error: Error (2): CommOpen (CreateFile) - No such file or directory", ended.errors)

    def test_a_port_has_one_owner(self):
        with Simulator("--fault", "late:only=gV,amount=1500,count=1") as device:
            first = self.zephon.start("/o", "/dev/null", "-m", ports=device.folder)
            self.wait_for_port(first, device)
            second = self.zephon.export("-m", ports=device.folder)
            self.assertEqual(finish(first).status, 0)
        self.assertEqual(second.status, 3)
        self.assertIn("CommOpen (CreateFile) - Device or resource busy", second.errors)
        self.assertIn(f"zephon ({first.pid})", second.errors)

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
            ended = self.zephon.export("-m", ports=device.folder)
        self.assertEqual(ended.status, 0, ended.errors)
        self.assertEqual(ended.heading["ID"], "ZEPHON SIM")

    def test_an_installed_one_has_the_configuration_of_its_user(self):
        installed = InstalledZephon()
        self.addCleanup(installed.remove)
        own = installed.folder / ".config" / "zephon"
        own.mkdir(parents=True)
        for folder, number in ((installed.programs, 5), (installed.resources, 6), (own, 7)):
            (folder / "config.txt").write_text(f"{number}\t;COM Port\nFalse\t;\nFalse\t;\nEN\t;\n")
        with Simulator("--port", "7") as device:
            ended = installed.export("-m", ports=device.folder)
        self.assertEqual(ended.status, 0, ended.errors)

    def test_it_says_that_its_texts_are_missing(self):
        (self.zephon.folder / "EN.dictionary").unlink()
        ended = self.zephon.export("-m")
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
