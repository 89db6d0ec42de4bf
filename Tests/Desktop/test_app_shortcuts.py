"""Global shortcuts: keys that open a profile whatever program has the keyboard."""

import json
import unittest
from urllib.parse import quote

from Tests.Desktop.app_case import BRAVE, CHROME, AppCase, install_program
from Tests.Desktop.waiting import wait_for

# Numbers of the Macintosh keyboard: the P key, F5, and the modifiers.
_P = 35
_F4 = 118
_F5 = 96
_CONTROL, _OPTION, _SHIFT = 0x1000, 0x800, 0x200

# The X server's numbers of Control, Alt and the key that types P in most layouts.
_KEY_CODES = ("37", "64", "33")


def setUpModule() -> None:
    install_program()


class GlobalShortcuts(AppCase):
    def give(self, identifier: str, key: int, modifiers: int) -> None:
        """Stores a profile's shortcut as the settings do."""
        # Qt writes a key's slashes twice escaped, and the rest of what is no letter once.
        key_name = "KeyboardShortcuts_profile." + quote(identifier.replace("/", "%2F"), safe="._-")
        shortcut = json.dumps({"carbonKeyCode": key, "carbonModifiers": modifiers})
        file = self.session.config / "app.kestrune.Vantrel" / "defaults.ini"
        file.parent.mkdir(parents=True, exist_ok=True)
        former = file.read_text("utf-8") if file.exists() else "[General]\n"
        escaped = shortcut.replace('"', '\\"')
        file.write_text(f'{former}{key_name}="{escaped}"\n', "utf-8")

    def keys(self, command: str, *keys: str) -> None:
        self.session.run(["xdotool", command, *keys])

    def test_a_profile_opens_once_when_its_shortcut_is_released(self) -> None:
        self.give(self.identifier(CHROME, "Work"), _P, _CONTROL | _OPTION)
        self.give(self.identifier(BRAVE, ""), _F5, _CONTROL | _SHIFT)
        self.session.start_app()
        self.keys("keydown", "ctrl", "alt", "p")
        # Longer than the keyboard waits before it repeats a key.
        self.assertEqual(self.session.browsers.wait_for(0), [])
        self.keys("keyup", "p", "alt", "ctrl")
        self.session.wait_for_starts(self.command(CHROME, "Work"))
        self.session.screen.press("ctrl+shift+F5")
        self.session.wait_for_starts(self.command(BRAVE, ""))

    def test_locks_do_not_matter(self) -> None:
        self.give(self.identifier(CHROME, "Work"), _P, _CONTROL | _OPTION)
        self.session.start_app()
        for lock in ("Caps_Lock", "Num_Lock"):
            self.session.screen.press(lock)
            self.session.screen.press("ctrl+alt+p")
            self.session.wait_for_starts(self.command(CHROME, "Work"))
        self.session.screen.press("Caps_Lock", "Num_Lock")

    def test_a_shortcut_works_while_the_menu_is_open(self) -> None:
        self.give(self.identifier(CHROME, "Work"), _P, _CONTROL | _OPTION)
        self.session.start_app()
        self.session.vantrel("menu")
        wait_for(self.session.screen.menus, "the menu")
        self.session.screen.press("ctrl+alt+p")
        self.session.wait_for_starts(self.command(CHROME, "Work"))
        self.session.screen.press("Escape")

    def test_profiles_with_the_same_shortcut_open_together(self) -> None:
        self.give(self.identifier(CHROME, "Work"), _P, _CONTROL | _OPTION)
        self.give(self.identifier(BRAVE, ""), _P, _CONTROL | _OPTION)
        self.session.start_app()
        self.session.screen.press("ctrl+alt+p")
        self.session.wait_for_starts(self.command(CHROME, "Work"), self.command(BRAVE, ""))

    def test_keys_that_another_program_holds_are_reported_and_the_others_work(self) -> None:
        # The window manager closes windows with it.
        self.give(self.identifier(CHROME, "Work"), _F4, _OPTION)
        self.give(self.identifier(BRAVE, ""), _F5, _CONTROL | _SHIFT)
        self.session.start_app()
        wait_for(lambda: "Error registering hotkey ⌥F4: 10" in self.session.app_log_text(), "the report")
        self.session.screen.press("alt+F4", "ctrl+shift+F5")
        self.session.wait_for_starts(self.command(BRAVE, ""))

    def test_the_same_key_opens_a_profile_in_every_layout(self) -> None:
        self.give(self.identifier(CHROME, "Work"), _P, _CONTROL | _OPTION)
        self.session.start_app()
        for layout in ("de", "us,ru", "ru,us", "us"):
            self.session.run(["setxkbmap", layout])
            self.keys("keydown", *_KEY_CODES)
            self.keys("keyup", *reversed(_KEY_CODES))
            self.session.wait_for_starts(self.command(CHROME, "Work"))

    def test_other_keys_stay_with_the_program_that_has_the_keyboard(self) -> None:
        self.give(self.identifier(CHROME, "Work"), _P, _CONTROL | _OPTION)
        self.session.start_app()
        self.session.screen.press("ctrl+p", "alt+p", "p", "ctrl+alt+shift+p")
        self.assertEqual(self.session.browsers.wait_for(0), [])


if __name__ == "__main__":
    unittest.main()
