#include "support.h"
#include "trelvin/plane.h"
#include "trelvin/space.h"

using namespace trelvin_test;

namespace {

// Through (1, 2, 3), with the normal (1, 0, 2) x (0, 1, -1).
const Values plane = {-2, 1, 1, -3, 0};

Values zeros(double status) { return {0, 0, 0, 0, status}; }

}  // namespace

TEST(Planes, OfThreePointsOrTwoDirections) {
  EXPECT_EQ(outputs(trvpl1, 1, 2, 3, 2, 2, 5, 1, 3, 2), plane);
  EXPECT_EQ(outputs(trvplg, 1, 2, 3, 1, 0, 2, 0, 1, -1), Values(plane.begin(), plane.end() - 1));
  const double on_line[] = {1, 3, 2, 0, 4};  // at P0, at P1, between, before, behind
  for (int i = 0; i < 5; ++i) {
    const double x = on_line[i];
    EXPECT_EQ(outputs(trvpl1, 1, 2, 3, 3, 4, 5, x, x + 1, x + 2), zeros(i + 1));
    EXPECT_EQ(outputs(trvpl7, 1, 2, 3, 3, 4, 5, x, x + 1, x + 2, 1), zeros(i + 1));
  }
}

TEST(Planes, OfTwoLines) {
  // The first line runs from (5, 5, 5) along (1, 0, 2), the other one from (x, 5, z) along w.
  const auto expect = [](double x, double z, double wx, double wy, double wz,
                         const Values &through_p, const Values &through_a, const Values &common) {
    const double xd = x + wx, yd = 5 + wy, zd = z + wz;
    EXPECT_EQ(outputs(trvpl2, 1, 2, 3, 5, 5, 5, 6, 5, 7, x, 5, z, xd, yd, zd), through_p);
    EXPECT_EQ(outputs(trvpl3, 5, 5, 5, 6, 5, 7, x, 5, z, xd, yd, zd), through_a);
    EXPECT_EQ(outputs(trvpl6, 5, 5, 5, 1, 0, 2, x, 5, z, wx, wy, wz), common);
  };
  const auto left = [](double status) {
    return Values{unwritten, unwritten, unwritten, unwritten, status};
  };
  const Values at_a = {-2, 1, 1, 0, 0};
  expect(7, 9, 0, 1, -1, plane, at_a, at_a);
  expect(7, 9, 2, 0, 4, zeros(3), zeros(3), left(3));
  expect(7, 9, -2, 0, -4, zeros(4), zeros(4), left(4));
  expect(7, 5, 0, 1, -1, plane, at_a, left(6));
  expect(7, 9, 0, 0, 0, zeros(7), zeros(7), left(7));
  expect(7, 5, 2, 0, 4, zeros(0), zeros(0), zeros(0));

  // The relation is taken twice. C agrees with A by its coordinates, so that the cosine of the call
  // before decides whether it is on the line; D, too far out to be nearer to A or B, leaves one.
  EXPECT_EQ(outputs(trvpl6, 0, 0, 0, 2e-5, 0, 0, -9e-6, -9e-6, 0, 1000, 0, 0), zeros(3));
}

TEST(Planes, NormalToASegmentOrByIntercepts) {
  EXPECT_EQ(outputs(trvpl4, 1, 2, 3, 5, 5, 5, 3, 6, 6), plane);
  EXPECT_EQ(outputs(trvpl4, 1, 2, 3, 0, 0, 0, tolerance, tolerance, tolerance), zeros(1));
  EXPECT_EQ(outputs(trvpl5, 1, -2, 4), (Values{1, -0.5, 0.25, -1, 0}));
  EXPECT_EQ(outputs(trvpl5, beyond, -beyond, beyond)[4], 0);
  EXPECT_EQ(outputs(trvpl5, not_a_number, 1, 1), zeros(1));
  EXPECT_EQ(outputs(trvpl5, 1, -tolerance, 1), zeros(1));
  EXPECT_EQ(outputs(trvpl5, 1, 1, tolerance), zeros(1));
}

