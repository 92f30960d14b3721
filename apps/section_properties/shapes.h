// Sections of steel profiles from the outlines that the library gives.
#pragma once

#include <trelvin/sections.h>

#include "model.h"

namespace host {

// What an outline routine hands back, with room for the largest outline.
struct ListOfPolygons {
  std::int32_t np = 0;
  std::array<std::int32_t, 3> nv;
  std::array<float, most_vertices> x, y;
  std::array<std::int32_t, 3> code;
  std::array<float, 3> sign, z1, z2, z3, z4, z5, q1, q2;
};

Section section_of(const ListOfPolygons &f);

// The section of an outline routine whose dimensions are all Reals, in their order.
template <class Routine, class... Dimensions>
Section section_from(Routine routine, const Dimensions &...dimensions) {
  constexpr float q = 1;  // comes back with each polygon; nothing here needs it
  ListOfPolygons f;
  routine(dimensions..., q, f.np, f.nv.data(), f.x.data(), f.y.data(), f.code.data(), f.sign.data(),
          f.z1.data(), f.z2.data(), f.z3.data(), f.z4.data(), f.z5.data(), f.q1.data(),
          f.q2.data());
  return section_of(f);
}

Section flat_bar(float B, float H);
Section rolled(float H, float B, float TW, float TF, float R);
Section angle(float B, float H, float T, float R);

}  // namespace host
