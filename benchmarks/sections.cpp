// Properties of sections.
#include <trelvin/sections.h>

#include <array>

#include "given.h"
#include "task.h"
#include "thin_plates.h"

namespace bench {
namespace {

constexpr const char *family = "Sections";

// A hot-rolled I section, from its dimensions to its principal moments: what section_properties
// does, all of it ------------------------------------------------------------------------------

struct Listed {
  std::array<float, host::most_dimensions> dimensions;  // H, B, TW, TF, R
  double area, i1, i2;                                  // cm2 and cm4
};

// IPE 200, 300, 400, 500 and HEA 200, 300, 400, 500 with their figures after EN 10365: a host goes
// through a catalogue, not through one profile again and again.
constexpr std::array<Listed, 8> catalogue{{{{200, 100, 5.6F, 8.5F, 12}, 28.48, 1943, 142.4},
                                           {{300, 150, 7.1F, 10.7F, 15}, 53.81, 8356, 603.8},
                                           {{400, 180, 8.6F, 13.5F, 21}, 84.46, 23130, 1318},
                                           {{500, 200, 10.2F, 16, 21}, 115.5, 48200, 2142},
                                           {{190, 200, 6.5F, 10, 18}, 53.83, 3692, 1336},
                                           {{290, 300, 8.5F, 14, 27}, 112.5, 18260, 6310},
                                           {{390, 300, 11, 19, 27}, 159.0, 45070, 8564},
                                           {{490, 300, 12, 23, 27}, 197.5, 86970, 10370}}};

struct Rolled {
  Rolled() {
    for (std::size_t k = 0; k < catalogue.size(); ++k) {
      given[k] = {host::find_profile("rolled"), catalogue[k].dimensions};
    }
  }
  void run() {
    for (std::size_t k = 0; k < catalogue.size(); ++k) {
      host::Section section;
      refused |= !host::properties_of(given[k], section, results[k]).message.empty();
    }
  }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    if (refused) return all;
    for (const host::Properties &p : results) all.insert(all.end(), {p.area, p.i1, p.i2});
    return all;
  }
  std::array<host::Given, catalogue.size()> given;
  std::array<host::Properties, catalogue.size()> results;
  bool refused = false;
};

std::vector<double> listed_properties() {
  std::vector<double> all;
  for (const Listed &l : catalogue) all.insert(all.end(), {100 * l.area, 1e4 * l.i1, 1e4 * l.i2});
  return all;
}

// Thin plates -------------------------------------------------------------------------------------

struct Plates {
  // A channel, from tip to tip.
  float x1[3] = {100, 0, 0}, y1[3] = {0, 0, 200};
  float x2[3] = {0, 0, 100}, y2[3] = {0, 200, 200};
  float t[3] = {10, 6, 10};
};

struct FlatBar {
  float width = 100, height = 10;
};

// What trvmxt or trvmxt_fb gives for inputs: area, second moments, torsion constant.
template <class... Inputs>
std::array<float, 4> figures_by(const Inputs &...inputs) {
  float w1[3], w2[3];
  const host::ThinSection s = host::thin_section_by(w1, w2, inputs...);
  return {s.A, s.Ix, s.Iy, s.It};
}

std::array<float, 4> figures_of(const Plates &p) {
  return figures_by(trvmxt, 3, p.x1, p.y1, p.x2, p.y2, p.t);
}

std::array<float, 4> figures_of(const FlatBar &bar) {
  return figures_by(trvmxt_fb, bar.width, bar.height);
}

template <class Data>
Contender thin_section(const Data &data) {
  return evaluated("Trelvin", data, [](const Data &d) { return figures_of(d); });
}

Task own(std::string name, const Contender &trelvin, const std::vector<double> &truth,
         std::vector<Goal> goals, Tolerance tolerance, int calls = 1) {
  return {family,
          std::move(name),
          {1},
          [=](int) { return std::vector<Contender>{trelvin}; },
          std::move(goals),
          tolerance,
          calls,
          [=](int) { return truth; }};
}

}  // namespace

void add_sections(std::vector<Task> &tasks) {
  // A million sections a second.
  tasks.push_back(own("rolled section (whole job)", contender("Trelvin", Rolled()),
                      listed_properties(), {{Goal::Kind::per_item, 1, 1000}}, relative(5e-4),
                      static_cast<int>(catalogue.size())));

  // Flanges 100 x 10 and a web 200 x 6, on centre lines; the centroid is 2*1000*50/3200 from the
  // web.
  const double xs = 2 * 1000 * 50 / 3200.0;
  const double ix = 2 * (1000 * 100.0 * 100 + 100 * 1000 / 12.0) + 6 * 8e6 / 12;
  const double iy =
      2 * (10 * 1e6 / 12 + 1000 * (50 - xs) * (50 - xs)) + 200 * 216 / 12.0 + 1200 * xs * xs;
  tasks.push_back(own("trvmxt (3 plates)", thin_section(Plates()),
                      {3200, ix, iy, (2 * 100 * 1000 + 200 * 216) / 3.0},
                      {{Goal::Kind::per_item, 1, 800}}, relative(1e-5)));

  // The torsion constant from the published table of b/t = 10: 0.312.
  tasks.push_back(own("trvmxt_fb", thin_section(FlatBar()),
                      {1000, 1e5 / 12, 1e7 / 12, 0.312 * 100 * 1000},
                      {{Goal::Kind::per_item, 1, 1000, "", 0, true}}, relative(2e-3)));
}

}  // namespace bench
