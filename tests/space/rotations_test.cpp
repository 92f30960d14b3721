#include "trelvin/rotations.h"
#include "support.h"

using namespace trelvin_test;
using I = std::int32_t;

TEST(Rotations, TurnTheFirstOfTheirPairTowardsTheSecondAndBackWithModeOne) {
  void (*const turns[])(I mode, float *p, float *q, I n, float angle) = {
      [](I mode, float *x, float *y, I n, float angle) { trvrot(mode, x, y, n, angle); },
      [](I mode, float *y, float *z, I n, float angle) { trvrotx(mode, nullptr, y, z, n, angle); },
      [](I mode, float *x, float *z, I n, float angle) { trvroty(mode, x, nullptr, z, n, angle); },
      [](I mode, float *x, float *y, I n, float angle) { trvrotz(mode, x, y, nullptr, n, angle); }};
  const double root = std::sqrt(3.0);
  for (const auto turn : turns) {
    for (const I mode : {0, 2, -1}) {
      float p[] = {2, 0, kept}, q[] = {0, 2, kept};
      for (const I n : {0, -1, 2}) turn(mode, p, q, n, static_cast<float>(pi / 6));
      expect_near(Values(p, p + 3), {root, -1, kept}, 2e-7);
      expect_near(Values(q, q + 3), {1, root, kept}, 2e-7);
      turn(1, p, q, 2, static_cast<float>(pi / 6));
      expect_near(Values(p, p + 2), {2, 0}, 2e-7);
      expect_near(Values(q, q + 2), {0, 2}, 2e-7);
    }
  }
}

// Long lists may be turned many points at once.
TEST(Rotations, LongListsAreTurnedAsPointByPoint) {
  const float angle = 0.7F;
  for (const I n : {1, 63, 64, 65, 71, 200}) {
    for (const I apart : {300, 7, 1, 0}) {  // of x and y, which may overlap
      std::vector<float> at_once(600), one_by_one(600);
      for (std::size_t i = 0; i < 600; ++i)
        at_once[i] = one_by_one[i] = 1.1F * static_cast<float>(i);
      trvrot(2, at_once.data(), at_once.data() + apart, n, angle);
      for (I i = 0; i < n; ++i) {
        trvrot(2, one_by_one.data() + i, one_by_one.data() + apart + i, 1, angle);
      }
      EXPECT_EQ(at_once, one_by_one) << n << ' ' << apart;
    }
  }
}
