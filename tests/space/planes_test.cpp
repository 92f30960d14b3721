#include "support.h"
#include "trelvin/plane.h"
#include "trelvin/space.h"

using namespace trelvin_test;

namespace {

// Through (1, 2, 3), with the normal (1, 0, 2) x (0, 1, -1).
const Values plane_found = {-2, 1, 1, -3, 0};

Values refused(double status) { return {0, 0, 0, 0, status}; }

}  // namespace

TEST(Planes, OfPointAndDirectionsOrThreePoints) {
  EXPECT_EQ(outputs(trvplg, 1, 2, 3, 1, 0, 2, 0, 1, -1), (Values{-2, 1, 1, -3}));
  EXPECT_EQ(outputs(trvpl1, 1, 2, 3, 2, 2, 5, 1, 3, 2), plane_found);
  EXPECT_EQ(outputs(trvplg, 1, 2, 3, 1, 0, 2, -2, 0, -4), (Values{0, 0, 0, 0}));
  EXPECT_EQ(outputs(trvpl1, 1, 2, 3, 3, 4, 5, 1, 2, 3), refused(1));
  EXPECT_EQ(outputs(trvpl1, 1, 2, 3, 3, 4, 5, 3, 4, 5), refused(2));
  EXPECT_EQ(outputs(trvpl1, 1, 2, 3, 3, 4, 5, 2, 3, 4), refused(3));
  EXPECT_EQ(outputs(trvpl1, 1, 2, 3, 3, 4, 5, 0, 1, 2), refused(4));
  EXPECT_EQ(outputs(trvpl1, 1, 2, 3, 3, 4, 5, 5, 6, 7), refused(5));
}

TEST(Planes, ParallelToTwoLines) {
  const auto of_lines = [](double xd, double yd, double zd) {  // (5, 5, 5) to (6, 5, 7), (6, 5, 7)
    const Values at_p = outputs(trvpl2, 1, 2, 3, 5, 5, 5, 6, 5, 7, 6, 5, 7, xd, yd, zd);
    EXPECT_EQ(at_p[4], outputs(trvpl3, 5, 5, 5, 6, 5, 7, 6, 5, 7, xd, yd, zd)[4]);
    return at_p;
  };
  EXPECT_EQ(of_lines(6, 6, 6), plane_found);
  EXPECT_EQ(of_lines(7, 5, 9), refused(3));
  EXPECT_EQ(of_lines(5, 5, 5), refused(4));
  EXPECT_EQ(of_lines(6, 5, 7), refused(7));
  // Skew lines; parallel ones.
  EXPECT_EQ(outputs(trvpl2, 1, 2, 3, 5, 5, 5, 6, 5, 7, 0, 0, 0, 0, 1, -1), plane_found);
  EXPECT_EQ(outputs(trvpl3, 1, 2, 3, 2, 2, 5, 0, 0, 0, 0, 1, -1), plane_found);
  EXPECT_EQ(outputs(trvpl2, 1, 2, 3, 5, 5, 5, 6, 5, 7, 0, 0, 0, 2, 0, 4), refused(0));
  EXPECT_EQ(outputs(trvpl3, 5, 5, 5, 6, 5, 7, 0, 0, 0, -2, 0, -4), refused(0));
}

TEST(Planes, OfTwoCrossingLines) {
  const auto of_lines = [](double xc, double yc, double zc, double wx, double wy, double wz) {
    return outputs(trvpl6, 1, 2, 3, 1, 0, 2, xc, yc, zc, wx, wy, wz);
  };
  const auto left = [](double status) {
    return Values{unwritten, unwritten, unwritten, unwritten, status};
  };
  EXPECT_EQ(of_lines(3, 4, 5, 0, 1, -1), plane_found);
  EXPECT_EQ(of_lines(2, 2, 5, 2, 0, 4), left(3));
  EXPECT_EQ(of_lines(2, 2, 5, -2, 0, -4), left(4));
  EXPECT_EQ(of_lines(0, 0, 0, 0, 1, -1), left(6));
  EXPECT_EQ(of_lines(0, 0, 0, 0, 0, 0), left(7));
  EXPECT_EQ(of_lines(0, 0, 0, 2, 0, 4), refused(0));
}

