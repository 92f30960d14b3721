"""Tests of section_properties, run as a program.

section_properties_test.py [unittest options] -- COMMAND...
or with the command in the variable SECTION_PROPERTIES: "wine .../section_properties.exe".
"""
import bisect
import csv
import decimal
import functools
import json
import math
import os
import re
import shlex
import stat
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

try:
    import pty
    import resource
except ImportError:  # not on Windows
    resource = None

COMMAND = shlex.split(os.environ.get("SECTION_PROPERTIES", ""))
if "--" in sys.argv:
    COMMAND = sys.argv[sys.argv.index("--") + 1:]
    del sys.argv[sys.argv.index("--"):]
COMMAND = [os.path.abspath(word) if os.path.exists(word) else word for word in COMMAND]
IS_NATIVE = resource is not None and ".exe" not in "".join(COMMAND)
TOLERANCE = 2e-6  # a few single-precision roundings

# Tables of sections after EN 10365: h b tw tf r in mm; then cm2, cm4, cm, cm3, and Iw in 1000 cm6.
PUBLISHED = {"area": 1e2, "Ix": 1e4, "rx": 10, "Iy": 1e4, "ry": 10, "Wx1": 1e3, "Wpx": 1e3,
             "Wy1": 1e3, "Wpy": 1e3, "It": 1e4, "Iw": 1e9}
ROLLED = {
    # IPE 200, IPE 300, HE 200 B, HE 300 A
    "200 100 5.6 8.5 12": "28.48 1943 8.26 142.4 2.24 194.3 220.6 28.47 44.61 6.98 12.99",
    "300 150 7.1 10.7 15": "53.81 8356 12.46 603.8 3.35 557.1 628.4 80.50 125.2 20.12 125.9",
    "200 200 9 15 18": "78.08 5696 8.54 2003 5.07 569.6 642.5 200.3 305.8 59.28 171.1",
    "290 300 8.5 14 27": "112.5 1.826e4 12.74 6310 7.49 1260 1383 420.6 641.2 85.17 1200",
}

# Profiles as plates (left, right, bottom, top), measured from wherever is handy.
OUTLINES = {
    "ia 400 310 150 22 11 8.5": [(-155, 155, 0, 22), (-4.25, 4.25, 22, 389), (-75, 75, 389, 400)],
    "h 400 310 150 22 11 8.5": [(0, 22, -155, 155), (22, 389, -4.25, 4.25), (389, 400, -75, 75)],
    "i 400 310 150 22 11 8.5 0 0 12": [(-155, 155, 0, 22), (7.75, 16.25, 22, 389), (-75, 75, 389, 400)],
    "c 200 80 60 25 20 12 10 3 4 5 2 2.5 1.5 2": [
        (0, 3, 4, 195), (0, 80, 0, 4), (0, 60, 195, 200), (78, 80, 4, 25), (57.5, 60, 180, 195),
        (68, 78, 23.5, 25), (50, 57.5, 180, 182)],
    "t 180 260 17 9.5": [(-4.75, 4.75, 0, 243), (-90, 90, 243, 260)],
    "b 130 17.5": [(0, 130, 0, 17.5)],
    "h1b 250 200 160 9 22 8 15": [
        (-125, 125, 160, 175), (-100, -91, 0, 160), (78, 100, 0, 160), (-91, 78, 76, 84)],
    "h1b 180 200 160 30 40 8 15": [  # a plate inside the flanges' outer faces
        (-90, 90, 160, 175), (-100, -70, 0, 160), (60, 100, 0, 160), (-70, 60, 76, 84)],
    "box 3000 2000 20 25 1500 12 1600": [
        (-1500, 1500, 1480, 1500), (-1000, 1000, 0, 25), (-812, -800, 25, 1480), (800, 812, 25, 1480)],
    "rhs 120 200 7.5": [
        (0, 120, 0, 7.5), (0, 120, 192.5, 200), (0, 7.5, 7.5, 192.5), (112.5, 120, 7.5, 192.5)],
    "l 150 100 12 0": [(0, 12, 0, 100), (12, 150, 0, 12)],
    "l2 100 150 12 10 14": [
        (-106, -6, 140, 150), (6, 106, 140, 150), (-20, -6, 0, 140), (6, 20, 0, 140)],
    "tab 500 400 300 60 15 10 12": [
        (-250, 250, 400, 415), (-150, -140, 0, 400), (140, 150, 0, 400), (-140, 140, 60, 72)],
    "h2b 300 240 260 10 30 12 15": [
        (-150, 150, 0, 15), (-150, 150, 275, 290), (-120, -110, 15, 275), (90, 120, 15, 275),
        (-110, 90, 139, 151)],
}

# What is wrong, and what the message must name.
BAD_INPUT = {
    "": "profile", "q 1 2 3": "'q'", "rhs 100 100": "takes 3", "rhs 100 100 5 5": "takes 3",
    "rhs 100 100 12mm": "'12mm'", "rhs nan 100 5": "B = 'nan'", "rhs 100 inf 5": "H = 'inf'",
    "rhs 100 100 1e999": "1e999", "rhs 100 100 1e39": "1e39", "rhs 100 100 1e-60": "1e-60",
    "rhs 100 100 0": "T = '0'", "rhs 100 -5 5": "H = '-5'", "rhs '' 100 5": "B = ''",
    "rhs 100 ' 100' 5": "H = ' 100'", "rhs 100 100 5 --nosuch": "--nosuch",
    "rhs 100 100 5 --svg": "--svg", "rhs 100 100 5 --svg --json": "--svg",
    "rhs 100 100 60 --svg out.svg": "walls T",
    "rhs 1e15 1e15 1e10": "single precision", "rhs 1e-15 1e-15 1e-16": "single precision",
    "plates": "file", "plates missing.txt": "'missing.txt'",
    "rhs 1,0,5 2 3": "B =", "rhs 1,0.5 2 3": "B =", "batch": "file", "batch a b": "file",
    "batch missing.csv": "'missing.csv'", "batch a --jobs 0": "--jobs",
    "batch a --jobs 257": "--jobs", "batch a --jobs 2x": "--jobs", "b 1 -a": "option '-a'",
    "b 1 -z": "option '-z'", "b 1 -A": "option '-A'", "b 1 -Z": "option '-Z'",
    "b 1 2 --jobs 2": "batch", "batch a --json": "file", "rhs 100 100 5 --all": "--all",
}


