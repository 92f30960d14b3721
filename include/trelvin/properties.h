/**
 * @file
 * Area properties of polygons, circular segments and the parts of a section.
 *
 * All moments are taken about the coordinate axes through the origin: Sx = integral of y dA, Sy =
 * integral of x dA, Ix = integral of y*y dA, Iy = integral of x*x dA, Ixy = integral of x*y dA.
 * With coordinates in the length unit L, areas are in L^2, first moments in L^3, second in L^4. The
 * moments about the centroid (Sy/A, Sx/A) are Ix - Sx*Sx/A, Iy - Sy*Sy/A and Ixy - Sx*Sy/A.
 *
 * A section is the sum of its parts. trvair, trvstm and trvinm compute one part each, times a
 * factor. No routine here retains anything.
 *
 *     float x[4] = {0, 6, 6}, y[4] = {0, 0, 4}; // the spare element is the library's
 *     float value = 0, factor = 1, area = 0;
 *     int32_t n = 3, kind = TRV_PART_POLYGON;
 *     trvair(x, y, &n, &kind, &value, &factor, &area);
 *     printf("%g\n", area);
 *     // prints 12
 */
#ifndef TRELVIN_PROPERTIES_H
#define TRELVIN_PROPERTIES_H

#include "trelvin/calling.h"

/* Polygons ----------------------------------------------------------------------------------- */

/**
 * Area of a polygon.
 *
 * The exact integral over the closed outline by Green's theorem, A = integral of x dy along it:
 * half the sum of (y(i+1) - y(i))*(x(i) + x(i+1)) over the n edges, summed in double precision and
 * rounded once, so that the result stays accurate for an outline far from the origin. Positive for
 * a counter-clockwise outline (x to the right, y up), negative for a clockwise one; loops of a
 * self-intersecting outline add up with their signs. The last vertex may repeat the first.
 *
 * Cost: time grows with n.
 *
 * Retains: nothing.
 *
 * @param[inout] x,y   arrays of n+1: vertices; element n+1 is overwritten with vertex 1 first, if n
 *                     = 0 vertex 1 with itself; unchanged on a condition: elements 1 to n
 * @param[in]    n     number of vertices, at least 0; n = 0 gives 0; n must not be negative, since
 *                     the routine would write before the start of the arrays
 * @param[out]   area  signed area, in L^2
 */
TRELVIN_ROUTINE trvapl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut area);

/**
 * First moments of a polygon.
 *
 * The exact integrals over the closed outline by Green's theorem, Sx = -1/2 integral of y^2 dx and
 * Sy = 1/2 integral of x^2 dy along it, as sums over the edges in double precision, each rounded
 * once. The signs are right for a counter-clockwise outline and opposite for a clockwise one; loops
 * of a self-intersecting outline add up with their signs. The last vertex may repeat the first.
 *
 * Cost: time grows with n.
 *
 * Retains: nothing.
 *
 * @param[inout] x,y  arrays of n+1: vertices; element n+1 is overwritten with vertex 1 first, if n
 *                    = 0 vertex 1 with itself; unchanged on a condition: elements 1 to n
 * @param[in]    n    number of vertices, at least 0; n = 0 gives zeros; n must not be negative,
 *                    since the routine would write before the start of the arrays
 * @param[out]   sx   first moment about the x axis, the integral of y dA, in L^3
 * @param[out]   sy   first moment about the y axis, the integral of x dA, in L^3
 */
TRELVIN_ROUTINE trvspl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut sx, TrvOut sy);

