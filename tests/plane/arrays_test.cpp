#include <cstring>

#include "support.h"
#include "trelvin/plane.h"

using namespace trelvin_test;

TEST(Arrays, ElementsMoveBitForBit) {
  // A signalling NaN as a Real host holds it.
  std::int32_t v[] = {1, 0x7FA00001, 3, -77};
  trvinv(v, 3);
  EXPECT_EQ(std::vector<std::int32_t>(v, v + 4),
            (std::vector<std::int32_t>{3, 0x7FA00001, 1, -77}));
  trvinv(v, -1);
  EXPECT_EQ(v[0], 3);
}

TEST(Arrays, InsertsBehindAPosition) {
  const std::int32_t inserted[] = {8, 9};
  using List = std::vector<std::int32_t>;
  const auto insert = [&](std::int32_t k, std::int32_t m) {
    List v = {1, 2, 3, -77, -77, -77};
    std::int32_t n = 3;
    trvadr(v.data(), n, k, inserted, m);
    v.push_back(n);
    return v;
  };
  EXPECT_EQ(insert(0, 2), (List{8, 9, 1, 2, 3, -77, 5}));
  EXPECT_EQ(insert(2, 2), (List{1, 2, 8, 9, 3, -77, 5}));
  EXPECT_EQ(insert(3, 1), (List{1, 2, 3, 8, -77, -77, 4}));
  for (const auto &[k, m] : {std::pair{-1, 2}, {4, 2}, {1, 0}})
    EXPECT_EQ(insert(k, m), (List{1, 2, 3, -77, -77, -77, 3}));
}
