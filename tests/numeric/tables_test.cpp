#include "support.h"
#include "trelvin/plane.h"

using namespace trelvin_test;

TEST(Tables, InterpolatesAndExtrapolates) {
  EXPECT_EQ(outputs(trvint, 2, 4, 10, 20, 2.5), Values{12.5});
  EXPECT_EQ(outputs(trvint, 2, 4, 10, 20, 6), Values{30});
  EXPECT_EQ(outputs(trvint, 2, 2, 10, 20, 6), Values{infinity});
}

TEST(Tables, PositionInATable) {
  const float table[] = {0, 1, 2}, t = tolerance;
  // Interval by interval; then status and position where an equal entry goes first.
  const auto place = [&](std::int32_t n, float x) -> double {
    std::int32_t interval = kept, status = kept, i = kept;
    trvpos(n, table, x, interval);
    trvpos1(n, table, x, status, i);
    return 100 * interval + 10 * status + i;
  };
  EXPECT_EQ((Values{place(3, 0), place(3, 0.5F), place(3, 1), place(3, 1.5F), place(3, 2)}),
            (Values{101 + 10 * TRVPOS1_AT_ENTRY, 101 + 10 * TRVPOS1_BETWEEN, 212, 222, 13}));
  EXPECT_EQ((Values{place(3, t), place(3, beyond), place(3, -t), place(3, 0.999995F)}),
            (Values{111, 121, 11, 112}));
  EXPECT_EQ((Values{place(3, -beyond), place(3, 2.5F), place(3, not_a_number), place(1, 0.5F),
                    place(0, 0), place(-1, 0), place(1, 0)}),
            (Values{10 * TRVPOS1_NEITHER, 0, 0, 0, 0, 0, 11}));
}
