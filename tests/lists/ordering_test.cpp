#ifdef __linux__
#include <sys/resource.h>
#endif

#include <cstdlib>

#include "support.h"
#include "trelvin/lists.h"

#if defined(__SANITIZE_ADDRESS__)
#define TRELVIN_TEST_OWN_ALLOCATOR
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TRELVIN_TEST_OWN_ALLOCATOR
#endif
#endif

using namespace trelvin_test;

namespace {

constexpr std::int32_t u = unwritten_int;

Values order(std::vector<float> list) {
  std::vector<std::int32_t> positions(list.size() + 1, u);
  const std::vector<float> before = list;
  trvordi(list.data(), static_cast<std::int32_t>(list.size()), positions.data());
  for (std::size_t i = 0; i < list.size(); ++i)
    EXPECT_TRUE(list[i] == before[i] || std::isnan(before[i]));
  EXPECT_EQ(positions.back(), u);
  return Values(positions.begin(), positions.end() - 1);
}

using Line = float[3];

// The order, then the status.
template <std::size_t n>
Values order_lines(const Line (&lines)[n]) {
  float a[n], b[n], c[n];
  for (std::size_t i = 0; i < n; ++i) {
    a[i] = lines[i][0];
    b[i] = lines[i][1];
    c[i] = lines[i][2];
  }
  std::int32_t result[n + 1];
  std::fill_n(result, n + 1, u);
  trvpor(n, a, b, c, result, result[n]);
  return Values(result, result + n + 1);
}

// While it lives, the process gets no more large blocks.
class ShortMemory {
 public:
#ifdef __linux__
  ShortMemory() {
    getrlimit(RLIMIT_AS, &before_);
    const rlimit none = {0, before_.rlim_max};
    setrlimit(RLIMIT_AS, &none);
  }
  ~ShortMemory() { setrlimit(RLIMIT_AS, &before_); }

 private:
  rlimit before_ = {};
#else
  ShortMemory() {
    for (std::size_t size = std::size_t{1} << 28; size >= std::size_t{1} << 17; size /= 2)
      while (void *block = std::malloc(size)) blocks_.push_back(block);
  }
  ~ShortMemory() {
    for (void *block : blocks_) std::free(block);
  }

 private:
  std::vector<void *> blocks_;
#endif
};

}  // namespace

TEST(Ordering, SortsInPlace) {
  float reals[] = {3, -1, 2, -1, infinity, -7};
  std::int32_t integers[] = {3, -1, INT32_MAX, 2, INT32_MIN, -7};
  for (const std::int32_t n : {0, -4}) {
    trvord(reals, n);
    trvord1(integers, n);
  }
  EXPECT_TRUE(reals[0] == 3 && integers[0] == 3);
  trvord(reals, 5);
  trvord1(integers, 5);
  EXPECT_EQ(Values(reals, reals + 6), (Values{-1, -1, 2, 3, infinity, -7}));
  EXPECT_EQ(Values(integers, integers + 6), (Values{INT32_MIN, -1, 2, 3, INT32_MAX, -7}));
}

TEST(Ordering, LastOfEqualEntriesIsTakenAndNoNaNMoves) {
  float zeros[] = {0.0F, -0.0F};
  trvord(zeros, 2);
  EXPECT_TRUE(std::signbit(zeros[0]) && !std::signbit(zeros[1]));
  float list[] = {not_a_number, 3, not_a_number, 1, 2};
  trvord(list, 5);
  EXPECT_TRUE(std::isnan(list[0]) && std::isnan(list[2]));
  EXPECT_TRUE(list[1] == 1 && list[3] == 2 && list[4] == 3);
}

TEST(Ordering, Positions) {
  EXPECT_EQ(order({5, 3, 3}), (Values{3, 2, 1}));
  EXPECT_EQ(order({2, 1, 4, 3, 1}), (Values{5, 2, 1, 4, 3}));
  EXPECT_EQ(order({-3, -5}), (Values{2, 1}));
  EXPECT_EQ(order({}), Values{});
  EXPECT_EQ(order({1, not_a_number, 0}), (Values{3, u, 1}));
  // The mark of a found entry is the largest plus 1, where that is a number of its own.
  EXPECT_EQ(order({16777215, 1, 2}), (Values{2, 3, 1}));
  EXPECT_EQ(order({16777216, 1, 2}), (Values{2, 3, 3}));
}

