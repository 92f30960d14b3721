// Ascending tables and interpolation in them.
#pragma once

#include "numeric/real.h"

namespace trelvin {

// Linear, through two samples.
inline Real interpolate(Real x1, Real x2, Real y1, Real y2, Real x) {
  return (y2 - y1) * (x - x1) / (x2 - x1) + y1;
}

// First position, from 1, with table(i) <= x < table(i + 1), or 0.
inline Integer interval_of(const Real *table, Integer n, Real x) {
  for (Integer k = 1; k < n; ++k) {
    if (table[k - 1] <= x && x < table[k]) return k;
  }
  return 0;
}

enum class TableMatch : Integer { none, equal, interval };

struct TablePlace {
  TableMatch match;
  Integer position;
};

// An equal entry anywhere goes before an interval, whose ends do not count.
inline TablePlace place_in_table(const Real *table, Integer n, Real x) {
  for (Integer k = 1; k <= n; ++k) {
    if (negligible(table[k - 1] - x)) return {TableMatch::equal, k};
  }
  for (Integer k = 1; k < n; ++k) {
    if (table[k - 1] < x && x < table[k]) return {TableMatch::interval, k};
  }
  return {TableMatch::none, 0};
}

}  // namespace trelvin
