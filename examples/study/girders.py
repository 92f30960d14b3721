#!/usr/bin/env python3
"""The lightest box girders, of all combinations of widths, heights and thicknesses, by Dask.

Each section is a box of four plates in sagging bending, S355, its top plate compressed evenly. What
buckles of top plate and webs is left out (EN 1993-1-5), as in examples/python/girder.py. Searched
are the sections of least area whose top plate keeps a wanted width and whose remaining moment
reaches a limit; and the front, those that no other section beats in both area and moment.

    girders.py                                 on this machine, a worker a core
    girders.py --scheduler tcp://HOST:8786     on the workers of a running scheduler
    girders.py --workers 0                     in this process, without Dask

Lengths in mm, areas in mm2, second moments in mm4. docs/study.md tells how to set up a cluster.
"""

import argparse
import contextlib
import csv
import os
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

import numpy as np
import trelvin

THICKNESSES = (8, 10, 12, 15, 18, 20, 22, 25, 28, 30, 35, 40, 45, 50)
# In the order in which they decide between sections that are equal otherwise.
FULL = {
    "b": range(400, 2001, 20),  # between the centre lines of the webs
    "h": range(400, 2001, 20),  # between the centre lines of the top and the bottom plate
    "t_top": THICKNESSES,
    "t_bottom": THICKNESSES,
    "t_web": (6, 8, 10, 12, 14, 16, 18, 20),
}
SMALL = {**FULL, "b": range(400, 2001, 400), "h": range(400, 2001, 400), "t_web": (8, 12)}
STRENGTH = (355**0.5, 235**0.5)  # roots of yield strength and reference, N/mm2
STRESS = 355.0  # at the top, compression positive
FIGURES = np.dtype([("section", "i8"), ("area", "f4"), ("Ix", "f4"), ("effective", "f4")])


@dataclass(frozen=True)
class Study:
    grid: dict  # values by dimension; the last one changes fastest from section to section
    least_moment: float  # of what is left of the section
    least_width: float  # of the top plate, once it buckles
    best: int  # how many of the lightest sections are wanted
    version: str = trelvin.__version__

    def shape(self):
        return tuple(len(values) for values in self.grid.values())

    def sections(self):
        return int(np.prod(self.shape()))

    def dimensions(self, numbers):
        """The columns of dimensions of sections by their numbers."""
        places = np.unravel_index(numbers, self.shape())
        return [np.float32(values)[place] for values, place in zip(self.grid.values(), places)]


def evaluate(study, first, last):
    """Of the sections first to last - 1, those that may count in the end."""
    if trelvin.__version__ != study.version:
        raise RuntimeError(f"this worker has trelvin {trelvin.__version__}, not {study.version}")
    numbers = np.arange(first, last)
    b, _, t_top, _, _ = study.dimensions(numbers)
    left, right = trelvin.batch(trelvin.trvef2, b, b, t_top, *STRENGTH, STRESS, STRESS)
    enough = left + right >= np.float32(study.least_width)
    if not enough.any():
        return np.empty(0, FIGURES)
    left, right, numbers = left[enough], right[enough], numbers[enough]
    figures = np.empty(len(numbers), FIGURES)
    figures["section"], figures["effective"] = numbers, left + right
    figures["area"], figures["Ix"] = remaining(study.dimensions(numbers), left, right)
    return select(study, figures)


