"""What the pages say of the library, found out from the library when they are built.

The role {checked}`text <expression>` shows the text. The expression gives what the library does, in
the names of this file and those of the Python binding; where the text says something else the build
fails. Numbers may be rounded, units are converted, formulas are worked out, words must be the same.
"""

import re
import runpy
import sys
from contextlib import redirect_stdout
from dataclasses import dataclass
from functools import cache
from io import StringIO
from math import cos, hypot, isnan, log2, nan, pi, sin, sqrt, tan

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


def difference(text, fact):
    """What is wrong with a text, or None."""
    if isinstance(fact, Formula):
        return _difference_of_formula(text, fact)
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


def says(name, phrase):
    """A phrase, if the contract has it word by word."""
    return phrase if phrase in _contracts()[name] else f"no '{phrase}' in the contract of {name}"


def status(name, words):
    """The value whose name or meaning has these words in the contract."""
    routine = next(routine for routine in model.read().routines if routine.name == name)
    values = [v.number for a in routine.named_values() for v in a.values.values
              if words in (v.name, v.meaning) or words in v.meaning]
    return values[0] if len(values) == 1 else f"no single value of {name} with '{words}'"


# Senses: by where a point goes that is turned by half a radian.

X, Y, Z = [[1], [0], [0]], [[0], [1], [0]], [[0], [0], [1]]
ORIGIN, AXES = (0, 0, 0), (0, 0, 0, 1, 0, 0, 0, 1, 0)


ABOUT = {"trvrotx": "yz", "trvroty": "zx", "trvrotz": "xy"}  # from the first towards the second


def _around(routine, mode):
    """Where a point on the first axis goes along the second."""
    point = {"x": X, "y": Y, "z": Z}[ABOUT[routine][0]]
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


def other(side):
    return {"left": "right", "right": "left"}[side]


def turns(routine):
    """The senses about x, y and z of a routine that turns about three axes."""
    senses = []
    for i, (point, to) in enumerate(((Y, 2), (Z, 0), (X, 1))):
        angles = [0.5 * (i == axis) for axis in range(3)]
        call = {"trvptr": lambda: trelvin.trvptr(*point, *ORIGIN, *angles),
                "trvptrl": lambda: trelvin.trvptrl(*AXES, *point, *ORIGIN, *angles),
                "trvppc": lambda: trelvin.trvppc(*AXES, *ORIGIN, *angles, *point, 5)}
        result = call[routine]()
        senses.append(hand((result.X, result.Y, result.Z)[to][0]))
    return senses


def turns_about(sense, *routines):
    """Those of the three axes about which all of the routines have a sense."""
    names = [[n for n, s in zip("xyz", turns(routine)) if s == sense] for routine in routines]
    assert all(each == names[0] for each in names)
    return f"{sense} about {' and '.join(names[0])}"


def sense(*routines):
    """The sense of a positive angle, the same in all of the routines."""
    (found,) = {SENSES[routine]() for routine in routines}
    return found


UNEQUAL = [0, 0], [0, 0], [80, 0], [0, 120], [10, 10]  # plates of an angle
ARC = 0, 0, -3, 4, 3, 4  # centre, and the ends of a chord along x
SENSES = {
    "trvpra": lambda: hand(trelvin.trvpra(*ORIGIN, 1, 0, 0, *Y, 0.5).Z[0]),
    "trvaxel": lambda: hand(trelvin.trvaxel(*ORIGIN, 1, 0, 0, angle=0.5).e2z),
    "trvpl7": lambda: hand(-trelvin.trvpl7(*AXES, 0.5).b * trelvin.trvpl7(*AXES, 0).c),
    "trvcer3": lambda: way(trelvin.trvcer3(0, 0, 1, 0, 0.5).yr),
    "trvln1": lambda: way(-(lambda a, b, c: a * b)(*trelvin.trvln1(0, 0, 0.5))),
    "trvcer4": lambda: way(trelvin.trvcer4(*ARC, 3, 1.2).xo),
    "trvcer7": lambda: way(trelvin.trvcer7(*ARC, 3, 1, 0.1, 1.2).xo),
    "trvcer10": lambda: way(3 + trelvin.trvcer10(*ARC, -0.5, 1.2).xo),
    "trvcer5": lambda: way(-trelvin.trvcer5(0, 0, -5, 0, 5, 0, 5, 1, 1).yo),
    "trvenv": lambda: way(trelvin.trvenv(0, 0, 1, 0, 0.5).ymax),
    "trvchi": lambda: way(2 - trelvin.trvchi(*ORIGIN, 1, 0, 0, 0, 1, 0).chi),
    "trvinp": lambda: turned_axis()[0],
    "trvmxt": lambda: _of_plates(),
}


