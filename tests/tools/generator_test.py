"""What is read of contracts, and what must never change."""

import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

import entries  # noqa: E402
import model  # noqa: E402

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
                         (["of.count(1) + 1"], "terms, all of them"))
        self.assertEqual((n.least, n.values), (2, None))
        self.assertEqual((x.kept.name, x.kept.numbers, x.kept.further), ("s", (-1,), 2))
        self.assertEqual((x.meaning, y.kept), ("point", x.kept))
        self.assertEqual([(v.number, v.name, v.meaning) for v in s.values.values],
                         [(1, "up", "upwards, as a rule"), (-1, "down", "it went down")])
        self.assertEqual((s.values.further, s.values.ranges), (2, ["2 to n: place"]))
        self.assertEqual((code.kept.name, code.kept.less_than), ("n", 1))
        self.assertEqual([e.upper(e.values[0]) for e in interface.enumerations()],
                         ["TRV_WAY_UP", "TRVSUM_DONE"])
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
        new = model.Routine("trvaaa", "plane", "", 1, [model.Argument("x", "TrvIn")])
        ordinals = entries.ordinals([new, *model.read().routines])
        for names, first in (("trv123 _trv123@44", 1), ("trvaaa _trvaaa@4", len(ordinals) - 1),
                             ("trvmer1 trvmer11 _trvmer11@24 trvmer12", 127)):
            got = [ordinals[name] for name in names.split()]
            self.assertEqual(got, list(range(first, first + len(got))), names)

    def test_bodies_end_where_they_end(self):
        text = "TRELVIN_ROUTINE a(int x) { x; }\nTRELVIN_ROUTINE b(int x) {\n  if (x) {\n  }\n}\n"
        text += "\nvoid c() {\n}\n"
        self.assertEqual([name for name, _ in entries.bodies_of(text)], ["a", "b"])
        self.assertNotIn("void", entries.bodies_of(text)[1][1])


# Files with every fault that the check tells of: in contracts, then behind sound ones.
CONTRACTS = {"include/trelvin/odd.h": """/**
 * @file
 */
TRELVIN_ROUTINE trvpds(TrvIn x);
"""}
IN_CONTRACTS = """
include/trelvin/odd.h:1: no title, or no indented example, behind its @file
include/trelvin/odd.h: trelvin.h does not include it
trvpds: the name stands for two things
"""
CODE = {
    "src/entries/lists.cpp": """
TRELVIN_ROUTINE trvord1(int *V) { const Door door; retained = 0; }
TRELVIN_ROUTINE trvord(float *V) { V[0] = 1; }
TRELVIN_ROUTINE trvpds(float *V) { const Door door; }
""",
    "src/lists/matching.cpp": """
#include "properties/polygons.h"
#include "nowhere/polygons.h"
#include "trelvin/lists.h"
// TrvOut is but a word here
TRELVIN_ROUTINE trvnone(TrvIn x) { const Door door; }
TRELVIN_ROUTINE trvsel1(int *V) { const Door door; }
""",
    "src/cellar/x.h": "",
    "tests/hosts/digest.txt": "trvgone    0123456789abcdef\n",
}
IN_CODE = """
trvgone: in tests/hosts/digest.txt, and no header declares it
src/entries/lists.cpp: not in the order of its header
trvpds: a body in src/entries/lists.cpp, declared elsewhere
trvord: does not start with `const Door door;` or `Door door;`
trvord1: retains nothing. Its body tells otherwise
trvsel1: its body is not in src/entries/FAMILY.cpp
trvnone: a body without a contract
src/lists/matching.cpp: includes properties, which is not on a lower floor
src/lists/matching.cpp: includes the unknown room nowhere
src/lists/matching.cpp: a kernel includes the interface
src/lists/matching.cpp: a kernel names TRELVIN_ROUTINE
src/cellar/x.h: cellar has no floor in tools/rooms.py
docs/routines.md is out of date: run tools/generate.py
"""


