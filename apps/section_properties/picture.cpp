#include "picture.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "dimension_lines.h"
#include "svg.h"

namespace host {
namespace {

using namespace svg;

constexpr double axis_overhang = 34;
constexpr double arrow_overhang = 46;
constexpr double label_distance = 11;

constexpr const char *dash_dot = "14 4 2 4";
constexpr const char *dots = "2 5";

// One path for solids and holes. Both run counter-clockwise, so only the even-odd rule tells them
// apart.
std::string steel_area(const Outline &outline, const Sheet &at) {
  std::string rings;
  for (const Ring &ring : outline) {
    char command = 'M';
    for (const Vertex &v : ring.vertices) {
      if (!rings.empty()) rings += ' ';
      if (v.arc > 0) {
        const std::string radius = px(at.length(v.arc));
        rings.append("A").append(radius).append(" ").append(radius).append(" 0 0 1 ");
      } else {
        rings += command;
      }
      rings += point(at.x(v.x), at.y(v.y));
      command = 'L';
    }
    rings += " Z";
  }
  return path(rings, attribute("fill", colours::steel, "fill-rule", "evenodd", "stroke",
                               colours::ink, "stroke-linejoin", "round"));
}

std::string arrow_head(double x, double y, const std::string &turn) {
  return path("M0 0 L-9 -3.5 L-9 3.5 Z", attribute("transform", moved(x, y) + turn, "fill",
                                                   colours::light_grey, "stroke", colours::none));
}

std::string origin_axes(const Sheet &at) {
  const double right = at.right() + arrow_overhang;
  const double top = at.top() - arrow_overhang;
  const std::string label = attribute("fill", colours::light_grey, "stroke", colours::none);
  return group(attribute("stroke", colours::light_grey),
               line(at.left() - axis_overhang, at.y(0), right, at.y(0)) +
                   line(at.x(0), at.bottom() + axis_overhang, at.x(0), top) +
                   arrow_head(right, at.y(0), "") + arrow_head(at.x(0), top, " rotate(-90)") +
                   text(right + label_distance, at.y(0) + 4, "x", label) +
                   text(at.x(0), top - 7, "y", label));
}

// A line through (x, y) along (cos, sin) as far as the axes go, y upwards, with its label at the end
// that lies away from the arrows of x and y.
std::string principal_axis(const Sheet &at, double x, double y, double cos, double sin,
                           const std::string &name) {
  double ends[] = {-1e9, 1e9};  // along the axis, from (x, y)
  const auto clip = [&](double direction, double low, double high) {
    if (std::fabs(direction) < 1e-9) return;
    ends[0] = std::max(ends[0], std::min(low / direction, high / direction));
    ends[1] = std::min(ends[1], std::max(low / direction, high / direction));
  };
  clip(cos, at.left() - axis_overhang - x, at.right() + axis_overhang - x);
  clip(sin, y - at.bottom() - axis_overhang, y - at.top() + axis_overhang);
  const bool is_first = cos + sin > 1e-9 || (std::fabs(cos + sin) <= 1e-9 && cos > 0);
  const double label = is_first ? ends[0] - label_distance : ends[1] + label_distance;
  return line(x + ends[0] * cos, y - ends[0] * sin, x + ends[1] * cos, y - ends[1] * sin,
              attribute("stroke-dasharray", dash_dot)) +
         text(x + label * cos, y - label * sin + 4.5, name,
              attribute("fill", colours::red, "stroke", colours::none));
}

std::string principal_axes(const Sheet &at, const Properties &p) {
  const double x = at.x(p.xs);
  const double y = at.y(p.ys);
  const double cos = std::cos(p.alpha);
  const double sin = std::sin(p.alpha);
  return group(attribute("stroke", colours::red, "stroke-width", "1.2"),
               principal_axis(at, x, y, cos, sin, "1") + principal_axis(at, x, y, -sin, cos, "2"));
}

std::string equal_area_axes(const Box &box, const Sheet &at, const Plastic &p) {
  constexpr double overhang = 18;
  return group(
      attribute("stroke", colours::green, "stroke-width", "1.6", "stroke-dasharray", dots),
      line(at.x(box.left) - overhang, at.y(p.y), at.x(box.right) + overhang, at.y(p.y)) +
          line(at.x(p.x), at.y(box.bottom) + overhang, at.x(p.x), at.y(box.top) - overhang));
}

std::string centroid_mark(double x, double y) {
  return circle(x, y, "4.5",
                attribute("fill", "white", "stroke", colours::red, "stroke-width", "1.6"));
}

std::string shear_centre_mark(double x, double y) {
  constexpr double half = 5.5;
  return group(
      attribute("stroke", colours::violet, "stroke-width", "1.8"),
      line(x - half, y - half, x + half, y + half) + line(x - half, y + half, x + half, y - half));
}

// Rows of results, then of the meanings of lines and marks.
class Legend {
 public:
  explicit Legend(double left) : left_(left) {}

