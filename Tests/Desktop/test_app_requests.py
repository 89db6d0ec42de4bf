"""One instance, and what it is asked to do by commands, links and the message bus."""

import os
import re
import signal
import time
import unittest
from pathlib import Path

from Tests.Desktop.app_case import BRAVE, CHROME, FIREFOX, AppCase, install_program
from Tests.Desktop.app_session import SETTINGS_TITLE
from Tests.Desktop.desktop_session import require_programs
from Tests.Desktop.message_bus import APPLICATION, OBJECT
from Tests.Desktop.processes import descendants
from Tests.Desktop.tray_host import Trayer
from Tests.Desktop.waiting import wait_for

_BAD_LINK = "vantrel://?profileName=Nobody"
_PAGES = ("https://example.com/a?b=c&d=%20e", "http://example.org/#f")
_STARTS_AT_ONCE = 10


def setUpModule() -> None:
    require_programs({"gdbus": "libglib2.0-bin", "xdg-open": "xdg-utils", "xev": "x11-utils"})
    install_program()


class OneInstance(AppCase):
    def assert_settings_come_to_the_front(self) -> None:
        self.session.wait_for_active_window(self.session.wait_for_window(SETTINGS_TITLE))

    def test_a_second_start_ends_at_once_and_brings_the_settings_to_the_front(self) -> None:
        pid = self.session.start_app()
        self.assertIsNone(self.session.settings_window())
        for _ in range(2):
            begin = time.monotonic()
            self.assertEqual(self.session.vantrel(), "")
            self.assertLess(time.monotonic() - begin, 2)
            self.assert_settings_come_to_the_front()
            self.assertEqual(self.session.app_pids(), [pid])
            # Another window comes before it.
            self.session.start(["xev"])
            other = self.session.wait_for_window("Event Tester")
            self.session.wait_for_active_window(other)
            self.session.close(other)
        self.assertEqual([each.title for each in self.session.windows()].count(SETTINGS_TITLE), 1)

    def test_many_starts_at_once_leave_one_app(self) -> None:
        starts = [self.session.launch_app() for _ in range(_STARTS_AT_ONCE)]
        pid = self.session.wait_for_app()
        wait_for(lambda: sum(each.poll() is not None for each in starts) == _STARTS_AT_ONCE - 1, "the others' end")
        self.assertEqual({each.poll() for each in starts}, {0, None})
        self.assertEqual([each.pid for each in starts if each.poll() is None], [pid])
        self.assert_settings_come_to_the_front()

    def test_many_links_at_once_start_one_app_that_opens_all(self) -> None:
        link = self.link(CHROME, "Work")
        for _ in range(_STARTS_AT_ONCE):
            self.session.start([self.session.program, link])
        self.session.wait_for_starts(*[self.command(CHROME, "Work")] * _STARTS_AT_ONCE)
        wait_for(lambda: len(self.session.app_pids()) == 1, "the end of all but one")

    def test_the_app_starts_again_after_it_was_killed(self) -> None:
        for _ in range(3):
            os.kill(self.session.start_app(), signal.SIGKILL)
            self.session.wait_for_end_of_app()
        pid = self.session.start_app()
        self.session.vantrel("settings")
        self.assert_settings_come_to_the_front()
        self.assertEqual(self.session.app_pids(), [pid])

    def test_quitting_is_refused_where_no_app_runs(self) -> None:
        done = self.session.run_vantrel("quit")
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertEqual(done.stderr, "vantrel: Vantrel isn't running.\n")


class Links(AppCase):
    """Each test hands the links over in one way, to a running app and to none in a home that was never used."""

    def send(self, *links: str) -> None:
        self.session.vantrel(*links)

    def test_a_running_app_opens_a_link(self) -> None:
        pid = self.session.start_app()
        self.send(self.link(CHROME, "Home", *_PAGES))
        self.session.wait_for_starts(self.command(CHROME, "Home", *_PAGES))
        self.assertEqual(self.session.app_pids(), [pid])

    def test_a_link_starts_the_app_and_is_opened(self) -> None:
        link = self.link(FIREFOX, "Development", *_PAGES)
        self.assertEqual(self.session.saved(), {})
        self.send(link)
        self.session.wait_for_starts(self.command(FIREFOX, "Development", *_PAGES))
        self.session.wait_for_app()
        self.assertIsNone(self.session.settings_window())


