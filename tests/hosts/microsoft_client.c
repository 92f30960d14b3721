/* A host as Microsoft's tools build it, without a run-time: its exit code is 0 when all is right. */
#include "trelvin/trelvin.h"

int _fltused; /* what those compilers ask for where there are Reals */

int start(void) {
  const float x1 = 1, y1 = 2, z1 = 3, x2 = 3, y2 = 5, z2 = 9;
  float distance = 0;
  trvpds(&x1, &y1, &z1, &x2, &y2, &z2, &distance);
  return distance == 7 ? 0 : 1;
}
