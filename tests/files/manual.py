#!/usr/bin/env python3
"""Holds the manual page and the completion of calora-files against its help.

Usage: manual.py PROGRAM
"""
import re
import subprocess
import sys
import unittest
from pathlib import Path

LINUX = Path(__file__).resolve().parents[2] / "packaging/linux"
PROGRAM = sys.argv.pop(1)


def options(text):
    return set(re.findall(r"--[a-z]+(?:-[a-z]+)*", text))


def complete(*words):
    """What the completion offers for the last word."""
    script = f"""source {LINUX}/calora-files.bash; compopt() {{ :; }}
        COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _calora_files; printf '%s\\n' "${{COMPREPLY[@]}}" """
    run = subprocess.run(["bash", "-c", script, "bash", PROGRAM, *words], capture_output=True, text=True, check=True)
    return set(run.stdout.split("\n")) - {""}


class Manual(unittest.TestCase):
    help = subprocess.run([PROGRAM, "--help"], capture_output=True, text=True, check=True).stdout

    def test_manual_has_each_option(self):
        page = (LINUX / "calora-files.1").read_text(encoding="utf-8").replace("\\-", "-")
        self.assertEqual(options(page), options(self.help))

    def test_completion_has_each_option(self):
        offered = set().union(*(complete(command, "--") for command in ("check", "diff", "report")), complete("--"))
        self.assertEqual(offered, options(self.help))

    def test_completion_of_words(self):
        self.assertEqual(complete(""), {"check", "diff", "report", "--help", "--version"})
        self.assertEqual(complete("re"), {"report"})
        self.assertEqual(complete("check", "--language", "De"), {"Deutsch"})
        self.assertEqual(complete("check", str(LINUX)[:-2]), {str(LINUX)})


if __name__ == "__main__":
    unittest.main()
