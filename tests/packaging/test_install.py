"""What "cmake --install" puts in place: the right files, in a tree that works wherever it is moved.

Arguments: the cmake program, the build directory, the source directory.
"""

import configparser
import os
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

CMAKE, BUILD, SOURCE = (Path(argument) for argument in sys.argv[1:4])

ID = "com.tamrix.OrvelSchedulerManager"
FIRST_PREFIX = "/prefix-of-the-installation"
ICON_SIZES = [16, 22, 24, 32, 48, 64, 128, 256]
MANAGER, DAEMON, CHECK = "orvel-scheduler-manager", "orvel-dev-daemon", "orvel-protocol-check"
# The component of each program.
PROGRAMS = {MANAGER: "manager", DAEMON: "devdaemon", CHECK: "devdaemon"}
# With what an unknown option ends it; the check uses 1 for its findings.
STATUS_OF_MISUSE = {MANAGER: 1, DAEMON: 1, CHECK: 2}


def common_files(program):
    return {f"bin/{program}", f"share/man/man1/{program}.1", f"share/bash-completion/completions/{program}"}


def icon(size):
    return f"share/icons/hicolor/{size}x{size}/apps/{ID}.png"


EXPECTED = {
    "manager": common_files(MANAGER)
    | {f"share/applications/{ID}.desktop", f"share/metainfo/{ID}.metainfo.xml"}
    | {f"share/icons/hicolor/scalable/apps/{ID}.svg"}
    | {icon(size) for size in ICON_SIZES},
    "devdaemon": common_files(DAEMON)
    | common_files(CHECK)
    | {"lib/systemd/user/SchedulerService.service"},
}


