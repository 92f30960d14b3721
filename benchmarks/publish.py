#!/usr/bin/env python3
"""Puts the figures of `./dev bench` into the manual: docs/speed.csv and docs/speed.svg, with date and
machine."""

import csv
import datetime
import os
import re
import shutil
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
MEASURED = ROOT / "out" / "bench"


def machine():
    processor = re.search(r"^model name\s*: (.*)", Path("/proc/cpuinfo").read_text(), re.M)
    compiler = subprocess.check_output(["g++", "-dumpfullversion"], text=True).strip()
    name = processor[1] if processor else "unknown processor"
    return f"{name}, {os.cpu_count()} cores, GCC {compiler}"


def rows():
    """For each task and size what the library takes, and the fastest of the others."""
    measured = {}
    with open(MEASURED / "results.csv", newline="") as file:
        for row in csv.DictReader(file):
            times = measured.setdefault((row["task"], int(row["size"])), {})
            times[row["contender"]] = float(row["ns_per_item"])
    for (task, size), times in measured.items():
        own = times.pop("Trelvin")
        line = {"task": task, "items": size, "ns an item": f"{own:.3g}"}
        if times:
            fastest = min(times, key=times.get)
            line |= {"fastest other": fastest, "its ns": f"{times[fastest]:.3g}",
                     "ratio": f"{own / times[fastest]:.2f}"}
        yield line


def main():
    shutil.copy(MEASURED / "results.svg", ROOT / "docs" / "speed.svg")
    with open(ROOT / "docs" / "speed.csv", "w", newline="") as file:
        file.write(f"# Measured on {datetime.date.today()}: {machine()}.\n")
        names = ["task", "items", "ns an item", "fastest other", "its ns", "ratio"]
        table = csv.DictWriter(file, names, lineterminator="\n")
        table.writeheader()
        table.writerows(rows())


if __name__ == "__main__":
    main()
