#!/usr/bin/python3
"""Generates the home that is measured: eight browsers with twenty profiles each, the same at every call.

    home.py [--unnamed COUNT] FOLDER

FOLDER gets the folders `home`, `usr/share` (desktop entries), `bin` (stand-in programs that end at once) and `run`.
`--unnamed` says how many profiles of each Chromium-family browser are not named in Local State, so that the name has to
come from Preferences, as with profiles that were copied from another machine: 2 unless given.
"""

import argparse
import os
import subprocess
import tempfile
from collections.abc import Iterator
from contextlib import contextmanager
from dataclasses import dataclass
from pathlib import Path
from random import Random

import chromium_files
from pictures import portrait

PROFILE_COUNT = 20
UNNAMED_COUNT = 2
SQLITE = Path("/usr/bin/sqlite3")
THUMBNAIL_SIZE = 128
PICTURE_SIZES = (256, 288, 320, 384, 448, 512)

_SUBJECTS = ("Work", "Home", "Büro", "Клиент", "Élise & Zoë", "School", "Shop “Nord”", "Test", "Ελένη", "Accounts")
# Folders that browsers keep beside the profiles.
_COMPANION_FOLDERS = (
    "AmountExtractionHeuristicRegexes", "AutofillStates", "BrowserMetrics", "CertificateRevocation", "Crash Reports",
    "Crowd Deny", "FileTypePolicies", "FirstPartySetsPreloaded", "GrShaderCache", "GraphiteDawnCache", "Guest Profile",
    "MEIPreload", "OnDeviceHeadSuggestModel", "OpenCookieDatabase", "OptimizationHints", "OriginTrials", "PKIMetadata",
    "Safe Browsing", "SafetyTips", "ShaderCache", "SSLErrorAssistant", "Subresource Filter", "System Profile",
    "TpcdMetadata", "TrustTokenKeyCommitments", "WidevineCdm", "ZxcvbnData", "component_crx_cache", "hyphen-data",
)
_LANGUAGES = (
    "ar", "bg", "bn", "ca", "cs", "da", "de", "el", "en_GB", "es", "et", "fi", "fil", "fr", "gu", "he", "hi", "hr",
    "hu", "id", "it", "ja", "kn", "ko", "lt", "lv", "ml", "mr", "nb", "nl", "pl", "pt_BR", "pt_PT", "ro", "ru", "sk",
    "sl", "sr", "sv", "ta", "te", "th", "tr", "uk", "vi", "zh_CN", "zh_TW",
)


@dataclass(frozen=True)
class Browser:
    """An installed browser; its folder is below the folder of settings, with Firefox below the home."""

    name: str
    entry: str
    program: str
    folder: str


CHROMIUM_BROWSERS = (
    Browser("Brave Web Browser", "brave-browser", "brave-browser-stable", "BraveSoftware/Brave-Browser"),
    Browser("Chromium", "chromium", "chromium", "chromium"),
    Browser("Google Chrome", "google-chrome", "google-chrome-stable", "google-chrome"),
    Browser("Microsoft Edge", "microsoft-edge", "microsoft-edge-stable", "microsoft-edge"),
    Browser("Opera", "opera", "opera", "opera"),
    Browser("Thorium Browser", "thorium-browser", "thorium-browser", "thorium"),
    Browser("Vivaldi", "vivaldi-stable", "vivaldi-stable", "vivaldi"),
)
FIREFOX = Browser("Firefox", "firefox", "firefox", ".mozilla/firefox")