def turned_axis():
    """The sense of alpha, and the axis that the x axis becomes by it."""
    ix, iy, ixy = principal_of_rectangles()
    result = trelvin.trvinp(ix, iy, ixy)
    return "counter-clockwise" if result.alpha * ixy * (iy - ix) > 0 else "clockwise", \
        1 if abs(_about(result.alpha, ix, iy, ixy) - result.i1) < 1e-3 * ix else 2


def _about(alpha, ix, iy, ixy):
    """The moment about the x axis turned counter-clockwise."""
    return ix * cos(alpha) ** 2 - 2 * ixy * sin(alpha) * cos(alpha) + iy * sin(alpha) ** 2


def _of_plates():
    result = trelvin.trvmxt(*UNEQUAL)
    assert abs(result.alpha) > 0.01
    fits = [abs(_about(s * result.alpha, result.Ix, result.Iy, result.Ixy) - result.I1)
            < 1e-3 * result.I1 for s in (1, -1)]
    return {(True, False): "counter-clockwise", (False, True): "clockwise"}[tuple(fits)]


def axes_of_space():
    """Of the frame whose e1 and e2 are x and y."""
    return hand(trelvin.trvaxel(*ORIGIN, 1, 0, 0, 0).e3z)


def fibres():
    """Of what fibres Wx1, Wx2, Wy1 and Wy2 are: where most area is at small y, that of large y is
    the lesser one."""
    upright = [-30, 0, 0], [0, 0, 0], [0, 30, 0], [0, 0, 80], [8, 8, 8]  # a T upside down
    lying = upright[1], upright[0], upright[3], upright[2], upright[4]
    by_height, by_width = trelvin.trvmxt(*upright), trelvin.trvmxt(*lying)
    return ("top and the bottom" if by_height.Wx1 < by_height.Wx2 else "bottom and the top",
            "right and the left" if by_width.Wy1 < by_width.Wy2 else "left and the right")


def axis(name):
    """Where the axes of a profile point, as the contract names its fibres."""
    first = says("trvmxt", f"elastic moduli of the {fibres()[name == 'x']} fibre").split()[4:5]
    return {"top": "upwards", "bottom": "downwards"}.get(first[0], first[0])


def beside(line):
    """The side of the line to which its normal points, seen along the way on from (0, 0) to (1, 0),
    or for one along y seen upwards."""
    a, b, _ = line
    return ("above" if b > 0 else "below") if abs(b) > abs(a) else "right" if a > 0 else "left"


def right_of(x, y):
    """The side of the normal of trvln3's line from the origin to (x, y)."""
    a, b, _ = trelvin.trvln3(0, 0, x, y)
    return "left" if x * b - y * a > 0 else "right"


def normals_of_angles():
    """On which side the normals of trvln1 and trvln4 are: of all directions, and of the vertical."""
    slanted = [beside(trelvin.trvln1(0, 0, phi)) for phi in (-3, -2, -1, 0, 1, 2, 3, 4, 4.5)]
    slanted += [beside((a, -abs(b), 0)) if b < 0 else "above" for a, b, _ in
                (trelvin.trvln4(0, 0, x, y, 0) for x, y in ((1, 3), (-1, 3), (-1, -1), (1, -2)))]
    upright = {beside(trelvin.trvln1(0, 0, pi / 2)), beside(trelvin.trvln1(0, 0, -pi / 2)),
               *(beside(trelvin.trvln4(0, 0, 0, y, 0)) for y in (1, -1))}
    below = [trelvin.trvlds(0, -9, *trelvin.trvln1(0, 0, phi)) > 0 for phi in (-3, 0, 1, 4)]
    return ["below" if all(below) and "above" not in slanted else "?", *upright]


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


