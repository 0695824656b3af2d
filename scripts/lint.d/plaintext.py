#!/usr/bin/env python3
"""Checks that what is read from files is shown letter for letter: by the classes of widgets/plaintext.h, in forms and code."""
import re
import xml.etree.ElementTree as ET
from pathlib import Path

from tree import ROOT, finish, own_files

# What guesses whether its text is markup, or takes a "&" out of it -> what stands in its place.
IN_FORMS = {
    "QLabel": "PlainLabel",
    "QRadioButton": "PlainRadioButton",
    "QCheckBox": "a class of widgets/plaintext.h",
    "QToolButton": "a class of widgets/plaintext.h",
    "QCommandLinkButton": "a class of widgets/plaintext.h",
    "QTabWidget": "TabButton",
    "QTextEdit": "QPlainTextEdit",
    "QTextBrowser": "QPlainTextEdit",
}
# The same in code, where a page makes or derives from one, and what would turn text into markup.
IN_CODE = [
    (re.compile(rf"\bnew ({'|'.join(IN_FORMS)})\b|\b({'|'.join(IN_FORMS)}) \w+\s*[;({{]|:\s*public ({'|'.join(IN_FORMS)})\b"),
     "is made in code: take its class of widgets/plaintext.h"),
    (re.compile(r"\bsetTextFormat\b|\bsetHtml\b|\bQt::(RichText|AutoText)\b"), "turns text into markup"),
    (re.compile(r"\bQMessageBox\b|\bQErrorMessage\b"), "guesses whether its text is markup"),
    (re.compile(r"\bsetWhatsThis\b|\bQToolTip\b|\bsetToolTip\((?!toolTipOf\()"), "guesses whether its text is markup"),
]
# Where the rule is made true: of what the window shows, and of what file dialogs ask.
MAKERS = {Path("widgets/plaintext.h"), Path("widgets/plaintext.cpp"), Path("widgets/jsonlist.cpp")}
CODE = ("app/*", "document/*", "languages/*", "pages/*", "rules/*", "widgets/*")


def check_form(path):
    root = ET.parse(ROOT / path).getroot()
    for widget in root.iter("widget"):
        kind, name = widget.get("class"), widget.get("name")
        if kind in IN_FORMS:
            yield f"{name} is a {kind}: make it a {IN_FORMS[kind].removeprefix('a ')}"
        for prop in widget.findall("property"):
            text = "".join(prop.itertext())
            if prop.get("name") == "textFormat":
                yield f"{name} has a text format: its class has the one that there is"
            if prop.get("name") in ("text", "title") and "&" in text:
                yield f"{name} has a '&' in its text, which would make a shortcut"
            if prop.get("name") in ("toolTip", "whatsThis") and re.search("[<&]", text):
                yield f"{name} has markup in its tool tip"


def check_code(path):
    for number, line in enumerate((ROOT / path).read_text(encoding="utf-8").splitlines(), 1):
        code = line.split("//")[0]
        for pattern, reason in IN_CODE:
            found = pattern.search(code)
            if found:
                yield f"line {number}: {found.group().strip()} {reason}"


findings = [f"{path}: {finding}" for path in own_files("forms/*.ui") for finding in check_form(path)]
findings += [f"{path}: {finding}" for path in own_files(*(f"{folder}{end}" for folder in CODE for end in (".cpp", ".h")))
             if path not in MAKERS for finding in check_code(path)]
finish("plaintext", findings)
