"""What the tests of the checks share."""

import shutil
import tempfile
import unittest
from pathlib import Path


class CheckTest(unittest.TestCase):
    """A test with a source tree of its own."""

    def setUp(self):
        self.root = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.root)
        (self.root / "src").mkdir()

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def assert_findings(self, findings, *parts):
        """As many findings as parts, each with its part in it, in any order."""
        self.assertEqual(len(findings), len(parts), findings)
        for part in parts:
            self.assertTrue(any(part in finding for finding in findings), f"{part!r} is not in {findings}")
