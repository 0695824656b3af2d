#!/usr/bin/env python3
"""Has shellcheck read every script for a shell, and what they source."""
import subprocess
import sys

from tree import ROOT, own_files


def is_shell(path):
    with (ROOT / path).open("rb") as file:
        first = file.readline()
    return (first.startswith(b"#!") and first.rstrip().endswith(b"sh")) or first.startswith(b"# shellcheck shell=")


sys.exit(subprocess.run(["shellcheck", "--external-sources", *filter(is_shell, own_files())], cwd=ROOT).returncode)
