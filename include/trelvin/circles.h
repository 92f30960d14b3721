/**
 * @file
 * Circles and arcs of the plane.
 *
 * A circle in equation form is the triple (D, E, F) of x*x + y*y + D*x + E*y + F = 0. An arc is
 * given by its centre C and its ends A and B. Both must have the same distance from C, within the
 * routine's tolerance.
 *
 * Caution: far from the origin the equation loses digits, because F is the small difference of
 * large squares. All routines that intersect a line with a circle use the equation (trvlci), except
 * trvcer7. trvcer4 and trvcer5 move the origin to A first. If the distance of a circle from the
 * origin is many times its radius, move the origin next to the circle (trvtra).
 *
 * trvapp and trvcer10 run the three-point test (trvpsl), which reads and writes a retained cosine.
 * So a call of either can decide the result of a later call of trvpsl.
 *
 *     float a = 0, b = 1, c = -3, D = 0, E = 0, F = -25, x1, y1, x2, y2;
 *     int32_t n;
 *     trvlci(&a, &b, &c, &D, &E, &F, &n, &x1, &y1, &x2, &y2); // y = 3 and x*x + y*y = 25
 *     if (n == TRV_POINTS_TWO) printf("(%g, %g) and (%g, %g)\n", x1, y1, x2, y2);
 *     // prints (4, 3) and (-4, 3)
 */
#ifndef TRELVIN_CIRCLES_H
#define TRELVIN_CIRCLES_H

#include "trelvin/calling.h"

/* Equations and intersections ---------------------------------------------------------------- */

/**
 * Circle from its centre and radius: D = -2*xc, E = -2*yc, F = xc*xc + yc*yc - r*r.
 *
 * Retains: nothing.
 *
 * @param[in]  xc,yc  centre
 * @param[in]  r      radius, of any sign
 * @param[out] D,E,F  circle
 */
TRELVIN_ROUTINE trvcer(TrvIn xc, TrvIn yc, TrvIn r, TrvOut D, TrvOut E, TrvOut F);

/**
 * Intersection of a line and a circle.
 *
 * If |a| is above the tolerance, the line's equation is solved for x. Otherwise the line is taken
 * as horizontal. If the discriminant of the quadratic is within the tolerance, there is one point.
 * The discriminant grows with the fourth power of a and b and the square of the radius, so a line
 * that cuts a small circle can be reported as tangent. If it is NaN, there are two points with NaN.
 *
 * The smaller the line's angle to the x axis, the more digits are lost, also at the origin: if |a|
 * is |b|/100 and the circle has some hundred units, points are off by about one unit. The same
 * holds for trvc12, trvcer1, trvcer2 and trvcer6.
 *
 * Caution: far from the origin F loses the digits of the radius. Points of a circle of radius 10
 * are off by up to 0.15 if its centre is (1000, 1000), and by up to 9 at (1e4, 1e4). At (1e5, 1e5)
 * the line (3, 4, -699925) misses the circle by 5, but the routine gives two points 97 apart. Move
 * the origin next to the circle first (trvtra). The same holds for trvcer6, trvcer8 and trvcer9.
 *
 * Retains: nothing.
 *
 * @param[in]  a,b,c  line a*x + b*y + c = 0
 * @param[in]  D,E,F  circle
 * @param[out] n      number of points (TrvPoints): 0 none: the line misses the circle; 1 one: the
 *                    line touches the circle; 2 two: the line cuts the circle
 * @param[out] x1,y1  first point, of the larger root: the larger y, or the larger x if the line is
 *                    taken as horizontal; unwritten if n is 0
 * @param[out] x2,y2  second point; unwritten if n is 0 or 1
 */
TRELVIN_ROUTINE trvlci(TrvIn a, TrvIn b, TrvIn c, TrvIn D, TrvIn E, TrvIn F, TrvIntOut n, TrvOut x1,
                       TrvOut y1, TrvOut x2, TrvOut y2);

