// A fixed pseudo-random sequence of calls of any routine, made of integer arithmetic and exact
// operations on floats, so that every build draws the same.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "trelvin/calling.h"

namespace random_calls {

// The host's function of a position.
inline float TRELVIN_CALL level_of_position(const std::int32_t &position) {
  return static_cast<float>(position % 5 - 2);
}

// What stands behind one argument: room for arrays, with spare elements before and behind.
struct Argument {
  enum Kind { real, integer, function } kind;
  bool single;   // or an array
  bool written;  // by the routine
  bool read;     // likewise

  static constexpr std::size_t spare = 8;
  static constexpr std::size_t room = 80;
  std::array<float, spare + room + spare> reals = {};
  std::array<std::int32_t, spare + room + spare> integers = {};

  float *real_address() { return reals.data() + spare; }
  std::int32_t *integer_address() { return integers.data() + spare; }
  void *address() {
    if (kind == function) return reinterpret_cast<void *>(&level_of_position);
    return kind == real ? static_cast<void *>(real_address()) : integer_address();
  }

  // All bits, with one NaN for all: which NaN an operation gives is the platform's business.
  template <class Visit>
  void visit_bits(Visit visit) const {
    for (std::size_t i = 0; i < reals.size() && kind != function; ++i) {
      auto bits = static_cast<std::uint32_t>(integers[i]);
      if (kind == real) std::memcpy(&bits, &reals[i], sizeof bits);
      visit(kind == real && std::isnan(reals[i]) ? 0x7FC00000U : bits);
    }
  }
};

using Arguments = std::vector<Argument>;
using Addresses = std::vector<void *>;

// What the arguments of a routine stand for, where chance would hardly find it.
enum class Shape { free, arc, pairs, plates, plate_stresses, whole };

// The values that the contract names for an Integer output.
struct Status {
  static constexpr std::int32_t none = INT32_MAX;

  std::size_t argument;
  std::int32_t further;  // this and larger ones are in order too: a position; or `none`
  std::vector<std::int32_t> values;
};

// When an output keeps what the caller had there: by the value of the argument `teller`, or by a
// condition in words.
struct Kept {
  enum How { never, by_value, below, on_condition, always } how;
  std::size_t teller;
  std::int32_t bound;  // from which on all values keep it, or `none`; below which they do
  std::vector<std::int32_t> values;
};

// How many elements an array must have for the counts of a call. A size that has several forms, by
// a kind for example, says which one holds.
struct Size {
  std::size_t elements;
  std::size_t form;
};

// How many elements a call has written, and up to which element it may also have written.
struct Used {
  std::size_t elements;
  std::size_t scratch;
};

// A routine as the calls need it, whatever its arguments.
struct Routine {
  const char *name;
  void (*address)();
  void (*call_at)(void (*address)(), const Addresses &addresses);
  Arguments arguments;
  std::vector<std::string> names;  // of the arguments
  Shape shape;
  std::uint64_t seed;

  // By argument; empty if the contract states none.
  std::vector<Size (*)(Arguments &)> sizes;
  std::vector<Used (*)(Arguments &)> used;
  std::vector<Kept> kept;
  // The least value that is allowed of an Integer input, where the contract states one.
  std::vector<std::pair<std::size_t, std::int32_t>> least;
  std::vector<Status> statuses;
  std::vector<std::string> retains;  // the routines whose retained values decide
  bool shares_addresses;             // an output may have the address of a single input

  void call(const Addresses &addresses) const { call_at(address, addresses); }
};

// Draws sets of arguments; if sparing, single ones without their spare elements, and no outputs.
void draw(const Routine &routine, int calls, const std::function<void(Arguments &)> &visit,
          bool sparing = false);

// Draws pairs of neighbours: sets of arguments that differ by one unit in the last place of some Reals,
// on either side of a place where results change much. Such a place is found by bisection between two
// sets: of each two halves the one over which results change more is kept. So a pair lies on either side
// of a limit, wherever that is. The calls of the bisection are made as well.
void draw_near_limits(const Routine &routine, int pairs,
                      const std::function<void(Arguments &)> &visit);

// Raises each drawn count to the least that its contract allows.
void raise_counts(const Routine &routine, Arguments &arguments);

Addresses addresses_of(Arguments &arguments);

}  // namespace random_calls
