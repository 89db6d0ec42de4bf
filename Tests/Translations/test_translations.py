"""The translations in Resources/Translations, against the texts in the sources."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FOLDER = Path("Resources") / "Translations"
FILES = sorted((ROOT / FOLDER).glob("*.ts"))
MODULES = ("KeyboardShortcuts", "LauncherStub", "Platform", "Vantrel", "VantrelKit")
SUFFIXES = (".cpp", ".h", ".mm")

_PLACEHOLDER = re.compile(r"%L?(?:\d+|n)")
_MNEMONIC = re.compile(r"&(?=[^\s&])")
_ISOLATES = "\u2066\u2067\u2068"
_END_OF_ISOLATE = "\u2069"


@dataclass(frozen=True)
class Message:
    context: str
    source: str
    translation: str  # one of the forms, where there are several
    state: str  # "unfinished", "obsolete", "vanished", or empty when all is well

    def __str__(self) -> str:
        return f"{self.context}: {self.source}"

    def faults(self) -> list[str]:
        """In what the translation differs although the program or its user relies on it."""
        checks = {
            "placeholders": set(_PLACEHOLDER.findall(self.source)) == set(_PLACEHOLDER.findall(self.translation)),
            "ellipsis": self.source.endswith("…") == self.translation.endswith("…"),
            "mnemonic": len(_MNEMONIC.findall(self.source)) == len(_MNEMONIC.findall(self.translation)),
            "end of line": self.source.endswith("\n") == self.translation.endswith("\n"),
            "isolates": sum(map(self.translation.count, _ISOLATES)) == self.translation.count(_END_OF_ISOLATE),
        }
        return [name for name, is_kept in checks.items() if not is_kept]


def messages(file: Path) -> Iterator[Message]:
    for context in ElementTree.parse(file).iter("context"):
        for message in context.iter("message"):
            for translation in message.iter("translation"):
                for form in translation.findall("numerusform") or [translation]:
                    yield Message(context.findtext("name", ""), message.findtext("source", ""), form.text or "",
                                  translation.get("type", ""))


class Checkout:
    """A copy of what Scripts/update_translations reads and writes."""

    def __init__(self) -> None:
        self._folder = tempfile.TemporaryDirectory(prefix="vantrel-translations-")
        self.root = Path(self._folder.name)
        for name in (*MODULES, "Scripts", FOLDER):
            shutil.copytree(ROOT / name, self.root / name)

    def remove(self) -> None:
        self._folder.cleanup()

    def sources(self) -> Iterator[Path]:
        return (path for name in MODULES for path in (self.root / name).rglob("*") if path.suffix in SUFFIXES)

    def update(self, *languages: str, locations: str = "none") -> str:
        """Answers what was said about the sources."""
        script = self.root / "Scripts" / "update_translations"
        script.write_text(script.read_text().replace("-locations none", f"-locations {locations}"))
        done = subprocess.run([script, *languages], capture_output=True, text=True, check=False)
        assert done.returncode == 0, done.stderr
        return done.stderr


class Translations(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls) -> None:
        assert "LUPDATE" in os.environ, "LUPDATE must name Qt's lupdate: the package qt6-l10n-tools has it."

    def new_checkout(self) -> Checkout:
        checkout = Checkout()
        self.addCleanup(checkout.remove)
        return checkout

    def test_german_and_arabic_are_there(self) -> None:
        self.assertLessEqual({"vantrel_ar.ts", "vantrel_de.ts"}, {file.name for file in FILES})

    def test_a_file_is_for_the_language_in_its_name(self) -> None:
        for file in FILES:
            with self.subTest(file.name):
                language = ElementTree.parse(file).getroot().get("language")
                self.assertEqual(file.name, f"vantrel_{language}.ts")

    def test_every_file_is_built_into_the_program(self) -> None:
        listed = (ROOT / "Vantrel" / "Translations" / "CMakeLists.txt").read_text()
        self.assertEqual(re.findall(r"vantrel_\w+\.ts", listed), [file.name for file in FILES])

    def test_the_files_hold_the_texts_of_the_sources_and_no_others(self) -> None:
        checkout = self.new_checkout()
        checkout.update()
        for file in FILES:
            with self.subTest(file.name):
                updated = (checkout.root / FOLDER / file.name).read_text()
                self.assertEqual(file.read_text(), updated, "Run Scripts/update_translations and translate.")

    def test_every_text_is_found_in_the_context_in_which_the_program_looks_for_it(self) -> None:
        checkout = self.new_checkout()
        calls, contexts = 0, set()
        for path in checkout.sources():
            source = path.read_text()
            calls += len(re.findall(r"\btr\(", source))
            contexts |= set(re.findall(r"Q_DECLARE_TR_FUNCTIONS\((\w+)\)", source))
            # A class with Q_OBJECT looks under its full name.
            contexts |= {f"vantrel::{path.stem}"} if "Q_OBJECT" in source else set()
        self.assertEqual(checkout.update("xx", locations="absolute"), "")
        found = ElementTree.parse(checkout.root / FOLDER / "vantrel_xx.ts")
        self.assertEqual(len(list(found.iter("location"))), calls)
        self.assertLessEqual({context.findtext("name", "") for context in found.iter("context")}, contexts)

    def test_every_text_is_translated(self) -> None:
        for file in FILES:
            for message in messages(file):
                with self.subTest(f"{file.name}: {message}"):
                    self.assertEqual(message.state, "")
                    self.assertNotEqual(message.translation.strip(), "")

    def test_translations_keep_what_is_filled_in_or_relied_on(self) -> None:
        for file in FILES:
            for message in messages(file):
                with self.subTest(f"{file.name}: {message}"):
                    self.assertEqual(message.faults(), [])


class Faults(unittest.TestCase):
    def test_are_told_from_what_languages_do(self) -> None:
        for source, translation, faults in [
            ("%1: %2", "%2 (%1, %1)", []),
            ("%1: %2", "%1", ["placeholders"]),
            ("%n files", "Dateien", ["placeholders"]),
            ("Settings…", "Einstellungen …", []),
            ("Settings…", "Einstellungen...", ["ellipsis"]),
            ("Settings", "Einstellungen…", ["ellipsis"]),
            ("&Open", "Ö&ffnen", []),
            ("Privacy & Security", "Datenschutz &Sicherheit", ["mnemonic"]),
            ("One\n", "Eins", ["end of line"]),
            ("Open %1", "\u2068%1\u2069 öffnen", []),
            ("Open %1", "\u2068%1 öffnen", ["isolates"]),
        ]:
            with self.subTest(translation):
                self.assertEqual(Message("", source, translation, "").faults(), faults)


if __name__ == "__main__":
    unittest.main()
