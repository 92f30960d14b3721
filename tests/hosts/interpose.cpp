// A host with functions named like routines: the library goes on calling its own.
#include <dlfcn.h>

#include <cmath>
#include <cstdint>
#include <cstdio>

#include "trelvin/trelvin.h"

TRELVIN_ROUTINE trvpds(TrvIn /*x1*/, TrvIn /*y1*/, TrvIn /*z1*/, TrvIn /*x2*/, TrvIn /*y2*/,
                       TrvIn /*z2*/, TrvOut d) {
  d = -1;
}

TRELVIN_ROUTINE trvcnt(TrvIn /*x1*/, TrvIn /*y1*/, TrvIn /*z1*/, TrvIn /*x2*/, TrvIn /*y2*/,
                       TrvIn /*z2*/, TrvOut dx, TrvOut dy, TrvOut dz, TrvIntOut status) {
  dx = dy = dz = 0;
  status = 1;
}

int main() {
  // The loader prefers the host's function wherever the name is looked up.
  const bool preferred = dlsym(RTLD_DEFAULT, "trvpds") == reinterpret_cast<void *>(&trvpds);
  float phi = 0;
  trvphi(0, 0, 1, 0, 0, 2, phi);
  float a[4] = {};
  std::int32_t status = -1;
  trvpl4(0, 0, 0, 1, 2, 3, 1, 2, 5, a[0], a[1], a[2], a[3], status);
  const bool right = std::fabs(phi - 1.5707964F) < 1e-6F && status == 0 && a[2] == 2;
  std::printf("the host's own trvpds is %s; angle %g, plane of normal (%g, %g, %g)\n",
              preferred ? "in place" : "NOT in place", static_cast<double>(phi),
              static_cast<double>(a[0]), static_cast<double>(a[1]), static_cast<double>(a[2]));
  return preferred && right ? 0 : 1;
}
