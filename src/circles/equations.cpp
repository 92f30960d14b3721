#include <cmath>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/circles.h"
#include "trelvin/plane.h"

using namespace trelvin;

TRELVIN_ROUTINE trvcer(TrvIn xc, TrvIn yc, TrvIn r, TrvOut D, TrvOut E, TrvOut F) {
  D = -2 * xc;
  E = -2 * yc;
  F = xc * xc + yc * yc - r * r;
}

TRELVIN_ROUTINE trvlci(TrvIn a, TrvIn b, TrvIn c, TrvIn D, TrvIn E, TrvIn F, TrvIntOut n, TrvOut x1,
                       TrvOut y1, TrvOut x2, TrvOut y2) {
  // A quadratic in y, or in x where the line counts as horizontal and its a is left out.
  const bool in_y = significant(a);
  const Real A = in_y ? a * a + b * b : b * b;
  const Real B = in_y ? (2 * c - a * D) * b + E * (a * a) : D * (b * b);
  const Real C = in_y ? c * c - a * c * D + F * (a * a) : c * c - E * b * c + F * (b * b);
  const auto set_point = [&](Real root, Real &x, Real &y) {
    x = in_y ? (b * root + c) / (0 - a) : root;
    y = in_y ? root : 0 - c / b;
  };

  const Real discriminant = B * B - 4 * A * C;
  if (negligible(discriminant)) {
    n = 1;
    set_point(B / A * -0.5F, x1, y1);
  } else if (discriminant < 0) {
    n = 0;
  } else {
    n = 2;
    const Real s = square_root(discriminant);
    set_point((s - B) / A * 0.5F, x1, y1);
    set_point((0 - (B + s)) / A * 0.5F, x2, y2);
  }
}

TRELVIN_ROUTINE trvc12(TrvIn D1, TrvIn E1, TrvIn F1, TrvIn D2, TrvIn E2, TrvIn F2, TrvIntOut n,
                       TrvOut x1, TrvOut y1, TrvOut x2, TrvOut y2) {
  const Real a = D2 - D1;
  const Real b = E2 - E1;
  const Real c = F2 - F1;
  if (std::fabs(a) + std::fabs(b) <= tolerance) {
    n = 0;
    return;
  }
  trvlci(a, b, c, D1, E1, F1, n, x1, y1, x2, y2);
}

TRELVIN_ROUTINE trvcer2(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn side, TrvIn r, TrvOut xa,
                        TrvOut ya, TrvOut xb, TrvOut yb, TrvOut xc, TrvOut yc, TrvIntOut n) {
  const Real dx = x2 - x1;
  const Real dy = y2 - y1;
  trvcnt1(dx, dy, 0, n);
  if (n == 1 || r <= tolerance) {
    n = 0;
    return;
  }

  // The centres are on the radical line 2*dx*x + 2*dy*y = K of the circles about P1 and P2.
  const Real K = 0 - (x1 * x1 + y1 * y1) + x2 * x2 + y2 * y2;
  if (std::fabs(dy) < tolerance) {
    const Real x = K / dx * 0.5F;
    const Real t = square_root(r * r - (x1 - x) * (x1 - x));
    xa = x;
    ya = y1 - t;
    xb = x;
    yb = y1 + t;  // n stays 0: hosts take a horizontal chord to have no centre
  } else {
    const Real q = dx / dy;
    const Real A = q * q + 1;
    const Real B = -2 * x1 + 2 * y1 * dx / dy - K * dx / (dy * dy);
    const Real C = K * K / (dy * dy) * 0.25F - y1 * K / dy - r * r + x1 * x1 + y1 * y1;
    const Real discriminant = B * B - 4 * A * C;
    const auto y_of = [&](Real x) { return (K - 2 * dx * x) / dy * 0.5F; };
    if (discriminant > tolerance) {
      n = 2;
      const Real s = square_root(discriminant);
      xa = (s - B) / A * 0.5F;
      ya = y_of(xa);
      xb = (0 - (B + s)) / A * 0.5F;
      yb = y_of(xb);
    } else if (discriminant >= 0) {
      n = 1;
      xa = xb = 0 - B / A * 0.5F;
      ya = yb = y_of(xa);
    } else {
      return;
    }
  }

  Real a;
  Real b;
  Real c;
  Real distance_a;
  Real distance_b;
  trvln3(x1, y1, x2, y2, a, b, c);
  trvlds(xa, ya, a, b, c, distance_a);
  trvlds(xb, yb, a, b, c, distance_b);
  const Real sign = static_cast<Real>(side);
  if (distance_a * sign >= 0) {
    xc = xa;
    yc = ya;
  }
  if (distance_b * sign > 0) {
    xc = xb;
    yc = yb;
  }
}

TRELVIN_ROUTINE trvcer1(TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn side, TrvIn h, TrvOut r,
                        TrvOut xc, TrvOut yc, TrvIntOut n) {
  if (h < tolerance) {
    n = 0;
    return;
  }
  Real d;
  trvpds(x1, y1, 0, x2, y2, 0, d);
  r = d / sine(pi - 2 * arc_tangent(d / h * 0.5F)) * 0.5F;
  Real xa;
  Real ya;
  Real xb;
  Real yb;
  trvcer2(x1, y1, x2, y2, side, r, xa, ya, xb, yb, xc, yc, n);
}
