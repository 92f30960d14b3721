// Generated from include/trelvin by tools/generate.py.
//
// Every routine of Trelvin for Node.js. Inputs are given by value, what a routine writes comes back
// as an object; ./call.mjs tells how. The contracts are in include/trelvin.
import { routine } from "./call.mjs";

export const version = "1.1.1";

/** @typedef {ArrayLike<number>} Numbers */


// Whether a computation was done.
export const trvStatusDone = 0;
export const trvStatusRefused = -1;

// Whether a point of an arc was found. Caution: here 1 means done.
export const trvArcDone = 1;
export const trvArcRefused = 0;

// Whether a frame was found.
export const trvFrameDone = 0;
export const trvFrameNoFrame = -2;

// Whether two points coincide: each difference of their coordinates is within the tolerance.
export const trvCoincidenceDistinct = 0;
export const trvCoincidenceCoincident = 1;

// How many points were found.
export const trvPointsNone = 0;
export const trvPointsOne = 1;
export const trvPointsTwo = 2;

// Which of three components are above the tolerance.
export const trvComponentsNone = 0;
export const trvComponentsAll = 1;
export const trvComponentsFirst = 2;
export const trvComponentsSecond = 3;
export const trvComponentsThird = 4;
export const trvComponentsFirstSecond = 5;
export const trvComponentsSecondThird = 6;
export const trvComponentsFirstThird = 7;

// Whether a point lies on a line of space.
export const trvOnLineNo = 0;
export const trvOnLineYes = 1;

// Whether a point lies on a plane. Caution: 0 means yes.
export const trvOnPlaneYes = 0;
export const trvOnPlaneNo = -1;
export const trvOnPlaneZeroNormal = 1;

// How two lines of the plane lie to each other.
export const trvPlaneLinesOnePoint = 0;
export const trvPlaneLinesSameLine = 1;
export const trvPlaneLinesParallel = 2;

// Three-point test (trvpsl): where P2 is, seen from P0 and P1.
export const trvThreePointsSpansPlane = 0;
export const trvThreePointsAtP0 = 1;
export const trvThreePointsAtP1 = 2;
export const trvThreePointsBetween = 3;
export const trvThreePointsBeyondP0 = 4;
export const trvThreePointsBeyondP1 = 5;

// How two lines of space lie to each other (trvdirl).
export const trvLinesCrossing = 0;
export const trvLinesParallelSame = 1;
export const trvLinesParallelOpposite = 2;
export const trvLinesSameLine = 3;
export const trvLinesOppositeLine = 4;
export const trvLinesPerpendicular = 5;
export const trvLinesSkew = 6;
export const trvLinesCoincident = 7;

// Outcome for two lines of space: a result, or the relation that allows no result.
export const trvTwoLinesDone = 0;
export const trvTwoLinesSameLine = 3;
export const trvTwoLinesOppositeLine = 4;
export const trvTwoLinesSkew = 6;
export const trvTwoLinesNoLength = 7;

// Kind of a part of a section.
export const trvPartConcentrated = 1;
export const trvPartPolygon = 2;
export const trvPartCircle = 3;
export const trvPartSmallerSegment = 4;
export const trvPartLargerSegment = 5;

// trvcin: class.
export const trvcinUncutAbove = 1;
export const trvcinUncutBelow = 2;
export const trvcinCutBelow = 3;
export const trvcinCutAbove = 4;

// trvapp: where each point is.
export const trvappInside = 1;
export const trvappOutside = 2;
export const trvappNoSector = -1;

// trvcer10: outcome.
export const trvcer10CrossingOrRefused = 0;
export const trvcer10AlongChord = 1;
export const trvcer10Parallel = 2;

// trvptp1: which points of A match a point of B.
export const trvptp1NoPair = 0;
export const trvptp1SomePairs = 1;
export const trvptp1AllPaired = 2;

// trvpin: where P1 is.
export const trvpinInside = 1;
export const trvpinOutside = 0;
export const trvpinRefused = -1;

// trvcnt1: test.
export const trvcnt1Zero = 1;
export const trvcnt1Nonzero = 0;

// trvvin: sign.
export const trvvinPositive = 1;
export const trvvinNotPositive = 2;

// trvpos1: what was found.
export const trvpos1AtEntry = 1;
export const trvpos1Between = 2;
export const trvpos1Neither = 0;

// trvphip: outcome.
export const trvphipNoLength = -1;

// trvcnv: test.
export const trvcnvConvex = 1;
export const trvcnvNotConvex = 0;
export const trvcnvRefused = -1;

// trvdir: relation.
export const trvdirOblique = 0;
export const trvdirSame = 1;
export const trvdirOpposite = 2;
export const trvdirPerpendicular = 3;
export const trvdirZero = 4;

// trvdirp: relation.
export const trvdirpCrossing = 0;
export const trvdirpParallelSame = 1;
export const trvdirpParallelOpposite = 2;
export const trvdirpCoincidentSame = 3;
export const trvdirpCoincidentOpposite = 4;
export const trvdirpPerpendicular = 5;
export const trvdirpZeroNormal = 6;

// trvppc: outcome.
export const trvppcDone = 0;
export const trvppcNoFrame = -1;

// trvpl5: outcome.
export const trvpl5Done = 0;
export const trvpl5NoPlane = 1;

// trvplv: relation.
export const trvplvZeroU = -1;
export const trvplvOblique = 0;
export const trvplvSame = 3;
export const trvplvOpposite = 4;
export const trvplvPerpendicular = 5;
export const trvplvZero = 7;

// trv3sp: test.
export const trv3spFlat = 0;
export const trv3spSpanning = 1;

// trvpli: outcome.
export const trvpliDone = 0;
export const trvpliParallel = 3;
export const trvpliZero = 4;

// trvplp: position.
export const trvplpGeneral = 1;
export const trvplpParallelX = 2;
export const trvplpParallelY = 3;
export const trvplpParallelZ = 4;
export const trvplpNormalZ = 5;
export const trvplpNormalX = 6;
export const trvplpNormalY = 7;
export const trvplpAtZZero = 8;
export const trvplpAtXZero = 9;
export const trvplpAtYZero = 10;

// trvlpc: outcome.
export const trvlpcNotMoved = 0;
export const trvlpcMovedOneSide = 3;
export const trvlpcMovedEitherSide = 4;
export const trvlpcMovedSkew = 6;
export const trvlpcMovedAtP = 7;

// Names of version 1.1, which the next version drops.
export const trvcer3Done = 1;
export const trvcer3Refused = 0;
export const trvcer8Done = 1;
export const trvcer8Refused = 0;
export const trvcer6Done = 1;
export const trvcer6Refused = 0;
export const trvcer9Done = 1;
export const trvcer9Refused = 0;
export const trvarc1Done = 1;
export const trvarc1Refused = 0;
export const trvcer4Done = 1;
export const trvcer4Refused = 0;
export const trvcer5Done = 1;
export const trvcer5Refused = 0;
export const trvcer7Done = 1;
export const trvcer7Refused = 0;
export const trvardDone = 1;
export const trvardRefused = 0;
export const trvporOrdered = 0;
export const trvporRefused = -1;
export const trvcntCoincident = 1;
export const trvcntDistinct = 0;
export const trv123Done = 0;
export const trv123Coincident = 1;
export const trvchiDone = 0;
export const trvchiCoincident = 1;
export const trvtrgDone = 0;
export const trvtrgCoincident = 1;
export const trvpl4Done = 0;
export const trvpl4Coincident = 1;
export const trvlniOnePoint = 0;
export const trvlniSameLine = 1;
export const trvlniParallel = 2;
export const trvlulOnePoint = 0;
export const trvlulSameLine = 1;
export const trvlulParallel = 2;
export const trvpsnNone = 0;
export const trvpsnAll = 1;
export const trvpsnFirst = 2;
export const trvpsnSecond = 3;
export const trvpsnThird = 4;
export const trvpsnFirstSecond = 5;
export const trvpsnSecondThird = 6;
export const trvpsnFirstThird = 7;
export const trvln6None = 0;
export const trvln6All = 1;
export const trvln6First = 2;
export const trvln6Second = 3;
export const trvln6Third = 4;
export const trvln6FirstSecond = 5;
export const trvln6SecondThird = 6;
export const trvln6FirstThird = 7;
export const trvln7None = 0;
export const trvln7All = 1;
export const trvln7First = 2;
export const trvln7Second = 3;
export const trvln7Third = 4;
export const trvln7FirstSecond = 5;
export const trvln7SecondThird = 6;
export const trvln7FirstThird = 7;
export const trvln6OnLine = 1;
export const trvln6OffLine = 0;
export const trvln7OnLine = 1;
export const trvln7OffLine = 0;
export const trvmxtDone = 0;
export const trvmxtRefused = -1;
export const trvmxtFbDone = 0;
export const trvmxtFbRefused = -1;
export const trvpslSpansPlane = 0;
export const trvpslAtP0 = 1;
export const trvpslAtP1 = 2;
export const trvpslBetween = 3;
export const trvpslBeyondP0 = 4;
export const trvpslBeyondP1 = 5;
export const trvpl1Done = 0;
export const trvpl1AtP0 = 1;
export const trvpl1AtP1 = 2;
export const trvpl1Between = 3;
export const trvpl1BeyondP0 = 4;
export const trvpl1BeyondP1 = 5;
export const trvpl7Done = 0;
export const trvpl7AtP0 = 1;
export const trvpl7AtP1 = 2;
export const trvpl7Between = 3;
export const trvpl7BeyondP0 = 4;
export const trvpl7BeyondP1 = 5;
export const trvaxeDone = 0;
export const trvaxeNoFrame = -2;
export const trvaxelDone = 0;
export const trvaxelNoFrame = -2;
export const trvptrlDone = 0;
export const trvptrlNoFrame = -2;
export const trvpraDone = 0;
export const trvpraNoFrame = -2;
export const trvpl2Done = 0;
export const trvpl2SameLine = 3;
export const trvpl2OppositeLine = 4;
export const trvpl2Coincident = 7;
export const trvpl3Done = 0;
export const trvpl3SameLine = 3;
export const trvpl3OppositeLine = 4;
export const trvpl3Coincident = 7;
export const trvpl6Done = 0;
export const trvpl6SameLine = 3;
export const trvpl6OppositeLine = 4;
export const trvpl6Skew = 6;
export const trvpl6Zero = 7;
export const trv3lniDone = 0;
export const trv3lniSameLine = 3;
export const trv3lniOppositeLine = 4;
export const trv3lniSkew = 6;
export const trv3lniZero = 7;
export const trvpspOnPlane = 0;
export const trvpspOffPlane = -1;
export const trvpspgOnPlane = 0;
export const trvpspgOffPlane = -1;
export const trvpspgZeroNormal = 1;
export const trvdirlCrossing = 0;
export const trvdirlParallelSame = 1;
export const trvdirlParallelOpposite = 2;
export const trvdirlSameLine = 3;
export const trvdirlOppositeLine = 4;
export const trvdirlPerpendicular = 5;
export const trvdirlSkew = 6;
export const trvdirlCoincident = 7;
export const trv3ldbDone = 0;
export const trv3ldaDone = 0;
export const trvpnlDone = 0;

// Circles and arcs of the plane

/**
 * Circle from its centre and radius: D = -2*xc, E = -2*yc, F = xc*xc + yc*yc - r*r.
 *
 * @type {(xc: number, yc: number, r: number) => {D: number, E: number, F: number}}
 */
export const trvcer = routine("trvcer", ["in real xc", "in real yc", "in real r", "out real D",
  "out real E", "out real F"]);

/**
 * Intersection of a line and a circle.
 *
 * n: number of points (TrvPoints): 0 none: the line misses the circle; 1 one: the line touches the
 * circle; 2 two: the line cuts the circle.
 *
 * @type {(a: number, b: number, c: number, D: number, E: number, F: number) => {n: number, x1:
 *   number, y1: number, x2: number, y2: number}}
 */
