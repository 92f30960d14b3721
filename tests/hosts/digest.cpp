// Calls every routine on a fixed pseudo-random sequence and hashes all the bits that the calls leave
// in their arguments. Every build prints what digest.txt beside this file holds, the golden bits.
//
//     digest            a line a routine, then the hash of all
//     digest ROUTINE    every call of one routine, to find where two builds part
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <string>

#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

class Hash {
 public:
  void add(std::uint32_t word) { value_ = (value_ ^ word) * 0x100000001B3U; }
  [[nodiscard]] std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325U;
};

}  // namespace

int main(int argc, char **argv) {
  const std::string only = argc > 1 ? argv[1] : "";
  Hash all;
  int routines = 0;
  for (const random_calls::Routine &routine : all_routines()) {
    if (!only.empty() && only != routine.name) continue;
    Hash hash;
    int call = 0;
    random_calls::run(routine, calls_per_routine, [&](const auto & /*before*/, const auto &after) {
      for (const random_calls::Argument &argument : after) {
        argument.visit_bits([&](std::uint32_t bits) { hash.add(bits); });
      }
      if (!only.empty()) std::printf("%d %016" PRIx64 "\n", ++call, hash.value());
    });
    std::printf("%-10s %016" PRIx64 "\n", routine.name, hash.value());
    all.add(static_cast<std::uint32_t>(hash.value() >> 32));
    all.add(static_cast<std::uint32_t>(hash.value()));
    ++routines;
  }
  std::printf("digest of %d calls of %d routines: %016" PRIx64 "\n", routines * calls_per_routine,
              routines, all.value());
  return 0;
}
