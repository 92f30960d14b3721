// What the outline routines write, as polygons.
#pragma once

#include <trelvin/trelvin.h>

#include <array>
#include <vector>

#include "geometry.h"

namespace figures {

struct Profile {
  std::vector<Outline> polygons;
  std::vector<float> signs;
};

// An outline routine, called with its dimensions.
template <class Routine, class... Dimensions>
Profile profile(Routine routine, Dimensions... dimensions) {
  constexpr int room = 32;
  std::array<float, room> x{}, y{};
  std::array<float, 4> sign{}, z1{}, z2{}, z3{}, z4{}, z5{}, q1{}, q2{};
  std::array<std::int32_t, 4> vertices{}, code{};
  std::int32_t polygons = 0;
  routine(dimensions..., 1.0F, polygons, vertices.data(), x.data(), y.data(), code.data(),
          sign.data(), z1.data(), z2.data(), z3.data(), z4.data(), z5.data(), q1.data(), q2.data());
  require(polygons > 0, "an outline");
  Profile result;
  std::size_t first = 0;
  for (std::size_t i = 0; i < static_cast<std::size_t>(polygons); ++i) {
    Outline polygon;
    for (std::int32_t k = 0; k < vertices[i]; ++k, ++first) polygon.push_back({x[first], y[first]});
    result.polygons.push_back(polygon);
    result.signs.push_back(sign[i]);
  }
  return result;
}

inline double area_of(const Outline &polygon) {
  std::vector<float> x, y;
  for (const Point &p : polygon) {
    x.push_back(p.x);
    y.push_back(p.y);
  }
  const auto n = static_cast<std::int32_t>(polygon.size());
  x.push_back(0);
  y.push_back(0);
  float area = 0;
  trvapl(x.data(), y.data(), n, area);
  return area;
}

}  // namespace figures