export const trvlci = routine("trvlci", ["in real a", "in real b", "in real c", "in real D",
  "in real E", "in real F", "out int n", "out real x1", "out real y1", "out real x2",
  "out real y2"]);

/**
 * Intersection of two circles, computed as that of their radical line and the first circle
 * (trvlci).
 *
 * n: number of points (TrvPoints): 0 none: the circles have no common point, or are concentric: |D2
 * - D1| + |E2 - E1| is within the tolerance; 1 one: the circles touch; 2 two: the circles cut each
 * other.
 *
 * @type {(D1: number, E1: number, F1: number, D2: number, E2: number, F2: number) => {n: number,
 *   x1: number, y1: number, x2: number, y2: number}}
 */
export const trvc12 = routine("trvc12", ["in real D1", "in real E1", "in real F1", "in real D2",
  "in real E2", "in real F2", "out int n", "out real x1", "out real y1", "out real x2",
  "out real y2"]);

/**
 * Centres of the circles of a radius through two points.
 *
 * n: number of centres (TrvPoints): 0 none: P1 = P2 exactly, r is at most 1e-5 or less than half
 * the chord, the discriminant is NaN, or the chord is horizontal; 1 one: both candidates are the
 * same point; 2 two: there are two points.
 *
 * @type {(x1: number, y1: number, x2: number, y2: number, side: number, r: number) => {xa: number,
 *   ya: number, xb: number, yb: number, xc: number, yc: number, n: number}}
 */
export const trvcer2 = routine("trvcer2", ["in real x1", "in real y1", "in real x2", "in real y2",
  "in int side", "in real r", "out real xa", "out real ya", "out real xb", "out real yb",
  "out real xc", "out real yc", "out int n"]);

/**
 * Circle through two points with a given sagitta.
 *
 * n: number of centres of trvcer2 (TrvPoints): 0 none: h < 1e-5, P1 = P2 exactly, r is at most 1e-5
 * or less than half the chord, the discriminant is NaN, or the chord is horizontal; 1 one: both
 * candidates are the same point; 2 two: there are two points.
 *
 * @type {(x1: number, y1: number, x2: number, y2: number, side: number, h: number) => {r: number,
 *   xc: number, yc: number, n: number}}
 */
export const trvcer1 = routine("trvcer1", ["in real x1", "in real y1", "in real x2", "in real y2",
  "in int side", "in real h", "out real r", "out real xc", "out real yc", "out int n"]);

/**
 * Classifies a circle cut by a line, with a trace.
 *
 * position: class: 1 uncut_above: the circle is not cut, its centre is above the x axis; 2
 * uncut_below: the circle is not cut, its centre is on or below the x axis; 3 cut_below: the circle
 * is cut, its centre is below the x axis; 4 cut_above: the circle is cut, its centre is on or above
 * the x axis.
 *
 * @type {(X: Numbers, Y: Numbers, a: number, b: number, c: number) => {position: number, x1:
 *   number, y1: number, x2: number, y2: number}}
 */
export const trvcin = routine("trvcin", ["in real X[2]", "in real Y[2]", "in real a", "in real b",
  "in real c", "out int position", "out real x1", "out real y1", "out real x2", "out real y2"]);

/**
 * Rotates a point about a centre.
 *
 * status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the point's distance from
 * the centre is within the tolerance.
 *
 * @type {(x0: number, y0: number, x: number, y: number, angle: number) => {x: number, y: number,
 *   xr: number, yr: number, status: number}}
 */
export const trvcer3 = routine("trvcer3", ["in real x0", "in real y0", "inout real x",
  "inout real y", "in real angle", "out real xr", "out real yr", "out int status"]);

/**
 * Point of an arc above a station of its chord, perpendicular to the chord.
 *
 * status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the chord is
 * at most 0.001, the radii of A and B differ by more than 0.001, or the station is not more than
 * 0.001 inside both ends of the chord.
 *
 * @type {(xc: number, yc: number, xa: number, ya: number, xb: number, yb: number, side: number, d:
 *   number) => {x: number, y: number, status: number}}
 */
export const trvcer8 = routine("trvcer8", ["in real xc", "in real yc", "in real xa", "in real ya",
  "in real xb", "in real yb", "in int side", "in real d", "out real x", "out real y",
  "out int status"]);

/**
 * Point of an arc on the line from its centre through a station of its chord.
 *
 * status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the chord is
 * at most 0.001, the radii of A and B differ by more than 0.001, the station is not more than 0.001
 * inside both ends of the chord, or d differs from the diameter by less than 0.001.
 *
 * @type {(xc: number, yc: number, xa: number, ya: number, xb: number, yb: number, side: number, d:
 *   number) => {x: number, y: number, status: number}}
 */
export const trvcer6 = routine("trvcer6", ["in real xc", "in real yc", "in real xa", "in real ya",
  "in real xb", "in real yb", "in int side", "in real d", "out real x", "out real y",
  "out int status"]);

/**
 * Points of an arc above the two edges of a strip on its chord, perpendicular to the chord.
 *
 * status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius, the chord, d,
 * the rest of the chord beyond d or the width is at most 0.001, the radii of A and B differ by more
 * than 0.001, or an edge of the strip is less than 0.001 inside an end of the chord.
 *
 * @type {(xc: number, yc: number, xa: number, ya: number, xb: number, yb: number, side: number, d:
 *   number, w: number) => {x1: number, y1: number, x2: number, y2: number, status: number}}
 */
export const trvcer9 = routine("trvcer9", ["in real xc", "in real yc", "in real xa", "in real ya",
  "in real xb", "in real yb", "in int side", "in real d", "in real w", "out real x1", "out real y1",
  "out real x2", "out real y2", "out int status"]);

/**
 * Lengths of the two arcs between two points of a circle.
 *
 * status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius, or the
 * distance of A and B, is within the tolerance.
 *
 * @type {(xc: number, yc: number, xa: number, ya: number, xb: number, yb: number) => {s1: number,
 *   s2: number, status: number}}
 */
export const trvarc1 = routine("trvarc1", ["in real xc", "in real yc", "in real xa", "in real ya",
  "in real xb", "in real yb", "out real s1", "out real s2", "out int status"]);

/**
 * Signed angle of a direction against the x axis.
 *
 * @type {(dx: number, dy: number) => {phi: number}}
 */
export const trvaxph = routine("trvaxph", ["in real dx", "in real dy", "out real phi"]);

/**
 * Distances of two points from the line of a segment, and their stations along it.
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number, x3: number, y3: number, z3: number) => {h0: number, s0: number, h3: number,
 *   s3: number, len: number}}
 */
export const trvhin = routine("trvhin", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real x2", "in real y2", "in real z2", "in real x3", "in real y3",
  "in real z3", "out real h0", "out real s0", "out real h3", "out real s3", "out real len"]);

/**
 * Marks points as inside or outside a sector.
 *
 * mark: where each point is: 1 inside: the point is inside the sector; 2 outside: the point is
 * outside the sector; -1 no_sector: the angle of the rays by trvphi is within the tolerance, so all
 * points have this value.
 *
 * @type {(x0: number, y0: number, x1: number, y1: number, x2: number, y2: number, X: Numbers, Y:
 *   Numbers, counts?: {n?: number}) => {mark: Int32Array}}
 */
export const trvapp = routine("trvapp", ["in real x0", "in real y0", "in real x1", "in real y1",
  "in real x2", "in real y2", "in int n = X Y", "in real X[n]", "in real Y[n]", "out int mark[n]"]);

/**
 * Point of an arc on a line through a station of its chord.
 *
 * status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: the radius or the chord is
 * within the tolerance, the radii of A and B differ by more than the tolerance, A and B coincide,
 * or the line is tangent to the circle.
 *
 * @type {(xc: number, yc: number, xa: number, ya: number, xb: number, yb: number, s: number, angle:
 *   number) => {xc: number, yc: number, xa: number, ya: number, xb: number, yb: number, xo: number,
 *   yo: number, status: number}}
 */
export const trvcer4 = routine("trvcer4", ["inout real xc", "inout real yc", "inout real xa",
  "inout real ya", "inout real xb", "inout real yb", "in real s", "in real angle", "out real xo",
  "out real yo", "out int status"]);

/**
 * Intersection of an arc's chord with a line through its rotated end.
 *
 * status: outcome: 0 crossing_or_refused: the line crosses the chord, which is the normal result,
 * or an intersection kept from an earlier call lies on the chord's line but not at A or B (trvpsl
 * above 2), or the input is rejected, since the radius or the chord is within the tolerance or the
 * radii of A and B differ by more than the tolerance; 1 along_chord: the line runs along the chord;
 * 2 parallel: the line is parallel to the chord.
 *
 * @type {(xc: number, yc: number, xa: number, ya: number, xb: number, yb: number, turn: number,
 *   angle: number) => {xc: number, yc: number, xa: number, ya: number, xb: number, yb: number, xo:
 *   number, yo: number, status: number}}
 */
export const trvcer10 = routine("trvcer10", ["inout real xc", "inout real yc", "inout real xa",
  "inout real ya", "inout real xb", "inout real yb", "in real turn", "in real angle", "out real xo",
  "out real yo", "out int status"]);

/**
 * Point of an arc on the line from a station of its chord to a point of the sagitta.
 *
 * status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s is negative, e, the
 * radius, the chord or its rest beyond s is at most 1e-5, the radii of A and B differ by more than
 * 1e-5, or the line is tangent to the circle.
 *
 * @type {(xc: number, yc: number, xa: number, ya: number, xb: number, yb: number, s: number, side:
 *   number, e: number) => {xc: number, yc: number, xa: number, ya: number, xb: number, yb: number,
 *   xo: number, yo: number, status: number}}
 */
export const trvcer5 = routine("trvcer5", ["inout real xc", "inout real yc", "inout real xa",
  "inout real ya", "inout real xb", "inout real yb", "in real s", "in int side", "in real e",
  "out real xo", "out real yo", "out int status"]);

/**
 * Intersections of a line through a station of an arc's chord with the arc and with a line parallel
 * to the chord.
 *
 * status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: s or e is negative, the
 * radius or the chord's rest beyond s is at most 1e-4, the radii of A and B differ by more than
 * 1e-4 and the rounding, side is 0, the line is parallel to the chord, or the part of the line
 * inside the circle is not longer than 2e-4.
 *
 * @type {(xc: number, yc: number, xa: number, ya: number, xb: number, yb: number, s: number, side:
 *   number, e: number, angle: number) => {xc: number, yc: number, xa: number, ya: number, xb:
 *   number, yb: number, xp: number, yp: number, xt: number, yt: number, xo: number, yo: number,
 *   len: number, status: number}}
 */
export const trvcer7 = routine("trvcer7", ["inout real xc", "inout real yc", "inout real xa",
  "inout real ya", "inout real xb", "inout real yb", "in real s", "in int side", "in real e",
  "in real angle", "out real xp", "out real yp", "out real xt", "out real yt", "out real xo",
  "out real yo", "out real len", "out int status"]);

/**
 * Rounds the corner at P0 between the segments to P1 and to P2.
 *
 * status: outcome (TrvArc): 1 done: the outputs are computed; 0 refused: r or the length of a
 * segment is not above the tolerance, the sine of the angle between the segments is within the
 * tolerance, or a tangent point lies beyond the end of its segment by more than the tolerance.
 *
 * @type {(x0: number, y0: number, x1: number, y1: number, x2: number, y2: number, r: number) =>
 *   {xc: number, yc: number, xt1: number, yt1: number, xt2: number, yt2: number, status: number}}
 */
export const trvard = routine("trvard", ["in real x0", "in real y0", "in real x1", "in real y1",
  "in real x2", "in real y2", "in real r", "out real xc", "out real yc", "out real xt1",
  "out real yt1", "out real xt2", "out real yt2", "out int status"]);

/**
 * Bounding box of the arc that a point sweeps about a centre.
 *
 * @type {(xc: number, yc: number, xa: number, ya: number, sweep: number) => {xmin: number, ymin:
 *   number, xmax: number, ymax: number}}
 */
