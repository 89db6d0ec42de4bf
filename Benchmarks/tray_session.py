"""A desktop of its own with a tray: one of icons that are windows, or one of items on the message bus."""

import os
import select
import subprocess
import sys
import threading
import time
from collections.abc import Callable
from pathlib import Path
from types import TracebackType

# What is started by its path doesn't see the checkout.
sys.path.insert(0, str(Path(__file__).resolve().parents[1]))

from gi.repository import Gio, GLib

from Tests.Desktop.desktop_session import DesktopSession

PATIENCE = 20  # seconds
# A click that comes sooner after another one is the second half of a double click, which opens no menu.
DOUBLE_CLICK_SECONDS = 0.6
ITEM = "org.kde.StatusNotifierItem"
WATCHER = "org.kde.StatusNotifierWatcher"
MENU = "com.canonical.dbusmenu"

_WATCHER_INTERFACE = f"""<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
  <signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
  <signal name="StatusNotifierHostRegistered"/>
</interface></node>"""


class WindowTray:
    """`tray_host` in a session."""

    def __init__(self, session: DesktopSession, program: Path) -> None:
        self._process = subprocess.Popen(
            [program], env=session.environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE, bufsize=0
        )
        self._rest = b""
        self._icons = 0
        self.wait_for("ready")

    def __enter__(self) -> "WindowTray":
        return self

    def __exit__(
        self, _type: type[BaseException] | None, _error: BaseException | None, _trace: TracebackType | None
    ) -> None:
        self._process.communicate()

    def wait_for(self, report: str) -> int:
        """The next report of that kind; its time in nanoseconds."""
        when = self._next(report, PATIENCE)
        if when is None:
            raise SystemExit(f"The tray waits in vain for “{report}”")
        return when

    def forget(self) -> None:
        """Nothing that happened until now is waited for."""
        self._next("", 0)

    def wait_until_left(self) -> None:
        """Until there is no icon any more."""
        while self._icons:
            self.wait_for("gone")

    def open_menu(self, icon: int = 0) -> int:
        """From the click on an icon to its menu's window, in nanoseconds. The menu is closed again."""
        time.sleep(DOUBLE_CLICK_SECONDS)
        self._command(f"click {icon}")
        clicked = self.wait_for("clicked")
        opened = self.wait_for("opened")
        end = time.monotonic() + PATIENCE
        # A menu's window is there a little before the menu listens to keys.
        self._command("escape")
        while self._next("closed", 0.1) is None:
            if time.monotonic() > end:
                raise SystemExit("The menu doesn't close")
            self._command("escape")
        return opened - clicked

    def _next(self, report: str, patience: float) -> int | None:
        end = time.monotonic() + patience
        while True:
            while b"\n" in self._rest:
                line, _, self._rest = self._rest.partition(b"\n")
                what, when = line.decode().split()
                self._icons += (what == "asked") - (what == "gone")
                if what == report:
                    return int(when)
            ready, _, _ = select.select([self._process.stdout], [], [], max(0.0, end - time.monotonic()))
            more = os.read(self._process.stdout.fileno(), 4096) if ready else b""
            if not more:
                return None
            self._rest += more

    def _command(self, command: str) -> None:
        self._process.stdin.write(f"{command}\n".encode())


