#include "support.h"
#include "trelvin/sections.h"

using namespace trelvin_test;

namespace {

struct Sectorial {
  double e0, iw;
};

// Integrates over the centre line, from lip to lip; all functions on it are piecewise linear.
Sectorial integrate(double b, double h, double c, double t) {
  const double x[] = {b, b, 0, 0, b, b}, y[] = {c - h / 2, -h / 2, -h / 2, h / 2, h / 2, h / 2 - c};
  const auto integral = [&](const auto &f, const auto &g) {
    double sum = 0;
    for (int i = 0; i < 5; ++i) {
      const double length = std::hypot(x[i + 1] - x[i], y[i + 1] - y[i]);
      sum += t * length *
             (2 * f[i] * g[i] + f[i] * g[i + 1] + f[i + 1] * g[i] + 2 * f[i + 1] * g[i + 1]) / 6;
    }
    return sum;
  };
  const double one[] = {1, 1, 1, 1, 1, 1};
  double omega[6] = {};
  for (int i = 0; i < 5; ++i) omega[i + 1] = omega[i] + x[i] * y[i + 1] - x[i + 1] * y[i];
  // The pole for which bending about the axis of symmetry does not warp the section.
  const double area = integral(one, one), pole = integral(omega, y) / integral(y, y);
  for (int i = 0; i < 6; ++i) omega[i] -= pole * y[i];
  const double mean = integral(omega, one) / area;
  for (double &value : omega) value -= mean;
  return {std::fabs(integral(x, one) / area - pole), integral(omega, omega)};
}

}  // namespace

TEST(Channels, AgreeWithTheSectorialIntegralsOfTheCentreLine) {
  const double sections[][4] = {{51, 101, 0, 1},   {80, 200, 0, 6},    {120, 60, 0, 4},
                                {65, 203, 16, 2},  {74, 200, 20.8, 2}, {120, 102, 26, 2},
                                {50, 50, 24, 1.5}, {150, 300, 60, 4},  {40, 250, 10, 3}};
  for (const auto &[B, H, C, t] : sections) {
    SCOPED_TRACE(B);
    const Sectorial exact = integrate(B - t, H - t, C > 0 ? C - t / 2 : 0, t);
    expect_near(outputs(trvshc_c, B, H, C, t), {exact.e0}, 1e-6);
    expect_near(outputs(trvwar_c, B, H, C, t), {exact.iw}, 1e-5);
  }
}

TEST(Channels, LipsCountAboveTheTolerance) {
  const Values e0 = outputs(trvshc_c, 51, 101, 0, 1), iw = outputs(trvwar_c, 51, 101, 0, 1);
  for (const float C : {tolerance, -30.0F, not_a_number}) {
    EXPECT_EQ(outputs(trvshc_c, 51, 101, C, 1), e0);
    EXPECT_EQ(outputs(trvwar_c, 51, 101, C, 1), iw);
  }
  // Such a lip ends half a wall short of the flange's centre line.
  EXPECT_LT(outputs(trvshc_c, 51, 101, beyond, 1)[0], e0[0] - 0.1);
  EXPECT_LT(outputs(trvwar_c, 51, 101, beyond, 1)[0], iw[0] * 0.99);
}
