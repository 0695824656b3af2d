#!/usr/bin/env python3
"""Checks that the objects of calora-core ask for no symbol of Qt's windows: symbols.py OBJECTS LIBRARY...
OBJECTS are joined by ";", the libraries are those that the core must not need."""
import subprocess
import sys


def symbols(*arguments):
    told = subprocess.run(["nm", *arguments], check=True, capture_output=True, text=True).stdout
    return {line.split()[-1].split("@")[0] for line in told.splitlines() if len(line.split()) > 1}


objects, libraries = sys.argv[1].split(";"), sys.argv[2:]
asked = symbols("--undefined-only", *objects)
offered = set().union(*(symbols("--dynamic", "--defined-only", "--extern-only", library) for library in libraries))
# What each library has of its own, such as the C++ library's templates, is no sign of use.
found = sorted(name for name in asked & offered if "Q" in name or "q" in name)
assert any("QString" in name for name in asked) and any("QWidget" in name for name in offered)
for name in found:
    print(f"calora-core asks for {name}", file=sys.stderr)
sys.exit(1 if found else 0)
