"""What doctor tells about every known browser."""

import json

from Tests.Support.browser_catalogue import CHROMIUM_ROWS, FIREFOX_ROWS, Packaging, row
from Tests.Support.browser_data import FirefoxProfile, plant_firefox
from Tests.Support.command_line_case import CommandLineCase

CHROME = row("com.google.Chrome")
FIREFOX = row("org.mozilla.firefox")

SAFARIS = ["com.apple.Safari", "com.apple.SafariTechnologyPreview"]
MEMBERS = ["browserBundleIdentifier", "browser", "installed", "application", "dataFolder", "profiles", "error"]


class Doctor(CommandLineCase):
    def report(self) -> dict[str, dict[str, object]]:
        report = json.loads(self.output_of("doctor", "--json"))
        self.assertEqual([list(each) for each in report], [MEMBERS] * len(report))
        return {each["browserBundleIdentifier"]: each for each in report}

    def test_every_known_browser_is_reported_in_the_order_of_the_catalogue(self) -> None:
        tables = [sorted(each.bundle_id for each in rows) for rows in (CHROMIUM_ROWS, FIREFOX_ROWS)]
        self.assertEqual(list(self.report()), [*SAFARIS, *tables[0], *tables[1]])

    def test_a_browser_that_is_not_installed_has_its_identifier_for_a_name(self) -> None:
        for bundle_id, each in self.report().items():
            absent = {"browser": bundle_id, "installed": False, "application": None, "profiles": 0, "error": None}
            self.assertEqual(each, each | absent)

    def test_an_installed_browser_is_shown_with_its_entry_and_its_folder(self) -> None:
        for packaging in (Packaging.NATIVE, Packaging.FLATPAK):
            with self.subTest(packaging.value):
                self.new_home()
                variant = CHROME.variant(packaging)
                chrome = self.home.install_with(CHROME, ("Default", "Work"), ("Profile 1", "Home"), variant=variant)
                entry = self.home.shares[packaging] / "applications" / f"{variant.desktop_id}.desktop"
                self.assertEqual(self.report()["com.google.Chrome"], {
                    "browserBundleIdentifier": "com.google.Chrome",
                    "browser": "Google Chrome",
                    "installed": True,
                    "application": str(entry),
                    "dataFolder": str(chrome.data_folder),
                    "profiles": 2,
                    "error": None,
                })

    def test_the_folder_of_an_installed_browser_without_data_is_where_it_would_be(self) -> None:
        chrome = self.home.install(CHROME)
        reported = self.report()["com.google.Chrome"]
        self.assertEqual((reported["dataFolder"], reported["profiles"]), (str(chrome.data_folder), 0))

    def test_firefoxs_folder_and_profiles_are_reported(self) -> None:
        firefox = self.home.install(FIREFOX)
        plant_firefox(firefox.data_folder, [FirefoxProfile("a", "A"), FirefoxProfile("b", "B")])
        reported = self.report()["org.mozilla.firefox"]
        self.assertEqual((reported["dataFolder"], reported["profiles"]), (str(firefox.data_folder), 2))

    def test_the_text_names_browsers_folders_and_counts(self) -> None:
        chrome = self.home.install_with(CHROME, ("Default", "Work"), ("Profile 1", "Home"))
        text = self.output_of("doctor")
        self.assert_has_no_controls(text)
        for expected in ("Google Chrome", str(chrome.data_folder), "com.brave.Browser"):
            self.assertIn(expected, text)
