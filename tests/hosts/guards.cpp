// Places every array of every routine against a page that may not be touched, its end first and then
// its start, with room for as many elements as the contract states and not one more.
//
//     guards [ROUTINE]
#include <algorithm>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "hosts/guarded_memory.h"
#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

using random_calls::Addresses;
using random_calls::Argument;
using random_calls::Arguments;
using random_calls::Routine;

constexpr std::size_t element = sizeof(float);
static_assert(element == sizeof(std::int32_t), "Reals and Integers are of one size");

const char *called = "";
const char *touched_page = "";

void tell_fault() {
  std::printf("FAILED  %s touches what is %s an array\n", called, touched_page);
  std::fflush(stdout);
  std::_Exit(1);
}

#ifdef _WIN32
LONG WINAPI on_exception(EXCEPTION_POINTERS * /*exception*/) {
  tell_fault();
  return 0;
}
void watch() { SetUnhandledExceptionFilter(on_exception); }
#else
void on_signal(int /*signal*/) { tell_fault(); }
void watch() {
  std::signal(SIGSEGV, on_signal);
  std::signal(SIGBUS, on_signal);
}
#endif

bool has_stated_sizes(const Routine &routine) {
  for (std::size_t i = 0; i < routine.arguments.size(); ++i) {
    if (!routine.arguments[i].single && routine.sizes[i] == nullptr) return false;
  }
  return true;
}

bool has_arrays(const Routine &routine) {
  return !std::all_of(routine.arguments.begin(), routine.arguments.end(),
                      [](const Argument &argument) { return argument.single; });
}

// The elements that the call needs, at one end of the guarded memory.
void *place(const GuardedMemory &memory, Argument &argument, std::size_t elements, bool at_end) {
  const std::size_t bytes = elements * element;
  if (bytes > memory.size()) {
    std::printf("FAILED  %s: %zu elements\n", called, elements);
    std::exit(1);
  }
  char *const start = at_end ? memory.end() - bytes : memory.begin();
  const std::size_t drawn = std::min(elements, Argument::room) * element;
  std::memset(start, 0, bytes);
  std::memcpy(start, argument.address(), drawn);
  return start;
}

void call_between_guards(const Routine &routine, const std::vector<GuardedMemory> &memory) {
  called = routine.name;
  bool at_end = false;
  random_calls::draw(routine, calls_per_routine, [&](Arguments &arguments) {
    random_calls::raise_counts(routine, arguments);
    at_end = !at_end;
    touched_page = at_end ? "behind" : "before";
    Addresses addresses = random_calls::addresses_of(arguments);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      if (arguments[i].single) continue;
      addresses[i] = place(memory[i], arguments[i], routine.sizes[i](arguments).elements, at_end);
    }
    routine.call(addresses);
  });
}

}  // namespace

int main(int argc, char **argv) {
  const std::string only = argc > 1 ? argv[1] : "";
  std::vector<GuardedMemory> memory;
  int checked = 0;
  int unstated = 0;
  watch();
  for (const Routine &routine : all_routines()) {
    while (memory.size() < routine.arguments.size()) memory.emplace_back(2);
    if (!has_arrays(routine) || (!only.empty() && only != routine.name)) continue;
    if (has_stated_sizes(routine)) {
      call_between_guards(routine, memory);
      ++checked;
    } else {
      std::printf("%s: an array without a size\n", routine.name);
      ++unstated;
    }
  }
  std::printf("%d routines with arrays stay within them, %d without stated sizes\n", checked,
              unstated);
  return unstated == 0 ? 0 : 1;
}
