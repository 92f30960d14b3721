#include "numeric/functions.h"
#include "numeric/real.h"
#include "trelvin/space.h"

using namespace trelvin;

namespace {

// Turns p towards q, or back with mode 1.
void turn(Integer mode, TrvArrayInOut p, TrvArrayInOut q, Integer n, Real angle) {
  if (n <= 0) return;
  const SineCosine forward = sine_cosine(angle);
  const Real c = forward.cosine;
  const Real s = mode == 1 ? -forward.sine : forward.sine;
  for (Integer i = 0; i < n; ++i) {
    const Real old_p = p[i];
    const Real old_q = q[i];
    p[i] = c * old_p - s * old_q;
    q[i] = s * old_p + c * old_q;
  }
}

}  // namespace

TRELVIN_ROUTINE trvrot(TrvIntIn mode, TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIn angle) {
  turn(mode, x, y, n, angle);
}

TRELVIN_ROUTINE trvrotx(TrvIntIn mode, TrvArrayIn /*x*/, TrvArrayInOut y, TrvArrayInOut z,
                        TrvIntIn n, TrvIn angle) {
  turn(mode, y, z, n, angle);
}

TRELVIN_ROUTINE trvroty(TrvIntIn mode, TrvArrayInOut x, TrvArrayIn /*y*/, TrvArrayInOut z,
                        TrvIntIn n, TrvIn angle) {
  turn(mode, x, z, n, angle);  // x towards z, not z towards x: the frames are built on this sense
}

TRELVIN_ROUTINE trvrotz(TrvIntIn mode, TrvArrayInOut x, TrvArrayInOut y, TrvArrayIn /*z*/,
                        TrvIntIn n, TrvIn angle) {
  turn(mode, x, y, n, angle);
}
