// Sections of thin plates: what the library gives for them, and lists of them as text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "figures.h"

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

// By a routine with these outputs behind its inputs; w1 and w2 have an element for each plate.
template <class Routine, class... Inputs>
ThinSection thin_section_by(float *w1, float *w2, Routine routine, const Inputs &...inputs) {
  ThinSection f{};
  routine(inputs..., f.A, f.xs, f.ys, f.Ix, f.Iy, f.Ixy, f.I1, f.I2, f.alpha, f.rx, f.ry, f.Wx1,
          f.Wx2, f.Wy1, f.Wy2, f.Wpx, f.Wpy, f.xp, f.yp, f.It, f.Wt, f.xm, f.ym, f.Iw, f.r0, w1, w2,
          f.status);
  return f;
}

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
