"""Waiting for a condition, with a bound that only a broken desktop reaches."""

import time
from collections.abc import Callable
from typing import TypeVar

PATIENCE_SECONDS = 120.0
_PAUSE_SECONDS = 0.02

Answer = TypeVar("Answer")


def wait_for(condition: Callable[[], Answer | None], what: str) -> Answer:
    """The condition's first answer that is neither false nor empty; fails when there is none in time."""
    deadline = time.monotonic() + PATIENCE_SECONDS
    while not (answer := condition()):
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {PATIENCE_SECONDS:.0f} s in vain for {what}")
        time.sleep(_PAUSE_SECONDS)
    return answer
