#include "numbers.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace host {
namespace {

constexpr std::size_t longest = 512;  // the largest double has 309 digits before its point

std::string without_negative_zero(std::string text) {
  const bool zero = text.find_first_of("123456789") == std::string::npos;
  if (zero && text[0] == '-') text.erase(0, 1);
  return text;
}

}  // namespace

std::string fixed(double value, int decimals) {
  double step = 1;
  for (; decimals < 0; ++decimals) step *= 10;
  if (step > 1) value = std::round(value / step) * step;
  char text[longest];
  char *const end =
      std::to_chars(text, text + longest, value, std::chars_format::fixed, decimals).ptr;
  return without_negative_zero(std::string(text, end));
}

std::string significant(double value, int digits) {
  char text[longest];
  char *const end =
      std::to_chars(text, text + longest, value, std::chars_format::general, digits).ptr;
  return without_negative_zero(std::string(text, end));
}

std::string shortest(float value) {
  char text[longest];
  return {text, std::to_chars(text, text + longest, value, std::chars_format::fixed).ptr};
}

int decimals_for(double size, int digits) {
  int decimals = digits - 1;
  double leading = std::fabs(size);
  if (leading == 0) return 0;
  while (leading >= 10) {
    leading /= 10;
    --decimals;
  }
  while (leading < 1) {
    leading *= 10;
    ++decimals;
  }
  return decimals;
}

NumberFault read_number(std::string_view word, float &value) {
  const char *const end = word.data() + word.size();
  const auto [rest, error] = std::from_chars(word.data(), end, value);
  if (rest != end && *rest == ',' && word.find('.') == std::string_view::npos) {
    std::string with_point(word);
    with_point[static_cast<std::size_t>(rest - word.data())] = '.';
    return read_number(with_point, value);
  }
  if (error == std::errc::result_out_of_range) return NumberFault::beyond_single;
  const bool is_number = error == std::errc() && rest == end && std::isfinite(value);
  return is_number ? NumberFault::none : NumberFault::no_number;
}

}  // namespace host
