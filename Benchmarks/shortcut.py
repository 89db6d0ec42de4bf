#!/usr/bin/python3
"""Measures how long it takes from the release of a global shortcut's key until the browser that it opens runs.

    shortcut.py

sxhkd and xbindkeys run the same browser on the release of keys of their own, in the same session and all at once. The
browser is a small program without shared libraries, which reads the clock first thing. The keys are let go by the X
server's test extension.
"""

import ctypes
import json
import os
import select
import struct
import subprocess
import sys
import time
from collections.abc import Sequence
from pathlib import Path
from urllib.parse import quote

from home import Home, plant, profile_folder
from measurement import (
    NANOSECONDS_IN_A_MILLISECOND, Contender, Sample, measure, measured_program, require, table, verdict,
)
from open import BROWSER, PROFILE, PROFILE_SWITCH, StandIn

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
from Tests.Desktop.desktop_session import DesktopSession

ROUNDS = 100
PATIENCE = 20.0
SETTLING = 0.02
# The X server's numbers of the keys.
CONTROL, ALT, O_KEY, P_KEY, U_KEY = 37, 64, 32, 33, 30
# As the Macintosh numbers keys and modifiers.
STORED_SHORTCUT = {"carbonKeyCode": 35, "carbonModifiers": 0x1800}


class Keyboard:
    """Presses and releases keys as a real keyboard does."""

    def __init__(self, display: str) -> None:
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._test = ctypes.CDLL("libXtst.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(display.encode()))

    def press(self, *keys: int) -> None:
        self._send(keys, True)

    def release(self, *keys: int) -> None:
        self._send(keys, False)

    def _send(self, keys: Sequence[int], is_down: bool) -> None:
        for key in keys:
            self._test.XTestFakeKeyEvent(self._display, key, is_down, 0)
        self._x11.XSync(self._display, False)


class Shortcuts:
    def __init__(self, home: Home, keyboard: Keyboard) -> None:
        self._keyboard = keyboard
        self.stand_in = StandIn(home)
        self._reader = os.open(self.stand_in.pipe, os.O_RDWR | os.O_NONBLOCK)

    def run(self, key: int) -> Sample:
        sample = self._try(key, PATIENCE)
        if sample is None:
            raise SystemExit(f"the key {key} started no browser")
        return sample

    def wait_until_heard(self, key: int) -> None:
        """A program that has just started hears its keys a moment later."""
        end = time.monotonic() + PATIENCE
        while self._try(key, 1.0) is None:
            if time.monotonic() > end:
                raise SystemExit(f"nobody hears the key {key}")

    def _try(self, key: int, patience: float) -> Sample | None:
        self._keyboard.press(CONTROL, ALT, key)
        time.sleep(SETTLING)
        released = time.monotonic_ns()
        self._keyboard.release(key)
        readable, _, _ = select.select([self._reader], [], [], patience)
        self._keyboard.release(ALT, CONTROL)
        if not readable:
            return None
        began, argument = struct.unpack("=q504s", os.read(self._reader, 512))
        if argument.rstrip(b"\0").decode() != PROFILE_SWITCH:
            raise SystemExit(f"the key {key} passed on {argument!r}")
        return Sample((began - released) / NANOSECONDS_IN_A_MILLISECOND)


def store_shortcut(home: Home) -> None:
    name = f"KeyboardShortcuts_profile.com.google.Chrome%2Fchromium:{profile_folder(PROFILE)}"
    escaped = json.dumps(STORED_SHORTCUT).replace('"', '\\"')
    folder = home.config / "app.kestrune.Vantrel"
    folder.mkdir()
    (folder / "defaults.ini").write_text(f'[General]\n{quote(name, safe="._-")}="{escaped}"\n')


def write_configurations(home: Home, command: str) -> tuple[Path, Path]:
    sxhkd, xbindkeys = home.root / "sxhkdrc", home.root / "xbindkeysrc"
    sxhkd.write_text(f"ctrl + alt + @o\n    {command}\n")
    xbindkeys.write_text(f'"{command}"\n  Release + Control + Alt + u\n')
    return sxhkd, xbindkeys


def run(session: DesktopSession) -> None:
    home = plant(session.root / "machine")
    environment = session.environment | home.environment()
    store_shortcut(home)
    sxhkd, xbindkeys = write_configurations(home, f'{home.program(BROWSER)} "{PROFILE_SWITCH}"'.replace('"', "'"))
    commands = [
        ("vantrel", P_KEY, [measured_program()]),
        ("sxhkd", O_KEY, [require(Path("/usr/bin/sxhkd"), "install the package sxhkd"), "-c", sxhkd]),
        ("xbindkeys", U_KEY,
         [require(Path("/usr/bin/xbindkeys"), "install the package xbindkeys"), "--nodaemon", "-f", xbindkeys]),
    ]
    shortcuts = Shortcuts(home, Keyboard(environment["DISPLAY"]))
    running = [
        subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        for _, _, command in commands
    ]
    try:
        for _, key, _ in commands:
            shortcuts.wait_until_heard(key)
        contenders = [Contender(name, lambda key=key: shortcuts.run(key)) for name, key, _ in commands]
        measure(contenders, ROUNDS)
    finally:
        for each in running:
            each.terminate()
            each.wait()
    show(contenders)


def show(contenders: Sequence[Contender]) -> None:
    vantrel, *others = contenders
    print(table("From the release of a shortcut's key to the browser's exec", contenders, others[0]))
    for contender in contenders:
        slowest = sorted(sample.elapsed for sample in contender.samples)
        print(f"  {contender.name}: 95 of 100 within {slowest[len(slowest) * 95 // 100 - 1]:.2f} ms")
    limit = min(each.median for each in others)
    print(verdict("not slower than the faster of the others", vantrel.median, limit))


def main() -> None:
    with DesktopSession() as session:
        run(session)


if __name__ == "__main__":
    main()
