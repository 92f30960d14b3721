#include "lists/odd_lists.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

constexpr std::int32_t u = unwritten_int;

TEST(Matching, PositionsOfAValue) {
  const std::int32_t list[] = {4, 7, 4, -4, 4};
  std::int32_t count = u, positions[] = {u, u, u, u};
  trvsel1(-1, list, 4, count, positions);
  EXPECT_EQ(count, 0);
  trvsel1(5, list, 4, count, positions);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(Values(positions, positions + 4), (Values{1, 3, 5, u}));
}

TEST(Matching, PairsWithinATolerance) {
  const float a[] = {0, 1, 1.25F, not_a_number}, b[] = {1.25F, 0, 1.5F};
  std::int32_t count = u, ia[] = {u, u, u, u, u, u, u, u}, ib[] = {u, u, u, u, u, u, u, u};
  trvmer13(-1, a, 3, b, count, ia, ib, 5);
  EXPECT_EQ(count, 0);
  EXPECT_TRUE(ia[1] == 0 && ia[2] == u && ib[1] == 0 && ib[2] == u);  // as far as the counts sum up
  trvmer13(4, a, 3, b, count, ia, ib, 0.25F);
  EXPECT_EQ(count, 4);
  EXPECT_EQ(Values(ia, ia + 8), (Values{1, 2, 3, 3, 0, 0, 0, u}));
  EXPECT_EQ(Values(ib, ib + 8), (Values{2, 1, 1, 3, 0, 0, 0, u}));
}

TEST(Matching, PairsOfOddLists) {
  OddLists lists;
  for (int trial = 0; trial < 4000; ++trial) {
    const Reals a = lists.reals(), b = lists.reals();
    const float tol = lists.tolerance();
    Integers ia(a.size() + b.size() + a.size() * b.size(), u), ib = ia, plain_a = ia, plain_b = ia;
    std::fill_n(plain_a.begin(), a.size() + b.size(), 0);
    std::fill_n(plain_b.begin(), a.size() + b.size(), 0);
    std::int32_t count = u;
    std::size_t pairs = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
      for (std::size_t j = 0; j < b.size(); ++j) {
        if (!(std::fabs(a[i] - b[j]) <= tol)) continue;
        plain_a[pairs] = static_cast<std::int32_t>(i + 1);
        plain_b[pairs++] = static_cast<std::int32_t>(j + 1);
      }
    }
    trvmer13(size_of(a), a.data(), size_of(b), b.data(), count, ia.data(), ib.data(), tol);
    ASSERT_EQ(static_cast<std::size_t>(count), pairs) << trial;
    ASSERT_TRUE(ia == plain_a && ib == plain_b) << trial;
  }
}

TEST(Matching, JoinCopiesBits) {
  const std::int32_t a[] = {1, 0x7FA00001, 3}, b[] = {-5, 6};  // one is a signalling NaN
  for (const auto join : {trvmer1, trvmer11}) {
    std::int32_t count = u, out[] = {u, u, u, u, u, u};
    join(-3, a, 2, b, count, out);
    EXPECT_TRUE(count == 2 && out[0] == -5 && out[1] == 6 && out[2] == u);
    join(2, a, -1, b, count, out);
    EXPECT_TRUE(count == 2 && out[0] == 1 && out[1] == 0x7FA00001 && out[2] == u);
    join(3, a, 2, b, count, out);
    EXPECT_EQ(count, 5);
    EXPECT_EQ(Values(out, out + 6), (Values{1, 0x7FA00001, 3, -5, 6, u}));
  }
}
