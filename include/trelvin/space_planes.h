/**
 * @file
 * Planes of space.
 *
 * A plane is the quadruple (a, b, c, d) of a*x + b*y + c*z + d = 0; the length of its normal (a, b,
 * c) depends on the routine that constructs it.
 *
 * Caution: the coefficients of a plane lose digits far from the origin: at 1e5 units, distances
 * from the plane are accurate to some hundredths of a unit only. Use a local origin there
 * (trv3tra).
 *
 *     float x = 3, y = 2, z = 5, a = 0, b = 0, c = 2, d = -4, dist; // above the plane z = 2
 *     trvpld(&x, &y, &z, &a, &b, &c, &d, &dist);
 *     printf("%g above\n", dist);
 *     // prints 3 above
 */
#ifndef TRELVIN_SPACE_PLANES_H
#define TRELVIN_SPACE_PLANES_H

#include "trelvin/calling.h"

/**
 * Plane through a point, spanned by two directions.
 *
 * (a, b, c) = u x w, not normalised. All four coefficients are zero if u and w are parallel.
 * Caution: far from the origin d loses digits; use a local origin (trv3tra).
 *
 * Retains: nothing.
 *
 * @param[in]  x,y,z     point
 * @param[in]  ux,uy,uz  direction u
 * @param[in]  wx,wy,wz  direction w
 * @param[out] a,b,c,d   plane a*x + b*y + c*z + d = 0
 */
TRELVIN_ROUTINE trvplg(TrvIn x, TrvIn y, TrvIn z, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn wx, TrvIn wy,
                       TrvIn wz, TrvOut a, TrvOut b, TrvOut c, TrvOut d);

/**
 * Plane through three points: (a, b, c) = (P1 - P0) x (P2 - P0).
 *
 * Caution: far from the origin d loses digits; use a local origin (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0,z0  P0
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[out] a,b,c,d   plane; all zero if status is not 0, or if P0 = P1
 * @param[out] status    three-point test (TrvThreePoints): 0 spans_plane; 1 at_p0; 2 at_p1; 3
 *                       between; 4 beyond_p0; 5 beyond_p1
 */
TRELVIN_ROUTINE trvpl1(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status);

/**
 * Plane through a point, parallel to two lines.
 *
 * (a, b, c) = (B - A) x (D - C). Caution: far from the origin d loses digits; use a local origin
 * (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x,y,z     point
 * @param[in]  xa,ya,za  A, on the first line
 * @param[in]  xb,yb,zb  B, on the first line
 * @param[in]  xc,yc,zc  C, on the second line
 * @param[in]  xd,yd,zd  D, on the second line
 * @param[out] a,b,c,d   plane; all zero if status is not 0; the normal is zero, or nearly zero, if
 *                       the lines are parallel
 * @param[out] status    outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line; 4
 *                       opposite_line; 7 no_length: A and B, or C and D, coincide (trvcnt)
 */
TRELVIN_ROUTINE trvpl2(TrvIn x, TrvIn y, TrvIn z, TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb,
                       TrvIn zb, TrvIn xc, TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd,
                       TrvOut a, TrvOut b, TrvOut c, TrvOut d, TrvIntOut status);

/**
 * Plane that contains one line and is parallel to another: trvpl2 through A.
 *
 * Caution: far from the origin d loses digits; use a local origin (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  xa,ya,za  A, on the first line
 * @param[in]  xb,yb,zb  B, on the first line
 * @param[in]  xc,yc,zc  C, on the second line
 * @param[in]  xd,yd,zd  D, on the second line
 * @param[out] a,b,c,d   plane; all zero if status is not 0; the normal is zero, or nearly zero, if
 *                       the lines are parallel
 * @param[out] status    outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line; 4
 *                       opposite_line; 7 no_length: A and B, or C and D, coincide (trvcnt)
 */
TRELVIN_ROUTINE trvpl3(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xc,
                       TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd, TrvOut a, TrvOut b,
                       TrvOut c, TrvOut d, TrvIntOut status);

/**
 * Plane through a point, perpendicular to a segment.
 *
 * Caution: far from the origin d loses digits; use a local origin (trv3tra).
 *
 * Retains: nothing.
 *
 * @param[in]  x,y,z     point
 * @param[in]  xa,ya,za  A
 * @param[in]  xb,yb,zb  B; the normal is B - A
 * @param[out] a,b,c,d   plane; all zero if status is 1
 * @param[out] status    outcome (TrvCoincidence): 0 distinct: the plane is computed; 1 coincident:
 *                       A and B coincide within the tolerance in each coordinate (trvcnt)
 */
TRELVIN_ROUTINE trvpl4(TrvIn x, TrvIn y, TrvIn z, TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb,
                       TrvIn zb, TrvOut a, TrvOut b, TrvOut c, TrvOut d, TrvIntOut status);

/**
 * Plane with given intercepts on the axes.
 *
 * Retains: nothing.
 *
 * @param[in]  ix,iy,iz  intercepts
 * @param[out] a,b,c,d   plane (1/ix, 1/iy, 1/iz, -1); all zero if status is 1
 * @param[out] status    outcome: 0 done: the plane is computed; 1 no_plane: there is no plane,
 *                       since an intercept is within the tolerance or NaN
 */
TRELVIN_ROUTINE trvpl5(TrvIn ix, TrvIn iy, TrvIn iz, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status);