def compared_with(*routines):
    (found,) = {told(routine, "compared with") for routine in routines}
    return found


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


def side_of_normal():
    """The sign of the distance of a point to which the normal (1, 2) of a line points."""
    return trelvin.trvlds(1, 2, 1, 2, 0)


def column_axes():
    """The axes of a column by trvaxel: NaN but for e1; a turn about it by trvpra gives NaN."""
    axes = trelvin.trvaxel(*ORIGIN, 0, 3, 0, angle=0)
    assert isnan(axes.e2x) and isnan(trelvin.trvpra(*ORIGIN, 0, 3, 0, *X, angle=1).X[0])
    assert trelvin.trvaxe(*ORIGIN, 0, 3, 0, 0, 0, 1).e2z == 1
    return axes


def on_line(beside, length_of_line):
    """Whether a point beside the middle of a line makes no plane with its ends."""
    ends = 0, 0, 0, length_of_line, 0, 0
    assert trelvin.trvpl1(*ends, length_of_line / 2, beside, 0).status == 3
    return length(beside, length_of_line)


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


def range_of_phi():
    return angle(trelvin.trvphi(0, 0, 1, 0, 1, 0), trelvin.trvphi(0, 0, 1, 0, -1, 0))


def range_of_chi():
    return angle(trelvin.trvchi(*ORIGIN, *UX, *UX).chi, trelvin.trvchi(*ORIGIN, *UX, 1, -1e-6, 0).chi)


UX, UY, UZ = (1, 0, 0), (0, 1, 0), (0, 0, 1)


def normals_of_chi():
    """The axes about which trvchi turns counter-clockwise; y goes before z, and z before x."""
    quarter = [trelvin.trvchi(*ORIGIN, *a, *b).chi for a, b in ((UZ, UX), (UX, UY), (UY, UZ))]
    before = [trelvin.trvchi(*ORIGIN, *a, *b).chi  # of the normals (0, 1, -5) and (-5, 0, 1)
              for a, b in ((UX, (0, -5, -1)), ((1, 0, 5), UY))]
    signs = ["+" if chi < pi else "-" for chi in quarter]
    return "{}y, else {}z, else {}x".format(*signs) if max(before) < pi else "no axis"


def crossing(*lines):
    return trelvin.trvlni(*lines).status


def cut_at(height):
    """The number of points of a line along x and a circle of radius 1."""
    return trelvin.trvlci(0, 1, -height, *trelvin.trvcer(0, 0, 1)).n


def first_point():
    """Of the points of a circle and a line that is upright, and along x."""
    up, flat = (trelvin.trvlci(*line, 0, *trelvin.trvcer(0, 0, 1)) for line in ((1, 0), (0, 1)))
    return ("larger y" if up.y1 > up.y2 else "smaller y",
            "larger x" if flat.x1 > flat.x2 else "smaller x")


def touched(mm):
    """A circle that a line through its centre touches, in metres."""
    assert trelvin.trvlci(1, 0.5, 0, *trelvin.trvcer(0, 0, mm / 1000)).n == 1
    return length(mm)


def corner(radius):
    """The status of a corner that is straight."""
    return trelvin.trvard(0, 0, 5, 0, 10, 0, radius).status


def flat_chord():
    """The number of centres on a chord along x."""
    (n,) = {trelvin.trvcer2(0, 0, 2, 0, 1, 5).n, trelvin.trvcer1(0, 0, 2, 0, 1, 0.5).n}
    return n


def inside(x):
    return trelvin.trvpin(*SQUARE, x, 1, 9, 9).status


def on_outline():
    """Where the point is that stands for one on an upright edge, and on an edge along x."""
    left, right, low, high = (trelvin.trvpin(*SQUARE, *p, 9, 9).status
                              for p in ((0, 1), (2, 1), (1, 0), (1, 2)))
    return ({(1, 0): "right", (0, 1): "left"}[left, right],
            {(1, 0): "above", (0, 1): "below"}[low, high])


