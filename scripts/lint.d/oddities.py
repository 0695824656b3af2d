#!/usr/bin/env python3
"""Holds docs/oddities.md against the code: what comments cite is there, and each entry is cited and names a test."""
import re

from tree import ROOT, finish, own_files

PAGE = "docs/oddities.md"


def findings():
    entries = re.findall(r"^(\d+)\. (.*(?:\n    .*)*)", (ROOT / PAGE).read_text(encoding="utf-8"), flags=re.M)
    if [int(number) for number, _ in entries] != list(range(1, len(entries) + 1)):
        yield f"{PAGE}: the numbers don't count up from 1"
    tests = {path.stem: path for path in own_files("tests/*.cpp")}
    for number, text in entries:
        named = re.findall(r"`(tst_\w+)::(\w+)`", text)
        if not named:
            yield f"{PAGE}: {number} names no test"
        for program, function in named:
            if program not in tests or f"::{function}()" not in (ROOT / tests[program]).read_text(encoding="utf-8"):
                yield f"{PAGE}: {number}: there is no test {program}::{function}"
    cited = {}
    for path in own_files("*.cpp", "*.h"):
        text = (ROOT / path).read_text(encoding="utf-8")
        for match in re.finditer(r"\boddity (\d+)", text, flags=re.I):
            if path.parts[0] != "tests":
                cited.setdefault(match[1], path)
            if match[1] not in dict(entries):
                yield f"{path}:{text.count(chr(10), 0, match.start()) + 1}: there is no oddity {match[1]}"
        for match in re.finditer(r"//.*\bon purpose\b", text):
            if path.parts[0] != "tests":
                yield f"{path}:{text.count(chr(10), 0, match.start()) + 1}: cite the oddity by its number"
    for number, _ in entries:
        if number not in cited:
            yield f"{PAGE}: no code cites {number}"


finish("oddities", list(findings()))