TEST(Ordering, ParallelLinesByTheirCrossingOfAnAxis) {
  EXPECT_EQ(order_lines<3>({{0, 1, -3}, {0, -2, -2}, {0, 1, -2}}), (Values{2, 3, 1, 0}));
  EXPECT_EQ(order_lines<2>({{1, 0, -2}, {-3, 0, 3}}), (Values{2, 1, 0}));
  EXPECT_EQ(order_lines<3>({{1, 1, -1}, {1, 1, -2}, {1, 1, -2}}), (Values{1, 3, 2, 0}));
  EXPECT_EQ(order_lines<1>({{2, 3, 4}}), (Values{1, 0}));
  // On the y axis the first line has no crossing of it, nor has its parallel: NaN and infinity.
  EXPECT_EQ(order_lines<2>({{1, 0, 0}, {1, 0, -1}}), (Values{u, 2, 0}));
  EXPECT_EQ(order_lines<2>({{1, 0, -beyond}, {1, 0, -1}}), (Values{1, 2, 0}));
  EXPECT_EQ(order_lines<2>({{1, 1, 0}, {1, -1, 0}}), (Values{1, 2, -1}));
  EXPECT_EQ(order_lines<3>({{1, 1, 0}, {1, 1, -9}, {2, 2, 0}}), (Values{1, 2, 3, -1}));
  for (const std::int32_t n : {0, -2}) {
    std::int32_t position = u, status = u;
    trvpor(n, nullptr, nullptr, nullptr, &position, status);
    EXPECT_TRUE(position == u && status == -1);
  }
}

TEST(Ordering, WithoutMemoryThereIsNoOrder) {
#ifdef TRELVIN_TEST_OWN_ALLOCATOR
  GTEST_SKIP() << "this allocator ends the process instead of failing";
#endif
  const std::int32_t n = 100000;
  const std::vector<float> zeros(n, 0.0F), ones(n, 1.0F);
  std::vector<float> constants(n, 2.0F);
  constants[0] = 1;
  std::vector<std::int32_t> positions(n, u);
  std::int32_t status = u;
  {
    const ShortMemory memory;
    trvordi(constants.data(), n, positions.data());
    trvordi(constants.data(), 1073741825, positions.data());  // 2^30 + 1: four times it is 2^32 + 4
    trvpor(n, zeros.data(), ones.data(), constants.data(), positions.data(), status);
  }
  EXPECT_EQ(status, 0);
  EXPECT_EQ(std::count(positions.begin(), positions.end(), u), n);
}

TEST(Ordering, CornersOfAQuadrilateral) {
  // A rhombus in space, by its corners 1 to 4 in cyclic order; then as the routine is given them.
  const float corners[][3] = {{1, 1, 1}, {2, 3, 3}, {4, 4, 1}, {3, 2, -1}};
  const int given[][4] = {{1, 2, 3, 4}, {1, 2, 4, 3}, {1, 3, 2, 4}, {3, 2, 1, 4}, {4, 1, 3, 2}};
  const Values orders[] = {{1, 2, 3, 4}, {1, 2, 4, 3}, {1, 4, 2, 3}, {1, 2, 3, 4}, {1, 2, 4, 3}};
  for (int k = 0; k < 5; ++k) {
    float p[3][4];
    std::int32_t positions[] = {u, u, u, u};
    for (int i = 0; i < 4; ++i)
      for (int j = 0; j < 3; ++j) p[j][i] = corners[given[k][i] - 1][j];
    trvorv(p[0], p[1], p[2], positions);
    EXPECT_EQ(Values(positions, positions + 4), orders[k]);
    for (int i = 0; i < 4; ++i)
      for (int j = 0; j < 3; ++j)
        EXPECT_EQ(p[j][i], corners[given[k][positions[i] - 1] - 1][j]) << k << " " << i;
  }
  float x[] = {0, 1, 2, 3}, y[] = {0, 0, 0, 5}, z[] = {0, 0, 0, 0};  // a degenerate triangle
  std::int32_t positions[] = {u, u, u, u};
  trvorv(x, y, z, positions);
  EXPECT_EQ(Values(positions, positions + 4), (Values{1, 2, 3, 4}));
}
