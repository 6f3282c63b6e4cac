"""The programs of the build under test, run in a home of their own."""

import os
import subprocess
import tempfile
from pathlib import Path

SOURCE = Path(os.environ["SOURCE_DIR"])
BUILD = Path(os.environ["BUILD_DIR"])
VERSION = os.environ["VERSION"]
PROGRAMS = ("zephyrix", "zephyrix-panel", "zephyrix-feedd")

home = tempfile.TemporaryDirectory(prefix="zephyrix-home-")


def environment():
    kept = {name: value for name, value in os.environ.items()
            if name in ("PATH", "TSAN_OPTIONS", "ASAN_OPTIONS")}
    return kept | {"HOME": home.name, "XDG_RUNTIME_DIR": home.name, "LANG": "en_US.UTF-8",
                   "TZ": "Europe/Berlin", "QT_QPA_PLATFORM": "offscreen"}


def run(*command, **options):
    """What the command prints; fails with what it complains of."""
    done = subprocess.run([str(part) for part in command], env=environment(), capture_output=True,
                          encoding="utf-8", timeout=240, check=False, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command} ended with {done.returncode}: {done.stdout}{done.stderr}")
    return done.stdout


def install(prefix, component):
    run("cmake", "--install", BUILD, "--prefix", prefix, "--component", component)
