// SPDX-License-Identifier: MIT
//
// Only the tokenizer, on the parameter text of a file: all lines but those with /begin and /end.
#include <cstddef>
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

// Line by line, as the reader does while it collects parameters.
std::size_t CountGrowing(std::string_view line) {
  TokenCounter counter;
  counter.Continue(line);
  return counter.Count();
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
A2L_TOKENIZE(TokenCounter, CountGrowing);

}  // namespace
}  // namespace a2l::bench
