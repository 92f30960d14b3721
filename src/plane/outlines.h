// Closed outlines of the plane.
#pragma once

#include "vectors/vectors.h"

namespace trelvin {

enum class Convexity : Integer { refused = -1, not_convex = 0, convex = 1 };

Convexity convexity(const Real *x, const Real *y, Integer n);

}  // namespace trelvin
