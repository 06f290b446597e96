// SPDX-License-Identifier: MIT
//
// The physical limit, to compare the whole conversion with.
#include <filesystem>
#include <fstream>

#include "a2l2json/export/json_writer.h"
#include "bench/input.h"
#include "bench/plain_copy.h"

namespace a2l::bench {
namespace {

void Limit(benchmark::State& state) {
  const Input& input = InputOf(state.range(0));
  const MemoryFile a2l("limit.a2l");
  const MemoryFile json("limit.json");
  std::ofstream(a2l.Path(), std::ios::binary) << input.text;
  std::uintmax_t size = 0;
  {
    Tree root = ReadChecked(input, state);
    if (root.get() == nullptr) return;
    JsonWriter().Export(json.Path(), root.get());
    size = std::filesystem::file_size(json.Path());
  }
  if (size == 0 || !PlainCopy(a2l.Path(), json.Path(), size) ||
      std::filesystem::file_size(json.Path()) != size) {
    state.SkipWithError("the file was not written");
    return;
  }
  for (auto _ : state) {
    state.PauseTiming();
    json.Remove();
    state.ResumeTiming();
    benchmark::DoNotOptimize(PlainCopy(a2l.Path(), json.Path(), size));
  }
  ReportInput(state, input);
}
BENCHMARK(Limit)->Arg(1)->Arg(8)->Arg(64)->Arg(256)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace a2l::bench
