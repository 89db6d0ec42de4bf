"""What the tests need to know of a browser that is really installed."""

import os
import sqlite3
from abc import ABC, abstractmethod
from collections.abc import Sequence
from contextlib import closing, suppress
from dataclasses import dataclass, replace
from pathlib import Path

from Tests.Desktop.desktop_session import DesktopSession
from Tests.Desktop.page_server import PageServer
from Tests.Desktop.processes import Process, descendants, kill
from Tests.Desktop.waiting import wait_for
from Tests.Support.browser_catalogue import Row, row


@dataclass(frozen=True)
class BrowserProfile:
    """A profile by its key in Vantrel's ids, such as "chromium:Default". No two browsers share a name."""

    key: str
    name: str
    folder: Path


class RealBrowser(ABC):
    """A browser of the session's home; the profiles are made by the browser itself and each bears its name's mark."""

    bundle_id: str
    entry_name: str
    program: Path  # of its processes, not of the script that starts it
    helper_switch: str  # tells its helper processes from the browser itself
    title: str  # follows the page's title in the title of a window
    private_title: str  # the same for a private window
    history: tuple[str, str]  # file of the visited links below a profile, and the query

    def __init__(self, session: DesktopSession, server: PageServer) -> None:
        self.session = session
        self.server = server
        self.profiles: tuple[BrowserProfile, ...] = ()

    def prepare(self) -> None:
        """Plants the desktop entry and has the browser make its profiles; it is closed afterwards."""
        self.plant_entry()
        self._make_profiles()
        self.quit()

    def plant_entry(self) -> None:
        entry = self.session.data / "applications" / self.entry_name
        entry.parent.mkdir(exist_ok=True)
        entry.write_text(self._entry(), "utf-8")

    @property
    def row(self) -> Row:
        """The browser as it is expected in a listing."""
        lines = self._entry().splitlines()
        name = next(each for each in lines if each.startswith("Name="))
        return replace(row(self.bundle_id), name=name.removeprefix("Name="))

    def identifier(self, profile: BrowserProfile) -> str:
        return f"{self.bundle_id}/{profile.key}"

    @property
    def private_identifier(self) -> str:
        return f"{self.bundle_id}/private"

    def title_of(self, page: str) -> str:
        """The title of a window that shows a page with this title."""
        return f"{page} {self.title}"

    def private_title_of(self, page: str) -> str:
        return f"{page} {self.private_title}"

    def processes(self) -> list[Process]:
        """The running browser without its helpers: one process, or with Firefox one for each open profile."""
        return [each for each in descendants() if _program(each) == self.program and self._is_main(each)]

    @abstractmethod
    def process_of(self, profile: BrowserProfile) -> int:
        """The process that the profile's lock names; 0 where there is none."""

    def quit(self) -> None:
        """Closes all windows, and returns when the browser has saved everything and ended.

        No signal does that: Firefox ends at once and loses what it has not yet written.
        """
        running = {each.pid for each in self.processes()}
        asked: set[str] = set()

        def has_ended() -> bool:
            for window in self.session.windows():
                if window.pid in running and window.identifier not in asked:
                    self.session.close(window)
                    asked.add(window.identifier)
            return not running & {each.pid for each in descendants()}

        try:
            wait_for(has_ended, f"the end of {self.program.name}")
        except AssertionError:
            kill(running)
            raise

    def profiles_that_visited(self, link: str) -> list[BrowserProfile]:
        """According to their histories on disk; the browser must be closed."""
        return [each for each in self.profiles if link in self._visited(each)]

    @abstractmethod
    def profile_folders(self) -> set[Path]:
        """All folders of profiles, also of those that the tests did not ask for."""

    def _mark(self, name: str, command: Sequence[str | Path]) -> None:
        """Marks the profile that this command opens, and waits until the browser has taken note of it."""
        link = self.server.marking_link(name)
        self.session.start([*command, link])
        self.server.wait_for(link)
        self.session.wait_for_window(self.title_of(name))

    def _visited(self, profile: BrowserProfile) -> set[str]:
        file, query = self.history
        with closing(sqlite3.connect(profile.folder / file)) as database:
            return {link for (link,) in database.execute(query)}

    @abstractmethod
    def _entry(self) -> str:
        """The text of the desktop entry."""

    @abstractmethod
    def _make_profiles(self) -> None: ...

    def _is_main(self, process: Process) -> bool:
        return self.helper_switch not in process.command


def installed_entry(name: str) -> str:
    """The text of a desktop entry as its package installs it."""
    return Path("/usr/share/applications", name).read_text("utf-8")


def _program(process: Process) -> Path | None:
    with suppress(OSError):
        return Path(os.readlink(f"/proc/{process.pid}/exe"))
    return None
