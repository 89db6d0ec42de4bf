"""The base of the tests that start the real program in a planted home."""

import json
import os
import pwd
import shutil
import subprocess
import unicodedata
import unittest
from collections.abc import Sequence
from dataclasses import dataclass
from pathlib import Path
from typing import Any

from .listed import MEMBERS
from .planted_home import Installation, PlantedHome

TIMEOUT_SECONDS = 60
UNPRIVILEGED_USER = "nobody"


@dataclass(frozen=True)
class Answer:
    status: int
    output: str
    errors: str


class CommandLineCase(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls) -> None:
        cls.program = _program()

    def setUp(self) -> None:
        self.new_home()

    def new_home(self) -> None:
        """Starts afresh: for loops that need a home for each case."""
        self.home = PlantedHome()
        self.addCleanup(self.home.remove)

    # Running

    def vantrel(self, *arguments: str, wrapper: Sequence[str] = (), **environment: str | None) -> Answer:
        """Starts the program, in a working folder that is not the home; the keywords change the environment."""
        return self._run([*wrapper, str(self.program), *arguments], self.home.environment(**environment))

    def vantrel_without_privileges(self, *arguments: str) -> Answer:
        """As vantrel, but never with root's power to read every file."""
        if os.geteuid() != 0:
            return self.vantrel(*arguments)
        # The program's own folder may be closed to the other user, as one below root's home is.
        copy = shutil.copy(self.program, self.home.root / "vantrel")
        for path in [self.home.root, *self.home.root.rglob("*")]:
            shutil.chown(path, UNPRIVILEGED_USER) if not path.is_symlink() else None
        user = pwd.getpwnam(UNPRIVILEGED_USER)
        identity = {"user": user.pw_uid, "group": user.pw_gid, "extra_groups": []}
        return self._run([str(copy), *arguments], self.home.environment(), **identity)

    def output_of(self, *arguments: str, notes: Sequence[str] = (), **environment: str | None) -> str:
        """The output of a command that must succeed, with one note on standard error about each of these texts."""
        answer = self.vantrel(*arguments, **environment)
        self.assertEqual(answer.status, 0, answer.errors)
        self.assert_notes(answer.errors, notes)
        return answer.output

    # Expecting

    def assert_lists(self, expected: list[dict[str, Any]], *options: str, **environment: str | None) -> None:
        self.assertEqual(self.parsed(self.output_of("list", "--json", *options, **environment)), expected)

    def assert_lists_no_browser(self, *arguments: str, **environment: str | None) -> None:
        output = self.output_of("list", "--json", *arguments, notes=["No browser Vantrel knows"], **environment)
        self.assertEqual(self.parsed(output), [])

    def parsed(self, output: str) -> list[dict[str, Any]]:
        """A listing, whose elements must have their members in the documented order."""
        listing = json.loads(output)
        self.assertEqual([list(each) for each in listing], [MEMBERS] * len(listing))
        return listing

    def assert_lists_names(self, expected: list[str]) -> None:
        """The display names of all that is listed, private windows left out."""
        listing = self.parsed(self.output_of("list", "--json"))
        self.assertEqual([each["displayName"] for each in listing if not each["private"]], expected)

    def assert_fails(self, *arguments: str, status: int = 1, **environment: str | None) -> str:
        """The message of a command that must fail and print nothing else."""
        answer = self.vantrel(*arguments, **environment)
        self.assertEqual((answer.status, answer.output), (status, ""), (arguments, answer.errors))
        self.assert_is_message(answer.errors)
        return answer.errors

    def assert_is_message(self, errors: str) -> None:
        self.assertRegex(errors, r"\Avantrel: \S")
        self.assertTrue(errors.endswith("\n"), errors)
        self.assert_has_no_controls(errors)

    def assert_notes(self, errors: str, notes: Sequence[str]) -> None:
        self.assert_has_no_controls(errors)
        lines = errors.splitlines()
        self.assertEqual(len(lines), len(notes), errors)
        for line, note in zip(lines, notes, strict=True):
            self.assertTrue(line.startswith("vantrel: "), line)
            self.assertIn(note, line)

    def assert_has_no_controls(self, text: str) -> None:
        controls = sorted({each for each in text if unicodedata.category(each) == "Cc"} - {"\n"})
        self.assertEqual(controls, [], f"control characters in {text!r}")

    def assert_opens(
        self,
        installation: Installation,
        profile: str,
        links: Sequence[str],
        commands: list[list[str]],
        left_out: Sequence[str] = (),
    ) -> None:
        """The profile and links must start exactly these commands, whether they are shown or really started.

        Links that are left out must each be noted on standard error.
        """
        notes = [f"“{each}”" for each in left_out]
        shown = self.output_of("open", "--dry-run", profile, *links, notes=notes)
        self.assertEqual([json.loads(line) for line in shown.splitlines()], commands)
        self.home.browsers.clear()
        self.assertEqual(self.output_of("open", profile, *links, notes=notes), "")
        started = self.home.browsers.wait_for(len(commands))
        expected = sorted(tuple(installation.as_started(each)) for each in commands)
        self.assertEqual(sorted(each.arguments for each in started), expected)

    def _run(self, command: list[str], environment: dict[str, str], **options: Any) -> Answer:
        done = subprocess.run(
            command, env=environment, cwd="/", capture_output=True, timeout=TIMEOUT_SECONDS, check=False,
            stdin=subprocess.DEVNULL, **options,
        )
        return Answer(done.returncode, done.stdout.decode("utf-8"), done.stderr.decode("utf-8"))


def _program() -> Path:
    program = Path(os.environ.get("VANTREL", ""))
    if not program.is_file():
        raise AssertionError("The variable VANTREL does not name the program that is to be tested.")
    return program.absolute()
