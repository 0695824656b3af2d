#!/usr/bin/env python3
"""Checks which folder includes which: as ARROWS says, with no circle but the one that is told, and that calora-core
includes nothing but itself and what lies in QtCore."""
import re
from pathlib import Path

from tree import ROOT, finish, own_files

# Folder -> those that its files may include besides their own. Pages reach the dialog, and the dialog builds the pages:
# that circle is told in docs/architecture.md, and goes through headers of app/ that lead to no page.
ARROWS = {
    "widgets": set(),
    "document": set(),
    "rules": {"document"},
    "languages": {"document", "widgets"},
    "pages": {"document", "rules", "languages", "widgets", "app"},
    "app": {"document", "rules", "languages", "widgets", "pages"},
    "files": {"document", "rules", "languages", "widgets", "pages", "app"},
}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)


def includes(path):
    """What a file includes, as ("<" or '"', name); the headers that a form names stand for what is made of the form."""
    for kind, name in INCLUDE.findall((ROOT / path).read_text(encoding="utf-8")):
        form = ROOT / "forms" / re.sub(r"^ui_(.*)\.h$", r"\1.ui", name)
        if form.suffix == ".ui":
            for header in re.findall(r"<header>([^<]+)</header>", form.read_text(encoding="utf-8")):
                yield '"', header
        else:
            yield kind, name


def core_files():
    """The sources that the folders give to calora-core, and the headers of the same names."""
    for lists in own_files("*/CMakeLists.txt"):
        for sources in re.findall(r"target_sources\(calora-core PRIVATE([^)]*)\)", (ROOT / lists).read_text()):
            for name in re.findall(r"\S+\.(?:cpp|h)\b", sources):
                yield lists.parent / name
                yield (lists.parent / name).with_suffix(".h")


def of_core(name):
    """Whether a header in angle brackets is C++'s own or lies in QtCore."""
    if not re.match(r"Q|q", name):
        return True
    return bool(list(Path("/usr/include").glob(f"*/qt5/QtCore/{name.removeprefix('QtCore/')}")))


def leads_to_page(header, seen):
    """The first header of pages/ that a header includes, itself or through others."""
    for kind, name in includes(header):
        if kind == '"' and name not in seen and (ROOT / name).is_file():
            seen.add(name)
            found = name if name.startswith("pages/") else leads_to_page(name, seen)
            if found:
                return found
    return None


def check(path):
    folder = path.parts[0]
    for kind, name in includes(path):
        other = Path(name).parts[0]
        if kind == '"' and other in ARROWS and other != folder and other not in ARROWS[folder]:
            yield f"{folder}/ may not include {name}"
        if folder == "pages" and other == "app":
            told.add(name)
        if path in core and not (Path(name) in core if kind == '"' else of_core(name)):
            yield f"{name} is none of calora-core, nor of QtCore"


told = set()  # the headers of app/ that pages include
core = set(core_files())
findings = [f"{path}: {finding}" for path in own_files(*(f"{folder}/*" for folder in ARROWS))
            if path.suffix in (".cpp", ".h") for finding in check(path)]
findings += [f"{header} leads to {page}, though pages include it" for header in sorted(told)
             if (page := leads_to_page(header, set()))]
finish("arrows", findings)
