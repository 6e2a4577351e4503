"""Tries the check of the folders on small source trees that break the rules, and on such as keep them."""

import unittest

import check_includes
from checktest import CheckTest

DOCUMENT = """# Architecture

## Folders and targets

| Folder | Target | Stands on | Holds |
| --- | --- | --- | --- |
| `src/ipc` | `orvel_ipc` | Qt Network | frames |
| `src/client` | `orvel_client` | `ipc`, Qt Core | records |
| `src/style` | `orvel_style` | Qt Widgets | sheets |
| `src/mainwindow` | `orvel_mainwindow`, `orvel-program` | `client`, `style` | window |

```
mainwindow --> client --> ipc
         |
         +---> style
```

## Another section

| `src/other` | `orvel_other` | `ipc` | a row of another table |
"""
MAIN_WINDOW_BUILD = """orvel_add_library(orvel_mainwindow
  SOURCES
    window.cpp
  LINK orvel_client orvel_style Qt6::Widgets)
add_executable(orvel-program main.cpp)
"""


class IncludesTest(CheckTest):
    def setUp(self):
        super().setUp()
        self.write("docs/architecture.md", DOCUMENT)
        self.write("src/ipc/CMakeLists.txt", "orvel_add_library(orvel_ipc SOURCES a.cpp LINK Qt6::Network)\n")
        self.write("src/client/CMakeLists.txt", "orvel_add_library(orvel_client SOURCES a.cpp LINK orvel_ipc)\n")
        self.write("src/style/CMakeLists.txt", "orvel_add_library(orvel_style SOURCES a.cpp LINK Qt6::Widgets)\n")
        self.write("src/mainwindow/CMakeLists.txt", MAIN_WINDOW_BUILD)

    def findings(self):
        return check_includes.check(self.root)

    def change_document(self, old, new):
        self.assertIn(old, DOCUMENT)
        self.write("docs/architecture.md", DOCUMENT.replace(old, new))

    def test_lower_and_own_headers_and_those_of_the_system_may_be_included(self):
        self.write("src/ipc/frames.h", "")
        self.write("src/mainwindow/window.h", "")
        self.write("src/mainwindow/window.cpp", '#include "window.h"\n#include "frames.h"\n#include <QString>\n')
        self.assert_findings(self.findings())

    def test_a_header_of_a_higher_folder_is_found(self):
        self.write("src/client/records.h", "")
        self.write("src/ipc/wireprotocol.cpp", '\n#include "records.h"\n')
        self.assert_findings(self.findings(), "src/ipc/wireprotocol.cpp:2")

    def test_a_header_of_a_neighbour_is_found_also_in_angle_brackets(self):
        self.write("src/style/sheets.h", "")
        self.write("src/client/records.cpp", "#include <sheets.h>\n")
        self.assert_findings(self.findings(), "src/client must not see src/style")

    def test_the_header_of_a_form_belongs_to_the_folder_of_the_form(self):
        self.write("src/mainwindow/mcsmainwindow.ui", "")
        self.write("src/client/client.cpp", '#include "ui_mcsmainwindow.h"\n')
        self.assert_findings(self.findings(), "src/client must not see src/mainwindow")

    def test_an_include_that_climbs_is_found_also_in_the_tests(self):
        self.write("tests/ipc/test.cpp", '#include "../support/testmain.h"\n')
        self.assert_findings(self.findings(), "tests/ipc/test.cpp:1")

    def test_a_folder_without_a_row_is_found(self):
        self.write("src/extras/extra.h", "")
        self.assert_findings(self.findings(), "src/extras is not in the table")

    def test_a_row_without_a_folder_is_found(self):
        row = "| `src/extras` | `orvel_extras` | `ipc` | nothing |\n"
        self.change_document("\n```\nmainwindow", f"{row}\n```\nextras mainwindow")
        self.assert_findings(self.findings(), "no folder src/extras", "has the targets nothing", "links nothing")

    def test_a_link_that_the_table_does_not_tell_of_is_found(self):
        self.write("src/style/CMakeLists.txt", "orvel_add_library(orvel_style SOURCES a.cpp LINK orvel_client)\n")
        self.assert_findings(self.findings(), "src/style links src/client, not nothing")

    def test_a_link_that_the_build_does_not_have_is_found(self):
        self.change_document("| `client`, `style` |", "| `client` |")
        self.assert_findings(self.findings(), "src/mainwindow links src/client, src/style, not src/client")

    def test_a_folder_to_stand_on_that_is_in_no_row_is_found(self):
        self.change_document("| `ipc`, Qt Core |", "| `ipcs`, Qt Core |")
        self.assert_findings(self.findings(), "src/ipcs, which is not in the table", "src/client links src/ipc")

    def test_another_target_is_found(self):
        self.change_document("`orvel-program`", "`orvel-programme`")
        self.assert_findings(self.findings(), "src/mainwindow has the targets orvel-program, orvel_mainwindow")

    def test_a_picture_that_lacks_a_folder_or_shows_another_is_found(self):
        self.change_document("+---> style", "+---> styles")
        self.assert_findings(self.findings(), "the picture shows client, ipc, mainwindow, styles, not client")
        self.change_document("--> ipc\n", "\n")
        self.assert_findings(self.findings(), "the picture shows client, mainwindow, style, not client")

    def test_a_document_without_the_table_is_found(self):
        self.change_document("## Folders and targets", "## Folders")
        self.assert_findings(self.findings(), "no table of folders")
        (self.root / "docs/architecture.md").unlink()
        self.assert_findings(self.findings(), "no table of folders")


if __name__ == "__main__":
    unittest.main()
