// SPDX-License-Identifier: MIT
#include "tests/generator/values.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string_view>

namespace a2l::test {
namespace {

// printf's own conversions, which the program does not use.
std::string Printed(const char* format, unsigned long long number) {
  std::array<char, 64> buffer{};
  const int size = std::snprintf(buffer.data(), buffer.size(), format, number);
  return {buffer.data(), static_cast<std::size_t>(size)};
}

// The signed number that has these bits.
std::int32_t Narrowed(std::uint64_t bits) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(bits));
}

MadeValue MakeName(Random& random) {
  const std::string number = std::to_string(random.Below(1000));
  std::string name;
  switch (random.Below(16)) {
    case 0:
      name = "\"quoted // name " + number + "\"";
      break;
    case 1:
      name = "with\ttab" + number;
      break;
    case 2:
      name = "\xE4\xF6\xFC" + number;  // letters of Latin-1
      break;
    case 3:
      name = "it's/*" + number;
      name.erase(name.find('*'), 1);  // a slash alone
      break;
    case 4:
      name = "struct.array[" + number + "]._0_";
      break;
    case 5:
      name = random.OneIn(8) ? std::string(1000 + random.Below(50), 'n') : "-" + number;
      break;
    case 6:
      name = number;
      break;
    default:
      name = "name" + number;
  }
  return {name, name.substr(0, 1024)};
}

MadeValue MakeText(Random& random) {
  // How a piece of text is written, and its meaning.
  struct Piece {
    std::string_view written;
    std::string_view meant;
  };
  constexpr Piece kPieces[] = {{"a", "a"},
                               {" ", " "},
                               {"word ", "word "},
                               {"\\\"", "\""},
                               {"\\n", "\n"},
                               {"\\r", "\r"},
                               {"\\t", "\t"},
                               {"\\'", "'"},
                               {"'", "'"},
                               {"\\d", "\\d"},
                               {"//", "//"},
                               {"/* b */", "/* b */"},
                               {"\t", "\t"},
                               {"\xB0"
                                "C",
                                "\xB0"
                                "C"},
                               {"\xE2\x80\xA8", "\xE2\x80\xA8"},
                               {",", ","},
                               {"\x01", "\x01"},
                               {"MODULE", "MODULE"},
                               {"\\\\x", "\\x"}};
  if (random.OneIn(16)) return {"unquoted", std::string()};
  MadeValue made{"\"", {}};
  std::string text;
  for (std::size_t i = random.Below(6); i > 0; --i) {
    if (random.OneIn(6)) {
      made.token += "\"\"x";  // a doubled quote, and a letter so that four never stand in a row
      text += "\"x";
      continue;
    }
    const Piece& piece = random.Pick(kPieces);
    made.token += piece.written;
    text += piece.meant;
  }
  made.token += '"';
  made.value = text;
  return made;
}

// A magnitude in one of the bases, sometimes with characters behind it that are ignored.
std::string Written(std::uint64_t number, Random& random) {
  switch (random.Below(8)) {
    case 0:
      return Printed("0x%llX", number);
    case 1:
      return Printed("0x%llx", number) + (random.OneIn(4) ? "z" : "");
    case 2:
      return Printed("0X%08llX", number);
    case 3:
      return Printed("0%llo", number) + (random.OneIn(4) ? "9" : "");
    case 4:
      return "+" + Printed("%llu", number);
    case 5:
      return Printed("%llu", number) + "abc";
    default:
      return Printed("%llu", number);
  }
}

MadeValue MakeUnsigned(bool isAddress, Random& random) {
  constexpr std::uint32_t kNumbers[] = {0, 1, 7, 8, 255, 65535, 2147483647, 2147483648, 4294967295};
  auto number = random.OneIn(2) ? random.Pick(kNumbers) : static_cast<std::uint32_t>(random.Next());
  std::string token = Written(number, random);
  if (random.OneIn(12)) {
    token = "-" + Printed("%llu", number);
    number = 0U - number;
  } else if (random.OneIn(12)) {
    token = "4294967296";
    number = 4294967295;
  }
  if (isAddress) return {token, Printed("0x%llX", number)};
  return {token, Narrowed(number)};
}

MadeValue MakeSigned(Random& random) {
  constexpr std::int32_t kNumbers[] = {0, 1, 26, 2147483647};
  auto number =
      random.OneIn(2) ? random.Pick(kNumbers) : static_cast<std::int32_t>(random.Below(2147483647));
  std::string token = Written(static_cast<std::uint64_t>(number), random);
  if (random.OneIn(3)) {
    if (token.front() == '+') token.erase(0, 1);
    token.insert(0, "-");
    number = -number;
  } else if (random.OneIn(12)) {
    token = "-99999999999";
    number = std::numeric_limits<std::int32_t>::min();
  }
  return {token, number};
}

