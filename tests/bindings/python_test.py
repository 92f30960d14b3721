"""The Python package: its wheel is built and installed in a folder of its own, and called there.

TRELVIN_LIBRARY names a library that is built already; else CMake builds one for the wheel.
"""

import doctest
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from importlib.metadata import distributions
from pathlib import Path

import numpy as np

ROOT = Path(__file__).resolve().parents[2]
SOURCES = ROOT / "bindings" / "python"
PIP = [sys.executable, "-m", "pip", "-q", "--disable-pip-version-check", "--no-input"]


def build_wheel(sources, folder, **environment):
    options = ["--no-index", "--no-deps", "--no-build-isolation", "--wheel-dir", folder]
    command = [*PIP, "wheel", *options, sources]
    subprocess.run(command, check=True, env={**os.environ, **environment})
    return next(Path(folder).glob("*.whl"))


def setUpModule():
    global FOLDER, SITE, WHEEL, trelvin
    FOLDER = Path(unittest.enterModuleContext(tempfile.TemporaryDirectory()))
    SITE = FOLDER / "site"
    WHEEL = build_wheel(SOURCES, FOLDER)
    install = [*PIP, "install", "--no-index", "--no-deps", "--root-user-action=ignore"]
    subprocess.run([*install, "--target", SITE, WHEEL], check=True)
    sys.path.insert(0, str(SITE))
    import trelvin


def parts(result):
    return result if isinstance(result, tuple) else (result,)


class Wheel(unittest.TestCase):
    def test_the_same_bytes_from_another_folder(self):
        other = FOLDER / "other" / "bindings" / "python"
        shutil.copytree(SOURCES, other)
        other.chmod(0o700)
        library = str(SITE / "trelvin" / "libtrelvin.so")
        again = build_wheel(other, FOLDER / "again", TRELVIN_LIBRARY=library)
        self.assertEqual(again.name, WHEEL.name)
        self.assertEqual(again.read_bytes(), WHEEL.read_bytes())

    def test_the_page_of_the_documentation(self):
        page = (ROOT / "docs" / "python.md").read_text()
        self.assertIn((ROOT / "examples" / "girder.txt").read_text(), page)
        examples = re.sub("^```.*", "", page, flags=re.M)
        test = doctest.DocTestParser().get_doctest(examples, {}, "docs/python.md", None, 0)
        self.assertEqual(doctest.DocTestRunner().run(test).failed, 0)
        self.assertGreater(len(test.examples), 10)

    def test_version(self):
        installed = next(distributions(name="trelvin", path=[str(SITE)]))
        self.assertEqual(installed.version, trelvin.__version__)


class Results(unittest.TestCase):
    def test_a_polygon_needs_its_vertices_only(self):
        square = trelvin.trvspl(x=[2, 3, 3, 2], y=[4, 4, 5, 5])
        self.assertEqual((square.sx, square.sy), (4.5, 2.5))
        self.assertEqual(square.x.tolist(), [2, 3, 3, 2, 2])

    def test_unwritten_outputs(self):
        parallel = trelvin.trvlni(1, 0, 0, 1, 0, -5)
        self.assertTrue(np.isnan([parallel.x, parallel.y]).all())
        self.assertEqual(trelvin.trvphip(1, 0, 0, 0, 1, 0).status, 0)
        x, y = [0, 1, 1, 0], [0, 0, 1, 1]
        closed = trelvin.trvmxt(x, y, np.roll(x, -1), np.roll(y, -1), 4 * [0.1])
        self.assertEqual(closed.status, 4)
        self.assertTrue(np.isnan(closed.W1).all() and np.isnan(closed.It) and closed.A > 0)

    def test_lists_are_as_long_as_their_count(self):
        on_plane = trelvin.trvpnp([0, 0, 0], [0, 1, 0], [0, 0, 0], 0, 1, 0, 0)
        self.assertEqual((on_plane.count_, on_plane.index_.tolist()), (1, [1]))

    def test_constants(self):
        status = trelvin.trvpl1(0, 0, 0, 1, 0, 0, 0.5, 0, 0).status
        self.assertEqual(status, trelvin.TrvThreePoints.BETWEEN)
        self.assertIs(type(status), trelvin.TrvThreePoints)
        self.assertIs(trelvin.Trvpl1Status.P2_IS_BETWEEN_P0_AND_P1, status)  # name of version 1.1


