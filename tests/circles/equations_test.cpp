#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

namespace {

constexpr float u = unwritten;
const float below = std::nextafter(tolerance, 0.0F);

// n, then the points.
Values cut(double a, double b, double c, const Values &circle) {
  return outputs(trvlci, a, b, c, circle[0], circle[1], circle[2]);
}

}  // namespace

TEST(Circles, Equation) {
  EXPECT_EQ(outputs(trvcer, 1.5, -2, 4.5), (Values{-3, 4, -14}));
  EXPECT_EQ(outputs(trvcer, 1.5, -2, -2.5), (Values{-3, 4, 0}));
}

TEST(Circles, FirstPointIsThatOfTheLargerRoot) {
  const Values circle = outputs(trvcer, 1, 2, 5);
  for (const double k : {1, -2}) {
    EXPECT_EQ(cut(k, 0, -4 * k, circle), (Values{2, 4, 6, 4, -2}));
    EXPECT_EQ(cut(0, k, -5 * k, circle), (Values{2, 5, 5, -3, 5}));
    expect_near(cut(k, -7 * k, 38 * k, circle), {2, 4, 6, -3, 5}, 1e-6);
  }
  EXPECT_EQ(cut(1, 0, -7, circle), (Values{0, u, u, u, u}));
  EXPECT_EQ(cut(0, 1, 4, circle), (Values{0, u, u, u, u}));
  EXPECT_EQ(cut(1, 0, 4, circle), (Values{1, -4, 2, u, u}));
  EXPECT_EQ(cut(0, 1, -7, circle), (Values{1, 1, 7, u, u}));
}

TEST(Circles, LineCountsAsHorizontalUpToTheTolerance) {
  const Values circle = outputs(trvcer, 1, 2, 5);
  for (const float a : {tolerance, -tolerance})
    EXPECT_EQ(cut(a, 1, -5, circle), (Values{2, 5, 5, -3, 5}));
  // A slope as small as this brings the discriminant of the quadratic in y under the tolerance.
  for (const float a : {beyond, -beyond}) EXPECT_EQ(cut(a, 1, -5, circle)[0], 1);
  const Values nothing = cut(0, 0, 1, circle);
  EXPECT_TRUE(nothing[0] == 1 && std::isnan(nothing[1]) && nothing[2] == -infinity);
}

TEST(Circles, TouchIsABandOfTheDiscriminant) {
  const auto points = [](float discriminant) {
    const Values upright = cut(1, 0, 0, {0, 0, -discriminant / 4});
    EXPECT_EQ(upright[0], cut(0, 1, 0, {0, 0, -discriminant / 4})[0]);
    return upright[0];
  };
  EXPECT_EQ(points(beyond), 2);
  EXPECT_EQ(points(tolerance), 1);
  EXPECT_EQ(points(-tolerance), 1);
  EXPECT_EQ(points(-beyond), 0);
  EXPECT_EQ(points(not_a_number), 2);
}

TEST(Circles, IntersectionOfTwo) {
  const auto points = [](const Values &g, const Values &h) {
    return outputs(trvc12, g[0], g[1], g[2], h[0], h[1], h[2]);
  };
  const Values first = outputs(trvcer, 0, 0, 13);
  expect_near(points(first, outputs(trvcer, 14, 0, 15)), {2, 5, 12, 5, -12}, 1e-6);
  expect_near(points(first, outputs(trvcer, 0, 14, 15)), {2, 12, 5, -12, 5}, 1e-6);
  expect_near(points(outputs(trvcer, 7, -1, 5), outputs(trvcer, 0, 0, 5)), {2, 4, 3, 3, -4}, 1e-6);
  EXPECT_EQ(points(first, outputs(trvcer, 19, 0, 6)), (Values{1, 13, 0, u, u}));
  EXPECT_EQ(points(first, outputs(trvcer, 20, 0, 6)), (Values{0, u, u, u, u}));
  EXPECT_EQ(points(first, outputs(trvcer, 0, 0, 5)), (Values{0, u, u, u, u}));
  EXPECT_EQ(points({0, 0, -1}, {-tolerance / 2, tolerance / 2, -1}), (Values{0, u, u, u, u}));
  EXPECT_EQ(points({0, 0, -1}, {0, -beyond, -1}), (Values{1, 0, 0, u, u}));
}

