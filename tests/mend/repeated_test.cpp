// SPDX-License-Identifier: MIT
//
// What the document has room for once, and what as often as the file has it: held against what the
// converter makes of every keyword that is given twice, in every block that may hold it.
#include "a2l2json/mend/repeated.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/generator/generator.h"
#include "tests/generator/grammar.h"
#include "tests/mend/mending.h"

namespace a2l::test {
namespace {

// A value that is another one for another `which`.
std::string ValueOf(const Parameter& parameter, std::size_t which) {
  const std::string number = std::to_string(which + 1);
  switch (parameter.type) {
    case ParameterType::Name:
    case ParameterType::Discarded:
      return "n" + number;
    case ParameterType::Text:
      return "\"t" + number + "\"";
    case ParameterType::Word: {
      const auto& words = parameter.words->words;
      return std::string(words[which % words.size()]);
    }
    default:
      return number;
  }
}

std::string Head(const Keyword& keyword, std::size_t which) {
  std::string line = (keyword.isBlock ? "/begin " : "") + std::string(keyword.text);
  for (const Parameter& parameter : keyword.parameters) line += " " + ValueOf(parameter, which);
  for (const Parameter& parameter : keyword.list) line += " " + ValueOf(parameter, which);
  if (!keyword.columns.empty()) {
    for (std::size_t row = 0; row <= which; ++row) {
      for (const Parameter& column : keyword.columns) line += " " + ValueOf(column, which);
    }
  }
  if (keyword.isRaw) line += " n" + std::to_string(which) + " 1";
  return line + "\n";
}

std::string Whole(const Keyword& keyword, std::size_t which) {
  return Head(keyword, which) +
         (keyword.isBlock ? "/end " + std::string(keyword.text) + "\n" : std::string());
}

// What opens and closes the blocks around one of a keyword, on the shortest way to it.
struct Way {
  std::string open;
  std::string close;
};
std::map<std::string_view, Way> WaysToBlocks() {
  std::map<std::string_view, Way> ways;
  std::vector<std::string_view> blocks = {"PROJECT"};
  ways["PROJECT"] = {};
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    const Keyword& keyword = Find(blocks[i]);
    const Way inside = {ways[blocks[i]].open + Head(keyword, 0),
                        "/end " + std::string(keyword.text) + "\n" + ways[blocks[i]].close};
    for (const std::string_view child : keyword.children) {
      if (child == "PROJECT" || !Find(child).isBlock || ways.contains(child)) continue;
      ways[child] = inside;
      blocks.push_back(child);
    }
  }
  return ways;
}

TEST(MendRepeated, IsWhatTheDocumentHasRoomFor) {
  for (const auto& [text, way] : WaysToBlocks()) {
    const Keyword& parent = Find(text);
    const std::string begin = way.open + Head(parent, 0);
    const std::string end = "/end " + std::string(text) + "\n" + way.close;
    if (parent.isRaw) continue;
    for (const std::string_view childText : parent.children) {
      const Keyword& child = Find(childText);
      const std::string first = Whole(child, 0);
      const auto none = DocumentOf(begin + end);
      const auto one = DocumentOf(begin + first + end);
      const auto both = DocumentOf(begin + first + Whole(child, 1) + end);
      ASSERT_TRUE(none && one && both) << text << " " << childText;
      if (*none == *one) continue;  // the document does not have it at all
      const auto kind = static_cast<ElementKind>(NumberOf(childText));
      EXPECT_EQ(mending::IsRepeated(kind), *one != *both) << text << " " << childText;
    }
  }
}

}  // namespace
}  // namespace a2l::test
