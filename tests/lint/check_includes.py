"""The folders stand on each other as docs/architecture.md says.

Its table names the folders that each folder stands on. No folder includes a header of any other one, and no include
climbs with "../". The build keeps this by itself as long as every folder's target links just what lies below it. This
check keeps targets and document honest: a link to a higher layer, slipped in to make an include compile, shows up here,
and so does a table that tells of other folders, targets or links than there are.
"""

import re
import sys
from collections import namedtuple
from pathlib import Path

DOCUMENT = Path("docs/architecture.md")
# The table and the picture under it stand in this section.
SECTION = "## Folders and targets"
# Folder, targets, what it stands on.
TABLE_ROW = re.compile(r"^\| `([\w/]+)` \| ([^|]+) \| ([^|]+) \|")
NAME = re.compile(r"`([\w-]+)`")
PICTURE = re.compile(r"^```\n(.*?)^```", re.DOTALL | re.MULTILINE)

LIBRARY = re.compile(r"^orvel_add_library\((\w+)\b[^)]*?\bLINK\b([^)]*)\)", re.MULTILINE)
PROGRAM = re.compile(r"^add_executable\(([\w-]+)", re.MULTILINE)

# Outside the arrows, but not above "../".
OTHER_FOLDERS = ["tests", "benchmarks", "tools", "examples"]

# A row of the table: the targets of a folder, and the folders that it stands on.
Folder = namedtuple("Folder", "targets lower")

SOURCE_SUFFIXES = {".cpp", ".h"}
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]')


def section_of(root):
    """The text of the document's section about the folders; empty where there is none."""
    path = root / DOCUMENT
    text = path.read_text(encoding="utf-8") if path.is_file() else ""
    _, _, rest = text.partition(f"{SECTION}\n")
    return rest.partition("\n## ")[0]


def folders_of(section):
    """The rows of the table, by folder."""
    rows = {}
    for line in section.splitlines():
        match = TABLE_ROW.match(line)
        if match:
            folder, targets, lower = match.groups()
            rows[folder] = Folder(NAME.findall(targets), [f"src/{name}" for name in NAME.findall(lower)])
    return rows


def reachable(folder, folders):
    """The folder itself and everything below it."""
    found = set()
    waiting = [folder]
    while waiting:
        current = waiting.pop()
        if current not in found and current in folders:
            found.add(current)
            waiting += folders[current].lower
    return found


def includes(source):
    """Pairs of line number and included name."""
    for number, line in enumerate(source.read_text(encoding="utf-8").splitlines(), start=1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1)


def sources_below(folder):
    return sorted(path for path in folder.rglob("*") if path.suffix in SOURCE_SUFFIXES)


def header_folders(root, folders):
    """Folder of each project header by file name, with those that a form will become."""
    homes = {}
    for folder in folders:
        for path in (root / folder).rglob("*"):
            if path.suffix == ".h":
                homes[path.name] = folder
            elif path.suffix == ".ui":
                homes[f"ui_{path.stem}.h"] = folder
    return homes


def check_includes(root, folders):
    """Findings about the includes."""
    homes = header_folders(root, folders)
    for folder in [*folders, *OTHER_FOLDERS]:
        for source in sources_below(root / folder):
            for number, name in includes(source):
                where = f"{source.relative_to(root)}:{number}"
                if "../" in name:
                    yield f'{where}: include with "../": {name}'
                home = homes.get(Path(name).name)
                if home and folder in folders and home not in reachable(folder, folders):
                    yield f"{where}: {folder} must not see {home}: {name}"


def check_table(root, folders):
    """Findings about folders that the table lacks or has too many."""
    for path in sorted((root / "src").iterdir()):
        if path.is_dir() and f"src/{path.name}" not in folders:
            yield f"{DOCUMENT}: src/{path.name} is not in the table"
    for folder, row in folders.items():
        if not (root / folder).is_dir():
            yield f"{DOCUMENT}: there is no folder {folder}"
        for lower in row.lower:
            if lower not in folders:
                yield f"{DOCUMENT}: {folder} stands on {lower}, which is not in the table"


def check_targets(root, folders):
    """Findings about rows that tell of other targets or links than the build has."""
    owners = {target: folder for folder, row in folders.items() for target in row.targets}
    for folder, row in folders.items():
        path = root / folder / "CMakeLists.txt"
        text = path.read_text(encoding="utf-8") if path.is_file() else ""
        libraries = LIBRARY.findall(text)
        targets = {name for name, _ in libraries} | set(PROGRAM.findall(text))
        if targets != set(row.targets):
            yield f"{DOCUMENT}: {folder} has the targets {listed(targets)}, not {listed(row.targets)}"
        links = {owners.get(link, link) for _, text in libraries for link in text.split() if "::" not in link}
        if links != set(row.lower):
            yield f"{DOCUMENT}: {folder} links {listed(links)}, not {listed(row.lower)}"


def listed(names):
    return ", ".join(sorted(names)) or "nothing"


def check_picture(section, folders):
    """Findings about folders that the picture lacks or has too many."""
    match = PICTURE.search(section)
    drawn = set(re.findall(r"[a-z]\w+", match.group(1))) if match else set()
    meant = {folder.removeprefix("src/") for folder in folders}
    if drawn != meant:
        yield f"{DOCUMENT}: the picture shows {listed(drawn)}, not {listed(meant)}"


def check(root):
    """Findings, one text each."""
    section = section_of(root)
    folders = folders_of(section)
    if not folders:
        return [f'{DOCUMENT}: no table of folders under "{SECTION}"']
    return [
        *check_table(root, folders),
        *check_targets(root, folders),
        *check_picture(section, folders),
        *check_includes(root, folders),
    ]


if __name__ == "__main__":
    problems = check(Path(sys.argv[1]))
    print("\n".join(problems) or "no upward include, and the document is true")
    sys.exit(1 if problems else 0)
