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

// A part of a sheet with a view of its own, and a heading in its middle at this height.
struct Panel {
  Box paper, world;
  std::function<void(View &)> draw;
  std::string caption = {};
  double level = 0;
};

Figure figure_of(const std::string &name, double width, double height, const std::string &title,
                 const std::string &description, const std::vector<Panel> &panels);

std::vector<Figure> convention_figures();
std::vector<Figure> outline_figures();
std::vector<Figure> section_figures();
std::vector<Figure> plane_figures();
std::vector<Figure> circle_figures();
std::vector<Figure> space_figures();

}  // namespace figures
