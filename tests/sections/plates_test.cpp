#include "support.h"
#include "trelvin/sections.h"

using namespace trelvin_test;

namespace {

constexpr float u = unwritten;

// Width of a plate of thickness 1 and the slenderness 1, in a material whose epsilon is 1.
double slender(double ks) { return 28.4 * std::sqrt(ks); }

}  // namespace

TEST(Plates, WorkedExampleOfALippedChannelInBending) {
  // Access Steel SX022a-EN-EU: fy = 350 N/mm2, t = 1.96 mm; its figures are rounded.
  const double t = 1.96, r1 = std::sqrt(350), r2 = std::sqrt(235), hp = 198, hc = 101.6;
  expect_near(outputs(trvro2, 72, t, r1, r2, 1, 4), {0.914}, 5e-4);
  const Values flange = outputs(trvef2, 72, 72, t, r1, r2, 350, 350);
  const Values web = outputs(trvef2, hp, hc, t, r1, r2, 350, 350 * (hc - hp) / hc);
  for (int i = 0; i < 2; ++i) {
    EXPECT_NEAR(flange[i], 32.9, 0.05);
    EXPECT_NEAR(web[i], i == 0 ? 39 : 58.5, 0.05);
  }
  EXPECT_EQ(outputs(trvefr, 19.8F, 72, t, r1, r2), Values{19.8F});
}

TEST(Plates, ReductionFactor) {
  const auto factor = [](double slenderness, double psi) {
    return outputs(trvro2, 3 * 28.4 * slenderness * 2 / 4, 3, 4, 2, psi, 1)[0];
  };
  EXPECT_NEAR(factor(1, 1), 0.78, 1e-6);
  EXPECT_NEAR(factor(2, 0), 0.45875, 1e-6);
  EXPECT_NEAR(factor(2, -3), 0.5, 1e-6);
  EXPECT_EQ(factor(0.673, 1), 1);
  EXPECT_LT(factor(0.6735, 1), 1);
  EXPECT_GT(factor(0.6735, 1), 0.9998);
  EXPECT_EQ(factor(0.1, 1), 1);
  EXPECT_NEAR(factor(0.1, 2), -17.5, 1e-4);  // such a ratio has no limit without reduction
  EXPECT_EQ(outputs(trvro2, 10, 1, 1, 1, 1, 0), Values{0});
}

TEST(Plates, EdgeFoldRetainsItsBucklingFactor) {
  const auto fold = [](double c, double bp, double ks) {
    return outputs(trvefr, c, bp, c / slender(ks), 1, 1)[0] / static_cast<float>(c);
  };
  EXPECT_EQ(fold(70, 100, 0.5), 0);
  EXPECT_NEAR(fold(50, 100, 0.5075), 0.78, 1e-6);
  for (const float bp : {70.0F, -0.0F}) EXPECT_NEAR(fold(50, bp, 0.5075), 0.78, 1e-6);
  EXPECT_NEAR(fold(0.6F, 1, 0.5 + 0.0625 / 3), 0.78, 1e-6);
  EXPECT_NEAR(fold(35, 100, 0.5), 0.78, 1e-6);
  EXPECT_NEAR(fold(std::nextafter(0.6F, 1.0F), 1, 0.5), 0.78, 1e-6);
}

TEST(Plates, SharesOfTheEffectiveWidth) {
  struct Case {
    double s1, s2, ks, be1, be2;
  };
  const float t = tolerance;
  // Of 100, by the factors of EN 1993-1-5, table 4.1.
  const Case cases[] = {{100, 100, 4, 39, 39},
                        {100, 0, 7.81, 33.4, 50.1},
                        {100, 50, 8.2 / 1.55, 35.888889, 44.861111},
                        {100, -50, 13.4, 34.5, 51.75},
                        {100, -100, 23.9, 35.6, 53.4},
                        {100, std::nextafter(-100.0F, -101.0F), 23.9, 35.6, 53.4},
                        {100, -200, 53.82, 37.8, 56.7},
                        {100, -400, 1, 50, 50},
                        {t / 4, -1, 1, 50, 50},
                        {beyond, t, 4, 39, 39},  // neither zero nor, at last, equal
                        {2 * t, -t, 13.4, 34.5, 51.75},
                        {2 * t, -beyond, 23.9, 35.6, 53.4},
                        {not_a_number, t, 7.81, 33.4, 50.1},
                        {t, t, 1, u, u},
                        {-t, t, 1, u, u},
                        {0, beyond, 1, u, u},
                        {-10, 10, 1, u, u},
                        {-10, -10, 1, u, u},
                        {5, 10, 1, u, u},
                        {100, not_a_number, 1, u, u},
                        {100, -300, 1, u, u}};
  for (const Case &c : cases) {
    SCOPED_TRACE(c.s2);
    expect_near(outputs(trvef2, slender(c.ks), 100, 1, 1, 1, c.s1, c.s2), {c.be1, c.be2}, 2e-6);
  }
}
