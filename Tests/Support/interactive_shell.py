"""Shells as a person uses them, with the completion of vantrel where they look for it."""

import fcntl
import os
import select
import shutil
import struct
import subprocess
import tempfile
import termios
import time
from collections.abc import Callable
from contextlib import ExitStack
from pathlib import Path

_ROOT = Path(__file__).resolve().parents[2]
_COMPLETION = _ROOT / "Packaging" / "Completion"
_PATIENCE_SECONDS = 60.0
_PROMPT = "the shell is ready> "
_ROWS, _COLUMNS = 50, 500  # a line that the shell has to break is hard to read

# The completion asks the real program.
_RECORDER = """#!/bin/sh
if [ "$*" = list ] && ! [ -t 1 ]; then
    exec "{program}" list
fi
printf '%s\\0' "$@" > "{record}.new"
/bin/mv "{record}.new" "{record}"
"""


class InteractiveShell:
    """A shell in a terminal of its own, in a planted home. `vantrel` only records its arguments there."""

    package = ""
    program = ""

    def __init__(self, home: Path, program: Path, environment: dict[str, str]) -> None:
        if shutil.which(self.program) is None:
            raise AssertionError(f"{self.program} is missing: install the package {self.package}")
        self.home = home
        self._record = home / "recorded"
        recorder = home / "programs" / "vantrel"
        recorder.parent.mkdir(exist_ok=True)
        recorder.write_text(_RECORDER.format(program=program, record=self._record), "utf-8")
        recorder.chmod(0o755)
        self.environment = environment | {
            "PATH": f"{recorder.parent}:{environment['PATH']}", "TERM": "xterm", "PS1": _PROMPT, "PROMPT": _PROMPT,
        }
        self._shown = b""
        self._parts = ExitStack()

    def __enter__(self) -> "InteractiveShell":
        self._terminal, theirs = os.openpty()
        fcntl.ioctl(theirs, termios.TIOCSWINSZ, struct.pack("HHHH", _ROWS, _COLUMNS, 0, 0))
        self._shell = subprocess.Popen(
            ["setsid", "--ctty", *self.command()], env=self.environment, cwd=self.home,
            stdin=theirs, stdout=theirs, stderr=theirs,
        )
        os.close(theirs)
        self._wait_until(lambda: _PROMPT.encode() in self._shown, "its prompt")
        return self

    def __exit__(self, *_: object) -> None:
        self._shell.kill()
        self._shell.wait()
        os.close(self._terminal)
        self._parts.close()

    def command(self) -> list[str]:
        raise NotImplementedError

    def arguments(self, typed: str) -> list[str]:
        """Those that vantrel gets when a person types this and presses Tab and Return."""
        self._record.unlink(missing_ok=True)
        self.type(f"{typed}\t\r")
        self._wait_until(self._record.exists, f"“{typed}” to be run")
        return self._record.read_text("utf-8").split("\0")[:-1]

    def type(self, keys: str) -> None:
        os.write(self._terminal, keys.encode())

    def _wait_until(self, condition: Callable[[], bool], what: str) -> None:
        deadline = time.monotonic() + _PATIENCE_SECONDS
        while not condition():
            ready, _, _ = select.select([self._terminal], [], [], 0.02)
            if ready:
                self._shown += os.read(self._terminal, 65536)
            if time.monotonic() > deadline:
                raise AssertionError(f"{self.program}: waited in vain for {what}. It shows {self._shown!r}")


def _install(source: str, target: Path) -> None:
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copyfile(_COMPLETION / source, target)


class Bash(InteractiveShell):
    package = program = "bash"

    def command(self) -> list[str]:
        # The loader splits the names of its folders at blanks, and a planted home has some.
        folder = tempfile.TemporaryDirectory(prefix="vantrel-completion-")
        self._parts.callback(folder.cleanup)
        self.environment["BASH_COMPLETION_USER_DIR"] = folder.name
        _install("vantrel.bash", Path(folder.name) / "completions" / "vantrel")
        library = Path("/usr/share/bash-completion/bash_completion")
        if not library.is_file():
            raise AssertionError("bash-completion is missing: install the package bash-completion")
        settings = self.home / ".bashrc"
        settings.write_text(f"PS1='{_PROMPT}'\n. {library}\n", "utf-8")
        return ["bash", "--rcfile", str(settings), "-i"]


class Zsh(InteractiveShell):
    package = program = "zsh"

    def command(self) -> list[str]:
        _install("_vantrel", self.home / "functions" / "_vantrel")
        # Without the style a tab with more keys behind it, as a fast typist sends them, may stand for itself.
        (self.home / ".zshrc").write_text(
            f"PROMPT='{_PROMPT}'\nfpath=(~/functions $fpath)\nautoload -Uz compinit\ncompinit -D -u\n"
            "zstyle ':completion:*' insert-tab false\n", "utf-8",
        )
        return ["zsh", "-d", "-i"]


class Fish(InteractiveShell):
    package = program = "fish"

    def command(self) -> list[str]:
        _install("vantrel.fish", self.home / ".config" / "fish" / "completions" / "vantrel.fish")
        prompt = f"function fish_prompt; echo -n '{_PROMPT}'; end\n"
        prompt += "set -g fish_greeting\nset -g fish_autosuggestion_enabled 0\n"
        (self.home / ".config" / "fish" / "config.fish").write_text(prompt, "utf-8")
        return ["fish", "-i"]


SHELLS = (Bash, Zsh, Fish)
