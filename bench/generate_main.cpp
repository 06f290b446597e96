// SPDX-License-Identifier: MIT
//
// Writes A2L text for benchmarks to a file, and says on standard output what it holds.
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <span>
#include <string>
#include <string_view>

#include "bench/generate.h"

namespace {

constexpr const char* kUsage =
    "usage: %s SIZE OUT [--crlf] [--seed N]\n"
    "  SIZE  wanted size in bytes, or with a letter: 500k, 64M (of 1000 and 1000000 bytes)\n"
    "  OUT   file to write\n";

bool ReadNumber(std::string_view text, std::uint64_t& number) {
  const char* const end = text.data() + text.size();
  const auto [read, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && read == end;
}

bool ReadSize(std::string_view text, std::size_t& size) {
  std::uint64_t unit = 1;
  if (text.ends_with('k')) unit = 1000;
  if (text.ends_with('M')) unit = 1'000'000;
  if (unit > 1) text.remove_suffix(1);
  std::uint64_t number = 0;
  if (!ReadNumber(text, number)) return false;
  size = number * unit;
  return true;
}

bool ReadOptions(std::span<char*> words, a2l::bench::GenerateOptions& options) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string_view word = words[i];
    if (word == "--crlf") {
      options.crlf = true;
    } else if (word != "--seed" || ++i == words.size() || !ReadNumber(words[i], options.seed)) {
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::span<char*> words(argv, static_cast<std::size_t>(argc));
  a2l::bench::GenerateOptions options;
  if (words.size() < 3 || !ReadSize(words[1], options.size) ||
      !ReadOptions(words.subspan(3), options)) {
    std::fprintf(stderr, kUsage, words.empty() ? "a2l2json_generate" : words[0]);
    return 1;
  }
  std::ofstream out(words[2], std::ios::binary | std::ios::trunc);
  const a2l::bench::Contents contents = a2l::bench::Generate(options, out);
  out.close();
  if (!out) {
    std::fprintf(stderr, "cannot write %s\n", words[2]);
    return 1;
  }
  std::printf("objects %zu\n", contents.ObjectCount());
  for (const auto& [keyword, count] : contents.objects) {
    std::printf("%s %zu\n", keyword.c_str(), count);
  }
  return 0;
}
