#include <array>

#include "support.h"
#include "trelvin/plane.h"
#include "trelvin/space.h"

using namespace trelvin_test;

namespace {

using Points = std::array<float, 9>;  // three of them: x, then y, then z

void expect_point(const Points &p, std::size_t i, const Values &expected) {
  expect_near({p[i], p[i + 3], p[i + 6]}, expected, 1e-6);
}

double dot(const double *u, const double *v) { return u[0] * v[0] + u[1] * v[1] + u[2] * v[2]; }

void expect_right_handed_frame(const Values &e, const Values &e1) {
  expect_near({e[0], e[1], e[2], e[9]}, {e1[0], e1[1], e1[2], 0}, 2e-7);
  for (const std::size_t i : {0, 3, 6})
    for (const std::size_t k : {0, 3, 6}) EXPECT_NEAR(dot(&e[i], &e[k]), i == k, 3e-7) << i << k;
  const double e1_x_e2[] = {e[1] * e[5] - e[2] * e[4], e[2] * e[3] - e[0] * e[5],
                            e[0] * e[4] - e[1] * e[3]};
  EXPECT_GT(dot(e1_x_e2, &e[6]), 0);
}

const Values no_frame = {0, 0, 0, 0, 0, 0, 0, 0, 0, -2};
const Values zero_frame = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0};

}  // namespace

TEST(Frames, ThreePointTest) {
  const auto status = [](float x, float y, float z) {
    return outputs(trvpsl, 1, 0, 0, -1, 0, 0, x, y, z)[0];
  };
  EXPECT_EQ(status(1, -tolerance, 0), 1);
  EXPECT_EQ(status(-1, 0, tolerance), 2);
  EXPECT_EQ(status(1, 0, beyond), 0);
  // At a height h half-way, the cosine is 2*h^2 from -1; two beyond a point, h^2/32 from 1.
  EXPECT_EQ(status(0, 0.0022F, 0), 3);
  EXPECT_EQ(status(0, 0, 0.0023F), 0);
  EXPECT_EQ(status(3, 0.0176F, 0), 4);
  EXPECT_EQ(status(3, 0.0182F, 0), 0);
  EXPECT_EQ(status(-3, 0, 0.0176F), 5);
  EXPECT_EQ(status(-3, 0, 0.0182F), 0);
  EXPECT_EQ(status(0, 1000, 0), 0);  // beyond neither point rather than the other
  EXPECT_EQ(outputs(trvpsl, 1, 2, 3, 1, 2, 3, 4, 4, 4), Values{0});
}

TEST(Frames, ThreePointTestGoesByTheCosineOfTheCallBeforeWherePointsNearlyAgree) {
  const float h = 9e-6F;  // (h, h) is at the origin by each coordinate, but not by its distance
  const auto test = [](float x, float y) { return outputs(trvpsl, 0, 0, 0, 1, 0, 0, x, y, 0)[0]; };
  const auto frame = [](float x, float y) { return outputs(trvaxe, 0, 0, 0, 1, 0, 0, x, y, 0)[9]; };
  const auto plane = [](float x, float y) { return outputs(trvpl1, 0, 0, 0, 1, 0, 0, x, y, 0)[4]; };
  EXPECT_EQ(test(h, h), 0);  // zero after loading
  EXPECT_EQ(test(0.5F, 0), 3);
  EXPECT_EQ(test(h, h), 3);
  EXPECT_EQ(frame(h, h), -2);
  EXPECT_EQ(plane(-1, 0), 4);
  EXPECT_EQ(test(0, 0), 1);  // leaves no cosine
  EXPECT_EQ(test(h, h), 4);
  EXPECT_EQ(test(1 + h, h), 5);
  EXPECT_EQ(frame(1, 1), 0);
  EXPECT_EQ(plane(h, h), 0);
  // Relating lines tests C, then D, even though C settles it.
  EXPECT_EQ(outputs(trvdirl, 0, 0, 0, 1, 0, 0, 0.5, 0, 0, 0.5, 1, 0), Values{5});
  EXPECT_EQ(test(h, h), 0);
  EXPECT_EQ(outputs(trvdirl, 0, 0, 0, 1, 0, 0, 0.5, 1, 0, 0.5, 0, 0), Values{5});
  EXPECT_EQ(test(h, h), 3);
}

TEST(Frames, NewOriginMayBeOneOfThePoints) {
  Points p = {1, 2, unwritten, 5, 7, unwritten, 0, 1, unwritten};
  for (const std::int32_t n : {0, -3}) trv3tra(&p[0], &p[3], &p[6], n, 1, 1, 1);
  trv3tra(&p[0], &p[3], &p[6], 2, p[0], p[4], p[7]);
  EXPECT_EQ(p, (Points{0, 1, unwritten, -2, 0, unwritten, -1, 0, unwritten}));
}

