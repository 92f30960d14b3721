"""The routines. Generated from include/trelvin by tools/generate.py."""

from __future__ import annotations

from enum import IntEnum
from typing import TYPE_CHECKING, Callable, NamedTuple

from ._call import Routine

if TYPE_CHECKING:
    from numpy import float32, int32
    from numpy.typing import ArrayLike, NDArray

_NAN = float("nan")

__all__ = [
    "TrvStatus", "TrvArc", "TrvFrame", "TrvCoincidence", "TrvPoints", "TrvComponents",
    "TrvOnLine", "TrvOnPlane", "TrvPlaneLines", "TrvThreePoints", "TrvLines", "TrvTwoLines",
    "TrvPart", "TrvcinPosition", "TrvappMark", "Trvcer10Status", "Trvptp1Status",
    "TrvpinStatus", "Trvcnt1Status", "TrvvinStatus", "Trvpos1Status", "TrvphipStatus",
    "TrvcnvStatus", "TrvdirCode", "TrvdirpCode", "TrvppcStatus", "Trvpl5Status", "TrvplvStatus",
    "Trv3spStatus", "TrvpliStatus", "TrvplpPosition", "TrvlpcStatus", "Trvc12N", "Trvcer2N",
    "Trvcer1N", "Trvcer3Status", "Trvcer8Status", "Trvcer6Status", "Trvcer9Status",
    "Trvarc1Status", "Trvcer4Status", "Trvcer5Status", "Trvcer7Status", "TrvardStatus",
    "TrvporStatus", "TrvcntStatus", "Trv123Status", "TrvlniStatus", "TrvlulStatus",
    "TrvpsnCode", "Trvln6Code", "Trvln6On", "Trvln7Code", "Trvln7On", "TrvchiStatus",
    "TrvtrgStatus", "TrvmxtStatus", "TrvmxtFbStatus", "TrvpslStatus", "TrvaxeStatus",
    "TrvaxelStatus", "TrvptrlStatus", "TrvpraStatus", "Trvpl1Status", "Trvpl2Status",
    "Trvpl3Status", "Trvpl4Status", "Trvpl6Status", "Trvpl7Status", "TrvpspgStatus",
    "TrvdirlStatus", "Trv3lniStatus", "trvcer", "TrvcerResult", "trvlci", "TrvlciResult",
    "trvc12", "Trvc12Result", "trvcer2", "Trvcer2Result", "trvcer1", "Trvcer1Result", "trvcin",
    "TrvcinResult", "trvcer3", "Trvcer3Result", "trvcer8", "Trvcer8Result", "trvcer6",
    "Trvcer6Result", "trvcer9", "Trvcer9Result", "trvarc1", "Trvarc1Result", "trvaxph",
    "trvhin", "TrvhinResult", "trvapp", "trvcer4", "Trvcer4Result", "trvcer10",
    "Trvcer10Result", "trvcer5", "Trvcer5Result", "trvcer7", "Trvcer7Result", "trvard",
    "TrvardResult", "trvenv", "TrvenvResult", "trvord", "trvord1", "trvordi", "trvpor",
    "TrvporResult", "trvorv", "TrvorvResult", "trvsel1", "Trvsel1Result", "trvmer13",
    "Trvmer13Result", "trvmer1", "Trvmer1Result", "trvmer11", "Trvmer11Result", "trvmer2",
    "Trvmer2Result", "trvmer3", "Trvmer3Result", "trvmer12", "Trvmer12Result", "trvmer4",
    "Trvmer4Result", "trvmer14", "Trvmer14Result", "trvmer15", "Trvmer15Result", "trvmer16",
    "Trvmer16Result", "trvptp1", "Trvptp1Result", "trvptp2", "Trvptp2Result", "trvppp",
    "TrvpppResult", "trvpin", "TrvpinResult", "trvpds", "trvpri", "trvpre", "trvcnt",
    "TrvcntResult", "trvcnt1", "trv123", "Trv123Result", "trvmed", "TrvmedResult", "trvdtr2",
    "trvdtr3", "trvgrc", "TrvgrcResult", "trvint", "trvvin", "trvpos", "trvpos1",
    "Trvpos1Result", "trvln3", "Trvln3Result", "trvln1", "Trvln1Result", "trvln4",
    "Trvln4Result", "trvln2", "Trvln2Result", "trvln5", "Trvln5Result", "trvlds", "trvlni",
    "TrvlniResult", "trvlul", "TrvlulResult", "trvpsn", "trvln6", "Trvln6Result", "trvln7",
    "Trvln7Result", "trvphi", "trvphi3", "trvphi1", "trvphip", "TrvphipResult", "trvchi",
    "TrvchiResult", "trvcnv", "trvtrg", "TrvtrgResult", "trvdir", "trvdirp", "trvmov",
    "TrvmovResult", "trvtra", "TrvtraResult", "trvinv", "trvadr", "TrvadrResult", "trvapl",
    "TrvaplResult", "trvspl", "TrvsplResult", "trvipl", "TrviplResult", "trvacp",
    "TrvacpResult", "trvicp", "TrvicpResult", "trvair", "TrvairResult", "trvstm",
    "TrvstmResult", "trvinm", "TrvinmResult", "trvinp", "TrvinpResult", "trvinr", "trvro2",
    "trvefr", "trvef2", "Trvef2Result", "trvsec_ia", "TrvsecIaResult", "trvsec_h",
    "TrvsecHResult", "trvsec_t", "TrvsecTResult", "trvsec_b", "TrvsecBResult", "trvsec_h1b",
    "TrvsecH1bResult", "trvsec_box", "TrvsecBoxResult", "trvsec_rhs", "TrvsecRhsResult",
    "trvsec_l2", "TrvsecL2Result", "trvsec_tab", "TrvsecTabResult", "trvsec_h2b",
    "TrvsecH2bResult", "trvsec_i", "TrvsecIResult", "trvsec_c", "TrvsecCResult", "trvshc_c",
    "trvwar_c", "trvmxt", "TrvmxtResult", "trvmxt_fb", "TrvmxtFbResult", "trvrot",
    "TrvrotResult", "trvrotx", "TrvrotxResult", "trvroty", "TrvrotyResult", "trvrotz",
    "TrvrotzResult", "trvpsl", "trv3tra", "Trv3traResult", "trvtrn", "trvaxe", "TrvaxeResult",
    "trvaxel", "TrvaxelResult", "trvptr", "TrvptrResult", "trvptrl", "TrvptrlResult", "trvpra",
    "TrvpraResult", "trvppc", "TrvppcResult", "trvplg", "TrvplgResult", "trvpl1",
    "Trvpl1Result", "trvpl2", "Trvpl2Result", "trvpl3", "Trvpl3Result", "trvpl4",
    "Trvpl4Result", "trvpl5", "Trvpl5Result", "trvpl6", "Trvpl6Result", "trvpl7",
    "Trvpl7Result", "trvpsp", "trvpld", "trvpspg", "trvplv", "trvpnp", "TrvpnpResult",
    "trvdirl", "trv3sp", "trv3ldb", "Trv3ldbResult", "trv3lda", "Trv3ldaResult", "trv3lni",
    "Trv3lniResult", "trvpli", "TrvpliResult", "trvplp", "trvpnl", "TrvpnlResult", "trvlpc",
    "TrvlpcResult"
]

MEANINGS: dict[str, dict[str, dict[int, str]]] = {
    "trvlci": {
        "n": {
            0: 'the line misses the circle',
            1: 'the line touches the circle',
            2: 'the line cuts the circle',
        },
    },
    "trvc12": {
        "n": {
            0: 'the circles have no common point, or are concentric: |D2 - D1| + |E2 - E1| is within the tolerance',
            1: 'the circles touch',
            2: 'the circles cut each other',
        },
    },
    "trvcer2": {
        "n": {
            0: 'P1 = P2 exactly, r is at most 1e-5 or less than half the chord, the discriminant is NaN, or the chord is horizontal',
            1: 'both candidates are the same point',
            2: 'there are two points',
        },
    },
    "trvcer1": {
        "n": {
            0: 'h < 1e-5, P1 = P2 exactly, r is at most 1e-5 or less than half the chord, the discriminant is NaN, or the chord is horizontal',
            1: 'both candidates are the same point',
            2: 'there are two points',
        },
    },
    "trvcin": {
        "position": {
            1: 'the circle is not cut, its centre is above the x axis',
            2: 'the circle is not cut, its centre is on or below the x axis',
            3: 'the circle is cut, its centre is below the x axis',
            4: 'the circle is cut, its centre is on or above the x axis',
        },
    },
    "trvcer3": {
        "status": {
            0: "the point's distance from the centre is within the tolerance",
            1: 'the outputs are computed',
        },
    },
    "trvcer8": {
        "status": {
            0: 'the radius or the chord is at most 0.001, the radii of A and B differ by more than 0.001, or the station is not more than 0.001 inside both ends of the chord',
            1: 'the outputs are computed',
        },
    },
    "trvcer6": {
        "status": {
            0: 'the radius or the chord is at most 0.001, the radii of A and B differ by more than 0.001, the station is not more than 0.001 inside both ends of the chord, or d differs from the diameter by less than 0.001',
            1: 'the outputs are computed',
        },
    },
    "trvcer9": {
        "status": {
            0: 'the radius, the chord, d, the rest of the chord beyond d or the width is at most 0.001, the radii of A and B differ by more than 0.001, or an edge of the strip is less than 0.001 inside an end of the chord',
            1: 'the outputs are computed',
        },
    },
    "trvarc1": {
        "status": {
            0: 'the radius, or the distance of A and B, is within the tolerance',
            1: 'the outputs are computed',
        },
    },
    "trvapp": {
        "mark": {
            -1: 'the angle of the rays by trvphi is within the tolerance, so all points have this value',
            1: 'the point is inside the sector',
            2: 'the point is outside the sector',
        },
    },
    "trvcer4": {
        "status": {
            0: 'the radius or the chord is within the tolerance, the radii of A and B differ by more than the tolerance, A and B coincide, or the line is tangent to the circle',
            1: 'the outputs are computed',
        },
    },
    "trvcer10": {
        "status": {
            0: "the line crosses the chord, which is the normal result, or an intersection kept from an earlier call lies on the chord's line but not at A or B (trvpsl above 2), or the input is rejected, since the radius or the chord is within the tolerance or the radii of A and B differ by more than the tolerance",
            1: 'the line runs along the chord',
            2: 'the line is parallel to the chord',
        },
    },
    "trvcer5": {
        "status": {
            0: 's is negative, e, the radius, the chord or its rest beyond s is at most 1e-5, the radii of A and B differ by more than 1e-5, or the line is tangent to the circle',
            1: 'the outputs are computed',
        },
    },
    "trvcer7": {
        "status": {
            0: "s or e is negative, the radius or the chord's rest beyond s is at most 1e-4, the radii of A and B differ by more than 1e-4 and the rounding, side is 0, the line is parallel to the chord, or the part of the line inside the circle is not longer than 2e-4",
            1: 'the outputs are computed',
        },
    },
    "trvard": {
        "status": {
            0: 'r or the length of a segment is not above the tolerance, the sine of the angle between the segments is within the tolerance, or a tangent point lies beyond the end of its segment by more than the tolerance',
            1: 'the outputs are computed',
        },
    },
    "trvpor": {
        "status": {
            -1: 'the lines are not a family of parallel and distinct lines, or n < 1',
            0: 'IDX holds the order',
        },
    },
    "trvptp1": {
        "status": {
            0: 'no point of A matches a point of B',
            1: 'some points of A match points of B, others do not',
            2: 'every point of A matches a point of B',
        },
    },
    "trvpin": {
        "status": {
            -1: 'n < 3, or P1 and P2 coincide within the tolerance in both coordinates',
            0: 'P1 is outside the outline by the even-odd rule',
            1: 'P1 is inside the outline by the even-odd rule',
        },
    },
    "trvcnt": {
        "status": {
            0: 'a difference is above the tolerance or NaN',
            1: 'each difference is within the tolerance',
        },
    },
    "trvcnt1": {
        "status": {
            0: 'a component is not zero, or is NaN',
            1: 'all components are zero, of either sign',
        },
    },
    "trv123": {
        "status": {
            0: 'the output is written',
            1: 'P1 and P2 coincide within the tolerance (trvcnt)',
        },
    },
    "trvvin": {
        "status": {
            1: 'v is positive',
            2: 'v is zero, negative or NaN',
        },
    },
    "trvpos1": {
        "status": {
            0: 'x equals no element and lies in no interval',
            1: 'A(i) equals x within the tolerance',
            2: 'A(i) < x < A(i+1)',
        },
    },
    "trvlni": {
        "status": {
            0: 'the lines have one point in common',
            1: 'the lines are the same',
            2: 'the lines are parallel and distinct',
        },
    },
    "trvlul": {
        "status": {
            0: 'the lines have one point in common',
            1: 'the lines are the same',
            2: 'the lines are parallel and distinct, as trvlni finds',
        },
    },
    "trvpsn": {
        "code": {
            0: 'no component is above the tolerance',
            1: 'all three components are above the tolerance',
            2: 'only the first component is above the tolerance',
            3: 'only the second component is above the tolerance',
            4: 'only the third component is above the tolerance',
            5: 'only the first and the second are above the tolerance',
            6: 'only the second and the third are above the tolerance',
            7: 'only the first and the third are above the tolerance',
        },
    },
    "trvln6": {
        "code": {
            0: 'no component is above the tolerance',
            1: 'all three components are above the tolerance',
            2: 'only the first component is above the tolerance',
            3: 'only the second component is above the tolerance',
            4: 'only the third component is above the tolerance',
            5: 'only the first and the second are above the tolerance',
            6: 'only the second and the third are above the tolerance',
            7: 'only the first and the third are above the tolerance',
        },
        "on": {
            0: 'P does not lie on the line, or code is 0',
            1: 'P lies on the line',
        },
    },
    "trvln7": {
        "code": {
            0: 'no component is above the tolerance',
            1: 'all three components are above the tolerance',
            2: 'only the first component is above the tolerance',
            3: 'only the second component is above the tolerance',
            4: 'only the third component is above the tolerance',
            5: 'only the first and the second are above the tolerance',
            6: 'only the second and the third are above the tolerance',
            7: 'only the first and the third are above the tolerance',
        },
        "on": {
            0: 'P does not match the line at the kept coordinate',
            1: 'P matches the line at the kept coordinate',
        },
    },
    "trvphip": {
        "status": {
            -1: "a direction's length is within the tolerance",
        },
    },
    "trvchi": {
        "status": {
            0: 'the output is written',
            1: 'P1 or P2 coincides with P0 (trvcnt)',
        },
    },
    "trvcnv": {
        "status": {
            -1: 'n < 3, or the length of a side is within the tolerance',
            0: 'the outline is not convex, or winds more than once',
            1: 'the outline is convex',
        },
    },
    "trvtrg": {
        "status": {
            0: 'the output is written',
            1: 'P1 and P2, or P3 and P4, coincide (trvcnt)',
        },
    },
    "trvdir": {
        "code": {
            0: 'u and v have neither the same, opposite nor perpendicular directions',
            1: 'the directions are the same',
            2: 'the directions are opposite',
            3: 'the directions are perpendicular',
            4: 'all components of u, or of v, are within the tolerance',
        },
    },
    "trvdirp": {
        "code": {
            0: 'the planes cross, not at a right angle',
            1: 'the planes are parallel and distinct, their normals in the same direction',
            2: 'the planes are parallel and distinct, their normals opposite',
            3: 'the planes coincide, their normals in the same direction',
            4: 'the planes coincide, their normals opposite',
            5: 'the planes are perpendicular',
            6: 'a normal is zero',
        },
    },
    "trvmxt": {
        "status": {
            -1: 'n < 1, a coordinate or a thickness is infinite or NaN, or a length or a thickness is not above the tolerance',
            0: 'the outputs are computed',
        },
    },
    "trvmxt_fb": {
        "status": {
            -1: 'a side is infinite, NaN or not above the tolerance',
            0: 'the outputs are computed',
        },
    },
    "trvpsl": {
        "status": {
            0: 'P0, P1 and P2 span a plane',
            1: 'P2 is at P0',
            2: 'P2 is at P1',
            3: 'P2 is between P0 and P1',
            4: 'P2 is beyond P0 on the line of P0 and P1',
            5: 'P2 is beyond P1 on the line of P0 and P1',
        },
    },
    "trvaxe": {
        "status": {
            -2: 'P2 is at P0 or P1, or the three points are on one line (trvpsl)',
            0: 'the outputs are computed',
        },
    },
    "trvaxel": {
        "status": {
            -2: 'the distance of P0 and P1 is within the tolerance',
            0: 'also for an axis along y',
        },
    },
    "trvptrl": {
        "status": {
            -2: 'P2 is at P0 or P1, or the three points are on one line (trvpsl)',
            0: 'the outputs are computed',
        },
    },
    "trvpra": {
        "status": {
            -2: 'the distance of P0 and P1 is within the tolerance',
            0: 'also for an axis along y',
        },
    },
    "trvppc": {
        "status": {
            -1: 'P2 is at P0 or P1, or the three points are on one line (trvpsl)',
            0: 'the points are moved',
        },
    },
    "trvpl1": {
        "status": {
            0: 'P0, P1 and P2 span a plane',
            1: 'P2 is at P0',
            2: 'P2 is at P1',
            3: 'P2 is between P0 and P1',
            4: 'P2 is beyond P0 on the line of P0 and P1',
            5: 'P2 is beyond P1 on the line of P0 and P1',
        },
    },
    "trvpl2": {
        "status": {
            0: 'also for parallel lines',
            3: 'the lines are the same, of the same direction',
            4: 'the lines are the same, of opposite direction',
            7: 'A and B, or C and D, coincide (trvcnt)',
        },
    },
    "trvpl3": {
        "status": {
            0: 'also for parallel lines',
            3: 'the lines are the same, of the same direction',
            4: 'the lines are the same, of opposite direction',
            7: 'A and B, or C and D, coincide (trvcnt)',
        },
    },
    "trvpl4": {
        "status": {
            0: 'the plane is computed',
            1: 'A and B coincide within the tolerance in each coordinate (trvcnt)',
        },
    },
    "trvpl5": {
        "status": {
            0: 'the plane is computed',
            1: 'there is no plane, since an intercept is within the tolerance or NaN',
        },
    },
    "trvpl6": {
        "status": {
            0: 'also for parallel lines',
            3: 'the lines are the same, of the same direction',
            4: 'the lines are the same, of opposite direction',
            6: 'the lines are skew',
            7: 'all components of a direction are within the tolerance',
        },
    },
    "trvpl7": {
        "status": {
            0: 'P0, P1 and P2 span a plane',
            1: 'P2 is at P0, or P0 and P0 + normal coincide (trvcnt)',
            2: 'P2 is at P1',
            3: 'P2 is between P0 and P1',
            4: 'P2 is beyond P0 on the line of P0 and P1',
            5: 'P2 is beyond P1 on the line of P0 and P1',
        },
    },
    "trvpsp": {
        "status": {
            -1: 'the point does not lie on the plane, or the three points span no plane (trvpsl)',
            0: 'the point lies on the plane, or P0 = P1, for which any point does',
        },
    },
    "trvpspg": {
        "status": {
            -1: 'the point does not lie on the plane, or the distance is NaN',
            0: 'the point lies on the plane',
            1: 'the normal of the plane is exactly zero',
        },
    },
    "trvplv": {
        "status": {
            -1: 'u is exactly zero',
            0: 'u and w have neither the same, opposite nor perpendicular directions',
            3: 'the directions are the same',
            4: 'the directions are opposite',
            5: 'the directions are perpendicular',
            7: 'all components of u, or of w, are within the tolerance',
        },
    },
    "trvdirl": {
        "status": {
            0: 'the lines cross, not at a right angle',
            1: 'parallel and distinct lines of the same direction',
            2: 'parallel and distinct lines of opposite direction',
            3: 'the same line, of the same direction',
            4: 'the same line, of opposite direction',
            5: 'the lines cross at a right angle',
            6: 'the lines are skew',
            7: 'A and B, or C and D, coincide, each coordinate within the tolerance',
        },
    },
    "trv3sp": {
        "status": {
            0: 'the triple product of B - A, D - C and F - E is within the tolerance',
            1: 'the triple product is above the tolerance, in the cube of the length unit',
        },
    },
    "trv3ldb": {
        "status": {
            0: 'always',
        },
    },
    "trv3lda": {
        "status": {
            0: 'always',
        },
    },
    "trv3lni": {
        "status": {
            0: 'also for parallel lines',
            3: 'the lines are the same, of the same direction',
            4: 'the lines are the same, of opposite direction',
            6: 'the lines are skew',
            7: 'all components of a direction are within the tolerance',
        },
    },
    "trvpli": {
        "status": {
            0: 'the point is computed',
            3: 'the line is parallel to the plane, since the cosine of the angle between u and the normal is within the tolerance',
            4: 'all components of u, or of the normal, are within the tolerance',
        },
    },
    "trvplp": {
        "position": {
            1: 'the plane is parallel to no axis',
            2: 'the plane is parallel to the x axis',
            3: 'the plane is parallel to the y axis',
            4: 'the plane is parallel to the z axis',
            5: 'the plane is normal to the z axis',
            6: 'the plane is normal to the x axis',
            7: 'the plane is normal to the y axis',
            8: 'the plane is z = 0',
            9: 'the plane is x = 0',
            10: 'the plane is y = 0',
        },
    },
    "trvpnl": {
        "status": {
            0: 'always',
        },
    },
    "trvlpc": {
        "status": {
            0: 'the three points are not collinear, or Q1 is at P',
            3: 'Q2 is moved, Q1 and Q2 are on one side of P',
            4: 'Q2 is moved, Q1 and Q2 are on either side of P',
            6: 'Q2 is moved, although the lines count as skew because of rounding',
            7: "Q2 is moved, Q2 coincides with P, or each coordinate of Q1 is within the tolerance of P's although their distance is above it",
        },
    },
}


class TrvStatus(IntEnum):
    """Whether a computation was done."""

    DONE = 0
    REFUSED = -1
    ORDERED = DONE  # of version 1.1


class TrvArc(IntEnum):
    """Whether a point of an arc was found. Caution: here 1 means done."""

    DONE = 1
    REFUSED = 0


class TrvFrame(IntEnum):
    """Whether a frame was found."""

    DONE = 0
    NO_FRAME = -2


class TrvCoincidence(IntEnum):
    """Whether two points coincide: each difference of their coordinates is within the
    tolerance."""

    DISTINCT = 0
    COINCIDENT = 1
    EACH_DIFFERENCE_IS_WITHIN_THE_TOLERANCE = COINCIDENT  # of version 1.1
    DONE = DISTINCT  # of version 1.1
    P1_AND_P2_COINCIDE_WITHIN_THE_TOLERANCE = COINCIDENT  # of version 1.1


class TrvPoints(IntEnum):
    """How many points were found."""

    NONE = 0
    ONE = 1
    TWO = 2
    CIRCLES_TOUCH = ONE  # of version 1.1
    THEY_CUT_EACH_OTHER = TWO  # of version 1.1
    BOTH_CANDIDATES_ARE_THE_SAME_POINT = ONE  # of version 1.1


class TrvComponents(IntEnum):
    """Which of three components are above the tolerance."""

    NONE = 0
    ALL = 1
    FIRST = 2
    SECOND = 3
    THIRD = 4
    FIRST_SECOND = 5
    SECOND_THIRD = 6
    FIRST_THIRD = 7
    FIRST_AND_SECOND = FIRST_SECOND  # of version 1.1
    SECOND_AND_THIRD = SECOND_THIRD  # of version 1.1
    FIRST_AND_THIRD = FIRST_THIRD  # of version 1.1
    ALL_ARE = ALL  # of version 1.1
    X = FIRST  # of version 1.1
    Y = SECOND  # of version 1.1
    Z = THIRD  # of version 1.1
    X_AND_Y = FIRST_SECOND  # of version 1.1
    Y_AND_Z = SECOND_THIRD  # of version 1.1
    X_AND_Z = FIRST_THIRD  # of version 1.1
    EX = FIRST  # of version 1.1
    EY = SECOND  # of version 1.1
    EZ = THIRD  # of version 1.1
    EX_AND_EY = FIRST_SECOND  # of version 1.1
    EY_AND_EZ = SECOND_THIRD  # of version 1.1
    EX_AND_EZ = FIRST_THIRD  # of version 1.1


class TrvOnLine(IntEnum):
    """Whether a point lies on a line of space."""

    NO = 0
    YES = 1
    P_LIES_ON_THE_LINE = YES  # of version 1.1
    P_AGREES_WITH_THE_LINE_AT_THE_STATION = YES  # of version 1.1


class TrvOnPlane(IntEnum):
    """Whether a point lies on a plane. Caution: 0 means yes."""

    YES = 0
    NO = -1
    ZERO_NORMAL = 1
    NORMAL_IS_EXACTLY_ZERO = ZERO_NORMAL  # of version 1.1


class TrvPlaneLines(IntEnum):
    """How two lines of the plane lie to each other."""

    ONE_POINT = 0
    SAME_LINE = 1
    PARALLEL = 2
    PARALLEL_AND_DISTINCT = PARALLEL  # of version 1.1
    THEY_CROSS = ONE_POINT  # of version 1.1


class TrvThreePoints(IntEnum):
    """Three-point test (trvpsl): where P2 is, seen from P0 and P1."""

    SPANS_PLANE = 0
    AT_P0 = 1
    AT_P1 = 2
    BETWEEN = 3
    BEYOND_P0 = 4
    BEYOND_P1 = 5
    THEY_DO = SPANS_PLANE  # of version 1.1
    P2_IS_AT_P0 = AT_P0  # of version 1.1
    P2_IS_AT_P1 = AT_P1  # of version 1.1
    P2_IS_BETWEEN_P0_AND_P1 = BETWEEN  # of version 1.1
    P2_IS_BEYOND_P0_ON_THEIR_LINE = BEYOND_P0  # of version 1.1
    P2_IS_BEYOND_P1 = BEYOND_P1  # of version 1.1
    DONE = SPANS_PLANE  # of version 1.1


class TrvLines(IntEnum):
    """How two lines of space lie to each other (trvdirl)."""

    CROSSING = 0
    PARALLEL_SAME = 1
    PARALLEL_OPPOSITE = 2
    SAME_LINE = 3
    OPPOSITE_LINE = 4
    PERPENDICULAR = 5
    SKEW = 6
    COINCIDENT = 7
    THEY_CROSS_AT_A_RIGHT_ANGLE = PERPENDICULAR  # of version 1.1


class TrvTwoLines(IntEnum):
    """Outcome for two lines of space: a result, or the relation that allows no result."""

    DONE = 0
    SAME_LINE = 3
    OPPOSITE_LINE = 4
    SKEW = 6
    NO_LENGTH = 7
    LINES_ARE_SKEW = SKEW  # of version 1.1


class TrvPart(IntEnum):
    """Kind of a part of a section."""

    CONCENTRATED = 1
    POLYGON = 2
    CIRCLE = 3
    SMALLER_SEGMENT = 4
    LARGER_SEGMENT = 5


class TrvcinPosition(IntEnum):
    """trvcin: class."""

    UNCUT_ABOVE = 1
    UNCUT_BELOW = 2
    CUT_BELOW = 3
    CUT_ABOVE = 4


class TrvappMark(IntEnum):
    """trvapp: where each point is."""

    INSIDE = 1
    OUTSIDE = 2
    NO_SECTOR = -1


class Trvcer10Status(IntEnum):
    """trvcer10: outcome."""

    CROSSING_OR_REFUSED = 0
    ALONG_CHORD = 1
    PARALLEL = 2
    LINE_RUNS_ALONG_THE_CHORD = ALONG_CHORD  # of version 1.1


class Trvptp1Status(IntEnum):
    """trvptp1: which points of A match a point of B."""

    NO_PAIR = 0
    SOME_PAIRS = 1
    ALL_PAIRED = 2
    SOME_POINTS_OF_A_HAVE_A_PARTNER = SOME_PAIRS  # of version 1.1
    EVERY_POINT_OF_A_HAS_ONE = ALL_PAIRED  # of version 1.1


