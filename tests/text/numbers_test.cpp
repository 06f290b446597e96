// SPDX-License-Identifier: MIT
#include "a2l2json/text/numbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace a2l::test {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// That of MinGW-w64 rounds some numbers wrongly, and does not find a number in "0x".
#ifdef __MINGW32__
constexpr bool kCLibraryErrs = true;
#else
constexpr bool kCLibraryErrs = false;
#endif
constexpr const char* kNoJudge = "the C library of this system reads some numbers wrongly";

TEST(ReadUnsigned, FollowsTheRulesOfBaseZero) {
  struct Row {
    std::string_view token;
    std::uint32_t value;
    bool ok;
  };
  constexpr Row kRows[] = {
      {"0", 0, true},
      {"7936", 7936, true},
      {"0x1F00", 7936, true},
      {"0X1f00", 7936, true},
      {"037", 31, true},
      {"0x1F", 31, true},
      {"31", 31, true},
      {"010", 8, true},
      {"0777", 511, true},
      {"00", 0, true},
      // Conversion stops at what does not fit.
      {"12abc", 12, true},
      {"08", 0, true},
      {"0179", 15, true},
      {"0x", 0, true},
      {"0xg", 0, true},
      {"0x0x1", 0, true},
      {"0b1", 0, true},
      {"1.9", 1, true},
      {"1e3", 1, true},
      {"1'000", 1, true},
      {"1\0"
       "2"sv,
       1, true},
      // Sign and white space come first.
      {"+5", 5, true},
      {"-5", 4294967291, true},
      {"-0", 0, true},
      {"-1", 4294967295, true},
      {"-4294967295", 1, true},
      {"-0x10", 4294967280, true},
      {"\t\n\v\f\r 5", 5, true},
      {" -5", 4294967291, true},
      // Numbers have 32 bits.
      {"4294967295", 4294967295, true},
      {"4294967296", 4294967295, true},
      {"0xFFFFFFFF", 4294967295, true},
      {"0x100000000", 4294967295, true},
      {"037777777777", 4294967295, true},
      {"040000000000", 4294967295, true},
      {"18446744073709551616", 4294967295, true},
      {"99999999999999999999999999999", 4294967295, true},
      {"-4294967296", 4294967295, true},
      {"-99999999999999999999999999999", 4294967295, true},
      // No character converts.
      {"", 0, false},
      {" ", 0, false},
      {"-", 0, false},
      {"+", 0, false},
      {"+-5", 0, false},
      {"-+5", 0, false},
      {"--5", 0, false},
      {"- 5", 0, false},
      {"abc", 0, false},
      {"x10", 0, false},
      {"zz", 0, false},
      {"\"5\"", 0, false},
      {"\xA0"
       "5",
       0, false},
      {".5", 0, false},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.token);
    const auto [value, ok] = ReadUnsigned(row.token);
    EXPECT_EQ(value, row.value);
    EXPECT_EQ(ok, row.ok);
  }
}

TEST(ReadSigned, FollowsTheRulesOfBaseZero) {
  struct Row {
    std::string_view token;
    std::int32_t value;
    bool ok;
  };
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr Row kRows[] = {
      {"0", 0, true},
      {"-26", -26, true},
      {"+26", 26, true},
      {"-0x1A", -26, true},
      {"-032", -26, true},
      {" \v-7x", -7, true},
      {"0x", 0, true},
      {"-0", 0, true},
      {"2147483647", kMost, true},
      {"2147483648", kMost, true},
      {"0x7FFFFFFF", kMost, true},
      {"0x80000000", kMost, true},
      {"4294967295", kMost, true},
      {"99999999999999999999", kMost, true},
      {"-2147483647", -kMost, true},
      {"-2147483648", kLeast, true},
      {"-2147483649", kLeast, true},
      {"-0x80000000", kLeast, true},
      {"-99999999999999999999", kLeast, true},
      {"", 0, false},
      {"-", 0, false},
      {"-x", 0, false},
      {"+-5", 0, false},
      {"x", 0, false},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.token);
    const auto [value, ok] = ReadSigned(row.token);
    EXPECT_EQ(value, row.value);
    EXPECT_EQ(ok, row.ok);
  }
}

