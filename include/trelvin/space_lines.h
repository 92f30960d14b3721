/**
 * @file
 * Straight lines of space.
 *
 *     float xa = 0, ya = 0, za = 0, xb = 4, yb = 0, zb = 0; // one line along x,
 *     float xc = 0, yc = 0, zc = 3, xd = 0, yd = 4, zd = 3; // the other along y, 3 above it
 *     int32_t status;
 *     trvdirl(&xa, &ya, &za, &xb, &yb, &zb, &xc, &yc, &zc, &xd, &yd, &zd, &status);
 *     if (status == TRV_LINES_SKEW) printf("skew\n");
 *     // prints skew
 */
#ifndef TRELVIN_SPACE_LINES_H
#define TRELVIN_SPACE_LINES_H

#include "trelvin/calling.h"

/**
 * Relation of two lines.
 *
 * The lines are the same if C or D is on the line AB by the three-point test, which is made for C,
 * then for D. The lines are skew if the triple product of B - A, D - C and C - A is above the
 * tolerance. The triple product is not scaled, so long lines count as skew sooner.
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
 * Caution: the vector from Q to A uses A's y coordinate for its z component. So the result is the
 * distance only if the y and z of A are equal.
 *
 * Retains: nothing.
 *
 * @param[in]  xa,ya,za  A
 * @param[in]  xb,yb,zb  B
 * @param[in]  xq,yq,zq  Q
 * @param[out] status    outcome (TrvStatus): 0 done: always
 * @param[out] dist      distance, never negative; the distance from A if A and B coincide (trvcnt)
 */
TRELVIN_ROUTINE trv3ldb(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xq,
                        TrvIn yq, TrvIn zq, TrvIntOut status, TrvOut dist);

/**
 * Signed distance of a point from a line, in the plane of both.
 *
 * The sign is that of trvlds in the frame of A, B and Q, whose normal trvaxe orients towards +y,
 * else +z, else +x. It is positive to the right of the direction from A to B, as seen from the tip
 * of that normal. Caution: far from the origin the result loses digits; use a local origin
 * (trv3tra).
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[in]  xa,ya,za  A
 * @param[in]  xb,yb,zb  B
 * @param[in]  xq,yq,zq  Q
 * @param[out] status    outcome (TrvStatus): 0 done: always
 * @param[out] dist      distance; 0 if Q is on the line or very close to a short line (trvaxe); the
 *                       distance from A if A and B coincide (trvcnt)
 */
TRELVIN_ROUTINE trv3lda(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvIn xq,
                        TrvIn yq, TrvIn zq, TrvIntOut status, TrvOut dist);

/**
 * Intersection of the lines A + t*u and C + s*w.
 *
 * The routine works in the frame of A, A + u and C + w, with A as the origin, and returns A and C
 * in this frame. Caution: if C + w is on the first line, there is no such frame, and the result is
 * A with status 0.
 *
 * Caution: parallel lines have no intersection. The caller's xi and yi are then read as local
 * coordinates and returned as global ones, with status 0.
 *
 * Retains: the cosine of the three-point test (trvpsl).
 *
 * @param[inout] xa,ya,za  A; zero afterwards; unchanged unless status is 0
 * @param[in]    ux,uy,uz  direction of the first line
 * @param[inout] xc,yc,zc  C; C - A afterwards; unchanged unless status is 0
 * @param[in]    wx,wy,wz  direction of the second line
 * @param[out]   status    outcome (TrvTwoLines): 0 done: also for parallel lines; 3 same_line; 4
 *                         opposite_line; 6 skew; 7 no_length: all components of a direction are
 *                         within the tolerance
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
 * Caution: far from the origin the result loses digits; use a local origin (trv3tra).
 *
 * Retains: nothing.
 *
 * @param[in]  x,y,z     P
 * @param[in]  ux,uy,uz  direction u, of any length
 * @param[in]  a,b,c,d   plane a*x + b*y + c*z + d = 0
 * @param[out] xi,yi,zi  point; unwritten if status is 3 or 4
 * @param[out] status    outcome: 0 done: the point is computed; 3 parallel: the line is parallel to
 *                       the plane, since the cosine of the angle between u and the normal is within
 *                       the tolerance; 4 zero: all components of u, or of the normal, are within
 *                       the tolerance
 */
TRELVIN_ROUTINE trvpli(TrvIn x, TrvIn y, TrvIn z, TrvIn ux, TrvIn uy, TrvIn uz, TrvIn a, TrvIn b,
                       TrvIn c, TrvIn d, TrvOut xi, TrvOut yi, TrvOut zi, TrvIntOut status);

/**
 * Position of a plane relative to the axes.
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
 * Caution: the distances are those of trv3ldb, which uses A's y coordinate for the z component of
 * the vector to A.
 *
 * The function is called in the host's own floating-point environment. It may change this
 * environment: the change remains in the host and does not influence the results. The function may
 * call routines of this library. It may be left by longjmp or by a structured exception of Windows:
 * the host then has its own environment, status and count are unwritten, and index holds the
 * positions found so far. A C++ exception must not leave the function.
 *
 * Cost: time grows with n; nothing is allocated.
 *
 * Retains: nothing.
 *
 * @param[in]  xa,ya,za  A
 * @param[in]  xb,yb,zb  B
 * @param[in]  X,Y       arrays of n: x and y coordinates
 * @param[in]  zf        function that returns the z coordinate of the point at a position; called
 *                       with 1 to n in this order
 * @param[in]  n         number of points
 * @param[in]  tol       largest distance allowed (inclusive); a point with a NaN distance is not
 *                       found
 * @param[out] status    outcome (TrvStatus): 0 done: always; unwritten if n < 1
 * @param[out] count     number of points found
 * @param[out] index     array of n, count used: positions of these points, ascending
 */
TRELVIN_ROUTINE trvpnl(TrvIn xa, TrvIn ya, TrvIn za, TrvIn xb, TrvIn yb, TrvIn zb, TrvArrayIn X,
                       TrvArrayIn Y, TrvFunctionIn zf, TrvIntIn n, TrvIn tol, TrvIntOut status,
                       TrvIntOut count, TrvIntArrayOut index);

/**
 * Carries a point along when the line through it is moved.
 *
 * P and Q1 move by dP and dQ1. Q2 moves so that the ratio of its distance from P to that of Q1
 * stays the same. Only the relation of the lines Q2-P and Q1-P (trvdirl) decides whether the three
 * points are collinear.
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
 *                            moved_skew: Q2 is moved, although the lines count as skew because of
 *                            rounding; 7 moved_at_p: Q2 is moved, Q2 coincides with P, or each
 *                            coordinate of Q1 is within the tolerance of P's although their
 *                            distance is above it
 */
TRELVIN_ROUTINE trvlpc(TrvIn xp, TrvIn yp, TrvIn zp, TrvIn x1, TrvIn y1, TrvIn z1, TrvInOut x2,
                       TrvInOut y2, TrvInOut z2, TrvIn dxp, TrvIn dyp, TrvIn dzp, TrvIn dx1,
                       TrvIn dy1, TrvIn dz1, TrvIntOut status);

#endif
