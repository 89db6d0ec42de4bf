"""The symbol in trays and panels, the menu, and the app at rest."""

import time
import unittest
from pathlib import Path

from Tests.Desktop.app_case import BRAVE, CHROME, FIREFOX, AppCase, install_program
from Tests.Desktop.app_session import SETTINGS_TITLE
from Tests.Desktop.message_bus import MessageBus
from Tests.Desktop.screen import OpenMenu
from Tests.Desktop.tray_host import Trayer, TrayHost, XfcePanel
from Tests.Desktop.waiting import wait_for

_APP = "vantrel-app"
_PANEL = "wrapper-2.0"
_NOTICE_TITLE = "Vantrel"
_NO_PLACE = "This desktop has no place for the menu's symbol"

_START_SECONDS = 11  # until the search for a tray has come to its end
_CHANGE_SECONDS = 2  # until a panel has asked for all it wants to know
_REST_SECONDS = 20


def setUpModule() -> None:
    install_program()


class SymbolCase(AppCase):
    def open_menu(self, host: TrayHost, button: int = 1) -> OpenMenu:
        self.session.screen.click(host.wait_for_symbol().centre, button)
        return self.session.screen.wait_for_menu()

    def assert_profile_opens(self, host: TrayHost, bundle_id: str, name: str, button: int = 1) -> None:
        self.open_menu(host, button).click_row(self.position(bundle_id, name))
        self.session.wait_for_starts(self.command(bundle_id, name))


class Tray(SymbolCase):
    def setUp(self) -> None:
        self.tray = Trayer(self.session)

    def test_a_click_on_the_symbol_opens_the_menu_and_a_click_on_a_row_opens_its_profile(self) -> None:
        self.tray.start()
        self.assertFalse(self.tray.has_symbol())
        self.session.start_app()
        for bundle_id, name in ((BRAVE, "Personal"), (CHROME, "Northwind Trading"), (FIREFOX, "Home"), (FIREFOX, "")):
            self.assert_profile_opens(self.tray, bundle_id, name)

    def test_the_other_button_opens_the_menu_too(self) -> None:
        self.tray.start()
        self.session.start_app()
        self.assert_profile_opens(self.tray, CHROME, "Work", button=3)

    def test_a_double_click_on_the_symbol_chooses_nothing(self) -> None:
        self.tray.start()
        pid = self.session.start_app()
        self.session.screen.click(self.tray.wait_for_symbol().centre, times=2)
        self.session.vantrel("settings")
        self.session.wait_for_window(SETTINGS_TITLE)
        self.assertEqual(self.session.app_pids(), [pid])

    def test_a_tray_that_comes_after_the_app_gets_the_symbol(self) -> None:
        self.session.start_app()
        self.tray.start()
        self.assert_profile_opens(self.tray, CHROME, "Home")

    def test_a_tray_that_is_killed_and_started_again_gets_the_symbol_again(self) -> None:
        self.tray.start()
        self.session.start_app()
        for _ in range(2):
            self.tray.wait_for_symbol()
            self.tray.kill()
            self.tray.start()
        self.assert_profile_opens(self.tray, CHROME, "Home")


class Panel(SymbolCase):
    def setUp(self) -> None:
        self.panel = XfcePanel(self.session)

    def assert_panels_own_menu_opens_a_profile(self, bundle_id: str, name: str) -> None:
        menu = self.open_menu(self.panel)
        self.assertEqual(menu.program, _PANEL)  # its window, not one of the app
        menu.click_row(self.position(bundle_id, name))
        self.session.wait_for_starts(self.command(bundle_id, name))

    def test_a_click_on_the_symbol_opens_the_panels_menu_and_a_click_on_a_row_opens_its_profile(self) -> None:
        self.panel.start()
        self.assertFalse(self.panel.has_symbol())
        self.session.start_app()
        for bundle_id, name in ((BRAVE, "Personal"), (CHROME, "Northwind Trading"), (FIREFOX, "Home"), (FIREFOX, "")):
            self.assert_panels_own_menu_opens_a_profile(bundle_id, name)

    def test_names_are_shown_as_they_are(self) -> None:
        names = {"Work": "R&D_team", "Home": "__init__ && _x", "Northwind Trading": "100 % _ & <b>"}
        for name, new_name in names.items():
            self.session.rename_profile(CHROME, name, new_name)
        self.panel.start()
        self.session.launch_app()
        self.panel.wait_for_symbol()
        wait_for(lambda: set(names.values()) <= set(self.session.saved_names()), "the saved names")
        titles = MessageBus(self.session).menu_titles()
        first = titles.index("Google Chrome") + 1
        self.assertEqual(titles[first:first + 3], list(names.values()))

    def test_a_panel_that_comes_after_the_app_gets_the_symbol(self) -> None:
        self.session.start_app()
        self.panel.start()
        self.assert_panels_own_menu_opens_a_profile(CHROME, "Home")

    def test_a_panel_that_is_killed_and_started_again_gets_the_symbol_again(self) -> None:
        self.panel.start()
        self.session.start_app()
        for _ in range(2):
            self.panel.wait_for_symbol()
            self.panel.kill()
            self.panel.start()
        self.assert_panels_own_menu_opens_a_profile(CHROME, "Home")

    def test_the_symbol_moves_from_a_tray_to_a_panel_and_back_when_the_panel_ends(self) -> None:
        tray = Trayer(self.session)
        tray.start()
        self.session.start_app()
        tray.wait_for_symbol()
        self.panel.start()
        self.assert_panels_own_menu_opens_a_profile(CHROME, "Home")
        self.assertFalse(tray.has_symbol())
        self.panel.kill()
        # The panel has put this tray out of its place, as no two can be on a screen.
        tray.kill()
        tray.start()
        menu = self.open_menu(tray)
        self.assertEqual(menu.program, _APP)
        menu.click_row(self.position(CHROME, "Work"))
        self.session.wait_for_starts(self.command(CHROME, "Work"))


