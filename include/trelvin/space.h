/**
 * @file
 * Rotations, frames, planes and lines of space.
 *
 * A frame matrix is nine Reals, the unit axes e1, e2, e3 of a right-handed local frame by their
 * global components. A plane is the quadruple (a, b, c, d) of a*x + b*y + c*z + d = 0; its normal
 * (a, b, c) is as long as its construction makes it.
 *
 * Planes given by coefficients lose digits with the distance from the origin: at 1e5 units,
 * distances from one are good to some hundredths of a unit. Take a local origin (trv3tra) there.
 *
 * The three-point test trvpsl retains a cosine between calls, and every routine that runs the test
 * shares it: all that build a frame or a plane from three points or relate two lines.
 *
 *     float xa = 0, ya = 0, za = 0, xb = 4, yb = 0, zb = 0; // one line along x,
 *     float xc = 0, yc = 0, zc = 3, xd = 0, yd = 4, zd = 3; // the other along y, 3 above it
 *     int32_t status;
 *     trvdirl(&xa, &ya, &za, &xb, &yb, &zb, &xc, &yc, &zc, &xd, &yd, &zd, &status);
 *     if (status == TRV_LINES_SKEW) printf("skew\n");
 *     // prints skew
 */
#ifndef TRELVIN_SPACE_H
#define TRELVIN_SPACE_H

#include "trelvin/calling.h"

/* Rotations ---------------------------------------------------------------------------------- */

/**
 * Turns plane points about the origin, in place.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: nothing.
 *
 * @param[in]    mode   1 turns clockwise; any other value counter-clockwise
 * @param[inout] x,y    arrays of n: coordinates
 * @param[in]    n      number of points; below 1 nothing happens
 * @param[in]    angle  angle in radians; may be an element of the arrays
 */
TRELVIN_ROUTINE trvrot(TrvIntIn mode, TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIn angle);

/**
 * Turns points about the x axis, in place.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: nothing.
 *
 * @param[in]    mode   1 turns z towards y; any other value y towards z, right-handed about +x
 * @param[in]    x      array of 0: not read
 * @param[inout] y,z    arrays of n: coordinates
 * @param[in]    n      number of points; below 1 nothing happens
 * @param[in]    angle  angle in radians; may be an element of the arrays
 */
TRELVIN_ROUTINE trvrotx(TrvIntIn mode, TrvArrayIn x, TrvArrayInOut y, TrvArrayInOut z, TrvIntIn n,
                        TrvIn angle);

/**
 * Turns points about the y axis, in place.
 *
 * Unlike its sisters it turns left-handedly about its axis unless mode is 1.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: nothing.
 *
 * @param[in]    mode   1 turns z towards x; any other value x towards z, left-handed about +y
 * @param[inout] x      array of n: coordinates
 * @param[in]    y      array of 0: not read
 * @param[inout] z      array of n: coordinates
 * @param[in]    n      number of points; below 1 nothing happens
 * @param[in]    angle  angle in radians; may be an element of the arrays
 */
TRELVIN_ROUTINE trvroty(TrvIntIn mode, TrvArrayInOut x, TrvArrayIn y, TrvArrayInOut z, TrvIntIn n,
                        TrvIn angle);

/**
 * Turns points about the z axis, in place.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: nothing.
 *
 * @param[in]    mode   1 turns y towards x; any other value x towards y, right-handed about +z
 * @param[inout] x,y    arrays of n: coordinates
 * @param[in]    z      array of 0: not read
 * @param[in]    n      number of points; below 1 nothing happens
 * @param[in]    angle  angle in radians; may be an element of the arrays
 */
TRELVIN_ROUTINE trvrotz(TrvIntIn mode, TrvArrayInOut x, TrvArrayInOut y, TrvArrayIn z, TrvIntIn n,
                        TrvIn angle);

/* Frames and transformations ----------------------------------------------------------------- */

/**
 * Three-point test: whether P0, P1 and P2 span a plane.
 *
 * The cosine of the angle at P2 decides over 3, 4 and 5, within the tolerance: up to 0.00447
 * radians from pi or 0 the three are on one line, as are the ends of 6 m and a point 6 mm beside
 * its middle. Where P2 agrees with P0 or P1 within the tolerance in each coordinate yet lies
 * farther than that from it, the cosine of the last call that found one stands (0 after loading).
 * P0 = P1 is not tested and gives 0, as does any P2 on the line whose distances from both come out
 * equal.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0,z0  P0
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[out] status    three-point test (TrvThreePoints): 0 spans_plane; 1 at_p0; 2 at_p1; 3
 *                       between; 4 beyond_p0; 5 beyond_p1
 */
