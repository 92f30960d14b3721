// How far the results of the routines are from the correctly rounded ones.
//
//     accuracy                writes the table
//     accuracy --check FILE   compares it with FILE, and fails where they differ
//
// Every routine is called with 2000 random cases at the origin, with coordinates within 1000 of it,
// and with the same figures moved by 1e5 along each axis. The exact result is computed from the Reals
// that the routine was given, with 113 bits, and rounded once. The table has the median and the worst
// difference from that, in units in the last place: 0 is correctly rounded. Of points and vectors it is
// the worst component, in units of the greatest one.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>

#include "measure.h"

namespace accuracy {
namespace {

constexpr const char *routines[] = {
#define ROUTINE(name, count, names) #name,
#include "routines.inc"
};

// Their results are counts, positions, statuses and copies.
constexpr const char *without_figures[] = {
    "trvcnt1",  "trvvin",   "trvpos",   "trvpos1",  "trvpsn",  "trvln6",  "trvcnv",   "trvdir",
    "trvdirp",  "trvinv",   "trvadr",   "trvpsl",   "trvpsp",  "trvpspg", "trvplv",   "trvdirl",
    "trv3sp",   "trvplp",   "trvpnl",   "trvapp",   "trvord",  "trvord1", "trvordi",  "trvpor",
    "trvorv",   "trvsel1",  "trvmer1",  "trvmer2",  "trvmer3", "trvmer4", "trvmer11", "trvmer12",
    "trvmer13", "trvmer14", "trvmer15", "trvmer16", "trvptp1", "trvptp2"};

const char *without_measurement(const char *routine) {
  if (std::strncmp(routine, "trvsec_", 7) == 0) return "vertices are sums of dimensions";
  const bool none = std::any_of(std::begin(without_figures), std::end(without_figures),
                                [&](const char *other) { return !std::strcmp(routine, other); });
  return none ? "computes no figures" : "not measured";
}

std::string table() {
  std::string lines = "routine,output,where,median_ulps,worst_ulps,note\n";
  for (const char *routine : routines) {
    const auto found = measurements().find(routine);
    lines += found != measurements().end()
                 ? measured(routine, found->second)
                 : std::string(routine) + ",,,,," + without_measurement(routine) + "\n";
  }
  return lines;
}

bool agrees(const std::string &lines, const char *file) {
  std::ifstream in(file, std::ios::binary);
  const std::string committed{std::istreambuf_iterator<char>(in), {}};
  if (committed == lines) return true;
  std::istringstream now(lines), before(committed);
  std::string line, other;
  while (std::getline(now, line)) {
    if (!std::getline(before, other)) other = "nothing";
    if (line != other) break;
  }
  std::fprintf(stderr, "accuracy: %s has\n  %s\nand it is\n  %s\n", file, other.c_str(),
               line.c_str());
  return false;
}

}  // namespace
}  // namespace accuracy

int main(int count, char **arguments) {
  const bool check = count == 3 && std::strcmp(arguments[1], "--check") == 0;
  if (count != 1 && !check) {
    std::fputs("usage: accuracy [--check FILE]\n", stderr);
    return 2;
  }
  const std::string lines = accuracy::table();
  if (check) return accuracy::agrees(lines, arguments[2]) ? 0 : 1;
  std::fputs(lines.c_str(), stdout);
  return 0;
}
