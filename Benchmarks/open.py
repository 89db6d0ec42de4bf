#!/usr/bin/python3
"""Measures how long it takes from the start of a command until the browser that it starts runs.

    open.py [HOME]

HOME is a folder that home.py made; without it one is made for the time being. The browser is a small program without
shared libraries, which reads the clock first thing. Starting it directly ("exec alone") shows how much of the time that
takes by itself. `gio launch` opens no profile; it does the rest: reads the desktop entry, starts the program.
"""

import argparse
import os
import select
import struct
import subprocess
import time
from pathlib import Path

from home import CHROMIUM_BROWSERS, Home, given_or_planted, profile_folder, profile_name
from measurement import (
    NANOSECONDS_IN_A_MILLISECOND, Contender, Process, Sample, measure, measured_program, require, table, verdict,
)

HERE = Path(__file__).resolve().parent
BROWSER = next(browser for browser in CHROMIUM_BROWSERS if browser.entry == "google-chrome")
PROFILE = 7
PROFILE_SWITCH = f"--profile-directory={profile_folder(PROFILE)}"
GOAL = 10.0
PATIENCE = 20_000  # milliseconds


class StandIn:
    """The stand-in browser, put in the place of the installed one, and the named pipe through which it reports."""

    def __init__(self, home: Home) -> None:
        compiler = require(Path("/usr/bin/cc"), "install the packages gcc and libc6-dev")
        self._pipe = home.root / "record"
        self._pipe.unlink(missing_ok=True)
        os.mkfifo(self._pipe)
        program = home.program(BROWSER)
        program.unlink(missing_ok=True)
        record = f'-DRECORD="{self._pipe}"'
        subprocess.run([compiler, "-O2", "-static", record, "-o", program, HERE / "stand_in_browser.c"], check=True)

    def measure_start(self, process: Process, expected_argument: str) -> Sample:
        """From before the command's start to the stand-in's first look at the clock; returns when both have ended."""
        reader = os.open(self._pipe, os.O_RDONLY | os.O_NONBLOCK)
        try:
            started = time.monotonic_ns()
            child = process.spawn()
            self._wait(reader, select.POLLIN, process)
            message = os.read(reader, 512)
            _, status = os.waitpid(child, 0)
            process.check(status)
            self._wait(reader, select.POLLHUP, process)
        finally:
            os.close(reader)
        began, argument = struct.unpack("=q504s", message)
        if argument.rstrip(b"\0").decode() != expected_argument:
            raise SystemExit(f"{process.arguments[0]} passed on {argument!r} instead of {expected_argument!r}")
        return Sample((began - started) / NANOSECONDS_IN_A_MILLISECOND)

    @staticmethod
    def _wait(reader: int, event: int, process: Process) -> None:
        poll = select.poll()
        poll.register(reader, event)
        if not poll.poll(PATIENCE):
            raise SystemExit(f"{' '.join(process.arguments)} started no browser")


def run(home: Home) -> None:
    gio = require(Path("/usr/bin/gio"), "install the package libglib2.0-bin")
    program = measured_program()
    stand_in = StandIn(home)

    def contender(name: str, *arguments: str | Path, argument: str = PROFILE_SWITCH) -> Contender:
        process = Process(arguments, home.environment())
        return Contender(name, lambda: stand_in.measure_start(process, argument))

    profile_id = f"com.google.Chrome/chromium:{profile_folder(PROFILE)}"
    by_id = contender("vantrel open ID", program, "open", profile_id)
    by_name = contender("vantrel open NAME", program, "open", profile_name(BROWSER, PROFILE))
    launch = contender("gio launch", gio, "launch", home.entry(BROWSER), argument="")
    alone = contender("exec alone", home.program(BROWSER), PROFILE_SWITCH)
    contenders = [by_id, by_name, launch, alone]
    measure(contenders)
    print(table("Open a profile, from the start to the browser's exec", contenders, alone))
    for opening in (by_id, by_name):
        print(verdict(f"{opening.name} in less than {GOAL:.0f} ms", opening.median, GOAL))


def main() -> None:
    parser = argparse.ArgumentParser(description="Measures `vantrel open`.")
    parser.add_argument("home", nargs="?", type=Path, help="a folder that home.py made")
    with given_or_planted(parser.parse_args().home) as home:
        run(home)


if __name__ == "__main__":
    main()
