// Calls every routine on a fixed pseudo-random sequence and prints one hash of all the bits that
// the calls leave in their arguments. Builds that agree print the same hash.
//
//     digest            a line a routine, then the hash of all
//     digest ROUTINE    every call of one routine, to find where two builds part
#include <array>
#include <cinttypes>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <tuple>
#include <utility>

#include "trelvin/trelvin.h"

namespace {

constexpr int calls_per_routine = 2500;

// splitmix64: integer arithmetic only, so every build draws the same sequence.
class Sequence {
 public:
  explicit Sequence(std::uint64_t seed) : state_(seed) {}

  std::uint64_t next() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15U;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
  }

  // An integer in [low, high].
  std::int32_t between(std::int32_t low, std::int32_t high) {
    const auto range = static_cast<std::uint64_t>(high - low) + 1;
    return low + static_cast<std::int32_t>(next() % range);
  }

  // A multiple of 2^-20 in [-limit, limit].
  float real(std::int32_t limit) {
    return static_cast<float>(between(-limit * 4096, limit * 4096)) * (1.0F / 4096) +
           static_cast<float>(between(0, 255)) * (1.0F / 1048576);
  }

 private:
  std::uint64_t state_;
};

float from_bits(std::uint32_t bits) {
  float value = 0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

// What the Reals of a call look like: degenerate positions, general ones, or anything at all.
enum Mood { grid, general, near_tolerance, angles, dimensions, any_bits, mixed, moods };

float draw_real(Sequence &sequence, int mood) {
  switch (mood) {
    case grid:
      return static_cast<float>(sequence.between(-2, 2));
    case general:
      return sequence.real(10);
    case near_tolerance: {
      constexpr float tolerance = 1e-5F;
      const float value = tolerance * static_cast<float>(sequence.between(-2, 2));
      const float next = std::nextafter(value, static_cast<float>(sequence.between(-1, 1)));
      return sequence.between(0, 1) == 0 ? value : next;
    }
    case angles:
      return 0.78539816F * static_cast<float>(sequence.between(-9, 9));
    case dimensions:
      return static_cast<float>(sequence.between(1, 4000)) * 0.25F;
    case any_bits:
      return from_bits(static_cast<std::uint32_t>(sequence.next()));
    default:
      return draw_real(sequence, sequence.between(0, any_bits));
  }
}

// Storage behind one argument: room for arrays, with spare elements before and behind.
template <class Element>
class Storage {
 public:
  Element *address() { return words_.data() + spare; }

  void fill(Sequence &sequence, int mood) {
    for (Element &word : words_) {
      if constexpr (std::is_same_v<Element, float>) {
        word = draw_real(sequence, mood);
      } else {
        word = sequence.between(-2, longest);
      }
    }
  }

  template <class Visit>
  void visit_bits(Visit visit) const {
    for (const Element word : words_) {
      std::uint32_t bits = 0;
      std::memcpy(&bits, &word, sizeof bits);
      if constexpr (std::is_same_v<Element, float>) {
        if (std::isnan(word)) bits = 0x7FC00000;  // which NaN is the platform's business
      }
      visit(bits);
    }
  }

 private:
  static constexpr int longest = 40;
  static constexpr int spare = 8;
  std::array<Element, spare + longest + spare> words_ = {};
};

template <class Argument>
using ElementOf = std::remove_const_t<std::remove_pointer_t<std::remove_reference_t<Argument>>>;

template <class Argument>
Argument as_argument(Storage<ElementOf<Argument>> &storage) {
  if constexpr (std::is_reference_v<Argument>) {
    return *storage.address();
  } else {
    return storage.address();
  }
}

class Hash {
 public:
  void add(std::uint32_t word) { value_ = (value_ ^ word) * 0x100000001B3U; }
  [[nodiscard]] std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325U;
};

template <class... Arguments>
std::uint64_t digest(std::uint64_t seed, bool trace, void(TRELVIN_CALL *routine)(Arguments...)) {
  Sequence sequence(seed);
  Hash hash;
  for (int call = 0; call < calls_per_routine; ++call) {
    std::tuple<Storage<ElementOf<Arguments>>...> storages;
    const int mood = sequence.between(0, moods - 1);
    std::apply(
        [&](auto &...storage) {
          (storage.fill(sequence, mood), ...);
          routine(as_argument<Arguments>(storage)...);
          (storage.visit_bits([&](std::uint32_t bits) { hash.add(bits); }), ...);
        },
        storages);
    if (trace) std::printf("%d mood %d %016" PRIx64 "\n", call, mood, hash.value());
  }
  return hash.value();
}

}  // namespace

int main(int argc, char **argv) {
  const char *only = argc > 1 ? argv[1] : nullptr;
  Hash all;
  std::uint64_t seed = 20;
  int routines = 0;
#define ROUTINE(name, count)                                         \
  ++seed;                                                            \
  if (only == nullptr || std::strcmp(only, #name) == 0) {            \
    const std::uint64_t value = digest(seed, only != nullptr, name); \
    std::printf("%-10s %016" PRIx64 "\n", #name, value);             \
    all.add(static_cast<std::uint32_t>(value >> 32));                \
    all.add(static_cast<std::uint32_t>(value));                      \
    ++routines;                                                      \
  }
#include "routines.inc"
#undef ROUTINE
  std::printf("digest of %d calls of %d routines: %016" PRIx64 "\n", routines * calls_per_routine,
              routines, all.value());
  return 0;
}
