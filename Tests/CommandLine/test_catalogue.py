"""Every browser in every packaging: what is listed, and what is started for each profile."""

from Tests.Support import desktop_entries, listed
from Tests.Support.browser_catalogue import ABSENT_ON_LINUX, CHROMIUM_ROWS, FIREFOX_ROWS, ROWS, Packaging, Row, Variant
from Tests.Support.browser_data import ChromiumProfile, plant_chromium
from Tests.Support.command_line_case import CommandLineCase

LINKS = ("https://example.com/a%20b?c=d&e=%26#f", "file:///tmp/page.html")
ODD_NAME = "A \"quoted\" 'name' $HOME %U `id` \\ & | ; 😀 שלום"
ODD_NAME_WITH_CONTROLS = ODD_NAME + "\tand\ncontrols"


class Catalogue(CommandLineCase):
    def check(self, row: Row, variant: Variant, odd_name: str) -> None:
        folders = ("Default", "Profile 1") if row.family == "chromium" else ("Profiles/a.work", "Profiles/b.odd one")
        names = ("Work", odd_name)
        installation = self.home.install_with(row, *zip(folders, names, strict=True), variant=variant)
        locations = folders if row.family == "chromium" else [f"{installation.data_folder}/{each}" for each in folders]
        profiles = [listed.profile(row, location, name) for location, name in zip(locations, names, strict=True)]
        private = listed.private(row)
        self.assert_lists([*profiles, private])
        for links in ((), LINKS):
            for location, profile in zip(locations, profiles, strict=True):
                command = installation.profile_command(location, *links)
                self.assert_opens(installation, profile["id"], links, [command])
            self.assert_opens(installation, private["id"], links, installation.private_commands(*links))

    def check_rows(self, rows: tuple[Row, ...], odd_name: str) -> None:
        for row in rows:
            for variant in row.variants():
                with self.subTest(row.bundle_id, variant=str(variant)):
                    self.new_home()
                    self.check(row, variant, odd_name)

    def test_every_chromium_browser_is_listed_and_opened_in_every_packaging(self) -> None:
        self.check_rows(CHROMIUM_ROWS, ODD_NAME_WITH_CONTROLS)

    def test_every_firefox_browser_is_listed_and_opened_in_every_packaging(self) -> None:
        self.check_rows(FIREFOX_ROWS, ODD_NAME)

    def test_the_table_has_thirty_chromium_and_six_firefox_browsers_of_distinct_identifiers(self) -> None:
        self.assertEqual((len(CHROMIUM_ROWS), len(FIREFOX_ROWS)), (30, 6))
        self.assertEqual(len({row.bundle_id for row in ROWS}), 36)

    def test_browsers_without_a_linux_edition_are_not_found_in_foreign_folders(self) -> None:
        program = self.home.browsers.make(self.home.programs / "decoy")
        for name in ("epic", "epic-browser", "comet", "comet-browser"):
            text = desktop_entries.entry(name, desktop_entries.native_command_line(program))
            self.home.plant_entry(self.home.shares[Packaging.NATIVE], name, text)
        for folder in ("Epic", "epic", "comet", "Comet"):
            plant_chromium(self.home.config / folder, [ChromiumProfile("Default", "Decoy")])
        self.assert_lists_no_browser()

    def test_a_browser_whose_name_begins_with_another_ones_name_is_not_taken_for_it(self) -> None:
        for bundle_id in ("com.google.Chrome.beta", "com.brave.Browser.origin", "com.microsoft.edgemac.Beta"):
            row = next(each for each in ROWS if each.bundle_id == bundle_id)
            with self.subTest(bundle_id):
                self.new_home()
                self.home.install_with(row, ("Default", "Own"))
                self.assert_lists([listed.profile(row, "Default", "Own"), listed.private(row)])

    def test_all_native_browsers_at_once_are_sorted_by_name(self) -> None:
        # The ungoogled edition shares Chromium's folder and is not listed beside it.
        without = {*ABSENT_ON_LINUX, "com.chromium.ungoogled"}
        rows = [row for row in ROWS if row.bundle_id not in without]
        for row in rows:
            self.home.install(row)
        listing = self.parsed(self.output_of("list", "--json"))
        by_name = sorted(rows, key=lambda row: row.name.casefold())
        self.assertEqual({row.bundle_id for row in by_name}, {each["browserBundleIdentifier"] for each in listing})
        self.assertEqual(sorted(listing, key=lambda each: each["browser"].casefold()), listing)
        self.assertEqual(listing, [listed.private(row) for row in by_name])
