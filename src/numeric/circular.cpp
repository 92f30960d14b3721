// Sine, cosine and tangent.
//
// An angle is a whole number of parts, 64 to a turn, and a rest of half a part at most. The sine
// and cosine of the parts come from a table, those of the rest from short polynomials.
#include <array>
#include <cmath>
#include <cstdint>

#include "numeric/bits.h"
#include "numeric/functions.h"

namespace trelvin {
namespace {

constexpr std::uint32_t parts_of_turn = 64;

// Sines of 0 to 16 parts, a quarter of a turn.
constexpr std::array<double, 17> first_quarter = {0x0p+0,
                                                  0x1.917a6bc29b42cp-4,
                                                  0x1.8f8b83c69a60bp-3,
                                                  0x1.294062ed59f06p-2,
                                                  0x1.87de2a6aea963p-2,
                                                  0x1.e2b5d3806f63bp-2,
                                                  0x1.1c73b39ae68c8p-1,
                                                  0x1.44cf325091dd6p-1,
                                                  0x1.6a09e667f3bcdp-1,
                                                  0x1.8bc806b151741p-1,
                                                  0x1.a9b66290ea1a3p-1,
                                                  0x1.c38b2f180bdb1p-1,
                                                  0x1.d906bcf328d46p-1,
                                                  0x1.e9f4156c62ddap-1,
                                                  0x1.f6297cff75cb0p-1,
                                                  0x1.fd88da3d12526p-1,
                                                  0x1p+0};

constexpr double sine_of_parts(std::uint32_t parts) {
  if (parts <= 16) return first_quarter[parts];
  if (parts <= 32) return first_quarter[32 - parts];
  return 0 - sine_of_parts(parts - 32);
}

constexpr std::array<WideSineCosine, parts_of_turn> tabulate() {
  std::array<WideSineCosine, parts_of_turn> table{};
  for (std::uint32_t i = 0; i < parts_of_turn; ++i) {
    table[i] = {sine_of_parts(i), sine_of_parts((i + 16) % parts_of_turn)};
  }
  return table;
}

constexpr std::array<WideSineCosine, parts_of_turn> of_parts = tabulate();

struct ReducedAngle {
  std::uint32_t parts;  // modulo 64 they count
  double rest;          // in radians
};

// For magnitudes up to 16. A part is the sum of three numbers; the first two are so short that
// their multiples are exact, and so is what remains of the angle when it is close to the parts.
inline ReducedAngle reduce(double angle) {
  constexpr double parts_of_radian = 0x1.45f306dc9c883p+3;
  const double shifted = angle * parts_of_radian + rounding_shift;
  const double parts = shifted - rounding_shift;
  const double rest = ((angle - parts * 0x1.921fb54442cp-4) - parts * 0x1.18469898cc4p-48) -
                      parts * 0x1.1701b839a252p-92;
  return {static_cast<std::uint32_t>(bits_of(shifted)), rest};
}

// By the theorem of addition. A zero in the table keeps the relative precision of the rest.
inline WideSineCosine sine_cosine_of(const ReducedAngle &angle) {
  const double r = angle.rest;
  const double r2 = r * r;
  const double sine_rest = r + r * r2 *
                                   ((-0x1.5555555555456p-3 + r2 * 0x1.11111107455c8p-7) +
                                    r2 * r2 * -0x1.a013287e7ad8ap-13);
  const double cosine_rest_less_one =
      r2 * (-0.5 + r2 * ((0x1.55555555554a9p-5 + r2 * -0x1.6c16c161c7a86p-10) +
                         r2 * r2 * 0x1.a013dece3011fp-16));
  const WideSineCosine &table = of_parts[angle.parts % parts_of_turn];
  return {table.sine + (table.cosine * sine_rest + table.sine * cosine_rest_less_one),
          table.cosine + (table.cosine * cosine_rest_less_one - table.sine * sine_rest)};
}

// 2/pi, 32 bits a word after the binary point; the leading word is the integral part.
constexpr std::array<std::uint32_t, 9> two_over_pi = {0x00000000, 0xA2F9836E, 0x4E441529,
                                                      0xFC2757D1, 0xF534DDC0, 0xDB629599,
                                                      0x3C439041, 0xFE5163AB, 0xDEBBC561};

// 32 bits of 2/pi, from bit `first` on, counted from the start of the table.
std::uint32_t bits_of_two_over_pi(std::uint32_t first) {
  const std::uint32_t word = first / 32;
  const std::uint64_t pair = (std::uint64_t{two_over_pi[word]} << 32) | two_over_pi[word + 1];
  return static_cast<std::uint32_t>(pair >> (32 - first % 32));
}

// The reduction of Payne and Hanek, for magnitudes from 16 on. With magnitude = m * 2^e, the number
// of quarter turns is m * 2^e * 2/pi. The bits of 2/pi that give whole turns are skipped; the 128
// after them leave more than 53 significant ones in the rest, however close to the parts.
ReducedAngle reduce_large(Real magnitude) {
  const std::uint32_t bits = bits_of(magnitude);
  const std::uint32_t m = (bits & fraction_mask) | leading_bit;
  const std::uint32_t first = (bits >> fraction_size) - 120;  // e + 30

  std::array<std::uint32_t, 4> turns{};  // 2 bits of quarter turns, then 126 of fraction
  std::uint64_t carry = 0;
  for (std::uint32_t word = 4; word-- > 0;) {
    const std::uint64_t product = std::uint64_t{m} * bits_of_two_over_pi(first + 32 * word) + carry;
    turns[word] = static_cast<std::uint32_t>(product);
    carry = product >> 32;
  }

  // The first 6 bits are the parts; the fraction of a part is taken as signed.
  const std::uint32_t parts = (turns[0] + 0x2000000) >> 26;
  const auto leading = static_cast<std::int32_t>(turns[0] - (parts << 26));
  const double quarters =
      ((leading * 0x1p-30 + turns[1] * 0x1p-62) + turns[2] * 0x1p-94) + turns[3] * 0x1p-126;
  return {parts, quarters * 0x1.921fb54442d18p+0};
}

constexpr std::uint32_t smallest_large_bits = 0x41800000;  // 16

// Not so small that nothing bends, nor large.
inline bool is_ordinary(Real angle) {
  return magnitude_bits(angle) - smallest_bending_bits <
         smallest_large_bits - smallest_bending_bits;
}

// Large angles with a sine or cosine so close to halfway between two Reals that rounding it twice,
// to double precision and to Real, goes wrong.
struct HardAngle {
  Real angle;
  SineCosine both;
};
constexpr std::array<HardAngle, 4> hard_angles = {
    {{0x1.33333p+13F, {-0x1.63f4bap-2F, -0x1.e01216p-1F}},
     {0x1.4555p+51F, {-0x1.b0ea44p-1F, 0x1.115d7ep-1F}},
     {0x1.3170fp+63F, {0x1.5ac1eep-4F, 0x1.fe2976p-1F}},
     {0x1.2b9622p+67F, {-0x1.f983c2p-3F, 0x1.f0285ep-1F}}}};

// Sine and cosine of a positive angle.
SineCosine sine_cosine_of_large(Real angle) {
  for (const HardAngle &hard : hard_angles) {
    if (angle == hard.angle) return hard.both;
  }
  const WideSineCosine both = sine_cosine_of(reduce_large(angle));
  return {static_cast<Real>(both.sine), static_cast<Real>(both.cosine)};
}

SineCosine sine_cosine_of_other(Real angle) {
  const std::uint32_t bits = magnitude_bits(angle);
  if (bits < smallest_bending_bits) return {angle, 1};
  if (bits >= infinity_bits) return {angle - angle, angle - angle};
  const SineCosine both = sine_cosine_of_large(real_of(bits));
  return {angle < 0 ? -both.sine : both.sine, both.cosine};
}

Real tangent_of_other(Real angle) {
  const std::uint32_t bits = magnitude_bits(angle);
  if (bits < smallest_bending_bits) return angle;
  if (bits >= infinity_bits) return angle - angle;
  const WideSineCosine both = sine_cosine_of(reduce_large(real_of(bits)));
  const auto tangent = static_cast<Real>(both.sine / both.cosine);
  return angle < 0 ? -tangent : tangent;
}

}  // namespace

SineCosine sine_cosine(Real angle) {
  if (!is_ordinary(angle)) return sine_cosine_of_other(angle);
  const WideSineCosine both = sine_cosine_of(reduce(angle));
  return {static_cast<Real>(both.sine), static_cast<Real>(both.cosine)};
}

Real tangent(Real angle) {
  if (!is_ordinary(angle)) return tangent_of_other(angle);
  const WideSineCosine both = sine_cosine_of(reduce(angle));
  return static_cast<Real>(both.sine / both.cosine);
}

WideSineCosine wide_sine_cosine(double angle) {
  if (angle == 0) return {angle, 1};
  return sine_cosine_of(reduce(angle));
}

WideSineCosine wide_sine_cosine(Real angle) {
  const std::uint32_t bits = magnitude_bits(angle);
  if (bits < smallest_large_bits) return wide_sine_cosine(double{angle});
  if (bits >= infinity_bits) return {angle - angle, angle - angle};
  const WideSineCosine both = sine_cosine_of(reduce_large(real_of(bits)));
  return {angle < 0 ? -both.sine : both.sine, both.cosine};
}

}  // namespace trelvin
