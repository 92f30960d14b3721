// A fixed pseudo-random sequence of calls of any routine, made of integer arithmetic and exact
// operations on floats, so that every build draws the same.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <tuple>
#include <type_traits>
#include <vector>

#include "trelvin/frame.h"

namespace random_calls {

// splitmix64
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

  bool one_in(std::int32_t n) { return between(1, n) == 1; }

  template <class Value>
  Value one_of(std::initializer_list<Value> values) {
    return values.begin()[between(0, static_cast<std::int32_t>(values.size()) - 1)];
  }

 private:
  std::uint64_t state_;
};

// What the Reals of a call look like: degenerate positions, general ones, or anything at all.
enum Mood { grid, general, near_tolerance, angles, dimensions, any_bits, mixed, moods };

inline float draw_real(Sequence &sequence, int mood) {
  switch (mood) {
    case grid:
      return static_cast<float>(sequence.between(-2, 2));
    case general:
      return static_cast<float>(sequence.between(-10000000, 10000000)) * (1.0F / 1048576);
    case near_tolerance: {
      constexpr float tolerance = 1e-5F;
      const float value = tolerance * static_cast<float>(sequence.between(-2, 2));
      const float next = std::nextafter(value, static_cast<float>(sequence.between(-1, 1)));
      return sequence.one_in(2) ? value : next;
    }
    case angles:
      return 0.78539816F * static_cast<float>(sequence.between(-9, 9));
    case dimensions:
      return static_cast<float>(sequence.between(1, 4000)) * 0.25F;
    case any_bits: {
      const auto bits = static_cast<std::uint32_t>(sequence.next());
      float value = 0;
      std::memcpy(&value, &bits, sizeof value);
      return value;
    }
    default:
      return draw_real(sequence, sequence.between(0, any_bits));
  }
}

// The host's function of a position.
inline float TRELVIN_CALL level_of_position(const std::int32_t &position) {
  return static_cast<float>(position % 5 - 2);
}

// Storage behind one argument: room for arrays, with spare elements before and behind.
template <class Element>
class Storage {
 public:
  Element *address() { return words_.data() + spare; }

  void fill(Sequence &sequence, int mood, int largest_count) {
    for (Element &word : words_) {
      if constexpr (std::is_same_v<Element, float>) {
        word = draw_real(sequence, mood);
      } else {
        word = sequence.between(-2, largest_count);
      }
    }
  }

  // All bits, with one NaN for all: which NaN an operation gives is the platform's business.
  template <class Visit>
  void visit_bits(Visit visit) const {
    for (const Element word : words_) {
      std::uint32_t bits = 0;
      std::memcpy(&bits, &word, sizeof bits);
      if constexpr (std::is_same_v<Element, float>) {
        if (std::isnan(word)) bits = 0x7FC00000;
      }
      visit(bits);
    }
  }

 private:
  static constexpr std::size_t spare = 8;
  static constexpr std::size_t room = 80;
  std::array<Element, spare + room + spare> words_ = {};
};

struct FunctionStorage {
  void fill(Sequence & /*sequence*/, int /*mood*/, int /*largest_count*/) {}
  template <class Visit>
  void visit_bits(Visit /*visit*/) const {}
};

template <class Argument>
using ElementOf = std::remove_const_t<std::remove_pointer_t<std::remove_reference_t<Argument>>>;

template <class Argument>
using StorageOf = std::conditional_t<std::is_same_v<Argument, TrvFunctionIn>, FunctionStorage,
                                     Storage<ElementOf<Argument>>>;

template <class Argument, class ItsStorage>
Argument as_argument(ItsStorage &storage) {
  if constexpr (std::is_same_v<Argument, TrvFunctionIn>) {
    return level_of_position;
  } else if constexpr (std::is_reference_v<Argument>) {
    return *storage.address();
  } else {
    return storage.address();
  }
}

// The addresses of a call's single Reals, or of its Real arrays, in the order of its arguments;
// null for every other argument.
using Addresses = std::vector<float *>;

template <class Argument, bool single, class ItsStorage>
float *address_of_real(ItsStorage &storage) {
  if constexpr (std::is_reference_v<Argument> == single &&
                std::is_same_v<ElementOf<Argument>, float>) {
    return storage.address();
  } else {
    return nullptr;
  }
}

// Puts points in special positions: each group of two or three Reals may become a combination of
// groups before it, so that points coincide, lie on lines and span parallels.
inline void relate_points(Sequence &sequence, const Addresses &reals) {
  const int size = sequence.between(2, 3);
  const auto groups = static_cast<int>(reals.size()) / size;
  const auto at = [&](int group, int i) -> float * {
    return reals[static_cast<std::size_t>(group * size + i)];
  };
  for (int group = 1; group < groups; ++group) {
    const int from = sequence.between(0, group - 1);
    const int to = sequence.between(0, group - 1);
    const float k = sequence.one_of({-2.0F, -1.0F, 0.0F, 0.5F, 1.0F, 2.0F, 1.000001F});
    const int way = sequence.between(0, 3);
    for (int i = 0; i < size; ++i) {
      float *const value = at(group, i);
      const float *const p = at(from, i);
      const float *const q = at(to, i);
      if (value == nullptr || p == nullptr || q == nullptr) continue;
      if (way == 1) *value = *p + k * (*q - *p);
      if (way == 2) *value = k * *p;
      if (way == 3 && group > 1) *value = *value + (*q - *p);
    }
  }
}

