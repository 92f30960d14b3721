// Counts how often each status value occurs in the digest's calls. Every value that a contract
// names must occur, and no other.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "hosts/random_calls.h"
#include "hosts/sequence_of_routines.h"

namespace {

using random_calls::Routine;
using random_calls::Status;

struct Named {
  const char *routine;
  const char *argument;
  std::vector<std::int32_t> values;  // ascending
  std::int32_t further = Status::none;
};

// Outputs whose values a program cannot read from their contract.
const std::vector<Named> unread = {
    {"trvpos", "i", {0}, 1},
    {"trvapp", "mark", {-1, 1, 2}},
};

bool is_named(const Status &status, std::int32_t value) {
  return std::binary_search(status.values.begin(), status.values.end(), value);
}

bool is_further(const Status &status, std::int32_t value) { return value >= status.further; }

std::map<std::int32_t, int> count(const Routine &routine, const Status &status) {
  std::map<std::int32_t, int> counts;
  random_calls::draw(routine, calls_per_routine, [&](random_calls::Arguments &arguments) {
    std::int32_t &value = *arguments.at(status.argument).integer_address();
    const std::int32_t before = value;
    routine.call(random_calls::addresses_of(arguments));
    // A value from before the call that no contract names was left unwritten.
    if (is_named(status, value) || value != before) ++counts[value];
  });
  return counts;
}

int faults_of(const Routine &routine, const Status &status) {
  int faults = 0;
  bool goes_on = false;
  const auto counts = count(routine, status);
  std::printf("%-9s %-8s", routine.name, routine.names[status.argument].c_str());
  for (const auto &[value, times] : counts) {
    goes_on = goes_on || is_further(status, value);
    const bool in_order = is_named(status, value) || is_further(status, value);
    std::printf("  %d: %d%s", value, times, in_order ? "" : " UNNAMED");
    faults += in_order ? 0 : 1;
  }
  for (const std::int32_t value : status.values) {
    if (counts.find(value) != counts.end()) continue;
    std::printf("  %d: NEVER", value);
    ++faults;
  }
  if (status.further != Status::none && !goes_on) {
    std::printf("  %d and above: NEVER", status.further);
    ++faults;
  }
  std::printf("\n");
  return faults;
}

void add_unread(Routine &routine) {
  for (const Named &named : unread) {
    if (std::string(named.routine) != routine.name) continue;
    const auto name = std::find(routine.names.begin(), routine.names.end(), named.argument);
    const auto argument = static_cast<std::size_t>(name - routine.names.begin());
    routine.statuses.push_back({argument, named.further, named.values});
  }
}

}  // namespace

int main() {
  int faults = 0;
  int statuses = 0;
  for (Routine &routine : all_routines()) {
    add_unread(routine);
    for (const Status &status : routine.statuses) {
      faults += faults_of(routine, status);
      ++statuses;
    }
  }
  std::printf("%d status outputs, %d faults\n", statuses, faults);
  return faults == 0 ? 0 : 1;
}
