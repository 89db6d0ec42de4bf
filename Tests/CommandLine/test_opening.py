"""How browsers are started: from which command line, with which links, in which circumstances."""

import json
import os
import time
from pathlib import Path
from urllib.parse import quote

from Tests.Support import desktop_entries
from Tests.Support.browser_catalogue import Packaging, row
from Tests.Support.command_line_case import CommandLineCase
from Tests.Support.desktop_entries import exec_word
from Tests.Support.planted_home import Installation
from Tests.Support.stand_in import WAIT_SECONDS

CHROME = row("com.google.Chrome")
EDGE = row("com.microsoft.edgemac")
FIREFOX = row("org.mozilla.firefox")

DEFAULT = "com.google.Chrome/chromium:Default"
SWITCH = "--profile-directory=Default"
WEB = "https://example.com/"
FILE = "file:///tmp/a%20b.html"

# Command lines after the program, and what they become with the switch and a link in the place of ARGUMENTS.
ARGUMENTS = ["<arguments>"]
COMMAND_LINES: list[tuple[str, list[str]]] = [
    ("", ARGUMENTS),
    ("%U", ARGUMENTS),
    ("%u", ARGUMENTS),
    ("%F", ARGUMENTS),
    ("%f", ARGUMENTS),
    ("--first %U --last", ["--first", *ARGUMENTS, "--last"]),
    ("--first", ["--first", *ARGUMENTS]),
    ("--quiet=100%% %U", ["--quiet=100%", *ARGUMENTS]),
    ('"two words" "" %U', ["two words", "", *ARGUMENTS]),
    (exec_word("a \"quoted\" $HOME `id` \\ %U é😀") + " %U", ["a \"quoted\" $HOME `id` \\ %U é😀", *ARGUMENTS]),
    ("%i %U", ["--icon", "the icon", *ARGUMENTS]),
    ("--name %c %U", ["--name", "Google Chrome", *ARGUMENTS]),
    ("--deprecated %d %D %n %N %v %m %U", ["--deprecated", *ARGUMENTS]),
]


class CommandLines(CommandLineCase):
    def install(self, after_the_program: str, **keys: str) -> Installation:
        installation = self.home.install_with(CHROME, ("Default", "Work"))
        command_line = f"{exec_word(installation.words[0])} {after_the_program}"
        self.plant_entry(command_line, **keys)
        return installation

    def plant_entry(self, command_line: str, **keys: str) -> Path:
        text = desktop_entries.entry("Google Chrome", command_line, **keys)
        return self.home.plant_entry(self.home.shares[Packaging.NATIVE], "google-chrome", text)

    def test_arguments_take_the_place_of_the_field_code(self) -> None:
        for after_the_program, expected in COMMAND_LINES:
            with self.subTest(after_the_program):
                chrome = self.install(after_the_program, Icon="the icon")
                for links in ([], [WEB, FILE]):
                    place = expected.index(*ARGUMENTS)
                    words = [*expected[:place], SWITCH, *links, *expected[place + 1:]]
                    self.assert_opens(chrome, DEFAULT, links, [[chrome.words[0], *words]])

    def test_a_flatpak_without_marks_around_its_field_code_gets_the_links_as_they_are(self) -> None:
        for field_code in ("%U", ""):
            with self.subTest(field_code):
                self.new_home()
                chrome = self.home.install(CHROME, CHROME.variant(Packaging.FLATPAK))
                words = [*chrome.words[:5], "com.google.Chrome"]
                command_line = " ".join([*map(exec_word, words), field_code])
                text = desktop_entries.entry("Google Chrome", command_line, **{"X-Flatpak": "com.google.Chrome"})
                self.home.plant_entry(self.home.shares[Packaging.FLATPAK], "com.google.Chrome", text)
                command = [*words, "--incognito", WEB, FILE]
                self.assert_opens(chrome, "com.google.Chrome/private", [WEB, FILE], [command])

    def test_variables_set_by_the_entry_reach_the_browser(self) -> None:
        chrome = self.install("")
        self.plant_entry(f"env PLANTED_VARIABLE=value {exec_word(chrome.words[0])} %U")
        self.output_of("open", DEFAULT)
        (start,) = self.home.browsers.wait_for(1)
        self.assertEqual((start.environment["PLANTED_VARIABLE"], start.arguments), ("value", (chrome.words[0], SWITCH)))

    def test_an_entry_without_an_icon_drops_the_code_of_the_icon(self) -> None:
        chrome = self.install("%i %U")
        self.assert_opens(chrome, DEFAULT, [], [[chrome.words[0], SWITCH]])

    def test_the_code_of_the_entrys_place_is_its_file(self) -> None:
        chrome = self.install("--entry %k %U")
        entry = self.home.shares[Packaging.NATIVE] / "applications" / "google-chrome.desktop"
        self.assert_opens(chrome, DEFAULT, [], [[chrome.words[0], "--entry", str(entry), SWITCH]])

    def test_a_program_without_a_path_is_searched_for(self) -> None:
        chrome = self.install("")
        self.plant_entry("google-chrome-stable %U")
        shown = json.loads(self.output_of("open", "--dry-run", DEFAULT))
        self.assertEqual((Path(shown[0]).name, shown[1:]), ("google-chrome-stable", [SWITCH]))
        self.output_of("open", DEFAULT)
        started = self.home.browsers.wait_for(1)
        self.assertEqual([each.arguments for each in started], [(chrome.words[0], SWITCH)])

    def test_the_folder_of_the_entry_is_the_browsers_working_folder(self) -> None:
        folder = self.home.root / "working folder"
        folder.mkdir()
        self.install("%U", Path=str(folder))
        self.output_of("open", DEFAULT)
        self.assertEqual([each.folder for each in self.home.browsers.wait_for(1)], [str(folder)])

    def test_no_shell_reads_a_command_line(self) -> None:
        touched = self.home.root / "touched"
        chrome = self.install("; touch " + exec_word(str(touched)))
        self.home.install_with(CHROME, ("Default", f"$(touch '{touched}')`touch '{touched}'`"))
        self.plant_entry(f"{exec_word(chrome.words[0])} %U")
        link = f"https://example.com/$(touch%20{touched.name})"
        self.assert_opens(chrome, DEFAULT, [link], [chrome.profile_command("Default", link)])
        self.assertFalse(touched.exists())


