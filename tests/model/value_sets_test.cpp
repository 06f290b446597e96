// SPDX-License-Identifier: MIT
#include "a2l2json/model/value_sets.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"

namespace a2l::test {
namespace {

struct Conversions {
  const char* name;
  std::uint32_t (*fromText)(std::string_view);
  std::string_view (*toText)(std::uint32_t);
  std::string_view words;  // in the order of their codes
};

constexpr Conversions kConversions[] = {
    {"data type", DataTypeFromText, DataTypeToText,
     "UBYTE SBYTE UWORD SWORD ULONG SLONG A_UINT64 A_INT64 FLOAT32_IEEE FLOAT64_IEEE"},
    {"index order", IndexOrderFromText, IndexOrderToText, "INDEX_INCR INDEX_DECR"},
    {"addressing", AddrTypeFromText, AddrTypeToText, "PBYTE PWORD PLONG PLONGLONG DIRECT"},
    {"data size", nullptr, DataSizeToText, "BYTE WORD LONG"},
};

TEST(ValueSets, GiveTheWordOfACode) {
  for (const Conversions& set : kConversions) {
    SCOPED_TRACE(set.name);
    std::uint32_t code = 0;
    for (const std::string& word : Words(set.words)) EXPECT_EQ(set.toText(code++), word);
    EXPECT_EQ(set.toText(code), "");
    EXPECT_EQ(set.toText(100), "");
    EXPECT_EQ(set.toText(0xFFFFFFFF), "");
  }
}

TEST(ValueSets, RecogniseAWordAnywhereInAText) {
  for (const Conversions& set : kConversions) {
    if (set.fromText == nullptr) continue;
    SCOPED_TRACE(set.name);
    std::uint32_t code = 0;
    for (const std::string& word : Words(set.words)) {
      // PLONG is part of PLONGLONG and comes first.
      const std::uint32_t expected = word == "PLONGLONG" ? 2 : code;
      EXPECT_EQ(set.fromText(word), expected) << word;
      EXPECT_EQ(set.fromText("X_" + word + "_Y"), expected) << word;
      EXPECT_EQ(set.fromText('"' + word + '"'), expected) << word;
      ++code;
    }
  }
}

struct Reading {
  std::uint32_t (*fromText)(std::string_view);
  std::string_view text;
  std::uint32_t code;
};

TEST(ValueSets, ReadUnknownWordsAsTheFallback) {
  constexpr Reading kRows[] = {
      {DataTypeFromText, "", 0},        {DataTypeFromText, "FLOAT16_IEEE", 0},
      {DataTypeFromText, "uword", 0},   {DataTypeFromText, "INT32", 0},
      {DataTypeFromText, "UWOR", 0},    {IndexOrderFromText, "", 0},
      {IndexOrderFromText, "INDEX", 0}, {IndexOrderFromText, "index_decr", 0},
      {AddrTypeFromText, "", 4},        {AddrTypeFromText, "direct", 4},
      {AddrTypeFromText, "POINTER", 4}, {AddrTypeFromText, "LONG", 4},
  };
  for (const Reading& row : kRows) EXPECT_EQ(row.fromText(row.text), row.code) << row.text;
}

TEST(ValueSets, TryTheWordsInOrder) {
  constexpr Reading kRows[] = {
      {DataTypeFromText, "FLOAT64_IEEE_UBYTE", 0},
      {DataTypeFromText, "SLONG_ULONG", 4},
      {DataTypeFromText, "A_INT64A_UINT64", 6},
      {DataTypeFromText, "FLOAT32_IEEE_X", 8},
      {IndexOrderFromText, "INDEX_DECR_INDEX_INCR", 0},
      {AddrTypeFromText, "PLONGLONG", 2},
      {AddrTypeFromText, "DIRECT_PBYTE", 0},
      {AddrTypeFromText, "PLONG_PWORD", 1},
  };
  for (const Reading& row : kRows) EXPECT_EQ(row.fromText(row.text), row.code) << row.text;
}

}  // namespace
}  // namespace a2l::test
