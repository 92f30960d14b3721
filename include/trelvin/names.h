/**
 * @file
 * The values that belong to one routine each, by name. Shared ones are in values.h.
 *
 * Generated from include/trelvin by tools/generate.py.
 */
#ifndef TRELVIN_NAMES_H
#define TRELVIN_NAMES_H

/** trvcin: class. */
enum TrvcinPosition {
  /** the circle is not cut, its centre is above the x axis */
  TRVCIN_UNCUT_ABOVE = 1,
  /** the circle is not cut, its centre is on or below the x axis */
  TRVCIN_UNCUT_BELOW = 2,
  /** the circle is cut, its centre is below the x axis */
  TRVCIN_CUT_BELOW = 3,
  /** the circle is cut, its centre is on or above the x axis */
  TRVCIN_CUT_ABOVE = 4,
};

/** trvapp: where each point is. */
enum TrvappMark {
  /** the point is inside the sector */
  TRVAPP_INSIDE = 1,
  /** the point is outside the sector */
  TRVAPP_OUTSIDE = 2,
  /** the angle of the rays by trvphi is within the tolerance, so all points have this value */
  TRVAPP_NO_SECTOR = -1,
};

/** trvcer10: outcome. */
enum Trvcer10Status {
  /** the line crosses the chord, which is the normal result, or an intersection kept from an
   * earlier call lies on the chord's line but not at A or B (trvpsl above 2), or the input is
   * rejected, since the radius or the chord is within the tolerance or the radii of A and B differ
   * by more than the tolerance */
  TRVCER10_CROSSING_OR_REFUSED = 0,
  /** the line runs along the chord */
  TRVCER10_ALONG_CHORD = 1,
  /** the line is parallel to the chord */
  TRVCER10_PARALLEL = 2,
};

/** trvptp1: which points of A match a point of B. */
enum Trvptp1Status {
  /** no point of A matches a point of B */
  TRVPTP1_NO_PAIR = 0,
  /** some points of A match points of B, others do not */
  TRVPTP1_SOME_PAIRS = 1,
  /** every point of A matches a point of B */
  TRVPTP1_ALL_PAIRED = 2,
};

/** trvpin: where P1 is. */
enum TrvpinStatus {
  /** P1 is inside the outline by the even-odd rule */
  TRVPIN_INSIDE = 1,
  /** P1 is outside the outline by the even-odd rule */
  TRVPIN_OUTSIDE = 0,
  /** n < 3, or P1 and P2 coincide within the tolerance in both coordinates */
  TRVPIN_REFUSED = -1,
};

/** trvcnt1: test. */
enum Trvcnt1Status {
  /** all components are zero, of either sign */
  TRVCNT1_ZERO = 1,
  /** a component is not zero, or is NaN */
  TRVCNT1_NONZERO = 0,
};

/** trvvin: sign. */
enum TrvvinStatus {
  /** v is positive */
  TRVVIN_POSITIVE = 1,
  /** v is zero, negative or NaN */
  TRVVIN_NOT_POSITIVE = 2,
};

/** trvpos1: what was found. */
enum Trvpos1Status {
  /** A(i) equals x within the tolerance */
  TRVPOS1_AT_ENTRY = 1,
  /** A(i) < x < A(i+1) */
  TRVPOS1_BETWEEN = 2,
  /** x equals no element and lies in no interval */
  TRVPOS1_NEITHER = 0,
};

/** trvphip: outcome. */
enum TrvphipStatus {
  /** a direction's length is within the tolerance */
  TRVPHIP_NO_LENGTH = -1,
};

/** trvcnv: test. */
enum TrvcnvStatus {
  /** the outline is convex */
  TRVCNV_CONVEX = 1,
  /** the outline is not convex, or winds more than once */
  TRVCNV_NOT_CONVEX = 0,
  /** n < 3, or the length of a side is within the tolerance */
  TRVCNV_REFUSED = -1,
};

/** trvdir: relation. */
enum TrvdirCode {
  /** u and v have neither the same, opposite nor perpendicular directions */
  TRVDIR_OBLIQUE = 0,
  /** the directions are the same */
  TRVDIR_SAME = 1,
  /** the directions are opposite */
  TRVDIR_OPPOSITE = 2,
  /** the directions are perpendicular */
  TRVDIR_PERPENDICULAR = 3,
  /** all components of u, or of v, are within the tolerance */
  TRVDIR_ZERO = 4,
};

