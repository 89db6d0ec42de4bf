"""Looking at the screen, and using its pointer and its keyboard."""

import re
from collections import Counter
from collections.abc import Iterable
from dataclasses import dataclass

from Tests.Desktop.desktop_session import SCREEN_SIZE, DesktopSession, require_programs
from Tests.Desktop.waiting import wait_for

_PACKAGES = {"import": "imagemagick", "xdotool": "xdotool", "xprop": "x11-utils", "xwininfo": "x11-utils"}
_SMALLEST_MENU = 100  # pixels: what is less high is a tooltip
_BYTES = 3  # of one pixel


@dataclass(frozen=True)
class Area:
    left: int
    top: int
    width: int
    height: int

    @property
    def centre(self) -> tuple[int, int]:
        return self.left + self.width // 2, self.top + self.height // 2


@dataclass(frozen=True)
class Picture:
    """Red, green and blue of each pixel of an area of the screen, line by line."""

    area: Area
    pixels: bytes

    def difference(self, other: "Picture") -> Area | None:
        """The smallest area that holds all pixels that differ in two pictures of the same area."""
        pairs = list(zip(self._lines(), other._lines(), strict=True))
        rows = [number for number, (mine, others) in enumerate(pairs) if mine != others]
        columns: set[int] = set()
        for mine, others in (pairs[row] for row in rows):
            differing = [at // _BYTES for at in range(len(mine)) if mine[at] != others[at]]
            columns |= {differing[0], differing[-1]}
        if not rows:
            return None
        left, top = min(columns), rows[0]
        width, height = max(columns) - left + 1, rows[-1] - top + 1
        return Area(self.area.left + left, self.area.top + top, width, height)

    @property
    def colours(self) -> Counter[bytes]:
        """How many pixels have each of the colours."""
        return Counter(self.pixels[at:at + _BYTES] for at in range(0, len(self.pixels), _BYTES))

    def _lines(self) -> Iterable[bytes]:
        length = self.area.width * _BYTES
        return (self.pixels[at:at + length] for at in range(0, len(self.pixels), length))


class Screen:
    def __init__(self, session: DesktopSession) -> None:
        require_programs(_PACKAGES)
        self._session = session

    def picture(self, area: Area) -> Picture:
        crop = f"{area.width}x{area.height}+{area.left}+{area.top}"
        done = self._session.run(["import", "-window", "root", "-crop", crop, "-depth", "8", "rgb:-"])
        if len(done.stdout) != area.width * area.height * _BYTES:
            raise AssertionError(f"no picture of {area}: {done.stderr.decode()}")
        return Picture(area, done.stdout)

    def still_picture(self, area: Area) -> Picture:
        """A picture of an area that shows the same twice: what appeared there has been drawn to its end."""
        last: list[Picture] = []

        def next_picture() -> Picture | None:
            last.append(self.picture(area))
            return last[-1] if last[-2:-1] == last[-1:] else None

        return wait_for(next_picture, f"an area that does not change: {area}")

    def click(self, place: tuple[int, int], button: int = 1, times: int = 1) -> None:
        self.point(place)
        self._session.run(["xdotool", "click", "--repeat", str(times), "--delay", "150", str(button)])

    def point(self, place: tuple[int, int]) -> None:
        self._session.run(["xdotool", "mousemove", "--sync", *map(str, place)])

    def drag(self, start: tuple[int, int], end: tuple[int, int]) -> None:
        self.point(start)
        self._session.run(["xdotool", "mousedown", "1"])
        # A drag begins once the pointer has moved some way.
        self.point(((start[0] + end[0]) // 2, (start[1] + end[1]) // 2))
        self.point(end)
        self._session.run(["xdotool", "mouseup", "1"])

    def press(self, *keys: str) -> None:
        self._session.run(["xdotool", "key", "--delay", "30", *keys])

    def area_of(self, window: str) -> Area | None:
        """Where a window is; none when it has gone or is not shown."""
        text = self._window(window)
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        found = [re.search(rf"{each}: +(-?\d+)", text) for each in names]
        return Area(*(int(each[1]) for each in found if each)) if "Map State: IsViewable" in text else None

    def menus(self) -> dict[str, Area]:
        """Menus that are open, by their window's identifier: windows that the window manager does not manage."""
        found = self._session.run(["xdotool", "search", "--onlyvisible", "--maxdepth", "1", "--name", ""]).stdout
        windows = [each for each in found.decode().split() if "Override Redirect State: yes" in self._window(each)]
        areas = {each: area for each in windows if (area := self.area_of(each))}
        return {each: area for each, area in areas.items() if area.height >= _SMALLEST_MENU}

    def wait_for_menu(self) -> "OpenMenu":
        """A menu that can be used: no part of it is beyond the screen's edges."""
        window, area = wait_for(
            lambda: next((each for each in self.menus().items() if self._holds(each[1])), None),
            "an open menu that is wholly on the screen",
        )
        names = self._session.run(["xprop", "-id", window, "-notype", "WM_CLASS"]).stdout.decode()
        return OpenMenu(self, area, names.partition('"')[2].partition('"')[0])

    def wait_for_no_menu(self) -> None:
        wait_for(lambda: not self.menus(), "the end of the menu")

    def wait_for_change(self, before: Picture) -> Area:
        """The area that differs from an earlier picture, as soon as it stays as it is."""
        wait_for(lambda: self.picture(before.area) != before, f"a change in {before.area}")
        area = before.difference(self.still_picture(before.area))
        if not area:
            raise AssertionError(f"{before.area} changed only for a moment")
        return area

    def _holds(self, area: Area) -> bool:
        width, height = SCREEN_SIZE
        return min(area.left, area.top) >= 0 and area.left + area.width <= width and area.top + area.height <= height

    def _window(self, window: str) -> str:
        return self._session.run(["xwininfo", "-id", window]).stdout.decode("utf-8", "replace")


class OpenMenu:
    """A menu on the screen, of whichever program; no row of it is highlighted yet."""

    def __init__(self, screen: Screen, area: Area, program: str) -> None:
        self._screen = screen
        self.area = area
        self.program = program
        self._plain = screen.still_picture(area)

    def click_row(self, position: int) -> None:
        """Clicks the row with this position among those that can be chosen, from 1.

        Where it is shows by what the cursor keys highlight.
        """
        self._screen.press(*["Down"] * position)
        row = self._screen.wait_for_change(self._plain)
        self._screen.click(row.centre)
        self._screen.wait_for_no_menu()

    def choose_by_keyboard(self, position: int) -> None:
        self._screen.press(*["Down"] * position, "Return")
        self._screen.wait_for_no_menu()
