// The properties of a section, in double precision, with the names of trelvin/sections.h.
#pragma once

#include <array>

namespace trelvin {

struct BendingFigures {
  double A, xs, ys;
  double Ix, Iy, Ixy;
  double I1, I2, alpha;
  double rx, ry;
  double Wx1, Wx2, Wy1, Wy2;
  double Wpx, Wpy, xp, yp;

  [[nodiscard]] std::array<double, 19> in_order() const {
    return {A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp};
  }
};

struct TorsionFigures {
  double It, Wt;
  double xm, ym;
  double Iw, r0;

  [[nodiscard]] std::array<double, 6> in_order() const { return {It, Wt, xm, ym, Iw, r0}; }
};

struct PrincipalAxes {
  double first, second;
  double alpha;  // axis 1 from the x axis, within an eighth of a turn
};

PrincipalAxes principal_axes(double Ix, double Iy, double Ixy);

}  // namespace trelvin
