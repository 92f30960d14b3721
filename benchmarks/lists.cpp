// Ordering of lists and merging of single values.
#include <trelvin/lists.h>

#include <algorithm>
#include <map>
#include <unordered_set>

#include "task.h"

namespace bench {
namespace {

constexpr const char *one_list = "Ordering";
constexpr const char *two_lists = "Two lists";
constexpr double millisecond = 1e6;  // in nanoseconds
constexpr int large = 100000;
const std::vector<int> sizes = {1000, 10000, large};

// Our way first.
template <class Data>
std::vector<Way<Data>> joined(std::vector<Way<Data>> own, const std::vector<Way<Data>> &peers) {
  own.insert(own.end(), peers.begin(), peers.end());
  return own;
}

std::int32_t count_of(std::size_t n) { return static_cast<std::int32_t>(n); }

// Sorting in place ---------------------------------------------------------------------------

template <class List>
std::vector<double> as_doubles(const List &values) {
  return {values.begin(), values.end()};
}

template <class List>
Task sorting(std::string name, List (*values)(int), void (*trelvin)(List &),
             const std::vector<Way<List>> &peers) {
  const std::vector<Way<List>> own{{"Trelvin", trelvin},
                                   {"std::sort", [](List &v) { std::sort(v.begin(), v.end()); }}};
  return {
      one_list,
      std::move(name),
      sizes,
      [values, ways = joined(own, peers)](int n) {
        return contenders<Input::fresh>(values(n), ways, as_doubles<List>);
      },
      {{Goal::Kind::ratio, large, 0.2, "std::sort"}, {Goal::Kind::growth, large, 1.15, "", 10000}}};
}

void add_sorts(std::vector<Task> &tasks, const Peers &peers) {
  tasks.push_back(sorting<Reals>(
      "trvord", [](int n) { return Random(1).reals(n, -1000, 1000); },
      [](Reals &v) { trvord(v.data(), count_of(v.size())); }, peers.sort_reals));
  tasks.push_back(sorting<Integers>(
      "trvord1", [](int n) { return Random(2).integers(n); },
      [](Integers &v) { trvord1(v.data(), count_of(v.size())); }, peers.sort_integers));
}

// Positions in ascending order -----------------------------------------------------------------

void order_by_comparison(Order &o) {
  std::iota(o.positions.begin(), o.positions.end(), 1);
  std::sort(o.positions.begin(), o.positions.end(), [&](std::int32_t p, std::int32_t q) {
    return o.keys[static_cast<std::size_t>(p - 1)] < o.keys[static_cast<std::size_t>(q - 1)];
  });
}

std::vector<Contender> ordering(Reals keys, const std::vector<Way<Order>> &ways) {
  Integers places(keys.size());
  return contenders<Input::kept>(Order{std::move(keys), std::move(places)}, ways,
                                 [](const Order &o) { return as_doubles(o.positions); });
}

// Lines a*x + b*y + C = 0 cross the y axis at -C/b. The factor of the constants is a power of two,
// so crossings are as distinct as the constants.
constexpr float line_a = 0.75F;
constexpr float line_b = 0.5F;

// The peers form the crossings too, but take it for granted that the lines are parallel.
Way<Order> by_crossing(const Way<Order> &way) {
  return {way.name, [way](Order &lines) {
            Order crossings{Reals(lines.keys.size()), std::move(lines.positions)};
            std::transform(lines.keys.begin(), lines.keys.end(), crossings.keys.begin(),
                           [](float c) { return 0 - c / line_b; });
            way.work(crossings);
            lines.positions = std::move(crossings.positions);
          }};
}

std::vector<Contender> crossings(int n, const std::vector<Way<Order>> &peers) {
  const auto size = static_cast<std::size_t>(n);
  std::vector<Way<Order>> ways{
      {"Trelvin", [a = Reals(size, line_a), b = Reals(size, line_b)](Order &o) {
         std::int32_t status = 0;
         trvpor(count_of(o.keys.size()), a.data(), b.data(), o.keys.data(), o.positions.data(),
                status);
       }}};
  for (const Way<Order> &peer : peers) ways.push_back(by_crossing(peer));
  Random random(4);
  Reals constants = distinct_reals(random, n, -1000, 1000);
  constants[0] = 2000;  // the first line has to be clear of the others by the library's tolerance
  return ordering(std::move(constants), ways);
}

void add_orders(std::vector<Task> &tasks, const Peers &peers) {
  const auto others = joined({{"std::sort", order_by_comparison}}, peers.order);
  const std::vector<Goal> goals{{Goal::Kind::ratio, large, 0.2, "std::sort"}};
  const Way<Order> trelvin{"Trelvin", [](Order &o) {
                             trvordi(o.keys.data(), count_of(o.keys.size()), o.positions.data());
                           }};
  tasks.push_back({one_list, "trvordi", sizes,
                   [ways = joined({trelvin}, others)](int n) {
                     Random random(3);
                     return ordering(distinct_reals(random, n, -1000, 1000), ways);
                   },
                   goals});
  tasks.push_back(
      {one_list, "trvpor", sizes, [others](int n) { return crossings(n, others); }, goals});
}

// Two lists --------------------------------------------------------------------------------------

constexpr float tol = 0.01F;

// Values at least five tolerances apart, so that what agrees with what is beyond doubt.
Reals spaced_values(Random &random, int first, int n) {
  Reals values;
  for (int i = first; i < first + n; ++i) {
    values.push_back(0.08F * (static_cast<float>(i) + random.real(0, 0.3F)));
  }
  return values;
}

Reals jittered(Random &random, Reals values) {
  for (float &value : values) value += random.real(-0.4F * tol, 0.4F * tol);
  random.shuffle(values);
  return values;
}

template <class List>
struct TwoLists {
  List a, b = {};
  List result = {};
  Integers places = {};
};

// Half of B is in A.
TwoLists<Reals> half_common(int n) {
  Random random(5);
  TwoLists<Reals> lists{spaced_values(random, 0, n)};
  Reals b(lists.a.begin(), lists.a.begin() + n / 2);
  const Reals others = spaced_values(random, n, n - n / 2);
  b.insert(b.end(), others.begin(), others.end());
  lists.b = jittered(random, b);
  random.shuffle(lists.a);
  return lists;
}

// Every entry has one partner.
TwoLists<Reals> all_common(int n) {
  Random random(6);
  TwoLists<Reals> lists{spaced_values(random, 0, n)};
  lists.b = jittered(random, lists.a);
  random.shuffle(lists.a);
  return lists;
}

TwoLists<Integers> common_integers(int n) {
  Random random(7);
  const Integers universe = random.integers(2 * n);
  TwoLists<Integers> lists;
  for (int i = 0; i < n; ++i) lists.a.push_back(universe[random.below(universe.size())]);
  for (int i = 0; i < n; ++i) lists.b.push_back(universe[random.below(universe.size())]);
  return lists;
}

// B's new entries behind A, and the place of each entry of B.
void join(TwoLists<Reals> &l) {
  std::int32_t written = 0;
  trvmer4(count_of(l.a.size()), l.a.data(), count_of(l.b.size()), l.b.data(), tol, written,
          l.result.data(), l.places.data());
  l.result.resize(static_cast<std::size_t>(written));
}

void join_with_map(TwoLists<Reals> &l) {
  std::map<float, std::int32_t> known;
  l.result.clear();
  const auto append = [&](float value) {
    l.result.push_back(value);
    return known[value] = count_of(l.result.size());
  };
  for (const float value : l.a) append(value);
  for (std::size_t j = 0; j < l.b.size(); ++j) {
    const auto near = known.lower_bound(l.b[j] - tol);
    const bool is_known = near != known.end() && near->first - l.b[j] <= tol;
    l.places[j] = is_known ? near->second : append(l.b[j]);
  }
}

// Pairs that agree: their positions in A in the first half of `places`, in B in the second.
void pair(TwoLists<Reals> &l) {
  std::int32_t count = 0;
  trvmer13(count_of(l.a.size()), l.a.data(), count_of(l.b.size()), l.b.data(), count,
           l.places.data(), l.places.data() + l.places.size() / 2, tol);
}

void pair_with_sorted(TwoLists<Reals> &l) {
  std::vector<std::pair<float, std::int32_t>> sorted;
  for (const float value : l.b) sorted.emplace_back(value, count_of(sorted.size() + 1));
  std::sort(sorted.begin(), sorted.end());
  std::size_t pairs = 0;
  for (std::size_t i = 0; i < l.a.size(); ++i) {
    auto near = std::lower_bound(sorted.begin(), sorted.end(), std::pair(l.a[i] - tol, 0));
    for (; near != sorted.end() && near->first - l.a[i] <= tol; ++near, ++pairs) {
      l.places[pairs] = count_of(i + 1);
      l.places[l.places.size() / 2 + pairs] = near->second;
    }
  }
}

void intersect(TwoLists<Integers> &l) {
  std::int32_t written = 0;
  trvmer14(count_of(l.a.size()), l.a.data(), count_of(l.b.size()), l.b.data(), written,
           l.result.data());
  l.result.resize(static_cast<std::size_t>(written));
}

void subtract(TwoLists<Integers> &l) {
  std::int32_t n = count_of(l.a.size());
  std::int32_t removed = 0;
  trvmer15(n, l.a.data(), count_of(l.b.size()), l.b.data(), removed);
  l.a.resize(static_cast<std::size_t>(n));
  l.result.swap(l.a);
}

// Those entries of A whose presence in B is as wanted, by the standard's two ways.
template <bool wanted>
void filter_with_hash(TwoLists<Integers> &l) {
  const std::unordered_set<std::int32_t> held(l.b.begin(), l.b.end(), 2 * l.b.size());
  l.result.clear();
  std::copy_if(l.a.begin(), l.a.end(), std::back_inserter(l.result),
               [&](std::int32_t value) { return (held.count(value) != 0) == wanted; });
}

template <bool wanted>
void filter_with_sorted(TwoLists<Integers> &l) {
  std::sort(l.b.begin(), l.b.end());
  l.result.clear();
  std::copy_if(l.a.begin(), l.a.end(), std::back_inserter(l.result), [&](std::int32_t value) {
    return std::binary_search(l.b.begin(), l.b.end(), value) == wanted;
  });
}

// The data of a size, with room for any answer, and what a way found.
template <class List>
Task merging(std::string name, TwoLists<List> (*data)(int), std::vector<Way<TwoLists<List>>> ways,
             std::vector<Goal> goals) {
  const auto start = [data](int n) {
    TwoLists<List> lists = data(n);
    lists.result.assign(lists.a.size() + lists.b.size(), 0);
    lists.places.assign(2 * lists.result.size(), 0);
    return lists;
  };
  const auto answer = +[](const TwoLists<List> &lists) {
    std::vector<double> all = as_doubles(lists.result);
    all.insert(all.end(), lists.places.begin(), lists.places.end());
    return all;
  };
  return {two_lists, std::move(name), sizes,
          [=](int n) { return contenders<Input::fresh>(start(n), ways, answer); },
          std::move(goals)};
}

void add_merges(std::vector<Task> &tasks) {
  const std::vector<Goal> of_reals{{Goal::Kind::per_call, large, 30 * millisecond},
                                   {Goal::Kind::growth, large, 1.2, "", 10000}};
  const std::vector<Goal> of_integers{{Goal::Kind::per_call, large, 15 * millisecond}};
  tasks.push_back(merging<Reals>("trvmer4", half_common,
                                 {{"Trelvin", join}, {"std::map", join_with_map}}, of_reals));
  tasks.push_back(merging<Reals>("trvmer13", all_common,
                                 {{"Trelvin", pair}, {"std::sort", pair_with_sorted}}, of_reals));
  tasks.push_back(merging<Integers>("trvmer14", common_integers,
                                    {{"Trelvin", intersect},
                                     {"std::sort", filter_with_sorted<true>},
                                     {"hash set", filter_with_hash<true>}},
                                    of_integers));
  tasks.push_back(merging<Integers>("trvmer15", common_integers,
                                    {{"Trelvin", subtract},
                                     {"std::sort", filter_with_sorted<false>},
                                     {"hash set", filter_with_hash<false>}},
                                    of_integers));
}

}  // namespace

void add_lists(std::vector<Task> &tasks, const Peers &peers) {
  add_sorts(tasks, peers);
  add_orders(tasks, peers);
  add_merges(tasks);
}

}  // namespace bench
