"""Profiles in the searches of GNOME Shell and KRunner, and for other programs on the session's message bus."""

import os
import re
import shlex
import signal
import statistics
import subprocess
import time
import unittest
from pathlib import Path

from Tests.Desktop.app_case import BRAVE, CHROME, FIREFOX, AppCase, install_program
from Tests.Desktop.app_session import SETTINGS_TITLE
from Tests.Desktop.desktop_session import require_programs
from Tests.Desktop.message_bus import MessageBus
from Tests.Desktop.search_clients import CallError, GnomeShell, KRunner, Script, time_of_input
from Tests.Desktop.waiting import wait_for
from Tests.Support.browser_data import ChromiumProfile, plant_chromium
from Tests.Support.pictures import person_png

_PAGE = "https://example.org/?q=a+b&c=%C3%A4#d"
_PNG = b"\x89PNG\r\n\x1a\n"
_ICON_SIDE = 48
_UNKNOWN = "com.google.Chrome/chromium:Nobody"
_MANY_PROFILES = 400
_QUERIES = 100
_QUERIES_PER_SECOND = 100
_DOCUMENTATION = Path(__file__).resolve().parents[2] / "Documentation" / "dbus.md"


def setUpModule() -> None:
    require_programs({"gdbus": "libglib2.0-bin"})
    install_program()


class SearchCase(AppCase):
    def setUp(self) -> None:
        self.shell = GnomeShell(self.session)
        self.runner = KRunner(self.session)
        self.script = Script(self.session)
        self.work = self.identifier(CHROME, "Work")

    def assert_runs_with_time(self, time_stamp: int, *command: str) -> None:
        (start,) = self.session.wait_for_starts(list(command))
        self.assertRegex(start.environment.get("DESKTOP_STARTUP_ID", ""), rf"_TIME{time_stamp}$")


class GnomeShellSearch(SearchCase):
    def test_a_search_narrows_shows_its_results_and_opens_one(self) -> None:
        self.session.start_app()
        chromes = [self.identifier(CHROME, name) for name in ("Work", "Home", "Northwind Trading", "")]
        self.assertEqual(self.shell.search("chrome"), chromes)
        self.assertEqual(self.shell.search("CHRÖME"), chromes)
        self.assertEqual(self.shell.narrow(chromes, "chrome wor"), [self.work])
        (meta,) = self.shell.metas([self.work])
        self.assertEqual((meta["id"], meta["name"]), (self.work, "Google Chrome – Work"))
        kind, content = meta["icon"]
        self.assertEqual((kind, bytes(content[:8])), ("bytes", _PNG))
        self.assertEqual(int.from_bytes(bytes(content[16:20]), "big"), _ICON_SIDE)
        moment = time_of_input()
        self.shell.activate(self.work, "chrome wor", moment)
        self.assert_runs_with_time(moment, *self.command(CHROME, "Work"))

    def test_a_link_after_a_name_is_opened_in_that_profile(self) -> None:
        self.session.start_app()
        (result,) = self.shell.search(f"chrome wor {_PAGE}")
        (meta,) = self.shell.metas([result])
        self.assertEqual((meta["name"], meta["description"]), ("Google Chrome – Work", f"Open {_PAGE}"))
        self.shell.activate(result, f"chrome wor {_PAGE}", 0)
        self.session.wait_for_starts(self.command(CHROME, "Work", _PAGE))
        self.assertEqual(len(self.shell.search(_PAGE)), len(self.session.rows()))

    def test_nothing_is_found_for_nothing_and_what_is_gone_is_left_out(self) -> None:
        self.session.start_app()
        for text in ("", "nobody's profile"):
            self.assertEqual(self.shell.search(text), [])
            self.assertEqual(self.shell.narrow([self.work], text), [])
        self.assertEqual(self.shell.metas([]), [])
        self.assertEqual([each["id"] for each in self.shell.metas([_UNKNOWN, self.work])], [self.work])
        with self.assertRaisesRegex(CallError, f"Error.UnknownProfile: There is no profile with the id “{_UNKNOWN}”"):
            self.shell.activate(_UNKNOWN, "work", time_of_input())

    def test_the_first_search_of_all_starts_the_app_and_is_answered(self) -> None:
        self.assertEqual(self.session.saved(), {})
        self.assertEqual(self.shell.search("chrome wor"), [self.work])
        self.session.wait_for_app()
        self.assertIsNone(self.session.settings_window())

    def test_choosing_a_result_starts_the_app_that_has_ended_meanwhile(self) -> None:
        (result,) = self.shell.search(f"chrome wor {_PAGE}")
        os.kill(self.session.wait_for_app(), signal.SIGKILL)
        MessageBus(self.session).wait_for_no_application()
        self.shell.activate(result, "chrome wor", 0)
        self.session.wait_for_starts(self.command(CHROME, "Work", _PAGE))

    def test_a_larger_search_shows_the_settings(self) -> None:
        self.session.start_app()
        self.shell.launch_search("chrome", time_of_input())
        self.session.wait_for_window(SETTINGS_TITLE)


