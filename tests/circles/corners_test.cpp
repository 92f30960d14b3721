#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

TEST(Corners, ArcsTouchBothSegments) {
  const auto corner = [](double x1, double y1, double x2, double y2) {
    return outputs(trvard, 1, 2, x1, y1, x2, y2, 2);
  };
  // Between (3, 4) and (-7, 24) the half angle has the tangent 1/2, between (1, 0) and (-3, 4) it
  // has 2; a right angle.
  expect_near(corner(7, 10, -6, 26), {1.8, 6.4, 3.4, 5.2, -0.12, 5.84, 1}, 1e-6);
  expect_near(corner(-6, 26, 7, 10), {1.8, 6.4, -0.12, 5.84, 3.4, 5.2, 1}, 1e-6);
  expect_near(corner(9, 2, -2, 6), {2, 4, 2, 2, 0.4, 2.8, 1}, 1e-6);
  expect_near(corner(1, -4, 11, 2), {3, 0, 1, 0, 3, 2, 1}, 1e-6);
}

TEST(Corners, ToleranceOfRadiusSegmentsAngleAndTouchingPoint) {
  const auto corner = [](double x1, double y1, double x2, double y2, double r) {
    return outputs(trvard, 0, 0, x1, y1, x2, y2, r);
  };
  const auto turned_back = [&](double side) { return corner(1, 0, -1, side, 2); };
  const float t3 = 3 * tolerance, t4 = 4 * tolerance;  // exact
  for (const Values &refused :
       {corner(t3, 0, 0, t3, std::nextafter(t4, 1.0F)), corner(10, 0, 0, 20, tolerance),
        corner(10, 0, 0, 20, not_a_number), corner(tolerance, 0, 0, 20, beyond),
        corner(0, 20, tolerance, 0, beyond), turned_back(tolerance), turned_back(-tolerance),
        corner(10, 0, 0, 20, 10.0000105)}) {
    EXPECT_EQ(refused, (Values{kept, kept, kept, kept, kept, kept, 0}));
  }
  for (const Values &done : {corner(t3, 0, 0, t3, t4), corner(10, 0, 0, 20, beyond),
                             corner(beyond, 0, 0, beyond, beyond), turned_back(beyond),
                             turned_back(-beyond), corner(10, 0, 0, 20, 10.000009)}) {
    EXPECT_EQ(done[6], 1);
  }
}

TEST(Corners, BoxesHoldTheSweptArc) {
  // From (3, 4), (-3, -4) and (-3, 4) on the circle of radius 5 about (1, 2), by quarter turns.
  const double cases[][7] = {
      {4, 6, 1, -3, 5, 4, 7},     {4, 6, 2, -4, -2, 4, 7},    {4, 6, 3, -4, -3, 5, 7},
      {4, 6, -1, 4, -1, 6, 6},    {4, 6, -3, -4, -3, 6, 6},   {-2, -2, -1, -4, -2, -2, 5},
      {-2, -2, 2, -2, -3, 6, 6},  {-2, -2, -3, -4, -2, 6, 7}, {4, 6, 4.5, -4, -3, 6, 7},
      {-2, -2, -4, -4, -3, 6, 7}, {-2, 6, 1, -4, -1, -2, 6}};
  for (const auto &[x, y, quarters, left, bottom, right, top] : cases)
    expect_near(outputs(trvenv, 1, 2, x, y, quarters * pi / 2), {left, bottom, right, top}, 1e-6);
  for (const int i : {0, 1, 2, 3, 4}) {
    double in[] = {1, 2, 4, 2, 1};
    in[i] = not_a_number;
    for (const double bound : outputs(trvenv, in[0], in[1], in[2], in[3], in[4]))
      EXPECT_TRUE(std::isnan(bound)) << i;
  }
}
