#include "space/frame_of_sevens.h"
#include "trelvin/plane.h"
#include "trelvin/space_lines.h"
#include "trelvin/space_planes.h"

using namespace trelvin_test;

namespace {

// The plane of the first two axes through their origin; its normal is 7 times 7 long.
const Values plane = {42, 14, -21, 70, 0};

Values zeros(double status) { return {0, 0, 0, 0, status}; }
Values left(double status) { return {kept, kept, kept, kept, status}; }

}  // namespace

TEST(Planes, OfThreePointsOrTwoDirections) {
  const Point o = in_sevens(0, 0, 0), u = in_sevens(1, 0, 0);
  EXPECT_EQ(outputs_at(trvpl1, o, u, in_sevens(2, 1, 0)), plane);
  EXPECT_EQ(outputs(trvplg, 1, -2, 4, 2, 3, 6, 3, -6, 2), Values(plane.begin(), plane.end() - 1));
  const float on_line[] = {0, 1, 0.5, -1, 2};  // at P0, at P1, between, before, behind
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(outputs_at(trvpl1, o, u, in_sevens(on_line[i], 0, 0)), zeros(i + 1));
    EXPECT_EQ(outputs_at(trvpl7, o, u, in_sevens(on_line[i], 0, 0), 1), zeros(i + 1));
  }
}

TEST(Planes, OfTwoLines) {
  // The first line runs from A = (2, 5, 7) along (2, 3, 6), the other one from C along w.
  const auto expect = [](Point c, Point w, const Values &through_p, const Values &through_a,
                         const Values &common) {
    const Point a = {2, 5, 7}, u = {2, 3, 6}, b = {4, 8, 13};
    const Point d = {c[0] + w[0], c[1] + w[1], c[2] + w[2]};
    EXPECT_EQ(outputs_at(trvpl2, in_sevens(0, 0, 0), a, b, c, d), through_p);
    EXPECT_EQ(outputs_at(trvpl3, a, b, c, d), through_a);
    EXPECT_EQ(outputs_at(trvpl6, a, u, c, w), common);
  };
  const Values at_a = {42, 14, -21, -7, 0};
  const Point on_line = {6, 11, 19}, across = {3, -6, 2};
  expect({1, 14, 11}, across, plane, at_a, at_a);
  expect(on_line, {4, 6, 12}, zeros(3), zeros(3), left(TRV_TWO_LINES_SAME_LINE));
  expect(on_line, {-4, -6, -12}, zeros(4), zeros(4), left(TRV_TWO_LINES_OPPOSITE_LINE));
  expect({1, 14, 12}, across, plane, at_a, left(TRV_TWO_LINES_SKEW));
  expect(on_line, {0, 0, 0}, zeros(7), zeros(7), left(TRV_TWO_LINES_NO_LENGTH));
  expect({1, 14, 11}, {4, 6, 12}, zeros(TRV_TWO_LINES_DONE), zeros(0), zeros(0));

  // The relation is taken twice. C agrees with A by its coordinates, so that the cosine of the call
  // before decides whether it is on the line; D, too far out to be nearer to A or B, leaves one.
  EXPECT_EQ(outputs(trvpl6, 0, 0, 0, 2e-5, 0, 0, -9e-6, -9e-6, 0, 1000, 0, 0), zeros(3));
}

TEST(Planes, NormalToASegmentOrByIntercepts) {
  EXPECT_EQ(outputs(trvpl4, 1, -2, 4, 5, 6, 8, 47, 20, -13), plane);
  EXPECT_EQ(outputs(trvpl4, 1, 2, 3, 0, 0, 0, tolerance, -tolerance, tolerance),
            zeros(TRV_COINCIDENCE_COINCIDENT));
  EXPECT_EQ(outputs(trvpl4, 1, 2, 3, 0, 0, 0, 0, beyond, 0)[4], 0);
  EXPECT_EQ(outputs(trvpl5, 1, -2, 4), (Values{1, -0.5, 0.25, -1, TRVPL5_DONE}));
  EXPECT_EQ(outputs(trvpl5, not_a_number, 1, 1), zeros(TRVPL5_NO_PLANE));
  EXPECT_EQ(outputs(trvpl5, 1, -tolerance, 1), zeros(1));
  EXPECT_EQ(outputs(trvpl5, 1, 1, tolerance), zeros(1));
}

