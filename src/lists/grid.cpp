#include "lists/grid.h"

#include <algorithm>
#include <cfloat>

namespace trelvin {

// Without a tolerance cells are so small that every number has its own. The reach is a little more
// than the tolerance, for the roundings on the way.
Grid::Grid(Real tol, double tolerances_per_cell, int bits)
    : cells_per_length_(1 / (tol > 0 ? tolerances_per_cell * double{tol} : DBL_MIN)),
      reach_(1 / tolerances_per_cell + 1e-6),
      endless_(cells_per_length_ == 0),
      shift_(32 - bits) {}

int Grid::cells_around(Point3 p, std::uint32_t *cells) const {
  const Span x = span_of(p.x);
  const Span y = span_of(p.y);
  const Span z = span_of(p.z);
  int count = 0;
  for (std::uint32_t i = x.first; i != x.end; ++i) {
    for (std::uint32_t j = y.first; j != y.end; ++j) {
      for (std::uint32_t k = z.first; k != z.end; ++k) {
        const std::uint32_t cell = number(i, j, k);
        if (std::find(cells, cells + count, cell) == cells + count) cells[count++] = cell;
      }
    }
  }
  return count;
}

}  // namespace trelvin
