#!/usr/bin/env python3
"""Packages with the same files, made in another order, by others, at other times, are the same once they are repacked."""
import io
import os
import shutil
import subprocess
import tarfile
import tempfile
import unittest
import zipfile
from pathlib import Path

REPACK = Path(__file__).resolve().parents[1] / "packaging/repack.py"
FILES = {"a/program": b"#!/bin/sh\n" * 300, "a/language/Čeština.json": b"{}", "a/README.txt": b"read\n"}
EPOCH = 1800000000


def make_tar(path, names, mode, owner, stamp):
    with tarfile.open(path, "w:gz") as target:
        for name in names:
            entry = tarfile.TarInfo(name)
            entry.size, entry.mode, entry.mtime = len(FILES[name]), mode | (0o100 if name.endswith("program") else 0), stamp
            entry.uid, entry.uname = owner, f"user{owner}"
            target.addfile(entry, io.BytesIO(FILES[name]))


def make_zip(path, names, mode, _owner, stamp):
    with zipfile.ZipFile(path, "w") as target:
        for name in names:
            entry = zipfile.ZipInfo(name, (2000 + stamp % 30, 1, 1, 0, 0, 0))
            entry.external_attr = (mode | (0o100 if name.endswith("program") else 0)) << 16
            target.writestr(entry, FILES[name])


def make_debian(path, names, mode, _owner, stamp):
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder, "root")
        for name in names:
            file = root / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_bytes(FILES[name])
            file.chmod(mode | (0o100 if name.endswith("program") else 0))
            os.utime(file, (stamp, stamp))
        (root / "DEBIAN").mkdir()
        (root / "DEBIAN").chmod(0o755)  # dpkg-deb refuses what a strict umask makes
        (root / "DEBIAN/control").write_text(f"Package: a\nVersion: 1\nArchitecture: amd64\nMaintainer: A <a@example.org>\n"
                                             f"Installed-Size: {stamp % 100}\nDescription: a\n")
        (root / "DEBIAN/md5sums").write_text("".join(f"{'0' * 32}  {name}\n" for name in names))
        subprocess.run(["dpkg-deb", "--build", root, path], check=True, stdout=subprocess.DEVNULL)


class Repack(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)

    def made(self, make, suffix):
        """The bytes of both, and one of them."""
        paths = [self.folder / f"one{suffix}", self.folder / f"two{suffix}"]
        make(paths[0], list(FILES), 0o644, 0, 1700000001)
        make(paths[1], list(reversed(FILES)), 0o640, 1000, 1700000050)
        before = [path.read_bytes() for path in paths]
        self.assertNotEqual(*before)
        subprocess.run([REPACK, *paths], check=True, env={**os.environ, "SOURCE_DATE_EPOCH": str(EPOCH)})
        self.assertEqual(*(path.read_bytes() for path in paths))
        return paths[0]

    def test_archive(self):
        with tarfile.open(self.made(make_tar, ".tar.gz")) as archive:
            self.assertEqual(archive.getnames(), sorted(FILES))
            told = {(entry.uid, entry.uname, entry.mtime) for entry in archive}
            self.assertEqual(told, {(0, "root", EPOCH)})
            self.assertEqual([entry.name for entry in archive if entry.mode == 0o755], ["a/program"])
            self.assertEqual({entry.name: archive.extractfile(entry).read() for entry in archive}, FILES)

    def test_zip(self):
        with zipfile.ZipFile(self.made(make_zip, ".zip")) as archive:
            self.assertEqual(archive.namelist(), sorted(FILES))
            self.assertEqual({entry.date_time for entry in archive.infolist()}, {(2027, 1, 15, 8, 0, 0)})
            self.assertEqual({name: archive.read(name) for name in archive.namelist()}, FILES)

    @unittest.skipUnless(shutil.which("dpkg-deb"), "no dpkg-deb here")
    def test_debian_package(self):
        package = self.made(make_debian, ".deb")
        size = subprocess.run(["dpkg-deb", "-f", package, "Installed-Size"], check=True, capture_output=True, text=True).stdout
        self.assertEqual(size, "7\n")  # 3 KiB of the program, one each of the two others and of the two folders
        listed = subprocess.run(["dpkg-deb", "-c", package], check=True, capture_output=True, text=True).stdout
        self.assertEqual([line.split()[:2] for line in listed.splitlines() if line.endswith("program")], [["-rwxr-xr-x", "root/root"]])


unittest.main()
