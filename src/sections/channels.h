// Thin-walled channels, on the centre lines of their walls.
#pragma once

#include "numeric/real.h"

namespace trelvin {

struct ChannelDimensions {
  Real width, height, lip;  // outer ones
  Real thickness;
};

// Distance along the flanges from the centroid to the shear centre.
Real shear_centre_distance(const ChannelDimensions &channel);

Real warping_constant(const ChannelDimensions &channel);

}  // namespace trelvin