/**
 * Intersection of two circles, computed as that of their radical line and the first circle
 * (trvlci).
 *
 * Caution: far from the origin more digits are lost than in trvlci, since the radical line is
 * inaccurate too. Of random pairs of intersecting circles of radius 10 near (1e4, 1e4), with
 * centres 15 apart, 22 % are reported as touching or as disjoint. Move the origin next to the
 * circles first (trvtra).
 *
 * Retains: nothing.
 *
 * @param[in]  D1,E1,F1  first circle
 * @param[in]  D2,E2,F2  second circle
 * @param[out] n         number of points (TrvPoints): 0 none: the circles have no common point, or
 *                       are concentric: |D2 - D1| + |E2 - E1| is within the tolerance; 1 one: the
 *                       circles touch; 2 two: the circles cut each other
 * @param[out] x1,y1     first point, in the order of trvlci; unwritten if n is 0
 * @param[out] x2,y2     second point; unwritten if n is 0 or 1
 */
TRELVIN_ROUTINE trvc12(TrvIn D1, TrvIn E1, TrvIn F1, TrvIn D2, TrvIn E2, TrvIn F2, TrvIntOut n,
                       TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2);

/**
 * Centres of the circles of a radius through two points.
 *
 * Caution: if the chord is horizontal (|y2 - y1| < 1e-5), both candidates and the chosen centre are
 * written, although n is 0. Their y is NaN if the radius is less than half the chord.
 *
 * Caution: far from the origin digits are lost as in trvlci. Of random chords of 12 with a radius
 * of 10 near (1e4, 1e4), 15 % give a wrong n, and half of the others a centre that is off by more
 * than 0.9. Move the origin next to the chord first (trvtra).
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1  P1
 * @param[in]  x2,y2  P2
 * @param[in]  side   positive selects the candidate to the right of the direction from P1 to P2
 *                    (trvln3, trvlds), negative the one to the left, zero the first candidate
 * @param[in]  r      radius
 * @param[out] xa,ya  first candidate; unwritten on a condition: P1 = P2 exactly, r is at most 1e-5,
 *                    or n is 0 and the chord is not horizontal
 * @param[out] xb,yb  second candidate; unwritten on a condition: xa is unwritten
 * @param[out] xc,yc  chosen centre; unwritten on a condition: xa is unwritten, or neither candidate
 *                    is on the selected side, for example with a NaN: side times the distance
 *                    (trvlds) is not at least 0 for the first candidate and not positive for the
 *                    second
 * @param[out] n      number of centres (TrvPoints): 0 none: P1 = P2 exactly, r is at most 1e-5 or
 *                    less than half the chord, the discriminant is NaN, or the chord is horizontal;
 *                    1 one: both candidates are the same point; 2 two
 */
TRELVIN_ROUTINE trvcer2(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn side, TrvIn r, TrvOut xa,
                        TrvOut ya, TrvOut xb, TrvOut yb, TrvOut xc, TrvOut yc, TrvIntOut n);

/**
 * Circle through two points with a given sagitta.
 *
 * r = d / (2*sin(pi - 2*atan(d / (2*h)))) for the chord d, which is h/2 + d*d/(8*h). The centre is
 * that of trvcer2. Far from the origin it loses as many digits.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1  P1
 * @param[in]  x2,y2  P2
 * @param[in]  side   positive selects the centre to the right of the direction from P1 to P2
 *                    (trvln3, trvlds), negative the one to the left, zero the first candidate of
 *                    trvcer2
 * @param[in]  h      sagitta: height of the arc above the middle of the chord
 * @param[out] r      radius; unwritten on a condition: h < 1e-5
 * @param[out] xc,yc  chosen centre; unwritten on a condition: h < 1e-5, or trvcer2 leaves it
 *                    unwritten for the radius r
 * @param[out] n      number of centres of trvcer2 (TrvPoints): 0 none: h < 1e-5, P1 = P2 exactly, r
 *                    is at most 1e-5 or less than half the chord, the discriminant is NaN, or the
 *                    chord is horizontal; 1 one: both candidates are the same point; 2 two
 */
TRELVIN_ROUTINE trvcer1(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn side, TrvIn h, TrvOut r,
                        TrvOut xc, TrvOut yc, TrvIntOut n);

