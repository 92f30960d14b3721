// Ordering of lists.
#pragma once

#include "plane/lines.h"
#include "vectors/vectors.h"

namespace trelvin {

// Sorts in the ascending order of a selection sort that takes the last of equal smallest entries. A NaN
// stays where it is; the order of -0 and 0 follows from the swaps.
void sort_selecting(Real *list, Integer n);

// Ascending: -0 before 0, NaNs last.
void sort(Integer *list, Integer n);
void sort(Real *list, Integer n);

// The Reals of a list or, if there are divisors, 0 less their quotients.
struct Entries {
  const Real *values;
  const Real *divisors = nullptr;
  Real operator[](Integer i) const {
    return divisors == nullptr ? values[i] : 0 - values[i] / divisors[i];
  }
};

// Positions, from 1, of the entries in ascending order, equal ones from the highest position down. A
// found entry counts as the largest plus 1 from then on. A round whose entry is NaN writes no position.
void order(Entries list, Integer n, Integer *positions);

struct LineArrays {
  const Real *a, *b, *c;
  Line operator[](Integer i) const { return {a[i], b[i], c[i]}; }
};

bool parallel_and_distinct(const LineArrays &lines, Integer n);

// Positions of parallel lines by their crossing of an axis, as `order` gives them.
void order_parallels(const LineArrays &lines, Integer n, Integer *positions);

struct Quadrilateral {
  Point3 corners[4];
};

// The corners' positions, from 1, in a cyclic order.
const Integer *cyclic_order(const Quadrilateral &q);

}  // namespace trelvin
