/**
 * @file
 * Area properties of polygons, circular segments and composite sections.
 *
 * All values are taken about the coordinate axes through the origin: Sx = integral of y dA,
 * Sy = integral of x dA, Ix = integral of y*y dA, Iy = integral of x*x dA, Ixy = integral of x*y
 * dA. With coordinates in the length unit L, areas are in L^2, first moments in L^3, second in L^4.
 *
 * A section is the sum of its parts. Each part is described by two arrays x and y, a count n and a
 * kind, and contributes with a factor, -1 for a hole:
 *
 *   kind  part                      points
 *   1     area `value` at a point   1 the point
 *   2     polygon                   1 ... n the vertices, counter-clockwise
 *   3     full circle               1 the centre, 2 a point on the circle
 *   4     smaller circular segment  1 the centre, 2 and 3 the ends of the chord
 *   5     larger circular segment   as 4
 *
 * For a polygon element n+1 of both arrays is overwritten with vertex 1.
 *
 * A part of any other kind leaves the outputs as the caller set them, times the factor.
 */
#ifndef TRELVIN_PROPERTIES_H
#define TRELVIN_PROPERTIES_H

#include "trelvin/calling.h"

/* Polygons ----------------------------------------------------------------------------------- */

/**
 * Area of a polygon.
 *
 * The exact integral over the closed outline, summed in double precision and rounded once, so that
 * an outline far from the origin keeps its figures. Positive for a counter-clockwise outline,
 * negative for a clockwise one; loops of a self-intersecting outline add up with their signs. The
 * last vertex may repeat the first.
 *
 * @param[inout] x,y   arrays of n+1: vertices; element n+1 is overwritten with vertex 1, whatever n
 * @param[in]    n     number of vertices; below 1 the area is 0 (a negative n is not allowed)
 * @param[out]   area  signed area
 */
TRELVIN_ROUTINE trvapl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut area);

/**
 * First moments of a polygon; otherwise as trvapl.
 *
 * @param[inout] x,y  arrays of n+1: vertices; element n+1 is overwritten with vertex 1
 * @param[in]    n    number of vertices
 * @param[out]   sx   first moment about the x axis
 * @param[out]   sy   first moment about the y axis
 */
TRELVIN_ROUTINE trvspl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut sx, TrvOut sy);

/**
 * Second moments of a polygon; otherwise as trvapl.
 *
 * @param[inout] x,y  arrays of n+1: vertices; element n+1 is overwritten with vertex 1
 * @param[in]    n    number of vertices
 * @param[out]   ix   second moment about the x axis
 * @param[out]   iy   second moment about the y axis
 * @param[out]   ixy  product of inertia
 */
TRELVIN_ROUTINE trvipl(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvOut ix, TrvOut iy,
                       TrvOut ixy);

/* Circular segments -------------------------------------------------------------------------- */

/**
 * Area and centroid of a circular segment, the region between an arc and its chord.
 *
 * The radius is the distance of P1 from the centre; P2 fixes the angle, that of trvphi, and the
 * chord's direction. The order of P1 and P2 does not matter when both lie on the circle. The
 * centroid is NaN for a chord through the centre, for P1 = P2, and for a smaller segment whose
 * angle is 0.
 *
 * @param[in]  xc,yc  centre
 * @param[in]  x1,y1  first end of the chord P1
 * @param[in]  x2,y2  second end of the chord P2
 * @param[in]  kind   5 the larger segment; any other value the smaller one
 * @param[out] area   area, positive
 * @param[out] xs,ys  centroid
 */
TRELVIN_ROUTINE trvacp(TrvIn xc, TrvIn yc, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn kind,
                       TrvOut area, TrvOut xs, TrvOut ys);

/**
 * Second moments of a circular segment; otherwise as trvacp.
 *
 * @param[in]  xc,yc  centre
 * @param[in]  x1,y1  first end of the chord P1
 * @param[in]  x2,y2  second end of the chord P2
 * @param[in]  kind   5 the larger segment; any other value the smaller one
 * @param[out] ix     second moment about the x axis
 * @param[out] iy     second moment about the y axis
 * @param[out] ixy    area*xs*ys, without the segment's own centroidal product of inertia: exact
 *                    only for a chord parallel to an axis
 */