  void figure(const std::string &symbol, double value, const std::string &unit) {
    const int decimals = decimals_for(value, 5);
    const std::string number = decimals > 8 ? significant(value, 5) : fixed(value, decimals);
    rows_ += text(left_, y_, symbol, attribute("font-style", "italic")) +
             text(left_ + 34, y_, "= " + number + ' ' + unit);
    y_ += row;
  }
  void gap() { y_ += 0.5 * row; }
  void key(const std::string &sample, const std::string &meaning) {
    rows_ += sample + text(left_ + 42, y_, meaning);
    y_ += row;
  }
  void line_key(const std::string &attributes, const std::string &meaning) {
    key(line(left_, middle(), left_ + 32, middle(), attributes), meaning);
  }
  [[nodiscard]] double mark() const { return left_ + 16; }
  [[nodiscard]] double middle() const { return y_ - 4; }
  [[nodiscard]] double height() const { return y_ - Sheet::header; }
  [[nodiscard]] std::string drawn() const {
    return group(attribute("text-anchor", "start", "fill", colours::ink), rows_);
  }

 private:
  static constexpr double row = 22;
  double left_;
  double y_ = Sheet::header + 24;
  std::string rows_;
};

Legend legend(const Figures &f, double left) {
  const Properties &p = f.properties;
  Legend legend(left);
  legend.figure("A", p.area / 1e2, "cm²");
  legend.figure("I₁", p.i1 / 1e4, "cm⁴");
  legend.figure("I₂", p.i2 / 1e4, "cm⁴");
  legend.figure("Wpx", f.plastic.wx / 1e3, "cm³");
  legend.figure("Wpy", f.plastic.wy / 1e3, "cm³");
  if (f.torsion.it) legend.figure("It", *f.torsion.it / 1e4, "cm⁴");
  if (f.torsion.iw) legend.figure("Iw", *f.torsion.iw / 1e6, "cm⁶");
  legend.gap();
  legend.line_key(attribute("stroke", colours::light_grey), "x, y of the origin");
  legend.line_key(attribute("stroke", colours::red, "stroke-dasharray", dash_dot),
                  "principal axes 1, 2");
  legend.line_key(
      attribute("stroke", colours::green, "stroke-width", "1.6", "stroke-dasharray", dots),
      "plastic neutral axes");
  legend.key(centroid_mark(legend.mark(), legend.middle()), "centroid");
  if (f.torsion.shear_centre) {
    legend.key(shear_centre_mark(legend.mark(), legend.middle()), "shear centre");
  }
  legend.gap();
  legend.key("", "dimensions in mm");
  return legend;
}

Box around(const Box &box, const std::optional<Point> &point) {
  if (!point) return box;
  return {std::min(box.left, point->x), std::max(box.right, point->x),
          std::min(box.bottom, point->y), std::max(box.top, point->y)};
}

std::string drawing(const Outline &outline, const Figures &f, const DimensionLines &dimensions,
                    const Sheet &at) {
  std::string marks = centroid_mark(at.x(f.properties.xs), at.y(f.properties.ys));
  if (const auto &centre = f.torsion.shear_centre) {
    marks += shear_centre_mark(at.x(centre->x), at.y(centre->y));
  }
  return steel_area(outline, at) + origin_axes(at) + principal_axes(at, f.properties) +
         equal_area_axes(bounding_box(outline), at, f.plastic) + marks + dimensions.drawn(at);
}

}  // namespace

std::string picture(const Subject &subject) {
  const auto &[name, description, subtitle, figures, outline, measures] = subject;
  const std::string title = name + ": " + description;
  const Box shown = around(bounding_box(outline), figures.torsion.shear_centre);
  const DimensionLines dimensions(measures, shown, Sheet::scale(shown));
  const Sheet at(shown, dimensions.lanes(), legend(figures, 0).height());
  const std::string left = attribute("text-anchor", "start", "fill", colours::ink);
  const std::string heading =
      text(30, 38, title, left + attribute("font-size", "18", "font-weight", "bold")) +
      text(30, 60, subtitle, left + attribute("font-size", subtitle.size() > 100 ? "11" : "14"));
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" +
         sheet(at.width(), at.height(),
               attribute("font-family", "Helvetica, Arial, sans-serif", "font-size", "14",
                         "text-anchor", "middle"),
               "<title>" + title + ' ' + subtitle +
                   "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n" + heading +
                   drawing(outline, figures, dimensions, at) +
                   legend(figures, at.legend_left()).drawn());
}

}  // namespace host
