// Sections of thin plates, as a list in a file.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "section_model.h"

namespace host {

struct Plate {
  float x1, y1, x2, y2;  // ends of the centre line
  float t;
};

// What is wrong with a list of plates, in one line.
struct BadPlates : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Reads a plate a line: x1 y1 x2 y2 t. Empty lines and what follows a # do not count.
std::vector<Plate> read_plates(const std::string &file);

Section section_of(const std::vector<Plate> &plates);

// The properties that trvmxt gives, those of torsion only where the section is open.
Properties properties_of(const std::vector<Plate> &plates);

}  // namespace host
