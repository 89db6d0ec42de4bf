"""A terminal that is closed while what was started in it still runs."""

import os
import select
import subprocess
from collections.abc import Sequence
from typing import BinaryIO

from Tests.Desktop.waiting import PATIENCE_SECONDS

# After the command the shell goes on as a program that waits for input.
_SCRIPT = '"$@"; echo "ended with $?"; exec cat'
_LAST_LINE = b"ended with "


def run_in_terminal_and_close_it(command: Sequence[str], environment: dict[str, str]) -> tuple[str, int]:
    """What the terminal showed before it was closed, the command's status last; and the terminal's session."""
    ours, theirs = os.openpty()
    with open(ours, "rb", buffering=0) as screen:
        shell = subprocess.Popen(
            ["setsid", "--ctty", "sh", "-c", _SCRIPT, "sh", *command], env=environment,
            stdin=theirs, stdout=theirs, stderr=theirs,
        )
        os.close(theirs)
        shown = _read_to_last_line(screen)
    # All that is in the terminal's foreground gets the signal of the hang-up.
    shell.wait(PATIENCE_SECONDS)
    return shown, shell.pid


def _read_to_last_line(screen: BinaryIO) -> str:
    shown = b""
    while _LAST_LINE not in shown or not shown.endswith(b"\n"):
        ready, _, _ = select.select([screen], [], [], PATIENCE_SECONDS)
        if not ready:
            raise AssertionError(f"the command did not end in its terminal, which shows {shown!r}")
        shown += screen.read(1024)
    return shown.decode().replace("\r\n", "\n")
