"""What the pages say of the library, found out from the library when they are built.

The role {checked}`text <expression>` shows the text. The expression gives what the library does, in
the names of this file and those of the Python binding, or what a contract says of it; if the text
says something else the build fails. Numbers may be rounded, units are converted, formulas are worked
out, other words must be the same; of what a contract says the text has some words, in their order.
"""

import re
import runpy
import sys
from contextlib import redirect_stdout
from dataclasses import dataclass
from functools import cache
from io import StringIO
from math import cos, hypot, log2, pi, sin, sqrt, tan

import model

sys.path.insert(0, str(model.ROOT / "build/manual/tasks/py"))  # which run.py puts there

import numpy as np  # noqa: E402

import trelvin  # noqa: E402

# --- text against fact ----------------------------------------------------------------------------

UNITS = {  # what one of the unit that a fact is in makes of each unit that may be written
    "": {},
    "radians": {"degrees": 180 / pi, "mm a metre": 1000, "pi": 1 / pi},
    "mm": {"cm": 0.1, "m": 0.001},
    "mm²": {"m²": 1e-6},
    "N/mm²": {},
    "times": {"%": 100},
}
WRITTEN = sorted({u for unit, others in UNITS.items() for u in (unit, *others) if u}, key=len)
NUMBER = re.compile(r"(?<![\w.])[-+]?\d+(?:,\d{3})*(?:\.\d+)?(?:e[-+]?\d+)?(?![\w.]*\w)")
CAREFUL = re.compile(  # a page's numbers and the words of sign, sense and unit
    NUMBER.pattern + r"|[-+][xyz]\b|\b(?:(?:counter-)?clockwise|(?:left|right)-handed(?:ly)?|radians?"
    r"|degrees?|positive(?:ly)?|negative|upwards?|downwards?|above|below|left|right(?! angle)|top"
    r"|bottom|smaller|larger|square|cube|half|twice|double|cosine)\b")
NAMED = re.compile(
    r"\b[Aa]x[ei]s [12]\b|\bEN [\d-]+(?:, [\d.]+)?|\b[Tt]able [\d.]+|\bindex \d+|\bWhat is left\b")


class Quote(str):
    """What a contract says."""


@dataclass
class Formula:
    """What a formula must give: pairs of the values of its names, and of its own."""

    samples: list


def _written(text):
    """The numbers of a text: number as it is written, and unit."""
    text = re.sub(r"(?<!\d )\bpi\b", "1 pi", text)
    for match in NUMBER.finditer(text):
        rest = text[match.end() :].lstrip(" ")
        units = [u for u in WRITTEN if rest.startswith(u) and not re.match(r"[\w²³]", rest[len(u) :])]
        yield match.group().replace(",", ""), units[-1] if units else ""


def _rounds_to(value, text):
    digits, _, exponent = text.partition("e")
    unit = 10.0 ** (int(exponent or 0) - len(digits.partition(".")[2]))
    return abs(value - float(text)) <= 0.5000001 * unit


def _difference_of_numbers(text, fact):
    written = list(_written(text))
    fact = fact * len(written) if len(fact) == 1 else fact
    if len(written) != len(fact) or not written:
        return f"{len(fact)} numbers, {fact}"
    for (number, unit), given in zip(written, fact):
        value, of = given if isinstance(given, tuple) else (given, "")
        factors = {of: 1} | UNITS[of] | ({"": 1} if float(number) == 0 else {})
        if unit not in factors:
            return f"{value} {of}"
        if not _rounds_to(value * factors[unit], number):
            return f"{value * factors[unit]:.6g} {unit}"
    return None


MATHEMATICS = {f.__name__: f for f in (sqrt, sin, cos, tan)} | {"pi": pi}


def calculated(formula, names):
    """The value of a formula as it is written on paper."""
    text = formula.replace("·", "*").replace("²", "**2").replace("³", "**3").replace("^", "**")
    text = re.sub(r"(?<=[\w)]) (?=[A-Za-z(])|(?<=\d)(?=[A-Z])", "*", text.strip())
    return eval(text, MATHEMATICS | names)


