#!/usr/bin/env python3
"""Writes packages anew so that nothing in them tells where and by whom they were made. Usage: repack.py PACKAGE...

Files are in the order of their names, belong to root, may be written by their owner alone and carry the time of
SOURCE_DATE_EPOCH; the size that a Debian package says it takes counts its bytes, not the blocks of a disk."""
import gzip
import io
import os
import subprocess
import sys
import tarfile
import tempfile
import time
import zipfile
from pathlib import Path

EPOCH = int(os.environ["SOURCE_DATE_EPOCH"])


def mode(executable):
    return 0o755 if executable else 0o644


def repack_tar(path):
    with tarfile.open(path) as source:
        entries = sorted(source.getmembers(), key=lambda entry: entry.name)
        written = io.BytesIO()
        with tarfile.open(fileobj=written, mode="w", format=tarfile.GNU_FORMAT) as target:
            for entry in entries:
                entry.uid = entry.gid = 0
                entry.uname = entry.gname = "root"
                entry.mtime = EPOCH
                entry.mode = mode(entry.isdir() or entry.mode & 0o100)
                target.addfile(entry, source.extractfile(entry) if entry.isfile() else None)
    path.write_bytes(gzip.compress(written.getvalue(), 9, mtime=0))


def repack_zip(path):
    with zipfile.ZipFile(path) as source:
        contents = {entry: source.read(entry) for entry in sorted(source.infolist(), key=lambda entry: entry.filename)}
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as target:
        for entry, content in contents.items():
            new = zipfile.ZipInfo(entry.filename, time.gmtime(EPOCH)[:6])
            new.create_system = 3
            executable = entry.is_dir() or entry.external_attr >> 16 & 0o100
            new.external_attr = (0o040000 if entry.is_dir() else 0o100000) + mode(executable) << 16
            new.compress_type = zipfile.ZIP_STORED if entry.is_dir() else zipfile.ZIP_DEFLATED
            target.writestr(new, content)


def installed_size(root):
    """In KiB, as Debian's policy counts: each file rounded up, and one for each folder."""
    files = [path for path in root.rglob("*") if "DEBIAN" not in path.relative_to(root).parts]
    return sum(1 if path.is_dir() else -(-path.stat().st_size // 1024) for path in files)


def repack_debian(path):
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder, "root")
        subprocess.run(["dpkg-deb", "--raw-extract", path, root], check=True)
        control, sums = root / "DEBIAN/control", root / "DEBIAN/md5sums"
        lines = [line for line in control.read_text(encoding="utf-8").splitlines() if line.strip()]
        lines = [f"Installed-Size: {installed_size(root)}" if line.startswith("Installed-Size:") else line for line in lines]
        control.write_text("\n".join(lines) + "\n", encoding="utf-8")
        sums.write_text("".join(sorted(sums.read_text(encoding="utf-8").splitlines(True), key=lambda line: line[34:])),
                        encoding="utf-8")
        for entry in (root, *root.rglob("*")):
            entry.chmod(mode(entry.is_dir() or entry.stat().st_mode & 0o100))
            os.utime(entry, (EPOCH, EPOCH))
        subprocess.run(["dpkg-deb", "--root-owner-group", "-Zxz", "--build", root, path], check=True, stdout=subprocess.DEVNULL)


KINDS = {".gz": repack_tar, ".zip": repack_zip, ".deb": repack_debian}
for argument in sys.argv[1:]:
    package = Path(argument)
    KINDS[package.suffix](package)
