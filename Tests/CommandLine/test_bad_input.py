"""Folders that cannot be read, programs that cannot be started, hostile texts."""

import json
import os
import resource
import time
from pathlib import Path

from Tests.Support import desktop_entries, listed
from Tests.Support.browser_catalogue import Packaging, row
from Tests.Support.browser_data import ChromiumProfile, FirefoxProfile
from Tests.Support.browser_data import plant_chromium, plant_firefox, plant_profile_groups, write
from Tests.Support.command_line_case import CommandLineCase
from Tests.Support.saved_state import saved_private, saved_profile, saved_state

CHROME = row("com.google.Chrome")
FIREFOX = row("org.mozilla.firefox")
BRAVE = row("com.brave.Browser")

DEFAULT = "com.google.Chrome/chromium:Default"

# The kernel's bound for one argument, its end included.
LONGEST_ARGUMENT = 32 * os.sysconf("SC_PAGE_SIZE")


class UnreadableFolders(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.chrome = self.home.install_with(CHROME, ("Default", "Work"))
        self.home.install_with(BRAVE, ("Default", "Play"))
        self.readable = listed.browser(BRAVE, ("Default", "Play"))

    def check_list(self, folder: Path, expected: list[dict[str, object]]) -> None:
        """Everything else must be listed, and the folder be named on standard error."""
        for options in (["--json"], []):
            answer = self.vantrel_without_privileges("list", *options)
            self.assertEqual(answer.status, 1, answer)
            self.assert_is_message(answer.errors)
            self.assertIn(str(folder), answer.errors)
            if options:
                self.assertEqual(self.parsed(answer.output), expected)
            else:
                ids = [line.split("  ")[-1].strip() for line in answer.output.splitlines()]
                self.assertEqual(ids, [each["id"] for each in expected])

    def check_doctor(self, bundle_id: str, kind: str, folder: Path) -> None:
        answer = self.vantrel_without_privileges("doctor", "--json")
        self.assertEqual(answer.status, 1, answer.errors)
        (error,) = [each["error"] for each in json.loads(answer.output) if each["browserBundleIdentifier"] == bundle_id]
        self.assertEqual((list(error), error["kind"], error["path"]), (["kind", "path", "reason"], kind, str(folder)))
        text = self.vantrel_without_privileges("doctor")
        self.assertEqual(text.status, 1)
        self.assertIn(str(folder), text.output + text.errors)

    def test_a_closed_data_folder_is_named_and_everything_else_is_listed(self) -> None:
        self.chrome.data_folder.chmod(0)
        self.check_list(self.chrome.data_folder, [*self.readable, listed.private(CHROME)])
        self.check_doctor("com.google.Chrome", "accessDenied", self.chrome.data_folder)

    def test_a_closed_data_folder_keeps_the_saved_profiles(self) -> None:
        saved = [saved_profile(CHROME, "Profile 3", "Saved"), saved_private(CHROME)]
        self.home.plant_saved_state(saved_state(saved))
        self.chrome.data_folder.chmod(0)
        self.check_list(
            self.chrome.data_folder, [*listed.browser(CHROME, ("Profile 3", "Saved")), *self.readable]
        )

    def test_a_folder_that_can_be_listed_but_not_entered_gives_what_can_be_known(self) -> None:
        self.chrome.data_folder.chmod(0o400)
        answer = self.vantrel_without_privileges("list", "--json")
        ids = {each["id"] for each in self.parsed(answer.output)}
        self.assertLessEqual({each["id"] for each in self.readable}, ids)

    def test_closed_files_within_a_data_folder_leave_the_fallback_names(self) -> None:
        (self.chrome.data_folder / "Local State").chmod(0)
        answer = self.vantrel_without_privileges("list", "--json")
        self.assertEqual((answer.status, answer.errors), (0, ""))
        expected = [*self.readable, *listed.browser(CHROME, ("Default", "Default"))]
        self.assertEqual(self.parsed(answer.output), expected)

    def test_a_closed_saved_file_counts_as_none(self) -> None:
        self.home.plant_saved_state(saved_state(hidden=[DEFAULT])).chmod(0)
        answer = self.vantrel_without_privileges("list", "--json")
        self.assertEqual((answer.status, answer.errors), (0, ""))
        self.assertEqual(self.parsed(answer.output), [*self.readable, *listed.browser(CHROME, ("Default", "Work"))])

    def test_a_closed_folder_of_entries_hides_its_browsers_alone(self) -> None:
        self.home.shares[Packaging.NATIVE] = self.home.data
        self.home.install_with(FIREFOX, ("p", "Fox"))
        (self.home.root / "usr" / "share" / "applications").chmod(0)
        answer = self.vantrel_without_privileges("list", "--json")
        self.assertEqual((answer.status, answer.errors), (0, ""))
        fox = self.home.home / ".mozilla" / "firefox" / "p"
        self.assertEqual(self.parsed(answer.output), listed.browser(FIREFOX, (fox, "Fox")))

    def test_a_closed_folder_of_profile_groups_is_named(self) -> None:
        firefox = self.home.install(FIREFOX)
        plant_firefox(firefox.data_folder, [FirefoxProfile("p", "Fox")])
        groups = plant_profile_groups(firefox.data_folder, [("q", "Grouped")]).parent
        groups.chmod(0)
        chrome = listed.browser(CHROME, ("Default", "Work"))
        self.check_list(groups, [*self.readable, listed.private(FIREFOX), *chrome])
        self.check_doctor("org.mozilla.firefox", "accessDenied", groups)

    def test_a_data_folder_that_is_no_folder_is_named(self) -> None:
        for make in (lambda path: path.write_text(""), lambda path: path.symlink_to(path.name)):
            self.new_home()
            self.home.install_with(BRAVE, ("Default", "Play"))
            self.home.install(CHROME)
            folder = self.home.config / "google-chrome"
            make(folder)
            self.check_list(folder, [*self.readable, listed.private(CHROME)])
            self.check_doctor("com.google.Chrome", "readFailed", folder)

    def test_a_closed_folder_does_not_hinder_opening_another_browser(self) -> None:
        self.chrome.data_folder.chmod(0)
        answer = self.vantrel_without_privileges("open", "--dry-run", "com.brave.Browser/chromium:Default")
        self.assertEqual(answer.status, 0, answer.errors)
        self.assertEqual(json.loads(answer.output)[1:], ["--profile-directory=Default"])


class ProgramsThatDoNotStart(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.chrome = self.home.install_with(CHROME, ("Default", "Work"))
        self.browser = Path(self.chrome.words[0])

    def test_a_missing_interpreter_is_reported(self) -> None:
        self.browser.write_text("#!/nonexistent/interpreter\n")
        self.assert_lists(listed.browser(CHROME, ("Default", "Work")))
        self.assert_fails("open", DEFAULT)

    def test_a_file_that_is_no_program_is_reported(self) -> None:
        self.browser.write_bytes(b"\x7fELF but not really")
        self.assert_fails("open", DEFAULT)

    def test_a_program_that_may_not_be_executed_does_not_count(self) -> None:
        self.browser.chmod(0o644)
        self.assert_lists_no_browser()
        self.assert_fails("open", DEFAULT)

    def test_after_a_failure_no_further_start_is_tried(self) -> None:
        firefox = self.home.install(FIREFOX)
        Path(firefox.words[0]).write_text("#!/nonexistent/interpreter\n")
        message = self.assert_fails("open", "org.mozilla.firefox/private", "https://a.example/", "https://b.example/")
        self.assertEqual(message.count("\n"), 1, message)

    def test_entries_that_are_no_entries_are_passed_over(self) -> None:
        for text in [
            b"", b"\0" * 100, b"[Other]\nExec=true\n", b"[Desktop Entry]\nExec=\xff %U\n",
            b"[Desktop Entry]\nType=Application\nName=X\n",
            b"[Desktop Entry]\nType=Application\nName=X\nExec=\"unclosed\n",
        ]:
            with self.subTest(text):
                write(self.home.shares[Packaging.NATIVE] / "applications" / "brave-browser.desktop", text)
                self.assert_lists(listed.browser(CHROME, ("Default", "Work")))

    def test_an_entry_may_be_a_folder_or_a_dangling_link(self) -> None:
        applications = self.home.shares[Packaging.NATIVE] / "applications"
        (applications / "brave-browser.desktop").mkdir()
        (applications / "microsoft-edge.desktop").symlink_to("nowhere")
        self.assert_lists(listed.browser(CHROME, ("Default", "Work")))


class Sizes(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.chrome = self.home.install_with(CHROME, ("Default", "Work"))

    def test_two_thousand_profiles_are_listed_in_order_and_in_time(self) -> None:
        profiles = [(f"Profile {number}", f"Name {number}") for number in range(1, 2001)]
        plant_chromium(self.chrome.data_folder, [ChromiumProfile(*each) for each in profiles])
        (self.chrome.data_folder / "Default" / "Preferences").unlink()
        (self.chrome.data_folder / "Default").rmdir()
        began = time.monotonic()
        self.assert_lists(listed.browser(CHROME, *profiles))
        self.assertLess(time.monotonic() - began, 10)
        command = self.chrome.profile_command("Profile 2000")
        self.assert_opens(self.chrome, "Name 2000", [], [command])

    def test_the_longest_possible_link_is_passed_on(self) -> None:
        link = "https://example.com/".ljust(LONGEST_ARGUMENT - 1, "a")
        self.assert_opens(self.chrome, DEFAULT, [link], [self.chrome.profile_command("Default", link)])
        printed = self.output_of("link", DEFAULT, link).removesuffix("\n")
        self.assertTrue(printed.endswith(f"&url={link}"))

    def test_the_longest_possible_names_are_refused_like_others(self) -> None:
        text = "x" * (LONGEST_ARGUMENT - 1)
        prefix = "vantrel://?browserBundleIdentifier=com.google.Chrome&profileName="
        for name in (text, (prefix + text)[: LONGEST_ARGUMENT - 1], "%" + text[1:], "vantrel://?" + text[11:]):
            self.assert_fails("open", name)

    def test_a_command_line_beyond_the_systems_bound_is_reported(self) -> None:
        # The entry's own argument carries what the command was started with beyond the bound.
        stack = 8 << 20
        own = "--own=" + "x" * (64 << 10)
        command_line = f"{desktop_entries.exec_word(self.chrome.words[0])} {own} %U"
        text = desktop_entries.entry("Google Chrome", command_line)
        self.home.plant_entry(self.home.shares[Packaging.NATIVE], "google-chrome", text)
        self.addCleanup(resource.setrlimit, resource.RLIMIT_STACK, resource.getrlimit(resource.RLIMIT_STACK))
        resource.setrlimit(resource.RLIMIT_STACK, (stack, resource.getrlimit(resource.RLIMIT_STACK)[1]))
        environment = sum(len(f"{name}={value}".encode()) + 9 for name, value in self.home.environment().items())
        length = 100_000
        count, rest = divmod(stack // 4 - environment - (32 << 10), length + 9)
        links = ["https://example.com/".ljust(each, "a") for each in [*[length] * count, rest]]
        self.assert_fails("open", DEFAULT, *links)
        self.output_of("open", DEFAULT, *links[:2])
        self.assertEqual(len(self.home.browsers.wait_for(1)), 1)


class HostileTexts(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.home.install_with(CHROME, ("Default", "Work"))

    def test_messages_carry_no_control_characters(self) -> None:
        for text in ["\x1b[2Jx", "a\nvantrel: forged", "\r", "\a", "\x7f", "\x9b31m", "\x85", "\x1b]0;owned\a", "\t"]:
            for name in (
                text,
                listed.link("com.google.Chrome", text, ""),
                listed.link(text, text, f"{text}/private"),
                f"vantrel://{text}",
                f"com.google.Chrome/{text}",
            ):
                with self.subTest(name):
                    message = self.assert_fails("open", name)
                    self.assertNotIn("\nvantrel: forged", message)

    def test_links_that_are_left_out_are_named_without_control_characters(self) -> None:
        for link in ["javascript:\x1b[2J", "\x9b31m:x", "mailto:a\nvantrel: forged", "mailto:\x7f", "mailto:\udcff"]:
            with self.subTest(link):
                self.output_of("open", "--dry-run", DEFAULT, link, notes=["Left out"])

    def test_candidates_are_shown_without_control_characters(self) -> None:
        hostile = "\x1b]0;owned\a"
        self.home.install_with(CHROME, ("Profile 1", hostile), ("Profile 2", hostile))
        message = self.assert_fails("open", hostile)
        self.assertIn("chromium:Profile 1", message)
        self.assertIn("chromium:Profile 2", message)

    def test_arguments_that_are_not_utf_8_are_refused(self) -> None:
        link = "vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Work\udcff"
        for name in ("\udcff\udcfe", "Work\udcff", link):
            self.assert_fails("open", name)

    def test_percent_signs_that_encode_nothing_are_refused(self) -> None:
        for name in ("%", "%zz", "%ff%fe", "%0"):
            self.assert_fails("open", f"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName={name}")
