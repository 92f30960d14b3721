#include "sections/thin_section.h"

using namespace trelvin_test;

TEST(Bending, AnObliqueSectionAddsUpByHand) {
  const ThinSection s({{0, 0, 10, 0, 2}, {0, 0, 0, 20, 2}});
  expect_near({s.A, s.xs, s.ys, s.Ix, s.Iy, s.Ixy},
              {60, 5 / 3.0, 20 / 3.0, 8020 / 3.0, 1540 / 3.0, -2000 / 3.0}, 1e-7);
  // Mohr's circle about 1593.333. The axis of the greater moment leans towards the negative product.
  expect_near({s.I1, s.I2, s.alpha, s.rx, s.ry},
              {2862.5237, 324.14287, 0.27651573, 6.6749949, 2.9249881}, 1e-7);
  // From the centroid to the plates' faces; the areas on either side of x = 5/11 and of y = 5 are 30.
  expect_near({s.Wx1, s.Wx2, s.Wy1, s.Wy2}, {200.5, 8020 / 23.0, 61.6, 192.5}, 1e-7);
  expect_near({s.xp, s.yp, s.Wpx, s.Wpy}, {5 / 11.0, 5, 350, 1270 / 11.0}, 1e-7);
  expect_near({s.It, s.Wt, s.r0}, {80, 40, std::sqrt(9560 / 180.0 + 425 / 9.0)}, 1e-7);
  EXPECT_EQ((Values{s.xm, s.ym, s.Iw, s.W1[1], s.W2[1]}), (Values{0, 0, 0, 0, 0}));
}

TEST(Bending, AnInclinedBarHasTheMomentsOfABar) {
  const ThinSection s({{0, 0, 800, 600, 0.5F}});
  expect_near({s.A, s.xs, s.ys, s.xp, s.yp, s.It, s.xm, s.ym, s.Iw},
              {500, 400, 300, 400, 300, 125 / 3.0, 400, 300, 0}, 1e-7);
  // Axis 1 is the one within an eighth of a turn from x, here along the bar.
  expect_near({s.I1, s.I2, s.alpha}, {125 / 12.0, 5e8 / 12, std::atan(0.75)}, 1e-7);
  const ThinSection up({{0, 0, 300, 300, 0.5F}}), down({{0, 0, 300, -300, 0.5F}});
  expect_near({up.I1, up.alpha, down.I2, down.alpha},
              {std::sqrt(2) * 300 / 96, pi / 4, std::sqrt(2) * 300 / 96, pi / 4}, 1e-7);
}

TEST(Bending, MomentsInTheMiddleBetweenTwoRealsAreRoundedOnceToTheEvenOne) {
  // 42711*11^3/12 = 4737361.75; 138*184*230*175/12*(1 - (175/230)^2) = 35862750.
  EXPECT_EQ(ThinSection({{-21355.5F, 0, 21355.5F, 0, 11}}).Ix, 4737362);
  EXPECT_EQ(ThinSection({{0, -21355.5F, 0, 21355.5F, 11}}).Iy, 4737362);
  EXPECT_EQ(ThinSection({{-69, -92, 69, 92, 175}}).Ixy, 35862752);
}

TEST(Bending, EqualAreaAxisInAPlatesCorner) {
  // A square on its corner, 20 high, and 60 of area above it: 70 are missing to half of 260.
  const ThinSection s({{0, 0, 10, 10, 14.142136F}, {10, 10, 10, 40, 2}});
  expect_near({s.yp, s.Wpx}, {15 - std::sqrt(70), 2600 - 280 * std::sqrt(70) / 3}, 1e-6);
  // Widest in the section's middle, at 1.5, and narrowing by 25/12 a unit up to 4.5: 5 of 23.75 lie
  // in the other plate, 6.875 above the axis.
  EXPECT_NEAR(ThinSection({{0, 0, 4, 3, 3.75F}, {0, 3, 10, 3, 0.5F}}).yp, 4.5 - std::sqrt(6.6),
              1e-6);
}

TEST(Bending, EqualAreaAxisInTheMiddleOfAGap) {
  const ThinSection s({{0, 0, 10, 0, 2}, {0, 50, 10, 50, 2}});
  expect_near({s.yp, s.Wpx, s.xp}, {25, 1000, 5}, 1e-7);
  // From 1 to 2, and from -2 to -1: next to one end of the section.
  expect_near({ThinSection({{0, 0, 10, 0, 2}, {0, 2, 0, 82, 0.25F}}).yp,
               ThinSection({{0, 0, 10, 0, 2}, {0, -82, 0, -2, 0.25F}}).yp},
              {1.5, -1.5}, 1e-7);
}
