// A drawing of a section as an SVG file.
#pragma once

#include <string>

#include "figures.h"

namespace host {

// A section with its description and results.
struct Subject {
  std::string name, description, dimensions;
  Figures figures;
  Outline outline;
  Measures measures;
};

// The outline to scale with its measures, the axes of the origin, the principal axes and the plastic
// neutral axes, centroid and shear centre, and a legend of the main results.
std::string picture(const Subject &subject);

}  // namespace host