TRELVIN_ROUTINE trvicp(TrvIn xc, TrvIn yc, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn kind,
                       TrvOut ix, TrvOut iy, TrvOut ixy);

/* Parts of a section ------------------------------------------------------------------------- */

/**
 * Area of a part of a section.
 *
 * @param[inout] x,y     points of the part; element n+1 is written for kind 2
 * @param[in]    n       number of vertices, for kind 2
 * @param[in]    kind    kind of the part
 * @param[in]    value   area, for kind 1
 * @param[in]    factor  multiplies the result
 * @param[inout] area    area of the part; for an unknown kind the caller's value, times the factor
 */
TRELVIN_ROUTINE trvair(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn factor, TrvInOut area);

/**
 * First moments of a part of a section.
 *
 * @param[inout] x,y     points of the part; element n+1 is written for kind 2
 * @param[in]    n       number of vertices, for kind 2
 * @param[in]    kind    kind of the part
 * @param[in]    value   area, for kind 1
 * @param[in]    factor  multiplies the results
 * @param[inout] sx,sy   first moments about the x and the y axis; for an unknown kind the caller's
 *                       values, times the factor
 */
TRELVIN_ROUTINE trvstm(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn factor, TrvInOut sx, TrvInOut sy);

/**
 * Second moments of a part of a section.
 *
 * A part of kind 1 brings its own centroidal moments in ix, iy and ixy, which are turned by `angle`
 * and shifted to the origin. Turning takes each new value into the next, so it is not the plain
 * tensor rotation: with s, c and t the sine and cosine of the angle and the sine of its double, in
 * order
 *
 *   ix  = ix*c^2 + iy*s^2 - ixy*t
 *   iy  = iy*c^2 + s^2*ix + ixy*t
 *   ixy = ((ix - iy)*0.5 + ixy)*t
 *
 * @param[inout] x,y        points of the part; element n+1 is written for kind 2
 * @param[in]    n          number of vertices, for kind 2
 * @param[in]    kind       kind of the part
 * @param[in]    value      area, for kind 1
 * @param[in]    angle      turn of the part's own axes in radians, for kind 1
 * @param[in]    factor     multiplies the results
 * @param[inout] ix,iy,ixy  second moments about the axes; ixy for kinds 4 and 5 as trvicp gives it;
 *                          for kind 1 the part's own moments on entry; for an unknown kind the
 *                          caller's values, times the factor
 */
TRELVIN_ROUTINE trvinm(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn angle, TrvIn factor, TrvInOut ix, TrvInOut iy, TrvInOut ixy);

/* Whole sections ----------------------------------------------------------------------------- */

/**
 * Principal moments and their direction.
 *
 * The axes count as principal already when |ixy/(ix + iy)| is at most 1e-8 or NaN. With
 * |iy - ix| < 1e-12 the direction is an eighth of a turn.
 *
 * @param[in]  ix,iy,ixy  second moments
 * @param[out] i1         moment about the axis turned by alpha from the x axis
 * @param[out] i2         moment about the axis perpendicular to it; either may be the larger
 * @param[out] alpha      angle from the x axis in radians, counter-clockwise, within +-pi/4
 */
TRELVIN_ROUTINE trvinp(TrvIn ix, TrvIn iy, TrvIn ixy, TrvOut i1, TrvOut i2, TrvOut alpha);

/**
 * Integral of equally spaced samples over [a, b] by the trapezoidal rule.
 *
 * The last interior sample f(n-1) does not enter the sum, and for n = 3 no interior sample does.
 *
 * @param[in]  n       number of samples, at least 2; n = 1 divides by zero
 * @param[in]  f       array of n: samples
 * @param[in]  a,b     limits
 * @param[out] result  (b - a)/(n - 1) * ((f(1) + f(n))/2 + f(2) + ... + f(n-2))
 */
TRELVIN_ROUTINE trvinr(TrvIntIn n, TrvArrayIn f, TrvIn a, TrvIn b, TrvOut result);

#endif
