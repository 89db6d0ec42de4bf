"""Profiles of Firefox-family browsers from profiles.ini and from profile-groups databases."""

import sqlite3
from pathlib import Path

from Tests.Support import listed
from Tests.Support.browser_catalogue import row
from Tests.Support.browser_data import SQLITE, FirefoxProfile, plant_firefox, plant_profile_groups, run_sqlite, write
from Tests.Support.command_line_case import CommandLineCase

FIREFOX = row("org.mozilla.firefox")

# Texts of profiles.ini, each with the paths (below the root unless absolute) and names that it lists.
LISTS: dict[str, tuple[str, list[tuple[str, str]]]] = {
    "sections in the order of the file": (
        "[General]\nVersion=2\n\n[Profile1]\nName=Work\nIsRelative=1\nPath=Profiles/abc.work\n\n"
        "[Profile0]\nName=default\nIsRelative=1\nPath=Profiles/xyz.default\nDefault=1\n",
        [("Profiles/abc.work", "Work"), ("Profiles/xyz.default", "default")],
    ),
    "an absolute path": ("[Profile0]\nName=A\nIsRelative=0\nPath=/srv/data/ff\n", [("/srv/data/ff", "A")]),
    "a path without a mark is relative": ("[Profile0]\nPath=Profiles/x.y\n", [("Profiles/x.y", "x.y")]),
    "an empty name": ("[Profile0]\nName=\nPath=a/b.c\n", [("a/b.c", "b.c")]),
    "blanks and tabs around everything": (
        " \t[Profile0]\t\n  Name = \tMy Profile  \n\tPath\t= p q \n",
        [("p q", "My Profile")],
    ),
    "comments, lines without a sign, other keys": (
        "; [Profile9]\n#Path=x\nPath=before any section\n[Profile0]\nnone\n;Name=No\nname=no\nPath=p\nName=a=b;c#d\n",
        [("p", "a=b;c#d")],
    ),
    "a later line counts": ("[Profile0]\nName=First\nName=Last\nPath=p\n", [("p", "Last")]),
    "every name that begins with Profile": (
        "[Profiles]\nPath=p\n[profile1]\nPath=q\n[XProfile]\nPath=r\n",
        [("p", "p")],
    ),
    "a section without a path": ("[Profile0]\nName=None\n[Profile1]\nName=Some\nPath=p\n", [("p", "Some")]),
    "no line end at the end": ("[Profile0]\nName=End\nPath=p", [("p", "End")]),
    "line ends of other systems": (
        "[Profile0]\r\nName=Windows\r\nPath=p\r\n\r\n[Profile1]\rName=Old\rPath=q\r",
        [("p", "Windows"), ("q", "Old")],
    ),
    "letters beyond ASCII and signs": (
        "[Profile0]\nName=Büro “1” $HOME %U 'a' \\ 😀 שלום\nPath=Profiles/ä %U $HOME\n",
        [("Profiles/ä %U $HOME", "Büro “1” $HOME %U 'a' \\ 😀 שלום")],
    ),
    "nothing": ("", []),
}


