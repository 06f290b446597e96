// SPDX-License-Identifier: MIT
//
// From file to file, as the program does it.
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include "a2l2json/export/json_writer.h"
#include "a2l2json/reader/a2l_reader.h"
#include "bench/document.h"
#include "bench/input.h"

namespace a2l::bench {
namespace {

bool Convert(const std::string& a2lPath, const std::string& jsonPath) {
  Tree root(NewTree());
  A2LReader reader;
  JsonWriter writer;
  return reader.Parse(a2lPath, root.get()) && writer.Export(jsonPath, root.get());
}

void Whole(benchmark::State& state) {
  const Input& input = InputOf(state.range(0));
  const MemoryFile a2l("whole.a2l");
  const MemoryFile json("whole.json");
  std::ofstream(a2l.Path(), std::ios::binary) << input.text;
  {
    Tree root = ReadChecked(input, state);
    if (root.get() == nullptr) return;
    if (!Convert(a2l.Path(), json.Path()) || !Complaint(json.Path(), *root).empty()) {
      state.SkipWithError("the file was not converted");
      return;
    }
  }
  for (auto _ : state) {
    state.PauseTiming();
    json.Remove();
    state.ResumeTiming();
    benchmark::DoNotOptimize(Convert(a2l.Path(), json.Path()));
  }
  ReportInput(state, input);
}
BENCHMARK(Whole)->Arg(1)->Arg(8)->Arg(64)->Arg(256)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace a2l::bench
