#!/usr/bin/env python3
"""Runs clang-tidy and clazy on each own source that has changed, or whose own headers have, since it was last good.

Most of what a file costs these tools is Qt's headers, so sources of one kind are read together: a made source includes
them all. A stamp below build/lint holds the hash of all that a tool's verdict on a source depends on.
"""
import functools
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
TOGETHER = 20  # sources; more take more memory and gain little

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


INCLUDE = re.compile(r'^#include (["<])(.+)[">]', re.MULTILINE)


def command_for_clang(entry):
    """The compiler's own command, without launcher, precompiled header, and flags that only GCC knows."""
    words = shlex.split(entry["command"])
    words = words[next(at for at, word in enumerate(words) if word.startswith("-D") or word.startswith("-I")):]
    if "-include" in words and "cmake_pch" in words[words.index("-include") + 1]:
        at = words.index("-include")
        del words[at:at + 2]
    words = [word for word in words
             if word not in ("-Winvalid-pch", "-fpch-preprocess") and not word.startswith("-fno-sanitize")]
    return ["c++", "-Wno-unknown-warning-option", *words]


def own_sources():
    """Source -> its command, for what is ours and not generated."""
    entries = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
    own = {entry["file"]: command_for_clang(entry) for entry in entries
           if Path(entry["file"]).is_relative_to(ROOT) and not Path(entry["file"]).is_relative_to(ROOT / "build")}
    return dict(sorted(own.items()))


@functools.cache
def content(path):
    return path.read_text(encoding="utf-8") if path.is_file() else ""


@functools.cache
def includes(path):
    """The own files that a file includes, forms among them, and what these include."""
    found = set()
    for quote, name in INCLUDE.findall(content(path)):
        if quote == '"':
            form = ROOT / "forms" / (name.removeprefix("ui_").removesuffix(".h") + ".ui")
            found.update(candidate for candidate in (ROOT / name, ROOT / "tests" / name, path.parent / name, form)
                         if candidate.is_file())
    return found.union(*(includes(file) for file in found))


def digest(*parts):
    return hashlib.sha256("\0".join(parts).encode()).hexdigest()


def is_test(source):
    return Path(source).is_relative_to(ROOT / "tests")


def has_main(source):
    return "\nCALORA_TEST_MAIN(" in content(Path(source))


def kind(source):
    """Sources of one kind can be read as one. What declares a type to Qt's meta-objects has to be outside namespaces."""
    folder = Path(source).relative_to(ROOT).parts[0]
    if folder not in ("tests", "bench"):
        return "product"
    if has_main(source) and "Q_DECLARE_METATYPE" not in content(Path(source)):
        return "programs"
    return str(Path(source).parent)


DECLARED = re.compile(r"^(?:struct|class|enum(?: class)?|using) (?:[\w:]+::)?(\w+)"
                      r"|^(?!namespace|using|#|/)\w[^(={\[;]*?[^:\w](\w+) ?[(={\[;]", re.MULTILINE)


def own_names(source):
    """What the file declares, and so might another that is no part of the same program."""
    text = content(Path(source))
    if kind(source) == "programs":
        return set()
    return {first or second for first, second in DECLARED.findall(text)} - {"CALORA_TEST_MAIN", "main"}


def read_together(sources):
    """The text of a source that stands for several. Programs get a namespace each, since their helpers share names;
    elsewhere each main() gets a name."""
    if kind(sources[0]) != "programs":
        return "".join(f'#undef main\n#define main main_of_{Path(source).stem} // NOLINT\n#include "{source}"\n'
                       for source in sources)
    headers = {}
    for source in sources:
        headers.update((quote + name, f"#include {quote}{name}{'>' if quote == '<' else quote}\n")
                       for quote, name in INCLUDE.findall(content(Path(source))) if not name.endswith(".moc"))
    return "".join(headers.values()) + "".join(
        f'namespace {Path(source).stem} {{\n#include "{source}"\n}}\n' for source in sources)


def joined_command(commands, source):
    """The first command, with the paths and names that the others add, for another source."""
    words = list(commands[0])
    words[words.index("-c") + 1] = source
    for command in commands[1:]:
        for at, word in enumerate(command):
            if word.startswith(("-D", "-I")) and word not in words:
                words.insert(2, word)
            elif word == "-isystem" and command[at + 1] not in words:
                words[2:2] = [word, command[at + 1]]
    # By names of another source; the compiler has looked at each alone.
    return [*words, "-Wno-shadow"] if len(commands) > 1 else words