class Home:
    """The folders of the machine that is measured."""

    def __init__(self, root: Path) -> None:
        self.root = root
        self.home = root / "home"
        self.config = self.home / ".config"
        self.share = root / "usr" / "share"
        self.programs = root / "bin"
        self.runtime = root / "run"

    def environment(self) -> dict[str, str]:
        """Nothing but the planted folders and a locale that every machine has."""
        return {
            "HOME": str(self.home),
            "LANG": "C.UTF-8",
            "PATH": f"{self.programs}:/usr/bin:/bin",
            "XDG_CONFIG_HOME": str(self.config),
            "XDG_DATA_DIRS": f"{self.root}/usr/local/share:{self.share}",
            "XDG_DATA_HOME": str(self.home / ".local" / "share"),
            "XDG_RUNTIME_DIR": str(self.runtime),
        }

    def entry(self, browser: Browser) -> Path:
        return self.share / "applications" / f"{browser.entry}.desktop"

    def program(self, browser: Browser) -> Path:
        return self.programs / browser.program

    def data_files(self) -> list[Path]:
        """All files in which the Chromium family keeps names of profiles."""
        folders = [self.config / browser.folder for browser in CHROMIUM_BROWSERS]
        return [file for folder in folders for file in (folder / "Local State", *sorted(folder.glob("*/Preferences")))]


def plant(root: Path, unnamed: int = UNNAMED_COUNT) -> Home:
    home = _make_folders(root)
    random = Random(20261121)
    portraits = [portrait(random, size) for size in PICTURE_SIZES]
    for browser in CHROMIUM_BROWSERS:
        _install(home, browser, "%U")
        _plant_chromium(home.config / browser.folder, browser, random, portraits, unnamed)
    _install(home, FIREFOX, "%u")
    _plant_firefox(home.home / FIREFOX.folder)
    return home


def plant_many(root: Path, count: int) -> Home:
    """One browser with that many profiles; every other one has a picture as large as Vantrel keeps them."""
    home = _make_folders(root)
    random = Random(20261121)
    browser = CHROMIUM_BROWSERS[0]
    _install(home, browser, "%U")
    folder = home.config / browser.folder
    infos: dict[str, tuple[str | None, bool]] = {}
    for number in range(count):
        profile = folder / profile_folder(number)
        profile.mkdir(parents=True)
        (profile / "Preferences").write_text("{}")
        has_picture = number % 2 == 0
        if has_picture:
            _plant_picture(profile, portrait(random, THUMBNAIL_SIZE))
        infos[profile.name] = (profile_name(browser, number), has_picture)
    (folder / "Local State").write_bytes(chromium_files.local_state(random, infos))
    return home


def _make_folders(root: Path) -> Home:
    home = Home(root)
    for folder in (home.config, home.runtime, home.share / "applications", home.programs):
        folder.mkdir(parents=True)
    home.runtime.chmod(0o700)
    return home


@contextmanager
def given_or_planted(root: Path | None) -> Iterator[Home]:
    """A home that is there already, or one for the time being."""
    if root is not None:
        yield Home(root.absolute())
        return
    with tempfile.TemporaryDirectory(prefix="vantrel-benchmark-") as folder:
        yield plant(Path(folder).resolve() / "machine")


def profile_name(browser: Browser, number: int) -> str:
    """A name that no other profile has."""
    total = (*CHROMIUM_BROWSERS, FIREFOX).index(browser) * PROFILE_COUNT + number
    return f"{_SUBJECTS[total % len(_SUBJECTS)]} {total}"


def profile_folder(number: int) -> str:
    return "Default" if number == 0 else f"Profile {number}"


def _install(home: Home, browser: Browser, field_code: str) -> None:
    program = home.program(browser)
    program.write_text("#!/bin/sh\nexit 0\n")
    program.chmod(0o755)
    comments = "".join(f"Comment[{language}]=Access the Internet ({language})\n" for language in _LANGUAGES)
    kinds = "".join(f"GenericName[{language}]=Web Browser ({language})\n" for language in _LANGUAGES)
    actions = "".join(f"Name[{language}]=New Window ({language})\n" for language in _LANGUAGES)
    text = (
        f"[Desktop Entry]\nVersion=1.0\nName={browser.name}\nGenericName=Web Browser\n{kinds}"
        f"Comment=Access the Internet\n{comments}StartupNotify=true\nExec={program} {field_code}\nTerminal=false\n"
        f"Icon={browser.entry}\nType=Application\nCategories=Network;WebBrowser;\n"
        "MimeType=application/pdf;application/xhtml+xml;text/html;x-scheme-handler/http;x-scheme-handler/https;\n"
        "Actions=new-window;new-private-window;\n\n"
        f"[Desktop Action new-window]\nName=New Window\n{actions}Exec={program}\n\n"
        f"[Desktop Action new-private-window]\nName=New Private Window\n{actions}Exec={program} --private\n"
    )
    home.entry(browser).write_text(text)


