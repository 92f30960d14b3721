#include "thin_plates.h"

#include <trelvin/sections.h>

#include <cmath>

#include "numbers.h"

namespace host {

ThinSection thin_section(const std::vector<Plate> &plates) {
  const auto n = static_cast<std::int32_t>(plates.size());
  std::vector<float> x1, y1, x2, y2, t;
  for (const Plate &p : plates) {
    x1.push_back(p.x1);
    y1.push_back(p.y1);
    x2.push_back(p.x2);
    y2.push_back(p.y2);
    t.push_back(p.t);
  }
  std::vector<float> w1(plates.size()), w2(plates.size());
  return thin_section_by(w1.data(), w2.data(), trvmxt, n, x1.data(), y1.data(), x2.data(),
                         y2.data(), t.data());
}

namespace {

// Reads the words of a line as numbers. False if a word is not a number.
bool read_numbers(std::string_view line, std::vector<float> &values) {
  constexpr std::string_view blanks = " \t\r\f\v";
  values.clear();
  for (;;) {
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    if (line.empty()) return true;
    const std::size_t length = std::min(line.find_first_of(blanks), line.size());
    values.push_back(0);
    if (read_number(line.substr(0, length), values.back()) != NumberFault::none) return false;
    line.remove_prefix(length);
  }
}

}  // namespace

std::string read_plates(const std::string &name, std::string_view text, std::size_t &number,
                        std::vector<Plate> &plates) {
  std::vector<float> v;
  for (; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    const bool readable = read_numbers(line.substr(0, line.find('#')), v);
    if (readable && v.empty()) continue;
    if (!readable || v.size() != 5) {
      return name + ":" + std::to_string(number) + ": a plate needs five numbers, x1 y1 x2 y2 t";
    }
    plates.push_back({v[0], v[1], v[2], v[3], v[4]});
  }
  return "";
}

Outline outline_of(const std::vector<Plate> &plates) {
  Outline outline;
  for (const Plate &p : plates) {
    const double dx = p.x2 - p.x1;
    const double dy = p.y2 - p.y1;
    const double half = 0.5 * p.t / std::sqrt(dx * dx + dy * dy);
    const double nx = -half * dy;
    const double ny = half * dx;
    Ring ring;
    ring.vertices.push_back({p.x1 - nx, p.y1 - ny});
    ring.vertices.push_back({p.x2 - nx, p.y2 - ny});
    ring.vertices.push_back({p.x2 + nx, p.y2 + ny});
    ring.vertices.push_back({p.x1 + nx, p.y1 + ny});
    outline.push_back(ring);
  }
  return outline;
}

Measures overall_measures(const Box &box) {
  return {{Side::below, "", box.right - box.left, box.left, box.bottom},
          {Side::left, "", box.top - box.bottom, box.bottom, box.left}};
}

std::string figures_of(const std::vector<Plate> &plates, Figures &f) {
  const ThinSection s = thin_section(plates);
  if (s.status < 0) return "a plate has no length or no thickness";
  Properties &p = f.properties;
  p.area = s.A;
  p.xs = s.xs;
  p.ys = s.ys;
  p.sx = p.area * s.ys;
  p.sy = p.area * s.xs;
  p.centroidal = {s.Ix, s.Iy, s.Ixy};
  p.origin = {s.Ix + p.sx * s.ys, s.Iy + p.sy * s.xs, s.Ixy + p.sx * s.xs};
  p.i1 = s.I1;
  p.i2 = s.I2;
  p.alpha = s.alpha;
  p.rx = s.rx;
  p.ry = s.ry;
  const auto distance = [](double moment, double modulus) { return moment / modulus; };
  f.fibres = {distance(s.Ix, s.Wx1), distance(s.Ix, s.Wx2), distance(s.Iy, s.Wy1),
              distance(s.Iy, s.Wy2)};
  f.elastic = {s.Wx1, s.Wx2, s.Wy1, s.Wy2};
  f.plastic = {s.Wpx, s.Wpy, s.xp, s.yp};
  f.origin = "that of the plates' coordinates";
  const auto n = static_cast<std::int32_t>(plates.size());
  if (s.status == 0) {
    f.torsion = {s.It, s.Iw, Point{s.xm, s.ym}, ""};
  } else if (s.status <= n) {
    f.torsion.note = "No torsion: plate " + std::to_string(s.status) +
                     " does not start at an end of an earlier plate, or closes a cell.";
  } else {
    f.torsion.note =
        "No torsion: plate " + std::to_string(s.status - n) +
        " touches an earlier plate at a point other than its own start, or closes a cell.";
  }
  return "";
}

}  // namespace host
