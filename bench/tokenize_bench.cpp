// SPDX-License-Identifier: MIT
//
// Only the tokenizer, on the parameter text of a file: all lines but those with /begin and /end.
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/text/tokenizer.h"
#include "bench/input.h"

namespace a2l::bench {
namespace {

std::vector<std::string_view> ParameterLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    if (line.find("/begin") == std::string_view::npos &&
        line.find("/end") == std::string_view::npos) {
      lines.push_back(line);
    }
    text.remove_prefix(end + 1);
  }
  return lines;
}

std::size_t TakeTokens(std::string_view line) {
  std::size_t count = 0;
  while (!NextToken(line).empty()) ++count;
  return count;
}

std::size_t Count(std::string_view line) { return CountTokens(line); }

// As the reader does it, and hands on what it has found. More of the file follows every line.
std::size_t FindAndTake(std::string_view line) {
  TokenFinder finder;
  finder.Find(line, std::numeric_limits<std::size_t>::max());
  TokenReader tokens = finder.Tokens(line);
  std::size_t count = 0;
  while (!tokens.Next().empty()) ++count;
  return count;
}

using CountLine = std::size_t (*)(std::string_view line);

std::size_t Sum(const std::vector<std::string_view>& lines, CountLine count) {
  std::size_t sum = 0;
  for (const std::string_view line : lines) sum += count(line);
  return sum;
}

void Tokenize(benchmark::State& state, CountLine count) {
  const Input& input = InputOf(state.range(0));
  const std::vector<std::string_view> lines = ParameterLines(input.text);
  const std::size_t tokens = Sum(lines, TakeTokens);
  if (tokens == 0 || Sum(lines, count) != tokens) {
    state.SkipWithError("the ways to find tokens do not agree");
    return;
  }
  for (auto _ : state) {
    benchmark::DoNotOptimize(Sum(lines, count));
  }
  ReportInput(state, input);
  state.counters["time/token"] = benchmark::Counter(
      static_cast<double>(tokens),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

#define A2L_TOKENIZE(name, count)          \
  BENCHMARK_CAPTURE(Tokenize, name, count) \
      ->Arg(1)                             \
      ->Arg(8)                             \
      ->Arg(64)                            \
      ->Arg(256)                           \
      ->Unit(benchmark::kMillisecond)
A2L_TOKENIZE(NextToken, TakeTokens);
A2L_TOKENIZE(CountTokens, Count);
A2L_TOKENIZE(TokenFinder, FindAndTake);

}  // namespace
}  // namespace a2l::bench
