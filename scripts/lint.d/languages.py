#!/usr/bin/env python3
"""Holds the language keys that code and forms ask for against those of the English file, and checks each delivered file."""
import re
from pathlib import Path

from languagefile import ENGLISH, FOLDER, PLACES, english, findings_in, places
from tree import ROOT, allowed, finish, own_files

RESERVED = FOLDER / "reserved-keys.txt"  # in the file, but not asked for

LITERAL = re.compile(r'"((?:\\.|[^"\\\n])*)"')
TEXT = r'(?:QStringLiteral\(|QLatin1String\()?"([^"\n]+)"'
ASKED = [
    re.compile(r"\b(?:languageValue|languageTextOrKey)\(\s*" + TEXT),
    re.compile(r'<string comment="([^"]+)"'),  # a form's text
]
CAPTIONS = re.compile(r"\bsetCaptions\((\{.*?\})\);", re.S)
LISTED = re.compile(r"\blanguageTexts\(\s*\{([^}]*)\}")  # the texts of a list


def asked(text):
    """Yields (position, key) of each key that code or a form names where it asks for one."""
    for pattern in ASKED:
        yield from ((match.start(1), match.group(1)) for match in pattern.finditer(text))
    for pattern in CAPTIONS, LISTED:
        for keys in pattern.finditer(text):
            yield from ((keys.start(1) + match.start(1), match.group(1)) for match in LITERAL.finditer(keys.group(1)))


def main():
    keys = set(english())
    reserved = allowed(RESERVED)
    mentioned, findings = set(), []
    for path in own_files("app/*.cpp", "app/*.h", "document/*", "forms/*.ui", "languages/*", "pages/*", "rules/*", "widgets/*"):
        text = (ROOT / path).read_text(encoding="utf-8")
        mentioned.update(key for _, key in asked(text))
        if path.suffix != ".ui":
            mentioned.update(LITERAL.findall(text))
        for position, key in asked(text):
            if key not in keys:
                line = text.count("\n", 0, position) + 1
                findings.append(f"{path}:{line}: no key {key!r} in {ENGLISH.name}")
    findings += [f"nobody asks for the key {key!r} of {ENGLISH.name}" for key in sorted(keys - mentioned - reserved)]
    findings += [f"{RESERVED.name}: {key!r} is not a key" for key in sorted(reserved - keys)]
    findings += [f"{PLACES.name}: {key!r} is neither there nor in a form, or not in {ENGLISH.name}" for key in sorted(keys ^ set(places()))]
    if set(places()) == keys:
        findings += [f"{path.name}: {finding}" for path in sorted(FOLDER.glob("*.json"))
                     for finding in findings_in(path, delivered=True)]
    finish("languages", findings)


main()
