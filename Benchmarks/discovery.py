#!/usr/bin/python3
"""Runs the benchmark of a whole discovery, with and without pictures, in a generated home.

    discovery.py PROGRAM [HOME]

PROGRAM is the built `discovery_benchmark`. HOME is a folder that home.py made; without it one is made for now.
"""

import argparse
import subprocess
from pathlib import Path

from home import given_or_planted


def main() -> None:
    parser = argparse.ArgumentParser()
    parser.add_argument("program", type=Path)
    parser.add_argument("home", type=Path, nargs="?")
    arguments = parser.parse_args()
    with given_or_planted(arguments.home) as home:
        subprocess.run([arguments.program.resolve()], env=home.environment(), check=True)


if __name__ == "__main__":
    main()
