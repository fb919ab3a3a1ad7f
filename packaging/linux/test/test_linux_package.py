# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""The Linux package runs from any directory, in an unprepared environment."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import unittest.mock

import harness

if not shutil.which("dpkg-shlibdeps"):
    print("skipped: this system makes no Debian packages")
    sys.exit(77)


class Package(unittest.TestCase):
    def test_unpacked_package_runs(self):
        with tempfile.TemporaryDirectory() as directory:
            subprocess.run(["cpack", "-B", directory, "--config", os.environ["CPACK_CONFIGURATION"]], check=True)
            package, = pathlib.Path(directory).glob("*.deb")
            subprocess.run(["dpkg-deb", "--extract", package, directory], check=True)
            pages = pathlib.Path(directory, "usr/share/doc/ravel-monitor-orbis-simulator")
            links = {pathlib.Path(os.path.normpath(page.parent / link)) for page in pages.rglob("*.md")
                     for link in re.findall(r"\]\((?!http)([^)#]+)", page.read_text(encoding="utf-8"))}
            self.assertIn(pages / "wireshark/orbis.lua", links)
            self.assertEqual([link for link in links if link.parent.parent == pages and not link.exists()], [])
            with unittest.mock.patch.dict(os.environ, SIMULATOR=directory + "/usr/bin/ravel-monitor-orbis-simulator"):
                for name in ("PROGRAMDATA", "XDG_DATA_HOME", "QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"):
                    os.environ.pop(name, None)
                simulator = harness.start(["--language", "fr_FR"])
            self.assertIn(f'path: {os.environ["HOME"]}/.local/share/Pelmora/', simulator.log())
            simulator.wait_for_log('Successfully set language to "fr_FR"')
            simulator.wait_for_log("Added port for device")
            simulator.stop()
