#!/usr/bin/python3
"""Measures the running app beside two other programs that live in the tray: CopyQ and a symbol of YAD's.

    app.py TRAY_HOST

TRAY_HOST is the built `tray_host`. All run in a desktop of their own, in a home that home.py made, with the machine's
icon themes. CopyQ keeps a second process; what it takes counts as CopyQ's.

How long the symbol takes is measured in both kinds of tray, from the program's start: to the icon's window being
mapped, and to the panel having read the item with its pictures. The processor's time is what the program itself has
taken by then; other work on the machine doesn't add to it.

Memory is the proportional share (PSS), and what no other process shares; both at rest, before and after the menu was
opened once. Who else runs Qt or GTK lowers the first.

The menu's time is that from the click to its window, with a thousand rows, half of them with a picture. What a panel
waits for is the answer to its question for all rows: the first time and later. That takes the bus and the panel's own
reading as well, so the goal is set against the processor's time of the program. `menu_benchmark` shows where that goes.
"""

import argparse
import os
import signal
import subprocess
import time
from collections.abc import Sequence
from contextlib import suppress
from dataclasses import dataclass
from pathlib import Path

from home import PROFILE_COUNT, Home, plant, plant_many
from measurement import (
    NANOSECONDS_IN_A_MILLISECOND, Contender, Sample, measure, measured_program, require, table, verdict,
)
from tray_session import BusTray, WindowTray

from Tests.Desktop.desktop_session import DesktopSession
from Tests.Desktop.processes import descendants

SHOWN_GOAL = 40.0
MEMORY_GOAL = 25.0
MENU_GOAL = 16.0
REST_SECONDS = 60
START_SECONDS = 35
QUIET_SECONDS = 5.0
QUIET_PATIENCE = 40.0
PROFILES = 1000
# As many as the home has profiles.
ROWS = 8 * PROFILE_COUNT
FRESH_STARTS = 5
SYMBOL = "dialog-information"
# Folders of the machine that programs with windows read, and in which nothing is said of browsers.
SHARED_FOLDERS = ("glib-2.0", "icons", "mime", "themes")


