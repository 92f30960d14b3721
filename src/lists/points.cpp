#include "lists/points.h"

#include <algorithm>
#include <cmath>

#include "lists/candidates.h"
#include "lists/matching.h"

namespace trelvin {
namespace {

Point3 point_at(RealList list, Integer i) { return {list.values[i], 0, 0}; }
Point3 point_at(const PointList &list, Integer i) { return {list.x[i], list.y[i], list.z[i]}; }

// Lists, one after the other.
template <class List, int count>
struct Chain {
  List lists[count];
  Integer starts[count + 1];

  [[nodiscard]] int list_of(Integer i) const {
    int list = 0;
    while (list + 1 < count && i >= starts[list + 1]) ++list;
    return list;
  }
  [[nodiscard]] Range range(int list) const {
    return {starts[list], starts[list + 1] - starts[list]};
  }
  [[nodiscard]] Integer size() const { return starts[count]; }
  Point3 operator()(Integer i) const {
    const int list = list_of(i);
    return point_at(lists[list], i - starts[list]);
  }
};

template <class List>
Chain<List, 2> chain(const List &a, const List &b) {
  const Integer na = std::max(a.n, 0);
  return {{a, b}, {0, na, na + std::max(b.n, 0)}};
}

template <class List, class Match>
Partners pair_up(const List &a, const List &b, Real tol, Match match, Integer *ia, Integer *ib) {
  const Range range_a = {0, std::max(a.n, 0)};
  const Range range_b = {0, std::max(b.n, 0)};
  const auto at_a = [&](Integer i) { return point_at(a, i); };
  const auto at_b = [&](Integer j) { return point_at(b, j); };
  const Candidates candidates(range_b.n, tol, at_b, range_a.n);
  const auto around = surroundings_of_list(range_a.n, at_a, candidates, range_b, match);
  return pair_up(range_a, range_b, at_a, candidates, around, match, ia, ib);
}

}  // namespace

Partners pair_up(RealList a, RealList b, Real tol, Integer *ia, Integer *ib) {
  const auto match = [=](Point3 p, Point3 q) { return std::fabs(p.x - q.x) <= tol; };
  return pair_up(a, b, tol, match, ia, ib);
}

Partners pair_up(const PointList &a, const PointList &b, Real tol, Integer *ia, Integer *ib) {
  const auto match = [=](Point3 p, Point3 q) { return agree(p, q, tol); };
  return pair_up(a, b, tol, match, ia, ib);
}

Integer join_new(RealList a, RealList b, Real tol, Real *joined, Integer *positions_of_b) {
  const Chain<RealList, 2> all = chain(a, b);
  const Integer na = all.range(0).n;
  Real *end = std::copy_n(a.values, na, joined);
  const auto match = [=](Point3 p, Point3 q) { return agree(p.x, q.x, tol); };
  const auto make = [&](Integer i) { *end++ = all(i).x; };
  const auto place = [&](Integer i) -> Integer & { return positions_of_b[i - na]; };
  const Candidates<Chain<RealList, 2>> candidates(all.size(), tol, all, all.range(1).n);
  const auto paired = [](Integer) { return Range{0, 0}; };
  const auto around = surroundings(candidates, all.size(), match, paired);
  return put_to_places(na, all.size(), all, candidates, around, match, make, place);
}

MergedCounts merge_points(const PointList (&lists)[3], Real tol, const MergedPoints &merged) {
  Chain<PointList, 3> all = {{lists[0], lists[1], lists[2]}, {}};
  for (int k = 0; k < 3; ++k) all.starts[k + 1] = all.starts[k] + std::max(lists[k].n, 0);
  const auto match = [=](Point3 p, Point3 q) { return agree(p, q, tol); };
  const Candidates<Chain<PointList, 3>> candidates(all.size(), tol, all, all.size());
  const auto around = surroundings(candidates, all.size(), match,
                                   [&](Integer i) { return all.range((all.list_of(i) + 1) % 3); });

  MergedCounts counts = {};
  for (int k = 0; k < 3; ++k) {
    counts.pairs[k] = pair_up(all.range(k), all.range((k + 1) % 3), all, candidates, around, match,
                              merged.first_of_pair[k], merged.second_of_pair[k])
                          .pairs;
  }
  const auto place = [&](Integer i) -> Integer & {
    const int list = all.list_of(i);
    return merged.place_of[list][i - all.starts[list]];
  };
  Integer made = 0;
  const auto make = [&](Integer i) { merged.places.set(made++, all(i)); };
  counts.places = put_to_places(0, all.size(), all, candidates, around, match, make, place);
  return counts;
}

}  // namespace trelvin