TRELVIN_ROUTINE trvpsl(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIntOut status);

/**
 * Moves the origin of points to (dx, dy, dz), in place.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: nothing.
 *
 * @param[inout] X,Y,Z     arrays of n: coordinates, less dx, dy and dz afterwards
 * @param[in]    n         number of points; below 1 nothing happens
 * @param[in]    dx,dy,dz  new origin; may be one of the points
 */
TRELVIN_ROUTINE trv3tra(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, TrvIntIn n, TrvIn dx,
                        TrvIn dy, TrvIn dz);

/**
 * Applies a frame matrix to one point, in place.
 *
 * Retains: nothing.
 *
 * @param[inout] p                           array of 3: coordinates
 * @param[in]    a1,a2,a3,a4,a5,a6,a7,a8,a9  frame matrix: the unit axes e1, e2 and e3 of a frame by
 *                                           their global components, as trvaxe gives them; may be
 *                                           elements of p
 * @param[in]    mode                        1 local coordinates to global orientation (the
 *                                           transpose); any other value global to local
 */
TRELVIN_ROUTINE trvtrn(TrvArrayInOut p, TrvIn a1, TrvIn a2, TrvIn a3, TrvIn a4, TrvIn a5, TrvIn a6,
                       TrvIn a7, TrvIn a8, TrvIn a9, TrvIntIn mode);

/**
 * Frame of the plane through three points.
 *
 * e1 runs from P0 to P1; e3 is the normal, turned towards +y if the y component of (P1 - P0) x (P2
 * - P0) is above the tolerance, else likewise towards +z, else towards +x; e2 = e3 x e1. An axis
 * whose length is below 1e-5 before it is normalised stays zero: all three where P0 = P1, the last
 * two where the points are very close; the status is 0 then.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0,z0     P0
 * @param[in]  x1,y1,z1     P1
 * @param[in]  x2,y2,z2     P2
 * @param[out] e1x,e1y,e1z  first axis
 * @param[out] e2x,e2y,e2z  second axis
 * @param[out] e3x,e3y,e3z  third axis; all nine are zero when status is -2
 * @param[out] status       outcome (TrvFrame): 0 done; -2 no_frame: P2 is at P0 or P1, or the three
 *                          points are on one line (trvpsl)
 */
TRELVIN_ROUTINE trvaxe(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvOut e1x, TrvOut e1y, TrvOut e1z, TrvOut e2x,
                       TrvOut e2y, TrvOut e2z, TrvOut e3x, TrvOut e3y, TrvOut e3z,
                       TrvIntOut status);

/**
 * Frame of an axis from P0 to P1.
 *
 * At angle 0, e2 is the global y axis freed of its component along e1, and e3 = e1 x e2; a positive
 * angle turns both right-handedly about e1.
 *
 * An axis along y, a column, has no such e2: e2 and e3 are NaN or infinite then, with status 0. Ask
 * trvaxe with a third point instead.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0,z0     P0
 * @param[in]  x1,y1,z1     P1
 * @param[in]  angle        turn of e2 and e3 about e1 in radians
 * @param[out] e1x,e1y,e1z  first axis
 * @param[out] e2x,e2y,e2z  second axis
 * @param[out] e3x,e3y,e3z  third axis; all nine are zero when status is -2
 * @param[out] status       outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the
 *                          distance of P0 and P1 is within the tolerance
 */
TRELVIN_ROUTINE trvaxel(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn angle,
                        TrvOut e1x, TrvOut e1y, TrvOut e1z, TrvOut e2x, TrvOut e2y, TrvOut e2z,
                        TrvOut e3x, TrvOut e3y, TrvOut e3z, TrvIntOut status);

