"""Tries the checks of this folder on small source trees that break the rules, and on such as keep them."""

import struct
import sys
import unittest
import zlib

import check_catalogues
import check_images
import check_waits
from checktest import CheckTest
from pngpixels import read_png

LUPDATE = None


class WaitsTest(CheckTest):
    def findings(self, text):
        self.write("tests/test.cpp", text)
        return check_waits.check(self.root)

    def test_every_kind_of_pause_is_found(self):
        pauses = ("QTest::qWait(5)", "QTest::qSleep(5)", "QThread::msleep (5)", "::usleep(5)", "sleep(5)",
                  "std::this_thread::sleep_for(5ms)")
        for pause in pauses:
            with self.subTest(pause):
                self.assert_findings(self.findings(f"void f()\n{{\n    {pause};\n}}\n"), "tests/test.cpp:3")

    def test_waiting_for_a_condition_is_free(self):
        self.assert_findings(self.findings("QTRY_VERIFY(a); spy.wait(5); QTest::qWaitFor(a); qWaitForWindowActive(w);"))

    def test_a_reason_on_the_line_excuses(self):
        self.assert_findings(self.findings("QTest::qWait(5); // UNAVOIDABLE: time stamps are that coarse\n"))

    def test_an_empty_reason_or_one_on_another_line_does_not(self):
        self.assert_findings(self.findings("QTest::qWait(5); // UNAVOIDABLE:\n"), ":1")
        self.assert_findings(self.findings("// UNAVOIDABLE: because\nQTest::qWait(5);\n"), ":2")

    def test_comments_and_literals_are_no_code(self):
        self.assert_findings(self.findings('// qWait(5)\n/* sleep(1)\n sleep(2) */ f("// sleep(3)");\n'))
        self.assert_findings(self.findings('f("//"); sleep(3);\n'), ":1")


def png(width, height, pixels):
    """An RGBA file of these bytes, unfiltered."""

    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    lines = b"".join(b"\0" + pixels[y * width * 4 : (y + 1) * width * 4] for y in range(height))
    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(lines)) + chunk(b"IEND", b"")


