#include "lists/odd_lists.h"
#include "trelvin/lists.h"

using namespace trelvin_test;

namespace {

constexpr std::int32_t u = unwritten_int;

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

bool agree(const Points &p, std::size_t i, const Points &q, std::size_t j, float tol) {
  return agree(p.x[i], q.x[j], tol) && agree(p.y[i], q.y[j], tol) && agree(p.z[i], q.z[j], tol);
}

struct Pairs {
  Integers a, b;
  std::int32_t status;
};

Pairs pair(const Points &a, std::int32_t na, const Points &b, std::int32_t nb, float tol) {
  const std::size_t room = a.x.size() * b.x.size() + 1;
  Pairs pairs = {Integers(room, u), Integers(room, u), u};
  std::int32_t count = u;
  trvptp1(na, a.x.data(), a.y.data(), a.z.data(), nb, b.x.data(), b.y.data(), b.z.data(), tol,
          count, pairs.a.data(), pairs.b.data(), pairs.status);
  const auto found = static_cast<std::size_t>(count);
  EXPECT_TRUE(pairs.a[found] == u && pairs.b[found] == u);
  pairs.a.resize(found);
  pairs.b.resize(found);
  return pairs;
}
Pairs pair(const Points &a, const Points &b, float tol) { return pair(a, a.n(), b, b.n(), tol); }

Pairs pair_plainly(const Points &a, const Points &b, float tol) {
  Pairs pairs = {{}, {}, 0};
  std::int32_t partnered = 0;
  for (std::int32_t i = 0; i < a.n(); ++i) {
    const std::size_t before = pairs.a.size();
    for (std::int32_t j = 0; j < b.n(); ++j) {
      if (!agree(a, static_cast<std::size_t>(i), b, static_cast<std::size_t>(j), tol)) continue;
      pairs.a.push_back(i + 1);
      pairs.b.push_back(j + 1);
    }
    partnered += pairs.a.size() > before ? 1 : 0;
  }
  pairs.status = partnered == 0 ? 0 : partnered < a.n() ? 1 : 2;
  return pairs;
}

bool operator==(const Pairs &p, const Pairs &q) {
  return p.a == q.a && p.b == q.b && p.status == q.status;
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
  std::int32_t counts[3] = {u, u, u}, nout = u, nk = u, nz = u;
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

TEST(PointLists, FindTheirPartners) {
  const Points a = {{0, 1, 2}, {0, 0, 5}, {3, 3, 6}}, b = {{1, 9, 0}, {0, 9, 0}, {3.001F, 9, 3}};
  EXPECT_TRUE(pair(a, b, 0.01F) == (Pairs{{1, 2}, {3, 1}, 1}));
  EXPECT_TRUE(pair(a, 2, b, 3, 0.01F) == (Pairs{{1, 2}, {3, 1}, 2}));
  EXPECT_TRUE(pair(a, 2, b, 2, 1e-4F) == (Pairs{{}, {}, 0}));
  EXPECT_TRUE(pair(a, -2, b, 3, 9) == (Pairs{{}, {}, 0}));
  EXPECT_TRUE(pair(a, 3, b, -1, 9) == (Pairs{{}, {}, 0}));
}

TEST(PointLists, OddPointsFindTheirPartners) {
  OddLists lists;
  for (int trial = 0; trial < 3000; ++trial) {
    const float tol = lists.tolerance();
    const Points a = odd_points(lists, {}, tol), b = odd_points(lists, a, tol);
    ASSERT_TRUE(pair(a, b, tol) == pair_plainly(a, b, tol)) << trial;
  }
}

TEST(PointLists, WithoutMemoryTheyFindTheirPartnersToo) {
  OddLists lists;
  Points a, b;
  for (std::int32_t i = 0; i < 100000; ++i) {
    for (Reals *list : {&b.x, &b.y, &b.z}) list->push_back(static_cast<float>(lists.below(30)));
  }
  for (Reals *list : {&a.x, &a.y, &a.z}) *list = {3, 5, 8, 2, 9, 9, 1, 4, 7, 29};
  const Pairs with = pair(a, b, 1);
  Integers ia(with.a.size()), ib(with.a.size());
  std::int32_t count = u, status = u;
  without_memory([&] {
    trvptp1(a.n(), a.x.data(), a.y.data(), a.z.data(), b.n(), b.x.data(), b.y.data(), b.z.data(), 1,
            count, ia.data(), ib.data(), status);
  });
  EXPECT_GT(count, 500);
  EXPECT_TRUE((Pairs{ia, ib, status}) == with);
}

TEST(PointLists, MergeIntoPlacesAndLevels) {
  // The second of B is within the tolerance of the first, below it; the second of C above it.
  const Points lists[] = {{{0, 1, 2}, {0, 7, 5}, {3, 3, 6}},
                          {{1, 9, 0}, {7, 8, 0}, {3.5F, 9, 3}},
                          {{2, 0.5F}, {5, 0}, {6, 2.5F}}};
  const Merged m = merge(lists, 0.5F, 1);
  EXPECT_EQ(m.pairs[0], (Integers{1, 2}));
  EXPECT_EQ(m.pairs[1], (Integers{3, 1}));
  EXPECT_EQ(m.pairs[2], Integers{3});
  EXPECT_EQ(m.pairs[3], Integers{2});
  EXPECT_EQ(m.pairs[4], (Integers{1, 2}));
  EXPECT_EQ(m.pairs[5], (Integers{3, 1}));
  EXPECT_EQ(m.places.x, (Reals{0, 1, 2, 9}));
  EXPECT_EQ(m.places.y, (Reals{0, 7, 5, 8}));
  EXPECT_EQ(m.places.z, (Reals{3, 3, 6, 9}));
  EXPECT_EQ(m.place_of[0], (Integers{1, 2, 3}));
  EXPECT_EQ(m.place_of[1], (Integers{2, 4, 1}));
  EXPECT_EQ(m.place_of[2], (Integers{3, 1}));
  EXPECT_EQ(m.at_k, (Integers{1, 6, 8}));
  EXPECT_EQ(m.levels, (Reals{3, 6, 9}));
  EXPECT_EQ(merge(lists, 0.49F, 1).places.x, (Reals{0, 1, 2, 1, 9, 0.5F}));
  EXPECT_TRUE(merge(lists, 0.5F, 5).at_k.empty());
}

TEST(PointLists, OddPointsMergeInTheirOrder) {
  OddLists lists;
  for (int trial = 0; trial < 2000; ++trial) {
    const float tol = lists.tolerance();
    Points p[3] = {odd_points(lists, {}, tol), {}, {}};
    p[1] = odd_points(lists, p[0], tol);
    p[2] = odd_points(lists, p[1], tol);
    const Merged m = merge(p, tol, 1);
    Points places;
    for (std::size_t k = 0; k < 3; ++k) {
      for (std::size_t i = 0; i < p[k].x.size(); ++i) {
        std::size_t place = 0;
        while (place < places.x.size() && !agree(p[k], i, places, place, tol)) ++place;
        if (place == places.x.size()) {
          places.x.push_back(p[k].x[i]);
          places.y.push_back(p[k].y[i]);
          places.z.push_back(p[k].z[i]);
        }
        ASSERT_EQ(m.place_of[k][i], static_cast<std::int32_t>(place + 1)) << trial;
      }
      const Pairs plain = pair_plainly(p[k], p[(k + 1) % 3], tol);
      ASSERT_TRUE(m.pairs[2 * k] == plain.a && m.pairs[2 * k + 1] == plain.b) << trial;
    }
    ASSERT_TRUE(same_bits(m.places.x, places.x) && same_bits(m.places.z, places.z)) << trial;
  }
}

TEST(PointLists, JoinedListsPointToWhatStands) {
  const Reals a = {1, 2, 1}, b = {2.05F, 7, 1.1F, 7.05F, 0.95F};
  Reals out(8, unwritten);
  Integers ib(6, u);
  std::int32_t nout = 0;
  trvmer4(3, a.data(), 5, b.data(), 0.0625F, nout, out.data(), ib.data());
  EXPECT_EQ(nout, 5);
  EXPECT_EQ(out, (Reals{1, 2, 1, 7, 1.1F, unwritten, unwritten, unwritten}));
  EXPECT_EQ(ib, (Integers{2, 4, 5, 4, 1, u}));
  for (const std::int32_t na : {0, -3}) {
    trvmer4(na, a.data(), 2, b.data() + 1, 0.0625F, nout, out.data(), ib.data());
    EXPECT_EQ(nout, 2);
    EXPECT_TRUE(out[0] == 7 && out[1] == 1.1F && ib[0] == 1 && ib[1] == 2);
  }
}

TEST(PointLists, OddListsAreJoinedInTheirOrder) {
  OddLists lists;
  for (int trial = 0; trial < 4000; ++trial) {
    const Reals a = lists.reals(), b = lists.reals();
    const float tol = lists.tolerance();
    Reals plain = a, out(a.size() + b.size());
    Integers ib(b.size(), u);
    std::int32_t nout = u;
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
