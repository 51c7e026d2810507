// SPDX-License-Identifier: MIT
// Numbers as text, with the decimal separator of the user's locale.
#pragma once

#include <cstdint>
#include <optional>

#include "common/system/text.h"

namespace termvik {

// Plain decimal digits, a minus sign when negative.
Text wholeNumberText(std::int32_t number);

// The shortest decimal text that gives `measure` back in single precision: no exponent, no
// separator for a whole number.
Text measureText(float measure, char16_t decimalSeparator);

// The nearest whole number of a decimal text, a tie going to the even neighbour. The text can have
// blanks around it, a sign, a fraction and an exponent. Nothing when it is no number or the result
// does not fit.
std::optional<std::int32_t> toInt32(TextView text, char16_t decimalSeparator);
std::optional<std::int16_t> toInt16(TextView text, char16_t decimalSeparator);

}  // namespace termvik
