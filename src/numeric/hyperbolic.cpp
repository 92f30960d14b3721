// Hyperbolic cosine and tangent.
#include <cstdint>
#include <limits>

#include "numeric/bits.h"
#include "numeric/functions.h"

namespace trelvin {
namespace {

// An exponential as 4 * quarter * (1 + beyond), the quarter a power of two; so it does not overflow
// below the hyperbolic cosine.
struct Exponential {
  double quarter;
  double beyond;
};

// For exponents from 0 to 711.
Exponential exponential(double exponent) {
  const double shifted = exponent * 0x1.71547652b82fep+0 + rounding_shift;
  const double doublings = shifted - rounding_shift;
  const double r = (exponent - doublings * 0x1.62e42fefa3p-1) - doublings * 0x1.3de6af278ece6p-42;
  constexpr double coefficients[] = {0x1.1f8b4c1725b48p-29,
                                     0x1.af4dea2b1bc57p-26,
                                     0x1.27e4cccdb79e9p-22,
                                     0x1.71de02313782fp-19,
                                     0x1.a01a01acfb1c1p-16,
                                     0x1.a01a01abe8204p-13,
                                     0x1.6c16c16c151fap-10,
                                     0x1.11111111100dbp-7,
                                     0x1.5555555555558p-5,
                                     0x1.5555555555557p-3,
                                     0x1p-1};
  double sum = 0;
  for (const double coefficient : coefficients) sum = sum * r + coefficient;
  const std::uint64_t biased = bits_of(shifted) + (1023 - 2);
  return {double_of(biased << 52), r + r * r * sum};
}

}  // namespace

double hyperbolic_cosine(double value) {
  constexpr double largest = 0x1.633ce8fb9f87dp+9;
  const double magnitude = magnitude_of(value);
  if (magnitude > largest) return std::numeric_limits<double>::infinity();
  const Exponential e = exponential(magnitude);
  const double quarter = e.quarter + e.quarter * e.beyond;
  return 2 * quarter + 0.125 / quarter;
}

double hyperbolic_tangent(double value) {
  const double magnitude = magnitude_of(value);
  if (magnitude > 22) return with_sign_of(value, 1.0);  // to the last bit
  const Exponential e = exponential(2 * magnitude);
  const double power = 4 * e.quarter;
  const double grown_less_one = (power - 1) + power * e.beyond;
  if (grown_less_one > 2) return with_sign_of(value, 1 - 2 / (grown_less_one + 2));
  return with_sign_of(value, grown_less_one / (grown_less_one + 2));
}

}  // namespace trelvin
