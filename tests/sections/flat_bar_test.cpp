#include "sections/thin_section.h"

using namespace trelvin_test;

TEST(FlatBar, TwistsAsTabulated) {
  // S. Timoshenko, J. N. Goodier, Theory of elasticity, torsion of rectangles: It / (b t^3) and
  // Wt / (b t^2) by b/t, with more digits of the same series than its table has.
  for (const auto &[ratio, torsion, modulus] : {std::array{1.F, 0.140577015F, 0.20816526F},
                                                {2.F, 0.228681677F, 0.245878342F},
                                                {4.F, 0.280812958F, 0.281665666F},
                                                {10.F, 0.312325037F, 0.312325114F}}) {
    const ThinSection upright(3, 3 * ratio);
    const ThinSection flat(3 * ratio, 3);
    EXPECT_NEAR(upright.It / (81 * ratio), torsion, 1e-7);
    EXPECT_NEAR(upright.Wt / (27 * ratio), modulus, 1e-7);
    EXPECT_TRUE(upright.It == flat.It && upright.Wt == flat.Wt && upright.Ix == flat.Iy);
  }
}

TEST(FlatBar, FiguresByHand) {
  const ThinSection s(6, 12);
  expect_near({s.A, s.Ix, s.Iy, s.I1, s.I2, s.rx, s.ry},
              {72, 864, 216, 864, 216, std::sqrt(12), std::sqrt(3)}, 1e-7);
  expect_near({s.Wx1, s.Wx2, s.Wy1, s.Wy2, s.Wpx, s.Wpy, s.Iw, s.r0},
              {144, 144, 72, 72, 216, 108, 2592, std::sqrt(15)}, 1e-7);
  for (const float zero : {s.xs, s.ys, s.Ixy, s.alpha, s.xp, s.yp, s.xm, s.ym, s.W1[0], s.W2[0]})
    EXPECT_EQ(zero, 0);
  EXPECT_EQ(s.status, 0);
}

TEST(FlatBar, SidesCountAboveTheTolerance) {
  for (const float side : {tolerance, 0.F, -3.F, infinity, not_a_number}) {
    EXPECT_EQ(ThinSection(side, 3).status, TRV_STATUS_REFUSED);
    EXPECT_EQ(ThinSection(3, side).status, TRV_STATUS_REFUSED);
  }
  EXPECT_EQ(ThinSection(beyond, 3).status, 0);
}
