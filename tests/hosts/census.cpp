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

struct Status {
  const char *routine;
  const char *argument;
  std::vector<std::int32_t> values;  // ascending; the last ones of a position may go on
  bool open = false;                 // a position: larger values are in order too
};

const std::vector<Status> statuses = {
    {"trvcnt", "status", {0, 1}},
    {"trvcnt1", "status", {0, 1}},
    {"trv123", "status", {0, 1}},
    {"trvvin", "status", {1, 2}},
    {"trvpos", "i", {0, 1, 2}, true},
    {"trvpos1", "status", {0, 1, 2}},
    {"trvlni", "status", {0, 1, 2}},
    {"trvpsn", "code", {0, 1, 2, 3, 4, 5, 6, 7}},
    {"trvln6", "code", {0, 1, 2, 3, 4, 5, 6, 7}},
    {"trvln6", "on", {0, 1}},
    {"trvln7", "code", {0, 1, 2, 3, 4, 5, 6, 7}},
    {"trvln7", "on", {0, 1}},
    {"trvphip", "status", {-1}},
    {"trvtrg", "status", {0, 1}},
    {"trvdir", "code", {0, 1, 2, 3, 4}},
    {"trvdirp", "code", {0, 1, 2, 3, 4, 5, 6}},
    {"trvlci", "n", {0, 1, 2}},
    {"trvc12", "n", {0, 1, 2}},
    {"trvcer2", "n", {0, 1, 2}},
    {"trvcer1", "n", {0, 1, 2}},
    {"trvcin", "position", {1, 2, 3, 4}},
    {"trvcer3", "status", {0, 1}},
    {"trvcer8", "status", {0, 1}},
    {"trvcer6", "status", {0, 1}},
    {"trvcer9", "status", {0, 1}},
    {"trvarc1", "status", {0, 1}},
    {"trvapp", "mark", {-1, 1, 2}},
    {"trvcer4", "status", {0, 1}},
    {"trvcer10", "status", {0, 1, 2}},
    {"trvcer5", "status", {0, 1}},
    {"trvpsl", "status", {0, 1, 2, 3, 4, 5}},
    {"trvaxe", "status", {-2, 0}},
    {"trvaxel", "status", {-2, 0}},
    {"trvptrl", "status", {-2, 0}},
    {"trvpra", "status", {-2, 0}},
    {"trvppc", "status", {-1, 0, 1, 2}, true},
    {"trvpl1", "status", {0, 1, 2, 3, 4, 5}},
    {"trvpl2", "status", {0, 3, 4, 7}},
    {"trvpl3", "status", {0, 3, 4, 7}},
    {"trvpl4", "status", {0, 1}},
    {"trvpl5", "status", {0, 1}},
    {"trvpl6", "status", {0, 3, 4, 6, 7}},
    {"trvpl7", "status", {0, 1, 2, 3, 4, 5}},
    {"trvpsp", "status", {-1, 0}},
    {"trvpspg", "status", {-1, 0, 1}},
    {"trvplv", "status", {-1, 0, 3, 4, 5, 7}},
    {"trvdirl", "status", {0, 1, 2, 3, 4, 5, 6, 7}},
    {"trv3sp", "status", {0, 1}},
    {"trv3ldb", "status", {0}},
    {"trv3lda", "status", {0}},
    {"trv3lni", "status", {0, 3, 4, 6, 7}},
    {"trvpli", "status", {0, 3, 4}},
    {"trvplp", "position", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
    {"trvpnl", "status", {0}},
    {"trvlpc", "status", {0, 3, 4, 6, 7}},
    {"trvpor", "status", {-1, 0}},
    {"trvlul", "status", {0, 1, 2}},
    {"trvchi", "status", {0, 1}},
    {"trvcnv", "status", {-1, 0, 1}},
    {"trvmxt", "status", {-1, 0, 2, 3}, true},
    {"trvmxt_fb", "status", {-1, 0}},
    {"trvcer7", "status", {0, 1}},
    {"trvard", "status", {0, 1}},
    {"trvptp1", "status", {0, 1, 2}},
    {"trvpin", "status", {-1, 0, 1}},
};

bool is_named(const Status &status, std::int32_t value) {
  return std::binary_search(status.values.begin(), status.values.end(), value);
}

std::map<std::int32_t, int> count(const random_calls::Routine &routine, const Status &status) {
  const auto &names = routine.names;
  const auto i = static_cast<std::size_t>(std::find(names.begin(), names.end(), status.argument) -
                                          names.begin());
  std::map<std::int32_t, int> counts;
  random_calls::run(routine, calls_per_routine, [&](const auto &before, auto &after) {
    const std::int32_t value = *after.at(i).integer_address();
    // A value from before the call that no contract names was left unwritten.
    if (is_named(status, value) || value != before[i]) ++counts[value];
  });
  return counts;
}

}  // namespace

int main() {
  int faults = 0;
  const auto routines = all_routines();
  for (const Status &status : statuses) {
    const auto routine = std::find_if(routines.begin(), routines.end(), [&](const auto &candidate) {
      return std::string(status.routine) == candidate.name;
    });
    const auto counts = count(*routine, status);
    std::printf("%-9s %-8s", status.routine, status.argument);
    for (const auto &[value, times] : counts) {
      const bool in_order =
          is_named(status, value) || (status.open && value > status.values.back());
      std::printf("  %d: %d%s", value, times, in_order ? "" : " UNNAMED");
      faults += in_order ? 0 : 1;
    }
    for (const std::int32_t value : status.values) {
      if (counts.find(value) != counts.end()) continue;
      std::printf("  %d: NEVER", value);
      ++faults;
    }
    std::printf("\n");
  }
  std::printf("%d status outputs, %d faults\n", static_cast<int>(statuses.size()), faults);
  return faults == 0 ? 0 : 1;
}
