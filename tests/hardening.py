#!/usr/bin/env python3
"""Looks in the finished program for all that cmake/Hardening.cmake asks for.

Usage: hardening.py PROGRAM [PROBE COMPILE_COMMANDS]. Some of it leaves a mark only where there is occasion for it, and the
tool has none: the probe (hardening.cpp) has, and the tool's sources have to be compiled with the same options.
"""
import json
import re
import shlex
import subprocess
import sys
from pathlib import Path

IMPORTS = Path(__file__).resolve().parents[1] / "packaging/windows/imports.txt"
OPTION = re.compile(r"-f(no-)?(stack|cf)-|-[DU]_FORTIFY_SOURCE")
ENDBR64 = b"\xf3\x0f\x1e\xfa"
# The start-up code and the compiler's own library have a few.
FEW = 50

failures = []


def check(name, good):
    if not good:
        failures.append(name)


def told(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def check_elf(program):
    headers = told("readelf", "-hlWd", program)
    flags = " ".join(re.findall(r"\((?:FLAGS|FLAGS_1)\)\s+(.*)", headers)).replace("Flags:", "").split()
    check("position independent (-pie)", re.search(r"Type:\s+DYN ", headers) and "PIE" in flags)
    check("RELRO (-z relro)", "GNU_RELRO" in headers)
    check("bound at the start (-z now)", {"BIND_NOW", "NOW"} <= set(flags))
    check("no code on the stack (-z noexecstack)", re.search(r"GNU_STACK .* RW +0x", headers))
    check("-fstack-protector-strong", "__stack_chk_fail" in told("readelf", "-W", "--dyn-syms", program))


def check_windows(program):
    headers = told("objdump", "-p", program)
    for name in ("HIGH_ENTROPY_VA", "DYNAMIC_BASE", "NX_COMPAT"):
        check(name, re.search(rf"^\s+{name}$", headers, re.MULTILINE))
    relocations = re.search(r"([0-9a-f]+) Base Relocation Directory", headers)
    check("relocations, without which it can't be moved", int(relocations.group(1), 16) > 0)
    check("-fstack-protector-strong", re.search(r" T __stack_chk_fail$", told("nm", program), re.MULTILINE))
    rows = [line.split(maxsplit=1) for line in IMPORTS.read_text(encoding="utf-8").splitlines() if not line.startswith("#")]
    for library in re.findall(r"DLL Name: (\S+)", headers):
        check(f"{library} among {IMPORTS.name}", library.lower() in {row[0].lower() for row in rows if len(row) == 2})


def check_probe(probe, is_elf):
    code = told("objdump", "-d", probe)
    functions = told("readelf", "-W", "--dyn-syms", probe) if is_elf else told("nm", probe)
    check("_FORTIFY_SOURCE in the probe", "__memcpy_chk" in functions)
    if is_elf:
        check("_FORTIFY_SOURCE=3 in the probe", "__memmove_chk" in functions)
        check("-fstack-clash-protection in the probe", re.search(r"(or|mov)[lq] +\$0x0,(0x[0-9a-f]+)?\(%rsp\)", code))


def check_commands(path):
    commands = [(entry["file"], shlex.split(entry["command"])) for entry in json.loads(path.read_text(encoding="utf-8"))]
    options = {}
    for file, words in commands:
        if file.endswith(".rc"):
            continue  # a resource, which isn't compiled
        target = re.search(r"CMakeFiles/([\w-]+)\.dir/", words[words.index("-o") + 1]).group(1)
        options.setdefault(target, []).append((file, [word for word in words if OPTION.match(word)]))
    [(_, wanted)] = options["hardening-probe"]
    for file, found in options["calora-objects"] + options["calora-configurator"]:
        check(f"the options of {file}: {found}, not {wanted}", found == wanted)


def main(program, probe=None, commands=None):
    content = Path(program).read_bytes()
    is_elf = content.startswith(b"\x7fELF")
    (check_elf if is_elf else check_windows)(program)
    check("-fcf-protection", content.count(ENDBR64) > FEW)
    if probe:
        check_probe(probe, is_elf)
        check_commands(Path(commands))
    for failure in failures:
        print(f"{program} lacks: {failure}")
    return 1 if failures else 0


sys.exit(main(*sys.argv[1:]))
