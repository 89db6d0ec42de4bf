"""The saved profiles: whole at every moment, and as the browsers have them."""

import itertools
import os
import random
import re
import signal
import socket
import subprocess
import time
import unittest
from contextlib import suppress
from pathlib import Path

from Tests.Desktop.app_case import CHROME, AppCase, install_program
from Tests.Desktop.folder_events import FolderEvents
from Tests.Desktop.message_bus import MessageBus
from Tests.Desktop.page_server import PageServer
from Tests.Desktop.real_chromium import RealChromium
from Tests.Desktop.tray_host import XfcePanel
from Tests.Desktop.waiting import wait_for
from Tests.Support.browser_data import ChromiumProfile, plant_chromium

_KILLS = int(os.environ.get("VANTREL_KILLS", "100"))
_MANY_PROFILES = 400
_LONGEST_DELAY_SECONDS = 0.02
_MEMBERS = ["customNames", "hidden", "profiles", "searchedSafari"]
_UNREADABLE = b'{"profiles":[{"name":"W'


def setUpModule() -> None:
    install_program()


class Saving(AppCase):
    def assert_is_whole(self) -> None:
        self.assertEqual(sorted(self.session.saved()), _MEMBERS)
        self.assertEqual(len([each for each in self.session.saved()["profiles"] if each["name"]]), self.count)

    def test_the_file_is_whole_whenever_the_app_is_killed_while_it_saves(self) -> None:
        profiles = [ChromiumProfile(f"Profile {number}", f"Näme {number}") for number in range(_MANY_PROFILES)]
        plant_chromium(self.installation(CHROME).data_folder, profiles)
        app = self.session.launch_app()
        wait_for(lambda: len(self.session.saved_names()) > _MANY_PROFILES, "the saved profiles")
        self.count = len(self.session.saved_names())
        app.kill()
        app.wait()
        files = [self.session.state_file.stat().st_ino]
        for _ in range(_KILLS):
            with FolderEvents(self.session.state_file.parent) as events:
                app = self.session.launch_app()
                events.wait()
                # From the first moment of the saving to some time after its end, more often near the beginning.
                end = time.monotonic() + random.random() ** 3 * _LONGEST_DELAY_SECONDS
                while time.monotonic() < end:
                    pass
                app.kill()
                app.wait()
            self.assert_is_whole()
            files.append(self.session.state_file.stat().st_ino)
        # Some came before the file was replaced and some after.
        replaced = sum(before != after for before, after in itertools.pairwise(files))
        self.assertIn(replaced, range(1, _KILLS))

    def test_an_unreadable_file_is_kept(self) -> None:
        self.session.state_file.parent.mkdir(parents=True)
        self.session.state_file.write_bytes(_UNREADABLE)
        self.session.launch_app()
        kept = self.session.state_file.with_name("profiles.json.unreadable")
        wait_for(kept.exists, "the file that is kept")
        self.assertEqual(kept.read_bytes(), _UNREADABLE)
        self.session.wait_for_app()
        self.assertIn("Saved profiles unreadable", self.session.app_log_text())