class SeveralLinks(AppCase):
    def test_several_links_are_opened_in_order_and_a_bad_one_among_them_is_left_out(self) -> None:
        self.session.start_app()
        before = len(self.session.app_log_text())
        links = [self.link(CHROME, "Home"), _BAD_LINK, self.link(FIREFOX, "Home", *_PAGES)]
        self.session.run_vantrel(*links)
        self.session.wait_for_starts(self.command(CHROME, "Home"), self.command(FIREFOX, "Home", *_PAGES))
        log = self.session.app_log_text()[before:]
        self.assertEqual(
            re.findall(r"\[Open\] (.*?)(?:: .*)?$", log, re.MULTILINE),
            [
                "Opening a chromium profile from the link with 0 links", "Not a profile link",
                "Opening a firefox profile from the link with 2 links",
            ],
        )

    def test_several_links_start_the_app_and_are_opened(self) -> None:
        self.session.run_vantrel(self.link(CHROME, "Home"), _BAD_LINK, self.link(BRAVE, "Research", *_PAGES))
        self.session.wait_for_starts(self.command(CHROME, "Home"), self.command(BRAVE, "Research", *_PAGES))


class LinksWithoutMessageBus(Links):
    def setUp(self) -> None:
        del self.session.environment["DBUS_SESSION_BUS_ADDRESS"]
        # The message bus would be found in the other.
        folder = self.session.root / "another run"
        folder.mkdir(mode=0o700)
        self.session.environment["XDG_RUNTIME_DIR"] = str(folder)

    def test_commands_reach_the_app(self) -> None:
        self.session.start_app()
        self.session.vantrel("settings")
        self.session.wait_for_window(SETTINGS_TITLE)
        self.session.vantrel("menu")
        self.session.screen.wait_for_menu()


class LinksFromOtherPrograms(Links):
    """On a desktop without a name the system starts the command."""

    def send(self, *links: str) -> None:
        for link in links:
            done = self.session.run(["xdg-open", link])
            self.assertEqual(done.returncode, 0, done.stderr.decode())


class LinksFromOtherProgramsInGnome(LinksFromOtherPrograms):
    """There the system sends them over the message bus."""

    def setUp(self) -> None:
        self.session.environment["XDG_CURRENT_DESKTOP"] = "GNOME"


class MessageBusCase(AppCase):
    def call(self, method: str, *arguments: str) -> None:
        name = f"org.freedesktop.Application.{method}"
        address = ["--session", "--dest", APPLICATION, "--object-path", OBJECT, "--method", name]
        done = self.session.run(["gdbus", "call", *address, "--", *arguments])
        self.assertEqual((done.returncode, done.stdout), (0, b"()\n"), done.stderr.decode())


class LinksFromTheMessageBus(MessageBusCase, Links):
    def send(self, *links: str) -> None:
        self.call("Open", str(list(links)), "{}")


class RequestsFromTheMessageBus(MessageBusCase):
    def assert_answers(self) -> None:
        self.call("ActivateAction", "settings", "[]", "{}")
        self.session.close(self.session.wait_for_window(SETTINGS_TITLE))
        wait_for(lambda: not self.session.settings_window(), "the end of the settings")
        self.call("ActivateAction", "menu", "[]", "{}")
        self.session.screen.wait_for_menu()
        self.session.screen.press("Escape")
        self.session.screen.wait_for_no_menu()
        self.call("Activate", "{}")
        self.session.wait_for_window(SETTINGS_TITLE)

    def test_a_running_app_answers(self) -> None:
        pid = self.session.start_app()
        self.assert_answers()
        self.assertEqual(self.session.app_pids(), [pid])

    def test_the_first_request_starts_the_app(self) -> None:
        self.assert_answers()
        self.session.wait_for_app()

    def test_the_token_of_a_request_reaches_the_browser(self) -> None:
        self.session.start_app()
        link = self.link(CHROME, "Work")
        self.call("Open", str([link]), "{'activation-token': <'token of the panel'>}")
        (start,) = self.session.wait_for_starts(self.command(CHROME, "Work"))
        self.assertEqual(start.environment.get("XDG_ACTIVATION_TOKEN"), "token of the panel")


