// Random cases, and the errors of the results in units in the last place.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
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

// Where the coordinates of a case lie: within 1000 of the origin, or the same figures moved by 1e5
// along each axis. They are Reals in both.
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

using Case = std::function<void(Draw &, Results &)>;

// A routine to measure. The note tells what loses the figures where many are lost.
struct Measurement {
  std::string routine;
  Case run;
  std::string note;
  enum Where { both, origin_only } where = both;  // the second where no argument is a place
};

std::vector<Measurement> plane_measurements();
std::vector<Measurement> property_measurements();
std::vector<Measurement> section_measurements();
std::vector<Measurement> circle_measurements();
std::vector<Measurement> space_measurements();

// The lines of the table.
std::string measured(const Measurement &measurement);

}  // namespace accuracy
