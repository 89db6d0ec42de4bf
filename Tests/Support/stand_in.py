"""Stand-in browsers: programs that only record how they were started."""

import os
import shlex
import time
from dataclasses import dataclass
from pathlib import Path

WAIT_SECONDS = 20.0

# The log's place is written into the program: the environment and the arguments belong to what is being tested.
_SCRIPT = """#!/bin/sh
# Records one start as a new folder, complete as soon as its name begins with "start".
log={log}
started=$(/usr/bin/mktemp -d -p "$log") || exit 1
printf '%s\\0' "$0" "$@" > "$started/arguments"
# In a shell of its own: this one's output must not be redirected while it is looked at.
(/usr/bin/readlink "/proc/$$/fd/0" "/proc/$$/fd/1" "/proc/$$/fd/2" > "$started/streams")
pwd -P > "$started/folder"
read -r stat < "/proc/$$/stat"
printf '%s' "$stat" > "$started/stat"
/bin/cat "/proc/$$/environ" > "$started/environment"
/bin/mv "$started" "$log/start.${{started##*.}}"
"""


@dataclass(frozen=True)
class Start:
    """One start of a stand-in: the program's path and its arguments, and the circumstances."""

    arguments: tuple[str, ...]
    folder: str
    streams: tuple[str, ...]
    session: int
    environment: dict[str, str]


class StandIns:
    """Makes stand-in browsers and reads their common log, a folder."""

    def __init__(self, log: Path) -> None:
        self._log = log
        log.mkdir(parents=True)

    def make(self, program: Path) -> Path:
        program.parent.mkdir(parents=True, exist_ok=True)
        program.write_text(_SCRIPT.format(log=shlex.quote(str(self._log))), encoding="utf-8")
        program.chmod(0o755)
        return program

    def clear(self) -> None:
        """Forgets the starts so far."""
        for start in self._complete():
            for record in start.iterdir():
                record.unlink()
            start.rmdir()

    def wait_for(self, count: int) -> list[Start]:
        """The starts, in no particular order, once there are at least this many; fails when they take too long."""
        deadline = time.monotonic() + WAIT_SECONDS
        while len(found := self._complete()) < count:
            if time.monotonic() > deadline:
                raise AssertionError(f"{len(found)} of {count} browsers started within {WAIT_SECONDS:.0f} seconds")
            time.sleep(0.002)
        return [_read(each) for each in found]

    def _complete(self) -> list[Path]:
        return list(self._log.glob("start.*"))


def _read(start: Path) -> Start:
    # The process's name, which may hold blanks, stands between parentheses; the session's id is the fourth field after.
    session = int((start / "stat").read_text().rpartition(")")[2].split()[3])
    environment = dict(each.split("=", 1) for each in _words(start / "environment") if "=" in each)
    streams = tuple((start / "streams").read_text().splitlines())
    folder = os.fsdecode((start / "folder").read_bytes()).removesuffix("\n")
    return Start(tuple(_words(start / "arguments")), folder, streams, session, environment)


def _words(file: Path) -> list[str]:
    return os.fsdecode(file.read_bytes()).split("\0")[:-1]
