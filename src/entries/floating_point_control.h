// The floating-point control of each type of processor: `foreign` returns whether the host's differs
// from what the library needs, `enter` sets what is needed, `leave` restores the host's.
#pragma once

#include <cstdint>

#if defined(_MSC_VER) && (defined(_M_IX86) || defined(_M_X64))
#include <intrin.h>
#endif

namespace trelvin {

#if defined(__i386__) || defined(__x86_64__) || defined(_M_IX86) || defined(_M_X64)

#if defined(__i386__) || defined(_M_IX86)
// The x87 unit carries results of functions and nothing else: its masks matter, and that nothing is
// rounded below double precision. 53 bits are what Windows itself sets.
class X87Control {
 public:
#ifdef __GNUC__
  X87Control() { asm volatile("fnstcw %0" : "=m"(control_) : : "memory"); }

  // Stores the environment, flags included, and masks all exceptions.
  void enter() {
    constexpr std::uint16_t standard = 0x037F;
    asm volatile("fnstenv %0\n\tfnclex\n\tfldcw %1" : "=m"(all_) : "m"(standard) : "memory");
  }

  void leave() { asm volatile("fnclex\n\tfldenv %0" : : "m"(all_) : "memory"); }
#else
  X87Control() {
    std::uint16_t control;
    __asm { fnstcw control }
    control_ = control;
  }

  void enter() {
    const std::uint16_t standard = 0x037F;
    Environment all;
    __asm {
      fnstenv all
      fnclex
      fldcw standard
    }
    all_ = all;
  }

  void leave() {
    const Environment all = all_;
    __asm {
      fnclex
      fldenv all
    }
  }
#endif

  [[nodiscard]] bool foreign() const {
    return (control_ & 0x3F) != 0x3F || (control_ & 0x0C00) != 0 || (control_ & 0x0200) == 0;
  }

 private:
  struct Environment {
    std::uint32_t words[7];
  };
  Environment all_;
  std::uint16_t control_;
};
#else
// NOLINTBEGIN(readability-convert-member-functions-to-static): called as those of the other are
struct X87Control {  // unused by 64-bit programs
  [[nodiscard]] bool foreign() const { return false; }
  void enter() {}
  void leave() {}
};
// NOLINTEND(readability-convert-member-functions-to-static)
#endif

class FloatingPointControl {
 public:
#ifdef __GNUC__
  FloatingPointControl() { asm volatile("stmxcsr %0" : "=m"(mxcsr_) : : "memory"); }
#else
  FloatingPointControl() : mxcsr_(_mm_getcsr()) { _ReadWriteBarrier(); }
#endif

  [[nodiscard]] bool foreign() const { return (mxcsr_ & ~flags) != standard || x87_.foreign(); }

  void enter() {
    load(standard);
    x87_.enter();
  }

  void leave() {
    x87_.leave();
    load(mxcsr_);
  }

 private:
  static constexpr std::uint32_t flags = 0x3F;
  static constexpr std::uint32_t standard = 0x1F80;  // nearest, masked, subnormals kept

  static void load(const std::uint32_t &mxcsr) {
#ifdef __GNUC__
    asm volatile("ldmxcsr %0" : : "m"(mxcsr) : "memory");
#else
    _ReadWriteBarrier();
    _mm_setcsr(mxcsr);
    _ReadWriteBarrier();
#endif
  }

  std::uint32_t mxcsr_;
  X87Control x87_;
};

#elif defined(__GNUC__) && defined(__aarch64__)

class FloatingPointControl {
 public:
  FloatingPointControl() { asm volatile("mrs %0, fpcr" : "=r"(control_) : : "memory"); }

  [[nodiscard]] bool foreign() const { return control_ != 0; }

  void enter() { asm volatile("mrs %0, fpsr\n\tmsr fpcr, xzr" : "=r"(flags_) : : "memory"); }

  void leave() {
    asm volatile("msr fpsr, %0\n\tmsr fpcr, %1" : : "r"(flags_), "r"(control_) : "memory");
  }

 private:
  std::uint64_t control_;
  std::uint64_t flags_ = 0;
};

#elif defined(__GNUC__) && defined(__riscv_flen)

class FloatingPointControl {
 public:
  FloatingPointControl() { asm volatile("frcsr %0" : "=r"(control_) : : "memory"); }

  [[nodiscard]] bool foreign() const { return (control_ & ~flags) != 0; }
  static void enter() { asm volatile("fscsr zero" : : : "memory"); }
  void leave() const { asm volatile("fscsr %0" : : "r"(control_) : "memory"); }

 private:
  static constexpr unsigned long flags = 0x1F;

  unsigned long control_;
};

#elif defined(__GNUC__) && defined(__s390x__)

class FloatingPointControl {
 public:
  FloatingPointControl() { asm volatile("efpc %0" : "=d"(control_) : : "memory"); }

  [[nodiscard]] bool foreign() const { return (control_ & masks_and_rounding) != 0; }
  static void enter() { asm volatile("sfpc %0" : : "d"(0) : "memory"); }
  void leave() const { asm volatile("sfpc %0" : : "d"(control_) : "memory"); }

 private:
  static constexpr std::uint32_t masks_and_rounding = 0xF8000007;

  std::uint32_t control_;
};

#else

struct FloatingPointControl {  // the host's is taken as it is
  [[nodiscard]] static bool foreign() { return false; }
  static void enter() {}
  static void leave() {}
};

#endif

}  // namespace trelvin
