// A section's results, for people and for programs to read.
#pragma once

#include <string>
#include <vector>

#include "figures.h"

namespace host {

// A result in mm and in cm, or in radians and in degrees.
struct Row {
  std::string heading;  // in the first row of its group
  std::string symbol;
  std::string value;
  std::string unit;
  std::string other_value;
  std::string other_unit;
};

// Up to the radii of gyration, and the others.
std::vector<Row> main_rows(const Figures &f);
std::vector<Row> further_rows(const Figures &f);

// Which results are not given, how the others are computed and where the origin is, a line each.
std::string notes(const Figures &f);

// A table of all results and notes, under its title.
std::string table(const std::string &title, const Figures &f);

// A JSON object, in mm and radians.
std::string json(const Figures &f);

}  // namespace host
