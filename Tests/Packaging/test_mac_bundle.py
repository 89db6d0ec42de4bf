"""What the app's bundle on macOS says and holds, as far as it is made on every system."""
from __future__ import annotations

import os
import plistlib
import re
import stat
import struct
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PACKAGING = ROOT / "Packaging" / "MacOS"


def variable(name: str) -> str:
    value = os.environ.get(name, "")
    if not value:
        raise AssertionError(f"The variable {name} is not set; ctest sets it.")
    return value


def contents() -> Path:
    return Path(variable("VANTREL_BUNDLE_CONTENTS"))


class PropertyList(unittest.TestCase):
    def made(self, **values: str) -> subprocess.CompletedProcess:
        definitions = [f"-D{name}={value}" for name, value in values.items()]
        return subprocess.run([variable("VANTREL_CMAKE"), *definitions, "-P", str(PACKAGING / "InfoPlist.cmake")],
                              capture_output=True, text=True, check=False)

    def test_is_what_macos_is_to_know_of_the_app(self) -> None:
        version = variable("VANTREL_VERSION")
        described = plistlib.loads((contents() / "Info.plist").read_bytes())
        self.assertTrue(described.pop("NSAppleEventsUsageDescription").endswith("."))
        self.assertEqual(described, {
            "CFBundleAllowMixedLocalizations": True,
            "CFBundleDevelopmentRegion": "en",
            "CFBundleDisplayName": "Vantrel",
            "CFBundleExecutable": "vantrel-app",
            "CFBundleIconFile": "AppIcon",
            "CFBundleIdentifier": "app.kestrune.Vantrel",
            "CFBundleInfoDictionaryVersion": "6.0",
            "CFBundleLocalizations": ["en", "ar", "de"],
            "CFBundleName": "Vantrel",
            "CFBundlePackageType": "APPL",
            "CFBundleShortVersionString": version,
            "CFBundleURLTypes": [{"CFBundleTypeRole": "Viewer", "CFBundleURLName": "app.kestrune.Vantrel",
                                  "CFBundleURLSchemes": ["vantrel"]}],
            "CFBundleVersion": version,
            "LSApplicationCategoryType": "public.app-category.utilities",
            "LSMinimumSystemVersion": "26.0",
            "LSUIElement": True,
            "NSHighResolutionCapable": True,
            "NSPrincipalClass": "NSApplication",
            "NSSupportsAutomaticTermination": False,
        })

    def test_asks_for_the_system_that_launchers_ask_for(self) -> None:
        source = (ROOT / "VantrelKit" / "LauncherBundle.cpp").read_text(encoding="utf-8")
        launchers = re.search(r'u"LSMinimumSystemVersion"_s, u"([\d.]+)"_s', source)
        self.assertIsNotNone(launchers, "LauncherBundle.cpp has another form now.")
        described = plistlib.loads((contents() / "Info.plist").read_bytes())
        self.assertEqual(described["LSMinimumSystemVersion"], launchers[1])

    def test_names_feed_and_key_where_the_updater_is_built_in(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "Info.plist"
            feed = "https://example.com/updates.xml?a=1&b=<2>"
            done = self.made(FILE=str(file), VERSION="1.2.3", FEED=feed, KEY="AbC+/9=")
            self.assertEqual(done.returncode, 0, done.stderr)
            described = plistlib.loads(file.read_bytes())
        self.assertEqual(described["SUFeedURL"], feed)
        self.assertEqual(described["SUPublicEDKey"], "AbC+/9=")
        self.assertEqual(described["CFBundleVersion"], "1.2.3")

    def test_is_refused_with_half_of_what_the_updater_needs(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "Info.plist"
            for feed, key in (("https://example.com/", ""), ("", "AbC="), ("http://example.com/", "AbC=")):
                done = self.made(FILE=str(file), VERSION="1", FEED=feed, KEY=key)
                self.assertNotEqual(done.returncode, 0, (feed, key))
                self.assertIn("An updater needs", done.stderr)
            self.assertFalse(file.exists())


class Languages(unittest.TestCase):
    def test_are_those_of_the_program(self) -> None:
        translated = [path.stem.removeprefix("vantrel_") for path in (ROOT / "Resources" / "Translations").glob("*.ts")]
        self.assertGreater(len(translated), 1)
        described = plistlib.loads((contents() / "Info.plist").read_bytes())
        self.assertEqual(described["CFBundleLocalizations"], ["en", *sorted(translated)])
        self.assertEqual(sorted(path.name for path in (contents() / "Resources").glob("*.lproj")),
                         [f"{language}.lproj" for language in sorted(translated)])

    def test_texts_are_where_the_system_looks_for_them(self) -> None:
        sources = sorted((PACKAGING / "Languages").rglob("*.strings"))
        self.assertGreater(len(sources), 3)
        for source in sources:
            place = contents() / "Resources" / source.relative_to(PACKAGING / "Languages")
            self.assertEqual(place.read_bytes(), source.read_bytes(), place)


class Entitlements(unittest.TestCase):
    def test_let_the_app_automate_others_and_nothing_else(self) -> None:
        self.assertEqual(plistlib.loads((PACKAGING / "Vantrel.entitlements").read_bytes()),
                         {"com.apple.security.automation.apple-events": True})


class Icon(unittest.TestCase):
    def elements(self) -> dict[bytes, bytes]:
        data = (contents() / "Resources" / "AppIcon.icns").read_bytes()
        self.assertEqual((data[:4], struct.unpack(">I", data[4:8])[0]), (b"icns", len(data)))
        found, at = {}, 8
        while at < len(data):
            length = struct.unpack(">I", data[at + 4:at + 8])[0]
            found[data[at:at + 4]] = data[at + 8:at + length]
            at += length
        return found

    def test_has_the_sizes_that_applications_are_shown_with(self) -> None:
        elements = self.elements()
        self.assertEqual(set(elements), {b"is32", b"s8mk", b"ic11", b"ic12", b"ic07", b"ic08", b"ic09", b"ic10"})
        for kind, pixels in ((b"ic11", 32), (b"ic07", 128), (b"ic10", 1024)):
            self.assertEqual(elements[kind][:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack(">II", elements[kind][16:24]), (pixels, pixels))

    def test_is_read_by_another_program(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            try:
                done = subprocess.run(["icns2png", "--extract", "--output", folder,
                                       str(contents() / "Resources" / "AppIcon.icns")],
                                      capture_output=True, text=True, check=False)
            except FileNotFoundError:
                self.fail("icns2png is missing; its package is icnsutils.")
            picture = Path(folder) / "AppIcon_512x512x32.png"
            self.assertTrue(picture.exists(), done.stdout + done.stderr)
            shown = subprocess.run(["convert", str(picture), "-format", "%[pixel:p{300,310}] %[pixel:p{2,2}]", "info:"],
                                   capture_output=True, text=True, check=True).stdout
        plane, corner = shown.split()
        self.assertRegex(plane, r"^s?rgba?\(255,255,255(,1)?\)$|^white$|^gray\(255\)$")
        self.assertRegex(corner, r",0\)$")


# Stands in for a program of macOS: notes how it was called.
STAND_IN = '#!/bin/sh\n{ printf "%s" "$(basename "$0")"; printf "\\t%s" "$@"; echo; } >>"$CALLS"\n'


class Deployment(unittest.TestCase):
    def setUp(self) -> None:
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = Path(holder.name)
        self.app = self.folder / "with blank" / "Vantrel.app"
        for name in ("vantrel", "vantrel-app", "vantrel-launcher", "LauncherStub"):
            self.program(self.app / "Contents" / "MacOS" / name, "#!/bin/sh\n")
        tools = self.folder / "bin"
        for name in ("codesign", "macdeployqt", "xattr"):
            self.program(tools / name, STAND_IN)
        self.program(tools / "ditto", STAND_IN + 'cp -R "$1" "$2"\n')
        self.program(tools / "qtpaths", f'#!/bin/sh\necho "{self.folder}/plugins"\n')
        self.file(self.folder / "plugins" / "platforms" / "libqoffscreen.dylib")
        # What macdeployqt would have put there.
        self.file(self.app / "Contents" / "Frameworks" / "QtCore.framework" / "Versions" / "A" / "QtCore")
        self.file(self.app / "Contents" / "Frameworks" / "libpng16.dylib")
        self.environment = os.environ | {"PATH": f"{tools}:/usr/bin:/bin", "CALLS": str(self.folder / "calls")}

    def file(self, path: Path) -> None:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text("", encoding="utf-8")

    def program(self, path: Path, text: str) -> None:
        self.file(path)
        path.write_text(text, encoding="utf-8")
        path.chmod(path.stat().st_mode | stat.S_IXUSR)

    def deploy(self, *arguments: str) -> subprocess.CompletedProcess:
        return subprocess.run(["bash", str(PACKAGING / "deploy"), str(self.app), *arguments],
                              env=self.environment, capture_output=True, text=True, check=False)

    def calls(self) -> list[list[str]]:
        text = (self.folder / "calls").read_text(encoding="utf-8")
        return [line.split("\t") for line in text.splitlines()]

    def signed(self) -> list[list[str]]:
        return [call for call in self.calls() if call[0] == "codesign" and "--sign" in call]

    def place(self, call: list[str]) -> str:
        return str(Path(call[-1]).relative_to(self.app))

    def test_what_lies_inside_is_signed_before_what_it_lies_in(self) -> None:
        done = self.deploy("--sign", "Developer ID Application: Somebody")
        self.assertEqual(done.returncode, 0, done.stderr)
        places = [self.place(call) for call in self.signed()]
        self.assertEqual(places[-1], ".")
        self.assertEqual(set(places[:-1]), {
            "Contents/Frameworks/libpng16.dylib", "Contents/Frameworks/QtCore.framework",
            "Contents/PlugIns/platforms/libqoffscreen.dylib",
            "Contents/MacOS/vantrel", "Contents/MacOS/vantrel-launcher", "Contents/MacOS/LauncherStub"})
        self.assertEqual(self.calls()[-1], ["codesign", "--verify", "--strict", "--deep", "--verbose=2", str(self.app)])

    def test_each_is_signed_by_itself_hardened_and_with_the_time(self) -> None:
        self.deploy("--sign", "Developer ID Application: Somebody")
        for call in self.signed():
            self.assertNotIn("--deep", call)
            self.assertEqual(call[1:7], ["--force", "--sign", "Developer ID Application: Somebody",
                                         "--timestamp", "--options", "runtime"])
            self.assertEqual("--entitlements" in call, self.place(call) == ".", call)

    def test_without_a_certificate_nothing_is_hardened(self) -> None:
        self.deploy()
        self.assertEqual(self.signed()[-1], ["codesign", "--force", "--sign", "-", "--entitlements",
                                             str(PACKAGING / "Vantrel.entitlements"), str(self.app)])

    def test_the_libraries_of_all_programs_are_taken_in_before_anything_is_signed(self) -> None:
        self.deploy()
        programs = self.app / "Contents" / "MacOS"
        self.assertEqual(self.calls()[0], ["macdeployqt", str(self.app), "-always-overwrite", "-verbose=1",
                                           f"-executable={programs}/vantrel",
                                           f"-executable={programs}/vantrel-launcher"])

    def test_the_updater_comes_with_its_helpers_and_without_what_only_sandboxes_need(self) -> None:
        version = self.folder / "sparkle" / "Sparkle.framework" / "Versions" / "B"
        self.file(version / "Autoupdate")
        self.file(version / "Updater.app" / "Contents" / "Info.plist")
        self.file(version / "XPCServices" / "Downloader.xpc" / "Contents" / "Info.plist")
        (version.parent / "Current").symlink_to("B")
        done = self.deploy("--sparkle", str(self.folder / "sparkle"))
        self.assertEqual(done.returncode, 0, done.stderr)
        framework = self.app / "Contents" / "Frameworks" / "Sparkle.framework"
        self.assertTrue((framework / "Versions" / "Current").is_symlink())
        self.assertFalse((framework / "Versions" / "B" / "XPCServices").exists())
        places = [self.place(call) for call in self.signed()]
        within = "Contents/Frameworks/Sparkle.framework"
        order = [places.index(f"{within}/Versions/B/Autoupdate"), places.index(f"{within}/Versions/B/Updater.app"),
                 places.index(within), places.index(".")]
        self.assertEqual(order, sorted(order))

    def test_an_app_that_lacks_a_program_is_refused(self) -> None:
        (self.app / "Contents" / "MacOS" / "LauncherStub").unlink()
        done = self.deploy()
        self.assertEqual(done.returncode, 1)
        self.assertIn("LauncherStub is not in the app", done.stderr)
        self.assertFalse((self.folder / "calls").exists())


if __name__ == "__main__":
    unittest.main()
