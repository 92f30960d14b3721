#include <array>

#include "support.h"
#include "trelvin/space.h"

using namespace trelvin_test;

namespace {

// Of the line from the origin to (xb, 0, 0) and the line from C to D.
double relation(float xb, float xc, float yc, float zc, float xd, float yd, float zd) {
  return outputs(trvdirl, 0, 0, 0, xb, 0, 0, xc, yc, zc, xd, yd, zd)[0];
}

float TRELVIN_CALL height(const std::int32_t &position) {
  return position == 3 ? 12.0F : static_cast<float>(8 - 4 * position);
}

}  // namespace

TEST(SpaceLines, RelationOfTwoLines) {
  EXPECT_EQ((Values{relation(1, 3, 3, 0, 4, 4, 0), relation(1, 0, 1, 1, 5, 1, 1),
                    relation(1, 5, 1, 1, 0, 1, 1), relation(1, 2, 0, 0, 3, 0, 0),
                    relation(1, 3, 0, 0, 2, 0, 0), relation(1, 3, 3, 0, 3, 4, 0),
                    relation(1, 3, 3, 1, 4, 4, 1), relation(1, 3, 3, 1, 3, 3, 1),
                    relation(tolerance, 3, 3, 1, 4, 4, 1)}),
            (Values{0, 1, 2, 3, 4, 5, 6, 7, 7}));
  // Parallel within the tolerance of the cosine, with D alone on the line, or C, or D.
  EXPECT_EQ((Values{relation(1, 1, 0.004F, 0, 5, 0, 0), relation(1, -4, 0, 0, 1, 0.004F, 0),
                    relation(1, 0, 0.004F, 0, -5, 0, 0)}),
            (Values{3, 3, 4}));
  // Rising by h, the cosine is h^2/2 from that of parallel lines; the last two are nearly upright.
  EXPECT_EQ((Values{relation(1, 0, 1, 0, 1, 1.0044F, 0), relation(1, 0, 1, 0, 1, 1.0046F, 0),
                    relation(1, 0, 0, 0, tolerance, 1, 0), relation(1, 0, 0, 0, beyond, 1, 0)}),
            (Values{1, 0, 5, 0}));
}

TEST(SpaceLines, SkewDependsOnTheLengthsOfTheSegments) {
  const float t = tolerance, b = -beyond;
  EXPECT_EQ((Values{relation(1, 0, 0, t, 0, 1, t), relation(1, 0, 0, b, 0, 1, b),
                    relation(1000, 0, 0, t, 0, 1, t), relation(0.001F, 0, 0, 1, 0, 0.001F, 1)}),
            (Values{5, 6, 6, 5}));
  const auto spans = [](double z) {
    return outputs(trv3sp, 1, 1, 1, 3, 1, 1, 5, 5, 0, 5, 5.5, 0, 0, 7, 0, 4, 5, z)[0];
  };
  EXPECT_EQ((Values{spans(t), spans(-t), spans(b), spans(-b)}), (Values{0, 0, 1, 1}));
}

TEST(SpaceLines, DistanceOfAPoint) {
  // The line through A along (1, 2, 2), the point 5 times that further and off by (2, 1, -2).
  EXPECT_EQ(outputs(trv3ldb, 1, 2, 2, 2, 4, 4, 8, 13, 10), (Values{0, 3}));
  EXPECT_EQ(outputs(trv3ldb, 0, 5, 0, 1, 5, 0, 0, 5, 3), (Values{0, 2}));  // 5 - 3, not 0 - 3
  EXPECT_EQ(outputs(trv3ldb, 1, 2, 9, 1, 2, 9, 3, 5, 15), (Values{0, 7}));
  EXPECT_EQ(outputs(trv3lda, 1, 2, 9, 1, 2, 9, 3, 5, 15), (Values{0, 7}));
  EXPECT_EQ(outputs(trv3lda, 1, 2, 9, 2, 4, 11, 3, 6, 13), (Values{0, 0}));
  expect_near(outputs(trv3lda, 1, 2, 9, 2, 4, 11, 8, 13, 17), {0, -3}, 3e-6);
  expect_near(outputs(trv3lda, 1, 2, 9, 2, 4, 11, 4, 11, 21), {0, 3}, 3e-6);
  // To the left of the line, seen against the normal.
  EXPECT_EQ(outputs(trv3lda, 0, 0, 0, 1, 0, 0, 0, 3, 0), (Values{0, -3}));
}

