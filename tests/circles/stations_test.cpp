#include "support.h"
#include "trelvin/circles.h"

using namespace trelvin_test;

TEST(Stations, OnBothSidesOfTheChord) {
  // Circle about (1, 2) with the radius 5; chords level, oblique and upright.
  expect_near(outputs(trvcer8, 1, 2, -3, -1, 5, -1, 1, 1), {-2, 6, 1}, 1e-6);
  expect_near(outputs(trvcer8, 1, 2, -3, -1, 5, -1, 0, 1), {-2, -2, 1}, 1e-6);
  expect_near(outputs(trvcer8, 1, 2, -4, 2, 4, 6, 9, std::sqrt(5)), {-3, 5, 1}, 1e-6);
  expect_near(outputs(trvcer8, 1, 2, -4, 2, 4, 6, -1, std::sqrt(5)), {1, -3, 1}, 1e-6);
  expect_near(outputs(trvcer8, 1, 2, 5, -1, 5, 5, -1, 3), {6, 2, 1}, 1e-6);
  expect_near(outputs(trvcer6, 1, 2, -3, -1, 5, -1, 1, 1.75), {4, 6, 1}, 1e-6);
  expect_near(outputs(trvcer6, 1, 2, -3, -1, 5, -1, 0, 1.75), {-2, -2, 1}, 1e-6);
  expect_near(outputs(trvcer9, 1, 2, -3, -1, 5, -1, 1, 2.5, 3), {-2, 6, 1, 7, 1}, 1e-6);
  expect_near(outputs(trvcer9, 1, 2, -3, -1, 5, -1, 0, 2.5, 3), {-2, -2, 1, -3, 1}, 1e-6);
}

TEST(Stations, RefusedCloserThanAThousandth) {
  const auto above = [](double xb, double d) {
    return outputs(trvcer8, 1, 2, -3, -1, xb, -1, 1, d);
  };
  const auto radius = [](double r) {
    return outputs(trvcer8, 0, 0, r, 0, -1.7 * r, 0, 1, 1.5 * r);
  };
  const auto ray = [](double d) { return outputs(trvcer6, 1, 2, -4, 2, 6.0009, 2, 1, d); };
  for (const Values &refused :
       {above(5, 0.001), above(5, 7.9991), above(5.0015, 1), radius(0.001), ray(9.9992)}) {
    EXPECT_EQ(refused, (Values{kept, kept, 0}));
  }
  for (const Values &done :
       {above(5, 0.0011), above(5, 7.9989), above(5.001, 1), radius(0.0013), ray(9.9989)}) {
    EXPECT_EQ(done.back(), 1);
  }
  for (const double d : {6.5, 1.5})
    EXPECT_EQ(outputs(trvcer9, 1, 2, -3, -1, 5, -1, 1, d, 2.9995),
              (Values{kept, kept, kept, kept, 0}));
  EXPECT_EQ(outputs(trvcer9, 1, 2, -3, -1, 5, -1, 1, 4, 0.001),
            (Values{kept, kept, kept, kept, 0}));
}

TEST(Stations, LineThatMissesTheCircleLeavesBothPointsOfTheCallBefore) {
  const auto far = [](int side) {  // so far that the perpendicular misses by rounding
    return outputs(trvcer8, 4e5, 1e5, 399995, 1e5, 400005, 1e5, side, 1.25);
  };
  outputs(trvcer8, 1, 2, -3, -1, 5, -1, 1, 1);
  EXPECT_EQ(far(1), (Values{-2, -2, 1}));
  EXPECT_EQ(far(-1), (Values{-2, 6, 1}));
}

TEST(Stations, SmallCircleLeavesTheSecondPointOfTheCallBefore) {
  // Every line through it touches it, as its discriminant is within the tolerance.
  const double x = 0.25, y = 0.5;
  const auto point = [&](auto routine) {
    return outputs(routine, x, y, x - 0.0015, y, x + 0.0015, y, 0, 0.0014);
  };
  const auto strip = [&] {
    return outputs(trvcer9, x, y, x - 0.0016, y, x + 0.0016, y, 0, 0.0016, 0.00105);
  };
  EXPECT_EQ(point(trvcer8), (Values{0, 0, 1}));
  outputs(trvcer8, 1, 2, -3, -1, 5, -1, 0, 1);
  outputs(trvcer6, 1, 2, 5, -1, 5, 5, 1, 3);
  outputs(trvcer9, 1, 2, -3, -1, 5, -1, 0, 2.5, 3);
  expect_near(point(trvcer8), {-2, -2, 1}, 1e-6);
  expect_near(point(trvcer6), {-4, 2, 1}, 1e-6);
  expect_near(strip(), {1, -3, 1, -3, 1}, 1e-6);  // both edges share the points
}
