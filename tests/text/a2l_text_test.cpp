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

TEST(Format, FillsThePlaces) {
  struct Row {
    std::string_view format;
    Arguments arguments;
    std::string_view text;
  };
  const Row rows[] = {
      {"AXIS_PTS {0} {1}", {std::string("a"), std::string("\"b\"")}, "AXIS_PTS a \"b\""},
      {"{0} ", {std::string()}, " "},
      {"ROOT", {}, "ROOT"},
      {"0x{0:X}", {std::uint32_t{0}}, "0x0"},
      {"0x{0:X}", {std::uint32_t{0x1a2b}}, "0x1A2B"},
      {"0x{0:X}", {std::numeric_limits<std::uint32_t>::max()}, "0xFFFFFFFF"},
      {"0x{0:X}", {std::numeric_limits<std::uint64_t>::max()}, "0xFFFFFFFFFFFFFFFF"},
      {"0x{0:X}", {std::int32_t{26}}, "0x1A"},
      {"0x{0:X}", {std::int32_t{-26}}, "0x-1A"},
      {"0x{0:X}", {std::numeric_limits<std::int32_t>::min()}, "0x-80000000"},
      {"{0:d}", {std::numeric_limits<std::uint32_t>::max()}, "4294967295"},
      {"{0:d} {1:d}", {std::int32_t{-7}, std::int32_t{7}}, "-7 7"},
      {"{0} {1} {2:d}", {std::int32_t{-5}, std::int32_t{2}, std::uint32_t{7}}, "-5 2 7"},
      // What an argument holds is no format.
      {"{0}", {std::string("{1} {} %d")}, "{1} {} %d"},
  };
  for (const Row& row : rows) EXPECT_EQ(Format(row.format, row.arguments), row.text) << row.format;
}

TEST(CountPlaces, CountsBraces) {
  EXPECT_EQ(CountPlaces(""), 0U);
  EXPECT_EQ(CountPlaces("ROOT"), 0U);
  EXPECT_EQ(CountPlaces("{0} 0x{1:X} {2:d}"), 3U);
}

// A stream buffer that knows how often it was flushed.
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