class TrvpinStatus(IntEnum):
    """trvpin: where P1 is."""

    INSIDE = 1
    OUTSIDE = 0
    REFUSED = -1


class Trvcnt1Status(IntEnum):
    """trvcnt1: test."""

    ZERO = 1
    NONZERO = 0
    ALL_COMPONENTS_ARE_ZERO_OF_EITHER_SIGN = ZERO  # of version 1.1


class TrvvinStatus(IntEnum):
    """trvvin: sign."""

    POSITIVE = 1
    NOT_POSITIVE = 2
    V_IS_POSITIVE = POSITIVE  # of version 1.1


class Trvpos1Status(IntEnum):
    """trvpos1: what was found."""

    AT_ENTRY = 1
    BETWEEN = 2
    NEITHER = 0


class TrvphipStatus(IntEnum):
    """trvphip: outcome."""

    NO_LENGTH = -1


class TrvcnvStatus(IntEnum):
    """trvcnv: test."""

    CONVEX = 1
    NOT_CONVEX = 0
    REFUSED = -1


class TrvdirCode(IntEnum):
    """trvdir: relation."""

    OBLIQUE = 0
    SAME = 1
    OPPOSITE = 2
    PERPENDICULAR = 3
    ZERO = 4
    SAME_DIRECTION = SAME  # of version 1.1


class TrvdirpCode(IntEnum):
    """trvdirp: relation."""

    CROSSING = 0
    PARALLEL_SAME = 1
    PARALLEL_OPPOSITE = 2
    COINCIDENT_SAME = 3
    COINCIDENT_OPPOSITE = 4
    PERPENDICULAR = 5
    ZERO_NORMAL = 6
    THEY_CROSS = CROSSING  # of version 1.1
    A_NORMAL_IS_ZERO = ZERO_NORMAL  # of version 1.1


class TrvppcStatus(IntEnum):
    """trvppc: outcome."""

    DONE = 0
    NO_FRAME = -1


class Trvpl5Status(IntEnum):
    """trvpl5: outcome."""

    DONE = 0
    NO_PLANE = 1


class TrvplvStatus(IntEnum):
    """trvplv: relation."""

    ZERO_U = -1
    OBLIQUE = 0
    SAME = 3
    OPPOSITE = 4
    PERPENDICULAR = 5
    ZERO = 7
    U_IS_EXACTLY_ZERO = ZERO_U  # of version 1.1
    SAME_DIRECTION = SAME  # of version 1.1


class Trv3spStatus(IntEnum):
    """trv3sp: test."""

    FLAT = 0
    SPANNING = 1
    THEY_DO_NOT = FLAT  # of version 1.1


class TrvpliStatus(IntEnum):
    """trvpli: outcome."""

    DONE = 0
    PARALLEL = 3
    ZERO = 4
    LINE_IS_PARALLEL_TO_THE_PLANE = PARALLEL  # of version 1.1


class TrvplpPosition(IntEnum):
    """trvplp: position."""

    GENERAL = 1
    PARALLEL_X = 2
    PARALLEL_Y = 3
    PARALLEL_Z = 4
    NORMAL_Z = 5
    NORMAL_X = 6
    NORMAL_Y = 7
    AT_Z_ZERO = 8
    AT_X_ZERO = 9
    AT_Y_ZERO = 10
    PARALLEL_TO_THE_X_AXIS = PARALLEL_X  # of version 1.1
    PARALLEL_TO_THE_Y_AXIS = PARALLEL_Y  # of version 1.1
    PARALLEL_TO_THE_Z_AXIS = PARALLEL_Z  # of version 1.1
    NORMAL_TO_THE_Z_AXIS = NORMAL_Z  # of version 1.1
    NORMAL_TO_THE_X_AXIS = NORMAL_X  # of version 1.1
    NORMAL_TO_THE_Y_AXIS = NORMAL_Y  # of version 1.1


class TrvlpcStatus(IntEnum):
    """trvlpc: outcome."""

    NOT_MOVED = 0
    MOVED_ONE_SIDE = 3
    MOVED_EITHER_SIDE = 4
    MOVED_SKEW = 6
    MOVED_AT_P = 7


# Names of version 1.1, which the next version drops.
Trvc12N = TrvPoints
Trvcer2N = TrvPoints
Trvcer1N = TrvPoints
Trvcer3Status = TrvArc
Trvcer8Status = TrvArc
Trvcer6Status = TrvArc
Trvcer9Status = TrvArc
Trvarc1Status = TrvArc
Trvcer4Status = TrvArc
Trvcer5Status = TrvArc
Trvcer7Status = TrvArc
TrvardStatus = TrvArc
TrvporStatus = TrvStatus
TrvcntStatus = TrvCoincidence
Trv123Status = TrvCoincidence
TrvlniStatus = TrvPlaneLines
TrvlulStatus = TrvPlaneLines
TrvpsnCode = TrvComponents
Trvln6Code = TrvComponents
Trvln6On = TrvOnLine
Trvln7Code = TrvComponents
Trvln7On = TrvOnLine
TrvchiStatus = TrvCoincidence
TrvtrgStatus = TrvCoincidence
TrvmxtStatus = TrvStatus
TrvmxtFbStatus = TrvStatus
TrvpslStatus = TrvThreePoints
TrvaxeStatus = TrvFrame
TrvaxelStatus = TrvFrame
TrvptrlStatus = TrvFrame
TrvpraStatus = TrvFrame
Trvpl1Status = TrvThreePoints
Trvpl2Status = TrvTwoLines
Trvpl3Status = TrvTwoLines
Trvpl4Status = TrvCoincidence
Trvpl6Status = TrvTwoLines
Trvpl7Status = TrvThreePoints
TrvpspgStatus = TrvOnPlane
TrvdirlStatus = TrvLines
Trv3lniStatus = TrvTwoLines


class TrvcerResult(NamedTuple):
    D: float
    E: float
    F: float


_trvcer = Routine(
    "trvcer", TrvcerResult,
    "in real xc; in real yc; in real r; out real D; out real E; out real F",
)


def trvcer(
    xc: float, yc: float, r: float
) -> TrvcerResult:
    """Circle from its centre and radius: D = -2*xc, E = -2*yc, F = xc*xc + yc*yc - r*r.

    Retains: nothing.

    Arguments:
      xc, yc: centre
      r: radius, of any sign

    Returns:
      D, E, F: circle
    """
    return _trvcer.cells(xc, yc, r, _NAN, _NAN, _NAN)


class TrvlciResult(NamedTuple):
    n: TrvPoints
    x1: float
    y1: float
    x2: float
    y2: float


_trvlci = Routine(
    "trvlci", TrvlciResult,
    "in real a; in real b; in real c; in real D; in real E; in real F; out int n; "
    "out real x1; out real y1; out real x2; out real y2",
    values=dict(n=TrvPoints)
)


def trvlci(
    a: float, b: float, c: float, D: float, E: float, F: float
) -> TrvlciResult:
    """Intersection of a line and a circle.

    If |a| is above the tolerance, the line's equation is solved for x. Otherwise the line is
    taken as horizontal. If the discriminant of the quadratic is within the tolerance, there is
    one point. The discriminant grows with the fourth power of a and b and the square of the
    radius, so a line that cuts a small circle can be reported as tangent. If it is NaN, there
    are two points with NaN.

    The smaller the line's angle to the x axis, the more digits are lost, also at the origin: if
    |a| is |b|/100 and the circle has some hundred units, points are off by about one unit. The
    same holds for trvc12, trvcer1, trvcer2 and trvcer6.

    Caution: far from the origin F loses the digits of the radius. Points of a circle of radius
    10 are off by up to 0.15 if its centre is (1000, 1000), and by up to 9 at (1e4, 1e4). At
    (1e5, 1e5) the line (3, 4, -699925) misses the circle by 5, but the routine gives two points
    97 apart. Move the origin next to the circle first (trvtra). The same holds for trvcer6,
    trvcer8 and trvcer9.

    Retains: nothing.

    Arguments:
      a, b, c: line a*x + b*y + c = 0
      D, E, F: circle

    Returns:
      n: number of points (TrvPoints): 0 none: the line misses the circle; 1 one: the line
        touches the circle; 2 two: the line cuts the circle
      x1, y1: first point, of the larger root: the larger y, or the larger x if the line is
        taken as horizontal; unwritten if n is 0
      x2, y2: second point; unwritten if n is 0 or 1

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvlci.cells(a, b, c, D, E, F, 0, _NAN, _NAN, _NAN, _NAN)


class Trvc12Result(NamedTuple):
    n: TrvPoints
    x1: float
    y1: float
    x2: float
    y2: float


_trvc12 = Routine(
    "trvc12", Trvc12Result,
    "in real D1; in real E1; in real F1; in real D2; in real E2; in real F2; out int n; "
    "out real x1; out real y1; out real x2; out real y2",
    values=dict(n=TrvPoints)
)


def trvc12(
    D1: float, E1: float, F1: float, D2: float, E2: float, F2: float
) -> Trvc12Result:
    """Intersection of two circles, computed as that of their radical line and the first circle
    (trvlci).

    Caution: far from the origin more digits are lost than in trvlci, since the radical line is
    inaccurate too. Of random pairs of intersecting circles of radius 10 near (1e4, 1e4), with
    centres 15 apart, 22 % are reported as touching or as disjoint. Move the origin next to the
    circles first (trvtra).

    Retains: nothing.

    Arguments:
      D1, E1, F1: first circle
      D2, E2, F2: second circle

    Returns:
      n: number of points (TrvPoints): 0 none: the circles have no common point, or are
        concentric: |D2 - D1| + |E2 - E1| is within the tolerance; 1 one: the circles touch; 2
        two: the circles cut each other
      x1, y1: first point, in the order of trvlci; unwritten if n is 0
      x2, y2: second point; unwritten if n is 0 or 1

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvc12.cells(D1, E1, F1, D2, E2, F2, 0, _NAN, _NAN, _NAN, _NAN)


class Trvcer2Result(NamedTuple):
    xa: float
    ya: float
    xb: float
    yb: float
    xc: float
    yc: float
    n: TrvPoints


_trvcer2 = Routine(
    "trvcer2", Trvcer2Result,
    "in real x1; in real y1; in real x2; in real y2; in int side; in real r; out real xa; "
    "out real ya; out real xb; out real yb; out real xc; out real yc; out int n",
    values=dict(n=TrvPoints)
)


def trvcer2(
    x1: float, y1: float, x2: float, y2: float, side: int, r: float
) -> Trvcer2Result:
    """Centres of the circles of a radius through two points.

    Caution: if the chord is horizontal (|y2 - y1| < 1e-5), both candidates and the chosen
    centre are written, although n is 0. Their y is NaN if the radius is less than half the
    chord.

    Caution: far from the origin digits are lost as in trvlci. Of random chords of 12 with a
    radius of 10 near (1e4, 1e4), 15 % give a wrong n, and half of the others a centre that is
    off by more than 0.9. Move the origin next to the chord first (trvtra).

    Retains: nothing.

    Arguments:
      x1, y1: P1
      x2, y2: P2
      side: positive selects the candidate to the right of the direction from P1 to P2 (trvln3,
        trvlds), negative the one to the left, zero the first candidate
      r: radius

    Returns:
      xa, ya: first candidate; unwritten on a condition: P1 = P2 exactly, r is at most 1e-5, or
        n is 0 and the chord is not horizontal
      xb, yb: second candidate; unwritten on a condition: xa is unwritten
      xc, yc: chosen centre; unwritten on a condition: xa is unwritten, or neither candidate is
        on the selected side, for example with a NaN: side times the distance (trvlds) is not at
        least 0 for the first candidate and not positive for the second
      n: number of centres (TrvPoints): 0 none: P1 = P2 exactly, r is at most 1e-5 or less than
        half the chord, the discriminant is NaN, or the chord is horizontal; 1 one: both
        candidates are the same point; 2 two: there are two points

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcer2.cells(x1, y1, x2, y2, side, r, _NAN, _NAN, _NAN, _NAN, _NAN, _NAN, 0)


class Trvcer1Result(NamedTuple):
    r: float
    xc: float
    yc: float
    n: TrvPoints


_trvcer1 = Routine(
    "trvcer1", Trvcer1Result,
    "in real x1; in real y1; in real x2; in real y2; in int side; in real h; out real r; "
    "out real xc; out real yc; out int n",
    values=dict(n=TrvPoints)
)


def trvcer1(
    x1: float, y1: float, x2: float, y2: float, side: int, h: float
) -> Trvcer1Result:
    """Circle through two points with a given sagitta.

    r = d / (2*sin(pi - 2*atan(d / (2*h)))) for the chord d, which is h/2 + d*d/(8*h). The
    centre is that of trvcer2. Far from the origin it loses as many digits.

    Retains: nothing.

    Arguments:
      x1, y1: P1
      x2, y2: P2
      side: positive selects the centre to the right of the direction from P1 to P2 (trvln3,
        trvlds), negative the one to the left, zero the first candidate of trvcer2
      h: sagitta: height of the arc above the middle of the chord

    Returns:
      r: radius; unwritten on a condition: h < 1e-5
      xc, yc: chosen centre; unwritten on a condition: h < 1e-5, or trvcer2 leaves it unwritten
        for the radius r
      n: number of centres of trvcer2 (TrvPoints): 0 none: h < 1e-5, P1 = P2 exactly, r is at
        most 1e-5 or less than half the chord, the discriminant is NaN, or the chord is
        horizontal; 1 one: both candidates are the same point; 2 two: there are two points

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcer1.cells(x1, y1, x2, y2, side, h, _NAN, _NAN, _NAN, 0)


class TrvcinResult(NamedTuple):
    position: TrvcinPosition
    x1: float
    y1: float
    x2: float
    y2: float


_trvcin = Routine(
    "trvcin", TrvcinResult,
    "in real X[2]; in real Y[2]; in real a; in real b; in real c; out int position; "
    "out real x1; out real y1; out real x2; out real y2",
    retains=True,
    values=dict(position=TrvcinPosition)
)


def trvcin(
    X: ArrayLike, Y: ArrayLike, a: float, b: float, c: float
) -> TrvcinResult:
    """Classifies a circle cut by a line, with a trace.

    Above and below refer to the centre's y, not to the line. The line decides only whether the
    circle is cut. Each call appends three lines to OUTPUT.TXT, in Windows-1253: a heading, the
    class, and its meaning, with the intersections if the circle is cut.

    The first call opens the file in the directory that is current then. The file stays open
    until the library is unloaded, even if the current directory changes or the file is renamed.
    It is never truncated, and it is complete after each call. A call appends its record in one
    write, after the records of other processes.

    Only an ordinary file is written. If OUTPUT.TXT is a directory, a pipe or a device, or if
    the record cannot be written, the call computes as always. After a failed write the file is
    closed. The next call opens it again and starts on a new line. If the file is at a limit of
    its size, the host gets no signal.

    If the host closes the file's descriptor, or if a user deletes the file, the next call opens
    OUTPUT.TXT as the first call does. If the host has opened a file of its own under the same
    descriptor, the library neither writes to that file nor closes it.

    Caution: on Windows the open file cannot be deleted or renamed, and a program that shares it
    for reading only cannot open it. The host cannot close its handle. The library synchronises
    processes by a file lock on a byte far beyond the text. If another process holds the lock
    and the file does not grow, a call waits 0.25 seconds and does not write its record. Later
    calls skip their records without waiting, until the lock is free or the file grows.

    Retains: the open trace file (trvcin).

    Arguments:
      X, Y: arrays of 2: the centre, then a point on the circle
      a, b, c: line a*x + b*y + c = 0

    Returns:
      position: class: 1 uncut_above: the circle is not cut, its centre is above the x axis; 2
        uncut_below: the circle is not cut, its centre is on or below the x axis; 3 cut_below:
        the circle is cut, its centre is below the x axis; 4 cut_above: the circle is cut, its
        centre is on or above the x axis
      x1, y1: first intersection; it and position are inaccurate far from the origin (trvlci);
        unwritten on a condition: the line misses the circle
      x2, y2: second intersection; unwritten on a condition: the line misses or touches the
        circle

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcin.call((X, Y, a, b, c))


class Trvcer3Result(NamedTuple):
    x: float
    y: float
    xr: float
    yr: float
    status: TrvArc


_trvcer3 = Routine(
    "trvcer3", Trvcer3Result,
    "in real x0; in real y0; inout real x; inout real y; in real angle; out real xr; "
    "out real yr; out int status",
    values=dict(status=TrvArc)
)


def trvcer3(
    x0: float, y0: float, x: float, y: float, angle: float
) -> Trvcer3Result:
    """Rotates a point about a centre.

    Retains: nothing.

    Arguments:
      x0, y0: centre
      x, y: point; on return it differs by rounding, because the centre is subtracted and added
        again; if status is 0, it is returned relative to the centre
      angle: angle in radians, counter-clockwise

    Returns:
      x, y: point; on return it differs by rounding, because the centre is subtracted and added
        again; if status is 0, it is returned relative to the centre
      xr, yr: rotated point; unwritten if status is 0
      status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the point's
        distance from the centre is within the tolerance

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcer3.cells(x0, y0, angle, x, y, _NAN, _NAN, 0)


class Trvcer8Result(NamedTuple):
    x: float
    y: float
    status: TrvArc


_trvcer8 = Routine(
    "trvcer8", Trvcer8Result,
    "in real xc; in real yc; in real xa; in real ya; in real xb; in real yb; in int side; "
    "in real d; out real x; out real y; out int status",
    retains=True,
    values=dict(status=TrvArc)
)


def trvcer8(
    xc: float, yc: float, xa: float, ya: float, xb: float, yb: float, side: int, d: float
) -> Trvcer8Result:
    """Point of an arc above a station of its chord, perpendicular to the chord.

    Lengths are compared with 0.001. Caution: if the perpendicular is tangent to the circle
    (trvlci gives one point), the second intersection is the one kept from an earlier call. If
    the perpendicular misses the circle, both intersections are kept from an earlier call.

    Retains: both intersections (trvcer8).

    Arguments:
      xc, yc: centre C
      xa, ya: first end A
      xb, yb: second end B
      side: selects the intersection: the first one, Q, if side * ((A - C) x (Q - C)) is
        negative, otherwise the second
      d: station: distance from A along the chord

    Returns:
      x, y: point; unwritten if status is 0
      status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the
        chord is at most 0.001, the radii of A and B differ by more than 0.001, or the station
        is not more than 0.001 inside both ends of the chord

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcer8.cells(xc, yc, xa, ya, xb, yb, side, d, _NAN, _NAN, 0)


class Trvcer6Result(NamedTuple):
    x: float
    y: float
    status: TrvArc


_trvcer6 = Routine(
    "trvcer6", Trvcer6Result,
    "in real xc; in real yc; in real xa; in real ya; in real xb; in real yb; in int side; "
    "in real d; out real x; out real y; out int status",
    retains=True,
    values=dict(status=TrvArc)
)


def trvcer6(
    xc: float, yc: float, xa: float, ya: float, xb: float, yb: float, side: int, d: float
) -> Trvcer6Result:
    """Point of an arc on the line from its centre through a station of its chord.

    Lengths are compared with 0.001. Caution: if the line is tangent to the circle (trvlci gives
    one point), the second intersection is the one kept from an earlier call. If the line misses
    the circle, both intersections are kept from an earlier call. If the station is at the
    centre, there is no line, and the point is the second intersection of an earlier call.

    Retains: both intersections (trvcer6).

    Arguments:
      xc, yc: centre C
      xa, ya: first end A
      xb, yb: second end B
      side: selects the intersection: the first one, Q, if side * ((A - C) x (Q - C)) is
        negative, otherwise the second
      d: station: distance from A along the chord

    Returns:
      x, y: point; unwritten if status is 0
      status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the
        chord is at most 0.001, the radii of A and B differ by more than 0.001, the station is
        not more than 0.001 inside both ends of the chord, or d differs from the diameter by
        less than 0.001

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcer6.cells(xc, yc, xa, ya, xb, yb, side, d, _NAN, _NAN, 0)


class Trvcer9Result(NamedTuple):
    x1: float
    y1: float
    x2: float
    y2: float
    status: TrvArc


_trvcer9 = Routine(
    "trvcer9", Trvcer9Result,
    "in real xc; in real yc; in real xa; in real ya; in real xb; in real yb; in int side; "
    "in real d; in real w; out real x1; out real y1; out real x2; out real y2; out int status",
    retains=True,
    values=dict(status=TrvArc)
)


def trvcer9(
    xc: float, yc: float, xa: float, ya: float, xb: float, yb: float, side: int, d: float,
    w: float
) -> Trvcer9Result:
    """Points of an arc above the two edges of a strip on its chord, perpendicular to the chord.

    Lengths are compared with 0.001. Caution: both edges share one pair of kept intersections.
    If a perpendicular is tangent to the circle (trvlci gives one point), the second
    intersection is that of the previous edge or call. If the perpendicular misses the circle,
    both intersections are.

    Retains: both intersections (trvcer9).

    Arguments:
      xc, yc: centre C
      xa, ya: first end A
      xb, yb: second end B
      side: selects the intersection for each edge: the first one, Q, if side * ((A - C) x (Q -
        C)) is negative, otherwise the second
      d: station of the strip's middle: distance from A along the chord
      w: width of the strip

    Returns:
      x1, y1: point above the station d - w/2; unwritten if status is 0
      x2, y2: point above the station d + w/2; unwritten if status is 0
      status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius, the
        chord, d, the rest of the chord beyond d or the width is at most 0.001, the radii of A
        and B differ by more than 0.001, or an edge of the strip is less than 0.001 inside an
        end of the chord

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcer9.cells(xc, yc, xa, ya, xb, yb, side, d, w, _NAN, _NAN, _NAN, _NAN, 0)


class Trvarc1Result(NamedTuple):
    s1: float
    s2: float
    status: TrvArc


_trvarc1 = Routine(
    "trvarc1", Trvarc1Result,
    "in real xc; in real yc; in real xa; in real ya; in real xb; in real yb; out real s1; "
    "out real s2; out int status",
    values=dict(status=TrvArc)
)


def trvarc1(
    xc: float, yc: float, xa: float, ya: float, xb: float, yb: float
) -> Trvarc1Result:
    """Lengths of the two arcs between two points of a circle.

    Caution: short arcs, and arcs close to half the circle, lose digits as the angles of trvphi
    do. Of pairs of points that lie opposite each other, 25 % give NaN. For such arcs use the
    angle chi of trvchi at the centre, with z = 0: chi times the radius is the arc from A to B
    counter-clockwise.

    Retains: nothing.

    Arguments:
      xc, yc: centre
      xa, ya: A; its distance from the centre is the radius
      xb, yb: B

    Returns:
      s1: length of the shorter arc: the angle at C (trvphi3) times the radius; unwritten if
        status is 0
      s2: length of the longer arc; unwritten if status is 0
      status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius, or the
        distance of A and B, is within the tolerance

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvarc1.cells(xc, yc, xa, ya, xb, yb, _NAN, _NAN, 0)


_trvaxph = Routine(
    "trvaxph", None,
    "in real dx; in real dy; out real phi",
)


def trvaxph(
    dx: float, dy: float
) -> float:
    """Signed angle of a direction against the x axis.

    Caution: small angles, and angles close to pi, lose digits as in trvphi, but are never NaN:
    at 3e-4 radians 48 % of random directions give 0 or pi, at 4e-4 5 %. For such angles use
    trvchi at the origin from (1, 0, 0) to (dx, |dy|, 0), with the sign of dy.

    Retains: nothing.

    Arguments:
      dx, dy: direction

    Returns:
      phi: angle in radians in [-pi, pi]: negative if dy is below -1e-5, otherwise positive or
        zero; 0 if the direction's length is within the tolerance
    """
    return _trvaxph.cells(dx, dy, _NAN)


class TrvhinResult(NamedTuple):
    h0: float
    s0: float
    h3: float
    s3: float
    len_: float


_trvhin = Routine(
    "trvhin", TrvhinResult,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real x2; "
    "in real y2; in real z2; in real x3; in real y3; in real z3; out real h0; out real s0; "
    "out real h3; out real s3; out real len_",
)


def trvhin(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float, x3: float, y3: float, z3: float
) -> TrvhinResult:
    """Distances of two points from the line of a segment, and their stations along it.

    h0 and h3 are measured in the plane of x and y; len, |P0 - P1| and |P3 - P2| are measured in
    space. If h0 is greater than |P0 - P1|, s0 is NaN; if h3 is greater than |P3 - P2|, s3 is
    NaN.

    Retains: nothing.

    Arguments:
      x0, y0, z0: P0
      x1, y1, z1: P1, start of the segment
      x2, y2, z2: P2, end of the segment
      x3, y3, z3: P3

    Returns:
      h0: distance of P0 from the line
      s0: station of the foot of P0's perpendicular, from P1: sqrt(|P0 - P1|^2 - h0^2)
      h3: distance of P3 from the line
      s3: station of the foot of P3's perpendicular, from P1: len - sqrt(|P3 - P2|^2 - h3^2)
      len_: length of the segment
    """
    return _trvhin.cells(x0, y0, z0, x1, y1, z1, x2, y2, z2, x3, y3, z3, _NAN, _NAN, _NAN, _NAN,
        _NAN)


_trvapp = Routine(
    "trvapp", None,
    "in real x0; in real y0; in real x1; in real y1; in real x2; in real y2; in int n = X Y; "
    "in real X[n]; in real Y[n]; out int mark[n]",
    retains=True,
)


def trvapp(
    x0: float, y0: float, x1: float, y1: float, x2: float, y2: float, X: ArrayLike,
    Y: ArrayLike, *, n: int | None = None
) -> NDArray[int32]:
    """Marks points as inside or outside a sector.

    A point is outside if its signed distances from the rays' lines (trvln3, trvlds) have
    opposite signs, or if the foot of its perpendicular on the first line lies beyond the vertex
    (trvpsl). A point with a NaN coordinate is marked inside. If P0 or P1 contains a NaN, all
    points are marked inside. If only P2 contains a NaN, only the position of the foot decides.

    Caution: a narrow sector can be marked as no sector, because its angle by trvphi is 0: of
    sectors of 4e-4 radians 23 % are. For sectors below 8e-4 radians, compare the signed
    distances from both rays yourself (trvln3, trvlds).

    Cost: time grows with n.

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      x0, y0: vertex P0
      x1, y1: point on the first ray
      x2, y2: point on the second ray
      n: number of points
      X, Y: arrays of n: points

    Returns:
      mark: where each point is: 1 inside: the point is inside the sector; 2 outside: the point
        is outside the sector; -1 no_sector: the angle of the rays by trvphi is within the
        tolerance, so all points have this value
    """
    return _trvapp.call((x0, y0, x1, y1, x2, y2, n, X, Y))


class Trvcer4Result(NamedTuple):
    xc: float
    yc: float
    xa: float
    ya: float
    xb: float
    yb: float
    xo: float
    yo: float
    status: TrvArc


_trvcer4 = Routine(
    "trvcer4", Trvcer4Result,
    "inout real xc; inout real yc; inout real xa; inout real ya; inout real xb; "
    "inout real yb; in real s; in real angle; out real xo; out real yo; out int status",
    retains=True,
    values=dict(status=TrvArc)
)