def edges():
    """The vertices at which edges of SQUARE end: what crosses below and on the right."""
    found = [trelvin.trvpin(*SQUARE, 1, 1, *out).EDGE[0] for out in ((1, -1), (3, 1))]
    return Formula([({"i": found[0]}, 2), ({"i": found[1]}, 3)])


def upright():
    """Where e2 of an axis points, and what e3 is of e1 and e2."""
    axes = tuple(trelvin.trvaxel(*ORIGIN, 4, 1, 2, 0))
    (a, b, c), (d, e, f), e3 = axes[:3], axes[3:6], axes[6:9]
    cross = b * f - c * e, c * d - a * f, a * e - b * d
    is_cross = max(abs(p - q) for p, q in zip(cross, e3)) < 1e-6
    return side_of_axis(axes[3:6]), "e3 = e1 x e2" if is_cross else "e3 = e2 x e1"


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


def second_moments(x, y):
    """Ix, Iy and Ixy of an outline about its centroid."""
    area = trelvin.trvapl(x, y).area
    first, second = trelvin.trvspl(x, y), trelvin.trvipl(x, y)
    sx, sy = first.sx, first.sy
    return second.ix - sx * sx / area, second.iy - sy * sy / area, second.ixy - sx * sy / area


def centroid(name, moment):
    """A coordinate of the centroid from a first moment, by the area's own definition."""
    first = trelvin.trvspl(*ANGLE)
    names = {"A": 1900, "Sx": first.sx, "Sy": first.sy}
    x, y = (800 * 40 + 1100 * 5) / 1900, (800 * 5 + 1100 * 65) / 1900  # of two rectangles
    return Formula([(names | {"xs": x, "ys": y}, {"xs": x, "ys": y}[name])])


def product(x, y):
    """Ixy of a square about a point."""
    return trelvin.trvipl([x, x + 0.5, x + 0.5, x], [y, y, y + 0.5, y + 0.5]).ixy


def area(mm2):
    return [(mm2, "mm²")]


def i1_is_larger():
    principal_range()
    return "Ix is larger than Iy"


def listed(wanted):
    """The sense in which outlines have an area of a sign."""
    signs = {sign(trelvin.trvapl(*SQUARE).area): "counter-clockwise",
             sign(trelvin.trvapl(*CLOCKWISE).area): "clockwise"}
    return signs[wanted]


def written_outlines():
    """The sense of all outlines of trvsec_rhs, cells too."""
    result = trelvin.trvsec_rhs(200, 100, 8, 0)
    starts = [sum(result.nv[:i]) for i in range(result.np)]
    areas = [trelvin.trvapl(result.X[s : s + n], result.Y[s : s + n]).area
             for s, n in zip(starts, result.nv)]
    assert len(areas) == 2 and result.sign.tolist() == [1, -1]
    return "counter-clockwise" if min(areas) > 0 else "clockwise" if max(areas) < 0 else "either"


def spare_vertex():
    """The position of the vertex that comes back behind the last one."""
    x = [7, 8, 9]
    return x.index(trelvin.trvspl(x, [0, 0, 1]).x[3]) + 1


def flat_bar():
    """The vertices of which trvsec_b tells, and those that it writes."""
    result = trelvin.trvsec_b(5, 7, 0)
    return result.nv[0], sum(not isnan(x) for x in result.X)


def solid():
    """How a solid is listed, and its factor."""
    return "counter-clockwise", 1 if part(SQUARE, 1) == "positive" else -1


def printed_of_hole():
    """Of docs/calls/hole.calls: where axis 1 falls, and whether its moment is the smaller one."""
    found = task("hole")
    assert (found["i1"] < found["i2"]) == (found["ix"] < found["iy"])
    return ("right" if found["alpha"] < 0 else "left",
            "smaller" if found["i1"] < found["i2"] else "larger")


def kind(words):
    """The kind of a part that the contract describes so."""
    return status("trvair", words)


def hole():
    """How a hole is listed, and its factor."""
    return "counter-clockwise" if parts()[0] == "taken off" else "clockwise", -1


