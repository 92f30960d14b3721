#!/usr/bin/env python3
"""What contracts tell of lost digits, measured anew.

    digits_test.py LIBRARY    libtrelvin.so, built for this machine
"""
import ctypes
import math
import random
import re
import statistics
import sys
import unittest
from pathlib import Path

root = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(root / "tools"))

import model  # noqa: E402

library = ctypes.CDLL(sys.argv.pop(1))
routines = {r.name: r for r in model.read().routines}


def call(name, *inputs):
    """All arguments after a call, given the first ones."""
    block = [(ctypes.c_int32 if argument.is_integer else ctypes.c_float)(*inputs[i:i + 1])
             for i, argument in enumerate(routines[name].arguments)]
    getattr(library, name)(*map(ctypes.byref, block))
    return [argument.value for argument in block]


def real(*values):
    return [ctypes.c_float(value).value for value in values]


def figures(name, pattern):
    """The numbers that the contract of a routine gives where the pattern has groups."""
    found = re.search(pattern, routines[name].text.replace(",000", "000"))
    assert found, f"{name}: no figures as in: {pattern}"
    return [float(number) for number in found.groups()]


def rays(angle, count, length=lambda: random.uniform(1, 1000)):
    """Pairs of rays from the origin, any direction, as Reals; and the angle that those have."""
    for _ in range(count):
        start, u, v = random.uniform(0, 2 * math.pi), length(), length()
        ux, uy, vx, vy = real(u * math.cos(start), u * math.sin(start),
                              v * math.cos(start + angle), v * math.sin(start + angle))
        yield ux, uy, vx, vy, math.atan2(abs(ux * vy - uy * vx), ux * vx + uy * vy)


def shares(results):
    """Per cent of zeros and of NaN."""
    return [100 * sum(map(kind, results)) / len(results) for kind in (lambda r: r == 0, math.isnan)]


PHI = (r"Of (\S+) random pairs of rays, 1 to 1000 long and (\S+) radians apart, (\S+) % give 0 and "
       r"(\S+) % NaN; of pairs (\S+) apart, (\S+) % give 0\. Errors reach (\S+) % at (\S+) radians, "
       r"(\S+) % at (\S+) and (\S+) % at (\S+)\.")


