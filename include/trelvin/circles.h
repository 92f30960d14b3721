/**
 * @file
 * Circles and arcs of the plane.
 *
 * A circle in equation form is the triple (D, E, F) of x*x + y*y + D*x + E*y + F = 0. An arc is
 * given by its centre C and its ends A and B, B as far from C as A within the routine's tolerance.
 *
 * Far from the origin the equation loses digits: F is the small difference of large squares. All
 * routines that cut a line with a circle go through it (trvlci), trvcer7 excepted; trvcer4 and
 * trvcer5 move the origin to A first. If the distance of a circle from the origin is many times its
 * radius, move the origin next to the circle (trvtra).
 *
 * trvapp and trvcer10 run the three-point test (trvpsl) and so read and rewrite the cosine that it
 * retains: a call of theirs can decide a later one of trvpsl.
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
 * The line is solved for x where |a| is above the tolerance, else it is taken as horizontal. There
 * is one point when the discriminant of the quadratic is within the tolerance. It grows with the
 * fourth power of a and b and the square of the radius, so small circles are touched rather than
 * cut. A NaN discriminant gives two points with NaN.
 *
 * The nearer the line is to the direction of x, the fewer digits are left, also at the origin: with
 * |a| a hundredth of |b| and circles of some hundred units, points are off by about a unit.
 * Routines that cut a circle by a line inherit this (trvc12, trvcer1, trvcer2, trvcer6).
 *
 * Far from the origin F loses the radius. Points of a circle of radius 10 are off by up to 0.15 if
 * its centre is (1000, 1000), and by up to 9 at (1e4, 1e4). At (1e5, 1e5) the line (3, 4, -699925)
 * misses the circle by 5, but the routine gives two points 97 apart. Move the origin next to the
 * circle first (trvtra). trvcer6, trvcer8 and trvcer9 inherit this.
 *
 * Retains: nothing.
 *
 * @param[in]  a,b,c  line a*x + b*y + c = 0
 * @param[in]  D,E,F  circle
 * @param[out] n      number of points (TrvPoints): 0 none: the line misses the circle; 1 one: the
 *                    line touches the circle; 2 two: the line cuts the circle
 * @param[out] x1,y1  first point, of the larger root: the larger y, or the larger x where the line
 *                    is taken as horizontal; unwritten if n is 0
 * @param[out] x2,y2  second point; unwritten if n is 0 or 1
 */
TRELVIN_ROUTINE trvlci(TrvIn a, TrvIn b, TrvIn c, TrvIn D, TrvIn E, TrvIn F, TrvIntOut n, TrvOut x1,
                       TrvOut y1, TrvOut x2, TrvOut y2);

/**
 * Intersection of two circles: that of their radical line with the first circle (trvlci).
 *
 * Far from the origin it loses more digits than trvlci: the radical line is inaccurate too. Of
 * random pairs of circles of radius 10 that cut, with centres 15 apart, 22 % came out as touching
 * or as apart about (1e4, 1e4). Move the origin next to the circles first (trvtra).
 *
 * Retains: nothing.
 *
 * @param[in]  D1,E1,F1  first circle
 * @param[in]  D2,E2,F2  second circle
 * @param[out] n         number of points (TrvPoints): 0 none: the circles have no common point, or
 *                       are concentric: |D2 - D1| + |E2 - E1| is within the tolerance; 1 one: the
 *                       circles touch; 2 two: the circles cut each other
 * @param[out] x1,y1     first point, as of trvlci; unwritten if n is 0
 * @param[out] x2,y2     second point; unwritten if n is 0 or 1
 */
TRELVIN_ROUTINE trvc12(TrvIn D1, TrvIn E1, TrvIn F1, TrvIn D2, TrvIn E2, TrvIn F2, TrvIntOut n,
                       TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2);