/**
 * Plane of two lines, each given by a point and a direction.
 *
 * Caution: the relation of the lines is determined twice: by this routine, then by trvpl2, which
 * starts with the cosine that the first determination retained (trvpsl) and may have another
 * result. Far from the origin d loses digits; use a local origin (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  xa,ya,za  A, on the first line
 * @param[in]  ux,uy,uz  direction of the first line
 * @param[in]  xc,yc,zc  C, on the second line
 * @param[in]  wx,wy,wz  direction of the second line
 * @param[out] a,b,c,d   plane; the normal is zero, or nearly zero, if the lines are parallel; all
 *                       zero if only the second relation is 3 or 4; unwritten on a condition: the
 *                       first relation is 3, 4, 6 or 7
 * @param[out] status    outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line; 4
 *                       opposite_line; 6 skew; 7 no_length: all components of a direction are
 *                       within the tolerance
 */
TRELVIN_ROUTINE trvpl6(TrvIn xa, TrvIn ya, TrvIn za, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn xc,
                       TrvIn yc, TrvIn zc, TrvIn wx, TrvIn wy, TrvIn wz, TrvOut a, TrvOut b,
                       TrvOut c, TrvOut d, TrvIntOut status);

/**
 * Plane of three points, rotated about the line from P0 to P1.
 *
 * The normal is a unit vector; at angle 0 it is the third axis of trvaxe. Caution: the normal is
 * computed as (P0 + normal) - P0, so far from the origin the normal and d lose digits; use a local
 * origin (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0,z0  P0
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[in]  angle     angle in radians, right-handed about the direction from P0 to P1
 * @param[out] a,b,c,d   plane; all zero if status is not 0
 * @param[out] status    three-point test (TrvThreePoints): 0 spans_plane; 1 at_p0: P2 is at P0, or
 *                       P0 and P0 + normal coincide (trvcnt); 2 at_p1; 3 between; 4 beyond_p0; 5
 *                       beyond_p1
 */
TRELVIN_ROUTINE trvpl7(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn angle, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status);

/**
 * Whether a point lies on the plane of three points.
 *
 * Caution: far from the origin the result loses digits; use a local origin (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0,z0  P0
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[in]  x,y,z     point
 * @param[in]  tol       largest residual allowed (inclusive): the point's distance times the length
 *                       of (P1 - P0) x (P2 - P0), in the cube of the length unit
 * @param[out] status    test (TrvOnPlane): 0 yes: the point lies on the plane, or P0 = P1, for
 *                       which any point does; -1 no: the point does not lie on the plane, or the
 *                       three points span no plane (trvpsl)
 */
TRELVIN_ROUTINE trvpsp(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn x, TrvIn y, TrvIn z, TrvIn tol, TrvIntOut status);

/**
 * Signed distance of a point from a plane.
 *
 * Caution: far from the origin the result loses digits; use a local origin (trv3tra).
 *
 * Retains: nothing.
 *
 * @param[in]  x,y,z    point
 * @param[in]  a,b,c,d  plane a*x + b*y + c*z + d = 0
 * @param[out] dist     distance, positive on the side the normal points to; infinite or NaN if the
 *                      normal is zero
 */
TRELVIN_ROUTINE trvpld(TrvIn x, TrvIn y, TrvIn z, TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvOut dist);

/**
 * Whether a point lies on a plane.
 *
 * Caution: far from the origin the result loses digits; use a local origin (trv3tra).
 *
 * Retains: nothing.
 *
 * @param[in]  x,y,z    point
 * @param[in]  a,b,c,d  plane a*x + b*y + c*z + d = 0
 * @param[in]  tol      largest distance allowed (inclusive)
 * @param[out] status   test (TrvOnPlane): 0 yes; -1 no: the point does not lie on the plane, or the
 *                      distance is NaN; 1 zero_normal
 */
TRELVIN_ROUTINE trvpspg(TrvIn x, TrvIn y, TrvIn z, TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvIn tol,
                        TrvIntOut status);

/**
 * Relation of two directions, taken as lines through the origin.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  ux,uy,uz  u
 * @param[in]  wx,wy,wz  w
 * @param[in]  v7,v8     ignored
 * @param[out] status    relation: -1 zero_u: u is exactly zero; 0 oblique: u and w have neither the
 *                       same, opposite nor perpendicular directions; 3 same: the directions are the
 *                       same; 4 opposite: the directions are opposite; 5 perpendicular: the
 *                       directions are perpendicular; 7 zero: all components of u, or of w, are
 *                       within the tolerance
 */
TRELVIN_ROUTINE trvplv(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn wx, TrvIn wy, TrvIn wz, TrvIn v7,
                       TrvIn v8, TrvIntOut status);

/**
 * Points of a list on a plane, by a running residual.
 *
 * Caution: the residual starts at d and is not reset between points. Each point adds a*x, b*y and
 * c*z to it, in this order. The point is found if the residual is then exactly zero.
 *
 * Cost: time grows with n; nothing is allocated.
 *
 * Retains: nothing.
 *
 * @param[in]    X,Y,Z  arrays of n: coordinates
 * @param[in]    a,b,c  normal of the plane
 * @param[inout] d      constant of the plane; the last residual afterwards; unchanged if n < 1
 * @param[in]    n      number of points
 * @param[out]   count  number of points found
 * @param[out]   index  array of n, count used: positions of these points, ascending
 */
TRELVIN_ROUTINE trvpnp(TrvArrayIn X, TrvArrayIn Y, TrvArrayIn Z, TrvIn a, TrvIn b, TrvIn c,
                       TrvInOut d, TrvIntIn n, TrvIntOut count, TrvIntArrayOut index);

#endif
