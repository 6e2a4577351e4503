"""The version is the same wherever it is written by hand.

CMakeLists.txt has it; the programs, packages and tests that can take it from there do. The places below cannot, since
they are read by other tools, or by people.
"""

import re
import sys
from pathlib import Path

HOME = Path("CMakeLists.txt")
PROJECT = re.compile(r"^project\(\w+ VERSION ([\d.]+)", re.MULTILINE)

# The places of each file, by what stands around the version.
PLACES = {
    "src/app/startup.cpp": [r'setApplicationVersion\(u"([^"]*)"_s\)'],
    "docs/host-integration.md": [r'Prints "Orvel Task Scheduler ([^"]*)"'],
    # The newest release comes first.
    "packaging/com.tamrix.OrvelSchedulerManager.metainfo.xml": [r'<releases>\s*<release version="([^"]*)"'],
    "packaging/windows/orvel-scheduler-manager.manifest": [
        r'name="OrvelSchedulerManager" version="([\d.]*)\.0"',
    ],
    "packaging/windows/orvel-scheduler-manager.rc": [
        r"^FILEVERSION ([\d,]*),0$",
        r"^PRODUCTVERSION ([\d,]*),0$",
        r'VALUE "FileVersion", "([^"]*)"',
        r'VALUE "ProductVersion", "([^"]*)"',
    ],
}


def check_place(text, pattern, version):
    """What is wrong with one place; nothing when it has the version once."""
    found = [match.replace(",", ".") for match in re.findall(pattern, text, re.MULTILINE)]
    if not found:
        yield f"no version where {pattern} should be"
    yield from (f"version {other}, not {version}" for other in found if other != version)


def check(root):
    """Findings, one text each."""
    home = PROJECT.search((root / HOME).read_text(encoding="utf-8"))
    if not home:
        return [f"{HOME}: no version of the project"]
    findings = []
    for name, patterns in PLACES.items():
        path = root / name
        text = path.read_text(encoding="utf-8") if path.is_file() else ""
        findings += [f"{name}: {finding}" for each in patterns for finding in check_place(text, each, home.group(1))]
    return findings


if __name__ == "__main__":
    problems = check(Path(sys.argv[1]))
    print("\n".join(problems) or "one version everywhere")
    sys.exit(1 if problems else 0)
