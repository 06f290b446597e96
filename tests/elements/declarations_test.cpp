// SPDX-License-Identifier: MIT
#include "a2l2json/elements/declarations.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/generator/grammar.h"
#include "tests/support/kinds.h"

namespace a2l::test {
namespace {

using detail::Declaration;
using detail::DeclarationOf;

const Declaration& Declared(std::string_view keyword) {
  return *DeclarationOf(KeywordToKind(keyword));
}

// What the program and the tests' own grammar say about a parameter, in neutral words.
std::string Shown(const detail::Parameter& parameter) {
  std::string text;
  switch (parameter.type) {
    case detail::ParameterType::Identifier:
      text = "name";
      break;
    case detail::ParameterType::Text:
    case detail::ParameterType::UnquotedText:
      text = "text";
      break;
    case detail::ParameterType::Unsigned:
      text = "unsigned";
      break;
    case detail::ParameterType::Signed:
      text = "signed";
      break;
    case detail::ParameterType::Unsigned64:
      text = "mask";
      break;
    case detail::ParameterType::Real:
      text = "real";
      break;
    case detail::ParameterType::NamedValue:
      text = "name name";
      break;
    case detail::ParameterType::RawText:
      return "raw ";
    case detail::ParameterType::Word:
      text = "word(";
      std::vector<std::string_view> words;
      for (const auto& word : parameter.words->words) {
        // If a word holds an earlier one, only the earlier one is ever read.
        if (std::ranges::none_of(words, [&](std::string_view earlier) {
              return word.text.find(earlier) != std::string_view::npos;
            })) {
          words.push_back(word.text);
          text += std::string(word.text) + ' ';
        }
      }
      text += "else " + std::string(parameter.words->ToText(parameter.words->fallback)) +
              (parameter.isRequired ? " required)" : ")");
      break;
  }
  if (parameter.isDropped) {
    text = parameter.type == detail::ParameterType::Unsigned ? "checked" : "discarded";
  }
  std::string all;
  for (int i = 0; i < parameter.count; ++i) all += text + ' ';
  return all;
}

std::string Shown(const Parameter& parameter) {
  switch (parameter.type) {
    case ParameterType::Name:
      return "name ";
    case ParameterType::Text:
      return "text ";
    case ParameterType::Unsigned:
    case ParameterType::Address:
      return "unsigned ";
    case ParameterType::Signed:
      return "signed ";
    case ParameterType::Mask:
      return "mask ";
    case ParameterType::Real:
      return "real ";
    case ParameterType::Checked:
      return "checked ";
    case ParameterType::Discarded:
      return "discarded ";
    case ParameterType::Word:
      break;
  }
  std::string text = "word(";
  for (const std::string_view word : parameter.words->words) text += std::string(word) + ' ';
  text += "else " + std::string(parameter.words->fallback);
  return text + (parameter.words->required ? " required) " : ") ");
}

std::string Shown(const Declaration& declaration) {
  std::string text;
  for (const auto& parameter : declaration.parameters) {
    if (parameter.isList) text += "list of ";
    text += Shown(parameter);
  }
  if (declaration.HasRows()) text += "rows of ";
  for (const auto& column : declaration.columns) text += Shown(column);
  return text;
}

std::string Shown(const Keyword& keyword) {
  if (keyword.text == "IF_DATA") return "name raw ";
  if (keyword.isRaw) return "raw ";
  std::string text;
  for (const Parameter& parameter : keyword.parameters) text += Shown(parameter);
  if (!keyword.list.empty()) text += "list of ";
  for (const Parameter& item : keyword.list) text += Shown(item);
  if (!keyword.columns.empty()) text += "rows of ";
  for (const Parameter& column : keyword.columns) text += Shown(column);
  return text;
}

TEST(Declarations, AreThoseOfTheGrammar) {
  for (const Keyword& keyword : Grammar()) {
    SCOPED_TRACE(keyword.text);
    const Declaration& declaration = Declared(keyword.text);
    EXPECT_EQ(Shown(declaration), Shown(keyword));
    EXPECT_EQ(declaration.KeepsRawText(), keyword.isRaw);
    EXPECT_EQ(declaration.IsOpenList(), keyword.isRaw || !keyword.list.empty());
    if (!declaration.IsOpenList()) {
      EXPECT_EQ(declaration.paramCount, keyword.parameters.size());
    }
    EXPECT_TRUE(std::ranges::count(declaration.kinds, KeywordToKind(keyword.text)) == 1);
    if (!keyword.columns.empty()) {
      EXPECT_EQ(declaration.rowCount, keyword.parameters.size() - 1);
    }
  }
}

TEST(Declarations, TellTheChildren) {
  for (const Keyword& keyword : Grammar()) {
    const Declaration& declaration = Declared(keyword.text);
    EXPECT_TRUE(declaration.accepts.Contains(KIND_UNKNOWN)) << keyword.text;
    for (const NumberedKeyword& child : AllKeywords()) {
      // A file cannot hold an ENCODING, although two blocks would accept one.
      if (child.keyword == "ENCODING") continue;
      const bool expected = keyword.children.empty()
                                ? child.keyword == "PROJECT" || child.keyword == "A2ML_VERSION" ||
                                      child.keyword == "ASAP2_VERSION"
                                : keyword.Accepts(child.keyword);
      EXPECT_EQ(declaration.accepts.Contains(KeywordToKind(child.keyword)), expected)
          << keyword.text << " " << child.keyword;
    }
  }
  EXPECT_TRUE(Declared("CHARACTERISTIC").accepts.Contains(ElementKind::ENCODING));
  EXPECT_TRUE(Declared("TYPEDEF_CHARACTERISTIC").accepts.Contains(ElementKind::ENCODING));
  EXPECT_FALSE(Declared("MEASUREMENT").accepts.Contains(ElementKind::ENCODING));
}

TEST(Declarations, TellWhatIsSpecial) {
  EXPECT_EQ(Declared("CALIBRATION_HANDLE").parameters[0].childInList,
            ElementKind::CALIBRATION_HANDLE_TEXT);
  EXPECT_EQ(Declared("MATRIX_DIM").parameters[0].childInList, KIND_ROOT);
  EXPECT_EQ(Declared("TRANSFORMER").parameters[1].type, detail::ParameterType::UnquotedText);
  EXPECT_EQ(Declared("MODULE").parameters[1].type, detail::ParameterType::Text);
  EXPECT_EQ(Declared("MEMORY_LAYOUT").parameters.back().count, 5U);
  EXPECT_EQ(Declared("MODEL_LINK").revision, kRevision171);
  EXPECT_EQ(Declared("MODULE").revision, kRevision160);
  EXPECT_EQ(Declared("RIP_ADDR_W").kinds.size(), 6U);
  EXPECT_EQ(&Declared("RIP_ADDR_W"), &Declared("RIP_ADDR_5"));
}

TEST(Declarations, AreThereForTheRootAndUnknownBlocks) {
  const Declaration* root = DeclarationOf(KIND_ROOT);
  ASSERT_NE(root, nullptr);
  EXPECT_TRUE(root->parameters.empty());
  EXPECT_EQ(root->paramCount, 0U);
  EXPECT_TRUE(root->accepts.Contains(ElementKind::PROJECT));
  EXPECT_FALSE(root->accepts.Contains(ElementKind::MODULE));
  const Declaration* unknown = DeclarationOf(KIND_UNKNOWN);
  ASSERT_NE(unknown, nullptr);
  EXPECT_TRUE(unknown->KeepsRawText());
  EXPECT_EQ(DeclarationOf(ElementKind::ENCODING), nullptr);
  EXPECT_EQ(DeclarationOf(static_cast<ElementKind>(21)), nullptr);
  EXPECT_EQ(DeclarationOf(static_cast<ElementKind>(-1)), nullptr);
}

}  // namespace
}  // namespace a2l::test
