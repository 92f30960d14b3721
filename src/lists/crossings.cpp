#include "lists/crossings.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "lists/ordering.h"
#include "vectors/wide_vectors.h"

namespace trelvin {
namespace {

struct Edge {
  Point2 low, high;
};

// The edge from a vertex on, if it crosses the line y = y0. It counts from its lower end, included, to
// its upper end, excluded.
std::optional<Edge> crossing_edge(const Outline &outline, Integer i, Real y0) {
  const Point2 p = outline[i];
  const Point2 q = outline[outline.after(i)];
  if ((p.y <= y0) == (q.y <= y0)) return std::nullopt;
  return p.y < q.y ? Edge{p, q} : Edge{q, p};
}

// Vertices of the outline, one after the other, on the line of a segment.
struct Run {
  double from = std::numeric_limits<double>::infinity();  // places on the segment
  double to = -std::numeric_limits<double>::infinity();
  Point2 start = {};  // at `from`

  [[nodiscard]] bool empty() const { return from > to; }
};

struct Place {
  WideVector point;
  double t;
};

// A segment from p1 to p2 and its line.
struct Segment {
  Point2 p1, p2;
  WideVector d = wide_difference(p2, p1);

  // Positive to the left.
  [[nodiscard]] double side(Point2 p) const { return cross(d, wide_difference(p, p1)); }

  void extend(Run &run, Point2 p) const {
    const double t = dot(wide_difference(p, p1), d) / dot(d, d);
    if (t < run.from) {
      run.from = t;
      run.start = p;
    }
    run.to = std::max(run.to, t);
  }

  // Where the segment first meets a run, whichever way the outline runs.
  [[nodiscard]] std::optional<Place> meet(const Run &run) const {
    if (!(run.from <= 1 && run.to >= 0)) return std::nullopt;
    if (run.from <= 0) return Place{wide(p1), 0};
    return Place{wide(run.start), run.from};
  }

  // Where it meets an edge from a to b that crosses its line. The sides of its ends decide, since the
  // place is rounded, and may be off the segment if an end is next to the edge.
  [[nodiscard]] std::optional<Place> meet(Point2 a, Point2 b) const {
    const WideVector edge = wide_difference(b, a);
    const double side1 = cross(edge, wide_difference(p1, a));
    const double side2 = cross(edge, wide_difference(p2, a));
    if (side1 == 0) return Place{wide(p1), 0};
    if (side2 == 0) return Place{wide(p2), 1};
    if (!((side1 < 0 && side2 > 0) || (side1 > 0 && side2 < 0))) return std::nullopt;
    const double share = side(a) / (side(a) - side(b));
    const WideVector point = wide(a) + edge * share;
    const double t = dot(point - wide(p1), d) / dot(d, d);
    if (std::isnan(t)) return std::nullopt;
    return Place{point, t > 0 ? std::min(t, 1.0) : 0};
  }
};

// A heap sort, since the arrays move together and there is nowhere to put them meanwhile.
struct CrossingSort {
  const CrossingArrays &c;

  [[nodiscard]] bool before(Integer i, Integer j) const {
    return c.t[i] < c.t[j] || (c.t[i] == c.t[j] && c.edge[i] < c.edge[j]);
  }

  void swap(Integer i, Integer j) const {
    std::swap(c.x[i], c.x[j]);
    std::swap(c.y[i], c.y[j]);
    std::swap(c.t[i], c.t[j]);
    std::swap(c.edge[i], c.edge[j]);
  }

  void sift(Integer parent, Integer n) const {
    while (parent < n / 2) {
      Integer child = 2 * parent + 1;
      if (child + 1 < n && before(child, child + 1)) ++child;
      if (!before(parent, child)) return;
      swap(parent, child);
      parent = child;
    }
  }

  void run(Integer n) const {
    for (Integer parent = n / 2; parent-- > 0;) sift(parent, n);
    for (Integer last = n - 1; last > 0; --last) {
      swap(0, last);
      sift(0, last);
    }
  }
};

}  // namespace

Integer cross_level(const Outline &outline, Real y0, Real *crossings) {
  Integer found = 0;
  for (Integer i = 0; i < outline.n; ++i) {
    const auto edge = crossing_edge(outline, i, y0);
    if (!edge) continue;
    const WideVector d = wide_difference(edge->high, edge->low);
    const double share = (double{y0} - edge->low.y) / d.y;
    crossings[found++] = static_cast<Real>(edge->low.x + share * d.x);
  }
  sort(crossings, found);
  return found;
}

bool inside(const Outline &outline, Point2 p) {
  bool odd = false;
  for (Integer i = 0; i < outline.n; ++i) {
    const auto edge = crossing_edge(outline, i, p.y);
    if (!edge) continue;
    const WideVector d = wide_difference(edge->high, edge->low);
    const bool to_the_right = cross(d, wide_difference(p, edge->low)) > 0;
    odd = odd != to_the_right;
  }
  return odd;
}

Integer cross_segment(const Outline &outline, Point2 p1, Point2 p2,
                      const CrossingArrays &crossings) {
  const Segment segment = {p1, p2};
  const auto side = [&](Integer i) { return segment.side(outline[i]); };
  Integer start = outline.n - 1;
  while (start >= 0 && side(start) == 0) --start;
  if (start < 0) return 0;

  bool left = side(start) > 0;
  Run run;  // since the outline was last off the line
  Integer found = 0;
  Integer from = start;
  for (Integer steps = 0; steps < outline.n; ++steps) {
    const Integer to = outline.after(from);
    const Integer edge = std::exchange(from, to);
    const Point2 p = outline[to];
    if (side(to) == 0) {
      segment.extend(run, p);
      continue;
    }
    if ((side(to) > 0) != left) {
      const auto place = run.empty() ? segment.meet(outline[edge], p) : segment.meet(run);
      if (place) {
        crossings.x[found] = static_cast<Real>(place->point.x);
        crossings.y[found] = static_cast<Real>(place->point.y);
        crossings.t[found] = static_cast<Real>(place->t);
        crossings.edge[found++] = edge + 1;
      }
      left = !left;
    }
    run = {};
  }
  CrossingSort{crossings}.run(found);
  return found;
}

}  // namespace trelvin