/**
 * Shifts points and turns them about the global axes x, y and z, in this order and in place.
 *
 * Each turn is that of trvrotx, trvroty and trvrotz with mode 2: right-handed about x and z,
 * left-handed about y. A shift none of whose components is above the tolerance is left out, and so
 * is a turn whose angle is not.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: nothing.
 *
 * @param[inout] X,Y,Z     arrays of n: coordinates
 * @param[in]    n         number of points; below 1 nothing happens
 * @param[in]    x0,y0,z0  shift, added; may be one of the points
 * @param[in]    ax,ay,az  angles in radians; may be elements of the arrays
 */
TRELVIN_ROUTINE trvptr(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, TrvIntIn n, TrvIn x0,
                       TrvIn y0, TrvIn z0, TrvIn ax, TrvIn ay, TrvIn az);

/**
 * Shifts points and turns them in the frame of three points, in place.
 *
 * In local coordinates each point is shifted by (dx, dy, dz), then turned about the local axes x, y
 * and z as trvrotx, trvroty and trvrotz turn with mode 2: right-handed about x and z, left-handed
 * about y. No angle is left out. Where the frame has a zero axis (trvaxe), the points lose that
 * coordinate.
 *
 * Single inputs may be elements of the arrays, P0 to P2 some of the points: they are read before a
 * point is moved.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]    x0,y0,z0  P0, the origin of the frame
 * @param[in]    x1,y1,z1  P1
 * @param[in]    x2,y2,z2  P2
 * @param[inout] X,Y,Z     arrays of n: coordinates; unchanged if status is -2
 * @param[in]    n         number of points; below 1 only the status is written
 * @param[in]    dx,dy,dz  shift in local coordinates, before the turns
 * @param[in]    ax,ay,az  angles in radians about the local axes x, y and z
 * @param[out]   status    outcome (TrvFrame): 0 done; -2 no_frame: P2 is at P0 or P1, or the three
 *                         points are on one line (trvpsl)
 */
TRELVIN_ROUTINE trvptrl(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                        TrvIn y2, TrvIn z2, TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z,
                        TrvIntIn n, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn ax, TrvIn ay, TrvIn az,
                        TrvIntOut status);

/**
 * Turns points about the axis from P0 through P1, in place.
 *
 * An axis along the global y axis, a column, gives points that are NaN or infinite, with status 0
 * (trvaxel). Use trv3tra and trvroty there.
 *
 * Single inputs may be elements of the arrays, P0 and P1 two of the points: they are read before a
 * point is moved.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: nothing.
 *
 * @param[in]    x0,y0,z0  P0
 * @param[in]    x1,y1,z1  P1
 * @param[inout] X,Y,Z     arrays of n: coordinates; unchanged if status is -2
 * @param[in]    n         number of points; below 1 only the status is written
 * @param[in]    angle     angle in radians, right-handed about the direction from P0 to P1
 * @param[out]   status    outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the
 *                         distance of P0 and P1 is within the tolerance
 */
TRELVIN_ROUTINE trvpra(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvArrayInOut X,
                       TrvArrayInOut Y, TrvArrayInOut Z, TrvIntIn n, TrvIn angle, TrvIntOut status);

/**
 * Turns points of a plane in the frame of the three points that span it, then shifts them, in
 * place.
 *
 * Unlike trvptrl, the shift is global and comes after the turns. Where the frame has a zero axis
 * (trvaxe), the points lose that coordinate.
 *
 * Single inputs may be elements of the arrays, P0 to P2 some of the points: they are read before a
 * point is moved.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]    x0,y0,z0  P0, the origin of the frame
 * @param[in]    x1,y1,z1  P1
 * @param[in]    x2,y2,z2  P2
 * @param[in]    dx,dy,dz  shift in global coordinates, after the turns
 * @param[in]    ax,ay,az  angles in radians about the local axes x, y and z, right-handed about x
 *                         and z, left-handed about y
 * @param[in]    n         number of points; below 1 only the status is written
 * @param[inout] X,Y,Z     arrays of n: coordinates; unchanged unless status is 0
 * @param[in]    tol       largest residual of a point of the plane, itself included: its distance
 *                         times the length of (P1 - P0) x (P2 - P0), in the cube of the length unit
 * @param[out]   status    outcome: 0 done: the points are moved; -1 no_frame: P2 is at P0 or P1, or
 *                         the three points are on one line (trvpsl); 1 to n: position of the first
 *                         point off the plane
 */