TEST(Planes, TurnedAboutAnEdge) {
  // By the angle of sine 0.8 the normal is 0.6 of the third axis less 0.8 of the second.
  expect_near(
      outputs_at(trvpl7, in_sevens(0, 0, 0), in_sevens(3, 0, 0), in_sevens(1, -2, 0), 0.927295218),
      {1.2 / 7, 6 / 7.0, -3.4 / 7, 24.4 / 7, 0}, 3e-7);
  // The normal of a frame without axes is zero.
  EXPECT_EQ(outputs(trvpl7, 1, 2, 3, 1, 2, 3, 5, 6, 9, 1), zeros(1));
}

TEST(Planes, PointOnThePlaneOfThreePoints) {
  // A step along x, y or z changes the residual by 42, 14 or -21.
  const auto on = [](float x, float y, float z, float tol) {
    return outputs_at(trvpsp, in_sevens(0, 0, 0), in_sevens(1, 0, 0), in_sevens(2, 1, 0), 9 + x,
                      -11 + y, 14 + z, tol)[0];
  };
  EXPECT_EQ((Values{on(0, 0, 0, 0), on(1, 0, 0, 42), on(0, 1, 0, 14), on(0, 0, 1, 21)}),
            (Values{0, 0, 0, 0}));
  EXPECT_EQ((Values{on(1, 0, 0, 41.9F), on(0, 1, 0, 13.9F), on(0, 0, 1, 20.9F),
                    on(not_a_number, 0, 0, infinity)}),
            (Values{-1, -1, -1, -1}));
  // x + y + z + 1 = 0, added up as x + 1 + y + z: the 1 is lost beside 2^24, from the left only.
  const float far = 16777216;
  const auto lost = [](float x, float y, float z) {
    return outputs(trvpsp, -1, 0, 0, 0, -1, 0, -1, 1, -1, x, y, z, 0)[0];
  };
  EXPECT_EQ((Values{lost(far, -far, 0), lost(far, 0, -far), lost(0, far, -far)}),
            (Values{0, 0, 0}));
  const Point a = {1, 2, 3}, b = {3, 4, 5}, on_line = {5, 6, 7};
  EXPECT_EQ(outputs_at(trvpsp, a, b, on_line, 9, 9, 9, infinity), Values{-1});
}

TEST(Planes, DistanceOfAPoint) {
  // The normal (2, 3, 6) is 7 long.
  EXPECT_EQ(outputs(trvpld, 4, 1, -2, 2, 3, 6, -27), Values{-4});
  EXPECT_EQ(outputs(trvpld, 1, 5, 4, 2, 3, 6, -27), Values{2});
  EXPECT_FALSE(std::isfinite(outputs(trvpld, 1, 2, 3, 0, 0, 0, 1)[0]));
  EXPECT_EQ(outputs(trvpspg, 4, 1, -2, 2, 3, 6, -27, 4), Values{TRV_ON_PLANE_YES});
  EXPECT_EQ(outputs(trvpspg, 4, 1, -2, 2, 3, 6, -27, 3.999), Values{TRV_ON_PLANE_NO});
  EXPECT_EQ(outputs(trvpspg, 1, 5, 4, 2, 3, 6, -27, 1.999), Values{-1});
  EXPECT_EQ(outputs(trvpspg, 1, not_a_number, 4, 2, 3, 6, -27, infinity), Values{-1});
  EXPECT_EQ(outputs(trvpspg, 1, 5, 4, not_a_number, 0, 0, -27, infinity), Values{-1});
  EXPECT_EQ(outputs(trvpspg, 1, 2, 3, 0, 0, 0, 0, infinity), Values{TRV_ON_PLANE_ZERO_NORMAL});
  EXPECT_EQ(outputs(trvpspg, 1e5, 0, 0, 1e-10, 0, 0, 0, infinity), Values{0});
}