/**
 * Second moments of a polygon.
 *
 * The exact integrals over the closed outline by Green's theorem, Ix = -1/3 integral of y^3 dx, Iy
 * = 1/3 integral of x^3 dy and Ixy = 1/2 integral of x^2*y dy along it, as sums over the edges in
 * double precision, each rounded once. The signs are right for a counter-clockwise outline and
 * opposite for a clockwise one; loops of a self-intersecting outline add up with their signs. The
 * last vertex may repeat the first.
 *
 * Cost: time grows with n.
 *
 * Retains: nothing.
 *
 * @param[inout] x,y  arrays of n+1: vertices; element n+1 is overwritten with vertex 1 first, if n
 *                    = 0 vertex 1 with itself; unchanged on a condition: elements 1 to n
 * @param[in]    n    number of vertices, at least 0; n = 0 gives zeros; n must not be negative,
 *                    since the routine would write before the start of the arrays
 * @param[out]   ix   second moment about the x axis, the integral of y*y dA, in L^4
 * @param[out]   iy   second moment about the y axis, the integral of x*x dA, in L^4
 * @param[out]   ixy  product of inertia, the integral of x*y dA, in L^4
 */
TRELVIN_ROUTINE trvipl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut ix, TrvOut iy,
                       TrvOut ixy);

/* Circular segments -------------------------------------------------------------------------- */

/**
 * Area and centroid of a circular segment, the region between an arc and its chord.
 *
 * The radius r is the distance of P1 from the centre. P2 determines the direction of the chord and
 * the angle phi (trvphi). If both lie on the circle, the order of P1 and P2 does not matter. The
 * larger segment has the angle 2*pi - phi. The area is r^2*(phi - sin phi)/2, and the centroid lies
 * 4*r*sin^3(phi/2)/(3*(phi - sin phi)) from the centre, across the chord for the smaller segment.
 *
 * Caution: the centroid is NaN for a chord through the centre, for P1 = P2, and for a smaller
 * segment whose angle is 0, although the area is a number.
 *
 * Retains: nothing.
 *
 * @param[in]  xc,yc  centre
 * @param[in]  x1,y1  first end of the chord P1
 * @param[in]  x2,y2  second end of the chord P2
 * @param[in]  kind   part kind (TrvPart): 5 larger_segment; any other value is the smaller segment
 * @param[out] area   area, positive
 * @param[out] xs,ys  centroid
 */
TRELVIN_ROUTINE trvacp(TrvIn xc, TrvIn yc, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn kind,
                       TrvOut area, TrvOut xs, TrvOut ys);

/**
 * Second moments of a circular segment, the region between an arc and its chord.
 *
 * The segment is that of trvacp: its radius is the distance of P1 from the centre; P2 determines
 * the angle and the chord's direction. The moments about the segment's axis of symmetry, and about
 * the line through its centroid parallel to the chord, are rotated to the axes of x and y and
 * shifted to the origin.
 *
 * Caution: all three moments are NaN for a chord through the centre, for P1 = P2, and for a smaller
 * segment whose angle is 0.
 *
 * Retains: nothing.
 *
 * @param[in]  xc,yc  centre
 * @param[in]  x1,y1  first end of the chord P1
 * @param[in]  x2,y2  second end of the chord P2
 * @param[in]  kind   part kind (TrvPart): 5 larger_segment; any other value is the smaller segment
 * @param[out] ix     second moment about the x axis, the integral of y*y dA
 * @param[out] iy     second moment about the y axis, the integral of x*x dA
 * @param[out] ixy    area*xs*ys, without the segment's own product of inertia about its centroid;
 *                    so it is the integral of x*y dA only if the chord is parallel to an axis
 */
TRELVIN_ROUTINE trvicp(TrvIn xc, TrvIn yc, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn kind,
                       TrvOut ix, TrvOut iy, TrvOut ixy);

/* Parts of a section ------------------------------------------------------------------------- */

