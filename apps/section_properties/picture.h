// A drawing of a section as an SVG file.
#pragma once

#include <string>

#include "figures.h"
#include "measures.h"

namespace host {

// The outline to scale with its measures, the axes of the origin, the principal and the equal-area
// axes, centroid and shear centre, and a legend of the main figures. Title and subtitle head it.
std::string picture(const std::string &title, const std::string &subtitle, const Outline &outline,
                    const Measures &measures, const Figures &figures);

}  // namespace host
