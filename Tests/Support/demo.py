"""Plants a home with six sample browsers, to show Vantrel without touching anybody's own.

    eval "$(python3 Tests/Support/demo.py FOLDER)"

FOLDER is missing or empty. The output is the environment to start Vantrel in. The browsers only append to
FOLDER/started.log how they were started, one line each.
"""

import os
import shlex
import sys
from collections.abc import Iterable
from dataclasses import dataclass
from pathlib import Path

# A script's own folder is searched, not the checkout's root.
sys.path.insert(0, str(Path(__file__).resolve().parents[2]))

from Tests.Support import desktop_entries
from Tests.Support.browser_catalogue import Row, row
from Tests.Support.browser_data import ChromiumProfile, FirefoxProfile, PicturePlace
from Tests.Support.browser_data import plant_chromium, plant_firefox, write
from Tests.Support.pictures import Colour, person_png, ring_png

BLUE: Colour = (52, 120, 199, 255)
GREEN: Colour = (60, 145, 95, 255)
ORANGE: Colour = (222, 125, 48, 255)
PLUM: Colour = (128, 78, 150, 255)
RED: Colour = (196, 62, 66, 255)
SLATE: Colour = (84, 98, 112, 255)
SKY: Colour = (72, 170, 205, 255)


@dataclass(frozen=True)
class SampleBrowser:
    """A browser with its icon's two colours, and its profiles' names with the colours of their pictures."""

    row: Row
    name: str
    icon: tuple[Colour, Colour]
    profiles: tuple[tuple[str, Colour], ...]


BROWSERS = (
    SampleBrowser(
        row("com.google.Chrome"), "Google Chrome", (RED, BLUE),
        (("Work", BLUE), ("Home", GREEN), ("Northwind Trading", ORANGE)),
    ),
    SampleBrowser(row("com.brave.Browser"), "Brave", (ORANGE, RED), (("Personal", PLUM), ("Research", SKY))),
    SampleBrowser(
        row("com.microsoft.edgemac"), "Microsoft Edge", (SKY, BLUE), (("Work", SLATE), ("Bluebird Clinic", SKY))
    ),
    SampleBrowser(row("com.vivaldi.Vivaldi"), "Vivaldi", (RED, RED), (("Home", RED), ("Travel", GREEN))),
    SampleBrowser(row("org.mozilla.firefox"), "Firefox", (ORANGE, PLUM), (("Home", ORANGE), ("Development", SLATE))),
    SampleBrowser(row("app.zen-browser.zen"), "Zen Browser", (SLATE, SLATE), (("Reading", SLATE), ("Study", PLUM))),
)

_SCRIPT = """#!/bin/sh
# Appends to the log how this stand-in was started, quoted as a shell would take it.
line=${{0##*/}}
for word in "$@"; do
    case $word in
        '' | *[!A-Za-z0-9_@%+=:,./-]*) word="'$(printf '%s' "$word" | /bin/sed "s/'/'\\\\\\\\''/g")'" ;;
    esac
    line="$line $word"
done
printf '%s\\n' "$line" >> {log}
"""


def plant(folder: Path) -> dict[str, str]:
    """Fills the folder, and answers the environment in which the planted browsers are found."""
    home, share, programs = folder / "home", folder / "share", folder / "bin"
    (home / ".local" / "share").mkdir(parents=True)
    write(folder / "started.log", "")
    for browser in BROWSERS:
        script = write(programs / browser.row.program, _SCRIPT.format(log=shlex.quote(str(folder / "started.log"))))
        script.chmod(0o755)
        plant_browser(browser, script, home, share)
    return {
        "HOME": str(home),
        "XDG_CACHE_HOME": str(home / ".cache"),
        "XDG_CONFIG_HOME": str(home / ".config"),
        "XDG_DATA_HOME": str(home / ".local" / "share"),
        "XDG_STATE_HOME": str(home / ".local" / "state"),
        "XDG_DATA_DIRS": str(share),
        "XDG_RUNTIME_DIR": _runtime_folder(folder),
    }


def plant_browser(browser: SampleBrowser, program: Path, home: Path, share: Path) -> None:
    """Writes the desktop entry of a program that is there already, its icon, and the profiles in the home."""
    _plant_entry(share, browser, program)
    _plant_profiles(home, browser)


def _runtime_folder(folder: Path) -> str:
    """The session's own where there is one: without it a Wayland session's windows and tray are out of reach."""
    if session := os.environ.get("XDG_RUNTIME_DIR"):
        return session
    own = folder / "run"
    own.mkdir(mode=0o700)
    return str(own)


def _plant_entry(share: Path, browser: SampleBrowser, program: Path) -> None:
    desktop_id = next(iter(browser.row.native))
    icon = share / "icons" / "hicolor" / "128x128" / "apps" / f"{desktop_id}.png"
    icon.parent.mkdir(parents=True, exist_ok=True)
    icon.write_bytes(ring_png(*browser.icon))
    command_line = desktop_entries.native_command_line(program)
    text = desktop_entries.entry(browser.name, command_line, Icon=str(icon))
    write(share / "applications" / f"{desktop_id}.desktop", text)


def _plant_profiles(home: Path, browser: SampleBrowser) -> None:
    data_folder = home / next(browser.row.variants()).data_folder
    if browser.row.family == "firefox":
        names = [name for name, _colour in browser.profiles]
        plant_firefox(data_folder, [FirefoxProfile(f"Profiles/{name.lower()}", name) for name in names])
    else:
        plant_chromium(data_folder, _chromium_profiles(browser.profiles))


def _chromium_profiles(profiles: Iterable[tuple[str, Colour]]) -> Iterable[ChromiumProfile]:
    places = list(PicturePlace)
    for number, (name, colour) in enumerate(profiles):
        folder = f"Profile {number}" if number else "Default"
        yield ChromiumProfile(folder, name, None, person_png(colour), places[number % len(places)])


def main(arguments: list[str]) -> int:
    if len(arguments) != 1:
        print("usage: demo.py FOLDER", file=sys.stderr)
        return 2
    folder = Path(arguments[0]).absolute()
    if folder.exists() and (not folder.is_dir() or any(folder.iterdir())):
        print(f"demo.py: {folder} is not an empty folder", file=sys.stderr)
        return 1
    folder.mkdir(parents=True, exist_ok=True)
    for name, value in plant(folder).items():
        print(f"export {name}={_quoted(value)}")
    print("unset CHROME_CONFIG_HOME CHROME_USER_DATA_DIR HELIUM_CONFIG_HOME")
    return 0


def _quoted(text: str) -> str:
    return "'" + text.replace("'", "'\\''") + "'"


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