TRELVIN_ROUTINE trvppc(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn ax, TrvIn ay,
                       TrvIn az, TrvIntIn n, TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z,
                       TrvIn tol, TrvIntOut status);

/* Planes ------------------------------------------------------------------------------------- */

/**
 * Plane through a point, spanned by two directions.
 *
 * (a, b, c) = u x w, not normalised; all four are zero where u and w are parallel. Far from the
 * origin d loses digits; take a local origin there (trv3tra).
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
 * Far from the origin d loses digits; take a local origin there (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0,z0  P0
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[out] a,b,c,d   plane; all zero when status is not 0, and where P0 = P1
 * @param[out] status    three-point test (TrvThreePoints): 0 spans_plane; 1 at_p0; 2 at_p1; 3
 *                       between; 4 beyond_p0; 5 beyond_p1
 */
TRELVIN_ROUTINE trvpl1(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status);

/**
 * Plane through a point, parallel to two lines.
 *
 * (a, b, c) = (B - A) x (D - C). Far from the origin d loses digits; take a local origin there
 * (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x,y,z     point
 * @param[in]  xa,ya,za  A, on the first line
 * @param[in]  xb,yb,zb  B, on the first line
 * @param[in]  xc,yc,zc  C, on the second line
 * @param[in]  xd,yd,zd  D, on the second line
 * @param[out] a,b,c,d   plane; all zero when status is not 0; its normal is zero, or nearly, where
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
 * Far from the origin d loses digits; take a local origin there (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  xa,ya,za  A, on the first line
 * @param[in]  xb,yb,zb  B, on the first line
 * @param[in]  xc,yc,zc  C, on the second line
 * @param[in]  xd,yd,zd  D, on the second line
 * @param[out] a,b,c,d   plane; all zero when status is not 0; its normal is zero, or nearly, where
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
 * Far from the origin d loses digits; take a local origin there (trv3tra).
 *
 * Retains: nothing.
 *
 * @param[in]  x,y,z     point
 * @param[in]  xa,ya,za  A
 * @param[in]  xb,yb,zb  B; the normal is B - A
 * @param[out] a,b,c,d   plane; all zero when status is 1
 * @param[out] status    outcome (TrvCoincidence): 0 distinct: the plane is computed; 1 coincident:
 *                       A and B coincide, each coordinate within the tolerance (trvcnt)
 */
TRELVIN_ROUTINE trvpl4(TrvIn x, TrvIn y, TrvIn z, TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb,
                       TrvIn zb, TrvOut a, TrvOut b, TrvOut c, TrvOut d, TrvIntOut status);

/**
 * Plane with given intercepts on the axes.
 *
 * Retains: nothing.
 *
 * @param[in]  ix,iy,iz  intercepts
 * @param[out] a,b,c,d   plane (1/ix, 1/iy, 1/iz, -1); all zero when status is 1
 * @param[out] status    outcome: 0 done: the plane is computed; 1 no_plane: there is no plane,
 *                       since an intercept is within the tolerance or NaN
 */
TRELVIN_ROUTINE trvpl5(TrvIn ix, TrvIn iy, TrvIn iz, TrvOut a, TrvOut b, TrvOut c, TrvOut d,
                       TrvIntOut status);

/**
 * Plane of two lines, each given by a point and a direction.
 *
 * The relation of the lines is taken twice, the second time by trvpl2, with the cosine that the
 * first time left (trvpsl). Far from the origin d loses digits; take a local origin there
 * (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  xa,ya,za  A, on the first line
 * @param[in]  ux,uy,uz  direction of the first line
 * @param[in]  xc,yc,zc  C, on the second line
 * @param[in]  wx,wy,wz  direction of the second line
 * @param[out] a,b,c,d   plane; its normal is zero, or nearly, for parallel lines; all zero if only
 *                       the second relation is 3 or 4; unwritten on a condition: the first relation
 *                       is 3, 4, 6 or 7
 * @param[out] status    outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line; 4
 *                       opposite_line; 6 skew; 7 no_length: a direction is within the tolerance in
 *                       each component
 */
TRELVIN_ROUTINE trvpl6(TrvIn xa, TrvIn ya, TrvIn za, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn xc,
                       TrvIn yc, TrvIn zc, TrvIn wx, TrvIn wy, TrvIn wz, TrvOut a, TrvOut b,
                       TrvOut c, TrvOut d, TrvIntOut status);

