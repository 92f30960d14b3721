// Compiled for AVX2: only a processor that has it may come here. The loop stands here in full, since
// an inline function of others could be taken from here by the linker.
#include "space/rotations.h"

namespace trelvin {
namespace {

#if defined(__GNUC__) && defined(__AVX2__)
void turn_widely(Real *p, Real *q, Integer n, Real cosine, Real sine) {
  for (Integer i = 0; i < n; ++i) {
    const Real old_p = p[i];
    const Real old_q = q[i];
    p[i] = cosine * old_p - sine * old_q;
    q[i] = sine * old_p + cosine * old_q;
  }
}
#endif

}  // namespace

#if defined(__GNUC__) && defined(__AVX2__)
const WideTurn wide_turn = turn_widely;
#else
const WideTurn wide_turn = nullptr;
#endif

}  // namespace trelvin
