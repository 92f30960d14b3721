#include "vectors/angles.h"

#include <array>

namespace trelvin {
namespace {

// The sum, with what rounding took from it added in the end.
double sum_of(const std::array<double, 6> &terms) {
  double sum = 0;
  double rest = 0;
  for (const double term : terms) {
    const double before = sum;
    sum += term;
    const double added = sum - before;
    rest += (before - (sum - added)) + (term - added);
  }
  return sum + rest;
}

// Products of Reals are exact in double precision.
double twice_area_of_triangle(Point2 p, Point2 q, Point2 r) {
  return sum_of({double{p.x} * q.y, -double{p.y} * q.x, double{q.x} * r.y, -double{q.y} * r.x,
                 double{r.x} * p.y, -double{r.y} * p.x});
}

}  // namespace

Real directed_angle(Point3 vertex, Point3 p1, Point3 p2) {
  const double u[] = {double{p1.x} - vertex.x, double{p1.y} - vertex.y, double{p1.z} - vertex.z};
  const double v[] = {double{p2.x} - vertex.x, double{p2.y} - vertex.y, double{p2.z} - vertex.z};
  const double m[] = {twice_area_of_triangle({vertex.y, vertex.z}, {p1.y, p1.z}, {p2.y, p2.z}),
                      twice_area_of_triangle({vertex.z, vertex.x}, {p1.z, p1.x}, {p2.z, p2.x}),
                      twice_area_of_triangle({vertex.x, vertex.y}, {p1.x, p1.y}, {p2.x, p2.y})};
  const double sine = std::sqrt(m[0] * m[0] + m[1] * m[1] + m[2] * m[2]);
  const double angle = arc_tangent(sine, u[0] * v[0] + u[1] * v[1] + u[2] * v[2]);
  double deciding = 0;
  for (const double limit : {static_cast<double>(tolerance), 0.0}) {
    for (const double component : {m[1], m[2], m[0]}) {
      if (deciding == 0 && std::fabs(component) > limit) deciding = component;
    }
  }
  const auto directed = static_cast<Real>(deciding < 0 ? full_turn - angle : angle);
  constexpr Real last_before_full_turn = 6.283185F;
  return directed >= two_pi ? last_before_full_turn : directed;
}

}  // namespace trelvin