class ImagesTest(CheckTest):
    def setUp(self):
        super().setUp()
        self.write("src/app/images/new.png", "")
        self.write("src/app/images/svg/new.svg", "")
        self.write("src/mainwindow/a.ui", "<normaloff>:/images/new.png</normaloff>")
        self.write("packaging/icons/hicolor/16x16/apps/app.png", "image")
        self.bundle("new.png")
        self.windows_icon(b"image")

    def bundle(self, *files):
        entries = "".join(f"<file>{file}</file>" for file in files)
        self.write("src/app/images/images.qrc", f'<RCC><qresource prefix="/images">{entries}</qresource></RCC>')

    def windows_icon(self, image):
        directory = struct.pack("<HHH", 0, 1, 1) + struct.pack("<BBBBHHII", 16, 16, 0, 0, 1, 32, len(image), 22)
        self.write("packaging/windows/orvel-scheduler-manager.ico", "")
        (self.root / "packaging/windows/orvel-scheduler-manager.ico").write_bytes(directory + image)

    def findings(self):
        return check_images.check(self.root)

    def test_a_bundle_of_used_images_is_in_order(self):
        self.assert_findings(self.findings())

    def test_an_unused_image_is_found(self):
        self.write("src/mainwindow/a.ui", "")
        self.assert_findings(self.findings(), "nothing uses :/images/new.png")

    def test_a_use_of_an_image_that_is_not_bundled_is_found(self):
        self.write("src/style/sheets.cpp", 'u"image: url(:/images/other.png);"')
        self.assert_findings(self.findings(), "src/style/sheets.cpp: :/images/other.png")

    def test_files_that_are_bundled_and_missing_or_there_and_not_bundled_are_found(self):
        self.bundle("gone.png")
        self.write("src/mainwindow/a.ui", ":/images/gone.png")
        self.assert_findings(self.findings(), "no such file: gone.png", "new.png is not in")

    def test_png_and_source_without_each_other_are_found(self):
        (self.root / "src/app/images/svg/new.svg").rename(self.root / "src/app/images/svg/old.svg")
        self.assert_findings(self.findings(), "new.png has no source", "old.svg has not been rendered")

    def test_an_icon_of_the_windows_program_with_another_image_is_found(self):
        self.windows_icon(b"older")
        self.assert_findings(self.findings(), "is not made of the PNGs")

    def test_a_missing_icon_of_the_windows_program_is_found(self):
        (self.root / "packaging/windows/orvel-scheduler-manager.ico").unlink()
        self.assert_findings(self.findings(), "orvel-scheduler-manager.ico is missing")

    def difference(self, first, second):
        (self.root / "first.png").write_bytes(first)
        (self.root / "second.png").write_bytes(second)
        return check_images.differs(self.root / "first.png", self.root / "second.png")

    def test_a_changed_pixel_or_size_is_a_difference(self):
        grey = png(2, 1, b"\x80\x80\x80\xff" * 2)
        self.assertEqual(self.difference(grey, grey), "")
        self.assertIn("differs", self.difference(grey, png(2, 1, b"\x80\x80\x80\xff\x80\x80\xff\xff")))
        self.assertIn("1x2", self.difference(grey, png(1, 2, b"\x80\x80\x80\xff" * 2)))

    def test_the_last_bits_of_a_pixel_and_the_colour_of_an_invisible_one_are_none(self):
        committed = png(2, 1, b"\x80\x80\x80\xff\x00\x00\x00\x00")
        fresh = png(2, 1, b"\x82\x7e\x80\xff\xff\xff\xff\x00")
        self.assertEqual(self.difference(committed, fresh), "")

    def test_something_else_than_a_png_is_refused(self):
        self.write("text.png", "text")
        self.assertRaises(ValueError, read_png, self.root / "text.png")

    def test_rendering_is_compared_with_the_committed_file(self):
        self.write("src/app/images/new.png", "")
        (self.root / "src/app/images/new.png").write_bytes(png(1, 1, b"\x00\x00\x00\xff"))
        self.write("tools/render-images", f'#!/bin/sh\ncp "{self.root}/rendered" "$1/new.png"\n')
        (self.root / "tools/render-images").chmod(0o755)
        (self.root / "rendered").write_bytes(png(1, 1, b"\x00\x00\x00\xff"))
        self.assert_findings(check_images.check_rendering(self.root))
        (self.root / "rendered").write_bytes(png(1, 1, b"\xff\x00\x00\xff"))
        self.assert_findings(check_images.check_rendering(self.root), "new.png")

    def test_icons_are_compared_with_the_committed_files(self):
        icon = "hicolor/32x32/apps/app.png"
        self.write(
            "tools/render-images", f'#!/bin/sh\ninstall -D "{self.root}/rendered" "$1/icons/{icon}"\n'
        )
        (self.root / "tools/render-images").chmod(0o755)
        (self.root / "rendered").write_bytes(png(1, 1, b"\x00\x00\x00\xff"))
        self.assert_findings(check_images.check_rendering(self.root), f"packaging/icons/{icon} is missing")
        self.write(f"packaging/icons/{icon}", "")
        (self.root / "packaging/icons" / icon).write_bytes(png(1, 1, b"\x00\x00\x00\xff"))
        self.assert_findings(check_images.check_rendering(self.root))
        (self.root / "rendered").write_bytes(png(1, 1, b"\xff\x00\x00\xff"))
        self.assert_findings(check_images.check_rendering(self.root), f"packaging/icons/{icon} is not what")


SOURCES = """
#include <QObject>
namespace Scheduler {
class A : public QObject { Q_OBJECT void f(int n); };
void A::f(int n) { tr("First\\n%1 of %2"); tr("%n task(s)", nullptr, n); }
}
"""
GOOD = """
<message><source>First\n%1 of %2</source><translation>Erste\n%2 von %1</translation></message>
<message numerus="yes"><source>%n task(s)</source><translation>
<numerusform>%n Aufgabe</numerusform><numerusform>%n Aufgaben</numerusform></translation></message>
"""


