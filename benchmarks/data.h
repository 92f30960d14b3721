// What the contenders work on. The same on every machine: the engine is a standard one, and its
// numbers are scaled here, since the standard's own distributions differ between libraries.
#pragma once

#include <cmath>
#include <cstdint>
#include <numeric>
#include <random>
#include <unordered_set>
#include <utility>
#include <vector>

namespace bench {

using Reals = std::vector<float>;
using Integers = std::vector<std::int32_t>;

class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed) {}

  float real(float from, float to) {
    return from + (to - from) * static_cast<float>(engine_() >> 8) / 16777216.0F;
  }
  std::size_t below(std::size_t n) { return engine_() % n; }

  Reals reals(int n, float from, float to) {
    Reals values(static_cast<std::size_t>(n));
    for (float &value : values) value = real(from, to);
    return values;
  }

  Integers integers(int n) {
    Integers values(static_cast<std::size_t>(n));
    for (auto &value : values) value = static_cast<std::int32_t>(engine_() >> 1) - (1 << 30);
    return values;
  }

  template <class List>
  void shuffle(List &list) {
    for (std::size_t i = list.size(); i > 1; --i) std::swap(list[i - 1], list[below(i)]);
  }

 private:
  std::mt19937 engine_;
};

// Without repeats, so that an order of positions is unique.
inline Reals distinct_reals(Random &random, int n, float from, float to) {
  std::unordered_set<float> seen;
  Reals values;
  while (values.size() < static_cast<std::size_t>(n)) {
    const float value = random.real(from, to);
    if (seen.insert(value).second) values.push_back(value);
  }
  return values;
}

inline Integers positions(std::size_t n) {
  Integers p(n);
  std::iota(p.begin(), p.end(), 1);
  return p;
}

struct Cloud {
  Reals x, y, z;
  [[nodiscard]] std::size_t size() const { return x.size(); }
};

inline Cloud cloud(Random &random, int n, float edge) {
  return {random.reals(n, 0, edge), random.reals(n, 0, edge), random.reals(n, 0, edge)};
}

// A counter-clockwise outline; the spare last element of both arrays repeats the first vertex.
struct Outline {
  Reals x, y;
  [[nodiscard]] int vertices() const { return static_cast<int>(x.size()) - 1; }
};

// A star about a point off the origin.
inline Outline star(Random &random, int n) {
  Outline outline;
  for (int i = 0; i < n; ++i) {
    const double angle = 6.283185307179586 * i / n;
    const double radius = random.real(50, 150);
    outline.x.push_back(static_cast<float>(200 + radius * std::cos(angle)));
    outline.y.push_back(static_cast<float>(300 + radius * std::sin(angle)));
  }
  outline.x.push_back(outline.x[0]);
  outline.y.push_back(outline.y[0]);
  return outline;
}

// p becomes m*p + t.
struct Affine {
  double m[3][3];
  double t[3];
};

// Lines P + t*u and planes a*x + b*y + c*z + d = 0, ten Reals each in this order.
struct LinesAndPlanes {
  static constexpr std::size_t width = 10;
  Reals values;
  [[nodiscard]] std::size_t size() const { return values.size() / width; }
  [[nodiscard]] const float *at(std::size_t i) const { return values.data() + i * width; }
};

}  // namespace bench
