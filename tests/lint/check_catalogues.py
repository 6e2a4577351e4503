"""Every translation catalogue is complete and agrees with the sources.

Complete: nothing unfinished, retired or empty, every plural form of the language filled, place markers, line breaks and
outer blanks as in the English text. Agreeing: a catalogue holds the very messages that lupdate finds in src, no more and
no fewer, and each context holds as many as it should. The English one holds none, since the source text stands.
"""

import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from collections import Counter, namedtuple
from pathlib import Path

CATALOGUES = Path("src/app/i18n")
PREFIX = "Brelvix_"
SOURCE_LANGUAGE = "en"
PLURAL_FORMS = {"ar": 6, "de": 2, "es": 2, "fr": 2, "it": 2, "ja": 1, "pt_BR": 2, "zh_CN": 1, "zh_TW": 1}
# How many messages each context holds. A text that is moved to another context loses its translation.
MESSAGES = {
    "MCsMainWindow": 12,
    "MCsTaskDialog": 64,
    "QObject": 11,
    "Scheduler::MCsDynamicFormWidget": 7,
    "Scheduler::MCsMainWindow": 150,
    "Scheduler::MCsTaskDialog": 46,
    "Scheduler::MCsTaskTableWidget": 1,
}
# Formats that lupdate takes for texts. A date edit would show and accept something else.
FIXED_TEXTS = {"yyyy-MM-dd HH:mm:ss", "HH:mm:ss"}

# What makes two messages the same one to the translator.
Key = namedtuple("Key", "context source comment plural")


def text_of(element):
    return "" if element is None else element.text or ""


def messages(catalogue):
    """Pairs of key and translation element, of a file in lupdate's format."""
    for context in ElementTree.parse(catalogue).getroot().iter("context"):
        for message in context.iter("message"):
            key = Key(
                text_of(context.find("name")),
                text_of(message.find("source")),
                text_of(message.find("comment")),
                message.get("numerus") == "yes",
            )
            yield key, message.find("translation")


def markers(text, plural):
    """The place markers of a text and how often each occurs. A number stands for %n in a plural only."""
    return Counter(re.findall(r"%L?(?:\d{1,2}|n)" if plural else r"%L?\d{1,2}", text))


def compare_texts(key, text):
    """What is wrong with one translated text."""
    if not text.strip():
        yield "is empty"
        return
    if markers(text, key.plural) != markers(key.source, key.plural):
        yield f"has other place markers: {text!r}"
    if text.count("\n") != key.source.count("\n"):
        yield f"has other line breaks: {text!r}"
    if (text[0].isspace(), text[-1].isspace()) != (key.source[0].isspace(), key.source[-1].isspace()):
        yield f"has other blanks at its ends: {text!r}"
    if key.source in FIXED_TEXTS and text != key.source:
        yield f"is a format and must stay: {text!r}"


def check_message(key, translation, language):
    """What is wrong with one message of a catalogue."""
    state = None if translation is None else translation.get("type")
    if translation is None or state:
        yield f"is {state or 'missing'}"
        return
    if not key.plural:
        yield from compare_texts(key, text_of(translation))
        return
    forms = translation.findall("numerusform")
    if len(forms) != PLURAL_FORMS[language]:
        yield f"has {len(forms)} plural forms of {PLURAL_FORMS[language]}"
    for form in forms:
        yield from compare_texts(key, text_of(form))


def check_catalogue(catalogue, language, expected):
    """Findings about one catalogue, one text each."""
    findings = []
    declared = ElementTree.parse(catalogue).getroot().get("language")
    if declared != language:
        findings.append(f"{catalogue.name}: its language is {declared}")
    if language != SOURCE_LANGUAGE and language not in PLURAL_FORMS:
        return [*findings, f"{catalogue.name}: the plural forms of its language are not known to this check"]

    found = Counter()
    for key, translation in messages(catalogue):
        found[key] += 1
        for problem in check_message(key, translation, language) if language != SOURCE_LANGUAGE else ():
            findings.append(f"{catalogue.name}: {key.context}: {key.source!r} {problem}")

    expected = set() if language == SOURCE_LANGUAGE else expected
    for title, keys in (
        ("missing", expected - found.keys()),
        ("in no source", found.keys() - expected),
        ("there twice", {key for key, count in found.items() if count > 1}),
    ):
        findings += [f"{catalogue.name}: {key.context}: {key.source!r} is {title}" for key in sorted(keys)]
    return findings


def extract(root, lupdate):
    """The keys of all messages that the sources hold."""
    with tempfile.TemporaryDirectory() as directory:
        extracted = Path(directory) / "extracted.ts"
        command = [lupdate, "-silent", "-no-obsolete", "-locations", "none", root / "src", "-ts", extracted]
        subprocess.run(command, check=True)
        return {key for key, _ in messages(extracted)}


def check(root, expected):
    """Findings about all catalogues, given the keys that each has to hold."""
    findings = []
    for catalogue in sorted((root / CATALOGUES).glob("*.ts")):
        if not catalogue.stem.startswith(PREFIX):
            findings.append(f"{catalogue.name}: is not named {PREFIX}<language>.ts")
            continue
        findings += check_catalogue(catalogue, catalogue.stem.removeprefix(PREFIX), expected)
    return findings


def check_contexts(keys, counts):
    """Findings about the number of messages in each context."""
    found = Counter(key.context for key in keys)
    return [
        f"{context}: {found[context]} messages in the sources instead of {counts.get(context, 0)}"
        for context in sorted(found.keys() | counts.keys())
        if found[context] != counts.get(context, 0)
    ]


def check_languages(root):
    """Findings about languages without a catalogue."""
    return [
        f"{PREFIX}{language}.ts: is missing"
        for language in sorted({SOURCE_LANGUAGE, *PLURAL_FORMS})
        if not (root / CATALOGUES / f"{PREFIX}{language}.ts").exists()
    ]


if __name__ == "__main__":
    source_root = Path(sys.argv[1])
    source_keys = extract(source_root, sys.argv[2])
    problems = check_languages(source_root) + check_contexts(source_keys, MESSAGES) + check(source_root, source_keys)
    print("\n".join(problems) or "the catalogues are complete")
    sys.exit(1 if problems else 0)