def _plant_chromium(folder: Path, browser: Browser, random: Random, portraits: list[bytes], unnamed: int) -> None:
    for companion in _COMPANION_FOLDERS:
        (folder / companion).mkdir(parents=True)
    infos: dict[str, tuple[str | None, bool]] = {}
    for number in range(PROFILE_COUNT):
        profile = folder / profile_folder(number)
        profile.mkdir()
        name = profile_name(browser, number)
        # The unnamed ones stand at the end, one of them without any name at all when there are several.
        is_unnamed = number >= PROFILE_COUNT - unnamed
        own_name = None if is_unnamed and unnamed > 1 and number == PROFILE_COUNT - 1 else name
        (profile / "Preferences").write_bytes(chromium_files.preferences(random, own_name))
        has_picture = number % 2 == 0
        if has_picture:
            _plant_picture(profile, portraits[number // 2 % len(portraits)])
        infos[profile.name] = (None if is_unnamed else name, has_picture)
    (folder / "Local State").write_bytes(chromium_files.local_state(random, infos))


def _plant_picture(profile: Path, picture: bytes) -> None:
    folder = profile / "Accounts" / "Avatar Images"
    folder.mkdir(parents=True)
    (folder / "100000000000000000001").write_bytes(picture)
    (profile / "Google Profile Picture.png").write_bytes(picture)


def _plant_firefox(root: Path) -> None:
    names = [(f"Profiles/{number:08x}.p{number}", profile_name(FIREFOX, number)) for number in range(PROFILE_COUNT)]
    for path, _name in names:
        (root / path).mkdir(parents=True)
    # The list knows only the profile to which the group belongs.
    path, name = names[0]
    (root / "profiles.ini").write_text(f"[Profile0]\nName={name}\nIsRelative=1\nPath={path}\n\n[General]\nVersion=2\n")
    (root / "Profile Groups").mkdir()
    _make_database(root / "Profile Groups" / "a1b2c3d4.sqlite", names)


def _make_database(file: Path, names: list[tuple[str, str]]) -> None:
    if not SQLITE.exists():
        raise SystemExit(f"{SQLITE} is missing: install the package sqlite3")
    rows = ",\n".join(f"('{path}', '{name}', 'star', 'default-theme@mozilla.org')" for path, name in names)
    statements = (
        "create table Profiles (id integer not null, path text not null unique, name text not null,"
        " avatar text not null, themeId text not null, themeFg text, themeBg text, primary key(id));"
        "create table SharedPrefs (id integer not null, name text not null unique, value blob, isBoolean integer,"
        " primary key(id));"
        f"insert into Profiles (path, name, avatar, themeId) values {rows};"
    )
    subprocess.run([SQLITE, "-bail", file], input=statements.encode(), check=True)


def main() -> None:
    parser = argparse.ArgumentParser(description="Generates the home that is measured.")
    parser.add_argument("folder", type=Path, help="a folder that does not exist yet")
    parser.add_argument("--unnamed", type=int, default=UNNAMED_COUNT, metavar="COUNT")
    arguments = parser.parse_args()
    if os.path.lexists(arguments.folder):
        parser.error(f"{arguments.folder} exists already")
    if not 0 <= arguments.unnamed <= PROFILE_COUNT:
        parser.error(f"a browser has {PROFILE_COUNT} profiles")
    plant(arguments.folder.absolute(), arguments.unnamed)


if __name__ == "__main__":
    main()
