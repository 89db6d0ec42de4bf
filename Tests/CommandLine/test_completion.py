"""Completion on the command lines of bash, zsh and fish: what a person types, and what the program gets."""

import re
import unittest
from pathlib import Path

from Tests.Support.browser_catalogue import row
from Tests.Support.command_line_case import CommandLineCase
from Tests.Support.interactive_shell import SHELLS, Bash, Fish, InteractiveShell

CHROME = row("com.google.Chrome")
COMMANDS = ("list", "open", "link", "launcher", "doctor")
# Each begins with a letter of its own, which is what is typed of it.
ODD_NAMES = [
    "A plain one", "Büro \"heute\" & 'morgen'", "Cash $HOME ${X} $(id)", "Do `id`; #1", "Even\\odd \\n \\\\",
    "Files *.? [a-z] {b,c} ~", "Go <in> | >out", "H: i=j@k", "Let's 100% !! ^a^b", "John (x) – é",
]


class Completion(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        profiles = [(f"Profile {number}", name) for number, name in enumerate(ODD_NAMES)]
        self.home.install_with(CHROME, *profiles)
        titles = [line.split("  ")[0] for line in self.output_of("list").splitlines()]
        self.browser = titles[0].removesuffix(ODD_NAMES[0])

    def shell(self, kind: type[InteractiveShell]) -> InteractiveShell:
        return kind(self.home.home, self.program, self.home.environment())

    def assert_completes(self, shell: InteractiveShell, typed: str, *expected: str) -> None:
        self.assertEqual(shell.arguments(f"vantrel {typed}"), list(expected), (shell.program, typed))

    def test_commands_and_options(self) -> None:
        for kind in SHELLS:
            with self.subTest(kind.program), self.shell(kind) as shell:
                self.assert_completes(shell, "do", "doctor")
                self.assert_completes(shell, "lau", "launcher")
                self.assert_completes(shell, "set", "settings")
                self.assert_completes(shell, "--v", "--version")
                self.assert_completes(shell, "list --js", "list", "--json")
                self.assert_completes(shell, "launcher --rem", "launcher", "--remove")

    def test_every_command_and_option_of_the_help_is_completed(self) -> None:
        commands = re.findall(r"^  ([a-z]+) ", self.output_of("--help"), re.MULTILINE)
        self.assertEqual(commands[:len(COMMANDS)], list(COMMANDS))
        for kind in SHELLS:
            with self.subTest(kind.program), self.shell(kind) as shell:
                for command in commands:
                    self.assert_completes(shell, command[:-1], command)
                for command in COMMANDS:
                    for option in re.findall(r"^  (--[a-z-]+)", self.output_of(command, "--help"), re.MULTILINE):
                        self.assert_completes(shell, f"{command} {option[:-1]}", command, option)

    def assert_titles_are_completed(self, shell: InteractiveShell, quote: str, begin: str) -> None:
        """`quote` opens what is typed, `begin` is the browser's name as it is typed after it."""
        for name in ODD_NAMES:
            typed = f"link {quote}{begin}{name[0]}"
            self.assert_completes(shell, typed, "link", self.browser + name)

    def test_titles_are_quoted_whatever_they_hold(self) -> None:
        for kind in SHELLS:
            with self.subTest(kind.program), self.shell(kind) as shell:
                self.assert_titles_are_completed(shell, "", self.browser.replace(" ", "\\ "))

    def test_titles_go_on_between_quotes(self) -> None:
        for kind in SHELLS:
            for quote in ("'", '"'):
                with self.subTest(kind.program + quote), self.shell(kind) as shell:
                    self.assert_titles_are_completed(shell, quote, self.browser)

    def test_what_is_completed_names_the_profile(self) -> None:
        for number, name in enumerate(ODD_NAMES):
            link = self.output_of("link", self.browser + name)
            self.assertIn(f"chromium:Profile%20{number}", link)

    def test_profiles_with_one_title_are_completed_by_their_ids(self) -> None:
        self.home.install_with(CHROME, ("Default", "Twice"), ("Profile 1", "Twice"), ("Profile 2", "Once"))
        for kind in SHELLS:
            with self.subTest(kind.program), self.shell(kind) as shell:
                self.assert_completes(shell, "open com", "open", "com.google.Chrome/chromium:")
                self.assert_completes(shell, "open com.google.Chrome/chromium:D", "open",
                                      "com.google.Chrome/chromium:Default")

    def test_files_follow_the_profile_and_folders_the_option_for_one(self) -> None:
        Path(self.home.home, "a page.html").touch()
        Path(self.home.home, "a folder").mkdir()
        for kind in SHELLS:
            with self.subTest(kind.program), self.shell(kind) as shell:
                self.assert_completes(shell, "open --dry-run x a\\ p", "open", "--dry-run", "x", "a page.html")
                arguments = shell.arguments("vantrel launcher --output a")
                self.assertEqual([each.rstrip("/") for each in arguments], ["launcher", "--output", "a folder"])

    def test_nothing_of_a_word_is_run_to_complete_it(self) -> None:
        # A tab in zsh does so by itself.
        for kind in (Bash, Fish):
            with self.subTest(kind.program), self.shell(kind) as shell:
                # After the tab all that was typed is taken away again.
                shell.type('vantrel open "$(touch trap)\t\x15')
                self.assert_completes(shell, "do", "doctor")
                self.assertFalse(Path(self.home.home, "trap").exists())


if __name__ == "__main__":
    unittest.main()
