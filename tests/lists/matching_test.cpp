#include "support.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

TEST(Matching, PositionsOfAValue) {
  const std::int32_t list[] = {4, 7, 4, -4, 4};
  std::int32_t count = kept, positions[] = {kept, kept, kept, kept};
  trvsel1(-1, list, 4, count, positions);
  EXPECT_EQ(count, 0);
  trvsel1(5, list, 4, count, positions);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(Values(positions, positions + 4), (Values{1, 3, 5, kept}));
}

TEST(Matching, JoinCopiesBits) {
  const std::int32_t a[] = {1, 0x7FA00001, 3}, b[] = {-5, 6};  // one is a signalling NaN
  for (const auto join : {trvmer1, trvmer11}) {
    std::int32_t count = kept, out[] = {kept, kept, kept, kept, kept, kept};
    join(-3, a, 2, b, count, out);
    EXPECT_TRUE(count == 2 && out[0] == -5 && out[1] == 6 && out[2] == kept);
    join(2, a, -1, b, count, out);
    EXPECT_TRUE(count == 2 && out[0] == 1 && out[1] == 0x7FA00001 && out[2] == kept);
    join(3, a, 2, b, count, out);
    EXPECT_EQ(count, 5);
    EXPECT_EQ(Values(out, out + 6), (Values{1, 0x7FA00001, 3, -5, 6, kept}));
  }
}
