#include "space/frame_of_sevens.h"
#include "trelvin/space_lines.h"

using namespace trelvin_test;

TEST(Intersections, OfTwoLinesMovesTheirPoints) {
  using Points = std::array<float, 9>;  // A, C and the intersection
  const auto intersect = [](Points &p, Point u, Point w) {
    std::int32_t status = kept;
    trv3lni(p[0], p[1], p[2], u[0], u[1], u[2], p[3], p[4], p[5], w[0], w[1], w[2], status, p[6],
            p[7], p[8]);
    return status;
  };
  Points p = {1, -2, 4, 8, 1, 25, kept, kept, kept};
  EXPECT_EQ(intersect(p, {2, 3, 6}, {1, -1, 3}), 0);  // 2 along the first, -3 along the second
  expect_near(Values(p.begin(), p.end()), {0, 0, 0, 7, 3, 21, 5, 4, 16}, 1e-6);

  const Points start = {0, -1, 1, 1, 1, 3, kept, kept, kept};
  p = start;
  EXPECT_EQ(intersect(p, {1, 2, 2}, {2, 4, 4}), 3);
  EXPECT_EQ(intersect(p, {1, 2, 2}, {-2, -4, -4}), 4);
  EXPECT_EQ(intersect(p, {1, 2, 3}, {1, -1, 3}), 6);
  EXPECT_EQ(intersect(p, {1, 2, 2}, {0, 0, 0}), 7);
  EXPECT_EQ(p, start);

  // Parallel lines in a frame along the axes: the caller's (2, 3) from A.
  p = {1, 1, 1, 0, 2, 1, 2, 3, kept};
  EXPECT_EQ(intersect(p, {1, 0, 0}, {4, 0, 0}), 0);
  EXPECT_EQ(p, (Points{0, 0, 0, -1, 1, 0, 3, 4, 1}));
  // C + w on the first line: in a frame of zeros everything is at A.
  p = {4, 5, 6, 6, 4, 6, 2, 3, kept};
  EXPECT_EQ(intersect(p, {1, 0, 0}, {0, 1, 0}), 0);
  EXPECT_EQ(p, (Points{0, 0, 0, 2, -1, 0, 4, 5, 6}));
}

TEST(Intersections, OfALineAndAPlane) {
  EXPECT_EQ(outputs(trvpli, 1, -2, 4, 2, 3, 6, 5, -1, 2, -53), (Values{5, 4, 16, TRVPLI_DONE}));
  EXPECT_EQ(outputs(trvpli, 1, 2, 3, 2, 3, 6, 3, -6, 2, 4),
            (Values{kept, kept, kept, TRVPLI_PARALLEL}));
  EXPECT_EQ(outputs(trvpli, 1, 2, 3, 1, 0, tolerance, 0, 0, 1, 0), (Values{kept, kept, kept, 3}));
  EXPECT_EQ(outputs(trvpli, 1, 2, 3, 1, 0, beyond, 0, 0, 1, 0)[3], 0);
  EXPECT_EQ(outputs(trvpli, 1, 2, 3, tolerance, -tolerance, 0, 1, 2, 3, 4),
            (Values{kept, kept, kept, TRVPLI_ZERO}));
}
