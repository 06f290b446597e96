// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace a2l {

/// Room for the text of any number.
inline constexpr std::size_t kMostDigits = 32;

/// Writes a finite number with 17 significant digits, which tell every double from every other, as
/// printf("%.17g") does: without zeros at the end, with an exponent below 0.0001 and from 1e17 on.
/// `out` has room for kMostDigits; gives the end of the text.
char* Write17Digits(double value, char* out);

}  // namespace a2l
