// SPDX-License-Identifier: MIT
//
// Export: tree to JSON text that goes nowhere, and the same by way of json11 values.
#include <cstddef>
#include <string_view>

#include "bench/input.h"
#include "export/exporter.h"
#include "export/json11_document.h"
#include "export/json_text.h"
#include "export/json_writer.h"

namespace a2l::bench {
namespace {

std::size_t ExportNowhere(const VoA2LElement& root) {
  std::size_t bytes = 0;
  JsonText text([&bytes](std::string_view piece) {
    bytes += piece.size();
    benchmark::DoNotOptimize(piece.data());
    benchmark::ClobberMemory();
  });
  Exporter(text).Document(root);
  text.Flush();
  return bytes;
}

// True when both ways give the same document; looked at where it takes no minutes.
bool WaysAgree(benchmark::State& state, const VoA2LElement& root) {
  if (state.range(0) > 1) return true;
  const std::string json = ToJson(root);
  if (json.size() == ExportNowhere(root) && json == ToJson11(root).dump()) return true;
  state.SkipWithError("the text and json11 do not agree");
  return false;
}

void Export(benchmark::State& state) {
  const Input& input = InputOf(state.range(0));
  const Tree root = ReadChecked(input, state);
  if (root == nullptr || !WaysAgree(state, *root)) return;
  std::size_t bytes = 0;
  for (auto _ : state) {
    bytes = ExportNowhere(*root);
  }
  ReportInput(state, input);
  state.counters["output/input"] =
      static_cast<double>(bytes) / static_cast<double>(input.text.size());
}
BENCHMARK(Export)->Arg(1)->Arg(8)->Arg(64)->Arg(256)->Unit(benchmark::kMillisecond);

void ExportJson11(benchmark::State& state) {
  const Input& input = InputOf(state.range(0));
  const Tree root = ReadChecked(input, state);
  if (root == nullptr || !WaysAgree(state, *root)) return;
  for (auto _ : state) {
    const std::string json = ToJson11(*root).dump();
    benchmark::DoNotOptimize(json.data());
  }
  ReportInput(state, input);
}
BENCHMARK(ExportJson11)->Arg(1)->Arg(8)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace a2l::bench
