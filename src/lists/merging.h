// Merging of lists.
#pragma once

#include "lists/matching.h"
#include "vectors/vectors.h"

namespace trelvin {

// Both sort and drop repeats, and return the number of entries left; a repeat is what agrees with
// the last entry left. The list's end is of no particular value.
Integer merge(Integer *list, Integer n);
Integer merge(Real *list, Integer n, Real tol);

// Drops vertices that agree with the last one left, at the end those that agree with the first, and
// returns the number of vertices left.
Integer merge_outline(const PlaneArrays &vertices, Integer n, Real tol);

// Writes `a`, then the entries of `b` that agree with none before them, and for each entry of `b` the
// first position, from 1, that it agrees with. Returns the number of entries.
Integer join_new(RealList a, RealList b, Real tol, Real *joined, Integer *positions_of_b);

// Puts those entries of `a` into `chosen` that `b` holds, or those that it does not hold, in their
// order, and returns how many they are. `chosen` may be `a`.
Integer common(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *chosen);
Integer difference(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *chosen);

// Puts the points of three lists to places: each is at the first place that it agrees with, else it
// makes a new one. Writes the place of each point, from 1, and returns the number of places.
Integer put_to_places(const PointList (&lists)[3], Real tol, const SpaceArrays &places,
                      Integer *const (&place_of)[3]);

}  // namespace trelvin
