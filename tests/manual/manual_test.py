#!/usr/bin/python3
"""The built manual in out/manual: every address leads somewhere, and what it promises is there."""

import html.parser
import json
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
import languages  # noqa: E402
import model  # noqa: E402
import run  # noqa: E402
import trelvin  # noqa: E402

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
                told += [argument.kept.text.split(" ", 1)[1].removeprefix("on a condition: ")] \
                    if argument.kept else []
            for words in told:
                self.assertIn(words, shown, routine.name)

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


class Claims(unittest.TestCase):
    """Sentences of the page on conventions that none of its tasks prints."""

    def test_a_column_has_no_axes_by_trvaxel_but_by_trvaxe(self):
        axes = trelvin.trvaxel(0, 0, 0, 0, 3, 0, angle=0)
        self.assertEqual(axes.status, 0)
        self.assertNotEqual(axes.e2x, axes.e2x)
        self.assertEqual(trelvin.trvaxe(0, 0, 0, 0, 3, 0, 0, 0, 1).e2z, 1)
        self.assertNotEqual(*2 * [trelvin.trvpra(0, 0, 0, 0, 3, 0, [1], [0], [0], angle=1).X[0]])

    def test_turns_about_y_are_left_handed_in_trvptr_trvptrl_and_trvppc(self):
        point = [1], [0], [0]
        axes = 0, 0, 0, 1, 0, 0, 0, 1, 0  # three points: the global axes
        self.assertGreater(trelvin.trvptr(*point, 0, 0, 0, 0, 1, 0).Z[0], 0)
        self.assertGreater(trelvin.trvptrl(*axes, *point, 0, 0, 0, 0, 1, 0).Z[0], 0)
        self.assertGreater(trelvin.trvppc(*axes, 0, 0, 0, 0, 1, 0, *point, 1e-5).Z[0], 0)

    def test_the_angle_of_trvaxel_and_trvpl7_is_right_handed(self):
        self.assertGreater(trelvin.trvaxel(0, 0, 0, 1, 0, 0, angle=1).e2z, 0)  # from y towards z
        self.assertLess(trelvin.trvpl7(0, 0, 0, 1, 0, 0, 0, 1, 0, angle=1).b, 0)  # z towards -y

    def test_side_positive_turns_clockwise_from_a_to_the_arcs_middle_in_trvcer5(self):
        point = trelvin.trvcer5(0, 0, -5, 0, 5, 0, s=5, side=1, e=1)
        self.assertAlmostEqual(point.yo, 5, places=4)  # from A on the left over the top

    def test_nothing_compressed_leaves_the_effective_widths_unwritten(self):
        widths = trelvin.trvef2(600, 600, 8, 18.8, 15.3, s1=-100, s2=-100)
        self.assertNotEqual(widths.be1, widths.be1)

    def test_beyond_three_times_in_tension_nothing_is_reduced_and_just_there_nothing_written(self):
        beyond = trelvin.trvef2(1200, 300, 8, 18.8, 15.3, s1=100, s2=-301)
        self.assertEqual((beyond.be1, beyond.be2), (150, 150))
        at = trelvin.trvef2(1200, 300, 8, 18.8, 15.3, s1=100, s2=-300)
        self.assertNotEqual(at.be1, at.be1)

    def test_the_normal_of_a_line_is_to_its_right_by_trvln3_and_below_by_an_angle(self):
        left, pi = (0, 1), 3.14159265
        self.assertEqual(trelvin.trvlds(*left, *trelvin.trvln3(0, 0, 1, 0)), -1)
        self.assertEqual(trelvin.trvlds(*left, *trelvin.trvln3(0, 0, -1, 0)), 1)
        for line in trelvin.trvln1(0, 0, pi), trelvin.trvln4(0, 0, -1, 0, 0):
            self.assertEqual(trelvin.trvlds(*left, *line), -1)

    def test_short_lines_in_metres_are_the_same_and_a_small_circle_is_touched(self):
        lines = *trelvin.trvln3(0, 0, 0.003, 0), *trelvin.trvln3(0, 0, 0, 0.003)
        self.assertEqual(trelvin.trvlni(*lines).status, trelvin.TrvPlaneLines.SAME_LINE)
        self.assertEqual(trelvin.trvlci(1, 0.5, 0, *trelvin.trvcer(0, 0, 0.001)).n, 1)

    def test_a_line_nearly_along_x_loses_digits_unless_x_and_y_are_swapped(self):
        a, b, c = 1, -1000, 199700  # through the centre (300, 200)
        self.assertGreater(trelvin.trvlci(a, b, c, *trelvin.trvcer(300, 200, 250)).x1, 553)
        point = trelvin.trvlci(b, a, c, *trelvin.trvcer(200, 300, 250))
        self.assertAlmostEqual(point.y1, 550, places=2)

    def test_directions_a_quarter_of_a_degree_apart_count_as_parallel(self):
        for slope, relation, status in ((0.0044, 3, 3), (0.0045, 0, 0)):
            self.assertEqual(trelvin.trvdirp(0, 0, 1, -3, slope, 0, 1, -3), relation)
            camber = slope / 2 * 3000
            self.assertEqual(trelvin.trvpsl(0, 0, 0, 6000, 0, 0, 3000, camber, 0), status)

    def test_floors_of_300_m_2_mm_apart_are_the_same_plane(self):
        self.assertEqual(trelvin.trvdirp(0, 0, 1, -300000, 0, 0, 1, -300002), 3)

    def test_the_third_point_of_trvaxe_does_not_tell_the_sense_of_e2(self):
        axes = [trelvin.trvaxe(0, 0, 0, 0, 3, 0, *p) for p in ((0, 0, 1), (0, 0, -1))]
        self.assertEqual([each.e2z for each in axes], [1, 1])
        axes = [trelvin.trvaxe(0, 0, 0, 0, 3, 0, *p) for p in ((1, 0, 0), (-1, 0, 0))]
        self.assertEqual([each.e2x for each in axes], [-1, -1])


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
            line = next(l for l in language.program(task).splitlines() if "second" in l)
            self.assertIn("x(2)" if language.name in ("Fortran", "Basic") else "x[1]", line)


if __name__ == "__main__":
    unittest.main()
