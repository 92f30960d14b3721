// Searching and joining of lists, and agreement of their entries.
#pragma once

#include "vectors/vectors.h"

namespace trelvin {

// Equal, or apart by at most a tolerance. A NaN agrees with nothing, an infinity with itself at any
// tolerance, and at a tolerance that is negative or NaN equal entries still agree.
inline bool agree(Real a, Real b, Real tol) { return (a == b) | (std::fabs(a - b) <= tol); }
inline bool agree(Point3 p, Point3 q, Real tol) {
  return agree(p.x, q.x, tol) & agree(p.y, q.y, tol) & agree(p.z, q.z, tol);
}

// Writes the positions, from 1, of the entries that equal a key, and returns how many they are.
Integer positions_of(Integer key, const Integer *list, Integer n, Integer *positions);

// Copies both lists end to end, bit for bit, and returns the number of entries.
Integer join(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *joined);

}  // namespace trelvin
