// A section's figures for people and for programs to read.
#pragma once

#include <string>

#include "figures.h"

namespace host {

// A table in mm beside cm, under its title.
std::string table(const std::string &title, const Figures &f);

// A JSON object, in mm and radians.
std::string json(const Figures &f);

}  // namespace host
