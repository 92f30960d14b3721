// Areas, moments and moduli of thin plates.
#pragma once

#include "sections/figures.h"
#include "sections/plates.h"

namespace trelvin {

struct PlateMoments {
  double area = 0;
  WideVector centroid = {};
  double xx = 0, yy = 0, xy = 0;                 // integrals of y^2, x^2 and x*y about the centroid
  double xx_line = 0, yy_line = 0, xy_line = 0;  // those of the centre lines alone
};

PlateMoments moments_of(const PlateArrays &plates);

BendingFigures bending_figures(const PlateArrays &plates, const PlateMoments &m);

}  // namespace trelvin
