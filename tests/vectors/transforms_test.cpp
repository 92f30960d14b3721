#include "support.h"
#include "trelvin/frames.h"
#include "trelvin/plane.h"

using namespace trelvin_test;

TEST(Transforms, NewOriginMayBeOneOfThePoints) {
  float x[] = {1, 2, 4}, y[] = {5, 7, 9}, z[] = {3, 4, 8};
  trvtra(x, y, 3, x[0], y[1]);
  trv3tra(x, y, z, 2, x[1], y[0], z[0]);
  EXPECT_EQ(Values(x, x + 3), (Values{-1, 0, 3}));
  EXPECT_EQ(Values(y, y + 3), (Values{0, 2, 2}));
  EXPECT_EQ(Values(z, z + 3), (Values{0, 1, 8}));
}
