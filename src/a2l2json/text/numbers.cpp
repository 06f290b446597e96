// SPDX-License-Identifier: MIT
#include "a2l2json/text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace a2l {
namespace {

constexpr bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// The value of a digit in any base up to 16; 16 for all other characters.
constexpr auto kDigitValues = [] {
  std::array<std::uint8_t, 256> values{};
  values.fill(16);
  for (std::size_t i = 0; i < 10; ++i) values['0' + i] = static_cast<std::uint8_t>(i);
  for (std::size_t i = 0; i < 6; ++i) {
    values['a' + i] = values['A' + i] = static_cast<std::uint8_t>(10 + i);
  }
  return values;
}();
constexpr unsigned DigitValue(char c) { return kDigitValues[static_cast<unsigned char>(c)]; }

// Takes white space and one sign off the front; true for a minus sign.
bool TakeSign(std::string_view& token) {
  while (!token.empty() && IsSpace(token.front())) token.remove_prefix(1);
  const bool negative = token.starts_with('-');
  if (negative || token.starts_with('+')) token.remove_prefix(1);
  return negative;
}

bool IsHexPrefix(std::string_view token) {
  return token.size() > 2 && token[0] == '0' && (token[1] == 'x' || token[1] == 'X');
}

struct Magnitude {
  std::uint64_t value = 0;
  bool negative = false;
  bool overflow = false;
  bool ok = false;
};

Magnitude ReadMagnitude(std::string_view token) {
  Magnitude result;
  result.negative = TakeSign(token);
  unsigned base = 10;
  if (IsHexPrefix(token) && DigitValue(token[2]) < 16) {
    base = 16;
    token.remove_prefix(2);
  } else if (token.starts_with('0')) {
    base = 8;
  }
  // Up to 16 digits of any base cannot overflow.
  constexpr std::size_t kSafeDigits = 16;
  for (std::size_t i = 0; i < std::min(token.size(), kSafeDigits); ++i) {
    const unsigned digit = DigitValue(token[i]);
    if (digit >= base) return result;
    result.ok = true;
    result.value = result.value * base + digit;
  }
  if (token.size() <= kSafeDigits) return result;
  token.remove_prefix(kSafeDigits);
  // One division for all digits: one for each takes longer than everything else here.
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
  const std::uint64_t mostBefore = kMost / base;
  for (const char c : token) {
    const unsigned digit = DigitValue(c);
    if (digit >= base) break;
    result.ok = true;
    if (result.value > mostBefore || result.value * base > kMost - digit) {
      result.overflow = true;
    } else {
      result.value = result.value * base + digit;
    }
  }
  return result;
}

// True when the digits of a number that no double can hold are too large rather than too small:
// when its first digit other than 0 stands, with the exponent counted in, before the point.
bool IsTooLarge(std::string_view digits, bool hexadecimal) {
  const unsigned base = hexadecimal ? 16 : 10;
  const std::int64_t weight = hexadecimal ? 4 : 1;
  std::int64_t position = 0;  // of the first digit that counts, relative to the point
  bool found = false;
  bool behindPoint = false;
  std::size_t i = 0;
  for (; i < digits.size(); ++i) {
    const unsigned digit = DigitValue(digits[i]);
    if (digits[i] == '.' && !behindPoint) {
      behindPoint = true;
    } else if (digit >= base) {
      break;
    } else {
      found = found || digit != 0;
      if (found && !behindPoint) ++position;
      if (!found && behindPoint) --position;
    }
  }
  std::int64_t exponent = 0;
  digits.remove_prefix(i);
  const bool hasExponent = hexadecimal ? digits.starts_with('p') || digits.starts_with('P')
                                       : digits.starts_with('e') || digits.starts_with('E');
  if (hasExponent) {
    digits.remove_prefix(1);
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) digits.remove_prefix(1);
    for (const char c : digits) {
      if (DigitValue(c) >= 10) break;
      exponent = std::min<std::int64_t>(exponent * 10 + DigitValue(c), std::int64_t{1} << 40);
    }
    if (negative) exponent = -exponent;
  }
  return position * weight + exponent > 0;
}