/**
 * Plane of three points turned about the line from P0 to P1.
 *
 * The normal is a unit vector, formed by adding it to P0 and taking P0 off again, which leaves it
 * the digits that P0 has; at angle 0 it is the third axis of trvaxe. Far from the origin d loses
 * digits; take a local origin there (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0,z0  P0
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[in]  angle     angle in radians, right-handed about the direction from P0 to P1
 * @param[out] a,b,c,d   plane; all zero when status is not 0
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
 * Far from the origin the figure loses digits; take a local origin there (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0,z0  P0
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[in]  x,y,z     point
 * @param[in]  tol       largest residual allowed, itself included: the distance times the length of
 *                       (P1 - P0) x (P2 - P0), in the cube of the length unit
 * @param[out] status    test (TrvOnPlane): 0 yes: the point lies on the plane, as any point does if
 *                       P0 = P1; -1 no: the point does not lie on the plane, or the three points
 *                       span no plane (trvpsl)
 */
TRELVIN_ROUTINE trvpsp(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn x, TrvIn y, TrvIn z, TrvIn tol, TrvIntOut status);

/**
 * Signed distance of a point from a plane.
 *
 * Far from the origin the figure loses digits; take a local origin there (trv3tra).
 *
 * Retains: nothing.
 *
 * @param[in]  x,y,z    point
 * @param[in]  a,b,c,d  plane a*x + b*y + c*z + d = 0
 * @param[out] dist     distance, positive on the side the normal points to; not finite where the
 *                      normal is zero
 */
TRELVIN_ROUTINE trvpld(TrvIn x, TrvIn y, TrvIn z, TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvOut dist);

/**
 * Whether a point lies on a plane.
 *
 * Far from the origin the figure loses digits; take a local origin there (trv3tra).
 *
 * Retains: nothing.
 *
 * @param[in]  x,y,z    point
 * @param[in]  a,b,c,d  plane a*x + b*y + c*z + d = 0
 * @param[in]  tol      largest distance allowed, itself included
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
 *                       directions are perpendicular; 7 zero: u or w is within the tolerance in
 *                       each component
 */
TRELVIN_ROUTINE trvplv(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn wx, TrvIn wy, TrvIn wz, TrvIn v7,
                       TrvIn v8, TrvIntOut status);

/**
 * Points of a list on a plane, by a running residual.
 *
 * The residual starts at d and is not reset between points: each point adds a*x, b*y and c*z to it,
 * in this order, and is found when it is exactly zero then.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: nothing.
 *
 * @param[in]    X,Y,Z  arrays of n: coordinates
 * @param[in]    a,b,c  normal of the plane
 * @param[inout] d      constant of the plane; the last residual afterwards; unchanged if n < 1
 * @param[in]    n      number of points
 * @param[out]   count  how many are found
 * @param[out]   index  array of n, count used: their positions, ascending
 */
TRELVIN_ROUTINE trvpnp(TrvArrayIn X, TrvArrayIn Y, TrvArrayIn Z, TrvIn a, TrvIn b, TrvIn c,
                       TrvInOut d, TrvIntIn n, TrvIntOut count, TrvIntArrayOut index);

/* Lines -------------------------------------------------------------------------------------- */

/**
 * Relation of two lines.
 *
 * The same line means that C or D is on the line AB by the three-point test, which runs for C, then
 * for D. Skew means that the triple product of B - A, D - C and C - A is above the tolerance; it is
 * not scaled, so long lines count as skew sooner.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  xa,ya,za  A, on the first line
 * @param[in]  xb,yb,zb  B, on the first line
 * @param[in]  xc,yc,zc  C, on the second line
 * @param[in]  xd,yd,zd  D, on the second line
 * @param[out] status    relation (TrvLines): 0 crossing; 1 parallel_same; 2 parallel_opposite; 3
 *                       same_line; 4 opposite_line; 5 perpendicular; 6 skew; 7 coincident: A and B,
 *                       or C and D, coincide, each coordinate within the tolerance
 */
TRELVIN_ROUTINE trvdirl(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xc,
                        TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd, TrvIntOut status);

