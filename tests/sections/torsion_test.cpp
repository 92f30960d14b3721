#include "sections/thin_section.h"

using namespace trelvin_test;

TEST(Torsion, AnIpe300HasThePublishedWarpingConstant) {
  const float y = 144.65F, b = 75, t = 10.7F;
  const ThinSection s({{0, -y, 0, y, 7.1F},
                       {0, y, -b, y, t},
                       {0, y, b, y, t},
                       {0, -y, -b, -y, t},
                       {0, -y, b, -y, t}});
  EXPECT_EQ(s.status, 0);
  EXPECT_NEAR(s.Iw / 1e9, 125.9, 0.05);  // EN 10365, in 1000 cm6
  expect_near({s.xm, s.ym, s.alpha}, {0, 0, 0}, 1e-4);
}

TEST(Torsion, PlatesOnOneLineTwistAboutTheirCentroid) {
  const ThinSection s({{0, 0, 30, 40, 2}, {30, 40, 60, 80, 4}});
  EXPECT_EQ(s.status, 0);
  expect_near({s.xs, s.ys, s.xm, s.ym, s.xp, s.yp}, {35, 140 / 3.0, 35, 140 / 3.0, 37.5, 50}, 1e-7);
  expect_near({s.Iw, s.W1[0], s.W2[1]}, {0, 0, 0}, 1e-9);
}

TEST(Torsion, AnyOpenSectionIsInEquilibriumAboutItsShearCentre) {
  const std::vector<Plate> plates = {{3, 4, 43, 34, 2},
                                     {43, 34, 100, 20, 3},
                                     {43, 34, 30, 90, 1.5F},
                                     {3, 4, -20, 40, 2.5F},
                                     {-20, 40, -5, 60, 1}};
  const ThinSection s(plates);
  ASSERT_EQ(s.status, 0);
  double w = 0, wx = 0, wy = 0, ww = 0, area = 0, plastic_x = 0, plastic_y = 0, left = 0,
         top = -1e9;
  for (std::size_t i = 0; i < plates.size(); ++i) {
    const Plate &p = plates[i];
    const double dx = p.x2 - p.x1, dy = p.y2 - p.y1, l = std::hypot(dx, dy);
    EXPECT_NEAR(s.W2[i] - s.W1[i], (p.x1 - s.xm) * dy - (p.y1 - s.ym) * dx, 0.02);
    constexpr int steps = 600;
    for (int k = 0; k < steps; ++k) {
      const double along = (k + 0.5) / steps;
      for (int j = 0; j < 20; ++j) {
        const double across = (j - 9.5) / 20 * p.t, da = l * p.t / steps / 20;
        const double x = p.x1 + along * dx - across * dy / l;
        const double y = p.y1 + along * dy + across * dx / l;
        const double omega = s.W1[i] + along * (s.W2[i] - s.W1[i]);
        area += da;
        w += omega * da;
        wx += omega * (p.x1 + along * dx) * da;
        wy += omega * (p.y1 + along * dy) * da;
        ww += omega * omega * da;
        plastic_x += std::fabs(y - s.yp) * da;
        plastic_y += std::fabs(x - s.xp) * da;
        left += x < s.xp ? da : 0;
        top = std::max(top, y);
      }
    }
  }
  const double scale = std::sqrt(ww * area);
  expect_near({w / scale, wx / scale / 100, wy / scale / 100}, {0, 0, 0}, 1e-5);
  expect_near({s.A, s.Iw, s.Wpx, s.Wpy}, {area, ww, plastic_x, plastic_y}, 1e-4);
  EXPECT_NEAR(left, area / 2, area * 2e-3);
  EXPECT_NEAR(s.Ix / s.Wx1, top - s.ys, 0.1);
}
