"""Tests of the pictures of section_properties, run as section_properties_test.py is.

A picture is read back as a person reads it: what a dimension line measures, and whether any text
stands on another.
"""
import json
import math
import os
import re
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

import section_properties_test as program

README_PICTURE = os.path.join(os.path.dirname(__file__), "../../docs/ipe300.svg")
# Slender, flat and small ones, beside the example of each profile.
SECTIONS = [
    "b 2000 2", "b 0.05 30", "l 100 150 10 12", "ia 3000 20 30 3 2 1",
    "c 10 200 200 3 3 0 0 1 1 1 1 1 0 0", "c 200 60 60 0 0 0 0 2 2 2 0 0 0 0",
    "c 200 60 60 9 9 2 2 2 2 2 2 2 1 1", "c 200 60 50 2 3 9 9 2 2 3 2 2 1 1",
    "rhs 1000 20 1", "l2 10 200 1 1 1", "t 3 3 1 1",
    "tab 3000 100 2900 5 3 2 2", "h2b 20 15 2000 1 2 1 1", "i 4000 3000 12 2 2 6 0 1 0.5",
]
# Of lips and folds that are none: no higher than the flange, no wider than the lip.
NOT_DRAWN = {"c 10 200 200 3 3 0 0 1 1 1 1 1 0 0": set(),
             "c 200 60 60 9 9 2 2 2 2 2 2 2 1 1": {"D1", "D2", "TD1", "TD2"},
             "c 200 60 50 2 3 9 9 2 2 3 2 2 1 1":
                 {"C1", "C2", "D1", "D2", "TC1", "TC2", "TD1", "TD2"}}


def number(element, name):
    return float(element.get(name))


def moved(element):
    """Where the element's own origin lies, and whether its x runs upwards."""
    found = re.match(r"translate\(([-\d.]+) ([-\d.]+)\)( rotate\(-90\))?",
                     element.get("transform", "translate(0 0)"))
    return float(found[1]), float(found[2]), found[3] is not None


def texts(picture):
    """Each text with its box on the sheet: left, top, right, bottom; widths are estimates."""
    parents = {child: parent for parent in picture.iter() for child in parent}

    def inherited(element, name):
        while element.get(name) is None:
            element = parents[element]
        return element.get(name)

    for text in (e for e in picture.iter() if e.tag.endswith("}text")):
        size = float(inherited(text, "font-size"))
        width = 0.56 * size * len(text.text)
        start = number(text, "x") - {"start": 0, "middle": 0.5, "end": 1}[
            inherited(text, "text-anchor")] * width
        bottom, (x, y, upright) = number(text, "y"), moved(text)
        low, high = bottom - 0.75 * size, bottom + 0.05 * size
        yield text.text, ((x + low, y - start - width, x + high, y - start) if upright else
                          (x + start, y + low, x + start + width, y + high))


def edges_of(picture):
    """The edges of the steel, from corner to corner; arcs by their chords."""
    outline = [e.get("d") for e in picture.iter() if e.get("fill-rule") == "evenodd"][0]
    for ring in re.findall("M[^Z]*", outline):
        ends = re.findall(r"[ML ]([-\d.]+) ([-\d.]+)(?= [LA]| $)", ring)
        ends = [(float(x), float(y)) for x, y in ends]
        yield from zip(ends, ends[1:] + ends[:1])


def corners_of(picture):
    """Abscissas and ordinates of the outline's corners."""
    return [{start[axis] for start, _ in edges_of(picture)} for axis in (0, 1)]


def distance(point, edge):
    (x1, y1), (x2, y2) = edge
    dx, dy, x, y = x2 - x1, y2 - y1, point[0] - x1, point[1] - y1
    along = min(max((x * dx + y * dy) / (dx * dx + dy * dy or 1), 0), 1)
    return math.hypot(x - along * dx, y - along * dy)