def _difference_of_formula(text, fact):
    for names, value in fact.samples:
        given = [calculated(side, names) for side in text.split(" = ")]
        for one in given:
            if not abs(one - value) <= 2e-4 * abs(value) + 1e-9:
                return f"{value:.6g} where {names}, not {one:.6g}"
    return None


def _whole(words):
    """An expression for words that are no part of a longer word or number."""
    return (r"(?<![\w.-])" * words[0].isalnum() + re.escape(words)
            + r"(?!\.?\d)" * words[-1].isalnum())


def _is_quoted(text, quote):
    """Whether the words of a text stand in a quote in this order."""
    words = re.findall(r"[^\s,]+", text.replace("²", "^2").replace("³", "^3"))
    return re.search(".*?".join(map(_whole, words)), quote, re.IGNORECASE)


def difference(text, fact):
    """What is wrong with a text, or None."""
    if isinstance(fact, Formula):
        return _difference_of_formula(text, fact)
    if isinstance(fact, Quote):
        return None if _is_quoted(text, fact) else f"'{fact}'"
    fact = [fact] if isinstance(fact, (int, float)) else fact
    if isinstance(fact, list):
        *equal, text = text.split(" = ")
        for side in equal:  # what can be worked out by hand must give the last side
            if not _rounds_to(calculated(side, {}), NUMBER.match(text).group()):
                return f"{calculated(side, {}):.6g} = {side}"
        return _difference_of_numbers(text, fact)
    return None if text.lower() == str(fact).lower() else f"'{fact}'"


def value(expression):
    names = vars(trelvin) | MATHEMATICS | globals()
    return eval(expression, names)


def careful(text):
    """The numbers and words of a text that need a fact to stand on."""
    return CAREFUL.findall(NAMED.sub("", text))


# --- facts ------------------------------------------------------------------------------------------


def angle(*radians):
    return [(value, "radians") for value in radians]


def length(*mm):
    return [(value, "mm") for value in mm]


def area(mm2):
    return [(mm2, "mm²")]


def share(value):
    return [(value, "times")]


def sign(value):
    return "positive" if value > 0 else "negative"


def limit(holds, low=1e-9, high=1.0):
    """Where what holds at `low` ends, between there and `high`, as far as single precision tells."""
    assert holds(low) and not holds(high)
    for _ in range(60):
        middle = sqrt(low * high)
        low, high = (middle, high) if holds(middle) else (low, middle)
    return low


@cache
def _contracts():
    """The text of every contract, and that of calling.h."""
    interface = model.read()
    return {r.name: r.text for r in interface.routines} | {"calling": interface.conventions}


def told(name, phrase):
    """The number behind a phrase of a contract."""
    return float(NUMBER.search(_contracts()[name].partition(phrase)[2]).group())


def says(names, phrase):
    """A phrase that the contracts of some routines have word by word."""
    for name in names.split():
        if not re.search(_whole(phrase), _contracts()[name]):
            raise LookupError(f"not in the contract of {name}: {phrase}")
    return Quote(phrase)


# Where trvaxe turns a normal, and the factor of trvefr.
TOWARDS = ("oriented towards +y if the y component of (P1 - P0) x (P2 - P0) is above the tolerance, "
           "else towards +z if the z component is, else towards +x")
FACTOR = "0.5 up to c/bp = 0.35, and 0.5 + (c/bp - 0.35)^2/3 up to 0.6"

# Senses: by where a point goes that is turned by half a radian.

ORIGIN = (0, 0, 0)
ABOUT = {"trvrotx": "yz", "trvroty": "zx", "trvrotz": "xy"}  # from the first towards the second


def _around(routine, mode):
    """Where a point on the first axis goes along the second."""
    point = [[float(axis == ABOUT[routine][0])] for axis in "xyz"]
    return getattr(getattr(trelvin, routine)(mode, *point, 0.5), ABOUT[routine][1])[0]


def goes(routine, mode):
    """From which axis to which a rotation turns."""
    first, second = ABOUT[routine] if _around(routine, mode) > 0 else ABOUT[routine][::-1]
    return f"{first} to {second}"