def trvcer4(
    xc: float, yc: float, xa: float, ya: float, xb: float, yb: float, s: float, angle: float
) -> Trvcer4Result:
    """Point of an arc on a line through a station of its chord.

    The line intersects the circle in two points. The result is the one on the other side of the
    chord than the centre; points on the chord count as on the other side. Caution: a line that
    misses the circle is not an error. The result kept from an earlier call is then used: it is
    taken as coordinates in the local frame of this chord and transformed to global ones.

    Caution: the chord is rotated onto the x axis by an angle that is as inaccurate as that of
    trvaxph. If the chord is within 4.2e-4 radians of the direction of x, it may not be rotated
    at all, and the line's direction is off by as much. For chords within 0.01 radians, rotate
    the arc by 90 degrees: pass (-y, x) for each point (x, y); the result is (yo, -xo).

    Retains: the point (trvcer4).

    Arguments:
      xc, yc: centre C; returned with its value, up to rounding; unchanged if status is 0
      xa, ya: first end A; returned with its value, up to rounding; unchanged if status is 0
      xb, yb: second end B; returned with its value, up to rounding; unchanged if status is 0
      s: station: distance from A along the chord; it may lie beyond the ends of the chord
      angle: direction of the line in radians, measured from the chord A to B, counter-clockwise
        (trvln1)

    Returns:
      xc, yc: centre C; returned with its value, up to rounding; unchanged if status is 0
      xa, ya: first end A; returned with its value, up to rounding; unchanged if status is 0
      xb, yb: second end B; returned with its value, up to rounding; unchanged if status is 0
      xo, yo: point; unwritten if status is 0
      status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the
        chord is within the tolerance, the radii of A and B differ by more than the tolerance, A
        and B coincide, or the line is tangent to the circle

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcer4.cells(s, angle, xc, yc, xa, ya, xb, yb, _NAN, _NAN, 0)


class Trvcer10Result(NamedTuple):
    xc: float
    yc: float
    xa: float
    ya: float
    xb: float
    yb: float
    xo: float
    yo: float
    status: Trvcer10Status


_trvcer10 = Routine(
    "trvcer10", Trvcer10Result,
    "inout real xc; inout real yc; inout real xa; inout real ya; inout real xb; "
    "inout real yb; in real turn; in real angle; out real xo; out real yo; out int status",
    retains=True,
    values=dict(status=Trvcer10Status)
)


def trvcer10(
    xc: float, yc: float, xa: float, ya: float, xb: float, yb: float, turn: float, angle: float
) -> Trvcer10Result:
    """Intersection of an arc's chord with a line through its rotated end.

    A is rotated about the centre; the line runs through the rotated point. Caution: if the line
    is parallel to the chord, or along it, the intersection kept from an earlier call is used,
    as coordinates in the chord's frame.

    Caution: as in trvcer4, a chord within 4.2e-4 radians of the direction of x may not be
    rotated onto the x axis, and the line's direction is off by as much. C = (5000, 1), A = (0,
    0), B = (10000, 2), turn = -0.24 and angle = pi/2 give an intersection that is off by 0.24.
    For chords within 0.01 radians, pass (-y, x) for each point (x, y); the result is (yo, -xo).

    Retains: the crossing (trvcer10); the cosine of the three-point test (trvpsl).

    Arguments:
      xc, yc: centre C; returned with its value, up to rounding; unchanged on a condition: the
        input is rejected
      xa, ya: first end A; returned with its value, up to rounding; unchanged on a condition:
        the input is rejected
      xb, yb: second end B; returned with its value, up to rounding; unchanged on a condition:
        the input is rejected
      turn: angle in radians by which A is rotated about C, counter-clockwise
      angle: direction of the line in radians, measured from the chord A to B, counter-clockwise
        (trvln1)

    Returns:
      xc, yc: centre C; returned with its value, up to rounding; unchanged on a condition: the
        input is rejected
      xa, ya: first end A; returned with its value, up to rounding; unchanged on a condition:
        the input is rejected
      xb, yb: second end B; returned with its value, up to rounding; unchanged on a condition:
        the input is rejected
      xo, yo: intersection; unwritten on a condition: the input is rejected, so set it
        beforehand if the two cases of status 0 must be told apart
      status: outcome: 0 crossing_or_refused: the line crosses the chord, which is the normal
        result, or an intersection kept from an earlier call lies on the chord's line but not at
        A or B (trvpsl above 2), or the input is rejected, since the radius or the chord is
        within the tolerance or the radii of A and B differ by more than the tolerance; 1
        along_chord: the line runs along the chord; 2 parallel: the line is parallel to the
        chord

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcer10.cells(turn, angle, xc, yc, xa, ya, xb, yb, _NAN, _NAN, 0)


class Trvcer5Result(NamedTuple):
    xc: float
    yc: float
    xa: float
    ya: float
    xb: float
    yb: float
    xo: float
    yo: float
    status: TrvArc


_trvcer5 = Routine(
    "trvcer5", Trvcer5Result,
    "inout real xc; inout real yc; inout real xa; inout real ya; inout real xb; "
    "inout real yb; in real s; in int side; in real e; out real xo; out real yo; "
    "out int status",
    retains=True,
    values=dict(status=TrvArc)
)


def trvcer5(
    xc: float, yc: float, xa: float, ya: float, xb: float, yb: float, s: float, side: int,
    e: float
) -> Trvcer5Result:
    """Point of an arc on the line from a station of its chord to a point of the sagitta.

    T is at the distance e from the chord's middle towards the arc's middle point. The line from
    the station through T intersects the circle in two points. The result is the one on T's side
    of the chord.

    Caution: a line that misses the circle is not an error. The result kept from an earlier call
    is then used: it is taken as coordinates in the local frame of this chord and transformed to
    global ones. If A and B match within the tolerance in each coordinate although their
    distance is above it, the station of an earlier call is used. The same holds for T if the
    middle points of the chord and of the arc match in this way.

    Caution: the angle ACB comes from trvphi3, so flat arcs lose the direction of T. The point
    of an arc of 0.1 radians is off by up to 5e-5 of its chord, of 0.01 radians by up to 8 %.
    Below 0.005 radians the result can be any point, NaN or a refusal. For such arcs use O of
    trvcer7, with angle = atan2(side*e, c/2 - s) for the chord c.

    Retains: the station, T and the point (trvcer5).

    Arguments:
      xc, yc: centre C; returned with its value, up to rounding; unchanged if status is 0
      xa, ya: first end A; returned with its value, up to rounding, also if the line is tangent
        to the circle; unchanged on a condition: status is 0 and the line is not tangent to the
        circle
      xb, yb: second end B; returned with its value, up to rounding; unchanged if status is 0
      s: station: distance from A along the chord, not negative
      side: factor of the half angle that rotates A clockwise to the arc's middle point
      e: distance of T from the chord

    Returns:
      xc, yc: centre C; returned with its value, up to rounding; unchanged if status is 0
      xa, ya: first end A; returned with its value, up to rounding, also if the line is tangent
        to the circle; unchanged on a condition: status is 0 and the line is not tangent to the
        circle
      xb, yb: second end B; returned with its value, up to rounding; unchanged if status is 0
      xo, yo: point; unwritten if status is 0
      status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s is negative, e,
        the radius, the chord or its rest beyond s is at most 1e-5, the radii of A and B differ
        by more than 1e-5, or the line is tangent to the circle

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcer5.cells(s, side, e, xc, yc, xa, ya, xb, yb, _NAN, _NAN, 0)


class Trvcer7Result(NamedTuple):
    xc: float
    yc: float
    xa: float
    ya: float
    xb: float
    yb: float
    xp: float
    yp: float
    xt: float
    yt: float
    xo: float
    yo: float
    len_: float
    status: TrvArc


_trvcer7 = Routine(
    "trvcer7", Trvcer7Result,
    "inout real xc; inout real yc; inout real xa; inout real ya; inout real xb; "
    "inout real yb; in real s; in int side; in real e; in real angle; out real xp; "
    "out real yp; out real xt; out real yt; out real xo; out real yo; out real len_; "
    "out int status",
    values=dict(status=TrvArc)
)


def trvcer7(
    xc: float, yc: float, xa: float, ya: float, xb: float, yb: float, s: float, side: int,
    e: float, angle: float
) -> Trvcer7Result:
    """Intersections of a line through a station of an arc's chord with the arc and with a line
    parallel to the chord.

    T is on the parallel line, at the distance e from the chord on the given side. O is on the
    circle on that side. Formed in double precision and rounded once. Lengths, and the sine of
    the angle, are compared with 1e-4. The radii of A and B may also differ by the rounding of
    the coordinates: 3.6e-7 times the largest coordinate of the arc. An input with a NaN is
    rejected.

    Retains: nothing.

    Arguments:
      xc, yc: centre C; unchanged
      xa, ya: first end A; unchanged
      xb, yb: second end B; unchanged
      s: station: distance from A along the chord, not negative
      side: only the sign is used: positive selects the side to the left of the direction from A
        to B, where the circle runs clockwise from A; negative selects the side to the right
      e: distance of the parallel line from the chord, not negative; 0 puts T at P
      angle: direction of the line in radians, measured from the chord A to B,
        counter-clockwise; the line extends both ways

    Returns:
      xc, yc: centre C; unchanged
      xa, ya: first end A; unchanged
      xb, yb: second end B; unchanged
      xp, yp: station P; unwritten if status is 0
      xt, yt: intersection T with the parallel line; unwritten if status is 0
      xo, yo: intersection O with the circle about C through A; unwritten if status is 0
      len_: length of PO; unwritten if status is 0
      status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s or e is negative,
        the radius or the chord's rest beyond s is at most 1e-4, the radii of A and B differ by
        more than 1e-4 and the rounding, side is 0, the line is parallel to the chord, or the
        part of the line inside the circle is not longer than 2e-4

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvcer7.cells(s, side, e, angle, xc, yc, xa, ya, xb, yb, _NAN, _NAN, _NAN, _NAN,
        _NAN, _NAN, _NAN, 0)


class TrvardResult(NamedTuple):
    xc: float
    yc: float
    xt1: float
    yt1: float
    xt2: float
    yt2: float
    status: TrvArc


_trvard = Routine(
    "trvard", TrvardResult,
    "in real x0; in real y0; in real x1; in real y1; in real x2; in real y2; in real r; "
    "out real xc; out real yc; out real xt1; out real yt1; out real xt2; out real yt2; "
    "out int status",
    values=dict(status=TrvArc)
)


def trvard(
    x0: float, y0: float, x1: float, y1: float, x2: float, y2: float, r: float
) -> TrvardResult:
    """Rounds the corner at P0 between the segments to P1 and to P2.

    Formed in double precision and rounded once.

    Retains: nothing.

    Arguments:
      x0, y0: corner P0
      x1, y1: P1
      x2, y2: P2
      r: radius

    Returns:
      xc, yc: centre of the arc; unwritten if status is 0
      xt1, yt1: tangent point on the segment to P1, where the arc touches it; unwritten if
        status is 0
      xt2, yt2: tangent point on the segment to P2; unwritten if status is 0
      status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: r or the length of
        a segment is not above the tolerance, the sine of the angle between the segments is
        within the tolerance, or a tangent point lies beyond the end of its segment by more than
        the tolerance

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvard.cells(x0, y0, x1, y1, x2, y2, r, _NAN, _NAN, _NAN, _NAN, _NAN, _NAN, 0)


class TrvenvResult(NamedTuple):
    xmin: float
    ymin: float
    xmax: float
    ymax: float


_trvenv = Routine(
    "trvenv", TrvenvResult,
    "in real xc; in real yc; in real xa; in real ya; in real sweep; out real xmin; "
    "out real ymin; out real xmax; out real ymax",
)


def trvenv(
    xc: float, yc: float, xa: float, ya: float, sweep: float
) -> TrvenvResult:
    """Bounding box of the arc that a point sweeps about a centre.

    Formed in double precision and rounded once. A NaN in any input makes all outputs NaN.

    Retains: nothing.

    Arguments:
      xc, yc: centre
      xa, ya: start of the arc
      sweep: angle in radians, counter-clockwise when positive; the full circle if |sweep| is
        2*pi or more

    Returns:
      xmin, ymin: lower left corner
      xmax, ymax: upper right corner
    """
    return _trvenv.cells(xc, yc, xa, ya, sweep, _NAN, _NAN, _NAN, _NAN)


_trvord = Routine(
    "trvord", None,
    "inout real V[n]; in int n = V",
)


def trvord(
    V: ArrayLike, *, n: int | None = None, in_place: bool = False
) -> NDArray[float32]:
    """Sorts Reals ascending, in place.

    The result is that of a selection sort that takes the last of equal smallest elements. A NaN
    stays where it is, and the other elements are sorted around it. The order of -0 and 0
    depends on the swaps.

    Cost: time grows with n, with n*log(n) if there are zeros of both signs. More than 32
    elements take 8*n bytes of the heap for the call. If these cannot be allocated, the sort is
    in place and takes n*log(n), with NaNs or zeros of both signs n*n.

    Retains: nothing.

    Arguments:
      V: array of n: elements
      n: number of elements; below 1 nothing happens

    Returns:
      V: array of n: elements
    """
    return _trvord.call((V, n), in_place)


_trvord1 = Routine(
    "trvord1", None,
    "inout int V[n]; in int n = V",
)


def trvord1(
    V: ArrayLike, *, n: int | None = None, in_place: bool = False
) -> NDArray[int32]:
    """Sorts Integers ascending, in place.

    Cost: time grows with n. More than 32 elements take 8*n bytes of the heap for the call. If
    these cannot be allocated, the sort is in place and takes n*log(n).

    Retains: nothing.

    Arguments:
      V: array of n: elements
      n: number of elements; below 1 nothing happens

    Returns:
      V: array of n: elements
    """
    return _trvord1.call((V, n), in_place)


_trvordi = Routine(
    "trvordi", None,
    "in real V[n]; in int n = V; out int IDX[n]",
)


def trvordi(
    V: ArrayLike, *, n: int | None = None
) -> NDArray[int32]:
    """Positions of the elements of a list in ascending order; the list itself is not changed.

    Equal elements, also -0 and 0, are listed from the highest position to the lowest. Round k
    finds the smallest element and replaces it in a copy of the list by the largest plus 1, for
    the later rounds.

    Caution: if largest plus 1 rounds to the largest (16777216 and beyond, infinity), the
    largest elements are found again in later rounds: IDX(k) is then the position of the last
    number of the list. Round k finds nothing if element k of the copy is NaN. That is so for a
    NaN of the list. If the first element is NaN, largest plus 1 is NaN too, and so is every
    element that an earlier round has found.

    Cost: time grows with n. More than 512 elements take 16*n bytes of the heap for the call. If
    these cannot be allocated, the result is the same, but the list is read again for each 512
    elements, and time grows with n*n.

    Retains: nothing.

    Arguments:
      V: array of n: elements
      n: number of elements

    Returns:
      IDX: array of n: IDX(k) is the position of the k-th smallest element; unwritten on a
        condition: IDX(k) if its round finds nothing

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvordi.call((V, n))


class TrvporResult(NamedTuple):
    IDX: NDArray[int32]
    status: TrvStatus


_trvpor = Routine(
    "trvpor", TrvporResult,
    "in int n = A B C; in real A[n]; in real B[n]; in real C[n]; out int IDX[n]; "
    "out int status",
    values=dict(status=TrvStatus)
)


def trvpor(
    A: ArrayLike, B: ArrayLike, C: ArrayLike, *, n: int | None = None
) -> TrvporResult:
    """Order of parallel lines by their intersections with an axis.

    The lines intersect the y axis at -C/B. If the first line is parallel to the y axis and
    distinct from it, the intersections with the x axis, at -C/A, are used instead. Each other
    line must be parallel to the first line and distinct from it (trvlni). A single line is
    always in order.

    Cost: time and memory are those of trvordi.

    Retains: nothing.

    Arguments:
      n: number of lines
      A, B, C: arrays of n: lines A*x + B*y + C = 0

    Returns:
      IDX: array of n: positions of the lines by ascending intersection, equal intersections
        from the highest position down, infinite and NaN intersections as trvordi orders them; 1
        ... n if status is -1; unwritten on a condition: IDX(k) as trvordi leaves it
      status: outcome (TrvStatus): 0 done: IDX holds the order; -1 refused: the lines are not a
        family of parallel and distinct lines, or n < 1

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvpor.call((n, A, B, C))


class TrvorvResult(NamedTuple):
    X: NDArray[float32]
    Y: NDArray[float32]
    Z: NDArray[float32]
    ORD: NDArray[int32]


_trvorv = Routine(
    "trvorv", TrvorvResult,
    "inout real X[4]; inout real Y[4]; inout real Z[4]; out int ORD[4]",
)


def trvorv(
    X: ArrayLike, Y: ArrayLike, Z: ArrayLike, *, in_place: bool = False
) -> TrvorvResult:
    """Puts the corners of a quadrilateral of space in cyclic order, in place.

    An order is accepted if the two triangles on the diagonal from its first corner have the
    same orientation, or one of them is degenerate. The orders (1, 2, 3, 4) and (1, 2, 4, 3) are
    tried. If neither is accepted, the result is (1, 4, 2, 3).

    Retains: nothing.

    Arguments:
      X, Y, Z: arrays of 4: corners, rearranged

    Returns:
      X, Y, Z: arrays of 4: corners, rearranged
      ORD: array of 4: the corners' old positions in their new order
    """
    return _trvorv.call((X, Y, Z), in_place)


class Trvsel1Result(NamedTuple):
    count_: int
    pos: NDArray[int32]


_trvsel1 = Routine(
    "trvsel1", Trvsel1Result,
    "in int n = V; in int V[n]; in int key; out int count_; out int pos[n, count_ used]",
)


def trvsel1(
    V: ArrayLike, key: int, *, n: int | None = None
) -> Trvsel1Result:
    """All positions at which a list holds a value.

    Retains: nothing.

    Arguments:
      n: number of elements; below 1 the list is empty
      V: array of n: elements
      key: value

    Returns:
      count_: number of elements equal to key
      pos: array of n, count used: positions of these elements, ascending
    """
    return _trvsel1.call((n, V, key))


class Trvmer13Result(NamedTuple):
    count_: int
    IA: NDArray[int32]
    IB: NDArray[int32]


_trvmer13 = Routine(
    "trvmer13", Trvmer13Result,
    "in int na = A; in real A[na]; in int nb = B; in real B[nb]; out int count_; "
    "out int IA[max(na+nb,na*nb)]; out int IB[max(na+nb,na*nb)]; in real tol",
)


def trvmer13(
    A: ArrayLike, B: ArrayLike, tol: float, *, na: int | None = None, nb: int | None = None
) -> Trvmer13Result:
    """All pairs of elements of two lists that differ by at most a tolerance.

    Caution: equal infinities are no pair here, since their difference is NaN. If the tolerance
    is negative or NaN, there are no pairs, even of equal elements. The merging routines
    (trvmer4, trvmer12) accept equal elements in these cases.

    Cost: time grows with na+nb and the number of pairs, except for clusters of elements within
    a few tolerances: all elements of a cluster are compared. Takes up to 32*(na+nb) bytes of
    the heap for the call. If these cannot be allocated, all elements are compared.

    Retains: nothing.

    Arguments:
      na: number of elements of A; below 1 there are none
      A: array of na: elements
      nb: number of elements of B; below 1 there are none
      B: array of nb: elements
      tol: largest difference (inclusive)

    Returns:
      count_: number of pairs
      IA, IB: arrays of max(na+nb,na*nb): positions in A and in B, sorted by A, then by B;
        elements 1 to na+nb are first set to 0 (with the counts as given, even if one is
        negative), then the pairs are written over them; unwritten on a condition: elements
        beyond both na+nb and count

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvmer13.call((na, A, nb, B, tol))


class Trvmer1Result(NamedTuple):
    nout: int
    OUT: NDArray[int32]


_trvmer1 = Routine(
    "trvmer1", Trvmer1Result,
    "in int na = A; in int A[na]; in int nb = B; in int B[nb]; out int nout; "
    "out int OUT[na+nb, nout used]",
)


def trvmer1(
    A: ArrayLike, B: ArrayLike, *, na: int | None = None, nb: int | None = None
) -> Trvmer1Result:
    """Joins two lists end to end. Elements are copied bit for bit, so the lists may also hold
    Reals.

    Retains: nothing.

    Arguments:
      na: number of elements of A; below 1 there are none
      A: array of na: elements
      nb: number of elements of B; below 1 there are none
      B: array of nb: elements

    Returns:
      nout: number of elements written
      OUT: array of na+nb, nout used: A, then B
    """
    return _trvmer1.call((na, A, nb, B))


class Trvmer11Result(NamedTuple):
    nout: int
    OUT: NDArray[int32]


_trvmer11 = Routine(
    "trvmer11", Trvmer11Result,
    "in int na = A; in int A[na]; in int nb = B; in int B[nb]; out int nout; "
    "out int OUT[na+nb, nout used]",
)


def trvmer11(
    A: ArrayLike, B: ArrayLike, *, na: int | None = None, nb: int | None = None
) -> Trvmer11Result:
    """Joins two lists end to end: trvmer1 under another name.

    Retains: nothing.

    Arguments:
      na: number of elements of A; below 1 there are none
      A: array of na: elements
      nb: number of elements of B; below 1 there are none
      B: array of nb: elements

    Returns:
      nout: number of elements written
      OUT: array of na+nb, nout used: A, then B
    """
    return _trvmer11.call((na, A, nb, B))


class Trvmer2Result(NamedTuple):
    V: NDArray[int32]
    n: int


_trvmer2 = Routine(
    "trvmer2", Trvmer2Result,
    "inout int V[n, n used]; inout int n = V",
)


def trvmer2(
    V: ArrayLike, *, n: int | None = None, in_place: bool = False
) -> Trvmer2Result:
    """Sorts Integers ascending and removes duplicates, in place.

    Cost: time and memory are those of trvord1.

    Retains: nothing.

    Arguments:
      V: array of n, n used: elements; unspecified beyond the new n
      n: number of elements; unchanged if n < 1

    Returns:
      V: array of n, n used: elements; unspecified beyond the new n
      n: number of elements; unchanged if n < 1
    """
    return _trvmer2.call((V, n), in_place)


class Trvmer3Result(NamedTuple):
    V: NDArray[float32]
    n: int


_trvmer3 = Routine(
    "trvmer3", Trvmer3Result,
    "inout real V[n, n used]; inout int n = V",
)


def trvmer3(
    V: ArrayLike, *, n: int | None = None, in_place: bool = False
) -> Trvmer3Result:
    """Sorts Reals ascending and removes duplicates within a tolerance, in place.

    Each element that matches the last one kept is removed. Two elements match if they are equal
    or differ by at most 1e-5. A NaN matches nothing, an infinity matches itself. -0 comes
    before 0. NaNs come last, and all are kept.

    Cost: time grows with n. More than 32 elements take 8*n bytes of the heap for the call. If
    these cannot be allocated, the sort takes n*log(n).

    Retains: nothing.

    Arguments:
      V: array of n, n used: elements; unspecified beyond the new n
      n: number of elements; unchanged if n < 1

    Returns:
      V: array of n, n used: elements; unspecified beyond the new n
      n: number of elements; unchanged if n < 1
    """
    return _trvmer3.call((V, n), in_place)


class Trvmer12Result(NamedTuple):
    V: NDArray[float32]
    n: int


_trvmer12 = Routine(
    "trvmer12", Trvmer12Result,
    "inout real V[n, n used]; inout int n = V; in real tol",
)


def trvmer12(
    V: ArrayLike, tol: float, *, n: int | None = None, in_place: bool = False
) -> Trvmer12Result:
    """Sorts Reals ascending and removes duplicates within a tolerance, in place.

    Each element that matches the last one kept is removed. Two elements match if they are equal
    or differ by at most tol. A NaN matches nothing, an infinity matches itself. If tol is
    negative or NaN, only equal elements match. -0 comes before 0. NaNs come last, and all are
    kept.

    Cost: time grows with n. More than 32 elements take 8*n bytes of the heap for the call. If
    these cannot be allocated, the sort takes n*log(n).

    Retains: nothing.

    Arguments:
      V: array of n, n used: elements; unspecified beyond the new n
      n: number of elements; unchanged if n < 1
      tol: largest difference of elements that match (inclusive); may be an element of V

    Returns:
      V: array of n, n used: elements; unspecified beyond the new n
      n: number of elements; unchanged if n < 1
    """
    return _trvmer12.call((V, n, tol), in_place)


class Trvmer4Result(NamedTuple):
    nout: int
    OUT: NDArray[float32]
    IB: NDArray[int32]


_trvmer4 = Routine(
    "trvmer4", Trvmer4Result,
    "in int na = A; in real A[na]; in int nb = B; in real B[nb]; in real tol; out int nout; "
    "out real OUT[na+nb, nout used]; out int IB[nb]",
)


def trvmer4(
    A: ArrayLike, B: ArrayLike, tol: float, *, na: int | None = None, nb: int | None = None
) -> Trvmer4Result:
    """Appends to a list those elements of another that it does not hold yet.

    Two elements match if they are equal or differ by at most tol. A NaN matches nothing, an
    infinity matches itself. If tol is negative or NaN, only equal elements match.

    Cost: time grows with na+nb, except for clusters of elements within a few tolerances: all
    elements of a cluster are compared. Takes up to 48*(na+nb) bytes of the heap for the call.
    If these cannot be allocated, all elements are compared.

    Retains: nothing.

    Arguments:
      na: number of elements of A; below 1 there are none
      A: array of na: elements
      nb: number of elements of B; below 1 there are none
      B: array of nb: elements
      tol: largest difference of elements that match (inclusive)

    Returns:
      nout: number of elements written
      OUT: array of na+nb, nout used: A as it is, then the elements of B that match no element
        before them in OUT
      IB: array of nb: for each element of B, the position in OUT of the first element that
        matches it; for a NaN, its own position in OUT
    """
    return _trvmer4.call((na, A, nb, B, tol))


class Trvmer14Result(NamedTuple):
    nout: int
    OUT: NDArray[int32]


_trvmer14 = Routine(
    "trvmer14", Trvmer14Result,
    "in int na = A; in int A[na]; in int nb = B; in int B[nb]; out int nout; "
    "out int OUT[na, nout used]",
)


def trvmer14(
    A: ArrayLike, B: ArrayLike, *, na: int | None = None, nb: int | None = None
) -> Trvmer14Result:
    """Elements of a list that another holds too.

    Cost: time grows with na+nb. More than 512 elements take up to 17*na+8*nb bytes of the heap
    for the call. If these cannot be allocated, blocks of 512 are compared instead, on less than
    16 KB of the stack.

    Retains: nothing.

    Arguments:
      na: number of elements of A; below 1 there are none
      A: array of na: elements
      nb: number of elements of B; below 1 there are none
      B: array of nb: elements

    Returns:
      nout: number of elements written
      OUT: array of na, nout used: the elements of A that B holds, with duplicates, in A's order
    """
    return _trvmer14.call((na, A, nb, B))


class Trvmer15Result(NamedTuple):
    na: int
    A: NDArray[int32]
    count_: int


_trvmer15 = Routine(
    "trvmer15", Trvmer15Result,
    "inout int na = A; inout int A[na, na used]; in int nb = B; in int B[nb]; out int count_",
)


def trvmer15(
    A: ArrayLike, B: ArrayLike, *, na: int | None = None, nb: int | None = None,
    in_place: bool = False
) -> Trvmer15Result:
    """Removes from a list the elements that another holds, in place.

    Cost: time grows with na+nb. More than 512 elements take up to 17*na+8*nb bytes of the heap
    for the call. If these cannot be allocated, blocks of 512 are compared instead, on less than
    16 KB of the stack.

    Retains: nothing.

    Arguments:
      na: number of elements of A; unchanged if na < 1
      A: array of na, na used: elements; those kept stay in their order; unspecified beyond the
        new na
      nb: number of elements of B; below 1 there are none
      B: array of nb: elements

    Returns:
      na: number of elements of A; unchanged if na < 1
      A: array of na, na used: elements; those kept stay in their order; unspecified beyond the
        new na
      count_: number of elements removed
    """
    return _trvmer15.call((na, A, nb, B), in_place)


class Trvmer16Result(NamedTuple):
    X: NDArray[float32]
    Y: NDArray[float32]
    n: int


_trvmer16 = Routine(
    "trvmer16", Trvmer16Result,
    "inout real X[n, n used]; inout real Y[n, n used]; inout int n = X Y; in real tol",
)


def trvmer16(
    X: ArrayLike, Y: ArrayLike, tol: float, *, n: int | None = None, in_place: bool = False
) -> Trvmer16Result:
    """Removes repeated vertices of a closed outline, in place.

    Each vertex that matches the last one kept is removed; so are vertices at the end that match
    the first. Two vertices match if both x and both y are equal or differ by at most tol. A NaN
    matches nothing, an infinity matches itself. If tol is negative or NaN, only equal
    coordinates match.

    Cost: time grows with n.

    Retains: nothing.

    Arguments:
      X, Y: arrays of n, n used: vertices; unspecified beyond the new n
      n: number of vertices; unchanged if n < 1
      tol: largest difference of either coordinate (inclusive)

    Returns:
      X, Y: arrays of n, n used: vertices; unspecified beyond the new n
      n: number of vertices; unchanged if n < 1
    """
    return _trvmer16.call((X, Y, n, tol), in_place)


