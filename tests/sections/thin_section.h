// Calls of trvmxt and trvmxt_fb with their outputs.
#pragma once

#include "support.h"
#include "trelvin/sections.h"

namespace trelvin_test {

struct Plate {
  float x1, y1, x2, y2, t;
};

struct ThinSection {
  float A = kept, xs = A, ys = A, Ix = A, Iy = A, Ixy = A, I1 = A, I2 = A, alpha = A, rx = A,
        ry = A, Wx1 = A, Wx2 = A, Wy1 = A, Wy2 = A, Wpx = A, Wpy = A, xp = A, yp = A, It = A,
        Wt = A, xm = A, ym = A, Iw = A, r0 = A;
  std::vector<float> W1, W2;
  std::int32_t status = kept;

  explicit ThinSection(const std::vector<Plate> &plates) : W1(plates.size()), W2(plates.size()) {
    std::vector<float> columns[5];
    for (const Plate &p : plates) {
      const float values[] = {p.x1, p.y1, p.x2, p.y2, p.t};
      for (std::size_t i = 0; i < 5; ++i) columns[i].push_back(values[i]);
    }
    trvmxt(static_cast<std::int32_t>(plates.size()), columns[0].data(), columns[1].data(),
           columns[2].data(), columns[3].data(), columns[4].data(), A, xs, ys, Ix, Iy, Ixy, I1, I2,
           alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp, It, Wt, xm, ym, Iw, r0, W1.data(),
           W2.data(), status);
  }

  ThinSection(float B, float H) : W1(1), W2(1) {
    trvmxt_fb(B, H, A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp,
              yp, It, Wt, xm, ym, Iw, r0, W1.data(), W2.data(), status);
  }
};

inline std::vector<Plate> channel(float B, float H, float C, float t) {
  const float b = B - t, y = 0.5F * (H - t), c = C - 0.5F * t;
  std::vector<Plate> plates = {{0, -y, 0, y, t}, {0, y, b, y, t}, {0, -y, b, -y, t}};
  if (C > 0) {
    plates.push_back({b, y, b, y - c, t});
    plates.push_back({b, -y, b, -y + c, t});
  }
  return plates;
}

}  // namespace trelvin_test
