#include "sections/flat_bar.h"

#include <algorithm>
#include <cmath>

#include "numeric/functions.h"

namespace trelvin {

BendingFigures bending_of_bar(double b, double h) {
  BendingFigures f = {};
  f.A = b * h;
  f.Ix = b * h * h * h / 12;
  f.Iy = h * b * b * b / 12;
  f.I1 = f.Ix;
  f.I2 = f.Iy;
  f.rx = h / std::sqrt(12.0);
  f.ry = b / std::sqrt(12.0);
  f.Wx1 = f.Wx2 = b * h * h / 6;
  f.Wy1 = f.Wy2 = h * b * b / 6;
  f.Wpx = b * h * h / 4;
  f.Wpy = h * b * b / 4;
  return f;
}

namespace {

// Sums over odd k, a being k*pi/2 times the ratio of the sides: tanh(a)/k^5 and 1/(k^2*cosh(a)).
struct SaintVenant {
  double twist, stress;
};

SaintVenant saint_venant(double ratio) {
  constexpr double quarter_turn = full_turn / 4;
  constexpr double all_twist = 1.0045237627951387;  // the sum of 1/k^5, 31/32 of zeta(5)
  constexpr double last_argument = 40;              // terms beyond are below the sums' last bits
  // With q = exp(-a), tanh(a) is 1 - 2q^2/(1 + q^2) and 1/cosh(a) is 2q/(1 + q^2).
  const double first = quarter_turn * ratio > last_argument ? 0 : decay(quarter_turn * ratio);
  SaintVenant sums = {all_twist, 0};
  double q = first;
  for (int k = 1; k * quarter_turn * ratio <= last_argument; k += 2) {
    const double k2 = static_cast<double>(k) * k;
    const double term = 2 * q / (1 + q * q);
    sums.twist -= term * q / (k2 * k2 * k);
    sums.stress += term / k2;
    q *= first * first;
  }
  return sums;
}

}  // namespace

TorsionFigures torsion_of_bar(double b, double h) {
  constexpr double half_turn = full_turn / 2;
  constexpr double pi2 = half_turn * half_turn;
  const double length = std::max(b, h);
  const double t = std::min(b, h);
  const auto [twist, stress] = saint_venant(length / t);
  TorsionFigures f = {};
  f.It = length * t * t * t / 3 * (1 - 192 / (pi2 * pi2 * half_turn) * (t / length) * twist);
  f.Wt = f.It / (t * (1 - 8 / pi2 * stress));
  f.Iw = b * h * (b * h) * (b * h) / 144;
  f.r0 = std::sqrt((b * b + h * h) / 12);
  return f;
}

}  // namespace trelvin
