// Pairs of numbers or points that match, and the places of those that are merged.
#pragma once

#include "vectors/vectors.h"

namespace trelvin {

// Numbers are points of the x axis. A size of less than 0 is 0.
struct RealList {
  const Real *values;
  Integer n;
  Point3 operator[](Integer i) const { return {values[i], 0, 0}; }
  [[nodiscard]] Integer size() const { return n < 0 ? 0 : n; }
};

struct PointList {
  const Real *x, *y, *z;
  Integer n;
  Point3 operator[](Integer i) const { return {x[i], y[i], z[i]}; }
  [[nodiscard]] Integer size() const { return n < 0 ? 0 : n; }
};

struct Partners {
  Integer pairs;
  Integer partnered;  // entries of the first list in a pair
};

// Both write pairs of entries by position in `a`, then in `b`, from 1. Numbers make a pair if their
// difference is at most the tolerance, so that equal infinities, which have none, do not. Points make
// a pair if they agree.
Partners pair_numbers(RealList a, RealList b, Real tol, Integer *ia, Integer *ib);
Partners pair_points(const PointList &a, const PointList &b, Real tol, Integer *ia, Integer *ib);

// Writes `a`, then the entries of `b` that agree with none before them, and for each entry of `b` the
// first position, from 1, that it agrees with. Returns the number of entries.
Integer join_new(RealList a, RealList b, Real tol, Real *joined, Integer *positions_of_b);

// Three lists of points, merged: pairs of the first and second, second and third, third and first,
// and the place of each point, from 1.
struct MergedPoints {
  Integer *first_of_pair[3], *second_of_pair[3];
  SpaceArrays places;
  Integer *place_of[3];
};

struct MergedCounts {
  Integer pairs[3];
  Integer places;
};

// A point is at the first place that it agrees with, else it makes a new one.
MergedCounts merge_points(const PointList (&lists)[3], Real tol, const MergedPoints &merged);

}  // namespace trelvin
