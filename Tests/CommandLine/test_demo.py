"""The home with sample browsers that shows Vantrel to a newcomer."""

import os
import subprocess
import time
from pathlib import Path

from Tests.Support.command_line_case import CommandLineCase
from Tests.Support.stand_in import WAIT_SECONDS

DEMO = Path(__file__).resolve().parents[1] / "Support" / "demo.py"
PYTHON = "/usr/bin/python3"


class Demo(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.folder = self.home.root / "it's a demo"

    def plant(self) -> subprocess.CompletedProcess[str]:
        command = [PYTHON, str(DEMO), str(self.folder)]
        environment = self.home.environment(CHROME_CONFIG_HOME="/nonexistent")
        return subprocess.run(command, env=environment, capture_output=True, text=True, check=False)

    def planted_environment(self) -> dict[str, str | None]:
        """The environment that a shell has after it evaluated the output, in a session that redirects browsers."""
        planted = self.plant()
        self.assertEqual((planted.returncode, planted.stderr), (0, ""))
        evaluate = ["/bin/sh", "-euc", 'eval "$1"; /usr/bin/env -0', "sh", planted.stdout]
        outer = self.home.environment(CHROME_CONFIG_HOME="/nonexistent")
        shown = subprocess.run(evaluate, env=outer, capture_output=True, check=True).stdout
        words = os.fsdecode(shown).split("\0")[:-1]
        environment: dict[str, str | None] = dict(word.split("=", 1) for word in words)
        return dict.fromkeys(["CHROME_CONFIG_HOME"]) | environment

    def test_six_browsers_with_at_least_two_profiles_each_are_listed(self) -> None:
        listing = self.parsed(self.output_of("list", "--json", **self.planted_environment()))
        browsers = ["Brave", "Firefox", "Google Chrome", "Microsoft Edge", "Vivaldi", "Zen Browser"]
        self.assertEqual(list(dict.fromkeys(each["browser"] for each in listing)), browsers)
        for browser in browsers:
            profiles = [each for each in listing if each["browser"] == browser]
            self.assertGreaterEqual(len(profiles), 3)
            self.assertEqual([each["private"] for each in profiles], [False] * (len(profiles) - 1) + [True])

    def test_pictures_are_planted(self) -> None:
        self.planted_environment()
        pictures = [path for path in self.folder.rglob("*") if path.is_file() and path.read_bytes()[:4] == b"\x89PNG"]
        self.assertGreaterEqual(len(pictures), 6 + 9)

    def test_a_started_browser_appends_one_line_to_the_log(self) -> None:
        environment = self.planted_environment()
        log = self.folder / "started.log"
        self.assertEqual(log.read_text(), "")
        link = "https://example.com/it's?a=b"
        lines = ["google-chrome-stable '--profile-directory=Profile 2' 'https://example.com/it'\\''s?a=b'"]
        self.output_of("open", "Northwind Trading", link, **environment)
        self.wait_for_lines(log, lines)
        self.output_of("open", "com.brave.Browser/private", **environment)
        self.wait_for_lines(log, [*lines, "brave-browser-stable --incognito"])

    def test_a_folder_that_is_not_empty_is_left_alone(self) -> None:
        self.folder.mkdir()
        (self.folder / "mine").write_text("mine")
        planted = self.plant()
        self.assertEqual((planted.returncode, planted.stdout), (1, ""))
        self.assertIn(str(self.folder), planted.stderr)
        self.assertEqual([each.name for each in self.folder.iterdir()], ["mine"])

    def test_an_empty_folder_is_filled(self) -> None:
        self.folder.mkdir()
        self.assertEqual(self.plant().returncode, 0)
        self.assertTrue((self.folder / "started.log").exists())

    def wait_for_lines(self, log: Path, lines: list[str]) -> None:
        deadline = time.monotonic() + WAIT_SECONDS
        while len(log.read_text().splitlines()) < len(lines) and time.monotonic() < deadline:
            time.sleep(0.002)
        self.assertEqual(log.read_text().splitlines(), lines)
