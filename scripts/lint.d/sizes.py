#!/usr/bin/env python3
"""Stops files and functions that have grown too long; with --aims also lists those past the size to aim for."""
import re
import sys

from tree import ROOT, finish, own_files

HEADER_STOP, SOURCE_STOP, FUNCTION_STOP = 200, 600, 60
HEADER_AIM, SOURCE_AIM, FUNCTION_AIM = 120, 400, 30

BLANKED = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'', re.DOTALL)
DIRECTIVE = re.compile(r"^[ \t]*#(?:[^\n\\]|\\\n|\\.)*", re.MULTILINE)
SCOPE = re.compile(r"\b(namespace|class|struct|union|enum|extern)\b[^()]*$")
NAME = re.compile(r"([\w:~]+(?:\s*operator\s*\S+)?)\s*\(")


def blank(match):
    """Comments and strings keep their line ends, so that lines stay numbered."""
    return "\n" * match.group().count("\n")


def functions(text):
    """Yields (name, line, length in lines) of each function body; a lambda counts with the function around it."""
    text = DIRECTIVE.sub(blank, BLANKED.sub(blank, text))
    scopes, head, line = [], "", 1
    for char in text:
        if char == "\n":
            line += 1
        if char == "{":
            if any(kind != "scope" for kind, *_ in scopes):
                kind = "inner"
            elif SCOPE.search(head):
                kind = "scope"
            elif re.search(r"\)\s*:[^:]*[\w>]\s*$", head) or re.search(r"[=,(\]]\s*$", head) or "(" not in head:
                kind = "value"  # a member's initialiser or a table
            else:
                kind = "function"
            name = NAME.search(head)
            scopes.append((kind, name.group(1) if name else "?", line, head))
            head = "" if kind != "value" else head
        elif char == "}" and scopes:
            kind, name, first, before = scopes.pop()
            if kind == "function":
                yield name, first, line - first + 1
            head = before + "{}" if kind == "value" else head if kind == "inner" else ""
        elif char == ";" and not any(kind != "scope" for kind, *_ in scopes):
            head = ""
        elif not any(kind != "scope" for kind, *_ in scopes):
            head += char


def main():
    findings, aims = [], []

    def judge(what, size, aim, stop):
        if size > stop:
            findings.append(f"{what} has {size} lines, at most {stop}")
        elif size > aim:
            aims.append(f"{what} has {size} lines, aim for {aim}")

    for path in own_files("*.cpp", "*.h"):
        text = (ROOT / path).read_text(encoding="utf-8")
        header = path.suffix == ".h"
        judge(f"{path}", text.count("\n"), HEADER_AIM if header else SOURCE_AIM, HEADER_STOP if header else SOURCE_STOP)
        for name, line, length in functions(text):
            judge(f"{path}:{line}: {name}", length, FUNCTION_AIM, FUNCTION_STOP)

    if "--aims" in sys.argv[1:]:
        for aim in aims:
            print(f"sizes: {aim}")
    finish("sizes", findings)


main()
