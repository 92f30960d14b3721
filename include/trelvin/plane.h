/**
 * @file
 * Points, vectors, straight lines and angles.
 *
 * A plane line is the triple (a, b, c) of a*x + b*y + c = 0. The length of its normal (a, b)
 * depends on the routine that constructs it; only trvlds divides by sqrt(a*a + b*b). A plane of
 * space is the quadruple (a, b, c, d) of a*x + b*y + c*z + d = 0.
 *
 * Caution: the coefficients of lines and planes lose digits far from the origin, because the
 * constant grows with the coordinates and cancels again. At 1e5 units, a distance from a line
 * (trvlds) or an intersection (trvlni) has no correct digit left. Use a local origin (trvtra,
 * trv3tra).
 *
 *     float a1 = 1, b1 = 0, c1 = -4, a2 = 0, b2 = 1, c2 = -3, x, y;
 *     int32_t status;
 *     trvlni(&a1, &b1, &c1, &a2, &b2, &c2, &status, &x, &y); // x = 4 and y = 3
 *     if (status == TRV_PLANE_LINES_ONE_POINT) printf("(%g, %g)\n", x, y);
 *     // prints (4, 3)
 */
#ifndef TRELVIN_PLANE_H
#define TRELVIN_PLANE_H

#include "trelvin/calling.h"

/* Points and vectors ------------------------------------------------------------------------- */

/**
 * Distance between two points.
 *
 * d = sqrt((dx*dx + dy*dy) + dz*dz). For a distance in the plane pass z1 = z2.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1,z1  first point
 * @param[in]  x2,y2,z2  second point
 * @param[out] d         distance
 */
TRELVIN_ROUTINE trvpds(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvOut d);

/**
 * Dot product of the difference vectors P2 - P1 and P4 - P3.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[in]  x3,y3,z3  P3
 * @param[in]  x4,y4,z4  P4
 * @param[out] s         dot product, in the square of the length unit
 */
TRELVIN_ROUTINE trvpri(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvOut s);

/**
 * Cross product (P2 - P1) x (P4 - P3).
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[in]  x3,y3,z3  P3
 * @param[in]  x4,y4,z4  P4
 * @param[out] c         array of 3: components of the product, in the square of the length unit
 */
TRELVIN_ROUTINE trvpre(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvArrayOut c);

/**
 * Difference vector of two points, and whether they coincide.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1,z1  first point
 * @param[in]  x2,y2,z2  second point
 * @param[out] dx,dy,dz  second point minus first; always written
 * @param[out] status    coincidence (TrvCoincidence): 1 coincident: each difference is within the
 *                       tolerance; 0 distinct: a difference is above the tolerance or NaN
 */
TRELVIN_ROUTINE trvcnt(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvOut dx,
                       TrvOut dy, TrvOut dz, TrvIntOut status);

/**
 * Whether a vector is exactly zero; unlike trvcnt, no tolerance applies.
 *
 * Retains: nothing.
 *
 * @param[in]  dx,dy,dz  vector
 * @param[out] status    test: 1 zero: all components are zero, of either sign; 0 nonzero: a
 *                       component is not zero, or is NaN
 */
TRELVIN_ROUTINE trvcnt1(TrvIn dx, TrvIn dy, TrvIn dz, TrvIntOut status);

/**
 * Point P1 + t*(P2 - P1) on the line through two points.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1,z1  P1, found at t = 0
 * @param[in]  x2,y2,z2  P2, found at t = 1
 * @param[in]  t         fraction of the segment, not a length; any value
 * @param[out] x,y,z     point; unwritten if status is 1
 * @param[out] status    outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident:
 *                       P1 and P2 coincide within the tolerance (trvcnt)
 */
TRELVIN_ROUTINE trv123(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn t,
                       TrvOut x, TrvOut y, TrvOut z, TrvIntOut status);

/**
 * Midpoint of two points.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1,z1  first point
 * @param[in]  x2,y2,z2  second point
 * @param[out] xm,ym,zm  midpoint
 */
TRELVIN_ROUTINE trvmed(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvOut xm,
                       TrvOut ym, TrvOut zm);

/**
 * Determinant of the 2 x 2 matrix with rows (a, b) and (c, d).
 *
 * Retains: nothing.
 *
 * @param[in]  a,b,c,d  elements, row by row
 * @param[out] det      a*d - b*c
 */
TRELVIN_ROUTINE trvdtr2(TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvOut det);

