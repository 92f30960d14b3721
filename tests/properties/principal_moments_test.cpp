#include "support.h"
#include "trelvin/properties.h"

using namespace trelvin_test;

TEST(PrincipalMoments, OfKnownCircles) {
  // Mean 3.5, half the difference 1.5: a circle of radius 2.5.
  const double alpha = std::atan2(4, 3) / 2;
  expect_near(outputs(trvinp, 5, 2, 2), {6, 1, -alpha}, 1e-6);
  expect_near(outputs(trvinp, 2, 5, 2), {1, 6, alpha}, 1e-6);
  expect_near(outputs(trvinp, 2, 5, -2), {1, 6, -alpha}, 1e-6);
  expect_near(outputs(trvinp, 1, 1, 0.5), {0.5, 1.5, pi / 4}, 1e-7);
  expect_near(outputs(trvinp, 0.75, -0.75, 1), {1.25, -1.25, -alpha}, 1e-6);  // infinite ratio
  EXPECT_EQ(outputs(trvinp, 3, -3, 0), (Values{3, -3, 0}));                   // no ratio
}
