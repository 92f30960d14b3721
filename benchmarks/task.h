// What is measured, and what is asked of it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "contender.h"
#include "peers.h"

namespace bench {

#ifdef _WIN32
constexpr bool measures_dll = true;
#else
constexpr bool measures_dll = false;
#endif

struct Goal {
  enum class Kind {
    per_item,  // nanoseconds
    per_call,  // nanoseconds
    ratio,     // Trelvin's time over that of the best contender named
    excess,    // nanoseconds of an item beyond the best contender named
    growth     // exponent of the time between two sizes
  };
  Kind kind;
  int size;  // where it holds; for growth the larger size
  double limit;
  std::string peer = {};  // how the names of the contenders begin
  int from = 0;           // the smaller size, for growth
  bool dll = false;       // asked of the Windows library; the others are asked of the native one
};

// How far answers may differ: |a - b| <= relative*|b| + absolute.
struct Tolerance {
  double relative = 0;
  double absolute = 0;
};

constexpr Tolerance relative(double by) { return {by, 0}; }
constexpr Tolerance absolute(double by) { return {0, by}; }

struct Task {
  std::string family;
  std::string name;  // begins with the routine
  std::vector<int> sizes;
  std::function<std::vector<Contender>(int)> contenders;  // for a size; Trelvin is the first
  std::vector<Goal> goals = {};
  Tolerance tolerance = {};
  int calls = 1;  // of the routine in one run
  // The answer where it is known beforehand.
  std::function<std::vector<double>(int)> truth = {};
};

// Whether the library can use 256-bit instructions here. Some goals depend on it.
bool has_avx2();

void add_lists(std::vector<Task> &tasks, const Peers &peers);
void add_matching(std::vector<Task> &tasks, const Peers &peers);
void add_polygons(std::vector<Task> &tasks, const Peers &peers);
void add_transforms(std::vector<Task> &tasks, const Peers &peers);
void add_sections(std::vector<Task> &tasks);
void add_scalars(std::vector<Task> &tasks, const Peers &peers);

}  // namespace bench
