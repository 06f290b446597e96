// SPDX-License-Identifier: MIT
#include "a2l2json/text/a2l_text.h"

#include <cstdint>
#include <limits>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "a2l2json/text/tokenizer.h"
#include "tests/support/enumerate.h"

namespace a2l::test {
namespace {

TEST(Quote, PutsABackslashBeforeSixBytes) {
  struct Row {
    std::string_view text, quoted;
  };
  constexpr Row kRows[] = {
      {"", R"("")"},
      {"abc", R"("abc")"},
      {R"(a"b)", R"("a\"b")"},
      {R"(C:\path)", R"("C:\\path")"},
      {"don't", R"("don\'t")"},
      {"a\nb\rc\td", R"("a\nb\rc\td")"},
      {R"(\n)", R"("\\n")"},
      {R"(\")", R"("\\\"")"},
      {" / {0} %s ", R"(" / {0} %s ")"},
  };
  for (const Row& row : kRows) EXPECT_EQ(Quote(row.text), row.quoted);
}

TEST(AppendQuoted, LeavesWhatStandsBefore) {
  std::string line = "a\" ";
  AppendQuoted(line, "b\"");
  EXPECT_EQ(line, R"(a" "b\"")");
}

TEST(Quote, LeavesEveryOtherByteAsItIs) {
  constexpr std::string_view kEscaped = "\\\"'\n\r\t";
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text = std::string("x") + static_cast<char>(byte) + "y";
    if (kEscaped.find(static_cast<char>(byte)) == std::string_view::npos) {
      EXPECT_EQ(Quote(text), '"' + text + '"') << byte;
    } else {
      EXPECT_EQ(Quote(text).size(), 6U) << byte;
    }
  }
}

TEST(Quote, IsUndoneByUnquote) {
  for (const std::string& text : AllTexts("\"\\'\n\r\tna ", 4)) {
    ASSERT_EQ(Unquote(Quote(text)), text);
  }
}

template <class Number>
std::string Hex(Number number) {
  std::string line = "a ";
  AppendHex(line, number);
  return line;
}

TEST(AppendHex, WritesUpperCaseDigitsBehindTheSign) {
  EXPECT_EQ(Hex(std::uint32_t{0}), "a 0x0");
  EXPECT_EQ(Hex(std::uint32_t{9}), "a 0x9");
  EXPECT_EQ(Hex(std::uint32_t{0x10}), "a 0x10");
  EXPECT_EQ(Hex(std::uint32_t{0x1a2b}), "a 0x1A2B");
  EXPECT_EQ(Hex(std::numeric_limits<std::uint32_t>::max()), "a 0xFFFFFFFF");
  EXPECT_EQ(Hex(std::uint64_t{0x123456789}), "a 0x123456789");
  EXPECT_EQ(Hex(std::numeric_limits<std::uint64_t>::max()), "a 0xFFFFFFFFFFFFFFFF");
  EXPECT_EQ(Hex(std::int32_t{0}), "a 0x0");
  EXPECT_EQ(Hex(std::int32_t{26}), "a 0x1A");
  EXPECT_EQ(Hex(std::int32_t{-26}), "a 0x-1A");
  EXPECT_EQ(Hex(std::numeric_limits<std::int32_t>::min()), "a 0x-80000000");
}

// A stream buffer that counts how often it was flushed.
class CountingBuffer : public std::stringbuf {
 public:
  int flushes = 0;

 protected:
  int sync() override {
    ++flushes;
    return std::stringbuf::sync();
  }
};

TEST(WriteLine, IndentsAndFlushes) {
  CountingBuffer buffer;
  std::ostream out(&buffer);
  WriteLine(out, 0, "a");
  EXPECT_EQ(buffer.str(), "a\n");
  EXPECT_EQ(buffer.flushes, 1);
  WriteLine(out, 3, "b ");
  WriteLine(out, 1, "");
  EXPECT_EQ(buffer.str(), "a\n      b \n  \n");
  EXPECT_EQ(buffer.flushes, 3);
}

}  // namespace
}  // namespace a2l::test