TEST(SpaceLines, IntersectionOfTwoLinesMovesTheirPoints) {
  using Points = std::array<float, 9>;  // A, C and the intersection
  const auto intersect = [](Points &p, float ux, float uy, float uz, float wx, float wy, float wz) {
    std::int32_t status = unwritten_int;
    trv3lni(p[0], p[1], p[2], ux, uy, uz, p[3], p[4], p[5], wx, wy, wz, status, p[6], p[7], p[8]);
    return status;
  };
  Points p = {0, -1, 1, 5, 0, 14, unwritten, unwritten, unwritten};
  EXPECT_EQ(intersect(p, 1, 2, 2, 1, -1, 3), 0);  // 2 along the first, -3 along the second
  expect_near(Values(p.begin(), p.end()), {0, 0, 0, 5, 1, 13, 2, 3, 5}, 1e-6);

  const Points start = {0, -1, 1, 1, 1, 3, unwritten, unwritten, unwritten};
  p = start;
  EXPECT_EQ(intersect(p, 1, 2, 2, 2, 4, 4), 3);
  EXPECT_EQ(intersect(p, 1, 2, 2, -2, -4, -4), 4);
  EXPECT_EQ(intersect(p, 1, 2, 3, 1, -1, 3), 6);
  EXPECT_EQ(intersect(p, 1, 2, 2, 0, 0, 0), 7);
  EXPECT_EQ(p, start);

  // Parallel lines in a frame along the axes: the caller's (2, 3) from A.
  p = {1, 1, 1, 0, 2, 1, 2, 3, unwritten};
  EXPECT_EQ(intersect(p, 1, 0, 0, 4, 0, 0), 0);
  EXPECT_EQ(p, (Points{0, 0, 0, -1, 1, 0, 3, 4, 1}));
  // C + w on the first line: in a frame of zeros everything is at A.
  p = {4, 5, 6, 6, 4, 6, 2, 3, unwritten};
  EXPECT_EQ(intersect(p, 1, 0, 0, 0, 1, 0), 0);
  EXPECT_EQ(p, (Points{0, 0, 0, 2, -1, 0, 4, 5, 6}));
}

TEST(SpaceLines, IntersectionWithPlane) {
  EXPECT_EQ(outputs(trvpli, 1, 2, 3, 1, 1, 2, 1, 2, 3, -32), (Values{3, 4, 7, 0}));
  const auto refused = [](double status) {
    return Values{unwritten, unwritten, unwritten, status};
  };
  EXPECT_EQ(outputs(trvpli, 1, 2, 3, 1, 0, tolerance, 0, 0, 1, 0), refused(3));
  EXPECT_EQ(outputs(trvpli, 1, 2, 3, 1, 0, beyond, 0, 0, 1, 0)[3], 0);
  EXPECT_EQ(outputs(trvpli, 1, 2, 3, tolerance, -tolerance, 0, 1, 2, 3, 4), refused(4));
  EXPECT_EQ(outputs(trvpli, 1, 2, 3, 1, 2, 3, 0, 0, tolerance, 4), refused(4));
}

TEST(SpaceLines, PositionOfAPlane) {
  const float t = tolerance;
  const auto position = [](float a, float b, float c) {
    return 100 * outputs(trvplp, a, b, c, beyond)[0] + outputs(trvplp, a, b, c, -tolerance)[0];
  };
  EXPECT_EQ((Values{position(beyond, -beyond, beyond), position(t, 1, 1), position(1, -t, 1),
                    position(1, 1, t)}),
            (Values{101, 202, 303, 404}));
  EXPECT_EQ((Values{position(0, t, 1), position(1, 0, t), position(t, 1, 0), position(0, 0, 0)}),
            (Values{508, 609, 710, 710}));
}

TEST(SpaceLines, PointsNearALine) {
  // From the x axis, with the heights 4, 0, 12 and -8: 5, 1, 13 and 10.
  const float x[] = {7, 3, 5, 9}, y[] = {3, 1, 5, 6};
  std::int32_t status = unwritten_int, count = unwritten_int, index[] = {0, 0, 0, unwritten_int};
  trvpnl(0, 0, 0, 1, 0, 0, x, y, nullptr, 0, 10, status, count, index);
  EXPECT_TRUE(status == unwritten_int && count == 0);
  trvpnl(0, 0, 0, 1, 0, 0, x, y, height, 4, 10, status, count, index);
  EXPECT_TRUE(status == 0 && count == 3);
  EXPECT_EQ(Values(index, index + 4), (Values{1, 2, 4, unwritten}));
}

TEST(SpaceLines, PointCarriedAlong) {
  const auto carried = [](float x1, float y1, float z1, float x2, float y2, float z2) {
    std::int32_t status = unwritten_int;
    trvlpc(1, 1, 1, x1, y1, z1, x2, y2, z2, 1, 2, 3, 2, 4, 8, status);
    return Values{x2, y2, z2, static_cast<double>(status)};
  };
  // P is moved to (2, 3, 4), Q1 from (3, 1, 1) to (5, 5, 9).
  EXPECT_EQ(carried(3, 1, 1, 7, 1, 1), (Values{11, 9, 19, 3}));
  EXPECT_EQ(carried(3, 1, 1, -1, 1, 1), (Values{-1, 1, -1, 4}));
  EXPECT_EQ(carried(3, 1, 1, 1, 1, 1), (Values{2, 3, 4, 7}));
  EXPECT_EQ(carried(1, 1, 1, 7, 1, 1), (Values{7, 1, 1, 0}));
  EXPECT_EQ(carried(3, 1, 1, 7, 2, 1), (Values{7, 2, 1, 0}));
  EXPECT_EQ(carried(3, 1, 1, 1, 7, 1), (Values{1, 7, 1, 0}));
  // Far out, rounding makes the lines skew, and the point is moved though it is off the line.
  EXPECT_EQ(carried(1000.1F, 200.3F, 300.7F, -333.3F, 777.7F, 123.4F)[3], 6);
}
