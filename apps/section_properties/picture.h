// A drawing of a section as an SVG file.
#pragma once

#include <string>

#include "outline.h"

namespace host {

// The outline to scale with its overall dimensions, the axes of the origin, the principal axes and
// a legend of the main figures. Title and subtitle head it.
std::string picture(const std::string &title, const std::string &subtitle, const Outline &outline,
                    const Properties &p);

}  // namespace host