def way(positive):
    return "counter-clockwise" if positive > 0 else "clockwise"


def hand(positive):
    return "right-handed" if positive > 0 else "left-handed"


def rotation(routine, mode):
    if routine == "trvrot":
        return way(trelvin.trvrot(mode, [1], [0], 0.5).y[0])
    return hand(_around(routine, mode))


def modes(routine, sense):
    """The modes in which a rotation has a sense."""
    found = [mode for mode in range(-3, 9) if rotation(routine, mode) == sense]
    return "mode 1" if found == [1] else "any other mode" if 1 not in found else "every mode"


def beside(a, b, _):
    """The side of a line to which its normal points; of one that is steep, left or right."""
    return ("above" if b > 0 else "below") if abs(b) > abs(a) else "right" if a > 0 else "left"


def side_of_axis(vector):
    """The axis that a unit vector is, with its sign."""
    at = max(range(3), key=lambda i: abs(vector[i]))
    return f"{'+' if vector[at] > 0 else '-'}{'xyz'[at]}"


def column(*third):
    """The sense of e2 of a column upwards, with the third point on either side of it."""
    found = {side_of_axis(tuple(trelvin.trvaxe(0, 0, 0, 0, 3, 0, *(s * v for v in third)))[3:6])
             for s in (1, -1)}
    return found.pop() if len(found) == 1 else "either sign"


# Limits.


@cache
def task(name):
    """The variables of the program of a task, once it has run."""
    with redirect_stdout(StringIO()):
        return runpy.run_path(model.ROOT / f"build/manual/tasks/py/{name}.py")


def parallel():
    """The angle up to which directions count as parallel; the same for planes and three points."""
    found = [limit(lambda p: trelvin.trvdir(1, 0, 0, cos(p), sin(p), 0) == 1),
             limit(lambda p: trelvin.trvdirp(0, 0, 1, 0, sin(p), 0, cos(p), 0) == 3),
             limit(lambda p: trelvin.trvpsl(0, 0, 0, 2, 0, 0, 1, tan(p / 2), 0) == 3)]
    assert max(found) - min(found) < 2e-5, found
    return angle(found[0])


def tolerance():
    """Of a length, and of a product of two."""
    return [limit(lambda r: trelvin.trvcer3(0, 0, r, 0, 1).status == 0),
            limit(lambda r: trelvin.trvlni(1, 0, 0, 1, r, 0).status != 0)]


def spacing(x):
    """Of a Real and its neighbour."""
    return float(np.spacing(np.float32(x)))


def digits():
    """Of a Real, in bits."""
    return 1 - int(log2(spacing(1)))


def spare():
    """What an outline of n vertices comes back with."""
    return Formula([({"n": n}, len(trelvin.trvspl(range(n), range(n)).x)) for n in (3, 7)])


def to_local():
    """The mode of trvtrn that gives the coordinates of a point in a frame."""
    frame = 0, 1, 0, -1, 0, 0, 0, 0, 1  # e1 is y, e2 is -x
    return next(mode for mode in (0, 1) if trelvin.trvtrn([0, 5, 0], *frame, mode)[0] == 5)


def metres_lost(mm):
    """Two lines at a right angle by points some mm apart, in m, are the same."""
    lines = *trelvin.trvln3(0, 0, mm / 1000, 0), *trelvin.trvln3(0, 0, 0, mm / 1000)
    assert trelvin.trvlni(*lines).status == trelvin.TrvlniStatus.SAME_LINE
    return length(mm)


def near_x():
    """How far the points are off a circle of radius 250 that a line of slope 1 to 1000 cuts."""
    a, b, c = 1, -1000, 199700
    result = trelvin.trvlci(a, b, c, *trelvin.trvcer(300, 200, 250))
    swapped = trelvin.trvlci(b, a, c, *trelvin.trvcer(200, 300, 250))
    assert abs(hypot(swapped.y1 - 300, swapped.x1 - 200) - 250) < 0.01
    return [a, -b], [250, hypot(result.x1 - 300, result.y1 - 200) - 250]


