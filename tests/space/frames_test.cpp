#include "space/frame_of_sevens.h"
#include "trelvin/space.h"

using namespace trelvin_test;

namespace {

using Points = std::array<float, 9>;  // three of them: x, then y, then z

Points points(Point p, Point q, Point r) {
  return {p[0], q[0], r[0], p[1], q[1], r[1], p[2], q[2], r[2]};
}

void expect_points(const Points &p, const Points &expected) {
  expect_near(Values(p.begin(), p.end()), Values(expected.begin(), expected.end()), 2e-6);
}

const Values no_frame = {0, 0, 0, 0, 0, 0, 0, 0, 0, TRV_FRAME_NO_FRAME};
const float right = half_pi;
const float straight = 2 * half_pi;

}  // namespace

TEST(Frames, ThreePointTest) {
  const Point a = in_sevens(0, 0, 0), b = in_sevens(2, 0, 0);
  const auto place = [&](float along, float across) {
    return outputs_at(trvpsl, a, b, in_sevens(along, across, 0))[0];
  };
  EXPECT_EQ((Values{place(0, 0), place(2, 0), place(0.5, 0), place(-3, 0), place(4, 0)}),
            (Values{TRV_THREE_POINTS_AT_P0, TRV_THREE_POINTS_AT_P1, TRV_THREE_POINTS_BETWEEN,
                    TRV_THREE_POINTS_BEYOND_P0, TRV_THREE_POINTS_BEYOND_P1}));
  EXPECT_EQ((Values{place(1, 2), place(-3, 1)}), (Values{TRV_THREE_POINTS_SPANS_PLANE, 0}));
  EXPECT_EQ(outputs_at(trvpsl, a, a, b),
            Values{0});  // they look like a line, but nothing is nearer
}

TEST(Frames, ThreePointTestGoesByTheCosineOfTheCallBeforeWherePointsNearlyAgree) {
  const float h = 9e-6F;  // (h, h) is at the origin by each coordinate, but not by its distance
  const auto status = [](auto routine, float x, float y) {
    return outputs(routine, 0, 0, 0, 1, 0, 0, x, y, 0).back();
  };
  const auto lines = [](float yc, float yd) {  // C and D above the middle of the first line
    return outputs(trvdirl, 0, 0, 0, 1, 0, 0, 0.5, yc, 0, 0.5, yd, 0)[0];
  };
  EXPECT_EQ(status(trvpsl, h, h), 0);  // zero after loading
  EXPECT_EQ((Values{status(trvpsl, 0.5F, 0), status(trvpsl, h, h), status(trvaxe, h, h)}),
            (Values{3, 3, -2}));
  EXPECT_EQ((Values{status(trvpl1, -1, 0), status(trvpsl, h, h), status(trvpsl, 1 + h, h)}),
            (Values{4, 4, 5}));
  EXPECT_EQ((Values{status(trvpsl, 0, 0), status(trvpl1, h, h)}), (Values{1, 4}));  // 1 leaves none
  EXPECT_EQ((Values{status(trvaxe, 1, 1), status(trvpl1, h, h)}), (Values{0, 0}));
  // Relating lines tests C, then D, even though C settles it.
  EXPECT_EQ((Values{lines(1, 0), status(trvpsl, h, h)}), (Values{5, 3}));
  EXPECT_EQ((Values{lines(0, 1), status(trvpsl, h, h)}), (Values{5, 0}));
}

TEST(Frames, NewOriginAndMatrix) {
  Points p = {1, 2, unwritten, 5, 7, unwritten, 3, 4, unwritten};
  for (const std::int32_t n : {0, -3}) trv3tra(p.data(), &p[3], &p[6], n, 1, 1, 1);
  trv3tra(p.data(), &p[3], &p[6], 2, p[0], p[3], p[6]);
  EXPECT_EQ(p, (Points{0, 1, unwritten, 0, 2, unwritten, 0, 1, unwritten}));

  for (const std::int32_t mode : {0, 1, 2, -1}) {
    float v[] = {1, 10, 100};
    trvtrn(v, 1, 2, 3, 4, 5, 6, 7, 8, 9, mode);
    EXPECT_EQ(Values(v, v + 3), mode == 1 ? (Values{741, 852, 963}) : (Values{321, 654, 987}));
  }
  float own[] = {1, 2, 3};  // its matrix as well
  trvtrn(own, own[0], own[1], own[2], own[1], own[2], own[0], own[2], own[0], own[1], 2);
  EXPECT_EQ(Values(own, own + 3), (Values{14, 11, 11}));
}

