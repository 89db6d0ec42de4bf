"""Texts of the file in which the user's choices are saved."""

import json
from collections.abc import Iterable
from typing import Any

from .browser_catalogue import Row


def saved_profile(row: Row, location: str, name: str) -> dict[str, Any]:
    """A saved profile by its folder's name, or with Firefox by its full path."""
    target = {"path": location} if row.family == "firefox" else {"folder": location}
    return {"browserBundleID": row.bundle_id, "name": name, "target": {row.family: target}}


def saved_private(row: Row) -> dict[str, Any]:
    return {"browserBundleID": row.bundle_id, "name": "", "target": {f"{row.family}Private": {}}}


def saved_state(
    profiles: Iterable[dict[str, Any]] = (),
    hidden: Iterable[str] = (),
    custom_names: dict[str, str] | None = None,
    searched_safari: Iterable[str] = (),
) -> str:
    state = {
        "profiles": list(profiles),
        "hidden": list(hidden),
        "customNames": custom_names or {},
        "searchedSafari": list(searched_safari),
    }
    return json.dumps(state, ensure_ascii=False, separators=(",", ":"))