class BrowserEnds(AppCase):
    """The profiles are read again when a browser has ended: it has then written all that was changed."""

    def begin(self) -> "subprocess.Popen[bytes]":
        """A process that holds the lock of the browser's data folder, and files in it, as a running browser does."""
        with open(self.data_folder / "Default" / "Preferences", "rb") as file:
            browser = subprocess.Popen(["sleep", "1000"], stdin=file)
        self.addCleanup(browser.wait)
        self.addCleanup(browser.kill)
        self.lock.symlink_to(f"{socket.gethostname()}-{browser.pid}")
        return browser

    @property
    def data_folder(self) -> Path:
        return self.installation(CHROME).data_folder

    @property
    def lock(self) -> Path:
        return self.data_folder / "SingletonLock"

    def end(self, browser: "subprocess.Popen[bytes]") -> None:
        self.lock.unlink()
        browser.send_signal(signal.SIGTERM)
        browser.wait()

    def wait_until_noticed(self, browser: "subprocess.Popen[bytes]") -> None:
        """A real browser runs longer than the app needs to open a handle of its process."""
        (app,) = self.session.app_pids()
        handles = Path(f"/proc/{app}/fdinfo")
        line = re.compile(rf"^Pid:\t{browser.pid}$", re.MULTILINE)
        wait_for(lambda: any(line.search(_text(each)) for each in handles.iterdir()), "the app to notice the browser")

    def assert_new_name_is_found(self, name: str) -> None:
        wait_for(lambda: name in self.session.saved_names(), f"the profile's new name {name}")

    def test_a_browser_that_ran_before_the_app(self) -> None:
        browser = self.begin()
        self.session.start_app()
        self.wait_until_noticed(browser)
        self.session.rename_profile(CHROME, "Work", "Office")
        self.assertNotIn("Office", self.session.saved_names())
        self.end(browser)
        self.assert_new_name_is_found("Office")

    def test_a_browser_that_starts_after_the_app_again_and_again(self) -> None:
        self.session.start_app()
        for name in ("Office", "Bureau", "Kontor"):
            browser = self.begin()
            self.wait_until_noticed(browser)
            self.session.rename_profile(CHROME, "Work", name)
            self.end(browser)
            self.assert_new_name_is_found(name)

    def test_a_browser_that_crashes_and_leaves_its_lock(self) -> None:
        self.session.start_app()
        browser = self.begin()
        self.wait_until_noticed(browser)
        self.session.rename_profile(CHROME, "Work", "Office")
        browser.kill()
        self.assert_new_name_is_found("Office")

    def test_the_next_menu_of_a_panel_has_the_new_name(self) -> None:
        panel = XfcePanel(self.session)
        panel.start()
        self.session.start_app()
        panel.wait_for_symbol()
        browser = self.begin()
        self.wait_until_noticed(browser)
        self.session.rename_profile(CHROME, "Work", "Office")
        self.end(browser)
        bus = MessageBus(self.session)
        wait_for(lambda: "Office" in bus.menu_titles(), "the profile's new name in the menu")


class RealBrowserEnds(AppCase):
    def test_profiles_that_a_real_browser_makes_are_found_when_it_ends(self) -> None:
        with PageServer() as server:
            browser = RealChromium(self.session, server)
            browser.plant_entry()
            self.session.start_app()
            for folder, names in {"Default": ["Default"], "Profile 5": ["Default", "Profile 5"]}.items():
                browser.make_profile(folder, folder)
                browser.quit()
                wait_for(lambda names=names: self.folders(browser) == names, f"the profiles {names} of Chromium")

    def test_the_next_menu_has_the_name_that_a_profile_was_given_in_a_real_browser(self) -> None:
        panel = XfcePanel(self.session)
        panel.start()
        with PageServer() as server:
            browser = RealChromium(self.session, server)
            browser.plant_entry()
            self.session.start_app()
            panel.wait_for_symbol()
            browser.rename_profile("Default", "Work", "Kontor")
            bus = MessageBus(self.session)
            self.assertNotIn("Kontor", bus.menu_titles())
            browser.quit()
        wait_for(lambda: "Kontor" in bus.menu_titles(), "the profile's new name in the menu")

    def folders(self, browser: RealChromium) -> list[str]:
        """The folders of the browser's profiles in the saved state."""
        profiles = [each for each in self.session.saved()["profiles"] if each["browserBundleID"] == browser.bundle_id]
        return sorted(each["target"]["chromium"]["folder"] for each in profiles if "chromium" in each["target"])


def _text(file: Path) -> str:
    """Empty where the file has gone meanwhile."""
    with suppress(FileNotFoundError):
        return file.read_text()
    return ""


if __name__ == "__main__":
    unittest.main()