# A section with a place for a dimension: the last value that fits, one that does not, and how the
# message begins.
LIMITS = [line.split("; ") for line in """
ia {} 100 100 20 10 5; 31; 30; flanges T1 and T2
ia 300 50 100 10 10 {}; 50; 51; web TW
ia 300 100 50 10 10 {}; 50; 51; web TW
h {} 100 100 20 10 5; 31; 30; flanges T1 and T2
i 100 90 90 20 30 10 30 {} 0; 19; 20; flanges and fillets
i 100 50 90 9 9 10 10 5 {}; 10; 10.5; web TW with its fillets S1
i 100 50 90 9 9 {} 10 5 10; 10; 11; web TW with its fillets S1
i 100 50 90 9 9 10 {} 5 10; 10; 11; web TW with its fillets S1
i 100 90 50 9 9 10 5 10 {}; 10; 10.5; web TW with its fillets S2
i 100 90 50 9 9 {} 5 10 10; 10; 11; web TW with its fillets S2
i 100 90 50 9 9 10 5 {} 10; 10; 11; web TW with its fillets S2
c {} 80 60 25 20 12 10 3 4 5 2 2.5 1.5 2; 46; 45; flanges and lips
c {} 80 60 0 0 0 0 3 4 5 0 0 0 0; 10; 9; flanges and lips
c 200 {} 60 0 0 0 0 3 4 5 0 0 0 0; 3.5; 3; lip or fold 1
c 200 80 {} 0 0 0 0 3 4 5 0 0 0 0; 3.5; 3; lip or fold 2
c 200 {} 60 25 0 2 0 3 4 5 2 0 0 0; 5.5; 5; lip or fold 1
c 200 {} 60 4 0 9 0 3 4 5 0 0 0 0; 3.5; 3; lip or fold 1
c 200 80 60 25 20 {} 10 3 4 5 2 2.5 1.5 2; 76.5; 77; lip or fold 1
c 200 80 60 25 20 12 {} 3 4 5 2 2.5 1.5 2; 56.5; 57; lip or fold 2
c 200 80 60 25 20 12 10 3 4 5 2 2.5 {} 2; 20.5; 21; lip or fold 1
c 200 80 60 25 20 12 10 3 4 5 {} 2.5 1.5 2; .1; 0; lip or fold 1
c 200 80 60 25 20 12 10 3 4 5 2 2.5 {} 2; .1; 0; lip or fold 1
c 200 80 60 25 20 12 10 3 4 5 2 2.5 1.5 {}; .1; 0; lip or fold 2
t 100 {} 50 8; 51; 50; flange TF
t 10 50 6 {}; 10; 11; stem TW
h1b 250 {} 160 9 21 8 15; 31; 30; flanges T1 and T2
h1b 250 200 {} 9 22 8 15; 9; 8; web TW
h1b {} 200 160 9 22 8 15; 183; 182; cover plate
h1b {} 200 160 22 9 8 15; 183; 182; cover plate
box 300 200 20 25 {} 12 160; 46; 45; flanges TT
box 300 {} 20 25 150 12 160; 184; 183; webs: G
box {} 300 20 25 150 12 160; 184; 183; webs: G
rhs 100 200 {}; 49; 50; walls T
rhs 200 100 {}; 49; 50; walls T
l 100 60 {} 0; 59; 60; leg thickness T
l 60 100 {} 0; 59; 60; leg thickness T
l 100 60 50 {}; 10; 11; fillet R
l2 {} 150 12 10 14; 15; 14; thickness TV of the vertical
l2 100 {} 12 10 14; 11; 10; thickness T of the horizontal
tab 500 400 {} 60 15 10 12; 21; 20; webs TW
tab 500 {} 300 60 15 10 12; 73; 72; bottom plate
tab {} 400 300 60 15 10 12; 281; 280; top plate
h2b 300 {} 260 10 30 12 15; 41; 40; webs TW1
h2b 300 240 {} 10 30 12 15; 13; 12; middle plate
h2b {} 240 260 10 30 12 15; 240; 239; webs: W
rolled {} 150 7 10 9; 38; 20; flanges TF leave
rolled 300 {} 7 10 15; 37; 6; web TW
rolled {} 150 7 10 10; 40; 39; fillets R do not fit b
rolled 300 {} 7 10 15; 37; 36; fillets R do not fit on
b 1 {}; 1e12; 2e13; the section is
b {} 1; 1e12; 2e13; the section is
b 1 {}; 1e-12; 1e-13; the section is
b {} 1; 1e-12; 1e-13; the section is""".splitlines()[1:]]

# What is near to a word that is no profile.
NEAR = {"lat": "", "rol": "", "rhz": "'rhs'", "Channel": "'c'",
        "girder": "'box'", "rroolled": "'rolled'", "ROOT": "'l' or 'rolled'", "batc": "'batch'",
        "plate": "'h1b', 'tab', 'h2b' or 'plates'"}

