"""The processes that descend from this one, also those that were started to live on their own."""

import ctypes
import os
import signal
from collections.abc import Iterable, Iterator
from contextlib import contextmanager, suppress
from dataclasses import dataclass
from pathlib import Path

from Tests.Desktop.waiting import wait_for

_PR_SET_CHILD_SUBREAPER = 36


@dataclass(frozen=True)
class Process:
    pid: int
    parent: int
    state: str
    session: int
    terminal: int  # 0: none
    command: str  # the arguments, joined by blanks: browsers overwrite their own like that

    @property
    def has_ended(self) -> bool:
        return self.state in "ZX"


def adopt_orphans() -> None:
    """From now on a descendant that loses its parent becomes a child of this process."""
    library = ctypes.CDLL(None, use_errno=True)
    if library.prctl(_PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0) != 0:
        raise OSError(ctypes.get_errno(), "prctl")


def descendants() -> list[Process]:
    """All processes below this one that have not ended."""
    children: dict[int, list[Process]] = {}
    for process in _all_processes():
        children.setdefault(process.parent, []).append(process)
    found: list[Process] = []
    parents = [os.getpid()]
    while parents:
        below = children.get(parents.pop(), [])
        found += below
        parents += [each.pid for each in below]
    _bury(each for each in found if each.has_ended)
    return [each for each in found if not each.has_ended]


def end_descendants() -> None:
    """Kills until nothing is left: the children of a killed process become this process's own."""

    def is_alone() -> bool:
        left = descendants()
        kill(each.pid for each in left)
        return not left

    wait_for(is_alone, "the end of all processes")


def kill(pids: Iterable[int]) -> None:
    for pid in pids:
        with suppress(ProcessLookupError):
            os.kill(pid, signal.SIGKILL)


@contextmanager
def paused(pid: int) -> Iterator[None]:
    """The process stands still meanwhile: it can't answer anybody."""
    os.kill(pid, signal.SIGSTOP)
    try:
        yield
    finally:
        os.kill(pid, signal.SIGCONT)


def _bury(ended: Iterable[Process]) -> None:
    for process in ended:
        if process.parent == os.getpid():
            with suppress(ChildProcessError):
                os.waitpid(process.pid, os.WNOHANG)


def _all_processes() -> Iterator[Process]:
    for folder in Path("/proc").iterdir():
        if folder.name.isdigit():
            with suppress(FileNotFoundError, ProcessLookupError):
                yield _read(folder)


def _read(folder: Path) -> Process:
    # The program's name stands in parentheses and may hold any character.
    fields = (folder / "stat").read_text("utf-8", "replace").rpartition(")")[2].split()
    state, parent, _group, session, terminal = fields[:5]
    command = (folder / "cmdline").read_bytes().decode("utf-8", "replace").removesuffix("\0").replace("\0", " ")
    return Process(int(folder.name), int(parent), state, int(session), int(terminal), command)
