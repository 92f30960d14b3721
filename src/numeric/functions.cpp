#include "numeric/functions.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace trelvin {
namespace {

// 2/pi, 32 bits a word after the binary point; the leading word is the integral part.
constexpr std::array<std::uint32_t, 9> two_over_pi = {0x00000000, 0xA2F9836E, 0x4E441529,
                                                      0xFC2757D1, 0xF534DDC0, 0xDB629599,
                                                      0x3C439041, 0xFE5163AB, 0xDEBBC561};

// 32 bits of 2/pi, from bit `first` on, counted from the start of the table.
std::uint32_t bits_of_two_over_pi(int first) {
  const auto word = static_cast<std::size_t>(first / 32);
  const int shift = first % 32;
  const std::uint64_t pair = (std::uint64_t{two_over_pi[word]} << 32) | two_over_pi[word + 1];
  return static_cast<std::uint32_t>(pair >> (32 - shift));
}

struct ReducedAngle {
  unsigned quadrant;  // nearest multiple of a quarter turn, modulo 4
  double rest;        // what remains, in radians, at most an eighth of a turn either way
};

// With magnitude = m * 2^e, the number of quarter turns is m * 2^e * 2/pi. The bits of 2/pi that
// give whole turns are skipped; the 128 after them leave more than 53 significant ones in the rest.
ReducedAngle reduce(double magnitude) {
  int exponent = 0;
  const double fraction = std::frexp(magnitude, &exponent);
  const auto m = static_cast<std::uint32_t>(std::ldexp(fraction, 24));
  const int e = exponent - 24;
  const int first = e + 30;

  std::uint64_t high = 0;
  std::uint64_t low = 0;
  std::uint64_t carry = 0;
  for (int word = 3; word >= 0; --word) {
    const std::uint64_t product = std::uint64_t{m} * bits_of_two_over_pi(first + 32 * word) + carry;
    carry = product >> 32;
    low = (low >> 32) | (high << 32);
    high = (high >> 32) | (product << 32);
  }

  // Two bits of quarter turns and 126 of fraction; the fraction is taken as signed.
  const std::uint64_t quadrant = (high + (std::uint64_t{1} << 61)) >> 62;
  const auto signed_high = static_cast<std::int64_t>(high - (quadrant << 62));
  const double turns = std::ldexp(static_cast<double>(signed_high), -62) +
                       std::ldexp(static_cast<double>(low), -126);
  return {static_cast<unsigned>(quadrant & 3U), turns * 1.5707963267948966};
}

}  // namespace

WideSineCosine sine_cosine_of_large(Real angle) {
  const ReducedAngle reduced = reduce(std::fabs(static_cast<double>(angle)));
  double s = std::sin(reduced.rest);
  double c = std::cos(reduced.rest);
  if (reduced.quadrant == 1) {
    const double turned = c;
    c = -s;
    s = turned;
  } else if (reduced.quadrant == 2) {
    s = -s;
    c = -c;
  } else if (reduced.quadrant == 3) {
    const double turned = -c;
    c = s;
    s = turned;
  }
  if (angle < 0) s = -s;
  return {s, c};
}

}  // namespace trelvin
