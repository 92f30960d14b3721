#include <cfenv>
#include <csetjmp>

#include "space/frame_of_sevens.h"
#include "trelvin/space.h"

using namespace trelvin_test;

namespace {

// Relation of the line along the first axis of the frame and the line from C to D.
double relation(Point c, Point d) {
  return outputs_at(trvdirl, in_sevens(0, 0, 0), in_sevens(1, 0, 0), c, d)[0];
}

float TRELVIN_CALL height(const std::int32_t &position) {
  return position == 1 ? 6.0F : position == 2 ? 10.0F : position == 3 ? -2.0F : 0.0F;
}

// How the processor rounds: 1 up, -1 down, 0 to nearest.
int rounding() {
  volatile float one = 1, three = 3;
  const float sum = one / three + one / -three;
  return sum > 0 ? 1 : sum < 0 ? -1 : 0;
}

// Roundings in which a function was called. It sets the other one, and leaves at the third call.
std::vector<int> roundings;
std::jmp_buf way_out;

float TRELVIN_CALL turn_rounding(const std::int32_t &position) {
  roundings.push_back(rounding());
  std::fesetround(position == 1 ? FE_DOWNWARD : FE_UPWARD);
  if (position == 3) std::longjmp(way_out, 1);
  return 3;
}

}  // namespace

TEST(SpaceLines, RelationOfTwoLines) {
  const auto p = in_sevens;
  EXPECT_EQ((Values{relation(p(3, 3, 0), p(4, 4, 0)), relation(p(0, 1, 1), p(5, 1, 1)),
                    relation(p(5, 1, 1), p(0, 1, 1)), relation(p(2, 0, 0), p(3, 0, 0)),
                    relation(p(3, 0, 0), p(2, 0, 0)), relation(p(3, 3, 0), p(3, 4, 0)),
                    relation(p(3, 3, 1), p(4, 4, 1)), relation(p(3, 3, 1), p(3, 3, 1))}),
            (Values{TRV_LINES_CROSSING, TRV_LINES_PARALLEL_SAME, TRV_LINES_PARALLEL_OPPOSITE,
                    TRV_LINES_SAME_LINE, TRV_LINES_OPPOSITE_LINE, TRV_LINES_PERPENDICULAR,
                    TRV_LINES_SKEW, TRV_LINES_COINCIDENT}));
  const Point o = {0, 0, 0}, tiny = {tolerance, -tolerance, 0}, c = {3, 3, 1}, d = {4, 4, 1};
  EXPECT_EQ(outputs_at(trvdirl, o, tiny, c, d), Values{7});
  EXPECT_NE(outputs_at(trvdirl, o, Point{beyond, 0, 0}, c, d), Values{7});
}

TEST(SpaceLines, RelationWithinTheTolerances) {
  const auto along_x = [](float xc, float yc, float xd, float yd) {
    return outputs(trvdirl, 0, 0, 0, 1, 0, 0, xc, yc, 0, xd, yd, 0)[0];
  };
  // Parallel within the tolerance of the cosine, with D alone on the line, or C, or D.
  EXPECT_EQ(
      (Values{along_x(1, 0.004F, 5, 0), along_x(-4, 0, 1, 0.004F), along_x(0, 0.004F, -5, 0)}),
      (Values{3, 3, 4}));
}

TEST(SpaceLines, SkewDependsOnTheLengthsOfTheSegments) {
  const auto crossing = [](float xb, float yd, float z) {
    return outputs(trvdirl, 0, 0, 0, xb, 0, 0, 0, 0, z, 0, yd, z)[0];
  };
  const float t = tolerance, b = -beyond;
  EXPECT_EQ((Values{crossing(1, 1, t), crossing(1, 1, b), crossing(1000, 1, t),
                    crossing(0.001F, 0.001F, 1)}),
            (Values{5, 6, 6, 5}));
  // Three vectors in one plane: a change of any coordinate takes them out of it.
  const Point o = in_sevens(0, 0, 0), u = in_sevens(1, 0, 0), w = in_sevens(0, 1, 0);
  const auto out = [&](float x, float y, float z) {
    const Point p = in_sevens(2, -3, 0);
    return outputs_at(trv3sp, o, u, o, w, o, Point{p[0] + x, p[1] + y, p[2] + z})[0];
  };
  EXPECT_EQ((Values{out(0, 0, 0), out(1, 0, 0), out(0, 1, 0), out(0, 0, 1), out(1, 0, 2)}),
            (Values{TRV3SP_FLAT, TRV3SP_SPANNING, 1, 1, 0}));
}

TEST(SpaceLines, DistanceOfAPoint) {
  // Across the line through A along (2, 3, 6) are (3, -6, 2) and (6, 2, -3), 7 long.
  const Point a = {1, 4, 4}, b = {3, 7, 10};
  EXPECT_EQ(outputs_at(trv3ldb, a, b, Point{4, -2, 6}), (Values{0, 7}));
  EXPECT_EQ(outputs_at(trv3ldb, a, b, Point{17, 14, 10}), (Values{0, 14}));
  EXPECT_EQ(outputs(trv3ldb, 0, 5, 0, 1, 5, 0, 0, 5, 3), (Values{0, 2}));  // 5 - 3, not 0 - 3
  EXPECT_EQ(outputs(trv3ldb, 1, 2, 9, 1, 2, 9, 3, 5, 15), (Values{0, 7}));
}

