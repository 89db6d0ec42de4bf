#!/usr/bin/python3 -IS
"""Lists the profiles as `vantrel list` does, as a script that somebody would write for it: what the program is measured
against. It knows native packages only, assumes characters one column wide and names without control characters."""

import json
import os
import sqlite3
import sys
from collections.abc import Iterable, Iterator

ENVIRONMENT = os.environ
HOME = ENVIRONMENT["HOME"]
CONFIG = ENVIRONMENT.get("XDG_CONFIG_HOME") or f"{HOME}/.config"
DATA = ENVIRONMENT.get("XDG_DATA_HOME") or f"{HOME}/.local/share"
SHARES = (ENVIRONMENT.get("XDG_DATA_DIRS") or "/usr/local/share:/usr/share").split(":")
ENTRY_FOLDERS = [f"{folder}/applications" for folder in (DATA, *SHARES)]
PROGRAM_FOLDERS = ENVIRONMENT.get("PATH", "/usr/bin:/bin").split(":")


def is_installed(program: str) -> bool:
    if program.startswith("/"):
        return os.access(program, os.X_OK)
    return any(os.access(f"{folder}/{program}", os.X_OK) for folder in PROGRAM_FOLDERS)


def entry_keys(file: Iterable[str]) -> dict[str, str]:
    """The keys of an entry's first group; its actions have names of their own."""
    keys: dict[str, str] = {}
    for line in file:
        if line.startswith("["):
            if keys:
                break
        else:
            key, _, value = line.partition("=")
            keys[key.strip()] = value.strip()
    return keys


def browser_name(entry: str) -> str | None:
    for folder in ENTRY_FOLDERS:
        try:
            with open(f"{folder}/{entry}", encoding="utf-8") as file:
                keys = entry_keys(file)
        except FileNotFoundError:
            continue
        if keys.get("Hidden") == "true":
            return None
        program = keys["Exec"].split()[0].strip('"')
        if is_installed(program) and is_installed(keys.get("TryExec", program)):
            return keys["Name"]
    return None


def profile_section(path: str) -> dict[str, object]:
    try:
        with open(path, "rb") as file:
            return json.load(file).get("profile", {})
    except (OSError, ValueError):
        return {}


def rank(folder: str) -> int:
    return 0 if folder == "Default" else int(folder.removeprefix("Profile ")) + 1


def chromium_profiles(data_folder: str) -> Iterator[tuple[str, str]]:
    try:
        with os.scandir(data_folder) as entries:
            names = [entry.name for entry in entries if is_profile_folder(entry)]
    except FileNotFoundError:
        return
    infos = profile_section(f"{data_folder}/Local State").get("info_cache", {})
    for folder in sorted(names, key=rank):
        name = infos.get(folder, {}).get("name") or profile_section(f"{data_folder}/{folder}/Preferences").get("name")
        yield name or folder, f"chromium:{folder}"


def is_profile_folder(entry: os.DirEntry[str]) -> bool:
    return (entry.name == "Default" or entry.name.startswith("Profile ")) and entry.is_dir()


def firefox_profiles(root: str) -> Iterator[tuple[str, str]]:
    groups = f"{root}/Profile Groups"
    try:
        file = min(name for name in os.listdir(groups) if name.endswith(".sqlite"))
    except (FileNotFoundError, ValueError):
        return
    connection = sqlite3.connect(f"file:{groups}/{file}?mode=ro", uri=True)
    for path, name in connection.execute("select path, name from Profiles"):
        yield name or path.rpartition("/")[2], f"firefox:{root}/{path}"


def browsers() -> Iterator[tuple[str, ...]]:
    """Name, identifier, family, data folder and private window's name of each installed browser."""
    with open(f"{os.path.dirname(os.path.abspath(__file__))}/browsers.tsv", encoding="utf-8") as table:
        next(table)
        for row in table:
            entry, bundle_id, *rest = row.rstrip("\n").split("\t")
            if name := browser_name(entry):
                yield name, bundle_id, *rest


def listed() -> Iterator[tuple[str, str]]:
    for browser, bundle_id, family, folder, private_name in sorted(browsers(), key=lambda row: row[0].casefold()):
        is_firefox = family == "firefox"
        profiles = firefox_profiles(f"{HOME}/{folder}") if is_firefox else chromium_profiles(f"{CONFIG}/{folder}")
        for name, key in (*profiles, (private_name, "private")):
            yield f"{browser} – {name}", f"{bundle_id}/{key}"


rows = list(listed())
width = max((len(title) for title, _ in rows), default=0)
sys.stdout.write("".join(f"{title:<{width}}  {profile_id}\n" for title, profile_id in rows))