class Trvptp1Result(NamedTuple):
    count_: int
    IA: NDArray[int32]
    IB: NDArray[int32]
    status: Trvptp1Status


_trvptp1 = Routine(
    "trvptp1", Trvptp1Result,
    "in int na = XA YA ZA; in real XA[na]; in real YA[na]; in real ZA[na]; "
    "in int nb = XB YB ZB; in real XB[nb]; in real YB[nb]; in real ZB[nb]; in real tol; "
    "out int count_; out int IA[na*nb, count_ used]; out int IB[na*nb, count_ used]; "
    "out int status",
    values=dict(status=Trvptp1Status)
)


def trvptp1(
    XA: ArrayLike, YA: ArrayLike, ZA: ArrayLike, XB: ArrayLike, YB: ArrayLike, ZB: ArrayLike,
    tol: float, *, na: int | None = None, nb: int | None = None
) -> Trvptp1Result:
    """All pairs of points of two lists that match within a tolerance in each coordinate.

    Two coordinates match if they are equal or differ by at most tol. A NaN matches nothing, an
    infinity matches itself. If tol is negative or NaN, only equal coordinates match.

    Cost: time grows with na+nb and the number of pairs, except for clusters of points within a
    few tolerances: all points of a cluster are compared. Takes up to 32*(na+nb) bytes of the
    heap for the call. If these cannot be allocated, all points are compared.

    Retains: nothing.

    Arguments:
      na: number of points of A; below 1 there are none
      XA, YA, ZA: arrays of na: points of A
      nb: number of points of B; below 1 there are none
      XB, YB, ZB: arrays of nb: points of B
      tol: largest difference of a coordinate (inclusive)

    Returns:
      count_: number of pairs
      IA, IB: arrays of na*nb, count used: positions in A and in B, sorted by A, then by B
      status: which points of A match a point of B: 0 no_pair: no point of A matches a point of
        B; 1 some_pairs: some points of A match points of B, others do not; 2 all_paired: every
        point of A matches a point of B
    """
    return _trvptp1.call((na, XA, YA, ZA, nb, XB, YB, ZB, tol))


class Trvptp2Result(NamedTuple):
    nab: int
    IAB: NDArray[int32]
    JAB: NDArray[int32]
    nbc: int
    IBC: NDArray[int32]
    JBC: NDArray[int32]
    nca: int
    ICA: NDArray[int32]
    JCA: NDArray[int32]
    nout: int
    XO: NDArray[float32]
    YO: NDArray[float32]
    ZO: NDArray[float32]
    MA: NDArray[int32]
    MB: NDArray[int32]
    MC: NDArray[int32]
    nk: int
    PK: NDArray[int32]
    nz: int
    ZL: NDArray[float32]


_trvptp2 = Routine(
    "trvptp2", Trvptp2Result,
    "in int na = XA YA ZA; in real XA[na]; in real YA[na]; in real ZA[na]; "
    "in int nb = XB YB ZB; in real XB[nb]; in real YB[nb]; in real ZB[nb]; "
    "in int nc = XC YC ZC; in real XC[nc]; in real YC[nc]; in real ZC[nc]; in real tol; "
    "out int nab; out int IAB[na*nb, nab used]; out int JAB[na*nb, nab used]; out int nbc; "
    "out int IBC[nb*nc, nbc used]; out int JBC[nb*nc, nbc used]; out int nca; "
    "out int ICA[nc*na, nca used]; out int JCA[nc*na, nca used]; out int nout; "
    "out real XO[na+nb+nc, nout used]; out real YO[na+nb+nc, nout used]; "
    "out real ZO[na+nb+nc, nout used]; out int MA[na]; out int MB[nb]; out int MC[nc]; "
    "in int k; out int nk; out int PK[na+nb+nc, nk used]; out int nz; "
    "out real ZL[na+nb+nc, nz used]",
)


def trvptp2(
    XA: ArrayLike, YA: ArrayLike, ZA: ArrayLike, XB: ArrayLike, YB: ArrayLike, ZB: ArrayLike,
    XC: ArrayLike, YC: ArrayLike, ZC: ArrayLike, tol: float, k: int, *, na: int | None = None,
    nb: int | None = None, nc: int | None = None
) -> Trvptp2Result:
    """Merges three lists of points into one list.

    Each point is assigned to the first merged point that matches it. If none matches, the point
    becomes a new merged point. Two points match if each of their coordinates is equal or
    differs by at most tol. A NaN matches nothing, an infinity matches itself. If tol is
    negative or NaN, only equal coordinates match.

    Cost: time grows with na+nb+nc and the number of pairs, except for clusters of points within
    a few tolerances: all points of a cluster are compared. Takes up to 48*(na+nb+nc) bytes of
    the heap for the call. If these cannot be allocated, all points are compared.

    Retains: nothing.

    Arguments:
      na: number of points of A; below 1 there are none
      XA, YA, ZA: arrays of na: points of A
      nb: number of points of B; below 1 there are none
      XB, YB, ZB: arrays of nb: points of B
      nc: number of points of C; below 1 there are none
      XC, YC, ZC: arrays of nc: points of C
      tol: largest difference of a coordinate (inclusive)
      k: position of a merged point

    Returns:
      nab: number of pairs of A and B
      IAB, JAB: arrays of na*nb, nab used: positions in A and in B, sorted by A, then by B
      nbc: number of pairs of B and C
      IBC, JBC: arrays of nb*nc, nbc used: positions in B and in C, sorted by B, then by C
      nca: number of pairs of C and A
      ICA, JCA: arrays of nc*na, nca used: positions in C and in A, sorted by C, then by A
      nout: number of merged points
      XO, YO, ZO: arrays of na+nb+nc, nout used: merged points, in the order of A, B, C
      MA: array of na: position of the merged point of each point of A
      MB: array of nb: position of the merged point of each point of B
      MC: array of nc: position of the merged point of each point of C
      nk: number of points assigned to merged point k; 0 if there is no such point
      PK: array of na+nb+nc, nk used: positions of these points, counted through A, then B, then
        C
      nz: number of levels
      ZL: array of na+nb+nc, nz used: the distinct z of the merged points, ascending, as
        trvmer12 leaves them; unspecified up to nout
    """
    return _trvptp2.call((na, XA, YA, ZA, nb, XB, YB, ZB, nc, XC, YC, ZC, tol, k))


class TrvpppResult(NamedTuple):
    count_: int
    XC: NDArray[float32]


_trvppp = Routine(
    "trvppp", TrvpppResult,
    "in real X[n]; in real Y[n]; in int n = X Y; in real y0; out int count_; "
    "out real XC[n, count_ used]",
)


def trvppp(
    X: ArrayLike, Y: ArrayLike, y0: float, *, n: int | None = None
) -> TrvpppResult:
    """Crossings of the horizontal line y = y0 with a closed outline.

    An edge includes its lower end and excludes its upper end. So the count is even, and the
    inside lies between the first and second crossing, between the third and fourth, and so on.
    Formed in double precision and rounded once.

    Cost: time grows with n. More than 32 crossings take up to 8*n bytes of the heap for the
    call. If these cannot be allocated, sorting the crossings takes n*log(n).

    Retains: nothing.

    Arguments:
      X, Y: arrays of n: vertices
      n: number of vertices; below 3 there are no crossings
      y0: height of the line

    Returns:
      count_: number of crossings
      XC: array of n, count used: x of the crossings, ascending; -0 before 0; NaNs, from
        infinite or NaN vertices, last
    """
    return _trvppp.call((X, Y, n, y0))


class TrvpinResult(NamedTuple):
    count_: int
    XI: NDArray[float32]
    YI: NDArray[float32]
    T: NDArray[float32]
    EDGE: NDArray[int32]
    status: TrvpinStatus


_trvpin = Routine(
    "trvpin", TrvpinResult,
    "in real X[n]; in real Y[n]; in int n = X Y; in real x1; in real y1; in real x2; "
    "in real y2; out int count_; out real XI[n, count_ used]; out real YI[n, count_ used]; "
    "out real T[n, count_ used]; out int EDGE[n, count_ used]; out int status",
    values=dict(status=TrvpinStatus)
)


def trvpin(
    X: ArrayLike, Y: ArrayLike, x1: float, y1: float, x2: float, y2: float, *,
    n: int | None = None
) -> TrvpinResult:
    """Crossings of the segment from P1 to P2 with a closed outline.

    A crossing is a point where the outline passes from one side of the segment's line to the
    other; this may be a vertex on the line. If the outline touches the line, or runs along it,
    and returns to the same side, it does not cross. If it runs along the line and leaves to the
    other side, it crosses once: where the segment, from P1, first meets the run, whichever
    orientation the outline has. A crossing counts unless P1 and P2 are both on the same side of
    the edge crossed, so it also counts if P1 or P2 is on the outline.

    Sides are formed in double precision. They are exact if differences of coordinates take no
    more than 26 bits, for example for whole numbers up to 33554432. Points are formed in double
    precision and rounded once.

    Cost: time grows with n, and with count*log(count); nothing is allocated.

    Retains: nothing.

    Arguments:
      X, Y: arrays of n: vertices
      n: number of vertices
      x1, y1: P1
      x2, y2: P2

    Returns:
      count_: number of crossings; 0 if status is -1
      XI, YI: arrays of n, count used: points
      T: array of n, count used: parameters of the points on the segment, ascending from 0 at P1
        to 1 at P2
      EDGE: array of n, count used: positions of the edges crossed, ascending if parameters are
        equal; edge i runs from vertex i to vertex i+1; at a vertex or a run, the edge by which
        the outline leaves the line
      status: where P1 is: 1 inside: P1 is inside the outline by the even-odd rule; 0 outside:
        P1 is outside the outline by the even-odd rule; -1 refused: n < 3, or P1 and P2 coincide
        within the tolerance in both coordinates
    """
    return _trvpin.call((X, Y, n, x1, y1, x2, y2))


_trvpds = Routine(
    "trvpds", None,
    "in real x1; in real y1; in real z1; in real x2; in real y2; in real z2; out real d",
)


def trvpds(
    x1: float, y1: float, z1: float, x2: float, y2: float, z2: float
) -> float:
    """Distance between two points.

    d = sqrt((dx*dx + dy*dy) + dz*dz). For a distance in the plane pass z1 = z2.

    Retains: nothing.

    Arguments:
      x1, y1, z1: first point
      x2, y2, z2: second point

    Returns:
      d: distance
    """
    return _trvpds.cells(x1, y1, z1, x2, y2, z2, _NAN)


_trvpri = Routine(
    "trvpri", None,
    "in real x1; in real y1; in real z1; in real x2; in real y2; in real z2; in real x3; "
    "in real y3; in real z3; in real x4; in real y4; in real z4; out real s",
)


def trvpri(
    x1: float, y1: float, z1: float, x2: float, y2: float, z2: float, x3: float, y3: float,
    z3: float, x4: float, y4: float, z4: float
) -> float:
    """Dot product of the difference vectors P2 - P1 and P4 - P3.

    Retains: nothing.

    Arguments:
      x1, y1, z1: P1
      x2, y2, z2: P2
      x3, y3, z3: P3
      x4, y4, z4: P4

    Returns:
      s: dot product, in the square of the length unit
    """
    return _trvpri.cells(x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4, _NAN)


_trvpre = Routine(
    "trvpre", None,
    "in real x1; in real y1; in real z1; in real x2; in real y2; in real z2; in real x3; "
    "in real y3; in real z3; in real x4; in real y4; in real z4; out real c[3]",
)


def trvpre(
    x1: float, y1: float, z1: float, x2: float, y2: float, z2: float, x3: float, y3: float,
    z3: float, x4: float, y4: float, z4: float
) -> NDArray[float32]:
    """Cross product (P2 - P1) x (P4 - P3).

    Retains: nothing.

    Arguments:
      x1, y1, z1: P1
      x2, y2, z2: P2
      x3, y3, z3: P3
      x4, y4, z4: P4

    Returns:
      c: array of 3: components of the product, in the square of the length unit
    """
    return _trvpre.call((x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4))


class TrvcntResult(NamedTuple):
    dx: float
    dy: float
    dz: float
    status: TrvCoincidence


_trvcnt = Routine(
    "trvcnt", TrvcntResult,
    "in real x1; in real y1; in real z1; in real x2; in real y2; in real z2; out real dx; "
    "out real dy; out real dz; out int status",
    values=dict(status=TrvCoincidence)
)


def trvcnt(
    x1: float, y1: float, z1: float, x2: float, y2: float, z2: float
) -> TrvcntResult:
    """Difference vector of two points, and whether they coincide.

    Retains: nothing.

    Arguments:
      x1, y1, z1: first point
      x2, y2, z2: second point

    Returns:
      dx, dy, dz: second point minus first; always written
      status: coincidence (TrvCoincidence): 1 coincident: each difference is within the
        tolerance; 0 distinct: a difference is above the tolerance or NaN
    """
    return _trvcnt.cells(x1, y1, z1, x2, y2, z2, _NAN, _NAN, _NAN, 0)


_trvcnt1 = Routine(
    "trvcnt1", None,
    "in real dx; in real dy; in real dz; out int status",
    values=dict(status=Trvcnt1Status)
)


def trvcnt1(
    dx: float, dy: float, dz: float
) -> Trvcnt1Status:
    """Whether a vector is exactly zero; unlike trvcnt, no tolerance applies.

    Retains: nothing.

    Arguments:
      dx, dy, dz: vector

    Returns:
      status: test: 1 zero: all components are zero, of either sign; 0 nonzero: a component is
        not zero, or is NaN
    """
    return _trvcnt1.cells(dx, dy, dz, 0)


class Trv123Result(NamedTuple):
    x: float
    y: float
    z: float
    status: TrvCoincidence


_trv123 = Routine(
    "trv123", Trv123Result,
    "in real x1; in real y1; in real z1; in real x2; in real y2; in real z2; in real t; "
    "out real x; out real y; out real z; out int status",
    values=dict(status=TrvCoincidence)
)


def trv123(
    x1: float, y1: float, z1: float, x2: float, y2: float, z2: float, t: float
) -> Trv123Result:
    """Point P1 + t*(P2 - P1) on the line through two points.

    Retains: nothing.

    Arguments:
      x1, y1, z1: P1, found at t = 0
      x2, y2, z2: P2, found at t = 1
      t: fraction of the segment, not a length; any value

    Returns:
      x, y, z: point; unwritten if status is 1
      status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 and
        P2 coincide within the tolerance (trvcnt)

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trv123.cells(x1, y1, z1, x2, y2, z2, t, _NAN, _NAN, _NAN, 0)


class TrvmedResult(NamedTuple):
    xm: float
    ym: float
    zm: float


_trvmed = Routine(
    "trvmed", TrvmedResult,
    "in real x1; in real y1; in real z1; in real x2; in real y2; in real z2; out real xm; "
    "out real ym; out real zm",
)


def trvmed(
    x1: float, y1: float, z1: float, x2: float, y2: float, z2: float
) -> TrvmedResult:
    """Midpoint of two points.

    Retains: nothing.

    Arguments:
      x1, y1, z1: first point
      x2, y2, z2: second point

    Returns:
      xm, ym, zm: midpoint
    """
    return _trvmed.cells(x1, y1, z1, x2, y2, z2, _NAN, _NAN, _NAN)


_trvdtr2 = Routine(
    "trvdtr2", None,
    "in real a; in real b; in real c; in real d; out real det",
)


def trvdtr2(
    a: float, b: float, c: float, d: float
) -> float:
    """Determinant of the 2 x 2 matrix with rows (a, b) and (c, d).

    Retains: nothing.

    Arguments:
      a, b, c, d: elements, row by row

    Returns:
      det: a*d - b*c
    """
    return _trvdtr2.cells(a, b, c, d, _NAN)


_trvdtr3 = Routine(
    "trvdtr3", None,
    "in real a1; in real a2; in real a3; in real b1; in real b2; in real b3; in real c1; "
    "in real c2; in real c3; out real det",
)


def trvdtr3(
    a1: float, a2: float, a3: float, b1: float, b2: float, b3: float, c1: float, c2: float,
    c3: float
) -> float:
    """Determinant of a 3 x 3 matrix, expanded along its first row.

    Retains: nothing.

    Arguments:
      a1, a2, a3: first row
      b1, b2, b3: second row
      c1, c2, c3: third row

    Returns:
      det: determinant
    """
    return _trvdtr3.cells(a1, a2, a3, b1, b2, b3, c1, c2, c3, _NAN)


class TrvgrcResult(NamedTuple):
    q1: float
    q2: float


_trvgrc = Routine(
    "trvgrc", TrvgrcResult,
    "in real a; in real b; in real c; out real q1; out real q2",
)


def trvgrc(
    a: float, b: float, c: float
) -> TrvgrcResult:
    """Divides two coefficients by a third, or gives zeros if the third is zero within the
    tolerance.

    Retains: nothing.

    Arguments:
      a, b, c: coefficients of a relation, a leading

    Returns:
      q1: c/a, or 0 if a is within the tolerance or NaN
      q2: b/a, or 0 if a is within the tolerance or NaN
    """
    return _trvgrc.cells(a, b, c, _NAN, _NAN)


_trvint = Routine(
    "trvint", None,
    "in real x1; in real x2; in real y1; in real y2; in real x; out real y",
)


def trvint(
    x1: float, x2: float, y1: float, y2: float, x: float
) -> float:
    """Linear interpolation, or extrapolation, through two samples.

    y = ((y2 - y1)*(x - x1)) / (x2 - x1) + y1.

    Retains: nothing.

    Arguments:
      x1, x2: abscissas of the samples
      y1, y2: ordinates of the samples
      x: abscissa at which to interpolate

    Returns:
      y: ordinate; infinite or NaN if x1 = x2
    """
    return _trvint.cells(x1, x2, y1, y2, x, _NAN)


_trvvin = Routine(
    "trvvin", None,
    "in real u1; in real v; in real u3; in real u4; in real u5; out int status",
    values=dict(status=TrvvinStatus)
)


def trvvin(
    u1: float, v: float, u3: float, u4: float, u5: float
) -> TrvvinStatus:
    """Sign of a value.

    Retains: nothing.

    Arguments:
      u1, u3, u4, u5: ignored
      v: value

    Returns:
      status: sign: 1 positive: v is positive; 2 not_positive: v is zero, negative or NaN
    """
    return _trvvin.cells(u1, v, u3, u4, u5, 0)


_trvpos = Routine(
    "trvpos", None,
    "in int n = A; in real A[n]; in real x; out int i",
)


def trvpos(
    A: ArrayLike, x: float, *, n: int | None = None
) -> int:
    """Interval of an ascending table that holds a value.

    Retains: nothing.

    Arguments:
      n: number of elements
      A: array of n: elements, ascending
      x: value

    Returns:
      i: first i with A(i) <= x < A(i+1); 0 if there is none, for example if x = A(n)
    """
    return _trvpos.call((n, A, x))


class Trvpos1Result(NamedTuple):
    status: Trvpos1Status
    i: int


_trvpos1 = Routine(
    "trvpos1", Trvpos1Result,
    "in int n = A; in real A[n]; in real x; out int status; out int i",
    values=dict(status=Trvpos1Status)
)


def trvpos1(
    A: ArrayLike, x: float, *, n: int | None = None
) -> Trvpos1Result:
    """Element of an ascending table that equals a value, or the interval that holds it.

    An equal element anywhere in the table has priority over an interval.

    Retains: nothing.

    Arguments:
      n: number of elements
      A: array of n: elements, ascending
      x: value

    Returns:
      status: what was found: 1 at_entry: A(i) equals x within the tolerance; 2 between: A(i) <
        x < A(i+1); 0 neither: x equals no element and lies in no interval
      i: first such position; 0 if status is 0
    """
    return _trvpos1.call((n, A, x))


class Trvln3Result(NamedTuple):
    a: float
    b: float
    c: float


_trvln3 = Routine(
    "trvln3", Trvln3Result,
    "in real x1; in real y1; in real x2; in real y2; out real a; out real b; out real c",
)


def trvln3(
    x1: float, y1: float, x2: float, y2: float
) -> Trvln3Result:
    """Line through two points.

    a = y2 - y1, b = 0 - (x2 - x1), c = y1*x2 - y2*x1: the normal (a, b) points to the right of
    the direction from P1 to P2 and is as long as the segment.

    Retains: nothing.

    Arguments:
      x1, y1: P1
      x2, y2: P2

    Returns:
      a, b, c: line; all zero if the points are equal
    """
    return _trvln3.cells(x1, y1, x2, y2, _NAN, _NAN, _NAN)


class Trvln1Result(NamedTuple):
    a: float
    b: float
    c: float


_trvln1 = Routine(
    "trvln1", Trvln1Result,
    "in real x0; in real y0; in real phi; out real a; out real b; out real c",
)


def trvln1(
    x0: float, y0: float, phi: float
) -> Trvln1Result:
    """Line through a point at an angle to the x axis.

    An angle closer than 1e-5 to pi/2 or -pi/2 gives the vertical line (1, 0, 0 - x0), and so
    does a NaN. Every other angle, 3*pi/2 included, gives (tan(phi), -1, y0 - tan(phi)*x0).

    Retains: nothing.

    Arguments:
      x0, y0: point
      phi: angle in radians, counter-clockwise

    Returns:
      a, b, c: line
    """
    return _trvln1.cells(x0, y0, phi, _NAN, _NAN, _NAN)


class Trvln4Result(NamedTuple):
    a: float
    b: float
    c: float


_trvln4 = Routine(
    "trvln4", Trvln4Result,
    "in real x0; in real y0; in real dx; in real dy; in real u; out real a; out real b; "
    "out real c",
)


def trvln4(
    x0: float, y0: float, dx: float, dy: float, u: float
) -> Trvln4Result:
    """Line through a point with a direction.

    (dy/dx, -1, y0 - (dy*x0)/dx), or the vertical line (1, 0, 0 - x0) if dx is exactly zero; no
    tolerance applies.

    Retains: nothing.

    Arguments:
      x0, y0: point
      dx, dy: direction, of any length
      u: ignored

    Returns:
      a, b, c: line
    """
    return _trvln4.cells(x0, y0, dx, dy, u, _NAN, _NAN, _NAN)


class Trvln2Result(NamedTuple):
    a2: float
    b2: float
    c2: float


_trvln2 = Routine(
    "trvln2", Trvln2Result,
    "in real a; in real b; in real c; in real d; out real a2; out real b2; out real c2",
)


def trvln2(
    a: float, b: float, c: float, d: float
) -> Trvln2Result:
    """Line parallel to a line at a signed distance.

    By trvlds, points of the new line have the distance d from the given line.

    Retains: nothing.

    Arguments:
      a, b, c: line
      d: distance, positive towards the normal (a, b)

    Returns:
      a2, b2, c2: parallel line: (a, b, c - sqrt(a*a + b*b)*d)
    """
    return _trvln2.cells(a, b, c, d, _NAN, _NAN, _NAN)


class Trvln5Result(NamedTuple):
    a: float
    b: float
    c: float


_trvln5 = Routine(
    "trvln5", Trvln5Result,
    "in real x0; in real y0; in real x1; in real y1; in real x2; in real y2; out real a; "
    "out real b; out real c",
)


def trvln5(
    x0: float, y0: float, x1: float, y1: float, x2: float, y2: float
) -> Trvln5Result:
    """Internal bisector of the angle at P0 between the rays to P1 and P2.

    The normal (a, b) is the difference of the unit vectors towards P1 and P2, times both
    lengths.

    Retains: nothing.

    Arguments:
      x0, y0: vertex P0
      x1, y1: P1
      x2, y2: P2

    Returns:
      a, b, c: line; all three are zero if a ray has zero length, and zero up to rounding errors
        if both rays have the same direction
    """
    return _trvln5.cells(x0, y0, x1, y1, x2, y2, _NAN, _NAN, _NAN)


_trvlds = Routine(
    "trvlds", None,
    "in real x; in real y; in real a; in real b; in real c; out real d",
)


def trvlds(
    x: float, y: float, a: float, b: float, c: float
) -> float:
    """Signed distance of a point from a line.

    d = ((a*x + b*y) + c) / sqrt(a*a + b*b), positive on the side the normal (a, b) points to.

    Retains: nothing.

    Arguments:
      x, y: point
      a, b, c: line

    Returns:
      d: signed distance; infinite or NaN if a = b = 0
    """
    return _trvlds.cells(x, y, a, b, c, _NAN)


class TrvlniResult(NamedTuple):
    status: TrvPlaneLines
    x: float
    y: float


_trvlni = Routine(
    "trvlni", TrvlniResult,
    "in real a1; in real b1; in real c1; in real a2; in real b2; in real c2; out int status; "
    "out real x; out real y",
    values=dict(status=TrvPlaneLines)
)


def trvlni(
    a1: float, b1: float, c1: float, a2: float, b2: float, c2: float
) -> TrvlniResult:
    """Intersection of two lines.

    The lines intersect if the determinant a1*b2 - a2*b1 is above the tolerance. Otherwise they
    are distinct if b1*c2 - b2*c1 or a2*c1 - a1*c2 is above the tolerance. These values are not
    scaled: lines with small coefficients count as parallel, and as the same line, sooner.

    Retains: nothing.

    Arguments:
      a1, b1, c1: first line
      a2, b2, c2: second line

    Returns:
      status: relation (TrvPlaneLines): 0 one_point: the lines have one point in common; 1
        same_line: the lines are the same; 2 parallel: the lines are parallel and distinct
      x, y: point; unwritten if status is 1 or 2

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvlni.cells(a1, b1, c1, a2, b2, c2, 0, _NAN, _NAN)


class TrvlulResult(NamedTuple):
    d: float
    status: TrvPlaneLines


_trvlul = Routine(
    "trvlul", TrvlulResult,
    "in real a1; in real b1; in real c1; in real a2; in real b2; in real c2; out real d; "
    "out int status",
    values=dict(status=TrvPlaneLines)
)


