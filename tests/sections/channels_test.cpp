#include "support.h"
#include "trelvin/sections.h"

using namespace trelvin_test;

namespace {

// Distance of the shear centre and warping constant, integrated over the centre line from lip to
// lip. All functions on it are linear from corner to corner.
std::pair<double, double> integrate(double b, double h, double c, double t) {
  const double x[] = {b, b, 0, 0, b, b}, y[] = {c - h / 2, -h / 2, -h / 2, h / 2, h / 2, h / 2 - c};
  const double one[] = {1, 1, 1, 1, 1, 1};
  const auto integral = [&](const auto &f, const auto &g) {
    double sum = 0;
    for (int i = 0, j = 1; j < 6; i = j++)
      sum += t * std::hypot(x[j] - x[i], y[j] - y[i]) *
             (2 * f[i] * g[i] + f[i] * g[j] + f[j] * g[i] + 2 * f[j] * g[j]) / 6;
    return sum;
  };
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
  const double sections[][4] = {{51, 101, 0, 1},    {120, 60, 0, 4},   {65, 203, 16, 2},
                                {74, 200, 20.8, 2}, {50, 50, 24, 1.5}, {150, 300, 60, 4}};
  for (const auto &[B, H, C, t] : sections) {
    const auto [e0, iw] = integrate(B - t, H - t, C > 0 ? C - t / 2 : 0, t);
    expect_near(outputs(trvshc_c, B, H, C, t), {e0}, 1e-6);
    expect_near(outputs(trvwar_c, B, H, C, t), {iw}, 1e-5);
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
