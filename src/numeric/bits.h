// Numbers as the bits that hold them.
#pragma once

#include <cstdint>
#include <cstring>

#include "numeric/real.h"

namespace trelvin {

inline std::uint32_t bits_of(Real value) {
  std::uint32_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

inline std::uint64_t bits_of(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

inline double double_of(std::uint64_t bits) {
  double value = 0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

constexpr std::uint32_t magnitude_bits = 0x7FFFFFFF;  // all but the sign

// Added to a double of magnitude below 2^31, it rounds the sum to an integer, which then stands in
// the lowest bits.
constexpr double rounding_shift = 0x1.8p52;

}  // namespace trelvin