// Makes an arc of the first six Reals, centre and two ends, by points of the circle of radius 65
// that have whole coordinates; the Reals after them become lengths up to the chord's, or angles.
inline void make_arc(Sequence &sequence, const Addresses &reals) {
  constexpr int whole[][2] = {{65, 0}, {63, 16}, {60, 25}, {56, 33}, {52, 39}, {39, 52}};
  const float scale = sequence.one_of({1.0F, 0.25F, 1.0F / 65536, 1.0F / 1048576, 4.0F, 0.015625F});
  const auto draw_offset = [&](float *x, float *y) {
    const auto &p = whole[sequence.between(0, 5)];
    const bool swapped = sequence.one_in(2);
    const float sign_x = sequence.one_of({-1.0F, 1.0F});
    const float sign_y = sequence.one_of({-1.0F, 1.0F});
    *x = sign_x * scale * static_cast<float>(swapped ? p[1] : p[0]);
    *y = sign_y * scale * static_cast<float>(swapped ? p[0] : p[1]);
  };
  const auto centre_x = static_cast<float>(sequence.between(-3, 3));
  const auto centre_y = static_cast<float>(sequence.between(-3, 3));
  *reals[0] = centre_x;
  *reals[1] = centre_y;
  float ends[4];
  draw_offset(&ends[0], &ends[1]);
  draw_offset(&ends[2], &ends[3]);
  if (sequence.one_in(3)) {  // the whole chord is a diameter
    ends[2] = -ends[0];
    ends[3] = -ends[1];
  }
  if (sequence.one_in(40)) {  // coincident by coordinates, apart by distance
    ends[2] = ends[0] + 9e-6F;
    ends[3] = ends[1] + 9e-6F;
  }
  for (std::size_t i = 0; i < 4; ++i) *reals[2 + i] = (i % 2 == 0 ? centre_x : centre_y) + ends[i];
  for (std::size_t i = 6; i < reals.size(); ++i) {
    if (reals[i] == nullptr) continue;
    *reals[i] = sequence.one_in(2) ? scale * static_cast<float>(sequence.between(0, 1300)) * 0.1F
                                   : 0.39269908F * static_cast<float>(sequence.between(-9, 9));
  }
}

// Makes an open section of the five arrays behind the first argument, starts, ends and thicknesses
// of plates; now and then a plate closes a cell or hangs loose.
inline void make_plates(Sequence &sequence, const Addresses &arrays) {
  constexpr int plates = 40;
  const auto place = [&](int k, bool second, int coordinate) -> float & {
    return arrays[static_cast<std::size_t>(1 + (second ? 2 : 0) + coordinate)][k];
  };
  const bool along_axes = sequence.one_in(2);
  for (int k = 0; k < plates; ++k) {
    const int from = k == 0 || sequence.one_in(60) ? k : sequence.between(0, k - 1);
    const bool from_end = sequence.one_in(2);
    const int free = along_axes ? sequence.between(0, 1) : 2;
    for (int coordinate = 0; coordinate < 2; ++coordinate) {
      const float start = from == k ? static_cast<float>(sequence.between(-50, 50))
                                    : place(from, from_end, coordinate);
      const auto step = static_cast<float>(sequence.between(-4000, 4000)) * 0.125F;
      place(k, false, coordinate) = start;
      place(k, true, coordinate) = free == 2 || free == coordinate ? start + step : start;
    }
    arrays[5][k] = static_cast<float>(sequence.between(1, 200)) * 0.125F;
  }
}

// What the arguments of a routine stand for, where chance would hardly find it.
enum class Shape { free, arc, pairs, plates };

// Draws `calls` sets of arguments, calls the routine on each, and hands `visit` the storages as the
// call has left them, together with a copy from before it.
template <class Visit, class... Arguments>
void run(std::uint64_t seed, int calls, Shape shape, void(TRELVIN_CALL *routine)(Arguments...),
         Visit visit) {
  Sequence sequence(seed);
  for (int call = 0; call < calls; ++call) {
    std::tuple<StorageOf<Arguments>...> storages;
    std::apply(
        [&](auto &...storage) {
          const int mood = sequence.between(0, moods - 1);
          // Pairs of two lists need room for the product of their counts.
          (storage.fill(sequence, mood, shape == Shape::pairs ? 8 : 40), ...);
          const Addresses reals = {address_of_real<Arguments, true>(storage)...};
          if (shape == Shape::arc && !sequence.one_in(4)) {
            make_arc(sequence, reals);
          } else if (shape == Shape::plates && !sequence.one_in(4)) {
            make_plates(sequence, {address_of_real<Arguments, false>(storage)...});
          } else if (sequence.one_in(2)) {
            relate_points(sequence, reals);
          }
        },
        storages);
    const auto before = storages;
    std::apply([&](auto &...storage) { routine(as_argument<Arguments>(storage)...); }, storages);
    visit(before, storages);
  }
}

}  // namespace random_calls
