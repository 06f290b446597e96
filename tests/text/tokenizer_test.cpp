// SPDX-License-Identifier: MIT
#include "a2l2json/text/tokenizer.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/enumerate.h"
#include "tests/support/padded.h"

namespace a2l::test {
namespace {

using namespace std::string_view_literals;

// All characters that matter to tokens, and one letter for all others.
constexpr std::string_view kAlphabet = " \t\r\n\"\\a";

TEST(Trim, TakesBlankTabLineFeedAndCarriageReturnOffBothEnds) {
  struct Row {
    std::string_view text, trimmed;
  };
  constexpr Row kRows[] = {
      {"", ""},
      {" \t\n\r", ""},
      {"a", "a"},
      {" a b ", "a b"},
      {"\r\n\t a\t\r\n b \n\r\t ", "a\t\r\n b"},
      {"\va\f", "\va\f"},  // other white space stays
      {" \0 "sv, "\0"sv},
      {"\xA0", "\xA0"},
  };
  for (const Row& row : kRows)
    EXPECT_EQ(Trim(row.text), row.trimmed) << "text '" << row.text << "'";
}

TEST(NextToken, CutsTheFirstTokenAndLeavesTheRestAsItStands) {
  struct Row {
    std::string_view text, token, rest;
  };
  constexpr Row kRows[] = {
      {"", "", ""},
      {" \t\r\n", "", ""},
      {"a b", "a", " b"},
      {" b", "b", ""},
      {"  a  b  ", "a", "  b"},
      // A tab does not separate tokens, but it is not part of the end of a token either.
      {"WORD\t1", "WORD\t1", ""},
      {"a\tb\tc d", "a\tb\tc", " d"},
      {"a\t b", "a", " b"},
      {"\ta\r b", "a", " b"},
      {"a\nb c", "a\nb", " c"},
      // Quoted texts are one token each, quotes included.
      {R"("x y" z)", R"("x y")", " z"},
      {R"(" x ")", R"(" x ")", ""},
      {R"("")", R"("")", ""},
      {R"("" a)", R"("")", " a"},
      {"\"a\tb\" c", "\"a\tb\"", " c"},
      // A doubled quote and a quote behind a backslash do not close.
      {R"("a""b" c)", R"("a""b")", " c"},
      {R"("a"" b" c)", R"("a"" b")", " c"},
      {R"("""" a)", R"("""")", " a"},
      {R"("a \" b" c)", R"("a \" b")", " c"},
      {R"("say \"hi\"" x)", R"("say \"hi\"")", " x"},
      {R"("\"" a)", R"("\"")", " a"},
      // This holds for anything before that backslash, including another backslash.
      {R"("a\\" b" c)", R"("a\\" b")", " c"},
      // Behind a closing quote comes the next token, with or without a blank between.
      {R"("a"b c)", R"("a")", "b c"},
      {R"("a"bc"d")", R"("a")", R"(bc"d")"},
      // A quote inside a plain token does not begin a quoted text.
      {R"(a"b c")", R"(a"b)", R"( c")"},
      {R"(\"a b)", R"(\"a)", " b"},
      // A quoted text that is not closed takes the whole rest.
      {R"("abc def)", R"("abc def)", ""},
      {"\"abc def \t\r", "\"abc def", ""},
      {R"(""" a)", R"(""" a)", ""},
      {R"("a\" b)", R"("a\" b)", ""},
      {R"(")", R"(")", ""},
      {"\xE4\xFF\x01 b", "\xE4\xFF\x01", " b"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.text);
    std::string_view text = row.text;
    EXPECT_EQ(NextToken(text), row.token);
    EXPECT_EQ(text, row.rest);
    const Padded padded(row.text);
    text = padded.View();
    EXPECT_EQ(NextPaddedToken(text), row.token);
    EXPECT_EQ(text, row.rest);
  }
}

TEST(NextToken, TakesOneTokenAfterTheOther) {
  std::string_view text = "a b";
  EXPECT_EQ(NextToken(text), "a");
  EXPECT_EQ(text, " b");
  EXPECT_EQ(NextToken(text), "b");
  EXPECT_EQ(NextToken(text), "");
  EXPECT_EQ(text, "");
}

TEST(CountTokens, CountsWhatNextTokenGives) {
  struct Row {
    std::string_view text;
    std::size_t count;
  };
  constexpr Row kRows[] = {
      {"", 0},
      {"   ", 0},
      {"a", 1},
      {" a  b ", 2},
      {"WORD\t1", 1},
      {"a \t b", 2},  // a tab between blanks is white space
      {"a \r", 1},    // and so is the end of a line in a CRLF file
      {"1 2\r\n3 4\r", 3},
      {R"("a b" c "d")", 3},
      {R"("a"b)", 2},
      {R"("a""b")", 1},
      {R"("a" "b")", 2},
      {R"("a"""b)", 2},  // the third quote closes
      {R"("a""b)", 0},   // the text goes on behind the doubled quote, and is never closed
      {R"(a b "c d)", 2},
      {R"("a" "b c" "d e)", 2},
      {R"(a "b\" c)", 1},
      {R"(a"b c")", 2},
  };
  for (const Row& row : kRows) EXPECT_EQ(CountTokens(row.text), row.count) << row.text;
}

// True for a token that NextToken had to end although its quote was not closed. The text behind the
// opening quote then consists only of single bytes, backslash pairs and doubled quotes.
bool IsUnclosed(std::string_view token) {
  if (!token.starts_with('"')) return false;
  for (std::size_t i = 1; i < token.size(); ++i) {
    if (token[i] != '"' || token[i - 1] == '\\') continue;
    if (i + 1 == token.size() || token[i + 1] != '"') return false;
    ++i;
  }
  return true;
}

// The reader waits for as many tokens as an element takes. If the two functions disagreed, it would
// wait for a token that is there already, or hand over too few.
TEST(CountTokens, AgreesWithNextTokenOnEverySmallText) {
  for (const std::string& text : AllTexts(kAlphabet, 6)) {
    std::size_t taken = 0;
    std::string_view rest = text;
    for (std::string_view token = NextToken(rest); !token.empty(); token = NextToken(rest)) {
      if (IsUnclosed(token)) {
        ASSERT_EQ(rest, "") << testing::PrintToString(text);
        break;
      }
      ++taken;
    }
    ASSERT_EQ(CountTokens(text), taken) << testing::PrintToString(text);
  }
}

// The tokens of `text`, taken one after the other.
std::vector<std::string> TokensOf(std::string_view text, std::size_t count) {
  std::vector<std::string> tokens;
  for (std::size_t i = 0; i < count; ++i) tokens.emplace_back(NextToken(text));
  return tokens;
}

// Checks what a finder hands out of `text` when `needed` tokens are looked for, against CountTokens
// and NextToken.
void ExpectFound(TokenFinder& finder, std::string_view text, std::size_t needed) {
  const Padded padded(text);
  ASSERT_EQ(finder.Find(padded.View(), needed), CountTokens(text) >= needed)
      << testing::PrintToString(text) << " for " << needed;
  if (CountTokens(text) < needed) return;
  TokenReader reader = finder.Tokens(padded.View());
  std::vector<std::string> tokens;
  for (std::size_t i = 0; i < needed; ++i) tokens.emplace_back(reader.Next());
  ASSERT_EQ(tokens, TokensOf(text, needed)) << testing::PrintToString(text);
}

// If the rows of a large table are collected line by line, what is found must be the same.
TEST(TokenFinder, FindsInPiecesWhatIsInTheWhole) {
  const std::vector<std::string> pieces = AllTexts(kAlphabet, 3);
  for (const std::string& first : pieces) {
    for (const std::string& second : pieces) {
      for (std::size_t needed = 1; needed <= 3; ++needed) {
        TokenFinder finder;
        finder.Reset();
        ExpectFound(finder, first, needed);
        ExpectFound(finder, first + ' ' + second, needed);
      }
    }
  }
}

TEST(TokenFinder, FindsInManyPieces) {
  const std::vector<std::string> pieces = AllTexts(kAlphabet, 2);
  TokenFinder finder;
  for (const std::string& first : pieces) {
    for (const std::string& second : pieces) {
      for (const std::string& third : pieces) {
        finder.Reset();
        std::string text;
        for (const std::string* piece : {&first, &second, &third}) {
          text += ' ';
          text += *piece;
          ExpectFound(finder, text, 4);
        }
      }
    }
  }
}

TEST(TokenFinder, StartsAnewAfterReset) {
  TokenFinder finder;
  const Padded first(R"(a b "c)");
  ASSERT_FALSE(finder.Find(first.View(), 3));
  finder.Reset();
  const Padded second("d");
  EXPECT_FALSE(finder.Find(second.View(), 2));
  EXPECT_EQ(finder.Tokens(second.View()).Next(), "d");
}

TEST(TokenFinder, FindsMoreTokensThanItKeeps) {
  std::string text;
  for (std::size_t i = 0; i < 3 * TokenFinder::kMostKept; ++i) text += " t" + std::to_string(i);
  for (std::size_t needed = 0; needed <= 3 * TokenFinder::kMostKept + 1; ++needed) {
    TokenFinder finder;
    ExpectFound(finder, text, needed);
  }
}

TEST(TokenReader, LeavesWhatItHasNotHandedOut) {
  const Padded text(R"(  a  "b c"  d e )");
  TokenFinder finder;
  ASSERT_TRUE(finder.Find(text.View(), 3));
  TokenReader reader = finder.Tokens(text.View());
  EXPECT_EQ(reader.Rest(), text.View());
  EXPECT_EQ(reader.Next(), "a");
  EXPECT_EQ(reader.Rest(), R"(  "b c"  d e )");
  EXPECT_EQ(reader.Next(), R"("b c")");
  EXPECT_EQ(reader.Next(), "d");
  EXPECT_EQ(reader.Rest(), " e ");
  EXPECT_EQ(reader.Next(), "e");
  EXPECT_EQ(reader.Next(), "");
  EXPECT_EQ(reader.Rest(), "");
}

TEST(FindClosingQuote, GivesThePositionOrNone) {
  EXPECT_EQ(FindClosingQuote(R"("abc" "d")", 1), 4U);
  EXPECT_EQ(FindClosingQuote(R"("a""b")", 1), 5U);
  EXPECT_EQ(FindClosingQuote(R"("a\"b")", 1), 5U);
  EXPECT_EQ(FindClosingQuote(R"("")", 1), 1U);
  EXPECT_EQ(FindClosingQuote(R"("abc)", 1), std::string_view::npos);
  EXPECT_EQ(FindClosingQuote(R"("a\")", 1), std::string_view::npos);
}

TEST(Unquote, GivesTheContentsWithEscapesReplaced) {
  struct Row {
    std::string_view token, text;
  };
  constexpr Row kRows[] = {
      {R"("")", ""},
      {R"("abc")", "abc"},
      {R"(" a b ")", " a b "},
      {R"("a""b")", R"(a"b)"},
      {R"("""")", R"(")"},
      {R"("a\"b")", R"(a"b)"},
      {R"("\\")", R"(\)"},
      {R"("\'")", "'"},
      {R"("a\nb")", "a\nb"},
      {R"("a\rb")", "a\rb"},
      {R"("a\tb")", "a\tb"},
      {R"("C:\path")", R"(C:\path)"},  // a backslash before another byte is no escape
      {R"("\x41\0")", R"(\x41\0)"},
      {R"("\\n")", R"(\n)"},  // the backslash pair is taken first, as a whole
      {R"("\\\\")", R"(\\)"},
      {R"("\\""b")", R"(\"b)"},
      {R"("\"""")", R"("")"},
      // The first quote that is not part of an escape ends the text.
      {R"("a" b)", "a"},
      {R"("a\\" b")", R"(a\)"},
      {R"("a"""b")", R"(a")"},
      // Without a closing quote the text goes to the end.
      {R"(")", ""},
      {R"("abc)", "abc"},
      {R"("abc\)", R"(abc\)"},
      {R"("abc\")", R"(abc")"},
      {R"(""")", R"(")"},
      {"\"a\tb\nc\"", "a\tb\nc"},
      {"\"\0\xFF\""sv, "\0\xFF"sv},
      // A token that does not begin with a quote has no contents.
      {"", ""},
      {"abc", ""},
      {R"( "a")", ""},
      {R"(a"b")", ""},
      {R"('a')", ""},
  };
  for (const Row& row : kRows) EXPECT_EQ(Unquote(row.token), row.text) << row.token;
}

TEST(Unquote, IntoABufferTakesNoMoreRoomThanTheToken) {
  for (const std::string& text : AllTexts("\"\\na ", 5)) {
    const std::string token = '"' + text;
    std::string buffer(token.size() + 1, '#');
    const std::size_t size = UnquoteInto(token, buffer.data());
    ASSERT_LT(size, token.size()) << token;
    ASSERT_EQ(buffer.substr(size), std::string(buffer.size() - size, '#')) << token;
    ASSERT_EQ(buffer.substr(0, size), Unquote(token)) << token;
  }
}

}  // namespace
}  // namespace a2l::test
