"""What the panel's process takes, beside bare windows that are started by turns with it."""

import os
import shutil
import subprocess
import tempfile
import time
import urllib.request
from statistics import median

from .desktop import Started
from .feed import Feed, make_certificate, trusting

SETTLED = 5  # seconds after the first paint


class Home:
    """A user's folders, with the built-in place chosen and nothing cached."""

    def __init__(self, programs, desktop):
        self.folder = tempfile.mkdtemp(prefix="zephyrix-bench-")
        self.environment = {
            "PATH": os.environ["PATH"], "LANG": "en_US.UTF-8", "TZ": "Europe/Berlin",
            "HOME": self.folder, "QT_QPA_PLATFORM": "xcb", **desktop.environment}
        for kind in ("CONFIG", "CACHE", "DATA"):
            self.environment[f"XDG_{kind}_HOME"] = os.path.join(self.folder, kind.lower())
        self.environment["XDG_RUNTIME_DIR"] = os.path.join(self.folder, "run")
        os.mkdir(self.environment["XDG_RUNTIME_DIR"], 0o700)
        subprocess.run([f"{programs}/zephyrix", "place", "default"], env=self.environment,
                       check=True, stdout=subprocess.DEVNULL)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder)


def demonstration_document(programs):
    """What the project's own feed server says about the built-in place now."""
    server = subprocess.Popen([f"{programs}/zephyrix-feedd", "--port", "0"],
                              stdout=subprocess.PIPE, text=True)
    try:
        port = server.stdout.readline().strip().rstrip("/").rpartition(":")[2]
        address = f"http://127.0.0.1:{port}/zephyrix/WeatherFeed.php?lid=18228265&json=1&widget=1"
        with urllib.request.urlopen(address) as answer:
            return answer.read()
    finally:
        server.terminate()
        server.wait()


def panel(programs, *options):
    return [f"{programs}/zephyrix-panel", "--paint-time", *options]


def by_turns(cases, runs):
    """The paints of each case: {name: [Paint]}. A case is a command and its home."""
    paints = {name: [] for name in cases}
    for run in range(runs + 1):
        for name, (command, home) in cases.items():
            with Started(command, home.environment) as process:
                paint = process.paint()
            if run > 0:  # the first fills caches
                paints[name].append(paint)
    return paints


def medians(paints):
    return {name: {kind: median(getattr(paint, kind) for paint in all_of_it)
                   for kind in ("wall", "busy", "peak")} for name, all_of_it in paints.items()}


def fill_cache(programs, home, address):
    """Lets the panel fetch a document, which it then finds cached, with its symbols."""
    command = [f"{programs}/zephyrix-panel", "--text", "--expanded", "--scale", "1",
               "--feed", address]
    subprocess.run(command, env=home.environment, check=True, capture_output=True)


def first_paints(programs, desktop, document, runs):
    """With a cached document that needs no fetch: {case: {wall, busy, peak}}, medians."""
    with Feed(document) as feed, Home(programs, desktop) as home, \
            Home(programs, desktop) as other:  # as a panel that was expanded stays so
        for each in (home, other):
            fill_cache(programs, each, feed.address)
        return medians(by_turns({
            "bare window": ([f"{programs}/bare_window"], home),
            "bare window, same libraries": ([f"{programs}/bare_window_linked"], home),
            "collapsed": (panel(programs), home),
            "expanded": (panel(programs, "--expanded"), other),
            "collapsed, --window": (panel(programs, "--window"), home),
        }, runs))


def first_start(programs, desktop, document, runs):
    """Milliseconds until the fetched document is painted, the server's time taken out, and the bare
    window's beside it; medians."""
    own, floor = [], []
    with Feed(document) as feed:
        for _ in range(runs):
            with Home(programs, desktop) as home:
                with Started([f"{programs}/bare_window"], home.environment) as window:
                    floor.append(window.paint().wall)
                with Started(panel(programs, "--feed", feed.address), home.environment) as process:
                    own.append(process.paint("fetched document").wall - feed.last_answer_time())
    return median(own), median(floor)


def memory_after_https(programs, desktop, document, runs):
    """Most megabytes of several runs until the first document that came by HTTPS was painted; it
    differs from run to run by 7 MB. None where a program may not have a
    mount namespace of its own."""
    with Home(programs, desktop) as home:
        start = trusting(make_certificate(home.folder), home.folder)
        if subprocess.run([*start, "true"], capture_output=True).returncode != 0:
            return None
    return max(_peak_after_https(programs, desktop, document) for _ in range(runs))


def _peak_after_https(programs, desktop, document):
    with Home(programs, desktop) as home:
        certificate = make_certificate(home.folder)
        start = trusting(certificate, home.folder)
        with Feed(document, certificate) as feed:
            command = start + panel(programs, "--feed", feed.address)
            with Started(command, home.environment) as process:
                return process.paint("fetched document").peak


def idle(programs, desktop, document, seconds):
    """After some seconds on the screen: megabytes resident, megabytes proportional, and how often a
    minute the process wakes up."""
    with Feed(document) as feed, Home(programs, desktop) as home:
        command = panel(programs, "--feed", feed.address)
        with Started(command, home.environment) as first:
            first.paint("fetched document")
            time.sleep(1)
        with Started(command, home.environment) as process:
            process.paint()
            time.sleep(SETTLED)
            resident = process.status("VmRSS") / 1024
            proportional = process.proportional_memory()
            return resident, proportional, process.wakeups_in(seconds) * 60 / seconds
