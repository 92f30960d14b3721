#include "support.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

TEST(Matching, PositionsOfAValue) {
  const std::int32_t list[] = {4, 7, 4, -4, 4};
  std::int32_t count = unwritten_int, positions[6];
  const auto find = [&](std::int32_t n, std::int32_t key) {
    std::fill_n(positions, 6, unwritten_int);
    trvsel1(n, list, key, count, positions);
    return Values(positions, std::find(positions, positions + 6, unwritten_int));
  };
  EXPECT_EQ(find(5, 4), (Values{1, 3, 5}));
  EXPECT_EQ(count, 3);
  for (const std::int32_t n : {5, 0, -1}) {
    EXPECT_EQ(find(n, n == 5 ? 5 : 4), Values{});
    EXPECT_EQ(count, 0);
  }
}

TEST(Matching, PairsWithinATolerance) {
  const float a[] = {0, 1, 1.25F, not_a_number}, b[] = {1.25F, 0, 1.5F};
  std::int32_t count, ia[8], ib[8];
  const auto match = [&](std::int32_t na, std::int32_t nb, float tol) {
    count = unwritten_int;
    std::fill_n(ia, 8, unwritten_int);
    std::fill_n(ib, 8, unwritten_int);
    trvmer13(na, a, nb, b, count, ia, ib, tol);
    return Values(ia, std::find(ia, ia + 8, unwritten_int));
  };
  EXPECT_EQ(match(4, 3, 0.25F), (Values{1, 2, 3, 3, 0, 0, 0}));
  EXPECT_EQ(Values(ib, ib + 8), (Values{2, 1, 1, 3, 0, 0, 0, unwritten}));
  EXPECT_EQ(count, 4);
  EXPECT_EQ(match(2, 1, 5), (Values{1, 2, 0}));
  EXPECT_EQ(match(3, 0, 5), (Values{0, 0, 0}));
  EXPECT_EQ(Values(ib, ib + 4), (Values{0, 0, 0, unwritten}));
  EXPECT_EQ(match(-1, 3, 5), (Values{0, 0}));  // cleared as far as the counts sum up
  EXPECT_EQ(count, 0);
  EXPECT_EQ(match(-3, 2, 5), Values{});
  EXPECT_EQ(count, 0);
  match(3, 3, 5);  // more pairs than entries
  EXPECT_EQ(count, 9);
}

TEST(Matching, JoinCopiesBits) {
  const std::int32_t a[] = {1, 0x7FA00001, 3}, b[] = {-5, 6};  // one is a signalling NaN
  for (const auto join : {trvmer1, trvmer11}) {
    std::int32_t count, out[6];
    const auto joined = [&](std::int32_t na, std::int32_t nb) {
      count = unwritten_int;
      std::fill_n(out, 6, unwritten_int);
      join(na, a, nb, b, count, out);
      return Values(out, std::find(out, out + 6, unwritten_int));
    };
    EXPECT_EQ(joined(3, 2), (Values{1, 0x7FA00001, 3, -5, 6}));
    EXPECT_EQ(count, 5);
    EXPECT_EQ(joined(-3, 2), (Values{-5, 6}));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(joined(2, -1), (Values{1, 0x7FA00001}));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(joined(0, 0), Values{});
    EXPECT_EQ(count, 0);
  }
}