/**
 * Centres of the circles of a radius through two points.
 *
 * A horizontal chord (|y2 - y1| < 1e-5) writes both candidates and the choice but leaves n at 0;
 * its candidates' y are NaN where the radius is less than half the chord.
 *
 * Far from the origin digits are lost as in trvlci: of random chords of 12 with a radius of 10,
 * 15 % got a wrong n about (1e4, 1e4), and half of the others a centre that is off by more than
 * 0.9. Move the origin next to the chord first (trvtra).
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1  P1
 * @param[in]  x2,y2  P2
 * @param[in]  side   positive picks the candidate on the side of trvln3's normal of P1 and P2,
 *                    negative the other one, zero the first candidate
 * @param[in]  r      radius
 * @param[out] xa,ya  first candidate; unwritten on a condition: P1 = P2 exactly, r is at most 1e-5,
 *                    or n is 0 and the chord is not horizontal
 * @param[out] xb,yb  second candidate; unwritten on a condition: xa is unwritten
 * @param[out] xc,yc  chosen centre; unwritten on a condition: xa is unwritten, or neither candidate
 *                    is on the side: side times its distance (trvlds) is not at least 0 for the
 *                    first and not positive for the second, as with a NaN
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
 * that of trvcer2, and loses as many digits far from the origin.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1  P1
 * @param[in]  x2,y2  P2
 * @param[in]  side   positive picks the centre on the side of trvln3's normal of P1 and P2,
 *                    negative the other one, zero the first candidate of trvcer2
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
 * The region is that of the centre's y, whatever the line; the line decides only whether the circle
 * is cut. Each call appends three lines to OUTPUT.TXT, in Windows-1253: a heading, the class, and
 * what it means, with the points of a cut circle.
 *
 * The first call opens the file in the directory that is current then. The file stays open until
 * the library is unloaded, even if the current directory changes or the file is renamed. It is
 * never emptied, and it is complete after each call. A call appends its record in one write,
 * behind what other processes append.
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
 * reading only cannot open it. The host cannot close its handle. Processes take turns by a lock of
 * a byte far behind the text. If another process holds the lock and the file does not grow, a call
 * waits a quarter of a second and leaves its record out. Later calls leave their records out
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
 * @param[out] x1,y1     first intersection, which loses digits far from the origin, as position
 *                       does (trvlci); unwritten on a condition: the line misses the circle
 * @param[out] x2,y2     second intersection; unwritten on a condition: the line misses or touches
 *                       the circle
 */
TRELVIN_ROUTINE trvcin(TrvArrayIn X, TrvArrayIn Y, TrvIn a, TrvIn b, TrvIn c, TrvIntOut position,
                       TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2);

/* Stations on an arc ------------------------------------------------------------------------- */

/**
 * Turns a point about a centre.
 *
 * Retains: nothing.
 *
 * @param[in]    x0,y0   centre
 * @param[inout] x,y     point; comes back rounded by the way to the centre and back; relative to
 *                       the centre when status is 0
 * @param[in]    angle   angle in radians, counter-clockwise
 * @param[out]   xr,yr   turned point; unwritten if status is 0
 * @param[out]   status  outcome (TrvArc): 1 done; 0 refused: the point's distance from the centre
 *                       is within the tolerance
 */
TRELVIN_ROUTINE trvcer3(TrvIn x0, TrvIn y0, TrvInOut x, TrvInOut y, TrvIn angle, TrvOut xr,
                        TrvOut yr, TrvIntOut status);

/**
 * Point of an arc above a station of its chord, perpendicular to the chord.
 *
 * Lengths are compared with 0.001. Where the perpendicular touches the circle (trvlci), the second
 * intersection is that of an earlier call; where it misses it, both are.
 *
 * Retains: both intersections (trvcer8).
 *
 * @param[in]  xc,yc   centre C
 * @param[in]  xa,ya   first end A
 * @param[in]  xb,yb   second end B
 * @param[in]  side    with the first intersection Q: Q itself where side * ((A - C) x (Q - C)) is
 *                     negative, else the other one
 * @param[in]  d       station: distance from A along the chord
 * @param[out] x,y     point; unwritten if status is 0
 * @param[out] status  outcome (TrvArc): 1 done; 0 refused: the radius or the chord is at most
 *                     0.001, the radii of A and B differ by more, or the station is not farther
 *                     than that from both ends
 */
TRELVIN_ROUTINE trvcer8(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvOut x, TrvOut y, TrvIntOut status);

/**
 * Point of an arc on the line from its centre through a station of its chord.
 *
 * Lengths are compared with 0.001. Where the line touches the circle (trvlci), the second
 * intersection is that of an earlier call; where it misses it, both are. Where the station is at
 * the centre there is no line, and the point is the second intersection of an earlier call.
 *
 * Retains: both intersections (trvcer6).
 *
 * @param[in]  xc,yc   centre C
 * @param[in]  xa,ya   first end A
 * @param[in]  xb,yb   second end B
 * @param[in]  side    with the first intersection Q: Q itself where side * ((A - C) x (Q - C)) is
 *                     negative, else the other one
 * @param[in]  d       station: distance from A along the chord
 * @param[out] x,y     point; unwritten if status is 0
 * @param[out] status  outcome (TrvArc): 1 done; 0 refused: the radius or the chord is at most
 *                     0.001, the radii of A and B differ by more, the station is not farther than
 *                     that from both ends, or d is closer than that to the diameter
 */