export const trvenv = routine("trvenv", ["in real xc", "in real yc", "in real xa", "in real ya",
  "in real sweep", "out real xmin", "out real ymin", "out real xmax", "out real ymax"]);

// Ordering, searching, matching and joining of lists

/**
 * Sorts Reals ascending, in place.
 *
 * @type {(V: Numbers, counts?: {n?: number}) => {V: Float32Array}}
 */
export const trvord = routine("trvord", ["inout real V[n]", "in int n = V"]);

/**
 * Sorts Integers ascending, in place.
 *
 * @type {(V: Numbers, counts?: {n?: number}) => {V: Int32Array}}
 */
export const trvord1 = routine("trvord1", ["inout int V[n]", "in int n = V"]);

/**
 * Positions of the elements of a list in ascending order; the list itself is not changed.
 *
 * @type {(V: Numbers, counts?: {n?: number}) => {IDX: Int32Array}}
 */
export const trvordi = routine("trvordi", ["in real V[n]", "in int n = V", "out int IDX[n]"]);

/**
 * Order of parallel lines by their intersections with an axis.
 *
 * status: outcome (TrvStatus): 0 done: IDX holds the order; -1 refused: the lines are not a family
 * of parallel and distinct lines, or n < 1.
 *
 * @type {(A: Numbers, B: Numbers, C: Numbers, counts?: {n?: number}) => {IDX: Int32Array, status:
 *   number}}
 */
export const trvpor = routine("trvpor", ["in int n = A B C", "in real A[n]", "in real B[n]",
  "in real C[n]", "out int IDX[n]", "out int status"]);

/**
 * Puts the corners of a quadrilateral of space in cyclic order, in place.
 *
 * @type {(X: Numbers, Y: Numbers, Z: Numbers) => {X: Float32Array, Y: Float32Array, Z:
 *   Float32Array, ORD: Int32Array}}
 */
export const trvorv = routine("trvorv", ["inout real X[4]", "inout real Y[4]", "inout real Z[4]",
  "out int ORD[4]"]);

/**
 * All positions at which a list holds a value.
 *
 * @type {(V: Numbers, key: number, counts?: {n?: number}) => {count: number, pos: Int32Array}}
 */
export const trvsel1 = routine("trvsel1", ["in int n = V", "in int V[n]", "in int key",
  "out int count", "out int pos[n, count used]"]);

/**
 * All pairs of elements of two lists that differ by at most a tolerance.
 *
 * @type {(A: Numbers, B: Numbers, tol: number, counts?: {na?: number, nb?: number}) => {count:
 *   number, IA: Int32Array, IB: Int32Array}}
 */
export const trvmer13 = routine("trvmer13", ["in int na = A", "in real A[na]", "in int nb = B",
  "in real B[nb]", "out int count", "out int IA[max(na+nb,na*nb)]", "out int IB[max(na+nb,na*nb)]",
  "in real tol"]);

/**
 * Joins two lists end to end. Elements are copied bit for bit, so the lists may also hold Reals.
 *
 * @type {(A: Numbers, B: Numbers, counts?: {na?: number, nb?: number}) => {nout: number, OUT:
 *   Int32Array}}
 */
export const trvmer1 = routine("trvmer1", ["in int na = A", "in int A[na]", "in int nb = B",
  "in int B[nb]", "out int nout", "out int OUT[na+nb, nout used]"]);

/**
 * Joins two lists end to end: trvmer1 under another name.
 *
 * @type {(A: Numbers, B: Numbers, counts?: {na?: number, nb?: number}) => {nout: number, OUT:
 *   Int32Array}}
 */
export const trvmer11 = routine("trvmer11", ["in int na = A", "in int A[na]", "in int nb = B",
  "in int B[nb]", "out int nout", "out int OUT[na+nb, nout used]"]);

/**
 * Sorts Integers ascending and removes duplicates, in place.
 *
 * @type {(V: Numbers, counts?: {n?: number}) => {V: Int32Array, n: number}}
 */
export const trvmer2 = routine("trvmer2", ["inout int V[n, n used]", "inout int n = V"]);

/**
 * Sorts Reals ascending and removes duplicates within a tolerance, in place.
 *
 * @type {(V: Numbers, counts?: {n?: number}) => {V: Float32Array, n: number}}
 */
export const trvmer3 = routine("trvmer3", ["inout real V[n, n used]", "inout int n = V"]);

/**
 * Sorts Reals ascending and removes duplicates within a tolerance, in place.
 *
 * @type {(V: Numbers, tol: number, counts?: {n?: number}) => {V: Float32Array, n: number}}
 */
export const trvmer12 = routine("trvmer12", ["inout real V[n, n used]", "inout int n = V",
  "in real tol"]);

/**
 * Appends to a list those elements of another that it does not hold yet.
 *
 * @type {(A: Numbers, B: Numbers, tol: number, counts?: {na?: number, nb?: number}) => {nout:
 *   number, OUT: Float32Array, IB: Int32Array}}
 */
export const trvmer4 = routine("trvmer4", ["in int na = A", "in real A[na]", "in int nb = B",
  "in real B[nb]", "in real tol", "out int nout", "out real OUT[na+nb, nout used]",
  "out int IB[nb]"]);

/**
 * Elements of a list that another holds too.
 *
 * @type {(A: Numbers, B: Numbers, counts?: {na?: number, nb?: number}) => {nout: number, OUT:
 *   Int32Array}}
 */
export const trvmer14 = routine("trvmer14", ["in int na = A", "in int A[na]", "in int nb = B",
  "in int B[nb]", "out int nout", "out int OUT[na, nout used]"]);

/**
 * Removes from a list the elements that another holds, in place.
 *
 * @type {(A: Numbers, B: Numbers, counts?: {na?: number, nb?: number}) => {na: number, A:
 *   Int32Array, count: number}}
 */
export const trvmer15 = routine("trvmer15", ["inout int na = A", "inout int A[na, na used]",
  "in int nb = B", "in int B[nb]", "out int count"]);

/**
 * Removes repeated vertices of a closed outline, in place.
 *
 * @type {(X: Numbers, Y: Numbers, tol: number, counts?: {n?: number}) => {X: Float32Array, Y:
 *   Float32Array, n: number}}
 */
export const trvmer16 = routine("trvmer16", ["inout real X[n, n used]", "inout real Y[n, n used]",
  "inout int n = X Y", "in real tol"]);

/**
 * All pairs of points of two lists that match within a tolerance in each coordinate.
 *
 * status: which points of A match a point of B: 0 no_pair: no point of A matches a point of B; 1
 * some_pairs: some points of A match points of B, others do not; 2 all_paired: every point of A
 * matches a point of B.
 *
 * @type {(XA: Numbers, YA: Numbers, ZA: Numbers, XB: Numbers, YB: Numbers, ZB: Numbers, tol:
 *   number, counts?: {na?: number, nb?: number}) => {count: number, IA: Int32Array, IB: Int32Array,
 *   status: number}}
 */
export const trvptp1 = routine("trvptp1", ["in int na = XA YA ZA", "in real XA[na]",
  "in real YA[na]", "in real ZA[na]", "in int nb = XB YB ZB", "in real XB[nb]", "in real YB[nb]",
  "in real ZB[nb]", "in real tol", "out int count", "out int IA[na*nb, count used]",
  "out int IB[na*nb, count used]", "out int status"]);

/**
 * Merges three lists of points into one list.
 *
 * @type {(XA: Numbers, YA: Numbers, ZA: Numbers, XB: Numbers, YB: Numbers, ZB: Numbers, XC:
 *   Numbers, YC: Numbers, ZC: Numbers, tol: number, k: number, counts?: {na?: number, nb?: number,
 *   nc?: number}) => {nab: number, IAB: Int32Array, JAB: Int32Array, nbc: number, IBC: Int32Array,
 *   JBC: Int32Array, nca: number, ICA: Int32Array, JCA: Int32Array, nout: number, XO: Float32Array,
 *   YO: Float32Array, ZO: Float32Array, MA: Int32Array, MB: Int32Array, MC: Int32Array, nk: number,
 *   PK: Int32Array, nz: number, ZL: Float32Array}}
 */
export const trvptp2 = routine("trvptp2", ["in int na = XA YA ZA", "in real XA[na]",
  "in real YA[na]", "in real ZA[na]", "in int nb = XB YB ZB", "in real XB[nb]", "in real YB[nb]",
  "in real ZB[nb]", "in int nc = XC YC ZC", "in real XC[nc]", "in real YC[nc]", "in real ZC[nc]",
  "in real tol", "out int nab", "out int IAB[na*nb, nab used]", "out int JAB[na*nb, nab used]",
  "out int nbc", "out int IBC[nb*nc, nbc used]", "out int JBC[nb*nc, nbc used]", "out int nca",
  "out int ICA[nc*na, nca used]", "out int JCA[nc*na, nca used]", "out int nout",
  "out real XO[na+nb+nc, nout used]", "out real YO[na+nb+nc, nout used]",
  "out real ZO[na+nb+nc, nout used]", "out int MA[na]", "out int MB[nb]", "out int MC[nc]",
  "in int k", "out int nk", "out int PK[na+nb+nc, nk used]", "out int nz",
  "out real ZL[na+nb+nc, nz used]"]);

/**
 * Crossings of the horizontal line y = y0 with a closed outline.
 *
 * @type {(X: Numbers, Y: Numbers, y0: number, counts?: {n?: number}) => {count: number, XC:
 *   Float32Array}}
 */
export const trvppp = routine("trvppp", ["in real X[n]", "in real Y[n]", "in int n = X Y",
  "in real y0", "out int count", "out real XC[n, count used]"]);

/**
 * Crossings of the segment from P1 to P2 with a closed outline.
 *
 * status: where P1 is: 1 inside: P1 is inside the outline by the even-odd rule; 0 outside: P1 is
 * outside the outline by the even-odd rule; -1 refused: n < 3, or P1 and P2 coincide within the
 * tolerance in both coordinates.
 *
 * @type {(X: Numbers, Y: Numbers, x1: number, y1: number, x2: number, y2: number, counts?: {n?:
 *   number}) => {count: number, XI: Float32Array, YI: Float32Array, T: Float32Array, EDGE:
 *   Int32Array, status: number}}
 */
export const trvpin = routine("trvpin", ["in real X[n]", "in real Y[n]", "in int n = X Y",
  "in real x1", "in real y1", "in real x2", "in real y2", "out int count",
  "out real XI[n, count used]", "out real YI[n, count used]", "out real T[n, count used]",
  "out int EDGE[n, count used]", "out int status"]);

// Points, vectors, straight lines and angles

/**
 * Distance between two points.
 *
 * @type {(x1: number, y1: number, z1: number, x2: number, y2: number, z2: number) => {d: number}}
 */
export const trvpds = routine("trvpds", ["in real x1", "in real y1", "in real z1", "in real x2",
  "in real y2", "in real z2", "out real d"]);

/**
 * Dot product of the difference vectors P2 - P1 and P4 - P3.
 *
 * @type {(x1: number, y1: number, z1: number, x2: number, y2: number, z2: number, x3: number, y3:
 *   number, z3: number, x4: number, y4: number, z4: number) => {s: number}}
 */
export const trvpri = routine("trvpri", ["in real x1", "in real y1", "in real z1", "in real x2",
  "in real y2", "in real z2", "in real x3", "in real y3", "in real z3", "in real x4", "in real y4",
  "in real z4", "out real s"]);

/**
 * Cross product (P2 - P1) x (P4 - P3).
 *
 * @type {(x1: number, y1: number, z1: number, x2: number, y2: number, z2: number, x3: number, y3:
 *   number, z3: number, x4: number, y4: number, z4: number) => {c: Float32Array}}
 */
export const trvpre = routine("trvpre", ["in real x1", "in real y1", "in real z1", "in real x2",
  "in real y2", "in real z2", "in real x3", "in real y3", "in real z3", "in real x4", "in real y4",
  "in real z4", "out real c[3]"]);

