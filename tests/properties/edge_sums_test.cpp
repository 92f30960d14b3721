// The sums inside the library, one instruction set at a time.
#include "numeric/processor.h"
#include "properties/edge_terms.h"
#include "support.h"

using namespace trelvin_test;
using trelvin::SumsByLanes;

namespace {

struct Outline {
  std::vector<float> x, y;
  std::int32_t n;
};

// Coordinates of different sizes and signs; now and then a coordinate is `special`.
Outline outline(std::int32_t n, float special) {
  Outline o = {{}, {}, n};
  std::uint32_t state = 1;
  const auto draw = [&] {
    state = state * 1664525 + 1013904223;
    const auto value = static_cast<float>(static_cast<std::int32_t>(state));
    return (state >> 16) % 40 == 0 ? special : std::ldexp(value, -static_cast<int>(state % 64));
  };
  for (std::int32_t i = 0; i <= n; ++i) {
    o.x.push_back(draw());
    o.y.push_back(draw());
  }
  return o;
}

// All NaNs are one: which of two an operation gives is up to the compiler.
std::vector<std::uint64_t> bits(const SumsByLanes &sums, const Outline &o) {
  std::vector<std::uint64_t> all;
  const auto add = [&](const auto &some) {
    for (const double value : some.values) {
      std::memcpy(&all.emplace_back(), &value, sizeof value);
      if (std::isnan(value)) all.back() = 0x7FF8000000000000;
    }
  };
  add(sums.area(o.x.data(), o.y.data(), o.n));
  add(sums.first_moments(o.x.data(), o.y.data(), o.n));
  add(sums.second_moments(o.x.data(), o.y.data(), o.n));
  return all;
}

void expect_the_sums_of_single_numbers(const SumsByLanes &sums) {
  for (const float special : {-0.0F, infinity, -infinity, not_a_number}) {
    for (std::int32_t n = trelvin::edges_for_lanes; n < 100; ++n) {
      const Outline o = outline(n, special);
      ASSERT_EQ(bits(sums, o), bits(trelvin::sums_by<double>, o)) << n << ' ' << special;
    }
  }
  const Outline o = outline(1000, 0);
  EXPECT_EQ(bits(sums, o), bits(trelvin::sums_by<double>, o));
}

}  // namespace

TEST(EdgeSums, OfTwoNumbersAtATime) { expect_the_sums_of_single_numbers(trelvin::baseline_sums); }

TEST(EdgeSums, OfFourNumbersAtATime) {
  if (trelvin::avx2_sums == nullptr || !trelvin::has_avx2()) GTEST_SKIP() << "no AVX2 here";
  expect_the_sums_of_single_numbers(*trelvin::avx2_sums);
}

TEST(EdgeSums, AreFormedByLanesFromSixteenEdgesOn) {
  const SumsByLanes sums = {trelvin::area_sum, trelvin::first_moment_sums,
                            trelvin::second_moment_sums};
  for (const std::int32_t n : {13, 14, 15, 16, 17, 18}) {
    const Outline o = outline(n, 0);
    EXPECT_EQ(bits(sums, o) == bits(trelvin::sums_by<double>, o), n >= 16) << n;
  }
}