def added():
    return "clockwise" if parts()[1] == "added" else "counter-clockwise", -1


ANGLE = [0, 80, 80, 10, 10, 0], [0, 0, 10, 10, 120, 120]  # an unequal one
SQUARE = [0, 2, 2, 0], [0, 0, 2, 2]
CLOCKWISE = [0, 0, 2, 2], [0, 2, 2, 0]


def part(outline, factor):
    """The area of a polygon as a part of a section."""
    return sign(trelvin.trvair(*outline, 2, 0, factor, 0).area)


def parts():
    """Of what makes the factor -1: of an outline counter-clockwise, and clockwise."""
    taken = {"positive": "added", "negative": "taken off"}
    return [taken[part(outline, -1)] for outline in (SQUARE, CLOCKWISE)]


def principal(ix, iy, ixy):
    result = trelvin.trvinp(ix, iy, ixy)
    mean, half = (ix + iy) / 2, (ix - iy) / 2
    c, s = cos(2 * result.alpha), sin(2 * result.alpha)
    assert abs(mean + half * c - ixy * s - result.i1) < 1e-3 * mean  # about x turned by alpha
    return result


def principal_samples():
    """tan(2 alpha) from what the library makes of moments."""
    moments = [(5, 2, 1), (2, 5, 1), (3, 4, -1), (8, 1, -2)]
    return Formula([({"Ix": a, "Iy": b, "Ixy": c, "alpha": principal(a, b, c).alpha},
                     tan(2 * principal(a, b, c).alpha)) for a, b, c in moments])


def principal_range():
    """The least and the greatest alpha, in turns by degrees of one flat section."""
    moments = [(3 + 2 * cos(p), 3 - 2 * cos(p), 2 * sin(p)) for p in range(400)]
    alphas = [principal(*each).alpha for each in moments]
    assert all((m[0] > m[1]) == (principal(*m).i1 > principal(*m).i2) for m in moments)
    return angle(min(alphas), max(alphas))


def about_centroid(which):
    """Samples of the moments about the centroid from those about the origin."""
    x, y = [v + 7 for v in ANGLE[0]], [v - 9 for v in ANGLE[1]]
    first, second = trelvin.trvspl(x, y), trelvin.trvipl(x, y)
    names = {"A": trelvin.trvapl(x, y).area, "Sx": first.sx, "Sy": first.sy, "Ix": second.ix,
             "Iy": second.iy, "Ixy": second.ixy}
    return Formula([(names, principal_of_rectangles()[which])])


def principal_of_rectangles():
    """Ix, Iy and Ixy of ANGLE, by hand from its two rectangles: width, height, centre."""
    rectangles = [(80, 10, 40, 5), (10, 110, 5, 65)]
    area = sum(w * h for w, h, _, _ in rectangles)
    xs = sum(w * h * x for w, h, x, _ in rectangles) / area
    ys = sum(w * h * y for w, h, _, y in rectangles) / area
    return [sum(w * h * (h * h / 12 + (y - ys) ** 2) for w, h, _, y in rectangles),
            sum(w * h * (w * w / 12 + (x - xs) ** 2) for w, h, x, _ in rectangles),
            sum(w * h * (x - xs) * (y - ys) for w, h, x, y in rectangles)]


# Plates.

STEEL = sqrt(355), sqrt(235)


def strength():
    return [(told("trvro2", "reference strength: sqrt("), "N/mm²")]


def compression():
    """The sign of the stresses that make a plate buckle."""
    assert isnan(trelvin.trvef2(600, 600, 8, *STEEL, -100, -100).be1)  # unwritten
    return 1 if trelvin.trvef2(600, 600, 8, *STEEL, 355, 355).be1 < 300 else -1


def flange():
    """Effective width of the flange of docs/calls/plate.calls."""
    return trelvin.trvef2(600, 600, 8, *STEEL, 355, 355)


