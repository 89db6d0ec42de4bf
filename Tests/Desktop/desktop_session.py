"""A desktop of its own: a home, an X server, a window manager and a message bus."""

import os
import re
import select
import shutil
import subprocess
import tempfile
from collections.abc import Iterable, Sequence
from dataclasses import dataclass
from pathlib import Path
from xml.sax.saxutils import escape

from Tests.Desktop.processes import adopt_orphans, descendants, end_descendants
from Tests.Desktop.waiting import PATIENCE_SECONDS, wait_for

SCREEN_SIZE = (1280, 800)
_PACKAGES = {
    "Xvfb": "xvfb",
    "openbox": "openbox",
    "dbus-daemon": "dbus-daemon",
    "import": "imagemagick",
    "setpriv": "util-linux",
    "setsid": "util-linux",
    "wmctrl": "wmctrl",
    "xprop": "x11-utils",
}
_PATH = "/usr/local/bin:/usr/bin:/bin"

# The message bus only starts services out of given folders: what a browser finds there does not depend on what else is
# installed.
_BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
  "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={socket}</listen>
{folders}
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


@dataclass(frozen=True)
class Window:
    identifier: str
    pid: int
    title: str


class DesktopSession:
    """Started by a with statement, at whose end all that was started in the session is killed, the home removed."""

    def __init__(self) -> None:
        require_programs(_PACKAGES)
        self.root = Path(tempfile.mkdtemp(prefix="vantrel-desktop-"))
        # Browsers and the program must cope with a blank and with letters beyond ASCII.
        self.home = self.root / "höme of ann"
        self.config = self.home / ".config"
        self.data = self.home / ".local" / "share"
        self.environment = self._environment()
        self.service_folders: list[Path] = []  # of the message bus, to be set before the session begins
        self._log = self.root / "desktop.log"
        self._parts: list[subprocess.Popen[bytes]] = []

    def __enter__(self) -> "DesktopSession":
        adopt_orphans()
        try:
            size = "{}x{}x24".format(*SCREEN_SIZE)
            display = self._start_and_read(["Xvfb", "-screen", "0", size, "-noreset"], "-displayfd")
            self.environment["DISPLAY"] = f":{display}"
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_bus()
            # Its own files are not among the planted ones: a window manager ends when it finds no theme.
            self.start_part(["openbox", "--sm-disable"], XDG_DATA_DIRS="/usr/share")
            wait_for(self._has_window_manager, "the window manager")
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_: object) -> None:
        try:
            end_descendants()
            for part in self._parts:
                part.wait()
        finally:
            shutil.rmtree(self.root)

    def run(self, command: Sequence[str | Path]) -> subprocess.CompletedProcess[bytes]:
        """Runs a command to its end."""
        return subprocess.run(
            command, env=self.environment, cwd=self.home, capture_output=True, timeout=PATIENCE_SECONDS, check=False,
            stdin=subprocess.DEVNULL,
        )

    def start(self, command: Sequence[str | Path]) -> None:
        """Starts a program that lives on its own, as a desktop's menu does."""
        subprocess.run(
            ["setsid", "--fork", *command], env=self.environment, cwd=self.home, check=True,
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
        )

    def start_part(
        self, command: Sequence[str | Path], keep: int | None = None, **environment: str
    ) -> subprocess.Popen[bytes]:
        """Starts a part of the desktop, which dies with this process even if that is killed."""
        with open(self._log, "ab") as log:
            part = subprocess.Popen(
                ["setpriv", "--pdeathsig", "KILL", *command], env=self.environment | environment, cwd=self.home,
                pass_fds=[] if keep is None else [keep], stdin=subprocess.DEVNULL, stdout=log, stderr=log,
            )
        self._parts.append(part)
        return part

    def windows(self) -> list[Window]:
        """The windows that the window manager manages."""
        listing = self.run(["wmctrl", "-l", "-p"]).stdout.decode("utf-8", "replace")
        lines = re.findall(r"^(0x[0-9a-f]+) +-?\d+ +(\d+) +\S+ (.*)$", listing, re.MULTILINE)
        return [Window(identifier, int(pid), title) for identifier, pid, title in lines]

    def close(self, window: Window) -> None:
        """As its user does by the button in its frame; the window may already have gone."""
        self.run(["wmctrl", "-i", "-c", window.identifier])

    def wait_for_window(self, title: str) -> Window:
        return wait_for(
            lambda: next((each for each in self.windows() if each.title == title), None), f"the window “{title}”"
        )

    def report(self, notes: Iterable[object] = ()) -> Path:
        """Keeps a picture of the screen, windows, processes and the notes in a folder that outlives the test."""
        folder = Path(tempfile.mkdtemp(prefix="vantrel-failure-"))
        self.run(["import", "-window", "root", folder / "screen.png"])
        lines = [str(each) for each in [*self.windows(), *descendants(), *notes]]
        lines.append(self._log.read_text("utf-8", "replace"))
        (folder / "report.txt").write_text("\n".join([*lines, ""]), "utf-8")
        return folder

    def _environment(self) -> dict[str, str]:
        """Nothing of the environment of the tests, but what steers the sanitizers of the program under test."""
        folders = {
            "HOME": self.home,
            "TMPDIR": self.root / "tmp",
            "XDG_CACHE_HOME": self.home / ".cache",
            "XDG_CONFIG_HOME": self.config,
            "XDG_DATA_DIRS": self.root / "share",
            "XDG_DATA_HOME": self.data,
            "XDG_RUNTIME_DIR": self.root / "run",
            "XDG_STATE_HOME": self.home / ".local" / "state",
        }
        for folder in folders.values():
            folder.mkdir(mode=0o700, parents=True)
        sanitizers = {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        settings = {"PATH": _PATH, "LANG": "C.UTF-8", "NO_AT_BRIDGE": "1", "XDG_SESSION_TYPE": "x11"}
        return {name: str(folder) for name, folder in folders.items()} | settings | sanitizers

    def _start_bus(self) -> str:
        configuration = self.root / "bus.conf"
        folders = "\n".join(f"  <servicedir>{escape(str(each))}</servicedir>" for each in self.service_folders)
        configuration.write_text(_BUS_CONFIGURATION.format(socket=self.root / "run" / "bus", folders=folders), "utf-8")
        return self._start_and_read(["dbus-daemon", f"--config-file={configuration}", "--nofork"], "--print-address")

    def _start_and_read(self, command: list[str], option: str) -> str:
        """Starts a server that tells its address through a file descriptor as soon as it can be reached."""
        ours, theirs = os.pipe()
        with open(ours, encoding="ascii") as answer:
            try:
                self.start_part([*command, option, str(theirs)], keep=theirs)
            finally:
                os.close(theirs)
            ready, _, _ = select.select([answer], [], [], PATIENCE_SECONDS)
            line = answer.readline().strip() if ready else ""
        if not line:
            raise AssertionError(f"{command[0]} did not start: {self._log.read_text('utf-8', 'replace')}")
        return line

    def _has_window_manager(self) -> bool:
        """The property is set at the end of its start-up, after the theme is loaded."""
        return b"_NET_CURRENT_DESKTOP = " in self.run(["xprop", "-root", "-notype", "_NET_CURRENT_DESKTOP"]).stdout


def require_programs(packages: dict[str, str]) -> None:
    for program, package in packages.items():
        if shutil.which(program, path=_PATH) is None:
            raise AssertionError(f"{program} is missing: install the package {package}")