class BusTray:
    """A watcher and its panel on a session's message bus. A symbol counts as shown when the panel has read all that an
    item says of itself, its pictures among it. Calls are answered at any time, by a thread of its own: there are
    programs that don't even end without an answer."""

    def __init__(self, session: DesktopSession) -> None:
        self._is_there = threading.Event()
        self._changed = threading.Condition()
        self._shown: int | None = None
        self._item: tuple[str, str] | None = None
        self._menu = ""
        self._connection = Gio.DBusConnection.new_for_address_sync(
            session.environment["DBUS_SESSION_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None,
        )
        self._loop = GLib.MainLoop(GLib.MainContext())
        self._thread = threading.Thread(target=self._serve, daemon=True)
        self._thread.start()
        self._is_there.wait()

    def __enter__(self) -> "BusTray":
        return self

    def __exit__(
        self, _type: type[BaseException] | None, _error: BaseException | None, _trace: TracebackType | None
    ) -> None:
        self._loop.quit()
        self._thread.join()

    def wait_for_symbol(self) -> int:
        """When it was shown, in nanoseconds."""
        self._wait_for(lambda: self._shown is not None, "a symbol")
        return self._shown

    def wait_until_left(self) -> None:
        self._wait_for(lambda: self._item is None, "the end of a symbol")

    def ask_for_rows(self) -> int:
        """As panels do when their user opens the menu; how long it took, in nanoseconds."""
        started = time.monotonic_ns()
        self._ask(self._item[0], self._menu, MENU, "AboutToShow", GLib.Variant("(i)", (0,)))
        self._ask(self._item[0], self._menu, MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))
        return time.monotonic_ns() - started

    def _wait_for(self, condition: Callable[[], bool], what: str) -> None:
        with self._changed:
            if not self._changed.wait_for(condition, PATIENCE):
                raise SystemExit(f"The panel waits in vain for {what}")

    def _ask(self, name: str, path: str, interface: str, method: str, arguments: GLib.Variant) -> None:
        self._connection.call_sync(
            name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, PATIENCE * 1000, None
        )

    def _serve(self) -> None:
        context = self._loop.get_context()
        context.push_thread_default()
        interface = Gio.DBusNodeInfo.new_for_xml(_WATCHER_INTERFACE).interfaces[0]
        self._connection.register_object("/StatusNotifierWatcher", interface, self._take_call, self._property, None)
        self._connection.signal_subscribe(
            "org.freedesktop.DBus", "org.freedesktop.DBus", "NameOwnerChanged", None, None, Gio.DBusSignalFlags.NONE,
            self._take_owner_change,
        )
        self._ask("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                  GLib.Variant("(su)", (WATCHER, 0)))
        self._is_there.set()
        self._loop.run()
        context.pop_thread_default()

    def _take_call(self, _connection: Gio.DBusConnection, sender: str, _path: str, _interface: str, method: str,
                   arguments: GLib.Variant, invocation: Gio.DBusMethodInvocation) -> None:
        invocation.return_value(None)
        if method != "RegisterStatusNotifierItem":
            return
        # A path of the caller's, or the name of the connection that has the item at the usual path.
        (item,) = arguments.unpack()
        self._item = (sender, item) if item.startswith("/") else (item, "/StatusNotifierItem")
        self._connection.call(
            *self._item, "org.freedesktop.DBus.Properties", "GetAll", GLib.Variant("(s)", (ITEM,)), None,
            Gio.DBusCallFlags.NONE, PATIENCE * 1000, None, self._take_properties,
        )

    def _take_properties(self, connection: Gio.DBusConnection, result: Gio.AsyncResult) -> None:
        try:
            answer = connection.call_finish(result)
        except GLib.Error:
            return  # The item has gone already.
        shown = time.monotonic_ns()
        with self._changed:
            self._menu = answer.unpack()[0]["Menu"]
            self._shown = self._shown or shown
            self._changed.notify_all()

    def _take_owner_change(self, _connection: Gio.DBusConnection, _sender: str, _path: str, _interface: str,
                           _signal: str, arguments: GLib.Variant) -> None:
        name, _old, new = arguments.unpack()
        with self._changed:
            if self._item is not None and name == self._item[0] and not new:
                self._item = None
                self._shown = None
                self._changed.notify_all()

    @staticmethod
    def _property(_connection: Gio.DBusConnection, _sender: str, _path: str, _interface: str,
                  name: str) -> GLib.Variant:
        values = {
            "RegisteredStatusNotifierItems": GLib.Variant("as", []),
            "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
            "ProtocolVersion": GLib.Variant("i", 0),
        }
        return values[name]
