#include "support.h"
#include "trelvin/sections.h"

using namespace trelvin_test;

namespace {

// Width of a plate of thickness 1 and the slenderness 1, in a material whose epsilon is 1.
double slender(double ks) { return 28.4 * std::sqrt(ks); }

// Part that is effective of an edge fold whose slenderness is 1 with the buckling factor ks: 0.78 if
// that is its factor. fy is 400 in units of which the reference strength has 625.
double effective_part(float c, float bp, double ks) {
  return outputs(trvefr, c, bp, c / slender(ks) / (25.0 / 20), 20, 25)[0] / c;
}

}  // namespace

TEST(Buckling, WorkedExampleOfALippedChannelInBending) {
  // Access Steel SX022a-EN-EU: fy = 350 N/mm2, t = 1.96 mm; its results are rounded to 0.1 mm.
  const double t = 1.96, r1 = std::sqrt(350), r2 = std::sqrt(235), hp = 198, hc = 101.6;
  expect_near(outputs(trvro2, 72, t, r1, r2, 1, 4), {0.914}, 5e-4);
  expect_near(outputs(trvef2, 72, 72, t, r1, r2, 350, 350), {32.9, 32.9}, 1e-3);
  expect_near(outputs(trvef2, hp, hc, t, r1, r2, 350, 350 * (hc - hp) / hc), {39, 58.5}, 1e-3);
  EXPECT_EQ(outputs(trvefr, 19.8F, 72, t, r1, r2), Values{19.8F});
}

TEST(Buckling, ReductionFactor) {
  const double cases[][3] = {{1, 1, 0.78}, {2, 0, 0.45875},         {2, -3, 0.5},   {0.673, 1, 1},
                             {0.1, 1, 1},  {0.6735, 1, 0.99977509}, {0.1, 2, -17.5}};
  for (const auto &[slenderness, psi, rho] : cases)
    expect_near(outputs(trvro2, slenderness * 28.4 * 1.5, 3, 4, 2, psi, 1), {rho}, 1e-6);
  EXPECT_EQ(outputs(trvro2, 10, 1, 1, 1, 1, 0), Values{0});
}

TEST(Buckling, EdgeFoldRetainsItsBucklingFactor) {
  EXPECT_EQ(effective_part(70, 100, 0.5), 0);  // after loading
  EXPECT_NEAR(effective_part(50, 100, 0.5075), 0.78, 1e-6);
  EXPECT_NEAR(effective_part(50, 70, 0.5075), 0.78, 1e-6);
}

TEST(Buckling, EdgeFoldsAtTheLimitsOfTheRule) {
  EXPECT_NEAR(effective_part(0.6F, 1, 0.5 + 0.0625 / 3), 0.78, 1e-6);
  EXPECT_NEAR(effective_part(35, 100, 0.5), 0.78, 1e-6);
  EXPECT_NEAR(effective_part(std::nextafter(0.6F, 1.0F), 1, 0.5), 0.78, 1e-6);
}

TEST(Buckling, SharesOfTheEffectiveWidth) {
  const double t = tolerance, past = std::nextafter(-100.0F, -101.0F);
  // Both stresses, the factor of EN 1993-1-5, table 4.1, and both widths.
  const double cases[][5] = {{100, 100, 4, 39, 39},
                             {0.5, 0.5, 4, 39, 39},
                             {100, 0, 7.81, 33.4, 50.1},
                             {beyond, t, 4, 39, 39},
                             {not_a_number, t, 7.81, 33.4, 50.1},
                             {100, -50, 13.4, 34.5, 51.75},
                             {2 * t, -t, 13.4, 34.5, 51.75},
                             {100, -100, 23.9, 35.6, 53.4},
                             {100, past, 23.9, 35.6, 53.4},
                             {100, -400, 1, 50, 50},
                             {4e-6, -1.3e-5, 1, 50, 50},
                             {2 * t, -beyond, 23.9, 35.6, 53.4},
                             {100, -200, 53.82, 37.8, 56.7},
                             {100, 50, 8.2 / 1.55, 35.888889, 44.861111}};
  for (const auto &[s1, s2, ks, be1, be2] : cases)
    expect_near(outputs(trvef2, slender(ks), 100, 1, 1, 1, s1, s2), {be1, be2}, 2e-6);
  const double nothing[][2] = {{t, -t},  {-t, t}, {0, beyond}, {0, -50},
                               {-1, -1}, {-1, 1}, {1, 2},      {100, -300}};
  for (const auto &[s1, s2] : nothing)
    EXPECT_EQ(outputs(trvef2, 200, 100, 1, 1, 1, s1, s2), (Values{kept, kept}));
}
