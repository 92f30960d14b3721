// Places every array of every routine against a page that may not be touched, its end first and then
// its start, with room for as many elements as the contract states and not one more.
//
//     guards [ROUTINE]
#include <algorithm>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

using random_calls::Addresses;
using random_calls::Argument;
using random_calls::Arguments;
using random_calls::Routine;

const char *called = "";
const char *touched_page = "";

void tell_fault() {
  std::printf("FAILED  %s touches what is %s an array\n", called, touched_page);
  std::fflush(stdout);
  std::_Exit(1);
}

struct Range {
  char *begin, *end;
};

#ifdef _WIN32
LONG WINAPI on_exception(EXCEPTION_POINTERS * /*exception*/) {
  tell_fault();
  return 0;
}
void watch() { SetUnhandledExceptionFilter(on_exception); }

// Two pages between two that may not be touched.
Range guarded_pages() {
  SYSTEM_INFO system;
  GetSystemInfo(&system);
  const std::size_t page = system.dwPageSize;
  auto *const whole =
      static_cast<char *>(VirtualAlloc(nullptr, 4 * page, MEM_RESERVE, PAGE_NOACCESS));
  VirtualAlloc(whole + page, 2 * page, MEM_COMMIT, PAGE_READWRITE);
  return {whole + page, whole + 3 * page};
}
#else
void on_signal(int /*signal*/) { tell_fault(); }
void watch() {
  std::signal(SIGSEGV, on_signal);
  std::signal(SIGBUS, on_signal);
}

// Two pages between two that may not be touched.
Range guarded_pages() {
  const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  auto *const whole =
      static_cast<char *>(mmap(nullptr, 4 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
  mprotect(whole + page, 2 * page, PROT_READ | PROT_WRITE);
  return {whole + page, whole + 3 * page};
}
#endif

// The elements that the call needs, at one end of the pages.
void *place(const Range &pages, Argument &argument, std::size_t elements, bool at_end) {
  constexpr std::size_t element = sizeof(float);  // and of an Integer
  char *const start = at_end ? pages.end - elements * element : pages.begin;
  std::memset(start, 0, elements * element);
  std::memcpy(start, argument.address(), std::min(elements, Argument::room) * element);
  return start;
}

void call_between_guards(const Routine &routine, const std::vector<Range> &pages) {
  called = routine.name;
  bool at_end = false;
  random_calls::draw(routine, calls_per_routine, [&](Arguments &arguments) {
    random_calls::raise_counts(routine, arguments);
    at_end = !at_end;
    touched_page = at_end ? "behind" : "before";
    Addresses addresses = random_calls::addresses_of(arguments);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      if (arguments[i].single) continue;
      addresses[i] = place(pages[i], arguments[i], routine.sizes[i](arguments).elements, at_end);
    }
    routine.call(addresses);
  });
}

}  // namespace

int main(int argc, char **argv) {
  const std::string only = argc > 1 ? argv[1] : "";
  std::vector<Range> pages;
  int checked = 0;
  watch();
  for (const Routine &routine : all_routines()) {
    while (pages.size() < routine.arguments.size()) pages.push_back(guarded_pages());
    const bool has_arrays = std::any_of(routine.arguments.begin(), routine.arguments.end(),
                                        [](const Argument &argument) { return !argument.single; });
    if (!has_arrays || (!only.empty() && only != routine.name)) continue;
    call_between_guards(routine, pages);
    ++checked;
  }
  std::printf("%d routines with arrays stay within them\n", checked);
  return checked > 0 ? 0 : 1;
}