TEST(Planes, TurnedAboutAnEdge) {
  // Along x, so that the normal z turns towards -y.
  expect_near(outputs(trvpl7, 1, 1, 1, 3, 1, 1, 2, 5, 1, pi / 6),
              {0, -0.5, std::sqrt(0.75), 0.5 - std::sqrt(0.75), 0}, 3e-7);
  // In the frame (2, 1, 2)/3, (2, -2, -1)/3, (1, 2, -2)/3, by the angle of sine 0.8.
  expect_near(outputs(trvpl7, 1, 2, 3, 3, 3, 5, 1, 5, 6, 0.927295218),
              {-1 / 3.0, 2.8 / 3, -0.4 / 3, -3.4 / 3, 0}, 5e-7);
  EXPECT_EQ(outputs(trvpl7, 1, 2, 3, 1, 2, 3, 5, 6, 9, 1), zeros(1));  // a frame without normal
}

TEST(Planes, PointOnPlane) {
  const auto on_points = [](double z, double tol) {  // with a normal of 4
    return outputs(trvpsp, 0, 0, 0, 2, 0, 0, 0, 2, 0, 7, -9, z, tol)[0];
  };
  EXPECT_EQ((Values{on_points(0.25, 1), on_points(-0.25, 1), on_points(0.25, 0.99),
                    on_points(-0.25, 0.99), on_points(not_a_number, infinity)}),
            (Values{0, 0, -1, -1, -1}));
  EXPECT_EQ(outputs(trvpsp, 0, 0, 0, 2, 0, 0, 4, 0, 0, 7, 0, 0, infinity), Values{-1});

  // One above 3*y + 4*z = 10, and two below.
  EXPECT_EQ(outputs(trvpld, 9, 1, 3, 0, 3, 4, -10), Values{1});
  EXPECT_EQ(outputs(trvpld, 9, 0, 0, 0, 3, 4, -10), Values{-2});
  EXPECT_FALSE(std::isfinite(outputs(trvpld, 1, 2, 3, 0, 0, 0, 1)[0]));
  EXPECT_EQ(outputs(trvpspg, 9, 0, 0, 0, 3, 4, -10, 2), Values{0});
  EXPECT_EQ(outputs(trvpspg, 9, 0, 0, 0, 3, 4, -10, 1.99), Values{-1});
  EXPECT_EQ(outputs(trvpspg, 1, 2, 3, 0, 0, 0, 0, infinity), Values{1});
  EXPECT_EQ(outputs(trvpspg, 1e5, 0, 0, 1e-10, 0, 0, 0, infinity), Values{0});
}

TEST(Planes, RelationOfDirections) {
  const auto relation = [](double ux, double uy, double wx, double wy) {
    return outputs(trvplv, ux, uy, 0, wx, wy, 0, not_a_number, 1)[0];
  };
  EXPECT_EQ((Values{relation(0, 0, 1, 0), relation(0, 0, 0, 0), relation(1, 0, 0, 0),
                    relation(tolerance, 0, 1, 0), relation(1, 2, 2, 4), relation(1, 2, -2, -4),
                    relation(1, 2, -2, 1), relation(1, 2, 2, 1)}),
            (Values{-1, -1, 7, 7, 3, 4, 5, 0}));
}

TEST(Planes, ListOfPointsRunsItsResidualOn) {
  const float x[] = {1, 1, 0, 0}, y[] = {2, 0, -1, 0}, z[] = {3, 0, 0, 1e-30F};
  std::int32_t count = unwritten_int, index[] = {unwritten_int, unwritten_int, unwritten_int};
  float d = -6;
  trvpnp(x, y, z, 1, 1, 1, d, 0, count, index);
  EXPECT_TRUE(count == 0 && d == -6);
  trvpnp(x, y, z, 1, 1, 1, d, 4, count, index);  // 0, 1, 0, 1e-30
  EXPECT_EQ(Values(index, index + 3), (Values{1, 3, unwritten}));
  EXPECT_TRUE(count == 2 && d == 1e-30F);
}