TEST(ReadUnsigned64, FollowsTheRulesOfBaseZero) {
  struct Row {
    std::string_view token;
    std::uint64_t value;
    bool ok;
  };
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
  constexpr Row kRows[] = {
      {"0xFFFFFFFFFFFFFFFF", kMost, true},
      {"18446744073709551615", kMost, true},
      {"18446744073709551616", kMost, true},
      {"01777777777777777777777", kMost, true},
      {"02000000000000000000000", kMost, true},
      {"0x10000000000000000", kMost, true},
      {"18446744073709551614", kMost - 1, true},
      {"0x100000000", 4294967296, true},
      {"-5", kMost - 4, true},
      {"-18446744073709551615", 1, true},
      {"-18446744073709551616", kMost, true},
      {"010", 8, true},
      {"0xFFx", 255, true},
      {"", 0, false},
      {"-", 0, false},
      {"mask", 0, false},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.token);
    const auto [value, ok] = ReadUnsigned64(row.token);
    EXPECT_EQ(value, row.value);
    EXPECT_EQ(ok, row.ok);
  }
}

TEST(ReadReal, ReadsDecimalHexadecimalAndWords) {
  struct Row {
    std::string_view token;
    double value;
    bool ok;
  };
  constexpr Row kRows[] = {
      {"0", 0, true},
      {"0.5", 0.5, true},
      {".5", 0.5, true},
      {"5.", 5, true},
      {"+1.5", 1.5, true},
      {"-1.5", -1.5, true},
      {" \t\v\f\r\n1.5", 1.5, true},
      {"1E3", 1000, true},
      {"1e+3", 1000, true},
      {"1e-3", 0.001, true},
      {"0.10", 0.1, true},
      {"010", 10, true},  // reals are never octal
      {"-1e308", -1e308, true},
      {"0x10", 16, true},
      {"0X1.8p1", 3, true},
      {"0x.8", 0.5, true},
      {"0x1p-1074", 5e-324, true},
      {"-0x1p4", -16, true},
      {"0x1.00000000000008", 1, true},  // a tie goes to the even number
      {"0x1.00000000000018", 1.0000000000000004, true},
      {"0x1.000000000000080000000001", 1.0000000000000002, true},
      {"0x1p-1075", 0, true},
      {"0x1.00000000000008p-1075", 5e-324, true},
      {"inf", kInfinity, true},
      {"INF", kInfinity, true},
      {"Infinity", kInfinity, true},
      {"-inf", -kInfinity, true},
      {"+infinit", kInfinity, true},
      // Too large and too small.
      {"1e309", kInfinity, true},
      {"-1e309", -kInfinity, true},
      {"1e99999999999999999999", kInfinity, true},
      {"0x1p1024", kInfinity, true},
      {"1e-400", 0, true},
      {"1e-99999999999999999999", 0, true},
      {"0e99999999999999999999", 0, true},
      {"0x0p99999999999999999999", 0, true},
      {"0x1p-2000", 0, true},
      {"0x.001p1600", kInfinity, true},
      // Conversion stops at what does not fit.
      {"1.5abc", 1.5, true},
      {"1.5.5", 1.5, true},
      {"1,5", 1, true},
      {"1e", 1, true},
      {"1e+", 1, true},
      {"1ex", 1, true},
      {"0x", 0, true},
      {"0xg", 0, true},
      {"0x.", 0, true},
      {"0xp5", 0, true},
      {"0x1p", 1, true},
      {"0x1p+", 1, true},
      {"0xinf", 0, true},
      {"0xnan", 0, true},
      {"0x-1", 0, true},
      {"0x+1", 0, true},
      {"0x 1", 0, true},
      {"0b1", 0, true},
      {"1\0"
       "2"sv,
       1, true},
      // No character converts.
      {"", 0, false},
      {" ", 0, false},
      {"-", 0, false},
      {".", 0, false},
      {"-.", 0, false},
      {"e5", 0, false},
      {".e5", 0, false},
      {"+-5", 0, false},
      {"-+5", 0, false},
      {"--5", 0, false},
      {"- 5", 0, false},
      {"in", 0, false},
      {"na", 0, false},
      {"abc", 0, false},
      {"x", 0, false},
      {"\"1\"", 0, false},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.token);
    const auto [value, ok] = ReadReal(row.token);
    EXPECT_EQ(value, row.value);
    EXPECT_EQ(ok, row.ok);
  }
}

