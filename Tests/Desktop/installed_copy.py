"""The program as it is installed, in a folder of its own."""

import os
import subprocess
from pathlib import Path

from Tests.Desktop.desktop_session import require_programs


class InstalledCopy:
    def __init__(self, prefix: Path) -> None:
        require_programs({"cmake": "cmake", "update-desktop-database": "desktop-file-utils"})
        build = os.environ.get("VANTREL_BUILD", "")
        if not Path(build, "cmake_install.cmake").is_file():
            raise AssertionError("The variable VANTREL_BUILD does not name the folder in which the program was built.")
        self.programs = prefix / "bin"
        self.app = prefix / "libexec" / "vantrel" / "vantrel-app"
        self.share = prefix / "share"
        self.services = self.share / "dbus-1" / "services"
        _run(["cmake", "--install", build, "--prefix", str(prefix)])
        # As the system's package manager does after each installation.
        _run(["update-desktop-database", str(self.share / "applications")])


def _run(command: list[str]) -> None:
    done = subprocess.run(command, capture_output=True, check=False, encoding="utf-8")
    if done.returncode != 0:
        raise AssertionError(f"{command} failed: {done.stdout}{done.stderr}")
