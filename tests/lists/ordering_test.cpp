#ifdef __linux__
#include <sys/resource.h>
#endif

#include <array>

#include "support.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

// AddressSanitizer is to fail an allocation as the C library does. The name is its own.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char *__asan_default_options();
extern "C" const char *__asan_default_options() { return "allocator_may_return_null=1"; }
// NOLINTEND(bugprone-reserved-identifier)

namespace {

constexpr std::int32_t u = unwritten_int;

Values order(const std::vector<float> &list) {
  std::vector<std::int32_t> positions(list.size(), u);
  trvordi(list.data(), static_cast<std::int32_t>(list.size()), positions.data());
  return Values(positions.begin(), positions.end());
}

// The order, then the status.
Values order_lines(const std::vector<std::array<float, 3>> &lines) {
  const auto n = static_cast<std::int32_t>(lines.size());
  float coefficients[3][4];
  for (std::size_t i = 0; i < lines.size(); ++i)
    for (std::size_t j = 0; j < 3; ++j) coefficients[j][i] = lines[i][j];
  std::vector<std::int32_t> result(lines.size() + 1, u);
  trvpor(n, coefficients[0], coefficients[1], coefficients[2], result.data(), result.back());
  return Values(result.begin(), result.end());
}

}  // namespace

TEST(Ordering, SortsInPlace) {
  float reals[] = {3, -1, 2, -1, infinity, -7};
  std::int32_t integers[] = {3, -1, INT32_MAX, 2, INT32_MIN, -7};
  for (const std::int32_t n : {5, 0, -4}) {
    trvord(reals, n);
    trvord1(integers, n);
  }
  EXPECT_EQ(Values(reals, reals + 6), (Values{-1, -1, 2, 3, infinity, -7}));
  EXPECT_EQ(Values(integers, integers + 6), (Values{INT32_MIN, -1, 2, 3, INT32_MAX, -7}));
  // The last of equal entries is taken; no NaN moves.
  float list[] = {not_a_number, 0.0F, not_a_number, -0.0F, -1};
  trvord(list, 5);
  EXPECT_TRUE(std::isnan(list[0]) && std::isnan(list[2]) && list[1] == -1);
  EXPECT_TRUE(!std::signbit(list[3]) && std::signbit(list[4]));
}

TEST(Ordering, Positions) {
  EXPECT_EQ(order({5, 3, 3}), (Values{3, 2, 1}));
  EXPECT_EQ(order({2, -1, 4, 3, -1}), (Values{5, 2, 1, 4, 3}));
  EXPECT_EQ(order({-3, -5}), (Values{2, 1}));
  EXPECT_EQ(order({1, not_a_number, 0}), (Values{3, u, 1}));
  // The mark of a found entry is the largest plus 1, where that is a number of its own.
  EXPECT_EQ(order({16777215, 1, 2}), (Values{2, 3, 1}));
  EXPECT_EQ(order({16777216, 1, 2}), (Values{2, 3, 3}));
}

TEST(Ordering, ParallelLinesByTheirCrossingOfAnAxis) {
  EXPECT_EQ(order_lines({{0, 1, -3}, {0, -2, -2}, {0, 1, -2}}), (Values{2, 3, 1, 0}));
  EXPECT_EQ(order_lines({{1, 0, -2}, {-3, 0, 3}}), (Values{2, 1, 0}));
  EXPECT_EQ(order_lines({{1, 1, -1}, {1, 1, -2}, {1, 1, -2}}), (Values{1, 3, 2, 0}));
  EXPECT_EQ(order_lines({{2, 3, 4}}), (Values{1, 0}));
  // A first line on the y axis does not cross it, nor does its parallel: NaN and infinity.
  EXPECT_EQ(order_lines({{1, 0, -beyond}, {1, 0, -1}}), (Values{1, 2, 0}));
  EXPECT_EQ(order_lines({{1, 0, 0}, {1, 0, -1}}), (Values{u, 2, 0}));
  EXPECT_EQ(order_lines({{1, 1, 0}, {1, -1, 0}}), (Values{1, 2, -1}));
  EXPECT_EQ(order_lines({{1, 1, 0}, {1, 1, -9}, {2, 2, 0}}), (Values{1, 2, 3, -1}));
  std::int32_t position = u, status = u;
  trvpor(0, nullptr, nullptr, nullptr, &position, status);
  EXPECT_TRUE(position == u && status == -1);
}

TEST(Ordering, WithoutMemoryThereIsNoOrder) {
  const std::int32_t n = 100000, too_many = 1073741825;  // four bytes each make 2^32 + 4
  const std::vector<float> zeros(n, 0.0F), ones(n, 1.0F);
  std::vector<float> constants(n, 2.0F);
  constants[0] = 1;
  std::vector<std::int32_t> positions(n, u);
#ifdef __linux__
  rlimit before;
  getrlimit(RLIMIT_AS, &before);
  const rlimit nothing_more = {0, before.rlim_max};
  setrlimit(RLIMIT_AS, &nothing_more);
  std::int32_t status = u;
  trvpor(n, zeros.data(), ones.data(), constants.data(), positions.data(), status);
#endif
  trvordi(constants.data(), too_many, positions.data());
#ifdef __linux__
  setrlimit(RLIMIT_AS, &before);
  EXPECT_EQ(status, 0);
#endif
  EXPECT_EQ(std::count(positions.begin(), positions.end(), u), n);
}

TEST(Ordering, CornersOfAQuadrilateral) {
  struct Case {
    float x[4], y[4];
    Values order;
  };
  const Case cases[] = {{{0, 1, 1, 0}, {0, 0, 1, 1}, {1, 2, 3, 4}},
                        {{0, 1, 0, 1}, {0, 0, 1, 1}, {1, 2, 4, 3}},
                        {{0, 1, 1, 0}, {0, 1, 0, 1}, {1, 4, 2, 3}},
                        {{0, 1, 2, 3}, {0, 0, 0, 5}, {1, 2, 3, 4}}};  // a degenerate triangle
  for (Case c : cases) {
    const Case before = c;
    std::int32_t positions[] = {u, u, u, u};
    float z[] = {0, 0, 0, 0};
    for (int i = 0; i < 4; ++i) z[i] = c.x[i] + 2 * c.y[i];
    trvorv(c.x, c.y, z, positions);
    EXPECT_EQ(Values(positions, positions + 4), c.order);
    for (int i = 0; i < 4; ++i) {
      const int k = positions[i] - 1;
      EXPECT_TRUE(c.x[i] == before.x[k] && c.y[i] == before.y[k] && z[i] == c.x[i] + 2 * c.y[i]);
    }
  }
}