/**
 * Determinant of a 3 x 3 matrix, expanded along its first row.
 *
 * Retains: nothing.
 *
 * @param[in]  a1,a2,a3  first row
 * @param[in]  b1,b2,b3  second row
 * @param[in]  c1,c2,c3  third row
 * @param[out] det       determinant
 */
TRELVIN_ROUTINE trvdtr3(TrvIn a1, TrvIn a2, TrvIn a3, TrvIn b1, TrvIn b2, TrvIn b3, TrvIn c1,
                        TrvIn c2, TrvIn c3, TrvOut det);

/**
 * Divides two coefficients by a third, or gives zeros if the third is zero within the tolerance.
 *
 * Retains: nothing.
 *
 * @param[in]  a,b,c  coefficients of a relation, a leading
 * @param[out] q1     c/a, or 0 if a is within the tolerance or NaN
 * @param[out] q2     b/a, or 0 if a is within the tolerance or NaN
 */
TRELVIN_ROUTINE trvgrc(TrvIn a, TrvIn b, TrvIn c, TrvOut q1, TrvOut q2);

/**
 * Linear interpolation, or extrapolation, through two samples.
 *
 * y = ((y2 - y1)*(x - x1)) / (x2 - x1) + y1.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,x2  abscissas of the samples
 * @param[in]  y1,y2  ordinates of the samples
 * @param[in]  x      abscissa at which to interpolate
 * @param[out] y      ordinate; infinite or NaN if x1 = x2
 */
TRELVIN_ROUTINE trvint(TrvIn x1, TrvIn x2, TrvIn y1, TrvIn y2, TrvIn x, TrvOut y);

/**
 * Sign of a value.
 *
 * Retains: nothing.
 *
 * @param[in]  u1        ignored
 * @param[in]  v         value
 * @param[in]  u3,u4,u5  ignored
 * @param[out] status    sign: 1 positive: v is positive; 2 not_positive: v is zero, negative or NaN
 */
TRELVIN_ROUTINE trvvin(TrvIn u1, TrvIn v, TrvIn u3, TrvIn u4, TrvIn u5, TrvIntOut status);

/**
 * Interval of an ascending table that holds a value.
 *
 * Retains: nothing.
 *
 * @param[in]  n  number of elements
 * @param[in]  A  array of n: elements, ascending
 * @param[in]  x  value
 * @param[out] i  first i with A(i) <= x < A(i+1); 0 if there is none, for example if x = A(n)
 */
TRELVIN_ROUTINE trvpos(TrvIntIn n, TrvArrayIn A, TrvIn x, TrvIntOut i);

/**
 * Element of an ascending table that equals a value, or the interval that holds it.
 *
 * An equal element anywhere in the table has priority over an interval.
 *
 * Retains: nothing.
 *
 * @param[in]  n       number of elements
 * @param[in]  A       array of n: elements, ascending
 * @param[in]  x       value
 * @param[out] status  what was found: 1 at_entry: A(i) equals x within the tolerance; 2 between:
 *                     A(i) < x < A(i+1); 0 neither: x equals no element and lies in no interval
 * @param[out] i       first such position; 0 if status is 0
 */
TRELVIN_ROUTINE trvpos1(TrvIntIn n, TrvArrayIn A, TrvIn x, TrvIntOut status, TrvIntOut i);

/* Straight lines ----------------------------------------------------------------------------- */

/**
 * Line through two points.
 *
 * a = y2 - y1, b = 0 - (x2 - x1), c = y1*x2 - y2*x1: the normal (a, b) points to the right of the
 * direction from P1 to P2 and is as long as the segment.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1  P1
 * @param[in]  x2,y2  P2
 * @param[out] a,b,c  line; all zero if the points are equal
 */
TRELVIN_ROUTINE trvln3(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvOut a, TrvOut b, TrvOut c);

/**
 * Line through a point at an angle to the x axis.
 *
 * An angle closer than 1e-5 to pi/2 or -pi/2 gives the vertical line (1, 0, 0 - x0), and so does a
 * NaN. Every other angle, 3*pi/2 included, gives (tan(phi), -1, y0 - tan(phi)*x0).
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0  point
 * @param[in]  phi    angle in radians, counter-clockwise
 * @param[out] a,b,c  line
 */
TRELVIN_ROUTINE trvln1(TrvIn x0, TrvIn y0, TrvIn phi, TrvOut a, TrvOut b, TrvOut c);

