// The outputs that all outline routines share, and their one writer.
#pragma once

#include <array>
#include <initializer_list>

#include "numeric/real.h"
#include "trelvin/calling.h"

namespace trelvin {

struct Vertex {
  Real x;
  Real y;
};

class OutlineFrame {
 public:
  OutlineFrame(TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut x, TrvArrayOut y, TrvIntArrayOut code,
               TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4,
               TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2)
      : np_(np),
        nv_(nv),
        x_(x),
        y_(y),
        code_(code),
        sign_(sign),
        z_{z1, z2, z3, z4, z5},
        q1_(q1),
        q2_(q2) {
    np_ = 0;
  }

  OutlineFrame &solid(Real q, std::initializer_list<Vertex> vertices) {
    return polygon(1, q, vertices);
  }

  OutlineFrame &hole(Real q, std::initializer_list<Vertex> vertices) {
    return polygon(-1, -q, vertices);
  }

 private:
  static constexpr Integer kind_polygon = 2;

  OutlineFrame &polygon(Real sign, Real q, std::initializer_list<Vertex> vertices) {
    const Integer p = np_++;
    nv_[p] = static_cast<Integer>(vertices.size());
    code_[p] = kind_polygon;
    sign_[p] = sign;
    for (Real *z : z_) z[p] = 0;
    q1_[p] = q;
    q2_[p] = q;
    for (const Vertex &vertex : vertices) {
      *x_++ = vertex.x;
      *y_++ = vertex.y;
    }
    return *this;
  }

  TrvIntOut np_;
  TrvIntArrayOut nv_;
  TrvArrayOut x_;
  TrvArrayOut y_;
  TrvIntArrayOut code_;
  TrvArrayOut sign_;
  std::array<TrvArrayOut, 5> z_;
  TrvArrayOut q1_;
  TrvArrayOut q2_;
};

}  // namespace trelvin