/**
 * Classifies a circle cut by a line, with a trace.
 *
 * Above and below refer to the centre's y, not to the line. The line decides only whether the
 * circle is cut. Each call appends three lines to OUTPUT.TXT, in Windows-1253: a heading, the
 * class, and its meaning, with the intersections if the circle is cut.
 *
 * The first call opens the file in the directory that is current then. The file stays open until
 * the library is unloaded, even if the current directory changes or the file is renamed. It is
 * never truncated, and it is complete after each call. A call appends its record in one write,
 * after the records of other processes.
 *
 * Only an ordinary file is written. If OUTPUT.TXT is a directory, a pipe or a device, or if the
 * record cannot be written, the call computes as always. After a failed write the file is closed.
 * The next call opens it again and starts on a new line. If the file is at a limit of its size,
 * the host gets no signal.
 *
 * If the host closes the file's descriptor, or if a user deletes the file, the next call opens
 * OUTPUT.TXT as the first call does. If the host has opened a file of its own under the same
 * descriptor, the library neither writes to that file nor closes it.
 *
 * Caution: on Windows the open file cannot be deleted or renamed, and a program that shares it for
 * reading only cannot open it. The host cannot close its handle. The library synchronises processes
 * by a file lock on a byte far beyond the text. If another process holds the lock and the file does
 * not grow, a call waits 0.25 seconds and does not write its record. Later calls skip their records
 * without waiting, until the lock is free or the file grows.
 *
 * Retains: the open trace file (trvcin).
 *
 * @param[in]  X,Y       arrays of 2: the centre, then a point on the circle
 * @param[in]  a,b,c     line a*x + b*y + c = 0
 * @param[out] position  class: 1 uncut_above: the circle is not cut, its centre is above the x
 *                       axis; 2 uncut_below: the circle is not cut, its centre is on or below the x
 *                       axis; 3 cut_below: the circle is cut, its centre is below the x axis; 4
 *                       cut_above: the circle is cut, its centre is on or above the x axis
 * @param[out] x1,y1     first intersection; it and position are inaccurate far from the origin
 *                       (trvlci); unwritten on a condition: the line misses the circle
 * @param[out] x2,y2     second intersection; unwritten on a condition: the line misses or touches
 *                       the circle
 */
TRELVIN_ROUTINE trvcin(TrvArrayIn X, TrvArrayIn Y, TrvIn a, TrvIn b, TrvIn c, TrvIntOut position,
                       TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2);

/* Stations on an arc ------------------------------------------------------------------------- */

/**
 * Rotates a point about a centre.
 *
 * Retains: nothing.
 *
 * @param[in]    x0,y0   centre
 * @param[inout] x,y     point; on return it differs by rounding, because the centre is subtracted
 *                       and added again; if status is 0, it is returned relative to the centre
 * @param[in]    angle   angle in radians, counter-clockwise
 * @param[out]   xr,yr   rotated point; unwritten if status is 0
 * @param[out]   status  outcome (TrvArc): 1 done; 0 refused: the point's distance from the centre
 *                       is within the tolerance
 */
TRELVIN_ROUTINE trvcer3(TrvIn x0, TrvIn y0, TrvInOut x, TrvInOut y, TrvIn angle, TrvOut xr,
                        TrvOut yr, TrvIntOut status);

/**
 * Point of an arc above a station of its chord, perpendicular to the chord.
 *
 * Lengths are compared with 0.001. Caution: if the perpendicular is tangent to the circle (trvlci
 * gives one point), the second intersection is the one kept from an earlier call. If the
 * perpendicular misses the circle, both intersections are kept from an earlier call.
 *
 * Retains: both intersections (trvcer8).
 *
 * @param[in]  xc,yc   centre C
 * @param[in]  xa,ya   first end A
 * @param[in]  xb,yb   second end B
 * @param[in]  side    selects the intersection: the first one, Q, if side * ((A - C) x (Q - C)) is
 *                     negative, otherwise the second
 * @param[in]  d       station: distance from A along the chord
 * @param[out] x,y     point; unwritten if status is 0
 * @param[out] status  outcome (TrvArc): 1 done; 0 refused: the radius or the chord is at most
 *                     0.001, the radii of A and B differ by more than 0.001, or the station is not
 *                     more than 0.001 inside both ends of the chord
 */
TRELVIN_ROUTINE trvcer8(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvOut x, TrvOut y, TrvIntOut status);

