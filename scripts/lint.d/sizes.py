#!/usr/bin/env python3
"""Stops files that have grown too long; with --aims also lists those past the size to aim for. Functions: .clang-tidy."""
import sys

from tree import ROOT, finish, own_files

HEADER_STOP, SOURCE_STOP = 200, 600
HEADER_AIM, SOURCE_AIM = 120, 400


def main():
    findings, aims = [], []
    for path in own_files("*.cpp", "*.h"):
        size = (ROOT / path).read_text(encoding="utf-8").count("\n")
        stop, aim = (HEADER_STOP, HEADER_AIM) if path.suffix == ".h" else (SOURCE_STOP, SOURCE_AIM)
        if size > stop:
            findings.append(f"{path} has {size} lines, at most {stop}")
        elif size > aim:
            aims.append(f"{path} has {size} lines, aim for {aim}")

    if "--aims" in sys.argv[1:]:
        for aim in aims:
            print(f"sizes: {aim}")
    finish("sizes", findings)


main()
