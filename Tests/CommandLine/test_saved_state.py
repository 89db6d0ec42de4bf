"""The user's order, hidden profiles and names, from the saved file that no command may change."""

import json

from Tests.Support import listed
from Tests.Support.browser_catalogue import row
from Tests.Support.command_line_case import CommandLineCase
from Tests.Support.saved_state import saved_private, saved_profile, saved_state

CHROME = row("com.google.Chrome")
BRAVE = row("com.brave.Browser")
VIVALDI = row("com.vivaldi.Vivaldi")
FIREFOX = row("org.mozilla.firefox")

WHOLE = json.loads(saved_state())

UNREADABLE = {
    "empty": "",
    "not JSON": "no JSON",
    "truncated": saved_state([saved_profile(CHROME, "Default", "Work")])[:-1],
    "an array": "[]",
    "a profile without a target": saved_state([{"browserBundleID": "com.google.Chrome", "name": "Work"}]),
    "a target of two kinds": saved_state(
        [saved_profile(CHROME, "Default", "X") | {"target": {"chromium": {"folder": "x"}, "firefox": {"path": "x"}}}]
    ),
    "a target of no kind": saved_state([saved_profile(CHROME, "Default", "X") | {"target": {}}]),
    "a private target that is null": saved_state([saved_private(CHROME) | {"target": {"chromiumPrivate": None}}]),
    "a hidden profile that is a number": json.dumps(WHOLE | {"hidden": [5]}),
    "a custom name that is a number": json.dumps(WHOLE | {"customNames": {"com.google.Chrome/private": 5}}),
} | {f"without {key}": json.dumps({other: WHOLE[other] for other in WHOLE if other != key}) for key in WHOLE}


