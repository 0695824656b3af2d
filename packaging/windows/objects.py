#!/usr/bin/env python3
"""Packs what is needed to link the executables with another Qt. Usage: objects.py BUILD ARCHIVE.zip QT_VERSION

The archive gets the configurator's own object files, a script made from the link command of the build in the folder
BUILD, and README.txt.
"""
import os
import re
import subprocess
import sys
import time
import zipfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
TOOLS = ("calora/calora-configurator.exe", "files/calora-files.exe")
LINK = """\
#!/bin/sh
# Links calora-configurator.exe and calora-files.exe with the static Qt in a folder. Usage: link.sh QT_FOLDER
set -eu
qt=$(realpath "${1:?the folder of Qt, with lib/ and plugins/}")
cd "$(dirname "$0")"
"""


def link_command(build, tool):
    """The words of the last command that makes the executable, without what follows it."""
    commands = subprocess.run(["ninja", "-C", build, "-t", "commands", tool], check=True, capture_output=True, text=True)
    found = re.search(r"(\S*x86_64-w64-mingw32-g\+\+\S* .*? -o " + re.escape(tool) + r".*?)(?: && |$)",
                      commands.stdout.splitlines()[-1])
    return found.group(1).split()


def main(build, archive, version):
    build = Path(build)
    commands, objects = [], []
    for tool in TOOLS:
        words = []
        for word in link_command(build, tool):
            if word.endswith((".obj", ".res")):
                objects.append(word)
            words.append(re.sub("^qt/(.*)", r'"$qt/\1"', word))
        words[words.index(tool)] = Path(tool).name
        words[0] = Path(words[0]).name
        commands.append(" ".join(word for word in words if not word.startswith("-Wl,--out-implib")))
    readme = (HERE / "objects.txt").read_text(encoding="utf-8").replace("@QT_VERSION@", version)

    stamp = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    folder = Path(archive).stem
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED) as target:
        def add(name, content, mode):
            entry = zipfile.ZipInfo(f"{folder}/{name}", stamp)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = (0o100000 | mode) << 16
            target.writestr(entry, content)
        add("README.txt", readme, 0o644)
        add("link.sh", LINK + "\n".join(commands) + "\n", 0o755)
        add("qt", (HERE.parents[1] / "scripts/windows.d/qt").read_bytes(), 0o755)
        for name in sorted(set(objects)):
            add(name, (build / name).read_bytes(), 0o644)


main(*sys.argv[1:])