TEST(ReadReal, KeepsTheSignOfZero) {
  for (const std::string_view token : {"-0", "-0.0", "-0x0", "-1e-400", "-0x", "-0x1p-2000"}) {
    const auto [value, ok] = ReadReal(token);
    EXPECT_TRUE(ok) << token;
    EXPECT_EQ(value, 0) << token;
    EXPECT_TRUE(std::signbit(value)) << token;
  }
}

TEST(ReadReal, ReadsNotANumber) {
  for (const std::string_view token :
       {"nan", "NaN", "-nan", "+NAN", "nan()", "nan(12)", "nan(", "nanx"}) {
    const auto [value, ok] = ReadReal(token);
    EXPECT_TRUE(ok) << token;
    EXPECT_TRUE(std::isnan(value)) << token;
  }
}

// Every way to put these parts together.
std::vector<std::string> Combine(const std::vector<std::vector<std::string>>& parts) {
  std::vector<std::string> tokens = {""};
  for (const std::vector<std::string>& choices : parts) {
    std::vector<std::string> longer;
    longer.reserve(tokens.size() * choices.size());
    for (const std::string& token : tokens) {
      for (const std::string& choice : choices) longer.push_back(token + choice);
    }
    tokens = std::move(longer);
  }
  return tokens;
}

std::vector<std::string> WholeNumberTokens() {
  return Combine({{"", " ", "\t\v\f\r\n"},
                  {"", "+", "-", "+-", "- "},
                  {"", "0", "00", "0x", "0X", "x", "0x0x", "0x0"},
                  {"",
                   "0",
                   "1",
                   "7",
                   "8",
                   "9",
                   "12",
                   "089",
                   "0777",
                   "deadBEEF",
                   "fF",
                   "g",
                   "a1",
                   "2147483647",
                   "2147483648",
                   "2147483649",
                   "4294967295",
                   "4294967296",
                   "9223372036854775807",
                   "9223372036854775808",
                   "18446744073709551615",
                   "18446744073709551616",
                   "18446744073709551620",
                   "99999999999999999999999999",
                   "37777777777",
                   "1777777777777777777777",
                   "FFFFFFFFFFFFFFFF",
                   "FFFFFFFFFFFFFFFFF"},
                  {"", "x", ".5", "e3", " 1", "-", "\t"}});
}

// The result of the C library is the right one by definition. If its types are wider than 32 bits,
// its result is brought to the bounds of 32 bits.
TEST(WholeNumbers, AreThoseOfTheCLibrary) {
  if (kCLibraryErrs) GTEST_SKIP() << kNoJudge;
  constexpr std::uint32_t kMost = std::numeric_limits<std::uint32_t>::max();
  for (const std::string& token : WholeNumberTokens()) {
    const std::string shown = testing::PrintToString(token);
    char* end = nullptr;

    errno = 0;
    const std::uint64_t wide = std::strtoull(token.c_str(), &end, 0);
    const bool overflow = errno == ERANGE;
    const bool converted = end != token.c_str();
    const auto unsigned64 = ReadUnsigned64(token);
    ASSERT_EQ(unsigned64.value, wide) << shown;
    ASSERT_EQ(unsigned64.ok, converted) << shown;

    const bool negative = converted && token.find('-') < token.find_first_of("0123456789");
    const std::uint64_t magnitude = negative && !overflow ? std::uint64_t{0} - wide : wide;
    const auto low = static_cast<std::uint32_t>(wide);
    const auto unsigned32 = ReadUnsigned(token);
    ASSERT_EQ(unsigned32.value, overflow || magnitude > kMost ? kMost : low) << shown;
    ASSERT_EQ(unsigned32.ok, converted) << shown;

    const std::int64_t wideSigned = std::strtoll(token.c_str(), &end, 0);
    const auto signed32 = ReadSigned(token);
    ASSERT_EQ(signed32.value, std::clamp<std::int64_t>(wideSigned, -2147483648LL, 2147483647LL))
        << shown;
    ASSERT_EQ(signed32.ok, converted) << shown;
  }
}

