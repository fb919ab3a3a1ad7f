# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Every language has a finished translation of every text, and no unused one."""

import json
import os
import pathlib
import re
import subprocess
import sys
import unittest
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).parents[2]
LANGUAGES = ["de_DE", "en_GB", "en_US", "es_ES", "fr_FR", "it_IT", "nl_NL"]


class Translations(unittest.TestCase):
    def check(self, kind, context, wanted):
        files = sorted((ROOT / "i18n").glob(kind + "_*.ts"))
        self.assertEqual([file.stem for file in files], [f"{kind}_{language}" for language in LANGUAGES])
        for file in files:
            with self.subTest(file.name):
                tree = ElementTree.parse(file)
                self.assertEqual([element.text for element in tree.iter("name")], [context])
                self.assertFalse(tree.findall(".//translation[@type]"))  # unfinished
                texts = [(message.findtext("source"), message.findtext("translation")) for message in tree.iter("message")]
                self.assertEqual(sorted(source for source, _ in texts), sorted(wanted))
                self.assertTrue(all(text and (context == "GUI" or text != source) for source, text in texts))

    def test_alarms(self):
        catalogue = (ROOT / "resources/alarmmapping").read_bytes()
        self.assertTrue(catalogue.startswith(b'[\r\n    {\r\n        "message": "No alarm.",\r\n        "signature": "0x0"\r\n    },\r\n'))
        self.assertEqual(catalogue.count(b"\n"), catalogue.count(b"\r\n"))
        rows = json.loads(catalogue)
        self.assertEqual(len(rows), 154)
        wanted = {row["signature"] for row in rows if re.fullmatch("0x[0-9a-fA-F]+", row["signature"])}
        self.assertEqual(len(wanted), 151)
        self.check("alarms", "Alarm Service", wanted)

    def test_page_of_alarms(self):
        page = subprocess.run([sys.executable, ROOT / "scripts/alarms-page"], stdout=subprocess.PIPE, check=True).stdout
        self.assertTrue((ROOT / "docs/alarms.md").read_bytes() == page, "out of date: scripts/alarms-page > docs/alarms.md")

    def test_interface(self):
        found = pathlib.Path(os.environ["TMPDIR"], "found.ts")
        subprocess.run([os.environ["LUPDATE"], "-silent", ROOT / "src/mainwindow.cpp", "-ts", found], check=True)
        texts = ElementTree.parse(found)
        self.assertEqual([element.text for element in texts.iter("name")], ["GUI"])
        self.check("interface", "GUI", {source.text for source in texts.iter("source")})
