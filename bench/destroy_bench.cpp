// SPDX-License-Identifier: MIT
//
// Releasing a tree.
#include "bench/input.h"

namespace a2l::bench {
namespace {

void Destroy(benchmark::State& state) {
  const Input& input = InputOf(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    Tree root = ReadChecked(input, state);
    if (root.get() == nullptr) return;
    state.ResumeTiming();
    DestroyTree(root.release());
  }
  ReportInput(state, input);
}
// The numbers of runs are fixed because reading, which is not timed, takes a hundred times as long.
BENCHMARK(Destroy)->Arg(1)->Iterations(100)->Unit(benchmark::kMillisecond);
BENCHMARK(Destroy)->Arg(8)->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(Destroy)->Arg(64)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(Destroy)->Arg(256)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace a2l::bench
