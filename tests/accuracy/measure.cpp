#include "measure.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

namespace accuracy {
namespace {

constexpr int cases = 2000;
constexpr double far_shift = 1e5;
constexpr double many = 64;  // units in the last place, from which on a note tells why

double unit_in_last_place(float value) {
  const int exponent = value == 0 ? -126 : std::max(std::ilogb(value), -126);
  return std::ldexp(1.0, exponent - 23);
}

struct Column {
  std::string output;
  std::vector<double> errors;
};

std::string figure(double ulps) {
  char text[32];
  std::snprintf(text, sizeof text, "%.3g", ulps);
  return text;
}

std::vector<Column> errors_of(const Measurement &measurement, double shift) {
  std::vector<Column> columns;
  for (int i = 0; i < cases; ++i) {
    Draw draw(static_cast<std::uint64_t>(i) * 2654435761U + 1, shift);
    Results results;
    measurement.run(draw, results);
    for (const Results::Error &error : results.errors()) {
      auto column = std::find_if(columns.begin(), columns.end(),
                                 [&](const Column &c) { return c.output == error.output; });
      if (column == columns.end()) column = columns.insert(column, {error.output, {}});
      column->errors.push_back(error.ulps);
    }
  }
  return columns;
}

}  // namespace

double Draw::even(double low, double high) {
  state_ = state_ * 6364136223846793005U + 1442695040888963407U;
  const std::uint64_t mixed = (state_ ^ (state_ >> 29)) * 0xBF58476D1CE4E5B9U;
  return low + (high - low) * static_cast<double>(mixed >> 11) * 0x1p-53;
}

P2 Draw::point(double reach) {
  const auto coordinate = [&] { return static_cast<float>(even(-reach, reach) + shift_); };
  const float x = coordinate();
  return {x, coordinate()};
}

P3 Draw::point_of_space(double reach) {
  const P2 xy = point(reach);
  return {xy.x, xy.y, point(reach).y};
}

P2 Draw::vector(double shortest, double longest) {
  const double size = even(shortest, longest);
  const double angle = even(-3.14159, 3.14159);
  return {static_cast<float>(size * cosine(angle)), static_cast<float>(size * sine(angle))};
}

P3 Draw::vector_of_space(double shortest, double longest) {
  const double size = even(shortest, longest);
  const double angle = even(-3.14159, 3.14159);
  const double z = even(-1, 1);
  const double level = size * std::sqrt(1 - z * z);
  return {static_cast<float>(level * static_cast<double>(cosine(angle))),
          static_cast<float>(level * static_cast<double>(sine(angle))),
          static_cast<float>(size * z)};
}

Outline Draw::star(int n, double first) {
  const P2 middle = point();
  Outline outline;
  for (int i = 0; i < n; ++i) {
    const double angle = 2 * 3.14159265 * (i + first) / n;
    const float r = number(100, 300);
    outline.x.push_back(middle.x + r * static_cast<float>(cosine(angle)));
    outline.y.push_back(middle.y + r * static_cast<float>(sine(angle)));
  }
  outline.x.push_back(0);
  outline.y.push_back(0);
  return outline;
}

void Results::add_all(const char *output, const std::vector<float> &got,
                      const std::vector<Exact> &expected) {
  double unit = 0;
  double worst = 0;
  for (const Exact value : expected)
    unit = std::max(unit, unit_in_last_place(static_cast<float>(value)));
  for (std::size_t i = 0; i < got.size(); ++i) {
    const double off =
        static_cast<double>(got[i]) - static_cast<double>(static_cast<float>(expected[i]));
    if (!(std::fabs(off) <= worst)) worst = std::fabs(off);
    if (off != off) worst = std::numeric_limits<double>::infinity();
  }
  errors_.push_back({output, worst / unit});
}

std::map<std::string, Measurement> &measurements() {
  static std::map<std::string, Measurement> all;
  return all;
}

std::string measured(const std::string &routine, const Measurement &measurement) {
  std::string lines;
  for (const double shift : {0.0, far_shift}) {
    if (shift > 0 && measurement.where == origin_only) break;
    std::vector<Column> columns = errors_of(measurement, shift);
    if (columns.empty()) lines += routine + ",,far,,,refused\n";
    for (Column &column : columns) {
      std::vector<double> &errors = column.errors;
      std::sort(errors.begin(), errors.end());
      const double worst = errors.back();
      std::string note = worst >= many ? measurement.note : "";
      if (errors.size() < cases / 2)
        note += (note.empty() ? "" : "; ") + std::to_string(errors.size()) + " cases";
      lines += routine + ',' + column.output + ',' + (shift > 0 ? "far" : "origin") + ',' +
               figure(errors[errors.size() / 2]) + ',' + figure(worst) + ',' + note + '\n';
    }
  }
  return lines;
}

}  // namespace accuracy
