// SPDX-License-Identifier: MIT
#include "a2l2json/export/json_text.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <json11.hpp>

#include "a2l2json/export/object_table.h"

namespace a2l::test {
namespace {

using json11::Json;

// The whole text that `write` writes.
std::string TextOf(const std::function<void(JsonText&)>& write) {
  std::string text;
  JsonText json([&text](std::string_view piece) { text += piece; });
  write(json);
  json.Flush();
  return text;
}

std::string StringText(std::string_view value) {
  return TextOf([value](JsonText& json) { json.String(value); });
}

std::string RealText(double value) {
  return TextOf([value](JsonText& json) { json.Real(value); });
}

std::string IntegerText(std::int32_t value) {
  return TextOf([value](JsonText& json) { json.Integer(value); });
}

TEST(JsonText, EscapesWhatTheOtherWriterEscapes) {
  struct Row {
    std::string_view text, json;
  };
  constexpr Row kRows[] = {
      {"", R"("")"},
      {"abc", R"("abc")"},
      {"a\"b", R"("a\"b")"},
      {R"(\)", R"("\\")"},
      {"a'b/c<>&", R"("a'b/c<>&")"},
      {"\b\f\n\r\t", R"("\b\f\n\r\t")"},
      {"\x01\x1F", R"("\u0001\u001f")"},
      {"\v", R"("\u000b")"},
      {"\x7F", "\"\x7F\""},
      {"m\xC2\xB2", "\"m\xC2\xB2\""},
      {"\xB0"
       "C",
       "\"\xB0"
       "C\""},  // Latin-1 passes through
      {"\xE2\x80\xA8", R"("\u2028")"},
      {"a\xE2\x80\xA9z", R"("a\u2029z")"},
      {"\xE2\x80\xA8\xE2\x80\xA9", R"("\u2028\u2029")"},
      // NOLINTNEXTLINE(misc-misleading-bidirectional): the bytes next to those that are escaped
      {"\xE2\x80\xA7\xE2\x80\xAA", "\"\xE2\x80\xA7\xE2\x80\xAA\""},
      {"\xE2\x82\xAC", "\"\xE2\x82\xAC\""},
      {"\xE2\x80", "\"\xE2\x80\""},
      {"\xE2", "\"\xE2\""},
      {"\xE2\xE2\x80\xA8", "\"\xE2\\u2028\""},
      {"\xE2\"", "\"\xE2\\\"\""},
  };
  for (const Row& row : kRows) EXPECT_EQ(StringText(row.text), row.json);
  EXPECT_EQ(StringText(std::string("a\0b", 3)), R"("a\u0000b")");
}

TEST(JsonText, WritesEveryByteAsJson11Does) {
  for (int first = 0; first < 256; ++first) {
    const std::string text = std::string("x") + static_cast<char>(first) + "y";
    EXPECT_EQ(StringText(text), Json(text).dump()) << first;
  }
}

TEST(JsonText, WritesSequencesAsJson11Does) {
  for (int second = 0; second < 256; ++second) {
    for (int third = 0; third < 256; ++third) {
      const std::string text = {'\xE2', static_cast<char>(second), static_cast<char>(third)};
      ASSERT_EQ(StringText(text), Json(text).dump()) << second << " " << third;
    }
  }
}

TEST(JsonText, WritesIntegersInDecimal) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  EXPECT_EQ(IntegerText(0), "0");
  EXPECT_EQ(IntegerText(-1), "-1");
  EXPECT_EQ(IntegerText(2147483647), "2147483647");
  EXPECT_EQ(IntegerText(kLeast), "-2147483648");
  for (int bit = 0; bit < 32; ++bit) {
    for (int offset = -1; offset <= 1; ++offset) {
      const auto value =
          static_cast<std::int32_t>((std::uint32_t{1} << bit) + static_cast<std::uint32_t>(offset));
      EXPECT_EQ(IntegerText(value), Json(value).dump());
    }
  }
}

TEST(JsonText, WritesRealsWith17Digits) {
  struct Row {
    double value;
    std::string_view text;
  };
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr Row kRows[] = {
      {0, "0"},
      {-0.0, "-0"},
      {1, "1"},
      {100, "100"},
      {-0.5, "-0.5"},
      {0.1, "0.10000000000000001"},
      {1.0 / 3, "0.33333333333333331"},
      {1e-4, "0.0001"},
      {1e-5, "1.0000000000000001e-05"},
      {1e16, "10000000000000000"},
      {1e17, "1e+17"},
      {12345678901234568., "12345678901234568"},
      {1e22, "1e+22"},
      {1e100, "1e+100"},
      {1.7976931348623157e308, "1.7976931348623157e+308"},
      {5e-324, "4.9406564584124654e-324"},
      // JSON has no words for these.
      {kInfinity, "null"},
      {-kInfinity, "null"},
      {std::numeric_limits<double>::quiet_NaN(), "null"},
  };
  for (const Row& row : kRows) EXPECT_EQ(RealText(row.value), row.text);
}

TEST(JsonText, WritesRealsAsJson11Does) {
  constexpr std::uint64_t kFraction = (std::uint64_t{1} << 52) - 1;
  std::mt19937_64 random(42);
  for (std::uint64_t exponent = 0; exponent < 0x1000; ++exponent) {  // including the sign
    for (const std::uint64_t fraction :
         {std::uint64_t{0}, std::uint64_t{1}, kFraction, random() & kFraction}) {
      const auto value = std::bit_cast<double>(exponent << 52 | fraction);
      ASSERT_EQ(RealText(value), Json(value).dump());
    }
  }
  for (int i = 0; i < 50000; ++i) {
    const auto value = std::bit_cast<double>(random());
    ASSERT_EQ(RealText(value), Json(value).dump());
    const double decimal = static_cast<double>(random() % 1000000) / 1000;
    ASSERT_EQ(RealText(decimal), Json(decimal).dump());
  }
}

TEST(JsonText, SeparatesMembersAndItems) {
  const std::string text = TextOf([](JsonText& json) {
    json.BeginObject();
    json.Key("a");
    json.BeginArray();
    json.EndArray();
    json.Key("b");
    json.BeginArray();
    json.Item();
    json.Integer(1);
    json.Item();
    json.BeginObject();
    json.EndObject();
    json.Item();
    json.BeginObject();
    json.Key("c");
    json.Null();
    json.Key("d\n");
    json.Bool(true);
    json.EndObject();
    json.EndArray();
    json.Key("e");
    json.Bool(false);
    json.EndObject();
  });
  EXPECT_EQ(text, R"({"a": [], "b": [1, {}, {"c": null, "d\n": true}], "e": false})");
}

constexpr Row kRows[] = {
    {.key = "FFIRST"},
    {.key = "FFLAG", .source = Source::Presence},
    {.key = "FLIST", .source = Source::Children, .absent = Absent::EmptyArray},
    {.key = "FVAR_SELECTION_CHARACTERISTIC", .source = Source::FirstChild},
};
constexpr PreparedRows<kRows> kPrepared;
constexpr ObjectTable kTable{{}, kRows, {}, kPrepared.Text(), kPrepared.Rows(), {}, {}};

TEST(JsonText, WritesPreparedRowsLikeOtherMembers) {
  const std::string text = TextOf([&](JsonText& json) {
    json.BeginObject();
    json.Key(kTable, 0, 0);
    json.String("x");
    json.Absent(kTable, 1, 1);
    json.Key(kTable, 1, 3);
    json.Integer(-1);
    json.Absent(kTable, 4, 4);
    json.Key("F other");
    json.BeginArray();
    json.Item();
    json.BeginObject();
    json.Absent(kTable, 0, 4);
    json.EndObject();
    json.Item();
    json.BeginObject();
    json.Absent(kTable, 0, 0);
    json.Key(kTable, 1, 2);
    json.Bool(true);
    json.Absent(kTable, 3, 4);
    json.EndObject();
    json.EndArray();
    json.EndObject();
  });
  EXPECT_EQ(text, R"({"FFIRST": "x", "FFLAG": false, "FLIST": [], )"
                  R"("FVAR_SELECTION_CHARACTERISTIC": -1, "F other": )"
                  R"([{"FFIRST": null, "FFLAG": false, "FLIST": [], )"
                  R"("FVAR_SELECTION_CHARACTERISTIC": null}, )"
                  R"({"FFLAG": false, "FLIST": true, "FVAR_SELECTION_CHARACTERISTIC": null}]})");
}

TEST(RowSet, GivesItsRowsInOrder) {
  RowSet rows;
  for (const std::size_t row : {127U, 64U, 0U, 63U}) rows.Add(row);
  std::vector<std::size_t> given;
  rows.ForEach([&](std::size_t row) { given.push_back(row); });
  EXPECT_EQ(given, (std::vector<std::size_t>{0, 63, 64, 127}));
  EXPECT_TRUE(rows.Contains(64));
  EXPECT_FALSE(rows.Contains(65));
}

// The end of the internal buffer may fall inside an escape, a number or a key: the text is the
// same.
TEST(JsonText, IsTheSameAcrossBufferEnds) {
  constexpr std::size_t kBuffer = std::size_t{64} * 1024;
  for (std::size_t filling = kBuffer - 130; filling <= kBuffer + 4; ++filling) {
    const std::string before(filling, 'x');
    const std::string text = TextOf([&](JsonText& json) {
      json.BeginObject();
      json.Key("k");
      json.String(before);
      json.Key(kTable, 0, 0);
      json.Real(-1.7976931348623157e308);
      json.Absent(kTable, 1, 3);
      json.Key("\xE2\x80\xA8\x01\"");
      json.String("\n\xE2\x80\xA9z\x1F");
      json.Key("i");
      json.Integer(-2147483647 - 1);
      json.Key("b");
      json.Bool(false);
      json.EndObject();
    });
    ASSERT_EQ(text, "{\"k\": \"" + before +
                        R"(", "FFIRST": -1.7976931348623157e+308, "FFLAG": false, "FLIST": [], )"
                        R"("\u2028\u0001\"": "\n\u2029z\u001f", "i": -2147483648, "b": false})")
        << filling;
  }
}

TEST(JsonText, WritesTextsLongerThanTheBuffer) {
  std::string text;
  std::string json;
  for (int i = 0; i < 100000; ++i) {
    text += "ab\n";
    json += "ab\\n";
  }
  EXPECT_EQ(StringText(text), '"' + json + '"');
}

}  // namespace
}  // namespace a2l::test
