// SPDX-License-Identifier: MIT
#include "tests/support/json_check.h"

#include <cstddef>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace a2l::test {
namespace {

using namespace std::string_view_literals;

TEST(JsonCheck, AcceptsTheFormOfTheDocument) {
  for (const std::string_view text :
       {"null"sv, "true"sv, "0"sv, "-1.5e+300"sv, "1e-07"sv, R"("")"sv, "{}"sv, "[]"sv,
        "[[], {}]"sv, R"({"a": 1, "ab": [1, {"a": null}], "b": "x"})"sv,
        R"(["\"\\\/\b\f\n\r\t\u001f\u2028"])"sv, "\"\x80\xFF\x7F\""sv, "{\"a\": 1, \"\xE4\": 2}"sv,
        R"({"\u0000": 1, "\n": 2})"sv}) {
    EXPECT_EQ(JsonCheck::Complaint(text), "") << text;
  }
}

TEST(JsonCheck, ComplainsOfEverythingElse) {
  struct Row {
    std::string_view text;
    std::string_view complaint;
  };
  const Row rows[] = {
      {"", "expected a value at byte 0"},
      {" 1", "expected a value at byte 0"},
      {"1 ", "text behind the value at byte 1"},
      {"nul", "expected a value at byte 0"},
      {"01", "text behind the value at byte 1"},
      {"-", "expected a value at byte 1"},
      {"+1", "expected a value at byte 0"},
      {".5", "expected a value at byte 0"},
      {"1.", "expected a digit at byte 2"},
      {"1e", "expected a digit at byte 2"},
      {"nan", "expected a value at byte 0"},
      {"[1,2]", "expected a comma or a bracket at byte 2"},
      {"[1, ]", "expected a value at byte 4"},
      {"[1", "expected a comma or a bracket at byte 2"},
      {"[1}", "expected a comma or a bracket at byte 2"},
      {"[ ]", "expected a value at byte 1"},
      {R"({"a":1})", "expected a colon at byte 4"},
      {R"({"a" : 1})", "expected a colon at byte 4"},
      {R"({"a": 1, })", "expected a string at byte 9"},
      {R"({"a": 1, "a": 2})", "the key occurs twice at byte 9"},
      {R"({"b": 1, "a": 2})", "the keys are not in order at byte 9"},
      {R"({"ab": 1, "a": 2})", "the keys are not in order at byte 10"},
      {R"([{"b": 1, "a": 2}])", "the keys are not in order at byte 10"},
      {"{\"\xE4\": 1, \"a\": 2}", "the keys are not in order at byte 9"},
      {R"({"a": 1, "\u0061": 2})", "the key occurs twice at byte 9"},
      {"\"a", "a string that does not end at byte 2"},
      {"\"a\n\"", "a control character in a string at byte 2"},
      {"\"\0\""sv, "a control character in a string at byte 1"},
      {R"("\x")", "an unknown escape at byte 2"},
      {R"("\u12G4")", "expected four hexadecimal digits at byte 5"},
      {R"("\uD800")", "expected four hexadecimal digits at byte 3"},
      {R"("\ud800")", "half a character at byte 7"},
      {"[]\n", "text behind the value at byte 2"},
  };
  for (const Row& row : rows) EXPECT_EQ(JsonCheck::Complaint(row.text), row.complaint) << row.text;
}

TEST(JsonCheck, DoesNotMindAnyDepth) {
  const std::size_t depth = 300000;
  EXPECT_EQ(JsonCheck::Complaint(std::string(depth, '[') + std::string(depth, ']')), "");
  EXPECT_NE(JsonCheck::Complaint(std::string(depth, '[') + std::string(depth - 1, ']')), "");
}

}  // namespace
}  // namespace a2l::test
