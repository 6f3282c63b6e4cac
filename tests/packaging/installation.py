#!/usr/bin/env python3
"""The programs run from where they are installed, with all that belongs to them."""

import fnmatch
import os
import re
import shutil
import tempfile
import unittest
from pathlib import Path

import programs
from programs import PROGRAMS, SOURCE, VERSION


class Installation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="zephyrix-installed-")
        cls.addClassCleanup(folder.cleanup)
        cls.prefix = Path(folder.name)
        programs.install(cls.prefix, "programs")

    def test_holds_what_it_should_and_nothing_else(self):
        patterns = [line for line in (SOURCE / "packaging/contents.txt").read_text().splitlines()
                    if line and not line.startswith("#")]
        files = [str(path.relative_to(self.prefix)) for path in self.prefix.rglob("*")
                 if not path.is_dir()]
        self.assertEqual([pattern for pattern in patterns if not fnmatch.filter(files, pattern)], [])
        self.assertEqual([file for file in files
                          if not any(fnmatch.fnmatch(file, pattern) for pattern in patterns)], [])

    def test_programs_tell_their_version(self):
        for program in PROGRAMS:
            self.assertEqual(programs.run(self.prefix / "bin" / program, "--version"),
                             f"{program} {VERSION}\n")

    @unittest.skipIf(os.environ["SANITIZERS"] == "thread",
                     "the thread sanitizer cannot follow the panel past the start of its feed")
    def test_the_panel_finds_texts_and_feed_beside_it(self):
        programs.run(self.prefix / "bin/zephyrix", "place", "default")
        text = programs.run(self.prefix / "bin/zephyrix-panel", "--text")
        self.assertRegex(text, r"\ABerlin .*\n.*\d ?°C \w{2,}.*\n")
        self.assertIn("(Demonstration weather)", text)

    def test_the_further_symbol_set_is_found(self):
        picture = Path(programs.home.name) / "symbol.png"
        programs.run(self.prefix / "bin/zephyrix", "symbol", "1300000", "-o", picture, "--set", "1")
        self.assertTrue(picture.read_bytes().startswith(b"\x89PNG"))

    @unittest.skipUnless(shutil.which("systemd-analyze"), "systemd-analyze is missing")
    def test_systemd_takes_the_unit(self):
        unit = (self.prefix / "lib/systemd/user/zephyrix-panel.service").read_text()
        there = re.sub("(?m)^ExecStart=", f"ExecStart={self.prefix}/bin/", unit)
        path = Path(programs.home.name) / "zephyrix-panel.service"
        path.write_text(there)
        # It ends well also where it complains of a setting that it does not know.
        complaints = programs.run("sh", "-c", 'systemd-analyze verify --user --man=no "$0" 2>&1', path)
        self.assertNotIn("zephyrix", complaints)


if __name__ == "__main__":
    unittest.main()
