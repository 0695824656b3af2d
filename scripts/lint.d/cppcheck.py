#!/usr/bin/env python3
"""Runs cppcheck on the own sources. What it knows of sources that haven't changed lies in build/lint/cppcheck."""
import os
import subprocess
import sys
import time

from tree import ROOT, finish, own_files

KEPT = ROOT / "build/lint/cppcheck"
OPTIONS = [
    "--enable=warning,performance,portability,style,information",  # information: suppressions that meet nothing
    "--library=qt", "--language=c++", "--std=c++17", "--platform=unix64",
    "-I.", "-Itests",
    "-DQ_DISABLE_COPY_MOVE(Class)=",  # the one macro in use that its library of Qt doesn't know
    "--suppressions-list=scripts/lint.d/cppcheck.txt",
    f"--cppcheck-build-dir={KEPT}", f"-j{os.cpu_count() or 2}",
    "--quiet", "--template={file}:{line}: {message} [{id}]",
]


def main():
    KEPT.mkdir(parents=True, exist_ok=True)
    start = time.monotonic()
    sources = own_files("*.cpp")
    done = subprocess.run(["cppcheck", *OPTIONS, *sources], cwd=ROOT, capture_output=True, text=True, check=False)
    # Indented lines show the source of a finding.
    findings = [line for line in (done.stdout + done.stderr).splitlines() if line and not line.startswith(" ")]
    print(f"cppcheck: {len(sources)} sources ({time.monotonic() - start:.0f} s)", file=sys.stderr)
    finish("cppcheck", findings or ([f"ended with {done.returncode}"] if done.returncode else []))


main()
