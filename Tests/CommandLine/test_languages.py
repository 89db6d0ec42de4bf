"""The language of the command line: that of people, and never of what other programs read."""

import json

from Tests.Support.browser_catalogue import row
from Tests.Support.command_line_case import CommandLineCase

CHROME = row("com.google.Chrome")
GERMAN = {"LANGUAGE": "de"}
ARABIC = {"LANGUAGE": "ar"}


class Languages(CommandLineCase):
    def test_people_read_their_own_language(self) -> None:
        self.home.install_with(CHROME, ("Default", "Work"))
        self.assertTrue(self.output_of("--help").startswith("Usage: vantrel "))
        self.assertTrue(self.output_of("--help", **GERMAN).startswith("Aufruf: vantrel "))
        self.assertIn("Google Chrome – Inkognitofenster", self.output_of("list", **GERMAN))

    def test_a_profile_is_named_as_it_is_shown(self) -> None:
        chrome = self.home.install_with(CHROME, ("Default", "Work"))
        shown = self.output_of("open", "--dry-run", "Inkognitofenster", **GERMAN)
        self.assertEqual([json.loads(line) for line in shown.splitlines()], chrome.private_commands())

    def test_the_c_locale_is_english_whatever_other_variables_say(self) -> None:
        self.assertEqual(self.output_of("--help", LC_ALL="C", **GERMAN), self.output_of("--help"))

    def test_a_language_without_texts_leaves_english(self) -> None:
        self.assertEqual(self.output_of("--help", LANGUAGE="he"), self.output_of("--help"))

    def test_programs_read_the_same_in_every_language(self) -> None:
        self.home.install_with(CHROME, ("Default", "Work"))
        for command in (("list", "--json", "--all"), ("doctor", "--json"), ("link", "Work"),
                        ("open", "--dry-run", "Work", "https://example.com/")):
            with self.subTest(command):
                self.assertEqual(self.output_of(*command, **GERMAN), self.output_of(*command))

    def test_right_to_left_messages_need_no_escapes(self) -> None:
        for arguments in (("open", "Nobody"), ("open",), ("frobnicate",), ("list", "--frobnicate")):
            with self.subTest(arguments):
                message = self.vantrel(*arguments, **ARABIC).errors
                self.assertRegex(message, "[\u0600-\u06ff]")
                self.assertNotIn("\\u", message)
