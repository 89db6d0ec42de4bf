#!/usr/bin/python3
"""Measures `vantrel list` as a whole process, against scripts that do the same and against reading the files alone.

    list.py

How much is to be read depends on where profiles have their names: Local State names all of a browser's, or their own
Preferences of 256 KiB do. So it is measured in four homes: with no name, with some, with half and with all names in
Preferences. Without any, most of the time is that of starting a process, the program's as well as Python's. The
scripts' output has to be the program's to the byte, else nothing is measured.

`cat` shows what it costs just to read all Local State and Preferences files. GNU cat, unlike GNU tar and grep, pays no
heed to its output being /dev/null: it reads every byte, and writing costs nothing. That is the least that reading can
cost it, so the goal is set against it. The row through a pipe, where each byte is copied twice more, is there for
comparison.
"""

import difflib
import subprocess
import tempfile
from pathlib import Path

from home import PROFILE_COUNT, UNNAMED_COUNT, Home, plant
from measurement import Contender, Process, measure, measured_program, require, table, verdict

HERE = Path(__file__).resolve().parent
TOOLS = {"/usr/bin/python3": "python3", "/usr/bin/jq": "jq", "/usr/bin/sqlite3": "sqlite3", "/usr/bin/awk": "mawk"}
PYTHON_GOAL = 0.2
CAT_GOAL = 2.0


def output(process: Process) -> list[str]:
    result = subprocess.run(process.arguments, env=process.environment, stdout=subprocess.PIPE, check=True)
    return result.stdout.decode().splitlines(keepends=True)


def check_same_output(program: Process, *scripts: Process) -> None:
    expected = output(program)
    for script in scripts:
        if (actual := output(script)) != expected:
            differences = difflib.unified_diff(expected, actual, program.arguments[0], script.arguments[-1], n=0)
            raise SystemExit("The outputs differ:\n" + "".join(list(differences)[:20]))
    if len(expected) < 2:
        raise SystemExit("Nothing is listed: the home is no home that home.py made.")


def run(home: Home, unnamed: int) -> None:
    for path, package in TOOLS.items():
        require(Path(path), f"install the package {package}")
    environment = home.environment()
    program = Process([measured_program(), "list"], environment)
    python_script = Process(["/usr/bin/python3", "-I", "-S", HERE / "list_reference.py"], environment)
    shell_script = Process(["/bin/sh", HERE / "list.sh"], environment)
    cat = Process(["/bin/cat", *home.data_files()], environment)
    check_same_output(program, python_script, shell_script)

    vantrel = Contender("vantrel list", program.run)
    python = Contender("list_reference.py", python_script.run)
    shell = Contender("list.sh", shell_script.run)
    reading = Contender("cat to /dev/null", cat.run)
    piped_reading = Contender("cat through a pipe", cat.run_through_pipe)
    contenders = [vantrel, python, shell, reading, piped_reading]
    measure(contenders)
    title = f"List {len(output(program))} profiles, {unnamed} of {PROFILE_COUNT} named in Preferences"
    print(table(title, contenders, python))
    print(verdict("a fifth of list_reference.py's time", vantrel.median / python.median, PYTHON_GOAL))
    print(verdict("less than twice the time of cat to /dev/null", vantrel.median / reading.median, CAT_GOAL))


def main() -> None:
    for unnamed in (0, UNNAMED_COUNT, PROFILE_COUNT // 2, PROFILE_COUNT):
        with tempfile.TemporaryDirectory(prefix="vantrel-benchmark-") as folder:
            run(plant(Path(folder).resolve() / "machine", unnamed), unnamed)
        print()


if __name__ == "__main__":
    main()
