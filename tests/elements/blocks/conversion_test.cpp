// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/conversion.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

std::vector<double> Items(const List<double>& list) { return {list.begin(), list.end()}; }
std::vector<std::string_view> Items(const List<std::string_view>& list) {
  return {list.begin(), list.end()};
}

TEST(CompuMethod, TakesFiveParameters) {
  const std::string end = "/end COMPU_METHOD\n";
  const ParseRow rows[] = {
      {"COMPU_METHOD", R"( C "a b" LINEAR "%5.2" "km/h" x)", true, " x",
       "/begin COMPU_METHOD C \"a b\"\n  LINEAR \"%5.2\" \"km/h\"\n" + end},
      {"COMPU_METHOD", R"( C "" FORMULA_X "" "")", true, "",
       "/begin COMPU_METHOD C \"\"\n  FORM \"\" \"\"\n" + end},
      {"COMPU_METHOD", R"( C "" POLYNOMIAL %5.2 rpm)", true, "",
       "/begin COMPU_METHOD C \"\"\n   \"\" \"\"\n" + end},
      {"COMPU_METHOD", "", true, "", "/begin COMPU_METHOD  \"\"\n   \"\" \"\"\n" + end},
  };
  ExpectParse(rows);
  std::uint32_t code = 0;
  for (const std::string& kind :
       Words("IDENTICAL FORM LINEAR RAT_FUNC TAB_INTP TAB_NOINTP TAB_VERB")) {
    ++code;
    EXPECT_EQ(Made<VoA2LElementCompuMethod>("C \"\" " + kind)->CONVERSION_TYPE,
              static_cast<ConversionType>(code))
        << kind;
    EXPECT_EQ(Made<VoA2LElementCompuMethod>("C \"\" " + kind + "_X")->CONVERSION_TYPE,
              static_cast<ConversionType>(code));
  }
  EXPECT_EQ(Made<VoA2LElementCompuMethod>("C \"\" TAB_VERB_IDENTICAL")->CONVERSION_TYPE,
            ConversionType::IDENTICAL);
}

TEST(Formula, TakesAText) {
  const ParseRow rows[] = {
      {"FORMULA", R"( "X1 * 'a'" x)", true, " x",
       "/begin FORMULA\n  \"X1 * \\'a\\'\"\n/end FORMULA\n"},
      {"FORMULA", " X1 x", true, " x", "/begin FORMULA\n  \"\"\n/end FORMULA\n"},
      {"FORMULA", "", true, "", "/begin FORMULA\n  \"\"\n/end FORMULA\n"},
  };
  ExpectParse(rows);
}

TEST(Tables, AreWrongWithoutACount) {
  const ParseRow rows[] = {
      {"COMPU_TAB", R"( T "a b" TAB_INTP 0x2 1 2)", true, " 1 2",
       "/begin COMPU_TAB T \"a b\"\n  TAB_INTP 2\n/end COMPU_TAB\n"},
      {"COMPU_TAB", R"( T "" TAB_NOINTP 1)", true, "",
       "/begin COMPU_TAB T \"\"\n  TAB_NOINTP 1\n/end COMPU_TAB\n"},
      {"COMPU_TAB", R"( T "" TAB_VERB x 1)", false, " 1",
       "/begin COMPU_TAB T \"\"\n   0\n/end COMPU_TAB\n"},
      {"COMPU_TAB", "", false, "", "/begin COMPU_TAB  \"\"\n   0\n/end COMPU_TAB\n"},
      {"COMPU_VTAB", R"( T "a b" MY_TAB_VERB 010 1)", true, " 1",
       "/begin COMPU_VTAB T \"a b\"\n  TAB_VERB 8\n/end COMPU_VTAB\n"},
      {"COMPU_VTAB", R"( T "" TAB_INTP 3)", true, "",
       "/begin COMPU_VTAB T \"\"\n   3\n/end COMPU_VTAB\n"},
      {"COMPU_VTAB", R"( T "" TAB_VERB)", false, "",
       "/begin COMPU_VTAB T \"\"\n  TAB_VERB 0\n/end COMPU_VTAB\n"},
      {"COMPU_VTAB_RANGE", R"( T "a b" 2 1)", true, " 1",
       "/begin COMPU_VTAB_RANGE T \"a b\"\n  2\n/end COMPU_VTAB_RANGE\n"},
      {"COMPU_VTAB_RANGE", R"( T "" x 1)", false, " 1",
       "/begin COMPU_VTAB_RANGE T \"\"\n  0\n/end COMPU_VTAB_RANGE\n"},
  };
  ExpectParse(rows);
}

// The number of tokens wraps at 32 bits.
TEST(Tables, AskForTheTokensOfTheirRows) {
  struct Row {
    std::uint32_t count;
    std::int32_t pairs, triples;
  };
  constexpr Row kRows[] = {
      {0, 0, 0},
      {1, 2, 3},
      {2, 4, 6},
      {1000000, 2000000, 3000000},
      {0x3FFFFFFF, 0x7FFFFFFE, -1073741827},
      {0x40000000, -2147483647 - 1, -1073741824},
      {0x55555556, -1431655764, 2},
      {0x80000001, 2, -2147483645},
      {0xFFFFFFFF, -2, -3},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.count);
    const std::string count = std::to_string(row.count);
    EXPECT_EQ(Made<VoA2LElementCompuTab>("T \"\" TAB_INTP " + count)->MoreParameterCount(),
              row.pairs);
    EXPECT_EQ(Made<VoA2LElementCompuVtab>("T \"\" TAB_VERB " + count)->MoreParameterCount(),
              row.pairs);
    EXPECT_EQ(Made<VoA2LElementCompuVtabRange>("T \"\" " + count)->MoreParameterCount(),
              row.triples);
  }
}

