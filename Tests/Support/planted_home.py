"""A throw-away machine: a home, the folders of desktop entries, programs and stand-in browsers."""

import os
import shutil
import tempfile
from dataclasses import dataclass
from pathlib import Path

from . import desktop_entries
from .browser_catalogue import Packaging, Row, Variant
from .browser_data import ChromiumProfile, FirefoxProfile, plant_chromium, plant_firefox, write
from .stand_in import StandIns

# What the machine's own session must not bring into a planted home, beside all XDG variables.
_REMOVED_VARIABLES = {
    "CHROME_CONFIG_HOME", "CHROME_USER_DATA_DIR", "HELIUM_CONFIG_HOME", "MOZ_LEGACY_HOME",
    "DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "LANGUAGE", "LC_ALL", "LC_MESSAGES", "QT_QPA_PLATFORM",
}


@dataclass(frozen=True)
class Installation:
    """An installed browser, and how it is expected to be started."""

    row: Row
    variant: Variant
    words: tuple[str, ...]  # the command line up to the arguments of the profile
    home: Path

    @property
    def data_folder(self) -> Path:
        return self.home / self.variant.data_folder

    def profile_command(self, location: str, *links: str) -> list[str]:
        """The command that opens a profile: its folder's name, or with Firefox its full path."""
        if self.row.family == "firefox":
            return self._command(["--profile", self._path_for_browser(location)], links)
        return self._command([f"--profile-directory={location}"], links)

    def private_commands(self, *links: str) -> list[list[str]]:
        if self.row.family == "firefox" and links:
            return [self._command([self.row.private_switch], (link,)) for link in links]
        return [self._command([self.row.private_switch], links)]

    def plain_command(self, *links: str) -> list[str]:
        """The command without any switch."""
        return self._command([], links)

    def as_started(self, command: list[str]) -> list[str]:
        """What the stand-in sees of a command: env does not show itself to the program it starts."""
        return command[2:] if self.variant.packaging is Packaging.SNAP else command

    def _command(self, switches: list[str], links: tuple[str, ...]) -> list[str]:
        if self.variant.packaging is Packaging.FLATPAK and links:
            links = ("@@u", *links, "@@")
        return [*self.words, *switches, *links]

    def _path_for_browser(self, path: str) -> str:
        """A sandbox shows the folders that it keeps for the browser at their usual places in the home."""
        sandbox = self.home / ".var" / "app" / self.variant.application_id
        for name in (".mozilla", ".zen"):
            prefix = f"{sandbox}/{name}/"
            if self.variant.packaging is Packaging.FLATPAK and path.startswith(prefix):
                return f"{self.home}/{name}/{path.removeprefix(prefix)}"
        return path