void ExpectRealOfTheCLibrary(const std::string& token) {
  char* end = nullptr;
  const double expected = std::strtod(token.c_str(), &end);
  const auto [value, ok] = ReadReal(token);
  ASSERT_EQ(ok, end != token.c_str()) << testing::PrintToString(token);
  if (std::isnan(expected)) {
    ASSERT_TRUE(std::isnan(value)) << testing::PrintToString(token);
  } else {
    ASSERT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expected))
        << testing::PrintToString(token) << " " << value << " instead of " << expected;
  }
}

// All counts of digits before and behind the point that are near the largest count for which the
// division of two exact numbers gives the result.
TEST(ReadReal, ReadsDecimalsLikeTheCLibrary) {
  std::mt19937_64 random(20);
  for (std::size_t whole = 0; whole <= 18; ++whole) {
    for (std::size_t decimals = 0; decimals <= 18; ++decimals) {
      for (int round = 0; round < 20; ++round) {
        std::string token;
        for (std::size_t i = 0; i < whole + decimals; ++i) {
          if (i == whole) token += '.';
          token += static_cast<char>('0' + random() % 10);
        }
        ASSERT_NO_FATAL_FAILURE(ExpectRealOfTheCLibrary(token));
        ASSERT_NO_FATAL_FAILURE(ExpectRealOfTheCLibrary("-" + token));
        ASSERT_NO_FATAL_FAILURE(ExpectRealOfTheCLibrary(token + "."));
        ASSERT_NO_FATAL_FAILURE(ExpectRealOfTheCLibrary(token + "e3"));
        ASSERT_NO_FATAL_FAILURE(ExpectRealOfTheCLibrary(token + "x"));
      }
    }
  }
}

TEST(Reals, AreThoseOfTheCLibrary) {
  if (kCLibraryErrs) GTEST_SKIP() << kNoJudge;
  const std::string zeros(400, '0');
  const std::vector<std::string> tokens = Combine({{"", " \t\v", "x"},
                                                   {"", "+", "-", "+-"},
                                                   {"",
                                                    ".",
                                                    "0",
                                                    "00",
                                                    "0.0",
                                                    "000.000",
                                                    "1",
                                                    "9.99",
                                                    ".001",
                                                    "1.",
                                                    "123456789012345678901234",
                                                    "0." + zeros + "1",
                                                    "1" + zeros,
                                                    "1" + zeros + "." + zeros,
                                                    "179769313486231580",
                                                    "17976931348623157.99",
                                                    "4.9406564584124654",
                                                    "2.4703282292062327",
                                                    "2.4703282292062328",
                                                    "2.2250738585072011",
                                                    "2.2250738585072014",
                                                    "inf",
                                                    "INFINITY",
                                                    "infi",
                                                    "nan",
                                                    "nan(1_a)",
                                                    "nan(",
                                                    "in"},
                                                   {"",
                                                    "e",
                                                    "e+",
                                                    "e5",
                                                    "E-5",
                                                    "e22",
                                                    "e23",
                                                    "e290",
                                                    "e291",
                                                    "e292",
                                                    "e307",
                                                    "e308",
                                                    "e309",
                                                    "e-307",
                                                    "e-308",
                                                    "e-323",
                                                    "e-324",
                                                    "e-325",
                                                    "e400",
                                                    "e-400",
                                                    "e401",
                                                    "e-401",
                                                    "e99999999999999999999",
                                                    "e-99999999999999999999",
                                                    "e0x1",
                                                    "p3"},
                                                   {"", "x", " 1", "."}});
  for (const std::string& token : tokens) ASSERT_NO_FATAL_FAILURE(ExpectRealOfTheCLibrary(token));
}