class Digits(unittest.TestCase):
    def setUp(self):
        random.seed(16)

    def test_small_angles(self):
        count, first, zeros, nans, second, fewer, *errors = figures("trvphi", PHI)
        for angle, expected in ((first, [zeros, nans]), (second, [fewer, 0])):
            found = shares([call("trvphi", 0, 0, *ray[:4])[-1] for ray in rays(angle, int(count))])
            self.assertLess(max(abs(f - e) for f, e in zip(found, expected)), 1, angle)
        for error, angle in zip(errors[::2], errors[1::2]):
            worst = max(abs(call("trvphi", 0, 0, *ray[:4])[-1] - ray[4]) / ray[4]
                        for ray in rays(angle, int(count)))
            self.assertLess(abs(100 * worst - error), 0.25 * error, angle)
        # Those that say that they lose the same.
        for name, angle_of in {
            "trvphi3": lambda a, b, c, d: call("trvphi3", 0, 0, 0, a, b, 0, c, d, 0)[-1],
            "trvphi1": lambda a, b, c, d: call("trvphi1", 0, a, b, 0, c, d)[-1],
            "trvphip": lambda a, b, c, d: call("trvphip", a, b, 0, -c, -d, 0)[-2],
            "trvmov": lambda a, b, c, d: call("trvmov", 0, 0, 5, a, b, 0, 0, 0, 0, c, d, 1)[-1],
            "trvarc1": lambda a, b, c, d: call("trvarc1", 0, 0, a, b, c, d)[-3],
            "trvapp": lambda a, b, c, d: call("trvapp", 0, 0, a, b, c, d, 1, a, b)[-1] > 0,
        }.items():
            self.assertIn("trvphi", routines[name].text)
            found = shares([angle_of(*ray[:4]) for ray in rays(first, 5000)])
            expected = [zeros, 0 if name == "trvapp" else nans]
            self.assertLess(max(abs(f - e) for f, e in zip(found, expected)), 3, name)
        self.assertEqual(figures("trvapp", r"of sectors of (\S+) radians (\S+) %"), [first, zeros])

    def test_angles_against_the_axis(self):
        told = figures("trvaxph", r"at (\S+) radians (\S+) % of random directions give 0 or pi, at "
                                  r"(\S+) (\S+) %\.")
        for angle, share in zip(told[::2], told[1::2]):
            lengths = [random.uniform(1, 1000) for _ in range(5000)]
            found = shares([call("trvaxph", length * math.cos(angle),
                                 length * math.sin(angle))[-1] for length in lengths])
            self.assertLess(abs(found[0] - share) + found[1], 3, angle)

    def test_half_circles(self):
        told, = figures("trvarc1", r"opposite each other, (\S+) % give NaN")
        found = shares([call("trvarc1", 0, 0, a, b, -a, -b)[-3] for a, b, *_ in rays(0, 5000)])
        self.assertLess(abs(found[1] - told), 3)

    def test_a_chord_that_is_not_turned(self):
        xc, yc, xa, ya, xb, yb, turn, off = figures(
            "trvcer10", r"C = \((\S+), (\S+)\), A = \((\S+), (\S+)\), B = \((\S+), (\S+)\), turn = "
            r"(\S+) and angle = pi/2 give an intersection that is off by (\S+)\.")
        x, y = xc + (xa - xc) * math.cos(turn) - (ya - yc) * math.sin(turn), \
            yc + (xa - xc) * math.sin(turn) + (ya - yc) * math.cos(turn)
        along = (x * xb + y * yb) / (xb * xb + yb * yb)
        points = [call("trvcer10", *arc, turn, math.pi / 2)[8:10]
                  for arc in ((xc, yc, xa, ya, xb, yb), (-yc, xc, -ya, xa, -yb, xb))]
        self.assertAlmostEqual(math.dist(points[0], (along * xb, along * yb)), off, 2)
        self.assertLess(math.dist((points[1][1], -points[1][0]), (along * xb, along * yb)), 2e-3)

    def test_flat_arcs(self):
        numbers = figures("trvcer5", r"an arc of (\S+) radians is off by up to (\S+) of its chord, of "
                                     r"(\S+) radians by up to (\S+) %\.")
        for angle, told in ((numbers[0], numbers[1]), (numbers[2], numbers[3] / 100)):
            worst = [0, 0]
            for _ in range(3000):
                radius, part = random.uniform(500, 1500), random.uniform(0.1, 0.9)
                x, y = real(radius * math.sin(angle / 2), radius * math.cos(angle / 2))
                e = (math.hypot(x, y) - y) / 2
                s = 2 * x * part
                px, dx = -x + s, x - s  # station, and from it to T
                half = (px * dx + y * e) / (dx * dx + e * e)
                root_of = math.sqrt(half * half - (px * px - x * x) / (dx * dx + e * e))
                t = -half + root_of if -half + root_of > 0 else -half - root_of
                point = px + t * dx, y + t * e
                arc = 0, 0, -x, y, x, y
                found = (call("trvcer5", *arc, s, 1, e)[9:11],
                         call("trvcer7", *arc, s, 1, e, math.atan2(e, x - s))[14:16])
                worst = [max(w, math.dist(f, point) / (2 * x)) for w, f in zip(worst, found)]
            self.assertLess(abs(worst[0] - told), 0.3 * told, angle)
            self.assertLess(worst[1], 3e-5)

    def test_circles_far_from_the_origin(self):
        *off, a, b, c, missed, apart = figures(
            "trvlci", r"off by up to (\S+) if its centre is \((\d+), \d+\), and by up to (\S+) at "
            r"\((\S+), \S+\)\. At \(1e5, 1e5\) the line \((\S+), (\S+), (\S+)\) misses the circle by "
            r"(\S+), but the routine gives two points (\S+) apart\.")
        circle = call("trvcer", 1e5, 1e5, 10)[3:]
        self.assertEqual(abs(a * 1e5 + b * 1e5 + c) / math.hypot(a, b) - 10, missed)
        count, *points = call("trvlci", a, b, c, *circle)[6:]
        self.assertEqual((count, round(math.dist(points[:2], points[2:]))), (2, apart))
        for told, at in zip(off[::2], off[1::2]):
            worst = 0
            for _ in range(3000):
                way, beside = math.pi * random.uniform(0.1, 0.9), random.uniform(-9, 9)
                start = real(at - beside * math.sin(way), at + beside * math.cos(way))
                end = start[0] + 100 * math.cos(way), start[1] + 100 * math.sin(way)
                found = call("trvlci", *call("trvln3", *start, *end)[4:],
                             *call("trvcer", at, at, 10)[3:])[6:]
                if found[0] == 2:
                    worst = max(worst, abs(math.dist(found[1:3], (at, at)) - 10))
            self.assertLess(abs(worst - told), 0.3 * told, at)

    def test_centres_and_crossings_of_circles_far_from_the_origin(self):
        radius, at, apart, lost = figures(
            "trvc12", r"circles of radius (\S+) near \((\S+), \S+\), with centres (\S+) apart, (\S+) % "
                      r"are reported as touching or as disjoint\.")
        chord, radius2, at2, wrong, off = figures(
            "trvcer2", r"chords of (\S+) with a radius of (\S+) near \((\S+), \S+\), (\S+) % give a "
                       r"wrong n, and half of the others a centre that is off by more than (\S+)\.")
        missed, errors = [0, 0], []
        for _ in range(3000):
            way = random.uniform(0, 2 * math.pi)
            x, y = real(at + apart * math.cos(way), at + apart * math.sin(way))
            circles = call("trvcer", at, at, radius)[3:] + call("trvcer", x, y, radius)[3:]
            missed[0] += call("trvc12", *circles)[6] != 2
            x, y = real(at2 + chord * math.cos(way), at2 + chord * math.sin(way))
            *centre, n = call("trvcer2", at2, at2, x, y, 1, radius2)[10:]
            missed[1] += n != 2
            if n == 2:
                errors.append(max(abs(math.dist(centre, p) - radius2) for p in ((at2, at2), (x, y))))
        self.assertLess(max(abs(m / 30 - t) for m, t in zip(missed, (lost, wrong))), 2.5)
        self.assertLess(abs(statistics.median(errors) - off), 0.1 * off)


if __name__ == "__main__":
    unittest.main()
