"""What the checks share: where the repository is, which files are ours, how findings are told."""
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def own_files(*patterns):
    """Files in git or about to be (neither ignored nor deleted), as paths relative to ROOT."""
    names = subprocess.run(
        ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard", "--deduplicate", "--", *patterns],
        cwd=ROOT, check=True, capture_output=True, text=True).stdout
    return [Path(name) for name in sorted(names.split("\0")) if name and (ROOT / name).is_file()]


def allowed(path):
    """Words of a list file: one a line, '#' begins a comment; a missing file is an empty list."""
    if not path.is_file():
        return set()
    lines = (line.split("#")[0].strip() for line in path.read_text(encoding="utf-8").splitlines())
    return {line for line in lines if line}


def finish(check, findings):
    """Prints the findings and ends the process with 1 if there is any."""
    for finding in findings:
        print(f"{check}: {finding}", file=sys.stderr)
    sys.exit(1 if findings else 0)
