// SPDX-License-Identifier: MIT
//
// What holds for every file that is mended: nothing is lost by it, nothing is lost in silence, and
// once is enough. Held on the golden cases, on generated files, on both in layouts picked by
// chance, and on files of users where there are any. The XML report has the numbers of files.
#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/mend/mending.h"
#include "tests/mend/relayout.h"
#include "tests/mend/samples.h"

namespace a2l::test {
namespace {

TEST(MendProperties, Done) {
  for (const Sample& sample : MendSamples()) {
    const MendRun once = RunMend(sample.text);
    const MendRun twice = RunMend(once.mended.text);
    EXPECT_EQ(once.mended.text, twice.mended.text) << sample.name << "\n" << sample.text;
    for (const KeptFinding& finding : twice.findings) {
      EXPECT_FALSE(finding.IsMendable()) << sample.name << "\n" << finding.text;
    }
  }
  RecordProperty("files", std::to_string(MendSamples().size()));
}

TEST(MendProperties, Harmless) {
  std::size_t files = 0;
  for (const Sample& sample : MendSamples()) {
    const MendRun run = RunMend(sample.text);
    if (!run.findings.empty()) continue;
    ++files;
    EXPECT_TRUE(SameDocument(DocumentOf(sample.text), DocumentOf(run.mended.text))) << sample.name;
  }
  RecordProperty("files", std::to_string(files));
}

// Where a keyword has no place, it depends on the layout whether the converter sees it.
bool EndsTheRead(const KeptFinding& finding) {
  return finding.rule == MendRule::Refused || finding.rule == MendRule::BeginMissing ||
         finding.rule == MendRule::BeginRefused || finding.rule == MendRule::EndUnmatched;
}

// What is not closed has no other layout, and looks like this; a mended text is on one line.
bool IsTextOverLines(std::string_view word) {
  return word.starts_with('"') &&
         (word.find('\n') != std::string_view::npos || word.size() < 2 || !word.ends_with('"'));
}

TEST(MendProperties, Complete) {
  std::size_t files = 0;
  for (const Sample& sample : MendSamples()) {
    const MendRun first = RunMend(sample.text);
    if (std::ranges::any_of(first.findings, &EndsTheRead)) continue;
    const std::string& own = first.mended.text;
    if (std::ranges::any_of(WordsOf(own), &IsTextOverLines)) continue;
    const auto document = DocumentOf(own);
    if (!document) continue;
    ++files;
    Random random("once more: " + sample.name);
    const std::string other = LaidOutAnew(own, random);
    const std::string mended = RunMend(other).mended.text;
    EXPECT_TRUE(SameDocument(document, DocumentOf(mended))) << sample.name << "\n"
                                                            << own << "\n-----\n"
                                                            << other << "\n-----\n"
                                                            << mended;
  }
  RecordProperty("files", std::to_string(files));
}

}  // namespace
}  // namespace a2l::test
