"""The files of the build on macOS, which CMake can write anywhere: what is built there, of what, and where it goes."""
from __future__ import annotations

import os
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


if __name__ == "__main__":
    unittest.main()
