// Calls every routine on two fixed pseudo-random sequences and hashes all the bits that the calls leave
// in their arguments. Every build prints what digest.txt beside this file holds, the golden bits: first
// a line for each routine and the hash of all, then the same for the calls near limits, marked by `~`.
//
//     digest            both parts
//     digest ROUTINE    every call of one routine, to find the first call in which two builds differ
//     digest ROUTINE~   the same of its calls near limits
//     digest --calls N  with another number of calls of each routine
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include "hosts/hash.h"
#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

using Draw = void (*)(const random_calls::Routine &, int,
                      const std::function<void(random_calls::Arguments &)> &);

// Prints a line for each routine and one for all, or each call of the routine `only`.
void print_part(const std::string &only, const char *mark, int draws, Draw draw) {
  Hash all;
  int calls = 0;
  int routines = 0;
  for (const random_calls::Routine &routine : all_routines()) {
    const std::string name = std::string(routine.name) + mark;
    if (!only.empty() && only != name) continue;
    Hash hash;
    int call = 0;
    draw(routine, draws, [&](random_calls::Arguments &arguments) {
      routine.call(random_calls::addresses_of(arguments));
      hash.add(arguments);
      ++call;
      if (!only.empty()) std::printf("%d %016" PRIx64 "\n", call, hash.value());
    });
    std::printf("%-10s %016" PRIx64 "\n", name.c_str(), hash.value());
    all.add(static_cast<std::uint32_t>(hash.value() >> 32));
    all.add(static_cast<std::uint32_t>(hash.value()));
    calls += call;
    ++routines;
  }
  if (routines == 0) return;
  std::printf("digest%s of %d calls of %d routines: %016" PRIx64 "\n", mark, calls, routines,
              all.value());
}

}  // namespace

int main(int argc, char **argv) {
  std::string only = argc > 1 ? argv[1] : "";
  int calls = calls_per_routine;
  if (only == "--calls") {
    only.clear();
    calls = argc > 2 ? std::atoi(argv[2]) : calls;
  }
  print_part(only, "", calls, random_calls::draw);
  print_part(only, "~", calls / 12, random_calls::draw_near_limits);
  return 0;
}
