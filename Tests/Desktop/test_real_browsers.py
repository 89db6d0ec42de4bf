"""The program with the real browsers on a desktop of their own: every request is seen by a web server.

Which profile a browser has opened shows by the cookie that it sends: each profile got its own when the browser was
started directly, before the program had any part in it.
"""

import atexit
import json
import os
import signal
import sys
import unittest
from contextlib import ExitStack
from pathlib import Path
from typing import Any

from Tests.Desktop.desktop_session import DesktopSession
from Tests.Desktop.page_server import PageServer
from Tests.Desktop.processes import Process, paused
from Tests.Desktop.real_browser import BrowserProfile, RealBrowser
from Tests.Desktop.real_chromium import RealChromium
from Tests.Desktop.real_firefox import RealFirefox
from Tests.Desktop.terminal import run_in_terminal_and_close_it
from Tests.Desktop.waiting import wait_for
from Tests.Support import listed


def setUpModule() -> None:
    stack = ExitStack()
    unittest.addModuleCleanup(stack.close)
    # An interrupted test does not come to its cleanups.
    atexit.register(stack.close)
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    server = stack.enter_context(PageServer())
    session = stack.enter_context(DesktopSession())
    browsers = {each: each(session, server) for each in (RealChromium, RealFirefox)}
    RealBrowserCase.server, RealBrowserCase.session, RealBrowserCase.browsers = server, session, browsers
    try:
        for browser in browsers.values():
            browser.prepare()
    except AssertionError:
        print(f"setting the browsers up: see {session.report(server.requests)}", file=sys.stderr)
        raise


class RealBrowserCase(unittest.TestCase):
    """Every test begins with all browsers closed."""

    maxDiff = None
    server: PageServer
    session: DesktopSession
    browsers: dict[type[RealBrowser], RealBrowser]

    @classmethod
    def setUpClass(cls) -> None:
        cls.program = os.environ.get("VANTREL", "")
        if not Path(cls.program).is_file():
            raise AssertionError("The variable VANTREL does not name the program that is to be tested.")
        cls.program = os.path.abspath(cls.program)

    def setUp(self) -> None:
        for browser in self.browsers.values():
            browser.quit()

    def run(self, result: unittest.TestResult | None = None) -> unittest.TestResult | None:
        """Keeps what the screen showed when a test failed: its windows are still there."""
        before = _failure_count(result)
        done = super().run(result)
        if _failure_count(result) > before:
            print(f"\n{self.id()}: see {self.session.report(self.server.requests)}", file=sys.stderr)
        return done

    def vantrel(self, *arguments: str) -> str:
        """The output of a command that must succeed without a message."""
        done = self.session.run([self.program, *arguments])
        self.assertEqual((done.returncode, done.stderr.decode()), (0, ""), arguments)
        return done.stdout.decode()

    def listing(self) -> list[dict[str, Any]]:
        return json.loads(self.vantrel("list", "--json"))

    def link(self, target: str) -> str:
        """A link that no other test asks for."""
        return self.server.link(f"/{self.id()}{target}")


def _failure_count(result: unittest.TestResult | None) -> int:
    return len(result.failures) + len(result.errors) if result else 0


class Listing(RealBrowserCase):
    def assert_lists_all_profiles(self) -> None:
        expected: list[listed.Listed] = []
        for browser in (self.browsers[RealChromium], self.browsers[RealFirefox]):
            profiles = [(each.key.partition(":")[2], each.name) for each in browser.profiles]
            expected += listed.browser(browser.row, *profiles)
        self.assertEqual(self.listing(), expected)

    def test_profiles_made_by_the_browsers_are_listed_by_name_and_in_order(self) -> None:
        self.assertEqual([len(each.profiles) for each in self.browsers.values()], [3, 2])
        self.assert_lists_all_profiles()

    def test_profiles_are_listed_while_all_of_them_are_open(self) -> None:
        for browser in self.browsers.values():
            for number, profile in enumerate(browser.profiles):
                link = self.link(f"/{browser.bundle_id}/{number}")
                self.vantrel("open", browser.identifier(profile), link)
                self.server.wait_for(link)
        self.assert_lists_all_profiles()


