// SPDX-License-Identifier: MIT
//
// Inputs of extreme size or shape. Their results, including sizes, were worked out by hand. That
// the tests end at all is also a result: work that grows faster than the input would not end.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/elements/blocks/conversion.h"
#include "a2l2json/elements/blocks/functions.h"
#include "a2l2json/elements/blocks/project.h"
#include "a2l2json/elements/blocks/raw.h"
#include "a2l2json/export/json_writer.h"
#include "tests/support/json_check.h"
#include "tests/support/trees.h"
#include "tests/torture/generated_text.h"

namespace a2l::test {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr const char* kHead = "/begin PROJECT p \"\"\n/begin MODULE m \"\"\n";  // two lines
constexpr const char* kTail = "/end MODULE\n/end PROJECT\n";

std::size_t CountOf(std::string_view what, std::string_view text) {
  std::size_t count = 0;
  for (std::size_t i = text.find(what); i != std::string_view::npos;
       i = text.find(what, i + what.size())) {
    ++count;
  }
  return count;
}

void ExpectClean(const Reading& reading) {
  EXPECT_TRUE(reading.ok);
  EXPECT_EQ(reading.reader.message, "");
}

// Exactly one message, and the result that belongs to it.
void ExpectOne(const Reading& reading, DiagnosticKind kind, std::size_t line,
               std::string_view subject) {
  ASSERT_EQ(reading.reader.diagnostics.size(), 1U);
  const Diagnostic& diagnostic = reading.reader.diagnostics.front();
  EXPECT_EQ(diagnostic.kind, kind);
  EXPECT_EQ(diagnostic.line, line);
  EXPECT_TRUE(diagnostic.subject == subject) << diagnostic.subject.size() << " bytes";
  EXPECT_EQ(reading.ok, diagnostic.GetSeverity() == Severity::Warning);
}

std::string JsonOf(const Reading& reading) {
  std::string json = ToJson(*reading.root);
  EXPECT_EQ(JsonCheck::Complaint(json), "");
  return json;
}

const VoA2LElement& FirstModule(const Reading& reading) {
  return *reading.root->Child(0)->Child(0);
}

template <class Element>
const Element& FirstInModule(const Reading& reading) {
  return static_cast<const Element&>(*FirstModule(reading).Child(0));
}

TEST(Torture, ALineOf64MegabytesIsOneWord) {
  const std::size_t size = 64 * kMegabyte;
  Reading reading = ReadParts({kHead, {"x", size}, "\n", kTail});
  ExpectOne(reading, DiagnosticKind::UnexpectedElement, 3, std::string(size, 'x'));
}

TEST(Torture, AQuotedTextOf16MegabytesIsUnquotedAndEscaped) {
  const std::size_t count = 2 * kMegabyte;  // of 8 bytes
  Reading reading = ReadParts(
      {kHead, "/begin MOD_COMMON \"", {R"(ab\"cd"")", count}, "\"\n/end MOD_COMMON\n", kTail});
  ExpectClean(reading);
  const std::string_view comment = FirstInModule<VoA2LElementModCommon>(reading).COMMENT;
  EXPECT_EQ(comment.size(), count * 6);
  EXPECT_EQ(CountOf(R"(ab"cd")", comment), count);
  EXPECT_EQ(CountOf(R"(ab\"cd\")", JsonOf(reading)), count);
}

TEST(Torture, ATextWithoutClosingQuoteTakesTheRestOfItsBlock) {
  const std::size_t count = kMillion;
  const Reading reading =
      ReadParts({kHead, "/begin MOD_COMMON \"", {"a b\n", count}, "/end MOD_COMMON\n", kTail});
  ExpectOne(reading, DiagnosticKind::NeedMoreParameters, count + 3, "1");
  // Lines are joined by a blank. The white space at the end is lost.
  EXPECT_EQ(FirstInModule<VoA2LElementModCommon>(reading).COMMENT.size(), count * 4 - 1);
}

TEST(Torture, ACommentOverAMillionLinesCountsThem) {
  const std::size_t count = kMillion;
  Reading reading = ReadParts({kHead, "/*", {" * \"text\n", count}, "*/ word\n", kTail});
  ExpectOne(reading, DiagnosticKind::UnexpectedElement, count + 3, "word");
}

TEST(Torture, ACommentOfStarsThatTheFileEndsInIsAnError) {
  Reading reading = ReadParts({kHead, "/*", {"*\n", kMillion}});
  ExpectOne(reading, DiagnosticKind::UnterminatedComment, kMillion + 2, "");
}

TEST(Torture, FourMillionCommentsOnOneLineLeaveWhatIsBetweenThem) {
  const std::size_t count = 4 * kMillion;
  Reading reading = ReadParts({kHead, {"/**/x", count}, "\n", kTail});
  ExpectOne(reading, DiagnosticKind::UnexpectedElement, 3, std::string(count, 'x'));
}

TEST(Torture, BlankLinesAreCounted) {
  const std::size_t count = kMillion;
  Reading reading = ReadParts({{"\n \t\r\n", count}, "word\n"});
  ExpectOne(reading, DiagnosticKind::UnexpectedElement, 2 * count + 1, "word");
}

TEST(Torture, AMillionWarningsAreKept) {
  const std::size_t count = kMillion;
  Reading reading = ReadParts({{"word\n", count}});
  EXPECT_TRUE(reading.ok);
  ASSERT_EQ(reading.reader.diagnostics.size(), count);
  EXPECT_EQ(reading.reader.diagnostics.back().line, count);
  EXPECT_EQ(CountOf("unexpected element word\n", reading.reader.message), count);
}

TEST(Torture, AMillionRowsOfATable) {
  const std::size_t count = kMillion;
  const std::string head = "/begin COMPU_VTAB v \"\" TAB_VERB " + std::to_string(count);
  for (const char* separator : {"\n", " "}) {
    const auto row = [separator](std::size_t i) {
      return separator + std::to_string(i) + " \"" + std::to_string(i % 10) + "\"";
    };
    const Reading reading =
        ReadParts({kHead, head.c_str(), {row, count}, "\n/end COMPU_VTAB\n", kTail});
    ExpectClean(reading);
    const auto& table = FirstInModule<VoA2LElementCompuVtab>(reading);
    EXPECT_EQ(table.NUMBER_VALUE_PAIRS, count);
    ASSERT_EQ(table.IN_VAL.size(), count);
    ASSERT_EQ(table.OUT_VAL.size(), count);
    std::size_t wrong = 0;
    for (std::size_t i = 0; i < count; ++i) {
      const bool right = table.IN_VAL[i] == static_cast<double>(i) &&
                         table.OUT_VAL[i] == std::string_view("0123456789").substr(i % 10, 1);
      wrong += right ? 0 : 1;
    }
    EXPECT_EQ(wrong, 0U);
    EXPECT_EQ(CountOf("\"7\"", JsonOf(reading)), count / 10);
  }
}

TEST(Torture, AListOfAMillionNames) {
  const std::size_t count = kMillion;
  for (const char* separator : {"\n", " "}) {
    const auto name = [separator](std::size_t i) { return separator + ("n" + std::to_string(i)); };
    Reading reading = ReadParts({kHead,
                                 "/begin GROUP g \"\"\n/begin REF_CHARACTERISTIC",
                                 {name, count},
                                 "\n/end REF_CHARACTERISTIC\n/end GROUP\n",
                                 kTail});
    ExpectClean(reading);
    const auto& list = static_cast<const VoA2LElementRefCharacteristic&>(
        *FirstInModule<VoA2LElementGroup>(reading).Child(0));
    ASSERT_EQ(list.IDENTIFIER_LIST.size(), count);
    std::size_t wrong = 0;
    for (std::size_t i = 0; i < count; ++i) {
      wrong += list.IDENTIFIER_LIST[i] == "n" + std::to_string(i) ? 0 : 1;
    }
    EXPECT_EQ(wrong, 0U);
    EXPECT_EQ(CountOf(",n", JsonOf(reading)), count - 1);
  }
}

// Every fourth block accepts a project, which begins the next round. The depth is the same in every
// build, because this tests the stack, and instrumented builds have room for less on it.
TEST(Torture, BlocksNested300000Deep) {
  const std::size_t rounds = 75000;
  Reading reading =
      ReadParts({{"/begin PROJECT p \"\"\n/begin MODULE m \"\"\n"
                  "/begin MEASUREMENT x \"\" UBYTE c 1 1 0 1\n/begin VIRTUAL\na\n",
                  rounds},
                 {"/end VIRTUAL\n/end MEASUREMENT\n/end MODULE\n/end PROJECT\n", rounds},
                 "word\n"});
  ExpectOne(reading, DiagnosticKind::UnexpectedElement, 9 * rounds + 1, "word");
  std::size_t depth = 0;
  for (const VoA2LElement* element = reading.root->Child(0); element != nullptr;
       element = element->Child(0)) {
    ++depth;
  }
  EXPECT_EQ(depth, 4 * rounds);
  // Elements inside a list are neither exported nor written.
  const std::string json = JsonOf(reading);
  EXPECT_EQ(CountOf("\"FVIRTUAL\": \"a\"", json), 1U);
  EXPECT_EQ(CountOf("\"FMEASUREMENT\": [{", json), 1U);
  EXPECT_EQ(Written(*reading.root),
            "/begin PROJECT p \"\"\n"
            "  /begin MODULE m \"\"\n"
            "    /begin MEASUREMENT x \"\"\n"
            "      UBYTE c 1 1 0 1\n"
            "      /begin VIRTUAL\n"
            "        a\n"
            "      /end VIRTUAL\n"
            "    /end MEASUREMENT\n"
            "  /end MODULE\n"
            "/end PROJECT\n");
}

TEST(Torture, TenThousandModules) {
  const std::size_t count = 10000;
  const auto module = [](std::size_t i) {
    return "/begin MODULE m" + std::to_string(i) + " \"\"\n/end MODULE\n";
  };
  Reading reading = ReadParts({"/begin PROJECT p \"\"\n", {module, count}, "/end PROJECT\n"});
  ExpectClean(reading);
  EXPECT_EQ(reading.root->Child(0)->ChildCount(), count);
  const std::string json = JsonOf(reading);
  EXPECT_EQ(CountOf("\"FNAME\": \"m", json), count);
  EXPECT_EQ(CountOf("\"FDatabaseName\": \"m0\"", json), 1U);
  EXPECT_LT(json.find("\"m1234\""), json.find("\"m1235\""));
}

TEST(Torture, AnObjectWithAMillionProperties) {
  const std::size_t count = kMillion;
  Reading reading = ReadParts({kHead,
                               "/begin MEASUREMENT x \"\" UBYTE c 1 1 0 1\n",
                               {"FORMAT \"%5.2\"\n", count},
                               "FORMAT \"\"\n/end MEASUREMENT\n",
                               kTail});
  ExpectOne(reading, DiagnosticKind::WrongParameters, count + 4, "MEASUREMENT");
  EXPECT_EQ(FirstModule(reading).Child(0)->ChildCount(), count + 1);
  EXPECT_EQ(CountOf("\"FFORMAT\": \"%5.2\"", JsonOf(reading)), 1U);
}

TEST(Torture, InterfaceDataOf32MegabytesStaysAsItIs) {
  const std::string piece = "/begin A 1 \"/* no */\"\n x\n/end A\n";
  const std::size_t count = 32 * kMegabyte / piece.size();
  Reading reading = ReadParts(
      {kHead, "/begin IF_DATA X\n /begin B\n", {piece, count}, "/end B\n/end IF_DATA\n", kTail});
  ExpectClean(reading);
  const auto& data = FirstInModule<VoA2LElementIfData>(reading);
  EXPECT_EQ(data.NAME, "X");
  ASSERT_EQ(data.IF_DATA.size(), " /begin B\n"sv.size() + count * piece.size() + "/end B"sv.size());
  EXPECT_EQ(CountOf(piece, data.IF_DATA), count);
}

TEST(Torture, AMillionMarkersInInterfaceData) {
  const std::size_t count = kMillion;
  Reading reading = ReadParts({kHead,
                               "/begin IF_DATA X v ",
                               {"/begin A", count},
                               {"/end A", count},
                               "/end IF_DATA\n",
                               kTail});
  ExpectClean(reading);
  const std::string_view data = FirstInModule<VoA2LElementIfData>(reading).IF_DATA;
  EXPECT_EQ(CountOf("\n/begin A", data), count);
  EXPECT_EQ(CountOf("\n/end A", data), count);
}

// The declared count only decides how many tokens the reader waits for. That number wraps around at
// 32 bits and is then taken as a signed one.
TEST(Torture, TheLargestCountsWithoutARow) {
  struct Row {
    const char* table;
    const char* keyword;
    DiagnosticKind kind;
    std::size_t line;
    const char* subject;
    std::size_t values;
  };
  constexpr auto kWrong = DiagnosticKind::WrongParameters;
  constexpr auto kMore = DiagnosticKind::NeedMoreParameters;
  const Row rows[] = {
      {"t \"\" TAB_INTP 4294967295", "COMPU_TAB", kWrong, 3, "COMPU_TAB", 1},
      {"t \"\" TAB_INTP 2147483648", "COMPU_TAB", kWrong, 3, "COMPU_TAB", 1},
      {"t \"\" TAB_INTP 1073741823", "COMPU_TAB", kMore, 4, "2147483646", 0},
      {"t \"\" TAB_VERB 4294967295", "COMPU_VTAB", kWrong, 3, "COMPU_VTAB", 1},
      {"t \"\" 4294967295", "COMPU_VTAB_RANGE", kWrong, 3, "COMPU_VTAB_RANGE", 1},
      {"t \"\" 1431655766", "COMPU_VTAB_RANGE", kMore, 4, "2", 0},
  };
  for (const Row& row : rows) {
    Reading reading = Read(kHead + "/begin "s + row.keyword + " " + row.table + "\n/end " +
                           row.keyword + "\n" + kTail);
    ExpectOne(reading, row.kind, row.line, row.subject);
    const VoA2LElement& table = *FirstModule(reading).Child(0);
    const std::size_t values =
        table.kind == ElementKind::COMPU_TAB
            ? static_cast<const VoA2LElementCompuTab&>(table).IN_VAL.size()
        : table.kind == ElementKind::COMPU_VTAB
            ? static_cast<const VoA2LElementCompuVtab&>(table).IN_VAL.size()
            : static_cast<const VoA2LElementCompuVtabRange&>(table).IN_VAL_MIN.size();
    EXPECT_EQ(values, row.values) << row.keyword << " " << row.table;
  }
}

TEST(Torture, NumbersOfAMillionDigits) {
  const std::size_t count = kMillion;
  Reading reading = ReadParts({kHead,
                               "/begin COMPU_TAB t \"\" TAB_INTP 2\n1",
                               {"0", count},
                               "\n0.",
                               {"0", count},
                               "1\n1e",
                               {"9", count},
                               "\n0x1.",
                               {"0", count},
                               "\n/end COMPU_TAB\n",
                               kTail});
  ExpectClean(reading);
  const auto& table = FirstInModule<VoA2LElementCompuTab>(reading);
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(std::ranges::equal(table.IN_VAL, std::vector{kInfinity, kInfinity}));
  EXPECT_TRUE(std::ranges::equal(table.OUT_VAL, std::vector{0.0, 1.0}));
}

TEST(Torture, NulBytesAreBytes) {
  const std::size_t count = kMegabyte;
  ExpectOne(ReadParts({{"\0"sv, count}}), DiagnosticKind::UnexpectedElement, 1,
            std::string(count, '\0'));
  Reading reading = Read("/begin PROJECT p\0q \"a\0b\"\n/end PROJECT\0\n"sv);
  // This word has a NUL in it, so it is not a keyword.
  ExpectOne(reading, DiagnosticKind::EndDoesNotMatch, 2, "PROJECT");
  const auto& project = static_cast<const VoA2LElementProject&>(*reading.root->Child(0));
  EXPECT_EQ(project.NAME, "p\0q"sv);
  EXPECT_EQ(project.LONG_IDENTIFIER, "a\0b"sv);
  EXPECT_EQ(CountOf(R"("p\u0000q")", JsonOf(reading)), 1U);
}

TEST(Torture, NothingButOneMarker) {
  for (const char* text : {"/begin", "/begin\n", "/end", " \t/end\r\n\r\n", "x/begin"}) {
    Reading reading = Read(text);
    ExpectClean(reading);
    EXPECT_EQ(reading.root->ChildCount(), 0U);
  }
}

TEST(Torture, AMillionMarkersWithoutAKeyword) {
  ExpectOne(ReadParts({{"/begin ", kMillion}}), DiagnosticKind::UnexpectedBegin, 1, "0");
  ExpectOne(ReadParts({{"/begin", kMillion}}), DiagnosticKind::UnexpectedBegin, 1, "0");
  // The first one waits for its keyword on the next line, where the second one stands.
  ExpectOne(ReadParts({{"/begin\n", kMillion}}), DiagnosticKind::UnexpectedBegin, 2, "0");
  ExpectOne(ReadParts({{"/end ", kMillion}}), DiagnosticKind::EndDoesNotMatch, 1, "");
  ExpectOne(ReadParts({{"/end\n", kMillion}}), DiagnosticKind::EndDoesNotMatch, 2, "");
}

TEST(Torture, AMillionUnknownBlocksInEachOtherAreOne) {
  for (const char* block : {"/begin X ", "/begin X\n"}) {
    Reading reading = ReadParts({{block, kMillion}});
    ExpectClean(reading);
    ASSERT_EQ(reading.root->ChildCount(), 1U);
    EXPECT_EQ(reading.root->Child(0)->kind, KIND_UNKNOWN);
    EXPECT_EQ(reading.root->Child(0)->ChildCount(), 0U);
  }
}

TEST(Torture, AMillionBlocksBesideEachOtherOnOneLine) {
  const std::size_t count = kMillion;
  const Reading reading =
      ReadParts({"/begin PROJECT p \"\"", {"/begin X a/end X", count}, "/end PROJECT"});
  ExpectClean(reading);
  EXPECT_EQ(reading.root->Child(0)->ChildCount(), count);
}

TEST(Torture, AMillionCriteriaOfWhichHalfOccurTwice) {
  const std::size_t names = kMillion / 2;
  const auto pair = [](std::size_t i) {
    // Every name once, in mixed order, then all of them again with another value.
    return "c" + std::to_string(i * 7919 % names) + (i < names ? " first\n" : " second\n");
  };
  Reading reading = ReadParts({kHead,
                               "/begin VARIANT_CODING\n/begin VAR_FORBIDDEN_COMB\n",
                               {pair, 2 * names},
                               "/end VAR_FORBIDDEN_COMB\n/end VARIANT_CODING\n",
                               kTail});
  ExpectClean(reading);
  const std::string json = JsonOf(reading);
  EXPECT_EQ(CountOf("\": \"first\"", json), names);
  EXPECT_EQ(CountOf("\": \"second\"", json), 0U);
}

TEST(Torture, RandomBytesEndInADocument) {
  std::minstd_rand random(20240229);
  // Plain bytes, and bytes that often form markers, quotes and comments.
  for (const std::string_view alphabet : {""sv, "/begindX \n\"*\\\r\t"sv}) {
    for (int round = 0; round < 20; ++round) {
      std::string bytes;
      while (bytes.size() < 200000 / kScaleDown) {
        const auto number = static_cast<std::size_t>(random() >> 4U);
        bytes += alphabet.empty() ? static_cast<char>(number & 0xFFU)
                                  : alphabet[number % alphabet.size()];
      }
      Reading reading = Read(bytes);
      const std::vector<Diagnostic>& diagnostics = reading.reader.diagnostics;
      const bool failed =
          !diagnostics.empty() && diagnostics.back().GetSeverity() == Severity::Error;
      EXPECT_EQ(reading.ok, !failed);
      EXPECT_TRUE(std::ranges::is_sorted(diagnostics, {}, &Diagnostic::line));
      JsonOf(reading);
    }
  }
}

TEST(Torture, AnEmptyFileIsAnEmptyTree) {
  for (const char* text : {"", "\n", " ", "\r\n\r\n", "//", "/**/"}) {
    Reading reading = Read(text);
    ExpectClean(reading);
    EXPECT_EQ(reading.root->ChildCount(), 0U);
    EXPECT_EQ(CountOf("\"FModules\": []", JsonOf(reading)), 1U);
  }
}

TEST(Torture, TheLastLineNeedsNoLineFeed) {
  for (const char* end : {"", "\n", "\r\n", "\n\n"}) {
    const Reading closed = Read(kHead + "/end MODULE\n/end PROJECT"s + end);
    ExpectClean(closed);
    EXPECT_EQ(closed.root->Child(0)->ChildCount(), 1U);
    ExpectOne(Read(kHead + "word"s + end), DiagnosticKind::UnexpectedElement, 3, "word");
  }
}

}  // namespace
}  // namespace a2l::test
