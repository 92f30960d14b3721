// Dimension lines outside a section, in lanes on its four sides, none over another.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "sheet.h"

namespace host {

// Where the text is written: above the line, or beyond one of its ends if the line is too short.
enum class Letter { between, behind, before };

class DimensionLines {
 public:
  enum class Figure { letter, letter_and_value };  // the text of a line

  struct Placed {
    Measure measure;
    std::string figure;  // "TW = 7.1"
    Letter place = Letter::between;
    double start = 0, end = 0;  // of line and figure, in pixels from the middle of what is shown
    std::size_t lane = 0;
  };

  // The scale in pixels a millimetre.
  DimensionLines(const Measures &measures, const Box &shown, double scale,
                 Figure figure = Figure::letter_and_value);

  [[nodiscard]] const std::vector<Placed> &lines() const { return lines_; }
  [[nodiscard]] Lanes lanes() const;
  [[nodiscard]] std::string drawn(const Sheet &at) const;

 private:
  struct Drawing {
    std::string lines, figures;
  };

  static Placed placed(const Measure &measure, double middle, double scale, Figure figure);
  [[nodiscard]] std::size_t free_lane(const Placed &wanted) const;
  static Drawing drawn(const Placed &line, const Sheet &at);

  std::vector<Placed> lines_;
};

}  // namespace host
