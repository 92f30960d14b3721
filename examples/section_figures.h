// Numbers as text: the same characters on every system and in every locale, never a negative zero.
#pragma once

#include <string>

namespace host {

// With so many decimals; a negative count rounds before the point.
std::string fixed(double value, int decimals);

// With at most so many significant digits, as %g would.
std::string significant(double value, int digits);

// As short as the number allows.
std::string shortest(float value);

// Decimals, negative for a large number, that leave one of this size so many significant digits.
int decimals_for(double size, int digits);

}  // namespace host
