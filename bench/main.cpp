// SPDX-License-Identifier: MIT
//
// Runs the benchmarks; or, for a comparison of whole processes, the plain copy alone.
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <span>
#include <string_view>

#include <benchmark/benchmark.h>

#include "bench/plain_copy.h"

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
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