TEST(CompuTab, ReadsRowsOfTwoNumbers) {
  struct Row {
    std::string_view text;
    bool ok;
    std::string_view rest;
    std::vector<double> in, out;
    std::string_view lines;
  };
  const Row rows[] = {
      {" 1 2.5 3 4 5", true, " 5", {1, 3}, {2.5, 4}, "  1 2.5\n  3 4\n"},
      // A wrong number stays as 0. A line has both numbers.
      {" 1 x 3 4", false, " 3 4", {1}, {0}, "  1 0\n"},
      {" 1 2 x 4", false, " 4", {1, 0}, {2}, "  1 2\n"},
      {" 1 2 3", false, "", {1, 3}, {2, 0}, "  1 2\n  3 0\n"},
      {"", false, "", {0}, {}, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    Made<VoA2LElementCompuTab> table("T \"\" TAB_INTP 2");
    EXPECT_EQ(table.ParseMore(row.text), row.ok);
    EXPECT_EQ(table.rest, row.rest);
    EXPECT_EQ(Items(table->IN_VAL), row.in);
    EXPECT_EQ(Items(table->OUT_VAL), row.out);
    EXPECT_EQ(table->NUMBER_VALUE_PAIRS, 2U) << "as declared";
    EXPECT_EQ(table.Written(), "/begin COMPU_TAB T \"\"\n  TAB_INTP 2\n" + std::string(row.lines) +
                                   "/end COMPU_TAB\n");
  }
}

TEST(CompuVtab, ReadsRowsOfANumberAndAText) {
  struct Row {
    std::string_view text;
    bool ok;
    std::string_view rest;
    std::vector<double> in;
    std::vector<std::string_view> out;
    std::string_view lines;
  };
  const Row rows[] = {
      {R"( 0 "off" 1.5 "a""b" x)",
       true,
       " x",
       {0, 1.5},
       {"off", "a\"b"},
       "  0 \"off\"\n  1.5 \"a\\\"b\"\n"},
      {" 0 off 1 \"on\"", true, "", {0, 1}, {"", "on"}, "  0 \"\"\n  1 \"on\"\n"},
      {R"( x "off" 1 "on")", false, R"( "off" 1 "on")", {0}, {}, ""},
      {R"( 0 "off" x "on")", false, R"( "on")", {0, 0}, {"off"}, "  0 \"off\"\n"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    Made<VoA2LElementCompuVtab> table("T \"\" TAB_VERB 2");
    EXPECT_EQ(table.ParseMore(row.text), row.ok);
    EXPECT_EQ(table.rest, row.rest);
    EXPECT_EQ(Items(table->IN_VAL), row.in);
    EXPECT_EQ(Items(table->OUT_VAL), row.out);
    EXPECT_EQ(table.Written(), "/begin COMPU_VTAB T \"\"\n  TAB_VERB 2\n" + std::string(row.lines) +
                                   "/end COMPU_VTAB\n");
  }
}

TEST(CompuVtabRange, ReadsRowsOfTwoNumbersAndAText) {
  struct Row {
    std::string_view text;
    bool ok;
    std::string_view rest;
    std::vector<double> least, most;
    std::vector<std::string_view> out;
    std::string_view lines;
  };
  const Row rows[] = {
      {R"( 0 1 "low" 2 3.5 "high" x)",
       true,
       " x",
       {0, 2},
       {1, 3.5},
       {"low", "high"},
       "  0 1 \"low\"\n  2 3.5 \"high\"\n"},
      {R"( 0 x "low")", false, R"( "low")", {0}, {0}, {}, ""},
      {R"( x 1 "low")", false, R"( 1 "low")", {0}, {}, {}, ""},
      {R"( 0 1 "low" 2 y "high")", false, R"( "high")", {0, 2}, {1, 0}, {"low"}, "  0 1 \"low\"\n"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    Made<VoA2LElementCompuVtabRange> table("T \"\" 2");
    EXPECT_EQ(table.ParseMore(row.text), row.ok);
    EXPECT_EQ(table.rest, row.rest);
    EXPECT_EQ(Items(table->IN_VAL_MIN), row.least);
    EXPECT_EQ(Items(table->IN_VAL_MAX), row.most);
    EXPECT_EQ(Items(table->OUT_VAL), row.out);
    EXPECT_EQ(table.Written(), "/begin COMPU_VTAB_RANGE T \"\"\n  2\n" + std::string(row.lines) +
                                   "/end COMPU_VTAB_RANGE\n");
  }
}

TEST(Tables, WithoutRowsReadNone) {
  Made<VoA2LElementCompuTab> table("T \"\" TAB_INTP 0");
  EXPECT_TRUE(table.ParseMore(" 1 2"));
  EXPECT_EQ(table.rest, " 1 2");
  EXPECT_TRUE(table->IN_VAL.empty());
  Made<VoA2LElementCompuVtab> texts("T \"\" TAB_VERB x");
  EXPECT_FALSE(texts.ok);
  EXPECT_TRUE(texts.ParseMore(" 1 \"a\""));
  EXPECT_EQ(texts.rest, " 1 \"a\"");
}

// A count is only a promise. The read ends where the text ends.
TEST(Tables, WithAnAbsurdCountEndWithTheirText) {
  Made<VoA2LElementCompuTab> table("T \"\" TAB_INTP 4294967295");
  EXPECT_FALSE(table.ParseMore("1 2 3 4"));
  EXPECT_EQ(Items(table->IN_VAL), (std::vector<double>{1, 3, 0}));
  EXPECT_EQ(Items(table->OUT_VAL), (std::vector<double>{2, 4}));
}

}  // namespace
}  // namespace a2l::test
