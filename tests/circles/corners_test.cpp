#include <random>

#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

namespace {

double distance(double x1, double y1, double x2, double y2) { return std::hypot(x2 - x1, y2 - y1); }

}  // namespace

TEST(Corners, ArcsTouchBothSegments) {
  const Values right = outputs(trvard, 1, 1, 11, 1, 1, 21, 2);
  expect_near(right, {3, 3, 3, 1, 1, 3, 1}, 1e-6);
  std::mt19937 random(7);
  std::uniform_real_distribution<float> draw(-10, 10);
  int done = 0;
  for (int i = 0; i < 200; ++i) {
    const double x0 = draw(random), y0 = draw(random), x1 = draw(random), y1 = draw(random);
    const double x2 = draw(random), y2 = draw(random), r = 0.5 * std::fabs(draw(random));
    const Values a = outputs(trvard, x0, y0, x1, y1, x2, y2, r);
    if (a[6] == 0) continue;
    ++done;
    for (const auto &[x, y, xt, yt] : {std::array{x1, y1, a[2], a[3]}, {x2, y2, a[4], a[5]}}) {
      EXPECT_NEAR(distance(a[0], a[1], xt, yt), r, 2e-5);
      EXPECT_NEAR(distance(x0, y0, xt, yt) + distance(xt, yt, x, y), distance(x0, y0, x, y), 2e-5);
      EXPECT_NEAR((xt - a[0]) * (x - x0) + (yt - a[1]) * (y - y0), 0, 5e-4);
    }
  }
  EXPECT_GT(done, 50);
}

TEST(Corners, ToleranceOfRadiusSegmentsAngleAndTouchingPoint) {
  const auto corner = [](double x1, double y1, double x2, double y2, double r) {
    return outputs(trvard, 0, 0, x1, y1, x2, y2, r);
  };
  const auto turned_back = [&](double side) { return corner(1, 0, -1, side, 2); };
  for (const Values &refused :
       {corner(10, 0, 0, 20, tolerance), corner(10, 0, 0, 20, not_a_number),
        corner(tolerance, 0, 0, 20, beyond), corner(0, 20, 0, 0, 2), turned_back(tolerance),
        turned_back(-tolerance), corner(10, 0, 0, 20, 10.0000105)}) {
    EXPECT_EQ(refused,
              (Values{unwritten, unwritten, unwritten, unwritten, unwritten, unwritten, 0}));
  }
  for (const Values &done :
       {corner(10, 0, 0, 20, beyond), corner(beyond, 0, 0, beyond, beyond), turned_back(beyond),
        turned_back(-beyond), corner(10, 0, 0, 20, 10.000009)}) {
    EXPECT_EQ(done[6], 1);
  }
}

TEST(Corners, BoxesHoldTheSweptArc) {
  expect_near(outputs(trvenv, 1, 2, 4, 2, pi / 2), {1, 2, 4, 5}, 1e-6);
  expect_near(outputs(trvenv, 1, 2, 4, 2, -pi / 2), {1, -1, 4, 2}, 1e-6);
  expect_near(outputs(trvenv, 1, 2, 4, 2, 7), {-2, -1, 4, 5}, 1e-6);
  expect_near(outputs(trvenv, 1, 2, 1, 5, -6.2831855), {-2, -1, 4, 5}, 1e-6);
  for (const int i : {0, 1, 2, 3, 4}) {
    double in[] = {1, 2, 4, 2, 1};
    in[i] = not_a_number;
    for (const double bound : outputs(trvenv, in[0], in[1], in[2], in[3], in[4]))
      EXPECT_TRUE(std::isnan(bound)) << i;
  }
  std::mt19937 random(11);
  std::uniform_real_distribution<float> draw(-6.5F, 6.5F);
  for (int i = 0; i < 100; ++i) {
    const double xa = draw(random), ya = draw(random), sweep = draw(random);
    Values box = {1e9, 1e9, -1e9, -1e9};
    for (int k = 0; k <= 20000; ++k) {
      const double turn = sweep * k / 20000, s = std::sin(turn), c = std::cos(turn);
      box = {std::min(box[0], 1 + (xa - 1) * c - (ya - 2) * s),
             std::min(box[1], 2 + (xa - 1) * s + (ya - 2) * c),
             std::max(box[2], 1 + (xa - 1) * c - (ya - 2) * s),
             std::max(box[3], 2 + (xa - 1) * s + (ya - 2) * c)};
    }
    expect_near(outputs(trvenv, 1, 2, xa, ya, sweep), box, 2e-6);
  }
}
