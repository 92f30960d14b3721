// All results of a section that this program gives.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "outline.h"

namespace host {

struct Point {
  double x, y;
};

// What the theory of the section gives; the rest is left out.
struct Torsion {
  std::optional<double> it, iw;  // torsion and warping constant
  std::optional<Point> shear_centre;
  std::string note;  // for people: how the results are computed
};

// Plastic neutral axes (equal-area axes) and plastic section moduli.
struct Plastic {
  double wx, wy;  // section moduli about the horizontal and the vertical axis
  double x, y;    // positions of the axes: the vertical one at x, the horizontal one at y
};

// Distances of the extreme fibres from the centroid, or the elastic section moduli there.
struct Fibres {
  double top, bottom, right, left;
};

struct Figures {
  Properties properties;
  Fibres fibres;
  Fibres elastic;
  Plastic plastic;
  Torsion torsion;
  std::string_view origin;  // where it is
};

// Exact except for rounding in double precision, also for quarter circles. If an axis may lie anywhere
// in a gap between the halves, it is placed in the middle of the gap.
Plastic plastic_of(const Outline &outline);

// The properties, and the fibres, section moduli and plastic results of the outline.
Figures figures_of(const Properties &properties, const Outline &outline);

// The results by name, in the order of JSON and batch: about the origin, about the
// centroid, and of the principal axes.
constexpr std::array<std::string_view, 16> names_of_properties = {
    "area", "xs", "ys",  "Sx", "Sy", "Ix",    "Iy", "Ixy",
    "Ix",   "Iy", "Ixy", "I1", "I2", "alpha", "rx", "ry"};
constexpr std::size_t first_of_centroid = 8;
constexpr std::size_t first_of_axes = 11;
constexpr std::array<std::string_view, 17> names_of_further_figures = {
    "Ip",  "ey1", "ey2", "ex1", "ex2", "Wx1", "Wx2", "Wy1", "Wy2",
    "Wpx", "Wpy", "xp",  "yp",  "xm",  "ym",  "It",  "Iw"};

std::array<double, names_of_properties.size()> values_of(const Properties &p);
std::array<std::optional<double>, names_of_further_figures.size()> further_values_of(
    const Figures &f);

// What cannot be given for the section, by name: "torsion constant, shear centre".
std::string not_given(const Torsion &torsion, std::string_view separator);

}  // namespace host