# The rows of the table: heading, names of the figures, power of mm.
ROWS = [line.split("; ") for line in """
Area; A; 2
Centroid; xs ys; 1
First moments, origin; Sx Sy; 3
Second moments, origin; Ix Iy Ixy; 4
Second moments, centroid; Ix Iy Ixy; 4
Principal moments, axes 1 and 2; I1 I2 alpha; 4
Radii of gyration; rx ry; 1
Polar moment, centroid; Ip; 4
Fibres: top, bottom, right, left; ey1 ey2 ex1 ex2; 1
Elastic section moduli; Wx1 Wx2 Wy1 Wy2; 3
Plastic section moduli; Wpx Wpy; 3
Plastic neutral axes; xp yp; 1
Shear centre; xm ym; 1
Torsion constant; It; 4
Warping constant; Iw; 6""".splitlines()[1:]]


def run(arguments, folder=None, stdout=subprocess.PIPE, **options):
    return subprocess.run(COMMAND + shlex.split(arguments), cwd=folder, stdout=stdout,
                          stderr=subprocess.PIPE, encoding="utf-8", check=False, **options)


@functools.cache  # starting a program under Wine takes its time
def output_of(arguments):
    result = run(arguments)
    if result.returncode != 0:
        raise AssertionError(result.stderr)
    return result.stdout


def profiles():
    """The profiles that the program lists, with their dimensions."""
    listed = re.findall(r"\n  ([a-z]\w*)((?: [A-Z]+[12]?)+)\s", output_of("--help"))
    *listed, (last, _) = listed
    assert last == "plates"
    return {name: dimensions.split() for name, dimensions in listed}


def example(profile):
    """Of the profile's help."""
    return re.search("\nexample: section_properties (.*)", output_of(profile + " --help"))[1]


def figures(arguments):
    return json.loads(output_of(arguments + " --json"))


def add_plates(plates):
    """Moments about the middle of the bounding box: A, Sx, Sy, Ix, Iy, Ixy."""
    x0 = (min(p[0] for p in plates) + max(p[1] for p in plates)) / 2
    y0 = (min(p[2] for p in plates) + max(p[3] for p in plates)) / 2
    sums = [0.0] * 6
    for left, right, bottom, top in plates:
        b, h = right - left, top - bottom
        x, y = (left + right) / 2 - x0, (bottom + top) / 2 - y0
        area = b * h
        for i, term in enumerate((area, area * y, area * x, b * h**3 / 12 + area * y * y,
                                  h * b**3 / 12 + area * x * x, area * x * y)):
            sums[i] += term
    return sums


def drawn_steel(arguments, folder):
    """The closed subpaths of the steel, without their M and Z."""
    result = run(arguments + " --svg a.svg", folder)
    if result.returncode != 0:
        raise AssertionError(result.stderr)
    picture = ElementTree.parse(os.path.join(folder, "a.svg"))
    (path,) = [e.get("d") for e in picture.iter() if e.get("fill-rule") == "evenodd"]
    return re.findall("M([^MZ]*)Z", path)


def enclosed_area(ring):
    return sum(x1 * y2 - x2 * y1 for (x1, y1), (x2, y2) in zip(ring, ring[1:] + ring[:1])) / 2


# The plates of a lipped channel, with a hole in its list.
PLATES = "0 -99 0 99 2  # web\n0 99 78 99 2\n\n0 -99 78 -99 2\n78 99 78 75 2\n78 -99 78 -75 2\n"


def plastic(heights):
    """Equal-area level about the middle, and plastic modulus, of (from, to, left, right)."""
    middle = (min(p[0] for p in heights) + max(p[1] for p in heights)) / 2
    levels = sorted({p[0] for p in heights} | {p[1] for p in heights})

    def below(c):
        return sum((min(max(c, p[0]), p[1]) - p[0]) * (p[3] - p[2]) for p in heights)

    half = below(levels[-1]) / 2
    first = bisect.bisect_left(levels, half * (1 - 1e-9), key=below)
    last = bisect.bisect_right(levels, half * (1 + 1e-9), key=below)
    low, gap, high = levels[first - 1], levels[first:last], levels[last]
    at = ((gap[0] + gap[-1]) / 2 if gap else
          low + (high - low) * (half - below(low)) / (below(high) - below(low)))
    modulus = 0
    for start, end, left, right in heights:
        cut = min(max(at, start), end)
        modulus += (right - left) * ((cut - start) * abs(at - (start + cut) / 2)
                                     + (end - cut) * abs(at - (cut + end) / 2))
    return at - middle, modulus


