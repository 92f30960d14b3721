#include "lists/matching.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "lists/cell_index.h"

namespace trelvin {
namespace {

constexpr Integer few = 8;  // entries of the first list that do not repay an index of the second

// Calls `pair` on the positions, from 0, of all entries of two lists that `match`, by i, then by j.
template <class At, class BAt, class Match>
Partners match_lists(Integer na, At a, Integer nb, BAt b, Real tol, Match match, Integer *ia,
                     Integer *ib) {
  CellIndex index(na > few ? nb : 0, tol);
  for (Integer j = 0; j < nb; ++j) index.enter(b(j));
  Partners found = {0, 0};
  for (Integer i = 0; i < na; ++i) {
    const Integer before = found.pairs;
    const int cells = index.visit_candidates(a(i), [&](Integer j) {
      if (match(i, j)) ib[found.pairs++] = j + 1;
      return true;
    });
    if (found.pairs == before) continue;
    if (cells > 1) std::sort(ib + before, ib + found.pairs);
    std::fill(ia + before, ia + found.pairs, i + 1);
    ++found.partnered;
  }
  return found;
}

}  // namespace

Integer positions_of(Integer key, const Integer *list, Integer n, Integer *positions) {
  Integer found = 0;
  for (Integer i = 0; i < n; ++i) {
    if (list[i] == key) positions[found++] = i + 1;
  }
  return found;
}

Integer pairs_within(Real tol, RealList a, RealList b, Integer *ia, Integer *ib) {
  const auto on_axis = [](RealList list) {
    return [list](Integer i) { return Point3{list.values[i], 0, 0}; };
  };
  const auto match = [&](Integer i, Integer j) {
    return std::fabs(a.values[i] - b.values[j]) <= tol;
  };
  return match_lists(a.n, on_axis(a), b.n, on_axis(b), tol, match, ia, ib).pairs;
}

Partners agreeing_pairs(Real tol, const PointList &a, const PointList &b, Integer *ia,
                        Integer *ib) {
  const auto point_of = [](const PointList &list) {
    return [&list](Integer i) { return list[i]; };
  };
  const auto match = [&](Integer i, Integer j) { return agree(a[i], b[j], tol); };
  return match_lists(a.n, point_of(a), b.n, point_of(b), tol, match, ia, ib);
}

Integer join(const Integer *a, Integer na, const Integer *b, Integer nb, Integer *joined) {
  const Integer from_a = std::max(na, 0);
  const Integer from_b = std::max(nb, 0);
  std::memmove(joined, a, static_cast<std::size_t>(from_a) * sizeof(Integer));
  std::memmove(joined + from_a, b, static_cast<std::size_t>(from_b) * sizeof(Integer));
  return from_a + from_b;
}

}  // namespace trelvin
