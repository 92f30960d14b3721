#include <cmath>

#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/plane.h"
#include "trelvin/properties.h"

using namespace trelvin;

namespace {

struct Segment {
  Real radius;
  Real angle;      // at the centre
  Real sine;       // of the angle
  Real half_sine;  // sine of half the angle
  Real area;
  Real offset;  // of the centroid from the centre, along the chord's normal
  Real xs, ys;  // centroid
};

Segment segment(TrvIn xc, TrvIn yc, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, Integer kind) {
  const bool larger = kind == 5;
  Segment g;
  trvpds(xc, yc, 0, x1, y1, 0, g.radius);
  trvphi(xc, yc, x1, y1, x2, y2, g.angle);
  if (larger) g.angle = two_pi - g.angle;
  g.sine = sine(g.angle);
  g.half_sine = sine(0.5F * g.angle);
  const Real r = g.radius;
  const Real w = g.half_sine;
  g.area = r * r * (g.angle - g.sine) * 0.5F;

  // The smaller segment's centroid is across the chord, the larger one's on the centre's side.
  Real distance = 4 * r * (w * w * w) / (g.angle - g.sine) / -3;
  if (larger) distance = 0 - distance;
  Real a;
  Real b;
  Real c;
  Real centre_side;
  trvln3(x1, y1, x2, y2, a, b, c);
  const Real norm = square_root(a * a + b * b);
  trvlds(xc, yc, a, b, c, centre_side);
  g.offset = distance * centre_side / std::fabs(centre_side);
  g.xs = a / norm * g.offset;
  g.ys = g.offset * b / norm;
  trvtra(&g.xs, &g.ys, 1, -xc, -yc);
  return g;
}

}  // namespace

TRELVIN_ROUTINE trvacp(TrvIn xc, TrvIn yc, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn kind,
                       TrvOut area, TrvOut xs, TrvOut ys) {
  const Segment g = segment(xc, yc, x1, y1, x2, y2, kind);
  area = g.area;
  xs = g.xs;
  ys = g.ys;
}

TRELVIN_ROUTINE trvicp(TrvIn xc, TrvIn yc, TrvIn x1, TrvIn y1, TrvIn x2, TrvIn y2, TrvIntIn kind,
                       TrvOut ix, TrvOut iy, TrvOut ixy) {
  const Segment g = segment(xc, yc, x1, y1, x2, y2, kind);
  const Real r4 = (g.radius * g.radius) * (g.radius * g.radius);
  const Real h = g.half_sine * g.half_sine;
  const Real excess = g.angle - g.sine;

  // About the segment's own axes: that of symmetry, and the centroidal parallel of the chord.
  const Real symmetric = r4 * (3 * excess - 2 * g.sine * h) / 24;
  const Real parallel = r4 * (excess + 2 * g.sine * h) * 0.125F - g.area * (g.offset * g.offset);

  const Real dx = x2 - x1;
  const Real chord = std::fabs(dx) < tolerance ? half_pi : arc_tangent((y2 - y1) / dx);
  Real ix_own = parallel;
  Real iy_own = symmetric;
  if (chord != 0) {
    const auto [s, c] = sine_cosine(chord);
    ix_own = parallel * (c * c) + symmetric * (s * s);
    iy_own = parallel * (s * s) + symmetric * (c * c);
  }

  // The segment's own product of inertia is left out of ixy: hosts rely on the transfer term alone.
  ix = g.area * g.ys * g.ys + ix_own;
  iy = g.area * (g.xs * g.xs) + iy_own;
  ixy = g.area * g.xs * g.ys;
}
