#include "dimension_lines.h"

#include <algorithm>

#include "svg.h"

namespace host {
namespace {

using namespace svg;

constexpr double font_size = 13;
constexpr double overhang = 9;  // of a dimension line beyond its ends
constexpr double clearance = 5;

double width_of(const std::string &figure) {
  constexpr double widest_usual = 0.6;  // of the font's size
  return widest_usual * font_size * static_cast<double>(figure.size());
}

}  // namespace

DimensionLines::Placed DimensionLines::placed(const Measure &measure, double middle, double scale,
                                              Figure figure) {
  Placed line;
  line.measure = measure;
  line.figure = measure.name;
  if (figure == Figure::letter_and_value) {
    line.figure += measure.name.empty() ? "" : " = ";
    line.figure += shortest(static_cast<float>(measure.value));
  }
  const double from = scale * (measure.from - middle);
  const double to = scale * (measure.to() - middle);
  const double width = width_of(line.figure);
  line.start = from - overhang;
  line.end = to + overhang;
  if (to - from >= width + clearance) return line;
  // Towards the middle, so that the text stays next to the section.
  const bool is_behind = from + to <= 1e-9;
  line.place = is_behind ? Letter::behind : Letter::before;
  (is_behind ? line.end : line.start) += is_behind ? width + clearance : -width - clearance;
  return line;
}

std::size_t DimensionLines::free_lane(const Placed &wanted) const {
  const auto is_taken = [&](std::size_t lane) {
    return std::any_of(lines_.begin(), lines_.end(), [&](const Placed &other) {
      return other.measure.side == wanted.measure.side && other.lane == lane &&
             other.start < wanted.end + clearance && wanted.start < other.end + clearance;
    });
  };
  std::size_t lane = 0;
  while (is_taken(lane)) ++lane;
  return lane;
}

// Short ones first: they get the lanes next to the section.
DimensionLines::DimensionLines(const Measures &measures, const Box &shown, double scale,
                               Figure figure) {
  Measures sorted = measures;
  std::stable_sort(sorted.begin(), sorted.end(), [](const Measure &a, const Measure &b) {
    return a.to() - a.from < b.to() - b.from;
  });
  for (const Measure &measure : sorted) {
    const double middle = measure.is_along_x() ? shown.x() : shown.y();
    Placed line = placed(measure, middle, scale, figure);
    line.lane = free_lane(line);
    lines_.push_back(line);
  }
}

Lanes DimensionLines::lanes() const {
  Lanes lanes{};
  for (const Placed &line : lines_) {
    std::size_t &count = lanes[static_cast<std::size_t>(line.measure.side)];
    count = std::max(count, line.lane + 1);
  }
  return lanes;
}

// Figures last, over all lines.
std::string DimensionLines::drawn(const Sheet &at) const {
  Drawing all;
  for (const Placed &line : lines_) {
    const Drawing one = drawn(line, at);
    all.lines += one.lines;
    all.figures += one.figures;
  }
  // A rim of paper keeps the figures clear of the lines behind them.
  return group(attribute("stroke", colours::blue, "stroke-width", "0.8"), all.lines) +
         group(attribute("fill", colours::blue, "font-size", font_size, "stroke", "white",
                         "stroke-width", "3", "paint-order", "stroke"),
               all.figures);
}

// Drawn along x, from the first point, and turned to stand along y.
DimensionLines::Drawing DimensionLines::drawn(const Placed &line, const Sheet &at) {
  const Measure &m = line.measure;
  const double distance = first_lane + lane_pitch * static_cast<double>(line.lane);
  const double length = at.length(m.to() - m.from);
  std::string place;
  double reach = 0;  // from the dimension line back to the section, downwards as drawn
  if (m.is_along_x()) {
    const double y = m.side == Side::above ? at.top() - distance : at.bottom() + distance;
    place = moved(at.x(m.from), y);
    reach = at.y(m.level) - y;
  } else {
    const double x = m.side == Side::left ? at.left() - distance : at.right() + distance;
    place = moved(x, at.y(m.from)) + " rotate(-90)";
    reach = at.x(m.level) - x;
  }
  place = attribute("transform", place);
  const auto stroke = [](double x) {
    return svg::line(x - 4, 4, x + 4, -4, attribute("stroke-width", "1.8"));
  };
  const auto extension = [&](double x) {
    return svg::line(x, reach, x, reach > 0 ? -8 : 8, attribute("stroke-opacity", "0.55"));
  };
  const std::string name = m.name.empty() ? "" : attribute("data-dimension", std::string(m.name));
  const std::string lines = svg::line(-overhang, 0, length + overhang, 0) + extension(0) +
                            extension(length) + stroke(0) + stroke(length);
  std::string figure;
  switch (line.place) {
    case Letter::between:
      figure = text(0.5 * length, -6, line.figure, place);
      break;
    case Letter::behind:
      figure =
          text(length + overhang + 2, 4.5, line.figure, place + attribute("text-anchor", "start"));
      break;
    case Letter::before:
      figure = text(-overhang - 2, 4.5, line.figure, place + attribute("text-anchor", "end"));
      break;
  }
  return {group(place + name, lines), figure};
}

}  // namespace host