def place(sources, commands):
    """A folder with the made source, and the database that names its command."""
    folder = LINT / ("tests" if is_test(sources[0]) else "product") / digest(*sources)[:16]
    folder.mkdir(parents=True, exist_ok=True)
    made = folder / "together.cpp"
    made.write_text(read_together(sources), encoding="utf-8")
    database = [{"directory": str(BUILD), "file": str(made), "arguments": joined_command(commands, str(made))}]
    (folder / "compile_commands.json").write_text(json.dumps(database, indent=1), encoding="utf-8")
    return folder, made


def run_tidy(folder, made, _sources):
    done = subprocess.run(["clang-tidy", "-p", folder, "--quiet", "--checks=-bugprone-suspicious-include", made],
                          capture_output=True, text=True, check=False)
    return done.returncode == 0, done.stdout + ("" if done.returncode == 0 else done.stderr)


def run_clazy(folder, made, sources):
    """clazy may end with 0 whatever it found, so its words decide."""
    checks = CLAZY_CHECKS_OF_TESTS if is_test(sources[0]) else CLAZY_CHECKS
    done = subprocess.run(
        ["clazy-standalone", "-p", folder, "--checks=" + checks, "--ignore-dirs=/usr/|/build/",
         "--extra-arg=-Wno-gnu-zero-variadic-macro-arguments", made],  # as in .clang-tidy
        capture_output=True, text=True, check=False)
    output = done.stdout + done.stderr
    return done.returncode == 0 and not re.search(r":\d+:\d+: (?:fatal )?(?:warning|error): ", output), output


TOOLS = {
    "clang-tidy": (run_tidy, content(ROOT / ".clang-tidy") + content(ROOT / "tests/.clang-tidy")),
    "clazy-standalone": (run_clazy, CLAZY_CHECKS + CLAZY_CHECKS_OF_TESTS),
}


def stale_sources(tool, commands):
    """Source -> (stamp, state) of those that the tool hasn't found good as they are; the last changed come first."""
    version = subprocess.run([tool, "--version"], check=True, capture_output=True, text=True).stdout
    stale = {}
    for source, command in commands.items():
        path = Path(source)
        files = sorted({path, *includes(path)})
        stamp = LINT / tool / (str(path.relative_to(ROOT)).replace("/", "-") + ".good")
        state = digest(version, TOOLS[tool][1], *command, *(f"{file}\0{content(file)}" for file in files))
        if not stamp.is_file() or stamp.read_text(encoding="utf-8") != state:
            stale[source] = (stamp, state)
    return dict(sorted(stale.items(), key=lambda item: -Path(item[0]).stat().st_mtime))


def groups(sources):
    """Puts each source into the first group of its kind that has room and none of its names."""
    made = []
    for source in sources:
        names = own_names(source)
        for of, members, taken in made:
            if of == kind(source) and len(members) < TOGETHER and not names & taken:
                break
        else:
            members, taken = [], set()
            made.append((kind(source), members, taken))
        members.append(source)
        taken |= names
    return [members for _, members, _ in made]


def main():
    commands = own_sources()
    work = []
    for tool in TOOLS:
        stale = stale_sources(tool, commands)
        work += [(tool, group, stale) for group in groups(stale)]
    count = sum(len(group) for _, group, _ in work)
    print(f"analysis: {count} of {len(TOOLS) * len(commands)} to look at", file=sys.stderr, flush=True)

    # Found by the way up from a made source, as from those that it stands for.
    (LINT / "tests").mkdir(parents=True, exist_ok=True)
    (LINT / "tests/.clang-tidy").write_text(content(ROOT / "tests/.clang-tidy"), encoding="utf-8")

    def judge(item):
        tool, group, stale = item
        folder, made = place(group, [commands[source] for source in group])
        good, output = TOOLS[tool][0](folder, made, group)
        if not good and len(group) > 1 and re.search(r"clang-diagnostic|errors? generated", output):
            # Some that can't be read as one.
            half = len(group) // 2
            return judge((tool, group[:half], stale)) + judge((tool, group[half:], stale))
        if good:
            for source in group:
                stamp, state = stale[source]
                stamp.parent.mkdir(parents=True, exist_ok=True)
                stamp.write_text(state, encoding="utf-8")
            return []
        print(f"--- {tool}\n{output.strip()}", file=sys.stderr, flush=True)
        return [f"{tool} found fault with " + ", ".join(str(Path(source).relative_to(ROOT)) for source in group)]

    start = time.monotonic()
    findings, done = [], 0
    with ThreadPoolExecutor(JOBS) as pool:
        for item, found in zip(work, pool.map(judge, work)):
            findings += found
            done += len(item[1])
            print(f"analysis: {done} of {count} ({time.monotonic() - start:.0f} s)", file=sys.stderr, flush=True)
    finish("analysis", findings)


main()
