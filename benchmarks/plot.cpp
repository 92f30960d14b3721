#include "plot.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "report.h"
#include "svg.h"

namespace bench {
namespace {

using namespace svg;

constexpr int columns = 3;
constexpr double panel_width = 390;
constexpr double panel_height = 300;
constexpr double left = 52, right = 26, top = 58, bottom = 34;  // margins of a panel

struct Series {
  std::string name;
  std::vector<std::array<double, 2>> points;  // decimal logarithms of size and nanoseconds
  bool predicted_end = false;
};

struct Panel {
  std::string title;
  std::vector<Series> series;
};

void add_rows(std::vector<Panel> &panels, const std::vector<Row> &rows, bool dll) {
  for (const Row &row : rows) {
    auto panel = std::find_if(panels.begin(), panels.end(),
                              [&](const Panel &p) { return p.title == row.task; });
    if (panel == panels.end()) {
      if (dll) continue;
      panel = panels.insert(panel, {row.task, {}});
    }
    for (const Figure &figure : row.figures) {
      if (dll && figure.contender != "Trelvin") continue;
      const std::string name = dll ? "Trelvin.dll" : figure.contender;
      auto series = std::find_if(panel->series.begin(), panel->series.end(),
                                 [&](const Series &s) { return s.name == name; });
      if (series == panel->series.end()) series = panel->series.insert(series, {name, {}});
      series->points.push_back({std::log10(row.size), std::log10(per_item(row, figure))});
      series->predicted_end = figure.predicted;
    }
  }
}

// One colour a name throughout the picture.
std::string colour(const std::string &name, std::vector<std::string> &known) {
  if (name.rfind("Trelvin", 0) == 0) return colours::red;
  static const std::array<const char *, 8> palette{colours::blue, "#e08e1b", "#3a7d44", "#7b4b94",
                                                   "#17a2a2",     "#8a5a2b", "#5b6770", "#b5527f"};
  const auto at = std::find(known.begin(), known.end(), name);
  const auto index = static_cast<std::size_t>(at - known.begin());
  if (at == known.end()) known.push_back(name);
  return palette[index % palette.size()];
}

// Maps logarithms to pixels of a panel.
class Axes {
 public:
  explicit Axes(const Panel &panel) {
    for (const Series &series : panel.series) {
      for (const auto &[x, y] : series.points) {
        x_low_ = std::min(x_low_, x);
        x_high_ = std::max(x_high_, x);
        y_low_ = std::min(y_low_, std::floor(y));
        y_high_ = std::max(y_high_, std::ceil(y));
      }
    }
    if (y_high_ <= y_low_) y_high_ = y_low_ + 1;
  }
  [[nodiscard]] double x(double value) const {
    return left + (value - x_low_) / (x_high_ - x_low_) * (panel_width - left - right);
  }
  [[nodiscard]] double y(double value) const {
    return panel_height - bottom -
           (value - y_low_) / (y_high_ - y_low_) * (panel_height - top - bottom);
  }

  // Lines and labels at the powers of ten.
  [[nodiscard]] std::string grid() const {
    const std::string rule = attribute("stroke", "#d9dee3");
    const std::string at_end = attribute("text-anchor", "end");
    const std::string centred = attribute("text-anchor", "middle");
    std::string drawn;
    for (long v = std::lround(y_low_); v <= std::lround(y_high_); ++v) {
      const double at = y(static_cast<double>(v));
      drawn += line(left, at, panel_width - right, at, rule);
      drawn += text(left - 6, at + 4, power_of_ten(v), at_end);
    }
    for (long v = std::lround(std::ceil(x_low_)); v <= std::lround(std::floor(x_high_)); ++v) {
      const double at = x(static_cast<double>(v));
      drawn += line(at, top, at, panel_height - bottom, rule);
      drawn += text(at, panel_height - bottom + 16, power_of_ten(v), centred);
    }
    return drawn;
  }

 private:
  static std::string power_of_ten(long exponent) {
    if (exponent > 4) return "1e" + std::to_string(exponent);
    return host::significant(std::pow(10, exponent), 6);
  }
  double x_low_ = 1e9, x_high_ = -1e9, y_low_ = 1e9, y_high_ = -1e9;
};

std::string dash(const Series &series) {
  return series.name == "Trelvin.dll" ? attribute("stroke-dasharray", "5 3") : "";
}

std::string curve(const Series &series, const Axes &axes, const std::string &stroke) {
  const bool own = series.name.rfind("Trelvin", 0) == 0;
  std::string points;
  std::string dots;
  for (std::size_t k = 0; k < series.points.size(); ++k) {
    const double x = axes.x(series.points[k][0]);
    const double y = axes.y(series.points[k][1]);
    const bool hollow = series.predicted_end && k + 1 == series.points.size();
    points += point(x, y) + ' ';
    dots += circle(x, y, "3", attribute("stroke", stroke, "fill", hollow ? "white" : stroke));
  }
  return "<polyline" +
         attribute("fill", colours::none, "stroke", stroke, "stroke-width", own ? 2.6 : 1.4) +
         dash(series) + attribute("points", points) + "/>\n" + dots;
}

std::string panel_svg(const Panel &panel, std::vector<std::string> &known) {
  const Axes axes(panel);
  std::string drawn =
      text(left, 18, panel.title, attribute("font-weight", "bold", "font-size", 13));
  drawn += axes.grid();
  double legend_x = left;
  double legend_y = 34;
  for (const Series &series : panel.series) {
    const std::string stroke = colour(series.name, known);
    const double width = 36 + 6.6 * static_cast<double>(series.name.size());
    if (legend_x + width > panel_width - right) {
      legend_x = left;
      legend_y += 14;
    }
    drawn += line(legend_x, legend_y - 4, legend_x + 22, legend_y - 4,
                  attribute("stroke-width", 3, "stroke", stroke) + dash(series));
    drawn += text(legend_x + 26, legend_y, series.name);
    legend_x += width;
    drawn += curve(series, axes, stroke);
  }
  return drawn;
}

}  // namespace

std::string plot(const std::vector<Row> &rows, const std::vector<Row> &dll) {
  std::vector<Panel> panels;
  add_rows(panels, rows, false);
  add_rows(panels, dll, true);
  panels.erase(std::remove_if(panels.begin(), panels.end(),
                              [](const Panel &p) { return p.series[0].points.size() < 2; }),
               panels.end());

  const auto lines = (panels.size() + columns - 1) / columns;
  const double height = 30 + panel_height * static_cast<double>(lines);
  std::string content =
      "<rect" + attribute("width", "100%", "height", "100%", "fill", "white") + "/>\n" +
      text(left, 20, "Nanoseconds an item against the number of items", attribute("font-size", 14));
  std::vector<std::string> known;
  for (std::size_t k = 0; k < panels.size(); ++k) {
    const std::size_t row = k / columns;
    const double x = panel_width * static_cast<double>(k % columns);
    const double y = 30 + panel_height * static_cast<double>(row);
    content += group(attribute("transform", moved(x, y)), panel_svg(panels[k], known));
  }
  return sheet(columns * panel_width, height,
               attribute("font-family", "sans-serif", "font-size", 11, "fill", colours::ink),
               content);
}

}  // namespace bench
