"""Plants the files in which browsers keep their profiles."""

import json
import subprocess
from collections.abc import Iterable
from dataclasses import dataclass
from enum import Enum
from pathlib import Path
from typing import Any

SQLITE = "/usr/bin/sqlite3"


class PicturePlace(Enum):
    """Where a Chromium-family browser may keep a profile's picture, in the order in which it is looked for."""

    NAMED_IN_LOCAL_STATE = "the file that avatar_icon names below the data folder"
    NUMBERED = "Avatar Icons/NUMBER for a built-in avatar_icon"
    ACCOUNT = "Account Avatar"
    ACCOUNT_PICTURES = "Accounts/Avatar Images"
    ICONS = "Avatar Icons"
    PICTURES = "Avatar Images"


@dataclass(frozen=True)
class ChromiumProfile:
    """A profile; without a name the browser's files do not name it."""

    folder: str
    name: str | None = None
    name_in_preferences: str | None = None
    picture: bytes | None = None
    picture_place: PicturePlace = PicturePlace.ACCOUNT


def plant_chromium(data_folder: Path, profiles: Iterable[ChromiumProfile]) -> Path:
    """Writes the profiles' folders and a Local State that names those that have a name."""
    info_cache: dict[str, dict[str, Any]] = {}
    for profile in profiles:
        _plant_chromium_folder(data_folder, profile)
        if profile.name is not None:
            icon = _avatar_icon(profile)
            info_cache[profile.folder] = {"active_time": 1763719200.5, "avatar_icon": icon, "name": profile.name}
    plant_local_state(data_folder, info_cache)
    return data_folder


def plant_local_state(data_folder: Path, info_cache: dict[str, Any]) -> Path:
    state = {
        "browser": {"enabled_labs_experiments": []},
        "profile": {"info_cache": info_cache, "last_used": "Default", "profiles_order": list(info_cache)},
        "user_experience_metrics": {"stability": {"stats_version": "156.0.8078.79-64"}},
    }
    return write(data_folder / "Local State", json.dumps(state))


def _plant_chromium_folder(data_folder: Path, profile: ChromiumProfile) -> None:
    folder = data_folder / profile.folder
    folder.mkdir(parents=True, exist_ok=True)
    section: dict[str, Any] = {"exit_type": "Normal", "content_settings": {}}
    if profile.name_in_preferences is not None:
        section["name"] = profile.name_in_preferences
    write(folder / "Preferences", json.dumps({"extensions": {}, "profile": section}))
    if profile.picture is not None:
        target = _picture_file(data_folder, profile)
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(profile.picture)


def _avatar_icon(profile: ChromiumProfile) -> str:
    if profile.picture is not None and profile.picture_place is PicturePlace.NAMED_IN_LOCAL_STATE:
        return f"Avatars/{profile.folder}.png"
    return "chrome://theme/IDR_PROFILE_AVATAR_26"


def _picture_file(data_folder: Path, profile: ChromiumProfile) -> Path:
    folder = data_folder / profile.folder
    return {
        PicturePlace.NAMED_IN_LOCAL_STATE: data_folder / "Avatars" / f"{profile.folder}.png",
        PicturePlace.NUMBERED: folder / "Avatar Icons" / "26",
        PicturePlace.ACCOUNT: folder / "Account Avatar",
        PicturePlace.ACCOUNT_PICTURES: folder / "Accounts" / "Avatar Images" / "a.png",
        PicturePlace.ICONS: folder / "Avatar Icons" / "picture.png",
        PicturePlace.PICTURES: folder / "Avatar Images" / "a.png",
    }[profile.picture_place]


@dataclass(frozen=True)
class FirefoxProfile:
    """A profile; its path is below the root unless it is absolute."""

    path: str
    name: str | None = None


def plant_firefox(root: Path, profiles: Iterable[FirefoxProfile], line_end: str = "\n") -> Path:
    """Writes the profiles' folders and a profiles.ini as Firefox does, installation section first."""
    root.mkdir(parents=True, exist_ok=True)
    sections = ["[Install4F96D1932A9F858E]\nDefault=Profiles/nothing\nLocked=1\n"]
    for number, profile in enumerate(profiles):
        (root / profile.path).mkdir(parents=True, exist_ok=True)
        relative = 0 if profile.path.startswith("/") else 1
        name = "" if profile.name is None else f"Name={profile.name}\n"
        sections.append(f"[Profile{number}]\n{name}IsRelative={relative}\nPath={profile.path}\n")
    sections.append("[General]\nStartWithLastProfile=1\nVersion=2\n")
    return write(root / "profiles.ini", "\n".join(sections).replace("\n", line_end))


def plant_profile_groups(root: Path, rows: Iterable[tuple[str, str | None]], file: str = "a1b2c3.sqlite") -> Path:
    """Writes a profile-groups database with these paths and names, and the profiles' folders."""
    database = root / "Profile Groups" / file
    database.parent.mkdir(parents=True, exist_ok=True)
    statements = ["create table Profiles (id integer not null, path text not null unique, name text, primary key(id));"]
    for path, name in rows:
        (root / path).mkdir(parents=True, exist_ok=True)
        statements.append(f"insert into Profiles (path, name) values ({_sql(path)}, {_sql(name)});")
    run_sqlite(database, "\n".join(statements))
    return database


def run_sqlite(database: Path, statements: str) -> None:
    if not Path(SQLITE).exists():
        raise AssertionError(f"{SQLITE} is missing: install the package sqlite3")
    subprocess.run([SQLITE, "-bail", str(database)], input=statements.encode(), check=True, capture_output=True)


def write(file: Path, text: str | bytes) -> Path:
    """Writes the file with its folders; text as it stands, without any change of line ends."""
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_bytes(text.encode() if isinstance(text, str) else text)
    return file


def _sql(text: str | None) -> str:
    return "null" if text is None else "'" + text.replace("'", "''") + "'"