TEST(SpaceLines, SignedDistanceInThePlaneOfTheLineAndThePoint) {
  const Point a = in_sevens(0, 0, 0), b = in_sevens(2, 0, 0);
  // Negative to the left of the line, seen against the normal.
  expect_near(outputs_at(trv3lda, a, b, in_sevens(3, 2, 0)), {0, -14}, 3e-6);
  expect_near(outputs_at(trv3lda, a, b, in_sevens(-1, -3, 0)), {0, 21}, 3e-6);
  EXPECT_EQ(outputs_at(trv3lda, a, b, in_sevens(1, 0, 0)), (Values{0, 0}));
  EXPECT_EQ(outputs_at(trv3lda, a, a, in_sevens(0, 1, 0)), (Values{0, 7}));
}

TEST(SpaceLines, PointsNearALine) {
  // The line along (2, 3, 6) is taken through (1, 4, 4), not A = (1, 4, 9): 7 off, 14 off, on it,
  // and nowhere.
  const float x[] = {4, 17, -1, not_a_number}, y[] = {-2, 14, 1, 0};
  const auto found = [&](std::int32_t n, float tol) {
    std::int32_t status = kept, count = kept, index[4] = {};
    trvpnl(1, 4, 9, 3, 7, 15, x, y, n > 0 ? height : nullptr, n, tol, status, count, index);
    Values all(index, index + 4);
    all.push_back(count);
    all.push_back(status);
    return all;
  };
  EXPECT_EQ(found(0, 7), (Values{0, 0, 0, 0, 0, kept}));
  EXPECT_EQ(found(4, 7), (Values{1, 3, 0, 0, 2, TRV_STATUS_DONE}));
  EXPECT_EQ(found(4, 6.999F), (Values{3, 0, 0, 0, 1, 0}));
  EXPECT_EQ(found(4, infinity), (Values{1, 2, 3, 0, 3, 0}));
}

TEST(SpaceLines, FunctionIsCalledInTheStateOfTheHost) {
  const float x[] = {5, 5, 5}, y[] = {1, 1, 1};
  float d = 0;
  std::int32_t status = kept, count = kept, index[3] = {};
  trv3ldb(0, 0, 0, 1, 2, 3, 5, 1, 3, status, d);
  const auto find = [&](std::int32_t n, float tol) {
    std::fesetround(FE_UPWARD);
    trvpnl(0, 0, 0, 1, 2, 3, x, y, turn_rounding, n, tol, status, count, index);
  };
  // Rounded up the distance is more, rounded down less.
  find(2, d);
  EXPECT_TRUE(count == 2 && rounding() == 1);
  find(1, std::nextafter(d, 0.0F));
  EXPECT_TRUE(count == 0 && rounding() == -1);
  count = kept;
  if (setjmp(way_out) == 0) find(3, d);
  EXPECT_TRUE(count == kept && index[1] == 2 && rounding() == 1);
  std::fesetround(FE_TONEAREST);
  EXPECT_EQ(roundings, (std::vector<int>{1, -1, 1, 1, -1, 1}));
}

TEST(SpaceLines, PointCarriedAlong) {
  const auto carried = [](Point q1, Point q2) {
    std::int32_t status = kept;
    trvlpc(1, -2, 4, q1[0], q1[1], q1[2], q2[0], q2[1], q2[2], 1, 2, 3, 2, 4, 8, status);
    return Values{q2[0], q2[1], q2[2], static_cast<double>(status)};
  };
  // P is moved to (2, 0, 7) and Q1 to (5, 5, 18).
  const Point p = in_sevens(0, 0, 0), q1 = in_sevens(1, 0, 0), off = in_sevens(0, 1, 0);
  EXPECT_EQ(carried(q1, in_sevens(3, 0, 0)), (Values{11, 15, 40, TRVLPC_MOVED_ONE_SIDE}));
  EXPECT_EQ(carried(q1, in_sevens(-2, 0, 0)), (Values{-4, -10, -15, TRVLPC_MOVED_EITHER_SIDE}));
  EXPECT_EQ(carried(q1, p), (Values{2, 0, 7, TRVLPC_MOVED_AT_P}));
  EXPECT_EQ(carried(p, off), (Values{off[0], off[1], off[2], TRVLPC_NOT_MOVED}));
  EXPECT_EQ(carried(q1, off), (Values{off[0], off[1], off[2], 0}));
  EXPECT_EQ(carried(q1, in_sevens(3, 1, 0))[3], 0);
  // Far out, rounding makes the lines skew, and the point is moved though it is off the line.
  EXPECT_EQ(carried({1000.1F, 200.3F, 300.7F}, {-333.3F, 777.7F, 123.4F})[3], TRVLPC_MOVED_SKEW);
}

TEST(SpaceLines, RelationOfDirections) {
  const auto relation = [](Point u, Point w) {
    return outputs_at(trvplv, u, w, not_a_number, 1)[0];
  };
  const Point u = {2, 3, 6}, zero = {0, 0, 0};
  EXPECT_EQ((Values{relation(zero, u), relation(zero, zero), relation(u, zero),
                    relation({tolerance, 0, -tolerance}, u)}),
            (Values{TRVPLV_ZERO_U, -1, TRVPLV_ZERO, 7}));
  EXPECT_EQ((Values{relation(u, {4, 6, 12}), relation(u, {-4, -6, -12}), relation(u, {3, -6, 2}),
                    relation(u, {3, 2, 6})}),
            (Values{TRVPLV_SAME, TRVPLV_OPPOSITE, TRVPLV_PERPENDICULAR, TRVPLV_OBLIQUE}));
}
