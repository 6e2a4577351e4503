"""Code that is compiled on some systems only stands where the systems differ, and nowhere else.

What differs is a source file for each system, which CMake picks, wherever that reads better. A conditional on the version
of Qt or of a compiler has no place at all: a call that all of them have is used.
"""

import re
import sys
from pathlib import Path

FOLDERS = ("src", "devdaemon", "protocolcheck", "examples", "benchmarks", "tests", "tools")

# Where conditionals may stand, and how many.
PLACES = {
    "src/ipc/socketpeer_unix.cpp": 1,  # how a system tells who is at the other end
    "src/ipc/wireprotocol.cpp": 1,  # the endpoint's name
    "src/mainwindow/servicecontrol.cpp": 1,  # tools that start the service
    "tests/support/platform.h": 2,  # all that the tests know of the system
}

CONDITIONAL = re.compile(r"^[ \t]*#[ \t]*(?:el)?if(?:n?def)?\b.*$", re.MULTILINE)
VERSION = re.compile(r"QT_VERSION|QT_CONFIG|__GNUC__|__clang|_MSC_VER|__has_")


def conditionals(text):
    """Line number and text of each conditional."""
    for match in CONDITIONAL.finditer(text):
        yield text.count("\n", 0, match.start()) + 1, match.group().strip()


def check_file(name, text):
    """Findings of one file, one text each."""
    found = list(conditionals(text))
    yield from (f"{name}:{number}: asks for a version: {line}" for number, line in found if VERSION.search(line))
    if name not in PLACES:
        yield from (f"{name}:{number}: no place for a conditional: {line}" for number, line in found)
    elif len(found) != PLACES[name]:
        yield f"{name}: {len(found)} conditionals, not {PLACES[name]}"


def check(root):
    """Findings, one text each."""
    sources = sorted(
        path for folder in FOLDERS for path in (root / folder).rglob("*") if path.suffix in {".cpp", ".h"}
    )
    names = {path.relative_to(root).as_posix(): path for path in sources}
    findings = [f"{name}: is not there" for name in PLACES if name not in names]
    for name, path in names.items():
        findings += check_file(name, path.read_text(encoding="utf-8"))
    return findings


if __name__ == "__main__":
    problems = check(Path(sys.argv[1]))
    print("\n".join(problems) or f"{sum(PLACES.values())} conditionals in {len(PLACES)} files")
    sys.exit(1 if problems else 0)
