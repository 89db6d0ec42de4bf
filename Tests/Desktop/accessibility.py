"""What the program offers to screen readers, through AT-SPI."""

import json
from dataclasses import dataclass
from pathlib import Path

from Tests.Desktop.desktop_session import DesktopSession, require_programs
from Tests.Desktop.screen import Area
from Tests.Desktop.waiting import wait_for

_READER = Path(__file__).with_name("accessibility_reader.py")
_LAUNCHER = Path("/usr/libexec/at-spi-bus-launcher")


@dataclass(frozen=True)
class Control:
    role: str
    name: str
    description: str
    text: str | None
    states: frozenset[str]
    area: Area


class Accessibility:
    """To be made before the session begins."""

    def __init__(self, session: DesktopSession, services: Path) -> None:
        require_programs({str(_LAUNCHER): "at-spi2-core"})
        self._session = session
        # It looks for the schemas of its settings, and ends without them.
        command = f"/usr/bin/env XDG_DATA_DIRS=/usr/share {_LAUNCHER}"
        service = services / "org.a11y.Bus.service"
        service.write_text(f"[D-BUS Service]\nName=org.a11y.Bus\nExec={command}\n", "ascii")
        session.environment.pop("NO_AT_BRIDGE", None)
        session.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"

    def controls(self, pid: int) -> list[Control]:
        """Everything in the windows of a program that is on the screen."""
        # By the interpreter that has Debian's modules.
        done = self._session.run(["/usr/bin/python3", str(_READER), str(pid)])
        if done.returncode:
            raise AssertionError(done.stderr.decode())
        read = [
            Control(each["role"], each["name"], each["description"], each["text"], frozenset(each["states"]),
                    Area(*each["area"]))
            for each in json.loads(done.stdout)
        ]
        return [each for each in read if "showing" in each.states]

    def find(self, pid: int, name: str, role: str = "") -> Control | None:
        named = (each for each in self.controls(pid) if each.name == name)
        return next((each for each in named if role in ("", each.role)), None)

    def wait_for(self, pid: int, name: str, role: str = "") -> Control:
        return wait_for(lambda: self.find(pid, name, role), f"{role} “{name}”")

    def focused_control(self, pid: int) -> Control | None:
        """Of the current tab and of what only passes the focus on, Qt says that they have it too."""
        others = {"filler", "page tab"}
        focused = (each for each in self.controls(pid) if "focused" in each.states and each.role not in others)
        return next(focused, None)

    def current_tab(self, pid: int) -> str:
        tabs = (each for each in self.controls(pid) if each.role == "page tab" and "focused" in each.states)
        return next((each.name for each in tabs), "")
