// Calls every routine in the roundings that a host may have set, one call after the other in the next
// rounding. Each call must give the golden bits and leave the rounding as it was. Each call in another
// rounding than the library's own must leave the sticky flags as well. On 64-bit ARM, subnormals are
// flushed in those.
//
//     roundings DIGEST
#include <cfenv>
#include <cinttypes>
#include <cstdint>
#include <cstdio>

#include "hosts/golden_bits.h"
#include "hosts/hash.h"
#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

void flush_subnormals() {
#ifdef __aarch64__
  std::uint64_t control = 0;
  asm volatile("mrs %0, fpcr" : "=r"(control));
  asm volatile("msr fpcr, %0" : : "r"(control | 1U << 24));
#endif
}

int faults_of(const random_calls::Routine &routine, std::uint64_t golden) {
  constexpr int roundings[] = {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO};
  Hash hash;
  bool changed = false;
  unsigned call = 0;
  std::fenv_t clean;
  std::fegetenv(&clean);
  random_calls::draw(routine, calls_per_routine, [&](random_calls::Arguments &arguments) {
    const random_calls::Addresses addresses = random_calls::addresses_of(arguments);
    const int rounding = roundings[call++ % 4];
    const bool foreign = rounding != FE_TONEAREST;
    std::fesetround(rounding);
    if (foreign) flush_subnormals();
    std::feclearexcept(FE_ALL_EXCEPT);
    std::feraiseexcept(FE_DIVBYZERO);
    routine.call(addresses);
    changed |= std::fegetround() != rounding;
    changed |= foreign && std::fetestexcept(FE_ALL_EXCEPT) != FE_DIVBYZERO;
    std::fesetenv(&clean);
    hash.add(arguments);
  });
  if (changed) std::printf("%s changes the rounding or the flags\n", routine.name);
  if (hash.value() != golden) {
    std::printf("%s gives %016" PRIx64 ", not the golden bits\n", routine.name, hash.value());
  }
  return (changed ? 1 : 0) + (hash.value() != golden ? 1 : 0);
}

}  // namespace

int main(int argc, char **argv) {
  if (argc < 2) return 2;
  auto digest = read_digest(argv[1]);
  int faults = 0;
  for (const random_calls::Routine &routine : all_routines()) {
    faults += faults_of(routine, digest[routine.name]);
  }
  std::printf("4 roundings, %d faults\n", faults);
  return faults == 0 ? 0 : 1;
}