class KRunnerSearch(SearchCase):
    def test_a_session_finds_a_profile_and_opens_it(self) -> None:
        self.session.start_app()
        self.runner.begin()
        self.assertEqual(self.runner.actions(), [])
        matches = self.runner.match("work")
        identifiers = [each[0] for each in matches]
        self.assertEqual(sorted(identifiers), sorted([self.work, self.identifier("com.microsoft.edgemac", "Work")]))
        identifier, text, icon_name, kind, relevance, properties = matches[identifiers.index(self.work)]
        self.assertEqual((identifier, text, icon_name, kind), (self.work, "Google Chrome – Work", "", 100))
        self.assertGreater(relevance, 0.9)
        width, height, stride, has_alpha, bits, channels, pixels = properties["icon-data"]
        self.assertEqual((width, height, stride, has_alpha, bits, channels),
                         (_ICON_SIDE, _ICON_SIDE, 4 * _ICON_SIDE, True, 8, 4))
        self.assertEqual(len(pixels), stride * height)
        # Transparent in the corner, and not in the middle.
        self.assertEqual(pixels[3], 0)
        self.assertGreater(pixels[len(pixels) // 2 + stride // 2 + 3], 200)
        self.runner.run(identifier)
        self.session.wait_for_starts(self.command(CHROME, "Work"))
        self.runner.end()

    def test_a_link_after_a_name_is_opened_in_that_profile_with_the_token(self) -> None:
        self.session.start_app()
        ((identifier, *_rest),) = self.runner.match(f"development {_PAGE}")
        self.runner.set_activation_token("token")
        self.runner.run(identifier)
        (start,) = self.session.wait_for_starts(self.command(FIREFOX, "Development", _PAGE))
        self.assertEqual(start.environment.get("XDG_ACTIVATION_TOKEN"), "token")

    def test_the_first_search_of_all_starts_the_app_and_is_answered(self) -> None:
        self.assertEqual([each[0] for each in self.runner.match("chrome wor")], [self.work])

    def test_nothing_is_found_for_nothing_and_what_is_gone_is_refused(self) -> None:
        self.session.start_app()
        self.assertEqual(self.runner.match(""), [])
        self.assertEqual(self.runner.match("   "), [])
        with self.assertRaisesRegex(CallError, "Error.UnknownProfile: "):
            self.runner.run(_UNKNOWN)


class OtherPrograms(SearchCase):
    def test_the_list_is_that_of_the_command_and_starts_the_app(self) -> None:
        listed = self.script.profiles()
        self.session.wait_for_app()
        self.assertEqual([each["id"] for each in listed], self.session.rows())
        first = next(each for each in listed if each["id"] == self.work)
        self.assertEqual(first["title"], "Google Chrome – Work")
        self.assertEqual(first["link"], self.link(CHROME, "Work"))
        self.assertIs(first["private"], False)

    def test_profiles_and_links_are_opened(self) -> None:
        self.session.start_app()
        self.script.open_profile(self.identifier(BRAVE, ""), "{'activation-token': <'token'>}")
        (start,) = self.session.wait_for_starts(self.command(BRAVE, ""))
        self.assertEqual(start.environment.get("XDG_ACTIVATION_TOKEN"), "token")
        self.script.open_links(self.work, _PAGE, "http://example.com")
        self.session.wait_for_starts(self.command(CHROME, "Work", _PAGE, "http://example.com"))

    def test_a_profile_is_opened_by_a_call_that_starts_the_app_for_the_first_time(self) -> None:
        self.script.open_profile(self.work)
        self.session.wait_for_starts(self.command(CHROME, "Work"))

    def test_unknown_profiles_and_bad_links_are_refused_by_name(self) -> None:
        with self.assertRaisesRegex(CallError, f"app.kestrune.Vantrel.Error.UnknownProfile: .*“{_UNKNOWN}”"):
            self.script.open_profile(_UNKNOWN)
        with self.assertRaisesRegex(CallError, "app.kestrune.Vantrel.Error.BadLink: “mailto:ann@example.org” is no"):
            self.script.open_links(self.work, _PAGE, "mailto:ann@example.org")

    def test_a_change_is_announced(self) -> None:
        output = self.session.root / "signals"
        with open(output, "wb") as file:
            monitor = subprocess.Popen(
                ["gdbus", "monitor", "--session", "--dest", "app.kestrune.Vantrel"], env=self.session.environment,
                stdin=subprocess.DEVNULL, stdout=file, stderr=file,
            )
        self.addCleanup(monitor.wait)
        self.addCleanup(monitor.kill)
        wait_for(lambda: b"Monitoring" in output.read_bytes(), "the monitor")
        self.script.profiles()
        wait_for(lambda: b"app.kestrune.Vantrel.ProfilesChanged ()" in output.read_bytes(), "the signal")

    def test_what_the_documentation_shows_works(self) -> None:
        commands = re.findall(r"^\$ (gdbus call .*)$", _DOCUMENTATION.read_text("utf-8"), re.MULTILINE)
        self.assertEqual(len(commands), 5)
        for command in commands:
            done = self.session.run(shlex.split(command))
            self.assertEqual(done.returncode, 0, (command, done.stderr))
            if ".Open" not in command:
                self.assertIn("com.google.Chrome/chromium:Default", done.stdout.decode())
        self.session.wait_for_starts(self.command(CHROME, "Work"), self.command(CHROME, "Work", "https://example.org"))


class ManyQueries(SearchCase):
    def test_a_hundred_a_second_are_answered_while_browsers_are_read(self) -> None:
        picture = person_png((10, 120, 200, 255), 512)
        profiles = [ChromiumProfile(f"Profile {number}", f"Näme {number}", None, picture) for number in
                    range(_MANY_PROFILES)]
        plant_chromium(self.installation(CHROME).data_folder, profiles)
        self.session.launch_app()
        wait_for(lambda: len(self.session.saved_names()) > _MANY_PROFILES, "the saved profiles")
        self.session.vantrel("quit")
        self.session.wait_for_end_of_app()
        before = len(self.session.app_log_text())
        self.session.launch_app()
        bus = MessageBus(self.session)
        bus.wait_for_application()
        seconds = []
        # The last browser's line in the log ends the reading.
        while len(seconds) < _QUERIES and f"{CHROME}: " not in self.session.app_log_text()[before:]:
            begin = time.monotonic()
            self.assertEqual(bus.search(["chrome", "name", "399"]), [f"{CHROME}/chromium:Profile 399"])
            seconds.append(time.monotonic() - begin)
            time.sleep(max(0.0, 1 / _QUERIES_PER_SECOND - seconds[-1]))
        measured = f"median {statistics.median(seconds) * 1000:.1f} ms, longest {max(seconds) * 1000:.1f} ms"
        self.assertGreater(len(seconds), 10)
        self.assertLess(statistics.median(seconds), 0.1, measured)


if __name__ == "__main__":
    unittest.main()
