#!/usr/bin/env python3
"""Holds the documents against the repository: links lead somewhere, files that are named exist, and so do names of code."""
import re
from pathlib import Path

from tree import ROOT, finish, own_files

FILES = own_files()
NAMES = {path.name for path in FILES}
FOLDERS = {parent for path in FILES for parent in path.parents}
TOPS = {path.parts[0] for path in FILES if len(path.parts) > 1}
# Documents whose names of code are checked too. What they make up holds "example" or capitals alone.
CODED = {Path("CONTRIBUTING.md"), Path("docs/architecture.md"), Path("docs/adding-a-control.md")}
NAME = re.compile(r"(?:\w+::)*[A-Za-z_]\w*(?:\(\))?")


def words_of_code():
    code = ("*.cpp", "*.h", "*.ui", "*.qss", "*.cmake", "CMakeLists.txt", "CMakePresets.json", "*.py", "*.qrc")
    files = set(own_files(*code)) | {path for path in FILES if path.parts[0] == "scripts"}
    return set(re.findall(r"\w+", " ".join((ROOT / path).read_text(encoding="utf-8") for path in files))) | {
        path.stem for path in FILES}


def exists(path):
    return path in FILES or path in FOLDERS or any(each.match(str(path)) for each in FILES if "*" in str(path))


def named_files(text):
    """Yields (position, path) of each inline code that begins with a folder of ours or is the name of a source."""
    for match in re.finditer(r"`([\w-]+\.(?:cpp|h|ui|qss|py|sh|tsv|cmake|md))`", text):
        yield match.start(), match[1]
    for match in re.finditer(r"`([\w.*-]+(?:/[\w.*-]*)+)`", text):
        if match[1].split("/")[0] in TOPS and not re.search(r"[A-Z]{4}", Path(match[1]).name.split(".")[0]):
            yield match.start(), match[1]


def findings():
    known = words_of_code()
    for document in (path for path in FILES if path.suffix == ".md"):
        text = (ROOT / document).read_text(encoding="utf-8")
        plain = re.sub(r"^```.*?^```", lambda match: re.sub(r"[^\n]", " ", match[0]), text, flags=re.S | re.M)

        def at(position):
            return f"{document}:{text.count(chr(10), 0, position) + 1}"

        for match in re.finditer(r"""(?:\]\(|src=")(?!https?:)([^)#"]+)""", plain):
            target = (ROOT / document.parent / match[1]).resolve()
            if not target.is_relative_to(ROOT) or not exists(target.relative_to(ROOT)):
                yield f"{at(match.start())}: the link to {match[1]} leads nowhere"
        for position, name in named_files(plain):
            if name not in NAMES and not exists(Path(name)):
                yield f"{at(position)}: there is no {name}"
        if document not in CODED:
            continue
        for match in re.finditer(r"`([^`\n]+)`", plain):
            if not NAME.fullmatch(match[1]) or match[1].isupper() or match[1].endswith("_") or "xample" in match[1]:
                continue
            for word in re.findall(r"\w+", match[1]):
                if word not in known:
                    yield f"{at(match.start())}: no code names {word}"


finish("documents", list(findings()))
