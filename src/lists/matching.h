// Searching and joining of lists, and agreement of their entries.
#pragma once

#include <cmath>

#include "vectors/vectors.h"

namespace trelvin {

// Equal, or apart by at most a tolerance. A NaN agrees with nothing, an infinity with itself at any
// tolerance, and at a tolerance that is negative or NaN equal entries still agree.
//
// All comparisons are made, since their outcomes are hard to predict.
inline bool agree(Real a, Real b, Real tol) {
  const int equal = a == b ? 1 : 0;
  const int close = std::fabs(a - b) <= tol ? 1 : 0;
  return (equal | close) != 0;
}
inline bool agree(Point3 p, Point3 q, Real tol) {
  const int x = agree(p.x, q.x, tol) ? 1 : 0;
  const int y = agree(p.y, q.y, tol) ? 1 : 0;
  const int z = agree(p.z, q.z, tol) ? 1 : 0;
  return (x & y & z) != 0;
}

// Writes the positions, from 1, of the entries that equal a key, and returns how many they are.
Integer positions_of(Integer key, const Integer *list, Integer n, Integer *positions);

// Copies both lists end to end, bit for bit, and returns the number of entries.
Integer join(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *joined);

}  // namespace trelvin
