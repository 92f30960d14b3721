#include "vectors/angles.h"

namespace trelvin {

Real directed_angle(Point3 vertex, Point3 p1, Point3 p2) {
  const double u[] = {double{p1.x} - vertex.x, double{p1.y} - vertex.y, double{p1.z} - vertex.z};
  const double v[] = {double{p2.x} - vertex.x, double{p2.y} - vertex.y, double{p2.z} - vertex.z};
  const double m[] = {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2],
                      u[0] * v[1] - u[1] * v[0]};
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
