// SPDX-License-Identifier: MIT
#include "a2l2json/elements/parameter_text.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "a2l2json/text/tokenizer.h"
#include "tests/support/enumerate.h"

namespace a2l::test {
namespace {

using detail::ReadIdentifier;
using detail::ReadText;

TEST(ReadIdentifier, CutsTheTokenTo1024Bytes) {
  const std::string name1024(1024, 'a');
  struct Row {
    std::string text, identifier, rest;
  };
  const Row rows[] = {
      {" a b", "a", " b"},
      {"", "", ""},
      {"  ", "", ""},
      {R"( "a b" c)", R"("a b")", " c"},
      {" a\tb c", "a\tb", " c"},
      {name1024 + " b", name1024, " b"},
      {name1024 + "a b", name1024, " b"},
      {std::string(2000, 'a') + " b", name1024, " b"},
      // Quotes are bytes like others, and so are the parts of a character.
      {'"' + name1024 + "\" b", '"' + std::string(1023, 'a'), " b"},
      {std::string(1023, 'a') + "\xC3\xA4 b", std::string(1023, 'a') + "\xC3", " b"},
  };
  for (const Row& row : rows) {
    TreeStore store;
    TokenReader tokens(row.text);
    EXPECT_EQ(ReadIdentifier(store, tokens), row.identifier);
    EXPECT_EQ(tokens.Rest(), row.rest);
  }
}

TEST(ReadText, UnquotesTheTokenWithoutCuttingIt) {
  const std::string longText(3000, 'a');
  struct Row {
    std::string text, value, rest;
  };
  const Row rows[] = {
      {R"( "a b" c)", "a b", " c"},
      {R"("")", "", ""},
      {R"( "a""b\\\n" c)", "a\"b\\\n", " c"},
      // A quote behind a backslash never closes, even if that backslash is escaped.
      {R"( "a\\" c)", "a\\", ""},
      {'"' + longText + "\" b", longText, " b"},
      // A value without quotes is not a text, but it is taken all the same.
      {" word more words", "", " more words"},
      {"", "", ""},
      {R"("open end)", "open end", ""},
      {R"(")", "", ""},
  };
  for (const Row& row : rows) {
    TreeStore store;
    TokenReader tokens(row.text);
    EXPECT_EQ(ReadText(store, tokens), row.value);
    EXPECT_EQ(tokens.Rest(), row.rest);
  }
}

// Texts without escapes take a shorter way, which must give the same result.
TEST(ReadText, AgreesWithUnquoteOnEverySmallText) {
  TreeStore store;
  for (const std::string& line : AllTexts("\"\\n a", 6)) {
    TokenReader tokens(line);
    std::string_view other = line;
    ASSERT_EQ(ReadText(store, tokens), Unquote(NextToken(other))) << testing::PrintToString(line);
    ASSERT_EQ(tokens.Rest(), other);
  }
}

TEST(ReadText, KeepsNothingOfTheLine) {
  TreeStore store;
  std::string line = R"("plain" "es\"caped" name)";
  TokenReader tokens(line);
  const std::string_view plain = ReadText(store, tokens);
  const std::string_view escaped = ReadText(store, tokens);
  const std::string_view name = ReadIdentifier(store, tokens);
  line.assign(line.size(), '#');
  EXPECT_EQ(plain, "plain");
  EXPECT_EQ(escaped, "es\"caped");
  EXPECT_EQ(name, "name");
}

}  // namespace
}  // namespace a2l::test
