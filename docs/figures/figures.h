// The figures, by subject. Each function draws one and throws where the routines do not bear it out.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "canvas.h"

namespace figures {

struct Figure {
  std::string name;
  std::function<Sheet(const std::string &name)> draw;
};

std::vector<Figure> convention_figures();
std::vector<Figure> outline_figures();
std::vector<Figure> section_figures();
std::vector<Figure> plane_figures();
std::vector<Figure> circle_figures();
std::vector<Figure> space_figures();

}  // namespace figures
