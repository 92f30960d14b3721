// Draws the manual's figures from the results of the routines.
//
//     figures FOLDER    writes NAME.svg for every figure
//
// A figure asserts what it shows. Where the routines give something else, or labels have come to lie
// on each other, the program names the figure and the reason, and fails.
#include <cstdio>
#include <exception>
#include <fstream>

#include "figures.h"

namespace figures {

Figure figure_of(const std::string &name, double width, double height, const std::string &title,
                 const std::string &description, const std::vector<Panel> &panels) {
  return {name, [=](const std::string &of) {
            Sheet sheet(of, width, height, title, description);
            for (const Panel &panel : panels) {
              View view(sheet, panel.paper, panel.world);
              panel.draw(view);
              const double middle = 0.5 * (panel.paper.left + panel.paper.right);
              if (!panel.caption.empty()) sheet.caption({middle, panel.level}, panel.caption);
            }
            return sheet;
          }};
}

}  // namespace figures

namespace {

bool write(const std::string &file, const std::string &content) {
  std::ofstream out(file, std::ios::binary);
  out << content;
  out.close();
  if (!out) std::fprintf(stderr, "figures: cannot write %s\n", file.c_str());
  return !out.fail();
}

bool draw(const figures::Figure &figure, const std::string &folder) {
  try {
    return write(folder + '/' + figure.name + ".svg", figure.draw(figure.name).svg());
  } catch (const std::exception &reason) {
    std::fprintf(stderr, "figures: %s: %s\n", figure.name.c_str(), reason.what());
    return false;
  }
}

}  // namespace

int main(int count, char **arguments) {
  if (count != 2) {
    std::fputs("usage: figures FOLDER\n", stderr);
    return 2;
  }
  bool good = true;
  for (const auto &subject :
       {figures::convention_figures(), figures::outline_figures(), figures::section_figures(),
        figures::plane_figures(), figures::circle_figures(), figures::space_figures()})
    for (const figures::Figure &figure : subject) good = draw(figure, arguments[1]) && good;
  return good ? 0 : 1;
}
