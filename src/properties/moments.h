// Moments of plane regions about the coordinate axes.
#pragma once

#include "vectors/vectors.h"

namespace trelvin {

struct FirstMoments {
  Real x, y;  // integrals of y and of x
};

struct SecondMoments {
  Real x, y, xy;  // integrals of y*y, of x*x and of x*y
};

inline FirstMoments operator*(FirstMoments s, Real factor) { return {s.x * factor, s.y * factor}; }
inline SecondMoments operator*(SecondMoments i, Real factor) {
  return {i.x * factor, i.y * factor, i.xy * factor};
}
inline SecondMoments operator+(SecondMoments i, SecondMoments j) {
  return {i.x + j.x, i.y + j.y, i.xy + j.xy};
}

// Moments of an area that is concentrated at one point.
inline FirstMoments first_moments_at(Point2 p, Real area) { return {p.y * area, area * p.x}; }
inline SecondMoments second_moments_at(Point2 p, Real area) {
  return {area * p.y * p.y, area * (p.x * p.x), area * p.x * p.y};
}

}  // namespace trelvin
