"""What a panel asks for on the session's message bus."""

import re
from typing import Any

from Tests.Desktop.desktop_session import DesktopSession
from Tests.Desktop.waiting import wait_for

try:
    from gi.repository import Gio, GLib
except ImportError as error:
    raise AssertionError("The module gi is missing: install the package python3-gi") from error

APPLICATION = "app.kestrune.Vantrel"
OBJECT = "/app/kestrune/Vantrel"


class MessageBus:
    def __init__(self, session: DesktopSession) -> None:
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        address = session.environment["DBUS_SESSION_BUS_ADDRESS"]
        self._connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)

    def menu_titles(self) -> list[str]:
        """The titles of the menu as a panel shows them, without separators."""
        menu = self._call("/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get", "(ss)",
                          ("org.kde.StatusNotifierItem", "Menu"))
        arguments = (0, -1, ["label", "type", "visible"])
        _revision, root = self._call(menu[0], "com.canonical.dbusmenu", "GetLayout", "(iias)", arguments)
        rows = [properties for _identifier, properties, _children in root[2]]
        return [_shown(each["label"]) for each in rows if each.get("type") != "separator"]

    def wait_for_application(self) -> None:
        """Until the app that is starting can be called."""
        wait_for(self._has_application, "the app's name on the bus")

    def wait_for_no_application(self) -> None:
        """Until the bus has noticed that the app has ended."""
        wait_for(lambda: not self._has_application(), "the app to leave the bus")

    def search(self, terms: list[str]) -> list[str]:
        """The results of a search, without the start of a program that a search by gdbus takes."""
        (results,) = self._call(OBJECT, "org.gnome.Shell.SearchProvider2", "GetInitialResultSet", "(as)", (terms,))
        return results

    def _has_application(self) -> bool:
        answer = self._connection.call_sync(
            "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "NameHasOwner", GLib.Variant("(s)", (APPLICATION,)),
            None, Gio.DBusCallFlags.NONE, 10_000, None,
        )
        return answer.unpack()[0]

    def _call(self, path: str, interface: str, method: str, kind: str, arguments: tuple[Any, ...]) -> Any:
        answer = self._connection.call_sync(
            APPLICATION, path, interface, method, GLib.Variant(kind, arguments), None, Gio.DBusCallFlags.NO_AUTO_START,
            10_000, None,
        )
        return answer.unpack()


def _shown(label: str) -> str:
    """A single low line only marks the letter after it."""
    return re.sub("_(.)", r"\1", label)
