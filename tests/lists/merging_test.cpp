#include <set>

#include "lists/odd_lists.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

TEST(Merging, SortedListsKeepEachEntryOnce) {
  Integers v = {3, -1, 3, 2, -1, INT32_MIN, 2};
  auto n = size_of(v);
  trvmer2(v.data(), n);
  v.resize(static_cast<std::size_t>(n));
  EXPECT_EQ(v, (Integers{INT32_MIN, -1, 2, 3}));

  // A chain of steps below the tolerance is measured from the last entry kept.
  Reals chain = {2, 0, 8e-6F, 16e-6F, 24e-6F, -3, not_a_number, infinity, infinity, -0.0F};
  n = 10;
  trvmer3(chain.data(), n);
  EXPECT_EQ(n, 6);
  EXPECT_EQ(Reals(chain.begin(), chain.begin() + 5), (Reals{-3, -0.0F, 16e-6F, 2, infinity}));
  EXPECT_TRUE(std::signbit(chain[1]));
  EXPECT_TRUE(std::isnan(chain[5]));
  n = 0;
  trvmer12(nullptr, n, 1);
  EXPECT_EQ(n, 0);
}

TEST(Merging, OddListsAreSortedWithNaNsLast) {
  OddLists lists;
  for (int trial = 0; trial < 3000; ++trial) {
    Reals list = lists.reals(), plain;
    for (const float entry : list)
      if (!std::isnan(entry)) plain.push_back(entry);
    std::sort(plain.begin(), plain.end());
    plain.erase(std::unique(plain.begin(), plain.end()), plain.end());
    const auto nans =
        std::count_if(list.begin(), list.end(), [](float v) { return std::isnan(v); });
    auto n = size_of(list);
    trvmer12(list.data(), n, 0);
    list.resize(plain.size());
    ASSERT_EQ(n, size_of(plain) + nans) << trial;
    ASSERT_EQ(list, plain) << trial;
  }
}

TEST(Merging, ListsAreSiftedWithAndWithoutMemory) {
  OddLists lists;
  Integers a(100000), b(3000), held, rest;
  for (Integers *list : {&a, &b})
    for (auto &entry : *list) entry = lists.below(9000) - 4000;
  const std::set<std::int32_t> in_b(b.begin(), b.end());
  for (const auto entry : a) (in_b.count(entry) != 0 ? held : rest).push_back(entry);
  ASSERT_TRUE(held.size() > 20000 && rest.size() > 20000);

  for (const bool memory : {true, false}) {
    Integers common(a.size()), left = a;
    std::int32_t found = kept, stay = size_of(a), removed = kept;
    const auto sift = [&] {
      trvmer14(size_of(a), a.data(), size_of(b), b.data(), found, common.data());
      trvmer15(stay, left.data(), size_of(b), b.data(), removed);
    };
    memory ? sift() : without_memory(sift);
    common.resize(static_cast<std::size_t>(found));
    left.resize(static_cast<std::size_t>(stay));
    EXPECT_TRUE(common == held && left == rest && removed == size_of(held)) << memory;
  }
  std::int32_t n = -2, count = kept;
  trvmer15(n, a.data(), 3, b.data(), count);
  EXPECT_TRUE(n == -2 && count == 0);
}

TEST(Merging, OutlinesLoseRepeatedVertices) {
  // The fourth repeats the third, and so do the last two the first, but not each other.
  Reals x = {0, 0.25F, 4, 4.375F, 4.75F, 0, 0.5F, -0.25F}, y = {0, 0, 0, 0.5F, 0, 3, 0.5F, 0};
  std::int32_t n = 8;
  trvmer16(x.data(), y.data(), n, 0.5F);
  EXPECT_EQ(n, 4);
  EXPECT_EQ(Reals(x.begin(), x.begin() + 4), (Reals{0, 4, 4.75F, 0}));
  EXPECT_EQ(Reals(y.begin(), y.begin() + 4), (Reals{0, 0, 0, 3}));
}
