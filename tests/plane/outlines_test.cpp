#include "support.h"
#include "trelvin/plane.h"

using namespace trelvin_test;

namespace {

// Status of the outline in either orientation.
std::int32_t convex(std::vector<float> x, std::vector<float> y) {
  std::int32_t either_way[2];
  for (std::int32_t &status : either_way) {
    trvcnv(x.data(), y.data(), static_cast<std::int32_t>(x.size()), status);
    std::reverse(x.begin(), x.end());
    std::reverse(y.begin(), y.end());
  }
  EXPECT_EQ(either_way[0], either_way[1]);
  return either_way[0];
}

// A regular polygon, or a star that winds more than once.
std::int32_t round_convex(int vertices, int windings) {
  std::vector<float> x, y;
  for (int i = 0; i < vertices; ++i) {
    x.push_back(static_cast<float>(std::cos(2 * pi * windings * i / vertices)));
    y.push_back(static_cast<float>(std::sin(2 * pi * windings * i / vertices)));
  }
  return convex(x, y);
}

}  // namespace

TEST(Outlines, ConvexOutlinesWindOnceAndTurnOneWay) {
  EXPECT_EQ(convex({0, 1, 2, 2, 0}, {0, 0, 0, 1, 1}), TRVCNV_CONVEX);      // straight at (1, 0)
  EXPECT_EQ(convex({0, 2, 2, 1, 0}, {0, 0, 2, 1, 2}), TRVCNV_NOT_CONVEX);  // a notch
  EXPECT_EQ(convex({0, 1, -1, 1, 0.5F}, {0, 1, 0, -1, 3}), 0);             // crosses itself
  EXPECT_EQ(round_convex(5, 2), 0);
  EXPECT_EQ(round_convex(5000, 1), 1);  // each vertex is straight within the tolerance
}

TEST(Outlines, OutlinesThatTurnBackAreNotConvex) {
  EXPECT_EQ(convex({0, 2, 3, 2, 2, 0}, {0, 0, 0, 0, 2, 2}), 0);  // a spike
  EXPECT_EQ(convex({0, 2, 1}, {0, 0, 1e-6F}), 0);
  EXPECT_EQ(convex({0, 3, 1}, {0, 0, 0}), 0);
}

TEST(Outlines, NotchesCountFromTheToleranceOn) {
  EXPECT_EQ(convex({0, 1, 2, 1}, {0, tolerance, 0, 5}), 1);
  EXPECT_EQ(convex({0, 1, 2, 1}, {0, beyond, 0, 5}), 0);
}

TEST(Outlines, ALongSideStaysStraightThoughDifferencesTakeMoreThanARealHolds) {
  const float a = 33 / 65536.0F;  // on y = 3*x, but 10000 - a is not a Real
  const std::vector<float> x = {a, 10000, 20000, 0}, y = {3 * a, 30000, 60000, 60000};
  EXPECT_EQ(convex(x, y), 1);
  EXPECT_EQ(convex(y, x), 1);
}

TEST(Outlines, RefusedWithFewVerticesOrAShortSide) {
  EXPECT_EQ(convex({0, 1}, {0, 1}), TRVCNV_REFUSED);
  EXPECT_EQ(convex({0, 1, 1, 0}, {0, 0, tolerance, 1}), -1);
  EXPECT_EQ(convex({0, 1, 1, 0}, {0, 0, beyond, 1}), 1);
  EXPECT_EQ(convex({0, 1, 1, 0}, {0, 0, not_a_number, 1}), 0);
}
