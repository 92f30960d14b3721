#!/usr/bin/python3
"""The built manual in out/manual: every address leads somewhere, and what it promises is there."""

import cmath
import html.parser
import json
import math
import re
import sys
import unittest
from pathlib import Path
from unittest import mock
from urllib.parse import unquote, urlsplit

ROOT = Path(__file__).resolve().parents[2]
OUT = ROOT / "out/manual"
sys.path[:0] = [str(ROOT / "docs/manual"), str(ROOT / "tools"), str(ROOT / "build/manual/tasks/py")]

import calls  # noqa: E402
import facts  # noqa: E402
import languages  # noqa: E402
import model  # noqa: E402
import reference  # noqa: E402
import run  # noqa: E402
import words  # noqa: E402

PRINTED = json.loads((ROOT / "build/manual/printed.json").read_text())["printed"]
ROUTINES = {routine.name: routine for routine in model.read().routines}


class Page(html.parser.HTMLParser):
    """The anchors of a page, its addresses, and its text."""

    def __init__(self, file):
        super().__init__()
        self.file, self.anchors, self.addresses, self.text = file, {"", "top"}, [], ""
        self.feed(file.read_text())

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name == "id" or (name, tag) == ("name", "a"):
                self.anchors.add(value)
            elif name in ("href", "src", "action", "data", "srcset", "poster"):
                self.addresses.append(value)

    def handle_endtag(self, tag):
        self.text += " " if tag in ("dt", "dd", "td", "p", "li", "pre") else ""

    def handle_data(self, data):
        self.text += data


PAGES = {file: Page(file) for file in OUT.rglob("*.html") if file.name != "designer.html"}


def page(name):
    return PAGES[OUT / f"{name}.html"]


class Addresses(unittest.TestCase):
    def test_every_address_leads_to_a_file_and_an_anchor_of_the_manual(self):
        lost = []
        for here in PAGES.values():
            for address in here.addresses:
                parts = urlsplit(address)
                target = (here.file.parent / unquote(parts.path or here.file.name)).resolve()
                anchors = PAGES[target].anchors if target in PAGES else {parts.fragment}
                inside = not parts.scheme and not parts.netloc and OUT in target.parents
                if not (inside and target.is_file() and unquote(parts.fragment) in anchors):
                    lost.append(f"{here.file.relative_to(OUT)}: {address}")
        self.assertEqual(lost, [])

    def test_style_sheets_and_pictures_fetch_nothing_from_outside(self):
        for file in [*OUT.rglob("*.css"), *OUT.rglob("*.svg")]:
            text = re.sub(r"/\*.*?\*/|url\(['\"]?data:", "", file.read_text(), flags=re.S)
            self.assertNotRegex(text, r"@import|url\(['\"]?(https?:|/)|href=\"https?:", file)

    def test_the_theme_runs_as_plain_scripts_and_is_dark_where_the_system_is(self):
        for file in OUT.glob("_static/scripts/*.js"):
            self.assertNotRegex(file.read_text(), r"(?m)^import ", file)
        sheet = (OUT / "_static/styles/furo.css").read_text()
        self.assertRegex(sheet, r"prefers-color-scheme: dark\)[^}]*--color-background-primary: #131416")


class Contents(unittest.TestCase):
    def test_every_routine_has_its_anchor_on_the_page_of_its_family(self):
        for routine in ROUTINES.values():
            self.assertIn(routine.name, page(f"reference/{routine.family}").anchors)

    def test_a_contract_is_shown_to_its_last_word(self):
        for routine in ROUTINES.values():
            shown = " ".join(page(f"reference/{routine.family}").text.split())
            told = [routine.brief, routine.retains_text, routine.cost]
            for argument in routine.arguments:
                values = argument.values.values if argument.values else []
                told += [value.meaning for value in values] or [argument.meaning]
                kept = argument.kept.text.partition(" ")[2] if argument.kept else ""
                told.append(kept.removeprefix("on a condition: "))
            for sentence in told:
                self.assertIn(sentence, shown, routine.name)

    def test_words_of_the_trade_are_found(self):
        words = ("hole fillet tangent inside local member bending buckling modulus plastic torsion "
                 "distance angle mirror centroid column shear principal warping clockwise").split()
        found = json.loads(re.search(r"\((.*)\)", (OUT / "searchindex.js").read_text()).group(1))
        entries = " ".join(found["indexentries"])
        for word in words:
            self.assertRegex(page("reference/words").text, rf"(?i)\b{word}\b")
            self.assertRegex(page("genindex").text, rf"(?i)\b{word}\b")
            self.assertRegex(entries, rf"\b{word}\b")

    def test_a_page_shows_what_the_task_printed(self):
        self.assertRegex(page("tasks/side").text, r"R +-1730\.8 mm")
        self.assertRegex(page("conventions").text, r"cw, factor -1 +4\.0")


