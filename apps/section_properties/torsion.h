// Torsion of the profiles, by the theory that fits each. Dimensions in the profile's order.
#pragma once

#include "figures.h"

namespace host {

// Open: thin walls on their centre lines.
Torsion torsion_of_ia(const float *d);
Torsion torsion_of_h(const float *d);
Torsion torsion_of_i(const float *d);
Torsion torsion_of_t(const float *d);
Torsion torsion_of_c(const float *d);
Torsion torsion_of_angle(const float *d);
Torsion torsion_of_rolled(const float *d);

Torsion torsion_of_bar(const float *d);

// Closed: the shear flow of the cell, and each plate by itself.
Torsion torsion_of_rhs(const float *d);
Torsion torsion_of_box(const float *d);
Torsion torsion_of_h1b(const float *d);
Torsion torsion_of_tab(const float *d);
Torsion torsion_of_h2b(const float *d);

Torsion torsion_of_two_angles(const float *d);

}  // namespace host
