#!/usr/bin/python3
"""Tests scripts/release.d/sbom.py on an archive made here. Usage: sbom.py"""
import io
import json
import os
import subprocess
import sys
import tarfile
import tempfile
import unittest
from pathlib import Path

SBOM = Path(__file__).resolve().parents[1] / "scripts/release.d/sbom.py"
ENTRY = """{name} 1.0+dfsg-1
    files:    lib{name}.so
    source:   {name} 1.0+dfsg-1
    licences: {licences}
"""


class PartsList(unittest.TestCase):
    def made(self, *entries):
        with tempfile.TemporaryDirectory() as folder:
            text = "\n".join(ENTRY.format(name=name, licences=licences) for name, licences in entries).encode()
            with tarfile.open(Path(folder, "tool-1.0.tar.gz"), "w:gz") as archive:
                member = tarfile.TarInfo("tool/licences/README.txt")
                member.size = len(text)
                archive.addfile(member, io.BytesIO(text))
            target = Path(folder, "list.json")
            run = subprocess.run([sys.executable, SBOM, folder, "1.0", target], capture_output=True, text=True,
                                 env={**os.environ, "SOURCE_DATE_EPOCH": "1700000000"})
            return run, json.loads(target.read_text(encoding="utf-8")) if target.exists() else None

    def test_lists_parts_of_one_licence_and_of_more(self):
        run, made = self.made(("one", "MIT"), ("more", "LGPL-3; GPL-2+; BSD-3-clause"))
        self.assertEqual((run.returncode, run.stderr), (0, "sbom: 2 parts\n"))
        parts = {part["name"]: part for part in made["components"] if part["type"] == "library"}
        names = {name: [each["license"]["name"] for each in part["licenses"]] for name, part in parts.items()}
        self.assertEqual(names, {"one": ["MIT"], "more": ["LGPL-3", "GPL-2+", "BSD-3-clause"]})
        self.assertEqual(parts["one"]["purl"], "pkg:deb/debian/one@1.0%2Bdfsg-1?distro=bookworm")

    def test_ends_without_parts(self):
        run, made = self.made()
        self.assertNotEqual(run.returncode, 0)
        self.assertIn("no archive tells what it contains", run.stderr)
        self.assertIsNone(made)


unittest.main()
