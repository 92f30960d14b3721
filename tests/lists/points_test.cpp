#include "lists/odd_lists.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

namespace {

struct Points {
  Reals x, y, z;
  [[nodiscard]] std::int32_t n() const { return size_of(x); }
};

// Entries of odd lists, and copies of points of `from` with a coordinate a little off.
Points odd_points(OddLists &lists, const Points &from, float tol) {
  Points points = {lists.reals(), lists.reals(), lists.reals()};
  const std::size_t n = std::min({points.x.size(), points.y.size(), points.z.size()});
  for (Reals *list : {&points.x, &points.y, &points.z}) list->resize(n);
  for (std::size_t i = 0; i < n && from.n() > 0; i += 2) {
    const auto k = static_cast<std::size_t>(lists.below(from.n()));
    points.x[i] = from.x[k] + 0.5F * tol * static_cast<float>(lists.below(5) - 2);
    points.y[i] = from.y[k];
    points.z[i] = from.z[k];
  }
  return points;
}

bool agree(float a, float b, float tol) { return a == b || std::fabs(a - b) <= tol; }

auto agreement(const Points &p, const Points &q, float tol) {
  return [&p, &q, tol](std::size_t i, std::size_t j) {
    return agree(p.x[i], q.x[j], tol) && agree(p.y[i], q.y[j], tol) && agree(p.z[i], q.z[j], tol);
  };
}

using Pairs = std::vector<Integers>;  // the positions in A, those in B

template <class Agree>
Pairs pair_plainly(std::size_t na, std::size_t nb, Agree agrees) {
  Pairs pairs(2);
  for (std::size_t k = 0; k < na * nb; ++k) {
    if (!agrees(k / nb, k % nb)) continue;
    pairs[0].push_back(static_cast<std::int32_t>(k / nb + 1));
    pairs[1].push_back(static_cast<std::int32_t>(k % nb + 1));
  }
  return pairs;
}

Pairs pair(const Points &a, const Points &b, float tol, std::int32_t &status) {
  Pairs pairs(2, Integers(a.x.size() * b.x.size() + 1, kept));
  std::int32_t count = kept;
  trvptp1(a.n(), a.x.data(), a.y.data(), a.z.data(), b.n(), b.x.data(), b.y.data(), b.z.data(), tol,
          count, pairs[0].data(), pairs[1].data(), status);
  for (Integers &positions : pairs) {
    EXPECT_EQ(positions[static_cast<std::size_t>(count)], kept);
    positions.resize(static_cast<std::size_t>(count));
  }
  return pairs;
}

struct Merged {
  Points places;
  Integers pairs[6], place_of[3], at_k;
  Reals levels;
};

template <class... Lists>
void shrink(std::int32_t n, Lists &...lists) {
  (lists.resize(static_cast<std::size_t>(n)), ...);
}

Merged merge(const Points (&p)[3], float tol, std::int32_t k) {
  const std::int32_t all = p[0].n() + p[1].n() + p[2].n();
  Merged m;
  for (std::size_t i = 0; i < 3; ++i) {
    shrink(p[i].n(), m.place_of[i]);
    shrink(p[i].n() * p[(i + 1) % 3].n(), m.pairs[2 * i], m.pairs[2 * i + 1]);
  }
  shrink(all, m.places.x, m.places.y, m.places.z, m.at_k, m.levels);
  std::int32_t counts[3] = {kept, kept, kept}, nout = kept, nk = kept, nz = kept;
  trvptp2(p[0].n(), p[0].x.data(), p[0].y.data(), p[0].z.data(), p[1].n(), p[1].x.data(),
          p[1].y.data(), p[1].z.data(), p[2].n(), p[2].x.data(), p[2].y.data(), p[2].z.data(), tol,
          counts[0], m.pairs[0].data(), m.pairs[1].data(), counts[1], m.pairs[2].data(),
          m.pairs[3].data(), counts[2], m.pairs[4].data(), m.pairs[5].data(), nout,
          m.places.x.data(), m.places.y.data(), m.places.z.data(), m.place_of[0].data(),
          m.place_of[1].data(), m.place_of[2].data(), k, nk, m.at_k.data(), nz, m.levels.data());
  for (std::size_t i = 0; i < 3; ++i) shrink(counts[i], m.pairs[2 * i], m.pairs[2 * i + 1]);
  shrink(nout, m.places.x, m.places.y, m.places.z);
  shrink(nk, m.at_k);
  shrink(nz, m.levels);
  return m;
}

}  // namespace

