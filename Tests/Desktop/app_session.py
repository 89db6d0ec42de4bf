"""A desktop with the installed program and six stand-in browsers."""

import json
import os
import re
import subprocess
from contextlib import suppress
from pathlib import Path
from typing import Any

from Tests.Desktop.desktop_session import DesktopSession, Window
from Tests.Desktop.installed_copy import InstalledCopy
from Tests.Desktop.processes import descendants
from Tests.Desktop.screen import Screen
from Tests.Desktop.waiting import PATIENCE_SECONDS, wait_for
from Tests.Support.browser_catalogue import Packaging
from Tests.Support.demo import BROWSERS, SampleBrowser, plant_browser
from Tests.Support.planted_home import Installation
from Tests.Support.stand_in import Start, StandIns

SETTINGS_TITLE = "Vantrel Settings"


class AppSession(DesktopSession):
    def __init__(self, installed: InstalledCopy) -> None:
        super().__init__()
        self.installed = installed
        self.program = installed.programs / "vantrel"
        self._app_log = self.root / "app.log"
        self._apps: list[subprocess.Popen[bytes]] = []
        self.state_file = self.data / "app.kestrune.Vantrel" / "profiles.json"
        self.browsers = StandIns(self.root / "starts")
        self.screen = Screen(self)
        self.share = self.root / "share"
        self.environment["PATH"] = f"{installed.programs}:{self.environment['PATH']}"
        self.environment["XDG_DATA_DIRS"] = f"{installed.share}:{self.share}"
        self.service_folders = [installed.services, self.root / "services"]
        self.service_folders[-1].mkdir()
        self.installations = {each.row.bundle_id: self._install(each) for each in BROWSERS}
        self.locations = {
            (each.row.bundle_id, name): self._location(each, name)
            for each in BROWSERS for name, _colour in each.profiles
        }

    def __exit__(self, *exception: object) -> None:
        super().__exit__(*exception)
        for app in self._apps:
            app.wait()

    def run_vantrel(self, *arguments: str, **environment: str) -> subprocess.CompletedProcess[str]:
        """Runs the command to its end. The app that it may start goes on."""
        return subprocess.run(
            [self.program, *arguments], env=self.environment | environment, cwd=self.home,
            stdin=subprocess.DEVNULL, capture_output=True, encoding="utf-8", timeout=PATIENCE_SECONDS, check=False,
        )

    def vantrel(self, *arguments: str, **environment: str) -> str:
        """The output of a command that must succeed without a message."""
        done = self.run_vantrel(*arguments, **environment)
        if (done.returncode, done.stderr) != (0, ""):
            raise AssertionError(f"vantrel {arguments}: {done.returncode} {done.stderr}")
        return done.stdout

    def launch_app(self) -> subprocess.Popen[bytes]:
        """Starts the app as a desktop does, without waiting for anything."""
        with open(self._app_log, "ab") as log:
            app = subprocess.Popen(
                [self.program], env=self.environment, cwd=self.home, start_new_session=True,
                stdin=subprocess.DEVNULL, stdout=log, stderr=log,
            )
        self._apps.append(app)
        return app

    def start_app(self) -> int:
        """Starts the app and waits until it has found all profiles; its process."""
        before = len(self.app_log_text())
        self.launch_app()
        pid = self.wait_for_app()
        # What a former app has saved was there before; this one takes requests when it reads profiles itself.
        wait_for(lambda: " profiles\n" in self.app_log_text()[before:], "the app to read profiles")
        return pid

    def wait_for_app(self) -> int:
        """Waits until there is one app, and all profiles are saved; its process."""
        names = sorted(name for each in BROWSERS for name, _colour in each.profiles)
        (pid,) = wait_for(
            lambda: pids if self.saved_names() == names and len(pids := self.app_pids()) == 1 else None,
            "one app, which has found all profiles",
        )
        return pid

    def app_log_text(self) -> str:
        """What the apps started by launch_app have written."""
        return self._app_log.read_text("utf-8") if self._app_log.exists() else ""

    def app_pids(self) -> list[int]:
        return [each.pid for each in descendants() if _program(each.pid) == self.installed.app]

    def wait_for_end_of_app(self) -> None:
        wait_for(lambda: not self.app_pids(), "the end of the app")

    def saved(self) -> dict[str, Any]:
        """The saved state; empty as long as there is none."""
        try:
            return json.loads(self.state_file.read_bytes())
        except FileNotFoundError:
            return {}

    def saved_names(self) -> list[str]:
        """The names of all saved profiles but private windows, in alphabetical order."""
        return sorted(each["name"] for each in self.saved().get("profiles", []) if each["name"])

    def rows(self) -> list[str]:
        """The ids of the profiles in the menu, in order."""
        return [each["id"] for each in json.loads(self.vantrel("list", "--json")) if not each["hidden"]]

    def position_of(self, identifier: str) -> int:
        """Among the rows of the menu that can be chosen, from 1."""
        return self.rows().index(identifier) + 1

    def rename_profile(self, bundle_id: str, name: str, new_name: str) -> None:
        """In the file of a Chromium-like browser, as the browser itself does."""
        file = self.installations[bundle_id].data_folder / "Local State"
        state = json.loads(file.read_bytes())
        state["profile"]["info_cache"][self.locations[bundle_id, name]]["name"] = new_name
        new = file.with_name("Local State.new")
        new.write_text(json.dumps(state), "utf-8")
        new.replace(file)

    def settings_window(self) -> Window | None:
        return next((each for each in self.windows() if each.title == SETTINGS_TITLE), None)

    def wait_for_active_window(self, window: Window) -> None:
        wait_for(lambda: self._active_window() == int(window.identifier, 16), f"“{window.title}” at the front")

    def wait_for_starts(self, *commands: list[str]) -> list[Start]:
        """The starts of the stand-ins since the last time; fails unless they are these, in any order."""
        starts = self.browsers.wait_for(len(commands))
        self.browsers.clear()
        found, expected = sorted(list(each.arguments) for each in starts), sorted(commands)
        if found != expected:
            raise AssertionError(f"{found} was started, not {expected}")
        return starts

    def _active_window(self) -> int:
        text = self.run(["xprop", "-root", "-notype", "_NET_ACTIVE_WINDOW"]).stdout.decode()
        found = re.search(r"0x[0-9a-f]+", text)
        return int(found[0], 16) if found else 0

    def _install(self, browser: SampleBrowser) -> Installation:
        program = self.browsers.make(self.root / "bin" / browser.row.program)
        plant_browser(browser, program, self.home, self.share)
        return Installation(browser.row, browser.row.variant(Packaging.NATIVE), (str(program),), self.home)

    def _location(self, browser: SampleBrowser, name: str) -> str:
        """A profile's folder, with Firefox its path."""
        if browser.row.family == "firefox":
            return str(self.installations[browser.row.bundle_id].data_folder / "Profiles" / name.lower())
        position = [each for each, _colour in browser.profiles].index(name)
        return f"Profile {position}" if position else "Default"


def _program(pid: int) -> Path | None:
    with suppress(OSError):
        return Path(os.readlink(f"/proc/{pid}/exe"))
    return None
