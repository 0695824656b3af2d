#!/usr/bin/env python3
"""Runs clang-tidy and clazy on each own source that has changed, or whose own headers have, since it was last good.

A stamp below build/lint holds the hash of all that a tool's verdict depends on.
"""
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from tree import ROOT, finish

BUILD = ROOT / "build/release"
LINT = ROOT / "build/lint"
JOBS = os.cpu_count() or 2

CLAZY_CHECKS = ",".join([
    "level1",
    "no-connect-by-name",  # slots named on_<object>_<signal> are how the pages are wired
    "no-qstring-ref",  # QStringRef is gone after Qt 5, and our strings are short
])
CLAZY_CHECKS_OF_TESTS = ",".join([
    CLAZY_CHECKS,
    # A test program is short-lived: copies, tables and expressions made anew cost it nothing.
    "no-range-loop-detach",
    "no-container-anti-pattern",
    "no-detaching-temporary",
    "no-non-pod-global-static",
    "no-qcolor-from-literal",
    "no-use-static-qregularexpression",
    "no-connect-not-normalized",  # Q_ARG(Type *, x) is how clang-format writes it
    "no-lambda-in-connect",  # what a lambda of a test captures lives as long as the test function
])


def command_for_clang(entry):
    """The compiler's own command, without launcher, precompiled header, and flags that only GCC knows."""
    words = shlex.split(entry["command"])
    while len(words) > 1 and not words[1].startswith("-"):
        words.pop(0)  # ccache and its like
    if "-include" in words and "cmake_pch" in words[words.index("-include") + 1]:
        at = words.index("-include")
        del words[at:at + 2]
    words = [word for word in words if word != "-Winvalid-pch" and not word.startswith("-fno-sanitize")]
    return words[:1] + ["-Wno-unknown-warning-option"] + words[1:]


def own_sources():
    """Source -> its command, for what is ours and not generated; writes the database for the tools on the way."""
    entries = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
    own = [entry for entry in entries
           if Path(entry["file"]).is_relative_to(ROOT) and not Path(entry["file"]).is_relative_to(ROOT / "build")]
    database = [{"directory": entry["directory"], "file": entry["file"], "arguments": command_for_clang(entry)}
                for entry in own]
    LINT.mkdir(parents=True, exist_ok=True)
    (LINT / "compile_commands.json").write_text(json.dumps(database, indent=1), encoding="utf-8")
    return {entry["file"]: entry["arguments"] for entry in database}


def own_dependencies():
    """Object -> files of the repository, generated ones too, that it was made from, as the build recorded them."""
    told = subprocess.run(["ninja", "-C", BUILD, "-t", "deps"], check=True, capture_output=True, text=True).stdout
    dependencies = {}
    for line in told.splitlines():
        if line.startswith("    "):
            path = (BUILD / line.strip()).resolve()
            if path.is_relative_to(ROOT):
                dependencies[target].append(path)
        elif ":" in line:
            target = line.split(":")[0]
            dependencies[target] = []
    return dependencies


def digest(*parts):
    return hashlib.sha256("\0".join(parts).encode()).hexdigest()


def content(path):
    return path.read_text(encoding="utf-8") if path.is_file() else ""


def run_tidy(source):
    done = subprocess.run(["clang-tidy", "-p", LINT, "--quiet", source], capture_output=True, text=True, check=False)
    return done.returncode == 0, done.stdout + ("" if done.returncode == 0 else done.stderr)


def run_clazy(source):
    """clazy may end with 0 whatever it found, so its words decide."""
    checks = CLAZY_CHECKS_OF_TESTS if Path(source).is_relative_to(ROOT / "tests") else CLAZY_CHECKS
    done = subprocess.run(
        ["clazy-standalone", "-p", LINT, "--checks=" + checks, "--ignore-dirs=/usr/|/build/",
         "--extra-arg=-Wno-gnu-zero-variadic-macro-arguments", source],  # as in .clang-tidy
        capture_output=True, text=True, check=False)
    output = done.stdout + done.stderr
    return done.returncode == 0 and not re.search(r":\d+:\d+: (?:fatal )?(?:warning|error): ", output), output


TOOLS = {
    "clang-tidy": (run_tidy, content(ROOT / ".clang-tidy") + content(ROOT / "tests/.clang-tidy")),
    "clazy-standalone": (run_clazy, CLAZY_CHECKS_OF_TESTS),
}


def main():
    sources, dependencies = own_sources(), own_dependencies()
    work = []
    for tool, (run, settings) in TOOLS.items():
        version = subprocess.run([tool, "--version"], check=True, capture_output=True, text=True).stdout
        for source, command in sources.items():
            target = command[command.index("-o") + 1]
            files = sorted({*dependencies.get(target, []), Path(source)})
            stamp = LINT / tool / (str(Path(source).relative_to(ROOT)).replace("/", "-") + ".good")
            state = digest(version, settings, *command, *(str(file) + "\0" + content(file) for file in files))
            if content(stamp) != state:
                work.append((tool, run, source, stamp, state))

    def judge(item):
        tool, run, source, stamp, state = item
        good, output = run(source)
        stamp.parent.mkdir(parents=True, exist_ok=True)
        if good:
            stamp.write_text(state, encoding="utf-8")
            return None
        name = Path(source).relative_to(ROOT)
        print(f"--- {tool} {name}\n{output.strip()}", file=sys.stderr, flush=True)
        return f"{tool} found fault with {name}"

    start = time.monotonic()
    with ThreadPoolExecutor(JOBS) as pool:
        findings = [finding for finding in pool.map(judge, work) if finding]
    print(f"analysis: {len(work)} of {len(TOOLS) * len(sources)} to look at ({time.monotonic() - start:.0f} s)",
          file=sys.stderr)
    finish("analysis", findings)


main()