// Digits with at most one point among them, 15 digits at most and nothing else; false for all other
// texts. Most reals of a file are such. Their digits as a whole number and the power of ten that
// divides it are both exact, so that the quotient is the double next to the decimal number, which
// is what from_chars gives in twice to three times the time.
bool ReadShortDecimal(std::string_view token, double& value) {
  constexpr std::size_t kMostDigits = 15;
  static constexpr std::array<double, kMostDigits + 1> kPowers = {
      1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  if (token.size() > kMostDigits + 1) return false;
  std::uint64_t whole = 0;
  std::size_t digits = 0;
  std::size_t decimals = 0;  // counted from the point on, which itself is counted first
  for (const char c : token) {
    if (c >= '0' && c <= '9') {
      whole = whole * 10 + static_cast<std::uint64_t>(c - '0');
      ++digits;
      decimals += decimals > 0 ? 1 : 0;
    } else if (c == '.' && decimals == 0) {
      decimals = 1;
    } else {
      return false;
    }
  }
  if (digits == 0 || digits > kMostDigits) return false;
  value = static_cast<double>(whole);
  if (decimals > 1) value /= kPowers[decimals - 1];
  return true;
}

}  // namespace

Converted<std::uint32_t> ReadUnsigned(std::string_view token) {
  const Magnitude number = ReadMagnitude(token);
  if (number.overflow || number.value > std::numeric_limits<std::uint32_t>::max()) {
    return {std::numeric_limits<std::uint32_t>::max(), true};
  }
  const auto value = static_cast<std::uint32_t>(number.value);
  return {number.negative ? 0U - value : value, number.ok};
}

Converted<std::int32_t> ReadSigned(std::string_view token) {
  const Magnitude number = ReadMagnitude(token);
  constexpr std::uint64_t kMost = std::numeric_limits<std::int32_t>::max();
  const std::uint64_t most = number.negative ? kMost + 1 : kMost;
  const auto value =
      static_cast<std::int64_t>(number.overflow ? most : std::min(number.value, most));
  return {static_cast<std::int32_t>(number.negative ? -value : value), number.ok};
}

Converted<std::uint64_t> ReadUnsigned64(std::string_view token) {
  const Magnitude number = ReadMagnitude(token);
  if (number.overflow) return {std::numeric_limits<std::uint64_t>::max(), true};
  return {number.negative ? 0U - number.value : number.value, number.ok};
}

Converted<double> ReadReal(std::string_view token) {
  const bool negative = TakeSign(token);
  if (token.starts_with('-')) return {0, false};  // a second sign
  const auto convert = [](std::string_view digits, std::chars_format format) {
    double value = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, format);
    if (error == std::errc::result_out_of_range) {
      value = IsTooLarge(digits, format == std::chars_format::hex)
                  ? std::numeric_limits<double>::infinity()
                  : 0;
    }
    return Converted<double>{value, error != std::errc::invalid_argument};
  };
  Converted<double> number{0, false};
  if (ReadShortDecimal(token, number.value)) {
    number.ok = true;
  } else if (IsHexPrefix(token)) {
    // Without a digit behind it, "0x" is the number 0 and a rest.
    const bool digits = token[2] == '.' || DigitValue(token[2]) < 16;
    if (digits) number = convert(token.substr(2), std::chars_format::hex);
    if (!number.ok) number = {0, true};
  } else {
    number = convert(token, std::chars_format::general);
  }
  if (negative && number.ok) number.value = -number.value;
  return number;
}

void AppendShortest(std::string& text, double value) {
  std::array<char, 32> buffer{};
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  text.append(buffer.data(), end);
}

std::string ShortestText(double value) {
  std::string text;
  AppendShortest(text, value);
  return text;
}

}  // namespace a2l
