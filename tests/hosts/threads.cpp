// Calls every routine that retains nothing on eight threads at once, from the library's first call on.
// Each thread must get the bits that one thread gets. Built under ThreadSanitizer, which reports what
// two threads share and one of them writes.
#include <cinttypes>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "hosts/hash.h"
#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

constexpr int calls = 100;  // of each routine, on each thread
constexpr int threads = 8;

using Hashes = std::vector<std::uint64_t>;  // one for each routine

Hashes hashes_of(const std::vector<random_calls::Routine> &routines) {
  Hashes hashes;
  for (const random_calls::Routine &routine : routines) {
    Hash hash;
    random_calls::draw(routine, routine.retains.empty() ? calls : 0,
                       [&](random_calls::Arguments &arguments) {
                         routine.call(random_calls::addresses_of(arguments));
                         hash.add(arguments);
                       });
    hashes.push_back(hash.value());
  }
  return hashes;
}

}  // namespace

int main() {
  const auto routines = all_routines();
  std::vector<Hashes> found(threads);
  std::vector<std::thread> running;
  running.reserve(threads);
  for (Hashes &hashes : found) running.emplace_back([&] { hashes = hashes_of(routines); });
  for (std::thread &thread : running) thread.join();
  const Hashes alone = hashes_of(routines);
  int faults = 0;
  std::size_t called = 0;
  for (std::size_t i = 0; i < routines.size(); ++i) {
    called += routines[i].retains.empty() ? 1 : 0;
    for (const Hashes &hashes : found) {
      if (hashes[i] == alone[i]) continue;
      std::printf("%s: %016" PRIx64 " on one of several threads, %016" PRIx64 " alone\n",
                  routines[i].name, hashes[i], alone[i]);
      ++faults;
    }
  }
  std::printf("%zu routines on %d threads, %d faults\n", called, threads, faults);
  return faults == 0 && called > 0 ? 0 : 1;
}
