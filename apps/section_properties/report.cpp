#include "report.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "numbers.h"

namespace host {
namespace {

using Named = std::vector<std::pair<std::string_view, double>>;

constexpr int digits = 7;  // what single precision holds

std::string padded(const std::string &text, std::size_t width) {
  return text + std::string(width - std::min(width, text.size()), ' ');
}

std::string right_aligned(const std::string &text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

// A difference of numbers of the section's size is a rounding error if it is small; it is shown as zero.
// A sum of terms of one sign has accurate digits of its own, however small it is.
enum class Kind { difference, sum };

// With as many decimals as suit a number of the given size. Sizes that no real section in mm has would
// fill the line with zeros.
std::string figure(double value, double size, Kind kind) {
  constexpr int fewest = 5;
  int decimals = decimals_for(size, digits);
  if (kind == Kind::sum) decimals = std::max(decimals, decimals_for(value, fewest));
  return decimals < -9 || decimals > 15 ? significant(value, digits) : fixed(value, decimals);
}

class Rows {
 public:
  // Rows of one unit, mm to a power, for figures that share a size.
  void add(std::string heading, int power, double size, Kind kind, const Named &figures) {
    double cm = 1;
    for (int i = 0; i < power; ++i) cm *= 10;
    const std::string exponent = power == 1 ? "" : std::to_string(power);
    for (const auto &[symbol, value] : figures) {
      rows_.push_back({std::exchange(heading, ""), std::string(symbol), figure(value, size, kind),
                       "mm" + exponent, figure(value / cm, size / cm, kind), "cm" + exponent});
    }
  }

  void add_angle(const std::string &symbol, double radians) {
    constexpr double degrees = 180 / 3.14159265358979323846;
    rows_.push_back({"", symbol, fixed(radians, 6), "rad", fixed(radians * degrees, 4), "deg"});
  }

  std::vector<Row> take() { return std::move(rows_); }

 private:
  std::vector<Row> rows_;
};

std::string text_of(const std::vector<Row> &rows) {
  std::size_t width = 0;
  std::size_t other_width = 0;
  for (const Row &row : rows) {
    width = std::max(width, row.value.size());
    other_width = std::max(other_width, row.other_value.size());
  }
  std::string text;
  for (const Row &row : rows) {
    text += padded(row.heading, 33) + padded(row.symbol, 8) + right_aligned(row.value, width) +
            ' ' + padded(row.unit, 7) + right_aligned(row.other_value, other_width) + ' ' +
            row.other_unit + '\n';
  }
  return text;
}

// The sizes of a section that decide how many decimals its results have.
double length_of(const Properties &p) { return std::max(p.rx, p.ry); }
double second_moment_of(const Properties &p) { return std::max(p.origin.x, p.origin.y); }

std::string line_of(std::string_view before, const std::string &text, std::string_view after) {
  return text.empty() ? "" : std::string(before).append(text).append(after);
}

// A member of a JSON object.
std::string member(std::string_view name, double value) {
  return std::string("\"").append(name).append("\": ") + significant(value, 9);
}

}  // namespace

std::vector<Row> main_rows(const Figures &f) {
  const Properties &p = f.properties;
  const double length = length_of(p);
  const double second = second_moment_of(p);
  Rows rows;
  rows.add("Area", 2, p.area, Kind::sum, {{"A", p.area}});
  rows.add("Centroid", 1, length, Kind::difference, {{"xs", p.xs}, {"ys", p.ys}});
  rows.add("First moments, origin", 3, p.area * length, Kind::difference,
           {{"Sx", p.sx}, {"Sy", p.sy}});
  rows.add("Second moments, origin", 4, second, Kind::sum,
           {{"Ix", p.origin.x}, {"Iy", p.origin.y}});
  rows.add("", 4, second, Kind::difference, {{"Ixy", p.origin.xy}});
  rows.add("Second moments, centroid", 4, second, Kind::sum,
           {{"Ix", p.centroidal.x}, {"Iy", p.centroidal.y}});
  rows.add("", 4, second, Kind::difference, {{"Ixy", p.centroidal.xy}});
  const Kind principal = p.alpha == 0 ? Kind::sum : Kind::difference;
  rows.add("Principal moments, axes 1 and 2", 4, second, principal, {{"I1", p.i1}, {"I2", p.i2}});
  rows.add_angle("alpha", p.alpha);
  rows.add("Radii of gyration", 1, length, Kind::sum, {{"rx", p.rx}, {"ry", p.ry}});
  return rows.take();
}

std::vector<Row> further_rows(const Figures &f) {
  const double length = length_of(f.properties);
  const double second = second_moment_of(f.properties);
  const Fibres &e = f.fibres;
  const Fibres &w = f.elastic;
  const Torsion &t = f.torsion;
  const double modulus = std::max({w.top, w.bottom, w.right, w.left});
  const double polar = f.properties.centroidal.x + f.properties.centroidal.y;
  Rows rows;
  rows.add("Polar moment, centroid", 4, polar, Kind::sum, {{"Ip", polar}});
  rows.add("Fibres: top, bottom, right, left", 1, length, Kind::difference,
           {{"ey1", e.top}, {"ey2", e.bottom}, {"ex1", e.right}, {"ex2", e.left}});
  rows.add("Elastic section moduli", 3, modulus, Kind::sum,
           {{"Wx1", w.top}, {"Wx2", w.bottom}, {"Wy1", w.right}, {"Wy2", w.left}});
  rows.add("Plastic section moduli", 3, modulus, Kind::sum,
           {{"Wpx", f.plastic.wx}, {"Wpy", f.plastic.wy}});
  rows.add("Plastic neutral axes", 1, length, Kind::difference,
           {{"xp", f.plastic.x}, {"yp", f.plastic.y}});
  if (t.shear_centre) {
    rows.add("Shear centre", 1, length, Kind::difference,
             {{"xm", t.shear_centre->x}, {"ym", t.shear_centre->y}});
  }
  if (t.it) rows.add("Torsion constant", 4, *t.it, Kind::sum, {{"It", *t.it}});
  if (t.iw)
    rows.add("Warping constant", 6, second * length * length, Kind::difference, {{"Iw", *t.iw}});
  return rows.take();
}

std::string notes(const Figures &f) {
  return line_of("Not given for this section: ", not_given(f.torsion, ", "), ".\n") +
         line_of("", f.torsion.note, "\n") +
         line_of("Origin: ", std::string(f.origin), ", x to the right, y upwards.\n");
}

std::string table(const std::string &title, const Figures &f) {
  return title + '\n' + std::string(title.size(), '-') + '\n' + text_of(main_rows(f)) + '\n' +
         text_of(further_rows(f)) + '\n' + notes(f);
}

std::string json(const Figures &f) {
  const auto values = values_of(f.properties);
  const auto further = further_values_of(f);
  const auto members = [&](std::size_t from, std::size_t to, std::string_view separator) {
    std::string text = member(names_of_properties[from], values[from]);
    for (std::size_t i = from + 1; i < to; ++i) {
      text.append(separator) += member(names_of_properties[i], values[i]);
    }
    return text;
  };
  std::string text = "{\n  " + members(0, first_of_centroid, ",\n  ") + ",\n  \"centroidal\": {" +
                     members(first_of_centroid, first_of_axes, ", ") + "},\n  " +
                     members(first_of_axes, values.size(), ",\n  ");
  for (std::size_t i = 0; i < further.size(); ++i) {
    if (further[i]) text += ",\n  " + member(names_of_further_figures[i], *further[i]);
  }
  const std::string missing = line_of("\"", not_given(f.torsion, "\", \""), "\"");
  return text + ",\n  \"not_given\": [" + missing + "],\n  \"origin\": \"" + std::string(f.origin) +
         "\"\n}\n";
}

}  // namespace host
