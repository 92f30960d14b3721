#include "lists/points.h"

#include <algorithm>
#include <cmath>

#include "lists/candidates.h"
#include "lists/matching.h"

namespace trelvin {
namespace {

// Lists whose positions run on from list to list.
template <class List, int count>
struct Chain {
  explicit Chain(const List (&all)[count]) {
    for (int k = 0; k < count; ++k) {
      lists[k] = all[k];
      starts[k + 1] = starts[k] + all[k].size();
    }
  }

  [[nodiscard]] int list_of(Integer i) const {
    int list = 0;
    while (list + 1 < count && i >= starts[list + 1]) ++list;
    return list;
  }
  [[nodiscard]] Range range(int list) const {
    return {starts[list], starts[list + 1] - starts[list]};
  }
  [[nodiscard]] Integer size() const { return starts[count]; }
  Point3 operator[](Integer i) const {
    const int list = list_of(i);
    return lists[list][i - starts[list]];
  }

  List lists[count];
  Integer starts[count + 1] = {};
};

// Writes the pairs that match of the points in range `a` of `points` and those in range `b` of the
// candidates. `around` is what matches the points, if that is known.
template <class Points, class Others, class Match>
Partners write_pairs(const Points &points, Range a, Range b, const Candidates<Others> &candidates,
                     const Surroundings *around, Match match, Integer *ia, Integer *ib) {
  Integer pairs = 0;
  Integer partnered = 0;
  for (Integer i = 0; i < a.n; ++i) {
    const Integer before = pairs;
    const Integer known = around != nullptr ? around[a.start + i].partner : Surroundings::several;
    if (known >= 0) {
      ib[pairs++] = known - b.start + 1;
    } else if (known == Surroundings::several) {
      const Point3 p = points[a.start + i];
      candidates.visit(p, [&](const Candidate &other) {
        if (b.holds(other.position()) && match(p, other.point)) {
          ib[pairs++] = other.position() - b.start + 1;
        }
        return true;
      });
      if (!std::is_sorted(ib + before, ib + pairs)) std::sort(ib + before, ib + pairs);
    }
    std::fill(ia + before, ia + pairs, i + 1);
    partnered += pairs > before ? 1 : 0;
  }
  return {pairs, partnered};
}

template <class List, class Match>
Partners pair_lists(const List &a, const List &b, Real tol, Match match, Integer *ia, Integer *ib) {
  const Candidates<List> candidates(b, tol, a.size());
  const AllSurroundings around = candidates.surroundings_of(a, match);
  return write_pairs(a, {0, a.size()}, {0, b.size()}, candidates, around.get(), match, ia, ib);
}

// The position of the first candidate that matches p, or `end` if none before that does.
template <class Points, class Match>
Integer first_match(Point3 p, Integer end, const Candidates<Points> &candidates, Match match) {
  Integer first = end;
  candidates.visit(p, [&](const Candidate &other) {
    if (other.position() < first && match(p, other.point)) first = other.position();
    return other.position() < first;
  });
  return first;
}

// Puts the points to places, from position `settled` on: those before it have places of their own. A
// later one is at the first place that it matches, else it makes a new one. place(i) is the number of
// a point's place, from 1. Returns the number of places.
template <class Points, class Match, class Place, class Places>
Integer put_to_places(const Points &points, Integer settled, const Candidates<Points> &candidates,
                      const Surroundings *around, Match match, Place place, const Places &places) {
  const Integer n = points.size();
  Integer count = settled;
  const auto has_own = [&](Integer i) { return i < settled || around[i].first == i; };
  bool plain = around != nullptr;  // whatever is matched first has a place of its own
  for (Integer i = settled; i < n && plain; ++i) plain = has_own(around[i].first);
  if (plain) {
    for (Integer i = settled; i < n; ++i) {
      const Integer first = around[i].first;
      if (first == i) places.set(count, points[i]);
      place(i) = first == i ? ++count : first < settled ? first + 1 : place(first);
    }
    return count;
  }

  // When a new merged point (place) is created, all points that match it are assigned to it at once. So
  // only points that create one need a search.
  for (Integer i = settled; i < n; ++i) place(i) = 0;
  for (Integer i = settled; i < n; ++i) {
    const Point3 p = points[i];
    const Integer first = settled > 0 ? first_match(p, settled, candidates, match) : settled;
    if (first < settled) place(i) = first + 1;
    if (place(i) != 0) continue;
    places.set(count, p);
    place(i) = ++count;
    candidates.visit(p, [&](const Candidate &other) {
      const Integer j = other.position();
      if (j > i && place(j) == 0 && match(p, other.point)) place(j) = count;
      return true;
    });
  }
  return count;
}

}  // namespace

Partners pair_numbers(RealList a, RealList b, Real tol, Integer *ia, Integer *ib) {
  const auto match = [=](Point3 p, Point3 q) { return std::fabs(p.x - q.x) <= tol; };
  return pair_lists(a, b, tol, match, ia, ib);
}

Partners pair_points(const PointList &a, const PointList &b, Real tol, Integer *ia, Integer *ib) {
  const auto match = [=](Point3 p, Point3 q) { return agree(p, q, tol); };
  return pair_lists(a, b, tol, match, ia, ib);
}

Integer join_new(RealList a, RealList b, Real tol, Real *joined, Integer *positions_of_b) {
  struct Numbers {
    Real *values;
    void set(Integer i, Point3 p) const { values[i] = p.x; }
  };
  const Chain<RealList, 2> points({a, b});
  const Integer na = a.size();
  std::copy_n(a.values, na, joined);
  const auto match = [=](Point3 p, Point3 q) { return agree(p.x, q.x, tol); };
  const Candidates candidates(points, tol, b.size());
  const auto around = candidates.surroundings(match, [](Integer) { return Range{0, 0}; });
  const auto place = [=](Integer i) -> Integer & { return positions_of_b[i - na]; };
  return put_to_places(points, na, candidates, around.get(), match, place, Numbers{joined});
}

MergedCounts merge_points(const PointList (&lists)[3], Real tol, const MergedPoints &merged) {
  const Chain<PointList, 3> points(lists);
  const auto match = [=](Point3 p, Point3 q) { return agree(p, q, tol); };
  const Candidates candidates(points, tol, points.size());
  const auto around = candidates.surroundings(
      match, [&](Integer i) { return points.range((points.list_of(i) + 1) % 3); });
  MergedCounts counts = {};
  for (int k = 0; k < 3; ++k) {
    counts.pairs[k] =
        write_pairs(points, points.range(k), points.range((k + 1) % 3), candidates, around.get(),
                    match, merged.first_of_pair[k], merged.second_of_pair[k])
            .pairs;
  }
  const auto place = [&](Integer i) -> Integer & {
    const int list = points.list_of(i);
    return merged.place_of[list][i - points.starts[list]];
  };
  counts.places = put_to_places(points, 0, candidates, around.get(), match, place, merged.places);
  return counts;
}

}  // namespace trelvin
