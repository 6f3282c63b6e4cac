"""A desktop of the measurement's own, and processes that are started at it and say what they took."""

import os
import re
import select
import signal
import subprocess
import time
from dataclasses import dataclass

PAINT = re.compile(
    r"(?P<name>[a-z ]+): (?P<wall>[\d.]+) ms, processor (?P<busy>[\d.]+) ms, memory (?P<peak>[\d.]+) MB")
PATIENCE = 20  # seconds that a process has to paint


@dataclass
class Paint:
    """Until the end of a paint: milliseconds since the start, of the processor; most memory in MB."""

    wall: float
    busy: float
    peak: float


class Desktop:
    """An Xvfb without a window manager, and a session bus with nobody on it."""

    def __enter__(self):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x800x24", "-nolisten", "tcp",
             "-noreset"],  # as on a desktop, where the last window never closes
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with open(reading, encoding="ascii") as said:
            display = ":" + said.readline().strip()
        self.bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"],
                                    stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.environment = {"DISPLAY": display,
                            "DBUS_SESSION_BUS_ADDRESS": self.bus.stdout.readline().strip()}
        return self

    def __exit__(self, *_):
        for process in (self.bus, self.server):
            process.terminate()
            process.wait()


class Started:
    """A program that prints its paint times, started this moment."""

    def __init__(self, command, environment):
        reading, writing = os.pipe()
        self.process = os.fork()
        if self.process == 0:
            self._become(command, environment, writing)
        os.close(writing)
        self.output = reading
        self.heard = ""

    @staticmethod
    def _become(command, environment, output):
        """The moment is taken last, so that what comes after it is the program's own."""
        try:
            os.dup2(output, 1)
            nothing = os.open("/dev/null", os.O_RDWR)
            os.dup2(nothing, 0)
            os.dup2(nothing, 2)
            environment = dict(environment)
            environment["ZEPHYRIX_STARTED_AT"] = str(time.clock_gettime_ns(time.CLOCK_MONOTONIC))
            os.execve(command[0], command, environment)
        finally:
            os._exit(127)

    def paint(self, name="first paint"):
        """What the process tells of a paint. RuntimeError when it does not."""
        deadline = time.monotonic() + PATIENCE
        while True:
            for line in self.heard.splitlines():
                told = PAINT.fullmatch(line)
                if told and told["name"] == name:
                    return Paint(float(told["wall"]), float(told["busy"]), float(told["peak"]))
            rest = deadline - time.monotonic()
            ready = select.select([self.output], [], [], max(rest, 0))[0]
            more = os.read(self.output, 4096).decode() if ready else ""
            if not more:
                raise RuntimeError(f"process {self.process} does not tell of a {name}: {self.heard!r}")
            self.heard += more

    def status(self, field):
        """A number of the kernel's status of the process."""
        return _number_in(f"/proc/{self.process}/status", field)

    def proportional_memory(self):
        """Megabytes; what several processes share is divided among them."""
        return _number_in(f"/proc/{self.process}/smaps_rollup", "Pss") / 1024

    def switches(self):
        """How often each thread of the process was given a processor, so far: {thread: count}."""
        counts = {}
        for thread in os.listdir(f"/proc/{self.process}/task"):
            path = f"/proc/{self.process}/task/{thread}/status"
            counts[thread] = (_number_in(path, "voluntary_ctxt_switches")
                              + _number_in(path, "nonvoluntary_ctxt_switches"))
        return counts

    def wakeups_in(self, seconds):
        """How often the process wakes up in this time."""
        before = self.switches()
        time.sleep(seconds)
        after = self.switches()
        ended = sum(thread not in after for thread in before)  # each woke up to end
        return ended + sum(count - before.get(thread, 0) for thread, count in after.items())

    def end(self):
        os.kill(self.process, signal.SIGTERM)
        os.waitpid(self.process, 0)
        os.close(self.output)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.end()


def _number_in(path, field):
    with open(path, encoding="ascii") as lines:
        for line in lines:
            if line.startswith(field + ":"):
                return int(line.split()[1])
    raise KeyError(field)
