// Dimension lines outside a section, in lanes on its four sides, none over another.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "sheet.h"

namespace host {

class DimensionLines {
 public:
  // The scale in pixels a millimetre.
  DimensionLines(const Measures &measures, const Box &shown, double scale);

  [[nodiscard]] Lanes lanes() const;
  [[nodiscard]] std::string drawn(const Sheet &at) const;

 private:
  struct Placed {
    Measure measure;
    std::string figure;  // "TW = 7.1"
    // Where the figure stands: above the line, or beyond its end where the line is too short.
    enum class Figure { inside, behind, before } where = Figure::inside;
    double start = 0, end = 0;  // of line and figure, in pixels from the middle of what is shown
    std::size_t lane = 0;
  };

  struct Drawing {
    std::string lines, figures;
  };

  static Placed placed(const Measure &measure, double middle, double scale);
  [[nodiscard]] std::size_t free_lane(const Placed &wanted) const;
  static Drawing drawn(const Placed &line, const Sheet &at);

  std::vector<Placed> lines_;
};

}  // namespace host
