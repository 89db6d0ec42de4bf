#!/usr/bin/env python3
"""Checks that modules include only what stands below them, that only per-system folders ask which system it is, and
that Apple's headers stay in the sources of those for macOS."""
from __future__ import annotations

import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent

# Module to the modules that it may include.
ALLOWED = {
    "VantrelKit": {"VantrelKit"},
    "LauncherStub": {"LauncherStub"},
    "Platform": {"Platform", "VantrelKit"},
    "KeyboardShortcuts": {"KeyboardShortcuts", "Platform", "VantrelKit"},
    "Vantrel": {"Vantrel", "KeyboardShortcuts", "Platform", "VantrelKit"},
}
# Folder to the system that it is for. The back ends of one system share what is theirs alone.
SYSTEM_FOLDERS = {"Linux": "Linux", "X11": "Linux", "Portal": "Linux", "MacOS": "MacOS", "Carbon": "MacOS"}
SYSTEM_MACRO = re.compile(r"\bQ_OS_\w+|\b__APPLE__\b|\b__linux__\b")
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')
# In angle brackets, only frameworks and Qt's modules are folders with a capital.
APPLE_INCLUDE = re.compile(
    r"^\s*(?:@import\b|#\s*import\b|#\s*include\s+<(?!Qt)(?:[A-Z]\w*|os|malloc|mach|objc|dispatch)/)"
)
# The declarations that stand for Apple's where there is no Mac, and what shows that they are good for it.
APPLE_DECLARATIONS = Path("Tests/MacOS")


def system_folder(path: Path) -> str | None:
    """The system that a path is for, as text with its module; none when it is for all."""
    for part in path.parts:
        if part in SYSTEM_FOLDERS:
            return f"{path.parts[0]}/{SYSTEM_FOLDERS[part]}"
    return None


def problems(path: Path, text: str) -> list[str]:
    found = []
    allowed = ALLOWED[path.parts[0]]
    own_system = system_folder(path)
    for number, line in enumerate(text.splitlines(), 1):
        include = INCLUDE.match(line)
        if include:
            target = Path(include.group(1))
            if target.parts[0] not in allowed:
                found.append(f"{path}:{number}: {path.parts[0]} must not include {target}")
            target_system = system_folder(target)
            if target_system and target_system != own_system:
                found.append(f"{path}:{number}: only {target_system} itself may include {target}")
        if not own_system and SYSTEM_MACRO.search(line):
            found.append(f"{path}:{number}: asks which system it is outside a per-system folder")
    return found


def apple_problems(path: Path, text: str) -> list[str]:
    if path.is_relative_to(APPLE_DECLARATIONS):
        return []
    is_for_macos = any(SYSTEM_FOLDERS.get(part) == "MacOS" for part in path.parts)
    if path.suffix == ".mm" and not is_for_macos:
        return [f"{path}: Objective-C++ outside the folders for macOS"]
    if path.suffix != ".h" and is_for_macos:
        return []
    return [f"{path}:{number}: only sources in the folders for macOS may include Apple's headers"
            for number, line in enumerate(text.splitlines(), 1) if APPLE_INCLUDE.match(line)]


def main() -> int:
    listed = subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.h", "*.cpp", "*.mm"],
        cwd=ROOT, capture_output=True, text=True, check=True,
    ).stdout.split("\n")
    found = []
    for name in filter(None, listed):
        path = Path(name)
        text = (ROOT / path).read_text(encoding="utf-8")
        if path.parts[0] in ALLOWED:
            found += problems(path, text)
        found += apple_problems(path, text)
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
