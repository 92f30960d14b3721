#include <stdio.h>
#include <trelvin/trelvin.h>

int main(void) {
  float x[5] = {0, 40, 40, 10}; /* the spare fifth element is the library's */
  float y[5] = {0, 0, 10, 30};
  const int32_t n = 4;
  float area;
  float sx;
  float sy;
  trvapl(x, y, &n, &area);
  trvspl(x, y, &n, &sx, &sy);
  printf("area %g, centroid (%.3f, %.3f)\n", area, sy / area, sx / area);
  return 0;
}
