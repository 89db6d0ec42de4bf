"""Firefox ESR as Debian packages it."""

import json
import os
from configparser import RawConfigParser
from pathlib import Path

from Tests.Desktop.desktop_session import require_programs
from Tests.Desktop.real_browser import BrowserProfile, RealBrowser, installed_entry

_PROGRAM = "/usr/lib/firefox-esr/firefox-esr"

# No pages of a first run, no restored tabs. Everything but the loopback is out of reach: nothing listens at the
# proxy's port.
_PREFERENCES = {
    "app.normandy.enabled": False,
    "browser.aboutwelcome.enabled": False,
    "browser.preonboarding.enabled": False,
    "browser.sessionstore.resume_from_crash": False,
    "browser.shell.checkDefaultBrowser": False,
    "browser.startup.homepage_override.mstone": "ignore",
    "browser.startup.page": 0,
    "datareporting.policy.dataSubmissionEnabled": False,
    "network.captive-portal-service.enabled": False,
    "network.connectivity-service.enabled": False,
    "network.proxy.http": "127.0.0.1",
    "network.proxy.http_port": 9,
    "network.proxy.no_proxies_on": "127.0.0.1",
    "network.proxy.share_proxy_settings": True,
    "network.proxy.ssl": "127.0.0.1",
    "network.proxy.ssl_port": 9,
    "network.proxy.type": 1,
    "network.trr.mode": 5,
    "toolkit.startup.max_resumed_crashes": -1,
}


class RealFirefox(RealBrowser):
    bundle_id = "org.mozilla.firefox"
    entry_name = "firefox-esr.desktop"
    program = Path(_PROGRAM)
    helper_switch = "-contentproc"
    title = "— Mozilla Firefox"
    private_title = f"{title} Private Browsing"
    history = ("places.sqlite", "select url from moz_places")

    @property
    def root(self) -> Path:
        """Where Firefox keeps its list of profiles: it depends on its version."""
        places = (self.session.config / "mozilla" / "firefox", self.session.home / ".mozilla" / "firefox")
        return next(each for each in places if (each / "profiles.ini").exists())

    def process_of(self, profile: BrowserProfile) -> int:
        try:
            return int(os.readlink(profile.folder / "lock").rpartition("+")[2])
        except FileNotFoundError:
            return 0

    def profile_folders(self) -> set[Path]:
        return {profile.folder for profile in self._listed_profiles()}

    def _entry(self) -> str:
        require_programs({_PROGRAM: "firefox-esr"})
        return installed_entry(self.entry_name)

    def _make_profiles(self) -> None:
        # The first becomes the one that a start without a profile uses. The second is outside of Firefox's folder.
        self._make_profile("Leisure")
        self._make_profile(f"Büro {self.session.home / 'far away' / 'Büro'}")
        self.profiles = tuple(self._listed_profiles())
        for profile in self.profiles:
            lines = [f"user_pref({json.dumps(key)}, {json.dumps(value)});" for key, value in _PREFERENCES.items()]
            (profile.folder / "user.js").write_text("\n".join([*lines, ""]), "utf-8")
            self._mark(profile.name, [_PROGRAM, "--profile", profile.folder])
        self._settle_the_default("Leisure")

    def _settle_the_default(self, name: str) -> None:
        """A start without a profile must not make another one: private windows are opened like that."""
        link = self.server.link("/default")
        self.session.start([_PROGRAM, link])
        marks = {each.mark for each in self.server.wait_for(link)}
        if marks != {name}:
            raise AssertionError(f"Firefox started with {marks} instead of {name}")

    def _make_profile(self, argument: str) -> None:
        done = self.session.run([_PROGRAM, "--headless", "-CreateProfile", argument])
        if done.returncode != 0:
            raise AssertionError(f"Firefox did not make a profile: {done.stderr.decode()}")

    def _listed_profiles(self) -> list[BrowserProfile]:
        """The profiles in the order in which Firefox has written them down."""
        file = RawConfigParser()
        file.read(self.root / "profiles.ini", "utf-8")
        sections = [file[each] for each in file.sections() if each.startswith("Profile")]
        folders = [self.root / each["Path"] for each in sections]
        return [
            BrowserProfile(f"firefox:{folder}", section["Name"], folder)
            for folder, section in zip(folders, sections, strict=True)
        ]
