// Outlines of steel profiles, as lists of polygons about the middle of the bounding box.
#pragma once

#include <array>
#include <cstddef>

#include "vectors/vectors.h"

namespace trelvin {

// Polygons run counter-clockwise, holes too.
class Profile {
 public:
  static constexpr std::size_t most_polygons = 3;
  static constexpr std::size_t most_vertices = 20;

  struct Polygon {
    Integer told_vertices;  // as hosts are told
    bool is_hole;
  };

  Integer polygons = 0;
  std::array<Polygon, most_polygons> polygon;
  std::size_t vertices = 0;  // of all polygons
  std::array<Point2, most_vertices> vertex;

  template <std::size_t n>
  explicit Profile(const std::array<Point2, n> &corners) {
    solid(corners);
  }

  template <std::size_t n>
  void solid(const std::array<Point2, n> &corners) {
    add(corners, false);
  }
  template <std::size_t n>
  void hole(const std::array<Point2, n> &corners) {
    add(corners, true);
  }

 private:
  template <std::size_t n>
  void add(const std::array<Point2, n> &corners, bool is_hole) {
    polygon[static_cast<std::size_t>(polygons++)] = {static_cast<Integer>(n), is_hole};
    for (const Point2 corner : corners) vertex[vertices++] = corner;
  }
};

// The dimensions are those of trelvin/sections.h.
Profile i_profile(Real H, Real B1, Real B2, Real T1, Real T2, Real TW);
Profile sideways_i_profile(Real H, Real B1, Real B2, Real T1, Real T2, Real TW);
Profile t_profile(Real B, Real H, Real TF, Real TW);
Profile bar_profile(Integer B, Real H);
Profile covered_i_profile(Real W, Real D, Real P, Real T1, Real T2, Real TW, Real TP);
Profile box_profile(Real BT, Real BB, Real TT, Real TB, Real H, Real TW, Real G);
Profile tube_profile(Real B, Real H, Real T);
Profile twin_angles_profile(Real B, Real H, Real G, Real T, Real TV);
Profile plate_on_cell_profile(Real B, Real H, Real BW, Real E, Real T, Real TW, Real TB);
Profile two_cell_profile(Real B, Real W, Real HI, Real TW1, Real TW2, Real TM, Real TF);
Profile filleted_i_profile(Real H, Real B1, Real B2, Real T1, Real T2, Real TW, Real S1, Real S2,
                           Real E);

// A channel's flange with its lip and the fold at the lip's end.
struct LippedFlange {
  Real B, C, D;    // lengths of flange, lip and fold
  Real T, TC, TD;  // their thicknesses
};
Profile channel_profile(Real H, Real TW, const LippedFlange &bottom, const LippedFlange &top);

}  // namespace trelvin
