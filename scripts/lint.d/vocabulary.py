#!/usr/bin/env python3
"""Finds words that mean something only outside this repository: numbers of other papers, paths of one machine."""
import re

from tree import ROOT, finish, own_files

OUTSIDE = {
    r"\bParts? \d+\.\d": "a number in another paper",
    r"\bspec[.]md\b": "another paper",
    r"\.\./shared\b": "a path outside the repository",
    r"(?<![\w./])/(?:work|root|home)/": "a path of one machine",
    r"(?i)\bissues? #?\d": "a number in a tracker",
}


def findings():
    for path in own_files():
        try:
            lines = (ROOT / path).read_text(encoding="utf-8").splitlines()
        except UnicodeDecodeError:
            continue  # a picture or another binary file
        for number, line in enumerate(lines, 1):
            for pattern, what in OUTSIDE.items():
                for match in re.finditer(pattern, line):
                    yield f"{path}:{number}: {match.group()!r} is {what}"


finish("vocabulary", list(findings()))
