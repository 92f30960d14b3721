#include <array>

#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

TEST(Segments, DistancesInThePlaneAndStationsInSpace) {
  // Along (12, 5) and across it in steps of 13; the heights make 26, 13 and 39 longer.
  expect_near(outputs(trvhin, 20, 24, 22.5, 1, 2, 3, 37, 17, 55, 35, -12, 139),
              {13, 32.5, 26, -20, 65}, 1e-6);
}

TEST(Segments, SectorMarksByTheSignsOfBothDistances) {
  // Stations along the first ray and towards the second one, and their marks.
  const float cases[][3] = {{2, 1, TRVAPP_OUTSIDE},
                            {-2, 1, 2},
                            {2, -1, TRVAPP_INSIDE},
                            {-2, -1, 2},
                            {0.5F, -1, 1},
                            {0.5F, 0, 1},
                            {2, 0, 1},
                            {-2, 0, 2},
                            {0, 0, 1},
                            {0, 3, 1}};
  const float rays[][3] = {{1, 0, 1}, {0, 1, -1}, {3, 4, 1}, {3, 4, -1}};  // 1: second to the left
  float x[10], y[10];
  std::int32_t mark[11];
  for (const auto &[dx, dy, s] : rays) {
    for (int i = 0; i < 10; ++i) {
      x[i] = 1 + cases[i][0] * dx - s * cases[i][1] * dy;
      y[i] = 2 + cases[i][0] * dy + s * cases[i][1] * dx;
    }
    trvapp(1, 2, 1 + dx, 2 + dy, 1 - s * dy, 2 + s * dx, 10, x, y, mark);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(mark[i], cases[i][2]) << i << " " << dx << " " << s;
  }
  std::fill_n(mark, 11, kept);
  trvapp(1, 2, 2, 3, 5, 6, 9, x, y, mark);  // both rays of one direction
  EXPECT_TRUE(std::count(mark, mark + 9, TRVAPP_NO_SECTOR) == 9 && mark[9] == kept);
}

TEST(Segments, NotANumberInASectorLeavesPointsInside) {
  const auto marks = [](std::array<float, 6> rays, float x, float y) {
    std::int32_t mark = kept;
    trvapp(rays[0], rays[1], rays[2], rays[3], rays[4], rays[5], 1, &x, &y, &mark);
    return mark;
  };
  EXPECT_EQ(marks({1, 2, 3, 3, 2, 6}, -5, 1), 2);
  EXPECT_EQ(marks({1, 2, 3, 3, 2, 6}, not_a_number, 1), 1);
  EXPECT_EQ(marks({1, not_a_number, 3, 3, 2, 6}, -5, 1), 1);
  EXPECT_EQ(marks({1, 2, not_a_number, 3, 2, 6}, -5, 1), 1);
  EXPECT_EQ(marks({1, 2, 3, 3, not_a_number, 6}, -5, 1), 2);  // by the foot alone
  EXPECT_EQ(marks({1, 2, 3, 3, not_a_number, 6}, 5, 3), 1);
}

TEST(Segments, ThreePointTestsShareTheirCosine) {
  // A foot that coincides with the vertex by coordinates, not by its distance: the cosine of an
  // earlier test decides whether it lies beyond.
  const float x = 9e-6F, y = -9e-6F;
  std::int32_t mark = kept, status = kept;
  trvapp(0, 0, 5, -5, 4, 3, 1, &x, &y, &mark);
  EXPECT_EQ(mark, 1);
  float arc[] = {1, 2, -3, -1, 5, -1}, crossing[2];
  trvcer10(arc[0], arc[1], arc[2], arc[3], arc[4], arc[5], half_pi, 0.46364761F, crossing[0],
           crossing[1], status);  // beyond B
  trvapp(0, 0, 5, -5, 4, 3, 1, &x, &y, &mark);
  EXPECT_EQ(mark, 2);
}
