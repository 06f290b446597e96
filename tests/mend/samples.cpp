// SPDX-License-Identifier: MIT
#include "tests/mend/samples.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <utility>

#include "tests/generator/generator.h"
#include "tests/mend/mending.h"
#include "tests/mend/relayout.h"
#include "tests/support/files.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

std::vector<Sample> FilesBelow(const fs::path& folder) {
  std::vector<Sample> samples;
  if (!fs::is_directory(folder)) return samples;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() != ".a2l") continue;
    samples.push_back(
        {entry.path().lexically_relative(folder).generic_string(), ReadFile(entry.path())});
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
  for (const Sample& sample : samples) {
    Random random(sample.name);
    others.push_back(
        {sample.name + " laid out anew", LaidOutAnew(RunMend(sample.text).mended.text, random)});
  }
  return others;
}

}  // namespace

const std::vector<Sample>& MendSamples() {
  static const std::vector<Sample> all = [] {
    std::vector<Sample> samples = FilesBelow(A2L2JSON_CASES);
    for (auto& sample : FilesBelow(A2L2JSON_CORPUS)) samples.push_back(std::move(sample));
    for (auto& sample : Generated(60)) samples.push_back(std::move(sample));
    std::vector<Sample> others = InOtherLayouts(samples);
    for (auto& sample : others) samples.push_back(std::move(sample));
    return samples;
  }();
  return all;
}

}  // namespace a2l::test