class PlantedHome:
    """To be removed at the end. Its path holds a blank and letters beyond ASCII."""

    def __init__(self) -> None:
        self.root = Path(tempfile.mkdtemp(prefix="vantrel hömé "))
        self.home = self.root / "home" / "ann"
        self.config = self.home / ".config"
        self.data = self.home / ".local" / "share"
        self.runtime = self.root / "run"
        self.programs = self.root / "usr" / "bin"
        self.shares = {
            Packaging.NATIVE: self.root / "usr" / "share",
            Packaging.FLATPAK: self.root / "var" / "lib" / "flatpak" / "exports" / "share",
            Packaging.SNAP: self.root / "var" / "lib" / "snapd" / "desktop",
        }
        for folder in (self.config, self.data, self.programs, *self.shares.values()):
            folder.mkdir(parents=True)
        self.runtime.mkdir(mode=0o700)
        self.browsers = StandIns(self.root / "starts")

    def remove(self) -> None:
        for folder, names, _files in os.walk(self.root):
            for name in names:  # before the walk descends: a test may have closed a folder
                if not (each := Path(folder, name)).is_symlink():
                    each.chmod(0o700)
        shutil.rmtree(self.root)

    def environment(self, **changes: str | None) -> dict[str, str]:
        """The environment of a program in this home; a change to None removes a variable."""
        kept = {
            name: value
            for name, value in os.environ.items()
            if name not in _REMOVED_VARIABLES and not name.startswith("XDG_")
        }
        planted: dict[str, str | None] = {
            "HOME": str(self.home),
            "LANG": "C.UTF-8",
            "PATH": f"{self.programs}:/usr/bin:/bin",
            "XDG_CONFIG_HOME": str(self.config),
            "XDG_DATA_HOME": str(self.data),
            "XDG_DATA_DIRS": ":".join(str(each) for each in self.shares.values()),
            "XDG_RUNTIME_DIR": str(self.runtime),
        }
        return {name: value for name, value in (kept | planted | changes).items() if value is not None}

    def install(self, row: Row, variant: Variant | None = None) -> Installation:
        """Installs a browser in one of its variants, the first unless another is given, without any profile."""
        variant = variant or next(row.variants())
        install = {
            Packaging.NATIVE: self._install_native,
            Packaging.FLATPAK: self._install_flatpak,
            Packaging.SNAP: self._install_snap,
        }[variant.packaging]
        return Installation(row, variant, tuple(install(row, variant)), self.home)

    def install_with(self, row: Row, *profiles: tuple[str, str], variant: Variant | None = None) -> Installation:
        """Installs a browser with profiles, each a folder (below the root with Firefox) and a name."""
        installation = self.install(row, variant)
        if row.family == "firefox":
            plant_firefox(installation.data_folder, [FirefoxProfile(path, name) for path, name in profiles])
        else:
            plant_chromium(installation.data_folder, [ChromiumProfile(folder, name) for folder, name in profiles])
        return installation

    def plant_entry(self, share: Path, desktop_id: str, text: str) -> Path:
        return write(share / "applications" / f"{desktop_id}.desktop", text)

    def plant_saved_state(self, text: str | bytes) -> Path:
        return write(self.data / "app.kestrune.Vantrel" / "profiles.json", text)

    def snapshot(self) -> dict[str, bytes | None]:
        """Every path of the home, with the content of files."""
        return {
            str(path.relative_to(self.home)): path.read_bytes() if path.is_file() else None
            for path in sorted(self.home.rglob("*"))
        }

    def _install_native(self, row: Row, variant: Variant) -> list[str]:
        program = self.browsers.make(self.programs / row.program)
        # The vendors' second entry, named as the Flatpak would be, is kept out of menus.
        twin: dict[str, str] = {} if variant.desktop_id in _first_ids(row) else {"NoDisplay": "true"}
        text = desktop_entries.entry(
            row.name, desktop_entries.native_command_line(program, _field_code(row)), Icon=variant.desktop_id, **twin
        )
        self.plant_entry(self.shares[Packaging.NATIVE], variant.desktop_id, text)
        return [str(program)]

    def _install_flatpak(self, row: Row, variant: Variant) -> list[str]:
        flatpak = self.browsers.make(self.programs / "flatpak")
        application = variant.application_id
        command_line = desktop_entries.flatpak_command_line(flatpak, row.program, application, _field_code(row))
        text = desktop_entries.entry(row.name, command_line, Icon=application, **{"X-Flatpak": application})
        # Flatpak exports links to the files of the version that is active.
        share = self.shares[Packaging.FLATPAK]
        active = share.parents[1] / "app" / application / "current" / "active" / "export" / "share"
        target = self.plant_entry(active, application, text)
        link = share / "applications" / target.name
        link.parent.mkdir(parents=True, exist_ok=True)
        link.unlink(missing_ok=True)
        link.symlink_to(os.path.relpath(target, link.parent))
        return desktop_entries.flatpak_words(flatpak, row.program, application)

    def _install_snap(self, row: Row, variant: Variant) -> list[str]:
        program = self.browsers.make(self.root / "snap" / "bin" / variant.snap_name)
        share = self.shares[Packaging.SNAP]
        file = share / "applications" / f"{variant.desktop_id}.desktop"
        text = desktop_entries.entry(
            row.name,
            desktop_entries.snap_command_line(file, program, _field_code(row)),
            **{"X-SnapInstanceName": variant.snap_name, "X-SnapAppName": variant.snap_name},
        )
        self.plant_entry(share, variant.desktop_id, text)
        return desktop_entries.snap_words(file, program)


def _field_code(row: Row) -> str:
    return "%u" if row.family == "firefox" else "%U"


def _first_ids(row: Row) -> list[str]:
    return list(row.native)[:1]