def roots():
    """What r1 and r2 of the plate routines are: those with which a reduction is that of the clause."""
    slenderness = 600 / 8 / (28.4 * sqrt(235 / 355) * 2)
    rho = (1 - 0.22 / slenderness) / slenderness
    given = {"square roots": STEEL, "strengths": (355, 235)}
    widths = {name: (trelvin.trvef2(600, 600, 8, *r, 355, 355).be1, trelvin.trvefr(30, 100, 2, *r),
                     trelvin.trvro2(600, 8, *r, 1, 4)) for name, r in given.items()}
    return next(name for name, each in widths.items() if abs(each[2] - rho) < 1e-5
                and abs(each[0] - 300 * rho) < 0.01)


def reduction():
    return flange().be1 / 300


def slenderness():
    """From the reduction, by the clause's (slenderness - 0.22) / slenderness^2."""
    return (1 + sqrt(1 - 4 * 0.22 * reduction())) / (2 * reduction())


def whole_widths():
    return Formula([({"w": 300}, w) for w in trelvin.trvef2(1200, 300, 8, *STEEL, 100, -301)])


def first_fold():
    """The factor that stands when no call came before."""
    return 0 if says("trvefr", "zero after loading") == "zero after loading" else nan


def web():
    """Parts of the compressed width of a web in bending that stay at each edge."""
    narrow = trelvin.trvef2(1200, 1, 100, *STEEL, 355, -284)
    return [narrow.be1, narrow.be2]


def fold(ratio):
    """The buckling factor of trvefr, found by what is left of a slender fold."""
    c = ratio * 100
    return next(ks for ks in _folds(ratio)
                if abs(trelvin.trvefr(c, 100, 0.4, *STEEL) - c * trelvin.trvro2(
                    c, 0.4, *STEEL, 1, ks)) < 1e-3 * c)


def _folds(ratio):
    yield 0.5 + max(0, ratio - 0.35) ** 2 / 3
    yield 0.5 + 0.83 * max(0, ratio - 0.35) ** (2 / 3)


def folds():
    """The library's factor, between its limits."""
    return Formula([({"c": r, "bp": 1}, fold(r)) for r in (0.36, 0.45, 0.5, 0.599)])


def clause():
    """The factor of EN 1993-1-3, 5.5.3.2 (5): 0.5 + 0.83 times the cube root of a square."""
    values = {0.4: 0.612647, 0.5: 0.734318, 0.6: 0.829386}  # by a desk calculator
    return Formula([({"c": r, "bp": 1}, ks) for r, ks in values.items()])


def fold_limits():
    """Where the factor of trvefr begins to grow, and where that of the call before stands."""
    first = trelvin.trvefr(30, 100, 0.4, *STEEL) / 30

    def factor(r):
        return trelvin.trvefr(100 * r, 100, 0.4, *STEEL)

    trelvin.trvefr(30, 100, 0.4, *STEEL)
    beyond = limit(lambda r: not _stands(r), 0.5, 0.9)
    assert first > 0 and factor(0.3) > 0
    return [told("trvefr", "0.5 up to c/bp"), beyond]


def _stands(ratio):
    """Whether the factor of another call before makes a difference."""
    given = []
    for before in (0.3, 0.55):
        trelvin.trvefr(100 * before, 100, 0.4, *STEEL)
        given.append(trelvin.trvefr(100 * ratio, 100, 0.4, *STEEL))
    return given[0] != given[1]


def tension_limit():
    """The ratio s2/s1 beyond which nothing is reduced."""
    def whole(r):
        return trelvin.trvef2(1200, 300, 8, *STEEL, 100, -100 * r).be1 == 150

    return -limit(lambda r: not whole(r), 1, 9)


# Torsion, lines, frames.


def governing():
    """The fibre of the lesser modulus in docs/calls/modulus.calls."""
    found = task("modulus")
    return fibres()[0].split()[0 if found["el1"] < found["el2"] else -1]


def _agrees():
    found = task("shear-centre")
    return abs(found["e0"] - found["distance"]) < 0.01 and abs(found["iw6"] / found["iwp6"] - 1) < 0.01


def inset():
    return Formula([({"t": 4}, 2 if _agrees() else nan)])


