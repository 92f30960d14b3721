/**
 * @file
 * Circles and arcs of the plane.
 *
 * A circle in equation form is the triple (D, E, F) of x*x + y*y + D*x + E*y + F = 0. An arc is
 * given by its centre C and its ends A and B, B as far from C as A within the routine's tolerance.
 *
 * A side is an Integer that is taken as a factor: its sign picks one of two points, and zero counts
 * as stated.
 */
#ifndef TRELVIN_CIRCLES_H
#define TRELVIN_CIRCLES_H

#include "trelvin/calling.h"

/* Equations and intersections ---------------------------------------------------------------- */

/**
 * Circle from its centre and radius: D = -2*xc, E = -2*yc, F = xc*xc + yc*yc - r*r.
 *
 * @param[in]  xc,yc  centre
 * @param[in]  r      radius, of any sign
 * @param[out] D,E,F  circle
 */
TRELVIN_ROUTINE trvcer(TrvIn xc, TrvIn yc, TrvIn r, TrvOut D, TrvOut E, TrvOut F);

/**
 * Intersection of a line and a circle.
 *
 * The line is solved for x where |a| is above the tolerance, else it is taken as horizontal. The
 * points are one when the discriminant of the quadratic is within the tolerance; it grows with the
 * fourth power of the coordinates, so small circles are touched rather than cut. A NaN discriminant
 * gives two points that are NaN.
 *
 * @param[in]  a,b,c  line a*x + b*y + c = 0
 * @param[in]  D,E,F  circle
 * @param[out] n      number of points, 0, 1 or 2
 * @param[out] x1,y1  first point, of the larger root; unwritten when n is 0
 * @param[out] x2,y2  second point; unwritten when n is 0 or 1
 */
TRELVIN_ROUTINE trvlci(TrvIn a, TrvIn b, TrvIn c, TrvIn D, TrvIn E, TrvIn F, TrvIntOut n, TrvOut x1,
                       TrvOut y1, TrvOut x2, TrvOut y2);

/**
 * Intersection of two circles: trvlci of their radical line and the first circle.
 *
 * @param[in]  D1,E1,F1  first circle
 * @param[in]  D2,E2,F2  second circle
 * @param[out] n         number of points; 0 for concentric circles: |D2 - D1| + |E2 - E1| within
 *                       the tolerance
 * @param[out] x1,y1     first point; unwritten when n is 0
 * @param[out] x2,y2     second point; unwritten when n is 0 or 1
 */
TRELVIN_ROUTINE trvc12(TrvIn D1, TrvIn E1, TrvIn F1, TrvIn D2, TrvIn E2, TrvIn F2, TrvIntOut n,
                       TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2);

/**
 * Centres of the circles of a radius through two points.
 *
 * A horizontal chord (|y2 - y1| < 1e-5) writes both candidates and the choice but leaves n at 0;
 * its candidates' y are NaN where the radius is less than half the chord.
 *
 * @param[in]  x1,y1  P1
 * @param[in]  x2,y2  P2
 * @param[in]  side   positive picks the candidate on the side of trvln3's normal of P1 and P2,
 *                    negative the other one, zero the first candidate
 * @param[in]  r      radius
 * @param[out] xa,ya  first candidate
 * @param[out] xb,yb  second candidate
 * @param[out] xc,yc  chosen centre; unwritten where a NaN decides
 * @param[out] n      number of centres. 0: P1 = P2 exactly, r at most 1e-5, r less than half the
 *                    chord, or a NaN discriminant; nothing else is written then, but for a
 *                    horizontal chord. 1: both candidates are the same. 2: two
 */
TRELVIN_ROUTINE trvcer2(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn side, TrvIn r, TrvOut xa,
                        TrvOut ya, TrvOut xb, TrvOut yb, TrvOut xc, TrvOut yc, TrvIntOut n);

/**
 * Circle through two points with a given sagitta.
 *
 * @param[in]  x1,y1  P1
 * @param[in]  x2,y2  P2
 * @param[in]  side   as trvcer2
 * @param[in]  h      sagitta: height of the arc above the middle of the chord
 * @param[out] r      radius; unwritten when h < 1e-5
 * @param[out] xc,yc  centre; unwritten when h < 1e-5 or as trvcer2 leaves it
 * @param[out] n      0 when h < 1e-5; else as trvcer2, 0 for a horizontal chord included
 */
