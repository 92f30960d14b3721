// A picture of the results.
#pragma once

#include <string>
#include <vector>

#include "measure.h"

namespace bench {

// Time of an item against size, both logarithmic: an SVG with a panel for each task that was
// measured at several sizes. The rows of the Windows library may be missing.
std::string plot(const std::vector<Row> &rows, const std::vector<Row> &dll);

}  // namespace bench