/**
 * Difference vector of two points, and whether they coincide.
 *
 * status: coincidence (TrvCoincidence): 1 coincident: each difference is within the tolerance; 0
 * distinct: a difference is above the tolerance or NaN.
 *
 * @type {(x1: number, y1: number, z1: number, x2: number, y2: number, z2: number) => {dx: number,
 *   dy: number, dz: number, status: number}}
 */
export const trvcnt = routine("trvcnt", ["in real x1", "in real y1", "in real z1", "in real x2",
  "in real y2", "in real z2", "out real dx", "out real dy", "out real dz", "out int status"]);

/**
 * Whether a vector is exactly zero; unlike trvcnt, no tolerance applies.
 *
 * status: test: 1 zero: all components are zero, of either sign; 0 nonzero: a component is not
 * zero, or is NaN.
 *
 * @type {(dx: number, dy: number, dz: number) => {status: number}}
 */
export const trvcnt1 = routine("trvcnt1", ["in real dx", "in real dy", "in real dz",
  "out int status"]);

/**
 * Point P1 + t*(P2 - P1) on the line through two points.
 *
 * status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 and P2
 * coincide within the tolerance (trvcnt).
 *
 * @type {(x1: number, y1: number, z1: number, x2: number, y2: number, z2: number, t: number) => {x:
 *   number, y: number, z: number, status: number}}
 */
export const trv123 = routine("trv123", ["in real x1", "in real y1", "in real z1", "in real x2",
  "in real y2", "in real z2", "in real t", "out real x", "out real y", "out real z",
  "out int status"]);

/**
 * Midpoint of two points.
 *
 * @type {(x1: number, y1: number, z1: number, x2: number, y2: number, z2: number) => {xm: number,
 *   ym: number, zm: number}}
 */
export const trvmed = routine("trvmed", ["in real x1", "in real y1", "in real z1", "in real x2",
  "in real y2", "in real z2", "out real xm", "out real ym", "out real zm"]);

/**
 * Determinant of the 2 x 2 matrix with rows (a, b) and (c, d).
 *
 * @type {(a: number, b: number, c: number, d: number) => {det: number}}
 */
export const trvdtr2 = routine("trvdtr2", ["in real a", "in real b", "in real c", "in real d",
  "out real det"]);

/**
 * Determinant of a 3 x 3 matrix, expanded along its first row.
 *
 * @type {(a1: number, a2: number, a3: number, b1: number, b2: number, b3: number, c1: number, c2:
 *   number, c3: number) => {det: number}}
 */
export const trvdtr3 = routine("trvdtr3", ["in real a1", "in real a2", "in real a3", "in real b1",
  "in real b2", "in real b3", "in real c1", "in real c2", "in real c3", "out real det"]);

/**
 * Divides two coefficients by a third, or gives zeros if the third is zero within the tolerance.
 *
 * @type {(a: number, b: number, c: number) => {q1: number, q2: number}}
 */
export const trvgrc = routine("trvgrc", ["in real a", "in real b", "in real c", "out real q1",
  "out real q2"]);

/**
 * Linear interpolation, or extrapolation, through two samples.
 *
 * @type {(x1: number, x2: number, y1: number, y2: number, x: number) => {y: number}}
 */
export const trvint = routine("trvint", ["in real x1", "in real x2", "in real y1", "in real y2",
  "in real x", "out real y"]);

/**
 * Sign of a value.
 *
 * status: sign: 1 positive: v is positive; 2 not_positive: v is zero, negative or NaN.
 *
 * @type {(u1: number, v: number, u3: number, u4: number, u5: number) => {status: number}}
 */
export const trvvin = routine("trvvin", ["in real u1", "in real v", "in real u3", "in real u4",
  "in real u5", "out int status"]);

/**
 * Interval of an ascending table that holds a value.
 *
 * @type {(A: Numbers, x: number, counts?: {n?: number}) => {i: number}}
 */
export const trvpos = routine("trvpos", ["in int n = A", "in real A[n]", "in real x", "out int i"]);

/**
 * Element of an ascending table that equals a value, or the interval that holds it.
 *
 * status: what was found: 1 at_entry: A(i) equals x within the tolerance; 2 between: A(i) < x <
 * A(i+1); 0 neither: x equals no element and lies in no interval.
 *
 * @type {(A: Numbers, x: number, counts?: {n?: number}) => {status: number, i: number}}
 */
export const trvpos1 = routine("trvpos1", ["in int n = A", "in real A[n]", "in real x",
  "out int status", "out int i"]);

/**
 * Line through two points.
 *
 * @type {(x1: number, y1: number, x2: number, y2: number) => {a: number, b: number, c: number}}
 */
export const trvln3 = routine("trvln3", ["in real x1", "in real y1", "in real x2", "in real y2",
  "out real a", "out real b", "out real c"]);

/**
 * Line through a point at an angle to the x axis.
 *
 * @type {(x0: number, y0: number, phi: number) => {a: number, b: number, c: number}}
 */
export const trvln1 = routine("trvln1", ["in real x0", "in real y0", "in real phi", "out real a",
  "out real b", "out real c"]);

/**
 * Line through a point with a direction.
 *
 * @type {(x0: number, y0: number, dx: number, dy: number, u: number) => {a: number, b: number, c:
 *   number}}
 */
export const trvln4 = routine("trvln4", ["in real x0", "in real y0", "in real dx", "in real dy",
  "in real u", "out real a", "out real b", "out real c"]);

/**
 * Line parallel to a line at a signed distance.
 *
 * @type {(a: number, b: number, c: number, d: number) => {a2: number, b2: number, c2: number}}
 */
export const trvln2 = routine("trvln2", ["in real a", "in real b", "in real c", "in real d",
  "out real a2", "out real b2", "out real c2"]);

/**
 * Internal bisector of the angle at P0 between the rays to P1 and P2.
 *
 * @type {(x0: number, y0: number, x1: number, y1: number, x2: number, y2: number) => {a: number, b:
 *   number, c: number}}
 */
export const trvln5 = routine("trvln5", ["in real x0", "in real y0", "in real x1", "in real y1",
  "in real x2", "in real y2", "out real a", "out real b", "out real c"]);

/**
 * Signed distance of a point from a line.
 *
 * @type {(x: number, y: number, a: number, b: number, c: number) => {d: number}}
 */
export const trvlds = routine("trvlds", ["in real x", "in real y", "in real a", "in real b",
  "in real c", "out real d"]);

/**
 * Intersection of two lines.
 *
 * status: relation (TrvPlaneLines): 0 one_point: the lines have one point in common; 1 same_line:
 * the lines are the same; 2 parallel: the lines are parallel and distinct.
 *
 * @type {(a1: number, b1: number, c1: number, a2: number, b2: number, c2: number) => {status:
 *   number, x: number, y: number}}
 */
export const trvlni = routine("trvlni", ["in real a1", "in real b1", "in real c1", "in real a2",
  "in real b2", "in real c2", "out int status", "out real x", "out real y"]);

/**
 * Distance of two parallel lines.
 *
 * status: relation (TrvPlaneLines): 0 one_point: the lines have one point in common; 1 same_line:
 * the lines are the same; 2 parallel: the lines are parallel and distinct, as trvlni finds.
 *
 * @type {(a1: number, b1: number, c1: number, a2: number, b2: number, c2: number) => {d: number,
 *   status: number}}
 */
export const trvlul = routine("trvlul", ["in real a1", "in real b1", "in real c1", "in real a2",
  "in real b2", "in real c2", "out real d", "out int status"]);

/**
 * Which components of two triples differ by more than the tolerance.
 *
 * code: which components of p - q are above the tolerance (TrvComponents): 0 none: no component is
 * above the tolerance; 1 all: all three components are above the tolerance; 2 first: only the first
 * component is above the tolerance; 3 second: only the second component is above the tolerance; 4
 * third: only the third component is above the tolerance; 5 first_second: only the first and the
 * second are above the tolerance; 6 second_third: only the second and the third are above the
 * tolerance; 7 first_third: only the first and the third are above the tolerance.
 *
 * @type {(p1: number, p2: number, p3: number, q1: number, q2: number, q3: number) => {code:
 *   number}}
 */
export const trvpsn = routine("trvpsn", ["in real p1", "in real p2", "in real p3", "in real q1",
  "in real q2", "in real q3", "out int code"]);

/**
 * Whether a point lies on the line of space through P0 with direction D.
 *
 * code: which components of (P0 + D) - P0 are above the tolerance (TrvComponents): 0 none: no
 * component is above the tolerance; 1 all: all three components are above the tolerance; 2 first:
 * only the first component is above the tolerance; 3 second: only the second component is above the
 * tolerance; 4 third: only the third component is above the tolerance; 5 first_second: only the
 * first and the second are above the tolerance; 6 second_third: only the second and the third are
 * above the tolerance; 7 first_third: only the first and the third are above the tolerance.
 *
 * on: test (TrvOnLine): 1 yes: P lies on the line; 0 no: P does not lie on the line, or code is 0.
 *
 * @type {(x0: number, y0: number, z0: number, dx: number, dy: number, dz: number, px: number, py:
 *   number, pz: number, tol: number) => {code: number, on: number}}
 */
export const trvln6 = routine("trvln6", ["in real x0", "in real y0", "in real z0", "in real dx",
  "in real dy", "in real dz", "in real px", "in real py", "in real pz", "in real tol",
  "out int code", "out int on"]);

/**
 * Direction of the line of two planes, and whether a point matches it at a retained coordinate.
 *
 * code: which components of (ex, ey, ez) are above the tolerance (TrvComponents): 0 none: no
 * component is above the tolerance; 1 all: all three components are above the tolerance; 2 first:
 * only the first component is above the tolerance; 3 second: only the second component is above the
 * tolerance; 4 third: only the third component is above the tolerance; 5 first_second: only the
 * first and the second are above the tolerance; 6 second_third: only the second and the third are
 * above the tolerance; 7 first_third: only the first and the third are above the tolerance.
 *
 * on: test (TrvOnLine): 1 yes: P matches the line at the kept coordinate; 0 no: P does not match
 * the line at the kept coordinate.
 *
 * @type {(a1: number, b1: number, c1: number, d1: number, a2: number, b2: number, c2: number, d2:
 *   number, px: number, py: number, pz: number, ez: number, tol: number) => {ex: number, ey:
 *   number, code: number, on: number}}
 */
export const trvln7 = routine("trvln7", ["in real a1", "in real b1", "in real c1", "in real d1",
  "in real a2", "in real b2", "in real c2", "in real d2", "in real px", "in real py", "in real pz",
  "out real ex", "out real ey", "in real ez", "in real tol", "out int code", "out int on"]);

/**
 * Angle at P0 between the rays to P1 and P2, in the plane.
 *
 * @type {(x0: number, y0: number, x1: number, y1: number, x2: number, y2: number) => {phi: number}}
 */
export const trvphi = routine("trvphi", ["in real x0", "in real y0", "in real x1", "in real y1",
  "in real x2", "in real y2", "out real phi"]);

/**
 * Angle at P0 between the rays to P1 and P2, in space.
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number) => {phi: number}}
 */
export const trvphi3 = routine("trvphi3", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real x2", "in real y2", "in real z2", "out real phi"]);

/**
 * Angle between two vectors.
 *
 * @type {(ux: number, uy: number, uz: number, vx: number, vy: number, vz: number) => {phi: number}}
 */
export const trvphi1 = routine("trvphi1", ["in real ux", "in real uy", "in real uz", "in real vx",
  "in real vy", "in real vz", "out real phi"]);

/**
 * Angle between two lines given by their directions.
 *
 * status: outcome: -1 no_length: a direction's length is within the tolerance; unwritten on a
 * condition: neither direction's length is within the tolerance, so it must be set beforehand.
 *
 * @type {(ux: number, uy: number, uz: number, vx: number, vy: number, vz: number) => {phi: number,
 *   status: number}}
 */
export const trvphip = routine("trvphip", ["in real ux", "in real uy", "in real uz", "in real vx",
  "in real vy", "in real vz", "out real phi", "out int status"]);

/**
 * Directed angle at P0 from the ray to P1 to the ray to P2.
 *
 * status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 or P2
 * coincides with P0 (trvcnt).
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number) => {chi: number, status: number}}
 */
export const trvchi = routine("trvchi", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real x2", "in real y2", "in real z2", "out real chi",
  "out int status"]);