class Counts(unittest.TestCase):
    def test_elements_need_not_be_neighbours(self):
        self.assertEqual(trelvin.trvpos(np.float32([1, 9, 2, 9])[::2], 5), 0)

    def test_a_count_may_be_less_than_the_array_holds(self):
        self.assertEqual(trelvin.trvpos([1, 2, 3], 2.5), 2)
        self.assertEqual(trelvin.trvpos([1, 2, 3], 2.5, n=2), 0)
        self.assertEqual(trelvin.trvapl([0, 1, 1, 0], [0, 0, 1, 1], n=3).area, 0.5)

    def test_a_kind_picks_the_size(self):
        circle = trelvin.trvair([0, 2], [0, 0], kind=3, value=0, factor=1, area=0)
        self.assertAlmostEqual(circle.area, 4 * np.pi, places=5)

    def test_room_for_what_is_inserted(self):
        grown = trelvin.trvadr([1, 2, 3], k=1, A=[8, 9])
        self.assertEqual((grown.n, grown.V.tolist()), (5, [1, 8, 9, 2, 3]))


class Mistakes(unittest.TestCase):
    def refused(self, error, words, routine, *given, **named):
        with self.subTest(words), self.assertRaisesRegex(error, words):
            routine(*given, **named)

    def test_lengths_and_counts(self):
        t = trelvin
        self.refused(ValueError, "trvpos: A needs n = 5 elements; 1 given", t.trvpos, [1], 1, n=5)
        self.refused(ValueError, "n is one number .* x has 3, y has 2", t.trvspl, [0, 1, 1], [0, 0])
        self.refused(ValueError, "n must be at least 0; -1 given", t.trvpos, [1, 2], 1, n=-1)
        self.refused(ValueError, "n must be at least 2; 1 given", t.trvinr, [1], 0, 1)
        self.refused(ValueError, "x needs 2 elements; 1 given", t.trvair, [0], [0, 1], 3, 0, 1, 0)
        self.refused(ValueError, "A needs an array of one dimension", t.trvpos, np.eye(2), 1)
        self.refused(ValueError, "x needs a single number", t.trvpos, [1, 2], [1, 2])

    def test_kinds_of_numbers(self):
        t = trelvin
        self.refused(TypeError, "dx needs Reals; 1j given", t.trvaxph, 1j, 0)
        self.refused(TypeError, "dx needs Reals; ", t.trvaxph, np.complex64(1), 0)
        self.refused(TypeError, "dx needs Reals; '3' given", t.trvaxph, "3", 0)
        self.refused(ValueError, "dx needs Reals of single precision", t.trvaxph, 1e39, 0)
        self.refused(ValueError, "V needs Reals of single precision", t.trvord, [1e39])
        self.refused(TypeError, "V needs whole Integers", t.trvord1, [1.0, 2.5])
        self.refused(ValueError, "V needs 32-bit Integers", t.trvord1, [2**31])
        self.refused(TypeError, "side needs whole Integers; 0.5", t.trvcer2, 0, 0, 1, 0, 0.5, 1)
        self.refused(TypeError, "zf needs a function", t.trvpnl, *6 * [0], [1], [1], 0, 1)

    def test_whole_floats_are_integers(self):
        self.assertEqual(trelvin.trvord1(np.array([2.0, 1.0])).tolist(), [1, 2])
        self.assertEqual(np.nanmax(trelvin.trvsec_b(40.0, 2, 1).X), 20)