class SavedState(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.home.install_with(CHROME, ("Default", "Work"), ("Profile 1", "Home"), ("Profile 2", "New"))
        self.home.install_with(BRAVE, ("Default", "Play"))
        self.work, self.main, self.new = (
            listed.profile(CHROME, folder, name)
            for folder, name in [("Default", "Work"), ("Profile 1", "Home"), ("Profile 2", "New")]
        )
        self.private = listed.private(CHROME)
        self.brave = listed.browser(BRAVE, ("Default", "Play"))
        self.everything = [*self.brave, self.work, self.main, self.new, self.private]

    def test_without_a_saved_file_browsers_come_by_name_and_profiles_as_found(self) -> None:
        self.assert_lists(self.everything)

    def test_browsers_are_sorted_without_regard_to_case_and_numbers_by_value(self) -> None:
        self.new_home()
        for browser, name in [(CHROME, "Browser 10"), (BRAVE, "browser 9"), (VIVALDI, "Alpha")]:
            self.home.install(browser)
            entry = next(self.home.root.rglob(f"{next(iter(browser.native))}.desktop"))
            entry.write_text(entry.read_text().replace(f"Name={browser.name}", f"Name={name}", 1))
        browsers = [each["browser"] for each in self.parsed(self.output_of("list", "--json"))]
        self.assertEqual(browsers, ["Alpha", "browser 9", "Browser 10"])

    def test_the_saved_order_is_kept_and_what_is_new_comes_before_the_private_window(self) -> None:
        saved = [
            saved_profile(CHROME, "Profile 1", "Old name"),
            saved_private(CHROME),
            saved_profile(CHROME, "Default", "Work"),
            saved_profile(CHROME, "Profile 9", "Deleted in the browser"),
        ]
        self.home.plant_saved_state(saved_state(saved))
        self.assert_lists([self.main, self.new, self.private, self.work, *self.brave])

    def test_the_browsers_come_in_the_saved_order(self) -> None:
        saved = [saved_private(CHROME), saved_profile(BRAVE, "Default", "Play"), saved_private(BRAVE)]
        self.home.plant_saved_state(saved_state(saved))
        self.assert_lists([self.work, self.main, self.new, self.private, *self.brave])

    def test_a_browser_scattered_over_the_saved_list_is_brought_together(self) -> None:
        saved = [
            saved_profile(CHROME, "Profile 2", "New"), saved_private(BRAVE),
            saved_profile(CHROME, "Default", "Work"), saved_private(CHROME), saved_profile(CHROME, "Profile 1", "Home"),
        ]
        self.home.plant_saved_state(saved_state(saved))
        self.assert_lists([self.new, self.work, self.private, self.main, *self.brave])

    def test_hidden_profiles_are_shown_only_with_all_and_can_still_be_opened(self) -> None:
        self.home.plant_saved_state(saved_state(hidden=[self.main["id"], self.private["id"], "com.gone/private"]))
        self.assert_lists([*self.brave, self.work, self.new])
        hidden = [each | {"hidden": each in (self.main, self.private)} for each in self.everything]
        self.assert_lists(hidden, "--all")
        text = self.output_of("list", "--all").splitlines()
        self.assertEqual([line.endswith("  (hidden)") for line in text], [each["hidden"] for each in hidden])
        self.assertNotIn("(hidden)", self.output_of("list"))
        self.output_of("open", "--dry-run", self.main["id"])

    def test_custom_names_stand_for_the_browsers_own(self) -> None:
        custom = {self.work["id"]: "Büro 😀", self.private["id"]: "Secret", self.main["id"]: "", "com.gone/private": "x"}
        self.home.plant_saved_state(saved_state(custom_names=custom))
        renamed = [
            listed.profile(CHROME, "Default", "Work", "Büro 😀"), self.main, self.new,
            listed.private(CHROME, "Secret"),
        ]
        self.assert_lists([*self.brave, *renamed])
        self.assertIn(f"{listed.title(renamed[0])}  ", self.output_of("list"))

    def test_a_saved_profile_takes_the_name_that_its_browser_gives_now(self) -> None:
        self.home.plant_saved_state(saved_state([saved_profile(CHROME, "Default", "Former name")]))
        self.assert_lists([self.work, self.main, self.new, self.private, *self.brave])

    def test_a_saved_picture_does_not_matter(self) -> None:
        saved = saved_profile(CHROME, "Default", "Work") | {"avatarPNG": "iVBORw0KGgo="}
        self.home.plant_saved_state(saved_state([saved]))
        self.assert_lists([self.work, self.main, self.new, self.private, *self.brave])

    def test_profiles_of_browsers_that_are_not_installed_are_not_listed(self) -> None:
        gone = [saved_profile(VIVALDI, "Default", "Gone"), saved_private(VIVALDI)]
        target = {"safariProfile": {"name": "S", "index": 1}}
        safari = {"browserBundleID": "com.apple.Safari", "name": "S", "target": target}
        self.home.plant_saved_state(saved_state([*gone, safari], searched_safari=["com.apple.Safari"]))
        self.assert_lists(self.everything)

    def test_an_unreadable_file_is_reported_and_the_list_is_that_of_a_first_start(self) -> None:
        for reason, content in UNREADABLE.items():
            with self.subTest(reason):
                file = self.home.plant_saved_state(content)
                answer = self.vantrel("list", "--json")
                self.assertEqual((answer.status, self.parsed(answer.output)), (0, self.everything))
                self.assert_is_message(answer.errors)
                self.assertIn("Saved profiles unreadable", answer.errors)
                self.assertEqual(file.read_text(), content)

    def test_no_command_changes_the_saved_file_or_anything_else_in_the_home(self) -> None:
        self.home.install_with(FIREFOX, ("Profiles/p", "Fox"))
        order = [saved_profile(CHROME, "Profile 1", "Home")]
        readable = saved_state(order, [self.new["id"]], {self.work["id"]: "Mine"})
        for content in (" " + readable + "\n", "unreadable", None):
            if content is None:
                (self.home.data / "app.kestrune.Vantrel" / "profiles.json").unlink()
                (self.home.data / "app.kestrune.Vantrel").rmdir()
            else:
                self.home.plant_saved_state(content)
            before = self.home.snapshot()
            for command in [
                ("list",), ("list", "--all"), ("list", "--json"), ("doctor",), ("doctor", "--json"), ("--version",),
                ("link", self.work["id"]), ("open", "--dry-run", self.new["id"]), ("open", self.work["id"]),
                ("open", "nothing"), ("open", self.main["link"]),
            ]:
                with self.subTest(content=content, command=command):
                    self.vantrel(*command)
                    self.assertEqual(self.home.snapshot(), before)
            self.home.browsers.wait_for(2)
            self.home.browsers.clear()