/**
 * Point of an arc on the line from its centre through a station of its chord.
 *
 * Lengths are compared with 0.001. Caution: if the line is tangent to the circle (trvlci gives one
 * point), the second intersection is the one kept from an earlier call. If the line misses the
 * circle, both intersections are kept from an earlier call. If the station is at the centre, there
 * is no line, and the point is the second intersection of an earlier call.
 *
 * Retains: both intersections (trvcer6).
 *
 * @param[in]  xc,yc   centre C
 * @param[in]  xa,ya   first end A
 * @param[in]  xb,yb   second end B
 * @param[in]  side    selects the intersection: the first one, Q, if side * ((A - C) x (Q - C)) is
 *                     negative, otherwise the second
 * @param[in]  d       station: distance from A along the chord
 * @param[out] x,y     point; unwritten if status is 0
 * @param[out] status  outcome (TrvArc): 1 done; 0 refused: the radius or the chord is at most
 *                     0.001, the radii of A and B differ by more than 0.001, the station is not
 *                     more than 0.001 inside both ends of the chord, or d differs from the diameter
 *                     by less than 0.001
 */
TRELVIN_ROUTINE trvcer6(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvOut x, TrvOut y, TrvIntOut status);

/**
 * Points of an arc above the two edges of a strip on its chord, perpendicular to the chord.
 *
 * Lengths are compared with 0.001. Caution: both edges share one pair of kept intersections. If a
 * perpendicular is tangent to the circle (trvlci gives one point), the second intersection is that
 * of the previous edge or call. If the perpendicular misses the circle, both intersections are.
 *
 * Retains: both intersections (trvcer9).
 *
 * @param[in]  xc,yc   centre C
 * @param[in]  xa,ya   first end A
 * @param[in]  xb,yb   second end B
 * @param[in]  side    selects the intersection for each edge: the first one, Q, if side * ((A - C)
 *                     x (Q - C)) is negative, otherwise the second
 * @param[in]  d       station of the strip's middle: distance from A along the chord
 * @param[in]  w       width of the strip
 * @param[out] x1,y1   point above the station d - w/2; unwritten if status is 0
 * @param[out] x2,y2   point above the station d + w/2; unwritten if status is 0
 * @param[out] status  outcome (TrvArc): 1 done; 0 refused: the radius, the chord, d, the rest of
 *                     the chord beyond d or the width is at most 0.001, the radii of A and B differ
 *                     by more than 0.001, or an edge of the strip is less than 0.001 inside an end
 *                     of the chord
 */
TRELVIN_ROUTINE trvcer9(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvIn w, TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2,
                        TrvIntOut status);

/* Measures ----------------------------------------------------------------------------------- */

/**
 * Lengths of the two arcs between two points of a circle.
 *
 * Caution: short arcs, and arcs close to half the circle, lose digits as the angles of trvphi do.
 * Of pairs of points that lie opposite each other, 25 % give NaN. For such arcs use the angle chi
 * of trvchi at the centre, with z = 0: chi times the radius is the arc from A to B
 * counter-clockwise.
 *
 * Retains: nothing.
 *
 * @param[in]  xc,yc   centre
 * @param[in]  xa,ya   A; its distance from the centre is the radius
 * @param[in]  xb,yb   B
 * @param[out] s1      length of the shorter arc: the angle at C (trvphi3) times the radius;
 *                     unwritten if status is 0
 * @param[out] s2      length of the longer arc; unwritten if status is 0
 * @param[out] status  outcome (TrvArc): 1 done; 0 refused: the radius, or the distance of A and B,
 *                     is within the tolerance
 */
TRELVIN_ROUTINE trvarc1(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvOut s1,
                        TrvOut s2, TrvIntOut status);

/**
 * Signed angle of a direction against the x axis.
 *
 * Caution: small angles, and angles close to pi, lose digits as in trvphi, but are never NaN: at
 * 3e-4 radians 48 % of random directions give 0 or pi, at 4e-4 5 %. For such angles use trvchi at
 * the origin from (1, 0, 0) to (dx, |dy|, 0), with the sign of dy.
 *
 * Retains: nothing.
 *
 * @param[in]  dx,dy  direction
 * @param[out] phi    angle in radians in [-pi, pi]: negative if dy is below -1e-5, otherwise
 *                    positive or zero; 0 if the direction's length is within the tolerance
 */