def second_moments(rectangles):
    """Area, centroid and moments about it, of rectangles by their width, height and centre."""
    area = sum(w * h for w, h, _, _ in rectangles)
    xs = sum(w * h * x for w, h, x, _ in rectangles) / area
    ys = sum(w * h * y for w, h, _, y in rectangles) / area
    return area, xs, ys, [sum(w * h * value for w, h, value in terms) for terms in (
        [(w, h, h * h / 12 + (y - ys) ** 2) for w, h, _, y in rectangles],
        [(w, h, w * w / 12 + (x - xs) ** 2) for w, h, x, _ in rectangles],
        [(w, h, (x - xs) * (y - ys)) for w, h, x, y in rectangles])]


class Truths(unittest.TestCase):
    """What the tasks print, label and unit with it, by other ways: numbers on paper and mathematics."""

    def prints(self, task, text):
        """Each line of the text, but for blanks, is one of those that the task prints."""
        found = [" ".join(line.split()) for line in PRINTED[task].splitlines()]
        for line in text.splitlines():
            self.assertIn(" ".join(line.split()), found)

    def test_lines(self):
        image = (100 + 200j) / (3 + 1j)  # seen along the line through (300, 100)
        image = image.conjugate() * (3 + 1j)
        self.prints("mirror", f"image {image.real:.2f} {image.imag:.2f} mm\nmirrored area -600.0 mm2")
        along = (6000 + 2500j) / 6500
        q, r = (4250 - 250j) / along, (1500 + 2500j) / along
        foot = 500 + 750j + q.real * along
        self.prints("side", f"""Q {-q.imag:.1f} mm\nR {-r.imag:.1f} mm
            foot of Q {foot.real:.1f} {foot.imag:.1f} mm""")
        x = (6 - 0.5 * 1.25**0.5) / 1.5  # y = x / 2 + the height of half a metre across, y = 6 - x
        self.prints("crossing", f"""crossing 4.000 2.000 m\nof the parallel {x:.3f} {6 - x:.3f} m
            relation 2\napart -0.500 m""")
        self.prints("distance", """distance 5.000 m\nangle 90.00 degrees
            from P1 to P2 270.00 degrees""")
        self.prints("far", "near -1000.000 mm\nmoved 4000.000 3000.000 mm\n0.004 mm more is 0.0078 mm")

    def test_circles(self):
        one, two = (550 + 50j) / abs(550 + 50j), (150 + 350j) / abs(150 + 350j)
        half = cmath.phase(two / one) / 2
        reach, out = 125 / math.tan(half), 50 + 50j
        centre = out + 125 / math.sin(half) * one * cmath.exp(1j * half)
        t1, t2 = out + reach * one, out + reach * two
        self.prints("fillet", f"""status 1\ncentre {centre.real:.3f} {centre.imag:.3f} mm
            T1 {t1.real:.3f} {t1.imag:.3f} mm\nT2 {t2.real:.3f} {t2.imag:.3f} mm
            length {125 * (math.pi - 2 * half):.3f} mm
            box from {centre.real - 125:.3f} {centre.imag - 125:.3f} mm
            box to {t1.real:.3f} {t2.imag:.3f} mm""")
        mid, root = 137.5 / 1.5625, (137.5**2 - 1.5625 * 10900) ** 0.5 / 1.5625
        self.prints("tangent", f"""y = 90: 1\ntouches at 100.000 90.000 mm
            first {mid + root:.3f} {0.75 * (mid + root):.3f} mm""".replace(":", "", 1))
        self.prints("inside", f"P1 inside 1\nfirst 3.000 {2.25 + 1.75 / 8.25:.3f} m\ntheir edges 6 4 2")
        self.prints("rotations", "trvrot 1 0.87 -0.50\ntrvroty 2 0.87 0.00 0.50\ntrvcer3 0.87 0.50")

    def test_space(self):
        e1 = [v / 28.25e6**0.5 for v in (5000, 1500, 1000)]
        e2 = [(y - e1[1] * v) / (1 - e1[1] ** 2) ** 0.5 for y, v in zip((0, 1, 0), e1)]
        e3 = [e1[1] * e2[2] - e1[2] * e2[1], e1[2] * e2[0] - e1[0] * e2[2],
              e1[0] * e2[1] - e1[1] * e2[0]]
        local = [sum(a * b for a, b in zip(e, (2900, 1600, 1300))) for e in (e1, e2, e3)]
        self.prints("member", "local {:.1f} {:.1f} {:.1f} mm".format(*local)
                    + "\nglobal 3900.0 3600.0 1800.0 mm\nforce {:.1f} {:.1f} {:.1f} kN".format(
                        -10 * e1[1], -10 * e2[1], 0))
        self.prints("column", "e1 0.0 1.0 0.0\ne2 0.0 0.0 1.0\ne3 1.0 0.0 0.0")
        self.prints("plane", "relation 4\ndistance 1.8571 m\nQ on the plane -1")

    def test_sections(self):
        area, _, ys, (ix, _, _) = second_moments([(200, 300, 100, 150), (-60, 120, 100, 200)])
        ix -= -60 * 120 * 120**2 / 12 - -60 * 120**3 / 12
        self.prints("polygon-hole", f"area {area:.1f} mm2\nys {ys:.3f} mm\nIx {ix / 1e4:.1f} cm4")
        _, _, _, (ix, iy, ixy) = second_moments([(80, 10, 40, 5), (10, 110, 5, 65)])
        alpha = math.atan(2 * ixy / (iy - ix)) / 2
        root = math.hypot((ix - iy) / 2, ixy)
        self.prints("principal-angle", f"""Ix, Iy {ix / 1e4:.1f} {iy / 1e4:.1f} cm4
            Ixy {ixy / 1e4:.1f} cm4\nalpha {math.degrees(alpha):.2f} degrees
            I1, I2 {(ix + iy + 2 * root) / 2e4:.1f} {(ix + iy - 2 * root) / 2e4:.1f} cm4""")
        _, _, ys, (ix, _, _) = second_moments([(200, 16, 0, 0), (10, 400, 0, 200), (160, 16, 0, 400)])
        plastic = sum(w * h * abs(y - 168) for w, h, y in (  # 5280 mm2 on either side of y = 168
            (200, 16, 0), (10, 168, 84), (10, 232, 284), (160, 16, 400)))
        self.prints("modulus", f"""centroid at {ys:.2f} mm\nplastic axis at 168.00 mm
            elastic top {ix / (408 - ys) / 1e3:.1f} cm3\nelastic bottom {ix / (ys + 8) / 1e3:.1f} cm3
            plastic {plastic / 1e3:.1f} cm3""")
        self.prints("profile", "polygons 1\narea {:.1f} mm2\nIx, Iy {:.1f} {:.1f} cm4".format(
            300 * 150 - 142.9 * 278.6, (150 * 300**3 - 142.9 * 278.6**3) / 12e4,
            (21.4 * 150**3 + 278.6 * 7.1**3) / 12e4))
        self.prints("signs", "area 4.0\nSx, Sy 8.0 8.0\nIx, Iy 17.33 17.33\nIxy, second -16.0")
        self.prints("hole-signs", "ccw, factor -1 -4.0\ncw, factor -1 4.0")

    def test_a_plate_with_a_hole(self):
        x, y = (50, 650, 650, 300, 50), (50, 50, 200, 450, 450)
        edges = [(x[i - 1], y[i - 1], x[i], y[i]) for i in range(5)]
        terms = [[c / 2, c * (a + p) / 6, c * (b + q) / 6, c * (b * b + b * q + q * q) / 12,
                  c * (a * a + a * p + p * p) / 12, c * (a * q + 2 * a * b + 2 * p * q + p * b) / 24]
                 for a, b, p, q in edges for c in [a * q - p * b]]
        hole, own = math.pi * 75**2, math.pi * 75**4 / 4
        parts = hole, hole * 200, hole * 275, own + hole * 275**2, own + hole * 200**2, hole * 55000
        area, sy, sx, ix, iy, ixy = (sum(t) - h for t, h in zip(zip(*terms), parts))
        xs, ys = sy / area, sx / area
        ix, iy, ixy = (v / 1e6 for v in (ix - area * ys**2, iy - area * xs**2, ixy - area * xs * ys))
        self.prints("hole", f"""area {area:.1f} mm2\ncentroid {xs:.2f} {ys:.2f} mm
            Ix, Iy {ix:.1f} {iy:.1f} 1e6 mm4\nIxy {ixy:.1f} 1e6 mm4
            alpha {math.degrees(math.atan(2 * ixy / (iy - ix)) / 2):.2f} degrees""")

    def test_thin_walls(self):
        series = sum(math.tanh(k * math.pi * 2.5) / k**5 for k in range(1, 30, 2))
        bar = 100 * 20**3 / 3 * (1 - 192 / math.pi**5 * 0.2 * series) / 1e4
        self.prints("torsion", f"""It of the bar {bar:.3f} cm4\nas a thin wall {80 / 3:.3f} cm4
            Wt of the bar 11.660 cm3\nIt of a channel {240 * 4**3 / 3 / 1e4:.3f} cm4""")
        rho = (1.6229 - 0.22) / 1.6229**2
        psi = -0.8
        slender = 1200 / 8 / (28.4 * (235 / 355) ** 0.5 * (7.81 - 6.29 * psi + 9.78 * psi**2) ** 0.5)
        web = 2000 / 3 * (1 - 0.055 * (3 + psi) / slender) / slender
        self.assertAlmostEqual(float(PRINTED["plate"].split()[1]), 300 * rho, places=1)
        self.prints("plate", f"compressed 666.67 mm\nweb {0.4 * web:.2f} {0.6 * web:.2f} mm")
        b, h, c, t = 76, 136, 28, 4
        i = t * (h**3 + 6 * (b + c) * h**2 - 12 * c**2 * h + 8 * c**3) / 12
        back = b * t * (3 * b * h**2 + 6 * c * h**2 - 8 * c**3) / (12 * i)
        xs = b * (b + 2 * c) / (h + 2 * b + 2 * c)
        self.prints("shear-centre", f"""from centroid {xs + back:.3f} mm\ncentroid {xs:.3f} 68.000 mm
            shear centre {-back:.3f} 68.000 mm\napart {xs + back:.3f} mm\nIw 6600.8 cm6""")


