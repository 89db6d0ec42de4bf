"""The same browser in several packagings at once, and entries that look like another's."""

from Tests.Support import desktop_entries, listed
from Tests.Support.browser_catalogue import Packaging, Row, Variant, row
from Tests.Support.browser_data import FirefoxProfile, plant_firefox
from Tests.Support.command_line_case import CommandLineCase
from Tests.Support.planted_home import Installation

CHROME = row("com.google.Chrome")
CHROMIUM = row("org.chromium.Chromium")
UNGOOGLED = row("com.chromium.ungoogled")
EDGE = row("com.microsoft.edgemac")
EDGE_BETA = row("com.microsoft.edgemac.Beta")
FIREFOX = row("org.mozilla.firefox")
VIVALDI = row("com.vivaldi.Vivaldi")
ZEN = row("app.zen-browser.zen")

NATIVE, FLATPAK, SNAP = Packaging.NATIVE, Packaging.FLATPAK, Packaging.SNAP


class SeveralPackagings(CommandLineCase):
    def install_all(self, browser: Row, *with_profiles: Packaging) -> dict[Packaging, Installation]:
        """Installs every packaging of a Chromium-family browser, the given ones with a profile named after it."""
        return {
            each: self.home.install_with(
                browser,
                *([("Default", each.value)] if each in with_profiles else []),
                variant=browser.variant(each),
            )
            for each in Packaging
        }

    def test_the_first_packaging_that_holds_profiles_wins(self) -> None:
        for winner, with_profiles in [
            (NATIVE, (NATIVE, FLATPAK, SNAP)),
            (NATIVE, (NATIVE, SNAP)),
            (FLATPAK, (FLATPAK, SNAP)),
            (SNAP, (SNAP,)),
        ]:
            with self.subTest(winner.value, count=len(with_profiles)):
                self.new_home()
                winning = self.install_all(VIVALDI, *with_profiles)[winner]
                listing = listed.browser(VIVALDI, ("Default", winner.value))
                self.assert_lists(listing)
                self.assert_opens(winning, listing[0]["id"], [], [winning.profile_command("Default")])

    def test_the_native_browser_wins_where_none_holds_profiles(self) -> None:
        native = self.install_all(VIVALDI)[NATIVE]
        self.assert_lists(listed.browser(VIVALDI))
        self.assert_opens(native, "com.vivaldi.Vivaldi/private", [], native.private_commands())

    def test_the_same_rule_holds_for_firefox(self) -> None:
        for winner, with_profiles in [(NATIVE, (NATIVE, FLATPAK, SNAP)), (FLATPAK, (FLATPAK, SNAP)), (SNAP, (SNAP,))]:
            with self.subTest(winner.value):
                self.new_home()
                installed = {each: self.home.install(FIREFOX, FIREFOX.variant(each)) for each in Packaging}
                for each in with_profiles:
                    plant_firefox(installed[each].data_folder, [FirefoxProfile("Profiles/p", each.value)])
                path = f"{installed[winner].data_folder}/Profiles/p"
                self.assert_lists(listed.browser(FIREFOX, (path, winner.value)))
                command = installed[winner].profile_command(path)
                self.assert_opens(installed[winner], f"org.mozilla.firefox/firefox:{path}", [], [command])

    def test_the_vendors_second_entry_beside_the_first_makes_no_second_row(self) -> None:
        self.home.install(CHROME, Variant(NATIVE, "com.google.Chrome", ".config/google-chrome"))
        first = self.home.install_with(CHROME, ("Default", "Work"))
        self.assert_lists(listed.browser(CHROME, ("Default", "Work")))
        self.assert_opens(first, "com.google.Chrome/chromium:Default", [], [first.profile_command("Default")])

    def test_a_second_entry_does_not_hide_the_flatpak_of_the_same_name(self) -> None:
        for user_export in (False, True):
            with self.subTest(user_export=user_export):
                self.new_home()
                if user_export:
                    self.home.shares[FLATPAK] = self.home.data / "flatpak" / "exports" / "share"
                self.home.install(CHROME, Variant(NATIVE, "com.google.Chrome", ".config/google-chrome"))
                flatpak = self.home.install_with(CHROME, ("Default", "Boxed"), variant=CHROME.variant(FLATPAK))
                self.assert_lists(listed.browser(CHROME, ("Default", "Boxed")))
                command = flatpak.profile_command("Default", "https://example.com/")
                self.assert_opens(flatpak, "com.google.Chrome/chromium:Default", ["https://example.com/"], [command])

    def test_a_flatpak_does_not_hide_the_second_entry_of_the_same_name(self) -> None:
        self.home.install(CHROME, CHROME.variant(FLATPAK))
        twin = Variant(NATIVE, "com.google.Chrome", ".config/google-chrome")
        native = self.home.install_with(CHROME, ("Default", "Plain"), variant=twin)
        directories = ":".join(str(self.home.shares[each]) for each in (FLATPAK, SNAP, NATIVE))
        self.assert_lists(listed.browser(CHROME, ("Default", "Plain")), XDG_DATA_DIRS=directories)
        self.assert_opens(native, "com.google.Chrome/chromium:Default", [], [native.profile_command("Default")])

    def test_edges_flatpak_is_its_beta_channel_and_its_second_entry_is_not(self) -> None:
        self.home.install_with(EDGE_BETA, ("Default", "Beta"), variant=EDGE_BETA.variant(FLATPAK))
        self.assert_lists(listed.browser(EDGE_BETA, ("Default", "Beta")))
        self.home.install_with(
            EDGE, ("Default", "Stable"), variant=Variant(NATIVE, "com.microsoft.Edge", ".config/microsoft-edge")
        )
        self.assert_lists(listed.browser(EDGE, ("Default", "Stable")) + listed.browser(EDGE_BETA, ("Default", "Beta")))

    def test_a_native_firefox_may_have_the_flatpaks_name(self) -> None:
        fedora = self.home.install(FIREFOX, Variant(NATIVE, "org.mozilla.firefox", ".mozilla/firefox"))
        plant_firefox(fedora.data_folder, [FirefoxProfile("p.default", "Fedora")])
        path = f"{fedora.data_folder}/p.default"
        self.assert_lists(listed.browser(FIREFOX, (path, "Fedora")))
        self.assert_opens(fedora, f"org.mozilla.firefox/firefox:{path}", [], [fedora.profile_command(path)])

    def test_chromiums_entry_alone_makes_one_row(self) -> None:
        self.home.install_with(CHROMIUM, ("Default", "Only"))
        self.assert_lists(listed.browser(CHROMIUM, ("Default", "Only")))

    def test_two_browsers_on_one_folder_make_one_row(self) -> None:
        self.home.install_with(UNGOOGLED, ("Default", "Shared"))
        self.assert_lists(listed.browser(UNGOOGLED, ("Default", "Shared")))
        self.home.install(CHROMIUM)
        self.assert_lists(listed.browser(CHROMIUM, ("Default", "Shared")))

    def test_two_browsers_with_folders_of_their_own_make_two_rows(self) -> None:
        self.home.install_with(CHROMIUM, ("Default", "Plain"), variant=CHROMIUM.variant(FLATPAK))
        self.home.install_with(UNGOOGLED, ("Default", "Own"))
        self.assert_lists(
            listed.browser(CHROMIUM, ("Default", "Plain")) + listed.browser(UNGOOGLED, ("Default", "Own"))
        )

    def test_the_flatpaks_of_chromium_and_of_its_ungoogled_edition_are_told_apart(self) -> None:
        for browser in (CHROMIUM, UNGOOGLED):
            self.home.install_with(browser, ("Default", browser.name), variant=browser.variant(FLATPAK))
        listing = [listed.browser(browser, ("Default", browser.name)) for browser in (CHROMIUM, UNGOOGLED)]
        self.assert_lists([*listing[0], *listing[1]])

    def test_an_entry_of_the_user_counts_like_one_of_the_system(self) -> None:
        self.home.shares[NATIVE] = self.home.data
        self.home.install_with(CHROME, ("Default", "Work"))
        self.assert_lists(listed.browser(CHROME, ("Default", "Work")))

    def test_without_xdg_variables_the_usual_folders_of_the_home_count(self) -> None:
        self.home.shares[NATIVE] = self.home.data
        self.home.install_with(CHROME, ("Default", "Work"))
        without = {"XDG_CONFIG_HOME": None, "XDG_DATA_HOME": None, "XDG_DATA_DIRS": str(self.home.root / "nothing")}
        self.assert_lists(listed.browser(CHROME, ("Default", "Work")), **without)

    def test_entries_that_are_hidden_or_whose_program_is_missing_do_not_count(self) -> None:
        program = self.home.browsers.make(self.home.programs / "google-chrome-stable")
        gone = self.home.programs / "gone"
        for reason, command, further in [
            ("hidden", program, {"Hidden": "true"}),
            ("program missing", gone, {}),
            ("program to try missing", program, {"TryExec": str(gone)}),
        ]:
            with self.subTest(reason):
                text = desktop_entries.entry("Google Chrome", desktop_entries.native_command_line(command), **further)
                self.home.plant_entry(self.home.shares[NATIVE], "google-chrome", text)
                self.assert_lists_no_browser()