TRELVIN_ROUTINE trvaxph(TrvIn dx, TrvIn dy, TrvOut phi);

/**
 * Distances of two points from the line of a segment, and their stations along it.
 *
 * h0 and h3 are measured in the plane of x and y; len, |P0 - P1| and |P3 - P2| are measured in
 * space. If h0 is greater than |P0 - P1|, s0 is NaN; if h3 is greater than |P3 - P2|, s3 is NaN.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0,z0  P0
 * @param[in]  x1,y1,z1  P1, start of the segment
 * @param[in]  x2,y2,z2  P2, end of the segment
 * @param[in]  x3,y3,z3  P3
 * @param[out] h0        distance of P0 from the line
 * @param[out] s0        station of the foot of P0's perpendicular, from P1: sqrt(|P0 - P1|^2 -
 *                       h0^2)
 * @param[out] h3        distance of P3 from the line
 * @param[out] s3        station of the foot of P3's perpendicular, from P1: len - sqrt(|P3 - P2|^2
 *                       - h3^2)
 * @param[out] len       length of the segment
 */
TRELVIN_ROUTINE trvhin(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn x3, TrvIn y3, TrvIn z3, TrvOut h0, TrvOut s0,
                       TrvOut h3, TrvOut s3, TrvOut len);

/**
 * Marks points as inside or outside a sector.
 *
 * A point is outside if its signed distances from the rays' lines (trvln3, trvlds) have opposite
 * signs, or if the foot of its perpendicular on the first line lies beyond the vertex (trvpsl). A
 * point with a NaN coordinate is marked inside. If P0 or P1 contains a NaN, all points are marked
 * inside. If only P2 contains a NaN, only the position of the foot decides.
 *
 * Caution: a narrow sector can be marked as no sector, because its angle by trvphi is 0: of sectors
 * of 4e-4 radians 23 % are. For sectors below 8e-4 radians, compare the signed distances from both
 * rays yourself (trvln3, trvlds).
 *
 * Cost: time grows with n.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0  vertex P0
 * @param[in]  x1,y1  point on the first ray
 * @param[in]  x2,y2  point on the second ray
 * @param[in]  n      number of points
 * @param[in]  X,Y    arrays of n: points
 * @param[out] mark   array of n: where each point is: 1 inside: the point is inside the sector; 2
 *                    outside: the point is outside the sector; -1 no_sector: the angle of the rays
 *                    by trvphi is within the tolerance, so all points have this value
 */
TRELVIN_ROUTINE trvapp(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn n,
                       TrvArrayIn X, TrvArrayIn Y, TrvIntArrayOut mark);

/* Constructions on a chord ------------------------------------------------------------------- */

/**
 * Point of an arc on a line through a station of its chord.
 *
 * The line intersects the circle in two points. The result is the one on the other side of the
 * chord than the centre; points on the chord count as on the other side. Caution: a line that
 * misses the circle is not an error. The result kept from an earlier call is then used: it is taken
 * as coordinates in the local frame of this chord and transformed to global ones.
 *
 * Caution: the chord is rotated onto the x axis by an angle that is as inaccurate as that of
 * trvaxph. If the chord is within 4.2e-4 radians of the direction of x, it may not be rotated at
 * all, and the line's direction is off by as much. For chords within 0.01 radians, rotate the arc
 * by 90 degrees: pass (-y, x) for each point (x, y); the result is (yo, -xo).
 *
 * Retains: the point (trvcer4).
 *
 * @param[inout] xc,yc   centre C; returned with its value, up to rounding; unchanged if status is 0
 * @param[inout] xa,ya   first end A; returned with its value, up to rounding; unchanged if status
 *                       is 0
 * @param[inout] xb,yb   second end B; returned with its value, up to rounding; unchanged if status
 *                       is 0
 * @param[in]    s       station: distance from A along the chord; it may lie beyond the ends of the
 *                       chord
 * @param[in]    angle   direction of the line in radians, measured from the chord A to B,
 *                       counter-clockwise (trvln1)
 * @param[out]   xo,yo   point; unwritten if status is 0
 * @param[out]   status  outcome (TrvArc): 1 done; 0 refused: the radius or the chord is within the
 *                       tolerance, the radii of A and B differ by more than the tolerance, A and B
 *                       coincide, or the line is tangent to the circle
 */
