// Counts how often each status value occurs in the digest's calls. Every value that a contract
// names must occur, and no other.
//
//     census [--moving]
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
  bool open = false;                 // a position: larger values are in order too
};

// Outputs whose values a program cannot read from their contract.
const std::vector<Named> unread = {
    {"trvpos", "i", {0, 1, 2}, true}, {"trvlci", "n", {0, 1, 2}},  {"trvc12", "n", {0, 1, 2}},
    {"trvcer2", "n", {0, 1, 2}},      {"trvcer1", "n", {0, 1, 2}}, {"trvapp", "mark", {-1, 1, 2}},
};

bool is_named(const Status &status, std::int32_t value) {
  return std::binary_search(status.values.begin(), status.values.end(), value);
}

bool is_further(const Status &status, std::int32_t value) {
  return status.open && value > status.values.back();
}

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
  if (status.open && !goes_on) {
    std::printf("  above: NEVER");
    ++faults;
  }
  std::printf("\n");
  return faults;
}

// Rows of the table above take the place of what the contract of a routine says, and are an error
// where it says the same.
int replace_unread(Routine &routine) {
  int needless = 0;
  for (const Named &named : unread) {
    if (std::string(named.routine) != routine.name) continue;
    const auto name = std::find(routine.names.begin(), routine.names.end(), named.argument);
    const auto argument = static_cast<std::size_t>(name - routine.names.begin());
    auto &statuses = routine.statuses;
    const auto said = std::find_if(statuses.begin(), statuses.end(), [&](const Status &status) {
      return status.argument == argument;
    });
    if (said == statuses.end()) {
      statuses.push_back({argument, named.open, named.values});
    } else if (said->values == named.values && said->open == named.open) {
      std::printf("%-9s %-8s  its contract says it too: drop the row\n", named.routine,
                  named.argument);
      ++needless;
    } else {
      *said = {argument, named.open, named.values};
    }
  }
  return needless;
}

}  // namespace

int main(int argc, char **argv) {
  const bool moving = argc > 1 && std::string(argv[1]) == "--moving";
  int faults = 0;
  int statuses = 0;
  for (Routine &routine : all_routines()) {
    const int needless = replace_unread(routine);
    faults += moving ? 0 : needless;
    for (const Status &status : routine.statuses) {
      faults += faults_of(routine, status);
      ++statuses;
    }
  }
  std::printf("%d status outputs, %d faults\n", statuses, faults);
  return faults == 0 ? 0 : 1;
}
