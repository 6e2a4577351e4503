"""Tries the check of conditionals on trees that have some too many, too few, or in the wrong place."""

import unittest

import check_conditionals
from checktest import CheckTest

CONDITIONAL = "#ifdef Q_OS_WIN\nint windows();\n#else\nint others();\n#endif\n"


class ConditionalsTest(CheckTest):
    def setUp(self):
        super().setUp()
        for name, count in check_conditionals.PLACES.items():
            self.write(name, "#pragma once\n#include <QtGlobal>\n" + CONDITIONAL * count)

    def findings(self):
        return check_conditionals.check(self.root)

    def test_conditionals_in_their_places_are_in_order(self):
        self.assert_findings(self.findings())

    def test_every_kind_of_conditional_is_found_in_every_folder(self):
        for folder in check_conditionals.FOLDERS:
            for line in ("#if 1", "#ifdef A", "#ifndef A", " # if defined(A)", "#elif A", "#elifdef A", "#elifndef A"):
                with self.subTest(folder=folder, line=line):
                    name = f"{folder}/some/where.cpp"
                    self.write(name, f"int a;\n{line}\n")
                    self.assert_findings(self.findings(), f"{name}:2: no place for a conditional: {line.strip()}")
                    (self.root / name).unlink()

    def test_another_one_in_a_place_is_found(self):
        self.write("src/ipc/wireprotocol.cpp", CONDITIONAL * 2)
        self.assert_findings(self.findings(), "src/ipc/wireprotocol.cpp: 2 conditionals, not 1")

    def test_a_place_that_has_fewer_is_found(self):
        self.write("tests/support/platform.h", CONDITIONAL)
        self.assert_findings(self.findings(), "tests/support/platform.h: 1 conditionals, not 2")

    def test_a_place_that_has_gone_is_found(self):
        (self.root / "src/ipc/socketpeer_unix.cpp").unlink()
        self.assert_findings(self.findings(), "src/ipc/socketpeer_unix.cpp: is not there")

    def test_a_version_is_found_even_in_a_place(self):
        line = "#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)"
        self.write("src/mainwindow/servicecontrol.cpp", f"{line}\n#endif\n")
        self.assert_findings(self.findings(), f"src/mainwindow/servicecontrol.cpp:1: asks for a version: {line}")

    def test_other_directives_and_texts_are_in_order(self):
        self.write("src/some.cpp", '#include "ifdef.h"\n#define IF\n// #if\nint ifs = 1; // see #ifdef\n#pragma once\n')
        self.assert_findings(self.findings())


if __name__ == "__main__":
    unittest.main()
