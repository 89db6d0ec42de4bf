#!/usr/bin/python3
"""Measures how long it takes from the release of a global shortcut's key until the browser that it starts runs, beside
two programs that start commands when a key is released.

    shortcut.py KEY_PRESSER

KEY_PRESSER is the built program of that name. All three programs run in the same session, each with a shortcut of its
own that starts the same stand-in; they are asked in turn.
"""

import argparse
import json
import os
import select
import struct
import subprocess
import tempfile
import time
from collections.abc import Sequence
from pathlib import Path
from statistics import quantiles
from urllib.parse import quote

from home import CHROMIUM_BROWSERS, Home, plant_many, profile_folder
from measurement import (
    NANOSECONDS_IN_A_MILLISECOND, Contender, Sample, measure, measured_program, require, table, verdict,
)
from tray_session import DesktopSession

HERE = Path(__file__).resolve().parent
BROWSER = CHROMIUM_BROWSERS[0]
BUNDLE_ID = "com.brave.Browser"  # of that browser
ROUNDS = 100
PATIENCE = 20_000  # milliseconds
CONTROL, ALT = 0xffe3, 0xffe9  # keysyms
MACINTOSH_P = 35
MACINTOSH_CONTROL_OPTION = 0x1000 | 0x800


class StandIn:
    """The stand-in browser in the installed one's place, and the pipe through which it reports."""

    def __init__(self, home: Home) -> None:
        compiler = require(Path("/usr/bin/cc"), "install the packages gcc and libc6-dev")
        pipe = home.root / "record"
        os.mkfifo(pipe)
        self.program = home.program(BROWSER)
        self.program.unlink(missing_ok=True)
        command = [compiler, "-O2", "-static", f'-DRECORD="{pipe}"', "-o", self.program, HERE / "stand_in_browser.c"]
        subprocess.run(command, check=True)
        # Open on both sides, so that no report finds the pipe closed.
        self._reader = os.open(pipe, os.O_RDWR | os.O_NONBLOCK)

    def wait(self, patience: int = PATIENCE) -> int | None:
        """When it began to run; none when it does not."""
        poll = select.poll()
        poll.register(self._reader, select.POLLIN)
        if not poll.poll(patience):
            return None
        began: int = struct.unpack("=q504s", os.read(self._reader, 512))[0]
        return began


class Keyboard:
    def __init__(self, program: Path, environment: dict[str, str]) -> None:
        self._process = subprocess.Popen(
            [program], env=environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1
        )

    def press(self, letter: str) -> int:
        """Control, Alt and a letter; when the letter went up."""
        assert self._process.stdin and self._process.stdout
        self._process.stdin.write(f"{CONTROL} {ALT} {ord(letter)}\n")
        self._process.stdin.flush()
        return int(self._process.stdout.readline())


def give_shortcut(home: Home, identifier: str) -> None:
    """Stores it as the settings do."""
    key = "KeyboardShortcuts_profile." + quote(identifier.replace("/", "%2F"), safe="._-")
    shortcut = json.dumps({"carbonKeyCode": MACINTOSH_P, "carbonModifiers": MACINTOSH_CONTROL_OPTION})
    file = home.config / "app.kestrune.Vantrel" / "defaults.ini"
    file.parent.mkdir(parents=True)
    value = shortcut.replace('"', '\\"')
    file.write_text(f'[General]\ntoldThatThereIsNoTray=true\n{key}="{value}"\n')


def others(home: Home, stand_in: StandIn) -> dict[str, Sequence[str | Path]]:
    """The letters of the other programs' shortcuts, and their commands."""
    sxhkd = home.root / "sxhkdrc"
    sxhkd.write_text(f"@ctrl + alt + o\n\t{stand_in.program}\n")
    xbindkeys = home.root / "xbindkeysrc"
    xbindkeys.write_text(f'"{stand_in.program}"\n  control + alt + i + release\n')
    return {
        "o": [require(Path("/usr/bin/sxhkd"), "install the package sxhkd"), "-c", sxhkd],
        "i": [require(Path("/usr/bin/xbindkeys"), "install the package xbindkeys"), "-n", "-f", xbindkeys],
    }


def run(session: DesktopSession, home: Home, presser: Path) -> None:
    stand_in = StandIn(home)
    give_shortcut(home, f"{BUNDLE_ID}/chromium:{profile_folder(1)}")
    environment = session.environment | home.environment()
    environment |= {"SHELL": "/bin/sh", "XDG_RUNTIME_DIR": session.environment["XDG_RUNTIME_DIR"]}
    keyboard = Keyboard(presser, session.environment)
    commands = others(home, stand_in)
    names = {"p": "Vantrel", "o": "sxhkd", "i": "xbindkeys"}
    commands["p"] = [measured_program()]
    for command in commands.values():
        subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                         stderr=subprocess.DEVNULL)

    def press(letter: str) -> Sample:
        # What follows a start at once is not what a user does.
        time.sleep(0.05)
        released = keyboard.press(letter)
        began = stand_in.wait()
        if began is None:
            raise SystemExit(f"{names[letter]} does not react to its shortcut")
        return Sample((began - released) / NANOSECONDS_IN_A_MILLISECOND)

    for letter in names:
        wait_until_heard(keyboard, stand_in, letter)
    contenders = [Contender(name, lambda letter=letter: press(letter)) for letter, name in names.items()]
    measure(contenders, ROUNDS)
    print(table("Shortcut, from the key's release to the browser's exec", contenders, contenders[1]))
    for each in contenders:
        times = [sample.elapsed for sample in each.samples]
        print(f"  {each.name}: 95th percentile {quantiles(times, n=20)[-1]:.2f} ms")
    quickest = min(each.median for each in contenders[1:])
    print(verdict("not slower than the quicker one of the others", contenders[0].median, quickest))


def wait_until_heard(keyboard: Keyboard, stand_in: StandIn, letter: str) -> None:
    """Until a program that has been started reacts to its shortcut."""
    for _ in range(50):
        keyboard.press(letter)
        if stand_in.wait(200):
            # Another press may be on its way.
            while stand_in.wait(200):
                pass
            return
    raise SystemExit(f"Nobody reacts to Control, Alt and {letter}")


def main() -> None:
    parser = argparse.ArgumentParser(description="Measures global shortcuts.")
    parser.add_argument("presser", type=Path, help="the built key_presser")
    arguments = parser.parse_args()
    presser = require(arguments.presser.resolve(), "build the preset benchmark")
    with tempfile.TemporaryDirectory(prefix="vantrel-benchmark-") as folder, DesktopSession() as session:
        run(session, plant_many(Path(folder).resolve(), 10), presser)


if __name__ == "__main__":
    main()
