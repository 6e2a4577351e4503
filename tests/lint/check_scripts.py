"""Each command of the project tells what it does when it is asked, and does nothing else then.

--help and -h print the usage and end with 0; an option that does not exist ends with 2, and the usage goes to the
standard error. Each command is run in a copy of the scripts, with no program in reach but the few that printing takes:
whatever else it tried to do would fail, or be seen in the copy.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

FOLDERS = [".", ".ci", "tools", "packaging/windows"]
# What finds the script's own folder and prints.
PROGRAMS = ["bash", "dirname", "env", "sed"]
# These hand their arguments on to a program, which judges them.
HANDS_ON = {"run", "test", "packaging/windows/test-under-wine"}
NO_SUCH_OPTION = "--no-such-option"
PATIENCE_SECONDS = 10


def is_script(path):
    if not path.is_file():
        return False
    with path.open("rb") as file:
        return file.read(2) == b"#!"


def commands_of(root):
    """The commands, as paths from the root. What is only sourced has no first line for the system."""
    return [
        path.relative_to(root)
        for folder in FOLDERS
        for path in sorted((root / folder).glob("*"))
        if is_script(path)
    ]


def snapshot(folder):
    """Each file below the folder, with its content."""
    return {path: path.read_bytes() if path.is_file() else None for path in folder.rglob("*")}


class Playground:
    """A copy of the scripts, and a search path that leads to almost nothing."""

    def __init__(self, root, folder):
        self.root = folder / "root"
        self.programs = folder / "programs"
        self.home = folder / "home"
        for path in (self.root, self.programs, self.home):
            path.mkdir()
        for source in FOLDERS:
            for path in (root / source).glob("*"):
                if path.is_file():
                    target = self.root / source / path.name
                    target.parent.mkdir(parents=True, exist_ok=True)
                    shutil.copy(path, target)
        for program in PROGRAMS:
            (self.programs / program).symlink_to(shutil.which(program))

    def run(self, command, option):
        """The finished process; text in place of it when it could not be run to its end."""
        environment = {"PATH": str(self.programs), "HOME": str(self.home), "LC_ALL": "C.UTF-8"}
        try:
            return subprocess.run(
                [self.root / command, option],
                cwd=self.home,
                env=environment,
                stdin=subprocess.DEVNULL,
                capture_output=True,
                text=True,
                timeout=PATIENCE_SECONDS,
            )
        except (OSError, subprocess.TimeoutExpired) as error:
            return str(error)


def problems_of(outcome, command, status, telling, silent):
    """What is wrong with a run that should have ended with the status and told the usage on one of the streams."""
    if isinstance(outcome, str):
        yield outcome
        return
    if outcome.returncode != status:
        yield f"ends with {outcome.returncode} instead of {status}: {outcome.stderr.strip()[:200]}"
    if not re.search(rf"^  (\./)?{re.escape(str(command))}\b", getattr(outcome, telling), re.MULTILINE):
        yield f"does not tell its usage on {telling}"
    if getattr(outcome, silent):
        yield f"prints to {silent}: {getattr(outcome, silent).strip()[:200]}"


def check_run(playground, command, option):
    """Findings about one run of a command."""
    before = snapshot(playground.root) | snapshot(playground.home)
    outcome = playground.run(command, option)
    if option == NO_SUCH_OPTION:
        yield from problems_of(outcome, command, 2, "stderr", "stdout")
    else:
        yield from problems_of(outcome, command, 0, "stdout", "stderr")
    if snapshot(playground.root) | snapshot(playground.home) != before:
        yield "leaves or changes files"


def check(root):
    """Findings, one text each."""
    findings = []
    with tempfile.TemporaryDirectory() as folder:
        playground = Playground(root, Path(folder))
        for command in commands_of(root):
            if not os.access(root / command, os.X_OK):
                findings.append(f"{command}: is not executable")
                continue
            for option in ("--help", "-h", *(() if str(command) in HANDS_ON else (NO_SUCH_OPTION,))):
                findings += [f"{command} {option}: {text}" for text in check_run(playground, command, option)]
    return findings


if __name__ == "__main__":
    problems = check(Path(sys.argv[1]))
    print("\n".join(problems) or "each command tells what it does")
    sys.exit(1 if problems else 0)
