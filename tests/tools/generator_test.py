"""What the generator reads from contracts, and what it must never change."""

import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))

import check_rooms  # noqa: E402
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
        committed = entries.committed_ordinals()
        self.assertEqual(
            [committed[name] for name in ("trv123", "_trv123@44", "trvpds")], [1, 2, 161]
        )
        new = headers.Routine("trvaaa", "plane", "", [headers.Argument("x", "TrvIn")])
        grown = entries.ordinals([new] + routines, committed)
        self.assertEqual(committed, {name: grown[name] for name in committed})
        last = max(committed.values())
        self.assertEqual([grown["trvaaa"], grown["_trvaaa@4"]], [last + 1, last + 2])

    def test_bodies_end_where_they_end(self):
        text = "TRELVIN_ROUTINE a(int x) { x; }\nTRELVIN_ROUTINE b(int x) {\n  if (x) {\n  }\n}\n"
        text += "\nvoid c() {\n}\n"
        self.assertEqual([name for name, _ in entries.bodies_of(text)], ["a", "b"])
        self.assertNotIn("void", entries.bodies_of(text)[1][1])


class Rooms(unittest.TestCase):
    def test_a_room_stands_on_those_below_it(self):
        def faults(room, line):
            return len(list(check_rooms.faults_of((room, "x.cpp"), line + "\n")))

        self.assertEqual(faults("space", '#include "sections/plates.h"'), 0)
        self.assertEqual(faults("lists", '#include "properties/polygons.h"'), 1)
        self.assertEqual(faults("plane", '#include "space/planes.h"'), 1)
        self.assertEqual(faults("plane", "void f(TrvIn x);  // TrvOut"), 1)
        self.assertEqual(faults("cellar", ""), 1)


class Tests(unittest.TestCase):
    def test_every_routine_has_a_unit_test(self):
        tests = Path(__file__).resolve().parents[1].glob("*/*_test.cpp")
        named = set(re.findall(r"\btrv\w+", " ".join(test.read_text() for test in tests)))
        routines = {routine.name for routine in headers.routines_of(headers.read_all())}
        self.assertEqual(routines - named, set())


# --- outcomes: what comes of a family that is made up, in a copy of the tree ------------------------

THINGS = """/**
 * @file
 * Things.
 */

/**
 * Adds terms.
 *
 * Retains: nothing.
 *
 * @param[in]    A       array of n+1: terms
 * @param[inout] n       number of terms, at least 0
 * @param[out]   len     sum; unwritten when status is 0
 * @param[out]   LIST    array of 2*n, count used: positions
 * @param[out]   count   number of positions
 * @param[out]   status  0 refused; 1 done; 2 to 4 as many; 7 on the plane
 */
TRELVIN_ROUTINE trvsum(TrvArrayIn A, TrvIntInOut n, TrvOut len, TrvIntArrayOut LIST, TrvIntOut count,
                       TrvIntOut status);
"""
WRITTEN = {
    "src/entries/Trelvin.def": 'trvsum = trvsum@24 @285 "_trvsum@24" = trvsum@24 @286',
    "tests/routines.inc": """ROUTINE(trvsum, 6, "A n len LIST count status") SIZE(trvsum, 0, count(1) + 1)
        LEAST(trvsum, 1, 0) SIZE(trvsum, 3, 2 * count(1)) STATUS(trvsum, 5, none, 0, 1, 2, 3, 4, 7)""",
    "bindings/fortran/trelvin.F90": """real(c_float), intent(in) :: A(*)
        integer(c_int32_t), intent(inout) :: n real(c_float), intent(inout) :: len
        integer(c_int32_t), intent(inout) :: LIST(*), count
        integer(c_int32_t), intent(out) :: status end subroutine""",
    "bindings/pascal/trelvin.pas": """A: TTrvReals; var n: LongInt; var len: Single;
        var LIST: TTrvIntegers; var count: LongInt; out status: LongInt);""",
    "bindings/csharp/Trelvin.cs": """trvsum([In] float[] A, ref int n, ref float len,
        [In, Out] int[] LIST, ref int count, ref int status);""",
    "bindings/node/trelvin.mjs": """routine("trvsum", ["in real A[n+1]", "inout int n >= 0", "out real len",
        "out int LIST[2*n, count used]", "out int count", "out int status"]);""",
    "bindings/python/trelvin/_routines.py": """0: 'refused', 1: 'done', 2: 'as many', 3: 'as many',
        4: 'as many', 7: 'on the plane', }, },""",
    "docs/routines.md": "| `trvsum` | A n len LIST count status | Adds terms. |",
}
FAULTS = [  # in the made-up header: what is changed, and what the generator tells then
    ("array of n+1: terms", "terms", "trvsum: A: "),
    ("2 to 4 as many", "else as many", "trvsum: status: "),
    ("Retains: nothing.", "", "trvsum: no line `Retains"),
    ("@param[in]    A ", "@param[out]   A ", "A is in, its contract says out"),
    ("@param[out]   count ", "@param[out]   cnt ", "describes cnt, which is no argument"),
    ("TrvOut len", "Float len", "len has the unknown type Float"),
    ("TrvIntOut status);", "TrvIntOut status, TrvIn (*f)(TrvIn));", "1 declarations are not understood"),
    ("Adds terms.", "Adds terms", "no sentence in its first paragraph"),
    ("@file\n * Things.", "@file", "no title behind its @file"),
    ("trvsum(", "trvpds(", "trvpds: declared more than once"),
]


class Outcomes(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        for name in ("include", "tools", "src/entries", "bindings", "examples"):
            shutil.copytree(headers.ROOT / name, cls.root / name)
        for name in ("README.md", "docs/routines.md", "tests/routines.inc", "tests/hosts/digest.txt"):
            (cls.root / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(headers.ROOT / name, cls.root / name)
        (cls.root / "include/trelvin/things.h").write_text(THINGS)
        body = THINGS[THINGS.index("TRELVIN_ROUTINE") :].replace(";\n", " {\n  const Door door;\n}\n")
        (cls.root / "src/entries/things.cpp").write_text(body)

    def generate(self, *options):
        command = [sys.executable, self.root / "tools/generate.py", *options]
        return subprocess.run(command, capture_output=True, text=True)

    def include(self, text):
        all_of_them = self.root / "include/trelvin/trelvin.h"
        all_of_them.write_text(all_of_them.read_text().replace("#endif", f"{text}\n#endif"))

    def test_what_is_written_and_what_is_told(self):
        told = self.generate("--check")
        self.assertEqual(told.returncode, 1)
        self.assertIn("things.h: trelvin.h does not include it", told.stderr)
        self.include('#include "trelvin/things.h"')
        told = self.generate("--check")
        self.assertEqual(told.returncode, 1)
        self.assertIn("Trelvin.cs is out of date", told.stderr)
        self.assertEqual(self.generate().returncode, 0)
        for file, text in WRITTEN.items():
            written = " ".join((self.root / file).read_text().split())
            self.assertIn(" ".join(text.split()), written, file)
        self.assertEqual(self.generate("--check").returncode, 0)
        for old, new, words in FAULTS:
            (self.root / "include/trelvin/things.h").write_text(THINGS.replace(old, new))
            told = self.generate("--check")
            self.assertEqual((told.returncode, words in told.stderr), (1, True), (new, told.stderr))


if __name__ == "__main__":
    unittest.main()