TEST(Reals, InHexadecimalAreThoseOfTheCLibrary) {
  const std::string zeros(400, '0');
  std::vector<std::string> tokens =
      Combine({{"", "-", "+-"},
               {"0x", "0X", "00x"},
               {"", ".", "0", "0.0", ".0", "1", "F.fF", ".001", "8.", "1.fffffffffffff",
                "0." + zeros + "1", "1" + zeros, "3", "3.8", "g", "inf", "nan", "-1", "+1"},
               {"",
                "p",
                "p+",
                "p5",
                "P-5",
                "p1022",
                "p1023",
                "p1024",
                "p-1022",
                "p-1023",
                "p-1026",
                "p-1073",
                "p-1074",
                "p-1075",
                "p-1076",
                "p-1077",
                "p1600",
                "p-1600",
                "p1604",
                "p-1604",
                "p99999999999999999999",
                "p-99999999999999999999",
                "e5"},
               {"", "x", "."}});
  // More digits than a double holds. Not every C library rounds them correctly for the smallest
  // numbers.
  std::ranges::copy(Combine({{"0x", "-0x"},
                             {"1.00000000000008", "1.000000000000080000000001", "1.00000000000018",
                              "1.fffffffffffff7", "1.fffffffffffff8", "123456789abcdef0123456789"},
                             {"", "p5", "p-5", "p1022", "p1023", "p-1021", "p-1022"}}),
                    std::back_inserter(tokens));
  for (const std::string& token : tokens) ASSERT_NO_FATAL_FAILURE(ExpectRealOfTheCLibrary(token));
}

std::string Printed(const char* format, double value) {
  std::string text(400, '\0');
  const int size = std::snprintf(text.data(), text.size(), format, value);
  text.resize(static_cast<std::size_t>(size));
  return text;
}

// A double of every magnitude, including the smallest and the largest.
std::vector<double> ManyDoubles() {
  std::vector<double> values = {0.0, 0.1, 0.5, 1.0 / 3, 1e22, 1e23, 9007199254740993.0};
  std::mt19937_64 random(20240229);
  for (std::uint64_t exponent = 0; exponent < 0x7FF; ++exponent) {
    constexpr std::uint64_t kFraction = (std::uint64_t{1} << 52) - 1;
    for (const std::uint64_t fraction :
         {std::uint64_t{0}, std::uint64_t{1}, kFraction, random() & kFraction}) {
      values.push_back(std::bit_cast<double>(exponent << 52 | fraction));
    }
  }
  for (int exponent = -30; exponent <= 30; ++exponent) {
    for (const int mantissa : {1, 12, 123, 123456789}) {
      values.push_back(std::strtod(Printed("%.0f", mantissa).c_str(), nullptr) *
                       std::pow(10, exponent));
    }
  }
  for (int i = 0; i < 20000; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (std::isfinite(value)) values.push_back(value);
  }
  return values;
}

TEST(Reals, OfAllMagnitudesAreThoseOfTheCLibrary) {
  if (kCLibraryErrs) GTEST_SKIP() << kNoJudge;
  for (const double value : ManyDoubles()) {
    for (const char* format : {"%.17g", "%.6g", "%.25e", "%a", "%.3a"})
      ASSERT_NO_FATAL_FAILURE(ExpectRealOfTheCLibrary(Printed(format, value)));
  }
}