class Running:
    """A program that runs, with all that it has started itself."""

    def __init__(self, command: Sequence[str | Path], environment: dict[str, str]) -> None:
        self.started = time.monotonic_ns()
        self._process = subprocess.Popen(
            command, env=environment, cwd=environment["HOME"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL, start_new_session=True,
        )

    def sample(self, shown: int) -> Sample:
        return Sample((shown - self.started) / NANOSECONDS_IN_A_MILLISECOND, self.processor())

    def processor(self) -> float:
        """The time that it has taken until now, in milliseconds."""
        # The clock of a process that Linux makes of its number: all threads, those that have ended among them.
        return time.clock_gettime_ns((~self._process.pid << 3) | 2) / NANOSECONDS_IN_A_MILLISECOND

    def pids(self) -> list[int]:
        return [each.pid for each in descendants() if each.session == self._process.pid]

    def stop(self) -> None:
        self._process.terminate()
        self._process.wait()
        with suppress(ProcessLookupError):
            os.killpg(self._process.pid, signal.SIGKILL)


@dataclass(frozen=True)
class Program:
    name: str
    command: Sequence[str | Path]
    environment: dict[str, str]

    def start(self) -> Running:
        return Running(self.command, self.environment)


@dataclass(frozen=True)
class Activity:
    """What each thread of some processes has done until now, by its number."""

    switches: dict[str, int]
    processor: dict[str, int]  # nanoseconds

    @classmethod
    def of(cls, pids: Sequence[int]) -> "Activity":
        switches: dict[str, int] = {}
        processor: dict[str, int] = {}
        for pid in pids:
            # Threads come and go meanwhile.
            with suppress(FileNotFoundError, ProcessLookupError):
                for thread in Path(f"/proc/{pid}/task").iterdir():
                    kinds = ("voluntary_ctxt_switches", "nonvoluntary_ctxt_switches")
                    switches[thread.name] = sum(_figure(thread / "status", kind) for kind in kinds)
                    processor[thread.name] = int((thread / "schedstat").read_text().split()[0])
        return cls(switches, processor)

    def wakeups_since(self, former: "Activity") -> int:
        return sum(count - former.switches.get(thread, 0) for thread, count in self.switches.items())

    def processor_since(self, former: "Activity") -> float:
        """In milliseconds."""
        time_taken = sum(taken - former.processor.get(thread, 0) for thread, taken in self.processor.items())
        return time_taken / NANOSECONDS_IN_A_MILLISECOND


@dataclass(frozen=True)
class Memory:
    """In megabytes."""

    proportional: float
    private: float

    @classmethod
    def of(cls, pids: Sequence[int]) -> "Memory":
        files = [Path(f"/proc/{pid}/smaps_rollup") for pid in pids]
        proportional = sum(_figure(file, "Pss") for file in files)
        private = sum(_figure(file, kind) for file in files for kind in ("Private_Clean", "Private_Dirty"))
        return cls(proportional * 1024 / 1e6, private * 1024 / 1e6)


def _figure(file: Path, name: str) -> int:
    return next(int(line.split()[1]) for line in file.read_text().splitlines() if line.startswith(f"{name}:"))


def wait_until_quiet(running: Running) -> None:
    """Until no thread has run for a while; not for ever, for there are programs that never rest."""
    end = time.monotonic() + QUIET_PATIENCE
    last, since = Activity.of(running.pids()), time.monotonic()
    while (now := time.monotonic()) < end and now - since < QUIET_SECONDS:
        time.sleep(0.2)
        if (activity := Activity.of(running.pids())) != last:
            last, since = activity, time.monotonic()


def measure_start_in_window_tray(tray: WindowTray, programs: Sequence[Program]) -> None:
    def contender(program: Program) -> Contender:
        def run() -> Sample:
            tray.forget()
            running = program.start()
            sample = running.sample(tray.wait_for("shown"))
            running.stop()
            tray.wait_until_left()
            return sample

        return Contender(program.name, run)

    _show_start("From the start to the symbol in a tray of windows", [contender(each) for each in programs])


def measure_start_in_bus_tray(tray: BusTray, programs: Sequence[Program]) -> None:
    def contender(program: Program) -> Contender:
        def run() -> Sample:
            running = program.start()
            sample = running.sample(tray.wait_for_symbol())
            running.stop()
            tray.wait_until_left()
            return sample

        return Contender(program.name, run)

    _show_start("From the start to the symbol in a tray on the message bus", [contender(each) for each in programs])


def _show_start(title: str, contenders: Sequence[Contender]) -> None:
    measure(contenders)
    vantrel, reference, *_ = contenders
    print(table(title, contenders, reference))
    print(verdict(f"{vantrel.name}'s symbol in less than {SHOWN_GOAL:.0f} ms", vantrel.median, SHOWN_GOAL), end="\n\n")


def measure_memory(tray: WindowTray, programs: Sequence[Program]) -> None:
    """One after the other: together they would share more than they do alone."""
    print("Memory at rest (megabytes; in brackets: shared with nobody)")
    width = max(len(program.name) for program in programs)
    print(f"  {'':{width}}  {'after the start':>16}  {'after the menu':>16}")
    measured: list[float] = []
    for program in programs:
        tray.forget()
        running = program.start()
        tray.wait_for("shown")
        wait_until_quiet(running)
        before = Memory.of(running.pids())
        tray.open_menu()
        wait_until_quiet(running)
        after = Memory.of(running.pids())
        running.stop()
        tray.wait_until_left()
        columns = [f"{each.proportional:.1f} ({each.private:.1f})" for each in (before, after)]
        print(f"  {program.name:{width}}  {columns[0]:>16}  {columns[1]:>16}")
        measured.append(max(before.proportional, after.proportional))
    print(verdict(f"{programs[0].name} in less than {MEMORY_GOAL:.0f} MB", measured[0], MEMORY_GOAL), end="\n\n")


def start_all(tray: WindowTray, programs: Sequence[Program]) -> list[Running]:
    """One after the other, each at rest before the next one starts: their symbols stand in this order."""
    everything: list[Running] = []
    for program in programs:
        tray.forget()
        everything.append(program.start())
        tray.wait_for("shown")
        wait_until_quiet(everything[-1])
    return everything


def stop_all(tray: WindowTray, everything: Sequence[Running]) -> None:
    for running in everything:
        running.stop()
    tray.wait_until_left()


def measure_rest(tray: WindowTray, programs: Sequence[Program]) -> None:
    """All side by side: what makes one of them wake up is there for each."""
    everything = start_all(tray, programs)
    # Idle threads end after half a minute, and what is to be done once after the start is done.
    time.sleep(START_SECONDS)
    before = [Activity.of(running.pids()) for running in everything]
    time.sleep(REST_SECONDS)
    after = [Activity.of(running.pids()) for running in everything]
    stop_all(tray, everything)
    print(f"At rest for {REST_SECONDS} seconds")
    width = max(len(program.name) for program in programs)
    print(f"  {'':{width}}  {'wake-ups':>8}  {'processor':>12}")
    wakeups = [last.wakeups_since(first) for first, last in zip(before, after, strict=True)]
    for program, count, first, last in zip(programs, wakeups, before, after, strict=True):
        processor = f"{last.processor_since(first):.2f} ms"
        print(f"  {program.name:{width}}  {count:8}  {processor:>12}")
    print(verdict(f"{programs[0].name} never wakes up", wakeups[0], 1), end="\n\n")


def measure_menu_in_window_tray(tray: WindowTray, programs: Sequence[Program]) -> None:
    everything = start_all(tray, programs)

    def contender(place: int) -> Contender:
        return Contender(
            programs[place].name, lambda: Sample(tray.open_menu(place) / NANOSECONDS_IN_A_MILLISECOND)
        )

    contenders = [contender(place) for place in range(len(programs))]
    first_times = [f"{each.name} {each.run().elapsed:.2f}" for each in contenders]
    measure(contenders)
    stop_all(tray, everything)
    print(table(f"From the click to the window of a menu of {PROFILES} profiles", contenders, contenders[1]))
    print(f"  the first time: {', '.join(first_times)}")
    print(verdict(f"opened in less than {MENU_GOAL:.0f} ms", contenders[0].median, MENU_GOAL), end="\n\n")


def measure_menu_in_bus_tray(tray: BusTray, program: Program) -> None:
    started: list[Running] = []

    def ask() -> Sample:
        before = started[-1].processor()
        elapsed = tray.ask_for_rows() / NANOSECONDS_IN_A_MILLISECOND
        return Sample(elapsed, started[-1].processor() - before)

    first, later = (Contender(name, ask) for name in ("the first time", "later"))
    for _ in range(FRESH_STARTS):
        started.append(program.start())
        tray.wait_for_symbol()
        wait_until_quiet(started[-1])
        first.samples.append(first.run())
        later.samples.append(later.run())
        started[-1].stop()
        tray.wait_until_left()
    print(table(f"{program.name}'s answer to a panel that asks for {PROFILES} profiles", [first, later], first))
    for contender in (first, later):
        goal = f"{contender.name} in less than {MENU_GOAL:.0f} ms of the processor"
        print(verdict(goal, contender.processor or 0.0, MENU_GOAL))


def share_folders(home: Home) -> None:
    for name in SHARED_FOLDERS:
        if (folder := Path("/usr/share") / name).is_dir():
            (home.share / name).symlink_to(folder)


def yad_with_menu(environment: dict[str, str], rows: Sequence[str]) -> Program:
    yad = require(Path("/usr/bin/yad"), "install the package yad")
    return Program("yad", [yad, "--notification", f"--image={SYMBOL}", f"--menu={'|'.join(rows)}"], environment)


def measure_few(session: DesktopSession, tray_host: Path) -> None:
    home = plant(session.root / "machine")
    share_folders(home)
    environment = session.environment | home.environment()
    vantrel = Program("vantrel", [measured_program()], environment)
    copyq = Program("copyq", [require(Path("/usr/bin/copyq"), "install the package copyq")], environment)
    yad = yad_with_menu(environment, [f"{number}!true" for number in range(ROWS)])
    with WindowTray(session, tray_host) as windows:
        # From then on the profiles are saved, and CopyQ has made its files.
        stop_all(windows, start_all(windows, [vantrel, copyq]))
        measure_start_in_window_tray(windows, [vantrel, copyq, yad])
        measure_memory(windows, [vantrel, copyq, yad])
        measure_rest(windows, [vantrel, copyq, yad])
    with BusTray(session) as tray:
        measure_start_in_bus_tray(tray, [vantrel, copyq])


def measure_many(session: DesktopSession, tray_host: Path) -> None:
    home = plant_many(session.root / "machine", PROFILES)
    share_folders(home)
    environment = session.environment | home.environment()
    vantrel = Program("vantrel", [measured_program()], environment)
    pictures = sorted(home.config.rglob("Google Profile Picture.png"))
    rows = [f"{number}!true!{pictures[number // 2] if number % 2 == 0 else ''}" for number in range(PROFILES)]
    with WindowTray(session, tray_host) as windows:
        measure_menu_in_window_tray(windows, [vantrel, yad_with_menu(environment, rows)])
    with BusTray(session) as tray:
        measure_menu_in_bus_tray(tray, vantrel)


def main() -> None:
    parser = argparse.ArgumentParser(description="Measures the running app.")
    parser.add_argument("tray_host", type=Path, help="the built program")
    tray_host = parser.parse_args().tray_host.resolve()
    for part in (measure_few, measure_many):
        with DesktopSession() as session:
            part(session, tray_host)


if __name__ == "__main__":
    main()
