#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

namespace {

// The point as it comes back, the turned point and the status.
Values turn(float x0, float y0, float x, float y, float angle) {
  float xr = kept, yr = kept;
  std::int32_t status = kept;
  trvcer3(x0, y0, x, y, angle, xr, yr, status);
  return {x, y, xr, yr, static_cast<double>(status)};
}

}  // namespace

TEST(Arcs, LengthsOfBothArcs) {
  const Values refused = {kept, kept, TRV_ARC_REFUSED};
  for (const double y : {3, -1})  // either direction gives the same
    expect_near(outputs(trvarc1, 1, 1, 3, 1, 1, y), {pi, 3 * pi, TRV_ARC_DONE}, 1e-6);
  expect_near(outputs(trvarc1, 1, 1, 3, 1, -6, 1), {2 * pi, 2 * pi, 1}, 1e-6);  // A's radius
  EXPECT_EQ(outputs(trvarc1, 0, 0, tolerance, 0, 0, 1), refused);
  EXPECT_EQ(outputs(trvarc1, 0, 0, 1, 0, 1, -tolerance), refused);
  EXPECT_EQ(outputs(trvarc1, 0, 0, beyond, 0, 0, 1)[2], 1);
  EXPECT_EQ(outputs(trvarc1, 0, 0, 1, 0, 1, -beyond)[2], 1);
}

TEST(Arcs, PointIsTurnedCounterClockwise) {
  const float points[][2] = {{5, 0}, {4, 3}, {0, 5}, {-4, 3}, {-5, 0}, {-4, -3}, {0, -5}, {4, -3}};
  for (const auto &[x, y] : points) {
    expect_near(turn(1, 2, 1 + x, 2 + y, half_pi), {1 + x, 2 + y, 1 - y, 2 + x, 1}, 1e-6);
    expect_near(turn(1, 2, 1 + x, 2 + y, -half_pi), {1 + x, 2 + y, 1 + y, 2 - x, 1}, 1e-6);
  }
  EXPECT_EQ(turn(16777216, 0, 0.25F, 0, 0)[0], 0);  // rounded on its way
  const float near = std::ldexp(1.0F, -17);
  EXPECT_EQ(turn(1, 2, 1 + near, 2, 1), (Values{near, 0, kept, kept, 0}));  // left at the centre
  EXPECT_EQ(turn(0, 0, 0, tolerance, 1)[4], 0);
  EXPECT_EQ(turn(0, 0, 0, beyond, 1)[4], 1);
}
