#include "section_report.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "section_figures.h"

namespace host {
namespace {

using Figures = std::vector<std::pair<std::string_view, double>>;

constexpr int digits = 7;  // what single precision holds

struct Row {
  std::string heading;
  std::string symbol;
  std::string value;
  std::string unit;
  std::string other_value;
  std::string other_unit;
};

std::string padded(const std::string &text, std::size_t width) {
  return text + std::string(width - std::min(width, text.size()), ' ');
}

std::string right_aligned(const std::string &text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

// With the decimals that suit a figure of the given size: below that a figure is rounding and shows
// as zero. Sizes that no section in mm has would fill the line with zeros.
std::string figure(double value, double size) {
  const int decimals = decimals_for(size, digits);
  return decimals < -9 || decimals > 15 ? significant(value, digits) : fixed(value, decimals);
}

class Rows {
 public:
  // Rows of one unit, mm to a power, for figures that share a size.
  void add(std::string heading, int power, double size, const Figures &figures) {
    double cm = 1;
    for (int i = 0; i < power; ++i) cm *= 10;
    const std::string exponent = power == 1 ? "" : std::to_string(power);
    for (const auto &[symbol, value] : figures) {
      rows_.push_back({std::exchange(heading, ""), std::string(symbol), figure(value, size),
                       "mm" + exponent, figure(value / cm, size / cm), "cm" + exponent});
    }
  }

  void add_angle(const std::string &symbol, double radians) {
    constexpr double degrees = 180 / 3.14159265358979323846;
    rows_.push_back({"", symbol, fixed(radians, 6), "rad", fixed(radians * degrees, 4), "deg"});
  }

  [[nodiscard]] std::string text() const {
    std::size_t width = 0;
    std::size_t other_width = 0;
    for (const Row &row : rows_) {
      width = std::max(width, row.value.size());
      other_width = std::max(other_width, row.other_value.size());
    }
    std::string text;
    for (const Row &row : rows_) {
      text += padded(row.heading, 33) + padded(row.symbol, 8) + right_aligned(row.value, width) +
              ' ' + padded(row.unit, 7) + right_aligned(row.other_value, other_width) + ' ' +
              row.other_unit + '\n';
    }
    return text;
  }

 private:
  std::vector<Row> rows_;
};

// The members of a JSON object.
std::string members(const Figures &figures, const std::string &separator) {
  std::string text;
  for (const auto &[name, value] : figures) {
    if (!text.empty()) text += separator;
    text += '"' + std::string(name) + "\": " + significant(value, 9);
  }
  return text;
}

}  // namespace

std::string table(const std::string &title, const Properties &p) {
  const double length = std::max(p.rx, p.ry);
  const double second = std::max(p.origin.x, p.origin.y);
  Rows rows;
  rows.add("Area", 2, p.area, {{"A", p.area}});
  rows.add("Centroid", 1, length, {{"xs", p.xs}, {"ys", p.ys}});
  rows.add("First moments, origin", 3, p.area * length, {{"Sx", p.sx}, {"Sy", p.sy}});
  rows.add("Second moments, origin", 4, second,
           {{"Ix", p.origin.x}, {"Iy", p.origin.y}, {"Ixy", p.origin.xy}});
  rows.add("Second moments, centroid", 4, second,
           {{"Ix", p.centroidal.x}, {"Iy", p.centroidal.y}, {"Ixy", p.centroidal.xy}});
  rows.add("Principal moments, axes 1 and 2", 4, second, {{"I1", p.i1}, {"I2", p.i2}});
  rows.add_angle("alpha", p.alpha);
  rows.add("Radii of gyration", 1, length, {{"rx", p.rx}, {"ry", p.ry}});
  if (p.torsion) {
    rows.add("Shear centre", 1, length, {{"xm", p.torsion->xm}, {"ym", p.torsion->ym}});
    rows.add("Torsion constant", 4, p.torsion->it, {{"It", p.torsion->it}});
    rows.add("Warping constant", 6, second * length * length, {{"Iw", p.torsion->iw}});
  }
  return title + '\n' + std::string(title.size(), '-') + '\n' + rows.text() +
         (p.note.empty() ? "" : p.note + '\n');
}

std::string json(const Properties &p) {
  std::string torsion;
  if (p.torsion) {
    torsion = ",\n  " + members({{"xm", p.torsion->xm},
                                 {"ym", p.torsion->ym},
                                 {"It", p.torsion->it},
                                 {"Iw", p.torsion->iw}},
                                ",\n  ");
  }
  return "{\n  " +
         members({{"area", p.area},
                  {"xs", p.xs},
                  {"ys", p.ys},
                  {"Sx", p.sx},
                  {"Sy", p.sy},
                  {"Ix", p.origin.x},
                  {"Iy", p.origin.y},
                  {"Ixy", p.origin.xy}},
                 ",\n  ") +
         ",\n  \"centroidal\": {" +
         members({{"Ix", p.centroidal.x}, {"Iy", p.centroidal.y}, {"Ixy", p.centroidal.xy}}, ", ") +
         "},\n  " +
         members({{"I1", p.i1}, {"I2", p.i2}, {"alpha", p.alpha}, {"rx", p.rx}, {"ry", p.ry}},
                 ",\n  ") +
         torsion + "\n}\n";
}

}  // namespace host
