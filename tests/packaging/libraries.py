#!/usr/bin/env python3
"""A project outside of the tree finds the libraries, builds with them and runs."""

import os
import tempfile
import unittest
from pathlib import Path

import programs
from programs import SOURCE


class Libraries(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="zephyrix-libraries-")
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        cls.prefix = cls.folder / "installed"
        for component in ("programs", "libraries"):
            programs.install(cls.prefix, component)

    def build(self, source):
        build = self.folder / "build" / source.name
        programs.run("cmake", "-S", source, "-B", build, "-G", "Ninja",
                     f"-DCMAKE_PREFIX_PATH={self.prefix}", "-DCMAKE_BUILD_TYPE=Debug",
                     f"-DCMAKE_CXX_COMPILER={os.environ['CXX']}",
                     f"-DCMAKE_CXX_FLAGS={os.environ['CXXFLAGS']}")
        programs.run("cmake", "--build", build)
        return build

    def test_the_example_runs(self):
        picture = self.folder / "symbol.png"
        printed = programs.run(self.build(SOURCE / "examples") / "midsummer", picture)
        # Almanacs have the sun set at 21:33.
        self.assertRegex(printed, r"\ABerlin\n21:3[2-4]\n70°F\nrain\n\Z")
        self.assertTrue(picture.read_bytes().startswith(b"\x89PNG"))

    def test_each_header_finds_what_it_includes(self):
        """And it comes with the language that it is written in."""
        include = self.prefix / "include/zephyrix"
        headers = sorted(str(path.relative_to(include)) for path in include.rglob("*.h"))
        source = self.folder / "headers"
        source.mkdir()
        (source / "headers.cpp").write_text("".join(f'#include "{name}"\n' for name in headers))
        (source / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(Headers LANGUAGES CXX)\n"
            "find_package(Zephyrix REQUIRED)\nadd_library(headers STATIC headers.cpp)\n"
            "target_link_libraries(headers PRIVATE Zephyrix::meteo Zephyrix::symbols"
            " Zephyrix::symbolscheme)\n")
        self.build(source)

    def test_nothing_points_into_the_build(self):
        for path in (self.prefix / "lib").rglob("*.cmake"):
            text = path.read_text(encoding="utf-8")
            for folder in (programs.BUILD, SOURCE):
                self.assertNotIn(f"{folder}/", text, path)


if __name__ == "__main__":
    unittest.main()