/**
 * Whether three segments span space.
 *
 * Retains: nothing.
 *
 * @param[in]  xa,ya,za  A
 * @param[in]  xb,yb,zb  B
 * @param[in]  xc,yc,zc  C
 * @param[in]  xd,yd,zd  D
 * @param[in]  xe,ye,ze  E
 * @param[in]  xf,yf,zf  F
 * @param[out] status    test: 0 flat: the triple product of B - A, D - C and F - E is within the
 *                       tolerance; 1 spanning: the triple product is above the tolerance, in the
 *                       cube of the length unit
 */
TRELVIN_ROUTINE trv3sp(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xc,
                       TrvIn yc, TrvIn zc, TrvIn xd, TrvIn yd, TrvIn zd, TrvIn xe, TrvIn ye,
                       TrvIn ze, TrvIn xf, TrvIn yf, TrvIn zf, TrvIntOut status);

/**
 * Distance of a point from a line.
 *
 * The vector from Q to A takes A's y coordinate for its z component, so the figure is the distance
 * only where the z of A equals its y.
 *
 * Retains: nothing.
 *
 * @param[in]  xa,ya,za  A
 * @param[in]  xb,yb,zb  B
 * @param[in]  xq,yq,zq  Q
 * @param[out] status    outcome (TrvStatus): 0 done: always
 * @param[out] dist      distance, never negative; the distance from A where A and B coincide
 *                       (trvcnt)
 */
TRELVIN_ROUTINE trv3ldb(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xq,
                        TrvIn yq, TrvIn zq, TrvIntOut status, TrvOut dist);

/**
 * Signed distance of a point from a line, in the plane of both.
 *
 * The sign is that of trvlds in the frame of A, B and Q, whose normal trvaxe turns towards +y, else
 * +z, else +x: positive to the right of the way from A to B, seen against that normal. Far from the
 * origin the figure loses digits; take a local origin there (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  xa,ya,za  A
 * @param[in]  xb,yb,zb  B
 * @param[in]  xq,yq,zq  Q
 * @param[out] status    outcome (TrvStatus): 0 done: always
 * @param[out] dist      distance; 0 where Q is on the line or very close to a short one (trvaxe);
 *                       the distance from A where A and B coincide (trvcnt)
 */
TRELVIN_ROUTINE trv3lda(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xq,
                        TrvIn yq, TrvIn zq, TrvIntOut status, TrvOut dist);

/**
 * Intersection of the lines A + t*u and C + s*w.
 *
 * Works in the frame of A, A + u and C + w, with A as the origin, and leaves A and C in it. Where C
 * + w is on the first line there is no such frame, and the point is A with status 0.
 *
 * Parallel lines have no point: the caller's xi and yi are read, as local coordinates, and come
 * back in global ones, with status 0.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[inout] xa,ya,za  A; zero afterwards; unchanged unless status is 0
 * @param[in]    ux,uy,uz  direction of the first line
 * @param[inout] xc,yc,zc  C; C - A afterwards; unchanged unless status is 0
 * @param[in]    wx,wy,wz  direction of the second line
 * @param[out]   status    outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line; 4
 *                         opposite_line; 6 skew; 7 no_length: a direction is within the tolerance
 *                         in each component
 * @param[inout] xi,yi     x and y of the point; read if the lines are parallel, as local
 *                         coordinates; unchanged unless status is 0
 * @param[out]   zi        z of the point; unwritten unless status is 0
 */
TRELVIN_ROUTINE trv3lni(TrvInOut xa, TrvInOut ya, TrvInOut za, TrvIn ux, TrvIn uy, TrvIn uz,
                        TrvInOut xc, TrvInOut yc, TrvInOut zc, TrvIn wx, TrvIn wy, TrvIn wz,
                        TrvIntOut status, TrvInOut xi, TrvInOut yi, TrvOut zi);

/**
 * Intersection of the line P + t*u with a plane.
 *
 * Far from the origin the figure loses digits; take a local origin there (trv3tra).
 *
 * Retains: nothing.
 *
 * @param[in]  x,y,z     P
 * @param[in]  ux,uy,uz  direction u, of any length
 * @param[in]  a,b,c,d   plane a*x + b*y + c*z + d = 0
 * @param[out] xi,yi,zi  point; unwritten if status is 3 or 4
 * @param[out] status    outcome: 0 done: the point is computed; 3 parallel: the line is parallel to
 *                       the plane, the cosine of u and the normal is within the tolerance; 4 zero:
 *                       u or the normal is within the tolerance in each component
 */
