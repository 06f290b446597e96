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

// The conversions of an enumeration, with numbers in place of its values.
struct Conversions {
  const char* name;
  std::uint32_t (*fromText)(std::string_view);
  std::string_view (*toText)(std::uint32_t);
  std::string_view words;  // in the order of their codes
};

template <auto kFromText>
std::uint32_t Code(std::string_view text) {
  return static_cast<std::uint32_t>(kFromText(text));
}
template <class Enumeration, std::string_view (*kToText)(Enumeration)>
std::string_view Text(std::uint32_t code) {
  return kToText(static_cast<Enumeration>(code));
}

constexpr Conversions kConversions[] = {
    {"data type", Code<DataTypeFromText>, Text<DataType, DataTypeToText>,
     "UBYTE SBYTE UWORD SWORD ULONG SLONG A_UINT64 A_INT64 FLOAT32_IEEE FLOAT64_IEEE"},
    {"index order", Code<IndexOrderFromText>, Text<IndexOrder, IndexOrderToText>,
     "INDEX_INCR INDEX_DECR"},
    {"addressing", Code<AddrTypeFromText>, Text<AddrType, AddrTypeToText>,
     "PBYTE PWORD PLONG PLONGLONG DIRECT"},
    {"data size", nullptr, Text<DataSize, DataSizeToText>, "BYTE WORD LONG"},
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
      {Code<DataTypeFromText>, "", 0},        {Code<DataTypeFromText>, "FLOAT16_IEEE", 0},
      {Code<DataTypeFromText>, "uword", 0},   {Code<DataTypeFromText>, "INT32", 0},
      {Code<DataTypeFromText>, "UWOR", 0},    {Code<IndexOrderFromText>, "", 0},
      {Code<IndexOrderFromText>, "INDEX", 0}, {Code<IndexOrderFromText>, "index_decr", 0},
      {Code<AddrTypeFromText>, "", 4},        {Code<AddrTypeFromText>, "direct", 4},
      {Code<AddrTypeFromText>, "POINTER", 4}, {Code<AddrTypeFromText>, "LONG", 4},
  };
  for (const Reading& row : kRows) EXPECT_EQ(row.fromText(row.text), row.code) << row.text;
}

TEST(ValueSets, TryTheWordsInOrder) {
  constexpr Reading kRows[] = {
      {Code<DataTypeFromText>, "FLOAT64_IEEE_UBYTE", 0},
      {Code<DataTypeFromText>, "SLONG_ULONG", 4},
      {Code<DataTypeFromText>, "A_INT64A_UINT64", 6},
      {Code<DataTypeFromText>, "FLOAT32_IEEE_X", 8},
      {Code<IndexOrderFromText>, "INDEX_DECR_INDEX_INCR", 0},
      {Code<AddrTypeFromText>, "PLONGLONG", 2},
      {Code<AddrTypeFromText>, "DIRECT_PBYTE", 0},
      {Code<AddrTypeFromText>, "PLONG_PWORD", 1},
  };
  for (const Reading& row : kRows) EXPECT_EQ(row.fromText(row.text), row.code) << row.text;
}

TEST(ValueSets, HaveAnEnumeratorPerWord) {
  EXPECT_EQ(DataTypeFromText("UWORD"), DataType::UWORD);
  EXPECT_EQ(DataTypeFromText("FLOAT64_IEEE"), DataType::FLOAT64_IEEE);
  EXPECT_EQ(IndexOrderFromText("INDEX_DECR"), IndexOrder::INDEX_DECR);
  EXPECT_EQ(AddrTypeFromText("PWORD"), AddrType::PWORD);
  EXPECT_EQ(AddrTypeFromText("elsewhere"), AddrType::DIRECT);
  EXPECT_EQ(AddrTypeToText(AddrType::PLONGLONG), "PLONGLONG");
  EXPECT_EQ(DataSizeToText(DataSize::LONG), "LONG");
}

// The words of an enumeration with their codes, as one text.
std::string Shown(const WordTable& table) {
  std::string text;
  for (const Word& word : table.words) {
    text += std::to_string(word.code) + ' ' + std::string(word.text) + ", ";
  }
  return text + "else " + std::to_string(table.fallback);
}

TEST(ValueSets, NumberTheirWords) {
  EXPECT_EQ(Shown(words::kAddrType), "0 PBYTE, 1 PWORD, 2 PLONG, 3 PLONGLONG, 4 DIRECT, else 4");
  EXPECT_EQ(Shown(words::kDataSize), "0 BYTE, 1 WORD, 2 LONG, else 0");
  // Code 0 is no word, and an underscore that only C++ needs is not part of one.
  EXPECT_EQ(Shown(words::kByteOrder),
            "1 LITTLE_ENDIAN, 2 BIG_ENDIAN, 3 MSB_LAST, 4 MSB_FIRST, else 0");
  EXPECT_EQ(Shown(words::kDeposit), "1 ABSOLUTE, 2 DIFFERENCE, else 0");
  EXPECT_EQ(Shown(words::kVarNaming), "1 NUMERIC, else 0");
}

}  // namespace
}  // namespace a2l::test
