// The profiles this host knows, and how each becomes a section.
#pragma once

#include <string_view>
#include <vector>

#include "section_model.h"

namespace host {

struct Profile {
  std::string_view name;
  std::string_view description;
  std::vector<std::string_view> dimensions;  // in the order of the library's routine
  // Why the dimensions cannot form a section, or nullptr when they can.
  const char *(*fault)(const float *dimensions);
  Section (*section)(const float *dimensions);
  std::vector<std::string_view> may_be_zero = {};
};

const std::vector<Profile> &profiles();

}  // namespace host
