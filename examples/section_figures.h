// Numbers as text: the same characters on every system and in every locale, never a negative zero.
#pragma once

#include <string>

namespace host {

// With so many decimals.
std::string fixed(double value, int decimals);

// With at most so many significant digits, as %g would.
std::string significant(double value, int digits);

// As short as the number allows.
std::string shortest(float value);

// Decimals that give a number of this size so many significant digits.
int decimals_for(double size, int digits);

}  // namespace host