TRELVIN_ROUTINE trvpli(TrvIn x, TrvIn y, TrvIn z, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn a, TrvIn b,
                       TrvIn c, TrvIn d, TrvOut xi, TrvOut yi, TrvOut zi, TrvIntOut status);

/**
 * Position of a plane against the axes.
 *
 * A coefficient within the tolerance counts as zero. A plane whose normal is zero is reported as 7
 * or 10.
 *
 * Retains: nothing.
 *
 * @param[in]  a,b,c,d   plane a*x + b*y + c*z + d = 0
 * @param[out] position  position: 1 general: the plane is parallel to no axis; 2 parallel_x: the
 *                       plane is parallel to the x axis; 3 parallel_y: the plane is parallel to the
 *                       y axis; 4 parallel_z: the plane is parallel to the z axis; 5 normal_z: the
 *                       plane is normal to the z axis; 6 normal_x: the plane is normal to the x
 *                       axis; 7 normal_y: the plane is normal to the y axis; 8 at_z_zero: the plane
 *                       is z = 0; 9 at_x_zero: the plane is x = 0; 10 at_y_zero: the plane is y = 0
 */
TRELVIN_ROUTINE trvplp(TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvIntOut position);

/**
 * Points of a list near a line.
 *
 * Distances are those of trv3ldb: the vector to A takes A's y coordinate for its z component.
 *
 * The function is called in the processor's state as the host has it. It may change that state: the
 * change stays with the host and has no influence on the results. It may call routines of this
 * library. It may leave by longjmp or by a structured exception of Windows: the host then has its
 * own state, status and count are unwritten, and index holds the positions found so far. An
 * exception of C++ must not leave the function.
 *
 * Cost: takes time in proportion to n and no memory.
 *
 * Retains: nothing.
 *
 * @param[in]  xa,ya,za  A
 * @param[in]  xb,yb,zb  B
 * @param[in]  X,Y       arrays of n: x and y coordinates
 * @param[in]  zf        function that gives the z coordinate of the point at a position; called
 *                       with 1 to n in this order
 * @param[in]  n         number of points
 * @param[in]  tol       largest distance allowed, itself included; a NaN distance is not
 * @param[out] status    outcome (TrvStatus): 0 done: always; unwritten if n < 1
 * @param[out] count     how many are found
 * @param[out] index     array of n, count used: their positions, ascending
 */
TRELVIN_ROUTINE trvpnl(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvArrayIn X,
                       TrvArrayIn Y, TrvFunctionIn zf, TrvIntIn n, TrvIn tol, TrvIntOut status,
                       TrvIntOut count, TrvIntArrayOut index);

/**
 * Carries a point along when the line through it is moved.
 *
 * P and Q1 move by dP and dQ1; Q2 keeps its place on their line in proportion. Only the relation of
 * the lines Q2-P and Q1-P tells whether the three are collinear (trvdirl).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]    xp,yp,zp     P
 * @param[in]    x1,y1,z1     Q1
 * @param[inout] x2,y2,z2     Q2; unchanged if status is 0
 * @param[in]    dxp,dyp,dzp  move of P
 * @param[in]    dx1,dy1,dz1  move of Q1
 * @param[out]   status       outcome: 0 not_moved: the three points are not collinear, or Q1 is at
 *                            P; 3 moved_one_side: Q2 is moved, Q1 and Q2 are on one side of P; 4
 *                            moved_either_side: Q2 is moved, Q1 and Q2 are on either side of P; 6
 *                            moved_skew: Q2 is moved, rounding takes the three points for skew
 *                            lines; 7 moved_at_p: Q2 is moved, Q2 is at P, or Q1 is by each
 *                            coordinate yet not by its distance
 */
TRELVIN_ROUTINE trvlpc(TrvIn xp, TrvIn yp, TrvIn zp, TrvIn x1, TrvIn y1, TrvIn z1, TrvInOut x2,
                       TrvInOut y2, TrvInOut z2, TrvIn dxp, TrvIn dyp, TrvIn dzp, TrvIn dx1,
                       TrvIn dy1, TrvIn dz1, TrvIntOut status);

#endif
