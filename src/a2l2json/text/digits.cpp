// SPDX-License-Identifier: MIT
#include "a2l2json/text/digits.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

namespace a2l {
namespace {

constexpr int kDigits = 17;

char* WriteByLibrary(double value, char* out) {
  return std::to_chars(out, out + kMostDigits, value, std::chars_format::general, kDigits).ptr;
}

#ifdef __SIZEOF_INT128__

__extension__ using Wide = unsigned __int128;

constexpr std::uint64_t Power(std::uint64_t base, int exponent) {
  std::uint64_t power = 1;
  for (int i = 0; i < exponent; ++i) power *= base;
  return power;
}

// The powers of five that fit into 64 bits.
constexpr std::array<std::uint64_t, 28> MakePowersOfFive() {
  std::array<std::uint64_t, 28> powers{};
  for (std::size_t i = 0; i < powers.size(); ++i) powers[i] = Power(5, static_cast<int>(i));
  return powers;
}
constexpr auto kPowersOfFive = MakePowersOfFive();

// A number as digits: 17 of them in a whole number, and the power of ten that the first one
// stands for.
struct Decimal {
  std::uint64_t digits;
  int exponent;
};

// `mantissa` * 2^`exponent` * 10^`tens` as a whole number, rounded to the nearest and, half way, to
// the even one. Nothing is lost on the way: the mantissa has 53 bits, the power of five at most 63,
// and the powers of two are a shift, by -64 to 127 bits, to the right where positive.
std::uint64_t Scale(std::uint64_t mantissa, int exponent, int tens) {
  const Wide product = Wide{mantissa} * kPowersOfFive[static_cast<std::size_t>(tens)];
  const int shift = -(exponent + tens);
  if (shift <= 0) return static_cast<std::uint64_t>(product << -shift);
  const auto whole = static_cast<std::uint64_t>(product >> shift);
  const Wide rest = product & ((Wide{1} << shift) - 1);
  const Wide half = Wide{1} << (shift - 1);
  return whole + (rest > half || (rest == half && whole % 2 == 1) ? 1 : 0);
}

// The 17 digits of a number from kLeast to below kMost.
constexpr double kLeast = 1e-10;
constexpr double kMost = 1e17;

Decimal ToDecimal(double value) {
  constexpr int kMantissaBits = std::numeric_limits<double>::digits - 1;
  constexpr int kBias = std::numeric_limits<double>::max_exponent - 1;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const int exponent = static_cast<int>(bits >> kMantissaBits) - kBias;
  constexpr std::uint64_t kImplied = std::uint64_t{1} << kMantissaBits;
  const std::uint64_t mantissa = (bits & (kImplied - 1)) | kImplied;
  // The logarithm of two, times the exponent and rounded down, is the decimal exponent or one less.
  int tens = (exponent * 1233) >> 12;
  std::uint64_t digits = Scale(mantissa, exponent - kMantissaBits, kDigits - 1 - tens);
  if (digits >= Power(10, kDigits)) {
    ++tens;
    digits = Scale(mantissa, exponent - kMantissaBits, kDigits - 1 - tens);
  }
  return {digits, tens};
}

char* Append(char* out, std::string_view text) { return std::ranges::copy(text, out).out; }

char* WriteDecimal(Decimal number, char* out) {
  std::array<char, kDigits> all{};
  for (std::size_t i = all.size(); i-- > 0; number.digits /= 10) {
    all[i] = static_cast<char>('0' + number.digits % 10);
  }
  std::string_view digits(all.data(), all.size());
  digits = digits.substr(0, digits.find_last_not_of('0') + 1);
  constexpr std::string_view kZeros = "0000000000000000";
  if (number.exponent >= 0) {
    const auto whole = static_cast<std::size_t>(number.exponent) + 1;  // digits before the point
    if (digits.size() <= whole) {
      return Append(Append(out, digits), kZeros.substr(0, whole - digits.size()));
    }
    return Append(Append(Append(out, digits.substr(0, whole)), "."), digits.substr(whole));
  }
  const auto zeros = static_cast<std::size_t>(-number.exponent) - 1;  // behind the point
  if (number.exponent >= -4) {
    return Append(Append(Append(out, "0."), kZeros.substr(0, zeros)), digits);
  }
  out = Append(out, digits.substr(0, 1));
  if (digits.size() > 1) out = Append(Append(out, "."), digits.substr(1));
  out = Append(out, number.exponent > -10 ? "e-0" : "e-");
  return std::to_chars(out, out + 2, -number.exponent).ptr;
}

bool IsInRange(double magnitude) { return magnitude >= kLeast && magnitude < kMost; }

char* WriteFraction(double value, char* out) {
  if (!IsInRange(std::abs(value))) return WriteByLibrary(value, out);
  if (value < 0) *out++ = '-';
  return WriteDecimal(ToDecimal(std::abs(value)), out);
}

#else

char* WriteFraction(double value, char* out) { return WriteByLibrary(value, out); }

#endif

}  // namespace

char* Write17Digits(double value, char* out) {
  // Most reals in a file are whole numbers, whose 17 significant digits are their decimal ones. A
  // number too large for that is compared with 0, which it is not.
  constexpr double kMostWhole = 1e15;
  const auto whole = static_cast<std::int64_t>(std::abs(value) < kMostWhole ? value : 0);
  if (static_cast<double>(whole) == value && !(whole == 0 && std::signbit(value))) {
    return std::to_chars(out, out + kMostDigits, whole).ptr;
  }
  return WriteFraction(value, out);
}

}  // namespace a2l
