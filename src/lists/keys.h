// Whole numbers in the order of what they stand for, and their sorting digit by digit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "numeric/bits.h"
#include "numeric/real.h"

namespace trelvin {

using Key = std::uint32_t;

inline Key key_of(Integer value) { return static_cast<Key>(value) ^ sign_mask; }
inline Key key_of(Real value) {  // -0 comes just before 0
  const Key bits = bits_of(value);
  return bits ^ ((bits & sign_mask) != 0 ? ~Key{0} : sign_mask);
}

inline void set_by_key(Integer &value, Key key) { value = static_cast<Integer>(key ^ sign_mask); }
inline void set_by_key(Real &value, Key key) {
  value = real_of(key ^ ((key & sign_mask) != 0 ? sign_mask : ~Key{0}));
}

inline Key key_with_one_zero(Real value) { return key_of(value + 0.0F); }

// A key in the upper half, in the lower the position of its entry. In ascending order words with equal
// keys go by position.
using SortWord = std::uint64_t;

inline SortWord sort_word(Key key, Integer position) {
  return SortWord{key} << 32 | static_cast<Key>(position);
}
inline Key key_in(SortWord word) { return static_cast<Key>(word >> 32); }
inline Integer position_in(SortWord word) { return static_cast<Integer>(static_cast<Key>(word)); }

// Sorts ascending by the 36 bits from `lowest_bit` up. Words with the same bits there stay in order.
// Uses both arrays and returns the one that holds the result.
template <class Word>
Word *sort_by_digits(Word *words, Word *spare, Integer n, int lowest_bit) {
  constexpr int width = 9;
  constexpr int digits = 4;
  constexpr int values = 1 << width;
  const auto digit = [&](Word word, int d) {
    return static_cast<std::size_t>(word >> (lowest_bit + width * d)) % values;
  };
  std::uint32_t places[digits][values] = {};
  for (Integer i = 0; i < n; ++i) {
    for (int d = 0; d < digits; ++d) ++places[d][digit(words[i], d)];
  }
  for (int d = 0; d < digits && n > 0; ++d) {
    if (places[d][digit(words[0], d)] == static_cast<std::uint32_t>(n))
      continue;  // the same digit throughout
    std::uint32_t before = 0;
    for (std::uint32_t &place : places[d]) before += std::exchange(place, before);
    for (Integer i = 0; i < n; ++i) spare[places[d][digit(words[i], d)]++] = words[i];
    std::swap(words, spare);
  }
  return words;
}

}  // namespace trelvin
