// SPDX-License-Identifier: MIT
#include "bench/input.h"

#include <map>
#include <sstream>
#include <system_error>
#include <utility>

#include <unistd.h>

#include "a2l2json/model/keywords.h"
#include "a2l2json/reader/a2l_reader.h"

namespace a2l::bench {
namespace {

Contents ContentsOf(const VoA2LElement& root) {
  Contents contents;
  for (const VoA2LElement* project : root.children) {
    for (const VoA2LElement* module : project->children) {
      for (const VoA2LElement* object : module->children) {
        ++contents.objects[std::string(KindToKeyword(object->kind))];
      }
    }
  }
  return contents;
}

}  // namespace

const Input& InputOf(std::int64_t megabytes) {
  static std::map<std::int64_t, Input> inputs;
  const auto [place, isNew] = inputs.try_emplace(megabytes);
  Input& input = place->second;
  if (isNew) {
    std::ostringstream out;
    input.contents =
        Generate({.size = static_cast<std::size_t>(megabytes) * 1'000'000, .seed = 1}, out);
    input.text = std::move(out).str();
  }
  return input;
}

Tree ReadChecked(const Input& input, benchmark::State& state) {
  Tree root(NewTree());
  A2LReader reader;
  ViewStream in(input.text);
  if (!reader.Parse(in, root.get())) {
    state.SkipWithError("the text could not be read");
  } else if (!reader.message.empty()) {
    state.SkipWithError(reader.message.c_str());
  } else if (ContentsOf(*root).objects != input.contents.objects) {
    state.SkipWithError("the tree does not hold the objects of the text");
  } else {
    return root;
  }
  return Tree(nullptr);
}

MemoryFile::MemoryFile(std::string_view name) {
  const std::filesystem::path inMemory = "/dev/shm";
  std::error_code error;
  const bool usable =
      std::filesystem::is_directory(inMemory, error) && access(inMemory.c_str(), W_OK) == 0;
  std::string unique = "a2l2json-bench-" + std::to_string(getpid()) + '-';
  path_ = (usable ? inMemory : std::filesystem::temp_directory_path()) / unique.append(name);
}

MemoryFile::~MemoryFile() { Remove(); }

void MemoryFile::Remove() const {
  std::error_code error;
  std::filesystem::remove(path_, error);
}

void ReportInput(benchmark::State& state, const Input& input) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(input.text.size()));
  state.counters["time/object"] = benchmark::Counter(
      static_cast<double>(input.contents.ObjectCount()),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

}  // namespace a2l::bench
