// Local buckling of plate elements. Compression is positive.
#pragma once

#include <optional>

#include "numeric/real.h"

namespace trelvin {

// Reduction factor of an internal compression element, EN 1993-1-5, 4.4(2); epsilon = r2/r1.
Real reduction_factor(Real b, Real t, Real r1, Real r2, Real psi, Real ks);

// The buckling factor of the last edge fold. It is used again if the rule gives none.
struct LastBucklingFactor {
  Real value = 0;
};

// Effective width of an edge fold of width c on a plate of width bp.
Real effective_width_of_fold(Real c, Real bp, Real t, Real r1, Real r2, LastBucklingFactor &last);

struct EffectiveWidths {
  Real at_first, at_second;  // at the edges of the stresses s1 and s2
};

// Effective widths of an internal element, EN 1993-1-5, table 4.1: slenderness from bl, widths from w.
// Nothing if no case of the table applies.
std::optional<EffectiveWidths> effective_widths(Real bl, Real w, Real t, Real r1, Real r2, Real s1,
                                                Real s2);

}  // namespace trelvin
