/**
 * @file
 * Frames of space, and transformations of points.
 *
 * A frame matrix is nine Reals, the unit axes e1, e2, e3 of a right-handed local frame by their
 * global components.
 *
 * The three-point test trvpsl retains a cosine between calls, and every routine that runs the test
 * shares it: all that build a frame or a plane from three points or relate two lines.
 *
 *     float p[3] = {5, 6, 7}, one = 1, zero = 0;
 *     int32_t mode = 2; // into the frame whose axes are along the global y, z and x axes
 *     trvtrn(p, &zero, &one, &zero, &zero, &zero, &one, &one, &zero, &zero, &mode);
 *     printf("%g %g %g\n", p[0], p[1], p[2]);
 *     // prints 6 7 5
 */
#ifndef TRELVIN_FRAMES_H
#define TRELVIN_FRAMES_H

#include "trelvin/calling.h"

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

#endif