TEST(PointLists, SomeOrAllPointsHavePartners) {
  const Points a = {{0, 1, 2}, {0, 0, 5}, {3, 3, 6}}, b = {{1, 9, 0}, {0, 9, 0}, {3.001F, 9, 3}};
  std::int32_t status = kept;
  EXPECT_EQ(pair(a, b, 0.01F, status), (Pairs{{1, 2}, {3, 1}}));
  EXPECT_EQ(status, TRVPTP1_SOME_PAIRS);
  EXPECT_EQ(pair(a, b, 1e-4F, status), (Pairs{{1}, {3}}));
  EXPECT_EQ(pair(b, {{1}, {0}, {9}}, 1, status), Pairs(2));
  EXPECT_EQ(status, TRVPTP1_NO_PAIR);
  EXPECT_EQ(pair({{2, 9}, {1, 9}, {3, 9}}, b, 1, status), (Pairs{{1, 2}, {1, 2}}));
  EXPECT_EQ(status, TRVPTP1_ALL_PAIRED);
  std::int32_t count = kept;
  trvptp1(-2, a.x.data(), a.y.data(), a.z.data(), 3, b.x.data(), b.y.data(), b.z.data(), 9, count,
          nullptr, nullptr, status);
  EXPECT_TRUE(count == 0 && status == 0);
}

TEST(PointLists, PairsOfNumbersWithinATolerance) {
  const float a[] = {0, 1, 1.25F, not_a_number}, b[] = {1.25F, 0, 1.5F};
  std::int32_t count = kept, ia[] = {kept, kept, kept, kept, kept, kept, kept, kept},
               ib[] = {kept, kept, kept, kept, kept, kept, kept, kept};
  trvmer13(-1, a, 3, b, count, ia, ib, 5);
  EXPECT_EQ(count, 0);
  EXPECT_TRUE(ia[1] == 0 && ia[2] == kept && ib[1] == 0 &&
              ib[2] == kept);  // as far as the counts sum up
  trvmer13(4, a, 3, b, count, ia, ib, 0.25F);
  EXPECT_EQ(count, 4);
  EXPECT_EQ(Values(ia, ia + 8), (Values{1, 2, 3, 3, 0, 0, 0, kept}));
  EXPECT_EQ(Values(ib, ib + 8), (Values{2, 1, 1, 3, 0, 0, 0, kept}));
}

TEST(PointLists, OddListsArePairedAsThePlainWay) {
  OddLists lists;
  for (int trial = 0; trial < 3000; ++trial) {
    const float tol = lists.tolerance();
    const Points a = odd_points(lists, {}, tol), b = odd_points(lists, a, tol);
    std::int32_t status = kept, count = kept;
    ASSERT_EQ(pair(a, b, tol, status), pair_plainly(a.x.size(), b.x.size(), agreement(a, b, tol)))
        << trial;
    Pairs plain = pair_plainly(a.x.size(), b.x.size(), [&](std::size_t i, std::size_t j) {
      return std::fabs(a.x[i] - b.x[j]) <= tol;  // equal infinities are no pair here
    });
    Pairs pairs(2, Integers(a.x.size() * b.x.size() + a.x.size() + b.x.size(), kept));
    trvmer13(a.n(), a.x.data(), b.n(), b.x.data(), count, pairs[0].data(), pairs[1].data(), tol);
    for (Integers &positions : pairs) positions.resize(static_cast<std::size_t>(count));
    ASSERT_EQ(pairs, plain) << trial;
  }
}

TEST(PointLists, MergeIntoPlacesAndLevels) {
  // The second of B is within the tolerance of the first, below it; the second of C above it.
  const Points lists[] = {{{0, 1, 2}, {0, 7, 5}, {3, 3.25F, 6}},
                          {{1, 9, 0}, {7, 8, 0}, {3.75F, 9, 3}},
                          {{2, 0.5F}, {5, 0}, {6, 2.5F}}};
  const Merged m = merge(lists, 0.5F, 1);
  EXPECT_EQ(m.places.x, (Reals{0, 1, 2, 9}));
  EXPECT_EQ(m.place_of[0], (Integers{1, 2, 3}));
  EXPECT_EQ(m.at_k, (Integers{1, 6, 8}));
  EXPECT_EQ(m.levels, (Reals{3, 6, 9}));
  EXPECT_EQ(merge(lists, 0.49F, 1).places.x, (Reals{0, 1, 2, 1, 9, 0.5F}));
  EXPECT_TRUE(merge(lists, 0.5F, 5).at_k.empty());
}