TRELVIN_ROUTINE trvcer4(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIn angle, TrvOut xo, TrvOut yo, TrvIntOut status);

/**
 * Intersection of an arc's chord with a line through its rotated end.
 *
 * A is rotated about the centre; the line runs through the rotated point. Caution: if the line is
 * parallel to the chord, or along it, the intersection kept from an earlier call is used, as
 * coordinates in the chord's frame.
 *
 * Caution: as in trvcer4, a chord within 4.2e-4 radians of the direction of x may not be rotated
 * onto the x axis, and the line's direction is off by as much. C = (5000, 1), A = (0, 0), B =
 * (10000, 2), turn = -0.24 and angle = pi/2 give an intersection that is off by 0.24. For chords
 * within 0.01 radians, pass (-y, x) for each point (x, y); the result is (yo, -xo).
 *
 * Retains: the crossing (trvcer10); the cosine of the three-point test (trvpsl).
 *
 * @param[inout] xc,yc   centre C; returned with its value, up to rounding; unchanged on a
 *                       condition: the input is rejected
 * @param[inout] xa,ya   first end A; returned with its value, up to rounding; unchanged on a
 *                       condition: the input is rejected
 * @param[inout] xb,yb   second end B; returned with its value, up to rounding; unchanged on a
 *                       condition: the input is rejected
 * @param[in]    turn    angle in radians by which A is rotated about C, counter-clockwise
 * @param[in]    angle   direction of the line in radians, measured from the chord A to B,
 *                       counter-clockwise (trvln1)
 * @param[out]   xo,yo   intersection; unwritten on a condition: the input is rejected, so set it
 *                       beforehand if the two cases of status 0 must be told apart
 * @param[out]   status  outcome: 0 crossing_or_refused: the line crosses the chord, which is the
 *                       normal result, or an intersection kept from an earlier call lies on the
 *                       chord's line but not at A or B (trvpsl above 2), or the input is rejected,
 *                       since the radius or the chord is within the tolerance or the radii of A and
 *                       B differ by more than the tolerance; 1 along_chord: the line runs along the
 *                       chord; 2 parallel: the line is parallel to the chord
 */
TRELVIN_ROUTINE trvcer10(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                         TrvInOut yb, TrvIn turn, TrvIn angle, TrvOut xo, TrvOut yo,
                         TrvIntOut status);

/**
 * Point of an arc on the line from a station of its chord to a point of the sagitta.
 *
 * T is at the distance e from the chord's middle towards the arc's middle point. The line from the
 * station through T intersects the circle in two points. The result is the one on T's side of the
 * chord.
 *
 * Caution: a line that misses the circle is not an error. The result kept from an earlier call is
 * then used: it is taken as coordinates in the local frame of this chord and transformed to global
 * ones. If A and B match within the tolerance in each coordinate although their distance is above
 * it, the station of an earlier call is used. The same holds for T if the middle points of the
 * chord and of the arc match in this way.
 *
 * Caution: the angle ACB comes from trvphi3, so flat arcs lose the direction of T. The point of an
 * arc of 0.1 radians is off by up to 5e-5 of its chord, of 0.01 radians by up to 8 %. Below 0.005
 * radians the result can be any point, NaN or a refusal. For such arcs use O of trvcer7, with angle
 * = atan2(side*e, c/2 - s) for the chord c.
 *
 * Retains: the station, T and the point (trvcer5).
 *
 * @param[inout] xc,yc   centre C; returned with its value, up to rounding; unchanged if status is 0
 * @param[inout] xa,ya   first end A; returned with its value, up to rounding, also if the line is
 *                       tangent to the circle; unchanged on a condition: status is 0 and the line
 *                       is not tangent to the circle
 * @param[inout] xb,yb   second end B; returned with its value, up to rounding; unchanged if status
 *                       is 0
 * @param[in]    s       station: distance from A along the chord, not negative
 * @param[in]    side    factor of the half angle that rotates A clockwise to the arc's middle point
 * @param[in]    e       distance of T from the chord
 * @param[out]   xo,yo   point; unwritten if status is 0
 * @param[out]   status  outcome (TrvArc): 1 done; 0 refused: s is negative, e, the radius, the
 *                       chord or its rest beyond s is at most 1e-5, the radii of A and B differ by
 *                       more than 1e-5, or the line is tangent to the circle
 */