/**
 * Area of a part of a section.
 *
 * The area of a polygon is that of trvapl, negative if its vertices are listed clockwise. The area
 * of a segment is that of trvacp.
 *
 * Retains: nothing.
 *
 * @param[inout] x,y     arrays of 0, n+1, 2, 3, 3 by kind: the part's points, see kind; element n+1
 *                       is overwritten with vertex 1 if kind is 2; nothing is read for kind 1 and
 *                       an unknown kind; unchanged on a condition: kind is not 2, or elements 1 to
 *                       n
 * @param[in]    n       number of vertices of kind 2, at least 0; n = 0 gives 0; n must not be
 *                       negative, since the routine would write before the start of the arrays;
 *                       ignored for other kinds
 * @param[in]    kind    part kind (TrvPart): 1 concentrated: area concentrated at point 1; 2
 *                       polygon: points 1 to n are the vertices, counter-clockwise; 3 circle: a
 *                       full circle, point 1 is its centre, point 2 is on it; 4 smaller_segment:
 *                       the smaller circular segment, point 1 is the centre, points 2 and 3 are the
 *                       ends of its chord; 5 larger_segment: the larger circular segment, given by
 *                       the same three points; any other value is an unknown kind
 * @param[in]    value   area for kind 1, ignored otherwise
 * @param[in]    factor  multiplies the result. A hole is a part with the factor -1. Caution: a
 *                       polygon must then still be counter-clockwise; a clockwise one with -1 adds
 *                       area
 * @param[inout] area    area of the part, times the factor; if the kind is unknown, the caller's
 *                       value, times the factor
 */
TRELVIN_ROUTINE trvair(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn factor, TrvInOut area);

/**
 * First moments of a part of a section.
 *
 * The moments of a polygon are those of trvspl, with opposite signs if its vertices are listed
 * clockwise. The area and centroid of a segment are those of trvacp.
 *
 * Retains: nothing.
 *
 * @param[inout] x,y     arrays of 1, n+1, 2, 3, 3 by kind: the part's points, see kind; element n+1
 *                       is overwritten with vertex 1 if kind is 2; nothing is read for an unknown
 *                       kind; unchanged on a condition: kind is not 2, or elements 1 to n
 * @param[in]    n       number of vertices of kind 2, at least 0; n = 0 gives zeros; n must not be
 *                       negative, since the routine would write before the start of the arrays;
 *                       ignored for other kinds
 * @param[in]    kind    part kind (TrvPart): 1 concentrated: area concentrated at point 1; 2
 *                       polygon: points 1 to n are the vertices, counter-clockwise; 3 circle: a
 *                       full circle, point 1 is its centre, point 2 is on it; 4 smaller_segment:
 *                       the smaller circular segment, point 1 is the centre, points 2 and 3 are the
 *                       ends of its chord; 5 larger_segment: the larger circular segment, given by
 *                       the same three points; any other value is an unknown kind
 * @param[in]    value   area for kind 1, ignored otherwise
 * @param[in]    factor  multiplies the results. A hole is a part with the factor -1. Caution: a
 *                       polygon must then still be counter-clockwise; a clockwise one with -1 adds
 *                       moments
 * @param[inout] sx,sy   first moments about the x and the y axis, times the factor; if the kind is
 *                       unknown, the caller's values, times the factor
 */
TRELVIN_ROUTINE trvstm(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn factor, TrvInOut sx, TrvInOut sy);

