// SPDX-License-Identifier: MIT
//
// Reading: only lines, and from text to tree.
#include <algorithm>
#include <cstddef>
#include <string_view>

#include "a2l2json/reader/a2l_reader.h"
#include "a2l2json/reader/line_source.h"
#include "bench/input.h"

namespace a2l::bench {
namespace {

std::size_t CountLines(std::string_view text) {
  ViewStream in(text);
  LineSource lines(in);
  std::size_t count = 0;
  for (std::string_view line; lines.Next(line); ++count) benchmark::DoNotOptimize(line);
  return count;
}

void Lines(benchmark::State& state) {
  const Input& input = InputOf(state.range(0));
  if (static_cast<std::ptrdiff_t>(CountLines(input.text)) != std::ranges::count(input.text, '\n')) {
    state.SkipWithError("lines are missing");
    return;
  }
  for (auto _ : state) {
    benchmark::DoNotOptimize(CountLines(input.text));
  }
  ReportInput(state, input);
}
BENCHMARK(Lines)->Arg(1)->Arg(8)->Arg(64)->Unit(benchmark::kMillisecond);

// The tree is released outside of the timed part. The benchmark Destroy times that.
void Read(benchmark::State& state) {
  const Input& input = InputOf(state.range(0));
  if (ReadChecked(input, state).get() == nullptr) return;
  for (auto _ : state) {
    Tree root(NewTree());
    A2LReader reader;
    ViewStream in(input.text);
    benchmark::DoNotOptimize(reader.Parse(in, root.get()));
    state.PauseTiming();
    root = Tree(nullptr);
    state.ResumeTiming();
  }
  ReportInput(state, input);
}
BENCHMARK(Read)->Arg(1)->Arg(8)->Arg(64)->Arg(256)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace a2l::bench
