// Searching and joining of lists, and agreement of their entries.
#pragma once

#include "vectors/vectors.h"

namespace trelvin {

// Equal, or apart by at most a tolerance. A NaN agrees with nothing, an infinity with itself at any
// tolerance, and at a tolerance that is negative or NaN equal entries still agree.
inline bool agree(Real a, Real b, Real tol) { return a == b || std::fabs(a - b) <= tol; }
inline bool agree(Point3 p, Point3 q, Real tol) {
  return agree(p.x, q.x, tol) && agree(p.y, q.y, tol) && agree(p.z, q.z, tol);
}

// Writes the positions, from 1, of the entries that equal a key, and returns how many they are.
Integer positions_of(Integer key, const Integer *list, Integer n, Integer *positions);

struct RealList {
  const Real *values;
  Integer n;
};

// A list of points; less than none is none.
struct PointList {
  const Real *x, *y, *z;
  Integer n;
  Point3 operator[](Integer i) const { return {x[i], y[i], z[i]}; }
};

// Pairs by position in `a`, then in `b`, from 1; returned is their number. A difference of at most
// the tolerance makes a pair: not agreement, since equal infinities have none.
Integer pairs_within(Real tol, RealList a, RealList b, Integer *ia, Integer *ib);

struct Partners {
  Integer pairs;
  Integer partnered;  // points of the first list in a pair
};

// Pairs of points that agree, by position in `a`, then in `b`, from 1.
Partners agreeing_pairs(Real tol, const PointList &a, const PointList &b, Integer *ia, Integer *ib);

// Copies both lists end to end, bit for bit, and returns the number of entries.
Integer join(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *joined);

}  // namespace trelvin