def trvlul(
    a1: float, b1: float, c1: float, a2: float, b2: float, c2: float
) -> TrvlulResult:
    """Distance of two parallel lines.

    Retains: nothing.

    Arguments:
      a1, b1, c1: first line
      a2, b2, c2: second line

    Returns:
      d: signed distance of the second line from the first, positive towards the normal (a1,
        b1); trvln2 with this distance gives the second line from the first; 0 if status is 1;
        formed in double precision and rounded once; unwritten if status is 0
      status: relation (TrvPlaneLines): 0 one_point: the lines have one point in common; 1
        same_line: the lines are the same; 2 parallel: the lines are parallel and distinct, as
        trvlni finds

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvlul.cells(a1, b1, c1, a2, b2, c2, _NAN, 0)


_trvpsn = Routine(
    "trvpsn", None,
    "in real p1; in real p2; in real p3; in real q1; in real q2; in real q3; out int code",
    values=dict(code=TrvComponents)
)


def trvpsn(
    p1: float, p2: float, p3: float, q1: float, q2: float, q3: float
) -> TrvComponents:
    """Which components of two triples differ by more than the tolerance.

    Retains: nothing.

    Arguments:
      p1, p2, p3: first triple
      q1, q2, q3: second triple

    Returns:
      code: which components of p - q are above the tolerance (TrvComponents): 0 none: no
        component is above the tolerance; 1 all: all three components are above the tolerance; 2
        first: only the first component is above the tolerance; 3 second: only the second
        component is above the tolerance; 4 third: only the third component is above the
        tolerance; 5 first_second: only the first and the second are above the tolerance; 6
        second_third: only the second and the third are above the tolerance; 7 first_third: only
        the first and the third are above the tolerance
    """
    return _trvpsn.cells(p1, p2, p3, q1, q2, q3, 0)


class Trvln6Result(NamedTuple):
    code: TrvComponents
    on: TrvOnLine


_trvln6 = Routine(
    "trvln6", Trvln6Result,
    "in real x0; in real y0; in real z0; in real dx; in real dy; in real dz; in real px; "
    "in real py; in real pz; in real tol; out int code; out int on",
    values=dict(code=TrvComponents, on=TrvOnLine)
)


def trvln6(
    x0: float, y0: float, z0: float, dx: float, dy: float, dz: float, px: float, py: float,
    pz: float, tol: float
) -> Trvln6Result:
    """Whether a point lies on the line of space through P0 with direction D.

    The point of the line is computed at a coordinate of P along which D is above the tolerance.
    Each other coordinate of P must match that point within tol.

    Retains: nothing.

    Arguments:
      x0, y0, z0: P0
      dx, dy, dz: direction D, of any length
      px, py, pz: point P
      tol: largest coordinate difference allowed (inclusive)

    Returns:
      code: which components of (P0 + D) - P0 are above the tolerance (TrvComponents): 0 none:
        no component is above the tolerance; 1 all: all three components are above the
        tolerance; 2 first: only the first component is above the tolerance; 3 second: only the
        second component is above the tolerance; 4 third: only the third component is above the
        tolerance; 5 first_second: only the first and the second are above the tolerance; 6
        second_third: only the second and the third are above the tolerance; 7 first_third: only
        the first and the third are above the tolerance
      on: test (TrvOnLine): 1 yes: P lies on the line; 0 no: P does not lie on the line, or code
        is 0
    """
    return _trvln6.cells(x0, y0, z0, dx, dy, dz, px, py, pz, tol, 0, 0)


class Trvln7Result(NamedTuple):
    ex: float
    ey: float
    code: TrvComponents
    on: TrvOnLine


_trvln7 = Routine(
    "trvln7", Trvln7Result,
    "in real a1; in real b1; in real c1; in real d1; in real a2; in real b2; in real c2; "
    "in real d2; in real px; in real py; in real pz; out real ex; out real ey; in real ez; "
    "in real tol; out int code; out int on",
    retains=True,
    values=dict(code=TrvComponents, on=TrvOnLine)
)


def trvln7(
    a1: float, b1: float, c1: float, d1: float, a2: float, b2: float, c2: float, d2: float,
    px: float, py: float, pz: float, ez: float, tol: float
) -> Trvln7Result:
    """Direction of the line of two planes, and whether a point matches it at a retained
    coordinate.

    The line is followed along the first of x, y, z whose component of (ex, ey, ez) is above the
    tolerance. Caution: it is evaluated at a coordinate that is kept from the previous call, not
    at the coordinate of P. The kept coordinates X, Y and Z are zero after loading; each call
    overwrites the two that it computes. The point matches if its other two coordinates are
    those computed. Along y, because of the sign of ey, z is that of the line at minus the kept
    coordinate. A call with planes that are nearly parallel, infinite or NaN can leave infinite
    or NaN coordinates, from which no later call recovers.

    Retains: the coordinates X, Y, Z (trvln7).

    Arguments:
      a1, b1, c1, d1: first plane
      a2, b2, c2, d2: second plane
      px, py, pz: point P
      ez: third component: read, neither computed nor written
      tol: largest coordinate difference allowed (inclusive)

    Returns:
      ex: b1*c2 - c1*b2
      ey: a1*c2 - c1*a2, the second component of the cross product negated
      code: which components of (ex, ey, ez) are above the tolerance (TrvComponents): 0 none: no
        component is above the tolerance; 1 all: all three components are above the tolerance; 2
        first: only the first component is above the tolerance; 3 second: only the second
        component is above the tolerance; 4 third: only the third component is above the
        tolerance; 5 first_second: only the first and the second are above the tolerance; 6
        second_third: only the second and the third are above the tolerance; 7 first_third: only
        the first and the third are above the tolerance
      on: test (TrvOnLine): 1 yes: P matches the line at the kept coordinate; 0 no: P does not
        match the line at the kept coordinate
    """
    return _trvln7.cells(a1, b1, c1, d1, a2, b2, c2, d2, px, py, pz, ez, tol, _NAN, _NAN, 0, 0)


_trvphi = Routine(
    "trvphi", None,
    "in real x0; in real y0; in real x1; in real y1; in real x2; in real y2; out real phi",
)


def trvphi(
    x0: float, y0: float, x1: float, y1: float, x2: float, y2: float
) -> float:
    """Angle at P0 between the rays to P1 and P2, in the plane.

    The angle has no sign. Caution: the cosine is not clamped. If rounding takes it beyond 1 or
    -1, the angle is NaN; this can happen for collinear points.

    Small angles, and angles as close to pi, lose digits. Of 20,000 random pairs of rays, 1 to
    1000 long and 4e-4 radians apart, 23 % give 0 and 1.3 % NaN; of pairs 5e-4 apart, 7 % give
    0. Errors reach 100 % at 6e-4 radians, 30 % at 1e-3 and 0.25 % at 1e-2. trvchi is accurate
    there.

    Retains: nothing.

    Arguments:
      x0, y0: vertex P0
      x1, y1: P1
      x2, y2: P2

    Returns:
      phi: angle in [0, pi]; 0 if a ray's length is within the tolerance
    """
    return _trvphi.cells(x0, y0, x1, y1, x2, y2, _NAN)


_trvphi3 = Routine(
    "trvphi3", None,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real x2; "
    "in real y2; in real z2; out real phi",
)


def trvphi3(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float
) -> float:
    """Angle at P0 between the rays to P1 and P2, in space.

    The angle has no sign. Caution: the cosine is not clamped. If rounding takes it beyond 1 or
    -1, the angle is NaN. Small angles, and angles close to pi, lose digits as in trvphi; trvchi
    is accurate there.

    Retains: nothing.

    Arguments:
      x0, y0, z0: vertex P0
      x1, y1, z1: P1
      x2, y2, z2: P2

    Returns:
      phi: angle in [0, pi]; 0 if a ray's length is within the tolerance
    """
    return _trvphi3.cells(x0, y0, z0, x1, y1, z1, x2, y2, z2, _NAN)


_trvphi1 = Routine(
    "trvphi1", None,
    "in real ux; in real uy; in real uz; in real vx; in real vy; in real vz; out real phi",
)


def trvphi1(
    ux: float, uy: float, uz: float, vx: float, vy: float, vz: float
) -> float:
    """Angle between two vectors.

    The angle has no sign. Caution: the cosine is not clamped. If rounding takes it beyond 1 or
    -1, the angle is NaN. Small angles, and angles close to pi, lose digits as in trvphi; trvchi
    is accurate there.

    Retains: nothing.

    Arguments:
      ux, uy, uz: u
      vx, vy, vz: v

    Returns:
      phi: angle in [0, pi]; 0 if a vector's length is within the tolerance
    """
    return _trvphi1.cells(ux, uy, uz, vx, vy, vz, _NAN)


class TrvphipResult(NamedTuple):
    phi: float
    status: TrvphipStatus | int


_trvphip = Routine(
    "trvphip", TrvphipResult,
    "in real ux; in real uy; in real uz; in real vx; in real vy; in real vz; out real phi; "
    "out int status",
    values=dict(status=TrvphipStatus)
)


def trvphip(
    ux: float, uy: float, uz: float, vx: float, vy: float, vz: float
) -> TrvphipResult:
    """Angle between two lines given by their directions.

    Caution: small angles lose digits as in trvphi, and can be NaN. For lines that are nearly
    parallel, use the cosine and the sine of trvtrg: the angle is atan2(sphi, |cphi|).

    Retains: nothing.

    Arguments:
      ux, uy, uz: direction of the first line
      vx, vy, vz: direction of the second line

    Returns:
      phi: angle in [0, pi/2]; unwritten on a condition: a direction's length is within the
        tolerance
      status: outcome: -1 no_length: a direction's length is within the tolerance; unwritten on
        a condition: neither direction's length is within the tolerance, so it must be set
        beforehand

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvphip.cells(ux, uy, uz, vx, vy, vz, _NAN, 0)


class TrvchiResult(NamedTuple):
    chi: float
    status: TrvCoincidence


_trvchi = Routine(
    "trvchi", TrvchiResult,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real x2; "
    "in real y2; in real z2; out real chi; out int status",
    values=dict(status=TrvCoincidence)
)


def trvchi(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float
) -> TrvchiResult:
    """Directed angle at P0 from the ray to P1 to the ray to P2.

    The angle is counter-clockwise as seen from the tip of the normal (P1 - P0) x (P2 - P0). The
    normal is oriented like the third axis of trvaxe: the first of its components y, z, x that
    is above the tolerance becomes positive, or if there is none, the first that is not zero. So
    the angle is counter-clockwise in the plane z = 0. It is formed in double precision, its
    normal with twice the digits, and rounded once, so it is as accurate near 0, pi and 2*pi as
    elsewhere.

    Retains: nothing.

    Arguments:
      x0, y0, z0: vertex P0
      x1, y1, z1: P1
      x2, y2, z2: P2

    Returns:
      chi: angle in [0, 2*pi); unwritten if status is 1
      status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 or
        P2 coincides with P0 (trvcnt)

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvchi.cells(x0, y0, z0, x1, y1, z1, x2, y2, z2, _NAN, 0)


_trvcnv = Routine(
    "trvcnv", None,
    "in real X[n]; in real Y[n]; in int n = X Y; out int status",
    values=dict(status=TrvcnvStatus)
)


def trvcnv(
    X: ArrayLike, Y: ArrayLike, *, n: int | None = None
) -> TrvcnvStatus:
    """Convexity of a closed outline, of either orientation.

    A vertex within the tolerance of the line through its neighbours counts as straight, unless
    the outline turns back there. An outline is not convex if it has a spike, if all its
    vertices lie on one line, or if a vertex is infinite or NaN.

    Retains: nothing.

    Arguments:
      X, Y: arrays of n: vertices, the first not repeated
      n: number of vertices

    Returns:
      status: test: 1 convex: the outline is convex; 0 not_convex: the outline is not convex, or
        winds more than once; -1 refused: n < 3, or the length of a side is within the tolerance
    """
    return _trvcnv.call((X, Y, n))


class TrvtrgResult(NamedTuple):
    cphi: float
    sphi: float
    status: TrvCoincidence


_trvtrg = Routine(
    "trvtrg", TrvtrgResult,
    "in real x1; in real y1; in real z1; in real x2; in real y2; in real z2; in real x3; "
    "in real y3; in real z3; in real x4; in real y4; in real z4; out real cphi; "
    "out real sphi; out int status",
    values=dict(status=TrvCoincidence)
)


def trvtrg(
    x1: float, y1: float, z1: float, x2: float, y2: float, z2: float, x3: float, y3: float,
    z3: float, x4: float, y4: float, z4: float
) -> TrvtrgResult:
    """Cosine and sine of the angle between P2 - P1 and P4 - P3.

    Retains: nothing.

    Arguments:
      x1, y1, z1: P1
      x2, y2, z2: P2
      x3, y3, z3: P3
      x4, y4, z4: P4

    Returns:
      cphi: cosine; unwritten if status is 1
      sphi: sine, never negative; unwritten if status is 1
      status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 and
        P2, or P3 and P4, coincide (trvcnt)

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvtrg.cells(x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4, _NAN, _NAN, 0)


_trvdir = Routine(
    "trvdir", None,
    "in real ux; in real uy; in real uz; in real vx; in real vy; in real vz; out int code",
    values=dict(code=TrvdirCode)
)


def trvdir(
    ux: float, uy: float, uz: float, vx: float, vy: float, vz: float
) -> TrvdirCode:
    """Relation of two directions.

    The cosine of their angle decides, within the tolerance. If several codes apply, the result
    is the highest. Directions up to 0.00447 radians apart, or 4.47 mm per metre, count as the
    same.

    Retains: nothing.

    Arguments:
      ux, uy, uz: u
      vx, vy, vz: v

    Returns:
      code: relation: 0 oblique: u and v have neither the same, opposite nor perpendicular
        directions; 1 same: the directions are the same; 2 opposite: the directions are
        opposite; 3 perpendicular: the directions are perpendicular; 4 zero: all components of
        u, or of v, are within the tolerance
    """
    return _trvdir.cells(ux, uy, uz, vx, vy, vz, 0)


_trvdirp = Routine(
    "trvdirp", None,
    "in real a1; in real b1; in real c1; in real d1; in real a2; in real b2; in real c2; "
    "in real d2; out int code",
    values=dict(code=TrvdirpCode)
)


def trvdirp(
    a1: float, b1: float, c1: float, d1: float, a2: float, b2: float, c2: float, d2: float
) -> TrvdirpCode:
    """Relation of two planes.

    The relation of the normals is that of trvdir. Planes up to 0.00447 radians apart count as
    parallel. A normal counts as zero if all its components are within the tolerance.

    Planes with parallel normals are distinct if the ratio of their normals and the ratio of
    their constants differ by more than the tolerance, and d1 or d2 is above the tolerance. The
    ratio of the normals is taken at the last component that is above the tolerance in the
    second normal. The ratio of the constants is 0 if d2 is within the tolerance.

    Retains: nothing.

    Arguments:
      a1, b1, c1, d1: first plane
      a2, b2, c2, d2: second plane

    Returns:
      code: relation: 0 crossing: the planes cross, not at a right angle; 1 parallel_same: the
        planes are parallel and distinct, their normals in the same direction; 2
        parallel_opposite: the planes are parallel and distinct, their normals opposite; 3
        coincident_same: the planes coincide, their normals in the same direction; 4
        coincident_opposite: the planes coincide, their normals opposite; 5 perpendicular: the
        planes are perpendicular; 6 zero_normal: a normal is zero
    """
    return _trvdirp.cells(a1, b1, c1, d1, a2, b2, c2, d2, 0)


class TrvmovResult(NamedTuple):
    ax: float
    ay: float
    az: float


_trvmov = Routine(
    "trvmov", TrvmovResult,
    "in real x1; in real y1; in real z1; in real x2; in real y2; in real z2; in real x3; "
    "in real y3; in real z3; in real x4; in real y4; in real z4; out real ax; out real ay; "
    "out real az",
)


def trvmov(
    x1: float, y1: float, z1: float, x2: float, y2: float, z2: float, x3: float, y3: float,
    z3: float, x4: float, y4: float, z4: float
) -> TrvmovResult:
    """Angles between the projections of P2 - P1 and P4 - P3 onto the coordinate planes.

    Each angle is that of trvphi1. Caution: its cosine is not clamped. If two projections are
    parallel, rounding takes the cosine beyond 1 or -1 in about one call of five, and that angle
    is NaN; in other calls the angle is off by up to 5e-4. If P2 - P1 and P4 - P3 lie in one
    coordinate plane, their projections onto the other two planes are parallel, and a tenth of
    such calls gives a NaN.

    Small angles, and angles close to pi, lose digits as in trvphi. For such angles, and for
    parallel projections, use trvchi of the two projections, from the origin; if chi is above
    pi, the angle is 2*pi - chi.

    Retains: nothing.

    Arguments:
      x1, y1, z1: P1
      x2, y2, z2: P2
      x3, y3, z3: P3
      x4, y4, z4: P4

    Returns:
      ax, ay, az: angles in [0, pi] or NaN, seen along the x, y and z axis; 0 if the length of a
        projection is within the tolerance (trvphi1)
    """
    return _trvmov.cells(x1, y1, z1, x2, y2, z2, x3, y3, z3, x4, y4, z4, _NAN, _NAN, _NAN)


class TrvtraResult(NamedTuple):
    X: NDArray[float32]
    Y: NDArray[float32]


_trvtra = Routine(
    "trvtra", TrvtraResult,
    "inout real X[n]; inout real Y[n]; in int n = X Y; in real x0; in real y0",
)


def trvtra(
    X: ArrayLike, Y: ArrayLike, x0: float, y0: float, *, n: int | None = None,
    in_place: bool = False
) -> TrvtraResult:
    """Moves the origin of plane points to (x0, y0), in place.

    Retains: nothing.

    Arguments:
      X, Y: arrays of n: coordinates; x0 and y0 are subtracted
      n: number of points; below 1 nothing happens
      x0, y0: new origin; may be one of the points

    Returns:
      X, Y: arrays of n: coordinates; x0 and y0 are subtracted
    """
    return _trvtra.call((X, Y, n, x0, y0), in_place)


_trvinv = Routine(
    "trvinv", None,
    "inout int V[n]; in int n = V",
)


def trvinv(
    V: ArrayLike, *, n: int | None = None, in_place: bool = False
) -> NDArray[int32]:
    """Reverses a list, in place. Elements move bit for bit, so the list may also hold Reals.

    Retains: nothing.

    Arguments:
      V: array of n: the list
      n: number of elements; below 2 nothing happens

    Returns:
      V: array of n: the list
    """
    return _trvinv.call((V, n), in_place)


class TrvadrResult(NamedTuple):
    V: NDArray[int32]
    n: int


_trvadr = Routine(
    "trvadr", TrvadrResult,
    "inout int V[n+m]; inout int n = V; in int k; in int A[m]; in int m = A",
)


def trvadr(
    V: ArrayLike, k: int, A: ArrayLike, *, n: int | None = None, m: int | None = None,
    in_place: bool = False
) -> TrvadrResult:
    """Inserts a list into another. Elements move bit for bit, so the lists may also hold Reals.

    Retains: nothing.

    Arguments:
      V: array of n+m: the list, with space for the elements to insert; unchanged on a
        condition: n is unchanged
      n: number of its elements; n+m afterwards; unchanged on a condition: k is negative or
        above n, or m < 1
      k: position after which to insert, 0 for the front
      A: array of m: elements to insert
      m: number of elements to insert

    Returns:
      V: array of n+m: the list, with space for the elements to insert; unchanged on a
        condition: n is unchanged
      n: number of its elements; n+m afterwards; unchanged on a condition: k is negative or
        above n, or m < 1
    """
    return _trvadr.call((V, n, k, A, m), in_place)


class TrvaplResult(NamedTuple):
    x: NDArray[float32]
    y: NDArray[float32]
    area: float


_trvapl = Routine(
    "trvapl", TrvaplResult,
    "inout real x[n+1]; inout real y[n+1]; in int n >= 0 = x y; out real area",
)


def trvapl(
    x: ArrayLike, y: ArrayLike, *, n: int | None = None, in_place: bool = False
) -> TrvaplResult:
    """Area of a polygon.

    The exact integral over the closed outline by Green's theorem, A = integral of x dy along
    it: half the sum of (y(i+1) - y(i))*(x(i) + x(i+1)) over the n edges, summed in double
    precision and rounded once, so that the result stays accurate for an outline far from the
    origin. Positive for a counter-clockwise outline (x to the right, y up), negative for a
    clockwise one; loops of a self-intersecting outline add up with their signs. The last vertex
    may repeat the first.

    Cost: time grows with n.

    Retains: nothing.

    Arguments:
      x, y: arrays of n+1: vertices; element n+1 is overwritten with vertex 1 first, if n = 0
        vertex 1 with itself; unchanged on a condition: elements 1 to n
      n: number of vertices, at least 0; n = 0 gives 0; n must not be negative, since the
        routine would write before the start of the arrays

    Returns:
      x, y: arrays of n+1: vertices; element n+1 is overwritten with vertex 1 first, if n = 0
        vertex 1 with itself; unchanged on a condition: elements 1 to n
      area: signed area, in L^2
    """
    return _trvapl.call((x, y, n), in_place)


class TrvsplResult(NamedTuple):
    x: NDArray[float32]
    y: NDArray[float32]
    sx: float
    sy: float


_trvspl = Routine(
    "trvspl", TrvsplResult,
    "inout real x[n+1]; inout real y[n+1]; in int n >= 0 = x y; out real sx; out real sy",
)


def trvspl(
    x: ArrayLike, y: ArrayLike, *, n: int | None = None, in_place: bool = False
) -> TrvsplResult:
    """First moments of a polygon.

    The exact integrals over the closed outline by Green's theorem, Sx = -1/2 integral of y^2 dx
    and Sy = 1/2 integral of x^2 dy along it, as sums over the edges in double precision, each
    rounded once. The signs are right for a counter-clockwise outline and opposite for a
    clockwise one; loops of a self-intersecting outline add up with their signs. The last vertex
    may repeat the first.

    Cost: time grows with n.

    Retains: nothing.

    Arguments:
      x, y: arrays of n+1: vertices; element n+1 is overwritten with vertex 1 first, if n = 0
        vertex 1 with itself; unchanged on a condition: elements 1 to n
      n: number of vertices, at least 0; n = 0 gives zeros; n must not be negative, since the
        routine would write before the start of the arrays

    Returns:
      x, y: arrays of n+1: vertices; element n+1 is overwritten with vertex 1 first, if n = 0
        vertex 1 with itself; unchanged on a condition: elements 1 to n
      sx: first moment about the x axis, the integral of y dA, in L^3
      sy: first moment about the y axis, the integral of x dA, in L^3
    """
    return _trvspl.call((x, y, n), in_place)


class TrviplResult(NamedTuple):
    x: NDArray[float32]
    y: NDArray[float32]
    ix: float
    iy: float
    ixy: float


_trvipl = Routine(
    "trvipl", TrviplResult,
    "inout real x[n+1]; inout real y[n+1]; in int n >= 0 = x y; out real ix; out real iy; "
    "out real ixy",
)


def trvipl(
    x: ArrayLike, y: ArrayLike, *, n: int | None = None, in_place: bool = False
) -> TrviplResult:
    """Second moments of a polygon.

    The exact integrals over the closed outline by Green's theorem, Ix = -1/3 integral of y^3
    dx, Iy = 1/3 integral of x^3 dy and Ixy = 1/2 integral of x^2*y dy along it, as sums over
    the edges in double precision, each rounded once. The signs are right for a
    counter-clockwise outline and opposite for a clockwise one; loops of a self-intersecting
    outline add up with their signs. The last vertex may repeat the first.

    Cost: time grows with n.

    Retains: nothing.

    Arguments:
      x, y: arrays of n+1: vertices; element n+1 is overwritten with vertex 1 first, if n = 0
        vertex 1 with itself; unchanged on a condition: elements 1 to n
      n: number of vertices, at least 0; n = 0 gives zeros; n must not be negative, since the
        routine would write before the start of the arrays

    Returns:
      x, y: arrays of n+1: vertices; element n+1 is overwritten with vertex 1 first, if n = 0
        vertex 1 with itself; unchanged on a condition: elements 1 to n
      ix: second moment about the x axis, the integral of y*y dA, in L^4
      iy: second moment about the y axis, the integral of x*x dA, in L^4
      ixy: product of inertia, the integral of x*y dA, in L^4
    """
    return _trvipl.call((x, y, n), in_place)


class TrvacpResult(NamedTuple):
    area: float
    xs: float
    ys: float


_trvacp = Routine(
    "trvacp", TrvacpResult,
    "in real xc; in real yc; in real x1; in real y1; in real x2; in real y2; in int kind; "
    "out real area; out real xs; out real ys",
)


def trvacp(
    xc: float, yc: float, x1: float, y1: float, x2: float, y2: float, kind: int
) -> TrvacpResult:
    """Area and centroid of a circular segment, the region between an arc and its chord.

    The radius r is the distance of P1 from the centre. P2 determines the direction of the chord
    and the angle phi (trvphi). If both lie on the circle, the order of P1 and P2 does not
    matter. The larger segment has the angle 2*pi - phi. The area is r^2*(phi - sin phi)/2, and
    the centroid lies 4*r*sin^3(phi/2)/(3*(phi - sin phi)) from the centre, across the chord for
    the smaller segment.

    Caution: the centroid is NaN for a chord through the centre, for P1 = P2, and for a smaller
    segment whose angle is 0, although the area is a number.

    Retains: nothing.

    Arguments:
      xc, yc: centre
      x1, y1: first end of the chord P1
      x2, y2: second end of the chord P2
      kind: part kind (TrvPart): 5 larger_segment: the larger circular segment at a chord; any
        other value is the smaller segment

    Returns:
      area: area, positive
      xs, ys: centroid
    """
    return _trvacp.cells(xc, yc, x1, y1, x2, y2, kind, _NAN, _NAN, _NAN)


class TrvicpResult(NamedTuple):
    ix: float
    iy: float
    ixy: float


_trvicp = Routine(
    "trvicp", TrvicpResult,
    "in real xc; in real yc; in real x1; in real y1; in real x2; in real y2; in int kind; "
    "out real ix; out real iy; out real ixy",
)


def trvicp(
    xc: float, yc: float, x1: float, y1: float, x2: float, y2: float, kind: int
) -> TrvicpResult:
    """Second moments of a circular segment, the region between an arc and its chord.

    The segment is that of trvacp: its radius is the distance of P1 from the centre; P2
    determines the angle and the chord's direction. The moments about the segment's axis of
    symmetry, and about the line through its centroid parallel to the chord, are rotated to the
    axes of x and y and shifted to the origin.

    Caution: all three moments are NaN for a chord through the centre, for P1 = P2, and for a
    smaller segment whose angle is 0.

    Retains: nothing.

    Arguments:
      xc, yc: centre
      x1, y1: first end of the chord P1
      x2, y2: second end of the chord P2
      kind: part kind (TrvPart): 5 larger_segment: the larger circular segment at a chord; any
        other value is the smaller segment

    Returns:
      ix: second moment about the x axis, the integral of y*y dA
      iy: second moment about the y axis, the integral of x*x dA
      ixy: area*xs*ys, without the segment's own product of inertia about its centroid; so it is
        the integral of x*y dA only if the chord is parallel to an axis
    """
    return _trvicp.cells(xc, yc, x1, y1, x2, y2, kind, _NAN, _NAN, _NAN)


class TrvairResult(NamedTuple):
    x: NDArray[float32]
    y: NDArray[float32]
    area: float


_trvair = Routine(
    "trvair", TrvairResult,
    "inout real x[0, n+1, 2, 3, 3 by kind]; inout real y[0, n+1, 2, 3, 3 by kind]; "
    "in int n >= 0 = x y; in int kind; in real value; in real factor; inout real area",
)


def trvair(
    x: ArrayLike, y: ArrayLike, kind: int, value: float, factor: float, area: float, *,
    n: int | None = None, in_place: bool = False
) -> TrvairResult:
    """Area of a part of a section.

    The area of a polygon is that of trvapl, negative if its vertices are listed clockwise. The
    area of a segment is that of trvacp.

    Retains: nothing.

    Arguments:
      x, y: arrays of 0, n+1, 2, 3, 3 by kind: the part's points, see kind; element n+1 is
        overwritten with vertex 1 if kind is 2; nothing is read for kind 1 and an unknown kind;
        unchanged on a condition: kind is not 2, or elements 1 to n
      n: number of vertices of kind 2, at least 0; n = 0 gives 0; n must not be negative, since
        the routine would write before the start of the arrays; ignored for other kinds
      kind: part kind (TrvPart): 1 concentrated: area concentrated at point 1; 2 polygon: points
        1 to n are the vertices, counter-clockwise; 3 circle: a full circle, point 1 is its
        centre, point 2 is on it; 4 smaller_segment: the smaller circular segment, point 1 is
        the centre, points 2 and 3 are the ends of its chord; 5 larger_segment: the larger
        circular segment, given by the same three points; any other value is an unknown kind
      value: area for kind 1, ignored otherwise
      factor: multiplies the result. A hole is a part with the factor -1. Caution: a polygon
        must then still be counter-clockwise; a clockwise one with -1 adds area
      area: area of the part, times the factor; if the kind is unknown, the caller's value,
        times the factor

    Returns:
      x, y: arrays of 0, n+1, 2, 3, 3 by kind: the part's points, see kind; element n+1 is
        overwritten with vertex 1 if kind is 2; nothing is read for kind 1 and an unknown kind;
        unchanged on a condition: kind is not 2, or elements 1 to n
      area: area of the part, times the factor; if the kind is unknown, the caller's value,
        times the factor
    """
    return _trvair.call((x, y, n, kind, value, factor, area), in_place)


class TrvstmResult(NamedTuple):
    x: NDArray[float32]
    y: NDArray[float32]
    sx: float
    sy: float


_trvstm = Routine(
    "trvstm", TrvstmResult,
    "inout real x[1, n+1, 2, 3, 3 by kind]; inout real y[1, n+1, 2, 3, 3 by kind]; "
    "in int n >= 0 = x y; in int kind; in real value; in real factor; inout real sx; "
    "inout real sy",
)