class SectionProperties(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def write(self, name, text):
        (self.folder / name).write_text(text, encoding="utf-8")

    def read(self, name):
        return (self.folder / name).read_text(encoding="utf-8")

    def draw(self, name, **options):
        return run("rhs 100 100 5 --svg " + name, self.folder, **options)

    def test_plates_come_from_a_file(self):
        def answer(text):
            self.write("p.txt", text)
            return run("plates p.txt --json --svg p.svg", self.folder)

        f = json.loads(answer(PLATES).stdout)
        t, h, b, c = 2, 198, 78, 24  # centre lines
        area = t * (h + 2 * b + 2 * c)
        ix = t * (h**3 / 12 + 2 * b * h * h / 4 + 2 * (c**3 / 12 + c * (h / 2 - c / 2) ** 2))
        ix += 2 * b * t**3 / 12
        xs = t * (b * b + 2 * c * b) / area
        for name, expected in (("area", area), ("Ix", ix), ("xs", xs), ("It", area * 4 / 3)):
            self.assertAlmostEqual(f[name] / expected, 1, delta=TOLERANCE)
        self.assertLess(f["xm"], -30)  # beyond the web
        for side in ("x1", "x2", "y1", "y2"):
            fibre = f["e" + side.translate(str.maketrans("xy", "yx"))]
            moment = f["centroidal"]["I" + side[0]]
            self.assertAlmostEqual(f["W" + side] * fibre / moment, 1, delta=TOLERANCE)
        self.assertAlmostEqual(f["ey1"], h / 2, delta=1.01)
        over_all = re.findall(r">(\d\d+)</text>", self.read("p.svg"))
        self.assertEqual(over_all, ["80", "200"])
        rings = [[tuple(map(float, v.split())) for v in ring.split("L")]
                 for ring in drawn_steel("plates p.txt", self.folder)]
        heights = [y for ring in rings for _, y in ring]
        mm = 200 / (max(heights) - min(heights))
        for ring, length in zip(rings, (h, b, b, c, c), strict=True):
            self.assertAlmostEqual(-enclosed_area(ring) * mm**2, t * length, delta=t)
        for ending in ("0 0 1", "0 0 0 x 2", "0 0 0 0 2"):
            result = answer(PLATES + ending)
            self.assertEqual((result.returncode, result.stdout), (2, ""))
            self.assertRegex(result.stderr, "p.txt:7: .* x1 y1|a plate has no length or")
        self.assertIn(": p.txt: no plates\n", answer("# none").stderr)
        for closing in ("78 -75 78 75 2", "78 -75 20 99 2", "78 -75 20 120 2"):
            self.assertNotIn("It", json.loads(answer(PLATES + closing).stdout))

    def test_rolled_sections_have_the_published_values(self):
        for dimensions, published in ROLLED.items():
            f = figures("rolled " + dimensions)
            for (name, unit), figure in zip(PUBLISHED.items(), published.split()):
                with self.subTest(dimensions + " " + name):
                    digits = len(figure.split("e")[0].replace(".", ""))
                    self.assertEqual(float(f"{f[name] / unit:.{digits}g}"), float(figure))
            for name in ("Ixy", "alpha", "xp", "yp", "xm", "ym"):
                self.assertEqual(f[name], 0)
            self.assertGreater(f["I1"], f["I2"])

    def test_an_angle_has_the_published_values(self):
        # EN 10056-1. Its toes have the radius 6, here they are sharp: two spandrels are taken off.
        f = figures("l 100 100 10 12")
        spandrel, inset = (1 - math.pi / 4) * 36, 6 * (10 - 3 * math.pi) / (12 - 3 * math.pi)
        x, y = 50 - inset - f["xs"], -40 - inset - f["ys"]  # of one, from the centroid
        self.assertAlmostEqual((f["area"] - 2 * spandrel) / 1e2, 19.2, delta=0.05)
        self.assertAlmostEqual((f["I1"] - spandrel * (x - y) ** 2) / 1e4, 280, delta=0.5)
        self.assertAlmostEqual((f["I2"] - spandrel * (x + y) ** 2) / 1e4, 73.0, delta=0.05)

    def test_a_fillet_has_a_product_of_inertia(self):
        # A square less a quarter disc, about their corner at (-63, -38): integrals on paper.
        r, x, y = 8, -63, -38
        legs = add_plates([(0, 12, 0, 100), (12, 150, 0, 12)])[5]
        area, first = r**2 * (1 - math.pi / 4), r**3 * (5 / 6 - math.pi / 4)
        expected = legs + r**4 * (19 / 24 - math.pi / 4) + (x + y) * first + x * y * area
        self.assertAlmostEqual(figures("l 150 100 12 8")["Ixy"] / expected, 1, delta=TOLERANCE)

    def test_outlines_are_the_sum_of_their_plates(self):
        for profile, plates in OUTLINES.items():
            with self.subTest(profile):
                f = figures(profile)
                self.check_moduli(f, plates)
                area, sx, sy, ix, iy, ixy = add_plates(plates)
                xs, ys = sy / area, sx / area
                cx, cy, cxy = ix - sx * ys, iy - sy * xs, ixy - sx * xs
                radius = math.hypot((cx - cy) / 2, cxy) * (1 if cx > cy else -1)
                length = math.sqrt((ix + iy) / area)
                for found, expected, scale in (
                        (f["area"], area, area), (f["xs"], xs, length), (f["ys"], ys, length),
                        (f["Sx"], sx, area * length), (f["Sy"], sy, area * length),
                        (f["Ix"], ix, ix), (f["Iy"], iy, iy), (f["Ixy"], ixy, ix + iy),
                        (f["centroidal"]["Ix"], cx, cx), (f["centroidal"]["Iy"], cy, cy),
                        (f["centroidal"]["Ixy"], cxy, cx + cy),
                        (f["I1"], (cx + cy) / 2 + radius, cx + cy),
                        (f["I2"], (cx + cy) / 2 - radius, cx + cy),
                        (f["alpha"], math.atan(2 * cxy / (cy - cx)) / 2, 1),
                        (f["rx"], math.sqrt(cx / area), length),
                        (f["ry"], math.sqrt(cy / area), length)):
                    self.assertAlmostEqual(found, expected, delta=TOLERANCE * scale)

    def test_plastic_axis_may_cut_a_fillet(self):
        f = figures("l 60 60 5 30")
        n, r, leg = 3000, 30, [(0, 5, 0, 60), (5, 60, 0, 5)]
        ys = [r * (i + 0.5) / n for i in range(n)]
        strips = [(5, 5 + r - math.sqrt(r * r - (r - y) ** 2), 5 + y - r / n / 2,
                   5 + y + r / n / 2) for y in ys]
        self.assertTrue(5 - 30 < f["yp"] < 35 - 30)
        self.check_moduli(f, leg + strips, 2e-5)

    def test_plastic_axis_may_cut_a_slope(self):
        n, s1, s2 = 500, 24, 4  # strips of a web from 6 to 14 with its fillets of 45 degrees
        plates = [(-40, 40, 0, 10), (6, 14, 10 + s1, 80 - s2), (-30, 30, 80, 90)]
        for s, foot, up in ((s1, 10, 1), (s2, 80, -1)):
            for i in range(n):
                y = sorted((foot + up * i * s / n, foot + up * (i + 1) * s / n))
                plates += [(6 - s + (i + 0.5) * s / n, 14 + s - (i + 0.5) * s / n, *y)]
        f = figures(f"i 90 80 60 10 10 8 {s1} {s2} 10")
        self.assertTrue(10 - 45 < f["yp"] < 10 + s1 - 45)
        self.check_moduli(f, plates, 2e-5)

    def check_moduli(self, f, plates, tolerance=TOLERANCE):
        upright = [plate[2:] + plate[:2] for plate in plates]
        c = f["centroidal"]
        for side, moment, centroid, axis, heights in (
                ("x", c["Ix"], f["ys"], f["yp"], upright),
                ("y", c["Iy"], f["xs"], f["xp"], plates)):
            half = (max(p[1] for p in heights) - min(p[0] for p in heights)) / 2
            fibres = "e" + "yx"[side == "y"]
            for name, expected in ((fibres + "1", half - centroid),
                                   (fibres + "2", half + centroid)):
                self.assertAlmostEqual(f[name] / expected, 1, delta=tolerance)
                self.assertAlmostEqual(f["W" + side + name[-1]] * expected / moment, 1,
                                       delta=tolerance)
            level, modulus = plastic(heights)
            self.assertAlmostEqual(f["Wp" + side] / modulus, 1, delta=tolerance)
            self.assertAlmostEqual(axis, level, delta=10 * tolerance * half)

    def test_the_same_section_by_other_profiles(self):
        def same(names, one, *others):
            for other in others:
                for name in names.split():
                    self.assertAlmostEqual(other[name], one[name],
                                           delta=TOLERANCE * max(abs(one[name]), 1), msg=name)

        ia = figures("ia 400 300 200 20 15 10")
        same("It Iw xm ym Wpx", ia, figures("i 400 300 200 20 15 10 0 0 0"))
        h = figures("h 400 300 200 20 15 10")
        self.assertAlmostEqual(h["xm"] / ia["ym"], 1, delta=TOLERANCE)
        same("It Iw", ia, h)
        rhs = figures("rhs 200 100 8")
        # On paper: 4*(192*92)^2*8/568 of the cell, 568*8^3/3 of the walls.
        self.assertAlmostEqual(rhs["It"], 17578419.5 + 96938.7, delta=40)
        same("area It Wpx Wpy", rhs, figures("box 200 200 8 8 100 8 184"),
             figures("tab 200 92 200 1e-5 8 8 8"), figures("h2b 200 200 84 8 8 1e-5 8"))
        h1b = figures("h1b 200 200 176 8 8 8 8")  # its legs stand out below the cell
        self.assertAlmostEqual((h1b["It"] - 2 * 84 * 8**3 / 3) / rhs["It"], 1, delta=TOLERANCE)

    def test_torsion_of_channel_angle_and_bar(self):
        # S. P. Timoshenko, J. M. Gere, Theory of elastic stability, table A-3.
        f = figures("c 202 81 81 0 0 0 0 2 2 2 0 0 0 0")
        b, h, t = 80, 200, 2
        web = -40.5 + 1
        self.assertAlmostEqual(f["xm"], web - 3 * b * b / (h + 6 * b), delta=1e-3)
        warping = t * b**3 * h * h * (3 * b + 2 * h) / (12 * (h + 6 * b))
        self.assertAlmostEqual(f["Iw"] / warping, 1, delta=TOLERANCE)
        lipped, folded = (figures(f"c 202 81 81 20 20 {fold} {fold} 2 2 2 2 2 2 2")
                          for fold in (0, 10))
        # Each lip adds 19 mm of centre line, to flanges shorter by 1; so does each fold with 9.
        self.assertAlmostEqual(lipped["It"] - f["It"], 8 / 3 * 2 * (19 - 1), delta=1e-2)
        self.assertAlmostEqual(folded["It"] - lipped["It"], 8 / 3 * 2 * (9 - 1), delta=1e-2)
        angle = figures("l 150 100 12 0")
        self.assertEqual((angle["xm"], angle["ym"], angle["Iw"]), (-69, -44, 0))
        # Timoshenko, Goodier, article 109: 0.141*a^4 of a square.
        self.assertAlmostEqual(figures("b 10 10")["It"], 1406, delta=0.6)
        self.assertEqual(figures("b 200,5 10")["area"], 2005)

    def test_torsion_of_cells(self):
        # On paper: 4*b^2*h^2/sum(l/t) of the cell, l*t^3/3 of its four walls and of all others.
        for section, b, h, *plates in (
                ("box 3000 2000 20 25 1500 12 1600", 1612, 1477.5, (1612, 20), (1612, 25),
                 (1477.5, 12), (1477.5, 12), (1376, 20), (376, 25)),
                ("h1b 250 200 160 9 22 8 15", 184.5, 87.5, (184.5, 15), (184.5, 8), (87.5, 9),
                 (87.5, 22), (50, 15), (76, 9), (76, 22)),
                ("h1b 180 200 160 30 40 8 15", 165, 87.5, (165, 15), (165, 8), (87.5, 30),
                 (87.5, 40), (76, 30), (76, 40)),
                ("tab 500 400 300 60 15 10 12", 290, 341.5, (290, 15), (290, 12), (341.5, 10),
                 (341.5, 10), (200, 15), (60, 10), (60, 10)),
                ("h2b 300 240 260 10 30 12 15", 220, 275, (220, 15), (220, 15), (275, 10),
                 (275, 30), (60, 15), (60, 15), (220, 12))):
            flow = 4 * (b * h) ** 2 / sum(length / t for length, t in plates[:4])
            expected = flow + sum(length * t**3 / 3 for length, t in plates)
            self.assertAlmostEqual(figures(section)["It"] / expected, 1, delta=TOLERANCE)
        self.assertNotIn("It", figures("box 30 30 20 20 100 2 10"))  # thicker than long

    def test_torsion_is_that_of_the_centre_lines(self):
        sections = {
            "c 200 80 60 25 20 12 10 3 4 5 2 2.5 1.5 2": (
                "-38.5 -98 -38.5 97.5 3", "-38.5 -98 39 -98 4", "39 -98 39 -75.75 2",
                "39 -75.75 28 -75.75 1.5", "-38.5 97.5 18.75 97.5 5", "18.75 97.5 18.75 81 2.5",
                "18.75 81 10 81 2"),
            "i 400 310 150 22 11 8.5 0 0 12": (
                "12 -189 12 194.5 8.5", "12 -189 -155 -189 22", "12 -189 155 -189 22",
                "12 194.5 -75 194.5 11", "12 194.5 75 194.5 11"),
            "t 180 260 17 9.5": (
                "0 121.5 0 -130 9.5", "0 121.5 -90 121.5 17", "0 121.5 90 121.5 17")}
        for section, plates in sections.items():
            self.write("p.txt", "\n".join(plates))
            f, sum_of_plates = figures(section), run("plates p.txt --json", self.folder).stdout
            for name, expected in json.loads(sum_of_plates).items():
                if name in ("It", "Iw", "xm", "ym"):
                    self.assertAlmostEqual(f[name], expected, msg=section + name,
                                           delta=TOLERANCE * max(abs(expected), 100))

    def test_what_is_not_given_is_told(self):
        f = figures("l2 100 150 12 10 14")
        names = ["shear centre", "torsion constant", "warping constant"]
        self.assertEqual((f["not_given"], {"xm", "It", "Iw"} & f.keys()), (names, set()))
        self.assertIn("It", figures("t 80 90 30 8"))
        self.assertNotIn("It", figures("t 38 372 148 8"))  # a bar of 38 by 148 with a fin
        text = run("box 3000 2000 20 25 1500 12 1600").stdout
        self.assertIn("\nNot given for this section: shear centre, warping constant.\n", text)
        self.assertNotRegex(text, r"\bIw\b")
        self.assertIn("\nOrigin: middle of the bounding box, ", text)
        for section in ("i 400 310 150 22 11 8.5 {} 0 12", "i 400 310 150 22 11 8.5 0 {} 12",
                        "l 150 100 12 {}"):
            for fillet, told in (("0", ".\n"), (".5", ", fillets left out.\n")):
                self.assertIn("(V. Z. Vlasov)" + told, run(section.format(fillet)).stdout)

    def test_table_shows_the_figures(self):
        table = run("rolled 300 150 7.1 10.7 15").stdout
        for row in (r"^rolled  H = 300, B = 150, TW = 7\.1, TF = 10\.7, R = 15 mm\n", r"ys +0\.0+ mm ",
                    r"Area +A +5381\.2\d\d mm2 +53\.812\d\d cm2"):
            self.assertRegex(table, row)
        slender = run("b 100000 1").stdout  # beside 8e13 mm4 about the other axis
        for row in (r"Ix +8333\.3 mm4 ", r"Wx1 +16667 mm3 ", r"rx +0\.28868 mm "):
            self.assertRegex(slender, row)
        leftover = "ia 433.2 168.3 64.1 9.1 8.3 7.7"  # rounding leaves a tiny negative Sy
        self.assertNotRegex(run(leftover).stdout, r"-0\.?0* ")

    def test_table_has_every_figure(self):
        row = re.compile(r"(.{32}) (\w+) +(\S+) (mm\d?|rad) +(\S+) (cm\d?|deg)")
        for section in ["rolled 300 150 7.1 10.7 15", "b 1e-8 1e-6", "b 1e5 1e5", *OUTLINES]:
            f = figures(section)
            f["A"] = f["area"]
            expected = []
            for heading, names, power in ROWS:
                values = f["centroidal"] if heading == "Second moments, centroid" else f
                for name in filter(values.__contains__, names.split()):
                    unit = power.strip("1")
                    units = ("rad", "deg") if name == "alpha" else ("mm" + unit, "cm" + unit)
                    expected.append((heading, name, *units, values[name]))
                    heading = ""
            found = list(filter(None, map(row.fullmatch, run(section).stdout.splitlines())))
            self.assertEqual([(m[1].rstrip(), m[2], m[4], m[6]) for m in found],
                             [row[:4] for row in expected], section)
            for part in (found[:16], found[16:]):  # units stand below each other
                self.assertEqual(len({(m.start(4), m.start(6)) for m in part}), 1, section)
            for m, (_, name, unit, _, value) in zip(found, expected):
                factor = 180 / math.pi if unit == "rad" else 10.0 ** -int(unit[2:] or 1)
                for shown, figure in ((m[3], value), (m[5], value * factor)):
                    number = decimal.Decimal(shown)
                    if "." not in shown:  # whole tens and more end in zeros
                        number = number.normalize()
                    step = 10.0 ** number.as_tuple().exponent
                    self.assertAlmostEqual(float(shown), figure, msg=f"{section} {name}",
                                           delta=0.51 * step + 1e-8 * abs(figure))
                    if name in ("A", "I1", "rx", "Ip", "It") and "e" not in m[3]:
                        self.assertGreaterEqual(len(shown.replace(".", "").lstrip("0")), 5, section)
        self.assertIn(" 1e-14 mm2 ", run("b 1e-8 1e-6").stdout)

    def test_rounding_does_not_turn_the_axes(self):
        f = figures("box 1058.7 875.4 5.4 17.6 727.29 4.4 802.6")  # symmetric, Ix nearly Iy
        self.assertEqual((f["centroidal"]["Ixy"], f["alpha"]), (0, 0))

    def test_bad_input_is_told_in_a_line(self):
        for arguments, named in BAD_INPUT.items():
            with self.subTest(arguments):
                result = run(arguments, self.folder)
                message = result.stderr.splitlines()
                self.assertEqual((result.returncode, result.stdout), (2, ""))
                self.assertRegex(message[0], "^section_properties: .*" + re.escape(named))
                self.assertTrue(len(message) == 1 or "usage: section_properties " in message[1])
                self.assertEqual(os.listdir(self.folder), [])
        self.assertIn("rhs B H T", run("rhs 100 100").stderr)
        for word, near in NEAR.items():
            told = f", did you mean {near}?" if near else ""
            self.assertEqual(run(word + " 1").stderr.splitlines()[0],
                             f"section_properties: unknown profile '{word}'" + told)

    def test_dimensions_have_limits(self):
        lines = [form.format(value) for form, *values, _ in LIMITS for value in values]
        rows = csv.DictReader(run("batch -", input="\n".join(lines)).stdout.splitlines())
        named = [text for *_, message in LIMITS for text in ("^$", rf"^(\w+: )?{message}")]
        for line, row, message in zip(lines, rows, named, strict=True):
            self.assertRegex(row["error"], message, line)

    def test_help_of_a_profile_draws_its_dimensions(self):
        for name, dimensions in profiles().items():
            usage, text, picture = run(name.upper() + " -h").stdout.split("\n\n", 2)
            self.assertIn("usage: section_properties " + " ".join([name, *dimensions]), usage)
            self.assertIn(text.split(", dimensions in mm")[0] + "\n", output_of("--help"))
            for dimension in dimensions:
                self.assertRegex(picture, rf"\b{dimension}\b", name)
        for name, zero in (("i", "S1, S2, E."), ("l", "R."), ("rhs", "")):
            self.assertEqual(output_of(name + " --help").partition("\nMay be 0: ")[2].strip(), zero)

    def test_every_profile_has_its_rows(self):
        for rows, others in ((OUTLINES, ["rolled"]), ([form for form, *_ in LIMITS], [])):
            self.assertEqual({row.split()[0] for row in rows}.union(others), profiles().keys())

    def test_version_is_that_of_the_library(self):
        with open(os.path.dirname(__file__) + "/../../include/trelvin/calling.h") as header:
            version = re.search('TRELVIN_VERSION "(.*)"', header.read()).group(1)
        self.assertEqual(run("--version").stdout, f"section_properties {version}\n")

    def test_batch_gives_the_figures_of_each_line(self):
        result = run("batch - --all", input="\n".join(OUTLINES))
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        for row, profile in zip(csv.DictReader(result.stdout.splitlines()), OUTLINES, strict=True):
            with self.subTest(profile):
                f = figures(profile)
                f.update({"centroidal_" + name: v for name, v in f.pop("centroidal").items()})
                f.pop("origin")
                missing = [name for name in f.pop("not_given") if name != "shear centre"]
                self.assertEqual([row.pop(name) for name in ("section", "error")], [profile, ""])
                self.assertEqual(int(row.pop("line")), list(OUTLINES).index(profile) + 1)
                given = {name: float(text) for name, text in row.items() if text}
                self.assertEqual(len(row) - len(given), len(missing) + 2 * ("xm" not in f))
                self.assertEqual(given.keys(), f.keys())
                for name, value in f.items():  # rounded to single precision
                    self.assertAlmostEqual(given[name], value, delta=8e-8 * abs(value) + 1e-12)

    def test_batch_works_on_bytes(self):
        batch = subprocess.run(COMMAND + ["batch", "-"], input=b"b 2 3 # \x1a\nb 2 3\n", check=True,
                               stdout=subprocess.PIPE, stderr=subprocess.PIPE).stdout
        self.assertEqual((batch.count(b"\n"), batch.count(b"\r")), (3, 0))

    def test_batch_reads_lines_of_every_form(self):
        lines = ("\ufeffrhs, 200, 100 ,8\r", "# none", "\t", "RHS;200,5;100;8,0 # wide",
                 "rhs\t200,5 100  8", 'rhz "1"', "rhs,200,5,100,8", "rhs 1 2 3", "b 2 3")
        result = run("batch -", input="\n".join(lines))
        rows = list(csv.DictReader(result.stdout.splitlines()))
        self.assertEqual([row["line"] for row in rows], ["1", "4", "5", "6", "7", "8", "9"])
        self.assertEqual([row["area"] for row in rows], ["4544", "4552", "4552", "", "", "", "6"])
        errors = ("", "", "", "'rhs'?", "takes 3 dimensions, not 4", "walls T", "")
        for row, error in zip(rows, errors, strict=True):
            self.assertRegex(row["error"], re.escape(error) if error else "^$")
        self.assertEqual(rows[3]["section"], 'rhz "1"')
        self.assertEqual((result.returncode, result.stderr.strip()),
                         (2, "section_properties: 3 of 7 lines are invalid; see the error column"))

    def test_jobs_keep_the_order(self):
        self.write("a.csv", "".join(f"b {i} 1{' ' * (i % 40)}\n" for i in range(1, 50001)))
        one, three = (run(f"batch a.csv --jobs {n}", self.folder).stdout for n in (1, 3))
        self.assertTrue(one == three)
        areas = [(row["line"], row["area"]) for row in csv.DictReader(one.splitlines())]
        self.assertTrue(areas == [(str(i), str(i)) for i in range(1, 50001)])

    @unittest.skipUnless(IS_NATIVE, "needs limits of the system")
    def test_jobs_do_without_threads_and_tell_of_memory(self):
        def batch(jobs, limit, value):  # a stack of 32 TB for each thread: there is none to have
            limited = functools.partial(
                resource.setrlimit, limit, (value, resource.getrlimit(limit)[1]))
            return run(f"batch - --jobs {jobs}", input="b 2 3\n" * 300, preexec_fn=limited)

        alone = run("batch -", input="b 2 3\n" * 300).stdout
        result = batch(8, resource.RLIMIT_STACK, 1 << 45)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertTrue(result.stdout == alone)
        if batch(1, resource.RLIMIT_AS, 200 << 20).returncode == 0:  # not with a sanitizer
            result = batch(256, resource.RLIMIT_AS, 200 << 20)
            self.assertEqual((result.returncode, result.stderr),
                             (1, "section_properties: not enough memory\n"))

    def test_a_file_without_lines_is_refused(self):
        longest = "#" + 65535 * "." + "\n"

        def answer(command, text):
            self.write("a.txt", text)
            return run(command + " a.txt", self.folder)

        for command, line in (("batch", "b 2 3\n"), ("plates --json", "0 0 9 0 1\n")):
            lines = line + 20 * longest + line  # several blocks
            good, long = answer(command, lines), answer(command, lines + "#" + longest + line)
            self.assertEqual((good.returncode, long.returncode), (0, 2), good.stderr)
            self.assertEqual(long.stdout, good.stdout if command == "batch" else "")
            self.assertEqual(long.stderr, "section_properties: a.txt:23: the line is too long; "
                             "a line must have at most 65536 bytes\n")
            for name in [self.folder] + ["/dev/zero"] * IS_NATIVE:
                result = run(f"{command} '{name}'", timeout=60)
                self.assertEqual(result.returncode, 2)
                told = "/dev/zero:1: the line is too long" if result.stderr.count("zero") else (
                    f"cannot read '{name}'")
                self.assertIn(told, result.stderr)
        self.assertEqual(json.loads(good.stdout)["area"], 18)

    @unittest.skipUnless(IS_NATIVE, "needs a terminal")
    def test_a_terminal_shows_the_progress(self):
        def shown(arguments, **options):
            terminal, end = pty.openpty()
            seen = b""
            with open(end, "wb") as stderr, open(terminal, "rb", buffering=0) as screen:
                subprocess.run(COMMAND + arguments.split(), stderr=stderr, check=True, **options)
                os.write(end, b"$")  # the end, whatever was shown
                while not seen.endswith(b"$"):
                    seen += screen.read(999)
            return seen.decode()

        # One and a half blocks, of 16 bytes a line, with a section in each.
        text = ("b 2 3          \n" + 65535 * "#              \n") + 32768 * "b 2 3          \n"
        self.write("a.csv", text)
        options = {"cwd": self.folder, "stdout": subprocess.DEVNULL}
        self.assertEqual(shown("batch a.csv", **options),
                         f"\r[{20 * '#'}{10 * '.'}] 66 %  1 section"
                         f"\r[{30 * '#'}] 100 %  32769 sections\r\n$")
        with open(self.folder / "a.csv", "rb") as file:
            self.assertEqual(shown("batch -", stdin=file, **options),
                             "\r1 section\r32769 sections\r\n$")
        end = pty.openpty()[1]
        with open(end, "wb") as stdout:  # which shows the lines themselves
            self.assertEqual(shown("batch -", input=b"b 2 3", stdout=stdout), "$")

    @unittest.skipUnless(IS_NATIVE, "needs a limit on file sizes")
    def test_a_picture_that_fails_leaves_the_old_one(self):
        self.write("old.svg", "old")
        limit = functools.partial(resource.setrlimit, resource.RLIMIT_FSIZE, (999, 999))
        result = self.draw("old.svg", restore_signals=False, preexec_fn=limit)
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertEqual(os.listdir(self.folder), ["old.svg"])
        self.assertEqual(self.read("old.svg"), "old")

    def test_a_picture_takes_the_place_of_its_file_only(self):
        far = self.folder / "far"
        far.mkdir()
        self.write("far/old.svg", "other")
        self.write("other", "other")
        links = {"a.svg.part": "other", "near.svg": "far/old.svg", "a.svg": "near.svg"}
        for link, target in links.items():
            os.symlink(target, self.folder / link)
        old = far / "old.svg"
        old.chmod(0o604)
        if IS_NATIVE and os.getuid() == 0:
            os.chown(old, 12, 34)
        before = os.stat(old)
        self.assertEqual(self.draw("a.svg").returncode, 0)
        self.assertEqual((self.read(old)[:5], self.read("other")), ("<?xml", "other"))
        self.assertEqual({link: os.readlink(self.folder / link) for link in links}, links)
        self.assertEqual(os.listdir(far), ["old.svg"])
        if not IS_NATIVE:
            return
        for kept in (stat.ST_MODE, stat.ST_UID, stat.ST_GID):
            self.assertEqual(os.stat(old)[kept], before[kept])
        os.remove(old)
        self.assertEqual(self.draw("a.svg", umask=0o027).returncode, 0)  # creates what the link leads to
        self.assertEqual(stat.S_IMODE(os.stat(old).st_mode), 0o640)

        def take_names(count):  # those that the process will use
            for i in range(count):
                os.symlink("../other", f"far/.section_properties-{os.getpid()}-{i}.part")

        for name, count in (("far/new.svg", 1), ("far/none.svg", 100)):
            result = self.draw(name, preexec_fn=functools.partial(take_names, count))
            self.assertEqual(result.returncode, count == 100)
        self.assertEqual((self.read("far/new.svg")[:5], self.read("other")), ("<?xml", "other"))
        self.assertEqual(len(os.listdir(far)), 2 + 101)

    def test_a_picture_that_cannot_be_is_an_error_of_output(self):
        for name in ("missing/out.svg", "."):
            result = self.draw(name)
            self.assertEqual((result.returncode, result.stdout), (1, ""))
            self.assertIn(f"cannot write '{name}'", result.stderr)

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_output_that_fails_is_an_error(self):
        with open("/dev/full", "wb") as full:
            result = run("rhs 100 100 5", stdout=full)
        self.assertEqual(result.returncode, 1)
        self.assertTrue(result.stderr.startswith("section_properties: cannot write"))


if __name__ == "__main__":
    if not COMMAND:
        sys.exit(__doc__)
    os.environ.setdefault("WINEDEBUG", "-all")
    unittest.main()
