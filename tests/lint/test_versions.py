"""Tries the check of the version on trees in which a place has another one, or none."""

import unittest

import check_versions
from checktest import CheckTest

TREE = {
    "CMakeLists.txt": "cmake_minimum_required(VERSION 3.25)\nproject(Some VERSION 2.3.4 LANGUAGES CXX)\n",
    "src/app/startup.cpp": 'QCoreApplication::setApplicationVersion(u"2.3.4"_s);\n',
    "docs/host-integration.md": '| `--version` | Prints "Orvel Task Scheduler 2.3.4" and ends. |\n',
    "packaging/com.tamrix.OrvelSchedulerManager.metainfo.xml": (
        '<releases>\n  <release version="2.3.4"/>\n  <release version="2.3.3"/>\n</releases>\n'
    ),
    "packaging/windows/orvel-scheduler-manager.manifest": (
        '<?xml version="1.0"?>\n<assemblyIdentity name="OrvelSchedulerManager" version="2.3.4.0"/>\n'
    ),
    "packaging/windows/orvel-scheduler-manager.rc": (
        "FILEVERSION 2,3,4,0\nPRODUCTVERSION 2,3,4,0\n"
        'VALUE "FileVersion", "2.3.4"\nVALUE "ProductVersion", "2.3.4"\n'
    ),
}


class VersionsTest(CheckTest):
    def setUp(self):
        super().setUp()
        for name, text in TREE.items():
            self.write(name, text)

    def findings(self):
        return check_versions.check(self.root)

    def test_one_version_everywhere_is_in_order(self):
        self.assert_findings(self.findings())

    def test_every_place_with_another_version_is_found(self):
        for name in set(TREE) - {"CMakeLists.txt"}:
            for old in ("2.3.4", "2,3,4"):
                for place in range(TREE[name].count(old)):
                    with self.subTest(name, old=old, place=place):
                        parts = TREE[name].split(old)
                        left, right = old.join(parts[: place + 1]), old.join(parts[place + 1 :])
                        self.write(name, f"{left}{old.replace('4', '5')}{right}")
                        self.assert_findings(self.findings(), f"{name}: version 2.3.5, not 2.3.4")
            self.write(name, TREE[name])

    def test_a_new_version_of_the_project_is_missed_everywhere(self):
        self.write("CMakeLists.txt", TREE["CMakeLists.txt"].replace("2.3.4", "2.4.0"))
        places = [name for name, patterns in check_versions.PLACES.items() for _ in patterns]
        self.assert_findings(self.findings(), *places)

    def test_a_place_that_has_gone_is_found(self):
        self.write("src/app/startup.cpp", "")
        (self.root / "docs/host-integration.md").unlink()
        self.assert_findings(self.findings(), "src/app/startup.cpp: no version", "docs/host-integration.md: no version")

    def test_a_project_without_a_version_is_found(self):
        self.write("CMakeLists.txt", "project(Some LANGUAGES CXX)\n")
        self.assert_findings(self.findings(), "CMakeLists.txt: no version")


if __name__ == "__main__":
    unittest.main()
