// SPDX-License-Identifier: MIT
#include "a2l2json/model/keywords.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"

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
      EXPECT_EQ(KindToKeyword(kind), keyword) << number;
      ++number;
      ++count;
    }
    EXPECT_EQ(number - 1, group.last);
  }
  EXPECT_EQ(count, 205U);
  EXPECT_EQ(kKeywordCount, 205U);
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
  ASSERT_EQ(keywords.size(), 205U);
  for (const std::string& keyword : keywords) {
    for (std::size_t size = 0; size < keyword.size(); ++size) {
      const std::string part = keyword.substr(0, size);
      EXPECT_EQ(KeywordToKind(part) != KIND_UNKNOWN, keywords.contains(part)) << part;
    }
  }
}

TEST(KindToKeyword, GivesNothingForNumbersThatAreNotKeywords) {
  for (const std::int32_t number :
       {0, 25535, 21, 99, 142, 1000, 1144, -1, 50, 500, 2000, 25534, 25536, 65535,
        std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(KindToKeyword(static_cast<ElementKind>(number)), "") << number;
  }
}

TEST(Groups, DistinguishBlocksFromProperties) {
  for (std::int32_t number = -10; number < 26000; ++number) {
    const auto kind = static_cast<ElementKind>(number);
    EXPECT_EQ(IsBlock(kind), (number >= 1 && number <= 20) || (number >= 100 && number <= 141))
        << number;
    if (number <= 1143 || number == 25535) {
      EXPECT_EQ(IsProperty(kind), number >= 1001 && number <= 1143) << number;
    }
  }
}

TEST(KindIndex, NumbersTheKindsDensely) {
  std::size_t index = 0;
  for (const NumberedKeyword& entry : AllKeywords())
    EXPECT_EQ(KindIndex(static_cast<ElementKind>(entry.number)), index++) << entry.keyword;
  EXPECT_EQ(KindIndex(KIND_UNKNOWN), 205U);
  for (const std::int32_t number : {0, -1, 21, 99, 142, 1000, 1144, 25534, 25536})
    EXPECT_EQ(KindIndex(static_cast<ElementKind>(number)), 206U) << number;
  EXPECT_EQ(kKindIndexCount, 207U);
}

}  // namespace
}  // namespace a2l::test
