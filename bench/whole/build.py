"""How long the build takes from clean, and after a change of one file; without a compiler cache."""

import os
import resource
import subprocess
import tempfile
import time

CHANGED = "src/meteo/WindAndUv.cpp"


def _timed(command, environment):
    """Seconds of the clock, and of all processors."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    begun = time.monotonic()
    subprocess.run(command, env=environment, check=True, stdout=subprocess.DEVNULL)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    busy = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
    return time.monotonic() - begun, busy


def measure(table, root, preset="dev"):
    environment = dict(os.environ, CCACHE_DISABLE="1")
    with tempfile.TemporaryDirectory(prefix="zephyrix-build-") as folder:
        build = ["cmake", "--build", folder, "-j2"]
        subprocess.run(["cmake", "-S", root, "--preset", preset, "-B", folder],
                       check=True, stdout=subprocess.DEVNULL)
        wall, busy = _timed(build, environment)
        table.row("build from clean with tests, 2 jobs", wall, "seconds", 240)
        table.row("the same, processor", busy, "seconds")
        os.utime(os.path.join(root, CHANGED))
        wall, _ = _timed(build, environment)
        table.row(f"build after a change of {CHANGED}", wall, "seconds", 15)