class FirefoxData(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.firefox = self.home.install(FIREFOX)
        self.root = self.firefox.data_folder

    def listing(self, *profiles: tuple[str, str]) -> list[dict[str, object]]:
        return listed.browser(FIREFOX, *((self.root / path, name) for path, name in profiles))

    def test_profiles_ini_is_read_by_its_own_rules(self) -> None:
        for reason, (text, profiles) in LISTS.items():
            with self.subTest(reason):
                write(self.root / "profiles.ini", text)
                self.assert_lists(self.listing(*profiles))

    def test_a_list_with_dos_line_ends_gives_the_same_paths(self) -> None:
        plant_firefox(self.root, [FirefoxProfile("Profiles/a", "A"), FirefoxProfile("Profiles/b", "B")], "\r\n")
        self.assert_lists(self.listing(("Profiles/a", "A"), ("Profiles/b", "B")))

    def test_a_list_that_is_not_utf_8_or_not_a_file_lists_nothing(self) -> None:
        write(self.root / "profiles.ini", b"[Profile0]\nName=W\xff\nPath=p\n")
        self.assert_lists(self.listing())
        (self.root / "profiles.ini").unlink()
        (self.root / "profiles.ini").mkdir()
        self.assert_lists(self.listing())

    def test_every_path_reaches_the_browser_unchanged(self) -> None:
        path = "Profiles/a \"b\" 'c' $HOME %U `id` \\ & 😀 שלום\ttab\nline"
        plant_firefox(self.root, [])
        plant_profile_groups(self.root, [(path, "Name\n\twith controls")])
        self.assert_lists(self.listing((path, "Name\n\twith controls")))
        full_path = f"{self.root}/{path}"
        for links in ([], ["https://example.com/", "file:///tmp/x"]):
            command = self.firefox.profile_command(full_path, *links)
            self.assert_opens(self.firefox, f"org.mozilla.firefox/firefox:{full_path}", links, [command])


class ProfileGroups(CommandLineCase):
    def setUp(self) -> None:
        super().setUp()
        self.home.install(FIREFOX)
        self.root = self.home.home / ".mozilla" / "firefox"
        plant_firefox(self.root, [FirefoxProfile("Profiles/ini", "From the list")])

    def test_a_database_with_rows_stands_for_the_list(self) -> None:
        plant_profile_groups(self.root, [("Profiles/z", "Zebra"), ("Profiles/a.Ape", None), ("Profiles/b.Bee", "")])
        paths = [("Profiles/z", "Zebra"), ("Profiles/a.Ape", "a.Ape"), ("Profiles/b.Bee", "b.Bee")]
        self.assert_lists(listed.browser(FIREFOX, *((self.root / path, name) for path, name in paths)))

    def test_a_database_without_rows_leaves_the_list(self) -> None:
        plant_profile_groups(self.root, [])
        self.assert_lists_names(["From the list"])

    def test_the_database_of_the_smallest_name_is_read_and_other_files_are_not(self) -> None:
        plant_profile_groups(self.root, [("b", "Second")], "b.sqlite")
        plant_profile_groups(self.root, [("a", "First")], "a.SQLITE")
        plant_profile_groups(self.root, [("c", "Hidden")], ".a.sqlite")
        write(self.root / "Profile Groups" / "a.SQLITE-wal.txt", "")
        write(self.root / "Profile Groups" / "0.sqlite-shm", "")
        self.assert_lists_names(["First"])

    def test_a_damaged_database_leaves_the_list(self) -> None:
        database = plant_profile_groups(self.root, [("x", "X")])
        whole = database.read_bytes()
        for reason, content in [
            ("not a database", b"no database at all, but long enough to have a header" * 10),
            ("cut in its first page", whole[:300]),
            ("its first page alone", whole[:4096]),
            ("empty", b""),
            ("a damaged page", whole[:4096] + b"\xff" * (len(whole) - 4096)),
        ]:
            with self.subTest(reason):
                database.write_bytes(content)
                self.assert_lists_names(["From the list"])

    def test_a_database_of_another_shape_leaves_the_list(self) -> None:
        database = self.root / "Profile Groups" / "x.sqlite"
        for statement in [
            "create table Other (path text);",
            "create table Profiles (path text);",
            "create table Profiles (path, name); insert into Profiles values (null, 'No path');",
            "create table Profiles (path, name); insert into Profiles values (5, 'A number');",
        ]:
            with self.subTest(statement):
                write(database, "").unlink()
                run_sqlite(database, statement)
                self.assert_lists_names(["From the list"])

    def test_a_locked_database_leaves_the_list_and_does_not_hold_up(self) -> None:
        database = plant_profile_groups(self.root, [("x", "From the database")])
        connection = sqlite3.connect(database, isolation_level=None)
        self.addCleanup(connection.close)
        connection.execute("begin exclusive")
        self.assert_lists_names(["From the list"])
        connection.execute("rollback")
        self.assert_lists_names(["From the database"])

    def test_a_database_in_write_ahead_mode_is_read_with_what_its_log_holds(self) -> None:
        database = plant_profile_groups(self.root, [("x", "In the file")])
        connection = sqlite3.connect(database, isolation_level=None)
        self.addCleanup(connection.close)
        connection.execute("pragma journal_mode=wal")
        connection.execute("insert into Profiles (path, name) values ('y', 'In the log')")
        self.assert_lists_names(["In the file", "In the log"])

    def test_a_database_is_left_as_it_was(self) -> None:
        plant_profile_groups(self.root, [("x", "X")])
        before = self.home.snapshot()
        self.assert_lists_names(["X"])
        self.assertEqual(self.home.snapshot(), before)

    def test_without_the_sqlite3_tool_the_list_is_read(self) -> None:
        plant_profile_groups(self.root, [("x", "From the database")])
        self.assert_lists_names(["From the database"])
        bubblewrap = Path("/usr/bin/bwrap")
        self.assertTrue(bubblewrap.exists(), f"{bubblewrap} is missing: install the package bubblewrap")
        # An empty folder takes the place of the tool's; the program stays where it is, even if that is the same folder.
        hide = ["--dev-bind", "/", "/", "--tmpfs", str(Path(SQLITE).parent)]
        wrapper = [str(bubblewrap), *hide, "--ro-bind", str(self.program), str(self.program)]
        shown = self.vantrel("list", "--json", wrapper=wrapper)
        self.assertEqual((shown.status, shown.errors), (0, ""))
        names = [each["displayName"] for each in self.parsed(shown.output) if not each["private"]]
        self.assertEqual(names, ["From the list"])
