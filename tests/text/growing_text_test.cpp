// SPDX-License-Identifier: MIT
#include "a2l2json/text/growing_text.h"

#include <cstddef>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace a2l {
namespace {

TEST(GrowingText, IsEmptyAtFirst) { EXPECT_EQ(GrowingText().View(), ""); }

TEST(GrowingText, HoldsWhatWasAppended) {
  GrowingText text;
  std::string expected;
  for (std::size_t size = 0; size < 100; ++size) {
    const std::string line(size, static_cast<char>('a' + size % 26));
    text.Append('\n', line);
    expected += '\n' + line;
    ASSERT_EQ(text.View(), expected);
  }
}

TEST(GrowingText, BeginsAnewWithTheTextThatIsSet) {
  GrowingText text;
  for (const std::string_view line : {"a longer text than the one that comes next", "", "short"}) {
    text.Set(line);
    EXPECT_EQ(text.View(), line);
    text.Append(' ', "x");
    EXPECT_EQ(text.View(), std::string(line) + " x");
  }
}

}  // namespace
}  // namespace a2l
