// Merging of lists.
#pragma once

#include "vectors/vectors.h"

namespace trelvin {

// Both sort and drop repeats, and return the number of entries left; a repeat is what agrees with
// the last entry left. The list's end is of no particular value.
Integer merge(Integer *list, Integer n);
Integer merge(Real *list, Integer n, Real tol);

// Drops vertices that agree with the last one left, at the end those that agree with the first, and
// returns the number of vertices left.
Integer merge_outline(const PlaneArrays &vertices, Integer n, Real tol);

// Puts those entries of `a` into `chosen` that `b` holds, or those that it does not hold, in their
// order, and returns how many they are. `chosen` may be `a`.
Integer common(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *chosen);
Integer difference(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *chosen);

}  // namespace trelvin
