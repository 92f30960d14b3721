#include <cmath>

#include "support.h"
#include "trelvin/plane.h"

using namespace trelvin_test;

TEST(Points, DistanceInSpace) {
  float d = 0;
  trvpds(1, 2, 3, 3, 5, 9, d);
  EXPECT_EQ(d, 7);
}

TEST(Points, CoincidenceHoldsAtTheToleranceItself) {
  float dx = 0;
  float dy = 0;
  float dz = 0;
  std::int32_t status = unwritten_int;
  trvcnt(0, 0, 0, tolerance, -tolerance, tolerance, dx, dy, dz, status);
  EXPECT_EQ(status, 1);
  EXPECT_EQ(dy, -tolerance);  // differences are written all the same
  trvcnt(0, 0, 0, 0, 0, std::nextafter(tolerance, 1.0F), dx, dy, dz, status);
  EXPECT_EQ(status, 0);
}
