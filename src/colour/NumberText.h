#pragma once

#include <optional>
#include <string_view>

namespace flickerscribe {

// The one number test of the program. A text passes when, with blanks (U+0020)
// trimmed from both ends, it is an optional sign, decimal digits with an
// optional fraction and an optional exponent, and its value rounded to the
// nearest whole number (ties to even) lies in -32768..32767. Independent of
// the locale; no hexadecimal, inf or nan.

// The value of a text that passes the test, unrounded.
std::optional<double> NumberValue(std::string_view text);
// The value of a text that passes the test, rounded half to even.
std::optional<int> WholeNumber(std::string_view text);
bool IsNumberText(std::string_view text);

}  // namespace flickerscribe
