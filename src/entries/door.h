// What every entry is made of: the host's side of a call.
//
// An entry reads the values behind its addresses, calls the kernel, and only then writes, on exactly
// the paths that its contract names. So an output may share its address with a single input.
#pragma once

#include <cstdint>

#include "entries/retained.h"
#include "numeric/real.h"
#include "trelvin/calling.h"

namespace trelvin {

#ifdef __GNUC__
inline bool seldom(bool condition) {
  return __builtin_expect(static_cast<long>(condition), 0L) != 0;
}
#endif

// The processor's floating-point control, as the library needs it for as long as a call lasts.
//
// A host may round otherwise, flush subnormals to zero or have exceptions unmasked. Its control words
// and sticky flags come back as it had them. A clean host pays for a look only. Inputs come from
// memory and outputs go there, so no arithmetic moves across the statements that touch memory here.
class Door {
 public:
#if defined(__GNUC__) && (defined(__i386__) || defined(__x86_64__))
  Door() {
    asm volatile("stmxcsr %0" : "=m"(mxcsr_) : : "memory");
#ifdef __i386__
    asm volatile("fnstcw %0" : "=m"(x87_control_) : : "memory");
    foreign_ = foreign_sse() || foreign_x87();
#else
    foreign_ = foreign_sse();
#endif
    if (seldom(foreign_)) enter();
  }

  ~Door() {
    if (seldom(foreign_)) leave();
  }

 private:
  static constexpr std::uint32_t sse_flags = 0x3F;
  static constexpr std::uint32_t sse_default = 0x1F80;  // nearest, masked, subnormals kept

  [[nodiscard]] bool foreign_sse() const { return (mxcsr_ & ~sse_flags) != sse_default; }

  // NOLINTNEXTLINE(readability-convert-member-functions-to-static): not where it keeps the x87's
  void enter() {
    asm volatile("ldmxcsr %0" : : "m"(sse_default) : "memory");
#ifdef __i386__
    // Stores the environment, flags included, and masks all exceptions.
    constexpr std::uint16_t x87_default = 0x037F;
    asm volatile("fnstenv %0\n\tfnclex\n\tfldcw %1" : "=m"(x87_) : "m"(x87_default) : "memory");
#endif
  }

  void leave() {
#ifdef __i386__
    asm volatile("fnclex\n\tfldenv %0" : : "m"(x87_) : "memory");
#endif
    asm volatile("ldmxcsr %0" : : "m"(mxcsr_) : "memory");
  }

#ifdef __i386__
  // The x87 unit carries results of functions and nothing else: its masks matter, and that nothing
  // is rounded below double precision. 53 bits are what Windows itself sets.
  [[nodiscard]] bool foreign_x87() const {
    return (x87_control_ & 0x3F) != 0x3F || (x87_control_ & 0x0C00) != 0 ||
           (x87_control_ & 0x0200) == 0;
  }

  struct Environment {
    std::uint32_t words[7];
  };
  Environment x87_;
  std::uint16_t x87_control_;
#endif
  std::uint32_t mxcsr_;
  bool foreign_;
#elif defined(__GNUC__) && defined(__aarch64__)
  Door() {
    asm volatile("mrs %0, fpcr" : "=r"(fpcr_) : : "memory");
    if (seldom(fpcr_ != 0)) set(0);
  }

  ~Door() {
    if (seldom(fpcr_ != 0)) set(fpcr_);
  }

 private:
  static void set(std::uint64_t fpcr) { asm volatile("msr fpcr, %0" : : "r"(fpcr) : "memory"); }

  std::uint64_t fpcr_;
#else
  Door() {}
#endif

 public:
  Door(const Door &) = delete;
  Door &operator=(const Door &) = delete;
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
