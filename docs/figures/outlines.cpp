// The outline routines: every dimension by its letter, the vertices as they are numbered.
#include <algorithm>

#include "catalogue.h"
#include "dimension_lines.h"
#include "figures.h"
#include "profile.h"

namespace figures {
namespace {

using host::Side;
using Placed = host::DimensionLines::Placed;

constexpr double largest_width = 400, largest_height = 260;  // of the profile on the sheet
constexpr double first_lane = 36, lane_pitch = 30;           // of the dimension lines

Box bounds(const Profile &profile) {
  Box box{0, 0, 0, 0};
  for (const Outline &polygon : profile.polygons)
    for (const Point &p : polygon)
      box = {std::min<double>(box.left, p.x), std::min<double>(box.bottom, p.y),
             std::max<double>(box.right, p.x), std::max<double>(box.top, p.y)};
  require_near(box.left, -box.right, "the origin in the middle, x");
  require_near(box.bottom, -box.top, "the origin in the middle, y");
  return box;
}

// A dimension line must begin and end where there is a vertex. One from the middle of the profile must
// end in the middle between two.
void require_vertices(const Profile &profile, const host::Measure &measure) {
  std::vector<double> places;
  for (const Outline &polygon : profile.polygons)
    for (const Point &p : polygon) places.push_back(measure.is_along_x() ? p.x : p.y);
  const auto is_there = [&](double end) {
    return std::any_of(places.begin(), places.end(),
                       [&](double place) { return std::fabs(place - end) < 1e-3; });
  };
  const auto has_twin = [&](double place) { return is_there(2 * measure.to() - place); };
  require(measure.from == 0 ? std::any_of(places.begin(), places.end(), has_twin)
                            : is_there(measure.from) && is_there(measure.to()),
          std::string(measure.name));
}

void draw_numbers(View &view, const Profile &profile) {
  int number = 0;
  for (std::size_t k = 0; k < profile.polygons.size(); ++k) {
    const Outline &polygon = profile.polygons[k];
    require(area_of(polygon) > 0, "polygon " + std::to_string(k + 1) + " counter-clockwise");
    const std::size_t n = polygon.size();
    // The number of a hole's vertex stands in the hole: as if the hole ran clockwise.
    const std::size_t back = profile.signs[k] > 0 ? n - 1 : 1;
    for (std::size_t i = 0; i < n; ++i)
      view.number(polygon[(i + back) % n], polygon[i], polygon[(i + n - back) % n], ++number);
  }
}

void draw_dimension(View &view, const Box &box, const Placed &line) {
  const host::Measure &m = line.measure;
  const bool is_ahead = m.side == Side::above || m.side == Side::right;
  const double edge =
      m.is_along_x() ? (is_ahead ? box.top : box.bottom) : (is_ahead ? box.right : box.left);
  const double distance = first_lane + lane_pitch * static_cast<double>(line.lane);
  const auto point = [&](double along) {
    const auto u = static_cast<float>(along), v = static_cast<float>(m.level);
    return m.is_along_x() ? Point{u, v} : Point{v, u};
  };
  view.dimension(!m.is_along_x(), point(m.from), point(m.to()),
                 view.pixels(edge - m.level) + (is_ahead ? distance : -distance), line.figure,
                 line.place);
}

Sheet draw(const std::string &name, std::string_view description, const Profile &profile,
           const host::Measures &measures) {
  const Box box = bounds(profile);
  const double width = box.right - box.left, height = box.top - box.bottom;
  const double scale = std::min(largest_width / width, largest_height / height);
  const host::DimensionLines dimensions(measures, {box.left, box.right, box.bottom, box.top}, scale,
                                        host::DimensionLines::Figure::letter);
  const auto margin = [lanes = dimensions.lanes()](Side side) {
    return 42 + lane_pitch * static_cast<double>(lanes[static_cast<std::size_t>(side)]);
  };
  const double left = margin(Side::left), bottom = margin(Side::below);
  const std::string title =
      name.substr(name.find('-') + 1) + ": " + std::string(description);  // "trvsec_t: T section"
  Sheet sheet(name, left + scale * width + margin(Side::right),
              bottom + scale * height + margin(Side::above), title,
              title + ", with its dimensions by their letters and its vertices by their numbers.");
  View view(sheet, {left, bottom, left + scale * width, bottom + scale * height}, box);
  view.area(profile.polygons);
  view.axes({}, 34);
  view.dot({}, colours::grey);
  draw_numbers(view, profile);
  for (const auto &line : dimensions.lines()) {
    require_vertices(profile, line.measure);
    draw_dimension(view, box, line);
  }
  return sheet;
}

template <class P>
Figure figure(std::string_view routine) {
  return {"outline-" + std::string(routine), [](const std::string &name) {
            static_assert(P::about.drawn.size() == P::about.dimensions.size());
            const P drawn = host::made_of<P>([](std::size_t i) { return P::about.drawn[i]; });
            const Profile outline = profile(drawn.section());
            const Box box = bounds(outline);
            return draw(name, P::about.description, outline,
                        drawn.measures({box.left, box.right, box.bottom, box.top}));
          }};
}

template <class P>
void add_figure(std::vector<Figure> &figures) {
  if constexpr (P::about.routine != host::by_its_parts) {
    figures.push_back(figure<P>(P::about.routine));
  }
}

template <class... P>
std::vector<Figure> figures_of(host::Kinds<P...> /*profiles*/) {
  std::vector<Figure> figures;
  (..., add_figure<P>(figures));
  return figures;
}

// trvsec_b takes a whole width, and tells 12 vertices though it gives 4.
struct WholeBar : host::FlatBar {
  [[nodiscard]] host::Section section() const {
    host::Section bar = host::section_from(trvsec_b, static_cast<std::int32_t>(B), H);
    require(bar.polygons == 1 && bar.parts[0].n == 12, "12 vertices told");
    bar.parts[0].n = 4;
    return bar;
  }
};

}  // namespace

std::vector<Figure> outline_figures() {
  std::vector<Figure> figures = figures_of(host::Catalogue());
  figures.push_back(figure<WholeBar>("trvsec_b"));
  return figures;
}

}  // namespace figures