TEST(Planes, ListOfPointsRunsItsResidualOn) {
  const float x[] = {1, 1, 0, 0}, y[] = {2, 0, -1, 0}, z[] = {3, 0, 1, 1e-30F};
  std::int32_t count = kept, index[] = {kept, kept, kept};
  float d = -21;
  trvpnp(x, y, z, 2, 5, 3, d, 0, count, index);
  EXPECT_TRUE(count == 0 && d == -21);
  trvpnp(x, y, z, 2, 5, 3, d, 4, count, index);  // 0, 2, 0, 3e-30
  EXPECT_EQ(Values(index, index + 3), (Values{1, 3, kept}));
  EXPECT_EQ(count, 2);
  EXPECT_FLOAT_EQ(d, 3e-30F);
}

TEST(Planes, PositionOfAPlane) {
  const float t = tolerance;
  const auto position = [](float a, float b, float c) {
    return 100 * outputs(trvplp, a, b, c, beyond)[0] + outputs(trvplp, a, b, c, -tolerance)[0];
  };
  EXPECT_EQ((Values{position(beyond, -beyond, beyond), position(t, 1, 1), position(1, -t, 1),
                    position(1, 1, t)}),
            (Values{101 * TRVPLP_GENERAL, 101 * TRVPLP_PARALLEL_X, 101 * TRVPLP_PARALLEL_Y,
                    101 * TRVPLP_PARALLEL_Z}));
  EXPECT_EQ(
      (Values{position(0, t, 1), position(1, 0, t), position(t, 1, 0), position(0, 0, 0)}),
      (Values{100 * TRVPLP_NORMAL_Z + TRVPLP_AT_Z_ZERO, 100 * TRVPLP_NORMAL_X + TRVPLP_AT_X_ZERO,
              100 * TRVPLP_NORMAL_Y + TRVPLP_AT_Y_ZERO, 710}));
}

TEST(Planes, RelationOfPlanes) {
  const auto relation = [](const Values &p, const Values &q) {
    return outputs(trvdirp, p[0], p[1], p[2], p[3], q[0], q[1], q[2], q[3])[0];
  };
  EXPECT_EQ(relation({1, 2, 3, 4}, {3, 2, 1, 4}), TRVDIRP_CROSSING);
  EXPECT_EQ(relation({2, 0, 0, 4}, {1, 0, 0, 3}), TRVDIRP_PARALLEL_SAME);
  EXPECT_EQ(relation({0, 0, 1, -1}, {0, 0, -1, -1}), TRVDIRP_PARALLEL_OPPOSITE);
  EXPECT_EQ(relation({1, 2, 3, 4}, {2, 4, 6, 8}), TRVDIRP_COINCIDENT_SAME);
  EXPECT_EQ(relation({0, 2, 0, 4}, {0, -4, 0, -8}), TRVDIRP_COINCIDENT_OPPOSITE);
  EXPECT_EQ(relation({1, 2, 3, 4}, {-5, 1, 1, 4}), TRVDIRP_PERPENDICULAR);
  EXPECT_EQ(relation({0, 0, 0, 4}, {1, 2, 3, 4}), TRVDIRP_ZERO_NORMAL);
}

TEST(Planes, ThroughTheOriginWithinTheToleranceCoincide) {
  const double t = tolerance, n = not_a_number;
  EXPECT_EQ(outputs(trvdirp, 0, 0, 1, t, 0, 0, 1, -t), Values{3});
  EXPECT_EQ(outputs(trvdirp, 0, 0, 1, 0, 0, 0, 2, -2), Values{1});
  EXPECT_EQ(outputs(trvdirp, 0, 0, 1, -1, 0, 0, 1, 0), Values{1});
  EXPECT_EQ(outputs(trvdirp, 2, 0, 0, 4, 1, 0, 0, n), Values{1});  // a NaN constant is taken as 0
  EXPECT_EQ(outputs(trvdirp, 2, 0, 0, n, 1, 0, 0, 3), Values{3});
}
