"""Measures contenders side by side, round by round, so that whatever else the machine does hits all of them alike."""

import os
import statistics
import time
from collections.abc import Callable, Sequence
from dataclasses import dataclass, field
from pathlib import Path

ROUNDS = 20
NANOSECONDS_IN_A_MILLISECOND = 1_000_000


@dataclass(frozen=True)
class Sample:
    """One run in milliseconds: what the clock showed, and the processor time where that is measured."""

    elapsed: float
    processor: float | None = None


@dataclass
class Contender:
    name: str
    run: Callable[[], Sample]
    samples: list[Sample] = field(default_factory=list)

    @property
    def median(self) -> float:
        return self.quartiles[1]

    @property
    def quartiles(self) -> list[float]:
        return statistics.quantiles((sample.elapsed for sample in self.samples), n=4, method="inclusive")

    @property
    def processor(self) -> float | None:
        times = [sample.processor for sample in self.samples if sample.processor is not None]
        return statistics.median(times) if times else None


def measure(contenders: Sequence[Contender], rounds: int = ROUNDS) -> None:
    """One unmeasured run of each, then each once a round; every other round goes backwards, so that none always follows
    the same one."""
    for contender in contenders:
        contender.run()
    for number in range(rounds):
        for contender in contenders if number % 2 == 0 else reversed(contenders):
            contender.samples.append(contender.run())


def table(title: str, contenders: Sequence[Contender], reference: Contender) -> str:
    """Medians and quartiles in milliseconds, and how many times the reference's median each one takes."""
    width = max(len(contender.name) for contender in contenders)
    rounds = len(reference.samples)
    processor_head = "" if reference.processor is None else "processor"
    lines = [
        f"{title} (milliseconds, {rounds} runs each; ratio to {reference.name})",
        f"  {'':{width}}  {'median':>8}  {'quartiles':>17}  {'ratio':>7}  {processor_head:>9}",
    ]
    for contender in contenders:
        lower, median, upper = contender.quartiles
        spread = f"{lower:.2f} – {upper:.2f}"
        processor = "" if contender.processor is None else f"{contender.processor:.2f}"
        ratio = median / reference.median
        lines.append(f"  {contender.name:{width}}  {median:8.2f}  {spread:>17}  {ratio:7.3f}  {processor:>9}")
    return "\n".join(line.rstrip() for line in lines)


def verdict(goal: str, value: float, limit: float) -> str:
    return f"  goal {'met' if value < limit else 'missed'}: {goal}, measured {value:.3f}"


def measured_program() -> Path:
    """The program in $VANTREL, or the release build of the checkout that these scripts stand in."""
    default = Path(__file__).resolve().parents[1] / "build" / "release" / "vantrel"
    program = Path(os.environ.get("VANTREL") or default).absolute()
    return require(program, "set VANTREL to the program, or build the preset release")


def require(program: Path, remedy: str) -> Path:
    if not os.access(program, os.X_OK):
        raise SystemExit(f"{program} is missing: {remedy}")
    return program


class Process:
    """A program with its arguments and its environment, whose output goes where nobody reads it."""

    def __init__(self, arguments: Sequence[str | os.PathLike[str]], environment: dict[str, str]) -> None:
        self.arguments = [os.fspath(argument) for argument in arguments]
        self.environment = environment

    def spawn(self, output: int | None = None) -> int:
        """Starts it, with its standard output on that descriptor or on /dev/null."""
        streams: list[tuple[int | str, ...]] = [(os.POSIX_SPAWN_OPEN, 0, "/dev/null", os.O_RDONLY, 0)]
        if output is None:
            streams.append((os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0))
        else:
            streams.append((os.POSIX_SPAWN_DUP2, output, 1))
        return os.posix_spawn(self.arguments[0], self.arguments, self.environment, file_actions=streams)

    def run(self) -> Sample:
        started = time.monotonic_ns()
        return self._finish(self.spawn(), started)

    def run_through_pipe(self) -> Sample:
        """Reads all that it prints, to throw it away."""
        reader, writer = os.pipe()
        buffer = bytearray(64 * 1024)
        started = time.monotonic_ns()
        process = self.spawn(writer)
        os.close(writer)
        while os.readv(reader, [buffer]):
            pass
        sample = self._finish(process, started)
        os.close(reader)
        return sample

    def _finish(self, process: int, started: int) -> Sample:
        _, status, usage = os.wait4(process, 0)
        elapsed = time.monotonic_ns() - started
        self.check(status)
        return Sample(elapsed / NANOSECONDS_IN_A_MILLISECOND, (usage.ru_utime + usage.ru_stime) * 1000)

    def check(self, status: int) -> None:
        if (code := os.waitstatus_to_exitcode(status)) != 0:
            raise SystemExit(f"{' '.join(self.arguments[:4])} ended with status {code}")