TEST(Circles, CentresOfARadiusThroughTwoPoints) {
  // The normal of the chord points to the right of its direction.
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 8, 1, 5), (Values{3, 4, -3, 4, 3, 4, 2}));
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 8, -7, 5), (Values{3, 4, -3, 4, -3, 4, 2}));
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 8, 0, 5), (Values{3, 4, -3, 4, 3, 4, 2}));
  EXPECT_EQ(outputs(trvcer2, 0, 8, 0, 0, 1, 5), (Values{3, 4, -3, 4, -3, 4, 2}));
  expect_near(outputs(trvcer2, 4, 3, 3, -4, 1, 5), {7, -1, 0, 0, 0, 0, 2}, 1e-6);
  expect_near(outputs(trvcer2, 5, 5, 4, -2, -1, 5), {8, 1, 1, 2, 8, 1, 2}, 1e-5);
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 2, 1, 1), (Values{0, 1, 0, 1, 0, 1, 1}));
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 2, 1, 1.000001)[6], 1);
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 2, 1, 1.000003)[6], 2);

  const Values none = {u, u, u, u, u, u, 0};
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, 2, 1, 0.9999999), none);  // the band has one side only
  EXPECT_EQ(outputs(trvcer2, 3, 4, 3, 4, 1, 5), none);
  for (const float r : {tolerance, -5.0F, not_a_number})
    EXPECT_EQ(outputs(trvcer2, 0, 0, 0, tolerance, 1, r), none);
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, tolerance, 1, beyond)[6], 1);
}

TEST(Circles, HorizontalChordHasCentresButNoCount) {
  EXPECT_EQ(outputs(trvcer2, 1, 2, 9, 2, 1, 5), (Values{5, -1, 5, 5, 5, -1, 0}));
  EXPECT_EQ(outputs(trvcer2, 1, 2, 9, 2, 0, 5), (Values{5, -1, 5, 5, 5, -1, 0}));
  EXPECT_EQ(outputs(trvcer2, 1, 2, 9, 2, -1, 5), (Values{5, -1, 5, 5, 5, 5, 0}));
  expect_near(outputs(trvcer2, 0, 0, 8, -below, 1, 5), {4, -3, 4, 3, 4, -3, 0}, 1e-5);
  EXPECT_EQ(outputs(trvcer2, 0, 0, 0, -tolerance, 1, 5)[6], 2);
  const Values small = outputs(trvcer2, 1, 2, 9, 2, 1, 3);
  EXPECT_TRUE(std::isnan(small[1]) && std::isnan(small[3]));
  EXPECT_EQ(Values(small.begin() + 4, small.end()), (Values{u, u, 0}));
}

TEST(Circles, Sagitta) {
  expect_near(outputs(trvcer1, 0, 0, 0, 8, 1, 2), {5, 3, 4, 2}, 1e-6);
  expect_near(outputs(trvcer1, 0, 0, 0, 8, -1, 8), {5, -3, 4, 2}, 1e-6);
  expect_near(outputs(trvcer1, 1, 2, 9, 2, 1, 2), {5, 5, -1, 0}, 1e-6);
  EXPECT_EQ(outputs(trvcer1, 0, 0, 0, 8, 1, below), (Values{u, u, u, 0}));
  // A half circle whose radius is the tolerance: refused, after the radius has been written.
  EXPECT_EQ(outputs(trvcer1, 0, 0, 0, 2 * tolerance, 1, tolerance), (Values{tolerance, u, u, 0}));
}
