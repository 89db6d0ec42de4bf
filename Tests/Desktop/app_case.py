"""The base of the tests of the running app, each on a desktop and in a home of its own."""

import signal
import sys
import tempfile
import unittest
from pathlib import Path

from Tests.Desktop.app_session import AppSession
from Tests.Desktop.installed_copy import InstalledCopy
from Tests.Support.planted_home import Installation

CHROME = "com.google.Chrome"
BRAVE = "com.brave.Browser"
FIREFOX = "org.mozilla.firefox"


def install_program() -> None:
    """To be called by a module's setUpModule."""
    # An interrupted test leaves its with statement.
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    folder = unittest.enterModuleContext(tempfile.TemporaryDirectory(prefix="vantrel-installed-"))
    AppCase.installed = InstalledCopy(Path(folder))


class AppCase(unittest.TestCase):
    maxDiff = None
    installed: InstalledCopy
    session: AppSession

    def run(self, result: unittest.TestResult | None = None) -> unittest.TestResult | None:
        self._result = result or self.defaultTestResult()
        self._failures_before = _failure_count(self._result)
        self.session = AppSession(self.installed)
        self.prepare()
        with self.session:
            return super().run(self._result)

    def prepare(self) -> None:
        """What has to be done before the desktop starts."""

    def tearDown(self) -> None:
        """Nothing may have been opened beyond what the test has seen, and the app ends when it is told to."""
        if _failure_count(self._result) > self._failures_before:
            # What the screen showed: all windows are still there.
            print(f"\n{self.id()}: see {self.session.report([self.session.app_log_text()])}", file=sys.stderr)
            return
        if self.session.app_pids():
            self.assertEqual(self.session.run_vantrel("quit").returncode, 0)
            self.session.wait_for_end_of_app()
        self.assertEqual(self.session.browsers.wait_for(0), [])

    def installation(self, bundle_id: str) -> Installation:
        return self.session.installations[bundle_id]

    def identifier(self, bundle_id: str, name: str) -> str:
        """The id of a browser's profile; an empty name is its private window."""
        if not name:
            return f"{bundle_id}/private"
        return f"{bundle_id}/{self.installation(bundle_id).row.family}:{self.location(bundle_id, name)}"

    def location(self, bundle_id: str, name: str) -> str:
        return self.session.locations[bundle_id, name]

    def command(self, bundle_id: str, name: str, *links: str) -> list[str]:
        """The command that opens a browser's profile."""
        if not name:
            return self.installation(bundle_id).private_commands(*links)[0]
        return self.installation(bundle_id).profile_command(self.location(bundle_id, name), *links)

    def link(self, bundle_id: str, name: str, *links: str) -> str:
        return self.session.vantrel("link", self.identifier(bundle_id, name), *links).strip()

    def position(self, bundle_id: str, name: str) -> int:
        return self.session.position_of(self.identifier(bundle_id, name))


def _failure_count(result: unittest.TestResult) -> int:
    return len(result.failures) + len(result.errors)
