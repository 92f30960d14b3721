// Arc tangent and arc cosine.
//
// Both subtract an angle with a known sine and cosine, by the theorem of subtraction, and take the
// small difference by a short polynomial.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "numeric/bits.h"
#include "numeric/functions.h"

namespace trelvin {
namespace {

constexpr double wide_pi = 0x1.921fb54442d18p+1;
constexpr double pi_beyond_wide = 0x1.1a62633145c07p-53;
constexpr double wide_half_pi = 0x1.921fb54442d18p+0;

// Slopes beyond these have the arc tangent of infinity, in single and in double precision.
constexpr std::uint32_t vertical_slope_bits = 0x4D000000;  // 2^27
constexpr double vertical_slope = 0x1p60;

// The arguments with results so close to halfway between two Reals that rounding them twice, to
// double precision and to Real, goes wrong.
constexpr std::uint32_t hard_slope_bits = 0x3D8D6B23;
constexpr Real arc_of_hard_slope = 0x1.1a6386p-4F;
constexpr Real hard_cosine = 0x1.04c444p-12F;
constexpr Real arc_of_hard_cosine = 0x1.920f6ap+0F;

// A direction (run, rise) and its angle.
struct Direction {
  double run;
  double rise;
  double angle;
};

// Middles of the quarters of each power of two from 1/16 to 16, as slopes, between the horizontal
// and the vertical.
constexpr std::uint32_t quarters = 32;
constexpr std::array<double, quarters> angles_of_quarters = {
    0x1.1f86dbf082d59p-4, 0x1.5f2324fd2d7b2p-4, 0x1.9e94153cfdcf1p-4, 0x1.ddd21701eba6ep-4,
    0x1.1e1fafb043727p-3, 0x1.5c9811e3ec26ap-3, 0x1.9a6a8e96c8626p-3, 0x1.d77d5df205736p-3,
    0x1.18bf5a30bf178p-2, 0x1.530ad9951cd4ap-2, 0x1.8b24d394a1b25p-2, 0x1.c0db4c94ec9f0p-2,
    0x1.0657e94db30d0p-1, 0x1.345f01cce37bbp-1, 0x1.5d58987169b18p-1, 0x1.819d0b7158a4dp-1,
    0x1.b034f38649c88p-1, 0x1.e24dd44c855d1p-1, 0x1.04e67277a01d7p+0, 0x1.14b1dd5f90ce1p+0,
    0x1.270ef55a53a25p+0, 0x1.38d6a6ce13353p+0, 0x1.45b54837351a0p+0, 0x1.4f68dea672617p+0,
    0x1.5a25052114e60p+0, 0x1.6414d44094c7cp+0, 0x1.6b0bae830c070p+0, 0x1.7030cf9403197p+0,
    0x1.75cbad2a40bd5p+0, 0x1.7aea38c1acbd1p+0, 0x1.7e7862aa0157cp+0, 0x1.811518cde39a6p+0};

constexpr std::array<Direction, quarters + 2> tabulate() {
  std::array<Direction, quarters + 2> table{};
  table[0] = {1, 0, 0};
  double power = 0x1p-4;
  for (std::uint32_t i = 0; i < quarters; ++i) {
    table[i + 1] = {1, power * (1.125 + 0.25 * (i % 4)), angles_of_quarters[i]};
    if (i % 4 == 3) power *= 2;
  }
  table[quarters + 1] = {0, 1, wide_half_pi};
  return table;
}

constexpr std::array<Direction, quarters + 2> directions = tabulate();

// The place in the table of a slope with the leading bits, which hold the exponent and a quarter.
inline std::uint32_t place(std::uint32_t leading_bits, std::uint32_t exponent_bias) {
  const std::uint32_t before_first = ((exponent_bias - 4) << 2) - 1;
  return std::clamp(leading_bits, before_first, before_first + quarters + 1) - before_first;
}

// Arc tangent of a slope from zero on.
inline double arc_tangent_of(double slope, std::uint32_t place) {
  const Direction &d = directions[place];
  const double t = (slope * d.run - d.rise) / (d.run + slope * d.rise);
  const double t2 = t * t;
  const double t4 = t2 * t2;
  const double bend =
      t * t2 *
      ((-0x1.5555555555537p-2 + t2 * 0x1.9999999963174p-3) +
       t4 * ((-0x1.249248297a59cp-3 + t2 * 0x1.c7187fd6ca15dp-4) + t4 * -0x1.70c2296fb3a85p-4));
  return d.angle + (t + bend);
}

// An angle with a sine of i/32, i from 0 to 23: its cosine, and twice the angle.
struct HalfAngle {
  double cosine;
  double twice;
};

constexpr HalfAngle half_angles[] = {{0x1p+0, 0x0p+0},
                                     {0x1.ffbffbff7fec0p-1, 0x1.000aabde0b9c8p-4},
                                     {0x1.feffbfdfebf1fp-1, 0x1.002abde953619p-3},
                                     {0x1.fdbeba917c3f5p-1, 0x1.809092913e52ep-3},
                                     {0x1.fbfbf7ebc755fp-1, 0x1.00abe0c129e1ep-2},
                                     {0x1.f9b61d0237250p-1, 0x1.41510cb011423p-2},
                                     {0x1.f6eb62d27730dp-1, 0x1.82494ed0e78fcp-2},
                                     {0x1.f3998f1b1886cp-1, 0x1.c3a6f13aae84bp-2},
                                     {0x1.efbdeb14f4edap-1, 0x1.02be9ce0b87cdp-1},
                                     {0x1.eb5537b1434dap-1, 0x1.23f0523c5dc2bp-1},
                                     {0x1.e65b9edeba38ep-1, 0x1.457393b90e2aap-1},
                                     {0x1.e0cca12e97895p-1, 0x1.675441329986ep-1},
                                     {0x1.daa2fefaae1d8p-1, 0x1.899f4edc962d3p-1},
                                     {0x1.d3d89be176072p-1, 0x1.ac62fec0b2a92p-1},
                                     {0x1.cc665b0328622p-1, 0x1.cfaf27460fe9fp-1},
                                     {0x1.c443f1d4d22afp-1, 0x1.f3958aecddef4p-1},
                                     {0x1.bb67ae8584caap-1, 0x1.0c152382d7366p+0},
                                     {0x1.b1c62db2564fep-1, 0x1.1ec230c714a96p+0},
                                     {0x1.a751f9447b724p-1, 0x1.31df40fbd31cdp+0},
                                     {0x1.9bfb076d236ebp-1, 0x1.457bf318fe517p+0},
                                     {0x1.8fae0c15ad38ap-1, 0x1.59aad71ced00fp+0},
                                     {0x1.8253878ae2e09p-1, 0x1.6e825383cc40bp+0},
                                     {0x1.73ce704fb7b23p-1, 0x1.841deb5114bb4p+0},
                                     {0x1.63fa3f3c02962p-1, 0x1.9aa01babef75ep+0}};

// Arc cosine of a magnitude from 0 to 1, in the first quadrant. Half of that angle has its sine and
// cosine from the half-angle formulas, without cancellation.
inline double arc_cosine_of(double magnitude) {
  const double half_sine = std::sqrt((1 - magnitude) * 0.5);
  const double half_cosine = std::sqrt((1 + magnitude) * 0.5);
  const double scaled = half_sine * 32 + rounding_shift;
  const HalfAngle &closest = half_angles[static_cast<std::uint32_t>(bits_of(scaled))];
  const double s = half_sine * closest.cosine - half_cosine * ((scaled - rounding_shift) * 0x1p-5);
  const double s2 = s * s;
  const double bend = s * s2 *
                      ((0x1.5555555555552p-3 + s2 * 0x1.3333333355dc4p-4) +
                       s2 * s2 * (0x1.6db6d51e9041dp-5 + s2 * 0x1.f23af7de917d5p-6));
  return closest.twice + 2 * (s + bend);
}

}  // namespace

Real arc_tangent(Real slope) {
  const std::uint32_t bits = magnitude_bits(slope);
  if (bits < smallest_bending_bits) return slope;
  if (bits == hard_slope_bits) return with_sign_of(slope, arc_of_hard_slope);
  if (bits > vertical_slope_bits)
    return bits > infinity_bits ? slope + slope : with_sign_of(slope, half_pi);
  const double angle = arc_tangent_of(double{real_of(bits)}, place(bits >> 21, 127));
  return with_sign_of(slope, static_cast<Real>(angle));
}

double arc_tangent(double y, double x) {
  const double rise = magnitude_of(y);
  const double run = magnitude_of(x);
  double angle = 0;
  if (rise == run) {  // zeros and infinities included
    angle = rise == 0 ? 0 : wide_half_pi / 2;
  } else if (run == 0) {
    angle = wide_half_pi;
  } else {
    const double slope = std::min(rise / run, vertical_slope);
    angle = arc_tangent_of(slope, place(static_cast<std::uint32_t>(bits_of(slope) >> 50), 1023));
  }
  if (has_sign(x)) angle = (wide_pi - angle) + pi_beyond_wide;
  return with_sign_of(y, angle);
}

Real arc_cosine(Real cosine) {
  const double magnitude = std::fabs(cosine);
  if (!(magnitude <= 1)) return (cosine - cosine) / (cosine - cosine);
  if (cosine == hard_cosine) return arc_of_hard_cosine;
  const double angle = arc_cosine_of(magnitude);
  return static_cast<Real>(cosine < 0 ? (wide_pi - angle) + pi_beyond_wide : angle);
}

}  // namespace trelvin
