#!/usr/bin/env python3
"""What desktops, software centres, systemd and dpkg read about the programs."""

import re
import shutil
import unittest
import xml.etree.ElementTree as ElementTree

import programs
from programs import SOURCE, VERSION

METAINFO = SOURCE / "packaging/appstream/org.zephyrix.panel.metainfo.xml"


class Metadata(unittest.TestCase):
    @unittest.skipUnless(shutil.which("appstreamcli"), "appstreamcli is missing")
    def test_software_centres_take_it(self):
        programs.run("appstreamcli", "validate", "--no-net", "--pedantic", METAINFO)

    def test_software_centres_find_the_desktop_entry_and_the_version(self):
        component = ElementTree.parse(METAINFO)
        entry = SOURCE / "resources/desktop" / component.findtext("launchable")
        self.assertIn("\nExec=zephyrix-panel\n", entry.read_text(encoding="utf-8"))
        self.assertEqual([binary.text for binary in component.findall("provides/binary")],
                         ["zephyrix-panel", "zephyrix", "zephyrix-feedd"])
        self.assertEqual(component.find("releases/release").get("version"), VERSION)

    def test_the_package_has_the_version_of_the_programs(self):
        changelog = (SOURCE / "packaging/debian/changelog").read_text(encoding="utf-8")
        self.assertEqual(re.match(r"zephyrix-panel \((.*)-\d+\)", changelog)[1], VERSION)

    def test_the_licence_is_the_one_of_the_source(self):
        told = (SOURCE / "packaging/debian/copyright").read_text(encoding="utf-8")
        stanza = told[told.index("Permission"):].split("\n\n")[0]
        licence = (SOURCE / "LICENSE").read_text(encoding="utf-8")
        self.assertEqual(re.sub(r"(?m)^ \.$", "", stanza).split(),
                         licence[licence.index("Permission"):].split())


if __name__ == "__main__":
    unittest.main()
