// The solid flat bar about the origin.
#pragma once

#include "numeric/real.h"
#include "sections/figures.h"

namespace trelvin {

BendingFigures bending_of_bar(double b, double h);
TorsionFigures torsion_of_bar(double b, double h);

}  // namespace trelvin
