// SPDX-License-Identifier: MIT
//
// What all benchmarks share: texts and trees that are checked before anything is timed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <istream>
#include <streambuf>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>

#include "a2l2json/model/tree.h"
#include "bench/generate.h"

namespace a2l::bench {

struct Input {
  std::string text;
  Contents contents;
};

/// The generated text of so many million bytes; made at the first call.
const Input& InputOf(std::int64_t megabytes);

/// A stream over a text that is not copied.
class ViewStream : public std::istream {
 public:
  explicit ViewStream(std::string_view text) : std::istream(&buffer_), buffer_(text) {}

 private:
  class Buffer : public std::streambuf {
   public:
    explicit Buffer(std::string_view text) {
      char* const begin = const_cast<char*>(text.data());  // NOLINT: only read, see setg
      setg(begin, begin, begin + text.size());
    }
  };
  Buffer buffer_;
};

/// The tree of a text. Ends the benchmark with an error, and gives null, when the text cannot be
/// read, gives a message, or does not give every object that the generator says it holds.
Tree ReadChecked(const Input& input, benchmark::State& state);

/// A file that is removed in the end, in a folder that lies in memory where the system has one:
/// no figure should depend on a disk.
class MemoryFile {
 public:
  explicit MemoryFile(std::string_view name);
  ~MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// So that every write finds the same: no file. Emptying one takes time in proportion to it.
  void Remove() const;

 private:
  std::string path_;
};

/// To be called behind the timed loop: bytes per second of input, and time per object.
void ReportInput(benchmark::State& state, const Input& input);

}  // namespace a2l::bench
