// Negated terms are formed as 0 - x, so that a vanishing x gives the positive zero.
#include <cmath>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/plane.h"

using namespace trelvin;

namespace {

bool within(Real tol, Real difference) { return tol >= std::fabs(difference); }

}  // namespace

TRELVIN_ROUTINE trvln3(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvOut a, TrvOut b, TrvOut c) {
  a = y2 - y1;
  b = 0 - (x2 - x1);
  c = y1 * x2 - y2 * x1;
}

TRELVIN_ROUTINE trvln1(TrvIn x0, TrvIn y0, TrvIn phi, TrvOut a, TrvOut b, TrvOut c) {
  const bool vertical = (phi > 0 && std::fabs(phi - half_pi) < tolerance) ||
                        (phi < 0 && std::fabs(phi + half_pi) < tolerance) || std::isnan(phi);
  if (vertical) {
    a = 1;
    b = 0;
    c = 0 - x0;
  } else {
    const Real t = tangent(phi);
    a = t;
    b = -1;
    c = y0 - t * x0;
  }
}

TRELVIN_ROUTINE trvln4(TrvIn x0, TrvIn y0, TrvIn dx, TrvIn dy, TrvIn /*u*/, TrvOut a, TrvOut b,
                       TrvOut c) {
  if (dx == 0) {
    a = 1;
    b = 0;
    c = 0 - x0;
  } else {
    a = dy / dx;
    b = -1;
    c = y0 - dy * x0 / dx;
  }
}

TRELVIN_ROUTINE trvln2(TrvIn a, TrvIn b, TrvIn c, TrvIn d, TrvOut a2, TrvOut b2, TrvOut c2) {
  a2 = a;
  b2 = b;
  c2 = c - square_root(a * a + b * b) * d;
}

TRELVIN_ROUTINE trvln5(TrvIn x0, TrvIn y0, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvOut a,
                       TrvOut b, TrvOut c) {
  const Real ux = x1 - x0;
  const Real uy = y1 - y0;
  const Real vx = x2 - x0;
  const Real vy = y2 - y0;
  const Real length1 = square_root(ux * ux + uy * uy);
  const Real length2 = square_root(vx * vx + vy * vy);
  a = ux * length2 - vx * length1;
  b = uy * length2 - vy * length1;
  c = length1 * (vx * x0 + vy * y0) - length2 * (ux * x0 + uy * y0);
}

TRELVIN_ROUTINE trvlds(TrvIn x, TrvIn y, TrvIn a, TrvIn b, TrvIn c, TrvOut d) {
  d = (a * x + b * y + c) / square_root(a * a + b * b);
}

TRELVIN_ROUTINE trvlni(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn a2, TrvIn b2, TrvIn c2, TrvIntOut status,
                       TrvOut x, TrvOut y) {
  const Real det = a1 * b2 - a2 * b1;
  const Real nx = b1 * c2 - b2 * c1;
  const Real ny = a2 * c1 - a1 * c2;
  if (significant(det)) {
    x = nx / det;
    y = ny / det;
    status = 0;
  } else {
    status = significant(nx) || significant(ny) ? 2 : 1;
  }
}

TRELVIN_ROUTINE trvlul(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn a2, TrvIn b2, TrvIn c2, TrvOut d,
                       TrvIntOut status) {
  Real x;
  Real y;
  trvlni(a1, b1, c1, a2, b2, c2, status, x, y);
  if (status == 1) {
    d = 0;
  } else if (status == 2) {
    // The second line is k times a parallel of the first.
    const Real square = a1 * a1 + b1 * b1;
    const Real k = (a1 * a2 + b1 * b2) / square;
    d = (c1 - c2 / k) / square_root(square);
  }
}

TRELVIN_ROUTINE trvpsn(TrvIn p1, TrvIn p2, TrvIn p3, TrvIn q1, TrvIn q2, TrvIn q3, TrvIntOut code) {
  // Indexed by the components that differ: 1 the first, 2 the second, 4 the third.
  constexpr Integer codes[] = {0, 2, 3, 5, 4, 7, 6, 1};
  const int first = significant(q1 - p1) ? 1 : 0;
  const int second = significant(q2 - p2) ? 2 : 0;
  const int third = significant(q3 - p3) ? 4 : 0;
  code = codes[first + second + third];
}

TRELVIN_ROUTINE trvln6(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn dx, TrvIn dy, TrvIn dz, TrvIn px,
                       TrvIn py, TrvIn pz, TrvIn tol, TrvIntOut code, TrvIntOut on) {
  on = 0;
  trvpsn(x0, y0, z0, x0 + dx, y0 + dy, z0 + dz, code);
  const auto on_line = [&](Real difference1, Real difference2) {
    return within(tol, difference1) && within(tol, difference2) ? 1 : 0;
  };
  switch (code) {
    case 1: {
      const Real k = x0 - px;
      on = on_line(py - (y0 - dy / dx * k), pz - (z0 - dz / dx * k));
      break;
    }
    case 2:
      on = on_line(py - y0, pz - z0);
      break;
    case 3:
      on = on_line(px - x0, pz - z0);
      break;
    case 4:
      on = on_line(px - x0, py - y0);
      break;
    case 5:
      on = on_line(py - (y0 - dy / dx * (x0 - px)), pz - z0);
      break;
    case 6:
      on = on_line(px - x0, pz - (z0 - dz / dy * (y0 - py)));
      break;
    case 7:
      on = on_line(py - y0, pz - (z0 - dz / dx * (x0 - px)));
      break;
    default:
      break;  // D is negligible: nothing to test
  }
}

TRELVIN_ROUTINE trvln7(TrvIn a1, TrvIn b1, TrvIn c1, TrvIn d1, TrvIn a2, TrvIn b2, TrvIn c2,
                       TrvIn d2, TrvIn px, TrvIn py, TrvIn pz, TrvOut ex, TrvOut ey, TrvIn ez,
                       TrvIn tol, TrvIntOut code, TrvIntOut on) {
  // The station along the line is the coordinate that an earlier call left here, not that of P.
  static struct { Real x, y, z; } kept;

  on = 0;
  ex = b1 * c2 - c1 * b2;
  ey = a1 * c2 - c1 * a2;
  trvpsn(0, 0, 0, ex, ey, ez, code);
  if (significant(ex)) {
    kept.y = (c1 * a2 - a1 * c2) / ex * kept.x + (c1 * d2 - d1 * c2) / ex;
    kept.z = (a1 * b2 - b1 * a2) / ex * kept.x + (d1 * b2 - b1 * d2) / ex;
    if (within(tol, py - kept.y) && within(tol, pz - kept.z)) on = 1;
  } else if (significant(ey)) {
    kept.x = (c1 * b2 - b1 * c2) / ey * kept.y + (c1 * d2 - d1 * c2) / ey;
    kept.z = (a1 * b2 - b1 * a2) / ey * kept.y + (d1 * a2 - a1 * d2) / ey;
    if (within(tol, pz - kept.z) && within(tol, px - kept.x)) on = 1;
  } else if (significant(ez)) {
    kept.x = (b1 * c2 - c1 * b2) / ez * kept.z + (b1 * d2 - d1 * b2) / ez;
    kept.y = (c1 * a2 - a1 * c2) / ez * kept.z + (d1 * a2 - a1 * d2) / ez;
    if (within(tol, px - kept.x) && within(tol, py - kept.y)) on = 1;
  }
}
