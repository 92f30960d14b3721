// A section's properties for people and for programs to read.
#pragma once

#include <string>

#include "section_model.h"

namespace host {

// A table in mm beside cm, under its title.
std::string table(const std::string &title, const Properties &p);

// A JSON object, in mm and radians.
std::string json(const Properties &p);

}  // namespace host