class FirefoxRoots(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.home.install(FIREFOX)
        self.legacy = self.home.home / ".mozilla" / "firefox"
        self.modern = self.home.config / "mozilla" / "firefox"

    def test_two_roots_are_both_listed_the_one_in_use_first(self) -> None:
        for root, name in [(self.modern, "Modern"), (self.legacy, "Legacy")]:
            plant_firefox(root, [FirefoxProfile("Profiles/p", name)])
        self.assert_lists(
            listed.browser(FIREFOX, (f"{self.legacy}/Profiles/p", "Legacy"), (f"{self.modern}/Profiles/p", "Modern"))
        )

    def test_the_usual_folder_of_settings_counts_beside_the_one_of_the_environment(self) -> None:
        elsewhere = self.home.root / "settings"
        plant_firefox(elsewhere / "mozilla" / "firefox", [FirefoxProfile("p", "Elsewhere")])
        plant_firefox(self.modern, [FirefoxProfile("p", "Usual")])
        listing = listed.browser(
            FIREFOX, (f"{elsewhere}/mozilla/firefox/p", "Elsewhere"), (f"{self.modern}/p", "Usual")
        )
        self.assert_lists(listing, XDG_CONFIG_HOME=str(elsewhere))

    def test_a_root_that_is_a_link_to_the_other_is_listed_once(self) -> None:
        plant_firefox(self.modern, [FirefoxProfile("p", "Once")])
        self.legacy.parent.mkdir()
        self.legacy.symlink_to(self.modern)
        self.assert_lists_names(["Once"])

    def test_roots_without_a_list_of_profiles_are_decoys(self) -> None:
        (self.legacy / "p.default").mkdir(parents=True)
        (self.home.config / "mozilla" / "firefox-esr" / "Crash Reports").mkdir(parents=True)
        plant_firefox(self.modern, [FirefoxProfile("p", "Real")])
        self.assert_lists(listed.browser(FIREFOX, (f"{self.modern}/p", "Real")))

    def test_all_editions_list_the_profiles_of_the_common_root(self) -> None:
        beta = row("org.mozilla.firefoxbeta")
        self.home.install(beta)
        plant_firefox(self.legacy, [FirefoxProfile("p", "Common")])
        path = f"{self.legacy}/p"
        self.assert_lists(listed.browser(FIREFOX, (path, "Common")) + listed.browser(beta, (path, "Common")))

    def test_zens_folder_that_another_program_made_does_not_hide_its_real_one(self) -> None:
        self.new_home()
        self.home.install(ZEN)
        (self.home.home / ".zen" / "Logs").mkdir(parents=True)
        plant_firefox(self.home.config / "zen", [FirefoxProfile("p", "Real")])
        self.assert_lists(listed.browser(ZEN, (self.home.config / "zen" / "p", "Real")))
