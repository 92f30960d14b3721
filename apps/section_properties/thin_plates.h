// Sections of thin plates: what the library gives for them, and lists of them as text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "figures.h"
#include "measures.h"

namespace host {

struct Plate {
  float x1, y1, x2, y2;  // ends of the centre line
  float t;
};

// The outputs of trvmxt, under its names.
struct ThinSection {
  float A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry;
  float Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp;
  float It, Wt, xm, ym, Iw, r0;
  std::int32_t status;
};

ThinSection thin_section(const std::vector<Plate> &plates);

// Reads a plate a line: x1 y1 x2 y2 t. Empty lines and what follows a # do not count. The number is
// that of the first line, and then of the line behind the text. Returns what is wrong, headed by the
// file's name and the line, or nothing.
std::string read_plates(const std::string &name, std::string_view text, std::size_t &number,
                        std::vector<Plate> &plates);

Outline outline_of(const std::vector<Plate> &plates);

// Overall width and height: plates have no dimensions of their own.
Measures overall_measures(const Box &box);

// All results of trvmxt; those of torsion only if the section is open. Returns an error message, or
// nothing.
std::string figures_of(const std::vector<Plate> &plates, Figures &f);

}  // namespace host