/**
 * Line through a point with a direction.
 *
 * (dy/dx, -1, y0 - (dy*x0)/dx), or the vertical line (1, 0, 0 - x0) if dx is exactly zero; no
 * tolerance applies.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0  point
 * @param[in]  dx,dy  direction, of any length
 * @param[in]  u      ignored
 * @param[out] a,b,c  line
 */
TRELVIN_ROUTINE trvln4(TrvIn x0, TrvIn y0, TrvIn dx, TrvIn dy, TrvIn u, TrvOut a, TrvOut b,
                       TrvOut c);

/**
 * Line parallel to a line at a signed distance.
 *
 * By trvlds, points of the new line have the distance d from the given line.
 *
 * Retains: nothing.
 *
 * @param[in]  a,b,c     line
 * @param[in]  d         distance, positive towards the normal (a, b)
 * @param[out] a2,b2,c2  parallel line: (a, b, c - sqrt(a*a + b*b)*d)
 */
TRELVIN_ROUTINE trvln2(TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvOut a2, TrvOut b2, TrvOut c2);

/**
 * Internal bisector of the angle at P0 between the rays to P1 and P2.
 *
 * The normal (a, b) is the difference of the unit vectors towards P1 and P2, times both lengths.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0  vertex P0
 * @param[in]  x1,y1  P1
 * @param[in]  x2,y2  P2
 * @param[out] a,b,c  line; all three are zero if a ray has zero length, and zero up to rounding
 *                    errors if both rays have the same direction
 */
TRELVIN_ROUTINE trvln5(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvOut a,
                       TrvOut b, TrvOut c);

/**
 * Signed distance of a point from a line.
 *
 * d = ((a*x + b*y) + c) / sqrt(a*a + b*b), positive on the side the normal (a, b) points to.
 *
 * Retains: nothing.
 *
 * @param[in]  x,y    point
 * @param[in]  a,b,c  line
 * @param[out] d      signed distance; infinite or NaN if a = b = 0
 */
TRELVIN_ROUTINE trvlds(TrvIn x, TrvIn y, TrvIn a, TrvIn b, TrvIn c, TrvOut d);

/**
 * Intersection of two lines.
 *
 * The lines intersect if the determinant a1*b2 - a2*b1 is above the tolerance. Otherwise they are
 * distinct if b1*c2 - b2*c1 or a2*c1 - a1*c2 is above the tolerance. These values are not scaled:
 * lines with small coefficients count as parallel, and as the same line, sooner.
 *
 * Retains: nothing.
 *
 * @param[in]  a1,b1,c1  first line
 * @param[in]  a2,b2,c2  second line
 * @param[out] status    relation (TrvPlaneLines): 0 one_point; 1 same_line; 2 parallel
 * @param[out] x,y       point; unwritten if status is 1 or 2
 */
TRELVIN_ROUTINE trvlni(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn a2, TrvIn b2, TrvIn c2, TrvIntOut status,
                       TrvOut x, TrvOut y);

/**
 * Distance of two parallel lines.
 *
 * Retains: nothing.
 *
 * @param[in]  a1,b1,c1  first line
 * @param[in]  a2,b2,c2  second line
 * @param[out] d         signed distance of the second line from the first, positive towards the
 *                       normal (a1, b1); trvln2 with this distance gives the second line from the
 *                       first; 0 if status is 1; formed in double precision and rounded once;
 *                       unwritten if status is 0
 * @param[out] status    relation (TrvPlaneLines): 0 one_point; 1 same_line; 2 parallel: the lines
 *                       are parallel and distinct, as trvlni finds
 */
TRELVIN_ROUTINE trvlul(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn a2, TrvIn b2, TrvIn c2, TrvOut d,
                       TrvIntOut status);

/**
 * Which components of two triples differ by more than the tolerance.
 *
 * Retains: nothing.
 *
 * @param[in]  p1,p2,p3  first triple
 * @param[in]  q1,q2,q3  second triple
 * @param[out] code      which components of p - q are above the tolerance (TrvComponents): 0 none;
 *                       1 all; 2 first; 3 second; 4 third; 5 first_second; 6 second_third; 7
 *                       first_third
 */
TRELVIN_ROUTINE trvpsn(TrvIn p1, TrvIn p2, TrvIn p3, TrvIn q1, TrvIn q2, TrvIn q3, TrvIntOut code);

