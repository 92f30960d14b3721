// The profiles of the catalogue, as a list to walk at run time.
#pragma once

#include "description.h"
#include "figures.h"

namespace host {

// Its functions take the dimensions in their order.
struct Profile : Description {
  const char *(*fault)(const float *dimensions);  // why they form no section, or nullptr
  Section (*section)(const float *dimensions);
  Torsion (*torsion)(const float *dimensions);
  Measures (*measures)(const float *dimensions, const Box &box);  // some may have no length
};

struct Profiles {
  [[nodiscard]] const Profile *begin() const { return first; }
  [[nodiscard]] const Profile *end() const { return behind; }

  const Profile *first, *behind;
};

Profiles profiles();

}  // namespace host
