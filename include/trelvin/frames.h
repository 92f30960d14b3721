/**
 * @file
 * Frames of space, and transformations of points.
 *
 * A frame matrix is nine Reals: the global components of the unit axes e1, e2, e3 of a right-handed
 * local frame.
 *
 * The three-point test trvpsl retains a cosine between calls. All routines that run the test share
 * this cosine: those that build a frame or a plane from three points, and those that find the
 * relation of two lines.
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
 * The points count as collinear (status 3, 4 or 5) if the angle at P2 is within 0.00447 radians of
 * pi or 0, since its cosine is compared within the tolerance. Example: a point 6 mm beside the
 * middle of a 6 m segment counts as on the segment.
 *
 * Caution: if P2 matches P0 or P1 within the tolerance in each coordinate, but is farther from it
 * than the tolerance, the cosine of the last call that computed one is used (0 after loading). P0 =
 * P1 is not tested and gives status 0. So does a P2 on the line if its computed distances from P0
 * and P1 are equal.
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
 * Cost: time grows with n; nothing is allocated.
 *
 * Retains: nothing.
 *
 * @param[inout] X,Y,Z     arrays of n: coordinates; dx, dy and dz are subtracted
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
 * @param[in]    a1,a2,a3,a4,a5,a6,a7,a8,a9  frame matrix: the global components of the unit axes
 *                                           e1, e2 and e3 of a frame, as trvaxe gives them; may be
 *                                           elements of p
 * @param[in]    mode                        1 transforms local coordinates to global orientation
 *                                           (the transpose); any other value global to local
 */
TRELVIN_ROUTINE trvtrn(TrvArrayInOut p, TrvIn a1, TrvIn a2, TrvIn a3, TrvIn a4, TrvIn a5, TrvIn a6,
                       TrvIn a7, TrvIn a8, TrvIn a9, TrvIntIn mode);

/**
 * Frame of the plane through three points.
 *
 * e1 is the direction from P0 to P1, e3 is the normal, and e2 = e3 x e1. The normal is oriented
 * towards +y if the y component of (P1 - P0) x (P2 - P0) is above the tolerance, else towards +z if
 * the z component is, else towards +x.
 *
 * Caution: an axis stays zero if its length before normalising is below 1e-5, although the status
 * is 0. All three axes are zero if P0 = P1; e2 and e3 are if the points are very close.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  x0,y0,z0     P0
 * @param[in]  x1,y1,z1     P1
 * @param[in]  x2,y2,z2     P2
 * @param[out] e1x,e1y,e1z  first axis
 * @param[out] e2x,e2y,e2z  second axis
 * @param[out] e3x,e3y,e3z  third axis; all nine components are zero if status is -2
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
 * At angle 0, e2 is the unit vector of the global y axis minus its component along e1, and e3 = e1
 * x e2. A positive angle rotates both right-handedly about e1.
 *
 * Caution: an axis along y (a column) has no such e2. e2 and e3 are then NaN or infinite, although
 * the status is 0. Use trvaxe with a third point instead.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0,z0     P0
 * @param[in]  x1,y1,z1     P1
 * @param[in]  angle        rotation of e2 and e3 about e1 in radians
 * @param[out] e1x,e1y,e1z  first axis
 * @param[out] e2x,e2y,e2z  second axis
 * @param[out] e3x,e3y,e3z  third axis; all nine components are zero if status is -2
 * @param[out] status       outcome (TrvFrame): 0 done: also for an axis along y; -2 no_frame: the
 *                          distance of P0 and P1 is within the tolerance
 */
TRELVIN_ROUTINE trvaxel(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn angle,
                        TrvOut e1x, TrvOut e1y, TrvOut e1z, TrvOut e2x, TrvOut e2y, TrvOut e2z,
                        TrvOut e3x, TrvOut e3y, TrvOut e3z, TrvIntOut status);

/**
 * Shifts points and rotates them about the global axes x, y and z, in this order and in place.
 *
 * The rotations are those of trvrotx, trvroty and trvrotz with mode 2: right-handed about x and z,
 * left-handed about y. The shift is skipped if no component is above the tolerance. A rotation is
 * skipped if its angle is not above the tolerance.
 *
 * Cost: time grows with n; nothing is allocated.
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
 * Shifts points and rotates them in the frame of three points, in place.
 *
 * In local coordinates each point is shifted by (dx, dy, dz), then rotated about the local axes x,
 * y and z as by trvrotx, trvroty and trvrotz with mode 2: right-handed about x and z, left-handed
 * about y. No rotation is skipped. Caution: if the frame has a zero axis (trvaxe), the points lose
 * that coordinate.
 *
 * Single inputs may be elements of the arrays, and P0 to P2 may be some of the points: they are
 * read before a point is moved.
 *
 * Cost: time grows with n; nothing is allocated.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]    x0,y0,z0  P0, the origin of the frame
 * @param[in]    x1,y1,z1  P1
 * @param[in]    x2,y2,z2  P2
 * @param[inout] X,Y,Z     arrays of n: coordinates; unchanged if status is -2
 * @param[in]    n         number of points; below 1 only the status is written
 * @param[in]    dx,dy,dz  shift in local coordinates, before the rotations
 * @param[in]    ax,ay,az  angles in radians about the local axes x, y and z
 * @param[out]   status    outcome (TrvFrame): 0 done; -2 no_frame: P2 is at P0 or P1, or the three
 *                         points are on one line (trvpsl)
 */
TRELVIN_ROUTINE trvptrl(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                        TrvIn y2, TrvIn z2, TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z,
                        TrvIntIn n, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn ax, TrvIn ay, TrvIn az,
                        TrvIntOut status);

/**
 * Rotates points about the axis from P0 through P1, in place.
 *
 * Caution: if the axis is along the global y axis (a column), the points become NaN or infinite,
 * although the status is 0 (trvaxel). Use trv3tra and trvroty instead.
 *
 * Single inputs may be elements of the arrays, and P0 and P1 may be two of the points: they are
 * read before a point is moved.
 *
 * Cost: time grows with n; nothing is allocated.
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
 * Rotates points of a plane in the frame of the three points that span it, then shifts them, in
 * place.
 *
 * Unlike in trvptrl, the shift is in global coordinates and comes after the rotations. Caution: if
 * the frame has a zero axis (trvaxe), the points lose that coordinate.
 *
 * Single inputs may be elements of the arrays, and P0 to P2 may be some of the points: they are
 * read before a point is moved.
 *
 * Cost: time grows with n; nothing is allocated.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]    x0,y0,z0  P0, the origin of the frame
 * @param[in]    x1,y1,z1  P1
 * @param[in]    x2,y2,z2  P2
 * @param[in]    dx,dy,dz  shift in global coordinates, after the rotations
 * @param[in]    ax,ay,az  angles in radians about the local axes x, y and z, right-handed about x
 *                         and z, left-handed about y
 * @param[in]    n         number of points; below 1 only the status is written
 * @param[inout] X,Y,Z     arrays of n: coordinates; unchanged unless status is 0
 * @param[in]    tol       largest residual of a point of the plane (inclusive): the point's
 *                         distance times the length of (P1 - P0) x (P2 - P0), in the cube of the
 *                         length unit
 * @param[out]   status    outcome: 0 done: the points are moved; -1 no_frame: P2 is at P0 or P1, or
 *                         the three points are on one line (trvpsl); 1 to n: position of the first
 *                         point off the plane
 */
TRELVIN_ROUTINE trvppc(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn ax, TrvIn ay,
                       TrvIn az, TrvIntIn n, TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z,
                       TrvIn tol, TrvIntOut status);

#endif
