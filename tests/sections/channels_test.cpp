#include <array>

#include "sections/thin_section.h"

using namespace trelvin_test;

TEST(Channels, AgreeWithTheirPlates) {
  for (const auto &[B, H, C, t] : {std::array{51.F, 101.F, 0.F, 1.F},
                                   {120.F, 60.F, 0.F, 4.F},
                                   {74.F, 200.F, 20.8F, 2.F},
                                   {50.F, 50.F, 24.F, 1.5F},
                                   {150.F, 300.F, 60.F, 4.F}}) {
    const ThinSection s(channel(B, H, C, t));
    expect_near({s.xs - s.xm, s.ym, s.Iw},
                {outputs(trvshc_c, B, H, C, t)[0], 0, outputs(trvwar_c, B, H, C, t)[0]}, 1e-5);
  }
}

TEST(Channels, LipsCountAboveTheTolerance) {
  for (const auto routine : {trvshc_c, trvwar_c}) {
    const double plain = outputs(routine, 51, 101, 0, 1)[0];
    for (const float C : {tolerance, -30.0F}) EXPECT_EQ(outputs(routine, 51, 101, C, 1)[0], plain);
    // Such a lip ends half a wall short of the flange's centre line.
    EXPECT_LT(outputs(routine, 51, 101, beyond, 1)[0], 0.996 * plain);
  }
}
