"""What is written in Swift, as far as it can be read without its compiler: it fits the C functions between it and the
program, and it says what the portable code says."""
from __future__ import annotations

import re
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SWIFT = ROOT / "Platform" / "MacOS" / "AppIntents"
BRIDGE = ROOT / "Platform" / "AppIntents" / "ActionsBridge.h"
CLOSING = {")": "(", "]": "[", "}": "{"}


def sources() -> dict[str, str]:
    """Without comments."""
    return {path.name: re.sub(r"(?m)^\s*///?.*$|\s// .*$", "", path.read_text(encoding="utf-8"))
            for path in sorted(SWIFT.glob("*.swift"))}


def without_texts(source: str) -> str:
    return re.sub(r'"(?:[^"\\]|\\.)*"', '""', source)


def parameters(text: str) -> int:
    """How many there are between the bracket that the text begins after, and its counterpart."""
    depth, count, is_empty = 0, 1, True
    for character in text:
        if character in "([{":
            depth += 1
        elif character in CLOSING:
            if depth == 0:
                return 0 if is_empty else count
            depth -= 1
        elif character == "," and depth == 0:
            count += 1
        is_empty = is_empty and character.isspace()
    raise AssertionError(f"A bracket is not closed: {text[:80]}")


def header_text() -> str:
    """Without comments."""
    return re.sub(r"/\*.*?\*/|//[^\n]*", "", BRIDGE.read_text(encoding="utf-8"), flags=re.DOTALL)


def declared() -> dict[str, int]:
    """The functions of the border, with the number of their parameters."""
    text = header_text()
    found = {match[1]: parameters(text[match.end():]) for match in re.finditer(r"\bvoid (vantrel\w+)\(", text)}
    empty = set(re.findall(r"\bvoid (vantrel\w+)\(void\)", text))
    return {name: 0 if name in empty else count for name, count in found.items()}


def defined() -> dict[str, int]:
    """The functions of the border that Swift defines, with the number of their parameters."""
    found = {}
    for source in sources().values():
        for match in re.finditer(r'@_cdecl\("(\w+)"\)\s+public func \w+\(', source):
            if match[1] in found:
                raise AssertionError(f"{match[1]} is defined twice.")
            found[match[1]] = parameters(source[match.end():])
    return found


class Border(unittest.TestCase):
    def test_is_defined_on_one_side_and_used_on_the_other(self) -> None:
        implemented = (BRIDGE.with_name("ActionsBridge.cpp")).read_text(encoding="utf-8")
        program = {name for name in declared() if re.search(rf"^void {name}\(", implemented, re.MULTILINE)}
        self.assertEqual(program | set(defined()), set(declared()))
        self.assertEqual(program & set(defined()), set())
        called = {name for source in sources().values() for name in re.findall(r"\b(vantrel\w+)\(", source)}
        self.assertEqual(called, program)

    def test_functions_have_the_parameters_that_are_declared(self) -> None:
        self.assertGreater(len(defined()), 2)
        for name, count in defined().items():
            self.assertEqual(count, declared()[name], name)

    def test_calls_have_the_parameters_that_are_declared(self) -> None:
        calls = [(match[1], parameters(source[match.end():])) for source in map(without_texts, sources().values())
                 for match in re.finditer(r"\b(vantrel\w+)\(", source)]
        self.assertGreater(len(calls), 4)
        for name, count in calls:
            self.assertEqual(count, declared()[name], name)

    def test_names_of_c_are_declared(self) -> None:
        header = header_text()
        for name, source in sources().items():
            for used in re.findall(r"\b(vantrel\w+)\b", without_texts(source)):
                self.assertRegex(header, rf"\b{used}\b", name)
        members = set(re.findall(r"\bprofile\.(\w+)", sources()["ProfileEntity.swift"]))
        struct = re.search(r"struct VantrelProfile \{(.*?)\};", header, re.DOTALL)[1]
        self.assertEqual(members, set(re.findall(r"\b(\w+);", struct)))


class Texts(unittest.TestCase):
    def test_are_those_of_the_portable_code(self) -> None:
        for name in ("OpenProfileIntent", "OpenLinksInProfileIntent", "VantrelShortcuts"):
            swift = re.sub(r"@_cdecl\(.*", "", sources()[f"{name}.swift"])
            texts = set()
            for text in re.findall(r'"((?:\\\(.*?\)|[^"\\])*)"', swift):
                places = iter(range(1, 10))
                texts.add(re.sub(r"\\\(.*?\)", lambda _: f"%{next(places)}", text))
            portable = (ROOT / "Vantrel" / "Actions" / f"{name}.cpp").read_text(encoding="utf-8")
            portable = re.sub(r"#include.*", "", portable)
            self.assertEqual(texts, set(re.findall(r'"([^"]+)"', portable)), name)

    def test_have_their_parameters_in_order(self) -> None:
        self.assertIn(r'Summary("Open \(\.$target)")', sources()["OpenProfileIntent.swift"])
        self.assertIn(r'Summary("Open \(\.$links) in \(\.$profile)")', sources()["OpenLinksInProfileIntent.swift"])
        self.assertIn(r'"Open \(\.$target) with \(.applicationName)"', sources()["VantrelShortcuts.swift"])


class Brackets(unittest.TestCase):
    def test_are_closed(self) -> None:
        self.assertGreater(len(sources()), 5)
        for name, source in sources().items():
            opened: list[str] = []
            for character in without_texts(source):
                if character in "([{":
                    opened.append(character)
                elif character in CLOSING:
                    self.assertTrue(opened and opened.pop() == CLOSING[character], name)
            self.assertEqual(opened, [], name)


if __name__ == "__main__":
    unittest.main()
