"""What runs on the machines that check every change."""
from __future__ import annotations

import re
import subprocess
import unittest
from collections.abc import Iterator
from pathlib import Path

import yaml

ROOT = Path(__file__).resolve().parents[2]
PINNED = re.compile(r"[\w.-]+/[\w./-]+@[0-9a-f]{40}")


def steps() -> Iterator[tuple[str, dict]]:
    for file in sorted((ROOT / ".github" / "workflows").glob("*.yml")):
        for name, job in yaml.safe_load(file.read_text(encoding="utf-8"))["jobs"].items():
            for step in job["steps"]:
                yield f"{file.name}, {name}: {step['name']}", step


class Workflow(unittest.TestCase):
    def test_knows_the_systems_that_vantrel_is_for(self) -> None:
        jobs = yaml.safe_load((ROOT / ".github" / "workflows" / "ci.yml").read_text(encoding="utf-8"))["jobs"]
        self.assertEqual(jobs["macos"]["strategy"]["matrix"]["system"], ["macos-14", "macos-15"])
        self.assertEqual(jobs["debian"]["container"]["image"], "debian:12")
        self.assertEqual(jobs["ubuntu"]["container"], "ubuntu:rolling")

    def test_takes_no_action_that_can_change_by_itself(self) -> None:
        for place, step in steps():
            if "uses" in step:
                self.assertRegex(step["uses"], PINNED, place)

    def test_its_scripts_are_sound(self) -> None:
        count = 0
        for place, step in steps():
            if "run" not in step:
                continue
            count += 1
            script = "#!/usr/bin/env bash\n" + step["run"]
            # SC1091: what is sourced is checked by itself. SC2034: it takes `root` from the script.
            done = subprocess.run(["shellcheck", "--exclude", "SC1091,SC2034,SC2154", "-"], input=script,
                                  capture_output=True, text=True, check=False)
            self.assertEqual(done.returncode, 0, f"{place}\n{done.stdout}{done.stderr}")
        self.assertGreater(count, 5)


if __name__ == "__main__":
    unittest.main()
