// Checks the mathematics functions for all Reals there are.
//
//     check_functions [FUNCTION...]    sine_cosine, tangent, arc_tangent, arc_cosine, wide
//
// Prints the hash of all the results of each function, which every build must share. Where MPFR is
// at hand it also counts the results that are not correctly rounded, and fails if there are any.
// `wide` samples the functions in double precision and prints their largest errors, in units in the
// last place. Each function takes some minutes.
#include <algorithm>
#include <cinttypes>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>

#include "numeric/bits.h"
#include "numeric/functions.h"
#ifdef TRELVIN_HAVE_MPFR
#include <mpfr.h>
#endif

namespace {

using namespace trelvin;

class Hash {
 public:
  void add(Real value) { add_bits(value == value ? bits_of(value) : infinity_bits + 1); }
  void add(double value) {
    const std::uint64_t bits = bits_of(value);
    add_bits(static_cast<std::uint32_t>(bits));
    add_bits(static_cast<std::uint32_t>(bits >> 32));
  }
  [[nodiscard]] std::uint64_t value() const { return value_; }

 private:
  void add_bits(std::uint32_t bits) { value_ = (value_ ^ bits) * 0x100000001B3U; }
  std::uint64_t value_ = 0xCBF29CE484222325U;
};

long long differences = 0;

#ifdef TRELVIN_HAVE_MPFR

constexpr bool has_reference = true;

using Exact = int (*)(mpfr_t, const mpfr_t, mpfr_rnd_t);

// The platform's result, rounded; where it is too close to halfway between two Reals to tell, the
// result of MPFR with 200 bits.
Real rounded(double platforms, Real x, Exact exact) {
  const double margin = platforms * 0x1p-50;
  const auto low = static_cast<Real>(platforms - margin);
  const auto high = static_cast<Real>(platforms + margin);
  if (low == high || platforms != platforms) return static_cast<Real>(platforms);
  static struct Numbers {
    Numbers() { mpfr_inits2(200, argument, result, nullptr); }
    mpfr_t argument;
    mpfr_t result;
  } numbers;
  mpfr_set_flt(numbers.argument, x, MPFR_RNDN);
  exact(numbers.result, numbers.argument, MPFR_RNDN);
  return mpfr_get_flt(numbers.result, MPFR_RNDN);
}

void compare(const char *name, Real x, Real result, Real expected) {
  const bool same = expected == expected ? bits_of(result) == bits_of(expected) : result != result;
  if (same) return;
  if (++differences <= 100) std::printf("%s(%a) is %a, not %a\n", name, x, result, expected);
}

void compare_sine_cosine(Real x, const SineCosine &result) {
  compare("sine", x, result.sine, rounded(std::sin(double{x}), x, mpfr_sin));
  compare("cosine", x, result.cosine, rounded(std::cos(double{x}), x, mpfr_cos));
}

void compare_tangent(Real x, Real result) {
  compare("tangent", x, result, rounded(std::tan(double{x}), x, mpfr_tan));
}

void compare_arc_tangent(Real x, Real result) {
  compare("arc_tangent", x, result, rounded(std::atan(double{x}), x, mpfr_atan));
}

void compare_arc_cosine(Real x, Real result) {
  compare("arc_cosine", x, result, rounded(std::acos(double{x}), x, mpfr_acos));
}

#else

constexpr bool has_reference = false;
void compare_sine_cosine(Real /*x*/, const SineCosine & /*result*/) {}
void compare_tangent(Real /*x*/, Real /*result*/) {}
void compare_arc_tangent(Real /*x*/, Real /*result*/) {}
void compare_arc_cosine(Real /*x*/, Real /*result*/) {}

#endif

template <typename Check>
void for_all_reals(const char *name, Check check) {
  const long long before = differences;
  Hash hash;
  std::uint32_t bits = 0;
  do {
    check(real_of(bits), hash);
  } while (++bits != 0);
  std::printf("%-12s %016" PRIx64, name, hash.value());
  if (has_reference) std::printf("  %lld differences", differences - before);
  std::printf("\n");
  std::fflush(stdout);
}

void check_sine_cosine(Real x, Hash &hash) {
  const SineCosine result = sine_cosine(x);
  hash.add(result.sine);
  hash.add(result.cosine);
  compare_sine_cosine(x, result);
}

template <Real (*function)(Real), void (*compare_function)(Real, Real)>
void check_function(Real x, Hash &hash) {
  const Real result = function(x);
  hash.add(result);
  compare_function(x, result);
}

// A double of magnitude up to `limit`, evenly distributed or, every other one, down to 2^-40 of it.
double draw(double limit) {
  static std::uint64_t state = 1;
  state = state * 6364136223846793005U + 1442695040888963407U;
  const double even = static_cast<double>(static_cast<std::int32_t>(state >> 32)) * 0x1p-31 *
                      (1 + static_cast<double>(state >> 53) * 0x1p-60);
  const int halvings = (state & 0x80000000U) != 0 ? static_cast<int>((state >> 16) % 40) : 0;
  return limit * std::ldexp(even, -halvings);
}

// An error in units in the last place of the result.
class LargestError {
 public:
  void add(double result, long double expected) {
    const int place = std::max(std::ilogb(result) - 52, -1074);
    largest_ =
        std::max(largest_, static_cast<double>(std::ldexp(std::fabs(result - expected), -place)));
  }
  [[nodiscard]] double value() const { return largest_; }

 private:
  double largest_ = 0;
};

void check_wide() {
  Hash hash;
  LargestError of_sine, of_cosine, of_arc_tangent, of_decay;
  for (int i = 0; i < 20000000; ++i) {
    const double angle = draw(6.3);
    const WideSineCosine both = wide_sine_cosine(angle);
    const double x = draw(100);
    const double y = draw(100);
    const double arc = arc_tangent(y, x);
    const double exponent = std::fabs(draw(700));
    const double power = decay(exponent);
    for (const double result : {both.sine, both.cosine, arc, power}) hash.add(result);
    if (!has_reference) continue;
    of_sine.add(both.sine, std::sin(static_cast<long double>(angle)));
    of_cosine.add(both.cosine, std::cos(static_cast<long double>(angle)));
    of_arc_tangent.add(arc, std::atan2(static_cast<long double>(y), static_cast<long double>(x)));
    of_decay.add(power, std::exp(-static_cast<long double>(exponent)));
  }
  std::printf("%-12s %016" PRIx64, "wide", hash.value());
  if (has_reference) {
    std::printf("  sine %.3f cosine %.3f arc_tangent %.3f decay %.3f units", of_sine.value(),
                of_cosine.value(), of_arc_tangent.value(), of_decay.value());
  }
  std::printf("\n");
}

}  // namespace

int main(int argc, char **argv) {
  const auto wanted = [&](const char *name) {
    return argc == 1 || std::any_of(argv + 1, argv + argc,
                                    [&](const char *each) { return std::string(each) == name; });
  };
  using Overload = Real (*)(Real);
  constexpr Overload arc_tangent_of_slope = arc_tangent;
  if (wanted("sine_cosine")) for_all_reals("sine_cosine", check_sine_cosine);
  if (wanted("tangent")) for_all_reals("tangent", check_function<tangent, compare_tangent>);
  if (wanted("arc_tangent")) {
    for_all_reals("arc_tangent", check_function<arc_tangent_of_slope, compare_arc_tangent>);
  }
  if (wanted("arc_cosine")) {
    for_all_reals("arc_cosine", check_function<arc_cosine, compare_arc_cosine>);
  }
  if (wanted("wide")) check_wide();
  return differences == 0 ? 0 : 1;
}
