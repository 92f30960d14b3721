// Compiled for AVX2: only a processor that has it may come here. The loop stands here in full, since
// an inline function of others could be taken from here by the linker.
#include "space/rotations.h"

namespace trelvin {
namespace {

#if defined(__GNUC__) && defined(__AVX2__)
void rotate_widely(Real *p, Real *q, Integer n, Real cosine, Real sine) {
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
const WideRotation wide_rotation = rotate_widely;
#else
const WideRotation wide_rotation = nullptr;
#endif

}  // namespace trelvin