// C agrees with A but for its distance, so the cosine of the call before decides whether it is on
// the line; D, on the line and too far out to be nearer to A or B, leaves another one.
TEST(Planes, OfTwoLinesTakesTheirRelationTwice) {
  EXPECT_EQ(outputs(trvpl6, 0, 0, 0, 2e-5, 0, 0, -9e-6, -9e-6, 0, 1000, 0, 0), refused(3));
}

TEST(Planes, NormalToASegmentOrByIntercepts) {
  EXPECT_EQ(outputs(trvpl4, 1, 2, 3, 5, 5, 5, 3, 6, 6), plane_found);
  EXPECT_EQ(outputs(trvpl4, 1, 2, 3, 0, 0, 0, tolerance, tolerance, tolerance), refused(1));
  EXPECT_EQ(outputs(trvpl5, 1, -2, 4), (Values{1, -0.5, 0.25, -1, 0}));
  EXPECT_EQ(outputs(trvpl5, beyond, -beyond, beyond)[4], 0);
  for (const float lost : {tolerance, not_a_number}) {
    EXPECT_EQ(outputs(trvpl5, lost, 1, 1), refused(1));
    EXPECT_EQ(outputs(trvpl5, 1, lost, 1), refused(1));
    EXPECT_EQ(outputs(trvpl5, 1, 1, lost), refused(1));
  }
}

TEST(Planes, TurnedAboutAnEdge) {
  // Along x, so that z turns towards -y.
  expect_near(outputs(trvpl7, 1, 1, 1, 3, 1, 1, 2, 5, 1, pi / 6),
              {0, -0.5, std::sqrt(0.75), 0.5 - std::sqrt(0.75), 0}, 3e-7);
  const Values flat = outputs(trvpl7, 1, 2, 3, 3, 3, 5, 4, 9, 1, 0);
  const Values turned = outputs(trvpl7, 1, 2, 3, 3, 3, 5, 4, 9, 1, 2);
  EXPECT_NEAR(outputs(trvphi1, flat[0], flat[1], flat[2], turned[0], turned[1], turned[2])[0], 2,
              1e-6);
  EXPECT_NEAR(outputs(trvpld, 3, 3, 5, turned[0], turned[1], turned[2], turned[3])[0], 0, 2e-6);
  EXPECT_NEAR(outputs(trvpld, 4, 9, 1, flat[0], flat[1], flat[2], flat[3])[0], 0, 2e-6);

  EXPECT_EQ(outputs(trvpl7, 1, 2, 3, 3, 4, 5, 0, 1, 2, 1), refused(4));
  EXPECT_EQ(outputs(trvpl7, 1, 2, 3, 1, 2, 3, 5, 6, 9, 1), refused(1));  // no normal
}

TEST(Planes, PointOnPlane) {
  const auto on_points = [](double z, double tol) {  // of a normal of 4
    return outputs(trvpsp, 0, 0, 0, 2, 0, 0, 0, 2, 0, 7, -9, z, tol)[0];
  };
  EXPECT_TRUE(on_points(0.25, 1) == 0 && on_points(-0.25, 1) == 0);
  EXPECT_TRUE(on_points(0.25, 0.99) == -1 && on_points(-0.25, 0.99) == -1);
  EXPECT_TRUE(on_points(not_a_number, infinity) == -1);
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
  EXPECT_TRUE(relation(0, 0, 1, 0) == -1 && relation(0, 0, 0, 0) == -1);
  EXPECT_TRUE(relation(1, 0, 0, 0) == 7 && relation(tolerance, 0, 1, 0) == 7);
  EXPECT_TRUE(relation(1, 2, 2, 4) == 3 && relation(1, 2, -2, -4) == 4);
  EXPECT_TRUE(relation(1, 2, -2, 1) == 5 && relation(1, 2, 2, 1) == 0);
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