def inner(which):
    """An outer length of docs/calls/shear-centre.calls, and what it is on the centre lines."""
    found = task("shear-centre")
    lengths = [(found["flange"], found["x1"][0]), (found["depth"], found["y2"][3]),
               (found["lip"], found["y1"][0])]
    return list(lengths[which]) if _agrees() else []


def plain_lip():
    """The lip with which a channel is a plain one."""
    b, h = 76, 136
    plain = b * b / (2 * b + h) + 3 * b * b / (h + 6 * b)
    return next(lip for lip in (0, 1, 4) if abs(trelvin.trvshc_c(80, 140, lip, 4) - plain) < 0.01)


def mirrored_area():
    return sign(task("mirror")["area"])


def walls():
    """l t^3/3 of three walls, from trvmxt."""
    x1, y1, x2, y2 = [60, 0, 0], [0, 0, 120], [0, 0, 60], [0, 120, 120]
    total = trelvin.trvmxt(x1, y1, x2, y2, [4, 4, 4]).It
    one = trelvin.trvmxt([0], [0], [100], [0], [5]).It
    return Formula([({"l": 100, "t": 5}, one), ({"l": 240, "t": 4}, total)])


def bar_of(ratio):
    """By how much a wall's constant exceeds that of a bar: its share."""
    return share(100 * 20**3 / 3 * (100 / ratio / 20) ** 3
                 / trelvin.trvmxt_fb(100 / ratio, 100).It - 1)


def mirrored(which):
    """Samples of a mirrored point: by turning it about the line as complex numbers do."""
    samples = []
    for p1, p2, p in ((0j, 300 + 100j, 100 + 200j), (5 + 1j, -2 + 9j, 3 - 4j)):
        a, b, c = trelvin.trvln3(p1.real, p1.imag, p2.real, p2.imag)
        d = trelvin.trvlds(p.real, p.imag, a, b, c)
        along = (p2 - p1) / abs(p2 - p1)
        image = p1 + ((p - p1) / along).conjugate() * along
        names = {"a": a, "b": b, "d": d, "x": p.real, "y": p.imag}
        samples.append((names, (image.real, image.imag)[which]))
    return Formula(samples)


def mirror_signs():
    """What keeps its sign when ANGLE is mirrored about x or y, and what does not."""
    before = second_moments(*ANGLE)
    for x, y in (([-v for v in ANGLE[0]][::-1], ANGLE[1][::-1]),
                 (ANGLE[0][::-1], [-v for v in ANGLE[1]][::-1])):
        after = second_moments(x, y)
        assert all(abs(after[i] - before[i]) < 1e-3 * before[i] for i in (0, 1))
        assert abs(after[2] + before[2]) < 1e-3 * abs(before[2])
        assert trelvin.trvinp(*after).alpha * trelvin.trvinp(*before).alpha < 0
    return "Ixy about the centroid, and with it that of alpha; Ix and Iy remain"


def side_of_axis(vector):
    """The axis that a unit vector is, with its sign."""
    at = max(range(3), key=lambda i: abs(vector[i]))
    return f"{'+' if vector[at] > 0 else '-'}{'xyz'[at]}"


def column(*third):
    """The sense of e2 of a column upwards, with the third point on either side of it."""
    found = {side_of_axis(tuple(trelvin.trvaxe(0, 0, 0, 0, 3, 0, *(s * v for v in third)))[3:6])
             for s in (1, -1)}
    return found.pop() if len(found) == 1 else "either sign"


def normal_of(*points):
    """The axis to which trvaxe turns the normal of three points, in either order."""
    p0, p1, p2 = points
    found = {side_of_axis(tuple(trelvin.trvaxe(*p0, *a, *b))[6:9]) for a, b in ((p1, p2), (p2, p1))}
    return found.pop() if len(found) == 1 else "either sign"


def normals():
    """Towards which axes the normal of trvaxe is turned: in the planes of zx, xy and yz."""
    o, x, y, z = ORIGIN, (1, 0, 0), (0, 1, 0), (0, 0, 1)
    return f"{normal_of(o, z, x)}, else {normal_of(o, x, y)}, else {normal_of(o, y, z)}"