MadeValue MakeMask(Random& random) {
  const std::uint64_t number = random.Next() >> random.Below(64);
  return {Written(number, random), Narrowed(number)};
}

MadeValue MakeReal(Random& random) {
  constexpr const char* kTokens[] = {"0",       "1",       "-1",     "0.5",
                                     ".25",     "100",     "1e3",    "1E-3",
                                     "-1.5e+5", "1e308",   "5e-324", "1.7976931348623157e308",
                                     "0x10",    "0x1.8p1", "12abc",  "3.",
                                     "inf",     "-INF",    "nan"};
  const std::string token = random.OneIn(3) ? std::to_string(random.Below(100000)) + "." +
                                                  std::to_string(random.Below(100))
                                            : random.Pick(kTokens);
  const double number = std::strtod(token.c_str(), nullptr);
  if (!std::isfinite(number)) return {token, {}};
  return {token, number};
}

MadeValue MakeWord(const WordSet& set, Random& random) {
  if (!set.required && random.OneIn(8)) return {"other_word", std::string(set.fallback)};
  const std::string word(random.Pick(set.words));
  // A word is also found inside another one.
  return {random.OneIn(4) ? "my_" + word + "_word" : word, word};
}

}  // namespace

MadeValue MakeValue(const Parameter& parameter, Random& random) {
  switch (parameter.type) {
    case ParameterType::Name:
      return MakeName(random);
    case ParameterType::Text:
      return MakeText(random);
    case ParameterType::Unsigned:
      return MakeUnsigned(false, random);
    case ParameterType::Address:
      return MakeUnsigned(true, random);
    case ParameterType::Signed:
      return MakeSigned(random);
    case ParameterType::Mask:
      return MakeMask(random);
    case ParameterType::Real:
      return MakeReal(random);
    case ParameterType::Word:
      return MakeWord(*parameter.words, random);
    case ParameterType::Checked:
      return {MakeUnsigned(false, random).token, 0};
    case ParameterType::Discarded:
      return {"ON_CHANGE", std::string()};
  }
  return {};
}

bool CanBeWrong(const Parameter& parameter) {
  switch (parameter.type) {
    case ParameterType::Name:
    case ParameterType::Text:
    case ParameterType::Discarded:
      return false;
    case ParameterType::Word:
      return parameter.words->required;
    default:
      return true;
  }
}

namespace {

// The value of a parameter for which nothing could be read.
Value Missing(const Parameter& parameter) {
  switch (parameter.type) {
    case ParameterType::Name:
    case ParameterType::Text:
    case ParameterType::Discarded:
      return std::string();
    case ParameterType::Word:
      return std::string(parameter.words->fallback);
    case ParameterType::Address:
      return std::string("0x0");
    case ParameterType::Real:
      return 0.0;
    default:
      return 0;
  }
}

// The value of a parameter that was never read. A word is then the first of its enumeration, if
// that counts from 0.
Value Untouched(const Parameter& parameter) {
  const bool isAddressType =
      parameter.type == ParameterType::Word && parameter.words->name == "AddrType";
  return isAddressType ? Value(std::string("PBYTE")) : Missing(parameter);
}

}  // namespace

MadeValue MakeWrongValue(const Parameter& parameter, Random& random) {
  constexpr const char* kTokens[] = {"zz", "-", "#5", "_1", "\"1\"", "x10", "+-1"};
  const std::string token = random.Pick(kTokens);
  return {parameter.type == ParameterType::Word ? "other_word" : token, Missing(parameter), false};
}

Evaluation Evaluate(const Keyword& keyword, const std::vector<MadeValue>& made) {
  Evaluation evaluation;
  bool stopped = false;
  for (std::size_t i = 0; i < keyword.parameters.size(); ++i) {
    const Parameter& parameter = keyword.parameters[i];
    const bool there = i < made.size() && !stopped;
    evaluation.values.push_back(there     ? made[i].value
                                : stopped ? Untouched(parameter)
                                          : Missing(parameter));
    const bool ok = there ? made[i].ok : !CanBeWrong(parameter);
    evaluation.ok = evaluation.ok && ok;
    stopped = stopped || (!ok && keyword.onWrongNumber == OnWrongNumber::Stop);
  }
  if (keyword.text == "ARRAY_SIZE") {
    auto& size = std::get<std::int32_t>(evaluation.values.front());
    if (size < 0 || size > 32767) size = 32767;  // a large one is negative here
  }
  const bool isEmptyFormat =
      keyword.text == "FORMAT" && evaluation.values.front() == Value(std::string());
  evaluation.ok = evaluation.ok && !isEmptyFormat;
  return evaluation;
}

}  // namespace a2l::test