TRELVIN_ROUTINE trvcer1(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn side, TrvIn h, TrvOut r,
                        TrvOut xc, TrvOut yc, TrvIntOut n);

/**
 * Classifies a circle cut by a line, with a trace.
 *
 * The region is that of the centre's y, whatever the line; the line decides only whether the circle
 * is cut. Each call appends three lines to OUTPUT.TXT in the current directory, in Windows-1253: a
 * heading, the class, and what it means, with the points of a cut circle. The file is opened by the
 * first call, never emptied, and complete after each call; where it cannot be written, the call
 * computes as always and the next one tries again.
 *
 * @param[in]  X,Y       arrays of 2: the centre, and a point on the circle
 * @param[in]  a,b,c     line a*x + b*y + c = 0
 * @param[out] position  1 not cut, centre above the x axis; 2 not cut, centre on or below it; 3
 *                       cut, centre below it; 4 cut, centre on or above it
 * @param[out] x1,y1     first intersection; unwritten where trvlci finds none
 * @param[out] x2,y2     second intersection; unwritten where trvlci finds none or one
 */
TRELVIN_ROUTINE trvcin(TrvArrayIn X, TrvArrayIn Y, TrvIn a, TrvIn b, TrvIn c, TrvIntOut position,
                       TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2);

/* Stations on an arc ------------------------------------------------------------------------- */

/**
 * Turns a point about a centre.
 *
 * @param[in]    x0,y0   centre
 * @param[inout] x,y     point; comes back rounded by the way to the centre and back; relative to
 *                       the centre when status is 0
 * @param[in]    angle   angle in radians, counter-clockwise
 * @param[out]   xr,yr   turned point; unwritten when status is 0
 * @param[out]   status  1 done; 0 the point's distance from the centre is within the tolerance
 */
TRELVIN_ROUTINE trvcer3(TrvIn x0, TrvIn y0, TrvInOut x, TrvInOut y, TrvIn angle, TrvOut xr,
                        TrvOut yr, TrvIntOut status);

/**
 * Point of an arc above a station of its chord, perpendicular to the chord.
 *
 * Lengths are compared with 0.001. Where the perpendicular touches the circle (trvlci), the second
 * intersection is that of the previous call; where it misses it, both are. They are retained, zero
 * after loading.
 *
 * @param[in]  xc,yc   centre C
 * @param[in]  xa,ya   first end A
 * @param[in]  xb,yb   second end B
 * @param[in]  side    with the first intersection Q: Q itself where side * ((A - C) x (Q - C)) is
 *                     negative, else the other one
 * @param[in]  d       station: distance from A along the chord
 * @param[out] x,y     point; unwritten when status is 0
 * @param[out] status  1 done; 0 the radius or the chord is at most 0.001, the radii of A and B
 *                     differ by more, or the station is not farther than that from both ends
 */
TRELVIN_ROUTINE trvcer8(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvOut x, TrvOut y, TrvIntOut status);

/**
 * Point of an arc on the ray from its centre through a station of its chord; otherwise as trvcer8.
 *
 * @param[in]  xc,yc   centre C
 * @param[in]  xa,ya   first end A
 * @param[in]  xb,yb   second end B
 * @param[in]  side    as trvcer8
 * @param[in]  d       station: distance from A along the chord
 * @param[out] x,y     point; unwritten when status is 0
 * @param[out] status  1 done; 0 as trvcer8, and where d is closer than 0.001 to the diameter
 */
TRELVIN_ROUTINE trvcer6(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvOut x, TrvOut y, TrvIntOut status);

/**
 * Points of an arc above the two edges of a strip on its chord; otherwise as trvcer8.
 *
 * Both edges share one pair of intersections: what the second edge does not find is what the first
 * one has left.
 *
 * @param[in]  xc,yc   centre C
 * @param[in]  xa,ya   first end A
 * @param[in]  xb,yb   second end B
 * @param[in]  side    as trvcer8
 * @param[in]  d       station of the strip's middle
 * @param[in]  w       width of the strip
 * @param[out] x1,y1   point above the station d - w/2; unwritten when status is 0
 * @param[out] x2,y2   point above the station d + w/2; unwritten when status is 0
 * @param[out] status  1 done; 0 as trvcer8, and where the width is at most 0.001 or the strip comes
 *                     closer than 0.001 to an end of the chord
 */
