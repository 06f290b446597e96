// SPDX-License-Identifier: MIT
#include "a2l2json/export/forms.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace a2l::test {
namespace {

TEST(HexText, HasUpperCaseDigitsWithoutLeadingZeros) {
  struct Row {
    std::uint32_t value;
    std::string_view text;
  };
  constexpr Row kRows[] = {
      {0, "0x0"},
      {1, "0x1"},
      {15, "0xF"},
      {16, "0x10"},
      {0x1A2B, "0x1A2B"},
      {0x10000000, "0x10000000"},
      {0xFFFFFFFF, "0xFFFFFFFF"},
      {0xDEADBEEF, "0xDEADBEEF"},
  };
  for (const Row& row : kRows) EXPECT_EQ(HexText(row.value).View(), row.text);
}

template <class Item>
std::string Joined(const std::vector<Item>& items) {
  std::string text = "before:";
  AppendJoined(text, items);
  return text;
}

TEST(AppendJoined, PutsCommasBetweenItems) {
  using Texts = std::vector<std::string_view>;
  EXPECT_EQ(Joined(Texts{}), "before:");
  EXPECT_EQ(Joined(Texts{"a"}), "before:a");
  EXPECT_EQ(Joined(Texts{"a", "b,c", "d"}), "before:a,b,c,d");
  EXPECT_EQ(Joined(Texts{"", ""}), "before:,");
  EXPECT_EQ(Joined(std::vector<double>{1, 0.5, 1e-7, -0.0, 1e5}), "before:1,0.5,1e-07,-0,1e+05");
  EXPECT_EQ(Joined(std::vector<std::uint32_t>{0, 4294967295}), "before:0,4294967295");
  EXPECT_EQ(Joined(std::vector<std::int32_t>{-1, 26}), "before:-1,26");
}

}  // namespace
}  // namespace a2l::test
