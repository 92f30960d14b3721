#include "support.h"
#include "trelvin/properties.h"

using namespace trelvin_test;

namespace {

// Area, sx, sy, ix, iy, ixy; the first moments are taken from the centroid.
Values segment(double xc, double yc, double x1, double y1, double x2, double y2, int kind) {
  const Values g = outputs(trvacp, xc, yc, x1, y1, x2, y2, kind);
  const Values i = outputs(trvicp, xc, yc, x1, y1, x2, y2, kind);
  return {g[0], g[0] * g[2], g[0] * g[1], i[0], i[1], i[2]};
}

}  // namespace

TEST(CircularSegments, RadiusIsTheFirstEnds) {
  // A quarter disc of radius 2 less its triangle.
  EXPECT_NEAR(segment(3, 1, 5, 1, 3, 8, 4)[0], pi - 2, 1e-6);
}

TEST(CircularSegments, AgainstStrips) {
  const double xc = 2, yc = -1, r = 5, a = std::atan2(4, 3);
  // Slanted chords, and chords parallel to the axes on either side of the centre.
  const double arcs[][2] = {{0.3, 1.7},   {-2, -3}, {a, pi - a},
                            {-a, a - pi}, {-a, a},  {pi - a, pi + a}};
  for (const auto &[from, to] : arcs) {
    const double x1 = xc + r * std::cos(from), y1 = yc + r * std::sin(from);
    const double x2 = xc + r * std::cos(to), y2 = yc + r * std::sin(to);
    const double nx = std::cos((from + to) / 2), ny = std::sin((from + to) / 2);
    const double chord = r * std::cos((to - from) / 2);
    for (const int kind : {4, 5}) {
      // Strips parallel to the chord, each at its distance t from the centre.
      const double start = kind == 5 ? -r : chord, end = kind == 5 ? chord : r;
      const int strips = 100000;
      const double step = (end - start) / strips;
      Values sum(6);
      for (int i = 0; i < strips; ++i) {
        const double t = start + (i + 0.5) * step, half = std::sqrt(r * r - t * t);
        const double x = xc + t * nx, y = yc + t * ny, area = 2 * half * step;
        sum[0] += area;
        sum[1] += area * y;
        sum[2] += area * x;
        sum[3] += area * (y * y + nx * nx * half * half / 3);
        sum[4] += area * (x * x + ny * ny * half * half / 3);
      }
      sum[5] = sum[1] * sum[2] / sum[0];  // without the segment's own
      expect_near(segment(xc, yc, x1, y1, x2, y2, kind), sum, 3e-6);
      expect_near(segment(xc, yc, x2, y2, x1, y1, kind), sum, 3e-6);
    }
  }
}

TEST(CircularSegments, NoCentroidForAHalfDisc) {
  const Values half = segment(0, 0, 1, 0, -1, 0, 4);
  EXPECT_NEAR(half[0], pi / 2, 1e-6);
  EXPECT_TRUE(std::all_of(half.begin() + 1, half.end(), [](double v) { return std::isnan(v); }));
}
