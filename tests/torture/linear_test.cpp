// SPDX-License-Identifier: MIT
//
// A conversion takes memory and time in proportion to its input. For every shape of input that
// might cause some part of the program too much work, this compares the cost with that of an input
// sixteen times as long. It does not read a clock. Growth in steps (of buffers that double) evens
// out over two quadruplings. So the cost may grow by 25, that is, by five for each of them.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "a2l2json/export/json_writer.h"
#include "a2l2json/mend/mend.h"
#include "a2l2json/reader/line_source.h"
#include "tests/support/trees.h"
#include "tests/torture/generated_text.h"
#include "tests/torture/meters.h"

namespace a2l::test {
namespace {

constexpr std::size_t kFactor = 16;
constexpr std::uint64_t kMostGrowth = 25;

struct Shape {
  const char* name;
  Parts before;
  Part repeated;
  Parts after;
  /// Set if the number of repetitions stands between the parts before them and the repetitions.
  bool isCounted = false;
};

// The text around the content of a module.
Shape InModule(const char* name, std::string_view open, Part repeated, const char* close) {
  return {name,
          {"/begin PROJECT p \"\"\n/begin MODULE m \"\"\n", Part(open, 1)},
          std::move(repeated),
          {close, "\n/end MODULE\n/end PROJECT\n"}};
}

Shape Counted(Shape shape) {
  shape.isCounted = true;
  return shape;
}

Part Times(const char* text) { return {text, 1}; }
Part Numbered(const char* before, const char* behind) {
  return {[=](std::size_t i) { return before + std::to_string(i) + behind; }, 1};
}

std::vector<Shape> Shapes() {
  const char* const measurement = "/begin MEASUREMENT x \"\" UBYTE c 1 1 0 1\n";
  const std::string dimensions = std::string(measurement) + "MATRIX_DIM ";
  const char* const text = "/begin MOD_COMMON \"";
  return {
      {"BlankLines", {}, Times("\n"), {}},
      {"Warnings", {}, Times("word word\n"), {}},
      {"OneWord", {}, Times("x"), {}},
      {"OneLine", {}, Times("a b "), {}},
      {"Slashes", {}, Times("/ "), {}},
      {"Stars", {"/*"}, Times("*"), {"/"}},
      {"CommentOverLines", {"/*"}, Times("a\n"), {"*/"}},
      {"CommentsOnOneLine", {}, Times("a /* b */ \"c\" "), {}},
      {"CommentsOverTwoLines", {}, Times("a /* b\n */ c "), {}},
      {"LineComments", {}, Times("// a\n"), {}},
      {"Quotes", {}, Times("\""), {" /**/\n"}},
      {"UnclosedQuotes", {}, Times("\" /* \n"), {}},
      {"UnknownBlocksInEachOther", {}, Times("/begin X\n"), {}},
      {"UnknownBlocksOnOneLine", {"/begin PROJECT p \"\""}, Times("/begin X /end X "), {}},
      {"ProjectsInEachOther",
       {},
       Times("/begin PROJECT p \"\"\n/begin MODULE m \"\"\n"
             "/begin MEASUREMENT x \"\" UBYTE c 1 1 0 1\n/begin VIRTUAL a\n"),
       {}},
      {"Modules", {"/begin PROJECT p \"\"\n"}, Times("/begin MODULE m \"\"\n/end MODULE\n"), {}},
      {"Versions", {}, Numbered("ASAP2_VERSION 1 ", "\n"), {}},
      InModule("LongText", text, Times(R"(ab\"cd"")"), "\"\n/end MOD_COMMON"),
      InModule("LongTextOverLines", text, Times("a\n"), "\"\n/end MOD_COMMON"),
      InModule("TextOfSeparators", text, Times("\xE2\x80\xA8"), "\"\n/end MOD_COMMON"),
      InModule("UnclosedText", text, Times("a\n"), "/end MOD_COMMON"),
      InModule("HeadOverLines", "/begin MEASUREMENT\n", Times("a\n\n"), "/end MEASUREMENT"),
      InModule("Measurements", "",
               Times("/begin MEASUREMENT x \"\" UBYTE c 1 1 0 1\nFORMAT \"%1\"\n"
                     "/end MEASUREMENT\n"),
               ""),
      InModule("Properties", measurement, Times("FORMAT \"%1\"\nDISCRETE\n"), "/end MEASUREMENT"),
      InModule("WrongProperties", measurement, Times("ECU_ADDRESS z\nBYTE_ORDER\nz\n"),
               "/end MEASUREMENT"),
      InModule("Dimensions", dimensions, Times("1 2\n"), "/end MEASUREMENT"),
      InModule("Names", "/begin GROUP g \"\"\n/begin SUB_GROUP\n", Numbered("n", "\n"),
               "/end SUB_GROUP\n/end GROUP"),
      InModule("NamesOnOneLine", "/begin GROUP g \"\"\n/begin SUB_GROUP ", Numbered("n", " "),
               "\n/end SUB_GROUP\n/end GROUP"),
      InModule("GroupsOfRights", "/begin USER_RIGHTS u\n",
               Times("/begin REF_GROUP a b\n/end REF_GROUP\n"), "/end USER_RIGHTS"),
      InModule("Addresses", "/begin MOD_PAR \"\"\n", Times("ADDR_EPK 1\n"), "/end MOD_PAR"),
      InModule("Annotations", "/begin GROUP g \"\"\n",
               Times("/begin ANNOTATION\n/begin ANNOTATION_TEXT \"a\" \"b\"\n"
                     "/end ANNOTATION_TEXT\n/end ANNOTATION\n"),
               "/end GROUP"),
      InModule("Combinations", "/begin VARIANT_CODING\n/begin VAR_FORBIDDEN_COMB\n",
               Numbered("c", " v\n"), "/end VAR_FORBIDDEN_COMB\n/end VARIANT_CODING"),
      InModule("RowsOfNoTable", "/begin COMPU_TAB t \"\" TAB_INTP 1000000000\n", Times("1 2\n"),
               "/end COMPU_TAB"),
      Counted(InModule("RowsOfATable", "/begin COMPU_TAB t \"\" TAB_INTP ", Times("\n1 2"),
                       "\n/end COMPU_TAB")),
      Counted(InModule("RowsOnOneLine", "/begin COMPU_VTAB t \"\" TAB_VERB ", Times(" 1 \"one\""),
                       "\n/end COMPU_VTAB")),
      Counted(InModule("RowsOfTriples", "/begin COMPU_VTAB_RANGE t \"\" ",
                       Times("\n1\n2\n\"a\nb\""), "\n/end COMPU_VTAB_RANGE")),
      InModule("InterfaceData", "/begin IF_DATA X\n", Times("/begin A\n a b\n/end A\n"),
               "/end IF_DATA"),
      InModule("InterfaceDataOnOneLine", "/begin IF_DATA X v ", Times("/begin A/end A"),
               "/end IF_DATA"),
      InModule("LongNumber", "/begin COMPU_TAB t \"\" TAB_INTP 1\n1", Times("0"),
               " 1\n/end COMPU_TAB"),
  };
}

// A text that repeats the shape `times` times.
Parts PartsOf(const Shape& shape, std::size_t times) {
  Parts parts = shape.before;
  if (shape.isCounted) parts.emplace_back(std::to_string(times), 1);
  parts.push_back(shape.repeated);
  parts.back().times = times;
  parts.insert(parts.end(), shape.after.begin(), shape.after.end());
  return parts;
}

using MakeWork = std::function<void()> (*)(const Shape& shape, std::size_t times);

// Everything that a user does with the converter.
std::function<void()> Conversion(const Shape& shape, std::size_t times) {
  return [&shape, times] {
    Reading reading = ReadParts(PartsOf(shape, times));
    EXPECT_TRUE(!shape.isCounted || reading.reader.message.empty()) << shape.name;
    EXPECT_FALSE(ToJson(*reading.root).empty());
    std::ostringstream out;
    EXPECT_TRUE(reading.root->Write(0, out));
  };
}

std::function<void()> Mending(const Shape& shape, std::size_t times) {
  return [&shape, times] {
    GeneratedBuffer buffer(PartsOf(shape, times));
    std::ostringstream text;
    text << &buffer;
    MendOptions options;
    std::size_t size = 0;
    options.report = [&size](const Finding& finding) { size += Text(finding).size(); };
    const Mended mended = Mend(std::move(text).str(), options);
    EXPECT_EQ(size == 0, mended.lost + mended.mended + mended.unmendable == 0) << shape.name;
  };
}

using Meter = std::optional<std::uint64_t> (*)(const std::function<void()>& work);

// True if the meter works here.
bool ExpectProportion(MakeWork work, Meter meter, std::size_t times) {
  return std::ranges::all_of(Shapes(), [&](const Shape& shape) {
    work(shape, times)();  // one-time initialisation does not count
    const std::optional<std::uint64_t> less = meter(work(shape, times));
    if (!less.has_value()) return false;
    const std::optional<std::uint64_t> more = meter(work(shape, kFactor * times));
    EXPECT_TRUE(more.has_value() && *more <= kMostGrowth * *less)
        << shape.name << ": " << *less << ", then " << more.value_or(0);
    return true;
  });
}

TEST(Linear, MemoryGrowsWithTheInput) {
  if (!ExpectProportion(Conversion, AllocatedBytes, 20000 / kScaleDown)) {
    GTEST_SKIP() << "allocations are not counted in this build";
  }
}

TEST(Linear, WorkGrowsWithTheInput) {
  if (!ExpectProportion(Conversion, ExecutedInstructions, 2000)) {
    GTEST_SKIP() << "instructions are not counted on this system";
  }
}

TEST(Linear, MemoryGrowsWithTheInputOfMending) {
  if (!ExpectProportion(Mending, AllocatedBytes, 20000 / kScaleDown)) {
    GTEST_SKIP() << "allocations are not counted in this build";
  }
}

TEST(Linear, WorkGrowsWithTheInputOfMending) {
  if (!ExpectProportion(Mending, ExecutedInstructions, 2000)) {
    GTEST_SKIP() << "instructions are not counted on this system";
  }
}

// A line that does not fit into the buffer is searched only once, even if the buffer grows several
// times.
TEST(Linear, WorkGrowsWithALine) {
  const auto search = [](std::size_t size, std::size_t pieceSize) {
    return ExecutedInstructions([=] {
      std::istringstream in(std::string(size, 'x'));
      LineSource source(in, pieceSize);
      std::string_view line;
      EXPECT_TRUE(source.Next(line));
      EXPECT_EQ(line.size(), size);
    });
  };
  const std::size_t size = 8192;
  const std::size_t pieceSize = 16;
  const std::optional<std::uint64_t> less = search(size, pieceSize);
  if (!less.has_value()) GTEST_SKIP() << "instructions are not counted on this system";
  EXPECT_LE(search(kFactor * size, pieceSize), kMostGrowth * *less);
}

// Tests the meters: they measure work, and four times as much work.
TEST(Meters, CountWhatIsAllocated) {
  const auto allocate = [](std::size_t size) {
    return AllocatedBytes([size] { EXPECT_EQ(std::string(size, 'x').size(), size); });
  };
  const std::optional<std::uint64_t> less = allocate(1000);
  if (!less.has_value()) GTEST_SKIP() << "allocations are not counted in this build";
  EXPECT_GE(*less, 1000U);
  EXPECT_GE(allocate(4000), *less + 3000);
}

TEST(Meters, CountWhatIsExecuted) {
  const auto count = [](std::size_t rounds) {
    return ExecutedInstructions([rounds] {
      volatile std::size_t sum = 0;
      for (std::size_t i = 0; i < rounds; ++i) sum = sum + i;
    });
  };
  const std::optional<std::uint64_t> less = count(100000);
  if (!less.has_value()) GTEST_SKIP() << "instructions are not counted on this system";
  EXPECT_GE(*less, 100000U);
  EXPECT_GE(count(400000), *less * 3);
}

}  // namespace
}  // namespace a2l::test