/**
 * Second moments of a part of a section.
 *
 * The moments of a polygon are those of trvipl, with opposite signs if its vertices are listed
 * clockwise. The moments of a segment are those of trvicp.
 *
 * For a part of kind 1, the caller passes its centroidal moments in ix, iy and ixy. They are
 * rotated by `angle` and shifted to the origin. Caution: this is not the usual rotation of second
 * moments, since each line uses the values that the lines before it have changed. With s =
 * sin(angle), c = cos(angle) and t = sin(2*angle):
 *
 *   ix  = ix*c^2 + iy*s^2 - ixy*t
 *   iy  = iy*c^2 + s^2*ix + ixy*t
 *   ixy = ((ix - iy)*0.5 + ixy)*t
 *
 * If the angle is exactly 0, these lines are skipped.
 *
 * Retains: nothing.
 *
 * @param[inout] x,y        arrays of 1, n+1, 2, 3, 3 by kind: the part's points, see kind; element
 *                          n+1 is overwritten with vertex 1 if kind is 2; nothing is read for an
 *                          unknown kind; unchanged on a condition: kind is not 2, or elements 1 to
 *                          n
 * @param[in]    n          number of vertices of kind 2, at least 0; n = 0 gives zeros; n must not
 *                          be negative, since the routine would write before the start of the
 *                          arrays; ignored for other kinds
 * @param[in]    kind       part kind (TrvPart): 1 concentrated: area concentrated at point 1, or a
 *                          region with its centroid at point 1, whose centroidal moments are passed
 *                          in ix, iy and ixy; 2 polygon: points 1 to n are the vertices,
 *                          counter-clockwise; 3 circle: a full circle, point 1 is its centre, point
 *                          2 is on it; 4 smaller_segment: the smaller circular segment, point 1 is
 *                          the centre, points 2 and 3 are the ends of its chord; 5 larger_segment:
 *                          the larger circular segment, given by the same three points; any other
 *                          value is an unknown kind
 * @param[in]    value      area for kind 1, ignored otherwise
 * @param[in]    angle      rotation of the part's own axes in radians for kind 1, ignored otherwise
 * @param[in]    factor     multiplies the results. A hole is a part with the factor -1. Caution: a
 *                          polygon must then still be counter-clockwise; a clockwise one with -1
 *                          adds moments
 * @param[inout] ix,iy,ixy  second moments about the axes, times the factor; for kinds 4 and 5, ixy
 *                          lacks the segment's own product of inertia (trvicp); for kind 1, the
 *                          part's own moments on entry; if the kind is unknown, the caller's
 *                          values, times the factor
 */
TRELVIN_ROUTINE trvinm(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn angle, TrvIn factor, TrvInOut ix, TrvInOut iy, TrvInOut ixy);

/* Whole sections ----------------------------------------------------------------------------- */

/**
 * Principal moments and their direction.
 *
 * The principal axes are those of x and y turned counter-clockwise by alpha, with
 *
 *   tan(2*alpha) = 2*ixy/(iy - ix)
 *   i1 = ix*cos^2(alpha) - 2*ixy*sin(alpha)*cos(alpha) + iy*sin^2(alpha)
 *   i2 = ix*sin^2(alpha) + 2*ixy*sin(alpha)*cos(alpha) + iy*cos^2(alpha)
 *
 * Since alpha is at most pi/4, i1 is the larger one if ix is larger than iy.
 *
 * If |ixy/(ix + iy)| is at most 1e-8 or NaN, the axes count as principal: i1 = ix, i2 = iy and
 * alpha = 0. Otherwise, if |iy - ix| < 1e-12: alpha = pi/4, i1 = (ix + iy)/2 - ixy and i2 = (ix +
 * iy)/2 + ixy.
 *
 * Retains: nothing.
 *
 * @param[in]  ix,iy,ixy  second moments about the axes, usually those through the centroid
 * @param[out] i1         moment about the axis turned by alpha from the x axis
 * @param[out] i2         moment about the axis turned by alpha from the y axis
 * @param[out] alpha      angle in radians, counter-clockwise, within +-pi/4
 */
TRELVIN_ROUTINE trvinp(TrvIn ix, TrvIn iy, TrvIn ixy, TrvOut i1, TrvOut i2, TrvOut alpha);

/**
 * Integral of equally spaced samples over [a, b] by the trapezoidal rule.
 *
 * Caution: the last interior sample f(n-1) is not in the sum; if n = 3, no interior sample is.
 *
 * Cost: time grows with n.
 *
 * Retains: nothing.
 *
 * @param[in]  n       number of samples, at least 2; 1 divides by zero; n must not be smaller,
 *                     since f(n) would be before the array
 * @param[in]  f       array of n: samples
 * @param[in]  a,b     limits
 * @param[out] result  (b - a)/(n - 1) * ((f(1) + f(n))/2 + f(2) + ... + f(n-2))
 */
TRELVIN_ROUTINE trvinr(TrvIntIn n, TrvArrayIn f, TrvIn a, TrvIn b, TrvOut result);

#endif
