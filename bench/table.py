#!/usr/bin/env python3
"""Turns the results of the benchmark programs into the table of docs/performance.md.

usage: table.py RESULTS_DIRECTORY DOCUMENT

The document keeps its own text: only what stands between the two marker lines is replaced.
"""
import json
import pathlib
import re
import sys

BEGIN, END = "<!-- table begins -->", "<!-- table ends -->"
ROWS_FILE = pathlib.Path(__file__).with_name("rows.json")


def medians(directory):
    """Name of each benchmark to the median of its time (ns) and its counters."""
    found = {}
    for path in sorted(directory.glob("*.json")):
        for run in json.loads(path.read_text())["benchmarks"]:
            if run.get("aggregate_name") == "median":
                found[run["run_name"]] = run
    return found


def measure(run, what):
    scale = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[run["time_unit"]]
    return run[what] * (scale if what.endswith("_time") else 1)


def human(value, what):
    if not what.endswith("_time"):
        return f"{value:,.4g}"
    for unit, size in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if value >= size:
            return f"{value / size:.3g} {unit}"
    return f"{value:.3g} ns"


def line(row, found):
    what = row.get("measure", "cpu_time")
    missing = [name for name in (row["ours"], row["peer"]) if name not in found]
    if missing:
        sys.exit(f"table.py: no result for {', '.join(missing)}")
    ours, peer = (measure(found[row[side]], what) for side in ("ours", "peer"))
    ratio, goal = ours / peer, row.get("goal")
    verdict = "–" if goal is None else "met" if ratio <= goal else "**missed**"
    shown_goal = "shown" if goal is None else f"{goal:g} x"
    return (f"| {row['title']} | {row['against']} | {human(ours, what)} | {human(peer, what)} "
            f"| {ratio:.2f} x | {shown_goal} | {verdict} |")


def main():
    directory, document = map(pathlib.Path, sys.argv[1:3])
    found = medians(directory)
    table = ["| what | peer | ours | peer's | ratio | goal | |", "|---|---|---|---|---|---|---|"]
    table += [line(row, found) for row in json.loads(ROWS_FILE.read_text())]
    text = document.read_text()
    if BEGIN not in text or END not in text:
        sys.exit(f"table.py: {document} lacks the marker lines")
    block = f"{BEGIN}\n" + "\n".join(table) + f"\n{END}"
    document.write_text(re.sub(f"{BEGIN}.*?{END}", lambda _: block, text, flags=re.S))
    print("\n".join(table))


if __name__ == "__main__":
    main()