def remaining(dimensions, left, right):
    """Area of all plates, and the second moment of what is left once they buckle.

    The neutral axis lies where the reduced top plate puts it; the webs are reduced once for that.
    """
    b, h, t_top, t_bottom, t_web = dimensions
    zero, half = np.zeros_like(b), b / 2
    flanges = [  # x1, y1, x2, y2, t
        (-half, zero, half, zero, t_bottom),
        (-half, h, left - half, h, t_top),
        (half, h, half - right, h, t_top),
    ]
    first = moments(flanges + [(x, zero, x, h, t_web) for x in (-half, half)])
    compressed = h - first.ys
    tension = -STRESS * first.ys / compressed
    widths = trelvin.batch(trelvin.trvef2, h, compressed, t_web, *STRENGTH, STRESS, tension)
    # Unwritten where the tension is just thrice the compression: as beyond that, all counts.
    upper, lower = (np.where(np.isnan(width), compressed / 2, width) for width in widths)
    webs = [(x, zero, x, first.ys + lower, t_web) for x in (-half, half)]
    webs += [(x, h, x, h - upper, t_web) for x in (-half, half)]
    area = b * (t_top + t_bottom) + 2 * h * t_web  # to be bought, whole
    return area, moments(flanges + webs).Ix


def moments(plates):
    return trelvin.batch(trelvin.trvmxt, *(np.stack(column, axis=-1) for column in zip(*plates)))


def select(study, figures):
    """The lightest and the front. Those of a whole are among those of its parts."""
    both = np.concatenate([lightest(study, figures), front(figures)])
    return both[np.unique(both["section"], return_index=True)[1]]


def lightest(study, figures):
    stiff = figures[figures["Ix"] >= np.float32(study.least_moment)]
    return stiff[np.lexsort((stiff["section"], stiff["area"]))][: study.best]


def front(figures):
    ordered = figures[np.lexsort((figures["section"], -figures["Ix"], figures["area"]))]
    before = np.maximum.accumulate(np.append(np.float32(-np.inf), ordered["Ix"]))[:-1]
    return ordered[ordered["Ix"] > before]


def run(study, batch, client, progress):
    """All sections, in batches; the order in which they are done makes no difference."""
    total = study.sections()
    firsts = range(0, total, batch)
    lasts = [min(first + batch, total) for first in firsts]
    found, done = [], 0
    for part in results(client, study, firsts, lasts):
        found.append(part)
        done += 1
        progress(done, len(firsts))
    return select(study, np.concatenate(found))


def results(client, study, firsts, lasts):
    if client is None:
        yield from map(evaluate, len(firsts) * [study], firsts, lasts)
        return
    from distributed import as_completed

    # A batch whose worker is lost is given to another one by the scheduler.
    futures = client.map(evaluate, len(firsts) * [study], firsts, lasts, pure=False)
    for _, part in as_completed(futures, with_results=True):
        yield part


@contextlib.contextmanager
def connected(scheduler, workers):
    """A client of the scheduler that is named, or of a cluster on this machine for as long."""
    if scheduler is None and workers == 0:
        yield None
        return
    from distributed import Client, LocalCluster

    if scheduler:
        with Client(scheduler) as client:
            client.wait_for_workers(1)
            yield client
        return
    here = "127.0.0.1"
    with tempfile.TemporaryDirectory() as folder, LocalCluster(
        host=here, n_workers=workers, threads_per_worker=1, local_directory=folder,
        dashboard_address=f"{here}:0", worker_dashboard_address=f"{here}:0",
    ) as cluster, Client(cluster) as client:
        yield client


# --- what is written ------------------------------------------------------------------------------


def write_table(study, figures, path):
    columns = study.dimensions(figures["section"])
    columns += [figures[name] for name in FIGURES.names[1:]]
    with open(path, "w", newline="") as file:
        table = csv.writer(file, lineterminator="\n")
        table.writerow([*study.grid, *FIGURES.names[1:]])
        for row in zip(*columns):
            table.writerow([np.format_float_positional(number, trim="-") for number in row])


