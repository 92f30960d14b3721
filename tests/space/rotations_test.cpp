#include "support.h"
#include "trelvin/space.h"

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
      float p[] = {2, 0, unwritten}, q[] = {0, 2, unwritten};
      for (const I n : {0, -1, 2}) turn(mode, p, q, n, static_cast<float>(pi / 6));
      expect_near(Values(p, p + 3), {root, -1, unwritten}, 2e-7);
      expect_near(Values(q, q + 3), {1, root, unwritten}, 2e-7);
      turn(1, p, q, 2, static_cast<float>(pi / 6));
      expect_near(Values(p, p + 2), {2, 0}, 2e-7);
      expect_near(Values(q, q + 2), {0, 2}, 2e-7);
    }
  }
}

TEST(Rotations, LargeAnglesLoseNoDigit) {
  // Sine and cosine with 700 bits of pi, then rounded to single precision. The last angle is the
  // one of all that comes closest to a number of quarter turns.
  const float cases[][3] = {
      {0x1.fffffep+3F, -0x1.26cfe4p-2F, -0x1.ea5262p-1F}, {16, -0x1.26d020p-2F, -0x1.ea5258p-1F},
      {17.3F, -0x1.ffe270p-1F, 0x1.5bf6d2p-6F},           {1e10F, -0x1.f334c8p-2F, 0x1.bf098ap-1F},
      {-1e15F, -0x1.fd267ep-1F, 0x1.af8c60p-4F},          {1e20F, 0x1.502ad2p-1F, 0x1.822e46p-1F},
      {3.4e38F, -0x1.f3e2c6p-3F, 0x1.f08394p-1F},         {0x1.f37c8ap+95F, 1, -0x1.bbdd52p-30F}};
  for (const auto &[angle, sine, cosine] : cases) {
    float x = 1, y = 0;
    trvrot(0, &x, &y, 1, angle);
    EXPECT_TRUE(x == cosine && y == sine) << angle << ": " << x << ", " << y;
  }
  float x = 1, y = 0;
  trvrot(0, &x, &y, 1, infinity);
  EXPECT_TRUE(std::isnan(x) && std::isnan(y));
}
