"""The app in the user's language."""

from Tests.Desktop.app_case import AppCase, install_program
from Tests.Desktop.app_session import SETTINGS_TITLE


def setUpModule() -> None:
    install_program()


class Language(AppCase):
    def assert_settings_are_called(self, title: str, **environment: str) -> None:
        self.session.environment |= environment
        self.session.start_app()
        self.session.vantrel("settings")
        self.session.wait_for_window(title)

    def test_the_app_speaks_german_to_those_who_read_it(self) -> None:
        self.assert_settings_are_called("Vantrel-Einstellungen", LANGUAGE="de")

    def test_the_app_speaks_arabic_to_those_who_read_it(self) -> None:
        self.assert_settings_are_called("إعدادات Vantrel", LANGUAGE="ar")

    def test_the_app_speaks_english_to_all_others(self) -> None:
        self.assert_settings_are_called(SETTINGS_TITLE, LANGUAGE="he")
