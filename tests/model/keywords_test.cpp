// SPDX-License-Identifier: MIT
#include "a2l2json/model/keywords.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"
#include "tests/support/padded.h"

#include "a2l2json/names_begin.h"

namespace a2l::test {
namespace {

TEST(Keywords, HaveTheNumbersThatOthersRelyOn) {
  std::size_t count = 0;
  for (const KeywordGroup& group : kKeywordGroups) {
    std::int32_t number = group.first;
    for (const std::string& keyword : Words(group.keywords)) {
      const auto kind = static_cast<ElementKind>(number);
      EXPECT_EQ(static_cast<std::int32_t>(KeywordToKind(keyword)), number) << keyword;
      EXPECT_EQ(PaddedKeywordToKind(Padded(keyword).View()), kind) << keyword;
      EXPECT_EQ(PaddedKeywordToKind(Padded(keyword + 'X').View()), KIND_UNKNOWN) << keyword;
      EXPECT_EQ(KindToKeyword(kind), keyword) << number;
      ++number;
      ++count;
    }
  }
  EXPECT_EQ(kKeywordCount, count)
      << "a new keyword goes to the end of its group in tests/support/kinds.h, too";
}

TEST(Keywords, HaveNamesInCode) {
  EXPECT_EQ(static_cast<std::int32_t>(KIND_ROOT), 0);
  EXPECT_EQ(static_cast<std::int32_t>(ElementKind::KIND_ROOT), 0);
  EXPECT_EQ(static_cast<std::int32_t>(KIND_UNKNOWN), 25535);
  EXPECT_EQ(static_cast<std::int32_t>(ElementKind::AXIS_DESCR), 1);
  EXPECT_EQ(static_cast<std::int32_t>(ElementKind::IF_DATA), 100);
  EXPECT_EQ(static_cast<std::int32_t>(ElementKind::BYTE_ORDER), 1028);
  EXPECT_EQ(static_cast<std::int32_t>(ElementKind::ROOT), 1115);  // a property, not the root
  EXPECT_EQ(static_cast<std::int32_t>(ElementKind::VERSION), 1143);
}

TEST(KeywordToKind, TakesTheWholeTextExactly) {
  for (const NumberedKeyword& entry : AllKeywords()) {
    const std::string& keyword = entry.keyword;
    std::string lowerCase;
    for (const char c : keyword)
      lowerCase += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    std::string oneLower = keyword;
    oneLower.back() = lowerCase.back();
    for (const std::string& text :
         {lowerCase, ' ' + keyword, keyword + ' ', keyword + '\t', keyword + '\r', keyword + "_",
          '"' + keyword + '"', keyword + std::string(1, '\0'), "X" + keyword, keyword + keyword}) {
      EXPECT_EQ(KeywordToKind(text), KIND_UNKNOWN) << text;
    }
    if (oneLower != keyword) {
      EXPECT_EQ(KeywordToKind(oneLower), KIND_UNKNOWN) << oneLower;
    }
  }
}

// No keyword has a small letter, so one in its place makes another word of it.
TEST(KeywordToKind, LooksAtEveryByte) {
  for (const NumberedKeyword& entry : AllKeywords()) {
    for (std::size_t i = 0; i < entry.keyword.size(); ++i) {
      std::string text = entry.keyword;
      text[i] = 'a';
      EXPECT_EQ(KeywordToKind(text), KIND_UNKNOWN) << text;
    }
  }
}

TEST(KeywordToKind, GivesUnknownForAnyOtherText) {
  for (const std::string_view text :
       {"", " ", "X", "/begin", "/end", "KIND_ROOT", "KIND_UNKNOWN", "VARIANT", "AXIS_PTS_6",
        "OFFSET_W", "\xFF\xFE", "MEASUREMENT2", "ASAP2", "0", "\"\""}) {
    EXPECT_EQ(KeywordToKind(text), KIND_UNKNOWN) << text;
  }
  EXPECT_EQ(KeywordToKind(std::string(100000, 'A')), KIND_UNKNOWN);
}

// A keyword without its last letters is not a keyword, except that some keywords begin with
// another.
TEST(KeywordToKind, KnowsNoAbbreviations) {
  std::set<std::string> keywords;
  for (const NumberedKeyword& entry : AllKeywords()) keywords.insert(entry.keyword);
  ASSERT_EQ(keywords.size(), AllKeywords().size());
  for (const std::string& keyword : keywords) {
    for (std::size_t size = 0; size < keyword.size(); ++size) {
      const std::string part = keyword.substr(0, size);
      EXPECT_EQ(KeywordToKind(part) != KIND_UNKNOWN, keywords.contains(part)) << part;
    }
  }
}

TEST(KindToKeyword, GivesNothingForNumbersThatAreNotKeywords) {
  std::vector<std::int32_t> numbers = NumbersBesideTheKinds();
  numbers.insert(numbers.end(), {0, 25535, 50, 500, 2000, 65535});
  for (const std::int32_t number : numbers)
    EXPECT_EQ(KindToKeyword(static_cast<ElementKind>(number)), "") << number;
}

TEST(Groups, DistinguishBlocksFromProperties) {
  std::set<std::int32_t> blocks;
  std::set<std::int32_t> properties;
  for (const NumberedKeyword& entry : AllKeywords())
    (entry.number < kFirstProperty ? blocks : properties).insert(entry.number);
  for (std::int32_t number = -10; number < 26000; ++number) {
    const auto kind = static_cast<ElementKind>(number);
    EXPECT_EQ(IsBlock(kind), blocks.contains(number)) << number;
    // Nobody asks for numbers above those of the properties, except that of an unknown block.
    if (number <= *properties.rbegin() || number == 25535) {
      EXPECT_EQ(IsProperty(kind), properties.contains(number)) << number;
    }
  }
}

TEST(KindIndex, NumbersTheKindsDensely) {
  std::size_t index = 0;
  for (const NumberedKeyword& entry : AllKeywords())
    EXPECT_EQ(KindIndex(static_cast<ElementKind>(entry.number)), index++) << entry.keyword;
  EXPECT_EQ(KindIndex(KIND_UNKNOWN), index++);
  for (const std::int32_t number : NumbersBesideTheKinds())
    EXPECT_EQ(KindIndex(static_cast<ElementKind>(number)), index) << number;
  EXPECT_EQ(KindIndex(KIND_ROOT), index);
  EXPECT_EQ(kKindIndexCount, index + 1);
}

}  // namespace
}  // namespace a2l::test
