#include <chrono>
#include <numeric>
#include <random>
#include <set>

#include "support.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

namespace {

using Integers = std::vector<std::int32_t>;
using Reals = std::vector<float>;

std::int32_t size_of(const Integers &v) { return static_cast<std::int32_t>(v.size()); }

}  // namespace

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
  Reals coarse = {5, 1, 2, 3};
  n = 4;
  trvmer12(coarse.data(), n, 1);
  EXPECT_EQ(n, 3);
  EXPECT_EQ(Reals(coarse.begin(), coarse.begin() + 3), (Reals{1, 3, 5}));
  n = 0;
  trvmer12(nullptr, n, 1);
  EXPECT_EQ(n, 0);
}

TEST(Merging, JoinedListsPointToWhatStands) {
  const Reals a = {1, 2, 1};
  const Reals b = {2.05F, 7, 1.1F, 7.05F, 0.95F};
  Reals out(8, unwritten);
  Integers ib(6, unwritten_int);
  std::int32_t nout = 0;
  trvmer4(3, a.data(), 5, b.data(), 0.0625F, nout, out.data(), ib.data());
  EXPECT_EQ(nout, 5);
  EXPECT_EQ(out, (Reals{1, 2, 1, 7, 1.1F, unwritten, unwritten, unwritten}));
  EXPECT_EQ(ib, (Integers{2, 4, 5, 4, 1, unwritten_int}));
}

TEST(Merging, LongListsAreSiftedInLittleTime) {
  std::mt19937 random(5);
  std::uniform_int_distribution<std::int32_t> draw(0, 300000);
  Integers a(100000), b(100000);
  for (Integers *list : {&a, &b})
    for (auto &entry : *list) entry = draw(random);
  const std::set<std::int32_t> in_b(b.begin(), b.end());
  Integers held, rest;
  for (const auto entry : a) (in_b.count(entry) != 0 ? held : rest).push_back(entry);
  ASSERT_TRUE(held.size() > 20000 && rest.size() > 20000);

  const auto start = std::chrono::steady_clock::now();
  Integers common(a.size());
  std::int32_t n = 0;
  trvmer14(size_of(a), a.data(), size_of(b), b.data(), n, common.data());
  common.resize(static_cast<std::size_t>(n));
  EXPECT_EQ(common, held);
  Integers kept = a;
  n = size_of(kept);
  std::int32_t count = 0;
  trvmer15(n, kept.data(), size_of(b), b.data(), count);
  kept.resize(static_cast<std::size_t>(n));
  EXPECT_EQ(kept, rest);
  EXPECT_EQ(count, static_cast<std::int32_t>(held.size()));
  Integers sorted = a;
  n = size_of(sorted);
  trvmer2(sorted.data(), n);
  EXPECT_EQ(static_cast<std::size_t>(n), std::set<std::int32_t>(a.begin(), a.end()).size());
  Reals reals(a.begin(), a.end());
  n = size_of(a);
  trvmer3(reals.data(), n);
  EXPECT_TRUE(std::is_sorted(reals.begin(), reals.begin() + n));
  // Ten thousand million comparisons, a quadratic way, would take far longer.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));

  n = -2;
  trvmer15(n, a.data(), 3, b.data(), count);
  EXPECT_TRUE(n == -2 && count == 0);
}

TEST(Merging, OutlinesLoseRepeatedVertices) {
  Reals x = {0, 0.25F, 4, 4, 4.5F, 0, 0.5F}, y = {0, 0, 0, 0.5F, 3, 3, 0.5F};
  std::int32_t n = 7;
  trvmer16(x.data(), y.data(), n, 0.5F);
  EXPECT_EQ(n, 4);
  EXPECT_EQ(Reals(x.begin(), x.begin() + 4), (Reals{0, 4, 4.5F, 0}));
  EXPECT_EQ(Reals(y.begin(), y.begin() + 4), (Reals{0, 0, 3, 3}));
}

TEST(Merging, PointsFindTheirPartners) {
  const Reals xa = {0, 1, 2}, ya = {0, 0, 5}, za = {3, 3, 6};
  const Reals xb = {1, 9, 0}, yb = {0, 9, 0}, zb = {3.001F, 9, 3};
  Integers ia(9, unwritten_int), ib(9, unwritten_int);
  std::int32_t count = 0;
  std::int32_t status = unwritten_int;
  const auto match = [&](std::int32_t na, std::int32_t nb, float tol) {
    trvptp1(na, xa.data(), ya.data(), za.data(), nb, xb.data(), yb.data(), zb.data(), tol, count,
            ia.data(), ib.data(), status);
    return status;
  };
  EXPECT_EQ(match(3, 3, 0.01F), 1);
  EXPECT_EQ(count, 2);
  EXPECT_EQ(Integers(ia.begin(), ia.begin() + 3), (Integers{1, 2, unwritten_int}));
  EXPECT_EQ(Integers(ib.begin(), ib.begin() + 2), (Integers{3, 1}));
  EXPECT_EQ(match(2, 3, 0.01F), 2);
  EXPECT_EQ(match(2, 2, 1e-4F), 0);
  EXPECT_EQ(match(0, 3, 0.01F), 0);

  // Three lists: places in order, the points at one of them, and the storeys.
  const Reals xc = {2, 0}, yc = {5, 0}, zc = {6, 3};
  std::int32_t counts[3], nout = 0, nk = 0, nz = 0;
  Integers pairs[6], at[3] = {Integers(3), Integers(3), Integers(2)}, at_place(8, unwritten_int);
  for (auto &list : pairs) list.resize(9);
  Reals xo(8, unwritten), yo(8), zo(8), levels(8);
  trvptp2(3, xa.data(), ya.data(), za.data(), 3, xb.data(), yb.data(), zb.data(), 2, xc.data(),
          yc.data(), zc.data(), 0.01F, counts[0], pairs[0].data(), pairs[1].data(), counts[1],
          pairs[2].data(), pairs[3].data(), counts[2], pairs[4].data(), pairs[5].data(), nout,
          xo.data(), yo.data(), zo.data(), at[0].data(), at[1].data(), at[2].data(), 1, nk,
          at_place.data(), nz, levels.data());
  EXPECT_EQ(Integers(counts, counts + 3), (Integers{2, 1, 2}));
  EXPECT_TRUE(pairs[2][0] == 3 && pairs[3][0] == 2);  // B and C
  EXPECT_TRUE(pairs[4][0] == 1 && pairs[5][0] == 3 && pairs[4][1] == 2 && pairs[5][1] == 1);
  EXPECT_EQ(nout, 4);
  EXPECT_EQ(Reals(xo.begin(), xo.begin() + 5), (Reals{0, 1, 2, 9, unwritten}));
  EXPECT_EQ(at[0], (Integers{1, 2, 3}));
  EXPECT_EQ(at[1], (Integers{2, 4, 1}));
  EXPECT_EQ(at[2], (Integers{3, 1}));
  EXPECT_EQ(nk, 3);
  EXPECT_EQ(Integers(at_place.begin(), at_place.begin() + 4), (Integers{1, 6, 8, unwritten_int}));
  EXPECT_EQ(nz, 3);
  EXPECT_EQ(Reals(levels.begin(), levels.begin() + 3), (Reals{3, 6, 9}));
}
