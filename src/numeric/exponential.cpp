#include <cstdint>

#include "numeric/bits.h"
#include "numeric/functions.h"

namespace trelvin {

// exp(-v) is 2^-n * exp(r): v = n*log(2) - r, the rest r at most half of log(2).
double decay(double value) {
  const double shifted = value * 0x1.71547652b82fep+0 + rounding_shift;
  const double halvings = shifted - rounding_shift;
  const double r = halvings * 0x1.3de6af278ece6p-42 - (value - halvings * 0x1.62e42fefa3p-1);
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
  const double power = double_of((1023 - (bits_of(shifted) & 0x3FF)) << 52);
  return power + power * (r + r * r * sum);
}

}  // namespace trelvin