TEST(Frames, NormalOfThreePointsIsTurnedTowardsYElseZElseX) {
  const auto frame = [](float ux, float uy, float uz, float wx, float wy, float wz) {
    return outputs(trvaxe, 0, 0, 0, ux, uy, uz, wx, wy, wz);
  };
  EXPECT_EQ(frame(2, 0, 0, 5, 3, 0), (Values{1, 0, 0, 0, 1, 0, 0, 0, 1, 0}));
  EXPECT_EQ(frame(0, 2, 0, 3, 5, 0), (Values{0, 1, 0, -1, 0, 0, 0, 0, 1, 0}));
  EXPECT_EQ(frame(2, 0, 0, 5, 0, 3), (Values{1, 0, 0, 0, 0, -1, 0, 1, 0, 0}));
  EXPECT_EQ(frame(0, 0, 2, 0, 3, 5), (Values{0, 0, 1, 0, -1, 0, 1, 0, 0, 0}));
  for (const float across : {5.0F, -1.0F}) {  // P2 on either side of the line
    Values e = outputs_at(trvaxe, in_sevens(0, 0, 0), in_sevens(3, 0, 0), in_sevens(2, across, 0));
    for (double &component : e) component *= 7;
    expect_near(e, {2, 3, 6, 3, -6, 2, 6, 2, -3, 0}, 5e-7);
  }
}

TEST(Frames, ThreePointsWithoutFrameOrWithoutAnAxis) {
  EXPECT_EQ(outputs(trvaxe, 1, 1, 1, 2, 2, 2, 3, 3, 3), no_frame);
  EXPECT_EQ(outputs(trvaxe, 1, 1, 1, 1, 1, 1, 3, 4, 5), Values(10, 0));
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, not_a_number, 0, 0, 0, 1, 0), Values(10, 0));
  // A side and a normal as long as the tolerance, but a product of 1e-10.
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, tolerance, 0, 0, 0, 1, 0),
            (Values{1, 0, 0, 0, 0, 0, 0, 0, 1, 0}));
}

TEST(Frames, ThreePointsHaveAFrameWhereTheThreePointTestInTheSameOrderFindsAPlane) {
  // The cosine is divided by one distance, then by the other: the order decides in its last place.
  const Point a = {0, 0, 0}, b = {10, 0, 0}, p = {1, 4.04861383e-3F, 0};
  EXPECT_EQ(outputs_at(trvpsl, a, b, p), Values{3});
  EXPECT_EQ(outputs_at(trvpsl, b, a, p), Values{0});
  EXPECT_EQ(outputs_at(trvaxe, a, b, p), no_frame);
  EXPECT_EQ(outputs_at(trvaxe, b, a, p).back(), 0);
}

TEST(Frames, OfAnAxis) {
  EXPECT_EQ(outputs(trvaxel, 0, 0, 0, 0, 0, tolerance, 1), no_frame);
  EXPECT_EQ(outputs(trvaxel, 0, 0, 0, beyond, 0, 0, 0), (Values{1, 0, 0, 0, 1, 0, 0, 0, 1, 0}));
  // Along (9, 20, 12), 25 long; y freed of that is (-0.48, 0.6, -0.64). The angle's sine is 0.8.
  expect_near(outputs(trvaxel, 1, -2, 4, 10, 18, 16, 0.927295218),
              {0.36, 0.8, 0.48, -0.928, 0.36, 0.096, -0.096, -0.48, 0.872, 0}, 2e-7);
  const Values column = outputs(trvaxel, 0, 1, 0, 0, 4, 0, 0.5);
  EXPECT_TRUE(column[0] == 0 && column[1] == 1 && column[2] == 0 && column[9] == 0);
  for (std::size_t i = 3; i < 9; ++i) EXPECT_FALSE(std::isfinite(column[i])) << i;
}

TEST(Frames, ShiftAndTurnsAboutTheGlobalAxes) {
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
TEST(Frames, LocalShiftComesBeforeTheTurns) {
  std::int32_t status = unwritten_int;
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

TEST(Frames, GlobalShiftComesAfterTheTurnsOfPointsOfAPlane) {
  const Point o = in_sevens(0, 0, 0), u = in_sevens(1, 0, 0), w = in_sevens(2, 1, 0);
  const Points start = points(in_sevens(1, 2, 0), in_sevens(0, 5, 0.5), {7, 8, 9});
  Points p = start;
  const auto moved = [&](Point p2, std::int32_t n, float tol) {
    std::int32_t status = unwritten_int;
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

TEST(Frames, TurnAboutAnAxis) {
  std::int32_t status = unwritten_int;
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
