"""The files of the build on macOS, which CMake can write anywhere: what is built there, of what, and where it goes."""
from __future__ import annotations

import json
import os
import plistlib
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FOLDERS = ("KeyboardShortcuts/Carbon", "LauncherStub/MacOS", "Platform/MacOS")
OTHER_SYSTEMS = ("Linux", "X11", "Portal")


def variable(name: str) -> str:
    value = os.environ.get(name, "")
    if not value:
        raise AssertionError(f"The variable {name} is not set; ctest sets it.")
    return value


class BuildFiles(unittest.TestCase):
    @classmethod
    def setUpClass(cls) -> None:
        holder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(holder.cleanup)
        cls.folder = Path(holder.name)
        cls.written = subprocess.run(
            [variable("VANTREL_CMAKE"), "-S", str(ROOT), "-B", holder.name, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
             f"-DVANTREL_CLANG={variable('VANTREL_CLANG')}", f"-DVANTREL_LIBRARIES={variable('VANTREL_LIBRARIES')}",
             "-DVANTREL_BENCHMARKS=ON",
             f"-DCMAKE_TOOLCHAIN_FILE={ROOT}/Tests/MacOS/Configure/AsOnMacOS.cmake"],
            capture_output=True, text=True, check=False)
        file = cls.folder / "build.ninja"
        cls.ninja = file.read_text(encoding="utf-8") if file.exists() else ""

    def setUp(self) -> None:
        self.assertEqual(self.written.returncode, 0, self.written.stderr)

    def compiled(self) -> dict[str, str]:
        """Our own sources, by their path, with what the build says of each."""
        found = {}
        for rule in re.split(r"\n\n", self.ninja):
            source = re.search(r"^build \S+: (?:OBJ)?CXX_COMPILER\S* (\S+)", rule, re.MULTILINE)
            if source and source[1].startswith(f"{ROOT}/"):
                found[source[1].removeprefix(f"{ROOT}/")] = rule
        return found

    def programs(self) -> list[str]:
        return re.findall(r"(?m)^build (\S+)[^:\n]*: \w*CXX_EXECUTABLE_LINKER", self.ninja)

    def test_each_source_for_macos_is_built(self) -> None:
        sources = {str(path.relative_to(ROOT)) for folder in FOLDERS for path in (ROOT / folder).rglob("*")
                   if path.suffix in (".cpp", ".mm")}
        # With Sparkle, there is another updater.
        sources.discard("Platform/MacOS/SparkleUpdater.mm")
        self.assertGreater(len(sources), 10)
        self.assertEqual(sources - set(self.compiled()), set())

    def test_no_source_for_another_system_is_built(self) -> None:
        self.assertIn("VantrelKit/Profile.cpp", self.compiled())
        self.assertEqual([name for name in self.compiled() if any(part in OTHER_SYSTEMS for part in Path(name).parts)],
                         [])

    def test_objective_c_counts_references_by_itself(self) -> None:
        sources = {name: rule for name, rule in self.compiled().items() if name.endswith(".mm")}
        self.assertGreater(len(sources), 5)
        for name, rule in sources.items():
            self.assertIn("-fobjc-arc", rule, name)
            self.assertIn("-mmacosx-version-min=14.0", rule, name)

    def test_the_programs_are_built_in_the_bundle(self) -> None:
        inside = {name for name in self.programs() if name.startswith("Vantrel.app/")}
        self.assertEqual(inside, {f"Vantrel.app/Contents/MacOS/{name}"
                                  for name in ("vantrel", "vantrel-app", "vantrel-launcher", "LauncherStub")})
        self.assertTrue("\nbuild Vantrel.app/Contents/Resources/AppIcon.icns " in self.ninja)
        self.assertTrue((self.folder / "Vantrel.app" / "Contents" / "Info.plist").exists())

    def test_the_systems_texts_are_in_the_bundle(self) -> None:
        found = (self.folder / "Vantrel.app" / "Contents" / "Resources").glob("*.lproj/*.strings")
        self.assertEqual(sorted(f"{path.parent.name}/{path.name}" for path in found),
                         [f"{language}.lproj/{name}.strings" for language in ("ar", "de")
                          for name in ("AppShortcuts", "Localizable")])

    def test_tests_of_what_only_applications_can_do_are_one(self) -> None:
        program, = (name for name in self.programs() if name.endswith("/PlatformMacOSBundleTests"))
        bundle = self.folder / program.removesuffix("/Contents/MacOS/PlatformMacOSBundleTests")
        self.assertEqual(bundle.suffix, ".app")
        described = plistlib.loads((bundle / "Contents" / "Info.plist").read_bytes())
        self.assertEqual(described["CFBundleExecutable"], "PlatformMacOSBundleTests")
        self.assertEqual(described["CFBundleIdentifier"], "app.kestrune.Vantrel.BundleTests")
        rule = next(rule for rule in self.ninja.split("\n\n") if re.search(rf"(?m)^build {program}\b[^:]*:", rule))
        self.assertIn(f"codesign --force --sign - {bundle}", rule)

    def test_no_program_has_the_name_of_a_folder(self) -> None:
        # As the usual file system compares them.
        folders = {path.name.casefold() for path in self.folder.iterdir() if path.is_dir()}
        self.assertGreater(len(self.programs()), 10)
        self.assertEqual([name for name in self.programs() if name.casefold() in folders], [])

    def test_the_program_in_launchers_needs_nothing_but_the_system(self) -> None:
        rule = next(rule for rule in self.ninja.split("\n\n")
                    if "build Vantrel.app/Contents/MacOS/LauncherStub:" in rule)
        libraries = re.search(r"LINK_LIBRARIES = (.*)", rule)[1].split()
        self.assertEqual([name for name in libraries if name not in ("-framework", "AppKit", "Foundation")],
                         ["LauncherStub/libLauncherStubLink.a"])

    def test_the_app_is_linked_with_what_is_written_in_swift(self) -> None:
        rule = next(rule for rule in self.ninja.split("\n\n")
                    if "build Vantrel.app/Contents/MacOS/vantrel-app:" in rule)
        self.assertIn("Packaging/MacOS/VantrelActions.o", re.search(r"^build .*", rule, re.MULTILINE)[0])
        libraries = re.search(r"LINK_LIBRARIES = (.*)", rule)[1]
        for framework in ("AppIntents", "CoreSpotlight"):
            self.assertIn(f"-framework {framework}", libraries)
        self.assertIn("/usr/lib/swift", re.search(r"LINK_PATH = (.*)", rule)[1])

    def built(self, name: str) -> list[str]:
        """The lines of a file that the stand-ins for Apple's tools can make."""
        done = subprocess.run([variable("VANTREL_CMAKE"), "--build", str(self.folder), "--target", name],
                              capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return (self.folder / name).read_text(encoding="utf-8").splitlines()

    def test_all_swift_is_compiled_as_one_module_for_the_system_that_the_rest_is_for(self) -> None:
        arguments = self.built("Packaging/MacOS/VantrelActions.o")
        self.assertEqual({name for name in arguments if name.endswith(".swift")},
                         {str(path) for path in (ROOT / "Platform" / "MacOS").rglob("*.swift")})
        self.assertIn("-wmo", arguments)
        self.assertIn("-parse-as-library", arguments)
        self.assertIn("x86_64-apple-macos14.0", arguments)
        self.assertIn(f"{ROOT}/Platform/AppIntents/ActionsBridge.h", arguments)
        protocols = arguments[arguments.index("-const-gather-protocols-file") + 2]
        gathered = json.loads(Path(protocols).read_text(encoding="utf-8"))
        self.assertLess({"AppIntent", "AppEntity", "EntityQuery", "AppShortcutsProvider"}, set(gathered))

    def test_the_actions_are_described_in_the_bundle(self) -> None:
        folder = "Vantrel.app/Contents/Resources/Metadata.appintents"
        arguments = self.built(f"{folder}/version.json")
        for option, value in (("--module-name", "VantrelActions"), ("--xcode-version", "17A324"),
                              ("--target-triple", "x86_64-apple-macos14.0"), ("--platform-family", "macOS"),
                              ("--bundle-identifier", "app.kestrune.Vantrel"),
                              ("--output", f"{self.folder}/Vantrel.app/Contents/Resources")):
            self.assertEqual(arguments[arguments.index(option) + 1], value)
        self.assertIn("--compile-time-extraction", arguments)
        self.assertTrue((self.folder / folder / "extract.actionsdata").exists())

    def test_a_build_without_a_description_of_an_action_fails(self) -> None:
        with tempfile.TemporaryDirectory() as output:
            script = f'mkdir "{output}/Metadata.appintents" && cd "$_" && touch version.json && echo "$0" > '
            for described, message in (("echo nothing >", "No description of the actions was written"),
                                       (script, "says nothing of OpenLinksInProfileIntent")):
                done = subprocess.run(
                    [variable("VANTREL_CMAKE"), f"-DOUTPUT={output}", "-P",
                     str(ROOT / "Packaging" / "MacOS" / "DescribeActions.cmake"), "--",
                     "bash", "-c", f"{described} extract.actionsdata", "OpenProfileIntent"],
                    capture_output=True, text=True, check=False, cwd=output)
                self.assertNotEqual(done.returncode, 0)
                self.assertIn(message, " ".join(done.stderr.split()))


if __name__ == "__main__":
    unittest.main()
