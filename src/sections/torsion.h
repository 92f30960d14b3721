// Torsion and warping of open sections of thin plates.
#pragma once

#include "sections/bending.h"

namespace trelvin {

// The normalised sectorial coordinates of the plates' starts and ends go into W1 and W2.
TorsionFigures torsion_figures(const PlateArrays &plates, const PlateMoments &m, Real *W1,
                               Real *W2);

}  // namespace trelvin
