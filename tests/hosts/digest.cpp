// Calls every routine on two fixed pseudo-random sequences and hashes all the bits that the calls leave
// in their arguments. Every build prints what digest.txt beside this file holds, the golden bits: first
// a line for each routine and the hash of all, then the same for the calls near limits, marked by `~`.
//
//     digest            both parts
//     digest --check FILE   only the lines that differ from those of the file, and the totals
//     digest ROUTINE    each call of one routine: a line for each argument with its values before and
//                       after; golden.py beside this file finds the first call where two builds differ
//     digest ROUTINE~   the same of its calls near limits
//     digest --calls N  with another number of calls of each routine
#include <cinttypes>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>

#include "hosts/golden_bits.h"
#include "hosts/hash.h"
#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

using Draw = void (*)(const random_calls::Routine &, int,
                      const std::function<void(random_calls::Arguments &)> &);

// Prints lines, or only those that differ from the golden ones.
class Printer {
 public:
  explicit Printer(const char *golden) : check_(golden != nullptr) {
    if (check_) golden_ = read_digest(golden);
  }

  void print(const std::string &name, std::uint64_t hash) {
    const auto line = golden_.find(name);
    if (check_ && line == golden_.end()) {
      std::printf("this line is missing in the file:\n");
      ++differing_;
    } else if (check_ && hash != line->second) {
      std::printf("%-10s expected %016" PRIx64 ", got %016" PRIx64 "\n", name.c_str(), line->second,
                  hash);
      ++differing_;
      return;
    } else if (check_) {
      return;
    }
    std::printf("%-10s %016" PRIx64 "\n", name.c_str(), hash);
  }

  void print_total(const std::string &name, std::uint64_t hash) {
    const int before = differing_;
    print(name, hash);
    if (check_ && differing_ == before) std::printf("%s %016" PRIx64 "\n", name.c_str(), hash);
  }

  [[nodiscard]] bool all_agree() const { return differing_ == 0; }

 private:
  bool check_;
  std::map<std::string, std::uint64_t> golden_;
  int differing_ = 0;
};

void print_values(int call, const char *when, const random_calls::Routine &routine,
                  const random_calls::Arguments &arguments) {
  using random_calls::Argument;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const Argument &argument = arguments[i];
    std::printf("%d %s %s", call, when, routine.names[i].c_str());
    const std::size_t elements = argument.single ? 1 : Argument::room;
    for (std::size_t j = Argument::spare; j < Argument::spare + elements; ++j) {
      if (argument.kind == Argument::real && std::isnan(argument.reals[j])) {
        std::printf(" nan");
      } else if (argument.kind == Argument::real) {
        std::printf(" %.9g", static_cast<double>(argument.reals[j]));
      } else {
        std::printf(" %d", argument.integers[j]);
      }
    }
    std::printf("\n");
  }
}

// A line for each routine and one for all, or each call of the routine `only`.
void print_part(Printer &printer, const std::string &only, const char *mark, int draws, Draw draw) {
  Hash all;
  int calls = 0;
  int routines = 0;
  for (const random_calls::Routine &routine : all_routines()) {
    const std::string name = std::string(routine.name) + mark;
    if (!only.empty() && only != name) continue;
    Hash hash;
    int call = 0;
    draw(routine, draws, [&](random_calls::Arguments &arguments) {
      ++call;
      if (!only.empty()) print_values(call, "before", routine, arguments);
      routine.call(random_calls::addresses_of(arguments));
      hash.add(arguments);
      if (!only.empty()) print_values(call, "after", routine, arguments);
    });
    printer.print(name, hash.value());
    all.add(static_cast<std::uint32_t>(hash.value() >> 32));
    all.add(static_cast<std::uint32_t>(hash.value()));
    calls += call;
    ++routines;
  }
  if (routines == 0) return;
  printer.print_total("digest" + std::string(mark) + " of " + std::to_string(calls) + " calls of " +
                          std::to_string(routines) + " routines:",
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
  const bool check = only == "--check" && argc > 2;
  if (check) only.clear();
  Printer printer(check ? argv[2] : nullptr);
  print_part(printer, only, "", calls, [](auto &routine, int draws, const auto &visit) {
    random_calls::draw(routine, draws, visit);
  });
  print_part(printer, only, "~", calls / 12, random_calls::draw_near_limits);
  return printer.all_agree() ? 0 : 1;
}
