#include "figures.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace host {
namespace {

// What lies below a level c, by Green's theorem along the outline:
//   area                  integral of (c - y)+ dx
//   moment about y = c    integral of ((c - y)+)^2/2 dx
// where (c - y)+ is c - y below the level, else 0.
struct Below {
  double area;
  double moment;
};

struct Edge {
  double x1, y1, x2, y2;
  double factor;
  double arc;     // radius of a quarter circle, 0 for a straight edge
  double xc, yc;  // its centre
};

Below below_straight(const Edge &e, double c) {
  const double u1 = c - e.y1;
  const double u2 = c - e.y2;
  const double dx = e.x2 - e.x1;
  if (u1 <= 0 && u2 <= 0) return {0, 0};
  if (u1 >= 0 && u2 >= 0) return {dx * (u1 + u2) / 2, dx * (u1 * u1 + u1 * u2 + u2 * u2) / 6};
  const double u = std::max(u1, u2);
  const double part = dx * u / std::fabs(u1 - u2);  // the edge's dx below the level
  return {part * u / 2, part * u * u / 6};
}

// With x = xc + r*cos, y = yc + r*sin and u = c - yc the integrals have the antiderivatives
//   r*u*cos + r^2*(angle - sin*cos)/2
//   r*u^2/2*cos + r^2*u*(angle - sin*cos)/2 + r^3/2*(cos - cos^3/3)
Below below_arc(const Edge &e, double c) {
  const double r = e.arc;
  double s1 = (e.y1 - e.yc) / r, c1 = (e.x1 - e.xc) / r;
  double s2 = (e.y2 - e.yc) / r, c2 = (e.x2 - e.xc) / r;
  const double u = c - e.yc;
  const double s = u / r;
  if (s <= std::min(s1, s2)) return {0, 0};
  if (s < std::max(s1, s2)) {  // leaves what is above the level
    const double cut = std::copysign(std::sqrt(1 - s * s), c1 + c2);
    (s1 > s2 ? s1 : s2) = s;
    (s1 == s ? c1 : c2) = cut;
  }
  const double angle = std::atan2(c1 * s2 - s1 * c2, c1 * c2 + s1 * s2);
  const double cosines = c2 - c1;
  const double sector = (angle - (s2 * c2 - s1 * c1)) / 2;
  const double cubes = (c2 * c2 * c2 - c1 * c1 * c1) / 3;
  return {r * u * cosines + r * r * sector,
          r * u * u / 2 * cosines + r * r * u * sector + r * r * r / 2 * (cosines - cubes)};
}

// The area over its height.
class Heights {
 public:
  explicit Heights(std::vector<Edge> edges) : edges_(std::move(edges)) {
    for (const Edge &e : edges_) levels_.push_back(e.y1);
    std::sort(levels_.begin(), levels_.end());
    levels_.erase(std::unique(levels_.begin(), levels_.end()), levels_.end());
    whole_ = below(levels_.back());
  }

  // The level with half the area on either side; what is left of 0 as rounding is 0.
  [[nodiscard]] double halving_level() const {
    const double level = some_halving_level();
    return std::fabs(level) <= 1e-11 * (levels_.back() - levels_.front()) ? 0 : level;
  }

  // |y - c| integrated over the area.
  [[nodiscard]] double plastic_modulus(double c) const {
    const double from_top = levels_.back() - c;
    return 2 * below(c).moment - (whole_.moment - whole_.area * from_top);
  }

 private:
  [[nodiscard]] double some_halving_level() const {
    const double noise = 1e-9 * whole_.area;
    const auto surplus = [&](double level) { return below(level).area - whole_.area / 2; };
    const auto first = std::partition_point(levels_.begin(), levels_.end(),
                                            [&](double level) { return surplus(level) < -noise; });
    const auto last = std::partition_point(first, levels_.end(),
                                           [&](double level) { return surplus(level) <= noise; });
    if (first != last) return (*first + *(last - 1)) / 2;
    return root(surplus, *(first - 1), *first);
  }

  [[nodiscard]] Below below(double c) const {
    Below sum{0, 0};
    for (const Edge &e : edges_) {
      const Below b = e.arc > 0 ? below_arc(e, c) : below_straight(e, c);
      sum.area += e.factor * b.area;
      sum.moment += e.factor * b.moment;
    }
    return sum;
  }

  // Regula falsi; an end that stays for a second time counts half (Illinois).
  template <class Function>
  [[nodiscard]] double root(Function f, double low, double high) const {
    double at_low = f(low);
    double at_high = f(high);
    double c = low;
    int last = 0;
    for (int i = 0; i < 100; ++i) {
      c = (low * at_high - high * at_low) / (at_high - at_low);
      const double value = f(c);
      if (std::fabs(value) <= 1e-14 * whole_.area) break;
      const int side = value < 0 ? -1 : 1;
      (side < 0 ? low : high) = c;
      (side < 0 ? at_low : at_high) = value;
      if (side == last) (side < 0 ? at_high : at_low) /= 2;
      last = side;
    }
    return c;
  }

  std::vector<Edge> edges_;
  std::vector<double> levels_;  // of the vertices, ascending
  Below whole_{};
};

std::vector<Edge> edges_of(const Outline &outline) {
  std::vector<Edge> edges;
  for (const Ring &ring : outline) {
    const std::size_t n = ring.vertices.size();
    for (std::size_t i = 0; i < n; ++i) {
      const Vertex &from = ring.vertices[i];
      const Vertex &to = ring.vertices[(i + 1) % n];
      // The centre of an arc is that corner of its square which is to the right of the arc's direction.
      const bool is_first = (to.x - from.x) * (to.y - from.y) > 0;
      edges.push_back({from.x, from.y, to.x, to.y, ring.factor, to.arc, is_first ? to.x : from.x,
                       is_first ? from.y : to.y});
    }
  }
  return edges;
}

}  // namespace

Plastic plastic_of(const Outline &outline) {
  std::vector<Edge> edges = edges_of(outline);
  const Heights upright(edges);
  for (Edge &e : edges) {  // mirrored at x = y, which turns every ring round
    std::swap(e.x1, e.y1);
    std::swap(e.x2, e.y2);
    std::swap(e.xc, e.yc);
    e.factor = -e.factor;
  }
  const Heights lying(std::move(edges));
  const double y = upright.halving_level();
  const double x = lying.halving_level();
  return {upright.plastic_modulus(y), lying.plastic_modulus(x), x, y};
}

}  // namespace host
