#!/usr/bin/env python3
"""Makes the installer of what lies in the zip for Windows, beside it. Usage: installer.py ZIP VERSION ICON"""
import os
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path

SCRIPT = Path(__file__).with_name("installer.nsi")


def windows(path):
    return str(path).replace("/", "\\")


def macro(name, lines):
    return "\n".join([f"!macro {name}", *lines, "!macroend", ""])


def lists(root):
    """The macros of installer.nsi that name files, in an order that is always the same."""
    files = sorted(path for path in root.rglob("*") if path.is_file())
    languages = [path for path in files if path.parent == root / "language"]
    placed, folder = [], None
    for path in files:
        if path in languages:
            continue
        if path.parent != folder:
            folder = path.parent
            place = windows(folder.relative_to(root))
            placed.append('SetOutPath "$INSTDIR' + ("" if place == "." else f"\\{place}") + '"')
        placed.append(f'File "{path}"')
    return (macro("Files", placed)
            + macro("LanguageFiles", [f'File "{path}"' for path in languages])
            + macro("Languages", [f'!insertmacro Language "{path.name}"' for path in languages if path.suffix == ".json"])
            + macro("DeleteFiles", [f'Delete "$INSTDIR\\{path.name}"' for path in files if path.parent == root]))


def main(archive, version, icon):
    archive = Path(archive).resolve()
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder, "root")
        with zipfile.ZipFile(archive) as source:
            source.extractall(root)
        (root,) = root.iterdir()
        names = Path(folder, "files.nsh")
        names.write_text(lists(root), encoding="utf-8")
        size = sum(path.stat().st_size for path in root.rglob("*") if path.is_file()) // 1024
        numbers = ".".join((version.split(".") + ["0"] * 4)[:4])
        output = archive.with_name(archive.stem + "-setup.exe")
        define = {"VERSION": version, "FOUR_NUMBERS": numbers, "ICON": Path(icon).resolve(), "OUTPUT": output, "FILES": names,
                  "SIZE": size}
        subprocess.run(["makensis", "-V2", "-WX", "-INPUTCHARSET", "UTF8", *(f"-D{name}={value}" for name, value in define.items()),
                        SCRIPT], check=True, env={**os.environ, "LC_ALL": "C.UTF-8"})


main(*sys.argv[1:])
