#include <array>

#include "support.h"
#include "trelvin/space.h"

using namespace trelvin_test;

namespace {

using Points = std::array<float, 9>;  // three of them: x, then y, then z

void expect_points(const Points &p, const Values &expected) {
  expect_near(Values(p.begin(), p.end()), expected, 1e-6);
}

const Values no_frame = {0, 0, 0, 0, 0, 0, 0, 0, 0, -2};

}  // namespace

TEST(Frames, ThreePointTest) {
  const auto status = [](float x, float y, float z) {
    return outputs(trvpsl, 1, 0, 0, -1, 0, 0, x, y, z)[0];
  };
  // At a height h half-way, the cosine is 2*h^2 from -1; two beyond a point, h^2/32 from 1.
  EXPECT_EQ((Values{status(0, 0.0022F, 0), status(3, 0.0176F, 0), status(-3, 0.0176F, 0)}),
            (Values{3, 4, 5}));
  EXPECT_EQ((Values{status(0, 0, 0.0023F), status(3, 0, 0.0182F), status(-3, 0, 0.0182F)}),
            (Values{0, 0, 0}));
  EXPECT_EQ((Values{status(1, -tolerance, 0), status(-1, 0, tolerance), status(1, 0, beyond)}),
            (Values{1, 2, 0}));
  EXPECT_EQ(status(0, 1000, 0), 0);  // they look like one, but neither is the nearer
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
}

TEST(Frames, NormalOfThreePointsIsTurnedTowardsYElseZElseX) {
  const auto frame = [](float ux, float uy, float uz, float wx, float wy, float wz) {
    return outputs(trvaxe, 0, 0, 0, ux, uy, uz, wx, wy, wz);
  };
  EXPECT_EQ(frame(2, 0, 0, 5, 3, 0), (Values{1, 0, 0, 0, 1, 0, 0, 0, 1, 0}));
  EXPECT_EQ(frame(0, 2, 0, 3, 5, 0), (Values{0, 1, 0, -1, 0, 0, 0, 0, 1, 0}));
  EXPECT_EQ(frame(2, 0, 0, 5, 0, 3), (Values{1, 0, 0, 0, 0, -1, 0, 1, 0, 0}));
  EXPECT_EQ(frame(0, 0, 2, 0, 3, 5), (Values{0, 0, 1, 0, -1, 0, 1, 0, 0, 0}));
  // Normals (0, -t, 1) and (1, 0, -t): t decides only above the tolerance.
  const float t = tolerance, b = beyond;
  EXPECT_TRUE(frame(1, 0, 0, 0, 1, t)[8] == 1 && frame(1, 0, 0, 0, 1, b)[8] == -1);
  EXPECT_TRUE(frame(0, 1, 0, t, 0, 1)[6] == 1 && frame(0, 1, 0, b, 0, 1)[6] == -1);
  for (const double k : {5, -1}) {  // P2 on either side of the line
    Values e = outputs(trvaxe, 1, 2, 3, 3, 3, 5, 3 - 2 * k, 3 + 2 * k, 5 + k);
    for (double &component : e) component *= 3;
    expect_near(e, {2, 1, 2, 2, -2, -1, 1, 2, -2, 0}, 5e-7);
  }
}

