// Calls every routine on a fixed pseudo-random sequence and hashes all the bits that the calls leave
// in their arguments. Every build prints what digest.txt beside this file holds, the golden bits.
//
//     digest            a line a routine, then the hash of all
//     digest --check FILE   only the lines that differ from those of the file, and the hash of all
//     digest ROUTINE    every call of one routine, to find where two builds part
//     digest --calls N  with another number of calls of each routine
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "hosts/golden_bits.h"
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
  const bool check = only == "--check";
  if (check) only.clear();
  const auto golden = read_digest(check && argc > 2 ? argv[2] : "");
  int faults = 0;
  const auto tell = [&](const std::string &name, std::uint64_t hash) {
    const auto line = golden.find(name);
    const std::uint64_t expected = line == golden.end() ? 0 : line->second;
    if (!check) std::printf("%-10s %016" PRIx64 "\n", name.c_str(), hash);
    if (!check || hash == expected) return;
    std::printf("%-10s expected %016" PRIx64 ", got %016" PRIx64 "\n", name.c_str(), expected,
                hash);
    ++faults;
  };
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
    tell(routine.name, hash.value());
    all.add(static_cast<std::uint32_t>(hash.value() >> 32));
    all.add(static_cast<std::uint32_t>(hash.value()));
    ++routines;
  }
  const std::string total = "digest of " + std::to_string(routines * calls) + " calls of " +
                            std::to_string(routines) + " routines:";
  tell(total, all.value());
  if (check) std::printf("%s %016" PRIx64 "\n", total.c_str(), all.value());
  return faults == 0 ? 0 : 1;
}
