// The outline of a section, to draw and to cut: rings of straight edges and arcs.
#pragma once

#include <string_view>
#include <vector>

#include "model.h"

namespace host {

struct Vertex {
  double x;
  double y;
  double arc = 0;  // radius of the clockwise quarter circle that leads here, 0 for a straight edge
};

// Counter-clockwise, holes too.
struct Ring {
  double factor = 1;  // -1 for a hole
  List<Vertex, most_vertices> vertices;
};

using Outline = std::vector<Ring>;

struct Box {
  double left, right, bottom, top;

  // Coordinates of the middle.
  [[nodiscard]] double x() const { return 0.5 * (left + right); }
  [[nodiscard]] double y() const { return 0.5 * (bottom + top); }
};

// What a drawing measures: on which side of the section the dimension line stands, and between
// which points.
enum class Side { above, below, left, right };

// A distance along x (above and below) or along y (left and right).
struct Measure {
  Side side;
  std::string_view name;
  double value;
  double from;
  double level;  // where the points lie across: extension lines run from there to the side

  [[nodiscard]] bool is_along_x() const { return side == Side::above || side == Side::below; }
  [[nodiscard]] double to() const { return from + value; }
};

using Measures = std::vector<Measure>;

Outline outline_of(const Section &section);

Box bounding_box(const Outline &outline);

}  // namespace host
