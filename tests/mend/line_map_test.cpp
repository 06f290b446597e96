// SPDX-License-Identifier: MIT
//
// Where the lines of mended texts come from.
#include "a2l2json/mend/line_map.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/mend/mending.h"
#include "tests/mend/samples.h"

namespace a2l::test {
namespace {

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1);
    lines.push_back(text.substr(0, end + 1));
    text.remove_prefix(end + 1);
  }
  return lines;
}

// The mended text, each line behind where it comes from: "b:7 ASAP2_VERSION 1 71".
std::string Mapped(const MendRun& run) {
  std::string mapped;
  std::size_t number = 0;
  for (const std::string_view line : LinesOf(run.mended.text)) {
    const SourceLine place = run.lines.Of(++number);
    if (place.file != "file.a2l") mapped.append(place.file) += ":";
    mapped += std::to_string(place.line) + "|";
    mapped += line;
  }
  return mapped;
}

TEST(LineMap, IsThatOfTheLineWhereALineBegins) {
  EXPECT_EQ(
      Mapped(RunMend("\n\n/begin\nPROJECT p\n\"\"  /begin /* a\n comment */ MODULE m \"a\nb\"\n"
                     "/end MODULE /end PROJECT")),
      "3|/begin PROJECT p \"\"\n"
      "5|  /begin MODULE m \"a b\"\n"
      "8|  /end MODULE\n"
      "8|/end PROJECT\n");
}

TEST(LineMap, KnowsTheLinesOfInterfaceData) {
  EXPECT_EQ(Mapped(RunMend("/begin PROJECT p \"\"\n/begin MODULE m \"\"\n"
                           "/begin IF_DATA X\n\n  one\n  two\n\n  three \"a\nb\" // c\n\n"
                           "/end IF_DATA\n/begin IF_DATA Y\n \n/end IF_DATA\n"
                           "/end MODULE\n/end PROJECT\n")),
            "1|/begin PROJECT p \"\"\n"
            "2|  /begin MODULE m \"\"\n"
            "3|    /begin IF_DATA X\n"
            "5|  one\n"
            "6|  two\n"
            "7|\n"
            "8|  three \n"
            "8| \"a b\" // c\n"
            "11|    /end IF_DATA\n"
            "12|    /begin IF_DATA Y\n"
            "14|    /end IF_DATA\n"
            "15|  /end MODULE\n"
            "16|/end PROJECT\n");
}

TEST(LineMap, NamesIncludedFiles) {
  EXPECT_EQ(Mapped(RunMend("// main\n/include \"a\" /begin PROJECT p \"\"\n/begin MODULE m \"\"\n"
                           "/begin A2ML\nx\n/include \"b\" y\n/end A2ML\n/end MODULE\n/end PROJECT",
                           {{"a", "\n\nASAP2_VERSION\n1 71\n"}, {"b", "block {\n};\n"}})),
            "a:3|ASAP2_VERSION 1 71\n"
            "2|/begin PROJECT p \"\"\n"
            "3|  /begin MODULE m \"\"\n"
            "4|    /begin A2ML\n"
            "5| x\n"
            "b:1|block {\n"
            "b:2|};\n"
            "6| y\n"
            "7|    /end A2ML\n"
            "8|  /end MODULE\n"
            "9|/end PROJECT\n");
}

TEST(LineMap, KnowsWhatIsBehindTheEnd) {
  const MendRun run = RunMend("\nASAP2_VERSION 1 71\n");
  EXPECT_EQ(run.lines.Of(2).line, 2U);
  EXPECT_EQ(run.lines.Of(99).line, 2U);
  EXPECT_EQ(RunMend("").lines.Of(1).line, 1U);
  EXPECT_EQ(RunMend("").lines.Of(1).file, "");
}

TEST(LineMap, LeadsThroughTwoTextsToTheFirst) {
  LineMap first;
  for (const std::size_t line : {1U, 5U, 6U}) first.BeginLine("a", line);
  LineMap second;
  for (const std::size_t line : {1U, 2U, 2U, 3U}) second.BeginLine("", line);
  second.SetLinesBefore(1);
  const LineMap both = first.Through(second);
  std::vector<std::size_t> lines;
  for (std::size_t line = 1; line <= 5; ++line) lines.push_back(both.Of(line).line);
  EXPECT_EQ(lines, (std::vector<std::size_t>{1, 1, 5, 5, 6}));
  EXPECT_EQ(both.Of(5).file, "a");
}

// The first word of a mended line stands in the line that the map tells, unless mending has made
// it.
TEST(LineMap, LeadsToTheWordsOfTheLine) {
  std::size_t looked = 0;
  for (const Sample& sample : MendSamples()) {
    const MendRun run = RunMend(sample.text);
    const bool isMade = std::ranges::any_of(run.findings, [](const KeptFinding& finding) {
      return finding.rule == MendRule::EndMissing || finding.rule == MendRule::Utf16 ||
             finding.rule == MendRule::TextWithoutEnd || finding.rule == MendRule::LineEnds;
    });
    if (isMade) continue;
    const std::vector<std::string_view> source = LinesOf(sample.text);
    std::size_t number = 0;
    for (const std::string_view line : LinesOf(run.mended.text)) {
      const SourceLine place = run.lines.Of(++number);
      const std::size_t begin = line.find_first_not_of(" \t\v\f\r\n");
      if (begin == std::string_view::npos) continue;
      const std::string_view word =
          line.substr(begin, line.find_first_of(" \t\v\f\r\n", begin) - begin);
      ASSERT_LE(place.line, source.size()) << sample.name;
      ASSERT_NE(source[place.line - 1].find(word), std::string_view::npos) << sample.name << "\n"
                                                                           << sample.text << "\n"
                                                                           << Mapped(run);
      ++looked;
    }
  }
  EXPECT_GT(looked, 10000U);
}

}  // namespace
}  // namespace a2l::test
