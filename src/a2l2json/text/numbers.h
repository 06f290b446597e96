// SPDX-License-Identifier: MIT
//
// Numbers in parameter text, and the text of numbers. Reading follows the C library's
// conversions (leading white space, sign, "0x" for hexadecimal, a leading 0 for octal; what
// follows the number in the token is ignored), with the same result on every platform and in
// every locale: 32-bit numbers saturate at 32 bits.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace a2l {

/// A number read from a token. `value` is 0 where no character of the token could be converted.
template <class Number>
struct Converted {
  Number value;
  bool ok;
};

/// A magnitude above 4294967295 gives 4294967295; "-5" gives 2^32 - 5.
[[nodiscard]] Converted<std::uint32_t> ReadUnsigned(std::string_view token);

/// Saturates at -2147483648 and 2147483647.
[[nodiscard]] Converted<std::int32_t> ReadSigned(std::string_view token);

/// A magnitude above 2^64 - 1 gives 2^64 - 1; "-5" gives 2^64 - 5.
[[nodiscard]] Converted<std::uint64_t> ReadUnsigned64(std::string_view token);

/// Decimal, exponent and hexadecimal notation, "inf" and "nan". Too large a number gives
/// infinity, too small a one zero.
[[nodiscard]] Converted<double> ReadReal(std::string_view token);

/// The shortest text that reads back to the same number, plain or with exponent, whichever is
/// shorter: 0.1, 1000, 1e+05.
[[nodiscard]] std::string ShortestText(double value);
void AppendShortest(std::string& text, double value);

}  // namespace a2l
