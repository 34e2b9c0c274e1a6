#!/usr/bin/python3
"""Measures the program and prints the table of figures: ratios to what is measured in turn with it first, milliseconds
beside them. Nothing is asserted here.

  benchmarks/figures.py                        everything, five times over
  benchmarks/figures.py [--runs N] PART...     some of: library, start, keys, peers, memory, busy
"""

import argparse
import contextlib
import itertools
import json
import os
import pathlib
import re
import statistics
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tools/desktop"))

from editors import Mousepad  # noqa: E402
from keys import confirming_against_bus, delay_of_passed_keys, popup_against_letter  # noqa: E402
from memory import tell_kinds  # noqa: E402
from peers import against_peers  # noqa: E402
from session import Session, Tessarin, wait_for  # noqa: E402
from table import Table  # noqa: E402
from typist import Typist  # noqa: E402

BENCHMARKS = ROOT / "build/release/benchmarks"

# Benchmarks whose names begin so become one line of the table, by their worst row.
LIBRARY_LINES = {
    "searchShipped": ("a search over the shipped data", "p99 ≤ 50 µs"),
    "searchShippedIn": ("the same with the words of a language beside English", "p99 ≤ 50 µs"),
    "search/snippets:100000": ("a search over 100,000 snippets", "≤ 2 ms, worst query"),
    "search/snippets:1000000": ("a search over 1,000,000 snippets", "≤ 20 ms, worst query"),
    "recordUsage": ("recording a use with 10,000 events on file", "≤ 5 ms"),
}


def library(table):
    rows = []
    for program in sorted(BENCHMARKS.glob("*Benchmark")):
        done = subprocess.run([program, "--benchmark_format=json"], capture_output=True, text=True, errors="replace", check=True)
        rows += json.loads(done.stdout)["benchmarks"]
    for begin, (what, target) in LIBRARY_LINES.items():
        worst = {}
        for row in (row for row in rows if row["name"].startswith(begin + "/")):
            for counter in ("p50_us", "p99_us", "worst_us", "p99_ms", "max_ms"):
                if counter in row:
                    worst[counter] = max(worst.get(counter, 0.0), row[counter])
        table.add(what, target, ", ".join(f"{name[:-3]} {value:.4g} {name[-2:].replace('u', 'µ')}" for name, value in worst.items()),
                  size=sum(worst.values()))


def seconds_to_line(session, line, *command):
    begin = time.monotonic()
    child = session.start(*command, stdout=subprocess.PIPE, text=True)
    took = next((time.monotonic() - begin for written in child.stdout if line in written), None)
    session.stop(child)
    return took


def start(table, runs=10):
    """In turn with the least that a program with a tray item does in the same toolkit."""
    with Session() as session:
        program = Tessarin(session).program  # with what a first start asks answered
        pairs = [(seconds_to_line(session, "App launched and ready", program),
                  seconds_to_line(session, "ready", BENCHMARKS / "bare_tray")) for _ in range(runs)]
    ours, bare = zip(*pairs)
    later = (statistics.median(ours) - statistics.median(bare)) * 1000
    table.add("program start → ready, against a bare tray program", "≤ +40 ms; ≤ 100 ms", f"{later:+.0f} ms",
              f"median {statistics.median(ours) * 1000:.0f}, worst {max(ours) * 1000:.0f} ms; "
              f"bare {statistics.median(bare) * 1000:.0f}, worst {max(bare) * 1000:.0f} ms", later)


def keys(table, rounds=30, turns=2):
    with Session() as session:
        typist = Typist(session)
        with Tessarin(session, confirmsOnlyWhatIsMeant=True):
            popup_against_letter(session, typist, table, rounds)
            confirming_against_bus(session, typist, table, rounds // 3)
        delay_of_passed_keys(session, typist, table, turns=turns)
        typist.close()


def peers(table):
    against_peers(table, rounds=12, expansions=60)


def memory(table, expansions=1000):
    with Session() as session:
        typist = Typist(session)
        with Tessarin(session) as tessarin, Mousepad(session, typist) as editor:
            tell_kinds(table, tessarin.pid, "after start")
            marks = []
            for part in range(10):
                typist.type("a:smile\tb :tada:c " * (expansions // 20) + "\n")
                expected = expansions // 20 * (part + 1)
                wait_for(lambda count=expected: editor.document().count("🎉") >= count, 120)
                marks.append(tessarin.resident_kilobytes() / 1024)
            tell_kinds(table, tessarin.pid, "after 1,000 expansions")
            table.add("resident memory after 1,000 expansions", "≤ 40 MB, flat",
                      f"{marks[-1]:.1f} MB", f"after 100: {marks[0]:.1f}", marks[-1])
            wake_ups(table, tessarin)
        typist.close()


def switches(pid):
    total = 0
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        text = (task / "status").read_text()
        total += sum(int(n) for n in re.findall(r"ctxt_switches:\s+(\d+)", text))
    return total


def wake_ups(table, tessarin, seconds=20):
    time.sleep(2)
    before = switches(tessarin.pid)
    time.sleep(seconds)
    often = (switches(tessarin.pid) - before) / seconds
    table.add("wake-ups when idle", "at most 1 a second", f"{often:.2f} a second", size=often)


@contextlib.contextmanager
def processes_that_never_rest(count):
    children = [subprocess.Popen(["sh", "-c", "while :; do :; done"]) for _ in range(count)]
    try:
        yield
    finally:
        for child in children:
            child.kill()
            child.wait()


def busy(table):
    table.remark = " (busy)"
    with processes_that_never_rest(2):
        keys(table, rounds=15, turns=1)
    table.remark = ""


PARTS = {"library": library, "start": start, "keys": keys, "peers": peers, "memory": memory, "busy": busy}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("parts", nargs="*", metavar="PART")
    chosen = parser.parse_args()
    if unknown := set(chosen.parts) - set(PARTS):
        parser.error(f"no such part: {', '.join(unknown)}")
    table = Table()
    print(f"Measuring; this takes some minutes. Processes waiting for a processor: {os.getloadavg()[0]:.1f}", flush=True)
    for run, part in itertools.product(range(chosen.runs), chosen.parts or PARTS):
        begin = time.monotonic()
        PARTS[part](table)
        print(f"  (run {run + 1}, {part}: {time.monotonic() - begin:.0f} s)", flush=True)
    table.show()
    print("\n“(busy)”: beside two processes that never rest. Processes waiting for a processor at the end: "
          f"{os.getloadavg()[0]:.1f}")


if __name__ == "__main__":
    main()
