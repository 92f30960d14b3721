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

inline Real real_of(std::uint32_t bits) {
  Real value = 0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

inline double double_of(std::uint64_t bits) {
  double value = 0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

constexpr std::uint32_t magnitude_mask = 0x7FFFFFFF;  // all but the sign
constexpr std::uint32_t sign_mask = 0x80000000;
constexpr std::uint32_t infinity_bits = 0x7F800000;

// A magnitude of normal size is (fraction | leading bit) * 2^(exponent field - 150).
constexpr int fraction_size = 23;
constexpr std::uint32_t leading_bit = 1U << fraction_size;
constexpr std::uint32_t fraction_mask = leading_bit - 1;

inline std::uint32_t magnitude_bits(Real value) { return bits_of(value) & magnitude_mask; }

// The compiler's own absolute value of a double goes through the x87 on 32-bit platforms.
inline double magnitude_of(double value) {
  const double opposite = 0 - value;
  return value > opposite ? value : opposite;
}

inline bool has_sign(double value) { return bits_of(value) >> 63 != 0; }

// For a magnitude, whose sign is clear.
inline Real with_sign_of(Real signed_value, Real magnitude) {
  return real_of(bits_of(magnitude) | (bits_of(signed_value) & sign_mask));
}

inline double with_sign_of(double signed_value, double magnitude) {
  return magnitude * (has_sign(signed_value) ? -1.0 : 1.0);
}

// The functions with a value of x + O(x^3) round to x below this magnitude, 2^-12; cosines round
// to 1.
constexpr std::uint32_t smallest_bending_bits = 0x39800000;

// Added to a double of magnitude below 2^31, it rounds the sum to an integer, which then stands in
// the lowest bits.
constexpr double rounding_shift = 0x1.8p52;

}  // namespace trelvin
