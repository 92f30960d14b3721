// What every entry is made of: the host's side of a call.
//
// An entry reads the values behind its addresses, calls the kernel, and only then writes, on exactly
// the paths that its contract names. So an output may share its address with a single input.
#pragma once

#include "entries/floating_point_control.h"
#include "entries/retained.h"
#include "numeric/real.h"
#include "trelvin/calling.h"

namespace trelvin {

#ifdef __GNUC__
inline bool seldom(bool condition) {
  return __builtin_expect(static_cast<long>(condition), 0L) != 0;
}
#else
inline bool seldom(bool condition) { return condition; }
#endif

// The processor's floating-point control, as the library needs it for as long as a call lasts.
//
// A host may round otherwise, flush subnormals to zero or have exceptions unmasked. Its control words
// and sticky flags are restored. If they need no change, a call only checks them. Inputs come from
// memory and outputs go there, so no arithmetic moves across the statements that touch memory here.
class Door {
 public:
  Door() : foreign_(control_.foreign()) {
    if (seldom(foreign_)) control_.enter();
  }

  ~Door() {
    if (seldom(foreign_)) control_.leave();
  }

  Door(const Door &) = delete;
  Door &operator=(const Door &) = delete;

  // Calls a function of the host under the host's own control and returns its result. If the function
  // never returns, the host keeps its control; if it changes the control, it changes the host's only.
  template <class Function>
  auto outside(Function function) {
    if (seldom(foreign_)) control_.leave();
    const auto result = function();
    control_ = FloatingPointControl();
    foreign_ = control_.foreign();
    if (seldom(foreign_)) control_.enter();
    return result;
  }

 private:
  FloatingPointControl control_;
  bool foreign_;
};

// Writes what belongs together.
inline void write(Vector3 v, Real &x, Real &y, Real &z) {
  x = v.x;
  y = v.y;
  z = v.z;
}
inline void write(Point3 p, Real &x, Real &y, Real &z) { write(Vector3{p.x, p.y, p.z}, x, y, z); }
inline void write(Point2 p, Real &x, Real &y) {
  x = p.x;
  y = p.y;
}

// A status, relation or code as the Integer that contracts name.
template <class Enumeration>
constexpr Integer code_of(Enumeration value) {
  return static_cast<Integer>(value);
}

}  // namespace trelvin
