"""The places where desktops show symbols of programs that run in the background."""

import re
import subprocess
from abc import ABC, abstractmethod
from pathlib import Path

from Tests.Desktop.app_session import AppSession
from Tests.Desktop.desktop_session import require_programs
from Tests.Desktop.screen import Area, Picture
from Tests.Desktop.waiting import wait_for
from Tests.Support.browser_data import write

_BUS_SERVICES = Path("/usr/share/dbus-1/services")
_XFCE_SETTINGS = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray">
      <property name="square-icons" type="bool" value="true"/>
    </property>
  </property>
</channel>
"""


class TrayHost(ABC):
    """Shows nothing but symbols: whatever differs from its plain background is one."""

    border = 0  # pixels

    def __init__(self, session: AppSession) -> None:
        self._session = session
        self._process: subprocess.Popen[bytes] | None = None

    @abstractmethod
    def start(self) -> None: ...

    def kill(self) -> None:
        if self._process:
            self._process.kill()
            self._process.wait()

    @abstractmethod
    def area(self) -> Area | None:
        """Where it is; none when it is not shown."""

    def has_symbol(self) -> bool:
        return bool(self.symbol())

    def symbol(self) -> Area | None:
        """Where the symbol is."""
        area = self.area()
        if not area or area.width < area.height:
            return None
        width, height = area.width - 2 * self.border, area.height - 2 * self.border
        inner = Area(area.left + self.border, area.top + self.border, width, height)
        picture = self._session.screen.picture(inner)
        return picture.difference(_plain(picture))

    def wait_for_symbol(self) -> Area:
        """The symbol's place, as soon as it stays where it is."""
        found: list[Area | None] = []

        def next_place() -> Area | None:
            found.append(self.symbol())
            return found[-1] if found[-2:-1] == found[-1:] else None

        return wait_for(next_place, f"a symbol in {type(self).__name__}")

    def wait_for_no_symbol(self) -> None:
        wait_for(lambda: not self.has_symbol(), f"{type(self).__name__} without a symbol")


class Trayer(TrayHost):
    """A tray that embeds windows."""

    def start(self) -> None:
        require_programs({"trayer": "trayer"})
        place = ["--edge", "bottom", "--align", "left", "--widthtype", "request", "--height", "24"]
        colour = ["--transparent", "true", "--alpha", "0", "--tint", "0x203040"]
        self._process = self._session.start_part(["trayer", *place, *colour])
        wait_for(self._is_there, "trayer")

    def area(self) -> Area | None:
        found = self._session.run(["xdotool", "search", "--onlyvisible", "--class", "trayer"]).stdout.decode().split()
        areas = [area for area in map(self._session.screen.area_of, found) if area]
        return max(areas, key=lambda each: each.width, default=None)

    def _is_there(self) -> bool:
        return bool(self._session.run(["xdotool", "search", "--class", "trayer"]).stdout)


class XfcePanel(TrayHost):
    """A panel that draws symbols and menus itself, by what programs tell it on the message bus."""

    border = 2

    def start(self) -> None:
        require_programs({"xfce4-panel": "xfce4-panel"})
        services = self._session.service_folders[-1]
        link = services / "org.xfce.Xfconf.service"
        if not link.exists():
            link.symlink_to(_BUS_SERVICES / link.name)
        settings = self._session.config / "xfce4" / "xfconf" / "xfce-perchannel-xml" / "xfce4-panel.xml"
        write(settings, _XFCE_SETTINGS)
        folders = f"{self._session.installed.share}:/usr/share"
        self._process = self._session.start_part(["xfce4-panel", "--disable-wm-check"], XDG_DATA_DIRS=folders)
        wait_for(self.area, "the panel")

    def area(self) -> Area | None:
        listing = self._session.run(["wmctrl", "-l", "-x"]).stdout.decode("utf-8", "replace")
        found = re.search(r"^(0x[0-9a-f]+) .*xfce4-panel", listing, re.MULTILINE)
        return self._session.screen.area_of(found[1]) if found else None


def _plain(picture: Picture) -> Picture:
    """The same area without a symbol: the colour of most of its pixels all over."""
    counts = picture.colours
    common = max(counts, key=lambda each: counts[each])
    return Picture(picture.area, common * (picture.area.width * picture.area.height))
