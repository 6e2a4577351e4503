"""No folder includes a header of a folder above it, and no include climbs with "../".

The build keeps this by itself as long as every folder's target names just what lies below it. This check keeps the
targets honest: a link to a higher layer, slipped in to make an include compile, shows up here.
"""

import re
import sys
from pathlib import Path

# The folders that each folder stands on. What those stand on follows.
ARROWS = {
    "src/logging": [],
    "src/ipc": ["src/logging"],
    "src/client": ["src/ipc"],
    "src/plaintext": [],
    "src/style": [],
    "src/taskeditor": ["src/client", "src/plaintext", "src/style"],
    "src/groupeditor": ["src/client", "src/plaintext", "src/style"],
    "src/mainwindow": ["src/client", "src/plaintext", "src/taskeditor", "src/groupeditor"],
    "src/app": ["src/mainwindow"],
    "devdaemon": ["src/ipc"],
}
# Outside the arrows, but not above "../".
OTHER_FOLDERS = ["tests", "benchmarks"]

SOURCE_SUFFIXES = {".cpp", ".h"}
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]')


def reachable(folder):
    """The folder itself and everything below it."""
    found = {folder}
    for lower in ARROWS[folder]:
        found |= reachable(lower)
    return found


def includes(source):
    """Pairs of line number and included name."""
    for number, line in enumerate(source.read_text(encoding="utf-8").splitlines(), start=1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1)


def sources_below(folder):
    return sorted(path for path in folder.rglob("*") if path.suffix in SOURCE_SUFFIXES)


def header_folders(root):
    """Folder of each project header by file name, with those that a form will become."""
    folders = {}
    for folder in ARROWS:
        for path in (root / folder).rglob("*"):
            if path.suffix == ".h":
                folders[path.name] = folder
            elif path.suffix == ".ui":
                folders[f"ui_{path.stem}.h"] = folder
    return folders


def unknown_folders(root):
    """Folders of src that have no place in the arrows."""
    return [
        f"src/{path.name}: this folder has no arrows; add it to {Path(__file__).name}"
        for path in sorted((root / "src").iterdir())
        if path.is_dir() and f"src/{path.name}" not in ARROWS
    ]


def check(root):
    """Findings, one text each."""
    findings = unknown_folders(root)
    home = header_folders(root)
    for folder in [*ARROWS, *OTHER_FOLDERS]:
        for source in sources_below(root / folder):
            for number, name in includes(source):
                where = f"{source.relative_to(root)}:{number}"
                if "../" in name:
                    findings.append(f'{where}: include with "../": {name}')
                target = home.get(Path(name).name)
                if target and folder in ARROWS and target not in reachable(folder):
                    findings.append(f"{where}: {folder} must not see {target}: {name}")
    return findings


if __name__ == "__main__":
    problems = check(Path(sys.argv[1]))
    print("\n".join(problems) or "no upward include")
    sys.exit(1 if problems else 0)