class Shown(unittest.TestCase):
    def test_pieces_of_generated_pages(self):
        for name, pieces in {
            "reference/plane": ["Argument Kind Meaning a1, b1, c1 in, Real first line",
                                "status out, Integer relation: see below x, y out, Real point ",
                                "Unwritten x, y: if status is 1 or 2 Retains nothing trvlul#"],
            "reference/statuses": ["Routine Output Value Meaning Name trvlci n 0 ",
                                   "2 the lines are parallel and distinct trv_plane_lines_parallel"],
            "reference/words": ["fillet Round a corner: fillet, tangent arc, trvard "],
            "accuracy": ["Routine Output near: median worst far: median worst Note trvpds d",
                         " Computes no figures: trvcnt1, ", " Not measured: trvcin."],
        }.items():
            shown = " ".join(page(name).text.split())
            for piece in pieces:
                self.assertIn(piece, shown)


class Checked(unittest.TestCase):
    """What a page says, against what a fact gives."""

    def test_numbers_units_formulas_and_words(self):
        half = facts.angle(0.5)
        for text, fact, agrees in (
            ("0.5 radians", half, True), ("28.6 degrees", half, True), ("28.6 radians", half, False),
            ("28.60 degrees", half, False), ("0.5", half, False), ("1,000", 1000, True),
            ("5e-6", 4.6e-6, True), ("5e-6", 4.4e-6, False), ("-2", 2, False), ("2 mm", 2, False),
            ("14 %", facts.share(0.143), True), ("3 m", facts.length(3000), True),
            ("3 m²", facts.length(3000), False), ("1 to 2", [1, 2], True), ("1 to 2", [2, 1], False),
            ("1", [1, 2], False), ("none", [1], False), ("sqrt(16)/2 = 2", 2, True),
            ("sqrt(9) = 2", 2, False), ("2·x²", facts.Formula([({"x": 3}, 18)]), True),
            ("a - b = b a", facts.Formula([({"a": 2, "b": 1}, 1)]), False),
            ("Clockwise", "clockwise", True), ("clockwise", "counter-clockwise", False),
            ("clockwise", None, False), ("+y, else -z", facts.Quote("to +y if y is, else to -z"), True),
            ("-z, else +y", facts.Quote("to +y if y is, else to -z"), False),
            ("clockwise", facts.Quote("counter-clockwise"), False),
            ("l³ / 3", facts.Quote("l^3/3"), True), ("0.5", facts.Quote("0.53"), False),
        ):
            self.assertEqual(facts.difference(text, fact) is None, agrees, (text, fact))

    def test_what_needs_a_fact(self):
        for text, found in (("to the left, 3.5 mm up", ["left", "3.5"]), ("P1 by EN 1993-1-5", []),
                            ("a right angle at axis 1", []), ("towards +y", ["+y"]),
                            ("Table 4.1: 1e-5 radians", ["1e-5", "radians"])):
            self.assertEqual(facts.careful(text), found)

    def test_words_of_the_index_occur_where_they_lead_to(self):
        entries = [("fillet", ["corner"], ["trvard", "trvlds"]), ("purlin", [""], ["trvsec_c"])]
        with mock.patch.object(words, "_entries", return_value=entries):
            lost = list(words.lost(reference.Writer(model.read())))
        self.assertEqual([line.split()[-1] for line in lost], ["trvlds", "trvsec_c"])


