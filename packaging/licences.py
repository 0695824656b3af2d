#!/usr/bin/env python3
"""Writes the licences of files that come from Debian packages. Usage: licences.py HEAD FOLDER [NAME=]FILE...

FOLDER gets the copyright file of each package, the common licences that these refer to, and README.txt, which begins with
the text of the file HEAD and names for each file its package, where its source is, and its licences. NAME stands for what
isn't the package's file itself, but made from the same source.
"""
import re
import shutil
import subprocess
import sys
from pathlib import Path

COMMON = Path("/usr/share/common-licenses")
# How copyright files without fields of their own word a licence.
WORDINGS = {
    "MIT": r"permission\s+is\s+hereby\s+granted,\s+free\s+of\s+charge",
    "HPND": r"permission\s+to\s+use,\s+copy,\s+modify",
}


def ask(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


def package_of(file):
    """The package that brings a file, which may be recorded by its place before /usr was merged."""
    path = str(Path(file).resolve())
    found = subprocess.run(["dpkg-query", "-S", path, path.removeprefix("/usr")], capture_output=True, text=True).stdout
    if not found:
        sys.exit(f"licences: {file} belongs to no Debian package")
    return found.split(": ")[0].split(",")[0]


def licences(text):
    """The names of the licences in a copyright file, without those of the packaging alone."""
    names = set()
    for paragraph in re.split(r"\n\s*\n", text):
        files = re.search(r"^Files:(.*(?:\n[ \t].*)*)", paragraph, re.MULTILINE)
        name = re.search(r"^License:[ \t]*(\S.*)", paragraph, re.MULTILINE)
        if files and name and not files.group(1).strip().startswith("debian/"):
            names.add(name.group(1).strip())
    if not names:
        names = {name for name, wording in WORDINGS.items() if re.search(wording, text, re.IGNORECASE)}
        names |= referred(text)
    return sorted(names)


def referred(text):
    """The common licences that a text refers to by their place; a link by the name of what it leads to."""
    places = {COMMON / name.rstrip(".") for name in re.findall(r"/usr/share/common-licenses/([\w.+-]+)", text)}
    return {place.resolve().name for place in places if place.is_file()}


def main(head, folder, *files):
    folder = Path(folder)
    folder.mkdir(exist_ok=True)
    rows = {}
    needed = {"LGPL-3", "GPL-3"}
    for argument in files:
        name, _, file = argument.rpartition("=")
        rows.setdefault(package_of(file), set()).add(name or Path(file).name)
    lines = [Path(head).read_text(encoding="utf-8")]
    for package, names in sorted(rows.items()):
        plain = package.split(":")[0]
        source = ask("dpkg-query", "-W", "-f", "${source:Package} ${source:Version}", package)
        place = Path("/usr/share/doc") / plain / "copyright"
        text = place.read_text(encoding="utf-8", errors="replace")
        found = licences(text)
        if not found:
            sys.exit(f"licences: none recognised in {place}")
        shutil.copyfile(place, folder / f"{plain}.copyright")
        needed |= referred(text)
        version = ask("dpkg-query", "-W", "-f", "${Version}", package)
        lines += [f"{plain} {version}", f"    files:    {', '.join(sorted(names))}", f"    source:   {source}",
                  f"    licences: {'; '.join(found)}", ""]
    for name in needed:
        shutil.copyfile(COMMON / name, folder / name)
    (folder / "README.txt").write_text("\n".join(lines), encoding="utf-8")


main(*sys.argv[1:])
