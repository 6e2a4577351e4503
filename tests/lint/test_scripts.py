"""Tries the check of the commands on scripts that break its rules, and on one that keeps them."""

import unittest

import check_scripts
from checktest import CheckTest

GOOD = """#!/usr/bin/env bash
set -euo pipefail
usage="Does this or that.

  tools/make [directory]"
for argument in "$@"; do
    case "$argument" in
        -h | --help) echo "$usage" && exit 0 ;;
        -*) echo "$usage" >&2 && exit 2 ;;
    esac
done
mkdir build
"""


class ScriptsTest(CheckTest):
    def findings(self, text, name="tools/make"):
        self.write(name, text)
        (self.root / name).chmod(0o755)
        return check_scripts.check(self.root)

    def assert_change_found(self, old, new, *parts):
        self.assertIn(old, GOOD)
        self.assert_findings(self.findings(GOOD.replace(old, new)), *parts)

    def test_a_command_that_tells_its_usage_and_does_nothing_is_in_order(self):
        self.assert_findings(self.findings(GOOD))

    def test_a_script_that_is_only_sourced_is_no_command(self):
        self.write("tools/setup.sh", "# shellcheck shell=bash\nexit 1\n")
        self.assert_findings(self.findings(GOOD))

    def test_a_command_of_a_folder_further_down_is_found(self):
        self.assert_findings(self.findings(GOOD, "packaging/windows/make"), *["does not tell its usage"] * 3)

    def test_an_option_that_is_not_known_is_found(self):
        for option in ("-h", "--help"):
            with self.subTest(option):
                rest = "--help" if option == "-h" else "-h"
                self.assert_change_found("-h | --help", rest, f"{option}: ends with 2", "on stdout", "to stderr")

    def test_another_status_is_found(self):
        self.assert_change_found("exit 0", "exit 3", "--help: ends with 3", "-h: ends with 3")
        self.assert_change_found("exit 2", "exit 1", "--no-such-option: ends with 1 instead of 2")

    def test_a_usage_that_does_not_name_the_command_is_found(self):
        self.assert_change_found("  tools/make [", "  tools/mark [", "--help: does not", "-h: does not", "on stderr")

    def test_a_usage_on_the_wrong_stream_is_found(self):
        self.assert_change_found('"$usage" >&2', '"$usage"', "usage on stderr", "prints to stdout")

    def test_work_before_the_help_is_found(self):
        self.assert_change_found("set -euo pipefail", "echo >>log", *["leaves or changes files"] * 3)

    def test_a_program_that_is_started_before_the_help_is_found(self):
        findings = self.findings(GOOD.replace("usage=", "cmake --version\nusage="))
        self.assertTrue(any("--help: ends with 127" in finding for finding in findings), findings)

    def test_a_command_that_waits_is_found(self):
        self.addCleanup(setattr, check_scripts, "PATIENCE_SECONDS", check_scripts.PATIENCE_SECONDS)
        check_scripts.PATIENCE_SECONDS = 0.2
        self.assert_change_found("usage=", "while :; do :; done\nusage=", *["timed out"] * 3)

    def test_what_hands_its_options_on_may_take_any(self):
        text = GOOD.replace("tools/make", "./run").replace("-*)", "--none)")
        self.assert_findings(self.findings(text, "run"))

    def test_a_command_that_cannot_be_run_is_found(self):
        self.write("bench", GOOD)
        self.assert_findings(check_scripts.check(self.root), "bench: is not executable")


if __name__ == "__main__":
    unittest.main()
