#include "space/frame_of_sevens.h"
#include "trelvin/frames.h"

using namespace trelvin_test;

namespace {

using Points = std::array<float, 9>;  // three of them: x, then y, then z

Points points(Point p, Point q, Point r) {
  return {p[0], q[0], r[0], p[1], q[1], r[1], p[2], q[2], r[2]};
}

void expect_points(const Points &p, const Points &expected) {
  expect_near(Values(p.begin(), p.end()), Values(expected.begin(), expected.end()), 2e-6);
}

const float right = half_pi;
const float straight = 2 * half_pi;

}  // namespace

TEST(Transformations, ShiftAndTurnsAboutTheGlobalAxes) {
  const auto moved = [](Points p, float dx, float dy, float dz, float ax, float ay, float az) {
    trvptr(p.data(), &p[3], &p[6], 2, dx, dy, dz, ax, ay, az);
    return p;
  };
  const float t = tolerance, b = -beyond;
  // (2, 3, 4) after the shift; about x (2, -4, 3), about y (3, -4, -2), about z (-3, 4, -2).
  expect_points(moved({1, 0, 5, 1, 0, 6, 1, 0, 7}, 1, 2, 3, right, -right, straight),
                {-3, -2, 5, 4, 3, 6, -2, -1, 7});
  const Points unit = {1, 0, 0, 0, 1, 0, 0, 0, 0};
  EXPECT_EQ(moved(unit, t, -t, not_a_number, t, -t, t), unit);
  EXPECT_EQ(moved(unit, t, t, b, 0, 0, 0), (Points{1 + t, t, 0, t, 1 + t, 0, b, b, 0}));
  EXPECT_EQ(moved(unit, 0, 0, 0, b, 0, 0), (Points{1, 0, 0, 0, 1, 0, 0, b, 0}));
  EXPECT_EQ(moved(unit, 0, 0, 0, 0, b, 0), (Points{1, 0, 0, 0, 1, 0, b, 0, 0}));
  EXPECT_EQ(moved(unit, 0, 0, 0, 0, 0, b), (Points{1, -b, 0, b, 1, 0, 0, 0, 0}));
}

// A right angle about x, one back about y and two about z turn (a, b, c) to (-b, c, -a).
TEST(Transformations, LocalShiftComesBeforeTheTurns) {
  std::int32_t status = kept;
  const Point o = in_sevens(0, 0, 0), u = in_sevens(1, 0, 0), w = in_sevens(2, 1, 0);
  const Points start = points(in_sevens(1, 2, -1), in_sevens(0, 5, 0), {7, 8, 9});
  Points p = start;
  float *x = p.data(), *y = &p[3], *z = &p[6];
  trvptrl(1, 1, 1, 2, 2, 2, 3, 3, 3, x, y, z, 3, 1, 1, 1, 1, 1, 1, status);
  EXPECT_TRUE(status == -2 && p == start);
  // Shifted to (3, 1, 5) in sevens.
  trvptrl(o[0], o[1], o[2], u[0], u[1], u[2], w[0], w[1], w[2], x, y, z, 1, 14, -7, 42, right,
          -right, straight, status);
  EXPECT_EQ(status, TRV_FRAME_DONE);
  expect_points(p, points(in_sevens(-1, 5, -3), in_sevens(0, 5, 0), {7, 8, 9}));
  trvptrl(0, 0, 0, 1, 0, 0, 0, 1, 0, &x[2], &y[2], &z[2], 1, 0, 0, 0, 0, 0, tolerance, status);
  EXPECT_NEAR(x[2], 7 - 8e-5, 1e-6);  // no angle is too small
}

TEST(Transformations, GlobalShiftComesAfterTheTurnsOfPointsOfAPlane) {
  const Point o = in_sevens(0, 0, 0), u = in_sevens(1, 0, 0), w = in_sevens(2, 1, 0);
  const Points start = points(in_sevens(1, 2, 0), in_sevens(0, 5, 0.5), {7, 8, 9});
  Points p = start;
  const auto moved = [&](Point p2, std::int32_t n, float tol) {
    std::int32_t status = kept;
    trvppc(o[0], o[1], o[2], u[0], u[1], u[2], p2[0], p2[1], p2[2], 100, 20, 3, right, -right,
           straight, n, p.data(), &p[3], &p[6], tol, status);
    return status;
  };
  EXPECT_EQ(moved(in_sevens(3, 0, 0), 1, infinity), TRVPPC_NO_FRAME);
  // The second point is 3.5 off, times the 49 of the normal: 171.5.
  EXPECT_EQ(moved(w, 2, 171.4F), 2);
  EXPECT_EQ(moved(w, 2, -1), 1);  // so is every point here, and the first is told
  EXPECT_EQ(moved(w, 0, 0), TRVPPC_DONE);
  EXPECT_EQ(p, start);
  p[1] = not_a_number;
  EXPECT_EQ(moved(w, 2, infinity), 2);
  p = start;
  EXPECT_EQ(moved(w, 2, 171.6F), 0);
  Point first = in_sevens(-2, 0, -1), second = in_sevens(-5, 0.5, 0);
  for (Point *turned : {&first, &second}) {
    *turned = {(*turned)[0] + 100, (*turned)[1] + 20, (*turned)[2] + 3};
  }
  expect_points(p, points(first, second, {7, 8, 9}));
}

TEST(Transformations, TurnAboutAnAxis) {
  std::int32_t status = kept;
  const Point a = in_sevens(0, 0, 0), b = in_sevens(2, 0, 0);
  const Points start = points(in_sevens(1, 0, 0), in_sevens(3, 1, 0), {7, 8, 9});
  Points p = start;
  float *x = p.data(), *y = &p[3], *z = &p[6];
  trvpra(1, 2, 3, 1, 2, 3, x, y, z, 2, 1, status);
  EXPECT_TRUE(status == -2 && p == start);
  trvpra(a[0], a[1], a[2], b[0], b[1], b[2], x, y, z, 0, 1, status);
  EXPECT_TRUE(status == 0 && p == start);
  trvpra(a[0], a[1], a[2], b[0], b[1], b[2], x, y, z, 2, right, status);
  expect_points(p, points(in_sevens(1, 0, 0), in_sevens(3, 0, 1), {7, 8, 9}));
  trvpra(0, 1, 0, 0, 3, 0, x, y, z, 1, 1, status);  // a column
  EXPECT_FALSE(status != 0 || std::isfinite(x[0]) || std::isfinite(y[0]) || std::isfinite(z[0]));
}