def trvstm(
    x: ArrayLike, y: ArrayLike, kind: int, value: float, factor: float, sx: float, sy: float, *,
    n: int | None = None, in_place: bool = False
) -> TrvstmResult:
    """First moments of a part of a section.

    The moments of a polygon are those of trvspl, with opposite signs if its vertices are listed
    clockwise. The area and centroid of a segment are those of trvacp.

    Retains: nothing.

    Arguments:
      x, y: arrays of 1, n+1, 2, 3, 3 by kind: the part's points, see kind; element n+1 is
        overwritten with vertex 1 if kind is 2; nothing is read for an unknown kind; unchanged
        on a condition: kind is not 2, or elements 1 to n
      n: number of vertices of kind 2, at least 0; n = 0 gives zeros; n must not be negative,
        since the routine would write before the start of the arrays; ignored for other kinds
      kind: part kind (TrvPart): 1 concentrated: area concentrated at point 1; 2 polygon: points
        1 to n are the vertices, counter-clockwise; 3 circle: a full circle, point 1 is its
        centre, point 2 is on it; 4 smaller_segment: the smaller circular segment, point 1 is
        the centre, points 2 and 3 are the ends of its chord; 5 larger_segment: the larger
        circular segment, given by the same three points; any other value is an unknown kind
      value: area for kind 1, ignored otherwise
      factor: multiplies the results. A hole is a part with the factor -1. Caution: a polygon
        must then still be counter-clockwise; a clockwise one with -1 adds moments
      sx, sy: first moments about the x and the y axis, times the factor; if the kind is
        unknown, the caller's values, times the factor

    Returns:
      x, y: arrays of 1, n+1, 2, 3, 3 by kind: the part's points, see kind; element n+1 is
        overwritten with vertex 1 if kind is 2; nothing is read for an unknown kind; unchanged
        on a condition: kind is not 2, or elements 1 to n
      sx, sy: first moments about the x and the y axis, times the factor; if the kind is
        unknown, the caller's values, times the factor
    """
    return _trvstm.call((x, y, n, kind, value, factor, sx, sy), in_place)


class TrvinmResult(NamedTuple):
    x: NDArray[float32]
    y: NDArray[float32]
    ix: float
    iy: float
    ixy: float


_trvinm = Routine(
    "trvinm", TrvinmResult,
    "inout real x[1, n+1, 2, 3, 3 by kind]; inout real y[1, n+1, 2, 3, 3 by kind]; "
    "in int n >= 0 = x y; in int kind; in real value; in real angle; in real factor; "
    "inout real ix; inout real iy; inout real ixy",
)


def trvinm(
    x: ArrayLike, y: ArrayLike, kind: int, value: float, angle: float, factor: float, ix: float,
    iy: float, ixy: float, *, n: int | None = None, in_place: bool = False
) -> TrvinmResult:
    """Second moments of a part of a section.

    The moments of a polygon are those of trvipl, with opposite signs if its vertices are listed
    clockwise. The moments of a segment are those of trvicp.

    For a part of kind 1, the caller passes its centroidal moments in ix, iy and ixy. They are
    rotated by `angle` and shifted to the origin. Caution: this is not the usual rotation of
    second moments, since each line uses the values that the lines before it have changed. With
    s = sin(angle), c = cos(angle) and t = sin(2*angle):

      ix  = ix*c^2 + iy*s^2 - ixy*t
      iy  = iy*c^2 + s^2*ix + ixy*t
      ixy = ((ix - iy)*0.5 + ixy)*t

    If the angle is exactly 0, these lines are skipped.

    Retains: nothing.

    Arguments:
      x, y: arrays of 1, n+1, 2, 3, 3 by kind: the part's points, see kind; element n+1 is
        overwritten with vertex 1 if kind is 2; nothing is read for an unknown kind; unchanged
        on a condition: kind is not 2, or elements 1 to n
      n: number of vertices of kind 2, at least 0; n = 0 gives zeros; n must not be negative,
        since the routine would write before the start of the arrays; ignored for other kinds
      kind: part kind (TrvPart): 1 concentrated: area concentrated at point 1, or a region with
        its centroid at point 1, whose centroidal moments are passed in ix, iy and ixy; 2
        polygon: points 1 to n are the vertices, counter-clockwise; 3 circle: a full circle,
        point 1 is its centre, point 2 is on it; 4 smaller_segment: the smaller circular
        segment, point 1 is the centre, points 2 and 3 are the ends of its chord; 5
        larger_segment: the larger circular segment, given by the same three points; any other
        value is an unknown kind
      value: area for kind 1, ignored otherwise
      angle: rotation of the part's own axes in radians for kind 1, ignored otherwise
      factor: multiplies the results. A hole is a part with the factor -1. Caution: a polygon
        must then still be counter-clockwise; a clockwise one with -1 adds moments
      ix, iy, ixy: second moments about the axes, times the factor; for kinds 4 and 5, ixy lacks
        the segment's own product of inertia (trvicp); for kind 1, the part's own moments on
        entry; if the kind is unknown, the caller's values, times the factor

    Returns:
      x, y: arrays of 1, n+1, 2, 3, 3 by kind: the part's points, see kind; element n+1 is
        overwritten with vertex 1 if kind is 2; nothing is read for an unknown kind; unchanged
        on a condition: kind is not 2, or elements 1 to n
      ix, iy, ixy: second moments about the axes, times the factor; for kinds 4 and 5, ixy lacks
        the segment's own product of inertia (trvicp); for kind 1, the part's own moments on
        entry; if the kind is unknown, the caller's values, times the factor
    """
    return _trvinm.call((x, y, n, kind, value, angle, factor, ix, iy, ixy), in_place)


class TrvinpResult(NamedTuple):
    i1: float
    i2: float
    alpha: float


_trvinp = Routine(
    "trvinp", TrvinpResult,
    "in real ix; in real iy; in real ixy; out real i1; out real i2; out real alpha",
)


def trvinp(
    ix: float, iy: float, ixy: float
) -> TrvinpResult:
    """Principal moments and their direction.

    The principal axes are those of x and y turned counter-clockwise by alpha, with

      tan(2*alpha) = 2*ixy/(iy - ix)
      i1 = ix*cos^2(alpha) - 2*ixy*sin(alpha)*cos(alpha) + iy*sin^2(alpha)
      i2 = ix*sin^2(alpha) + 2*ixy*sin(alpha)*cos(alpha) + iy*cos^2(alpha)

    Since alpha is at most pi/4, i1 is the larger one if ix is larger than iy.

    If |ixy/(ix + iy)| is at most 1e-8 or NaN, the axes count as principal: i1 = ix, i2 = iy and
    alpha = 0. Otherwise, if |iy - ix| < 1e-12: alpha = pi/4, i1 = (ix + iy)/2 - ixy and i2 =
    (ix + iy)/2 + ixy.

    Retains: nothing.

    Arguments:
      ix, iy, ixy: second moments about the axes, usually those through the centroid

    Returns:
      i1: moment about the axis turned by alpha from the x axis
      i2: moment about the axis turned by alpha from the y axis
      alpha: angle in radians, counter-clockwise, within +-pi/4
    """
    return _trvinp.cells(ix, iy, ixy, _NAN, _NAN, _NAN)


_trvinr = Routine(
    "trvinr", None,
    "in int n >= 2 = f; in real f[n]; in real a; in real b; out real result",
)


def trvinr(
    f: ArrayLike, a: float, b: float, *, n: int | None = None
) -> float:
    """Integral of equally spaced samples over [a, b] by the trapezoidal rule.

    Caution: the last interior sample f(n-1) is not in the sum; if n = 3, no interior sample is.

    Cost: time grows with n.

    Retains: nothing.

    Arguments:
      n: number of samples, at least 2; 1 divides by zero; n must not be smaller, since f(n)
        would be before the array
      f: array of n: samples
      a, b: limits

    Returns:
      result: (b - a)/(n - 1) * ((f(1) + f(n))/2 + f(2) + ... + f(n-2))
    """
    return _trvinr.call((n, f, a, b))


_trvro2 = Routine(
    "trvro2", None,
    "in real b; in real t; in real r1; in real r2; in real psi; in real ks; out real rho",
)


def trvro2(
    b: float, t: float, r1: float, r2: float, psi: float, ks: float
) -> float:
    """Reduction factor of an internal compression element, EN 1993-1-5, 4.4(2).

    The slenderness is b / ((((r2/r1) * 28.4) * sqrt(ks)) * t). If it is at most 0.5 +
    sqrt(0.085 - 0.055*psi), rho = 1. Otherwise rho = (1 - 0.055*(3 + psi)/slenderness) /
    slenderness, at most 1, without a lower bound. ks = 0 gives 0. If psi is above 0.085/0.055,
    the second formula is used.

    Retains: nothing.

    Arguments:
      b: width
      t: thickness, in the unit of b
      r1: square root of the yield strength: sqrt(fy)
      r2: square root of the reference strength: sqrt(235) for N/mm2, so that epsilon = r2/r1 =
        sqrt(235/fy)
      psi: stress ratio, of the stress at the other edge to the greater compression
      ks: buckling factor k_sigma

    Returns:
      rho: reduction factor
    """
    return _trvro2.cells(b, t, r1, r2, psi, ks, _NAN)


_trvefr = Routine(
    "trvefr", None,
    "in real c; in real bp; in real t; in real r1; in real r2; out real ceff",
    retains=True,
)


def trvefr(
    c: float, bp: float, t: float, r1: float, r2: float
) -> float:
    """Effective width of an edge fold on a plate it stiffens, after EN 1993-1-3, 5.5.3.2.

    The buckling factor is 0.5 up to c/bp = 0.35, and 0.5 + (c/bp - 0.35)^2/3 up to 0.6. The
    reduction is that of trvro2 for psi = 1.

    Caution: between 0.35 and 0.6 the factor differs from the clause, which has 0.5 + 0.83*(c/bp
    - 0.35)^(2/3). Beyond 0.6, or if c/bp is NaN, the factor of the previous call is used again.
    It is zero after loading, which gives ceff = 0.

    Retains: the buckling factor (trvefr).

    Arguments:
      c: width of the fold
      bp: width of the plate
      t: thickness
      r1: square root of the yield strength: sqrt(fy)
      r2: square root of the reference strength: sqrt(235) for N/mm2

    Returns:
      ceff: effective width
    """
    return _trvefr.cells(c, bp, t, r1, r2, _NAN)


class Trvef2Result(NamedTuple):
    be1: float
    be2: float


_trvef2 = Routine(
    "trvef2", Trvef2Result,
    "in real bl; in real w; in real t; in real r1; in real r2; in real s1; in real s2; "
    "out real be1; out real be2",
)


def trvef2(
    bl: float, w: float, t: float, r1: float, r2: float, s1: float, s2: float
) -> Trvef2Result:
    """Effective widths at the edges of an internal element, EN 1993-1-5, table 4.1.

    Compression is positive. With psi = s2/s1 and the reduction of trvro2 the widths are

      psi           ks                            be1                 be2
      1             4                             rho*w/2             rho*w/2
      1 to 0        8.2/(1.05 + psi)              2*rho*w/(5 - psi)   rho*w - be1
      0             7.81                          2*rho*w/5           rho*w - be1
      0 to -1       7.81 - 6.29*psi + 9.78*psi^2  0.4*rho*w           0.6*rho*w
      -1            23.9                          0.4*rho*w           0.6*rho*w
      -1 to -3      5.98*(1 - psi)^2              0.4*rho*w           0.6*rho*w
      below -3      none                          w/2                 w/2

    psi counts as 1 if s1 - s2 is within the tolerance, as 0 if s2 is, and as -1 if |s1 + s2| is
    below the tolerance. Caution: the rows 1 and 0 overlap with others. If 0 < s2 < s1, however
    small the difference, the row "1 to 0" applies; if s2 < 0, one of the rows for negative psi
    does.

    Retains: nothing.

    Arguments:
      bl: width for the slenderness
      w: width to reduce; in bending, if s2 is tension, the width of the compressed part
      t: thickness
      r1: square root of the yield strength: sqrt(fy)
      r2: square root of the reference strength: sqrt(235) for N/mm2
      s1: stress at the more compressed edge
      s2: stress at the other edge

    Returns:
      be1: effective width at the edge of s1; unwritten on a condition: be2 is unwritten
      be2: effective width at the other edge; unwritten on a condition: both stresses are within
        the tolerance, s1 is zero or negative, s1 = -s2/3, or s2 is not within the tolerance and
        s2 - s1 is above the tolerance or NaN

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvef2.cells(bl, w, t, r1, r2, s1, s2, _NAN, _NAN)


class TrvsecIaResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_ia = Routine(
    "trvsec_ia", TrvsecIaResult,
    "in real H; in real B1; in real B2; in real T1; in real T2; in real TW; in real q; "
    "out int np; out int nv[1]; out real X[12]; out real Y[12]; out int code[1]; "
    "out real sign[1]; out real z1[1]; out real z2[1]; out real z3[1]; out real z4[1]; "
    "out real z5[1]; out real q1[1]; out real q2[1]",
)


def trvsec_ia(
    H: float, B1: float, B2: float, T1: float, T2: float, TW: float, q: float
) -> TrvsecIaResult:
    """I section with unequal flanges.

    Retains: nothing.

    Arguments:
      H: height
      B1, T1: width and thickness of flange 1, at the bottom
      B2, T2: width and thickness of flange 2, at the top
      TW: web thickness
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 1
      nv: array of 1: numbers of vertices: 12
      X, Y: arrays of 12: vertices about the middle of the bounding box
      code: array of 1: 2, the part kind "polygon" of trvair
      sign: array of 1: 1, of a solid, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 1: 0
      q1, q2: arrays of 1: q
    """
    return _trvsec_ia.call((H, B1, B2, T1, T2, TW, q))


class TrvsecHResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_h = Routine(
    "trvsec_h", TrvsecHResult,
    "in real H; in real B1; in real B2; in real T1; in real T2; in real TW; in real q; "
    "out int np; out int nv[1]; out real X[12]; out real Y[12]; out int code[1]; "
    "out real sign[1]; out real z1[1]; out real z2[1]; out real z3[1]; out real z4[1]; "
    "out real z5[1]; out real q1[1]; out real q2[1]",
)


def trvsec_h(
    H: float, B1: float, B2: float, T1: float, T2: float, TW: float, q: float
) -> TrvsecHResult:
    """I section lying on its side.

    Retains: nothing.

    Arguments:
      H: depth, along x
      B1, T1: width and thickness of flange 1, on the left
      B2, T2: width and thickness of flange 2, on the right
      TW: web thickness
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 1
      nv: array of 1: numbers of vertices: 12
      X, Y: arrays of 12: vertices about the middle of the bounding box
      code: array of 1: 2, the part kind "polygon" of trvair
      sign: array of 1: 1, of a solid, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 1: 0
      q1, q2: arrays of 1: q
    """
    return _trvsec_h.call((H, B1, B2, T1, T2, TW, q))


class TrvsecTResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_t = Routine(
    "trvsec_t", TrvsecTResult,
    "in real B; in real H; in real TF; in real TW; in real q; out int np; out int nv[1]; "
    "out real X[8]; out real Y[8]; out int code[1]; out real sign[1]; out real z1[1]; "
    "out real z2[1]; out real z3[1]; out real z4[1]; out real z5[1]; out real q1[1]; "
    "out real q2[1]",
)


def trvsec_t(
    B: float, H: float, TF: float, TW: float, q: float
) -> TrvsecTResult:
    """T section, flange at the top.

    Retains: nothing.

    Arguments:
      B, TF: width and thickness of the flange
      H: height
      TW: stem thickness
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 1
      nv: array of 1: numbers of vertices: 8
      X, Y: arrays of 8: vertices about the middle of the bounding box
      code: array of 1: 2, the part kind "polygon" of trvair
      sign: array of 1: 1, of a solid, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 1: 0
      q1, q2: arrays of 1: q
    """
    return _trvsec_t.call((B, H, TF, TW, q))


class TrvsecBResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_b = Routine(
    "trvsec_b", TrvsecBResult,
    "in int B; in real H; in real q; out int np; out int nv[1]; out real X[12]; "
    "out real Y[12]; out int code[1]; out real sign[1]; out real z1[1]; out real z2[1]; "
    "out real z3[1]; out real z4[1]; out real z5[1]; out real q1[1]; out real q2[1]",
)


def trvsec_b(
    B: int, H: float, q: float
) -> TrvsecBResult:
    """Flat bar.

    Retains: nothing.

    Arguments:
      B: width, an Integer
      H: height
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 1
      nv: array of 1: numbers of vertices: 12, although X and Y receive 4
      X, Y: arrays of 12, 4 used: the 4 vertices; provide for 12 and read 4
      code: array of 1: 2, the part kind "polygon" of trvair
      sign: array of 1: 1, of a solid, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 1: 0
      q1, q2: arrays of 1: q
    """
    return _trvsec_b.call((B, H, q))


class TrvsecH1bResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_h1b = Routine(
    "trvsec_h1b", TrvsecH1bResult,
    "in real W; in real D; in real P; in real T1; in real T2; in real TW; in real TP; "
    "in real q; out int np; out int nv[2]; out real X[16]; out real Y[16]; out int code[2]; "
    "out real sign[2]; out real z1[2]; out real z2[2]; out real z3[2]; out real z4[2]; "
    "out real z5[2]; out real q1[2]; out real q2[2]",
)


def trvsec_h1b(
    W: float, D: float, P: float, T1: float, T2: float, TW: float, TP: float, q: float
) -> TrvsecH1bResult:
    """I section lying on its side with a cover plate on its flanges' top edges, closing one
    cell.

    The web lies at the flanges' mid-height.

    Retains: nothing.

    Arguments:
      W, TP: width and thickness of the cover plate
      D: depth of the I section, along x
      P: height of its flanges
      T1, T2: thicknesses of the left and the right flange
      TW: web thickness
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 2
      nv: array of 2: numbers of vertices: 12, 4
      X, Y: arrays of 16: vertices, of the solid and of its cell
      code: array of 2: 2, 2, the part kind "polygon" of trvair
      sign: array of 2: 1, -1, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 2: 0
      q1, q2: arrays of 2: q, -q
    """
    return _trvsec_h1b.call((W, D, P, T1, T2, TW, TP, q))


class TrvsecBoxResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_box = Routine(
    "trvsec_box", TrvsecBoxResult,
    "in real BT; in real BB; in real TT; in real TB; in real H; in real TW; in real G; "
    "in real q; out int np; out int nv[2]; out real X[16]; out real Y[16]; out int code[2]; "
    "out real sign[2]; out real z1[2]; out real z2[2]; out real z3[2]; out real z4[2]; "
    "out real z5[2]; out real q1[2]; out real q2[2]",
)


def trvsec_box(
    BT: float, BB: float, TT: float, TB: float, H: float, TW: float, G: float, q: float
) -> TrvsecBoxResult:
    """Box girder with overhanging flanges.

    Retains: nothing.

    Arguments:
      BT, TT: width and thickness of the top flange
      BB, TB: width and thickness of the bottom flange
      H: overall height
      TW: thickness of each web
      G: clear distance of the webs
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 2
      nv: array of 2: numbers of vertices: 12, 4
      X, Y: arrays of 16: vertices, of the solid and of its cell
      code: array of 2: 2, 2, the part kind "polygon" of trvair
      sign: array of 2: 1, -1, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 2: 0
      q1, q2: arrays of 2: q, -q
    """
    return _trvsec_box.call((BT, BB, TT, TB, H, TW, G, q))


class TrvsecRhsResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_rhs = Routine(
    "trvsec_rhs", TrvsecRhsResult,
    "in real B; in real H; in real T; in real q; out int np; out int nv[2]; out real X[8]; "
    "out real Y[8]; out int code[2]; out real sign[2]; out real z1[2]; out real z2[2]; "
    "out real z3[2]; out real z4[2]; out real z5[2]; out real q1[2]; out real q2[2]",
)


def trvsec_rhs(
    B: float, H: float, T: float, q: float
) -> TrvsecRhsResult:
    """Rectangular hollow section with sharp corners.

    Retains: nothing.

    Arguments:
      B, H: width and height
      T: wall thickness
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 2
      nv: array of 2: numbers of vertices: 4, 4
      X, Y: arrays of 8: vertices, of the solid and of its cell
      code: array of 2: 2, 2, the part kind "polygon" of trvair
      sign: array of 2: 1, -1, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 2: 0
      q1, q2: arrays of 2: q, -q
    """
    return _trvsec_rhs.call((B, H, T, q))


class TrvsecL2Result(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_l2 = Routine(
    "trvsec_l2", TrvsecL2Result,
    "in real B; in real H; in real G; in real T; in real TV; in real q; out int np; "
    "out int nv[2]; out real X[12]; out real Y[12]; out int code[2]; out real sign[2]; "
    "out real z1[2]; out real z2[2]; out real z3[2]; out real z4[2]; out real z5[2]; "
    "out real q1[2]; out real q2[2]",
)


def trvsec_l2(
    B: float, H: float, G: float, T: float, TV: float, q: float
) -> TrvsecL2Result:
    """Two equal angles back to back, horizontal legs at the top.

    Retains: nothing.

    Arguments:
      B, T: length and thickness of a horizontal leg
      H, TV: height and thickness of a vertical leg
      G: gap between the vertical legs
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 2
      nv: array of 2: numbers of vertices: 6, 6
      X, Y: arrays of 12: vertices, of the left angle and of the right one
      code: array of 2: 2, 2, the part kind "polygon" of trvair
      sign: array of 2: 1, 1, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 2: 0
      q1, q2: arrays of 2: q, q
    """
    return _trvsec_l2.call((B, H, G, T, TV, q))


class TrvsecTabResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_tab = Routine(
    "trvsec_tab", TrvsecTabResult,
    "in real B; in real H; in real BW; in real E; in real T; in real TW; in real TB; "
    "in real q; out int np; out int nv[2]; out real X[16]; out real Y[16]; out int code[2]; "
    "out real sign[2]; out real z1[2]; out real z2[2]; out real z3[2]; out real z4[2]; "
    "out real z5[2]; out real q1[2]; out real q2[2]",
)


def trvsec_tab(
    B: float, H: float, BW: float, E: float, T: float, TW: float, TB: float, q: float
) -> TrvsecTabResult:
    """Top plate on a closed cell of two webs and a bottom plate between them.

    Retains: nothing.

    Arguments:
      B, T: width and thickness of the top plate
      H: height of the webs below the plate
      BW: distance of the webs' outer faces
      E: height of the bottom plate's underside above the webs' lower ends
      TW: thickness of each web
      TB: thickness of the bottom plate
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 2
      nv: array of 2: numbers of vertices: 12, 4
      X, Y: arrays of 16: vertices, of the solid and of its cell
      code: array of 2: 2, 2, the part kind "polygon" of trvair
      sign: array of 2: 1, -1, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 2: 0
      q1, q2: arrays of 2: q, -q
    """
    return _trvsec_tab.call((B, H, BW, E, T, TW, TB, q))


class TrvsecH2bResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_h2b = Routine(
    "trvsec_h2b", TrvsecH2bResult,
    "in real B; in real W; in real HI; in real TW1; in real TW2; in real TM; in real TF; "
    "in real q; out int np; out int nv[3]; out real X[20]; out real Y[20]; out int code[3]; "
    "out real sign[3]; out real z1[3]; out real z2[3]; out real z3[3]; out real z4[3]; "
    "out real z5[3]; out real q1[3]; out real q2[3]",
)


def trvsec_h2b(
    B: float, W: float, HI: float, TW1: float, TW2: float, TM: float, TF: float, q: float
) -> TrvsecH2bResult:
    """Two flanges joined by two webs and a middle plate, closing two cells.

    Retains: nothing.

    Arguments:
      B, TF: width and thickness of each flange
      W: distance of the webs' outer faces
      HI: clear distance of the flanges
      TW1, TW2: thicknesses of the left and the right web
      TM: thickness of the middle plate, at mid-height
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 3
      nv: array of 3: numbers of vertices: 12, 4, 4
      X, Y: arrays of 20: vertices, of the solid, the upper and the lower cell
      code: array of 3: 2, 2, 2, the part kind "polygon" of trvair
      sign: array of 3: 1, -1, -1, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 3: 0
      q1, q2: arrays of 3: q, -q, -q
    """
    return _trvsec_h2b.call((B, W, HI, TW1, TW2, TM, TF, q))


class TrvsecIResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_i = Routine(
    "trvsec_i", TrvsecIResult,
    "in real H; in real B1; in real B2; in real T1; in real T2; in real TW; in real S1; "
    "in real S2; in real E; in real q; out int np; out int nv[1]; out real X[16]; "
    "out real Y[16]; out int code[1]; out real sign[1]; out real z1[1]; out real z2[1]; "
    "out real z3[1]; out real z4[1]; out real z5[1]; out real q1[1]; out real q2[1]",
)


def trvsec_i(
    H: float, B1: float, B2: float, T1: float, T2: float, TW: float, S1: float, S2: float,
    E: float, q: float
) -> TrvsecIResult:
    """I section with unequal flanges, an eccentric web and 45-degree fillets.

    Retains: nothing.

    Arguments:
      H: height
      B1, T1: width and thickness of flange 1, at the bottom
      B2, T2: width and thickness of flange 2, at the top
      TW: web thickness
      S1, S2: legs of the fillets between the web and flanges 1, 2; 0 for none
      E: distance of the web from the middle, to the right
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 1
      nv: array of 1: numbers of vertices: 16
      X, Y: arrays of 16: vertices about the middle of the bounding box
      code: array of 1: 2, the part kind "polygon" of trvair
      sign: array of 1: 1, of a solid, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 1: 0
      q1, q2: arrays of 1: q
    """
    return _trvsec_i.call((H, B1, B2, T1, T2, TW, S1, S2, E, q))


class TrvsecCResult(NamedTuple):
    np: int
    nv: NDArray[int32]
    X: NDArray[float32]
    Y: NDArray[float32]
    code: NDArray[int32]
    sign: NDArray[float32]
    z1: NDArray[float32]
    z2: NDArray[float32]
    z3: NDArray[float32]
    z4: NDArray[float32]
    z5: NDArray[float32]
    q1: NDArray[float32]
    q2: NDArray[float32]


_trvsec_c = Routine(
    "trvsec_c", TrvsecCResult,
    "in real H; in real B1; in real B2; in real C1; in real C2; in real D1; in real D2; "
    "in real TW; in real T1; in real T2; in real TC1; in real TC2; in real TD1; in real TD2; "
    "in real q; out int np; out int nv[1]; out real X[16]; out real Y[16]; out int code[1]; "
    "out real sign[1]; out real z1[1]; out real z2[1]; out real z3[1]; out real z4[1]; "
    "out real z5[1]; out real q1[1]; out real q2[1]",
)


def trvsec_c(
    H: float, B1: float, B2: float, C1: float, C2: float, D1: float, D2: float, TW: float,
    T1: float, T2: float, TC1: float, TC2: float, TD1: float, TD2: float, q: float
) -> TrvsecCResult:
    """Channel open to the right, with lips turned inwards and folds turned back towards the
    web.

    Lengths are outer ones. A lip whose length does not exceed the thickness of its flange is
    ignored, and so is the fold of this lip. A fold whose length does not exceed the thickness
    of its lip is ignored.

    Retains: nothing.

    Arguments:
      H: depth
      B1, B2: widths of flange 1, at the bottom, and flange 2, at the top
      C1, C2: lengths of their lips
      D1, D2: lengths of the folds at the lips' ends
      TW: web thickness
      T1, T2: thicknesses of the flanges
      TC1, TC2: thicknesses of the lips
      TD1, TD2: thicknesses of the folds
      q: user value, copied to q1 and q2 of each polygon

    Returns:
      np: number of polygons, always 1
      nv: array of 1: numbers of vertices: 16
      X, Y: arrays of 16: vertices about the middle of the bounding box
      code: array of 1: 2, the part kind "polygon" of trvair
      sign: array of 1: 1, of a solid, the factor of trvair
      z1, z2, z3, z4, z5: arrays of 1: 0
      q1, q2: arrays of 1: q
    """
    return _trvsec_c.call((H, B1, B2, C1, C2, D1, D2, TW, T1, T2, TC1, TC2, TD1, TD2, q))


_trvshc_c = Routine(
    "trvshc_c", None,
    "in real B; in real H; in real C; in real t; out real e0",
)


def trvshc_c(
    B: float, H: float, C: float, t: float
) -> float:
    """Distance of a channel's shear centre from its centroid.

    Thin-walled theory on the centre lines b = B - t, h = H - t, c = C - t/2. The channel has
    lips if C is above the tolerance.

      plain   e0 = b^2/(2*b + h) + 3*b^2/(h + 6*b)
      lipped  e0 = b*(b + 2*c)/(h + 2*b + 2*c) + b*t*(3*b*h^2 + 6*c*h^2 - 8*c^3)/(12*I)
              I  = t*(h^3 + 6*(b + c)*h^2 - 12*c^2*h + 8*c^3)/12

    The first term is the distance of the centroid from the web, the second that of the shear
    centre on the other side of the web (plain: S. P. Timoshenko, J. M. Gere, Theory of elastic
    stability, appendix, table A-3; lipped: W.-W. Yu, Cold-formed steel design, appendix B,
    sharp corners).

    Retains: nothing.

    Arguments:
      B: outer width of the flanges
      H: outer depth
      C: outer length of the lips, turned inwards; 0 for a plain channel
      t: wall thickness

    Returns:
      e0: distance along the flanges; infinite or NaN if the section has no size
    """
    return _trvshc_c.cells(B, H, C, t, _NAN)


_trvwar_c = Routine(
    "trvwar_c", None,
    "in real B; in real H; in real C; in real t; out real Iw",
)


def trvwar_c(
    B: float, H: float, C: float, t: float
) -> float:
    """Warping constant of a channel.

    Thin-walled theory on the centre lines b = B - t, h = H - t, c = C - t/2. The channel has
    lips if C is above the tolerance. With A the area, xg and e the distances of centroid and
    shear centre from the web, and I the second moment about the axis of symmetry, all as
    trvshc_c:

      plain   Iw = t*b^3*h^2*(3*b + 2*h)/(12*(h + 6*b))
      lipped  Iw = t^2/A * (xg*A*h^2*(b^2/3 + e^2 - e*b)/t
                            + A*(e^2*h^3 + b^2*c^2*(2*c + 3*h))/(3*t)
                            - I*e^2*(2*h + 4*c)/t
                            + e*c^2*(8*b^2*c + 2*e*(2*c*(c - h) + b*(2*c - 3*h)))/3
                            + b^2*h^2*((3*c + b)*(4*c + h) - 6*c^2)/6 - e^2*h^4/4)

    (plain: S. P. Timoshenko, J. M. Gere, Theory of elastic stability, appendix, table A-3;
    lipped: W.-W. Yu, Cold-formed steel design, appendix B, sharp corners.)

    Retains: nothing.

    Arguments:
      B: outer width of the flanges
      H: outer depth
      C: outer length of the lips, turned inwards; 0 for a plain channel
      t: wall thickness

    Returns:
      Iw: warping constant, in the sixth power of the length unit; infinite or NaN if the
        section has no size
    """
    return _trvwar_c.cells(B, H, C, t, _NAN)


class TrvmxtResult(NamedTuple):
    A: float
    xs: float
    ys: float
    Ix: float
    Iy: float
    Ixy: float
    I1: float
    I2: float
    alpha: float
    rx: float
    ry: float
    Wx1: float
    Wx2: float
    Wy1: float
    Wy2: float
    Wpx: float
    Wpy: float
    xp: float
    yp: float
    It: float
    Wt: float
    xm: float
    ym: float
    Iw: float
    r0: float
    W1: NDArray[float32]
    W2: NDArray[float32]
    status: TrvStatus | int


_trvmxt = Routine(
    "trvmxt", TrvmxtResult,
    "in int n = X1 Y1 X2 Y2 T; in real X1[n]; in real Y1[n]; in real X2[n]; in real Y2[n]; "
    "in real T[n]; out real A; out real xs; out real ys; out real Ix; out real Iy; "
    "out real Ixy; out real I1; out real I2; out real alpha; out real rx; out real ry; "
    "out real Wx1; out real Wx2; out real Wy1; out real Wy2; out real Wpx; out real Wpy; "
    "out real xp; out real yp; out real It; out real Wt; out real xm; out real ym; "
    "out real Iw; out real r0; out real W1[n]; out real W2[n]; out int status",
    values=dict(status=TrvStatus)
)


def trvmxt(
    X1: ArrayLike, Y1: ArrayLike, X2: ArrayLike, Y2: ArrayLike, T: ArrayLike, *,
    n: int | None = None
) -> TrvmxtResult:
    """Properties of an open section of thin plates.

    Each plate is given by its centre line and its thickness. The first plate may start
    anywhere. Each further plate must start at an end of an earlier one, within the tolerance in
    each coordinate. A plate that others join between its ends must be given as two plates.
    Plates must meet at their ends only: apart from the joints, the distance between two plates
    must be more than 1e-5 and more than 2^-22 times the largest coordinate.

    Area, moments and moduli are those of the plates as rectangles about their centre lines;
    overlaps at the joints are counted twice. Shear centre, warping constant and sectorial
    coordinates are those of the centre lines (V. Z. Vlasov, Thin-walled elastic beams). Formed
    in double precision and rounded once.

    Cost: time grows with n^2; nothing is allocated.

    Retains: nothing.

    Arguments:
      n: number of plates
      X1, Y1: arrays of n: starts of the centre lines
      X2, Y2: arrays of n: ends of the centre lines
      T: array of n: thicknesses

    Returns:
      A: area; unwritten if status is -1
      xs, ys: centroid; unwritten if status is -1
      Ix, Iy: second moments about the centroid, of y^2 and of x^2; unwritten if status is -1
      Ixy: product of inertia about the centroid; unwritten if status is -1
      I1: moment about the axis turned by alpha from the x axis; unwritten if status is -1
      I2: moment about the axis perpendicular to that of I1; either may be the larger; unwritten
        if status is -1
      alpha: angle from the x axis in radians, counter-clockwise, within +-pi/4: 0 if |Ixy| is
        at most 1e-8*(Ix + Iy), otherwise pi/4 if |Iy - Ix| is; unwritten if status is -1
      rx, ry: radii of gyration: sqrt(Ix/A), sqrt(Iy/A); unwritten if status is -1
      Wx1, Wx2: elastic section moduli of the top and the bottom extreme fibre; unwritten if
        status is -1
      Wy1, Wy2: elastic section moduli of the right and the left extreme fibre; unwritten if
        status is -1
      Wpx, Wpy: plastic section moduli about the plastic neutral axes; unwritten if status is -1
      xp, yp: plastic neutral axes (equal-area axes): the vertical one at xp, the horizontal one
        at yp; in the middle of a gap if there is one between the halves; unwritten if status is
        -1
      It: torsion constant: sum of l*t^3/3; unwritten unless status is 0
      Wt: torsion modulus: It over the greatest thickness; unwritten unless status is 0
      xm, ym: shear centre; the centroid if all plates are on one line; unwritten unless status
        is 0
      Iw: warping constant; unwritten unless status is 0
      r0: polar radius of gyration about the shear centre; unwritten unless status is 0
      W1, W2: arrays of n: normalised sectorial coordinate at the plates' starts and ends,
        positive counter-clockwise; unwritten unless status is 0
      status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: n < 1, a
        coordinate or a thickness is infinite or NaN, or a length or a thickness is not above
        the tolerance; 2 to n: number of the first faulty plate, which does not start at an end
        of an earlier plate, or closes a cell by ending at one; n+2 to 2*n: n plus the number of
        the first faulty plate, which crosses, touches or overlaps an earlier plate elsewhere
        than at its start, and may close a cell

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvmxt.call((n, X1, Y1, X2, Y2, T))