class Opening:
    """The tests of one browser: what follows holds for each."""

    # A base class that unittest does not collect; the classes below name the browser.
    browser_type: type[RealBrowser]

    @property
    def browser(self) -> RealBrowser:
        return self.browsers[self.browser_type]

    def open(self, profile: BrowserProfile, *links: str) -> None:
        self.assertEqual(self.vantrel("open", self.browser.identifier(profile), *links), "")

    def assert_opened_in(self, profile: BrowserProfile, *links: str) -> None:
        for link in links:
            marks = {each.mark for each in self.server.wait_for(link)}
            self.assertEqual(marks, {profile.name}, link)

    def process_of(self, profile: BrowserProfile) -> Process:
        """The browser that has the profile open."""
        pid = self.browser.process_of(profile)
        return next(each for each in self.browser.processes() if each.pid == pid)

    def assert_only_runs(self, *pids: int) -> None:
        """A process that only hands its links over may still be about to end."""
        wait_for(lambda: {each.pid for each in self.browser.processes()} == set(pids), f"no processes but {pids}")

    def test_a_closed_browser_starts_with_the_profile(self) -> None:
        # Each time the profile that was used last is another one.
        for number, profile in enumerate(self.browser.profiles):
            with self.subTest(profile.name):
                link = self.link(f"/{number}")
                self.open(profile, link)
                self.assert_opened_in(profile, link)
                self.browser.quit()

    def test_an_open_browser_opens_the_profile(self) -> None:
        profiles = self.browser.profiles
        visits = [(profile, self.link(f"/{number}")) for number, profile in enumerate([*profiles, *reversed(profiles)])]
        for number, (profile, link) in enumerate(visits):
            self.open(profile, link)
            self.assert_opened_in(profile, link)
            self.session.wait_for_window(self.browser.title_of(str(number)))
        self.browser.quit()
        for profile, link in visits:
            self.assertEqual(self.browser.profiles_that_visited(link), [profile])

    def test_links_arrive_byte_for_byte_and_all_of_them(self) -> None:
        *_, profile = self.browser.profiles
        targets = ("/1?a=1&b=%20x", "/2?q=%2B+%25&r=a;b,c=$HOME$(id)", "/3%20%C3%A9/~(x)!*?", "/4?x=%22&&==")
        links = [self.link(each) for each in targets]
        for each in (links, links[::-1]):  # with a browser that starts, and with one that runs
            seen = len(self.server.requests)
            self.open(profile, *each)
            for link in each:
                self.server.wait_for(link, after=seen)
        self.assert_opened_in(profile, *links)

    def test_a_file_is_shown(self) -> None:
        profile, *_ = self.browser.profiles
        page = self.session.home / "page of änn #1 100%.html"
        page.write_text("<!doctype html><title>page of a file</title>")
        self.open(profile, page.as_uri())
        self.session.wait_for_window(self.browser.title_of("page of a file"))

    def test_a_window_opens_without_a_link(self) -> None:
        for profile in self.browser.profiles:
            before = len(self.session.windows())
            self.open(profile)
            wait_for(lambda before=before: len(self.session.windows()) > before, "a new window")

    def test_a_running_browser_takes_over(self) -> None:
        *_, profile = self.browser.profiles
        self.open(profile, self.link("/1"))
        self.assert_opened_in(profile, self.link("/1"))
        before = self.process_of(profile)
        self.open(profile, self.link("/2"))
        self.assert_opened_in(profile, self.link("/2"))
        self.assert_only_runs(before.pid)

    def test_opening_does_not_wait_for_a_running_browser(self) -> None:
        profile, *_ = self.browser.profiles
        self.open(profile, self.link("/1"))
        self.assert_opened_in(profile, self.link("/1"))
        before = self.process_of(profile)
        with paused(before.pid):
            self.open(profile, self.link("/2"))
        self.assert_opened_in(profile, self.link("/2"))
        self.assert_only_runs(before.pid)

    def test_the_browser_outlives_the_terminal_that_opened_it(self) -> None:
        *_, profile = self.browser.profiles
        command = [self.program, "open", self.browser.identifier(profile), self.link("/1")]
        shown, terminal = run_in_terminal_and_close_it(command, self.session.environment)
        self.assertEqual(shown, "ended with 0\n")
        self.assert_opened_in(profile, self.link("/1"))
        process = self.process_of(profile)
        self.assertNotIn(process.session, (terminal, os.getsid(0)))
        self.assertEqual(process.terminal, 0)
        self.open(profile, self.link("/2"))
        self.assert_opened_in(profile, self.link("/2"))
        self.assert_only_runs(process.pid)

    def assert_opened_in_private(self, link: str) -> None:
        self.assertEqual({each.mark for each in self.server.wait_for(link)}, {None})
        window = self.session.wait_for_window(self.browser.private_title_of(link.rpartition("/")[2]))
        self.assertIn(window.pid, [each.pid for each in self.browser.processes()])

    def assert_no_trace_of(self, *links: str) -> None:
        """Neither in a known profile, nor is there another that the browser may have made for them."""
        self.browser.quit()
        self.assertEqual(self.browser.profile_folders(), {each.folder for each in self.browser.profiles})
        for link in links:
            self.assertEqual(self.browser.profiles_that_visited(link), [])

    def test_a_private_window_opens_beside_the_profiles(self) -> None:
        for number, profile in enumerate(self.browser.profiles):
            self.open(profile, self.link(f"/{number}"))
            self.assert_opened_in(profile, self.link(f"/{number}"))
        running = {self.process_of(each).pid for each in self.browser.profiles}
        self.vantrel("open", self.browser.private_identifier, self.link("/private"))
        self.assert_opened_in_private(self.link("/private"))
        self.assert_only_runs(*running)
        self.assert_no_trace_of(self.link("/private"))

    def test_a_private_window_opens_alone(self) -> None:
        self.vantrel("open", self.browser.private_identifier, self.link("/private"))
        self.assert_opened_in_private(self.link("/private"))
        self.assertEqual(len(self.session.windows()), 1)
        self.assert_no_trace_of(self.link("/private"))

    def test_several_links_open_in_a_running_browsers_private_window(self) -> None:
        # Running before, as several Firefoxes that start at the same time may miss each other.
        self.vantrel("open", self.browser.private_identifier, self.link("/private"))
        self.assert_opened_in_private(self.link("/private"))
        links = [self.link(f"/private{number}") for number in range(3)]
        self.vantrel("open", self.browser.private_identifier, *links)
        for link in links:
            self.assertEqual({each.mark for each in self.server.wait_for(link)}, {None})
        self.assert_no_trace_of(*links)


class ChromiumOpening(Opening, RealBrowserCase):
    browser_type = RealChromium

    def test_several_links_open_in_a_private_window_of_a_closed_browser(self) -> None:
        links = [self.link(f"/private{number}") for number in range(3)]
        self.vantrel("open", self.browser.private_identifier, *links)
        for link in links:
            self.assertEqual({each.mark for each in self.server.wait_for(link)}, {None})
        self.assert_no_trace_of(*links)


class FirefoxOpening(Opening, RealBrowserCase):
    browser_type = RealFirefox

    def test_profiles_run_side_by_side(self) -> None:
        first, second = self.browser.profiles
        for number, profile in enumerate((first, second)):
            self.open(profile, self.link(f"/{number}"))
            self.assert_opened_in(profile, self.link(f"/{number}"))
        pids = {self.process_of(each).pid for each in (first, second)}
        self.assertEqual(len(pids), 2)
        self.assert_only_runs(*pids)


if __name__ == "__main__":
    unittest.main()