/**
 * Convexity of a closed outline, of either orientation.
 *
 * status: test: 1 convex: the outline is convex; 0 not_convex: the outline is not convex, or winds
 * more than once; -1 refused: n < 3, or the length of a side is within the tolerance.
 *
 * @type {(X: Numbers, Y: Numbers, counts?: {n?: number}) => {status: number}}
 */
export const trvcnv = routine("trvcnv", ["in real X[n]", "in real Y[n]", "in int n = X Y",
  "out int status"]);

/**
 * Cosine and sine of the angle between P2 - P1 and P4 - P3.
 *
 * status: outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident: P1 and P2, or
 * P3 and P4, coincide (trvcnt).
 *
 * @type {(x1: number, y1: number, z1: number, x2: number, y2: number, z2: number, x3: number, y3:
 *   number, z3: number, x4: number, y4: number, z4: number) => {cphi: number, sphi: number, status:
 *   number}}
 */
export const trvtrg = routine("trvtrg", ["in real x1", "in real y1", "in real z1", "in real x2",
  "in real y2", "in real z2", "in real x3", "in real y3", "in real z3", "in real x4", "in real y4",
  "in real z4", "out real cphi", "out real sphi", "out int status"]);

/**
 * Relation of two directions.
 *
 * code: relation: 0 oblique: u and v have neither the same, opposite nor perpendicular directions;
 * 1 same: the directions are the same; 2 opposite: the directions are opposite; 3 perpendicular:
 * the directions are perpendicular; 4 zero: all components of u, or of v, are within the tolerance.
 *
 * @type {(ux: number, uy: number, uz: number, vx: number, vy: number, vz: number) => {code:
 *   number}}
 */
export const trvdir = routine("trvdir", ["in real ux", "in real uy", "in real uz", "in real vx",
  "in real vy", "in real vz", "out int code"]);

/**
 * Relation of two planes.
 *
 * code: relation: 0 crossing: the planes cross, not at a right angle; 1 parallel_same: the planes
 * are parallel and distinct, their normals in the same direction; 2 parallel_opposite: the planes
 * are parallel and distinct, their normals opposite; 3 coincident_same: the planes coincide, their
 * normals in the same direction; 4 coincident_opposite: the planes coincide, their normals
 * opposite; 5 perpendicular: the planes are perpendicular; 6 zero_normal: a normal is zero.
 *
 * @type {(a1: number, b1: number, c1: number, d1: number, a2: number, b2: number, c2: number, d2:
 *   number) => {code: number}}
 */
export const trvdirp = routine("trvdirp", ["in real a1", "in real b1", "in real c1", "in real d1",
  "in real a2", "in real b2", "in real c2", "in real d2", "out int code"]);

/**
 * Angles between the projections of P2 - P1 and P4 - P3 onto the coordinate planes.
 *
 * @type {(x1: number, y1: number, z1: number, x2: number, y2: number, z2: number, x3: number, y3:
 *   number, z3: number, x4: number, y4: number, z4: number) => {ax: number, ay: number, az:
 *   number}}
 */
export const trvmov = routine("trvmov", ["in real x1", "in real y1", "in real z1", "in real x2",
  "in real y2", "in real z2", "in real x3", "in real y3", "in real z3", "in real x4", "in real y4",
  "in real z4", "out real ax", "out real ay", "out real az"]);

/**
 * Moves the origin of plane points to (x0, y0), in place.
 *
 * @type {(X: Numbers, Y: Numbers, x0: number, y0: number, counts?: {n?: number}) => {X:
 *   Float32Array, Y: Float32Array}}
 */
export const trvtra = routine("trvtra", ["inout real X[n]", "inout real Y[n]", "in int n = X Y",
  "in real x0", "in real y0"]);

/**
 * Reverses a list, in place. Elements move bit for bit, so the list may also hold Reals.
 *
 * @type {(V: Numbers, counts?: {n?: number}) => {V: Int32Array}}
 */
export const trvinv = routine("trvinv", ["inout int V[n]", "in int n = V"]);

/**
 * Inserts a list into another. Elements move bit for bit, so the lists may also hold Reals.
 *
 * @type {(V: Numbers, k: number, A: Numbers, counts?: {n?: number, m?: number}) => {V: Int32Array,
 *   n: number}}
 */
export const trvadr = routine("trvadr", ["inout int V[n+m]", "inout int n = V", "in int k",
  "in int A[m]", "in int m = A"]);

// Area properties of polygons, circular segments and the parts of a section

/**
 * Area of a polygon.
 *
 * @type {(x: Numbers, y: Numbers, counts?: {n?: number}) => {x: Float32Array, y: Float32Array,
 *   area: number}}
 */
export const trvapl = routine("trvapl", ["inout real x[n+1]", "inout real y[n+1]",
  "in int n >= 0 = x y", "out real area"]);

/**
 * First moments of a polygon.
 *
 * @type {(x: Numbers, y: Numbers, counts?: {n?: number}) => {x: Float32Array, y: Float32Array, sx:
 *   number, sy: number}}
 */
export const trvspl = routine("trvspl", ["inout real x[n+1]", "inout real y[n+1]",
  "in int n >= 0 = x y", "out real sx", "out real sy"]);

/**
 * Second moments of a polygon.
 *
 * @type {(x: Numbers, y: Numbers, counts?: {n?: number}) => {x: Float32Array, y: Float32Array, ix:
 *   number, iy: number, ixy: number}}
 */
export const trvipl = routine("trvipl", ["inout real x[n+1]", "inout real y[n+1]",
  "in int n >= 0 = x y", "out real ix", "out real iy", "out real ixy"]);

/**
 * Area and centroid of a circular segment, the region between an arc and its chord.
 *
 * @type {(xc: number, yc: number, x1: number, y1: number, x2: number, y2: number, kind: number) =>
 *   {area: number, xs: number, ys: number}}
 */
export const trvacp = routine("trvacp", ["in real xc", "in real yc", "in real x1", "in real y1",
  "in real x2", "in real y2", "in int kind", "out real area", "out real xs", "out real ys"]);

/**
 * Second moments of a circular segment, the region between an arc and its chord.
 *
 * @type {(xc: number, yc: number, x1: number, y1: number, x2: number, y2: number, kind: number) =>
 *   {ix: number, iy: number, ixy: number}}
 */
export const trvicp = routine("trvicp", ["in real xc", "in real yc", "in real x1", "in real y1",
  "in real x2", "in real y2", "in int kind", "out real ix", "out real iy", "out real ixy"]);

/**
 * Area of a part of a section.
 *
 * @type {(x: Numbers, y: Numbers, kind: number, value: number, factor: number, area: number,
 *   counts?: {n?: number}) => {x: Float32Array, y: Float32Array, area: number}}
 */
export const trvair = routine("trvair", ["inout real x[0, n+1, 2, 3, 3 by kind]",
  "inout real y[0, n+1, 2, 3, 3 by kind]", "in int n >= 0 = x y", "in int kind", "in real value",
  "in real factor", "inout real area"]);

/**
 * First moments of a part of a section.
 *
 * @type {(x: Numbers, y: Numbers, kind: number, value: number, factor: number, sx: number, sy:
 *   number, counts?: {n?: number}) => {x: Float32Array, y: Float32Array, sx: number, sy: number}}
 */
export const trvstm = routine("trvstm", ["inout real x[1, n+1, 2, 3, 3 by kind]",
  "inout real y[1, n+1, 2, 3, 3 by kind]", "in int n >= 0 = x y", "in int kind", "in real value",
  "in real factor", "inout real sx", "inout real sy"]);

/**
 * Second moments of a part of a section.
 *
 * @type {(x: Numbers, y: Numbers, kind: number, value: number, angle: number, factor: number, ix:
 *   number, iy: number, ixy: number, counts?: {n?: number}) => {x: Float32Array, y: Float32Array,
 *   ix: number, iy: number, ixy: number}}
 */
export const trvinm = routine("trvinm", ["inout real x[1, n+1, 2, 3, 3 by kind]",
  "inout real y[1, n+1, 2, 3, 3 by kind]", "in int n >= 0 = x y", "in int kind", "in real value",
  "in real angle", "in real factor", "inout real ix", "inout real iy", "inout real ixy"]);

/**
 * Principal moments and their direction.
 *
 * @type {(ix: number, iy: number, ixy: number) => {i1: number, i2: number, alpha: number}}
 */
export const trvinp = routine("trvinp", ["in real ix", "in real iy", "in real ixy", "out real i1",
  "out real i2", "out real alpha"]);

/**
 * Integral of equally spaced samples over [a, b] by the trapezoidal rule.
 *
 * @type {(f: Numbers, a: number, b: number, counts?: {n?: number}) => {result: number}}
 */
export const trvinr = routine("trvinr", ["in int n >= 2 = f", "in real f[n]", "in real a",
  "in real b", "out real result"]);

// Steel sections: buckling of plates, outlines of profiles, channels, thin plates

/**
 * Reduction factor of an internal compression element, EN 1993-1-5, 4.4(2).
 *
 * @type {(b: number, t: number, r1: number, r2: number, psi: number, ks: number) => {rho: number}}
 */
export const trvro2 = routine("trvro2", ["in real b", "in real t", "in real r1", "in real r2",
  "in real psi", "in real ks", "out real rho"]);

/**
 * Effective width of an edge fold on a plate it stiffens, after EN 1993-1-3, 5.5.3.2.
 *
 * @type {(c: number, bp: number, t: number, r1: number, r2: number) => {ceff: number}}
 */
export const trvefr = routine("trvefr", ["in real c", "in real bp", "in real t", "in real r1",
  "in real r2", "out real ceff"]);

/**
 * Effective widths at the edges of an internal element, EN 1993-1-5, table 4.1.
 *
 * @type {(bl: number, w: number, t: number, r1: number, r2: number, s1: number, s2: number) =>
 *   {be1: number, be2: number}}
 */
export const trvef2 = routine("trvef2", ["in real bl", "in real w", "in real t", "in real r1",
  "in real r2", "in real s1", "in real s2", "out real be1", "out real be2"]);

/**
 * I section with unequal flanges.
 *
 * @type {(H: number, B1: number, B2: number, T1: number, T2: number, TW: number, q: number) => {np:
 *   number, nv: Int32Array, X: Float32Array, Y: Float32Array, code: Int32Array, sign: Float32Array,
 *   z1: Float32Array, z2: Float32Array, z3: Float32Array, z4: Float32Array, z5: Float32Array, q1:
 *   Float32Array, q2: Float32Array}}
 */
export const trvsec_ia = routine("trvsec_ia", ["in real H", "in real B1", "in real B2",
  "in real T1", "in real T2", "in real TW", "in real q", "out int np", "out int nv[1]",
  "out real X[12]", "out real Y[12]", "out int code[1]", "out real sign[1]", "out real z1[1]",
  "out real z2[1]", "out real z3[1]", "out real z4[1]", "out real z5[1]", "out real q1[1]",
  "out real q2[1]"]);

/**
 * I section lying on its side.
 *
 * @type {(H: number, B1: number, B2: number, T1: number, T2: number, TW: number, q: number) => {np:
 *   number, nv: Int32Array, X: Float32Array, Y: Float32Array, code: Int32Array, sign: Float32Array,
 *   z1: Float32Array, z2: Float32Array, z3: Float32Array, z4: Float32Array, z5: Float32Array, q1:
 *   Float32Array, q2: Float32Array}}
 */
