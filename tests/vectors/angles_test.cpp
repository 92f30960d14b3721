#include "support.h"
#include "trelvin/circles.h"
#include "trelvin/plane.h"

using namespace trelvin_test;

TEST(Angles, BetweenTwoRays) {
  for (const double y : {2, 0})  // either direction gives the same
    expect_near(outputs(trvphi, 1, 1, 3, 1, 0, y), {0.75 * pi}, 1e-7);
  expect_near(outputs(trvphi3, 1, 1, 1, 2, 2, 1, 1, 3, 3), {pi / 3}, 1e-7);
  expect_near(outputs(trvphi1, 1, 2, 2, 2, -1, 2), {std::acos(4.0 / 9)}, 1e-7);
  // Rounding takes the cosine of these two rays beyond 1.
  EXPECT_TRUE(std::isnan(outputs(trvphi, 0, 0, 1, 1, 3, 3)[0]));
}

TEST(Angles, RayWithoutLengthGivesZero) {
  const auto expect = [](float u, float v, float phi) {
    EXPECT_EQ(outputs(trvphi, 0, 0, u, 0, 0, v), Values{phi});
    EXPECT_EQ(outputs(trvphi3, 0, 0, 0, u, 0, 0, 0, 0, v), Values{phi});
    EXPECT_EQ(outputs(trvphi1, u, 0, 0, 0, v, 0), Values{phi});
  };
  expect(tolerance, 1, 0);
  expect(1, -tolerance, 0);
  expect(beyond, -beyond, half_pi);
  // A NaN is not short.
  EXPECT_TRUE(std::isnan(outputs(trvphi, 0, 0, not_a_number, 0, 0, 1)[0]));
  EXPECT_TRUE(std::isnan(outputs(trvphi1, 1, 0, 0, 0, not_a_number, 0)[0]));
  EXPECT_EQ(outputs(trvphip, not_a_number, 0, 0, 0, 1, 0)[1], kept);
}

TEST(Angles, BetweenLinesIsAcuteAndLeavesTheStatus) {
  EXPECT_EQ(outputs(trvphip, 1, 0, 0, 0, -tolerance, 0), (Values{kept, TRVPHIP_NO_LENGTH}));
  EXPECT_EQ(outputs(trvphip, 0, 0, tolerance, 1, 0, 0), (Values{kept, -1}));
  expect_near(outputs(trvphip, 1, 2, 2, -2, 1, -2), {std::acos(4.0 / 9), kept}, 1e-7);
}

TEST(Angles, CosineAndSine) {
  const Values coincident = {kept, kept, 1};
  EXPECT_EQ(outputs(trvtrg, 1, 2, 3, 1, 2, 3, 0, 0, 0, 1, 0, 0), coincident);
  EXPECT_EQ(outputs(trvtrg, 0, 0, 0, 1, 0, 0, 4, 2, 3, 4, 2, 3), coincident);
  // (2, 3, 6) and (2, 6, -3), or the opposite of the latter; both are 7 long.
  for (const double sense : {1, -1})
    expect_near(outputs(trvtrg, 1, -2, 0.5, 3, 1, 6.5, -1, 4, 2, -1 + 2 * sense, 4 + 6 * sense,
                        2 - 3 * sense),
                {sense * 4 / 49, std::sqrt(2385) / 49, 0}, 1e-7);
}

namespace {

double relation(const Values &u, const Values &v) {
  return outputs(trvdir, u[0], u[1], u[2], v[0], v[1], v[2])[0];
}

}  // namespace

TEST(Angles, RelationOfDirections) {
  EXPECT_EQ(relation({1, 2, 3}, {3, 2, 1}), TRVDIR_OBLIQUE);
  EXPECT_EQ(relation({1, 2, 3}, {2, 4, 6}), TRVDIR_SAME);
  EXPECT_EQ(relation({1, 2, 3}, {-2, -4, -6}), TRVDIR_OPPOSITE);
  EXPECT_EQ(relation({1, 2, 3}, {-5, 1, 1}), TRVDIR_PERPENDICULAR);
  EXPECT_EQ(relation({1, 2, 3}, {0, 0, 0}), TRVDIR_ZERO);
}

TEST(Angles, RelationOfDirectionsAtTheTolerance) {
  const double t = tolerance;
  EXPECT_EQ(relation({1, 0, 0}, {t, 1, 0}), 3);
  EXPECT_EQ(relation({1, 0, 0}, {beyond, 1, 0}), 0);
  EXPECT_EQ(relation({t, t, -t}, {1, 2, 3}), 4);
  EXPECT_EQ(relation({0, beyond, 0}, {0, 1, 0}), 1);
  EXPECT_EQ(relation({not_a_number, 1, 1}, {1, not_a_number, 1}), 0);
}

