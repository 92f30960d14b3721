#include "trelvin/circles.h"
#include "support.h"

using namespace trelvin_test;

namespace {

const float below = std::nextafter(tolerance, 0.0F);

// n, then the points.
Values cut(double a, double b, double c, const Values &circle) {
  return outputs(trvlci, a, b, c, circle[0], circle[1], circle[2]);
}

Values meet(const Values &g, const Values &h) {
  return outputs(trvc12, g[0], g[1], g[2], h[0], h[1], h[2]);
}

}  // namespace

TEST(Circles, LineMeetsThemFirstAtTheLargerRoot) {
  const Values circle = outputs(trvcer, 1, 2, 5);
  EXPECT_EQ(circle, (Values{-2, -4, -20}));
  for (const double k : {1, -2}) {
    EXPECT_EQ(cut(k, 0, -4 * k, circle), (Values{TRV_POINTS_TWO, 4, 6, 4, -2}));
    EXPECT_EQ(cut(0, k, -5 * k, circle), (Values{2, 5, 5, -3, 5}));
    expect_near(cut(k, -7 * k, 38 * k, circle), {2, 4, 6, -3, 5}, 1e-6);
    EXPECT_EQ(cut(k, 0, 4 * k, circle), (Values{TRV_POINTS_ONE, -4, 2, kept, kept}));
    EXPECT_EQ(cut(0, k, -7 * k, circle), (Values{1, 1, 7, kept, kept}));
    EXPECT_EQ(cut(k, 0, -7 * k, circle), (Values{TRV_POINTS_NONE, kept, kept, kept, kept}));
    EXPECT_EQ(cut(0, k, 4 * k, circle), (Values{0, kept, kept, kept, kept}));
  }
  // Taken as horizontal, or else so flat that the discriminant is under the tolerance.
  EXPECT_EQ(cut(-tolerance, 1, -5, circle), (Values{2, 5, 5, -3, 5}));
  EXPECT_EQ(cut(-beyond, 1, -5, circle)[0], 1);
}

TEST(Circles, MeetEachOtherUnlessConcentric) {
  const Values circle = outputs(trvcer, 1, 2, 13);
  expect_near(meet(circle, outputs(trvcer, 15, 2, 15)), {2, 6, 14, 6, -10}, 1e-6);
  expect_near(meet(circle, outputs(trvcer, 1, 16, 15)), {2, 13, 7, -11, 7}, 1e-6);
  EXPECT_EQ(meet(circle, outputs(trvcer, 21, 2, 6)), (Values{0, kept, kept, kept, kept}));
  EXPECT_EQ(meet({0, 0, -1}, {-tolerance / 2, tolerance / 2, -1}),
            (Values{0, kept, kept, kept, kept}));
  EXPECT_EQ(meet({0, 0, -1}, {0, -beyond, -1}), (Values{1, 0, 0, kept, kept}));
}

TEST(Circles, CentresOfARadiusThroughTwoPoints) {
  // The normal of the chord points to the right of its direction.
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 8, 1, 5), (Values{3, 4, -3, 4, 3, 4, 2}));
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 8, -7, 5), (Values{3, 4, -3, 4, -3, 4, 2}));
  EXPECT_EQ(outputs(trvcer2, 0, 8, 0, 0, 0, 5), (Values{3, 4, -3, 4, 3, 4, 2}));
  expect_near(outputs(trvcer2, 5, 5, 4, -2, -1, 5), {8, 1, 1, 2, 8, 1, 2}, 1e-5);
  const Values none = {kept, kept, kept, kept, kept, kept, 0};
  EXPECT_EQ(outputs(trvcer2, 1, 7, 7, -1, 1, 5), (Values{4, 3, 4, 3, 4, 3, 1}));
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 2, 1, 0.9999999), none);
  EXPECT_EQ(outputs(trvcer2, 3, 4, 3, 4, 1, 5), none);
  // The discriminant is 4*(r^2 - 1e-6): the tolerance, then more.
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 2e-3F, 1, 1.87082868e-3F)[6], 1);
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 2e-3F, 1, 1.8708288e-3F)[6], 2);
  for (const float r : {tolerance, -5.0F, not_a_number})
    EXPECT_EQ(outputs(trvcer2, 0, 0, 0, tolerance, 1, r), none);
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, tolerance, 1, beyond)[6], 1);
}

TEST(Circles, HorizontalChordHasCentresButNoCount) {
  EXPECT_EQ(outputs(trvcer2, 1, 2, 9, 2, 0, 5), (Values{5, -1, 5, 5, 5, -1, 0}));
  expect_near(outputs(trvcer2, 0, 0, 8, -below, -1, 5), {4, -3, 4, 3, 4, 3, 0}, 1e-5);
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, -tolerance, 1, 5)[6], 2);
  const Values small = outputs(trvcer2, 1, 2, 9, 2, 1, 3);
  EXPECT_TRUE(std::isnan(small[1]) && std::isnan(small[3]));
  EXPECT_EQ(Values(small.begin() + 4, small.end()), (Values{kept, kept, 0}));
}

TEST(Circles, Sagitta) {
  expect_near(outputs(trvcer1, 0, 0, 0, 8, 1, 2), {5, 3, 4, 2}, 1e-6);
  expect_near(outputs(trvcer1, 0, 0, 0, 8, -1, 8), {5, -3, 4, 2}, 1e-6);
  expect_near(outputs(trvcer1, 1, 2, 9, 2, 1, 2), {5, 5, -1, 0}, 1e-6);
  EXPECT_EQ(outputs(trvcer1, 0, 0, 0, 8, 1, below), (Values{kept, kept, kept, 0}));
  // A half circle whose radius is the tolerance: refused, after the radius has been written.
  EXPECT_EQ(outputs(trvcer1, 0, 0, 0, 2 * tolerance, 1, tolerance),
            (Values{tolerance, kept, kept, 0}));
}
