#include "support.h"
#include "trelvin/plane.h"

using namespace trelvin_test;

namespace {

double distance(const Values &line, double x, double y) {
  return outputs(trvlds, x, y, line[0], line[1], line[2])[0];
}

}  // namespace

TEST(Lines, DistancesArePositiveToTheRight) {
  const Values line = outputs(trvln3, 1, 2, 4, 6);
  EXPECT_EQ(distance(line, 1, 2), 0);
  EXPECT_EQ(distance(line, 4, 6), 0);
  EXPECT_EQ(distance(line, 5, -1), 5);
  const Values left = outputs(trvln2, line[0], line[1], line[2], -10);
  EXPECT_EQ(distance(line, -7, 8), -10);
  EXPECT_EQ(distance(left, -7, 8), 0);
  EXPECT_TRUE(left[0] == 4 && left[1] == -3);  // as long as the segment
  EXPECT_EQ(outputs(trvln3, 3, 7, 3, 7), (Values{0, 0, 0}));
  EXPECT_FALSE(std::signbit(outputs(trvln3, 3, 7, 3, 9)[1]));
}

TEST(Lines, AngleGivesASlopeButAtTheQuarterTurns) {
  const Values line = outputs(trvln1, 2, 3, 0.6435011);  // 3-4-5
  EXPECT_NEAR(distance(line, 2, 3), 0, 1e-6);
  EXPECT_NEAR(distance(line, 6, 6), 0, 1e-6);
  EXPECT_EQ(outputs(trvln1, 1, 2, not_a_number), (Values{1, 0, -1}));
  // Numbers near a quarter turn lie 2^-23 apart: 83 steps are below the tolerance, 84 above.
  const double step = std::ldexp(1, -23);
  for (const double turn : {half_pi, -half_pi}) {
    for (const double side : {step, -step}) {
      EXPECT_EQ(outputs(trvln1, 3, 2, turn + 83 * side), (Values{1, 0, -3}));
      EXPECT_NEAR(outputs(trvln1, 3, 2, turn + 84 * side)[0] * 84 * side, -1, 0.01);
    }
    EXPECT_GT(std::fabs(outputs(trvln1, 3, 2, 3 * turn)[0]), 1e6);
  }
  EXPECT_NEAR(outputs(trvln1, 0, 0, 20)[0], 2.23716094, 1e-6);  // the tangent of 20 rad
}

TEST(Lines, DirectionIsVerticalAtExactlyZeroOnly) {
  EXPECT_EQ(outputs(trvln4, 1, 2, -4, -3, not_a_number), (Values{0.75, -1, 1.25}));
  EXPECT_EQ(outputs(trvln4, 3, 2, -0.0, 5, 0), (Values{1, 0, -3}));
  EXPECT_EQ(outputs(trvln4, 0, 2, 1e-30F, 1, 0), (Values{1e30F, -1, 2}));
}

TEST(Lines, BisectorIsAsFarFromBothRays) {
  // The rays (3, 4) and (12, 5): unit vectors of fifths and thirteenths.
  const Values line = outputs(trvln5, 2, -3, 5, 1, 14, 2);
  EXPECT_EQ(line, (Values{-21, 27, 123}));
  EXPECT_EQ(distance(line, 11, 4), 0);
  EXPECT_NEAR(distance(outputs(trvln3, 2, -3, 5, 1), 11, 4),
              -distance(outputs(trvln3, 2, -3, 14, 2), 11, 4), 1e-6);
  EXPECT_EQ(outputs(trvln5, 1, 1, 4, 5, 1, 1), (Values{0, 0, 0}));
}

TEST(Lines, Intersection) {
  const Values same = {TRV_PLANE_LINES_SAME_LINE, kept, kept},
               parallel = {TRV_PLANE_LINES_PARALLEL, kept, kept};
  EXPECT_EQ(outputs(trvlni, 1, 2, 3, -2, -4, -6), same);
  EXPECT_EQ(outputs(trvlni, 1, 0, 0, 1, 0, -1), parallel);
  EXPECT_EQ(outputs(trvlni, 0, 1, 0, 0, 1, -1), parallel);
  EXPECT_EQ(outputs(trvlni, 1, 0, -1, 0, tolerance, 0), same);  // coefficients are not scaled
  EXPECT_EQ(outputs(trvlni, 1, 0, -1, 0, -tolerance, beyond), parallel);
  EXPECT_EQ(outputs(trvlni, 1, 0, -3, 0, beyond, 0), (Values{TRV_PLANE_LINES_ONE_POINT, 3, 0}));
  EXPECT_EQ(outputs(trvlni, not_a_number, not_a_number, not_a_number, 1, 2, 3), same);

  const Values g = outputs(trvln3, 0, 1, 4, 3), h = outputs(trvln3, 1, 5, 3, -2);
  const Values p = outputs(trvlni, g[0], g[1], g[2], h[0], h[1], h[2]);
  EXPECT_EQ(p[0], 0);
  EXPECT_NEAR(distance(g, p[1], p[2]), 0, 1e-6);
  EXPECT_NEAR(distance(h, p[1], p[2]), 0, 1e-6);
}

TEST(Lines, ParallelsAreAsFarApartAsTheParallelTells) {
  for (const double scale : {1.0, -2.5, 40.0}) {
    const Values second = outputs(trvln2, 3, -4, 5, -7);
    const Values apart =
        outputs(trvlul, 3, -4, 5, scale * second[0], scale * second[1], scale * second[2]);
    expect_near(apart, {-7, 2}, 1e-6);
    EXPECT_EQ(outputs(trvlul, 3, -4, 5, scale * 3, scale * -4, scale * 5), (Values{0, 1}));
  }
  EXPECT_EQ(outputs(trvlul, 3, -4, 5, 3, 4, 5), (Values{kept, 0}));
  // Far from the origin the constants nearly cancel: 100000.5 - 300001.8125 / 3.
  expect_near(outputs(trvlul, 1, 0, 100000.5, 3, 0, 300001.8125), {-0.3125 / 3, 2}, 1e-8);
}
