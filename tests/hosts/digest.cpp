// Calls every routine on a fixed pseudo-random sequence and hashes all the bits that the calls leave
// in their arguments. Every build prints what digest.txt beside this file holds, the golden bits.
//
//     digest            a line a routine, then the hash of all
//     digest ROUTINE    every call of one routine, to find where two builds part
//     digest --calls N  with another number of calls of each routine
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "hosts/hash.h"
#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

int main(int argc, char **argv) {
  std::string only = argc > 1 ? argv[1] : "";
  int calls = calls_per_routine;
  if (only == "--calls") {
    only.clear();
    calls = argc > 2 ? std::atoi(argv[2]) : calls;
  }
  Hash all;
  int routines = 0;
  for (const random_calls::Routine &routine : all_routines()) {
    if (!only.empty() && only != routine.name) continue;
    Hash hash;
    int call = 0;
    random_calls::draw(routine, calls, [&](random_calls::Arguments &arguments) {
      routine.call(random_calls::addresses_of(arguments));
      hash.add(arguments);
      if (!only.empty()) std::printf("%d %016" PRIx64 "\n", ++call, hash.value());
    });
    std::printf("%-10s %016" PRIx64 "\n", routine.name, hash.value());
    all.add(static_cast<std::uint32_t>(hash.value() >> 32));
    all.add(static_cast<std::uint32_t>(hash.value()));
    ++routines;
  }
  std::printf("digest of %d calls of %d routines: %016" PRIx64 "\n", routines * calls, routines,
              all.value());
  return 0;
}
