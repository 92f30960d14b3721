#include <array>

#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

namespace {

using Arc = std::array<double, 6>;  // centre and ends

// Station, crossing with the parallel, crossing with the arc, length and status.
Values cross(const Arc &arc, double s, int side, double e, double angle) {
  return outputs(trvcer7, arc[0], arc[1], arc[2], arc[3], arc[4], arc[5], s, side, e, angle);
}

const Arc small = {0, 0, -3, 4, 3, 4};  // of the circle of radius 5; it rises to (0, 5)
const Values refused = {kept, kept, kept, kept, kept, kept, kept, 0};

}  // namespace

TEST(StationLines, CrossParallelAndArcBothWays) {
  expect_near(cross(small, 2, 3, 0.5, pi / 4), {-1, 4, -0.5, 4.5, 0, 5, std::sqrt(2), 1}, 2e-7);
  expect_near(cross(small, 3, -2, 2, half_pi), {0, 4, 0, 2, 0, -5, 9, 1}, 4e-7);
  expect_near(cross({1, 1, 1, -4, 1, 6}, 5, 1, 1, half_pi), {1, 1, 0, 1, -4, 1, 5, 1}, 4e-7);
  // Through (1, -1) along (2, 3), either way, to (5, 5) and to what is as far as the chord allows.
  const Arc level = {1, 2, -3, -1, 5, -1};
  const double up = std::atan2(3, 2), root = std::sqrt(13);
  for (const double angle : {up, up - pi}) {
    expect_near(cross(level, 4, 1, 3, angle), {1, -1, 3, 2, 5, 5, 2 * root, 1}, 3e-7);
    expect_near(cross(level, 4, -1, 0.5, angle),
                {1, -1, 2 / 3.0, -1.5, -3 / 13.0, -37 / 13.0, 8 / root, 1}, 3e-7);
  }
}

TEST(StationLines, CrossingWithTheParallelIsRoundedOnce) {
  const auto foot = [](double s, double e, float angle) {
    return cross({0, 0, -500, 0, 500, 0}, s, 1, e, angle)[2] -
           (s - 500 + e / std::tan(double{angle}));
  };
  EXPECT_NEAR(foot(600, 75, 2.5F), 0, 2e-8);  // -0.4, where 100 cancels
  EXPECT_NEAR(foot(500, 1e10, 0.3F), 0, 1025);
  EXPECT_NEAR(foot(500, 500, 1e10F), 0, 3.1e-5);
}

TEST(StationLines, RadiiMayDifferByTheRoundingOfTheCoordinates) {
  EXPECT_EQ(cross({1e4, -1e4, 9700, -1e4, 10300.003, -1e4}, 100, 1, 20, 1.1).back(), 1);
  EXPECT_EQ(cross({1e4, -1e4, 9700, -1e4, 10300.006, -1e4}, 100, 1, 20, 1.1), refused);
  EXPECT_EQ(cross({0, 0, -5, 0, 5.0001, 0}, 1, 1, 1, 1).back(), 1);
  EXPECT_EQ(cross({0, 0, -5, 0, 5.00011, 0}, 1, 1, 1, 1), refused);
  EXPECT_EQ(cross({0, 0, -0.01, 0, 0.0101001, 0}, 1e-3, 1, 1, 1), refused);  // by 1.001e-4
}

TEST(StationLines, Refusals) {
  const auto round = [](double r, double s, double angle) {  // from A, opposite B
    return cross({0, 0, -r, 0, r, 0}, s, 1, 0, angle);
  };
  for (const Values &values :
       {cross(small, -1e-30, 1, 1, 1), cross(small, 1, 1, -1e-30, 1), cross(small, 1, 0, 1, 1),
        cross(small, 5.99991, 1, 1, 1), cross(small, 1, 1, 1, 1e-4), round(1e-4, 5e-5, 1),
        round(5, 0.9e-9, half_pi), cross(small, not_a_number, 1, 1, 1), round(5, 1, infinity)}) {
    EXPECT_EQ(values, refused);
  }
  for (const Values &values :
       {cross(small, 0, 1, 1, 1), cross(small, 5.99989, 1, 1, 1), cross(small, 1, 1, 1, 1.01e-4),
        round(1.1e-4, 1.1e-4, 1), round(5, 1.1e-9, half_pi)}) {
    EXPECT_EQ(values.back(), 1);
  }
}