TRELVIN_ROUTINE trvcer6(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvOut x, TrvOut y, TrvIntOut status);

/**
 * Points of an arc above the two edges of a strip on its chord, perpendicular to the chord.
 *
 * Lengths are compared with 0.001. Both edges share one pair of intersections: where a
 * perpendicular touches the circle (trvlci), the second intersection is that of the edge or the
 * call before; where it misses it, both are.
 *
 * Retains: both intersections (trvcer9).
 *
 * @param[in]  xc,yc   centre C
 * @param[in]  xa,ya   first end A
 * @param[in]  xb,yb   second end B
 * @param[in]  side    with an edge's first intersection Q: Q itself where side * ((A - C) x (Q -
 *                     C)) is negative, else the other one
 * @param[in]  d       station of the strip's middle: distance from A along the chord
 * @param[in]  w       width of the strip
 * @param[out] x1,y1   point above the station d - w/2; unwritten if status is 0
 * @param[out] x2,y2   point above the station d + w/2; unwritten if status is 0
 * @param[out] status  outcome (TrvArc): 1 done; 0 refused: the radius, the chord, d, the chord's
 *                     rest beyond d or the width is at most 0.001, the radii of A and B differ by
 *                     more, or the strip comes closer than that to an end of the chord
 */
TRELVIN_ROUTINE trvcer9(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvIn w, TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2,
                        TrvIntOut status);

/* Measures ----------------------------------------------------------------------------------- */

/**
 * Lengths of the two arcs between two points of a circle.
 *
 * Short arcs, and arcs close to half the circle, lose their digits as the angles of trvphi do: of
 * pairs of points that lie opposite each other, 25 % give NaN. Instead take chi of trvchi at the
 * centre, with z = 0: chi times the radius is the arc from A to B counter-clockwise.
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
 * Small angles, and angles close to pi, lose their digits as in trvphi, yet are never NaN: at 3e-4
 * radians 48 % of random directions give 0 or pi, at 4e-4 5 %. For them take trvchi at the origin
 * from (1, 0, 0) to (dx, |dy|, 0), and the sign of dy.
 *
 * Retains: nothing.
 *
 * @param[in]  dx,dy  direction
 * @param[out] phi    angle in radians in [-pi, pi]: negative where dy is below -1e-5, positive or
 *                    zero elsewhere; 0 where the direction's length is within the tolerance
 */
TRELVIN_ROUTINE trvaxph(TrvIn dx, TrvIn dy, TrvOut phi);

/**
 * Distances and stations of two points against a segment.
 *
 * Distances are taken from the segment's line in the plane of x and y, lengths in space. A distance
 * greater than the length it belongs to gives a NaN station.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0,z0  P0
 * @param[in]  x1,y1,z1  P1, start of the segment
 * @param[in]  x2,y2,z2  P2, end of the segment
 * @param[in]  x3,y3,z3  P3
 * @param[out] h0        distance of P0 from the line
 * @param[out] s0        station of P0's foot: sqrt(|P0 - P1|^2 - h0^2), from P1
 * @param[out] h3        distance of P3 from the line
 * @param[out] s3        station of P3's foot: len - sqrt(|P3 - P2|^2 - h3^2), from P1
 * @param[out] len       length of the segment
 */
TRELVIN_ROUTINE trvhin(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn x3, TrvIn y3, TrvIn z3, TrvOut h0, TrvOut s0,
                       TrvOut h3, TrvOut s3, TrvOut len);

/**
 * Marks points by a sector.
 *
 * A point is outside where its signed distances from the rays' lines (trvln3, trvlds) have opposite
 * signs, or where its foot on the first line lies beyond the vertex (trvpsl). A NaN in a point puts
 * it inside, one in the vertex or the first ray all points; with one in the second ray the foot
 * decides alone.
 *
 * A narrow sector can be taken for none: of sectors of 4e-4 radians 23 % are, as their angle by
 * trvphi is 0. For sectors below 8e-4 radians compare the signed distances from both rays yourself
 * (trvln3, trvlds).
 *
 * Cost: takes time in proportion to n.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0  vertex P0
 * @param[in]  x1,y1  point on the first ray
 * @param[in]  x2,y2  point on the second ray
 * @param[in]  n      number of points
 * @param[in]  X,Y    arrays of n: points
 * @param[out] mark   array of n: where each point is: 1 inside: the point is inside the sector; 2
 *                    outside: the point is outside the sector; -1 no_sector: the rays' angle by
 *                    trvphi is within the tolerance, the same for all points
 */
