#include <array>
#include <numeric>

#include "lists/odd_lists.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

// AddressSanitizer is to fail an allocation as the C library does. The name is its own.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char *__asan_default_options();
extern "C" const char *__asan_default_options() { return "allocator_may_return_null=1"; }
// NOLINTEND(bugprone-reserved-identifier)

namespace {

Integers order(const Reals &list) {
  Integers positions(list.size(), kept);
  trvordi(list.data(), size_of(list), positions.data());
  return positions;
}

// The order, then the status.
Integers order_lines(const std::vector<std::array<float, 3>> &lines) {
  float coefficients[3][4];
  for (std::size_t i = 0; i < lines.size(); ++i)
    for (std::size_t j = 0; j < 3; ++j) coefficients[j][i] = lines[i][j];
  Integers result(lines.size() + 1, kept);
  trvpor(size_of(lines), coefficients[0], coefficients[1], coefficients[2], result.data(),
         result.back());
  return result;
}

void select_plainly(Reals &v) {
  for (std::size_t i = 0; i < v.size(); ++i) {
    std::size_t place = i;
    for (std::size_t j = i + 1; j < v.size(); ++j)
      if (v[place] >= v[j]) place = j;
    std::swap(v[i], v[place]);
  }
}

Integers order_plainly(Reals w) {
  Integers positions(w.size(), kept);
  float done = w.empty() ? 0 : w[0];
  for (const float entry : w) done = entry > done ? entry : done;
  done += 1;
  for (std::size_t k = 0; k < w.size(); ++k) {
    std::size_t place = k;
    for (std::size_t j = 0; j < w.size(); ++j)
      if (w[j] < w[place] || (w[j] == w[place] && j > place)) place = j;
    if (std::isnan(w[k])) continue;
    positions[k] = static_cast<std::int32_t>(place + 1);
    w[place] = done;
  }
  return positions;
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
  trvord(reals + 4, 2);
  trvord1(integers + 4, 2);
  EXPECT_TRUE(reals[4] == -7 && integers[4] == -7);
  Integers many(100);
  std::iota(many.rbegin(), many.rend(), -50);
  trvord1(many.data(), size_of(many));
  EXPECT_TRUE(std::is_sorted(many.begin(), many.end()));
}

TEST(Ordering, OddListsAreSortedAndOrderedAsThePlainWays) {
  OddLists lists;
  for (int trial = 0; trial < 5000; ++trial) {
    Reals sorted = lists.reals();
    Reals plain = sorted;
    ASSERT_EQ(order(sorted), order_plainly(plain)) << trial;
    select_plainly(plain);
    trvord(sorted.data(), size_of(sorted));
    ASSERT_TRUE(same_bits(sorted, plain)) << trial;
  }
}

TEST(Ordering, Positions) {
  EXPECT_EQ(order({2, -1, 4, 3, -1}), (Integers{5, 2, 1, 4, 3}));
  EXPECT_EQ(order({1, not_a_number, 0}), (Integers{3, kept, 1}));
  // The mark of a found entry is the largest plus 1, where that is a number of its own.
  EXPECT_EQ(order({16777215, 1, 2}), (Integers{2, 3, 1}));
  EXPECT_EQ(order({16777216, 1, 2}), (Integers{2, 3, 3}));
}

TEST(Ordering, ParallelLinesByTheirCrossingOfAnAxis) {
  EXPECT_EQ(order_lines({{0, 1, -3}, {0, -2, -2}, {0, 1, -2}}), (Integers{2, 3, 1, 0}));
  EXPECT_EQ(order_lines({{1, 0, -2}, {-3, 0, 3}}), (Integers{2, 1, 0}));
  EXPECT_EQ(order_lines({{1, 2, -1}, {1, 2, -2}, {1, 2, -2}}), (Integers{1, 3, 2, 0}));
  EXPECT_EQ(order_lines({{2, 3, 4}}), (Integers{1, 0}));
  // A first line on the y axis does not cross it, nor does its parallel: NaN and infinity.
  EXPECT_EQ(order_lines({{1, 0, -beyond}, {1, 0, -1}}), (Integers{1, 2, 0}));
  EXPECT_EQ(order_lines({{1, 0, 0}, {1, 0, -1}}), (Integers{kept, 2, 0}));
  EXPECT_EQ(order_lines({{1, 2, 0}, {1, -3, 0}}), (Integers{1, 2, -1}));
  EXPECT_EQ(order_lines({{1, 2, 0}, {1, 2, -9}, {2, 4, 0}}), (Integers{1, 2, 3, -1}));
  std::int32_t position = kept, status = kept;
  trvpor(0, nullptr, nullptr, nullptr, &position, status);
  EXPECT_TRUE(position == kept && status == TRV_STATUS_REFUSED);
}

TEST(Ordering, WithoutMemoryListsAreSortedAlike) {
  constexpr std::int32_t n = 100000;
  Integers integers(n);
  for (std::int32_t i = 0; i < n; ++i) integers[static_cast<std::size_t>(i)] = i * 7919 % n;
  Reals reals(integers.begin(), integers.end());
  without_memory([&] {
    trvord(reals.data(), n);
    trvord1(integers.data(), n);
  });
  EXPECT_TRUE(std::is_sorted(reals.begin(), reals.end()));
  EXPECT_TRUE(std::is_sorted(integers.begin(), integers.end()));
}

TEST(Ordering, WithoutMemoryOddListsHaveTheSameOrder) {
  OddLists lists;
  for (int trial = 0; trial < 24; ++trial) {
    const Reals part = lists.reals();  // whose entries then come again and again
    Reals list(static_cast<std::size_t>(part.empty() ? 0 : 20000 + lists.below(512)));
    for (std::size_t i = 0; i < list.size(); ++i) list[i] = part[i % part.size()];
    const Integers positions = order(list);
    Integers without(list.size(), kept);
    without_memory([&] { trvordi(list.data(), size_of(list), without.data()); });
    ASSERT_EQ(without, positions) << trial;
  }
}

TEST(Ordering, CornersOfAQuadrilateral) {
  // In the vertical plane y = 2*x + 3: seen from above they are on one line.
  const float corners[4][3] = {{1, 5, 10}, {4, 11, 12}, {6, 15, 19}, {2, 7, 16}};
  const Integers orders[] = {{1, 2, 3, 4}, {1, 2, 4, 3}, {1, 3, 4, 2}};
  const Integers expected[] = {{1, 2, 3, 4}, {1, 2, 4, 3}, {1, 4, 2, 3}};
  for (int c = 0; c < 3; ++c) {
    float x[4], y[4], z[4];
    for (std::size_t k = 0; k < 4; ++k) {
      const float *corner = corners[orders[c][k] - 1];
      x[k] = corner[0], y[k] = corner[1], z[k] = corner[2];
    }
    Integers positions(4, kept);
    trvorv(x, y, z, positions.data());
    EXPECT_EQ(positions, expected[c]);
    for (int k = 0; k < 4; ++k) {
      EXPECT_TRUE(x[k] == corners[k][0] && y[k] == corners[k][1] && z[k] == corners[k][2]);
    }
  }
  float x[] = {0, 1, 2, 3}, y[] = {0, 0, 0, 5}, z[] = {7, 7, 7, 7};  // a degenerate triangle
  Integers positions(4, kept);
  trvorv(x, y, z, positions.data());
  EXPECT_EQ(positions, (Integers{1, 2, 3, 4}));
}