export const trvsec_h = routine("trvsec_h", ["in real H", "in real B1", "in real B2", "in real T1",
  "in real T2", "in real TW", "in real q", "out int np", "out int nv[1]", "out real X[12]",
  "out real Y[12]", "out int code[1]", "out real sign[1]", "out real z1[1]", "out real z2[1]",
  "out real z3[1]", "out real z4[1]", "out real z5[1]", "out real q1[1]", "out real q2[1]"]);

/**
 * T section, flange at the top.
 *
 * @type {(B: number, H: number, TF: number, TW: number, q: number) => {np: number, nv: Int32Array,
 *   X: Float32Array, Y: Float32Array, code: Int32Array, sign: Float32Array, z1: Float32Array, z2:
 *   Float32Array, z3: Float32Array, z4: Float32Array, z5: Float32Array, q1: Float32Array, q2:
 *   Float32Array}}
 */
export const trvsec_t = routine("trvsec_t", ["in real B", "in real H", "in real TF", "in real TW",
  "in real q", "out int np", "out int nv[1]", "out real X[8]", "out real Y[8]", "out int code[1]",
  "out real sign[1]", "out real z1[1]", "out real z2[1]", "out real z3[1]", "out real z4[1]",
  "out real z5[1]", "out real q1[1]", "out real q2[1]"]);

/**
 * Flat bar.
 *
 * @type {(B: number, H: number, q: number) => {np: number, nv: Int32Array, X: Float32Array, Y:
 *   Float32Array, code: Int32Array, sign: Float32Array, z1: Float32Array, z2: Float32Array, z3:
 *   Float32Array, z4: Float32Array, z5: Float32Array, q1: Float32Array, q2: Float32Array}}
 */
export const trvsec_b = routine("trvsec_b", ["in int B", "in real H", "in real q", "out int np",
  "out int nv[1]", "out real X[12]", "out real Y[12]", "out int code[1]", "out real sign[1]",
  "out real z1[1]", "out real z2[1]", "out real z3[1]", "out real z4[1]", "out real z5[1]",
  "out real q1[1]", "out real q2[1]"]);

/**
 * I section lying on its side with a cover plate on its flanges' top edges, closing one cell.
 *
 * @type {(W: number, D: number, P: number, T1: number, T2: number, TW: number, TP: number, q:
 *   number) => {np: number, nv: Int32Array, X: Float32Array, Y: Float32Array, code: Int32Array,
 *   sign: Float32Array, z1: Float32Array, z2: Float32Array, z3: Float32Array, z4: Float32Array, z5:
 *   Float32Array, q1: Float32Array, q2: Float32Array}}
 */
export const trvsec_h1b = routine("trvsec_h1b", ["in real W", "in real D", "in real P",
  "in real T1", "in real T2", "in real TW", "in real TP", "in real q", "out int np",
  "out int nv[2]", "out real X[16]", "out real Y[16]", "out int code[2]", "out real sign[2]",
  "out real z1[2]", "out real z2[2]", "out real z3[2]", "out real z4[2]", "out real z5[2]",
  "out real q1[2]", "out real q2[2]"]);

/**
 * Box girder with overhanging flanges.
 *
 * @type {(BT: number, BB: number, TT: number, TB: number, H: number, TW: number, G: number, q:
 *   number) => {np: number, nv: Int32Array, X: Float32Array, Y: Float32Array, code: Int32Array,
 *   sign: Float32Array, z1: Float32Array, z2: Float32Array, z3: Float32Array, z4: Float32Array, z5:
 *   Float32Array, q1: Float32Array, q2: Float32Array}}
 */
export const trvsec_box = routine("trvsec_box", ["in real BT", "in real BB", "in real TT",
  "in real TB", "in real H", "in real TW", "in real G", "in real q", "out int np", "out int nv[2]",
  "out real X[16]", "out real Y[16]", "out int code[2]", "out real sign[2]", "out real z1[2]",
  "out real z2[2]", "out real z3[2]", "out real z4[2]", "out real z5[2]", "out real q1[2]",
  "out real q2[2]"]);

/**
 * Rectangular hollow section with sharp corners.
 *
 * @type {(B: number, H: number, T: number, q: number) => {np: number, nv: Int32Array, X:
 *   Float32Array, Y: Float32Array, code: Int32Array, sign: Float32Array, z1: Float32Array, z2:
 *   Float32Array, z3: Float32Array, z4: Float32Array, z5: Float32Array, q1: Float32Array, q2:
 *   Float32Array}}
 */
export const trvsec_rhs = routine("trvsec_rhs", ["in real B", "in real H", "in real T", "in real q",
  "out int np", "out int nv[2]", "out real X[8]", "out real Y[8]", "out int code[2]",
  "out real sign[2]", "out real z1[2]", "out real z2[2]", "out real z3[2]", "out real z4[2]",
  "out real z5[2]", "out real q1[2]", "out real q2[2]"]);

/**
 * Two equal angles back to back, horizontal legs at the top.
 *
 * @type {(B: number, H: number, G: number, T: number, TV: number, q: number) => {np: number, nv:
 *   Int32Array, X: Float32Array, Y: Float32Array, code: Int32Array, sign: Float32Array, z1:
 *   Float32Array, z2: Float32Array, z3: Float32Array, z4: Float32Array, z5: Float32Array, q1:
 *   Float32Array, q2: Float32Array}}
 */
export const trvsec_l2 = routine("trvsec_l2", ["in real B", "in real H", "in real G", "in real T",
  "in real TV", "in real q", "out int np", "out int nv[2]", "out real X[12]", "out real Y[12]",
  "out int code[2]", "out real sign[2]", "out real z1[2]", "out real z2[2]", "out real z3[2]",
  "out real z4[2]", "out real z5[2]", "out real q1[2]", "out real q2[2]"]);

/**
 * Top plate on a closed cell of two webs and a bottom plate between them.
 *
 * @type {(B: number, H: number, BW: number, E: number, T: number, TW: number, TB: number, q:
 *   number) => {np: number, nv: Int32Array, X: Float32Array, Y: Float32Array, code: Int32Array,
 *   sign: Float32Array, z1: Float32Array, z2: Float32Array, z3: Float32Array, z4: Float32Array, z5:
 *   Float32Array, q1: Float32Array, q2: Float32Array}}
 */
export const trvsec_tab = routine("trvsec_tab", ["in real B", "in real H", "in real BW",
  "in real E", "in real T", "in real TW", "in real TB", "in real q", "out int np", "out int nv[2]",
  "out real X[16]", "out real Y[16]", "out int code[2]", "out real sign[2]", "out real z1[2]",
  "out real z2[2]", "out real z3[2]", "out real z4[2]", "out real z5[2]", "out real q1[2]",
  "out real q2[2]"]);

/**
 * Two flanges joined by two webs and a middle plate, closing two cells.
 *
 * @type {(B: number, W: number, HI: number, TW1: number, TW2: number, TM: number, TF: number, q:
 *   number) => {np: number, nv: Int32Array, X: Float32Array, Y: Float32Array, code: Int32Array,
 *   sign: Float32Array, z1: Float32Array, z2: Float32Array, z3: Float32Array, z4: Float32Array, z5:
 *   Float32Array, q1: Float32Array, q2: Float32Array}}
 */
export const trvsec_h2b = routine("trvsec_h2b", ["in real B", "in real W", "in real HI",
  "in real TW1", "in real TW2", "in real TM", "in real TF", "in real q", "out int np",
  "out int nv[3]", "out real X[20]", "out real Y[20]", "out int code[3]", "out real sign[3]",
  "out real z1[3]", "out real z2[3]", "out real z3[3]", "out real z4[3]", "out real z5[3]",
  "out real q1[3]", "out real q2[3]"]);

/**
 * I section with unequal flanges, an eccentric web and 45-degree fillets.
 *
 * @type {(H: number, B1: number, B2: number, T1: number, T2: number, TW: number, S1: number, S2:
 *   number, E: number, q: number) => {np: number, nv: Int32Array, X: Float32Array, Y: Float32Array,
 *   code: Int32Array, sign: Float32Array, z1: Float32Array, z2: Float32Array, z3: Float32Array, z4:
 *   Float32Array, z5: Float32Array, q1: Float32Array, q2: Float32Array}}
 */
export const trvsec_i = routine("trvsec_i", ["in real H", "in real B1", "in real B2", "in real T1",
  "in real T2", "in real TW", "in real S1", "in real S2", "in real E", "in real q", "out int np",
  "out int nv[1]", "out real X[16]", "out real Y[16]", "out int code[1]", "out real sign[1]",
  "out real z1[1]", "out real z2[1]", "out real z3[1]", "out real z4[1]", "out real z5[1]",
  "out real q1[1]", "out real q2[1]"]);

/**
 * Channel open to the right, with lips turned inwards and folds turned back towards the web.
 *
 * @type {(H: number, B1: number, B2: number, C1: number, C2: number, D1: number, D2: number, TW:
 *   number, T1: number, T2: number, TC1: number, TC2: number, TD1: number, TD2: number, q: number)
 *   => {np: number, nv: Int32Array, X: Float32Array, Y: Float32Array, code: Int32Array, sign:
 *   Float32Array, z1: Float32Array, z2: Float32Array, z3: Float32Array, z4: Float32Array, z5:
 *   Float32Array, q1: Float32Array, q2: Float32Array}}
 */
export const trvsec_c = routine("trvsec_c", ["in real H", "in real B1", "in real B2", "in real C1",
  "in real C2", "in real D1", "in real D2", "in real TW", "in real T1", "in real T2", "in real TC1",
  "in real TC2", "in real TD1", "in real TD2", "in real q", "out int np", "out int nv[1]",
  "out real X[16]", "out real Y[16]", "out int code[1]", "out real sign[1]", "out real z1[1]",
  "out real z2[1]", "out real z3[1]", "out real z4[1]", "out real z5[1]", "out real q1[1]",
  "out real q2[1]"]);

/**
 * Distance of a channel's shear centre from its centroid.
 *
 * @type {(B: number, H: number, C: number, t: number) => {e0: number}}
 */
export const trvshc_c = routine("trvshc_c", ["in real B", "in real H", "in real C", "in real t",
  "out real e0"]);

/**
 * Warping constant of a channel.
 *
 * @type {(B: number, H: number, C: number, t: number) => {Iw: number}}
 */
export const trvwar_c = routine("trvwar_c", ["in real B", "in real H", "in real C", "in real t",
  "out real Iw"]);

/**
 * Properties of an open section of thin plates.
 *
 * status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: n < 1, a coordinate or
 * a thickness is infinite or NaN, or a length or a thickness is not above the tolerance; 2 to n:
 * number of the first faulty plate, which does not start at an end of an earlier plate, or closes a
 * cell by ending at one; n+2 to 2*n: n plus the number of the first faulty plate, which crosses,
 * touches or overlaps an earlier plate elsewhere than at its start, and may close a cell.
 *
 * @type {(X1: Numbers, Y1: Numbers, X2: Numbers, Y2: Numbers, T: Numbers, counts?: {n?: number}) =>
 *   {A: number, xs: number, ys: number, Ix: number, Iy: number, Ixy: number, I1: number, I2:
 *   number, alpha: number, rx: number, ry: number, Wx1: number, Wx2: number, Wy1: number, Wy2:
 *   number, Wpx: number, Wpy: number, xp: number, yp: number, It: number, Wt: number, xm: number,
 *   ym: number, Iw: number, r0: number, W1: Float32Array, W2: Float32Array, status: number}}
 */
export const trvmxt = routine("trvmxt", ["in int n = X1 Y1 X2 Y2 T", "in real X1[n]",
  "in real Y1[n]", "in real X2[n]", "in real Y2[n]", "in real T[n]", "out real A", "out real xs",
  "out real ys", "out real Ix", "out real Iy", "out real Ixy", "out real I1", "out real I2",
  "out real alpha", "out real rx", "out real ry", "out real Wx1", "out real Wx2", "out real Wy1",
  "out real Wy2", "out real Wpx", "out real Wpy", "out real xp", "out real yp", "out real It",
  "out real Wt", "out real xm", "out real ym", "out real Iw", "out real r0", "out real W1[n]",
  "out real W2[n]", "out int status"]);