TRELVIN_ROUTINE trvapp(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn n,
                       TrvArrayIn X, TrvArrayIn Y, TrvIntArrayOut mark);

/* Constructions on a chord ------------------------------------------------------------------- */

/**
 * Point of an arc on a line through a station of its chord.
 *
 * Of the two points in which the line meets the circle, the one across the chord from the centre;
 * points on the chord count as across. A line that misses the circle is not refused: the result of
 * an earlier call stands, as if it had been found in this chord's frame, and is carried out of it.
 *
 * The chord is turned onto the x axis by an angle with as few digits as that of trvaxph. If the
 * chord is within 4.2e-4 radians of the direction of x, it may not be turned at all, and the line's
 * direction is off by as much. For chords within 0.01 radians turn the arc by a quarter: pass (-y,
 * x) for each point (x, y); the result is (yo, -xo).
 *
 * Retains: the point (trvcer4).
 *
 * @param[inout] xc,yc   centre C; rewritten with its value to rounding; unchanged if status is 0
 * @param[inout] xa,ya   first end A; rewritten with its value to rounding; unchanged if status is 0
 * @param[inout] xb,yb   second end B; rewritten with its value to rounding; unchanged if status is
 *                       0
 * @param[in]    s       station: distance from A along the chord, beyond its ends too
 * @param[in]    angle   direction of the line in radians, measured from the chord A to B,
 *                       counter-clockwise (trvln1)
 * @param[out]   xo,yo   point; unwritten if status is 0
 * @param[out]   status  outcome (TrvArc): 1 done; 0 refused: the radius or the chord is within the
 *                       tolerance, the radii of A and B differ by more, A and B coincide, or the
 *                       line touches the circle
 */
TRELVIN_ROUTINE trvcer4(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIn angle, TrvOut xo, TrvOut yo, TrvIntOut status);

/**
 * Crossing of an arc's chord with a line through its turned end.
 *
 * A is turned about the centre; the line runs through the turned point. Where it is parallel to the
 * chord, or along it, the crossing of an earlier call stands, in the chord's frame.
 *
 * A chord within 4.2e-4 radians of the direction of x may not be turned onto the x axis, as in
 * trvcer4, and the line's direction is off by as much. C = (5000, 1), A = (0, 0), B = (10000, 2),
 * turn = -0.24 and angle = pi/2 give a crossing that is off by 0.24. For chords within 0.01 radians
 * pass (-y, x) for each point (x, y); the result is (yo, -xo).
 *
 * Retains: the crossing (trvcer10); the cosine of the three-point test (trvpsl).
 *
 * @param[inout] xc,yc   centre C; rewritten with its value to rounding; unchanged on a condition:
 *                       the input is rejected
 * @param[inout] xa,ya   first end A; rewritten with its value to rounding; unchanged on a
 *                       condition: the input is rejected
 * @param[inout] xb,yb   second end B; rewritten with its value to rounding; unchanged on a
 *                       condition: the input is rejected
 * @param[in]    turn    angle in radians by which A is turned about C, counter-clockwise
 * @param[in]    angle   direction of the line in radians, measured from the chord A to B,
 *                       counter-clockwise (trvln1)
 * @param[out]   xo,yo   crossing; unwritten on a condition: the input is rejected, so it must be
 *                       set beforehand where status 0 is to be told apart
 * @param[out]   status  outcome: 0 crossing_or_refused: the line crosses the chord, which is the
 *                       normal result, or a crossing of an earlier call lies on the chord's line
 *                       but not at A or B (trvpsl above 2), or the input is rejected, since the
 *                       radius or the chord is within the tolerance or the radii of A and B differ
 *                       by more; 1 along_chord: the line runs along the chord; 2 parallel: the line
 *                       is parallel to the chord
 */
TRELVIN_ROUTINE trvcer10(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                         TrvInOut yb, TrvIn turn, TrvIn angle, TrvOut xo, TrvOut yo,
                         TrvIntOut status);

