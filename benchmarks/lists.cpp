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

std::vector<double> as_doubles(const Integers &values) { return {values.begin(), values.end()}; }

// Sorting in place ---------------------------------------------------------------------------

template <class Element>
struct Sorting : Job {
  static constexpr bool fresh = true;
  Sorting(std::vector<Element> values, Sorter<Element> with)
      : start(std::move(values)), sorter(std::move(with)) {}
  void prepare() { work = start; }
  void run() { sorter.sort(work.data(), work.size()); }
  [[nodiscard]] std::vector<double> answer() const { return {work.begin(), work.end()}; }
  std::vector<Element> start, work;
  Sorter<Element> sorter;
};

template <class Element>
std::vector<Contender> sorting(const std::vector<Element> &values,
                               std::function<void(Element *, std::size_t)> trelvin,
                               const std::vector<Sorter<Element>> &peers) {
  std::vector<Sorter<Element>> sorters{
      {"Trelvin", std::move(trelvin)},
      {"std::sort", [](Element *v, std::size_t n) { std::sort(v, v + n); }}};
  sorters.insert(sorters.end(), peers.begin(), peers.end());
  std::vector<Contender> all;
  all.reserve(sorters.size());
  for (const auto &sorter : sorters) all.push_back(contender(sorter.name, Sorting(values, sorter)));
  return all;
}

const std::vector<Goal> goals_of_sorts = {{Goal::Kind::ratio, large, 0.2, "std::sort"},
                                          {Goal::Kind::growth, large, 1.15, "", 10000}};

void add_sorts(std::vector<Task> &tasks, const Peers &peers) {
  tasks.push_back(
      {one_list, "trvord", sizes,
       [peers](int n) {
         return sorting<float>(
             Random(1).reals(n, -1000, 1000),
             [](float *v, std::size_t count) { trvord(v, static_cast<std::int32_t>(count)); },
             peers.sort_reals);
       },
       goals_of_sorts});
  tasks.push_back({one_list, "trvord1", sizes,
                   [peers](int n) {
                     Integers values(static_cast<std::size_t>(n));
                     Random random(2);
                     for (auto &value : values) value = random.integer();
                     return sorting<std::int32_t>(
                         values,
                         [](std::int32_t *v, std::size_t count) {
                           trvord1(v, static_cast<std::int32_t>(count));
                         },
                         peers.sort_integers);
                   },
                   goals_of_sorts});
}

// Positions in ascending order -----------------------------------------------------------------

struct Ordering : Job {
  Ordering(Reals values, Orderer with)
      : keys(std::move(values)), order(keys.size()), orderer(std::move(with)) {}
  void run() { orderer.order(keys, order); }
  [[nodiscard]] std::vector<double> answer() const { return as_doubles(order); }
  Reals keys;
  Integers order;
  Orderer orderer;
};

void order_by_comparison(const Reals &keys, Integers &order) {
  std::iota(order.begin(), order.end(), 1);
  std::sort(order.begin(), order.end(), [&](std::int32_t p, std::int32_t q) {
    return keys[static_cast<std::size_t>(p - 1)] < keys[static_cast<std::size_t>(q - 1)];
  });
}

// Lines a*x + b*y + C = 0 cross the y axis at -C/b. The factor of the constants is a power of two,
// so crossings are as distinct as the constants.
constexpr float line_a = 0.75F;
constexpr float line_b = 0.5F;

// The peers form the crossings too, but take it for granted that the lines are parallel.
Orderer by_crossing(const Orderer &orderer) {
  return {orderer.name, [orderer](const Reals &constants, Integers &order) {
            Reals crossings(constants.size());
            std::transform(constants.begin(), constants.end(), crossings.begin(),
                           [](float c) { return 0 - c / line_b; });
            orderer.order(crossings, order);
          }};
}

std::vector<Contender> ordering(const Reals &keys, const std::vector<Orderer> &orderers) {
  std::vector<Contender> all;
  all.reserve(orderers.size());
  for (const Orderer &orderer : orderers) {
    all.push_back(contender(orderer.name, Ordering(keys, orderer)));
  }
  return all;
}

