// SPDX-License-Identifier: MIT
#include "a2l2json/mend/values.h"

#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "a2l2json/elements/parameter_text.h"
#include "a2l2json/text/bytes.h"
#include "a2l2json/text/numbers.h"

namespace a2l::mending {
namespace {

using detail::Parameter;
using detail::ParameterType;

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsHexDigit(char c) {
  return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// A number in the pieces that say how it is read.
struct Number {
  bool isNegative = false;
  bool isHex = false;
  std::string_view digits;  ///< before the point
  std::string_view rest;    ///< behind those digits
};

Number Split(std::string_view word) {
  Number number;
  number.isNegative = word.starts_with('-');
  if (number.isNegative || word.starts_with('+')) word.remove_prefix(1);
  number.isHex = word.size() > 2 && word[0] == '0' && (word[1] == 'x' || word[1] == 'X') &&
                 IsHexDigit(word[2]);
  if (number.isHex) word.remove_prefix(2);
  std::size_t count = 0;
  while (count < word.size() && (number.isHex ? IsHexDigit(word[count]) : IsDigit(word[count]))) {
    ++count;
  }
  number.digits = word.substr(0, count);
  number.rest = word.substr(count);
  return number;
}

bool IsZeros(std::string_view digits) {
  return digits.find_first_not_of('0') == std::string_view::npos;
}

// Behind the digits of a whole number, a point and zeros say nothing.
bool SaysNothing(std::string_view rest) {
  return rest.empty() || (rest[0] == '.' && IsZeros(rest.substr(1)));
}

std::size_t SkipDigits(std::string_view text, std::size_t i, bool isHex) {
  while (i < text.size() && (isHex ? IsHexDigit(text[i]) : IsDigit(text[i]))) ++i;
  return i;
}

// True where a real ends with the word: digits, a point, digits, an exponent.
bool IsWholeReal(const Number& number) {
  const std::string_view rest = number.rest;
  std::size_t i = 0;
  if (rest.starts_with('.')) i = SkipDigits(rest, 1, number.isHex);
  const char mark = number.isHex ? 'p' : 'e';
  if (i < rest.size() && std::tolower(static_cast<unsigned char>(rest[i])) == mark) {
    std::size_t behind = i + 1;
    if (behind < rest.size() && (rest[behind] == '-' || rest[behind] == '+')) ++behind;
    const std::size_t end = SkipDigits(rest, behind, false);
    if (end > behind) i = end;
  }
  return i == rest.size();
}

std::optional<ValueTrouble> Trouble(MendRule rule, std::string becomes = {}) {
  return ValueTrouble{rule, std::move(becomes)};
}

// What the document has for the bits of an unsigned number in a member without a sign of its own.
std::string Narrowed(std::uint64_t value) {
  return std::to_string(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
}

std::optional<ValueTrouble> CheckUnsigned(const Parameter& parameter, const Number& number,
                                          std::string_view word) {
  constexpr std::uint64_t kMost32 = std::numeric_limits<std::uint32_t>::max();
  constexpr std::uint64_t kMostSigned = std::numeric_limits<std::int32_t>::max();
  const std::uint64_t value = ReadUnsigned64(word).value;
  if (number.isNegative) {
    // As a pattern of bits, it is the same in the document.
    return {};
  }
  if (parameter.type == ParameterType::Unsigned64) {
    if (value > kMost32) return Trouble(MendRule::NumberRange, Narrowed(value));
  } else if (value > kMost32) {
    return Trouble(MendRule::NumberRange, std::to_string(kMost32));
  }
  // In hexadecimal digits a number is a pattern of bits, and those are all there.
  if (!parameter.isHex && !number.isHex && value > kMostSigned) {
    return Trouble(MendRule::NumberRange, Narrowed(value));
  }
  return {};
}

std::optional<ValueTrouble> CheckSigned(std::string_view word, const Number& number) {
  const std::int64_t read = ReadSigned(word).value;
  const std::uint64_t magnitude = ReadUnsigned64(number.isNegative ? word.substr(1) : word).value;
  const auto held = static_cast<std::uint64_t>(read < 0 ? -read : read);
  if (magnitude != held) return Trouble(MendRule::NumberRange, std::to_string(read));
  return {};
}

std::optional<ValueTrouble> CheckWhole(ElementKind kind, const Parameter& parameter,
                                       std::string_view word) {
  const Number number = Split(word);
  // Most numbers are short and decimal.
  if (number.rest.empty() && !number.isHex && !number.isNegative && !number.digits.empty() &&
      number.digits.size() < 5 && (number.digits[0] != '0' || number.digits.size() == 1)) {
    return {};
  }
  if (!ReadUnsigned64(word).ok) return Trouble(MendRule::NotANumber);
  if (!SaysNothing(number.rest)) return Trouble(MendRule::NumberRest);
  const bool isOctal = !number.isHex && number.digits.size() > 1 && number.digits[0] == '0' &&
                       !IsZeros(number.digits);
  if (isOctal) {
    const std::size_t first = number.digits.find_first_not_of('0');
    const bool isOneDigit = number.digits.size() - first == 1 && number.digits[first] < '8';
    if (!isOneDigit) return Trouble(MendRule::Octal, std::to_string(ReadSigned(word).value));
  }
  // Sizes of arrays have 15 bits, whatever their digits.
  constexpr std::uint64_t kMostArray = std::numeric_limits<std::int16_t>::max();
  if (kind == ElementKind::ARRAY_SIZE && ReadUnsigned64(word).value > kMostArray) {
    return Trouble(MendRule::NumberRange, std::to_string(kMostArray));
  }
  return parameter.type == ParameterType::Signed ? CheckSigned(word, number)
                                                 : CheckUnsigned(parameter, number, word);
}

std::optional<ValueTrouble> CheckReal(std::string_view word) {
  const Number number = Split(word);
  const bool isShort = number.digits.size() + number.rest.size() < 16;
  if (isShort && !number.isHex && !number.digits.empty() &&
      (number.rest.empty() ||
       (number.rest[0] == '.' && SkipDigits(number.rest, 1, false) == number.rest.size()))) {
    return {};
  }
  const Converted<double> read = ReadReal(word);
  if (!read.ok) return Trouble(MendRule::NotANumber);
  const bool hasDigits =
      !number.digits.empty() || (number.rest.size() > 1 && IsDigit(number.rest[1]));
  if (!hasDigits) return {};  // infinite, or not a number, in letters
  if (std::isinf(read.value)) return Trouble(MendRule::NumberRange, "null");
  if (!IsWholeReal(number)) return Trouble(MendRule::NumberRest);
  return {};
}

std::optional<ValueTrouble> CheckName(std::string_view word) {
  if (word.size() > detail::kMostIdentifierBytes) return Trouble(MendRule::NameCut);
  const char* const end = word.data() + word.size();
  if (bytes::Find<','>(word.data(), end) != end) return Trouble(MendRule::NameComma);
  return {};
}

std::optional<ValueTrouble> CheckWord(const Parameter& parameter, std::string_view word) {
  const Word* known = parameter.words->Find(word);
  if (known != nullptr && known->text == word) return {};
  const std::string_view becomes =
      known != nullptr ? known->text : parameter.words->ToText(parameter.words->fallback);
  return Trouble(MendRule::UnknownValue, becomes.empty() ? "an empty text" : std::string(becomes));
}

}  // namespace

std::optional<ValueTrouble> CheckValue(ElementKind kind, const Parameter& parameter,
                                       std::string_view word) {
  switch (parameter.type) {
    case ParameterType::Identifier:
    case ParameterType::NamedValue:
      return parameter.isDropped ? std::nullopt : CheckName(word);
    case ParameterType::Text:
    case ParameterType::UnquotedText:
      if (kind == ElementKind::FORMAT && word == R"("")") return Trouble(MendRule::EmptyFormat);
      if (word.starts_with('"')) return {};
      return Trouble(MendRule::TextWithoutQuotes);
    case ParameterType::Unsigned:
    case ParameterType::Signed:
    case ParameterType::Unsigned64:
      return CheckWhole(kind, parameter, word);
    case ParameterType::Real:
      return CheckReal(word);
    case ParameterType::Word:
      return parameter.isDropped ? std::nullopt : CheckWord(parameter, word);
    case ParameterType::RawText:
      return {};
  }
  return {};
}

bool IsNumber(const Parameter& parameter, std::string_view word) {
  switch (parameter.type) {
    case ParameterType::Unsigned:
    case ParameterType::Signed:
    case ParameterType::Unsigned64:
      return ReadUnsigned64(word).ok;
    case ParameterType::Real:
      return ReadReal(word).ok;
    default:
      return true;
  }
}

}  // namespace a2l::mending
