"""What names a profile: its id, its link, its title, a display name of its own."""

from Tests.Support import listed
from Tests.Support.browser_catalogue import row
from Tests.Support.command_line_case import CommandLineCase
from Tests.Support.saved_state import saved_state

CHROME = row("com.google.Chrome")
EDGE = row("com.microsoft.edgemac")
FIREFOX = row("org.mozilla.firefox")
BRAVE = row("com.brave.Browser")

WEB = "https://example.com/?a=b&c=d%26e+f#g"


def by_name(bundle_id: str, name: str) -> str:
    """A link that knows the profile's name alone."""
    return listed.link(bundle_id, name, "").removesuffix("&profile=")


class ProfileMatching(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.chrome = self.home.install_with(CHROME, ("Default", "Work"), ("Profile 1", "Home"), ("Profile 2", "Both"))
        self.edge = self.home.install_with(EDGE, ("Default", "Both"), ("Profile 1", "home"))
        self.work = listed.profile(CHROME, "Default", "Work")
        self.command = self.chrome.profile_command("Default")

    def test_the_same_profile_is_found_by_every_name_it_has(self) -> None:
        for name in [
            "com.google.Chrome/chromium:Default",
            self.work["link"],
            by_name("com.google.Chrome", "Work"),
            "Google Chrome – Work",
            "Work",
            "VANTREL://host/path?browserBundleIdentifier=com.google.Chrome&profileName=Work",
            "vantrel:?browserBundleIdentifier=com.google.Chrome&profileName=Work",
            "vantrel://?profile=&browserBundleIdentifier=com.google.Chrome&profileName=Work&profileName=Home",
        ]:
            with self.subTest(name):
                self.assert_opens(self.chrome, name, [], [self.command])

    def test_display_names_are_compared_exactly(self) -> None:
        self.assert_opens(self.chrome, "Home", [], [self.chrome.profile_command("Profile 1")])
        self.assert_opens(self.edge, "home", [], [self.edge.profile_command("Profile 1")])
        for other in ("work", "Work ", " Work", "Wor", "HOME", "Google Chrome - Work", "Google Chrome"):
            with self.subTest(other):
                self.assert_fails("open", other)

    def test_private_windows_are_found_by_their_titles_and_own_names(self) -> None:
        for name in ["com.google.Chrome/private", "Google Chrome – Incognito Window", "Incognito Window"]:
            self.assert_opens(self.chrome, name, [WEB], self.chrome.private_commands(WEB))
        self.assert_opens(self.edge, "InPrivate Window", [], self.edge.private_commands())

    def test_an_ambiguous_name_is_refused_with_its_candidates(self) -> None:
        for command in (("open",), ("open", "--dry-run"), ("link",)):
            message = self.assert_fails(*command, "Both")
            for candidate in ("com.google.Chrome/chromium:Profile 2", "com.microsoft.edgemac/chromium:Default"):
                self.assertIn(candidate, message)
            self.assertNotIn("chromium:Profile 1", message)

    def test_an_unknown_name_is_refused_with_all_that_there_is(self) -> None:
        ids = [each["id"] for each in self.parsed(self.output_of("list", "--json"))]
        of_chrome = [each for each in ids if each.startswith("com.google.Chrome/")]
        for name, candidates in [
            ("Nobody", ids),
            ("", ids),
            ("com.google.Chrome/chromium:Profile 9", of_chrome),
            ("com.google.Chrome/", of_chrome),
            ("com.google.Chrome", of_chrome),
        ]:
            with self.subTest(name):
                message = self.assert_fails("open", name)
                for each in candidates:
                    self.assertIn(each, message)

    def test_custom_names_count_and_replace_the_browsers_own_in_titles(self) -> None:
        self.home.plant_saved_state(saved_state(custom_names={self.work["id"]: "Office"}))
        for name in ("Office", "Google Chrome – Office", by_name("com.google.Chrome", "Office"), self.work["link"]):
            self.assert_opens(self.chrome, name, [], [self.command])
        self.assert_fails("open", "Google Chrome – Work")

    def test_hidden_profiles_are_found(self) -> None:
        self.home.plant_saved_state(saved_state(hidden=[self.work["id"]]))
        self.assert_opens(self.chrome, "Work", [], [self.command])

    def test_links_within_a_link_are_opened_and_further_ones_after_them(self) -> None:
        link = listed.link("com.google.Chrome", "Work", self.work["id"], WEB, "mailto:a@b", "file:///tmp/x")
        self.assert_opens(self.chrome, link, [], [[*self.command, WEB, "file:///tmp/x"]])
        self.assert_opens(
            self.chrome, link, ["https://example.org/"], [[*self.command, WEB, "file:///tmp/x", "https://example.org/"]]
        )

    def test_a_link_finds_by_id_then_name_then_private_window_then_makes_up_a_profile(self) -> None:
        chrome = "com.google.Chrome"
        for link, command in [
            (listed.link(chrome, "Home", f"{chrome}/chromium:Default"), self.command),
            (listed.link(chrome, "Home", f"{chrome}/chromium:Gone"), self.chrome.profile_command("Profile 1")),
            (listed.link(chrome, "?", f"{chrome}/chromium:P 9"), self.chrome.profile_command("P 9")),
            (listed.link(chrome, "", f"{chrome}/private"), self.chrome.private_commands()[0]),
            (by_name(chrome, "Private"), self.chrome.private_commands()[0]),
            # The id counts, whichever browser stands beside it.
            (listed.link("com.brave.Browser", "", f"{chrome}/chromium:Default"), self.command),
        ]:
            with self.subTest(link):
                self.assert_opens(self.chrome, link, [], [command])

    def test_links_that_name_no_profile_are_refused(self) -> None:
        firefox = self.home.install(FIREFOX)
        for link in [
            by_name("com.google.Chrome", "Nobody"),
            by_name("com.google.chrome", "Work"),
            listed.link("com.google.Chrome", "Nobody", "com.brave.Browser/chromium:Default"),
            listed.link("com.apple.Safari", "Work", "com.apple.Safari/safari:Work"),
            by_name("com.example.unknown", "Work"),
        ]:
            with self.subTest(link):
                self.assert_fails("open", link)
        message = self.assert_fails("open", by_name("com.google.Chrome", "Nobody"))
        self.assertIn("Vantrel doesn't know the profile “Nobody”. Check that it still exists in the browser,", message)
        self.assert_opens(firefox, "org.mozilla.firefox/private", [], firefox.private_commands())

    def test_a_link_to_a_browser_that_is_not_installed_says_so(self) -> None:
        link = listed.link("com.brave.Browser", "Work", "com.brave.Browser/chromium:Default")
        self.assertIn("The browser of this profile isn't installed.", self.assert_fails("open", link))

    def test_links_that_are_malformed_are_refused(self) -> None:
        for link in [
            "vantrel:", "vantrel://", "vantrel://?", "vantrel://com.google.Chrome/Work",
            "vantrel://?browserBundleIdentifier=com.google.Chrome",
            "vantrel://?browserBundleIdentifier=&profileName=Work",
            "vantrel://?browserbundleidentifier=com.google.Chrome&profileName=Work",
            "vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=&profile=",
            "vantrel://?profileName=Work&profile=com.google.Chrome/chromium:Default",
            "https://?browserBundleIdentifier=com.google.Chrome&profileName=Work",
        ]:
            with self.subTest(link):
                self.assert_fails("open", link)

    def test_link_prints_the_link_with_web_links(self) -> None:
        expected = listed.link("com.google.Chrome", "Work", self.work["id"], WEB, "file:///tmp/%C3%A9")
        for name in ("Work", self.work["id"], self.work["link"]):
            self.assertEqual(self.output_of("link", name), self.work["link"] + "\n")
            self.assertEqual(self.output_of("link", name, WEB, "file:///tmp/%C3%A9"), expected + "\n")

    def test_names_with_every_sign_survive_the_way_through_a_link(self) -> None:
        brave = self.home.install_with(BRAVE, ("Default", "a&b=c+d#e %41 ?/:@;,!$'()*~ é😀\n\t\"<>[]{}|\\^`"))
        odd = self.parsed(self.output_of("list", "--json"))[0]
        self.assertEqual(odd["browserBundleIdentifier"], "com.brave.Browser")
        self.assertEqual(odd["link"], listed.link("com.brave.Browser", odd["name"], odd["id"]))
        self.assertEqual(self.output_of("link", odd["id"]), odd["link"] + "\n")
        self.assert_opens(brave, by_name("com.brave.Browser", odd["name"]), [], [brave.profile_command("Default")])