/**
 * Point of an arc on the line from a station of its chord towards the sagitta.
 *
 * T is at the distance e from the chord's middle towards the arc's middle point. Of the two points
 * in which the line from the station through T meets the circle, the one on T's side of the chord.
 * A line that misses the circle is not refused: the result of an earlier call stands, as if it had
 * been found in this chord's frame, and is carried out of it. Where A and B, or the chord's middle
 * and the arc's, agree within the tolerance in each coordinate yet lie farther apart, the station,
 * or T, of an earlier call stands.
 *
 * The angle ACB comes from trvphi3, so flat arcs lose the direction of T. The point of an arc of
 * 0.1 radians is off by up to 5e-5 of its chord, of 0.01 radians by up to 8 %. Below 0.005 radians
 * any point, NaN or a refusal can come out. For such arcs take O of trvcer7, with angle =
 * atan2(side*e, c/2 - s) for the chord c.
 *
 * Retains: the station, T and the point (trvcer5).
 *
 * @param[inout] xc,yc   centre C; rewritten with its value to rounding; unchanged if status is 0
 * @param[inout] xa,ya   first end A; rewritten with its value to rounding, also if the line touches
 *                       the circle; unchanged on a condition: status is 0 and the line does not
 *                       touch the circle
 * @param[inout] xb,yb   second end B; rewritten with its value to rounding; unchanged if status is
 *                       0
 * @param[in]    s       station: distance from A along the chord, not negative
 * @param[in]    side    factor of the half angle that turns A clockwise to the arc's middle point
 * @param[in]    e       distance of T from the chord
 * @param[out]   xo,yo   point; unwritten if status is 0
 * @param[out]   status  outcome (TrvArc): 1 done; 0 refused: s is negative, or e, the radius, the
 *                       chord or its rest beyond s is at most 1e-5, or the radii of A and B differ
 *                       by more, or the line touches the circle
 */
TRELVIN_ROUTINE trvcer5(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIntIn side, TrvIn e, TrvOut xo, TrvOut yo,
                        TrvIntOut status);

/**
 * Crossings of a line through a station of an arc's chord with the arc and with a parallel to the
 * chord.
 *
 * T is on the parallel at the distance e from the chord on the given side, O on the circle on that
 * side. Formed in double precision and rounded once. Lengths, and the sine of the angle, are
 * compared with 1e-4; radii may differ by the rounding of the coordinates besides, 3.6e-7 times the
 * largest coordinate of the arc. A NaN is refused.
 *
 * Retains: nothing.
 *
 * @param[inout] xc,yc   centre C; unchanged
 * @param[inout] xa,ya   first end A; unchanged
 * @param[inout] xb,yb   second end B; unchanged
 * @param[in]    s       station: distance from A along the chord, not negative
 * @param[in]    side    only its sign counts: positive picks the left of the chord A to B, to which
 *                       clockwise from A the circle runs; negative the right
 * @param[in]    e       distance of the parallel from the chord, not negative; 0 puts T at P
 * @param[in]    angle   direction of the line in radians, measured from the chord A to B,
 *                       counter-clockwise; the line runs both ways
 * @param[out]   xp,yp   station P; unwritten if status is 0
 * @param[out]   xt,yt   crossing T with the parallel; unwritten if status is 0
 * @param[out]   xo,yo   crossing O with the circle about C through A; unwritten if status is 0
 * @param[out]   len     length of PO; unwritten if status is 0
 * @param[out]   status  outcome (TrvArc): 1 done; 0 refused: s or e is negative, the radius or the
 *                       chord's rest beyond s is at most 1e-4, the radii of A and B differ by more
 *                       and the rounding, side is 0, the line is parallel to the chord, or the part
 *                       of the line inside the circle is not longer than 2e-4
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
 * @param[out] xt1,yt1  where the arc touches the segment to P1; unwritten if status is 0
 * @param[out] xt2,yt2  where it touches the segment to P2; unwritten if status is 0
 * @param[out] status   outcome (TrvArc): 1 done; 0 refused: r or a segment is not above the
 *                      tolerance, the sine of the angle between the segments is within it, or the
 *                      arc touches one beyond its end by more
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
 * @param[in]  sweep      angle in radians, counter-clockwise when positive; from 2*pi on, either
 *                        way, the full circle
 * @param[out] xmin,ymin  lower left corner
 * @param[out] xmax,ymax  upper right corner
 */
TRELVIN_ROUTINE trvenv(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn sweep, TrvOut xmin,
                       TrvOut ymin, TrvOut xmax, TrvOut ymax);

#endif
