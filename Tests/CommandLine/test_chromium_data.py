"""Profiles of Chromium-family browsers from whole, damaged and unusual files."""

import json

from Tests.Support import desktop_entries, listed
from Tests.Support.browser_catalogue import Packaging, row
from Tests.Support.browser_data import ChromiumProfile, PicturePlace, plant_chromium, plant_local_state, write
from Tests.Support.command_line_case import CommandLineCase
from Tests.Support.desktop_entries import exec_word
from Tests.Support.pictures import person_png

CHROME = row("com.google.Chrome")
OPERA = row("com.operasoftware.Opera")
HELIUM = row("net.imput.helium")


def local_state(info_cache: object) -> str:
    return json.dumps({"profile": {"info_cache": info_cache}})


WHOLE = local_state({"Default": {"name": "Cached"}})

# Files whose names must not be used, each for its own reason.
UNUSABLE_LOCAL_STATES = {
    "missing": None,
    "empty": b"",
    "truncated": WHOLE[:-4].encode(),
    "eight MiB, truncated": (b'{"pad": "' + b"x" * (8 << 20)),
    "an array": b"[]",
    "null": b"null",
    "a number": b"5",
    "not JSON": b"\x89PNG\r\n\x1a\n\0\0",
    "deep nesting": b"[" * 100_000,
    "a section that is an array": b'{"profile": []}',
    "a cache that is an array": local_state([{"name": "Wrong"}]).encode(),
    "an entry that is text": local_state({"Default": "Wrong"}).encode(),
    "a name that is a number": local_state({"Default": {"name": 5}}).encode(),
    "one entry of another folder is wrong": local_state({"Default": {"name": "X"}, "Profile 9": {"name": 5}}).encode(),
    "an icon that is a number": local_state({"Default": {"name": "Wrong", "avatar_icon": 5}}).encode(),
    "not UTF-8": b'{"profile": {"info_cache": {"Default": {"name": "W\xff"}}}}',
    "half a character": rb'{"profile": {"info_cache": {"Default": {"name": "\ud83d"}}}}',
    "UTF-16": WHOLE.encode("utf-16"),
    "more after its end": (WHOLE + " }").encode(),
    "no section": b"{}",
    "no cache": b'{"profile": {}}',
    "no entry": local_state({}).encode(),
    "an entry without a name": local_state({"Default": {}}).encode(),
    "a null name": local_state({"Default": {"name": None}}).encode(),
    "an empty name": local_state({"Default": {"name": ""}}).encode(),
}


