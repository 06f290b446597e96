// SPDX-License-Identifier: MIT
//
// Runs the benchmarks. To compare whole processes, it can also run the plain copy alone, or check
// what the program has written.
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>

#include "a2l2json/model/tree.h"
#include "a2l2json/reader/a2l_reader.h"
#include "bench/document.h"
#include "bench/plain_copy.h"

namespace {

int Check(const std::string& a2l, const std::string& json) {
  a2l::Tree root;
  a2l::A2LReader reader;
  const std::string complaint = reader.Parse(a2l, root.get()) ? a2l::bench::Complaint(json, *root)
                                                              : "the input cannot be read";
  if (!complaint.empty()) std::fprintf(stderr, "%s: %s\n", json.c_str(), complaint.c_str());
  return complaint.empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::span<char*> words(argv, static_cast<std::size_t>(argc));
  if (words.size() > 1 && std::string_view(words[1]) == "--plain-copy") {
    std::size_t size = 0;
    if (words.size() != 5) {
      std::fprintf(stderr, "usage: %s --plain-copy IN OUT BYTES\n", words[0]);
      return 1;
    }
    const std::string_view text = words[4];
    std::from_chars(text.data(), text.data() + text.size(), size);
    return a2l::bench::PlainCopy(words[2], words[3], size) ? 0 : 1;
  }
  if (words.size() == 4 && std::string_view(words[1]) == "--check") {
    return Check(words[2], words[3]);
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