class TrvmxtFbResult(NamedTuple):
    A: float
    xs: float
    ys: float
    Ix: float
    Iy: float
    Ixy: float
    I1: float
    I2: float
    alpha: float
    rx: float
    ry: float
    Wx1: float
    Wx2: float
    Wy1: float
    Wy2: float
    Wpx: float
    Wpy: float
    xp: float
    yp: float
    It: float
    Wt: float
    xm: float
    ym: float
    Iw: float
    r0: float
    W1: NDArray[float32]
    W2: NDArray[float32]
    status: TrvStatus


_trvmxt_fb = Routine(
    "trvmxt_fb", TrvmxtFbResult,
    "in real B; in real H; out real A; out real xs; out real ys; out real Ix; out real Iy; "
    "out real Ixy; out real I1; out real I2; out real alpha; out real rx; out real ry; "
    "out real Wx1; out real Wx2; out real Wy1; out real Wy2; out real Wpx; out real Wpy; "
    "out real xp; out real yp; out real It; out real Wt; out real xm; out real ym; "
    "out real Iw; out real r0; out real W1[1]; out real W2[1]; out int status",
    values=dict(status=TrvStatus)
)


def trvmxt_fb(
    B: float, H: float
) -> TrvmxtFbResult:
    """Properties of a flat bar, centred on the origin.

    Torsion by Saint-Venant's series for the rectangle (S. Timoshenko, J. N. Goodier, Theory of
    elasticity, article 109). Formed in double precision and rounded once.

    Retains: nothing.

    Arguments:
      B: width, along x
      H: height, along y

    Returns:
      A: area; unwritten if status is -1
      xs, ys: centroid: 0; unwritten if status is -1
      Ix, Iy: second moments about the centroid, of y^2 and of x^2; unwritten if status is -1
      Ixy: product of inertia: 0; unwritten if status is -1
      I1, I2: principal moments: Ix, Iy; unwritten if status is -1
      alpha: angle of the axis of I1 from the x axis: 0; unwritten if status is -1
      rx, ry: radii of gyration: sqrt(Ix/A), sqrt(Iy/A); unwritten if status is -1
      Wx1, Wx2: elastic section moduli of the top and the bottom extreme fibre; unwritten if
        status is -1
      Wy1, Wy2: elastic section moduli of the right and the left extreme fibre; unwritten if
        status is -1
      Wpx, Wpy: plastic section moduli about the x and the y axis; unwritten if status is -1
      xp, yp: plastic neutral axes: 0; unwritten if status is -1
      It: torsion constant; unwritten if status is -1
      Wt: torsion modulus: torque over the greatest shear stress; unwritten if status is -1
      xm, ym: shear centre: 0; unwritten if status is -1
      Iw: warping constant of the warping across the thickness: (B*H)^3/144; unwritten if status
        is -1
      r0: polar radius of gyration; unwritten if status is -1
      W1, W2: arrays of 1: sectorial coordinate at the centre line's ends: 0; unwritten if
        status is -1
      status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: a side is
        infinite, NaN or not above the tolerance

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvmxt_fb.call((B, H))


class TrvrotResult(NamedTuple):
    x: NDArray[float32]
    y: NDArray[float32]


_trvrot = Routine(
    "trvrot", TrvrotResult,
    "in int mode; inout real x[n]; inout real y[n]; in int n = x y; in real angle",
)


def trvrot(
    mode: int, x: ArrayLike, y: ArrayLike, angle: float, *, n: int | None = None,
    in_place: bool = False
) -> TrvrotResult:
    """Rotates plane points about the origin, in place.

    Cost: time grows with n; nothing is allocated.

    Retains: nothing.

    Arguments:
      mode: 1 rotates clockwise; any other value counter-clockwise
      x, y: arrays of n: coordinates
      n: number of points; below 1 nothing happens
      angle: angle in radians; may be an element of the arrays

    Returns:
      x, y: arrays of n: coordinates
    """
    return _trvrot.call((mode, x, y, n, angle), in_place)


class TrvrotxResult(NamedTuple):
    y: NDArray[float32]
    z: NDArray[float32]


_trvrotx = Routine(
    "trvrotx", TrvrotxResult,
    "in int mode; in real x[0]; inout real y[n]; inout real z[n]; in int n = y z; "
    "in real angle",
)


def trvrotx(
    mode: int, x: ArrayLike, y: ArrayLike, z: ArrayLike, angle: float, *, n: int | None = None,
    in_place: bool = False
) -> TrvrotxResult:
    """Rotates points about the x axis, in place.

    Cost: time grows with n; nothing is allocated.

    Retains: nothing.

    Arguments:
      mode: 1 rotates z towards y; any other value y towards z, right-handed about +x
      x: array of 0: not read
      y, z: arrays of n: coordinates
      n: number of points; below 1 nothing happens
      angle: angle in radians; may be an element of the arrays

    Returns:
      y, z: arrays of n: coordinates
    """
    return _trvrotx.call((mode, x, y, z, n, angle), in_place)


class TrvrotyResult(NamedTuple):
    x: NDArray[float32]
    z: NDArray[float32]


_trvroty = Routine(
    "trvroty", TrvrotyResult,
    "in int mode; inout real x[n]; in real y[0]; inout real z[n]; in int n = x z; "
    "in real angle",
)


def trvroty(
    mode: int, x: ArrayLike, y: ArrayLike, z: ArrayLike, angle: float, *, n: int | None = None,
    in_place: bool = False
) -> TrvrotyResult:
    """Rotates points about the y axis, in place.

    Caution: unless mode is 1, this rotation is left-handed about its axis, while those of
    trvrotx and trvrotz are right-handed.

    Cost: time grows with n; nothing is allocated.

    Retains: nothing.

    Arguments:
      mode: 1 rotates z towards x; any other value x towards z, left-handed about +y
      x, z: array of n: coordinates
      y: array of 0: not read
      n: number of points; below 1 nothing happens
      angle: angle in radians; may be an element of the arrays

    Returns:
      x, z: array of n: coordinates
    """
    return _trvroty.call((mode, x, y, z, n, angle), in_place)


class TrvrotzResult(NamedTuple):
    x: NDArray[float32]
    y: NDArray[float32]


_trvrotz = Routine(
    "trvrotz", TrvrotzResult,
    "in int mode; inout real x[n]; inout real y[n]; in real z[0]; in int n = x y; "
    "in real angle",
)


def trvrotz(
    mode: int, x: ArrayLike, y: ArrayLike, z: ArrayLike, angle: float, *, n: int | None = None,
    in_place: bool = False
) -> TrvrotzResult:
    """Rotates points about the z axis, in place.

    Cost: time grows with n; nothing is allocated.

    Retains: nothing.

    Arguments:
      mode: 1 rotates y towards x; any other value x towards y, right-handed about +z
      x, y: arrays of n: coordinates
      z: array of 0: not read
      n: number of points; below 1 nothing happens
      angle: angle in radians; may be an element of the arrays

    Returns:
      x, y: arrays of n: coordinates
    """
    return _trvrotz.call((mode, x, y, z, n, angle), in_place)


_trvpsl = Routine(
    "trvpsl", None,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real x2; "
    "in real y2; in real z2; out int status",
    retains=True,
    values=dict(status=TrvThreePoints)
)


def trvpsl(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float
) -> TrvThreePoints:
    """Three-point test: whether P0, P1 and P2 span a plane.

    The points count as collinear (status 3, 4 or 5) if the angle at P2 is within 0.00447
    radians of pi or 0, since its cosine is compared within the tolerance. Example: a point 6 mm
    beside the middle of a 6 m segment counts as on the segment.

    Caution: if P2 matches P0 or P1 within the tolerance in each coordinate, but is farther from
    it than the tolerance, the cosine of the last call that computed one is used (0 after
    loading). P0 = P1 is not tested and gives status 0. So does a P2 on the line if its computed
    distances from P0 and P1 are equal.

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      x0, y0, z0: P0
      x1, y1, z1: P1
      x2, y2, z2: P2

    Returns:
      status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1
        at_p0: P2 is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4
        beyond_p0: P2 is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the
        line of P0 and P1
    """
    return _trvpsl.cells(x0, y0, z0, x1, y1, z1, x2, y2, z2, 0)


class Trv3traResult(NamedTuple):
    X: NDArray[float32]
    Y: NDArray[float32]
    Z: NDArray[float32]


_trv3tra = Routine(
    "trv3tra", Trv3traResult,
    "inout real X[n]; inout real Y[n]; inout real Z[n]; in int n = X Y Z; in real dx; "
    "in real dy; in real dz",
)


def trv3tra(
    X: ArrayLike, Y: ArrayLike, Z: ArrayLike, dx: float, dy: float, dz: float, *,
    n: int | None = None, in_place: bool = False
) -> Trv3traResult:
    """Moves the origin of points to (dx, dy, dz), in place.

    Cost: time grows with n; nothing is allocated.

    Retains: nothing.

    Arguments:
      X, Y, Z: arrays of n: coordinates; dx, dy and dz are subtracted
      n: number of points; below 1 nothing happens
      dx, dy, dz: new origin; may be one of the points

    Returns:
      X, Y, Z: arrays of n: coordinates; dx, dy and dz are subtracted
    """
    return _trv3tra.call((X, Y, Z, n, dx, dy, dz), in_place)


_trvtrn = Routine(
    "trvtrn", None,
    "inout real p[3]; in real a1; in real a2; in real a3; in real a4; in real a5; in real a6; "
    "in real a7; in real a8; in real a9; in int mode",
)


def trvtrn(
    p: ArrayLike, a1: float, a2: float, a3: float, a4: float, a5: float, a6: float, a7: float,
    a8: float, a9: float, mode: int, *, in_place: bool = False
) -> NDArray[float32]:
    """Applies a frame matrix to one point, in place.

    Retains: nothing.

    Arguments:
      p: array of 3: coordinates
      a1, a2, a3, a4, a5, a6, a7, a8, a9: frame matrix: the global components of the unit axes
        e1, e2 and e3 of a frame, as trvaxe gives them; may be elements of p
      mode: 1 transforms local coordinates to global orientation (the transpose); any other
        value global to local

    Returns:
      p: array of 3: coordinates
    """
    return _trvtrn.call((p, a1, a2, a3, a4, a5, a6, a7, a8, a9, mode), in_place)


class TrvaxeResult(NamedTuple):
    e1x: float
    e1y: float
    e1z: float
    e2x: float
    e2y: float
    e2z: float
    e3x: float
    e3y: float
    e3z: float
    status: TrvFrame


_trvaxe = Routine(
    "trvaxe", TrvaxeResult,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real x2; "
    "in real y2; in real z2; out real e1x; out real e1y; out real e1z; out real e2x; "
    "out real e2y; out real e2z; out real e3x; out real e3y; out real e3z; out int status",
    retains=True,
    values=dict(status=TrvFrame)
)


def trvaxe(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float
) -> TrvaxeResult:
    """Frame of the plane through three points.

    e1 is the direction from P0 to P1, e3 is the normal, and e2 = e3 x e1. The normal is
    oriented towards +y if the y component of (P1 - P0) x (P2 - P0) is above the tolerance, else
    towards +z if the z component is, else towards +x.

    Caution: an axis stays zero if its length before normalising is below 1e-5, although the
    status is 0. All three axes are zero if P0 = P1; e2 and e3 are if the points are very close.

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      x0, y0, z0: P0
      x1, y1, z1: P1
      x2, y2, z2: P2

    Returns:
      e1x, e1y, e1z: first axis
      e2x, e2y, e2z: second axis
      e3x, e3y, e3z: third axis; all nine components are zero if status is -2
      status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2 is at P0 or
        P1, or the three points are on one line (trvpsl)
    """
    return _trvaxe.cells(x0, y0, z0, x1, y1, z1, x2, y2, z2, _NAN, _NAN, _NAN, _NAN, _NAN, _NAN,
        _NAN, _NAN, _NAN, 0)


class TrvaxelResult(NamedTuple):
    e1x: float
    e1y: float
    e1z: float
    e2x: float
    e2y: float
    e2z: float
    e3x: float
    e3y: float
    e3z: float
    status: TrvFrame


_trvaxel = Routine(
    "trvaxel", TrvaxelResult,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real angle; "
    "out real e1x; out real e1y; out real e1z; out real e2x; out real e2y; out real e2z; "
    "out real e3x; out real e3y; out real e3z; out int status",
    values=dict(status=TrvFrame)
)


def trvaxel(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, angle: float
) -> TrvaxelResult:
    """Frame of an axis from P0 to P1.

    At angle 0, e2 is the unit vector of the global y axis minus its component along e1, and e3
    = e1 x e2. A positive angle rotates both right-handedly about e1.

    Caution: an axis along y (a column) has no such e2. e2 and e3 are then NaN or infinite,
    although the status is 0. Use trvaxe with a third point instead.

    Retains: nothing.

    Arguments:
      x0, y0, z0: P0
      x1, y1, z1: P1
      angle: rotation of e2 and e3 about e1 in radians

    Returns:
      e1x, e1y, e1z: first axis
      e2x, e2y, e2z: second axis
      e3x, e3y, e3z: third axis; all nine components are zero if status is -2
      status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the distance of
        P0 and P1 is within the tolerance
    """
    return _trvaxel.cells(x0, y0, z0, x1, y1, z1, angle, _NAN, _NAN, _NAN, _NAN, _NAN, _NAN,
        _NAN, _NAN, _NAN, 0)


class TrvptrResult(NamedTuple):
    X: NDArray[float32]
    Y: NDArray[float32]
    Z: NDArray[float32]


_trvptr = Routine(
    "trvptr", TrvptrResult,
    "inout real X[n]; inout real Y[n]; inout real Z[n]; in int n = X Y Z; in real x0; "
    "in real y0; in real z0; in real ax; in real ay; in real az",
)


def trvptr(
    X: ArrayLike, Y: ArrayLike, Z: ArrayLike, x0: float, y0: float, z0: float, ax: float,
    ay: float, az: float, *, n: int | None = None, in_place: bool = False
) -> TrvptrResult:
    """Shifts points and rotates them about the global axes x, y and z, in this order and in
    place.

    The rotations are those of trvrotx, trvroty and trvrotz with mode 2: right-handed about x
    and z, left-handed about y. The shift is skipped if no component is above the tolerance. A
    rotation is skipped if its angle is not above the tolerance.

    Cost: time grows with n; nothing is allocated.

    Retains: nothing.

    Arguments:
      X, Y, Z: arrays of n: coordinates
      n: number of points; below 1 nothing happens
      x0, y0, z0: shift, added; may be one of the points
      ax, ay, az: angles in radians; may be elements of the arrays

    Returns:
      X, Y, Z: arrays of n: coordinates
    """
    return _trvptr.call((X, Y, Z, n, x0, y0, z0, ax, ay, az), in_place)


class TrvptrlResult(NamedTuple):
    X: NDArray[float32]
    Y: NDArray[float32]
    Z: NDArray[float32]
    status: TrvFrame


_trvptrl = Routine(
    "trvptrl", TrvptrlResult,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real x2; "
    "in real y2; in real z2; inout real X[n]; inout real Y[n]; inout real Z[n]; "
    "in int n = X Y Z; in real dx; in real dy; in real dz; in real ax; in real ay; "
    "in real az; out int status",
    retains=True,
    values=dict(status=TrvFrame)
)


def trvptrl(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float, X: ArrayLike, Y: ArrayLike, Z: ArrayLike, dx: float, dy: float, dz: float,
    ax: float, ay: float, az: float, *, n: int | None = None, in_place: bool = False
) -> TrvptrlResult:
    """Shifts points and rotates them in the frame of three points, in place.

    In local coordinates each point is shifted by (dx, dy, dz), then rotated about the local
    axes x, y and z as by trvrotx, trvroty and trvrotz with mode 2: right-handed about x and z,
    left-handed about y. No rotation is skipped. Caution: if the frame has a zero axis (trvaxe),
    the points lose that coordinate.

    Single inputs may be elements of the arrays, and P0 to P2 may be some of the points: they
    are read before a point is moved.

    Cost: time grows with n; nothing is allocated.

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      x0, y0, z0: P0, the origin of the frame
      x1, y1, z1: P1
      x2, y2, z2: P2
      X, Y, Z: arrays of n: coordinates; unchanged if status is -2
      n: number of points; below 1 only the status is written
      dx, dy, dz: shift in local coordinates, before the rotations
      ax, ay, az: angles in radians about the local axes x, y and z

    Returns:
      X, Y, Z: arrays of n: coordinates; unchanged if status is -2
      status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2 is at P0 or
        P1, or the three points are on one line (trvpsl)
    """
    return _trvptrl.call((x0, y0, z0, x1, y1, z1, x2, y2, z2, X, Y, Z, n, dx, dy, dz, ax, ay,
        az), in_place)


class TrvpraResult(NamedTuple):
    X: NDArray[float32]
    Y: NDArray[float32]
    Z: NDArray[float32]
    status: TrvFrame


_trvpra = Routine(
    "trvpra", TrvpraResult,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; inout real X[n]; "
    "inout real Y[n]; inout real Z[n]; in int n = X Y Z; in real angle; out int status",
    values=dict(status=TrvFrame)
)


def trvpra(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, X: ArrayLike,
    Y: ArrayLike, Z: ArrayLike, angle: float, *, n: int | None = None, in_place: bool = False
) -> TrvpraResult:
    """Rotates points about the axis from P0 through P1, in place.

    Caution: if the axis is along the global y axis (a column), the points become NaN or
    infinite, although the status is 0 (trvaxel). Use trv3tra and trvroty instead.

    Single inputs may be elements of the arrays, and P0 and P1 may be two of the points: they
    are read before a point is moved.

    Cost: time grows with n; nothing is allocated.

    Retains: nothing.

    Arguments:
      x0, y0, z0: P0
      x1, y1, z1: P1
      X, Y, Z: arrays of n: coordinates; unchanged if status is -2
      n: number of points; below 1 only the status is written
      angle: angle in radians, right-handed about the direction from P0 to P1

    Returns:
      X, Y, Z: arrays of n: coordinates; unchanged if status is -2
      status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the distance of
        P0 and P1 is within the tolerance
    """
    return _trvpra.call((x0, y0, z0, x1, y1, z1, X, Y, Z, n, angle), in_place)


class TrvppcResult(NamedTuple):
    X: NDArray[float32]
    Y: NDArray[float32]
    Z: NDArray[float32]
    status: TrvppcStatus | int


_trvppc = Routine(
    "trvppc", TrvppcResult,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real x2; "
    "in real y2; in real z2; in real dx; in real dy; in real dz; in real ax; in real ay; "
    "in real az; in int n = X Y Z; inout real X[n]; inout real Y[n]; inout real Z[n]; "
    "in real tol; out int status",
    retains=True,
    values=dict(status=TrvppcStatus)
)


def trvppc(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float, dx: float, dy: float, dz: float, ax: float, ay: float, az: float, X: ArrayLike,
    Y: ArrayLike, Z: ArrayLike, tol: float, *, n: int | None = None, in_place: bool = False
) -> TrvppcResult:
    """Rotates points of a plane in the frame of the three points that span it, then shifts
    them, in place.

    Unlike in trvptrl, the shift is in global coordinates and comes after the rotations.
    Caution: if the frame has a zero axis (trvaxe), the points lose that coordinate.

    Single inputs may be elements of the arrays, and P0 to P2 may be some of the points: they
    are read before a point is moved.

    Cost: time grows with n; nothing is allocated.

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      x0, y0, z0: P0, the origin of the frame
      x1, y1, z1: P1
      x2, y2, z2: P2
      dx, dy, dz: shift in global coordinates, after the rotations
      ax, ay, az: angles in radians about the local axes x, y and z, right-handed about x and z,
        left-handed about y
      n: number of points; below 1 only the status is written
      X, Y, Z: arrays of n: coordinates; unchanged unless status is 0
      tol: largest residual of a point of the plane (inclusive): the point's distance times the
        length of (P1 - P0) x (P2 - P0), in the cube of the length unit

    Returns:
      X, Y, Z: arrays of n: coordinates; unchanged unless status is 0
      status: outcome: 0 done: the points are moved; -1 no_frame: P2 is at P0 or P1, or the
        three points are on one line (trvpsl); 1 to n: position of the first point off the plane
    """
    return _trvppc.call((x0, y0, z0, x1, y1, z1, x2, y2, z2, dx, dy, dz, ax, ay, az, n, X, Y, Z,
        tol), in_place)


class TrvplgResult(NamedTuple):
    a: float
    b: float
    c: float
    d: float


_trvplg = Routine(
    "trvplg", TrvplgResult,
    "in real x; in real y; in real z; in real ux; in real uy; in real uz; in real wx; "
    "in real wy; in real wz; out real a; out real b; out real c; out real d",
)


def trvplg(
    x: float, y: float, z: float, ux: float, uy: float, uz: float, wx: float, wy: float,
    wz: float
) -> TrvplgResult:
    """Plane through a point, spanned by two directions.

    (a, b, c) = u x w, not normalised. All four coefficients are zero if u and w are parallel.
    Caution: far from the origin d loses digits; use a local origin (trv3tra).

    Retains: nothing.

    Arguments:
      x, y, z: point
      ux, uy, uz: direction u
      wx, wy, wz: direction w

    Returns:
      a, b, c, d: plane a*x + b*y + c*z + d = 0
    """
    return _trvplg.cells(x, y, z, ux, uy, uz, wx, wy, wz, _NAN, _NAN, _NAN, _NAN)


class Trvpl1Result(NamedTuple):
    a: float
    b: float
    c: float
    d: float
    status: TrvThreePoints


_trvpl1 = Routine(
    "trvpl1", Trvpl1Result,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real x2; "
    "in real y2; in real z2; out real a; out real b; out real c; out real d; out int status",
    retains=True,
    values=dict(status=TrvThreePoints)
)


def trvpl1(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float
) -> Trvpl1Result:
    """Plane through three points: (a, b, c) = (P1 - P0) x (P2 - P0).

    Caution: far from the origin d loses digits; use a local origin (trv3tra).

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      x0, y0, z0: P0
      x1, y1, z1: P1
      x2, y2, z2: P2

    Returns:
      a, b, c, d: plane; all zero if status is not 0, or if P0 = P1
      status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1
        at_p0: P2 is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4
        beyond_p0: P2 is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the
        line of P0 and P1
    """
    return _trvpl1.cells(x0, y0, z0, x1, y1, z1, x2, y2, z2, _NAN, _NAN, _NAN, _NAN, 0)


class Trvpl2Result(NamedTuple):
    a: float
    b: float
    c: float
    d: float
    status: TrvTwoLines


_trvpl2 = Routine(
    "trvpl2", Trvpl2Result,
    "in real x; in real y; in real z; in real xa; in real ya; in real za; in real xb; "
    "in real yb; in real zb; in real xc; in real yc; in real zc; in real xd; in real yd; "
    "in real zd; out real a; out real b; out real c; out real d; out int status",
    retains=True,
    values=dict(status=TrvTwoLines)
)


def trvpl2(
    x: float, y: float, z: float, xa: float, ya: float, za: float, xb: float, yb: float,
    zb: float, xc: float, yc: float, zc: float, xd: float, yd: float, zd: float
) -> Trvpl2Result:
    """Plane through a point, parallel to two lines.

    (a, b, c) = (B - A) x (D - C). Caution: far from the origin d loses digits; use a local
    origin (trv3tra).

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      x, y, z: point
      xa, ya, za: A, on the first line
      xb, yb, zb: B, on the first line
      xc, yc, zc: C, on the second line
      xd, yd, zd: D, on the second line

    Returns:
      a, b, c, d: plane; all zero if status is not 0; the normal is zero, or nearly zero, if the
        lines are parallel
      status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are
        the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
        direction; 7 no_length: A and B, or C and D, coincide (trvcnt)
    """
    return _trvpl2.cells(x, y, z, xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, _NAN, _NAN,
        _NAN, _NAN, 0)


class Trvpl3Result(NamedTuple):
    a: float
    b: float
    c: float
    d: float
    status: TrvTwoLines


_trvpl3 = Routine(
    "trvpl3", Trvpl3Result,
    "in real xa; in real ya; in real za; in real xb; in real yb; in real zb; in real xc; "
    "in real yc; in real zc; in real xd; in real yd; in real zd; out real a; out real b; "
    "out real c; out real d; out int status",
    retains=True,
    values=dict(status=TrvTwoLines)
)


def trvpl3(
    xa: float, ya: float, za: float, xb: float, yb: float, zb: float, xc: float, yc: float,
    zc: float, xd: float, yd: float, zd: float
) -> Trvpl3Result:
    """Plane that contains one line and is parallel to another: trvpl2 through A.

    Caution: far from the origin d loses digits; use a local origin (trv3tra).

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      xa, ya, za: A, on the first line
      xb, yb, zb: B, on the first line
      xc, yc, zc: C, on the second line
      xd, yd, zd: D, on the second line

    Returns:
      a, b, c, d: plane; all zero if status is not 0; the normal is zero, or nearly zero, if the
        lines are parallel
      status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are
        the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
        direction; 7 no_length: A and B, or C and D, coincide (trvcnt)
    """
    return _trvpl3.cells(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, _NAN, _NAN, _NAN, _NAN,
        0)


class Trvpl4Result(NamedTuple):
    a: float
    b: float
    c: float
    d: float
    status: TrvCoincidence


_trvpl4 = Routine(
    "trvpl4", Trvpl4Result,
    "in real x; in real y; in real z; in real xa; in real ya; in real za; in real xb; "
    "in real yb; in real zb; out real a; out real b; out real c; out real d; out int status",
    values=dict(status=TrvCoincidence)
)


def trvpl4(
    x: float, y: float, z: float, xa: float, ya: float, za: float, xb: float, yb: float,
    zb: float
) -> Trvpl4Result:
    """Plane through a point, perpendicular to a segment.

    Caution: far from the origin d loses digits; use a local origin (trv3tra).

    Retains: nothing.

    Arguments:
      x, y, z: point
      xa, ya, za: A
      xb, yb, zb: B; the normal is B - A

    Returns:
      a, b, c, d: plane; all zero if status is 1
      status: outcome (TrvCoincidence): 0 distinct: the plane is computed; 1 coincident: A and B
        coincide within the tolerance in each coordinate (trvcnt)
    """
    return _trvpl4.cells(x, y, z, xa, ya, za, xb, yb, zb, _NAN, _NAN, _NAN, _NAN, 0)


class Trvpl5Result(NamedTuple):
    a: float
    b: float
    c: float
    d: float
    status: Trvpl5Status


_trvpl5 = Routine(
    "trvpl5", Trvpl5Result,
    "in real ix; in real iy; in real iz; out real a; out real b; out real c; out real d; "
    "out int status",
    values=dict(status=Trvpl5Status)
)


def trvpl5(
    ix: float, iy: float, iz: float
) -> Trvpl5Result:
    """Plane with given intercepts on the axes.

    Retains: nothing.

    Arguments:
      ix, iy, iz: intercepts

    Returns:
      a, b, c, d: plane (1/ix, 1/iy, 1/iz, -1); all zero if status is 1
      status: outcome: 0 done: the plane is computed; 1 no_plane: there is no plane, since an
        intercept is within the tolerance or NaN
    """
    return _trvpl5.cells(ix, iy, iz, _NAN, _NAN, _NAN, _NAN, 0)


class Trvpl6Result(NamedTuple):
    a: float
    b: float
    c: float
    d: float
    status: TrvTwoLines


_trvpl6 = Routine(
    "trvpl6", Trvpl6Result,
    "in real xa; in real ya; in real za; in real ux; in real uy; in real uz; in real xc; "
    "in real yc; in real zc; in real wx; in real wy; in real wz; out real a; out real b; "
    "out real c; out real d; out int status",
    retains=True,
    values=dict(status=TrvTwoLines)
)


def trvpl6(
    xa: float, ya: float, za: float, ux: float, uy: float, uz: float, xc: float, yc: float,
    zc: float, wx: float, wy: float, wz: float
) -> Trvpl6Result:
    """Plane of two lines, each given by a point and a direction.

    Caution: the relation of the lines is determined twice: by this routine, then by trvpl2,
    which starts with the cosine that the first determination retained (trvpsl) and may have
    another result. Far from the origin d loses digits; use a local origin (trv3tra).

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      xa, ya, za: A, on the first line
      ux, uy, uz: direction of the first line
      xc, yc, zc: C, on the second line
      wx, wy, wz: direction of the second line

    Returns:
      a, b, c, d: plane; the normal is zero, or nearly zero, if the lines are parallel; all zero
        if only the second relation is 3 or 4; unwritten on a condition: the first relation is
        3, 4, 6 or 7
      status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are
        the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
        direction; 6 skew: the lines are skew; 7 no_length: all components of a direction are
        within the tolerance

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvpl6.cells(xa, ya, za, ux, uy, uz, xc, yc, zc, wx, wy, wz, _NAN, _NAN, _NAN, _NAN,
        0)


