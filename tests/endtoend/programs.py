"""The built programs, started as a user starts them, each in a folder and a session of its own."""

import os
import pathlib
import select
import shutil
import signal
import subprocess
import tempfile
import termios
import time
import tty

BUILD = pathlib.Path(os.environ["ZEPHON_BUILD"])
PATIENCE = 20.0


def wait_until(what, met, seconds=PATIENCE):
    end = time.monotonic() + seconds
    while not met():
        if time.monotonic() > end:
            raise AssertionError(f"{what}: not within {seconds} s")
        time.sleep(0.01)


def processes_of_session(session):
    """Who is alive in it, zombies left out."""
    alive = []
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            name, rest = stat.read_text().rsplit(")", 1)
        except (FileNotFoundError, ProcessLookupError):
            continue
        state, _, _, sid = rest.split()[:4]
        if int(sid) == session and state != "Z":
            alive.append(name)
    return alive


class Simulator:
    """A simulated device at COM1 of a folder of its own."""

    def __init__(self, *options):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="zephon-ports-"))
        self.port = self.folder / "COM1"
        command = [BUILD / "zephon-simulator", "--quiet", "--ports", self.folder, *options]
        self.process = subprocess.Popen(command, start_new_session=True)
        wait_until("the simulator's port", lambda: any(self.folder.glob("COM*")) or self.process.poll() is not None)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGTERM)
        status = self.process.wait(PATIENCE)
        left = list(self.folder.iterdir())
        shutil.rmtree(self.folder)
        if status == 0 and left:
            raise AssertionError(f"the simulator has left {left}")
        if status not in (0, -signal.SIGKILL):
            raise AssertionError(f"the simulator ended with {status}")

    def ask(self, baud, command, count):
        """What the device itself says to a command."""
        line = os.open(self.port, os.O_RDWR | os.O_NOCTTY)
        try:
            tty.setraw(line)
            settings = termios.tcgetattr(line)
            settings[4] = settings[5] = baud
            termios.tcsetattr(line, termios.TCSANOW, settings)
            os.write(line, command)
            reply = b""
            while len(reply) < count and select.select([line], [], [], 5.0)[0]:
                reply += os.read(line, count - len(reply))
            return reply
        finally:
            os.close(line)


class Zephon:
    """The tool, copied with what it needs beside it, so that nobody's own configuration takes part."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="zephon-program-"))
        self.programs, self.resources = self.lay_out()
        shutil.copy2(BUILD / "zephon", self.programs)
        for dictionary in BUILD.glob("*.dictionary"):
            shutil.copy2(dictionary, self.resources)

    def lay_out(self):
        return self.folder, self.folder

    def remove(self):
        shutil.rmtree(self.folder)

    def start(self, *arguments, ports=None, environment=None):
        own = {
            "PATH": os.environ["PATH"],
            "HOME": str(self.folder),
            "LC_ALL": "C",
            "ZEPHON_PORTS": str(ports or self.folder),
            "QT_QPA_PLATFORM": "offscreen",
            **{name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")},
            **(environment or {}),
        }
        return subprocess.Popen(
            [self.programs / "zephon", *arguments],
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            encoding="utf-8",
            env=own,
            start_new_session=True,
        )

    def run(self, *arguments, **surroundings):
        return finish(self.start(*arguments, **surroundings))

    def export(self, *switches, **surroundings):
        """An unattended export to a file of its own."""
        return Export(self.run("/o", self.exported, *switches, **surroundings), self.exported)

    @property
    def exported(self):
        return self.folder / "export.csv"


class InstalledZephon(Zephon):
    """The tool as a package lays it out."""

    def lay_out(self):
        programs, resources = self.folder / "bin", self.folder / "share" / "zephon"
        programs.mkdir()
        resources.mkdir(parents=True)
        return programs, resources


class Ended:
    def __init__(self, status, output, errors):
        self.status, self.output, self.errors = status, output, errors


class Export:
    """What an export has written: its heading, and a table for each section that it has."""

    def __init__(self, ended, path):
        self.status, self.output, self.errors = ended.status, ended.output, ended.errors
        self.text = path.read_bytes().decode("cp1252") if path.exists() else ""
        path.unlink(missing_ok=True)
        lines = self.text.split("\r\n")
        self.heading = dict(line.split(": ", 1) for line in lines if ": " in line)
        self.tables = []
        for line in lines:
            if line.startswith("Date,Time,"):
                self.tables.append((line.split(","), []))
            elif line.count(",") > 1:
                self.tables[-1][1].append(line.split(","))

    def section(self, column):
        """The rows, by column name, of the section that has this column."""
        for names, rows in self.tables:
            if column in names:
                return [dict(zip(names, row)) for row in rows]
        return []

    def number(self, name):
        return float(self.section(name)[0][name])


def finish(process):
    """Waits for the end and makes sure that nothing is left running."""
    try:
        output, errors = process.communicate(timeout=PATIENCE)
    except subprocess.TimeoutExpired:
        process.kill()
        process.communicate()
        raise
    left = processes_of_session(process.pid)
    if left:
        raise AssertionError(f"left running: {left}")
    return Ended(process.returncode, output, errors)
