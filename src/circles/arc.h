// An arc by its centre and ends, as the routines on stations and chords take it.
#pragma once

#include "numeric/real.h"
#include "trelvin/plane.h"

namespace trelvin {

struct Point {
  Real x, y;
};

struct Arc {
  Point c, a, b;
};

inline Real distance(const Point &p, const Point &q) {
  Real d;
  trvpds(p.x, p.y, 0, q.x, q.y, 0, d);
  return d;
}

struct ArcLengths {
  Real radius;  // of A
  Real radius_b;
  Real chord;
};

inline ArcLengths measure(const Arc &arc) {
  return {distance(arc.c, arc.a), distance(arc.c, arc.b), distance(arc.a, arc.b)};
}

struct Line {
  Real a, b, c;
};

inline Line line_through(const Point &p, const Point &q) {
  Line line;
  trvln3(p.x, p.y, q.x, q.y, line.a, line.b, line.c);
  return line;
}

}  // namespace trelvin
