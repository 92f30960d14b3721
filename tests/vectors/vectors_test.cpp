#include "support.h"
#include "trelvin/frames.h"
#include "trelvin/plane.h"

using namespace trelvin_test;

TEST(Vectors, DistanceProductsAndDeterminants) {
  EXPECT_EQ(outputs(trvpds, 1, 2, 3, 3, 5, 9), Values{7});
  // (2, -3, 5) and (4, -7, 6), neither starting from the origin.
  EXPECT_EQ(outputs(trvpri, 1, 2, 4, 3, -1, 9, -1, 0, 2, 3, -7, 8), Values{59});
  float c[] = {0, 0, 0, kept};
  trvpre(1, 2, 4, 3, -1, 9, -1, 0, 2, 3, -7, 8, c);
  EXPECT_EQ(Values(c, c + 4), (Values{17, 8, -2, kept}));
  EXPECT_EQ(outputs(trvdtr2, 1, 2, 3, 5), Values{-1});
  // By Sarrus: 24 - 10 + 3 - 45 - 4 + 4.
  EXPECT_EQ(outputs(trvdtr3, 2, -1, 3, 1, 3, 2, 5, 1, 4), Values{-28});
}

TEST(Vectors, CoincidenceHoldsAtTheToleranceItselfAndNullAtZeroOnly) {
  const float t = tolerance;
  EXPECT_EQ(outputs(trvcnt, 0, 0, 0, t, -t, t), (Values{t, -t, t, TRV_COINCIDENCE_COINCIDENT}));
  EXPECT_EQ(outputs(trvcnt, 1, 2, 3, 1, 2, 5), (Values{0, 0, 2, TRV_COINCIDENCE_DISTINCT}));
  EXPECT_EQ(outputs(trvcnt1, 0, -0.0, 0), Values{TRVCNT1_ZERO});
  for (int i = 0; i < 3; ++i) {
    for (const float component : {beyond, -beyond, 1e-30F, not_a_number}) {
      float v[] = {0, 0, 0};
      v[i] = component;
      EXPECT_EQ(outputs(trvcnt, 0, 0, 0, v[0], v[1], v[2])[3], component == 1e-30F ? 1 : 0);
      EXPECT_EQ(outputs(trvcnt1, v[0], v[1], v[2]), Values{TRVCNT1_NONZERO});
    }
  }
}

TEST(Vectors, ComponentsThatDifferByMoreThanTheTolerance) {
  const double codes[] = {// by the sum of 1, 2 and 4 for those that do
                          TRV_COMPONENTS_NONE,         TRV_COMPONENTS_FIRST,
                          TRV_COMPONENTS_SECOND,       TRV_COMPONENTS_FIRST_SECOND,
                          TRV_COMPONENTS_THIRD,        TRV_COMPONENTS_FIRST_THIRD,
                          TRV_COMPONENTS_SECOND_THIRD, TRV_COMPONENTS_ALL};
  for (const int which : {0, 1, 2, 3, 4, 5, 6, 7}) {
    const double x = which & 1, y = which & 2, z = which & 4;
    EXPECT_EQ(outputs(trvpsn, 10, 20, 30, 10 + x, 20 - y, 30 + z), (Values{codes[which]})) << which;
  }
  EXPECT_EQ(outputs(trvpsn, 0, 0, 0, -tolerance, beyond, tolerance), (Values{3}));
  EXPECT_EQ(outputs(trvpsn, 0, beyond, 0, 0, 0, -beyond), (Values{6}));
}

TEST(Vectors, AlongTheLineOfTwoPoints) {
  EXPECT_EQ(outputs(trv123, 0, 0, 0, tolerance, tolerance, tolerance, 0.5),
            (Values{kept, kept, kept, 1}));
  EXPECT_EQ(outputs(trv123, 1, 2, 3, 3, -2, 9, -1.5), (Values{-2, 8, -6, 0}));
  EXPECT_EQ(outputs(trvmed, 1, 2, 3, 3, -4, 8), (Values{2, -1, 5.5}));
}

TEST(Vectors, QuotientsArePairedCrosswise) {
  EXPECT_EQ(outputs(trvgrc, -2, 4, 6), (Values{-3, -2}));
  EXPECT_EQ(outputs(trvgrc, -beyond, 0, -beyond), (Values{1, 0}));
  for (const float vanishing : {tolerance, -tolerance, not_a_number})
    EXPECT_EQ(outputs(trvgrc, vanishing, 4, 6), (Values{0, 0}));
}

TEST(Vectors, SignOfAValue) {
  EXPECT_EQ(outputs(trvvin, -1, 1e-40F, not_a_number, -1, -1), Values{TRVVIN_POSITIVE});
  for (const float v : {0.0F, -1.0F, not_a_number})
    EXPECT_EQ(outputs(trvvin, 1, v, 1, 1, 1), Values{TRVVIN_NOT_POSITIVE});
}

TEST(Vectors, NewOriginMayBeOneOfThePoints) {
  float x[] = {1, 2, 4}, y[] = {5, 7, 9}, z[] = {3, 4, 8};
  trvtra(x, y, 3, x[0], y[1]);
  trv3tra(x, y, z, 2, x[1], y[0], z[0]);
  EXPECT_EQ(Values(x, x + 3), (Values{-1, 0, 3}));
  EXPECT_EQ(Values(y, y + 3), (Values{0, 2, 2}));
  EXPECT_EQ(Values(z, z + 3), (Values{0, 1, 8}));
}