class Tasks(unittest.TestCase):
    """What the programs are written from refuses what would not hold in all languages."""

    def read(self, *lines):
        file = ROOT / "build/manual/test.calls"
        file.write_text("\n".join(lines))
        return calls.read(file, ROUTINES)

    def test_faulty_lines_are_refused(self):
        for lines in (["real x = 1", "real X = 2"],  # one name where capitals do not count
                      ["real d = 1", "trvaxph d d"],  # an argument is missing
                      ["int i = 1", "trvaxph i i phi"],  # of another type
                      ["real d = 1", "print d: d"],  # a Real without decimals
                      ["trvnone"], ["let a = b"], ["real in = 1"]):
            with self.assertRaises(calls.Faulty, msg=lines):
                self.read(*lines)

    def test_languages_that_disagree_fail(self):
        task = self.read("real x = 1", "print x: x .1")
        two = {language: run.COLUMNS[language] for language in ("C", "Python")}
        with mock.patch.dict(run.COLUMNS, two, clear=True), self.assertRaises(run.Failed):
            with mock.patch.object(languages.Python, "program", return_value="print('x  1.1')"):
                run.run([task], ROOT / "build/manual/test")

    def test_a_changed_array_is_the_same_one_afterwards_in_python(self):
        task = self.read("reals x[1] = 1", "reals y[1] = 0", "int two = 2, n = 1", "real a = 0.5",
                         "trvrot two x y n a", "print x: x[1] .2")
        self.assertIn("\nx = trelvin.trvrot(two, x, y, a).x\n", languages.Python().program(task))

    def test_javascript_binds_anew_what_it_can_and_passes_counts_that_arrays_do_not_tell(self):
        task = self.read("real z = 0, one = 1", "reals x[2] = 1 5", "reals y[2] = 0 0",
                         "reals w[2] = 0 0", "int n = 1", "real a = 1.5707963",
                         "trvpra z z z z z one x y w n a done", "trvtra x y n z one",
                         "print done: done", "print turned: x[1] y[1] .2", "print left: x[2] .1")
        two = {language: run.COLUMNS[language] for language in ("C", "JavaScript")}
        with mock.patch.dict(run.COLUMNS, two, clear=True):
            run.run([task], ROOT / "build/manual/tasks")

    def test_elements_count_from_where_the_language_does(self):
        task = self.read("reals x[3] = 1 2 3", "print second: x[2] .1")
        for language in languages.ALL:
            line = next(each for each in language.program(task).splitlines() if "second" in each)
            self.assertIn("x(2)" if language.name in ("Fortran", "Basic") else "x[1]", line)


if __name__ == "__main__":
    unittest.main()
