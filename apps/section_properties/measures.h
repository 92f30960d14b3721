// What a drawing measures: each dimension of a profile, between which points.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "outline.h"

namespace host {

// On which side of the section the dimension line stands.
enum class Side { above, below, left, right };

// A distance along x (above and below) or along y (left and right).
struct Measure {
  Side side;
  double from, to;
  double level;  // where the points lie across: extension lines run from there to the side
  std::string name;
  float value;
};

using Measures = std::vector<Measure>;

// Collects the measures of one profile. Those of no length are left out.
class Measuring {
 public:
  Measuring(const float *dimensions, const std::string_view *names, const Box &of_section)
      : box(of_section),
        x(0.5 * (of_section.left + of_section.right)),
        y(0.5 * (of_section.bottom + of_section.top)),
        dimensions_(dimensions),
        names_(names) {}

  const Box box;
  const double x, y;  // the box's middle

  // A dimension by its position, from a point on.
  void add(Side side, std::size_t dimension, double from, double level);
  // The same to both sides of the box's middle.
  void add_centred(Side side, std::size_t dimension, double level);

  Measures measures;

 private:
  const float *dimensions_;
  const std::string_view *names_;
};

// For each profile, with its dimensions.
void measure_i_section(const float *d, Measuring &m);
void measure_h(const float *d, Measuring &m);
void measure_filleted_i(const float *d, Measuring &m);
void measure_t(const float *d, Measuring &m);
void measure_bar(const float *d, Measuring &m);
void measure_c(const float *d, Measuring &m);
void measure_h1b(const float *d, Measuring &m);
void measure_box(const float *d, Measuring &m);
void measure_rhs(const float *d, Measuring &m);
void measure_angle(const float *d, Measuring &m);
void measure_l2(const float *d, Measuring &m);
void measure_tab(const float *d, Measuring &m);
void measure_h2b(const float *d, Measuring &m);
void measure_rolled(const float *d, Measuring &m);

// Overall width and height, for sections without dimensions of their own.
Measures overall_measures(const Outline &outline);

}  // namespace host
