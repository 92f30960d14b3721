// Random cases, and the errors of the results in units in the last place.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "exact.h"

namespace accuracy {

// A point as a host has it, which turns into an exact one.
struct P2 {
  float x = 0, y = 0;
  operator V2() const { return {x, y}; }
};
struct P3 {
  float x = 0, y = 0, z = 0;
  operator V3() const { return {x, y, z}; }
};

inline P2 rounded(V2 v) { return {static_cast<float>(v.x), static_cast<float>(v.y)}; }

// A polygon, with the spare element of the routines.
struct Outline {
  std::vector<float> x, y;
  [[nodiscard]] int n() const { return static_cast<int>(x.size()) - 1; }
  [[nodiscard]] V2 vertex(int i) const {
    const auto k = static_cast<std::size_t>(i % n());
    return {x[k], y[k]};
  }
};

// What stands for a value among the arguments of a routine.
template <class T>
std::tuple<T &> parts(T &value) {
  return {value};
}
template <class T, std::size_t n>
std::tuple<T *> parts(std::array<T, n> &values) {
  return {values.data()};
}
inline auto parts(P2 &p) { return std::tie(p.x, p.y); }
inline auto parts(P3 &p) { return std::tie(p.x, p.y, p.z); }
inline auto parts(P2 *p) { return std::make_tuple(&p->x, &p->y); }
inline auto parts(P3 *p) { return std::make_tuple(&p->x, &p->y, &p->z); }
inline auto parts(Outline &o) { return std::make_tuple(o.x.data(), o.y.data(), o.n()); }
template <class... Values>
auto parts(Values &...values) {
  return std::tuple_cat(parts(values)...);
}

// Calls a routine whose outputs come after its inputs, and returns its output, or all as a tuple.
template <class... Outputs, class Routine, class... Inputs>
auto call(Routine routine, Inputs... inputs) {
  std::tuple<Outputs...> results;
  std::apply([&](auto &...outputs) { std::apply(routine, parts(inputs..., outputs...)); }, results);
  if constexpr (sizeof...(Outputs) == 1) {
    return std::get<0>(results);
  } else {
    return results;
  }
}

// Where the coordinates of a case lie: within 1000 of the origin, or the same coordinates moved by
// 1e5 along each axis. They are Reals in both.
class Draw {
 public:
  Draw(std::uint64_t seed, double shift) : state_(seed), shift_(shift) {}

  float number(double low, double high) { return static_cast<float>(even(low, high)); }
  std::int32_t integer(int low, int high) {
    return static_cast<std::int32_t>(even(low, high + 0.999));
  }
  float angle() { return number(-3, 3); }
  P2 point(double reach = 1000);
  P3 point_of_space(double reach = 1000);
  // A vector whose length is between the two.
  P2 vector(double shortest, double longest);
  P3 vector_of_space(double shortest, double longest);
  // A place at a vector from another one, rounded as a host's coordinates are.
  static P2 from(P2 p, P2 vector) { return {p.x + vector.x, p.y + vector.y}; }
  static P3 from(P3 p, P3 vector) { return {p.x + vector.x, p.y + vector.y, p.z + vector.z}; }
  P2 near_by(P2 p, double shortest = 50, double longest = 500) {
    return from(p, vector(shortest, longest));
  }
  P3 near_by(P3 p) { return from(p, vector_of_space(50, 500)); }
  // Around a point, the first vertex at a part of the angle between two.
  Outline star(int n, double first);

 private:
  double even(double low, double high);

  std::uint64_t state_;
  double shift_;
};

// The results of one case, beside what they should be.
class Results {
 public:
  struct Error {
    const char *output;
    double ulps;
  };
  void add(const char *output, float got, Exact expected) { add_all(output, {got}, {expected}); }
  // A point or a vector: errors in units of its greatest component.
  void add_all(const char *output, const std::vector<float> &got,
               const std::vector<Exact> &expected);
  void add(const char *output, P2 got, V2 expected) {
    add_all(output, {got.x, got.y}, {expected.x, expected.y});
  }
  void add(const char *output, P3 got, V3 expected) {
    add_all(output, {got.x, got.y, got.z}, {expected.x, expected.y, expected.z});
  }
  [[nodiscard]] const std::vector<Error> &errors() const { return errors_; }

 private:
  std::vector<Error> errors_;
};

// How a routine is measured. The note says why, if many digits are lost.
enum Where { both, origin_only };  // the second if no argument is a position
struct Measurement {
  void (*run)(Draw &draw, Results &out);
  std::string note;
  Where where = both;
};

std::map<std::string, Measurement> &measurements();

// The case of a routine: MEASURE(routine, note, where) { what is called, and the exact results }
#define MEASURE(routine, ...)                                                  \
  void routine##_case(Draw &draw, Results &out);                               \
  [[maybe_unused]] const bool routine##_added =                                \
      measurements().insert({#routine, {routine##_case, __VA_ARGS__}}).second; \
  void routine##_case(Draw &draw, Results &out)

// The lines of the table.
std::string measured(const std::string &routine, const Measurement &measurement);

}  // namespace accuracy