TEST(Frames, MatrixAndItsTranspose) {
  for (const std::int32_t mode : {0, 1, 2, -1}) {
    float p[] = {1, 10, 100};
    trvtrn(p, 1, 2, 3, 4, 5, 6, 7, 8, 9, mode);
    EXPECT_EQ(Values(p, p + 3), mode == 1 ? (Values{741, 852, 963}) : (Values{321, 654, 987}));
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
  EXPECT_EQ(frame(1, 0, 0, 0, 1, tolerance)[8], 1);
  EXPECT_EQ(frame(1, 0, 0, 0, 1, beyond)[8], -1);
  EXPECT_EQ(frame(0, 1, 0, tolerance, 0, 1)[6], 1);
  EXPECT_EQ(frame(0, 1, 0, beyond, 0, 1)[6], -1);

  for (const double y : {9, -5}) {  // on either side of the line
    const Values e = outputs(trvaxe, 1, 2, 3, 3, 3, 5, 4, y, 1);
    expect_right_handed_frame(e, {2 / 3.0, 1 / 3.0, 2 / 3.0});
    const double to_p2[] = {3, y - 2, -2};
    EXPECT_NEAR(dot(to_p2, &e[6]), 0, 2e-6);
    EXPECT_GT(e[7], 0);
  }
}

TEST(Frames, ThreePointsWithoutFrameOrWithoutAnAxis) {
  EXPECT_EQ(outputs(trvaxe, 1, 1, 1, 2, 2, 2, 3, 3, 3), no_frame);
  EXPECT_EQ(outputs(trvaxe, 1, 1, 1, 1, 1, 1, 3, 4, 5), zero_frame);
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, not_a_number, 0, 0, 0, 1, 0), zero_frame);
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, tolerance, 0, 0, 0, 4, 0)[0], 1);
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, std::nextafter(tolerance, 0.0F), 0, 0, 0, 4, 0)[0], 0);
  // Long enough sides, but a product of 1e-6.
  EXPECT_EQ(outputs(trvaxe, 0, 0, 0, 0.001F, 0, 0, 0, 0.001F, 0),
            (Values{1, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(Frames, OfAnAxis) {
  EXPECT_EQ(outputs(trvaxel, 0, 0, 0, 0, 0, tolerance, 1), no_frame);
  EXPECT_EQ(outputs(trvaxel, 0, 0, 0, beyond, 0, 0, 0), (Values{1, 0, 0, 0, 1, 0, 0, 0, 1, 0}));

  const Values flat = outputs(trvaxel, 1, 2, 3, 3, 3, 5, 0);
  const Values turned = outputs(trvaxel, 1, 2, 3, 3, 3, 5, 0.75);
  for (const Values &e : {flat, turned}) expect_right_handed_frame(e, {2 / 3.0, 1 / 3.0, 2 / 3.0});
  EXPECT_TRUE(flat[4] > 0 && flat[7] == 0);
  EXPECT_NEAR(dot(&turned[3], &flat[3]), std::cos(0.75), 3e-7);
  EXPECT_NEAR(dot(&turned[3], &flat[6]), std::sin(0.75), 3e-7);

  const Values upright = outputs(trvaxel, 0, 1, 0, 0, 4, 0, 0.5);
  EXPECT_TRUE(upright[0] == 0 && upright[1] == 1 && upright[2] == 0 && upright[9] == 0);
  for (std::size_t i = 3; i < 9; ++i) EXPECT_FALSE(std::isfinite(upright[i])) << i;
}

TEST(Frames, ShiftAndTurnsAboutTheGlobalAxes) {
  const auto moved = [](Points p, float dx, float dy, float dz, float ax, float ay, float az) {
    trvptr(&p[0], &p[3], &p[6], 2, dx, dy, dz, ax, ay, az);
    return p;
  };
  // Shifted to (2, 3, 4), then by quarter turns.
  const Points start = {9, 1, 5, 9, 2, 6, 9, 3, 7};
  expect_point(moved(start, 1, 1, 1, half_pi, 0, 0), 1, {2, -4, 3});
  expect_point(moved(start, 1, 1, 1, half_pi, half_pi, 0), 1, {-3, -4, 2});
  expect_point(moved(start, 1, 1, 1, half_pi, half_pi, half_pi), 1, {4, -3, 2});
  expect_point(moved(start, 1, 1, 1, half_pi, half_pi, half_pi), 2, {5, 6, 7});

  const float t = tolerance;
  const Points unit = {1, 0, 0, 0, 1, 0, 0, 0, 0};
  EXPECT_EQ(moved(unit, t, -t, not_a_number, t, -t, t), unit);
  EXPECT_EQ(moved(unit, t, 0, -beyond, 0, 0, 0),
            (Points{1 + t, t, 0, 0, 1, 0, -beyond, -beyond, 0}));
  EXPECT_NE(moved(unit, 0, 0, 0, beyond, 0, 0), unit);
  EXPECT_NE(moved(unit, 0, 0, 0, 0, -beyond, 0), unit);
  EXPECT_NE(moved(unit, 0, 0, 0, 0, 0, beyond), unit);
}

// The frame of (1, 1, 1), (1, 3, 1), (1, 1, 4) has its axes along y, z and x.
TEST(Frames, LocalShiftComesBeforeTheTurns) {
  std::int32_t status = unwritten_int;
  const Points start = {1, 1, 1, 3, 1001, 1, 2, 1, 1};
  Points p = start;
  float *x = &p[0], *y = &p[3], *z = &p[6];
  trvptrl(1, 1, 1, 2, 2, 2, 3, 3, 3, x, y, z, 3, 1, 1, 1, 1, 1, 1, status);
  EXPECT_TRUE(status == -2 && p == start);
  // (2, 1, 0) locally, shifted to (2, 1, 1), turned to (2, -1, 1), (-1, -1, 2), (1, -1, 2).
  trvptrl(1, 1, 1, 1, 3, 1, 1, 1, 4, x, y, z, 1, 0, 0, 1, half_pi, half_pi, half_pi, status);
  EXPECT_EQ(status, 0);
  expect_point(p, 0, {3, 2, 0});
  trvptrl(1, 1, 1, 1, 3, 1, 1, 1, 4, x, y, z, 2, 0, 0, 0, 0, 0, tolerance, status);
  expect_point(p, 1, {1, 1001, 1.01});  // no angle is too small
  expect_point(p, 2, {1, 1, 1});
}

TEST(Frames, GlobalShiftComesAfterTheTurns) {
  std::int32_t status = unwritten_int;
  const Points start = {1, 1.5F, 1, 3, 7, 9, 2, -5, 9};
  Points p = start;
  const auto move = [&](float x2, float y2, float z2, std::int32_t n, float tol) {
    trvppc(1, 1, 1, 1, 3, 1, x2, y2, z2, 0, 0, 1, half_pi, half_pi, half_pi, n, &p[0], &p[3], &p[6],
           tol, status);
  };
  move(1, 5, 1, 3, infinity);
  EXPECT_TRUE(status == -1 && p == start);
  move(1, 1, 4, 3, 2.9F);  // the second point is 0.5 off, times the normal's 6
  EXPECT_TRUE(status == 2 && p == start);
  move(1, 1, 4, 0, 0);
  EXPECT_TRUE(status == 0 && p == start);
  // (2, 1, 0) locally, turned to (2, 0, 1), (-1, 0, 2), (0, -1, 2).
  move(1, 1, 4, 2, 3);
  EXPECT_EQ(status, 0);
  expect_point(p, 0, {3, 1, 1});
  expect_point(p, 2, {1, 9, 9});
}

TEST(Frames, TurnAboutAnAxis) {
  std::int32_t status = unwritten_int;
  // On the axis through (1, 2, 3) along (1, 2, 2), and across from that point by (2, 1, -2).
  const Points start = {3, 3, 7, 6, 3, 7, 7, 1, 7};
  Points p = start;
  float *x = &p[0], *y = &p[3], *z = &p[6];
  trvpra(1, 2, 3, 1, 2, 3, x, y, z, 2, 1, status);
  EXPECT_TRUE(status == -2 && p == start);
  trvpra(1, 2, 3, 2, 4, 5, x, y, z, 0, 1, status);
  EXPECT_TRUE(status == 0 && p == start);
  trvpra(1, 2, 3, 2, 4, 5, x, y, z, 2, half_pi, status);
  expect_point(p, 0, {3, 6, 7});
  expect_point(p, 1, {-1, 4, 2});
  expect_point(p, 2, {7, 7, 7});
  trvpra(1, 2, 3, 2, 4, 5, x, y, z, 2, 0.5F - half_pi, status);
  EXPECT_NEAR(outputs(trvphi1, 2, 1, -2, x[1] - 1, y[1] - 2, z[1] - 3)[0], 0.5, 1e-6);

  trvpra(0, 1, 0, 0, 3, 0, x, y, z, 1, 1, status);  // parallel to y
  EXPECT_EQ(status, 0);
  EXPECT_FALSE(std::isfinite(x[0]) || std::isfinite(y[0]) || std::isfinite(z[0]));
}
