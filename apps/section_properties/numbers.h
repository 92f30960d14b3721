// Numbers as text, and text as numbers: the same characters on every system and in every locale,
// never a negative zero.
#pragma once

#include <string>
#include <string_view>

namespace host {

// With so many decimals; a negative count rounds before the point.
std::string fixed(double value, int decimals);

// With at most so many significant digits, as %g would.
std::string significant(double value, int digits);

// As short as the number allows.
std::string shortest(float value);

// Decimals, negative for a large number, that leave one of this size so many significant digits.
int decimals_for(double size, int digits);

enum class NumberFault { none, no_number, beyond_single };

// The whole word as a finite number, with a decimal point or a decimal comma.
NumberFault read_number(std::string_view word, float &value);

}  // namespace host
