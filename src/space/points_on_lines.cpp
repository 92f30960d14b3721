#include "space/points_on_lines.h"

namespace trelvin {

PointOnLine point_on_line(Point3 p0, Vector3 d, Point3 p, Real tol) {
  const Components counting = significant_components((p0 + d) - p0);
  const auto both = [&](Real difference1, Real difference2) {
    return PointOnLine{counting, within(tol, difference1) && within(tol, difference2)};
  };
  const Vector3 off = p - p0;
  const Real kx = p0.x - p.x;
  const Real ky = p0.y - p.y;
  switch (counting) {
    case Components::all:
      return both(p.y - (p0.y - d.y / d.x * kx), p.z - (p0.z - d.z / d.x * kx));
    case Components::x:
      return both(off.y, off.z);
    case Components::y:
      return both(off.x, off.z);
    case Components::z:
      return both(off.x, off.y);
    case Components::xy:
      return both(p.y - (p0.y - d.y / d.x * kx), off.z);
    case Components::yz:
      return both(off.x, p.z - (p0.z - d.z / d.y * ky));
    case Components::xz:
      return both(off.y, p.z - (p0.z - d.z / d.x * kx));
    case Components::none:
      break;
  }
  return {counting, false};
}

bool agrees_at_last_station(const Plane &p1, const Plane &p2, Vector3 e, Point3 p, Real tol,
                            LastStation &last) {
  const auto [a1, b1, c1, d1] = p1;
  const auto [a2, b2, c2, d2] = p2;
  if (significant(e.x)) {
    last.y = (c1 * a2 - a1 * c2) / e.x * last.x + (c1 * d2 - d1 * c2) / e.x;
    last.z = (a1 * b2 - b1 * a2) / e.x * last.x + (d1 * b2 - b1 * d2) / e.x;
    return within(tol, p.y - last.y) && within(tol, p.z - last.z);
  }
  if (significant(e.y)) {
    last.x = (c1 * b2 - b1 * c2) / e.y * last.y + (c1 * d2 - d1 * c2) / e.y;
    last.z = (a1 * b2 - b1 * a2) / e.y * last.y + (d1 * a2 - a1 * d2) / e.y;
    return within(tol, p.z - last.z) && within(tol, p.x - last.x);
  }
  if (significant(e.z)) {
    last.x = (b1 * c2 - c1 * b2) / e.z * last.z + (b1 * d2 - d1 * b2) / e.z;
    last.y = (c1 * a2 - a1 * c2) / e.z * last.z + (d1 * a2 - a1 * d2) / e.z;
    return within(tol, p.x - last.x) && within(tol, p.y - last.y);
  }
  return false;
}

}  // namespace trelvin
