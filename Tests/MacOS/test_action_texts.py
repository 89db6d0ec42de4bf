"""What the system shows of the actions, in the program's languages: a text for each one that the Swift files have, in
the words of the program's own translations."""
from __future__ import annotations

import re
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SWIFT = ROOT / "Platform" / "MacOS" / "AppIntents"
LANGUAGES = ROOT / "Packaging" / "MacOS" / "Languages"
TRANSLATIONS = ROOT / "Resources" / "Translations"

LITERAL = r'"((?:\\\([^)]*\)|\\.|[^"\\])*)"'
# What stands before a text that the system translates, and before one that it doesn't.
LOCALIZED = (r"LocalizedStringResource = ", r"@Parameter\(title: ", r"TypeDisplayRepresentation\(name: ",
             r"\bshortTitle: ", r"\bSummary\(")
OTHERS = (r"@_cdecl\(", r"\bsystemImageName: ", r"\bend\(context, ")
PLACEHOLDER = re.compile(r"\$\{\w+\}")


def swift() -> str:
    """All of it, without comments."""
    text = "\n".join(path.read_text(encoding="utf-8") for path in sorted(SWIFT.glob("*.swift")))
    return re.sub(r"(?m)^\s*///?.*$|\s// .*$", "", text)


def key(literal: str) -> str:
    """By which a text is looked up: its parameters stand in it by their names."""
    return re.sub(r"\\\(\\?\.\$?(\w+)\)", r"${\1}", literal)


def taken(text: str, before: tuple[str, ...]) -> tuple[list[str], str]:
    """The literals behind any of these, and the text without them."""
    found = []
    for pattern in before:
        found += re.findall(pattern + LITERAL, text)
        text = re.sub(pattern + LITERAL, "", text)
    return found, text


def wanted() -> dict[str, set[str]]:
    """The keys of each file."""
    phrases, rest = [], swift()
    for block in re.findall(r"phrases: \[(.*?)\],\n", rest, re.DOTALL):
        phrases += re.findall(LITERAL, block)
        rest = rest.replace(block, "")
    texts, rest = taken(rest, LOCALIZED)
    _, rest = taken(rest, OTHERS)
    # Nothing but a value.
    left = [literal for literal in re.findall(LITERAL, rest) if re.sub(r"\\\(.*?\)", "", literal)]
    if left:
        raise AssertionError(f"Are these for users? LOCALIZED or OTHERS is to say so: {left}")
    files = {"AppShortcuts.strings": phrases, "Localizable.strings": texts}
    return {file: {key(text) for text in found} for file, found in files.items()}


def strings(path: Path) -> dict[str, str]:
    """A file of "key" = "value"; lines and comments, and nothing else."""
    data = path.read_bytes()
    text = data.decode("utf-8")
    if text.startswith("\ufeff") or not text.endswith("\n"):
        raise AssertionError(f"{path} begins with a mark, or its last line has no end.")
    quoted = r'"((?:[^"\\\n]|\\["\\n])*)"'
    entries: dict[str, str] = {}
    at = 0
    while at < len(text):
        match = re.compile(rf"\s+|/\*.*?\*/|{quoted} = {quoted};", re.DOTALL).match(text, at)
        if not match:
            raise AssertionError(f"{path} can't be read from here: {text[at:at + 60]!r}")
        if match[1] is not None:
            if match[1] in entries:
                raise AssertionError(f"{path} has {match[1]!r} twice.")
            entries[match[1]] = match[2]
        at = match.end()
    return entries


def translations(language: str) -> dict[str, set[str]]:
    """Those of the portable actions, by their source."""
    found: dict[str, set[str]] = {}
    contexts = {path.stem for path in SWIFT.glob("*.swift")}
    for context in ElementTree.parse(TRANSLATIONS / f"vantrel_{language}.ts").iter("context"):
        if context.findtext("name") in contexts:
            for message in context.iter("message"):
                found.setdefault(message.findtext("source", ""), set()).add(message.findtext("translation", ""))
    return found


def languages() -> list[str]:
    return sorted(path.stem.removeprefix("vantrel_") for path in TRANSLATIONS.glob("vantrel_*.ts"))


class ActionTexts(unittest.TestCase):
    def files(self) -> list[tuple[str, str, dict[str, str]]]:
        """Language, name and content of each that there should be."""
        self.assertGreater(len(languages()), 1)
        return [(language, name, strings(LANGUAGES / f"{language}.lproj" / name))
                for language in languages() for name in wanted()]

    def test_are_found_in_swift(self) -> None:
        self.assertGreaterEqual(len(wanted()["Localizable.strings"]), 7)
        self.assertIn("Open ${links} in ${profile}", wanted()["Localizable.strings"])
        self.assertIn("Open ${target} with ${applicationName}", wanted()["AppShortcuts.strings"])

    def test_are_all_there_and_none_is_left_over(self) -> None:
        for language, name, content in self.files():
            self.assertEqual(set(content), wanted()[name], f"{language}, {name}")

    def test_no_file_is_left_over(self) -> None:
        self.assertEqual({str(path.relative_to(LANGUAGES)) for path in LANGUAGES.rglob("*") if path.is_file()},
                         {f"{language}.lproj/{name}" for language, name, _ in self.files()})

    def test_name_their_parameters(self) -> None:
        for language, _, content in self.files():
            for english, text in content.items():
                self.assertTrue(PLACEHOLDER.sub("", text).strip(), f"{language}, {english}")
                self.assertEqual(sorted(PLACEHOLDER.findall(text)), sorted(PLACEHOLDER.findall(english)), language)
                self.assertNotIn("%", text)

    def test_have_the_words_of_the_programs_translations(self) -> None:
        for language, _, content in self.files():
            own = translations(language)
            for english, text in content.items():
                names = PLACEHOLDER.findall(english)
                for number, name in enumerate(names, start=1):
                    english, text = english.replace(name, f"%{number}"), text.replace(name, f"%{number}")
                self.assertEqual(own.get(english), {text}, f"{language}, {english}")


if __name__ == "__main__":
    unittest.main()
