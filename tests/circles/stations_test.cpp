#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

namespace {

constexpr float u = unwritten;
const double limit = 0.001F;             // what lengths on an arc are compared with
const double step = std::ldexp(1, -33);  // distance of the numbers next to it
const double over = limit + step;

struct Turned {
  float x, y;
  Values result;  // and the status
};

Turned turn(float x0, float y0, float x, float y, float angle) {
  float xr = u, yr = u;
  std::int32_t status = unwritten_int;
  trvcer3(x0, y0, x, y, angle, xr, yr, status);
  return {x, y, {xr, yr, static_cast<double>(status)}};
}

}  // namespace

TEST(Stations, PointIsTurnedCounterClockwise) {
  const float points[][2] = {{5, 0}, {4, 3}, {0, 5}, {-4, 3}, {-5, 0}, {-4, -3}, {0, -5}, {4, -3}};
  for (const auto &p : points) {
    const Turned left = turn(1, 2, 1 + p[0], 2 + p[1], half_pi);
    expect_near(left.result, {1.0 - p[1], 2.0 + p[0], 1}, 1e-6);
    EXPECT_TRUE(left.x == 1 + p[0] && left.y == 2 + p[1]);
    expect_near(turn(1, 2, 1 + p[0], 2 + p[1], -half_pi).result, {1.0 + p[1], 2.0 - p[0], 1}, 1e-6);
  }
}

TEST(Stations, PointComesBackRoundedOrStaysAtTheCentre) {
  const Turned far = turn(16777216, 0, 0.25F, 4, 0);
  EXPECT_TRUE(far.x == 0 && far.y == 4 && far.result[2] == 1);
  const float near = std::ldexp(1.0F, -17);
  const Turned centre = turn(1, 2, 1 + near, 2, 1);
  EXPECT_TRUE(centre.x == near && centre.y == 0);
  EXPECT_EQ(centre.result, (Values{u, u, 0}));
  EXPECT_EQ(turn(0, 0, 0, -tolerance, 1).result, (Values{u, u, 0}));
  EXPECT_EQ(turn(0, 0, 0, -beyond, 1).result[2], 1);
}

TEST(Stations, PerpendicularToTheChord) {
  // Chords of the circle about (1, 2) with the radius 5: level, oblique, upright.
  expect_near(outputs(trvcer8, 1, 2, -3, -1, 5, -1, 1, 1), {-2, 6, 1}, 1e-6);
  for (const int side : {0, -9})
    expect_near(outputs(trvcer8, 1, 2, -3, -1, 5, -1, side, 1), {-2, -2, 1}, 1e-6);
  expect_near(outputs(trvcer8, 1, 2, 5, -1, -3, -1, -1, 7), {-2, 6, 1}, 1e-6);
  const double d = std::sqrt(5);
  expect_near(outputs(trvcer8, 1, 2, -4, 2, 4, 6, 9, d), {-3, 5, 1}, 1e-6);
  expect_near(outputs(trvcer8, 1, 2, -4, 2, 4, 6, -1, d), {1, -3, 1}, 1e-6);
  expect_near(outputs(trvcer8, 1, 2, 5, -1, 5, 5, -1, 3), {6, 2, 1}, 1e-6);
  expect_near(outputs(trvcer8, 1, 2, 5, -1, 5, 5, 1, 3), {-4, 2, 1}, 1e-6);
}

TEST(Stations, OnTheRayOfTheCentre) {
  expect_near(outputs(trvcer6, 1, 2, -3, -1, 5, -1, 1, 1.75), {4, 6, 1}, 1e-6);
  expect_near(outputs(trvcer6, 1, 2, -3, -1, 5, -1, 0, 1.75), {-2, -2, 1}, 1e-6);
  expect_near(outputs(trvcer6, 1, 2, 5, -1, 5, 5, 1, 3), {-4, 2, 1}, 1e-6);
}

TEST(Stations, EdgesOfAStrip) {
  expect_near(outputs(trvcer9, 1, 2, -3, -1, 5, -1, 1, 2.5, 3), {-2, 6, 1, 7, 1}, 1e-6);
  expect_near(outputs(trvcer9, 1, 2, -3, -1, 5, -1, 0, 2.5, 3), {-2, -2, 1, -3, 1}, 1e-6);
  expect_near(outputs(trvcer9, 1, 2, 5, -1, 5, 5, -1, 1.5, 3), {5, -1, 6, 2, 0}, 1);
}