class Pictures(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pictures, cls.figures = {}, {}
        with tempfile.TemporaryDirectory() as folder:
            for section in [*map(program.example, program.profiles()), *SECTIONS]:
                result = program.run(section + " --json --svg a.svg", folder)
                assert result.returncode == 0, result.stderr
                cls.figures[section] = json.loads(result.stdout)
                cls.pictures[section] = ElementTree.parse(os.path.join(folder, "a.svg")).getroot()

    def test_every_dimension_is_measured_on_the_outline(self):
        for section, picture in self.pictures.items():
            with self.subTest(section):
                self.check_measures(section, picture)

    def check_measures(self, section, picture):
        corners = corners_of(picture)
        lines = {e.get("data-dimension"): e for e in picture.iter() if e.get("data-dimension")}
        profile, *values = section.split()
        given = zip(program.profiles()[profile], map(float, values), strict=True)
        given = {name: value for name, value in given if value > 0}
        self.assertEqual(given.keys() - lines.keys(), NOT_DRAWN.get(section, set()))
        self.assertEqual(lines.keys() - given.keys(), set())
        shown = {text for text, _ in texts(picture)}
        spans = {}
        for name, line in lines.items():
            self.assertIn(f"{name} = {given[name]:g}", shown)
            extensions = [e for e in line if e.get("stroke-opacity")]
            spans[name] = [number(e, "x1") for e in extensions]
            x, y, upright = moved(line)
            for extension, span in zip(extensions, spans[name]):
                if name != "E" or section.startswith("tab"):  # from the middle, where no corner is
                    start = number(extension, "y1")
                    at = (x + start, y - span) if upright else (x + span, y + start)
                    for axis in (0, 1):
                        nearest = min(abs(at[axis] - corner) for corner in corners[axis])
                        self.assertLess(nearest, 0.03, name)
                    # On the steel, but for corners that fillets fill.
                    if name not in ("S1", "S2", "R") and section.split()[0] + name != "rolledTW":
                        off = min(distance(at, edge) for edge in edges_of(picture))
                        self.assertLess(off, 0.03, name)
                    # From the near side of the steel; a root fillet has one side only.
                    line_at, ends_at = ((x, corners[0]) if upright else (y, corners[1]))
                    half = abs(line_at - (min(ends_at) + max(ends_at)) / 2)
                    self.assertLess(abs(start), half + 0.03 if name != "R" else math.inf, name)
        longest = max(spans, key=lambda name: spans[name][1])
        for name, (start, end) in spans.items():
            expected = spans[longest][1] * given[name] / given[longest]
            self.assertAlmostEqual(end - start, expected, delta=0.03)

    def test_marks_and_axes_stand_where_the_figures_say(self):
        for section, picture in self.pictures.items():
            with self.subTest(section):
                self.check_marks(self.figures[section], picture)

    def check_marks(self, f, picture):
        def lines(name, value):
            group = next(e for e in picture.iter() if e.get(name) == value and len(e) > 1)
            return [[number(line, end) for end in ("x1", "y1", "x2", "y2")]
                    for line in group if line.tag.endswith("}line")]

        xs, ys = corners_of(picture)
        scale = (max(xs) - min(xs) + max(ys) - min(ys)) / sum(
            f[fibre] for fibre in ("ex1", "ex2", "ey1", "ey2"))
        # From the fibres to the centroid, and on from there; y runs downwards.
        x, y = max(xs) - scale * f["ex1"], min(ys) + scale * f["ey1"]
        circle = next(e for e in picture.iter() if e.tag.endswith("}circle"))
        places = [(number(circle, "cx"), x), (number(circle, "cy"), y)]
        level, upright = lines("stroke-dasharray", "2 5")
        places += [(level[1], y - scale * (f["yp"] - f["ys"])), (level[3], level[1]),
                   (upright[0], x + scale * (f["xp"] - f["xs"])), (upright[2], upright[0])]
        if "xm" in f:
            (left, top, right, bottom), _ = lines("stroke", "#7b3fa0")
            places += [((left + right) / 2, x + scale * (f["xm"] - f["xs"])),
                       ((top + bottom) / 2, y - scale * (f["ym"] - f["ys"]))]
        for turn, (x1, y1, x2, y2) in zip((0, math.pi / 2), lines("stroke-width", "1.2")):
            cos, sin = math.cos(f["alpha"] + turn), math.sin(f["alpha"] + turn)
            for end_x, end_y in ((x1, y1), (x2, y2)):
                places.append(((end_x - x) * sin + (end_y - y) * cos, 0))
                inside = min(xs) < end_x < max(xs) and min(ys) < end_y < max(ys)
                self.assertFalse(inside, "an axis ends in the steel")
        for drawn, expected in places:
            self.assertAlmostEqual(drawn, expected, delta=0.05)

    def test_the_legend_has_the_figures(self):
        names = {"A": "area", "I₁": "I1", "I₂": "I2"}
        for section, picture in self.pictures.items():
            f = self.figures[section]
            shown = [text for text, _ in texts(picture)]
            rows = {names.get(name, name): row for name, row in zip(shown, shown[1:])
                    if row.startswith("= ")}
            expected = {"area": 2, "I1": 4, "I2": 4, "Wpx": 3, "Wpy": 3, "It": 4, "Iw": 6}
            self.assertEqual(rows.keys(), f.keys() & expected.keys(), section)
            for name, row in rows.items():
                _, value, unit = row.split()
                self.assertEqual(unit, "cm" + "  ²³⁴ ⁶"[expected[name]])
                self.assertAlmostEqual(float(value) * 10 ** expected[name], f[name],
                                       delta=6e-5 * f[name], msg=section + ' ' + name)

    def test_the_picture_of_the_readme_is_as_it_was(self):
        with tempfile.TemporaryDirectory() as folder:
            program.run("rolled 300 150 7.1 10.7 15 --svg a.svg", folder)
            with open(os.path.join(folder, "a.svg"), "rb") as file:
                drawn = file.read()
        with open(README_PICTURE, "rb") as file:
            self.assertEqual(drawn, file.read())

    def test_no_text_stands_on_another(self):
        for section, picture in self.pictures.items():
            with self.subTest(section):
                boxes = list(texts(picture))
                width, height = number(picture, "width"), number(picture, "height")
                self.assertLess(max(width, height), 1000)
                for i, (one, a) in enumerate(boxes):
                    inside = 0 < a[0] and a[2] < width and 0 < a[1] and a[3] < height
                    self.assertTrue(inside, one)
                    for other, b in boxes[:i]:
                        apart = a[0] > b[2] or b[0] > a[2] or a[1] > b[3] or b[1] > a[3]
                        self.assertTrue(apart, f"'{one}' on '{other}'")


if __name__ == "__main__":
    unittest.main()