class OpenedBrowsers(AppCase):
    def assert_has_time_of_input(self, environment: dict[str, str]) -> None:
        """The time is the X server's, which counts milliseconds as this machine's clock does."""
        found = re.search(r"_TIME(\d+)$", environment.get("DESKTOP_STARTUP_ID", ""))
        self.assertIsNotNone(found, environment)
        age = (time.monotonic_ns() // 1_000_000 - int(found[1])) % 2**32
        self.assertLess(age, 60_000)

    def test_a_browser_is_told_the_time_of_a_click(self) -> None:
        tray = Trayer(self.session)
        tray.start()
        self.session.start_app()
        self.session.screen.click(tray.wait_for_symbol().centre)
        self.session.screen.wait_for_menu().click_row(self.position(CHROME, "Work"))
        (start,) = self.session.wait_for_starts(self.command(CHROME, "Work"))
        self.assert_has_time_of_input(start.environment)

    def test_a_browser_is_told_the_time_of_a_key(self) -> None:
        self.session.start_app()
        self.session.vantrel("menu")
        self.session.screen.wait_for_menu().choose_by_keyboard(self.position(CHROME, "Work"))
        (start,) = self.session.wait_for_starts(self.command(CHROME, "Work"))
        self.assert_has_time_of_input(start.environment)

    def test_a_token_is_given_to_the_browser_of_its_request_only(self) -> None:
        self.session.start_app()
        link = self.link(CHROME, "Work")
        for token in ("first", "second", None):
            self.session.vantrel(link, **({"XDG_ACTIVATION_TOKEN": token} if token else {}))
            (start,) = self.session.wait_for_starts(self.command(CHROME, "Work"))
            self.assertEqual(start.environment.get("XDG_ACTIVATION_TOKEN"), token)

    def test_a_token_of_the_start_is_given_to_the_browser(self) -> None:
        self.session.vantrel(self.link(CHROME, "Work"), XDG_ACTIVATION_TOKEN="first")
        (start,) = self.session.wait_for_starts(self.command(CHROME, "Work"))
        self.assertEqual(start.environment.get("XDG_ACTIVATION_TOKEN"), "first")

    def lasting_browser(self) -> int:
        """Opens a profile of a browser that goes on after its start is recorded; its process."""
        (program,) = self.installation(CHROME).words
        recording = self.session.browsers.make(Path(f"{program}.recording"))
        Path(program).write_text(f'#!/bin/sh\n"{recording}" "$@"\nexec sleep 1000\n', "utf-8")
        self.session.vantrel(self.link(CHROME, "Work"))
        self.session.wait_for_starts([str(recording), *self.command(CHROME, "Work")[1:]])
        running = wait_for(lambda: [each.pid for each in descendants() if each.command == "sleep 1000"], "the browser")
        return running[0]

    def assert_goes_on(self, browser: int) -> None:
        self.session.wait_for_end_of_app()
        self.assertIn(browser, [each.pid for each in descendants()])

    def test_a_browser_outlives_the_end_of_the_app(self) -> None:
        self.session.start_app()
        browser = self.lasting_browser()
        self.session.vantrel("quit")
        self.assert_goes_on(browser)

    def test_a_browser_outlives_a_crash_of_the_app(self) -> None:
        app = self.session.start_app()
        browser = self.lasting_browser()
        self.assertNotEqual(os.getsid(browser), os.getsid(app))
        os.kill(app, signal.SIGKILL)
        self.assert_goes_on(browser)


if __name__ == "__main__":
    unittest.main()
