#include "trace/decimal.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "numeric/bits.h"

namespace trelvin {
namespace {

constexpr int significant_digits = 9;

// A natural number of up to 117 digits; a Real has 112 at most.
class Natural {
 public:
  explicit Natural(std::uint32_t value) : words_{value} {}

  void multiply(std::uint32_t factor) {
    std::uint64_t carry = 0;
    for (std::uint32_t &word : words_) {
      carry += std::uint64_t{word} * factor;
      word = static_cast<std::uint32_t>(carry % base);
      carry /= base;
    }
  }

  void multiply_by_power(std::uint32_t factor, int power) {
    constexpr int at_once = 13;  // of 5, which is the larger factor
    for (int left = power; left > 0; left -= at_once) {
      std::uint32_t product = 1;
      for (int i = 0; i < std::min(left, at_once); ++i) product *= factor;
      multiply(product);
    }
  }

  // The digit that counts 10^place.
  [[nodiscard]] int digit(int place) const {
    std::uint32_t rest = words_[place / digits_a_word];
    for (int i = 0; i < place % digits_a_word; ++i) rest /= 10;
    return static_cast<int>(rest % 10);
  }

  // The place of the first digit that is not zero.
  [[nodiscard]] int leading_place() const {
    int place = words * digits_a_word - 1;
    while (place > 0 && digit(place) == 0) --place;
    return place;
  }

 private:
  static constexpr std::uint32_t base = 1'000'000'000;
  static constexpr int digits_a_word = 9;
  static constexpr int words = 13;

  std::uint32_t words_[words];  // the least first
};

// Whether what follows the last significant digit rounds it up.
bool rounds_up(const Natural &natural, int last) {
  if (last <= 0) return false;
  const int next = natural.digit(last - 1);
  if (next != 5) return next > 5;
  for (int place = last - 2; place >= 0; --place) {
    if (natural.digit(place) != 0) return true;
  }
  return natural.digit(last) % 2 != 0;
}

}  // namespace

DecimalText scientific(Real value) {
  const std::uint32_t fraction = bits_of(value) & fraction_mask;
  const auto field = static_cast<int>(magnitude_bits(value) >> fraction_size);

  // |value| = mantissa * 2^power, or mantissa * 5^-power * 10^power if the power is negative.
  const int power = std::max(field, 1) - 150;
  Natural natural(field == 0 ? fraction : fraction | leading_bit);
  natural.multiply_by_power(power < 0 ? 5 : 2, std::abs(power));

  const int leading = natural.leading_place();
  const int last = leading - (significant_digits - 1);
  std::uint32_t digits = 0;
  for (int place = leading; place >= last; --place) {
    digits = digits * 10 + static_cast<std::uint32_t>(place < 0 ? 0 : natural.digit(place));
  }
  int exponent = value == 0 ? 0 : leading + std::min(power, 0);
  if (rounds_up(natural, last) && ++digits == 1'000'000'000) {
    digits /= 10;
    ++exponent;
  }

  DecimalText text;
  if ((bits_of(value) & sign_mask) != 0) text.add('-');
  for (std::uint32_t unit = 100'000'000; unit > 0; unit /= 10) {
    text.add(static_cast<char>('0' + digits / unit % 10));
    if (unit == 100'000'000) text.add('.');
  }
  text.add('e');
  text.add(exponent < 0 ? '-' : '+');
  text.add(static_cast<char>('0' + std::abs(exponent) / 10));
  text.add(static_cast<char>('0' + std::abs(exponent) % 10));
  return text;
}

}  // namespace trelvin
