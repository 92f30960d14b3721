#include <trelvin/trelvin.h>
#include <cstdio>

int main() {
  float a, b, c, d;
  trvln3(0, 0, 4, 3, a, b, c);  // the line through (0, 0) and (4, 3)
  trvlds(0, 5, a, b, c, d);     // and the signed distance of (0, 5) from it
  std::printf("distance %g\n", d);
}
