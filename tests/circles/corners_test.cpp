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
  const Values refused = {unwritten, unwritten, unwritten, unwritten, unwritten, unwritten, 0};
  EXPECT_EQ(outputs(trvard, 1, 1, 11, 1, 1, 21, tolerance), refused);
  EXPECT_EQ(outputs(trvard, 1, 1, 11, 1, 1, 21, 10.001), refused);
  EXPECT_EQ(outputs(trvard, 1, 1, 11, 1, 1, 21, 10)[6], 1);  // up to the very end
  EXPECT_EQ(outputs(trvard, 1, 1, 11, 1, 21, 1, 2), refused);
  EXPECT_EQ(outputs(trvard, 1, 1, 11, 1, 1, 1, 2), refused);
}

TEST(Corners, BoxesHoldTheSweptArc) {
  expect_near(outputs(trvenv, 1, 2, 4, 2, pi / 2), {1, 2, 4, 5}, 1e-6);
  expect_near(outputs(trvenv, 1, 2, 4, 2, -pi / 2), {1, -1, 4, 2}, 1e-6);
  expect_near(outputs(trvenv, 1, 2, 4, 2, 7), {-2, -1, 4, 5}, 1e-6);
  expect_near(outputs(trvenv, 1, 2, 1, 5, -6.2831855), {-2, -1, 4, 5}, 1e-6);
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

namespace {

struct Crossing {
  float xc, yc, xa, ya, xb, yb;
  float xp = unwritten, yp = unwritten, xt = unwritten, yt = unwritten;
  float xo = unwritten, yo = unwritten, len = unwritten;
  std::int32_t status = unwritten_int;

  void find(float s, std::int32_t side, float e, float angle) {
    trvcer7(xc, yc, xa, ya, xb, yb, s, side, e, angle, xp, yp, xt, yt, xo, yo, len, status);
  }
};

}  // namespace

TEST(Corners, LinesThroughAStationCrossParallelAndArc) {
  // The chord from (-3, 4) to (3, 4) of the circle of radius 5; its small arc rises to (0, 5).
  Crossing above = {0, 0, -3, 4, 3, 4};
  above.find(2, 1, 0.5F, static_cast<float>(pi / 4));
  EXPECT_EQ(above.status, 1);
  expect_near({above.xp, above.yp, above.xt, above.yt, above.xa, above.yb},
              {-1, 4, -0.5, 4.5, -3, 4}, 2e-6);
  EXPECT_NEAR(std::hypot(above.xo, above.yo), 5, 1e-5);
  EXPECT_NEAR(above.yo - 4, above.xo + 1, 1e-5);
  EXPECT_GT(above.yo, 4);
  EXPECT_NEAR(above.len, std::hypot(above.xo + 1, above.yo - 4), 1e-5);

  Crossing below = {0, 0, -3, 4, 3, 4};  // the other side, straight down
  below.find(3, -1, 2, half_pi);
  expect_near({below.xt, below.yt, below.xo, below.yo, below.len}, {0, 2, 0, -5, 9}, 2e-6);

  // A half circle, where the middle of the arc decides the side as well.
  Crossing half = {1, 1, 1, -4, 1, 6};
  half.find(5, 1, 1, half_pi);
  expect_near({half.xt, half.yt, half.xo, half.yo}, {0, 1, -4, 1}, 2e-6);

  const auto refused = [](Crossing c, float s, std::int32_t side, float e, float angle) {
    const Crossing before = c;
    c.find(s, side, e, angle);
    return c.status == 0 && c.xa == before.xa && c.xc == before.xc && c.xp == unwritten &&
           c.len == unwritten && c.yo == unwritten;
  };
  const Crossing arc = {0, 0, -3, 4, 3, 4};
  EXPECT_TRUE(refused(arc, -0.1F, 1, 1, 1));
  EXPECT_TRUE(refused(arc, 1, 1, -0.1F, 1));
  EXPECT_TRUE(refused(arc, 1, 0, 1, 1));
  EXPECT_TRUE(refused(arc, 5.99995F, 1, 1, 1));
  EXPECT_TRUE(refused(arc, 1, 1, 1, 5e-5F));                   // parallel to the chord
  EXPECT_TRUE(refused({0, 0, -3, 4.001F, 3, 4}, 1, 1, 1, 1));  // no arc
  EXPECT_TRUE(refused({0, 0, 0, 0, 3, 4}, 1, 1, 1, 1));        // no radius
  EXPECT_TRUE(refused({0, 0, 3e-4F, 4e-4F, -3e-4F, 4e-4F}, 2e-4F, 1, 0, 0.5F));  // by trvlci
}
