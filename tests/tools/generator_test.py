"""What the generator reads from contracts, and what it must never change."""

import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))

import contracts  # noqa: E402
import entries  # noqa: E402
import headers  # noqa: E402

HEADER = """/**
 * @file
 * Things.
 */
/**
 * Adds, in
 * two lines.
 *
 * Retains: the last sum,
 * shared with none.
 *
 * @param[in]  A   array of n+1: terms,
 *                 all of them
 * @param[in]  n   how many
 * @param[out] s   1 done; 0 not
 */
TRELVIN_ROUTINE trvsum(TrvArrayIn A /* not (one) of
                       the host's */, TrvIntIn n, TrvIntOut s);
"""


class Headers(unittest.TestCase):
    def setUp(self):
        self.family = headers.read_family("things", HEADER)
        self.routine = self.family.routines[0]

    def test_a_comment_inside_an_argument_list_is_no_argument(self):
        self.assertEqual([a.name for a in self.routine.arguments], ["A", "n", "s"])
        self.assertEqual(self.routine.decorated, "_trvsum@12")

    def test_descriptions_go_on_over_lines(self):
        self.assertEqual(self.routine.brief, "Adds, in two lines.")
        self.assertEqual(self.routine.arguments[0].text, "array of n+1: terms, all of them")
        self.assertEqual(self.routine.retains, "the last sum, shared with none.")

    def test_a_declaration_that_is_not_understood_is_told(self):
        family = headers.read_family(
            "things", "TRELVIN_ROUTINE trvodd(TrvIn (*f)(TrvIn), TrvOut y);\n"
        )
        self.assertEqual((len(family.routines), family.unread), (0, 1))


class Sizes(unittest.TestCase):
    COUNTS = {"n": 0, "m": 1, "kind": 2, "count": 3}

    def test_expressions(self):
        for size, expected in {
            "20": "20",
            "n+1": "count(0) + 1",
            "max(n+m,n*m)": "larger(count(0) + count(1), count(0) * count(1))",
        }.items():
            self.assertEqual(
                contracts.size_of(f"array of {size}: x", self.COUNTS).elements, [expected]
            )

    def test_sizes_by_kind_and_used_counts(self):
        size = contracts.size_of("arrays of 1, n+1, 2 by kind: points", self.COUNTS)
        self.assertEqual((size.elements, size.kind), (["1", "count(0) + 1", "2"], "kind"))
        self.assertEqual(contracts.size_of("array of n, count used: x", self.COUNTS).used, "count")

    def test_everything_else_is_unreadable(self):
        for text in (
            "points",
            "array of k: x",
            "array of n+: x",
            "array of n, m: x",
            "array of n, ascending",
        ):
            with self.assertRaises(contracts.Unreadable, msg=text):
                contracts.size_of(text, self.COUNTS)


class Values(unittest.TestCase):
    def test_values(self):
        for text, named, further in (
            ("0 done; -1 refused, nothing is written", [-1, 0], None),
            ("0 done; 1 to 3 as trvpsl tells; 7 skew", [0, 1, 2, 3, 7], None),
            ("0 done; 3, 4 or 7 the relation of the lines", [0, 3, 4, 7], None),
            ("0 done; i > 0 point i is off the plane", [0], 1),
            ("-1 refused; 0 done; 2 to n this plate; n+2 to 2*n plate status - n", [-1, 0], 2),
            ("-1 no length; unwritten otherwise", [-1], None),
            ("number of points (trvlci): 0 none; 1 or 2", [0, 1, 2], None),
        ):
            values = contracts.values_of(text)
            self.assertEqual((values.named, values.further), (named, further), text)

    def test_a_meaning_without_a_value_is_unreadable(self):
        with self.assertRaises(contracts.Unreadable):
            contracts.values_of("0 done; else as trvlni")


class Entries(unittest.TestCase):
    def test_ordinals_never_move(self):
        routines = headers.routines_of(headers.read_all())
        new = headers.Routine("trvaaa", "plane", "", [headers.Argument("x", "TrvIn")])
        ordinals = entries.ordinals([new, *routines])
        for names, first in (("trv123 _trv123@44", 1), ("trvaaa _trvaaa@4", 285),
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
TRELVIN_ROUTINE trvodd(TrvIn (*f)(TrvIn), TrvOut y);
TRELVIN_ROUTINE trvpds(TrvLong x);
/**
 * Adds.
 *
 * Retains: nothing.
 *
 * @param[out] x  a term
 * @param[in]  A  terms
 * @param[out] y  the sum
 */
TRELVIN_ROUTINE trvsum(TrvIn x, TrvArrayIn A);
"""}
IN_CONTRACTS = """
include/trelvin/odd.h: 1 declarations are not understood
include/trelvin/odd.h: no title behind its @file
include/trelvin/odd.h: trelvin.h does not include it
trvpds: declared more than once
trvpds: no contract, or no sentence in its first paragraph
trvpds: x has the unknown type TrvLong
trvpds: no line `Retains: ...`
trvsum: x is in, its contract says out
trvsum: its contract describes y, which is no argument
trvsum: A: no `array of SIZE: ...`
trvsum: a contract without a body
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
trvord: does not start with `const Door door;`
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


class Check(unittest.TestCase):
    """`generate.py --check` in a copy of the tree."""

    def assert_told(self, files, messages):
        with tempfile.TemporaryDirectory() as folder:
            for place in ("include", "src", "tools", "bindings", "examples", "tests/hosts"):
                shutil.copytree(headers.ROOT / place, Path(folder, place))
            shutil.copy(headers.ROOT / "README.md", folder)
            for file, text in files.items():
                Path(folder, file).parent.mkdir(exist_ok=True)
                Path(folder, file).write_text(text)
            command = [sys.executable, Path(folder, "tools/generate.py"), "--check"]
            done = subprocess.run(command, stderr=subprocess.PIPE, text=True, check=False)
        told = done.stderr.replace("generate: ", "").splitlines()
        self.assertEqual(set(messages.strip().splitlines()) - set(told), set(), done.stderr)
        self.assertNotIn("TrvOut", done.stderr)
        self.assertEqual(done.returncode, 1)

    def test_faults_of_contracts_are_told(self):
        self.assert_told(CONTRACTS, IN_CONTRACTS)

    def test_faults_of_code_and_outdated_files_are_told(self):
        self.assert_told(CODE, IN_CODE)


class Tests(unittest.TestCase):
    @staticmethod
    def routines_in(text):
        """The routines that code names, outside comments and texts."""
        return set(re.findall(r"\btrv\w+", re.sub(r'"[^"]*"', "", headers.COMMENT.sub(" ", text))))

    def test_every_routine_has_a_unit_test(self):
        self.assertEqual(self.routines_in('trva(x); // trvb\n/* trvc */ f("trvd")'), {"trva"})
        tests = Path(__file__).resolve().parents[1].glob("*/*_test.cpp")
        named = self.routines_in("\n".join(test.read_text() for test in tests))
        routines = {routine.name for routine in headers.routines_of(headers.read_all())}
        self.assertEqual(routines - named, set())


if __name__ == "__main__":
    unittest.main()
