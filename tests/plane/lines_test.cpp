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
    for (const double off : {0 * step, 83 * step, -83 * step})
      EXPECT_EQ(outputs(trvln1, 3, 2, turn + off), (Values{1, 0, -3}));
    for (const double off : {84 * step, -84 * step})
      EXPECT_NEAR(outputs(trvln1, 3, 2, turn + off)[0] * off, -1, 0.01);
    EXPECT_GT(std::fabs(outputs(trvln1, 3, 2, 3 * turn)[0]), 1e6);
  }
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
  const Values same = {1, unwritten, unwritten}, parallel = {2, unwritten, unwritten};
  EXPECT_EQ(outputs(trvlni, 1, 2, 3, -2, -4, -6), same);
  EXPECT_EQ(outputs(trvlni, 1, 0, 0, 1, 0, -1), parallel);
  EXPECT_EQ(outputs(trvlni, 0, 1, 0, 0, 1, -1), parallel);
  EXPECT_EQ(outputs(trvlni, 1, 0, -1, 0, tolerance, 0), same);  // coefficients are not scaled
  EXPECT_EQ(outputs(trvlni, 1, 0, -1, 0, -tolerance, beyond), parallel);
  EXPECT_EQ(outputs(trvlni, 1, 0, -3, 0, beyond, 0), (Values{0, 3, 0}));
  EXPECT_EQ(outputs(trvlni, not_a_number, not_a_number, not_a_number, 1, 2, 3), same);

  const Values g = outputs(trvln3, 0, 1, 4, 3), h = outputs(trvln3, 1, 5, 3, -2);
  const Values p = outputs(trvlni, g[0], g[1], g[2], h[0], h[1], h[2]);
  EXPECT_EQ(p[0], 0);
  EXPECT_NEAR(distance(g, p[1], p[2]), 0, 1e-6);
  EXPECT_NEAR(distance(h, p[1], p[2]), 0, 1e-6);
}

TEST(Lines, WhichComponentsDiffer) {
  constexpr double codes[] = {0, 2, 3, 5, 4, 7, 6, 1};  // by first + 2 second + 4 third
  for (int differ = 0; differ < 8; ++differ) {
    for (const float same : {tolerance, not_a_number}) {
      const auto q = [&](int bit) { return (differ & bit) != 0 ? -beyond : same; };
      EXPECT_EQ(outputs(trvpsn, 0, 0, 0, q(1), q(2), q(4)), Values{codes[differ]});
    }
  }
}

TEST(Lines, PointOnALineOfSpace) {
  struct Case {
    double d[3], p[3];  // direction and a point of the line from (1, 2, 3)
    double code;
    int free;  // coordinate of p that places it along the line
  };
  const Case cases[] = {
      {{2, 4, -4}, {4, 8, -3}, 1, 0},      {{4, 0, 0}, {not_a_number, 2, 3}, 2, 0},
      {{0, 4, 0}, {1, infinity, 3}, 3, 1}, {{0, 0, 4}, {1, 2, not_a_number}, 4, 2},
      {{2, 4, 0}, {4, 8, 3}, 5, 0},        {{0, 2, 4}, {1, 5, 9}, 6, 1},
      {{2, 0, 4}, {4, 2, 9}, 7, 0}};
  for (const Case &t : cases) {
    for (int i = 0; i < 3; ++i) {
      for (const float off : {0.25F, -0.25F, 0.26F, -0.26F, not_a_number}) {
        double p[] = {t.p[0], t.p[1], t.p[2]};
        p[i] += off;
        if (i == t.free) continue;
        EXPECT_EQ(outputs(trvln6, 1, 2, 3, t.d[0], t.d[1], t.d[2], p[0], p[1], p[2], 0.25),
                  (Values{t.code, std::fabs(off) == 0.25F ? 1.0 : 0.0}))
            << i << " off by " << off;
      }
    }
  }
  EXPECT_EQ(outputs(trvln6, 1, 2, 3, tolerance / 2, 0, 0, 1, 2, 3, 1), (Values{0, 0}));
}

TEST(Lines, TwoPlanesAgreeWithAPointAtTheRetainedStation) {
  struct Planes {
    float a1, b1, c1, d1, a2, b2, c2, d2;
  };
  const float n = not_a_number;
  const Planes oblique = {2, 1, 3, 2, 4, 3, 5, -2};     // (0, 4, -2) and onwards by (2, -1, -1)
  const Planes upright = {2, 1, 0, -23, 3, 4, 0, -57};  // x = 7, y = 9
  const Planes across = {1, 1, 2, -8, 4, 2, 4, -22};    // x = 3, y + 2 z = 5
  const Planes none = {n, n, n, n, n, n, n, n};
  float ex = unwritten, ey = unwritten;
  const auto expect = [&](const Planes &g, float ez, float x, float y, float z, std::int32_t code,
                          std::int32_t on) {
    std::int32_t codes = unwritten_int, result = unwritten_int;
    trvln7(g.a1, g.b1, g.c1, g.d1, g.a2, g.b2, g.c2, g.d2, x, y, z, ex, ey, ez, 0.25F, codes,
           result);
    EXPECT_TRUE(codes == code && result == on) << x << " " << y << " " << z;
  };
  // Along x, from the station 0 that loading left, wherever the point is.
  expect(oblique, 0, n, 4.25F, -2.25F, 5, 1);
  EXPECT_TRUE(ex == -4 && ey == -2);
  expect(oblique, 2, 6, 1, -5, 1, 0);
  expect(oblique, 0, 0, 4.26F, -2, 5, 0);
  expect(oblique, 0, 0, 4, -2.26F, 5, 0);
  // Along z only if the caller says so.
  expect(upright, 0, 7, 9, 0, 0, 0);
  expect(upright, 5, 7.25F, 8.75F, n, 4, 1);
  expect(upright, 5, 7.26F, 9, 0, 4, 0);
  expect(upright, 5, 7, 9.26F, 0, 4, 0);
  // Now x = 7 is retained: what agreed before no longer does.
  expect(oblique, 0, 0, 4, -2, 5, 0);
  expect(oblique, 0, 0, 0.5F, -5.5F, 5, 1);
  expect(none, n, 0, 0, 0, 0, 0);
  // Along y, at the retained 0.5, z is that of the line at -0.5.
  expect(across, 0, 3.25F, n, 3, 3, 1);
  expect(across, 0, 3.26F, 0, 2.75F, 3, 0);
  expect(across, 0, 3, 0, 3.01F, 3, 0);
  expect(none, n, 0, 0, 0, 0, 0);
  expect(oblique, 0, 0, 2.5F, -3.5F, 5, 1);
}

TEST(Lines, ParallelsAreAsFarApartAsTheParallelTells) {
  for (const double scale : {1.0, -2.5, 40.0}) {
    const Values second = outputs(trvln2, 3, -4, 5, -7);
    const Values apart =
        outputs(trvlul, 3, -4, 5, scale * second[0], scale * second[1], scale * second[2]);
    expect_near(apart, {-7, 2}, 1e-6);
    EXPECT_EQ(outputs(trvlul, 3, -4, 5, scale * 3, scale * -4, scale * 5), (Values{0, 1}));
  }
  EXPECT_EQ(outputs(trvlul, 3, -4, 5, 3, 4, 5), (Values{unwritten, 0}));
}
