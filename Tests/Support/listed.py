"""What the program is expected to list, computed independently of it."""

from pathlib import Path
from typing import Any
from urllib.parse import quote

from .browser_catalogue import Row

MEMBERS = ["id", "browserBundleIdentifier", "browser", "family", "name", "displayName", "private", "hidden", "link"]
Listed = dict[str, Any]

TITLE_SEPARATOR = " \u2013 "


def link(bundle_id: str, name: str, profile_id: str, *urls: str) -> str:
    """A profile's link, with web links to open in it."""
    items = [("browserBundleIdentifier", bundle_id), ("profileName", name), ("profile", profile_id)]
    items += [("url", url) for url in urls]
    return "vantrel://?" + "&".join(f"{key}={quote(value, safe=_UNENCODED)}" for key, value in items)


def profile(row: Row, location: str | Path, name: str, custom: str | None = None) -> Listed:
    """A profile by its folder's name, or with Firefox by its full path."""
    return _listed(row, f"{row.family}:{location}", name, custom or name, is_private=False)


def private(row: Row, custom: str | None = None) -> Listed:
    return _listed(row, "private", "", custom or row.private_name, is_private=True)


def browser(row: Row, *profiles: tuple[str | Path, str]) -> list[Listed]:
    """All that is listed of a browser with these profiles: each a location and a name."""
    return [*(profile(row, location, name) for location, name in profiles), private(row)]


def title(listed: Listed) -> str:
    return f"{listed['browser']}{TITLE_SEPARATOR}{listed['displayName']}"


_UNENCODED = "-._~!$'()*,/:;?@"


def _listed(row: Row, key: str, name: str, display_name: str, is_private: bool) -> Listed:
    profile_id = f"{row.bundle_id}/{key}"
    return {
        "id": profile_id,
        "browserBundleIdentifier": row.bundle_id,
        "browser": row.name,
        "family": row.family,
        "name": name,
        "displayName": display_name,
        "private": is_private,
        "hidden": False,
        "link": link(row.bundle_id, name, profile_id),
    }