std::vector<Contender> crossings(int n, const std::vector<Orderer> &peers) {
  const auto size = static_cast<std::size_t>(n);
  std::vector<Orderer> orderers{
      {"Trelvin", [a = Reals(size, line_a), b = Reals(size, line_b)](const Reals &c, Integers &o) {
         std::int32_t status = 0;
         trvpor(static_cast<std::int32_t>(c.size()), a.data(), b.data(), c.data(), o.data(),
                status);
       }}};
  for (const Orderer &peer : peers) orderers.push_back(by_crossing(peer));
  Random random(4);
  Reals constants = distinct_reals(random, n, -1000, 1000);
  constants[0] = 2000;  // the first line has to be clear of the others by the library's tolerance
  return ordering(constants, orderers);
}

void add_orders(std::vector<Task> &tasks, const Peers &peers) {
  std::vector<Orderer> others{{"std::sort", order_by_comparison}};
  others.insert(others.end(), peers.order.begin(), peers.order.end());
  const std::vector<Goal> goals{{Goal::Kind::ratio, large, 0.2, "std::sort"}};
  tasks.push_back({one_list, "trvordi", sizes,
                   [others](int n) {
                     std::vector<Orderer> orderers{
                         {"Trelvin", [](const Reals &v, Integers &o) {
                            trvordi(v.data(), static_cast<std::int32_t>(v.size()), o.data());
                          }}};
                     orderers.insert(orderers.end(), others.begin(), others.end());
                     Random random(3);
                     return ordering(distinct_reals(random, n, -1000, 1000), orderers);
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

template <class Element>
struct TwoLists {
  std::vector<Element> a, b;
};

// Half of B is in A.
TwoLists<float> half_common(int n) {
  Random random(5);
  TwoLists<float> lists{spaced_values(random, 0, n), {}};
  Reals b(lists.a.begin(), lists.a.begin() + n / 2);
  const Reals others = spaced_values(random, n, n - n / 2);
  b.insert(b.end(), others.begin(), others.end());
  lists.b = jittered(random, b);
  random.shuffle(lists.a);
  return lists;
}

// Every entry has one partner.
TwoLists<float> all_common(int n) {
  Random random(6);
  TwoLists<float> lists{spaced_values(random, 0, n), {}};
  lists.b = jittered(random, lists.a);
  random.shuffle(lists.a);
  return lists;
}

TwoLists<std::int32_t> common_integers(int n) {
  Random random(7);
  Integers universe(2 * static_cast<std::size_t>(n));
  for (auto &value : universe) value = random.integer();
  TwoLists<std::int32_t> lists;
  for (int i = 0; i < n; ++i) lists.a.push_back(universe[random.below(universe.size())]);
  for (int i = 0; i < n; ++i) lists.b.push_back(universe[random.below(universe.size())]);
  return lists;
}

// A job on two lists with a function for its work. The function gets the lists and fills `result`.
template <class Element>
struct Merging : Job {
  using Work = std::function<void(TwoLists<Element> &, std::vector<Element> &, Integers &)>;
  static constexpr bool fresh = true;
  Merging(TwoLists<Element> data, Work function)
      : start(std::move(data)), work(std::move(function)) {}
  void prepare() {
    lists = start;
    result.assign(start.a.size() + start.b.size(), 0);
    places.assign(2 * (start.a.size() + start.b.size()), 0);
  }
  void run() { work(lists, result, places); }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all(result.begin(), result.end());
    all.insert(all.end(), places.begin(), places.end());
    return all;
  }
  TwoLists<Element> start, lists;
  std::vector<Element> result;
  Integers places;
  Work work;
};

std::int32_t count_of(std::size_t n) { return static_cast<std::int32_t>(n); }

// B's new entries behind A, and the place of each entry of B.
void join(TwoLists<float> &l, Reals &result, Integers &places) {
  std::int32_t written = 0;
  trvmer4(count_of(l.a.size()), l.a.data(), count_of(l.b.size()), l.b.data(), tol, written,
          result.data(), places.data());
  result.resize(static_cast<std::size_t>(written));
}

void join_with_map(TwoLists<float> &l, Reals &result, Integers &places) {
  std::map<float, std::int32_t> known;
  result.clear();
  const auto append = [&](float value) {
    result.push_back(value);
    return known[value] = count_of(result.size());
  };
  for (const float value : l.a) append(value);
  for (std::size_t j = 0; j < l.b.size(); ++j) {
    const auto near = known.lower_bound(l.b[j] - tol);
    const bool is_known = near != known.end() && near->first - l.b[j] <= tol;
    places[j] = is_known ? near->second : append(l.b[j]);
  }
}

// Pairs that agree: their positions in A in the first half of `places`, in B in the second.
void pair(TwoLists<float> &l, Reals & /*result*/, Integers &places) {
  std::int32_t count = 0;
  trvmer13(count_of(l.a.size()), l.a.data(), count_of(l.b.size()), l.b.data(), count, places.data(),
           places.data() + places.size() / 2, tol);
}

void pair_with_sorted(TwoLists<float> &l, Reals & /*result*/, Integers &places) {
  std::vector<std::pair<float, std::int32_t>> sorted;
  for (const float value : l.b) sorted.emplace_back(value, count_of(sorted.size() + 1));
  std::sort(sorted.begin(), sorted.end());
  std::size_t pairs = 0;
  for (std::size_t i = 0; i < l.a.size(); ++i) {
    auto near = std::lower_bound(sorted.begin(), sorted.end(), std::pair(l.a[i] - tol, 0));
    for (; near != sorted.end() && near->first - l.a[i] <= tol; ++near, ++pairs) {
      places[pairs] = count_of(i + 1);
      places[places.size() / 2 + pairs] = near->second;
    }
  }
}

void intersect(TwoLists<std::int32_t> &l, Integers &result, Integers & /*places*/) {
  std::int32_t written = 0;
  trvmer14(count_of(l.a.size()), l.a.data(), count_of(l.b.size()), l.b.data(), written,
           result.data());
  result.resize(static_cast<std::size_t>(written));
}

void subtract(TwoLists<std::int32_t> &l, Integers &result, Integers & /*places*/) {
  std::int32_t n = count_of(l.a.size());
  std::int32_t removed = 0;
  trvmer15(n, l.a.data(), count_of(l.b.size()), l.b.data(), removed);
  l.a.resize(static_cast<std::size_t>(n));
  result.swap(l.a);
}

// Those entries of A whose presence in B is as wanted, by the standard's two ways.
template <bool wanted>
void filter_with_hash(TwoLists<std::int32_t> &l, Integers &result, Integers & /*places*/) {
  const std::unordered_set<std::int32_t> held(l.b.begin(), l.b.end(), 2 * l.b.size());
  result.clear();
  std::copy_if(l.a.begin(), l.a.end(), std::back_inserter(result),
               [&](std::int32_t value) { return (held.count(value) != 0) == wanted; });
}

template <bool wanted>
void filter_with_sorted(TwoLists<std::int32_t> &l, Integers &result, Integers & /*places*/) {
  std::sort(l.b.begin(), l.b.end());
  result.clear();
  std::copy_if(l.a.begin(), l.a.end(), std::back_inserter(result), [&](std::int32_t value) {
    return std::binary_search(l.b.begin(), l.b.end(), value) == wanted;
  });
}

template <class Element>
Task merging(std::string name, TwoLists<Element> (*data)(int),
             std::vector<std::pair<std::string, typename Merging<Element>::Work>> works,
             std::vector<Goal> goals) {
  return {two_lists, std::move(name), sizes,
          [data, works = std::move(works)](int n) {
            std::vector<Contender> all;
            for (const auto &[who, work] : works) {
              all.push_back(contender(who, Merging<Element>(data(n), work)));
            }
            return all;
          },
          std::move(goals)};
}

void add_merges(std::vector<Task> &tasks) {
  const std::vector<Goal> of_reals{{Goal::Kind::per_call, large, 30 * millisecond},
                                   {Goal::Kind::growth, large, 1.2, "", 10000}};
  const std::vector<Goal> of_integers{{Goal::Kind::per_call, large, 15 * millisecond}};
  tasks.push_back(merging<float>("trvmer4", half_common,
                                 {{"Trelvin", join}, {"std::map", join_with_map}}, of_reals));
  tasks.push_back(merging<float>("trvmer13", all_common,
                                 {{"Trelvin", pair}, {"std::sort", pair_with_sorted}}, of_reals));
  tasks.push_back(merging<std::int32_t>("trvmer14", common_integers,
                                        {{"Trelvin", intersect},
                                         {"std::sort", filter_with_sorted<true>},
                                         {"hash set", filter_with_hash<true>}},
                                        of_integers));
  tasks.push_back(merging<std::int32_t>("trvmer15", common_integers,
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
