"""What is read of contracts, and what must never change."""

import re
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

import entries  # noqa: E402
import model  # noqa: E402
import rooms  # noqa: E402

VALUES = """
/** How things lie. */
enum TrvWay {
  TRV_WAY_UP = 1, /**< upwards,
                   * as a rule */
  TRV_WAY_DOWN = -1, /**< downwards */
};
"""
HEAD = """/**
 * @file
 * Things.
 *
 * All about them.
 *
 *     trvsum(A, &n, &s);
 */
/* Sums --------------------- */
"""
SUM = """
/**
 * Adds, in
 * two lines.
 *
 * Cost: grows
 * with n.
 *
 * Retains: the last sum (trvsum); the first one (trvsum).
 *
 * @param[in]    A     array of n+1: terms,
 *                     all of them
 * @param[in]    n     how many, at least 2; no more
 * @param[inout] x,y   point; unchanged unless s is 1
 * @param[out]   s     sum (TrvWay): 1 up; -1 down: it went down; 2 to n: place
 * @param[out]   code  what: 0 done: all is well; 3 odd: it is odd; unwritten if n < 1
 */
TRELVIN_ROUTINE trvsum(TrvArrayIn A /* not (one) of
                       the host's */, TrvIntIn n, TrvInOut x, TrvInOut y, TrvIntOut s,
                       TrvIntOut code);
"""


def read(text=SUM, values=VALUES, head=HEAD):
    return model.interface_of(values, {"things": head + text})


class Reading(unittest.TestCase):
    def test_a_contract_is_read_whole(self):
        interface = read()
        self.assertEqual(interface.faults, [])
        family, routine = interface.families[0], interface.routines[0]
        self.assertEqual((family.title, family.intro), ("Things", ["All about them."]))
        self.assertEqual(family.example, ["trvsum(A, &n, &s);"])
        self.assertEqual((routine.group, routine.brief), ("Sums", "Adds, in two lines."))
        self.assertEqual((routine.cost, routine.decorated), ("grows with n.", "_trvsum@24"))
        self.assertEqual(routine.retains, [("the last sum", "trvsum"), ("the first one", "trvsum")])
        terms, n, x, y, s, code = routine.arguments
        self.assertEqual((terms.size.cpp(routine.positions), terms.meaning),
                         (["count(1) + 1"], "terms, all of them"))  # fmt: skip
        self.assertEqual((n.least, n.values), (2, None))
        self.assertEqual((x.kept.name, x.kept.numbers, x.kept.further), ("s", (-1,), 2))
        self.assertEqual((x.meaning, y.kept), ("point", x.kept))
        self.assertEqual([(v.number, v.name, v.meaning) for v in s.values.values],
                         [(1, "up", "upwards, as a rule"), (-1, "down", "it went down")])  # fmt: skip
        self.assertEqual((s.values.further, s.values.ranges), (2, ["2 to n: place"]))
        self.assertEqual((code.kept.name, code.kept.less_than), ("n", 1))
        self.assertEqual([e.upper(e.values[0]) for e in interface.enumerations()],
                         ["TRV_WAY_UP", "TRVSUM_DONE"])  # fmt: skip
        self.assertTrue(s.always_written and not code.always_written)

    def test_what_has_no_form_is_told_with_its_line(self):
        for old, new, line, words in (
            ("array of n+1: terms", "array of k: terms", 20, "k is no Integer argument"),
            ("array of n+1: terms", "array of n+: terms", 20, "more is missing"),
            ("array of n+1: terms", "array of n, m: terms", 20, "belong to a kind"),
            ("array of n+1: terms", "terms", 20, "no `array of"),
            ("1 up;", "1 down;", 24, "no value 1 down"),
            ("(TrvWay)", "(TrvOther)", 24, "values.h has no TrvOther"),
            ("2 to n: place", "else a place", 24, "no value with its name"),
            ("0 done: all is well", "0 done", 25, "0 done has no meaning"),
            ("3 odd:", "0 odd:", 25, "a number of its values stands twice"),
            ("3 odd:", "3 done:", 25, "a name of its values stands twice"),
            ("what: 0 done: all is well; 3 odd: it is odd", "odd or even", 25, "lists no values"),
            ("unwritten if n < 1", "unwritten when n < 1", 25, "does not say when"),
            ("unwritten if n < 1", "unwritten if n < 1; or so", 25, "the last clause"),
            ("unchanged unless s is 1", "unchanged unless s is 7", 23, "s has no such value"),
            ("unchanged unless s is 1", "unchanged if A is 1", 23, "A is no Integer argument"),
            ("unchanged unless", "unwritten unless", 23, "an input and output unchanged"),
            ("[inout] x,y ", "[in] x,y ", 23, "its contract says in"),
            ("x,y   point", "x,z   point", 23, "z is described, but is no argument"),
            ("TrvInOut y", "TrvOdd y", 27, "unknown type TrvOdd"),
            ("(trvsum); the first one (trvsum)", "and more", 12, "no line `Retains"),
            ("in\n * two lines.", "in two lines", 12, "no sentence"),
            ("the first one (trvsum)", "the first one (trvnone)", 0, "trvnone does not retain it"),
            ("TrvArrayIn A", "TrvIn (*f)(TrvIn), TrvArrayIn A", 0, "not understood"),
        ):
            with self.subTest(new):
                self.assertIn(old, SUM)
                faults = read(SUM.replace(old, new)).faults
                self.assertTrue(any(words in fault for fault in faults), faults)
                if line:
                    self.assertTrue(any(f"things.h:{line}: trvsum: " in f for f in faults), faults)

    def test_a_name_stands_for_one_thing_and_a_shared_value_has_number_and_comment(self):
        twice = read(SUM + SUM).faults
        self.assertIn("trvsum: the name stands for two things", twice)
        for old, new in ((" = 1", ""), ("/**< downwards */", ""), ("WAY_UP", "UP")):
            self.assertTrue(read(values=VALUES.replace(old, new)).faults, new)
        self.assertTrue(read(head=HEAD.replace("    trv", "trv")).faults)

    def test_rewording_a_meaning_renames_nothing(self):
        before, after = (
            [e.upper(v) for e in read(text).enumerations() for v in e.values]
            for text in (SUM, SUM.replace("all is well", "fine").replace("went down", "fell"))
        )
        self.assertEqual(before, after)