/** trvdirp: relation. */
enum TrvdirpCode {
  /** the planes cross, not at a right angle */
  TRVDIRP_CROSSING = 0,
  /** the planes are parallel and distinct, their normals in the same direction */
  TRVDIRP_PARALLEL_SAME = 1,
  /** the planes are parallel and distinct, their normals opposite */
  TRVDIRP_PARALLEL_OPPOSITE = 2,
  /** the planes coincide, their normals in the same direction */
  TRVDIRP_COINCIDENT_SAME = 3,
  /** the planes coincide, their normals opposite */
  TRVDIRP_COINCIDENT_OPPOSITE = 4,
  /** the planes are perpendicular */
  TRVDIRP_PERPENDICULAR = 5,
  /** a normal is zero */
  TRVDIRP_ZERO_NORMAL = 6,
};

/** trvppc: outcome. */
enum TrvppcStatus {
  /** the points are moved */
  TRVPPC_DONE = 0,
  /** P2 is at P0 or P1, or the three points are on one line (trvpsl) */
  TRVPPC_NO_FRAME = -1,
};

/** trvpl5: outcome. */
enum Trvpl5Status {
  /** the plane is computed */
  TRVPL5_DONE = 0,
  /** there is no plane, since an intercept is within the tolerance or NaN */
  TRVPL5_NO_PLANE = 1,
};

/** trvplv: relation. */
enum TrvplvStatus {
  /** u is exactly zero */
  TRVPLV_ZERO_U = -1,
  /** u and w have neither the same, opposite nor perpendicular directions */
  TRVPLV_OBLIQUE = 0,
  /** the directions are the same */
  TRVPLV_SAME = 3,
  /** the directions are opposite */
  TRVPLV_OPPOSITE = 4,
  /** the directions are perpendicular */
  TRVPLV_PERPENDICULAR = 5,
  /** all components of u, or of w, are within the tolerance */
  TRVPLV_ZERO = 7,
};

/** trv3sp: test. */
enum Trv3spStatus {
  /** the triple product of B - A, D - C and F - E is within the tolerance */
  TRV3SP_FLAT = 0,
  /** the triple product is above the tolerance, in the cube of the length unit */
  TRV3SP_SPANNING = 1,
};

/** trvpli: outcome. */
enum TrvpliStatus {
  /** the point is computed */
  TRVPLI_DONE = 0,
  /** the line is parallel to the plane, since the cosine of the angle between u and the normal is
   * within the tolerance */
  TRVPLI_PARALLEL = 3,
  /** all components of u, or of the normal, are within the tolerance */
  TRVPLI_ZERO = 4,
};

/** trvplp: position. */
enum TrvplpPosition {
  /** the plane is parallel to no axis */
  TRVPLP_GENERAL = 1,
  /** the plane is parallel to the x axis */
  TRVPLP_PARALLEL_X = 2,
  /** the plane is parallel to the y axis */
  TRVPLP_PARALLEL_Y = 3,
  /** the plane is parallel to the z axis */
  TRVPLP_PARALLEL_Z = 4,
  /** the plane is normal to the z axis */
  TRVPLP_NORMAL_Z = 5,
  /** the plane is normal to the x axis */
  TRVPLP_NORMAL_X = 6,
  /** the plane is normal to the y axis */
  TRVPLP_NORMAL_Y = 7,
  /** the plane is z = 0 */
  TRVPLP_AT_Z_ZERO = 8,
  /** the plane is x = 0 */
  TRVPLP_AT_X_ZERO = 9,
  /** the plane is y = 0 */
  TRVPLP_AT_Y_ZERO = 10,
};

/** trvlpc: outcome. */
enum TrvlpcStatus {
  /** the three points are not collinear, or Q1 is at P */
  TRVLPC_NOT_MOVED = 0,
  /** Q2 is moved, Q1 and Q2 are on one side of P */
  TRVLPC_MOVED_ONE_SIDE = 3,
  /** Q2 is moved, Q1 and Q2 are on either side of P */
  TRVLPC_MOVED_EITHER_SIDE = 4,
  /** Q2 is moved, although the lines count as skew because of rounding */
  TRVLPC_MOVED_SKEW = 6,
  /** Q2 is moved, Q2 coincides with P, or each coordinate of Q1 is within the tolerance of P's
   * although their distance is above it */
  TRVLPC_MOVED_AT_P = 7,
};

#endif