class NoTray(AppCase):
    def open_menu(self) -> OpenMenu:
        self.session.vantrel("menu")
        return self.session.screen.wait_for_menu()

    def test_the_missing_tray_is_told_once(self) -> None:
        self.session.start_app()
        notice = self.session.wait_for_window(_NOTICE_TITLE)
        # It advises its reader to do this.
        self.session.vantrel()
        self.session.wait_for_active_window(self.session.wait_for_window(SETTINGS_TITLE))
        for window in (self.session.settings_window(), notice):
            self.session.close(window)
        wait_for(lambda: not self.session.windows(), "the end of both windows")
        self.assertEqual(self.session.app_log_text().count(_NO_PLACE), 1)
        self.session.vantrel("quit")
        self.session.wait_for_end_of_app()

        self.session.start_app()
        wait_for(lambda: self.session.app_log_text().count(_NO_PLACE) == 2, "the end of the search for a tray")
        self.session.vantrel("settings")
        self.session.wait_for_window(SETTINGS_TITLE)
        self.assertEqual([each.title for each in self.session.windows()], [SETTINGS_TITLE])

    def test_the_command_opens_the_menu_at_the_pointer(self) -> None:
        self.session.start_app()
        self.session.screen.point((300, 100))
        area = self.open_menu().area
        self.assertEqual((area.left, area.top), (300, 100))

    def test_the_menu_can_be_used_by_keyboard(self) -> None:
        self.session.start_app()
        for bundle_id, name in ((BRAVE, "Personal"), (CHROME, "Home")):
            self.open_menu().choose_by_keyboard(self.position(bundle_id, name))
            self.session.wait_for_starts(self.command(bundle_id, name))
        self.open_menu()
        # Upwards from the end: first what ends the app, then its settings, then the last profile.
        self.session.screen.press("Up", "Up", "Up", "Return")
        self.session.screen.wait_for_no_menu()
        self.session.wait_for_starts(self.command("app.zen-browser.zen", ""))

    def test_escape_closes_the_menu(self) -> None:
        self.session.start_app()
        self.open_menu()
        self.session.screen.press("Down", "Escape")
        self.session.screen.wait_for_no_menu()

    def test_the_command_starts_the_app_and_opens_its_menu_with_all_profiles_in_reach(self) -> None:
        self.session.vantrel("menu")
        self.session.wait_for_app()
        self.session.screen.wait_for_menu().click_row(self.position(CHROME, "Northwind Trading"))
        self.session.wait_for_starts(self.command(CHROME, "Northwind Trading"))

    def test_the_menus_last_rows_open_the_settings_and_end_the_app(self) -> None:
        self.session.start_app()
        self.open_menu()
        self.session.screen.press("Up", "Up", "Return")
        self.session.wait_for_window(SETTINGS_TITLE)
        self.open_menu()
        self.session.screen.press("Up", "Return")
        self.session.wait_for_end_of_app()


class AtRest(AppCase):
    def wake_ups(self, pid: int) -> dict[str, list[str]]:
        """How often each of the app's threads had to wait or was made to, and its time on a processor."""
        return {
            task.name: [line for line in (task / "status").read_text().splitlines() if "voluntary_ctxt" in line]
            + (task / "schedstat").read_text().split()[:1]
            for task in Path(f"/proc/{pid}/task").iterdir()
        }

    def assert_rests(self, pid: int) -> None:
        before = self.wake_ups(pid)
        time.sleep(_REST_SECONDS)
        after = self.wake_ups(pid)
        # Threads of the start may end meanwhile: those that wait for further work do so for a while only.
        self.assertEqual(after, {thread: before.get(thread) for thread in after})

    def test_nothing_happens_in_a_tray_and_in_a_panel_while_nobody_does_anything(self) -> None:
        tray, panel = Trayer(self.session), XfcePanel(self.session)
        tray.start()
        pid = self.session.start_app()
        tray.wait_for_symbol()
        time.sleep(_START_SECONDS)
        self.assert_rests(pid)
        panel.start()
        panel.wait_for_symbol()
        time.sleep(_CHANGE_SECONDS)
        self.assert_rests(pid)


if __name__ == "__main__":
    unittest.main()
