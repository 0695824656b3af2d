#!/usr/bin/env python3
"""Holds the commands that the documents show, and the scripts that they name, against commands.tsv, where each is run or has
the reason why it isn't.

Usage: commands.py [--list]. With --list it prints, in the order of the table, each command that is run and how."""
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
TABLE = Path(__file__).with_name("commands.tsv")
# The guide's own commands are those of scripts/test-package and scripts/test-installer.
DOCUMENTS = [ROOT / "README.md", ROOT / "CONTRIBUTING.md", ROOT / "packaging/README.md", *sorted((ROOT / "docs").glob("*.md")),
             ROOT / "docs/guide/README.md"]
LINE = re.compile(r"^ {4}((?:scripts/|cmake |ninja |ctest |sudo |git |gpg |osslsigncode |sha256sum |jsonschema )\S.*)$", re.M)
INLINE = re.compile(r"`((?:CALORA_\w+=\S+ )?scripts/(?![\w-]+\.d/)[^`/ ]+(?: [^`]*)?)`")


def told():
    """Each command, the document that tells it, and whether it stands on a line of its own."""
    commands = {}
    for path in DOCUMENTS:
        text = path.read_text(encoding="utf-8")
        for command in INLINE.findall(text):
            commands.setdefault(" ".join(command.split()), (path.relative_to(ROOT), False))
        for line in LINE.findall(text):
            commands[" ".join(re.sub(r"\s+#.*", "", line).split())] = (path.relative_to(ROOT), True)
    return commands


def table():
    """Command, "run" or "not", and how or why."""
    return [line.split("\t") for line in TABLE.read_text(encoding="utf-8").splitlines() if line and not line.startswith("#")]


def main():
    rows = table()
    if sys.argv[1:] == ["--list"]:
        for command, does, how in rows:
            if does == "run":
                print(f"{command}\t{how}")
        return
    commands = told()
    listed = {row[0] for row in rows}
    # A script that a sentence names is covered by any row of it.
    scripts = {command.split()[0] for command in listed}
    findings = [f"{path}: {command!r} isn't in {TABLE.name}" for command, (path, shown) in commands.items()
                if command not in listed and (shown or command.split()[0] not in scripts)]
    findings += [f"{TABLE.name}: {command!r} is told nowhere" for command in listed - commands.keys()]
    findings += [f"{TABLE.name}: {row!r} is no row" for row in rows if len(row) != 3 or row[1] not in ("run", "not") or not row[2]]
    for finding in findings:
        print(f"commands: {finding}", file=sys.stderr)
    sys.exit(bool(findings))


main()
