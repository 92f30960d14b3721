// The outline of a section, to draw and to cut: rings of straight edges and arcs.
#pragma once

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

Outline outline_of(const Section &section);

Box bounding_box(const Outline &outline);

}  // namespace host
