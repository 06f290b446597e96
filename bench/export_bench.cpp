// SPDX-License-Identifier: MIT
//
// Export: from a tree to JSON text that is thrown away, directly and by way of json11 values.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "a2l2json/export/exporter.h"
#include "a2l2json/export/json11_document.h"
#include "a2l2json/export/json_text.h"
#include "a2l2json/export/json_writer.h"
#include "bench/input.h"
#include "tests/support/json_check.h"

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

// True if both ways give the same document. If json11 would take gigabytes, a JSON reader must
// accept the text instead.
bool IsRight(benchmark::State& state, const VoA2LElement& root) {
  constexpr std::int64_t kMostForJson11 = 8;
  const std::string json = ToJson(root);
  if (json.size() == ExportNowhere(root) &&
      (state.range(0) <= kMostForJson11 ? json == ToJson11(root).dump()
                                        : test::JsonCheck::Complaint(json).empty())) {
    return true;
  }
  state.SkipWithError("the document is not right");
  return false;
}

void Export(benchmark::State& state) {
  const Input& input = InputOf(state.range(0));
  Tree root = ReadChecked(input, state);
  if (root.get() == nullptr || !IsRight(state, *root)) return;
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
  Tree root = ReadChecked(input, state);
  if (root.get() == nullptr || !IsRight(state, *root)) return;
  for (auto _ : state) {
    const std::string json = ToJson11(*root).dump();
    benchmark::DoNotOptimize(json.data());
  }
  ReportInput(state, input);
}
BENCHMARK(ExportJson11)->Arg(1)->Arg(8)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace a2l::bench