class InPlace(unittest.TestCase):
    def test_the_array_itself_changes_on_request_only(self):
        x = np.array([3, 1, 2], np.float32)
        self.assertEqual(trelvin.trvord(x).tolist(), [1, 2, 3])
        self.assertEqual(x.tolist(), [3, 1, 2])
        self.assertIs(trelvin.trvord(x, in_place=True), x)
        self.assertEqual(x.tolist(), [1, 2, 3])

    def test_what_can_not_be_changed_in_place(self):
        x = np.zeros(5, np.float32)
        for error, call in (
            (TypeError, lambda: trelvin.trvord(np.zeros(2), in_place=True)),
            (TypeError, lambda: trelvin.trvord([1, 2], in_place=True)),
            (ValueError, lambda: trelvin.trvord(x[::2], in_place=True)),
            (ValueError, lambda: trelvin.trvtra(x[:4], x[1:], 0, 0, in_place=True)),
            (ValueError, lambda: trelvin.trvapl(x, x + 1, in_place=True)),  # nothing behind n
        ):
            with self.assertRaises(error):
                call()
        self.assertEqual(trelvin.trvapl(x, x + 1, n=4, in_place=True).area, 0)


class Functions(unittest.TestCase):
    def test_is_asked_for_every_position(self):
        asked = []
        near = trelvin.trvpnl(
            0, 0, 0, 1, 0, 0, [5, 6, 7], [0, 0, 0], lambda i: asked.append(i) or i - 2, tol=0
        )
        self.assertEqual((asked, near.index_.tolist()), ([1, 2, 3], [2]))

    def test_its_exception_arrives(self):
        with self.assertRaises(ZeroDivisionError):
            trelvin.trvpnl(0, 0, 0, 1, 0, 0, [5], [0], lambda i: 1 / 0, tol=1)


class Batch(unittest.TestCase):
    def test_rows_equal_single_calls_bit_for_bit(self):
        random = np.random.default_rng(1)
        compared = 0
        for name, routine in sys.modules["trelvin._call"].Routine.by_name.items():
            arrays = any(a.is_array or a.kind == "function" for a in routine.inputs)
            if arrays or routine.retains:
                continue
            rows = random.integers(-3, 4, (20, len(routine.inputs))) / 1
            rows += [0.25 * (a.kind == "real") for a in routine.inputs]
            function = getattr(trelvin, name)
            singles = zip(*(parts(function(*row.tolist())) for row in rows))
            for column, numbers in zip(parts(trelvin.batch(function, *rows.T)), singles):
                self.assertEqual(column.tobytes(), np.array(numbers, column.dtype).tobytes(), name)
            compared += 1
        self.assertGreater(compared, 60)

    def test_rows_are_broadcast_and_arrays_run_along_the_last_axis(self):
        sides = np.arange(1, 7, dtype=np.float64).reshape(2, 3)
        squares = trelvin.batch(trelvin.trvapl, sides[..., None] * [0, 1, 1, 0], [0, 0, 1, 1])
        np.testing.assert_array_equal(squares.area, sides)
        self.assertEqual(squares.x.shape, (2, 3, 5))
        points = np.random.default_rng(1).random((4, 8), np.float32)[:, ::2]  # not contiguous
        moved = trelvin.batch(trelvin.trvtra, points, points.T, 0.5, [1, 2, 3, 4])
        np.testing.assert_array_equal(moved.Y, points.T - np.float32([[1], [2], [3], [4]]))

    def test_mistakes(self):
        with self.assertRaisesRegex(ValueError, r"trvmed: rows do not match"):
            trelvin.batch(trelvin.trvmed, [1, 2], [1, 2, 3], 0, 0, 0, 0)
        self.assertRaises(TypeError, trelvin.batch, max, 1)


if __name__ == "__main__":
    unittest.main()