TEST(Frames, ThreePointsWithoutFrameOrWithoutAnAxis) {
  EXPECT_EQ(outputs(trvaxe, 1, 1, 1, 2, 2, 2, 3, 3, 3), no_frame);
  EXPECT_EQ(outputs(trvaxe, 1, 1, 1, 1, 1, 1, 3, 4, 5), Values(10, 0));
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, not_a_number, 0, 0, 0, 1, 0), Values(10, 0));
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, tolerance, 0, 0, 0, 4, 0)[0], 1);
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, std::nextafter(tolerance, 0.0F), 0, 0, 0, 4, 0)[0], 0);
  // Long enough sides, but a product of 1e-6.
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, 0.001F, 0, 0, 0, 0.001F, 0),
            (Values{1, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(Frames, OfAnAxis) {
  EXPECT_EQ(outputs(trvaxel, 0, 0, 0, 0, 0, tolerance, 1), no_frame);
  EXPECT_EQ(outputs(trvaxel, 0, 0, 0, beyond, 0, 0, 0), (Values{1, 0, 0, 0, 1, 0, 0, 0, 1, 0}));
  Values e = outputs(trvaxel, 1, 2, 3, 3, 3, 5, pi / 4);
  for (double &component : e) component *= 3;
  expect_near(e, {2, 1, 2, -2, 2, 1, -1, -2, 2, 0}, 5e-7);
  const Values upright = outputs(trvaxel, 0, 1, 0, 0, 4, 0, 0.5);
  EXPECT_TRUE(upright[0] == 0 && upright[1] == 1 && upright[2] == 0 && upright[9] == 0);
  for (std::size_t i = 3; i < 9; ++i) EXPECT_FALSE(std::isfinite(upright[i])) << i;
}

TEST(Frames, ShiftAndTurnsAboutTheGlobalAxes) {
  const auto moved = [](Points p, float dx, float dy, float dz, float ax, float ay, float az) {
    trvptr(p.data(), &p[3], &p[6], 2, dx, dy, dz, ax, ay, az);
    return p;
  };
  const float q = half_pi, t = tolerance, b = -beyond;
  const Points start = {6, 1, 5, 9, 2, 6, 7, 3, 7};
  // (2, 3, 4) is turned to (2, -4, 3), (-3, -4, 2), (4, -3, 2).
  expect_points(moved(start, 1, 1, 1, q, q, q), {8, 4, 5, -10, -3, 6, 7, 2, 7});
  const Points unit = {1, 0, 0, 0, 1, 0, 0, 0, 0};
  EXPECT_EQ(moved(unit, t, -t, not_a_number, t, -t, t), unit);
  EXPECT_EQ(moved(unit, b, t, t, 0, 0, 0), (Points{1 + b, b, 0, t, 1 + t, 0, t, t, 0}));
  EXPECT_EQ(moved(unit, t, b, t, 0, 0, 0), (Points{1 + t, t, 0, b, 1 + b, 0, t, t, 0}));
  EXPECT_EQ(moved(unit, t, t, b, 0, 0, 0), (Points{1 + t, t, 0, t, 1 + t, 0, b, b, 0}));
  EXPECT_EQ(moved(unit, 0, 0, 0, b, 0, 0), (Points{1, 0, 0, 0, 1, 0, 0, b, 0}));
  EXPECT_EQ(moved(unit, 0, 0, 0, 0, b, 0), (Points{1, 0, 0, 0, 1, 0, b, 0, 0}));
  EXPECT_EQ(moved(unit, 0, 0, 0, 0, 0, b), (Points{1, -b, 0, b, 1, 0, 0, 0, 0}));
}

// The frame of (1, 1, 1), (1, 3, 1), (1, 1, 4) has its axes along y, z and x.
TEST(Frames, LocalShiftComesBeforeTheTurnsAndGlobalShiftAfter) {
  std::int32_t status = unwritten_int;
  const float q = half_pi;
  const Points start = {1, 1.5F, 1, 3, 11, 1, 2, 1, 1};
  Points p = start;
  float *x = p.data(), *y = &p[3], *z = &p[6];
  trvptrl(1, 1, 1, 2, 2, 2, 3, 3, 3, x, y, z, 3, 1, 1, 1, 1, 1, 1, status);
  EXPECT_TRUE(status == -2 && p == start);
  // (2, 1, 0) locally, shifted to (2, 1, 1), turned to (2, -1, 1), (-1, -1, 2), (1, -1, 2).
  trvptrl(1, 1, 1, 1, 3, 1, 1, 1, 4, x, y, z, 1, 0, 0, 1, q, q, q, status);
  EXPECT_EQ(status, 0);
  expect_points(p, {3, 1.5, 1, 2, 11, 1, 0, 1, 1});
  trvptrl(1, 1, 1, 1, 3, 1, 1, 1, 4, x, y, z, 2, 0, 0, 0, 0, 0, tolerance, status);
  EXPECT_NEAR(z[1], 1.0001, 1e-6);  // no angle is too small

  p = start;
  trvppc(1, 1, 1, 2, 2, 2, 3, 3, 3, 0, 0, 1, q, q, q, 3, x, y, z, infinity, status);
  EXPECT_TRUE(status == -1 && p == start);
  // The second point is 0.5 off, times the 6 of the normal.
  trvppc(1, 1, 1, 1, 3, 1, 1, 1, 4, 0, 0, 1, q, q, q, 3, x, y, z, 2.9F, status);
  EXPECT_TRUE(status == 2 && p == start);
  trvppc(1, 1, 1, 1, 3, 1, 1, 1, 4, 0, 0, 1, q, q, q, 0, x, y, z, 0, status);
  EXPECT_TRUE(status == 0 && p == start);
  // (2, 1, 0) locally, turned to (2, 0, 1), (-1, 0, 2), (0, -1, 2).
  trvppc(1, 1, 1, 1, 3, 1, 1, 1, 4, 0, 0, 1, q, q, q, 2, x, y, z, 3, status);
  EXPECT_EQ(status, 0);
  expect_points(p, {3, 11, 1, 1, 1.5, 1, 1, 2, 1});
}

TEST(Frames, TurnAboutAnAxis) {
  std::int32_t status = unwritten_int;
  // On the axis through (1, 2, 3) along (1, 2, 2), and across from that point by (2, 1, -2).
  const Points start = {3, 3, 7, 6, 3, 7, 7, 1, 7};
  Points p = start;
  float *x = p.data(), *y = &p[3], *z = &p[6];
  trvpra(1, 2, 3, 1, 2, 3, x, y, z, 2, 1, status);
  EXPECT_TRUE(status == -2 && p == start);
  trvpra(1, 2, 3, 2, 4, 5, x, y, z, 0, 1, status);
  EXPECT_TRUE(status == 0 && p == start);
  trvpra(1, 2, 3, 2, 4, 5, x, y, z, 2, half_pi, status);
  expect_points(p, {3, -1, 7, 6, 4, 7, 7, 2, 7});
  trvpra(0, 1, 0, 0, 3, 0, x, y, z, 1, 1, status);  // parallel to y
  EXPECT_FALSE(status != 0 || std::isfinite(x[0]) || std::isfinite(y[0]) || std::isfinite(z[0]));
}
