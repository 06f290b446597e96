// SPDX-License-Identifier: MIT
#include "a2l2json/text/digits.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace a2l::test {
namespace {

std::string TextOf(double value) {
  std::array<char, kMostDigits> text{};
  return {text.data(), Write17Digits(value, text.data())};
}

// The result of the C library.
std::string Printed(double value) {
  std::array<char, 64> text{};
  const int size = std::snprintf(text.data(), text.size(), "%.17g", value);
  return {text.data(), static_cast<std::size_t>(size)};
}

TEST(Digits, AreSeventeenWithoutZerosAtTheEnd) {
  struct Row {
    double value;
    std::string_view text;
  };
  // The doubles next to 0.1, 0.3 and 1/3 have more than 17 digits, which are rounded.
  constexpr Row kRows[] = {
      {0, "0"},
      {-0.0, "-0"},
      {1, "1"},
      {-40, "-40"},
      {0.5, "0.5"},
      {-16383.75, "-16383.75"},
      {0.1, "0.10000000000000001"},
      {0.3, "0.29999999999999999"},
      {1.0 / 3, "0.33333333333333331"},
      {0.0001220703125, "0.0001220703125"},
      {0.00006103515625, "6.103515625e-05"},
      {0.0001, "0.0001"},
      {1e-5, "1.0000000000000001e-05"},
      {1e15, "1000000000000000"},
      {1e16, "10000000000000000"},
      {1e17, "1e+17"},
      {123456789012345678.0, "1.2345678901234568e+17"},
      {4503599627370495.5, "4503599627370495.5"},
      {1e22, "1e+22"},
      {1e-300, "1e-300"},
  };
  for (const Row& row : kRows) EXPECT_EQ(TextOf(row.value), row.text);
}

// 2^-1 + 2^-18 has 18 digits and ends in 5, and so has 2^-1 + 3 * 2^-18.
TEST(Digits, RoundAHalfToTheEvenDigit) {
  EXPECT_EQ(TextOf(0.5 + std::ldexp(1, -18)), "0.50000381469726562");
  EXPECT_EQ(TextOf(0.5 + std::ldexp(3, -18)), "0.50001144409179688");
}

TEST(Digits, AreThoseOfTheCLibrary) {
  constexpr auto kMost = std::numeric_limits<double>::max();
  std::mt19937_64 random(20240229);
  const auto check = [](double value) {
    if (std::isfinite(value)) {
      ASSERT_EQ(TextOf(value), Printed(value));
    }
  };
  for (int i = 0; i < 20000; ++i) {
    check(std::bit_cast<double>(random()));  // of any size
    // Numbers of the sizes in files, with all bits used, and with few.
    const int exponent = static_cast<int>(random() % 120) - 60;
    check(std::ldexp(static_cast<double>(random() >> 11U), exponent - 52));
    check(std::ldexp(static_cast<double>(random() % 4096), exponent));
    // Decimal numbers, and their neighbours.
    const double decimal =
        static_cast<double>(random() % 1000000000) / std::pow(10.0, static_cast<double>(i % 12));
    check(decimal);
    check(-std::nextafter(decimal, kMost));
    check(std::nextafter(decimal, 0));
  }
}

TEST(Digits, AroundPowersOfTenAreThoseOfTheCLibrary) {
  for (int exponent = -320; exponent < 309; ++exponent) {
    const double power = std::strtod(("1e" + std::to_string(exponent)).c_str(), nullptr);
    for (std::uint64_t i = 0; i < 32; ++i) {
      const auto near = std::bit_cast<double>(std::bit_cast<std::uint64_t>(power) + i - 16);
      if (std::isfinite(near)) {
        ASSERT_EQ(TextOf(near), Printed(near));
      }
    }
  }
}

}  // namespace
}  // namespace a2l::test