/**
 * Whether a point lies on the line of space through P0 with direction D.
 *
 * The point of the line is computed at a coordinate of P along which D is above the tolerance. Each
 * other coordinate of P must match that point within tol.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0,z0  P0
 * @param[in]  dx,dy,dz  direction D, of any length
 * @param[in]  px,py,pz  point P
 * @param[in]  tol       largest coordinate difference allowed (inclusive)
 * @param[out] code      which components of (P0 + D) - P0 are above the tolerance (TrvComponents):
 *                       0 none; 1 all; 2 first; 3 second; 4 third; 5 first_second; 6 second_third;
 *                       7 first_third
 * @param[out] on        test (TrvOnLine): 1 yes: P lies on the line; 0 no: P does not lie on the
 *                       line, or code is 0
 */
TRELVIN_ROUTINE trvln6(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn px,
                       TrvIn py, TrvIn pz, TrvIn tol, TrvIntOut code, TrvIntOut on);

/**
 * Direction of the line of two planes, and whether a point matches it at a retained coordinate.
 *
 * The line is followed along the first of x, y, z whose component of (ex, ey, ez) is above the
 * tolerance. Caution: it is evaluated at a coordinate that is kept from the previous call, not at
 * the coordinate of P. The kept coordinates X, Y and Z are zero after loading; each call overwrites
 * the two that it computes. The point matches if its other two coordinates are those computed.
 * Along y, because of the sign of ey, z is that of the line at minus the kept coordinate. A call
 * with planes that are nearly parallel, infinite or NaN can leave infinite or NaN coordinates, from
 * which no later call recovers.
 *
 * Retains: the coordinates X, Y, Z (trvln7).
 *
 * @param[in]  a1,b1,c1,d1  first plane
 * @param[in]  a2,b2,c2,d2  second plane
 * @param[in]  px,py,pz     point P
 * @param[out] ex           b1*c2 - c1*b2
 * @param[out] ey           a1*c2 - c1*a2, the second component of the cross product negated
 * @param[in]  ez           third component: read, neither computed nor written
 * @param[in]  tol          largest coordinate difference allowed (inclusive)
 * @param[out] code         which components of (ex, ey, ez) are above the tolerance
 *                          (TrvComponents): 0 none; 1 all; 2 first; 3 second; 4 third; 5
 *                          first_second; 6 second_third; 7 first_third
 * @param[out] on           test (TrvOnLine): 1 yes: P matches the line at the kept coordinate; 0
 *                          no: P does not match the line at the kept coordinate
 */
TRELVIN_ROUTINE trvln7(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn d1, TrvIn a2, TrvIn b2, TrvIn c2,
                       TrvIn d2, TrvIn px, TrvIn py, TrvIn pz, TrvOut ex, TrvOut ey, TrvIn ez,
                       TrvIn tol, TrvIntOut code, TrvIntOut on);

/* Angles and directions ---------------------------------------------------------------------- */

/**
 * Angle at P0 between the rays to P1 and P2, in the plane.
 *
 * The angle has no sign. Caution: the cosine is not clamped. If rounding takes it beyond 1 or -1,
 * the angle is NaN; this can happen for collinear points.
 *
 * Small angles, and angles as close to pi, lose digits. Of 20,000 random pairs of rays, 1 to 1000
 * long and 4e-4 radians apart, 23 % give 0 and 1.3 % NaN; of pairs 5e-4 apart, 7 % give 0. Errors
 * reach 100 % at 6e-4 radians, 30 % at 1e-3 and 0.25 % at 1e-2. trvchi is accurate there.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0  vertex P0
 * @param[in]  x1,y1  P1
 * @param[in]  x2,y2  P2
 * @param[out] phi    angle in [0, pi]; 0 if a ray's length is within the tolerance
 */
TRELVIN_ROUTINE trvphi(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvOut phi);

/**
 * Angle at P0 between the rays to P1 and P2, in space.
 *
 * The angle has no sign. Caution: the cosine is not clamped. If rounding takes it beyond 1 or -1,
 * the angle is NaN. Small angles, and angles close to pi, lose digits as in trvphi; trvchi is
 * accurate there.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0,z0  vertex P0
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[out] phi       angle in [0, pi]; 0 if a ray's length is within the tolerance
 */
TRELVIN_ROUTINE trvphi3(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                        TrvIn y2, TrvIn z2, TrvOut phi);

/**
 * Angle between two vectors.
 *
 * The angle has no sign. Caution: the cosine is not clamped. If rounding takes it beyond 1 or -1,
 * the angle is NaN. Small angles, and angles close to pi, lose digits as in trvphi; trvchi is
 * accurate there.
 *
 * Retains: nothing.
 *
 * @param[in]  ux,uy,uz  u
 * @param[in]  vx,vy,vz  v
 * @param[out] phi       angle in [0, pi]; 0 if a vector's length is within the tolerance
 */
