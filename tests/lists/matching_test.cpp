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