TEST(ShortestText, IsPlainOrWithExponentWhicheverIsShorter) {
  struct Row {
    double value;
    std::string_view text;
  };
  constexpr Row kRows[] = {
      {0, "0"},
      {-0.0, "-0"},
      {1, "1"},
      {-1, "-1"},
      {0.5, "0.5"},
      {0.1, "0.1"},
      {100, "100"},
      {1000, "1000"},
      {10000, "10000"},  // as long as 1e+04: plain
      {1e5, "1e+05"},
      {120000, "120000"},
      {123456, "123456"},
      {0.01, "0.01"},
      {0.001, "0.001"},
      {1e-4, "1e-04"},
      {0.00012, "0.00012"},  // as long as 1.2e-04
      {0.000012, "1.2e-05"},
      {1e-7, "1e-07"},
      {1e20, "1e+20"},
      {1e22, "1e+22"},
      {1e30, "1e+30"},
      {1e308, "1e+308"},
      {-1e308, "-1e+308"},
      {1e100, "1e+100"},
      {5e-324, "5e-324"},
      {1152921504606846976.0, "1152921504606846976"},
      {123456789.25, "123456789.25"},
      {1.7976931348623157e308, "1.7976931348623157e+308"},
      {kInfinity, "inf"},
      {-kInfinity, "-inf"},
      {std::numeric_limits<double>::quiet_NaN(), "nan"},
  };
  for (const Row& row : kRows) EXPECT_EQ(ShortestText(row.value), row.text);
}

// True if one of the three numbers with that many digits that are nearest to `value` reads back to
// it. `exponent` receives the exponent of its first digit.
bool ReadsBackWith(int digits, double value, int& exponent) {
  const std::string format = "%." + std::to_string(digits - 1) + "e";
  std::string nearest = Printed(format.c_str(), value);
  const std::size_t e = nearest.find('e');
  exponent = static_cast<int>(std::strtol(nearest.c_str() + e + 1, nullptr, 10));
  nearest.resize(e);
  std::erase(nearest, '.');
  const std::int64_t number = std::strtoll(nearest.c_str(), nullptr, 10);
  const std::string power = "e" + std::to_string(exponent - (digits - 1));
  const std::array candidates = {number, number - 1, number + 1};
  return std::ranges::any_of(candidates, [&](std::int64_t candidate) {
    return std::strtod((std::to_string(candidate) + power).c_str(), nullptr) == value;
  });
}

// The length of the shortest text of a finite number, made of the fewest digits that read back to
// it.
std::size_t ShortestLength(double value) {
  int digits = 1;
  int exponent = 0;
  while (!ReadsBackWith(digits, std::abs(value), exponent)) ++digits;
  const int point = digits > 1 ? 1 : 0;
  const int scientific = digits + point + (std::abs(exponent) < 100 ? 4 : 5);
  const int plain = exponent >= digits - 1 ? exponent + 1
                    : exponent >= 0        ? digits + 1
                                           : digits + 1 - exponent;
  const int length = std::min(plain, scientific) + (std::signbit(value) ? 1 : 0);
  return static_cast<std::size_t>(length);
}

TEST(ShortestText, ReadsBackAndCannotBeShorter) {
  if (kCLibraryErrs) GTEST_SKIP() << kNoJudge;
  for (const double value : ManyDoubles()) {
    const std::string text = ShortestText(value);
    ASSERT_EQ(std::bit_cast<std::uint64_t>(std::strtod(text.c_str(), nullptr)),
              std::bit_cast<std::uint64_t>(value))
        << text;
    ASSERT_EQ(text.size(), ShortestLength(value)) << text;
    ASSERT_EQ(ReadReal(text).value, value) << text;
  }
}

TEST(ShortestText, IsAppended) {
  std::string text = "a,";
  AppendShortest(text, 0.25);
  EXPECT_EQ(text, "a,0.25");
}

}  // namespace
}  // namespace a2l::test