TEST(Angles, BetweenProjections) {
  // (1, 2, 3) with (-3, 1, 2): each projection is turned another way.
  expect_near(
      outputs(trvmov, 5, 6, 7, 6, 8, 10, 3, 2, 1, 0, 3, 3),
      {std::acos(8 / std::sqrt(65)), std::acos(3 / std::sqrt(130)), std::acos(-1 / std::sqrt(50))},
      1e-6);
  // Along x there is no length across the x axis.
  EXPECT_EQ(outputs(trvmov, 5, 6, 7, 6, 8, 10, 3, 2, 1, 5, 2, 1)[0], 0);
}

TEST(Angles, DirectedAnglesAreAccurateAllAround) {
  // Counter-clockwise in the plane; tiny departures from 0, pi and 2*pi survive.
  for (const double small : {1e-6, 1e-3}) {
    const auto directed = [](double x, double y) {
      return outputs(trvchi, 5, 5, 0, 6, 5, 0, 5 + x, 5 + y, 0);
    };
    const double up = static_cast<float>(5 + small) - 5.0;  // what a Real holds of it
    EXPECT_NEAR(directed(1, small)[0], std::atan2(up, 1), 1e-7 * small);
    EXPECT_NEAR(directed(-1, small)[0], pi - std::atan2(up, 1), 3e-7);
    const double down = 5.0 - static_cast<float>(5 - small);
    EXPECT_NEAR(directed(1, -small)[0], 2 * pi - std::atan2(down, 1), 5e-7);
  }
  EXPECT_LT(outputs(trvchi, 0, 0, 0, 1, 0, 0, 1, -1e-12, 0)[0], 2 * pi);
  // The products have 57 bits each; the last ones are the cross product: 1 - h, of rays some 2.4e7 long.
  const double a = 16777214, h = 0x1.5p-5, dot = (a - h) * (a + 1 - h) + (a - 1) * a;
  EXPECT_NEAR(outputs(trvchi, h, 0, 0, a, a - 1, 0, a + 1, a, 0)[0] * dot, 1 - h, 6e-8);
  EXPECT_NEAR(outputs(trvchi, 0, 0, 0, 0, 1, 0, 1, 0, 0)[0], 1.5 * pi, 1e-6);
}

TEST(Angles, DirectedAngleInSpaceIsSeenAgainstTheTurnedNormal) {
  // From x to z the normal points to -y, so that way round is taken as three quarters.
  EXPECT_NEAR(outputs(trvchi, 1, 1, 1, 2, 1, 1, 1, 1, 2)[0], 1.5 * pi, 1e-6);
  // The normal (1, 0, -1) goes by z, and (-1, 0, 0) by x.
  EXPECT_NEAR(outputs(trvchi, 1, 1, 1, 1, 2, 1, 2, 1, 2)[0], 1.5 * pi, 1e-6);
  EXPECT_NEAR(outputs(trvchi, 1, 1, 1, 1, 1, 2, 1, 2, 1)[0], 1.5 * pi, 1e-6);
  // (2, 3, 6) and (6, 2, -3) are at right angles, the normal (-21, 42, -14): towards +y as it is.
  EXPECT_NEAR(outputs(trvchi, 1, -2, 4, 3, 1, 10, 7, 0, 1)[0], 0.5 * pi, 1e-6);
  EXPECT_NEAR(outputs(trvchi, 1, -2, 4, 7, 0, 1, 3, 1, 10)[0], 1.5 * pi, 1e-6);
  EXPECT_EQ(outputs(trvchi, 1, -2, 4, 3, 1, 10, 5, 4, 16), (Values{0, 0}));  // along the ray
}

TEST(Angles, DirectedAngleOfPointsAtTheVertexIsRefused) {
  const double t = tolerance;
  EXPECT_EQ(outputs(trvchi, 0, 0, 0, t, -t, t, 2, 1, 1), (Values{kept, 1}));
  EXPECT_EQ(outputs(trvchi, 0, 0, 0, 2, 1, 1, t, -t, t), (Values{kept, 1}));
  EXPECT_NEAR(outputs(trvchi, 0, 0, 0, beyond, 0, 0, 0, 1, 0)[0], pi / 2, 1e-6);
}

TEST(Angles, AngleAgainstTheAxisIsSigned) {
  const double cases[][3] = {{-2, 2, 0.75 * pi}, {-2, -2, -0.75 * pi}, {-1, -tolerance, pi},
                             {-1, -beyond, -pi}, {0, -tolerance, 0},   {0, -beyond, -pi / 2}};
  for (const auto &[dx, dy, phi] : cases) expect_near(outputs(trvaxph, dx, dy), {phi}, 1e-6);
}