/**
 * Properties of a flat bar, centred on the origin.
 *
 * status: outcome (TrvStatus): 0 done: the outputs are computed; -1 refused: a side is infinite,
 * NaN or not above the tolerance.
 *
 * @type {(B: number, H: number) => {A: number, xs: number, ys: number, Ix: number, Iy: number, Ixy:
 *   number, I1: number, I2: number, alpha: number, rx: number, ry: number, Wx1: number, Wx2:
 *   number, Wy1: number, Wy2: number, Wpx: number, Wpy: number, xp: number, yp: number, It: number,
 *   Wt: number, xm: number, ym: number, Iw: number, r0: number, W1: Float32Array, W2: Float32Array,
 *   status: number}}
 */
export const trvmxt_fb = routine("trvmxt_fb", ["in real B", "in real H", "out real A",
  "out real xs", "out real ys", "out real Ix", "out real Iy", "out real Ixy", "out real I1",
  "out real I2", "out real alpha", "out real rx", "out real ry", "out real Wx1", "out real Wx2",
  "out real Wy1", "out real Wy2", "out real Wpx", "out real Wpy", "out real xp", "out real yp",
  "out real It", "out real Wt", "out real xm", "out real ym", "out real Iw", "out real r0",
  "out real W1[1]", "out real W2[1]", "out int status"]);

// Rotations about the origin and the axes

/**
 * Rotates plane points about the origin, in place.
 *
 * @type {(mode: number, x: Numbers, y: Numbers, angle: number, counts?: {n?: number}) => {x:
 *   Float32Array, y: Float32Array}}
 */
export const trvrot = routine("trvrot", ["in int mode", "inout real x[n]", "inout real y[n]",
  "in int n = x y", "in real angle"]);

/**
 * Rotates points about the x axis, in place.
 *
 * @type {(mode: number, x: Numbers, y: Numbers, z: Numbers, angle: number, counts?: {n?: number})
 *   => {y: Float32Array, z: Float32Array}}
 */
export const trvrotx = routine("trvrotx", ["in int mode", "in real x[0]", "inout real y[n]",
  "inout real z[n]", "in int n = y z", "in real angle"]);

/**
 * Rotates points about the y axis, in place.
 *
 * @type {(mode: number, x: Numbers, y: Numbers, z: Numbers, angle: number, counts?: {n?: number})
 *   => {x: Float32Array, z: Float32Array}}
 */
export const trvroty = routine("trvroty", ["in int mode", "inout real x[n]", "in real y[0]",
  "inout real z[n]", "in int n = x z", "in real angle"]);

/**
 * Rotates points about the z axis, in place.
 *
 * @type {(mode: number, x: Numbers, y: Numbers, z: Numbers, angle: number, counts?: {n?: number})
 *   => {x: Float32Array, y: Float32Array}}
 */
export const trvrotz = routine("trvrotz", ["in int mode", "inout real x[n]", "inout real y[n]",
  "in real z[0]", "in int n = x y", "in real angle"]);

// Frames of space, and transformations of points

/**
 * Three-point test: whether P0, P1 and P2 span a plane.
 *
 * status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1 at_p0: P2
 * is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4 beyond_p0: P2 is beyond P0
 * on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the line of P0 and P1.
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number) => {status: number}}
 */
export const trvpsl = routine("trvpsl", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real x2", "in real y2", "in real z2", "out int status"]);

/**
 * Moves the origin of points to (dx, dy, dz), in place.
 *
 * @type {(X: Numbers, Y: Numbers, Z: Numbers, dx: number, dy: number, dz: number, counts?: {n?:
 *   number}) => {X: Float32Array, Y: Float32Array, Z: Float32Array}}
 */
export const trv3tra = routine("trv3tra", ["inout real X[n]", "inout real Y[n]", "inout real Z[n]",
  "in int n = X Y Z", "in real dx", "in real dy", "in real dz"]);

/**
 * Applies a frame matrix to one point, in place.
 *
 * @type {(p: Numbers, a1: number, a2: number, a3: number, a4: number, a5: number, a6: number, a7:
 *   number, a8: number, a9: number, mode: number) => {p: Float32Array}}
 */
export const trvtrn = routine("trvtrn", ["inout real p[3]", "in real a1", "in real a2",
  "in real a3", "in real a4", "in real a5", "in real a6", "in real a7", "in real a8", "in real a9",
  "in int mode"]);

/**
 * Frame of the plane through three points.
 *
 * status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2 is at P0 or P1, or
 * the three points are on one line (trvpsl).
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number) => {e1x: number, e1y: number, e1z: number, e2x: number, e2y: number, e2z:
 *   number, e3x: number, e3y: number, e3z: number, status: number}}
 */
export const trvaxe = routine("trvaxe", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real x2", "in real y2", "in real z2", "out real e1x",
  "out real e1y", "out real e1z", "out real e2x", "out real e2y", "out real e2z", "out real e3x",
  "out real e3y", "out real e3z", "out int status"]);

/**
 * Frame of an axis from P0 to P1.
 *
 * status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the distance of P0 and
 * P1 is within the tolerance.
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, angle: number) =>
 *   {e1x: number, e1y: number, e1z: number, e2x: number, e2y: number, e2z: number, e3x: number,
 *   e3y: number, e3z: number, status: number}}
 */
export const trvaxel = routine("trvaxel", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real angle", "out real e1x", "out real e1y", "out real e1z",
  "out real e2x", "out real e2y", "out real e2z", "out real e3x", "out real e3y", "out real e3z",
  "out int status"]);

/**
 * Shifts points and rotates them about the global axes x, y and z, in this order and in place.
 *
 * @type {(X: Numbers, Y: Numbers, Z: Numbers, x0: number, y0: number, z0: number, ax: number, ay:
 *   number, az: number, counts?: {n?: number}) => {X: Float32Array, Y: Float32Array, Z:
 *   Float32Array}}
 */
export const trvptr = routine("trvptr", ["inout real X[n]", "inout real Y[n]", "inout real Z[n]",
  "in int n = X Y Z", "in real x0", "in real y0", "in real z0", "in real ax", "in real ay",
  "in real az"]);

/**
 * Shifts points and rotates them in the frame of three points, in place.
 *
 * status: outcome (TrvFrame): 0 done: the outputs are computed; -2 no_frame: P2 is at P0 or P1, or
 * the three points are on one line (trvpsl).
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number, X: Numbers, Y: Numbers, Z: Numbers, dx: number, dy: number, dz: number, ax:
 *   number, ay: number, az: number, counts?: {n?: number}) => {X: Float32Array, Y: Float32Array, Z:
 *   Float32Array, status: number}}
 */
export const trvptrl = routine("trvptrl", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real x2", "in real y2", "in real z2", "inout real X[n]",
  "inout real Y[n]", "inout real Z[n]", "in int n = X Y Z", "in real dx", "in real dy",
  "in real dz", "in real ax", "in real ay", "in real az", "out int status"]);

/**
 * Rotates points about the axis from P0 through P1, in place.
 *
 * status: outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the distance of P0 and
 * P1 is within the tolerance.
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, X: Numbers, Y:
 *   Numbers, Z: Numbers, angle: number, counts?: {n?: number}) => {X: Float32Array, Y:
 *   Float32Array, Z: Float32Array, status: number}}
 */
export const trvpra = routine("trvpra", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "inout real X[n]", "inout real Y[n]", "inout real Z[n]",
  "in int n = X Y Z", "in real angle", "out int status"]);

/**
 * Rotates points of a plane in the frame of the three points that span it, then shifts them, in
 * place.
 *
 * status: outcome: 0 done: the points are moved; -1 no_frame: P2 is at P0 or P1, or the three
 * points are on one line (trvpsl); 1 to n: position of the first point off the plane.
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number, dx: number, dy: number, dz: number, ax: number, ay: number, az: number, X:
 *   Numbers, Y: Numbers, Z: Numbers, tol: number, counts?: {n?: number}) => {X: Float32Array, Y:
 *   Float32Array, Z: Float32Array, status: number}}
 */
export const trvppc = routine("trvppc", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real x2", "in real y2", "in real z2", "in real dx", "in real dy",
  "in real dz", "in real ax", "in real ay", "in real az", "in int n = X Y Z", "inout real X[n]",
  "inout real Y[n]", "inout real Z[n]", "in real tol", "out int status"]);

// Planes of space

/**
 * Plane through a point, spanned by two directions.
 *
 * @type {(x: number, y: number, z: number, ux: number, uy: number, uz: number, wx: number, wy:
 *   number, wz: number) => {a: number, b: number, c: number, d: number}}
 */
export const trvplg = routine("trvplg", ["in real x", "in real y", "in real z", "in real ux",
  "in real uy", "in real uz", "in real wx", "in real wy", "in real wz", "out real a", "out real b",
  "out real c", "out real d"]);

/**
 * Plane through three points: (a, b, c) = (P1 - P0) x (P2 - P0).
 *
 * status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1 at_p0: P2
 * is at P0; 2 at_p1: P2 is at P1; 3 between: P2 is between P0 and P1; 4 beyond_p0: P2 is beyond P0
 * on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on the line of P0 and P1.
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number) => {a: number, b: number, c: number, d: number, status: number}}
 */
export const trvpl1 = routine("trvpl1", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real x2", "in real y2", "in real z2", "out real a", "out real b",
  "out real c", "out real d", "out int status"]);

/**
 * Plane through a point, parallel to two lines.
 *
 * status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are the
 * same, of the same direction; 4 opposite_line: the lines are the same, of opposite direction; 7
 * no_length: A and B, or C and D, coincide (trvcnt).
 *
 * @type {(x: number, y: number, z: number, xa: number, ya: number, za: number, xb: number, yb:
 *   number, zb: number, xc: number, yc: number, zc: number, xd: number, yd: number, zd: number) =>
 *   {a: number, b: number, c: number, d: number, status: number}}
 */
export const trvpl2 = routine("trvpl2", ["in real x", "in real y", "in real z", "in real xa",
  "in real ya", "in real za", "in real xb", "in real yb", "in real zb", "in real xc", "in real yc",
  "in real zc", "in real xd", "in real yd", "in real zd", "out real a", "out real b", "out real c",
  "out real d", "out int status"]);

/**
 * Plane that contains one line and is parallel to another: trvpl2 through A.
 *
 * status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are the
 * same, of the same direction; 4 opposite_line: the lines are the same, of opposite direction; 7
 * no_length: A and B, or C and D, coincide (trvcnt).
 *
 * @type {(xa: number, ya: number, za: number, xb: number, yb: number, zb: number, xc: number, yc:
 *   number, zc: number, xd: number, yd: number, zd: number) => {a: number, b: number, c: number, d:
 *   number, status: number}}
 */
export const trvpl3 = routine("trvpl3", ["in real xa", "in real ya", "in real za", "in real xb",
  "in real yb", "in real zb", "in real xc", "in real yc", "in real zc", "in real xd", "in real yd",
  "in real zd", "out real a", "out real b", "out real c", "out real d", "out int status"]);

/**
 * Plane through a point, perpendicular to a segment.
 *
 * status: outcome (TrvCoincidence): 0 distinct: the plane is computed; 1 coincident: A and B
 * coincide within the tolerance in each coordinate (trvcnt).
 *
 * @type {(x: number, y: number, z: number, xa: number, ya: number, za: number, xb: number, yb:
 *   number, zb: number) => {a: number, b: number, c: number, d: number, status: number}}
 */
export const trvpl4 = routine("trvpl4", ["in real x", "in real y", "in real z", "in real xa",
  "in real ya", "in real za", "in real xb", "in real yb", "in real zb", "out real a", "out real b",
  "out real c", "out real d", "out int status"]);

/**
 * Plane with given intercepts on the axes.
 *
 * status: outcome: 0 done: the plane is computed; 1 no_plane: there is no plane, since an intercept
 * is within the tolerance or NaN.
 *
 * @type {(ix: number, iy: number, iz: number) => {a: number, b: number, c: number, d: number,
 *   status: number}}
 */