class Trvpl7Result(NamedTuple):
    a: float
    b: float
    c: float
    d: float
    status: TrvThreePoints


_trvpl7 = Routine(
    "trvpl7", Trvpl7Result,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real x2; "
    "in real y2; in real z2; in real angle; out real a; out real b; out real c; out real d; "
    "out int status",
    retains=True,
    values=dict(status=TrvThreePoints)
)


def trvpl7(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float, angle: float
) -> Trvpl7Result:
    """Plane of three points, rotated about the line from P0 to P1.

    The normal is a unit vector; at angle 0 it is the third axis of trvaxe. Caution: the normal
    is computed as (P0 + normal) - P0, so far from the origin the normal and d lose digits; use
    a local origin (trv3tra).

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      x0, y0, z0: P0
      x1, y1, z1: P1
      x2, y2, z2: P2
      angle: angle in radians, right-handed about the direction from P0 to P1

    Returns:
      a, b, c, d: plane; all zero if status is not 0
      status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1
        at_p0: P2 is at P0, or P0 and P0 + normal coincide (trvcnt); 2 at_p1: P2 is at P1; 3
        between: P2 is between P0 and P1; 4 beyond_p0: P2 is beyond P0 on the line of P0 and P1;
        5 beyond_p1: P2 is beyond P1 on the line of P0 and P1
    """
    return _trvpl7.cells(x0, y0, z0, x1, y1, z1, x2, y2, z2, angle, _NAN, _NAN, _NAN, _NAN, 0)


_trvpsp = Routine(
    "trvpsp", None,
    "in real x0; in real y0; in real z0; in real x1; in real y1; in real z1; in real x2; "
    "in real y2; in real z2; in real x; in real y; in real z; in real tol; out int status",
    retains=True,
    values=dict(status=TrvOnPlane)
)


def trvpsp(
    x0: float, y0: float, z0: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float, x: float, y: float, z: float, tol: float
) -> TrvOnPlane:
    """Whether a point lies on the plane of three points.

    Caution: far from the origin the result loses digits; use a local origin (trv3tra).

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      x0, y0, z0: P0
      x1, y1, z1: P1
      x2, y2, z2: P2
      x, y, z: point
      tol: largest residual allowed (inclusive): the point's distance times the length of (P1 -
        P0) x (P2 - P0), in the cube of the length unit

    Returns:
      status: test (TrvOnPlane): 0 yes: the point lies on the plane, or P0 = P1, for which any
        point does; -1 no: the point does not lie on the plane, or the three points span no
        plane (trvpsl)
    """
    return _trvpsp.cells(x0, y0, z0, x1, y1, z1, x2, y2, z2, x, y, z, tol, 0)


_trvpld = Routine(
    "trvpld", None,
    "in real x; in real y; in real z; in real a; in real b; in real c; in real d; "
    "out real dist",
)


def trvpld(
    x: float, y: float, z: float, a: float, b: float, c: float, d: float
) -> float:
    """Signed distance of a point from a plane.

    Caution: far from the origin the result loses digits; use a local origin (trv3tra).

    Retains: nothing.

    Arguments:
      x, y, z: point
      a, b, c, d: plane a*x + b*y + c*z + d = 0

    Returns:
      dist: distance, positive on the side the normal points to; infinite or NaN if the normal
        is zero
    """
    return _trvpld.cells(x, y, z, a, b, c, d, _NAN)


_trvpspg = Routine(
    "trvpspg", None,
    "in real x; in real y; in real z; in real a; in real b; in real c; in real d; "
    "in real tol; out int status",
    values=dict(status=TrvOnPlane)
)


def trvpspg(
    x: float, y: float, z: float, a: float, b: float, c: float, d: float, tol: float
) -> TrvOnPlane:
    """Whether a point lies on a plane.

    Caution: far from the origin the result loses digits; use a local origin (trv3tra).

    Retains: nothing.

    Arguments:
      x, y, z: point
      a, b, c, d: plane a*x + b*y + c*z + d = 0
      tol: largest distance allowed (inclusive)

    Returns:
      status: test (TrvOnPlane): 0 yes: the point lies on the plane; -1 no: the point does not
        lie on the plane, or the distance is NaN; 1 zero_normal: the normal of the plane is
        exactly zero
    """
    return _trvpspg.cells(x, y, z, a, b, c, d, tol, 0)


_trvplv = Routine(
    "trvplv", None,
    "in real ux; in real uy; in real uz; in real wx; in real wy; in real wz; in real v7; "
    "in real v8; out int status",
    retains=True,
    values=dict(status=TrvplvStatus)
)


def trvplv(
    ux: float, uy: float, uz: float, wx: float, wy: float, wz: float, v7: float, v8: float
) -> TrvplvStatus:
    """Relation of two directions, taken as lines through the origin.

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      ux, uy, uz: u
      wx, wy, wz: w
      v7, v8: ignored

    Returns:
      status: relation: -1 zero_u: u is exactly zero; 0 oblique: u and w have neither the same,
        opposite nor perpendicular directions; 3 same: the directions are the same; 4 opposite:
        the directions are opposite; 5 perpendicular: the directions are perpendicular; 7 zero:
        all components of u, or of w, are within the tolerance
    """
    return _trvplv.cells(ux, uy, uz, wx, wy, wz, v7, v8, 0)


class TrvpnpResult(NamedTuple):
    d: float
    count_: int
    index_: NDArray[int32]


_trvpnp = Routine(
    "trvpnp", TrvpnpResult,
    "in real X[n]; in real Y[n]; in real Z[n]; in real a; in real b; in real c; inout real d; "
    "in int n = X Y Z; out int count_; out int index_[n, count_ used]",
)


def trvpnp(
    X: ArrayLike, Y: ArrayLike, Z: ArrayLike, a: float, b: float, c: float, d: float, *,
    n: int | None = None
) -> TrvpnpResult:
    """Points of a list on a plane, by a running residual.

    Caution: the residual starts at d and is not reset between points. Each point adds a*x, b*y
    and c*z to it, in this order. The point is found if the residual is then exactly zero.

    Cost: time grows with n; nothing is allocated.

    Retains: nothing.

    Arguments:
      X, Y, Z: arrays of n: coordinates
      a, b, c: normal of the plane
      d: constant of the plane; the last residual afterwards; unchanged if n < 1
      n: number of points

    Returns:
      d: constant of the plane; the last residual afterwards; unchanged if n < 1
      count_: number of points found
      index_: array of n, count used: positions of these points, ascending
    """
    return _trvpnp.call((X, Y, Z, a, b, c, d, n))


_trvdirl = Routine(
    "trvdirl", None,
    "in real xa; in real ya; in real za; in real xb; in real yb; in real zb; in real xc; "
    "in real yc; in real zc; in real xd; in real yd; in real zd; out int status",
    retains=True,
    values=dict(status=TrvLines)
)


def trvdirl(
    xa: float, ya: float, za: float, xb: float, yb: float, zb: float, xc: float, yc: float,
    zc: float, xd: float, yd: float, zd: float
) -> TrvLines:
    """Relation of two lines.

    The lines are the same if C or D is on the line AB by the three-point test, which is made
    for C, then for D. The lines are skew if the triple product of B - A, D - C and C - A is
    above the tolerance. The triple product is not scaled, so long lines count as skew sooner.

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      xa, ya, za: A, on the first line
      xb, yb, zb: B, on the first line
      xc, yc, zc: C, on the second line
      xd, yd, zd: D, on the second line

    Returns:
      status: relation (TrvLines): 0 crossing: the lines cross, not at a right angle; 1
        parallel_same: parallel and distinct lines of the same direction; 2 parallel_opposite:
        parallel and distinct lines of opposite direction; 3 same_line: the same line, of the
        same direction; 4 opposite_line: the same line, of opposite direction; 5 perpendicular:
        the lines cross at a right angle; 6 skew: the lines are skew; 7 coincident: A and B, or
        C and D, coincide, each coordinate within the tolerance
    """
    return _trvdirl.cells(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, 0)


_trv3sp = Routine(
    "trv3sp", None,
    "in real xa; in real ya; in real za; in real xb; in real yb; in real zb; in real xc; "
    "in real yc; in real zc; in real xd; in real yd; in real zd; in real xe; in real ye; "
    "in real ze; in real xf; in real yf; in real zf; out int status",
    values=dict(status=Trv3spStatus)
)


def trv3sp(
    xa: float, ya: float, za: float, xb: float, yb: float, zb: float, xc: float, yc: float,
    zc: float, xd: float, yd: float, zd: float, xe: float, ye: float, ze: float, xf: float,
    yf: float, zf: float
) -> Trv3spStatus:
    """Whether three segments span space.

    Retains: nothing.

    Arguments:
      xa, ya, za: A
      xb, yb, zb: B
      xc, yc, zc: C
      xd, yd, zd: D
      xe, ye, ze: E
      xf, yf, zf: F

    Returns:
      status: test: 0 flat: the triple product of B - A, D - C and F - E is within the
        tolerance; 1 spanning: the triple product is above the tolerance, in the cube of the
        length unit
    """
    return _trv3sp.cells(xa, ya, za, xb, yb, zb, xc, yc, zc, xd, yd, zd, xe, ye, ze, xf, yf, zf,
        0)


class Trv3ldbResult(NamedTuple):
    status: TrvStatus
    dist: float


_trv3ldb = Routine(
    "trv3ldb", Trv3ldbResult,
    "in real xa; in real ya; in real za; in real xb; in real yb; in real zb; in real xq; "
    "in real yq; in real zq; out int status; out real dist",
    values=dict(status=TrvStatus)
)


def trv3ldb(
    xa: float, ya: float, za: float, xb: float, yb: float, zb: float, xq: float, yq: float,
    zq: float
) -> Trv3ldbResult:
    """Distance of a point from a line.

    Caution: the vector from Q to A uses A's y coordinate for its z component. So the result is
    the distance only if the y and z of A are equal.

    Retains: nothing.

    Arguments:
      xa, ya, za: A
      xb, yb, zb: B
      xq, yq, zq: Q

    Returns:
      status: outcome (TrvStatus): 0 done: always
      dist: distance, never negative; the distance from A if A and B coincide (trvcnt)
    """
    return _trv3ldb.cells(xa, ya, za, xb, yb, zb, xq, yq, zq, 0, _NAN)


class Trv3ldaResult(NamedTuple):
    status: TrvStatus
    dist: float


_trv3lda = Routine(
    "trv3lda", Trv3ldaResult,
    "in real xa; in real ya; in real za; in real xb; in real yb; in real zb; in real xq; "
    "in real yq; in real zq; out int status; out real dist",
    retains=True,
    values=dict(status=TrvStatus)
)


def trv3lda(
    xa: float, ya: float, za: float, xb: float, yb: float, zb: float, xq: float, yq: float,
    zq: float
) -> Trv3ldaResult:
    """Signed distance of a point from a line, in the plane of both.

    The sign is that of trvlds in the frame of A, B and Q, whose normal trvaxe orients towards
    +y, else +z, else +x. It is positive to the right of the direction from A to B, as seen from
    the tip of that normal. Caution: far from the origin the result loses digits; use a local
    origin (trv3tra).

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      xa, ya, za: A
      xb, yb, zb: B
      xq, yq, zq: Q

    Returns:
      status: outcome (TrvStatus): 0 done: always
      dist: distance; 0 if Q is on the line or very close to a short line (trvaxe); the distance
        from A if A and B coincide (trvcnt)
    """
    return _trv3lda.cells(xa, ya, za, xb, yb, zb, xq, yq, zq, 0, _NAN)


class Trv3lniResult(NamedTuple):
    xa: float
    ya: float
    za: float
    xc: float
    yc: float
    zc: float
    status: TrvTwoLines
    xi: float
    yi: float
    zi: float


_trv3lni = Routine(
    "trv3lni", Trv3lniResult,
    "inout real xa; inout real ya; inout real za; in real ux; in real uy; in real uz; "
    "inout real xc; inout real yc; inout real zc; in real wx; in real wy; in real wz; "
    "out int status; inout real xi; inout real yi; out real zi",
    retains=True,
    values=dict(status=TrvTwoLines)
)


def trv3lni(
    xa: float, ya: float, za: float, ux: float, uy: float, uz: float, xc: float, yc: float,
    zc: float, wx: float, wy: float, wz: float, xi: float, yi: float
) -> Trv3lniResult:
    """Intersection of the lines A + t*u and C + s*w.

    The routine works in the frame of A, A + u and C + w, with A as the origin, and returns A
    and C in this frame. Caution: if C + w is on the first line, there is no such frame, and the
    result is A with status 0.

    Caution: parallel lines have no intersection. The caller's xi and yi are then read as local
    coordinates and returned as global ones, with status 0.

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      xa, ya, za: A; zero afterwards; unchanged unless status is 0
      ux, uy, uz: direction of the first line
      xc, yc, zc: C; C - A afterwards; unchanged unless status is 0
      wx, wy, wz: direction of the second line
      xi, yi: x and y of the point; read if the lines are parallel, as local coordinates;
        unchanged unless status is 0

    Returns:
      xa, ya, za: A; zero afterwards; unchanged unless status is 0
      xc, yc, zc: C; C - A afterwards; unchanged unless status is 0
      status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are
        the same, of the same direction; 4 opposite_line: the lines are the same, of opposite
        direction; 6 skew: the lines are skew; 7 no_length: all components of a direction are
        within the tolerance
      xi, yi: x and y of the point; read if the lines are parallel, as local coordinates;
        unchanged unless status is 0
      zi: z of the point; unwritten unless status is 0

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trv3lni.cells(ux, uy, uz, wx, wy, wz, xa, ya, za, xc, yc, zc, 0, xi, yi, _NAN)


class TrvpliResult(NamedTuple):
    xi: float
    yi: float
    zi: float
    status: TrvpliStatus


_trvpli = Routine(
    "trvpli", TrvpliResult,
    "in real x; in real y; in real z; in real ux; in real uy; in real uz; in real a; "
    "in real b; in real c; in real d; out real xi; out real yi; out real zi; out int status",
    values=dict(status=TrvpliStatus)
)


def trvpli(
    x: float, y: float, z: float, ux: float, uy: float, uz: float, a: float, b: float, c: float,
    d: float
) -> TrvpliResult:
    """Intersection of the line P + t*u with a plane.

    Caution: far from the origin the result loses digits; use a local origin (trv3tra).

    Retains: nothing.

    Arguments:
      x, y, z: P
      ux, uy, uz: direction u, of any length
      a, b, c, d: plane a*x + b*y + c*z + d = 0

    Returns:
      xi, yi, zi: point; unwritten if status is 3 or 4
      status: outcome: 0 done: the point is computed; 3 parallel: the line is parallel to the
        plane, since the cosine of the angle between u and the normal is within the tolerance; 4
        zero: all components of u, or of the normal, are within the tolerance

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvpli.cells(x, y, z, ux, uy, uz, a, b, c, d, _NAN, _NAN, _NAN, 0)


_trvplp = Routine(
    "trvplp", None,
    "in real a; in real b; in real c; in real d; out int position",
    values=dict(position=TrvplpPosition)
)


def trvplp(
    a: float, b: float, c: float, d: float
) -> TrvplpPosition:
    """Position of a plane relative to the axes.

    A coefficient within the tolerance counts as zero. A plane whose normal is zero is reported
    as 7 or 10.

    Retains: nothing.

    Arguments:
      a, b, c, d: plane a*x + b*y + c*z + d = 0

    Returns:
      position: position: 1 general: the plane is parallel to no axis; 2 parallel_x: the plane
        is parallel to the x axis; 3 parallel_y: the plane is parallel to the y axis; 4
        parallel_z: the plane is parallel to the z axis; 5 normal_z: the plane is normal to the
        z axis; 6 normal_x: the plane is normal to the x axis; 7 normal_y: the plane is normal
        to the y axis; 8 at_z_zero: the plane is z = 0; 9 at_x_zero: the plane is x = 0; 10
        at_y_zero: the plane is y = 0
    """
    return _trvplp.cells(a, b, c, d, 0)


class TrvpnlResult(NamedTuple):
    status: TrvStatus | int
    count_: int
    index_: NDArray[int32]


_trvpnl = Routine(
    "trvpnl", TrvpnlResult,
    "in real xa; in real ya; in real za; in real xb; in real yb; in real zb; in real X[n]; "
    "in real Y[n]; in function zf; in int n = X Y; in real tol; out int status; "
    "out int count_; out int index_[n, count_ used]",
    values=dict(status=TrvStatus)
)


def trvpnl(
    xa: float, ya: float, za: float, xb: float, yb: float, zb: float, X: ArrayLike,
    Y: ArrayLike, zf: Callable[[int], float], tol: float, *, n: int | None = None
) -> TrvpnlResult:
    """Points of a list near a line.

    Caution: the distances are those of trv3ldb, which uses A's y coordinate for the z component
    of the vector to A.

    The function is called in the host's own floating-point environment. It may change this
    environment: the change remains in the host and does not influence the results. The function
    may call routines of this library. It may be left by longjmp or by a structured exception of
    Windows: the host then has its own environment, status and count are unwritten, and index
    holds the positions found so far. A C++ exception must not leave the function.

    Cost: time grows with n; nothing is allocated.

    Retains: nothing.

    Arguments:
      xa, ya, za: A
      xb, yb, zb: B
      X, Y: arrays of n: x and y coordinates
      zf: function that returns the z coordinate of the point at a position; called with 1 to n
        in this order
      n: number of points
      tol: largest distance allowed (inclusive); a point with a NaN distance is not found

    Returns:
      status: outcome (TrvStatus): 0 done: always; unwritten if n < 1
      count_: number of points found
      index_: array of n, count used: positions of these points, ascending

    What is unwritten is NaN where it is a Real, 0 where it is an Integer.
    """
    return _trvpnl.call((xa, ya, za, xb, yb, zb, X, Y, zf, n, tol))


class TrvlpcResult(NamedTuple):
    x2: float
    y2: float
    z2: float
    status: TrvlpcStatus


_trvlpc = Routine(
    "trvlpc", TrvlpcResult,
    "in real xp; in real yp; in real zp; in real x1; in real y1; in real z1; inout real x2; "
    "inout real y2; inout real z2; in real dxp; in real dyp; in real dzp; in real dx1; "
    "in real dy1; in real dz1; out int status",
    retains=True,
    values=dict(status=TrvlpcStatus)
)


def trvlpc(
    xp: float, yp: float, zp: float, x1: float, y1: float, z1: float, x2: float, y2: float,
    z2: float, dxp: float, dyp: float, dzp: float, dx1: float, dy1: float, dz1: float
) -> TrvlpcResult:
    """Carries a point along when the line through it is moved.

    P and Q1 move by dP and dQ1. Q2 moves so that the ratio of its distance from P to that of Q1
    stays the same. Only the relation of the lines Q2-P and Q1-P (trvdirl) decides whether the
    three points are collinear.

    Retains: the cosine of the three-point test (trvpsl).

    Arguments:
      xp, yp, zp: P
      x1, y1, z1: Q1
      x2, y2, z2: Q2; unchanged if status is 0
      dxp, dyp, dzp: move of P
      dx1, dy1, dz1: move of Q1

    Returns:
      x2, y2, z2: Q2; unchanged if status is 0
      status: outcome: 0 not_moved: the three points are not collinear, or Q1 is at P; 3
        moved_one_side: Q2 is moved, Q1 and Q2 are on one side of P; 4 moved_either_side: Q2 is
        moved, Q1 and Q2 are on either side of P; 6 moved_skew: Q2 is moved, although the lines
        count as skew because of rounding; 7 moved_at_p: Q2 is moved, Q2 coincides with P, or
        each coordinate of Q1 is within the tolerance of P's although their distance is above it
    """
    return _trvlpc.cells(xp, yp, zp, x1, y1, z1, dxp, dyp, dzp, dx1, dy1, dz1, x2, y2, z2, 0)