// The nine elements of a frame, passed around together.
#pragma once

#include "numeric/real.h"
#include "trelvin/space.h"

namespace trelvin {

struct FrameMatrix {
  Real e[9];

  void to_local(TrvArrayInOut p) const { apply(p, 2); }
  void to_global(TrvArrayInOut p) const { apply(p, 1); }

  void to_local(TrvArrayInOut x, TrvArrayInOut y, TrvArrayInOut z, Integer n) const {
    apply(x, y, z, n, 2);
  }
  void to_global(TrvArrayInOut x, TrvArrayInOut y, TrvArrayInOut z, Integer n) const {
    apply(x, y, z, n, 1);
  }

 private:
  void apply(TrvArrayInOut p, Integer mode) const {
    trvtrn(p, e[0], e[1], e[2], e[3], e[4], e[5], e[6], e[7], e[8], mode);
  }

  void apply(TrvArrayInOut x, TrvArrayInOut y, TrvArrayInOut z, Integer n, Integer mode) const {
    for (Integer i = 0; i < n; ++i) {
      Real p[] = {x[i], y[i], z[i]};
      apply(p, mode);
      x[i] = p[0];
      y[i] = p[1];
      z[i] = p[2];
    }
  }
};

// The frame of trvaxe; its status goes to `status`.
inline FrameMatrix frame_of_points(TrvIn x0, TrvIn y0, TrvIn z0, TrvIn x1, TrvIn y1, TrvIn z1,
                                   TrvIn x2, TrvIn y2, TrvIn z2, TrvIntOut status) {
  FrameMatrix f;
  trvaxe(x0, y0, z0, x1, y1, z1, x2, y2, z2, f.e[0], f.e[1], f.e[2], f.e[3], f.e[4], f.e[5], f.e[6],
         f.e[7], f.e[8], status);
  return f;
}

}  // namespace trelvin