TEST(PointLists, OddPointsMergeAsThePlainWay) {
  OddLists lists;
  for (int trial = 0; trial < 2000; ++trial) {
    const float tol = lists.tolerance();
    Points p[3] = {odd_points(lists, {}, tol), {}, {}}, places;
    p[1] = odd_points(lists, p[0], tol);
    p[2] = odd_points(lists, p[1], tol);
    const Merged m = merge(p, tol, 1);
    for (std::size_t k = 0; k < 3; ++k) {
      for (std::size_t i = 0; i < p[k].x.size(); ++i) {
        std::size_t place = 0;
        const auto agrees = agreement(p[k], places, tol);
        while (place < places.x.size() && !agrees(i, place)) ++place;
        ASSERT_EQ(m.place_of[k][i], static_cast<std::int32_t>(place + 1)) << trial;
        if (place < places.x.size()) continue;
        places.x.push_back(p[k].x[i]);
        places.y.push_back(p[k].y[i]);
        places.z.push_back(p[k].z[i]);
      }
      const Points &next = p[(k + 1) % 3];
      ASSERT_EQ((Pairs{m.pairs[2 * k], m.pairs[2 * k + 1]}),
                pair_plainly(p[k].x.size(), next.x.size(), agreement(p[k], next, tol)))
          << trial;
    }
    ASSERT_TRUE(same_bits(m.places.x, places.x) && same_bits(m.places.z, places.z)) << trial;
  }
}

TEST(PointLists, JoinedToNothingAListStillLosesWhatAgrees) {
  const Reals b = {7, 1.1F, 7.05F};
  for (const std::int32_t na : {0, -3}) {
    Reals out(4, kept);
    Integers ib(4, kept);
    std::int32_t nout = kept;
    trvmer4(na, nullptr, 3, b.data(), 0.0625F, nout, out.data(), ib.data());
    EXPECT_EQ(nout, 2);
    EXPECT_EQ(out, (Reals{7, 1.1F, kept, kept}));
    EXPECT_EQ(ib, (Integers{1, 2, 1, kept}));
  }
}

TEST(PointLists, OddListsAreJoinedInTheirOrder) {
  OddLists lists;
  for (int trial = 0; trial < 4000; ++trial) {
    const Reals a = lists.reals(), b = lists.reals();
    const float tol = lists.tolerance();
    Reals plain = a, out(a.size() + b.size());
    Integers ib(b.size(), kept);
    std::int32_t nout = kept;
    trvmer4(size_of(a), a.data(), size_of(b), b.data(), tol, nout, out.data(), ib.data());
    for (std::size_t j = 0; j < b.size(); ++j) {
      std::size_t place = 0;
      while (place < plain.size() && !agree(b[j], plain[place], tol)) ++place;
      if (place == plain.size()) plain.push_back(b[j]);
      ASSERT_EQ(ib[j], static_cast<std::int32_t>(place + 1)) << trial;
    }
    out.resize(static_cast<std::size_t>(nout));
    ASSERT_TRUE(same_bits(out, plain)) << trial;
  }
}

TEST(PointLists, WithoutMemoryTheResultsAreTheSame) {
  constexpr std::int32_t n = 20000, few = 50;
  constexpr float tol = 0.0625F;
  Reals many(n), some(few);
  for (std::size_t i = 0; i < n; ++i) many[i] = 0.25F * static_cast<float>(i * 7919 % n);
  for (std::size_t i = 0; i < few; ++i) some[i] = many[400 * i] + (i % 2 == 0 ? tol : 0.1F);
  // Counts, positions of both pairings, those of the new entries.
  std::vector<Integers> found(6, Integers(n + few)), without = found;
  Reals joined(n + few), joined_without = joined;
  const auto run = [&](std::vector<Integers> &to, Reals &out) {
    trvmer13(few, some.data(), n, many.data(), to[0][0], to[1].data(), to[2].data(), tol);
    trvmer13(n, many.data(), few, some.data(), to[0][1], to[3].data(), to[4].data(), tol);
    trvmer4(n, many.data(), few, some.data(), tol, to[0][2], out.data(), to[5].data());
  };
  run(found, joined);
  without_memory([&] { run(without, joined_without); });
  EXPECT_TRUE(without == found && joined_without == joined);
  EXPECT_EQ(found[0][0], few / 2);
}
