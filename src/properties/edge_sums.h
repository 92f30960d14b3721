// Sums over the edges of a closed outline, in double precision and in a fixed grouping, so that every
// compiler and every width of vectors gives the same bits: fewer than `edges_for_lanes` edges are
// added from left to right; else edge i goes to lane i modulo 8, and the lanes are added in pairs,
// ((0 + 1) + (2 + 3)) + ((4 + 5) + (6 + 7)).
#pragma once

#include "numeric/real.h"

namespace trelvin {

constexpr Integer lanes = 8;
constexpr Integer edges_for_lanes = 2 * lanes;

template <int size>
struct Sums {
  static constexpr int count = size;
  double values[size];
};

using AreaSum = Sums<1>;           // twice the area
using FirstMomentSums = Sums<2>;   // six times Sx and Sy
using SecondMomentSums = Sums<3>;  // twelve times Ix and Iy, 24 times Ixy

// An outline of n edges has n + 1 vertices, the last of which is the first again.
AreaSum area_sum(const Real *x, const Real *y, Integer n);
FirstMomentSums first_moment_sums(const Real *x, const Real *y, Integer n);
SecondMomentSums second_moment_sums(const Real *x, const Real *y, Integer n);

// The sums by lanes, for `edges_for_lanes` edges or more, by the vectors of one instruction set.
struct SumsByLanes {
  AreaSum (*area)(const Real *x, const Real *y, Integer n);
  FirstMomentSums (*first_moments)(const Real *x, const Real *y, Integer n);
  SecondMomentSums (*second_moments)(const Real *x, const Real *y, Integer n);
};

extern const SumsByLanes baseline_sums;     // of the instructions that all of the library may use
extern const SumsByLanes *const avx2_sums;  // null if the library is compiled without

}  // namespace trelvin
