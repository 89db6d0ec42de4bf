"""Prints what a program offers to screen readers: python3 accessibility_reader.py PID. Runs in the session."""

import json
import sys
from collections.abc import Iterable
from typing import Any

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402  (the version has to be asked for first)

_STATES = {
    name: getattr(Atspi.StateType, name.upper())
    for name in ("showing", "enabled", "focusable", "focused", "checked", "pressed", "editable", "selected")
}


def nodes(accessible: Any) -> Iterable[dict[str, Any]]:
    states = accessible.get_state_set()
    area = accessible.get_extents(Atspi.CoordType.SCREEN)
    text = accessible.get_text_iface()
    yield {
        "role": accessible.get_role_name(),
        "name": accessible.get_name(),
        "description": accessible.get_description(),
        "text": Atspi.Text.get_text(text, 0, -1) if text else None,
        "states": [name for name, state in _STATES.items() if states.contains(state)],
        "area": [area.x, area.y, area.width, area.height],
    }
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        if child:
            yield from nodes(child)


def main(pid: int) -> None:
    desktop = Atspi.get_desktop(0)
    found = []
    for index in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(index)
        if program and program.get_process_id() == pid:
            found += list(nodes(program))
    json.dump(found, sys.stdout)


if __name__ == "__main__":
    main(int(sys.argv[1]))