# What is written for the family of this file's head, by file.
NEW = {
    "include/trelvin/things.h": HEAD + SUM,
    "include/trelvin/trelvin.h": '#include "trelvin/things.h"',
    "include/trelvin/values.h": VALUES,
    "src/entries/things.cpp": "TRELVIN_ROUTINE trvsum(int n) { const Door door; retained = 0; }",
}
WRITTEN = {
    "src/entries/Trelvin64.def": "trvsum @",
    "include/trelvin/names.h": "/** all is well */ TRVSUM_DONE = 0, /** it is odd */ TRVSUM_ODD = 3,",
    "tests/routines.inc": """SIZE(trvsum, 0, of.count(1) + 1) LEAST(trvsum, 1, 2)
        READ(trvsum, 2) KEPT(trvsum, 2, 4, 2, -1) READ(trvsum, 3) KEPT(trvsum, 3, 4, 2, -1)
        STATUS(trvsum, 4, 2, -1, 1) STATUS(trvsum, 5, none, 0, 3) KEPT_BELOW(trvsum, 5, 1, 1)
        RETAINS(trvsum, trvsum) RETAINS(trvsum, trvsum)""",
    "bindings/fortran/trelvin.F90": """integer(c_int32_t), intent(in) :: n
        real(c_float), intent(inout) :: x, y integer(c_int32_t), intent(out) :: s
        integer(c_int32_t), intent(inout) :: code""",
    "bindings/pascal/trelvin.pas": "var x, y: Single; out s: LongInt; var code: LongInt);",
    "bindings/csharp/Trelvin.cs": "([In] float[] A, ref int n, ref float x, ref float y, ref int s,",
    "bindings/basic/Trelvin.bas": "Public Const trvsumOdd As Long = 3",
    "bindings/node/trelvin.mjs": """routine("trvsum", ["in real A[n+1]", "in int n >= 2",
        "inout real x", "inout real y",""",
    "bindings/python/trelvin/_routines.py": "x: float y: float s: TrvWay | int code: TrvsumCode | int",
    "bindings/trelvin.json": """"unwritten": {"text": "unchanged unless s is 1", "argument": "s",
        "values": [-1], "from": 2}""",
    "docs/routines.md": "| `trvsum` | A n x y s code | Adds, in two lines. |",
}


class Check(unittest.TestCase):
    """`generate.py` in a copy of the tree."""

    def setUp(self):
        self.root = Path(self.enterContext(tempfile.TemporaryDirectory()))
        for place in ("include", "src", "tools", "bindings", "examples", "tests/hosts"):
            shutil.copytree(ROOT / place, self.root / place)
        shutil.copy(ROOT / "README.md", self.root)

    def generate(self, *options):
        command = [sys.executable, self.root / "tools/generate.py", *options]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def assert_told(self, files, messages):
        for file, text in files.items():
            (self.root / file).parent.mkdir(exist_ok=True)
            (self.root / file).write_text(text)
        done = self.generate("--check")
        told = done.stderr.replace("generate: ", "").splitlines()
        self.assertEqual(set(messages.strip().splitlines()) - set(told), set(), done.stderr)
        self.assertNotIn("TrvOut", done.stderr)
        self.assertEqual(done.returncode, 1)

    def test_faults_of_contracts_are_told(self):
        self.assert_told(CONTRACTS, IN_CONTRACTS)

    def test_faults_of_code_and_outdated_files_are_told(self):
        self.assert_told(CODE, IN_CODE)

    def test_what_is_written_for_a_new_family(self):
        for file, text in NEW.items():
            with open(self.root / file, "a", encoding="utf-8") as changed:
                changed.write(text)
        for place in ("docs", "tests"):
            (self.root / place).mkdir(exist_ok=True)
        self.assertIn("Trelvin.cs is out of date", self.generate("--check").stderr)
        self.assertEqual((self.generate().stderr, self.generate("--check").returncode), ("", 0))
        for file, text in WRITTEN.items():
            written = " ".join((self.root / file).read_text().split())
            self.assertIn(" ".join(text.split()), written, file)


class Tests(unittest.TestCase):
    @staticmethod
    def routines_in(text):
        """The routines that code names, outside comments and texts."""
        return set(re.findall(r"\btrv\w+", re.sub(r'"[^"]*"', "", model.COMMENT.sub(" ", text))))

    def test_every_routine_has_a_unit_test(self):
        self.assertEqual(self.routines_in('trva(x); // trvb\n/* trvc */ f("trvd")'), {"trva"})
        tests = Path(__file__).resolve().parents[1]
        tests = [*tests.glob("*/*_test.cpp"), *tests.glob("sections/*.h")]
        named = self.routines_in("\n".join(test.read_text() for test in tests))
        routines = {routine.name for routine in model.read().routines}
        self.assertEqual(routines - named, set())


if __name__ == "__main__":
    unittest.main()
