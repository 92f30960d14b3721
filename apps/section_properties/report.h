// A section's figures for people and for programs to read.
#pragma once

#include <string>
#include <vector>

#include "figures.h"

namespace host {

// A figure in mm beside cm, or in radians beside degrees.
struct Row {
  std::string heading;  // in the first row of those it stands for
  std::string symbol;
  std::string value;
  std::string unit;
  std::string other_value;
  std::string other_unit;
};

// Up to the radii of gyration, and the others.
std::vector<Row> main_rows(const Figures &f);
std::vector<Row> further_rows(const Figures &f);

// What is not given, where the figures come from and where the origin is, a line each.
std::string notes(const Figures &f);

// A table of all that, under its title.
std::string table(const std::string &title, const Figures &f);

// A JSON object, in mm and radians.
std::string json(const Figures &f);

}  // namespace host