export const trvpl5 = routine("trvpl5", ["in real ix", "in real iy", "in real iz", "out real a",
  "out real b", "out real c", "out real d", "out int status"]);

/**
 * Plane of two lines, each given by a point and a direction.
 *
 * status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are the
 * same, of the same direction; 4 opposite_line: the lines are the same, of opposite direction; 6
 * skew: the lines are skew; 7 no_length: all components of a direction are within the tolerance.
 *
 * @type {(xa: number, ya: number, za: number, ux: number, uy: number, uz: number, xc: number, yc:
 *   number, zc: number, wx: number, wy: number, wz: number) => {a: number, b: number, c: number, d:
 *   number, status: number}}
 */
export const trvpl6 = routine("trvpl6", ["in real xa", "in real ya", "in real za", "in real ux",
  "in real uy", "in real uz", "in real xc", "in real yc", "in real zc", "in real wx", "in real wy",
  "in real wz", "out real a", "out real b", "out real c", "out real d", "out int status"]);

/**
 * Plane of three points, rotated about the line from P0 to P1.
 *
 * status: three-point test (TrvThreePoints): 0 spans_plane: P0, P1 and P2 span a plane; 1 at_p0: P2
 * is at P0, or P0 and P0 + normal coincide (trvcnt); 2 at_p1: P2 is at P1; 3 between: P2 is between
 * P0 and P1; 4 beyond_p0: P2 is beyond P0 on the line of P0 and P1; 5 beyond_p1: P2 is beyond P1 on
 * the line of P0 and P1.
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number, angle: number) => {a: number, b: number, c: number, d: number, status:
 *   number}}
 */
export const trvpl7 = routine("trvpl7", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real x2", "in real y2", "in real z2", "in real angle",
  "out real a", "out real b", "out real c", "out real d", "out int status"]);

/**
 * Whether a point lies on the plane of three points.
 *
 * status: test (TrvOnPlane): 0 yes: the point lies on the plane, or P0 = P1, for which any point
 * does; -1 no: the point does not lie on the plane, or the three points span no plane (trvpsl).
 *
 * @type {(x0: number, y0: number, z0: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number, x: number, y: number, z: number, tol: number) => {status: number}}
 */
export const trvpsp = routine("trvpsp", ["in real x0", "in real y0", "in real z0", "in real x1",
  "in real y1", "in real z1", "in real x2", "in real y2", "in real z2", "in real x", "in real y",
  "in real z", "in real tol", "out int status"]);

/**
 * Signed distance of a point from a plane.
 *
 * @type {(x: number, y: number, z: number, a: number, b: number, c: number, d: number) => {dist:
 *   number}}
 */
export const trvpld = routine("trvpld", ["in real x", "in real y", "in real z", "in real a",
  "in real b", "in real c", "in real d", "out real dist"]);

/**
 * Whether a point lies on a plane.
 *
 * status: test (TrvOnPlane): 0 yes: the point lies on the plane; -1 no: the point does not lie on
 * the plane, or the distance is NaN; 1 zero_normal: the normal of the plane is exactly zero.
 *
 * @type {(x: number, y: number, z: number, a: number, b: number, c: number, d: number, tol: number)
 *   => {status: number}}
 */
export const trvpspg = routine("trvpspg", ["in real x", "in real y", "in real z", "in real a",
  "in real b", "in real c", "in real d", "in real tol", "out int status"]);

/**
 * Relation of two directions, taken as lines through the origin.
 *
 * status: relation: -1 zero_u: u is exactly zero; 0 oblique: u and w have neither the same,
 * opposite nor perpendicular directions; 3 same: the directions are the same; 4 opposite: the
 * directions are opposite; 5 perpendicular: the directions are perpendicular; 7 zero: all
 * components of u, or of w, are within the tolerance.
 *
 * @type {(ux: number, uy: number, uz: number, wx: number, wy: number, wz: number, v7: number, v8:
 *   number) => {status: number}}
 */
export const trvplv = routine("trvplv", ["in real ux", "in real uy", "in real uz", "in real wx",
  "in real wy", "in real wz", "in real v7", "in real v8", "out int status"]);

/**
 * Points of a list on a plane, by a running residual.
 *
 * @type {(X: Numbers, Y: Numbers, Z: Numbers, a: number, b: number, c: number, d: number, counts?:
 *   {n?: number}) => {d: number, count: number, index: Int32Array}}
 */
export const trvpnp = routine("trvpnp", ["in real X[n]", "in real Y[n]", "in real Z[n]",
  "in real a", "in real b", "in real c", "inout real d", "in int n = X Y Z", "out int count",
  "out int index[n, count used]"]);

// Straight lines of space

/**
 * Relation of two lines.
 *
 * status: relation (TrvLines): 0 crossing: the lines cross, not at a right angle; 1 parallel_same:
 * parallel and distinct lines of the same direction; 2 parallel_opposite: parallel and distinct
 * lines of opposite direction; 3 same_line: the same line, of the same direction; 4 opposite_line:
 * the same line, of opposite direction; 5 perpendicular: the lines cross at a right angle; 6 skew:
 * the lines are skew; 7 coincident: A and B, or C and D, coincide, each coordinate within the
 * tolerance.
 *
 * @type {(xa: number, ya: number, za: number, xb: number, yb: number, zb: number, xc: number, yc:
 *   number, zc: number, xd: number, yd: number, zd: number) => {status: number}}
 */
export const trvdirl = routine("trvdirl", ["in real xa", "in real ya", "in real za", "in real xb",
  "in real yb", "in real zb", "in real xc", "in real yc", "in real zc", "in real xd", "in real yd",
  "in real zd", "out int status"]);

/**
 * Whether three segments span space.
 *
 * status: test: 0 flat: the triple product of B - A, D - C and F - E is within the tolerance; 1
 * spanning: the triple product is above the tolerance, in the cube of the length unit.
 *
 * @type {(xa: number, ya: number, za: number, xb: number, yb: number, zb: number, xc: number, yc:
 *   number, zc: number, xd: number, yd: number, zd: number, xe: number, ye: number, ze: number, xf:
 *   number, yf: number, zf: number) => {status: number}}
 */
export const trv3sp = routine("trv3sp", ["in real xa", "in real ya", "in real za", "in real xb",
  "in real yb", "in real zb", "in real xc", "in real yc", "in real zc", "in real xd", "in real yd",
  "in real zd", "in real xe", "in real ye", "in real ze", "in real xf", "in real yf", "in real zf",
  "out int status"]);

/**
 * Distance of a point from a line.
 *
 * status: outcome (TrvStatus): 0 done: always.
 *
 * @type {(xa: number, ya: number, za: number, xb: number, yb: number, zb: number, xq: number, yq:
 *   number, zq: number) => {status: number, dist: number}}
 */
export const trv3ldb = routine("trv3ldb", ["in real xa", "in real ya", "in real za", "in real xb",
  "in real yb", "in real zb", "in real xq", "in real yq", "in real zq", "out int status",
  "out real dist"]);

/**
 * Signed distance of a point from a line, in the plane of both.
 *
 * status: outcome (TrvStatus): 0 done: always.
 *
 * @type {(xa: number, ya: number, za: number, xb: number, yb: number, zb: number, xq: number, yq:
 *   number, zq: number) => {status: number, dist: number}}
 */
export const trv3lda = routine("trv3lda", ["in real xa", "in real ya", "in real za", "in real xb",
  "in real yb", "in real zb", "in real xq", "in real yq", "in real zq", "out int status",
  "out real dist"]);

/**
 * Intersection of the lines A + t*u and C + s*w.
 *
 * status: outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line: the lines are the
 * same, of the same direction; 4 opposite_line: the lines are the same, of opposite direction; 6
 * skew: the lines are skew; 7 no_length: all components of a direction are within the tolerance.
 *
 * @type {(xa: number, ya: number, za: number, ux: number, uy: number, uz: number, xc: number, yc:
 *   number, zc: number, wx: number, wy: number, wz: number, xi: number, yi: number) => {xa: number,
 *   ya: number, za: number, xc: number, yc: number, zc: number, status: number, xi: number, yi:
 *   number, zi: number}}
 */
export const trv3lni = routine("trv3lni", ["inout real xa", "inout real ya", "inout real za",
  "in real ux", "in real uy", "in real uz", "inout real xc", "inout real yc", "inout real zc",
  "in real wx", "in real wy", "in real wz", "out int status", "inout real xi", "inout real yi",
  "out real zi"]);

/**
 * Intersection of the line P + t*u with a plane.
 *
 * status: outcome: 0 done: the point is computed; 3 parallel: the line is parallel to the plane,
 * since the cosine of the angle between u and the normal is within the tolerance; 4 zero: all
 * components of u, or of the normal, are within the tolerance.
 *
 * @type {(x: number, y: number, z: number, ux: number, uy: number, uz: number, a: number, b:
 *   number, c: number, d: number) => {xi: number, yi: number, zi: number, status: number}}
 */
export const trvpli = routine("trvpli", ["in real x", "in real y", "in real z", "in real ux",
  "in real uy", "in real uz", "in real a", "in real b", "in real c", "in real d", "out real xi",
  "out real yi", "out real zi", "out int status"]);

/**
 * Position of a plane relative to the axes.
 *
 * position: position: 1 general: the plane is parallel to no axis; 2 parallel_x: the plane is
 * parallel to the x axis; 3 parallel_y: the plane is parallel to the y axis; 4 parallel_z: the
 * plane is parallel to the z axis; 5 normal_z: the plane is normal to the z axis; 6 normal_x: the
 * plane is normal to the x axis; 7 normal_y: the plane is normal to the y axis; 8 at_z_zero: the
 * plane is z = 0; 9 at_x_zero: the plane is x = 0; 10 at_y_zero: the plane is y = 0.
 *
 * @type {(a: number, b: number, c: number, d: number) => {position: number}}
 */
export const trvplp = routine("trvplp", ["in real a", "in real b", "in real c", "in real d",
  "out int position"]);

/**
 * Points of a list near a line.
 *
 * status: outcome (TrvStatus): 0 done: always; unwritten if n < 1.
 *
 * @type {(xa: number, ya: number, za: number, xb: number, yb: number, zb: number, X: Numbers, Y:
 *   Numbers, zf: (position: number) => number, tol: number, counts?: {n?: number}) => {status:
 *   number, count: number, index: Int32Array}}
 */
export const trvpnl = routine("trvpnl", ["in real xa", "in real ya", "in real za", "in real xb",
  "in real yb", "in real zb", "in real X[n]", "in real Y[n]", "in function zf", "in int n = X Y",
  "in real tol", "out int status", "out int count", "out int index[n, count used]"]);

/**
 * Carries a point along when the line through it is moved.
 *
 * status: outcome: 0 not_moved: the three points are not collinear, or Q1 is at P; 3
 * moved_one_side: Q2 is moved, Q1 and Q2 are on one side of P; 4 moved_either_side: Q2 is moved, Q1
 * and Q2 are on either side of P; 6 moved_skew: Q2 is moved, although the lines count as skew
 * because of rounding; 7 moved_at_p: Q2 is moved, Q2 coincides with P, or each coordinate of Q1 is
 * within the tolerance of P's although their distance is above it.
 *
 * @type {(xp: number, yp: number, zp: number, x1: number, y1: number, z1: number, x2: number, y2:
 *   number, z2: number, dxp: number, dyp: number, dzp: number, dx1: number, dy1: number, dz1:
 *   number) => {x2: number, y2: number, z2: number, status: number}}
 */
export const trvlpc = routine("trvlpc", ["in real xp", "in real yp", "in real zp", "in real x1",
  "in real y1", "in real z1", "inout real x2", "inout real y2", "inout real z2", "in real dxp",
  "in real dyp", "in real dzp", "in real dx1", "in real dy1", "in real dz1", "out int status"]);
