#include "numeric/processor.h"

#if defined(__GNUC__) && (defined(__i386__) || defined(__x86_64__))
#include <cpuid.h>

#include <atomic>

namespace trelvin {
namespace {

bool system_keeps_wide_registers() {
  constexpr unsigned sse_and_avx = 6;
  unsigned low = 0;
  unsigned high = 0;
  asm volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return (low & sse_and_avx) == sse_and_avx;
}

bool find_avx2() {
  unsigned eax = 0;
  unsigned ebx = 0;
  unsigned ecx = 0;
  unsigned edx = 0;
  if (__get_cpuid(1, &eax, &ebx, &ecx, &edx) == 0) return false;
  constexpr unsigned avx = bit_OSXSAVE | bit_AVX;  // the first allows the question to the system
  if ((ecx & avx) != avx || !system_keeps_wide_registers()) return false;
  return __get_cpuid_count(7, 0, &eax, &ebx, &ecx, &edx) != 0 && (ebx & bit_AVX2) != 0;
}

enum class Answer : int { unknown, no, yes };

}  // namespace

bool has_avx2() {
  // Threads that come here at once find the same answer, each for itself.
  static std::atomic<Answer> known{Answer::unknown};
  Answer answer = known.load(std::memory_order_relaxed);
  if (answer == Answer::unknown) {
    answer = find_avx2() ? Answer::yes : Answer::no;
    known.store(answer, std::memory_order_relaxed);
  }
  return answer == Answer::yes;
}

}  // namespace trelvin

#else

namespace trelvin {

bool has_avx2() { return false; }

}  // namespace trelvin

#endif
