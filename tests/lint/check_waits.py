"""No test waits for a fixed time where it could wait for a condition.

A pause is too short on a busy machine and too long on every other one. QTRY_*, QSignalSpy::wait and
QTest::qWaitFor wait for what is meant. Where nothing but time will do, the line says why:

    QTest::qWait(20); // UNAVOIDABLE: the file system's time stamps count in steps of ten milliseconds
"""

import re
import sys
from pathlib import Path

PAUSE = re.compile(
    r"\b(qWait|qSleep|sleep|msleep|usleep|nsleep|nanosleep|clock_nanosleep|sleep_for|sleep_until|Sleep)\s*\("
)
EXCUSE = re.compile(r"//\s*UNAVOIDABLE:\s*\S")
# What is no code: comments of both kinds and string literals. A literal comes first, so that "//" in it is no comment.
NO_CODE = re.compile(r'"(?:\\.|[^"\\\n])*"|//[^\n]*|/\*.*?\*/', re.DOTALL)


def code_of(text):
    """The text without comments and literals, every line in its place."""
    return NO_CODE.sub(lambda match: "\n" * match.group().count("\n"), text)


def check(root):
    """Findings, one text each."""
    findings = []
    for source in sorted((root / "tests").rglob("*")):
        if source.suffix not in {".cpp", ".h"}:
            continue
        text = source.read_text(encoding="utf-8")
        for number, (line, code) in enumerate(zip(text.splitlines(), code_of(text).splitlines()), start=1):
            pause = PAUSE.search(code)
            if pause and not EXCUSE.search(line):
                findings.append(f"{source.relative_to(root)}:{number}: waits without a condition: {pause.group(1)}")
    return findings


if __name__ == "__main__":
    problems = check(Path(sys.argv[1]))
    print("\n".join(problems) or "no bare wait")
    sys.exit(1 if problems else 0)