class InstallTest(unittest.TestCase):
    """Each component in a tree of its own, which is moved once everything is in place."""

    @classmethod
    def setUpClass(cls):
        cls.directory = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.directory)
        cls.trees = {}
        for component in EXPECTED:
            # Below a root directory, so that a destination that is absolute after all stays in here.
            root = cls.directory / f"root of {component}"
            command = [CMAKE, "--install", BUILD, "--prefix", FIRST_PREFIX, "--component", component]
            environment = os.environ | {"DESTDIR": str(root)}
            subprocess.run(command, check=True, stdout=subprocess.DEVNULL, env=environment)
            cls.trees[component] = cls.directory / "moved to" / component
            cls.trees[component].parent.mkdir(exist_ok=True)
            Path(f"{root}{FIRST_PREFIX}").rename(cls.trees[component])

    def files(self, component):
        tree = self.trees[component]
        return {str(path.relative_to(tree)) for path in tree.rglob("*") if not path.is_dir()}

    def run_program(self, program, *arguments):
        home = self.directory / "home"
        home.mkdir(mode=0o700, exist_ok=True)
        # A newer toolkit has a message for any other encoding, and messages are what the tests look at.
        environment = {"PATH": os.environ["PATH"], "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"}
        environment |= {"HOME": str(home), "XDG_RUNTIME_DIR": str(home)}
        environment |= {key: value for key, value in os.environ.items() if key.startswith(("LSAN_", "ASAN_", "UBSAN_"))}
        return subprocess.run(
            [self.trees[PROGRAMS[program]] / "bin" / program, *arguments],
            env=environment, capture_output=True, text=True, timeout=60,
        )

    def text_of(self, component, name):
        return (self.trees[component] / name).read_text(encoding="utf-8")

    def test_each_component_has_its_files_and_no_others(self):
        for component, expected in EXPECTED.items():
            with self.subTest(component):
                self.assertEqual(self.files(component), expected)

    def test_programs_may_be_run_and_other_files_not(self):
        for component in EXPECTED:
            for name in self.files(component):
                with self.subTest(name):
                    mode = (self.trees[component] / name).stat().st_mode & 0o777
                    self.assertEqual(mode, 0o755 if name.startswith("bin/") else 0o644)

    def test_no_text_names_a_directory_of_the_build(self):
        unwanted = {str(BUILD).encode(), str(SOURCE).encode()}
        for component in EXPECTED:
            for name in self.files(component) - {f"bin/{program}" for program in PROGRAMS}:
                content = (self.trees[component] / name).read_bytes()
                self.assertFalse([text for text in unwanted if text in content], name)

    def test_nothing_names_the_prefix_that_it_was_installed_to(self):
        for component, tree in self.trees.items():
            for name in self.files(component):
                self.assertNotIn(FIRST_PREFIX.encode(), (tree / name).read_bytes(), name)

    def test_the_moved_programs_run(self):
        for program in PROGRAMS:
            with self.subTest(program):
                result = self.run_program(program, "--help")
                self.assertEqual((result.returncode, result.stderr), (0, ""))
                self.assertIn("Usage: ", result.stdout)

    def test_the_moved_programs_refuse_an_unknown_option(self):
        for program, status in STATUS_OF_MISUSE.items():
            with self.subTest(program):
                result = self.run_program(program, "--nonsense")
                self.assertEqual((result.returncode, result.stdout), (status, ""))
                self.assertIn("nonsense", result.stderr)

    def test_manual_and_completion_know_the_options_of_the_program(self):
        for program, component in PROGRAMS.items():
            with self.subTest(program):
                options = set(re.findall(r"--[a-z][a-z-]*", self.run_program(program, "--help").stdout))
                self.assertIn("--help", options)
                manual = self.text_of(component, f"share/man/man1/{program}.1").replace("\\-", "-")
                section = manual.split(".SH OPTIONS")[1].split(".SH ")[0]
                self.assertEqual(set(re.findall(r"--[a-z][a-z-]*", section)), options)
                completion = self.text_of(component, f"share/bash-completion/completions/{program}")
                self.assertEqual(set(re.findall(r"--[a-z][a-z-]*", completion)), options)

    def test_the_completion_offers_the_values_that_fit(self):
        cases = [
            (MANAGER, ["--lang"], ["--language"]),
            (MANAGER, ["--language", "zh"], ["zh", "zh_TW"]),
            (MANAGER, ["--task-type", "task_type.t"], ["task_type.test"]),
            (MANAGER, ["--program-name", ""], []),
            (DAEMON, ["--tasks", ""], []),
            (DAEMON, ["--ver"], ["--verbose", "--version"]),
            (CHECK, ["--task-type", "task_type.t"], ["task_type.test"]),
            (CHECK, ["--l"], ["--list"]),
        ]
        for program, words, offered in cases:
            with self.subTest(words):
                file = self.trees[PROGRAMS[program]] / "share/bash-completion/completions" / program
                script = (
                    'source "$1"; COMP_WORDS=("${@:2}"); COMP_CWORD=$(($# - 2)); '
                    f"_{program.replace('-', '_')}; printf '%s\\n' \"${{COMPREPLY[@]}}\""
                )
                command = ["bash", "-euc", script, "bash", file, program, *words]
                result = subprocess.run(command, capture_output=True, text=True, check=True)
                self.assertEqual(result.stdout.split(), offered)

    def test_one_name_holds_for_entry_metainfo_icons_and_windows(self):
        entry = configparser.ConfigParser(interpolation=None, delimiters="=")
        entry.optionxform = str
        entry.read_string(self.text_of("manager", f"share/applications/{ID}.desktop"))
        self.assertEqual(entry["Desktop Entry"]["Icon"], ID)
        self.assertEqual(entry["Desktop Entry"]["Exec"], MANAGER)
        metainfo = ElementTree.fromstring(self.text_of("manager", f"share/metainfo/{ID}.metainfo.xml"))
        self.assertEqual(metainfo.findtext("id"), ID)
        self.assertEqual(metainfo.findtext("launchable"), f"{ID}.desktop")
        self.assertEqual(metainfo.findtext("icon"), ID)
        startup = (SOURCE / "src/app/startup.cpp").read_text(encoding="utf-8")
        self.assertEqual(re.findall(r'setDesktopFileName\(u"([^"]+)"_s\)', startup), [ID])

    def test_the_newest_release_of_the_metainfo_is_the_version_of_the_program(self):
        metainfo = ElementTree.fromstring(self.text_of("manager", f"share/metainfo/{ID}.metainfo.xml"))
        version = self.run_program(MANAGER, "--version").stdout.split()[-1]
        self.assertEqual(metainfo.find("releases/release").get("version"), version)

    def test_icons_have_the_size_of_their_folder(self):
        for size in ICON_SIZES:
            header = (self.trees["manager"] / icon(size)).read_bytes()[:24]
            self.assertEqual(header[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack(">II", header[16:24]), (size, size))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