TEST(Stations, Refusals) {
  // One status for all three, the strip one of the width w; a refusal writes nothing else.
  const auto expect = [](double xc, double yc, double xa, double xb, double d, double w,
                         double status, double strip_status) {
    const Values all[] = {outputs(trvcer8, xc, yc, xa, 0, xb, 0, 1, d),
                          outputs(trvcer6, xc, yc, xa, 0, xb, 0, 1, d),
                          outputs(trvcer9, xc, yc, xa, 0, xb, 0, 1, d, w)};
    for (const Values &got : all) {
      const double expected = got.size() == 3 ? status : strip_status;
      EXPECT_EQ(got.back(), expected) << xa << " " << xb << " " << d << " " << w;
      EXPECT_TRUE(expected == 1 || std::count(got.begin(), got.end() - 1, u) + 1U == got.size());
    }
  };
  const double wide = limit * 1.125;
  expect(0, 0, limit, -2 * limit, 1.5 * limit, wide, 0, 0);
  expect(0, 0, over, -2 * limit, 1.5 * limit, wide, 1, 0);
  expect(0, 0, 2 * limit, -limit, 1.5 * limit, wide, 1, 0);
  expect(0, 0, 2 * limit, -limit + step, 1.5 * limit, wide, 0, 0);
  expect(0, 1, 0, 1, limit, wide, 0, 0);
  expect(0, 1, 0, 1, over, wide, 1, 0);
  expect(0, 1, 0, 1, not_a_number, wide, 1, 0);
  const double station = 12884901 * step;
  expect(0, 1, 0, station + limit, station, wide, 0, 0);
  expect(0, 1, 0, station + limit + 2 * step, station, wide, 1, 0);
  // Strips: the width, then either end of the chord.
  expect(0, 1, 0, 4 * limit, 2 * limit, limit, 1, 0);
  expect(0, 1, 0, 4 * limit, 2 * limit, over, 1, 1);
  expect(0, 1, 0, 4 * limit, 2 * limit, 2 * limit, 1, 1);
  expect(0, 1, 0, 4 * limit, 2 * limit + 2 * step, 2 * limit, 1, 0);
  expect(0, 1, 0, 4 * limit, 2 * limit - step, 2 * limit, 1, 0);
}

TEST(Stations, DiameterHasNoRay) {
  // On a chord longer than the diameter, as radii that differ allow.
  const double r = 12000000 * step, d = 2 * r - limit;
  EXPECT_EQ(outputs(trvcer6, 0, 0, -r, 0, 1.25 * r, 0, 1, d)[2], 1);
  EXPECT_EQ(outputs(trvcer6, 0, 0, -r, 0, 1.25 * r, 0, 1, d + step), (Values{u, u, 0}));
  EXPECT_EQ(outputs(trvcer8, 0, 0, -r, 0, 1.25 * r, 0, 1, d + step)[2], 1);
}

TEST(Stations, SmallCircleLeavesTheSecondPointOfTheCallBefore) {
  // Every line through it touches it, as its discriminant is within the tolerance.
  const double x = 0.25, y = 0.5, r = 0.0012;
  const auto point = [&](auto routine) { return outputs(routine, x, y, x - r, y, x + r, y, 0, r); };
  const auto strip = [&] {
    return outputs(trvcer9, x, y, x - 0.0016, y, x + 0.0016, y, 0, 0.0016, 0.00105);
  };
  EXPECT_EQ(point(trvcer8), (Values{0, 0, 1}));
  EXPECT_EQ(strip(), (Values{0, 0, 0, 0, 1}));
  outputs(trvcer8, 1, 2, -3, -1, 5, -1, 0, 1);
  outputs(trvcer9, 1, 2, -3, -1, 5, -1, 0, 2.5, 3);
  expect_near(point(trvcer8), {-2, -2, 1}, 1e-6);
  expect_near(strip(), {1, -3, 1, -3, 1}, 1e-6);  // both edges share the points
}