class ChromiumData(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.chrome = self.home.install(CHROME)
        self.folder = self.chrome.data_folder

    def test_profiles_come_in_the_order_of_their_numbers_and_other_folders_are_left_out(self) -> None:
        kept = ["Default", "Profile 1", "Profile 2", "Profile 10", "Profile Work"]
        others = ["Guest Profile", "System Profile", "Profile", "default", "Profiles 3", ".Profile 4", "Crash Reports"]
        plant_chromium(self.folder, [ChromiumProfile(each) for each in reversed(kept + others)])
        write(self.folder / "Profile 3", "a file")
        self.assert_lists(listed.browser(CHROME, *((each, each) for each in kept)))

    def test_an_unusable_local_state_leaves_the_names_of_preferences_and_of_folders(self) -> None:
        for reason, content in UNUSABLE_LOCAL_STATES.items():
            with self.subTest(reason):
                plant_chromium(
                    self.folder,
                    [ChromiumProfile("Default", name_in_preferences="Preferred"), ChromiumProfile("Profile 1")],
                )
                (self.folder / "Local State").unlink()
                if content is not None:
                    write(self.folder / "Local State", content)
                expected = listed.browser(CHROME, ("Default", "Preferred"), ("Profile 1", "Profile 1"))
                self.assert_lists(expected)

    def test_a_local_state_that_is_a_folder_or_a_dangling_link_is_passed_over(self) -> None:
        plant_chromium(self.folder, [ChromiumProfile("Default", name_in_preferences="Preferred")])
        state = self.folder / "Local State"
        state.unlink()
        state.mkdir()
        self.assert_lists_names(["Preferred"])
        state.rmdir()
        state.symlink_to("nowhere")
        self.assert_lists_names(["Preferred"])

    def test_a_local_state_of_eight_mib_is_read(self) -> None:
        plant_chromium(self.folder, [ChromiumProfile("Default"), ChromiumProfile("Profile 1")])
        cache = {f"Profile {number}": {"name": "é" * 1000} for number in range(2, 2000)}
        padding = {f"key {number}": ["😀 padding"] * 50 for number in range(6000)}
        state = padding | {"profile": {"info_cache": cache | {"Default": {"name": "Große"}}}}
        text = json.dumps(state, ensure_ascii=False)
        self.assertGreater(len(text.encode()), 8 << 20)
        write(self.folder / "Local State", text)
        self.assert_lists(listed.browser(CHROME, ("Default", "Große"), ("Profile 1", "Profile 1")))

    def test_unusable_preferences_leave_the_folders_name(self) -> None:
        sections = [b'{"name": 5}}', b'{"name": "', b'{"name": ""}}', b"[]}", b"{}}"]
        for content in [b"", b"[]", *(b'{"profile": ' + each for each in sections)]:
            with self.subTest(content):
                plant_chromium(self.folder, [ChromiumProfile("Default")])
                write(self.folder / "Default" / "Preferences", content)
                self.assert_lists_names(["Default"])

    def test_names_with_escapes_of_json_arrive_as_they_are_meant(self) -> None:
        plant_chromium(self.folder, [ChromiumProfile("Default")])
        name = r'"\u00e9\ud83d\ude00\/\"\\\n\u200f"'
        write(self.folder / "Local State", '{"profile":{"info_cache":{"Default":{"name":' + name + "}}}}")
        self.assert_lists_names(['é😀/"\\\n\u200f'])

    def test_pictures_whole_or_damaged_do_not_change_the_listing(self) -> None:
        pictures = [person_png((200, 60, 60, 255), 512), b"\x89PNG\r\n\x1a\n damaged", b"", b"<svg/>"]
        for place in PicturePlace:
            profiles = [
                ChromiumProfile(f"Profile {number}", f"Name {number}", picture=picture, picture_place=place)
                for number, picture in enumerate(pictures)
            ]
            with self.subTest(place.value):
                plant_chromium(self.folder, profiles)
                self.assert_lists_names([f"Name {number}" for number in range(len(pictures))])

    def test_profile_folders_may_be_links(self) -> None:
        plant_chromium(self.folder, [ChromiumProfile("Default", "Real")])
        (self.folder / "Profile 1").symlink_to(self.home.root)
        (self.folder / "Profile 2").symlink_to("nowhere")
        self.assert_lists_names(["Real", "Profile 1"])

    def test_the_folder_of_settings_may_be_named_for_chromium_alone(self) -> None:
        elsewhere = self.home.root / "settings of browsers"
        plant_chromium(elsewhere / "google-chrome", [ChromiumProfile("Default", "Elsewhere")])
        self.assert_lists(
            listed.browser(CHROME, ("Default", "Elsewhere")), CHROME_CONFIG_HOME=str(elsewhere)
        )

    def test_a_data_folder_that_the_environment_or_the_entry_names_is_the_one_that_counts(self) -> None:
        plant_chromium(self.folder, [ChromiumProfile("Default", "Usual")])
        named = plant_chromium(self.home.root / "data of a browser", [ChromiumProfile("Profile 1", "Named")])
        expected = listed.browser(CHROME, ("Profile 1", "Named"))
        self.assert_lists(expected, CHROME_USER_DATA_DIR=str(named))
        command_line = f"{exec_word(self.chrome.words[0])} {exec_word(f'--user-data-dir={named}')} %U"
        text = desktop_entries.entry("Google Chrome", command_line)
        self.home.plant_entry(self.home.shares[Packaging.NATIVE], "google-chrome", text)
        self.assert_lists(expected)

    def test_helium_has_a_variable_of_its_own_for_the_folder_of_settings(self) -> None:
        self.new_home()
        self.home.install(HELIUM)
        elsewhere = self.home.root / "settings of helium"
        plant_chromium(elsewhere / "net.imput.helium", [ChromiumProfile("Default", "Elsewhere")])
        decoy = self.home.root / "settings of others"
        plant_chromium(decoy / "net.imput.helium", [ChromiumProfile("Default", "Decoy")])
        variables = {"HELIUM_CONFIG_HOME": str(elsewhere), "CHROME_CONFIG_HOME": str(decoy)}
        self.assert_lists(listed.browser(HELIUM, ("Default", "Elsewhere")), **variables)


class Opera(CommandLineCase):
    def test_the_newer_layout_is_that_of_chrome(self) -> None:
        opera = self.home.install_with(OPERA, ("Default", "Main"), ("Profile 1", "Second"))
        write(opera.data_folder / "Preferences", json.dumps({"profile": {"name": "Left over"}}))
        self.assert_lists(listed.browser(OPERA, ("Default", "Main"), ("Profile 1", "Second")))
        self.assert_opens(opera, "com.operasoftware.Opera/chromium:Default", [], [opera.profile_command("Default")])

    def test_the_flat_layout_is_one_profile_opened_without_a_switch(self) -> None:
        for packaging in Packaging:
            with self.subTest(packaging.value):
                self.new_home()
                opera = self.home.install(OPERA, OPERA.variant(packaging))
                plant_local_state(opera.data_folder, {})
                write(opera.data_folder / "Preferences", json.dumps({"profile": {"name": "Flat"}}))
                listing = listed.browser(OPERA, (".", "Flat"))
                self.assert_lists(listing)
                for links in ([], ["https://example.com/"]):
                    self.assert_opens(opera, listing[0]["id"], links, [opera.plain_command(*links)])
