// Matching of points of space. Every list holds the same points, moved by less than the tolerance
// and shuffled, and the points are far apart: which are partners is known beforehand.
#include <trelvin/lists.h>

#include <algorithm>

#include "task.h"

namespace bench {
namespace {

constexpr const char *family = "Points of space";
constexpr float tol = 0.01F;
constexpr float edge = 1000;
constexpr int large = 100000;
const std::vector<int> sizes = {1000, 10000, large};

std::int32_t count_of(const Cloud &points) { return static_cast<std::int32_t>(points.size()); }

// Points, and for each the position of the original.
struct Moved {
  Cloud points;
  Integers original;
};

Moved moved(const Cloud &from, std::uint32_t seed) {
  Random random(seed);
  Moved to{{}, positions(from.size())};
  random.shuffle(to.original);
  const auto near = [&](float value) { return value + random.real(-0.3F * tol, 0.3F * tol); };
  for (const std::int32_t position : to.original) {
    const auto i = static_cast<std::size_t>(position - 1);
    to.points.x.push_back(near(from.x[i]));
    to.points.y.push_back(near(from.y[i]));
    to.points.z.push_back(near(from.z[i]));
  }
  return to;
}

struct Lists {
  Cloud a;
  Moved b, c;
};

Lists lists(int n) {
  Random random(11);
  Lists all{cloud(random, n, edge), {}, {}};
  all.b = moved(all.a, 12);
  all.c = moved(all.a, 13);
  return all;
}

Integers inverse(const Integers &order) {
  Integers place(order.size());
  for (std::size_t i = 0; i < order.size(); ++i) {
    place[static_cast<std::size_t>(order[i] - 1)] = static_cast<std::int32_t>(i + 1);
  }
  return place;
}

// Pairs ------------------------------------------------------------------------------------------

void match(Match &m) {
  std::int32_t count = 0;
  std::int32_t status = 0;
  trvptp1(count_of(m.a), m.a.x.data(), m.a.y.data(), m.a.z.data(), count_of(m.b), m.b.x.data(),
          m.b.y.data(), m.b.z.data(), m.tol, count, m.ia.data(), m.ib.data(), status);
  m.pairs = static_cast<std::size_t>(count);
}

// By A, as the routine gives them; a peer's order is free.
template <bool is_ordered>
std::vector<double> pairs_of(const Match &m) {
  std::vector<std::pair<double, double>> pairs;
  for (std::size_t k = 0; k < m.pairs; ++k) pairs.emplace_back(m.ia[k], m.ib[k]);
  if (!is_ordered) std::sort(pairs.begin(), pairs.end());
  std::vector<double> all;
  for (const auto &[i, j] : pairs) all.insert(all.end(), {i, j});
  return all;
}

std::vector<Contender> matching(int n, const std::vector<Way<Match>> &peers) {
  const Lists all = lists(n);
  const Integers room(2 * all.a.size());
  const Match data{all.a, all.b.points, tol, room, room};
  const std::vector<Way<Match>> own{{"Trelvin", match}};
  auto ways = contenders<Input::kept>(data, own, pairs_of<true>);
  for (auto &peer : contenders<Input::kept>(data, peers, pairs_of<false>)) ways.push_back(peer);
  return ways;
}

std::vector<double> true_pairs(int n) {
  const Lists all = lists(n);
  const Integers partner = inverse(all.b.original);
  std::vector<double> pairs;
  for (std::size_t i = 0; i < partner.size(); ++i) {
    pairs.insert(pairs.end(), {static_cast<double>(i + 1), static_cast<double>(partner[i])});
  }
  return pairs;
}

// Places of three lists --------------------------------------------------------------------------

struct Placing {
  explicit Placing(Lists data) : lists(std::move(data)), size(lists.a.size()) {
    for (Integers *array : {&iab, &jab, &ibc, &jbc, &ica, &jca}) array->resize(2 * size);
    for (Integers *array : {&ma, &mb, &mc}) array->resize(size);
    for (Reals *array : {&xo, &yo, &zo, &zl}) array->resize(3 * size);
    pk.resize(3 * size);
  }
  void run() {
    const Cloud &a = lists.a;
    const Cloud &b = lists.b.points;
    const Cloud &c = lists.c.points;
    const std::int32_t n = count_of(a);
    trvptp2(n, a.x.data(), a.y.data(), a.z.data(), n, b.x.data(), b.y.data(), b.z.data(), n,
            c.x.data(), c.y.data(), c.z.data(), tol, nab, iab.data(), jab.data(), nbc, ibc.data(),
            jbc.data(), nca, ica.data(), jca.data(), nout, xo.data(), yo.data(), zo.data(),
            ma.data(), mb.data(), mc.data(), 1, nk, pk.data(), nz, zl.data());
  }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    for (const std::int32_t count : {nab, nbc, nca, nout, nk}) all.push_back(count);
    all.insert(all.end(), pk.begin(), pk.begin() + nk);
    for (const Integers *places : {&ma, &mb, &mc}) {
      all.insert(all.end(), places->begin(), places->end());
    }
    return all;
  }
  Lists lists;
  std::size_t size;
  Integers iab, jab, ibc, jbc, ica, jca, ma, mb, mc, pk;
  Reals xo, yo, zo, zl;
  std::int32_t nab = 0, nbc = 0, nca = 0, nout = 0, nk = 0, nz = 0;
};

std::vector<double> true_places(int n) {
  const Lists all = lists(n);
  std::vector<double> truth(4, n);
  // At the first place: the first point and its two partners.
  truth.insert(truth.end(),
               {3, 1, 1.0 * n + inverse(all.b.original)[0], 2.0 * n + inverse(all.c.original)[0]});
  const Integers own = positions(all.a.size());
  for (const Integers *places : {&own, &all.b.original, &all.c.original}) {
    truth.insert(truth.end(), places->begin(), places->end());
  }
  return truth;
}

}  // namespace

void add_matching(std::vector<Task> &tasks, const Peers &peers) {
  Task pairs{family, "trvptp1", sizes, [peers](int n) { return matching(n, peers.match); }};
  pairs.goals = {{Goal::Kind::ratio, large, 0.2, ""}, {Goal::Kind::growth, large, 1.2, "", 10000}};
  pairs.truth = true_pairs;
  tasks.push_back(std::move(pairs));

  Task places{family, "trvptp2 (3 lists)", sizes, [](int n) {
                return std::vector<Contender>{contender("Trelvin", Placing(lists(n)))};
              }};
  places.goals = {{Goal::Kind::per_call, large, 30e6}, {Goal::Kind::growth, large, 1.2, "", 10000}};
  places.truth = true_places;
  tasks.push_back(std::move(places));
}

}  // namespace bench