TRELVIN_ROUTINE trvcer5(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIntIn side, TrvIn e, TrvOut xo, TrvOut yo,
                        TrvIntOut status);

/**
 * Intersections of a line through a station of an arc's chord with the arc and with a line parallel
 * to the chord.
 *
 * T is on the parallel line, at the distance e from the chord on the given side. O is on the circle
 * on that side. Formed in double precision and rounded once. Lengths, and the sine of the angle,
 * are compared with 1e-4. The radii of A and B may also differ by the rounding of the coordinates:
 * 3.6e-7 times the largest coordinate of the arc. An input with a NaN is rejected.
 *
 * Retains: nothing.
 *
 * @param[inout] xc,yc   centre C; unchanged
 * @param[inout] xa,ya   first end A; unchanged
 * @param[inout] xb,yb   second end B; unchanged
 * @param[in]    s       station: distance from A along the chord, not negative
 * @param[in]    side    only the sign is used: positive selects the side to the left of the
 *                       direction from A to B, where the circle runs clockwise from A; negative
 *                       selects the side to the right
 * @param[in]    e       distance of the parallel line from the chord, not negative; 0 puts T at P
 * @param[in]    angle   direction of the line in radians, measured from the chord A to B,
 *                       counter-clockwise; the line extends both ways
 * @param[out]   xp,yp   station P; unwritten if status is 0
 * @param[out]   xt,yt   intersection T with the parallel line; unwritten if status is 0
 * @param[out]   xo,yo   intersection O with the circle about C through A; unwritten if status is 0
 * @param[out]   len     length of PO; unwritten if status is 0
 * @param[out]   status  outcome (TrvArc): 1 done; 0 refused: s or e is negative, the radius or the
 *                       chord's rest beyond s is at most 1e-4, the radii of A and B differ by more
 *                       than 1e-4 and the rounding, side is 0, the line is parallel to the chord,
 *                       or the part of the line inside the circle is not longer than 2e-4
 */
TRELVIN_ROUTINE trvcer7(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIntIn side, TrvIn e, TrvIn angle, TrvOut xp,
                        TrvOut yp, TrvOut xt, TrvOut yt, TrvOut xo, TrvOut yo, TrvOut len,
                        TrvIntOut status);

/* Corners and boxes -------------------------------------------------------------------------- */

/**
 * Rounds the corner at P0 between the segments to P1 and to P2.
 *
 * Formed in double precision and rounded once.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0    corner P0
 * @param[in]  x1,y1    P1
 * @param[in]  x2,y2    P2
 * @param[in]  r        radius
 * @param[out] xc,yc    centre of the arc; unwritten if status is 0
 * @param[out] xt1,yt1  tangent point on the segment to P1, where the arc touches it; unwritten if
 *                      status is 0
 * @param[out] xt2,yt2  tangent point on the segment to P2; unwritten if status is 0
 * @param[out] status   outcome (TrvArc): 1 done; 0 refused: r or the length of a segment is not
 *                      above the tolerance, the sine of the angle between the segments is within
 *                      the tolerance, or a tangent point lies beyond the end of its segment by more
 *                      than the tolerance
 */
TRELVIN_ROUTINE trvard(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIn r,
                       TrvOut xc, TrvOut yc, TrvOut xt1, TrvOut yt1, TrvOut xt2, TrvOut yt2,
                       TrvIntOut status);

/**
 * Bounding box of the arc that a point sweeps about a centre.
 *
 * Formed in double precision and rounded once. A NaN in any input makes all outputs NaN.
 *
 * Retains: nothing.
 *
 * @param[in]  xc,yc      centre
 * @param[in]  xa,ya      start of the arc
 * @param[in]  sweep      angle in radians, counter-clockwise when positive; the full circle if
 *                        |sweep| is 2*pi or more
 * @param[out] xmin,ymin  lower left corner
 * @param[out] xmax,ymax  upper right corner
 */
TRELVIN_ROUTINE trvenv(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn sweep, TrvOut xmin,
                       TrvOut ymin, TrvOut xmax, TrvOut ymax);

#endif
