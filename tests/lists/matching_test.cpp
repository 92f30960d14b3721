#include "support.h"
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
