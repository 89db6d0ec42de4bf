"""Chromium as Debian packages it."""

import json
import os
import re
import time
from contextlib import suppress
from pathlib import Path

from Tests.Desktop.desktop_session import require_programs
from Tests.Desktop.real_browser import BrowserProfile, RealBrowser, installed_entry
from Tests.Desktop.waiting import wait_for

_PROGRAM = "/usr/bin/chromium"

# The sandbox does not work for root and in most containers. Everything but the loopback is out of reach: nothing
# listens at the proxy's port.
_SWITCHES = (
    "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--no-default-browser-check",
    "--disable-background-networking", "--disable-component-update", "--disable-sync", "--password-store=basic",
    "--proxy-server=http://127.0.0.1:9",
)

# So long Chromium waits before it saves. What was typed by then was lost: the page has its title before it takes keys.
_SAVING_SECONDS = 20.0

# In the order in which they are made, which is neither that of their numbers nor that of their names.
_NAMES = {"Profile 10": "Work", "Default": "Büro & Straße", "Profile 2": "Home"}
_LISTED_ORDER = ("Default", "Profile 2", "Profile 10")


class RealChromium(RealBrowser):
    bundle_id = "org.chromium.Chromium"
    entry_name = "chromium.desktop"
    program = Path("/usr/lib/chromium/chromium")
    helper_switch = "--type="
    title = "- Chromium"
    private_title = title
    history = ("History", "select url from urls")

    @property
    def data_folder(self) -> Path:
        return self.session.config / "chromium"

    def process_of(self, profile: BrowserProfile) -> int:
        """One process has all profiles open."""
        try:
            return int(os.readlink(self.data_folder / "SingletonLock").rpartition("-")[2])
        except FileNotFoundError:
            return 0

    def profile_folders(self) -> set[Path]:
        return {each.parent for each in self.data_folder.glob("*/Preferences")}

    def make_profile(self, folder: str, mark: str) -> None:
        """The browser makes the profile that it is to open; it goes on."""
        self._mark(mark, [_PROGRAM, *_SWITCHES, f"--profile-directory={folder}"])

    def rename_profile(self, folder: str, mark: str, name: str) -> None:
        """As a user does, on the browser's own page: opens the profile and leaves it open, with its new name saved."""
        self.make_profile(folder, mark)
        next_attempt = 0.0

        def is_saved() -> bool:
            nonlocal next_attempt
            if time.monotonic() > next_attempt:
                self._type_name(name)
                next_attempt = time.monotonic() + _SAVING_SECONDS
            return self._saved_name(folder) == name

        wait_for(is_saved, f"Chromium to save the name {name}")

    def _type_name(self, name: str) -> None:
        self._keys("key", "ctrl+l")
        self._keys("type", "chrome://settings/manageProfile")
        self._keys("key", "Return")
        self.session.wait_for_window(self.title_of("Settings - Customize profile"))
        # From the page's way back to the name, which is then selected.
        self._keys("key", "Tab", "ctrl+a")
        self._keys("type", name)
        self._keys("key", "Return")

    def _keys(self, command: str, *keys: str) -> None:
        self.session.run(["xdotool", command, "--delay", "30", *keys])

    def _saved_name(self, folder: str) -> str:
        """Read again and again: the browser saves some seconds after a change."""
        with suppress(OSError, ValueError, KeyError):
            state = json.loads((self.data_folder / "Local State").read_bytes())
            return str(state["profile"]["info_cache"][folder]["name"])
        return ""

    def _entry(self) -> str:
        require_programs({_PROGRAM: "chromium"})
        command_line = " ".join((_PROGRAM, *_SWITCHES, "%U"))
        return re.sub(r"^Exec=.*", f"Exec={command_line}", installed_entry(self.entry_name), flags=re.MULTILINE)

    def _make_profiles(self) -> None:
        for folder, name in _NAMES.items():
            self.make_profile(folder, name)
        self.quit()
        self.profiles = tuple(
            BrowserProfile(f"chromium:{folder}", _NAMES[folder], self.data_folder / folder) for folder in _LISTED_ORDER
        )
        self._name_profiles()

    def _name_profiles(self) -> None:
        """As the browser's own settings do; that it takes the names for its own shows when it is started again."""
        file = self.data_folder / "Local State"
        state = json.loads(file.read_bytes())
        for folder, name in _NAMES.items():
            state["profile"]["info_cache"][folder] |= {"name": name, "is_using_default_name": False}
        file.write_text(json.dumps(state), "utf-8")
