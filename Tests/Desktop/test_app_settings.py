"""The settings window, used by the mouse and by the keyboard, and read as screen readers do."""

import unittest

from Tests.Desktop.accessibility import Accessibility, Control
from Tests.Desktop.app_case import BRAVE, CHROME, AppCase, install_program
from Tests.Desktop.waiting import wait_for

_TAB_ROLE = "page tab"
_MOST_STEPS = 200  # of the Tab key through all controls


def setUpModule() -> None:
    install_program()


class Settings(AppCase):
    accessibility: Accessibility
    pid: int

    def prepare(self) -> None:
        self.accessibility = Accessibility(self.session, self.session.service_folders[-1])
        # The notice that there is no tray, which comes once, would take the keyboard.
        defaults = self.session.config / "app.kestrune.Vantrel" / "defaults.ini"
        defaults.parent.mkdir(parents=True)
        defaults.write_text("[General]\ntoldThatThereIsNoTray=true\n", "utf-8")

    def setUp(self) -> None:
        self.pid = self.session.start_app()
        self.open_settings()

    def open_settings(self) -> None:
        self.session.vantrel("settings")
        self.session.wait_for_active_window(self.session.wait_for_window("Vantrel Settings"))
        self.wait_for("Google Chrome – Work: Name")

    def wait_for(self, name: str, role: str = "") -> Control:
        return self.accessibility.wait_for(self.pid, name, role)

    def click(self, name: str, role: str = "") -> None:
        self.session.screen.click(self.wait_for(name, role).area.centre)

    def press(self, *keys: str) -> None:
        self.session.screen.press(*keys)

    def type(self, text: str) -> None:
        self.session.run(["xdotool", "type", "--delay", "20", text])

    def clipboard(self) -> str:
        return self.session.run(["xclip", "-selection", "clipboard", "-out"]).stdout.decode()

    def go_to(self, name: str) -> None:
        """Presses Tab until the control has the focus."""
        for _ in range(_MOST_STEPS):
            focused = self.accessibility.focused_control(self.pid)
            if focused and focused.name == name:
                return
            self.press("Tab")
        self.fail(f"Tab does not reach {name}")

    def order(self, bundle_id: str) -> list[str]:
        """The names of a browser's saved profiles."""
        saved = self.session.saved()["profiles"]
        return [each["name"] for each in saved if each["browserBundleID"] == bundle_id]

    def test_everything_can_be_done_with_the_mouse(self) -> None:
        work = self.identifier(CHROME, "Work")
        self.click("Google Chrome – Work: Name")
        self.press("ctrl+a")
        self.type("Office")
        self.press("Return")
        wait_for(lambda: self.session.saved()["customNames"] == {work: "Office"}, "the name to be saved")
        self.click("Google Chrome – Office: Leave out of the menu")
        wait_for(lambda: self.session.saved()["hidden"] == [work], "the profile to be hidden")
        self.click("Google Chrome – Office: Show in the menu")
        wait_for(lambda: self.session.saved()["hidden"] == [], "the profile to be shown")

        self.click("Google Chrome – Office: Record Shortcut")
        self.wait_for("Google Chrome – Office: Press Keys…")
        self.press("ctrl+alt+p")
        self.wait_for("Google Chrome – Office: Ctrl+Alt+P")
        self.press("ctrl+alt+p")
        self.session.wait_for_starts(self.command(CHROME, "Work"))
        self.click("Google Chrome – Office: Remove the shortcut")
        self.wait_for("Google Chrome – Office: Record Shortcut")
        self.press("ctrl+alt+p")
        self.assertEqual(self.session.browsers.wait_for(0), [])

        self.assertEqual(self.order(CHROME), ["Work", "Home", "Northwind Trading", ""])
        first = self.wait_for("Google Chrome – Office: Name").area
        last = self.wait_for("Google Chrome – Northwind Trading: Name").area
        grip = first.left - 40
        self.session.screen.drag((grip, first.centre[1]), (grip, last.centre[1] + last.height))
        wait_for(lambda: self.order(CHROME) == ["Home", "Northwind Trading", "Work", ""], "the row to be moved")

        self.click("Brave – Research: More")
        self.session.screen.wait_for_menu()
        self.press("Down", "Return")
        self.session.wait_for_starts(self.command(BRAVE, "Research"))
        self.click("Brave – Research: More")
        self.session.screen.wait_for_menu()
        self.press("Down", "Down", "Down", "Return")
        self.assertEqual(self.clipboard(), self.link(BRAVE, "Research"))

        self.click("General", _TAB_ROLE)
        self.click("Open at Login")
        entry = self.session.config / "autostart" / "app.kestrune.Vantrel.desktop"
        wait_for(entry.exists, "the entry that starts the program at login")
        self.assertIn("checked", self.wait_for("Open at Login").states)
        self.click("Open at Login")
        wait_for(lambda: not entry.exists(), "the end of that entry")
        self.click("About", _TAB_ROLE)
        self.wait_for("Every browser profile, one click away.")

    def test_everything_can_be_done_with_the_keyboard(self) -> None:
        work = self.identifier(CHROME, "Work")
        self.go_to("Google Chrome – Work: Name")
        self.press("ctrl+a")
        self.type("Office")
        self.press("Tab")
        wait_for(lambda: self.session.saved()["customNames"] == {work: "Office"}, "the name to be saved")
        self.press("alt+Down")
        wait_for(lambda: self.order(CHROME)[:2] == ["Home", "Work"], "the row to be moved")
        self.press("space")
        self.wait_for("Google Chrome – Office: Press Keys…")
        self.press("ctrl+alt+p")
        self.wait_for("Google Chrome – Office: Ctrl+Alt+P")
        self.press("ctrl+alt+p")
        self.session.wait_for_starts(self.command(CHROME, "Work"))
        self.press("Return")
        self.wait_for("Google Chrome – Office: Press Keys…")
        self.press("Delete")
        self.wait_for("Google Chrome – Office: Record Shortcut")
        self.press("ctrl+alt+p")
        self.assertEqual(self.session.browsers.wait_for(0), [])
        self.go_to("Google Chrome – Office: Leave out of the menu")
        self.press("space")
        wait_for(lambda: self.session.saved()["hidden"] == [work], "the profile to be hidden")
        self.press("Tab", "space")
        self.session.screen.wait_for_menu()
        self.press("Down", "Down", "Down", "Return")
        self.session.screen.wait_for_no_menu()
        self.assertEqual(self.clipboard(), self.link(CHROME, "Work"))
        self.press("ctrl+Tab")
        self.go_to("Open at Login")
        self.press("space")
        wait_for(lambda: "checked" in self.wait_for("Open at Login").states, "the switch to be on")
        self.press("ctrl+Tab")
        self.wait_for("Every browser profile, one click away.")
        self.press("ctrl+w")
        wait_for(lambda: not self.session.settings_window(), "the end of the window")

    def test_a_launcher_is_made_from_the_menu(self) -> None:
        self.click("Brave – Research: More")
        self.session.screen.wait_for_menu()
        self.press("Down", "Down", "Return")
        self.session.wait_for_active_window(self.session.wait_for_window("Create Launcher App"))
        self.press("Return")
        folder = self.session.data / "applications"
        (launcher,) = wait_for(lambda: list(folder.glob("vantrel-*.desktop")), "the launcher")
        self.assertIn("Research", launcher.read_text("utf-8"))
        checked = self.session.run(["desktop-file-validate", launcher])
        self.assertEqual((checked.returncode, checked.stdout), (0, b""))

    def test_screen_readers_are_told_what_each_control_is(self) -> None:
        for tab in ("Profiles", "General", "About"):
            self.click(tab, _TAB_ROLE)
            wait_for(lambda: self.accessibility.current_tab(self.pid) == tab, "the tab")  # noqa: B023
            controls = [each for each in self.accessibility.controls(self.pid) if "focusable" in each.states]
            # The toolkit's own frame around the tabs has the focus only by proxy.
            named = [each for each in controls if each.role != "filler"]
            self.assertTrue(named)
            for each in named:
                self.assertNotEqual((each.name, each.role), ("", each.role))
                self.assertIn(each.role, {"check box", "label", "page tab", "page tab list", "push button", "text"})
        self.click("Profiles", _TAB_ROLE)
        field = self.wait_for("Google Chrome – Work: Name", "text")
        self.assertEqual(field.text, "Work")
        self.assertIn("editable", field.states)

    def test_changes_elsewhere_show_while_the_window_is_open(self) -> None:
        self.session.vantrel("quit")
        self.session.wait_for_end_of_app()
        self.session.rename_profile(CHROME, "Home", "Family")
        self.session.launch_app()
        self.pid = wait_for(self.session.app_pids, "the app")[0]
        self.session.vantrel("settings")
        self.wait_for("Google Chrome – Family: Name")


if __name__ == "__main__":
    unittest.main()
