// A section as this host keeps it: parts to add up, an outline to draw, figures to hand out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace host {

// The kinds of part in use, as trelvin/properties.h numbers them.
constexpr std::int32_t polygon = 2;
constexpr std::int32_t smaller_segment = 4;

struct Part {
  std::int32_t kind;
  float factor;
  std::int32_t n;
  std::vector<float> x;  // a polygon has an element to spare, which the library writes
  std::vector<float> y;
  double own_product = 0;  // of a segment about its centroid, which the library leaves out
};

struct Vertex {
  double x;
  double y;
  double arc = 0;  // radius of the clockwise arc that leads here, 0 for a straight edge
};

using Ring = std::vector<Vertex>;

struct Section {
  std::vector<Part> parts;
  std::vector<Ring> outline;
};

struct SecondMoments {
  double x;
  double y;
  double xy;
};

// Of an open section of thin plates.
struct Torsion {
  double it, iw;  // torsion and warping constant
  double xm, ym;  // shear centre
};

// In mm and radians, with the names of trelvin/properties.h.
struct Properties {
  double area;
  double xs, ys;  // centroid
  double sx, sy;  // about the origin
  SecondMoments origin;
  SecondMoments centroidal;
  double i1, i2, alpha;  // axis 1 is turned by alpha from x
  double rx, ry;         // radii of gyration
  std::optional<Torsion> torsion;
  std::string note;  // for people
};

// The section's properties, in double precision as sums of what the library gives for each part.
Properties properties_of(const Section &section);

// Whether all figures are within what single precision can hold.
bool are_representable(const Properties &p);

}  // namespace host