TRELVIN_ROUTINE trvphi1(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn vx, TrvIn vy, TrvIn vz, TrvOut phi);

/**
 * Angle between two lines given by their directions.
 *
 * Caution: small angles lose digits as in trvphi, and can be NaN. For lines that are nearly
 * parallel, use the cosine and the sine of trvtrg: the angle is atan2(sphi, |cphi|).
 *
 * Retains: nothing.
 *
 * @param[in]  ux,uy,uz  direction of the first line
 * @param[in]  vx,vy,vz  direction of the second line
 * @param[out] phi       angle in [0, pi/2]; unwritten on a condition: a direction's length is
 *                       within the tolerance
 * @param[out] status    outcome: -1 no_length: a direction's length is within the tolerance;
 *                       unwritten on a condition: neither direction's length is within the
 *                       tolerance, so it must be set beforehand
 */
TRELVIN_ROUTINE trvphip(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn vx, TrvIn vy, TrvIn vz, TrvOut phi,
                        TrvIntOut status);

/**
 * Directed angle at P0 from the ray to P1 to the ray to P2.
 *
 * The angle is counter-clockwise as seen from the tip of the normal (P1 - P0) x (P2 - P0). The
 * normal is oriented like the third axis of trvaxe: the first of its components y, z, x that is
 * above the tolerance becomes positive, or if there is none, the first that is not zero. So the
 * angle is counter-clockwise in the plane z = 0. It is formed in double precision, its normal with
 * twice the digits, and rounded once, so it is as accurate near 0, pi and 2*pi as elsewhere.
 *
 * Retains: nothing.
 *
 * @param[in]  x0,y0,z0  vertex P0
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[out] chi       angle in [0, 2*pi); unwritten if status is 1
 * @param[out] status    outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident:
 *                       P1 or P2 coincides with P0 (trvcnt)
 */
TRELVIN_ROUTINE trvchi(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2,
                       TrvIn y2, TrvIn z2, TrvOut chi, TrvIntOut status);

/**
 * Convexity of a closed outline, of either orientation.
 *
 * A vertex within the tolerance of the line through its neighbours counts as straight, unless the
 * outline turns back there. An outline is not convex if it has a spike, if all its vertices lie on
 * one line, or if a vertex is infinite or NaN.
 *
 * Retains: nothing.
 *
 * @param[in]  X,Y     arrays of n: vertices, the first not repeated
 * @param[in]  n       number of vertices
 * @param[out] status  test: 1 convex: the outline is convex; 0 not_convex: the outline is not
 *                     convex, or winds more than once; -1 refused: n < 3, or the length of a side
 *                     is within the tolerance
 */
TRELVIN_ROUTINE trvcnv(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIntOut status);

/**
 * Cosine and sine of the angle between P2 - P1 and P4 - P3.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[in]  x3,y3,z3  P3
 * @param[in]  x4,y4,z4  P4
 * @param[out] cphi      cosine; unwritten if status is 1
 * @param[out] sphi      sine, never negative; unwritten if status is 1
 * @param[out] status    outcome (TrvCoincidence): 0 distinct: the output is written; 1 coincident:
 *                       P1 and P2, or P3 and P4, coincide (trvcnt)
 */
TRELVIN_ROUTINE trvtrg(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvOut cphi, TrvOut sphi,
                       TrvIntOut status);

/**
 * Relation of two directions.
 *
 * The cosine of their angle decides, within the tolerance. If several codes apply, the result is
 * the highest. Directions up to 0.00447 radians apart, or 4.47 mm per metre, count as the same.
 *
 * Retains: nothing.
 *
 * @param[in]  ux,uy,uz  u
 * @param[in]  vx,vy,vz  v
 * @param[out] code      relation: 0 oblique: u and v have neither the same, opposite nor
 *                       perpendicular directions; 1 same: the directions are the same; 2 opposite:
 *                       the directions are opposite; 3 perpendicular: the directions are
 *                       perpendicular; 4 zero: all components of u, or of v, are within the
 *                       tolerance
 */
TRELVIN_ROUTINE trvdir(TrvIn ux, TrvIn uy, TrvIn uz, TrvIn vx, TrvIn vy, TrvIn vz, TrvIntOut code);

