#include "support.h"
#include "trelvin/sections.h"

using namespace trelvin_test;

// The formulas themselves are tested against the plates of channels, in thin_walled_test.cpp.
TEST(Channels, LipsCountAboveTheTolerance) {
  for (const auto routine : {trvshc_c, trvwar_c}) {
    const double plain = outputs(routine, 51, 101, 0, 1)[0];
    for (const float C : {tolerance, -30.0F}) EXPECT_EQ(outputs(routine, 51, 101, C, 1)[0], plain);
    // Such a lip ends half a wall short of the flange's centre line.
    EXPECT_LT(outputs(routine, 51, 101, beyond, 1)[0], 0.996 * plain);
  }
}
