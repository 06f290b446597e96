// SPDX-License-Identifier: MIT
#include "a2l2json/reader/comments.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace a2l::test {
namespace {

struct Result {
  bool ok;
  std::string text;
  std::size_t taken;  // physical lines, including the first
};

// Removes the comments of the first line. Each further line comes in the same buffer, and replaces
// the line before it.
Result Remove(CommentRemover& remover, const std::vector<std::string>& lines) {
  std::string buffer(256, '\0');
  std::size_t taken = 0;
  const CommentRemover::NextLine next = [&](std::string_view& line) {
    if (taken == lines.size()) return false;
    std::ranges::fill(buffer, '"');
    std::ranges::copy(lines[taken], buffer.begin());
    line = std::string_view(buffer).substr(0, lines[taken].size());
    ++taken;
    return true;
  };
  std::string_view line;
  next(line);
  const bool ok = remover.Remove(line, next);
  return {ok, ok ? std::string(line) : "", taken};
}

TEST(CommentRemover, RemovesCommentsOfOneLine) {
  struct Row {
    std::string text, left;
  };
  const Row rows[] = {
      {"", ""},
      {"a b", "a b"},
      {"a // b", "a "},
      {"// a", ""},
      {"//", ""},
      {"a//", "a"},
      {"a\r", "a\r"},
      {"a /* b */ c", "a  c"},
      {"a/**/b", "ab"},
      {"a /* b */ c /* d */ e", "a  c  e"},
      {"a /* b */", "a "},
      {"a /* b // c */ d", "a  d"},
      {"a // b /* c", "a "},
      {"a /* b */ c // d", "a  c "},
      {"a /***/ b", "a  b"},
      // The star that opens a comment is not the star that closes it.
      {"/*/ x */y", "y"},
      // A slash before anything else is text, and so is an end without a beginning.
      {"a/", "a/"},
      {"/", "/"},
      {"a / b", "a / b"},
      {"km/h m/s", "km/h m/s"},
      {"/begin X", "/begin X"},
      {"a */ b", "a */ b"},
      {"/ //x", "/ "},
      // Behind a comment the scan goes on at the place where the comment began, not before it.
      {"a /**// b", "a / b"},
      {"a /**//* b */c", "a c"},
      {"a /**/// b", "a "},
      {"a*/**/b", "a*b"},
      // Quoted texts keep what looks like a comment.
      {R"("http://x" 1)", R"("http://x" 1)"},
      {R"("a /* b */ c" 1)", R"("a /* b */ c" 1)"},
      {R"("x" // y)", R"("x" )"},
      {R"("x"/* y */"z")", R"("x""z")"},
      {R"("a""//b" //c)", R"("a""//b" )"},
      {R"("a\"//b" //c)", R"("a\"//b" )"},
      {R"("a\\" // b" //c)", R"("a\\" // b" )"},
      {R"("" //c)", R"("" )"},
      // A quote that is joined to the text before it still begins another text.
      {R"("a"/**/"b // c")", R"("a""b // c")"},
      // If a text is not closed on its line, it hides the rest of the line.
      {R"("x // y)", R"("x // y)"},
      {R"("x /* y)", R"("x /* y)"},
      {R"(/* a */ "x // y)", R"( "x // y)"},
      // A quote inside a comment has no meaning.
      {R"(/* " */ a // b)", " a "},
      {R"(a // ")", "a "},
      {R"(don't // x)", "don't "},
  };
  CommentRemover remover;
  for (const Row& row : rows) {
    const Result result = Remove(remover, {row.text, "*/ next"});
    EXPECT_TRUE(result.ok) << row.text;
    EXPECT_EQ(result.text, row.left) << row.text;
    EXPECT_EQ(result.taken, 1U) << row.text;
  }
}

TEST(CommentRemover, FollowsBlockCommentsOverLines) {
  struct Row {
    std::vector<std::string> lines;
    std::string left;
    std::size_t taken;
  };
  const Row rows[] = {
      {{"a /* x", "y", "z */ b", "c"}, "a  b", 3},
      {{"a /*", "*/ b"}, "a  b", 2},
      {{"/*", "", "*/"}, "", 3},
      {{"a /* b", "c */ d /* e", "f */ g", "h"}, "a  d  g", 3},
      {{"a /* b", "c */ d // e /*", "f"}, "a  d ", 2},
      {{"a /* b\r", "c */ d\r"}, "a  d\r", 2},
      // Nothing stands between joined lines, so a star and a slash come together.
      {{"a /* x *", "/ b"}, "a  b", 2},
      {{"a /* x *", "", "/ b"}, "a  b", 3},
      {{"a /* x *\r", "/ b */ c"}, "a  c", 2},
      {{"/*", "/ */ a"}, " a", 2},
      {{"a/*", "*/b"}, "ab", 2},
      // Line comments and quotes inside a block comment do not count, on its further lines
      // either.
      {{"a /* b", "// c */ d"}, "a  d", 2},
      {{"a /* \"b", "c\" */ d"}, "a  d", 2},
      {{R"("a" /* b)", R"(*/ "c // d")"}, R"("a"  "c // d")", 2},
      {{R"(a /* b)", R"(*/ "c // d)", "e"}, R"(a  "c // d)", 2},
  };
  CommentRemover remover;
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.lines));
    const Result result = Remove(remover, row.lines);
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.text, row.left);
    EXPECT_EQ(result.taken, row.taken);
  }
}

TEST(CommentRemover, FailsIfTheInputEndsInsideAComment) {
  const std::vector<std::string> inputs[] = {
      {"/*"},
      {"a /* b"},
      {"/*/"},
      {"a /* b", "c"},
      {"a /* b */ c /* d", "e *", "", "* /"},
      {R"("a" /* ")", R"(")"},
  };
  CommentRemover remover;
  for (const std::vector<std::string>& lines : inputs) {
    const Result result = Remove(remover, lines);
    EXPECT_FALSE(result.ok) << testing::PrintToString(lines);
    EXPECT_EQ(result.taken, lines.size()) << testing::PrintToString(lines);
  }
}

TEST(CommentRemover, StartsAnewOnEveryLine) {
  CommentRemover remover;
  EXPECT_FALSE(Remove(remover, {"a /* b"}).ok);
  EXPECT_EQ(Remove(remover, {"c /* d */ e"}).text, "c  e");
  EXPECT_EQ(Remove(remover, {"f // g"}).text, "f ");
  EXPECT_EQ(Remove(remover, {"h"}).text, "h");
}

}  // namespace
}  // namespace a2l::test