/**
 * Relation of two planes.
 *
 * The relation of the normals is that of trvdir. Planes up to 0.00447 radians apart count as
 * parallel. A normal counts as zero if all its components are within the tolerance.
 *
 * Planes with parallel normals are distinct if the ratio of their normals and the ratio of their
 * constants differ by more than the tolerance, and d1 or d2 is above the tolerance. The ratio of
 * the normals is taken at the last component that is above the tolerance in the second normal. The
 * ratio of the constants is 0 if d2 is within the tolerance.
 *
 * Retains: nothing.
 *
 * @param[in]  a1,b1,c1,d1  first plane
 * @param[in]  a2,b2,c2,d2  second plane
 * @param[out] code         relation: 0 crossing: the planes cross, not at a right angle; 1
 *                          parallel_same: the planes are parallel and distinct, their normals in
 *                          the same direction; 2 parallel_opposite: the planes are parallel and
 *                          distinct, their normals opposite; 3 coincident_same: the planes
 *                          coincide, their normals in the same direction; 4 coincident_opposite:
 *                          the planes coincide, their normals opposite; 5 perpendicular: the planes
 *                          are perpendicular; 6 zero_normal: a normal is zero
 */
TRELVIN_ROUTINE trvdirp(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn d1, TrvIn a2, TrvIn b2, TrvIn c2,
                        TrvIn d2, TrvIntOut code);

/**
 * Angles between the projections of P2 - P1 and P4 - P3 onto the coordinate planes.
 *
 * Each angle is that of trvphi1. Caution: its cosine is not clamped. If two projections are
 * parallel, rounding takes the cosine beyond 1 or -1 in about one call of five, and that angle is
 * NaN; in other calls the angle is off by up to 5e-4. If P2 - P1 and P4 - P3 lie in one coordinate
 * plane, their projections onto the other two planes are parallel, and a tenth of such calls gives
 * a NaN.
 *
 * Small angles, and angles close to pi, lose digits as in trvphi. For such angles, and for parallel
 * projections, use trvchi of the two projections, from the origin; if chi is above pi, the angle is
 * 2*pi - chi.
 *
 * Retains: nothing.
 *
 * @param[in]  x1,y1,z1  P1
 * @param[in]  x2,y2,z2  P2
 * @param[in]  x3,y3,z3  P3
 * @param[in]  x4,y4,z4  P4
 * @param[out] ax,ay,az  angles in [0, pi] or NaN, seen along the x, y and z axis; 0 if the length
 *                       of a projection is within the tolerance (trvphi1)
 */
TRELVIN_ROUTINE trvmov(TrvIn x1, TrvIn y1, TrvIn z1, TrvIn x2, TrvIn y2, TrvIn z2, TrvIn x3,
                       TrvIn y3, TrvIn z3, TrvIn x4, TrvIn y4, TrvIn z4, TrvOut ax, TrvOut ay,
                       TrvOut az);

/**
 * Moves the origin of plane points to (x0, y0), in place.
 *
 * Retains: nothing.
 *
 * @param[inout] X,Y    arrays of n: coordinates; x0 and y0 are subtracted
 * @param[in]    n      number of points; below 1 nothing happens
 * @param[in]    x0,y0  new origin; may be one of the points
 */
TRELVIN_ROUTINE trvtra(TrvArrayInOut X, TrvArrayInOut Y, TrvIntIn n, TrvIn x0, TrvIn y0);

/* Arrays ------------------------------------------------------------------------------------- */

/**
 * Reverses a list, in place. Elements move bit for bit, so the list may also hold Reals.
 *
 * Retains: nothing.
 *
 * @param[inout] V  array of n: the list
 * @param[in]    n  number of elements; below 2 nothing happens
 */
TRELVIN_ROUTINE trvinv(TrvIntArrayInOut V, TrvIntIn n);

/**
 * Inserts a list into another. Elements move bit for bit, so the lists may also hold Reals.
 *
 * Retains: nothing.
 *
 * @param[inout] V  array of n+m: the list, with space for the elements to insert; unchanged on a
 *                  condition: n is unchanged
 * @param[inout] n  number of its elements; n+m afterwards; unchanged on a condition: k is negative
 *                  or above n, or m < 1
 * @param[in]    k  position after which to insert, 0 for the front
 * @param[in]    A  array of m: elements to insert
 * @param[in]    m  number of elements to insert
 */
TRELVIN_ROUTINE trvadr(TrvIntArrayInOut V, TrvIntInOut n, TrvIntIn k, TrvIntArrayIn A, TrvIntIn m);

#endif
