#include "outline.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace host {
namespace {

// The point at the distance r from a corner along the edge to its neighbour; edges run along axes.
Vertex tangent_point(const Vertex &corner, const Vertex &neighbour, double r) {
  const double dx = neighbour.x - corner.x;
  const double dy = neighbour.y - corner.y;
  const double length = std::fabs(dx) + std::fabs(dy);
  return {corner.x + r * (dx / length), corner.y + r * (dy / length)};
}

Ring ring_of(const Part &part, double fillet) {
  const auto n = static_cast<std::size_t>(part.n);
  const auto vertex = [&](std::size_t i) { return Vertex{part.x[i % n], part.y[i % n]}; };
  Ring ring;
  ring.factor = part.factor;
  for (std::size_t i = 0; i < n; ++i) {
    const Vertex before = vertex(i + n - 1);
    const Vertex corner = vertex(i);
    const Vertex after = vertex(i + 1);
    const double turn =
        (corner.x - before.x) * (after.y - corner.y) - (corner.y - before.y) * (after.x - corner.x);
    if (fillet > 0 && turn < 0) {
      ring.vertices.push_back(tangent_point(corner, before, fillet));
      ring.vertices.push_back(tangent_point(corner, after, fillet));
      ring.vertices.back().arc = fillet;
    } else {
      ring.vertices.push_back(corner);
    }
  }
  return ring;
}

}  // namespace

Outline outline_of(const Section &section) {
  Outline outline;
  outline.reserve(section.polygons);
  for (std::size_t i = 0; i < section.polygons; ++i) {
    outline.push_back(ring_of(section.parts[i], section.fillet));
  }
  return outline;
}

Box bounding_box(const Outline &outline) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  Box box{infinity, -infinity, infinity, -infinity};
  for (const Ring &ring : outline) {
    for (const Vertex &v : ring.vertices) {
      box.left = std::min(box.left, v.x);
      box.right = std::max(box.right, v.x);
      box.bottom = std::min(box.bottom, v.y);
      box.top = std::max(box.top, v.y);
    }
  }
  return box;
}

}  // namespace host