TRELVIN_ROUTINE trvcer9(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvIntIn side,
                        TrvIn d, TrvIn w, TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2,
                        TrvIntOut status);

/* Measures ----------------------------------------------------------------------------------- */

/**
 * Lengths of the two arcs between two points of a circle.
 *
 * @param[in]  xc,yc   centre
 * @param[in]  xa,ya   A; its distance from the centre is the radius
 * @param[in]  xb,yb   B
 * @param[out] s1      length of the shorter arc; unwritten when status is 0
 * @param[out] s2      length of the longer arc; unwritten when status is 0
 * @param[out] status  1 done; 0 the radius, or the distance of A and B, is within the tolerance
 */
TRELVIN_ROUTINE trvarc1(TrvIn xc, TrvIn yc, TrvIn xa, TrvIn ya, TrvIn xb, TrvIn yb, TrvOut s1,
                        TrvOut s2, TrvIntOut status);

/**
 * Signed angle of a direction against the x axis.
 *
 * @param[in]  dx,dy  direction
 * @param[out] phi    angle in radians: negative where dy is below -1e-5; positive or zero elsewhere
 */
TRELVIN_ROUTINE trvaxph(TrvIn dx, TrvIn dy, TrvOut phi);

/**
 * Distances and stations of two points against a segment.
 *
 * Distances are taken from the segment's line in the plane of x and y, lengths in space. A distance
 * greater than the length it belongs to gives a NaN station.
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
 * A point is marked 2 where its signed distances from the rays' lines (trvln3, trvlds) have
 * opposite signs, or where its foot on the first line lies beyond the vertex. Where the first ray
 * is too short for trvlni to find the foot, that of the previous point stands; it is retained, zero
 * after loading.
 *
 * @param[in]  x0,y0  vertex P0
 * @param[in]  x1,y1  point on the first ray
 * @param[in]  x2,y2  point on the second ray
 * @param[in]  n      number of points
 * @param[in]  X,Y    arrays of n: points
 * @param[out] mark   array of n: 1 or 2; -1 for all where the rays' angle is within the tolerance
 */
TRELVIN_ROUTINE trvapp(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn n,
                       TrvArrayIn X, TrvArrayIn Y, TrvIntArrayOut mark);

/* Constructions on a chord ------------------------------------------------------------------- */

/**
 * Point of an arc on a line through a station of its chord.
 *
 * Of the two points in which the line meets the circle, the one across the chord from the centre;
 * points on the chord count as across. A line that misses the circle is not refused: the result of
 * the previous call stands, carried through this call's frame; it is retained, zero after loading.
 *
 * @param[inout] xc,yc   centre C; rewritten with its value to rounding when status is 1
 * @param[inout] xa,ya   first end A; likewise
 * @param[inout] xb,yb   second end B; likewise
 * @param[in]    s       station: distance from A along the chord, beyond its ends too
 * @param[in]    angle   direction of the line in radians, measured from the chord (trvln1)
 * @param[out]   xo,yo   point; unwritten when status is 0
 * @param[out]   status  1 done; 0 the radius or the chord is within the tolerance, the radii of A
 *                       and B differ by more, A and B coincide, or the line touches the circle
 */
TRELVIN_ROUTINE trvcer4(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIn angle, TrvOut xo, TrvOut yo, TrvIntOut status);

/**
 * Crossing of an arc's chord with a line through its turned end.
 *
 * A is turned about the centre; the line runs through the turned point. Where it is parallel to the
 * chord the crossing of the previous call stands, in the chord's frame; it is retained, zero after
 * loading.
 *
 * @param[inout] xc,yc   centre C; rewritten with its value to rounding unless refused
 * @param[inout] xa,ya   first end A; likewise
 * @param[inout] xb,yb   second end B; likewise
 * @param[in]    turn    angle in radians by which A is turned about C, counter-clockwise
 * @param[in]    angle   direction of the line in radians, measured from the chord (trvln1)
 * @param[out]   xo,yo   crossing; unwritten when refused
 * @param[out]   status  0 refused: the radius or the chord is within the tolerance, or the radii of
 *                       A and B differ by more. 0 as well where the crossing is on the chord's line
 *                       but not at A or B (trvpsl above 2); else 0 a crossing, 1 the same line, 2
 *                       parallel
 */
