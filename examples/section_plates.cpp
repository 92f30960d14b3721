#include "section_plates.h"

#include <trelvin/sections.h>

#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace host {

std::vector<Plate> read_plates(const std::string &file) {
  std::ifstream stream(std::filesystem::u8path(file));
  if (!stream) throw BadPlates("cannot read '" + file + "'");
  std::vector<Plate> plates;
  std::string line;
  for (int number = 1; std::getline(stream, line); ++number) {
    line.resize(std::min(line.find('#'), line.size()));
    std::istringstream words(line);
    std::vector<float> values;
    std::string word;
    bool readable = true;
    while (words >> word) {
      float value = 0;
      const char *const end = word.data() + word.size();
      const auto [rest, error] = std::from_chars(word.data(), end, value);
      readable = readable && error == std::errc() && rest == end && std::isfinite(value);
      values.push_back(value);
    }
    if (values.empty()) continue;
    if (!readable || values.size() != 5) {
      throw BadPlates(file + ":" + std::to_string(number) +
                      ": a plate is five numbers, x1 y1 x2 y2 t");
    }
    plates.push_back({values[0], values[1], values[2], values[3], values[4]});
  }
  if (plates.empty()) throw BadPlates(file + ": no plates");
  return plates;
}

Section section_of(const std::vector<Plate> &plates) {
  Section section;
  for (const Plate &p : plates) {
    const double dx = p.x2 - p.x1;
    const double dy = p.y2 - p.y1;
    const double half = 0.5 * p.t / std::sqrt(dx * dx + dy * dy);
    const double nx = -half * dy;
    const double ny = half * dx;
    section.outline.push_back({{p.x1 - nx, p.y1 - ny},
                               {p.x2 - nx, p.y2 - ny},
                               {p.x2 + nx, p.y2 + ny},
                               {p.x1 + nx, p.y1 + ny}});
  }
  return section;
}

Properties properties_of(const std::vector<Plate> &plates) {
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
  float A = 0, xs = 0, ys = 0, Ix = 0, Iy = 0, Ixy = 0, I1 = 0, I2 = 0, alpha = 0, rx = 0, ry = 0;
  float Wx1 = 0, Wx2 = 0, Wy1 = 0, Wy2 = 0, Wpx = 0, Wpy = 0, xp = 0, yp = 0;
  float It = 0, Wt = 0, xm = 0, ym = 0, Iw = 0, r0 = 0;
  std::int32_t status = 0;
  trvmxt(n, x1.data(), y1.data(), x2.data(), y2.data(), t.data(), A, xs, ys, Ix, Iy, Ixy, I1, I2,
         alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp, It, Wt, xm, ym, Iw, r0, w1.data(),
         w2.data(), status);
  if (status < 0) throw BadPlates("a plate has no length or no thickness");

  Properties p{};
  p.area = A;
  p.xs = xs;
  p.ys = ys;
  p.sx = p.area * ys;
  p.sy = p.area * xs;
  p.centroidal = {Ix, Iy, Ixy};
  p.origin = {Ix + p.sx * ys, Iy + p.sy * xs, Ixy + p.sx * xs};
  p.i1 = I1;
  p.i2 = I2;
  p.alpha = alpha;
  p.rx = rx;
  p.ry = ry;
  if (status == 0) {
    p.torsion = {It, Iw, xm, ym};
  } else if (status <= n) {
    p.note = "No torsion: plate " + std::to_string(status) +
             " starts at no end of an earlier one, or closes a cell.";
  } else {
    p.note = "No torsion: plate " + std::to_string(status - n) +
             " meets an earlier one elsewhere than at its start, or closes a cell.";
  }
  return p;
}

}  // namespace host
