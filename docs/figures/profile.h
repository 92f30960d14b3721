// Outlines as polygons.
#pragma once

#include <trelvin/trelvin.h>

#include <vector>

#include "geometry.h"
#include "shapes.h"

namespace figures {

struct Profile {
  std::vector<Outline> polygons;
  std::vector<float> signs;
};

inline Profile profile(const host::Section &section) {
  require(section.polygons > 0, "an outline");
  Profile result;
  for (std::size_t i = 0; i < section.polygons; ++i) {
    const host::Part &part = section.parts[i];
    Outline polygon;
    for (std::size_t k = 0; k < static_cast<std::size_t>(part.n); ++k)
      polygon.push_back({part.x[k], part.y[k]});
    result.polygons.push_back(polygon);
    result.signs.push_back(part.factor);
  }
  return result;
}

inline double area_of(const Outline &polygon) {
  Coordinates c(polygon);
  float area = 0;
  trvapl(c.x.data(), c.y.data(), c.n, area);
  return area;
}

}  // namespace figures
