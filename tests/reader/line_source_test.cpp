// SPDX-License-Identifier: MIT
#include "a2l2json/reader/line_source.h"

#include <cstddef>
#include <ios>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/streams.h"

namespace a2l::test {
namespace {

using namespace std::string_literals;

struct Lines {
  std::vector<std::string> lines;
  bool failed = false;
};

Lines ReadAll(std::istream& in, std::size_t pieceSize = LineSource::kPieceSize) {
  LineSource source(in, pieceSize);
  Lines result;
  for (std::string_view line; source.Next(line);) result.lines.emplace_back(line);
  result.failed = source.Failed();
  std::string_view line;
  EXPECT_FALSE(source.Next(line)) << "there is no line behind the end";
  return result;
}

Lines ReadAll(const std::string& text) {
  std::istringstream in(text);
  return ReadAll(in);
}

TEST(LineSource, EndsLinesAtLineFeeds) {
  struct Row {
    std::string text;
    std::vector<std::string> lines;
  };
  const Row rows[] = {
      {"", {}},
      {"a", {"a"}},
      {"a\n", {"a"}},  // no empty line behind the last line feed
      {"\n", {""}},
      {"\n\n", {"", ""}},
      {"a\nb", {"a", "b"}},
      {"a\n\nb\n", {"a", "", "b"}},
      {"a\r\nb\r\n", {"a\r", "b\r"}},
      {"a\rb\n", {"a\rb"}},
      {"\xEF\xBB\xBF"
       "a\n",
       {"\xEF\xBB\xBF"
        "a"}},
      {"a\0b\n\xFF"s, {"a\0b"s, "\xFF"}},
      {"\x1A\nb", {"\x1A", "b"}},
  };
  for (const Row& row : rows) {
    const Lines result = ReadAll(row.text);
    EXPECT_EQ(result.lines, row.lines) << testing::PrintToString(row.text);
    EXPECT_FALSE(result.failed);
  }
}

// Lines that are shorter or longer than the pieces in which the input is read come out whole, for
// any size of the pieces.
TEST(LineSource, HandsOutLinesOfAnyLength) {
  constexpr std::size_t kLengths[] = {262143, 0,      262144, 262145, 1, 1000000, 131072,
                                      131071, 524288, 3,      700000, 7, 2000003};
  std::string text;
  std::vector<std::string> lines;
  for (const std::size_t length : kLengths) {
    lines.emplace_back(length, static_cast<char>('a' + lines.size()));
    text += lines.back() + '\n';
  }
  EXPECT_EQ(ReadAll(text).lines, lines);
  text.pop_back();
  EXPECT_EQ(ReadAll(text).lines, lines) << "without the last line feed";
}

TEST(LineSource, HandsOutTheSameLinesInPiecesOfAnySize) {
  const std::string text = "one\n\ntwo\r\na line that is longer than a piece\n\n\nend";
  const std::vector<std::string> lines = {"one", "", "two\r", "a line that is longer than a piece",
                                          "",    "", "end"};
  for (std::size_t pieceSize = 1; pieceSize <= text.size() + 1; ++pieceSize) {
    std::istringstream in(text);
    EXPECT_EQ(ReadAll(in, pieceSize).lines, lines) << pieceSize;
  }
}

TEST(LineSource, TellsWhereTheSlashesOfALineStand) {
  struct Row {
    std::string line;
    std::size_t first, last;
  };
  constexpr std::size_t kNone = std::string_view::npos;
  const Row rows[] = {
      {"none", kNone, kNone},
      {"/begin X", 0, 0},
      {"", kNone, kNone},
      {"a / b / c /", 2, 10},
      // Longer than what is looked at in one step, with slashes in its first and in its last part.
      {std::string(70, '.') + "/" + std::string(60, '.') + "/", 70, 131},
      {"/" + std::string(200, '.'), 0, 0},
      {std::string(300, '/'), 0, 299},
      {"x", kNone, kNone},
      {" /end", 1, 1},  // without a line feed
  };
  std::string text;
  for (const Row& row : rows) text += (text.empty() ? "" : "\n") + row.line;
  for (const std::size_t pieceSize : {1U, 7U, 64U, 65U, 1000U}) {
    std::istringstream in(text);
    LineSource source(in, pieceSize);
    for (const Row& row : rows) {
      std::string_view line;
      ASSERT_TRUE(source.Next(line));
      ASSERT_EQ(line, row.line) << pieceSize;
      EXPECT_EQ(source.SlashesOfLine().first, row.first) << row.line << pieceSize;
      EXPECT_EQ(source.SlashesOfLine().last, row.last) << row.line << pieceSize;
    }
  }
}

TEST(LineSource, HandsOutManyShortLines) {
  std::string text;
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < 200000; ++i) {
    lines.push_back(std::to_string(i));
    text += lines.back() + "\n";
  }
  EXPECT_EQ(ReadAll(text).lines, lines);
}

// If a device gives less than requested, it has not ended.
TEST(LineSource, ReadsOnAfterShortReads) {
  DrippingBuffer buffer("first\nsecond line\n\nlast", 3);
  std::istream in(&buffer);
  EXPECT_EQ(ReadAll(in).lines, (std::vector<std::string>{"first", "second line", "", "last"}));
}

TEST(LineSource, DistinguishesAFailureFromTheEnd) {
  const std::vector<std::string> whole = {"abc", "defgh"};
  for (std::size_t good = 0; good <= 10; ++good) {
    SCOPED_TRACE(good);
    FailingBuffer buffer("abc\ndefgh\n", good);
    std::istream in(&buffer);
    const Lines result = ReadAll(in);
    EXPECT_TRUE(result.failed);
    // A part of a line before the failure is not a line.
    ASSERT_LE(result.lines.size(), whole.size());
    for (std::size_t i = 0; i < result.lines.size(); ++i) EXPECT_EQ(result.lines[i], whole[i]);
  }
}

// The lines of a large input that lie well before the failure have been handed out.
TEST(LineSource, HandsOutWhatCameBeforeAFailure) {
  std::string text;
  for (int i = 0; i < 1000000; ++i) text += "line\n";
  FailingBuffer buffer(text, text.size() - 3);
  std::istream in(&buffer);
  const Lines result = ReadAll(in);
  EXPECT_TRUE(result.failed);
  EXPECT_GT(result.lines.size(), 1U);
  EXPECT_LT(result.lines.size(), 1000000U);
  for (const std::string& line : result.lines) ASSERT_EQ(line, "line");
}

}  // namespace
}  // namespace a2l::test
