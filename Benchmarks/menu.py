#!/usr/bin/python3
"""Runs the benchmark of the menu and says which openings are quick enough.

    menu.py PROGRAM

PROGRAM is the built `menu_benchmark`. The goal is set against the processor's time, which is the program's own and
Qt's: a window on no screen waits for nobody.
"""

import argparse
import json
import subprocess
import tempfile
from pathlib import Path

from measurement import verdict

GOAL = 16.0
OPENINGS = {
    "firstPopup": "first opening of the window",
    "laterPopup": "later opening of the window",
    "firstPanel": "first answer to a panel",
    "laterPanel": "later answer to a panel",
}


def run(program: Path, folder: Path) -> None:
    results = folder / "results.json"
    command = [program, "--benchmark_out_format=json", f"--benchmark_out={results}"]
    environment = {"HOME": str(folder), "LANG": "C.UTF-8", "XDG_RUNTIME_DIR": str(folder)}
    subprocess.run(command, env=environment, check=True)
    benchmarks = json.loads(results.read_text())["benchmarks"]
    times = {benchmark["name"].partition("/")[0]: benchmark["cpu_time"] for benchmark in benchmarks}
    for name, opening in OPENINGS.items():
        print(verdict(f"{opening} in less than {GOAL:.0f} ms", times[name], GOAL))


def main() -> None:
    parser = argparse.ArgumentParser(description="Measures the menu of a thousand profiles.")
    parser.add_argument("program", type=Path, help="the built menu_benchmark")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="vantrel-benchmark-") as folder:
        run(arguments.program.resolve(), Path(folder).resolve())


if __name__ == "__main__":
    main()
