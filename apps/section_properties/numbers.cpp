#include "numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <system_error>

namespace host {
namespace {

template <class... Form>
std::string written(Form... form) {
  char text[512];  // the largest double has 309 digits before its point
  return {text, std::to_chars(text, text + sizeof text, form...).ptr};
}

std::string without_negative_zero(std::string text) {
  const bool zero = text.find_first_of("123456789") == std::string::npos;
  if (zero && text[0] == '-') text.erase(0, 1);
  return text;
}

#if defined(_LIBCPP_VERSION) && _LIBCPP_VERSION < 200000

// As std::from_chars, which this C++ library has for integers only. The function of C reads more
// than numbers in decimals, so it gets to see nothing else.
std::from_chars_result from_chars(const char *first, const char *last, float &value) {
  const std::string_view word(first, static_cast<std::size_t>(last - first));
  const std::string number(word.substr(0, word.find_first_not_of("0123456789.eE+-")));
  char *end = nullptr;
  const float read = std::strtof(number.c_str(), &end);
  const auto length = static_cast<std::size_t>(end - number.c_str());
  if (length == 0 || number[0] == '+') return {first, std::errc::invalid_argument};
  const std::string digits = number.substr(0, std::min(length, number.find_first_of("eE")));
  const bool is_zero = digits.find_first_of("123456789") == std::string::npos;
  if (std::isinf(read) || (read == 0 && !is_zero)) {
    return {first + length, std::errc::result_out_of_range};
  }
  value = read;
  return {first + length, std::errc()};
}

#else

using std::from_chars;

#endif

}  // namespace

std::string fixed(double value, int decimals) {
  double step = 1;
  for (; decimals < 0; ++decimals) step *= 10;
  if (step > 1) value = std::round(value / step) * step;
  return without_negative_zero(written(value, std::chars_format::fixed, decimals));
}

std::string significant(double value, int digits) {
  return without_negative_zero(written(value, std::chars_format::general, digits));
}

std::string shortest(float value) { return written(value, std::chars_format::fixed); }

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
  const auto [rest, error] = from_chars(word.data(), end, value);
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