class Entries(unittest.TestCase):
    def test_ordinals_never_move(self):
        routines = model.read().routines
        ordinals = entries.ordinals(routines)
        self.assertEqual([ordinals[name] for name in ("trv123", "_trv123@44", "trvpds")], [1, 2, 161])
        new = model.Routine("trvaaa", "plane", "", 1, [model.Argument("x", "TrvIn")])
        grown = entries.ordinals([new] + routines)
        self.assertEqual(ordinals, {name: grown[name] for name in ordinals})
        self.assertEqual([grown["trvaaa"], grown["_trvaaa@4"]], [285, 286])

    def test_bodies_end_where_they_end(self):
        text = "TRELVIN_ROUTINE a(int x) { x; }\nTRELVIN_ROUTINE b(int x) {\n  if (x) {\n  }\n}\n"
        text += "\nvoid c() {\n}\n"
        self.assertEqual([name for name, _ in entries.bodies_of(text)], ["a", "b"])
        self.assertNotIn("void", entries.bodies_of(text)[1][1])


class Tests(unittest.TestCase):
    def test_every_routine_has_a_unit_test(self):
        tests = (ROOT / "tests").glob("*/*_test.cpp")
        code = " ".join(model.COMMENT.sub(" ", test.read_text()) for test in tests)
        routines = {routine.name for routine in model.read().routines}
        self.assertEqual(routines - set(re.findall(r"\btrv\w+", code)), set())


if __name__ == "__main__":
    unittest.main()