def write_picture(study, points, best, path):
    """The front as SVG: area to the right, second moment upwards, the limit and the lightest."""
    width, height, margin = 720, 480, 70
    areas, stiffness = points["area"] / 1e2, points["Ix"] / 1e7  # cm2, 1000 cm4
    most_area, most_stiffness = 1.05 * areas.max(), 1.05 * stiffness.max()

    def place(area, moment):
        x = margin + float(area) / most_area * (width - 2 * margin)
        return x, height - margin - float(moment) / most_stiffness * (height - 2 * margin)

    def line(start, end, colour):
        (x1, y1), (x2, y2) = place(*start), place(*end)
        return (f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" '
                f'stroke="{colour}"/>')

    def text(x, y, words, anchor="middle"):
        return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}">{words}</text>'

    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" '
        'font-family="sans-serif" font-size="12">',
        '<rect width="100%" height="100%" fill="white"/>',
        line((0, 0), (most_area, 0), "black"), line((0, 0), (0, most_stiffness), "black"),
    ]
    for tick in ticks(most_area):
        x, y = place(tick, 0)
        parts += [line((tick, 0), (tick, most_stiffness), "#ddd"), text(x, y + 16, f"{tick:g}")]
    for tick in ticks(most_stiffness):
        x, y = place(0, tick)
        parts.append(line((0, tick), (most_area, tick), "#ddd"))
        parts.append(text(x - 6, y + 4, f"{tick:g}", "end"))
    limit = study.least_moment / 1e7
    if limit < most_stiffness:
        parts.append(line((0, limit), (most_area, limit), "#c33"))
    path_of = " ".join("{:.1f},{:.1f}".format(*place(*point)) for point in zip(areas, stiffness))
    parts.append(f'<polyline points="{path_of}" fill="none" stroke="#246" stroke-width="1.5"/>')
    for section in best[:1]:
        x, y = place(section["area"] / 1e2, section["Ix"] / 1e7)
        parts.append(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="4" fill="#c33"/>')
    parts += [
        text(width / 2, height - 24, "area, cm2"),
        text(margin, margin - 30, "second moment of what is left, 1000 cm4", "start"),
        "</svg>",
    ]
    path.write_text("\n".join(parts) + "\n")


def ticks(most):
    """Round numbers up to the most, five to ten of them."""
    unit = 10.0 ** np.floor(np.log10(most))
    step = next(f * unit for f in (0.1, 0.2, 0.5, 1.0) if most / (f * unit) <= 10)
    return [i * step for i in range(1, int(most / step) + 1)]


class Progress:
    """A line that is renewed on a terminal; elsewhere a line every tenth."""

    def __init__(self, sections):
        self.sections = sections
        self.start = time.monotonic()

    def __call__(self, done, batches):
        rate = self.sections * done / batches / max(time.monotonic() - self.start, 1e-9)
        words = f"{done}/{batches} batches, {rate / 1e6:.2f} million sections a second"
        if sys.stderr.isatty():
            print(f"\r{words}", end="\n" if done == batches else "", file=sys.stderr, flush=True)
        elif done * 10 // batches > (done - 1) * 10 // batches:
            print(words, file=sys.stderr, flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--scheduler", metavar="ADDRESS", help="of a running cluster")
    parser.add_argument("--workers", type=int, default=os.cpu_count(), help="on this machine")
    parser.add_argument("--small", action="store_true", help="some ten thousand sections")
    parser.add_argument("--batch", type=int, default=50000, help="sections a task")
    parser.add_argument("--moment", type=float, default=2e10, help="least second moment, mm4")
    parser.add_argument("--width", type=float, default=800, help="least effective width of the top")
    parser.add_argument("--best", type=int, default=20, help="sections in best.csv")
    parser.add_argument("--out", type=Path, default=Path("out/study"), help="folder")
    given = parser.parse_args()
    study = Study(SMALL if given.small else FULL, given.moment, given.width, given.best)
    given.out.mkdir(parents=True, exist_ok=True)
    with connected(given.scheduler, given.workers) as client:
        found = run(study, given.batch, client, Progress(study.sections()))
    if not len(found):
        sys.exit("girders: no section's top plate keeps that width")
    best, points = lightest(study, found), front(found)
    write_table(study, best, given.out / "best.csv")
    write_table(study, points, given.out / "front.csv")
    write_picture(study, points, best, given.out / "front.svg")
    print(f"{study.sections()} sections, {len(points)} on the front: {given.out}")


if __name__ == "__main__":
    main()