class Circumstances(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.chrome = self.home.install_with(CHROME, ("Default", "Work"))

    def test_a_browser_is_started_apart_from_the_command(self) -> None:
        self.output_of("open", DEFAULT, PLANTED_VARIABLE="reaches the browser")
        (start,) = self.home.browsers.wait_for(1)
        self.assertEqual(start.streams, ("/dev/null",) * 3)
        self.assertNotEqual(start.session, os.getsid(0))
        self.assertEqual(start.folder, str(self.home.home))
        self.assertEqual(start.environment["PLANTED_VARIABLE"], "reaches the browser")
        self.assertEqual(start.environment["HOME"], str(self.home.home))

    def test_the_command_ends_while_the_browser_goes_on(self) -> None:
        program = Path(self.chrome.words[0])
        gate = self.home.root / "gate"
        os.mkfifo(gate)
        program.write_text(program.read_text() + f"exec /bin/cat '{gate}'\n")
        self.output_of("open", DEFAULT)
        self.home.browsers.wait_for(1)
        # Only a browser that still runs reads from the other end.
        deadline = time.monotonic() + WAIT_SECONDS
        while True:
            try:
                os.close(os.open(gate, os.O_WRONLY | os.O_NONBLOCK))
                return
            except OSError as problem:
                self.assertLess(time.monotonic(), deadline, problem)
                time.sleep(0.002)

    def test_a_browser_that_fails_at_once_is_not_the_commands_failure(self) -> None:
        program = Path(self.chrome.words[0])
        program.write_text(program.read_text() + "exit 7\n")
        self.assert_opens(self.chrome, DEFAULT, [], [self.chrome.profile_command("Default")])


class Links(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.chrome = self.home.install_with(CHROME, ("Default", "Work"))

    def test_only_links_of_three_schemes_are_passed_on_and_in_their_order(self) -> None:
        others = [
            "mailto:a@example.com", "javascript:alert(1)", "about:config", "chrome://settings", "ftp://example.com/",
            "data:text/html,x", "view-source:https://example.com/", "",
            "vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Work",
        ]
        kept = ["https://b.example/", "http://a.example/", "file:///tmp/x", "https://b.example/"]
        links = [*others[:3], *kept[:2], *others[3:6], *kept[2:], *others[6:]]
        self.assert_opens(self.chrome, DEFAULT, links, [self.chrome.profile_command("Default", *kept)], others)
        self.assert_opens(self.chrome, DEFAULT, others, [self.chrome.profile_command("Default")], others)

    def test_a_scheme_in_capitals_is_kept(self) -> None:
        shown = json.loads(self.output_of("open", "--dry-run", DEFAULT, "HTTPS://example.com/Path?Query#Fragment"))
        scheme, rest = shown[-1].split(":", 1)
        self.assertEqual((scheme.lower(), rest), ("https", "//example.com/Path?Query#Fragment"))

    def test_links_keep_every_sign_that_a_link_may_have(self) -> None:
        links = [
            "https://user@example.com:8443/a;b,c/(d)!*'$&+=@:~_-.?q=%20%25%2F&r=/?:@#frag/?",
            "http://[::1]:8080/", "https://example.com/%F0%9F%98%80", "file:///tmp/%C3%A9%20%23%3F.html",
            "https://example.com", "https://example.com/?", "https://example.com/#",
        ]
        self.assert_opens(self.chrome, DEFAULT, links, [self.chrome.profile_command("Default", *links)])

    def test_signs_that_a_link_may_not_have_are_encoded(self) -> None:
        for link, encoded in [
            ("https://example.com/é😀", "https://example.com/%C3%A9%F0%9F%98%80"),
            ("https://example.com/a b", "https://example.com/a%20b"),
            ('https://example.com/"x"', "https://example.com/%22x%22"),
        ]:
            with self.subTest(link):
                self.assert_opens(self.chrome, DEFAULT, [link], [self.chrome.profile_command("Default", encoded)])

    def test_a_link_that_is_broken_is_left_out(self) -> None:
        for link in ["https://exa mple.com/", "https://[bad/", "https://example.com:99999/", "://", ":"]:
            with self.subTest(link):
                self.assert_opens(self.chrome, DEFAULT, [link], [self.chrome.profile_command("Default")], [link])

    def test_names_of_hosts_and_of_files_are_completed_to_links(self) -> None:
        file = self.home.root / "a page.html"
        file.write_text("")
        encoded = "file://" + quote(str(file))
        for name, link in [("example.com/x", "http://example.com/x"), (str(file), encoded), (str(file)[1:], encoded)]:
            with self.subTest(name):
                self.assert_opens(self.chrome, DEFAULT, [name], [self.chrome.profile_command("Default", link)])

    def test_a_link_is_never_taken_for_an_option(self) -> None:
        self.assert_fails("open", DEFAULT, "--new-window", status=2)
        options = ["--new-window", "-incognito"]
        shown = self.output_of("open", "--dry-run", "--", DEFAULT, *options, notes=options)
        self.assertEqual(json.loads(shown), self.chrome.profile_command("Default"))

    def test_each_link_of_firefoxs_private_window_has_a_start_of_its_own(self) -> None:
        for packaging in Packaging:
            with self.subTest(packaging.value):
                self.new_home()
                firefox = self.home.install(FIREFOX, FIREFOX.variant(packaging))
                links = [WEB, "mailto:a@example.com", FILE, WEB]
                commands = firefox.private_commands(WEB, FILE, WEB)
                self.assertEqual(len(commands), 3)
                private = "org.mozilla.firefox/private"
                self.assert_opens(firefox, private, links, commands, ["mailto:a@example.com"])
                self.assert_opens(firefox, private, ["mailto:a@b"], firefox.private_commands(), ["mailto:a@b"])

    def test_many_links_are_passed_on_in_one_start(self) -> None:
        links = [f"https://example.com/{number}" for number in range(2000)]
        self.assert_opens(self.chrome, DEFAULT, links, [self.chrome.profile_command("Default", *links)])

    def test_edges_private_window_has_its_own_switch(self) -> None:
        edge = self.home.install(EDGE)
        command = [edge.words[0], "--inprivate", WEB]
        self.assert_opens(edge, "com.microsoft.edgemac/private", [WEB], [command])
