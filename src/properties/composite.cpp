#include <cmath>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/plane.h"
#include "trelvin/properties.h"

using namespace trelvin;

namespace {

enum Kind : Integer {
  concentrated_area = 1,
  polygon = 2,
  full_circle = 3,
  smaller_segment = 4,
  larger_segment = 5
};

Real circle_radius(TrvArrayIn x, TrvArrayIn y) {
  Real r;
  trvpds(x[0], y[0], 0, x[1], y[1], 0, r);
  return r;
}

Real circle_area(Real r) { return pi * r * r; }

}  // namespace

TRELVIN_ROUTINE trvair(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn factor, TrvInOut area) {
  switch (kind) {
    case concentrated_area:
      area = value;
      break;
    case polygon:
      trvapl(x, y, n, area);
      break;
    case full_circle:
      area = circle_area(circle_radius(x, y));
      break;
    case smaller_segment:
    case larger_segment: {
      Real xs;
      Real ys;
      trvacp(x[0], y[0], x[1], y[1], x[2], y[2], kind, area, xs, ys);
      break;
    }
    default:
      break;
  }
  area = area * factor;
}

TRELVIN_ROUTINE trvstm(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn factor, TrvInOut sx, TrvInOut sy) {
  switch (kind) {
    case concentrated_area:
      sx = y[0] * value;
      sy = value * x[0];
      break;
    case polygon:
      trvspl(x, y, n, sx, sy);
      break;
    case full_circle: {
      const Real area = circle_area(circle_radius(x, y));
      sx = y[0] * area;
      sy = area * x[0];
      break;
    }
    case smaller_segment:
    case larger_segment: {
      Real area;
      Real xs;
      Real ys;
      trvacp(x[0], y[0], x[1], y[1], x[2], y[2], kind, area, xs, ys);
      sx = ys * area;
      sy = area * xs;
      break;
    }
    default:
      break;
  }
  sx = sx * factor;
  sy = factor * sy;
}

TRELVIN_ROUTINE trvinm(TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIntIn kind, TrvIn value,
                       TrvIn angle, TrvIn factor, TrvInOut ix, TrvInOut iy, TrvInOut ixy) {
  switch (kind) {
    case concentrated_area: {
      if (angle != 0) {
        const auto [s, c] = sine_cosine(angle);
        const Real t = sine(2 * angle);
        // Each line takes the values the lines before it have turned; hosts know these figures.
        ix = ix * (c * c) + iy * (s * s) - ixy * t;
        iy = iy * (c * c) + s * s * ix + ixy * t;
        ixy = ((ix - iy) * 0.5F + ixy) * t;
      }
      ix = y[0] * value * y[0] + ix;
      iy = value * (x[0] * x[0]) + iy;
      ixy = value * x[0] * y[0] + ixy;
      break;
    }
    case polygon:
      trvipl(x, y, n, ix, iy, ixy);
      break;
    case full_circle: {
      const Real r = circle_radius(x, y);
      const Real own = (r * r) * (r * r) * pi * 0.25F;
      const Real area = circle_area(r);
      ix = area * (y[0] * y[0]) + own;
      iy = own + area * (x[0] * x[0]);
      ixy = area * x[0] * y[0];
      break;
    }
    case smaller_segment:
    case larger_segment:
      trvicp(x[0], y[0], x[1], y[1], x[2], y[2], kind, ix, iy, ixy);
      break;
    default:
      break;
  }
  ix = ix * factor;
  iy = iy * factor;
  ixy = factor * ixy;
}

TRELVIN_ROUTINE trvinp(TrvIn ix, TrvIn iy, TrvIn ixy, TrvOut i1, TrvOut i2, TrvOut alpha) {
  constexpr Real eighth_turn = 0.7853982F;
  const Real q = std::fabs(ixy / (ix + iy));
  if (q <= 1e-8F || std::isnan(q)) {
    i1 = ix;
    i2 = iy;
    alpha = 0;
    return;
  }
  const Real d = iy - ix;
  if (std::fabs(d) < 1e-12F) {
    const Real mean = (ix + iy) * 0.5F;
    i1 = mean - ixy;
    i2 = ixy + mean;
    alpha = eighth_turn;
    return;
  }
  alpha = 0.5F * arc_tangent(2 * ixy / d);
  const auto [s, c] = sine_cosine(alpha);
  i2 = (ix * s + 2 * ixy * c) * s + iy * (c * c);
  i1 = (iy * s - 2 * ixy * c) * s + ix * (c * c);
}

TRELVIN_ROUTINE trvinr(TrvIntIn n, TrvArrayIn f, TrvIn a, TrvIn b, TrvOut result) {
  const Real h = (b - a) / static_cast<Real>(n - 1);
  Real sum = (f[0] + f[n - 1]) * 0.5F;
  for (Integer i = 2; i <= n - 2; ++i) sum += f[i - 1];  // f(n-1) stays out
  result = h * sum;
}
