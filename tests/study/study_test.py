"""The study of box girders: the same bytes as a plain loop, also when a worker is lost.

TRELVIN_LIBRARY names the library; the package is installed from bindings/python. All addresses are
those of this machine alone.
"""

import csv
import itertools
import os
import signal
import subprocess
import sys
import tempfile
import unittest
import xml.dom.minidom
from pathlib import Path

import numpy as np
import psutil
from distributed import Client, LocalCluster

ROOT = Path(__file__).resolve().parents[2]
HERE = "127.0.0.1"
STUDY = [sys.executable, ROOT / "examples/study/girders.py", "--small", "--width", "300"]
THICKNESSES = (8, 10, 12, 15, 18, 20, 22, 25, 28, 30, 35, 40, 45, 50)
SIDES = range(400, 2001, 400)


def setUpModule():
    global FOLDER, ENVIRONMENT, trelvin
    FOLDER = Path(unittest.enterModuleContext(tempfile.TemporaryDirectory()))
    install = [sys.executable, "-m", "pip", "-q", "--disable-pip-version-check", "install"]
    install += ["--no-index", "--no-deps", "--no-build-isolation", "--root-user-action=ignore"]
    subprocess.run([*install, "--target", FOLDER, ROOT / "bindings/python"], check=True)
    os.environ["PYTHONPATH"] = str(FOLDER)  # for the workers as well
    sys.path.insert(0, str(FOLDER))
    import trelvin


def girder(b, h, t_top, t_bottom, t_web):
    """Area, second moment and width of the top as in examples/python/girder.py, call by call."""
    strength = 355**0.5, 235**0.5
    left, right = trelvin.trvef2(b, b, t_top, *strength, 355, 355)
    x1, x2 = -b / 2, b / 2
    flanges = [(x1, 0, x2, 0, t_bottom)]
    flanges += [(x1, h, x1 + left, h, t_top), (x2, h, x2 - right, h, t_top)]
    webs = [(x, 0, x, h, t_web) for x in (x1, x2)]
    gross = [flanges[0], (x1, h, x2, h, t_top), *webs]
    first = trelvin.trvmxt(*np.transpose(flanges + webs))
    upper, lower = trelvin.trvef2(
        h, h - first.ys, t_web, *strength, 355, -355 * first.ys / (h - first.ys)
    )
    webs = [(x, 0, x, first.ys + lower, t_web) for x in (x1, x2)]
    webs += [(x, h, x, h - upper, t_web) for x in (x1, x2)]
    last = trelvin.trvmxt(*np.transpose(flanges + webs))
    return trelvin.trvmxt(*np.transpose(gross)).A, last.Ix, left + right


def rows(path):
    with open(path, newline="") as file:
        return list(csv.DictReader(file))


def dimensions(row):
    return tuple(int(row[name]) for name in ("b", "h", "t_top", "t_bottom", "t_web"))


class Study(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.alone = FOLDER / "alone"
        command = [*STUDY, "--workers", "0", "--out", cls.alone]
        subprocess.run(command, check=True, capture_output=True)

    def test_equals_a_plain_loop(self):
        figures = {}
        for section in itertools.product(SIDES, SIDES, THICKNESSES, THICKNESSES, (8, 12)):
            figures[section] = girder(*section)
        wide = sorted((a, -i, s) for s, (a, i, w) in figures.items() if w >= 300)
        front = []
        for area, moment, section in wide:
            if not front or -moment > figures[front[-1]][1]:
                front.append(section)
        best = sorted((a, s) for a, i, s in wide if -i >= 2e10)[:20]
        self.assertGreater(len(front), 50)
        self.check(rows(self.alone / "front.csv"), front, figures)
        self.check(rows(self.alone / "best.csv"), [section for _, section in best], figures)

    def check(self, table, sections, figures):
        self.assertEqual([dimensions(row) for row in table], sections)
        for row in table:
            given = [float(row[name]) for name in ("area", "Ix", "effective")]
            np.testing.assert_allclose(given, figures[dimensions(row)], rtol=3e-6)

    def test_a_lost_worker_changes_nothing(self):
        places = dict.fromkeys(("dashboard_address", "worker_dashboard_address"), f"{HERE}:0")
        options = dict(host=HERE, n_workers=2, threads_per_worker=1, local_directory=FOLDER)
        with LocalCluster(**options, **places) as cluster, Client(cluster) as client:
            workers = set(client.run(os.getpid).values())
            self.listens_here_only()
            out = FOLDER / "lost"
            command = [*STUDY, "--batch", "50", "--scheduler", cluster.scheduler_address]
            with subprocess.Popen([*command, "--out", out], stderr=subprocess.PIPE) as study:
                self.assertIn(b"20/196 ", study.stderr.readline())  # a tenth is done
                os.kill(min(workers), signal.SIGKILL)
                study.communicate(timeout=60)
            self.assertEqual(study.returncode, 0)
            client.wait_for_workers(2)
            self.assertNotIn(min(workers), client.run(os.getpid).values())
        for file in ("best.csv", "front.csv", "front.svg"):
            self.assertEqual((out / file).read_bytes(), (self.alone / file).read_bytes(), file)

    def listens_here_only(self):
        process = psutil.Process()
        for one in [process, *process.children(recursive=True)]:
            listening = [c for c in one.connections("inet") if c.status == psutil.CONN_LISTEN]
            self.assertEqual({c.laddr.ip for c in listening} - {HERE}, set())

    def test_the_picture_is_xml_and_shows_the_whole_front(self):
        picture = xml.dom.minidom.parse(str(self.alone / "front.svg"))
        line = picture.getElementsByTagName("polyline")[0].getAttribute("points")
        self.assertEqual(len(line.split()), len(rows(self.alone / "front.csv")))


if __name__ == "__main__":
    unittest.main()
