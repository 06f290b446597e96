// SPDX-License-Identifier: MIT
//
// What holds for every file that is mended: nothing is lost by it, nothing is lost in silence, and
// once is enough. Held on the golden cases, on generated files, on both in layouts picked by
// chance, and on files of users where there are any.
#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/generator/generator.h"
#include "tests/mend/mending.h"
#include "tests/mend/relayout.h"
#include "tests/support/files.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

struct Sample {
  std::string name;
  std::string text;
};

std::vector<Sample> FilesBelow(const fs::path& folder) {
  std::vector<Sample> samples;
  if (!fs::is_directory(folder)) return samples;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() != ".a2l") continue;
    samples.push_back({entry.path().lexically_relative(folder).generic_string(),
                       ReadFile(entry.path())});
  }
  std::ranges::sort(samples, {}, &Sample::name);
  return samples;
}

std::vector<Sample> Generated(std::size_t count) {
  std::vector<Sample> samples;
  for (std::size_t seed = 0; seed < count; ++seed) {
    samples.push_back({"seed " + std::to_string(seed), Generate(seed).text});
  }
  return samples;
}

// Layouts picked by chance of what the samples are when they are mended.
std::vector<Sample> InOtherLayouts(const std::vector<Sample>& samples) {
  std::vector<Sample> others;
  Random random(1);
  for (const Sample& sample : samples) {
    others.push_back({sample.name + " laid out anew",
                      LaidOutAnew(RunMend(sample.text).mended.text, random)});
  }
  return others;
}

const std::vector<Sample>& Samples() {
  static const std::vector<Sample> all = [] {
    std::vector<Sample> samples = FilesBelow(A2L2JSON_CASES);
    for (auto& sample : FilesBelow(A2L2JSON_CORPUS)) samples.push_back(std::move(sample));
    for (auto& sample : Generated(1500)) samples.push_back(std::move(sample));
    std::vector<Sample> others = InOtherLayouts(samples);
    for (auto& sample : others) samples.push_back(std::move(sample));
    return samples;
  }();
  return all;
}

TEST(MendProperties, Done) {
  for (const Sample& sample : Samples()) {
    const MendRun once = RunMend(sample.text);
    const MendRun twice = RunMend(once.mended.text);
    EXPECT_EQ(once.mended.text, twice.mended.text) << sample.name << "\n" << sample.text;
    for (const KeptFinding& finding : twice.findings) {
      EXPECT_FALSE(finding.IsMendable()) << sample.name << "\n" << finding.text;
    }
  }
}

TEST(MendProperties, Harmless) {
  for (const Sample& sample : Samples()) {
    const MendRun run = RunMend(sample.text);
    if (!run.findings.empty()) continue;
    EXPECT_TRUE(SameDocument(DocumentOf(sample.text), DocumentOf(run.mended.text))) << sample.name;
  }
}

TEST(MendProperties, Honest) {
  for (const Sample& sample : Samples()) {
    const MendRun run = RunMend(sample.text);
    const bool isSame = SameDocument(DocumentOf(sample.text), DocumentOf(run.mended.text));
    EXPECT_TRUE(isSame || !run.findings.empty()) << sample.name;
  }
}

// Where a keyword has no place, it depends on the layout whether the converter sees it.
bool EndsTheRead(const KeptFinding& finding) {
  return finding.rule == MendRule::Refused || finding.rule == MendRule::BeginMissing ||
         finding.rule == MendRule::BeginRefused || finding.rule == MendRule::EndUnmatched;
}

TEST(MendProperties, Complete) {
  Random random(2);
  for (const Sample& sample : Samples()) {
    const MendRun first = RunMend(sample.text);
    if (std::ranges::any_of(first.findings, &EndsTheRead)) continue;
    const std::string& own = first.mended.text;
    // A text that is not closed has no other layout.
    if (std::ranges::count(own, '"') % 2 != 0) continue;
    const auto document = DocumentOf(own);
    if (!document) continue;
    const std::string other = LaidOutAnew(own, random);
    const std::string mended = RunMend(other).mended.text;
    EXPECT_TRUE(SameDocument(document, DocumentOf(mended))) << sample.name << "\n" << own
        << "\n-----\n" << other << "\n-----\n" << mended;
  }
}

}  // namespace
}  // namespace a2l::test
