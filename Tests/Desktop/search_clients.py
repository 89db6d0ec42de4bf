"""The session's message bus as the desktops' searches and scripts use it, by way of gdbus."""

import subprocess
import time
from typing import Any

from Tests.Desktop.desktop_session import DesktopSession
from Tests.Desktop.message_bus import APPLICATION, OBJECT, GLib
from Tests.Desktop.waiting import PATIENCE_SECONDS


class CallError(Exception):
    """The answer to a call was an error, here with its name and message."""


class BusClient:
    """Calls one interface of the app's object. A call starts the app if it isn't running."""

    def __init__(self, session: DesktopSession, interface: str) -> None:
        self._session = session
        self._interface = interface

    def call(self, method: str, *arguments: str) -> Any:
        """The only value of the answer, or nothing; arguments are in GVariant's text format."""
        address = ["--session", "--dest", APPLICATION, "--object-path", OBJECT]
        command = ["gdbus", "call", *address, "--method", f"{self._interface}.{method}", "--", *arguments]
        done = subprocess.run(
            command, env=self._session.environment, capture_output=True, timeout=PATIENCE_SECONDS, check=False,
            stdin=subprocess.DEVNULL, encoding="utf-8",
        )
        if done.returncode != 0:
            raise CallError(done.stderr.strip())
        answer = GLib.Variant.parse(None, done.stdout.strip(), None, None).unpack()
        return answer[0] if answer else None


class GnomeShell:
    """Searches as the Shell does while somebody types: it splits the text, and narrows the search at each key."""

    def __init__(self, session: DesktopSession) -> None:
        self._bus = BusClient(session, "org.gnome.Shell.SearchProvider2")

    def search(self, text: str) -> list[str]:
        return self._bus.call("GetInitialResultSet", _texts(text.split()))

    def narrow(self, results: list[str], text: str) -> list[str]:
        return self._bus.call("GetSubsearchResultSet", _texts(results), _texts(text.split()))

    def metas(self, results: list[str]) -> list[dict[str, Any]]:
        return self._bus.call("GetResultMetas", _texts(results))

    def activate(self, result: str, text: str, timestamp: int) -> None:
        self._bus.call("ActivateResult", _text(result), _texts(text.split()), _number(timestamp))

    def launch_search(self, text: str, timestamp: int) -> None:
        self._bus.call("LaunchSearch", _texts(text.split()), _number(timestamp))


class KRunner:
    """Searches as KRunner does: it opens a session, and asks for all matches at each key."""

    def __init__(self, session: DesktopSession) -> None:
        self._bus = BusClient(session, "org.kde.krunner1")

    def begin(self) -> dict[str, Any]:
        return self._bus.call("Config")

    def actions(self) -> list[Any]:
        return self._bus.call("Actions")

    def match(self, text: str) -> list[Any]:
        return self._bus.call("Match", _text(text))

    def run(self, match: str, action: str = "") -> None:
        self._bus.call("Run", _text(match), _text(action))

    def set_activation_token(self, token: str) -> None:
        self._bus.call("SetActivationToken", _text(token))

    def end(self) -> None:
        self._bus.call("Teardown")


class Script:
    """The app's own interface."""

    def __init__(self, session: DesktopSession) -> None:
        self._bus = BusClient(session, APPLICATION)

    def profiles(self) -> list[dict[str, Any]]:
        return self._bus.call("ListProfiles")

    def open_profile(self, profile: str, data: str = "@a{sv} {}") -> None:
        self._bus.call("OpenProfile", _text(profile), data)

    def open_links(self, profile: str, *links: str) -> None:
        self._bus.call("OpenLinks", _text(profile), _texts(list(links)), "@a{sv} {}")


def time_of_input() -> int:
    """The X server's time, in which desktops tell when the user acted."""
    return time.monotonic_ns() // 1_000_000 % 2**32


def _number(number: int) -> str:
    return GLib.Variant("u", number).print_(True)


def _text(text: str) -> str:
    return GLib.Variant("s", text).print_(True)


def _texts(texts: list[str]) -> str:
    return GLib.Variant("as", texts).print_(True)