class CataloguesTest(CheckTest):
    def setUp(self):
        super().setUp()
        self.write("src/a.cpp", SOURCES)

    def catalogue(self, messages, language="de", name="Brelvix_de.ts"):
        context = f"<context><name>Scheduler::A</name>{messages}</context>" if messages else ""
        self.write(f"src/app/i18n/{name}", f'<TS version="2.1" language="{language}">{context}</TS>')

    def findings(self):
        return check_catalogues.check(self.root, check_catalogues.extract(self.root, LUPDATE))

    def assert_change_found(self, old, new, *parts):
        self.assertIn(old, GOOD)
        self.catalogue(GOOD.replace(old, new))
        self.assert_findings(self.findings(), *parts)

    def test_a_complete_catalogue_and_an_empty_english_one_are_in_order(self):
        self.catalogue(GOOD)
        self.catalogue("", "en", "Brelvix_en.ts")
        self.assert_findings(self.findings())

    def test_a_message_in_the_english_catalogue_is_found(self):
        self.catalogue("<message><source>x</source><translation>x</translation></message>", "en", "Brelvix_en.ts")
        self.assert_findings(self.findings(), "'x' is in no source")

    def test_unfinished_and_retired_messages_are_found(self):
        for state in ("unfinished", "vanished", "obsolete"):
            with self.subTest(state):
                self.assert_change_found("<translation>Erste", f'<translation type="{state}">Erste', f"is {state}")

    def test_an_empty_translation_is_found(self):
        self.assert_change_found("Erste\n%2 von %1", "", "is empty")

    def test_a_lost_doubled_or_changed_place_marker_is_found(self):
        for text in ("Erste\n%2", "Erste\n%2 von %1 %1", "Erste\n%2 von %3"):
            with self.subTest(text):
                self.assert_change_found("Erste\n%2 von %1", text, "place markers")

    def test_a_lost_line_break_is_found(self):
        self.assert_change_found("Erste\n", "Erste ", "line breaks")

    def test_a_blank_at_an_end_is_found(self):
        self.assert_change_found("Erste\n%2 von %1", "Erste\n%2 von %1 ", "blanks at its ends")

    def test_a_translated_format_is_found(self):
        self.write("src/a.cpp", SOURCES.replace("First\\n%1 of %2", "HH:mm:ss"))
        good = GOOD.replace("First\n%1 of %2", "HH:mm:ss").replace("Erste\n%2 von %1", "HH:mm:ss")
        self.catalogue(good)
        self.assert_findings(self.findings())
        self.catalogue(good.replace("<translation>HH:mm:ss", "<translation>HH.mm.ss"))
        self.assert_findings(self.findings(), "must stay")

    def test_a_text_in_the_wrong_context_is_found(self):
        keys = check_catalogues.extract(self.root, LUPDATE)
        self.assert_findings(check_catalogues.check_contexts(keys, {"Scheduler::A": 2}))
        self.assert_findings(check_catalogues.check_contexts(keys, {"A": 1, "Scheduler::A": 1}), "A: 0", "A: 2")

    def test_a_language_without_a_catalogue_is_found(self):
        self.catalogue("", "en", "Brelvix_en.ts")
        for language in check_catalogues.PLURAL_FORMS:
            if language != "fr":
                self.catalogue(GOOD, language, f"Brelvix_{language}.ts")
        self.assert_findings(check_catalogues.check_languages(self.root), "Brelvix_fr.ts: is missing")

    def test_a_missing_or_empty_plural_form_is_found(self):
        self.assert_change_found("<numerusform>%n Aufgabe</numerusform>", "", "1 plural forms of 2")
        self.assert_change_found("%n Aufgaben", "", "is empty")

    def test_a_plural_form_without_its_number_is_found(self):
        self.assert_change_found("%n Aufgaben", "Aufgaben", "place markers")

    def test_messages_that_the_sources_lack_or_have_besides_are_found(self):
        self.catalogue(GOOD.replace("<source>%n task(s)", "<source>%n thing(s)"))
        self.assert_findings(self.findings(), "'%n task(s)' is missing", "'%n thing(s)' is in no source")

    def test_a_message_that_stands_twice_is_found(self):
        self.catalogue(GOOD + GOOD[: GOOD.index('<message numerus="yes"')])
        self.assert_findings(self.findings(), "is there twice")

    def test_a_wrong_language_and_an_unknown_one_are_found(self):
        self.catalogue(GOOD, "fr")
        self.assert_findings(self.findings(), "its language is fr")
        self.catalogue(GOOD, "xx", "Brelvix_xx.ts")
        self.catalogue(GOOD)
        self.assert_findings(self.findings(), "not known")

    def test_a_strange_file_name_is_found(self):
        self.catalogue(GOOD, "de", "german.ts")
        self.assert_findings(self.findings(), "german.ts")


if __name__ == "__main__":
    LUPDATE = sys.argv.pop(1)
    unittest.main()