TRELVIN_ROUTINE trvcer10(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                         TrvInOut yb, TrvIn turn, TrvIn angle, TrvOut xo, TrvOut yo,
                         TrvIntOut status);

/**
 * Point of an arc on the line from a station of its chord towards the sagitta.
 *
 * T is at the distance e from the chord's middle towards the arc's middle point. Of the two points
 * in which the line from the station through T meets the circle, the one on T's side of the chord.
 * A line that misses the circle is not refused: the result of the previous call stands, carried
 * through this call's frame. Where A and B, or the chord's middle and the arc's, agree within the
 * tolerance in each coordinate yet lie farther apart, the previous call's station and T stand. All
 * are retained, zero after loading.
 *
 * @param[inout] xc,yc   centre C; rewritten with its value to rounding when status is 1
 * @param[inout] xa,ya   first end A; likewise, and also when the line touches the circle
 * @param[inout] xb,yb   second end B; likewise when status is 1
 * @param[in]    s       station: distance from A along the chord, not negative
 * @param[in]    side    factor of the half angle that turns A clockwise to the arc's middle point
 * @param[in]    e       distance of T from the chord
 * @param[out]   xo,yo   point; unwritten when status is 0
 * @param[out]   status  1 done; 0 s is negative; e, the radius, the chord or its rest beyond s is
 *                       at most 1e-5; the radii of A and B differ by more; or the line touches the
 *                       circle
 */
TRELVIN_ROUTINE trvcer5(TrvInOut xc, TrvInOut yc, TrvInOut xa, TrvInOut ya, TrvInOut xb,
                        TrvInOut yb, TrvIn s, TrvIntIn side, TrvIn e, TrvOut xo, TrvOut yo,
                        TrvIntOut status);

/**
 * Crossings of a line through a station of an arc's chord with the arc and with a parallel to the
 * chord.
 *
 * T is on the parallel at the distance e from the chord towards the arc's middle point, O on the
 * arc on that side. Lengths, and the sine of the angle, are compared with 1e-4.
 *
 * @param[inout] xc,yc   centre C; rewritten with its value to rounding when status is 1
 * @param[inout] xa,ya   first end A; likewise
 * @param[inout] xb,yb   second end B; likewise
 * @param[in]    s       station: distance from A along the chord, not negative
 * @param[in]    side    factor of the half angle that turns A clockwise to the arc's middle point
 * @param[in]    e       distance of the parallel from the chord, not negative
 * @param[in]    angle   direction of the line in radians, measured from the chord
 * @param[out]   xp,yp   station P
 * @param[out]   xt,yt   crossing T with the parallel
 * @param[out]   xo,yo   crossing O with the arc
 * @param[out]   len     length of PO
 * @param[out]   status  1 done; 0 refused, nothing else is written: s or e is negative, the radius,
 *                       the chord or its rest beyond s is at most 1e-4, the radii of A and B differ
 *                       by more, side picks no side, the line is parallel to the chord, or it meets
 *                       the circle in fewer than two points (trvlci)
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
 * @param[in]  x0,y0    corner P0
 * @param[in]  x1,y1    P1
 * @param[in]  x2,y2    P2
 * @param[in]  r        radius
 * @param[out] xc,yc    centre of the arc
 * @param[out] xt1,yt1  where the arc touches the segment to P1
 * @param[out] xt2,yt2  where it touches the segment to P2
 * @param[out] status   1 done; 0 refused, nothing else is written: r or a segment is not above the
 *                      tolerance, the sine of the angle is within it, or a tangent point falls
 *                      beyond its segment by more
 */
TRELVIN_ROUTINE trvard(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIn r,
                       TrvOut xc, TrvOut yc, TrvOut xt1, TrvOut yt1, TrvOut xt2, TrvOut yt2,
                       TrvIntOut status);

/**
 * Bounding box of the arc that a point sweeps about a centre.
 *
 * Formed in double precision and rounded once.
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
