"""Help, version, wrong usage, and the text that is made for people."""

import json

from Tests.Support import listed
from Tests.Support.browser_catalogue import row
from Tests.Support.command_line_case import CommandLineCase

CHROME = row("com.google.Chrome")

COMMANDS = ("list", "open", "link", "launcher", "doctor")


class Usage(CommandLineCase):
    def test_help_names_every_command(self) -> None:
        for option in ("--help", "-h"):
            text = self.output_of(option)
            for command in COMMANDS:
                self.assertRegex(text, rf"\b{command}\b")

    def test_the_help_of_a_command_names_its_options(self) -> None:
        for command, options in [("list", ("--json", "--all")), ("open", ("--dry-run", "--alert")),
                                 ("launcher", ("--output", "--remove")), ("doctor", ("--json",))]:
            text = self.output_of(command, "--help")
            for option in options:
                self.assertIn(option, text)

    def test_version_is_one_line_with_the_programs_name(self) -> None:
        self.assertRegex(self.output_of("--version"), r"\A[Vv]antrel \d+\.\d+\.\d+\S*\n\Z")

    def test_wrong_usage_is_told_from_failure(self) -> None:
        for arguments in [
            ("frobnicate",), ("List",), ("--frobnicate",), ("list", "--frobnicate"), ("list", "further"),
            ("list", "--json=yes"), ("open",), ("open", "--dry-run"), ("open", "--json", "x"), ("open", "--frobnicate"),
            ("link",), ("link", "--dry-run", "x"), ("launcher",), ("launcher", "a", "b"),
            ("launcher", "--output"), ("launcher", "--output", "/"), ("launcher", "--json", "x"),
            ("doctor", "further"), ("doctor", "--all"), ("",),
            ("\x1b[31m\nforged",), ("list", "--\x1b[31m\nforged"), ("--\nforged",), ("list", "\nforged"),
        ]:
            with self.subTest(arguments):
                message = self.assert_fails(*arguments, status=2)
                self.assertNotIn("\nforged", message)

    def test_a_failed_command_says_why_in_one_line_that_begins_with_the_programs_name(self) -> None:
        self.assert_fails("open", "Nobody")
        self.assert_fails("link", "Nobody")

    def test_two_dashes_end_the_options(self) -> None:
        chrome = self.home.install_with(CHROME, ("Default", "--dry-run"))
        shown = self.output_of("open", "--dry-run", "--", "--dry-run", "https://example.com/")
        titled = self.output_of("open", "--dry-run", "Google Chrome – --dry-run", "https://example.com/")
        self.assertEqual(shown, titled)
        self.output_of("open", "--", "--dry-run")
        started = self.home.browsers.wait_for(1)
        self.assertEqual([list(each.arguments) for each in started], [chrome.profile_command("Default")])

    def test_no_browser_at_all_is_an_empty_list(self) -> None:
        self.assertEqual(self.output_of("list", notes=["No browser Vantrel knows"]), "")
        self.assert_lists_no_browser()
        self.assert_fails("open", "Work")

    def test_neither_a_locale_nor_a_search_path_nor_a_session_is_needed(self) -> None:
        chrome = self.home.install_with(CHROME, ("Default", "Büro"))
        bare = {"LANG": "C", "LC_ALL": "C", "XDG_RUNTIME_DIR": None, "PATH": "/nonexistent"}
        self.assert_lists(listed.browser(CHROME, ("Default", "Büro")), **bare)
        shown = self.output_of("open", "--dry-run", "Google Chrome – Büro", **bare)
        self.assertEqual(json.loads(shown), chrome.profile_command("Default"))

    def test_folders_that_are_not_absolute_or_empty_are_those_of_the_home(self) -> None:
        self.home.install_with(CHROME, ("Default", "Work"))
        for value in ("", "relative"):
            with self.subTest(value):
                home = {"XDG_CONFIG_HOME": value, "XDG_DATA_HOME": value}
                self.assert_lists(listed.browser(CHROME, ("Default", "Work")), **home)

    def test_output_that_cannot_be_written_is_a_failure(self) -> None:
        self.home.install_with(CHROME, ("Default", "Work"))
        for command in ("list", "list --json", "doctor --json", "link Work", "--help"):
            with self.subTest(command):
                shell = ["/bin/sh", "-c", f'exec "$0" {command} > /dev/full', str(self.program)]
                answer = self.vantrel(wrapper=shell)
                self.assertEqual(answer.status, 1)
                self.assert_is_message(answer.errors)


class ListAsText(CommandLineCase):
    def test_titles_stand_in_one_column_and_ids_in_the_next(self) -> None:
        self.home.install_with(CHROME, ("Default", "W"), ("Profile 1", "A longer name"))
        titles = ["Google Chrome – W", "Google Chrome – A longer name", "Google Chrome – Incognito Window"]
        ids = [f"com.google.Chrome/{each}" for each in ("chromium:Default", "chromium:Profile 1", "private")]
        width = max(len(each) for each in titles)
        expected = [f"{title:{width}}  {profile_id}" for title, profile_id in zip(titles, ids, strict=True)]
        self.assertEqual(self.output_of("list").splitlines(), expected)

    def test_every_odd_name_stays_on_one_line_without_raw_control_characters(self) -> None:
        names = [
            "line\nfeed", "carriage\rreturn", "tab\there", "\x1b[31mred\x1b[0m", "bell\a", "nul\0inside", "delete\x7f",
            "next\x85line", "\x9b31mred", "שלום", "\u202eoverride", "line\u2028separator", "😀👨‍👩‍👧", "e\u0301", "   ",
            "-", "a" * 5000, "\\n", '"', "%s%n",
        ]
        profiles = [(f"Profile {number}", name) for number, name in enumerate(names)]
        self.home.install_with(CHROME, *profiles)
        output = self.output_of("list")
        self.assert_has_no_controls(output)
        lines = output.removesuffix("\n").split("\n")
        self.assertEqual(len(lines), len(names) + 1)
        for (folder, _name), line in zip(profiles, lines[:-1], strict=True):
            self.assertTrue(line.startswith("Google Chrome – "), line)
            self.assertTrue(line.endswith(f"  com.google.Chrome/chromium:{folder}"), line)
        for number, shown in [(0, r"line\nfeed"), (2, r"tab\there"), (3, r"\x1b[31mred\x1b[0m"), (9, "שלום")]:
            self.assertIn(f" – {shown}  ", lines[number])

    def test_odd_folders_and_browser_names_stay_on_one_line_too(self) -> None:
        self.home.install_with(CHROME, ("Profile \x1b[2J\n\t", "Odd folder"))
        entry = self.home.root / "usr" / "share" / "applications" / "google-chrome.desktop"
        entry.write_text(entry.read_text().replace("Name=Google Chrome", "Name=Google\\n\\tChrome\x1b[1m", 1))
        output = self.output_of("list")
        self.assert_has_no_controls(output)
        self.assertEqual(len(output.splitlines()), 2)
        self.assertIn(r"com.google.Chrome/chromium:Profile \x1b[2J\n\t", output)