def small_angles(name, radians, phrase):
    """An angle, and the share that a contract tells behind a phrase; tests measure it."""
    return [(radians, "radians"), (told(name, phrase) / 100, "times")]


def planes(a, b, c, d=None):
    """The relation of a plane to z = -1."""
    return trelvin.trvdirp(0, 0, 1, 1, a, b, c, c if d is None else d)


def floors():
    return [300000, 300002, trelvin.trvdirp(0, 0, 1, -300000, 0, 0, 1, -300002)]


def found_parallel(ratio):
    """The share of random triangles whose plane is not found to be that of one so much larger."""
    p0, u, w = np.random.default_rng(1).uniform(-10, 10, (3, 3, 2000))
    small = trelvin.batch(trelvin.trvpl1, *p0, *(p0 + u), *(p0 + w))
    large = trelvin.batch(trelvin.trvpl1, *p0, *(p0 + ratio * u), *(p0 + ratio * w))
    relation = trelvin.batch(trelvin.trvdirp, *large[:4], *small[:4])
    return float(np.mean(relation < 3))


# Sections.

ANGLE = [0, 80, 80, 10, 10, 0], [0, 0, 10, 10, 120, 120]  # that of docs/calls/principal-angle.calls
SQUARE = [0, 2, 2, 0], [0, 0, 2, 2]


def of_angle(name):
    """A figure of ANGLE by a formula of its area and of its moments about the origin."""
    found = task("principal-angle")
    names = {"A": found["area"], "Sx": found["sx"], "Sy": found["sy"], "Ix": found["jx"],
             "Iy": found["jy"], "Ixy": found["jxy"], "ix": found["ix"], "iy": found["iy"],
             "ixy": found["ixy"], "xs": (800 * 40 + 1100 * 5) / 1900,  # of two rectangles
             "ys": (800 * 5 + 1100 * 65) / 1900}
    return Formula([(names, names[name])])


def written_outlines():
    """The sense of all outlines of trvsec_rhs, cells too."""
    result = trelvin.trvsec_rhs(200, 100, 8, 0)
    starts = [sum(result.nv[:i]) for i in range(result.np)]
    areas = [trelvin.trvapl(result.X[s : s + n], result.Y[s : s + n]).area
             for s, n in zip(starts, result.nv)]
    assert len(areas) == 2 and result.sign.tolist() == [1, -1]
    return "counter-clockwise" if min(areas) > 0 else "clockwise" if max(areas) < 0 else "either"


def principal_samples():
    """tan(2 alpha) from what the library makes of moments."""
    names = "Ix", "Iy", "Ixy", "alpha"
    moments = [(*m, trelvin.trvinp(*m).alpha) for m in ((5, 2, 1), (2, 5, 1), (3, 4, -1), (8, 1, -2))]
    return Formula([(dict(zip(names, each)), tan(2 * each[3])) for each in moments])


def principal_range():
    """The least and the greatest alpha, in turns by degrees of one flat section."""
    moments = [(3 + 2 * cos(p), 3 - 2 * cos(p), 2 * sin(p)) for p in range(400)]
    alphas = [trelvin.trvinp(*each).alpha for each in moments]
    return angle(min(alphas), max(alphas))


# Plates, torsion, lines.


def reduction():
    """Of the flange of docs/calls/plate.calls."""
    return task("plate")["be1"] / 300


def slenderness():
    """From the reduction, by the clause's (slenderness - 0.22) / slenderness^2."""
    return (1 + sqrt(1 - 4 * 0.22 * reduction())) / (2 * reduction())


def bar_of(ratio):
    """By how much a wall's constant exceeds that of a bar: its share."""
    return share(100 * 20**3 / 3 * (100 / ratio / 20) ** 3
                 / trelvin.trvmxt_fb(100 / ratio, 100).It - 1)


def mirrored(name):
    """A coordinate of the image in docs/calls/mirror.calls, by a formula of its other variables."""
    found = task("mirror")
    return Formula([(found | {"x": found["px"], "y": found["py"]}, found[name])])
