"""Launchers as the desktop sees them: their entries and icons, and what starting them does."""

import configparser
import os
import struct
import subprocess
from pathlib import Path
from urllib.parse import quote

from Tests.Support.browser_catalogue import Packaging, row
from Tests.Support.command_line_case import TIMEOUT_SECONDS, CommandLineCase
from Tests.Support.pictures import ring_png

CHROME = row("com.google.Chrome")
FIREFOX = row("org.mozilla.firefox")

DEFAULT = "com.google.Chrome/chromium:Default"
SIZES = (16, 32, 48, 64, 128, 256, 512)
LINKS = ["https://example.com/?a=b&c=%20d%2Bd#e", "https://example.org/100%25/(x)"]
ODD_NAMES = [
    "\"quoted\" 'twice'", "$HOME `id` $(id)", "back\\slash \\n", "100% %U %%f", "line\nbreak", "a/b: c", "..hidden",
    "x" * 300, "עבודה (בית)", "👩‍💻", " blank ", "[Desktop Entry]", "a;b=c#d",
]


class Launchers(CommandLineCase):
    @property
    def applications(self) -> Path:
        return self.home.data / "applications"

    @property
    def theme(self) -> Path:
        return self.home.data / "icons" / "hicolor"

    def make(self, profile: str, *options: str) -> Path:
        return Path(self.output_of("launcher", *options, profile).removesuffix("\n"))

    def keys(self, entry: Path, group: str = "Desktop Entry") -> dict[str, str]:
        parser = configparser.RawConfigParser(delimiters=("=",), comment_prefixes=("#",), strict=True)
        parser.optionxform = str  # type: ignore[assignment,method-assign]
        parser.read_string(entry.read_text(encoding="utf-8"))
        return dict(parser[group])

    def launch(self, entry: Path, *links: str) -> None:
        """Starts the entry as desktops do."""
        done = subprocess.run(
            ["/usr/bin/gio", "launch", str(entry), *links], env=self.home.environment(), capture_output=True,
            timeout=TIMEOUT_SECONDS, check=False,
        )
        self.assertEqual(done.returncode, 0, done.stderr)

    def assert_launching_starts(self, entry: Path, links: list[str], *expected: list[str]) -> None:
        self.home.browsers.clear()
        self.launch(entry, *links)
        started = self.home.browsers.wait_for(len(expected))
        self.assertEqual(sorted(list(each.arguments) for each in started), sorted(expected))

    def assert_valid(self, entry: Path) -> None:
        done = subprocess.run(["desktop-file-validate", str(entry)], capture_output=True, text=True, check=False)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))

    def icons(self, entry: Path) -> list[Path]:
        return [self.theme / f"{size}x{size}" / "apps" / f"{self.keys(entry)['Icon']}.png" for size in SIZES]

    def test_an_entry_and_its_icon_in_every_size_are_made_without_a_display(self) -> None:
        self.home.install_with(CHROME, ("Default", "Work"))
        entry = self.make("Work")
        self.assertEqual(entry.parent, self.applications)
        self.assertRegex(entry.name, r"\Avantrel-[0-9a-f]{12}\.desktop\Z")
        self.assert_valid(entry)
        keys = self.keys(entry)
        self.assertEqual(keys["Name"], "Google Chrome – Work")
        self.assertNotIn("MimeType", keys)
        for size, icon in zip(SIZES, self.icons(entry), strict=True):
            header = icon.read_bytes()[:24]
            self.assertEqual((header[:8], struct.unpack(">II", header[16:])), (b"\x89PNG\r\n\x1a\n", (size, size)))

    def test_starting_it_opens_the_profile_with_dropped_links(self) -> None:
        chrome = self.home.install_with(CHROME, ("Default", "Work"), ("Profile 1", "Home"))
        entry = self.make("Home")
        self.assert_launching_starts(entry, [], chrome.profile_command("Profile 1"))
        self.assert_launching_starts(entry, LINKS, chrome.profile_command("Profile 1", *LINKS))
        page = self.home.home / "a page 100%.html"
        page.touch()
        address = f"file://{quote(str(page))}"
        self.assert_launching_starts(entry, [str(page)], chrome.profile_command("Profile 1", address))

    def test_a_firefox_profile_and_private_windows_are_opened_too(self) -> None:
        firefox = self.home.install_with(FIREFOX, ("Profiles/a b", "Work"))
        chrome = self.home.install_with(CHROME, ("Default", "Other"))
        folder = str(firefox.data_folder / "Profiles" / "a b")
        self.assert_launching_starts(self.make("Work"), LINKS, firefox.profile_command(folder, *LINKS))
        self.assert_launching_starts(self.make("org.mozilla.firefox/private"), LINKS, *firefox.private_commands(*LINKS))
        self.assert_launching_starts(
            self.make("com.google.Chrome/private"), LINKS, *chrome.private_commands(*LINKS)
        )

    def test_the_private_window_is_an_action_of_a_profiles_launcher_alone(self) -> None:
        chrome = self.home.install_with(CHROME, ("Default", "Work"))
        entry = self.make("Work")
        action = self.keys(entry, "Desktop Action private")
        self.assertEqual(action["Name"], "Incognito Window")
        # No program that starts actions works without a session, so the action's line is put in the entry's place.
        alone = entry.with_name("action.desktop")
        alone.write_text(f"[Desktop Entry]\nType=Application\nName=x\nExec={action['Exec']}\n")
        self.assert_launching_starts(alone, [], *chrome.private_commands())
        self.assertNotIn("Actions", self.keys(self.make("com.google.Chrome/private")))

    def test_odd_names_make_launchers_that_work(self) -> None:
        for name in ODD_NAMES:
            with self.subTest(name):
                self.new_home()
                chrome = self.home.install_with(CHROME, ("Default", name))
                entry = self.make(DEFAULT)
                self.assert_valid(entry)
                self.assert_launching_starts(entry, LINKS, chrome.profile_command("Default", *LINKS))

    def test_a_program_below_an_odd_path_is_started(self) -> None:
        chrome = self.home.install_with(CHROME, ("Default", "Work"))
        folder = self.home.root / "a=100% \"$HOME\" `id` \\ it's; & é"
        folder.mkdir()
        for name in ("vantrel", "vantrel-launcher"):
            (folder / name).write_bytes((self.program.parent / name).read_bytes())
            (folder / name).chmod(0o755)
        self.program = folder / "vantrel"
        entry = self.make("Work")
        self.assert_valid(entry)
        self.assert_launching_starts(entry, LINKS, chrome.profile_command("Default", *LINKS))

    def test_the_program_is_named_as_the_search_path_has_it_so_that_an_update_is_followed(self) -> None:
        self.home.install_with(CHROME, ("Default", "Work"))
        link = self.home.programs / "vantrel"
        link.symlink_to(self.program)
        self.assertEqual(self.keys(self.make("Work"))["TryExec"], str(link))

    def test_a_profile_that_was_renamed_since_is_still_opened(self) -> None:
        chrome = self.home.install_with(CHROME, ("Default", "Work"))
        entry = self.make("Work")
        self.home.install_with(CHROME, ("Default", "Renamed"))
        self.assert_launching_starts(entry, [], chrome.profile_command("Default"))

    def test_made_again_it_replaces_the_earlier_one_and_its_icon(self) -> None:
        self.home.install_with(CHROME, ("Default", "Work"))
        entry = self.make("Work")
        before = self.icons(entry)
        icon = self.home.shares[Packaging.NATIVE] / "icons" / "hicolor" / "128x128" / "apps" / "google-chrome.png"
        icon.parent.mkdir(parents=True)
        icon.write_bytes(ring_png((10, 20, 30, 255), (200, 100, 50, 255)))
        self.assertEqual(self.make("Work"), entry)
        self.assertNotEqual(self.icons(entry), before)
        self.assertEqual(sorted(self.theme.rglob("*.png")), sorted(self.icons(entry)))
        self.assertEqual([each.name for each in self.applications.iterdir()], [entry.name])

    def test_a_launcher_on_the_desktop_can_be_executed_and_is_removed_by_itself(self) -> None:
        chrome = self.home.install_with(CHROME, ("Default", "Work"))
        desktop = self.home.home / "Desk top"
        desktop.mkdir()
        usual, own = self.make("Work"), self.make("Work", "--output", str(desktop))
        self.assertEqual(own, desktop / usual.name)
        self.assertTrue(os.access(own, os.X_OK))
        self.assert_launching_starts(own, [], chrome.profile_command("Default"))
        self.output_of("launcher", "--remove", "--output", str(desktop), "Work")
        self.assertEqual(list(desktop.iterdir()), [])
        self.assertTrue(all(each.exists() for each in [usual, *self.icons(usual)]))

    def test_what_is_removed_leaves_nothing(self) -> None:
        self.home.install_with(CHROME, ("Default", "Work"))
        entry = self.make("Work")
        self.assertEqual(self.output_of("launcher", "--remove", "Work"), "")
        self.assertEqual([each for each in self.home.data.rglob("*") if each.is_file()], [])
        self.assertIn(str(entry), self.assert_fails("launcher", "--remove", "Work"))

    def test_failures_are_told_and_nothing_is_left(self) -> None:
        self.home.install_with(CHROME, ("Default", "Work"))
        self.assert_fails("launcher", "Nobody")
        self.assert_fails("launcher", "--output", str(self.home.home / "none"), "Work")
        self.applications.write_text("in the way")
        before = self.home.snapshot()
        message = self.assert_fails("launcher", "Work")
        self.assertIn(str(self.applications), message)
        after = self.home.snapshot()
        self.assertEqual({path for path, content in after.items() if content is not None},
                         {path for path, content in before.items() if content is not None})

    def test_a_command_without_its_other_program_says_so(self) -> None:
        (self.home.root / "vantrel").write_bytes(self.program.read_bytes())
        (self.home.root / "vantrel").chmod(0o755)
        self.program = self.home.root / "vantrel"
        self.assertIn("vantrel-launcher", self.assert_fails("launcher", "Work"))

    def test_the_commands_that_draw_nothing_load_nothing_to_draw_with(self) -> None:
        libraries = subprocess.run(["ldd", str(self.program)], capture_output=True, text=True, check=True).stdout
        self.assertIn("libQt6Core", libraries)
        self.assertNotIn("libQt6Gui", libraries)
