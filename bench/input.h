// SPDX-License-Identifier: MIT
//
// All benchmarks use these texts and trees, which are checked before anything is timed.
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

/// The generated text of that many million bytes. The first call makes it.
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

/// The tree of a text. If the text cannot be read, gives a message, or lacks an object that the
/// generator says it holds, this ends the benchmark with an error and gives null.
Tree ReadChecked(const Input& input, benchmark::State& state);

/// A file that is removed in the end. It lies in a folder in memory, if the system has one: no
/// figure should depend on a disk.
class MemoryFile {
 public:
  explicit MemoryFile(std::string_view name);
  ~MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// Removes the file, so that every write begins with the same: no file. Emptying a file takes
  /// time in proportion to its size.
  void Remove() const;

 private:
  std::string path_;
};

/// Adds bytes of input per second, and time per object. To be called after the timed loop.
void ReportInput(benchmark::State& state, const Input& input);

}  // namespace a2l::bench
