// SPDX-License-Identifier: MIT
//
// A2L text for benchmarks, of any size and like the files that development tools write.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>

namespace a2l::bench {

struct GenerateOptions {
  /// Wanted number of bytes. The text comes close to it, except for the smallest sizes, to which a
  /// single object makes a difference.
  std::size_t size = 1'000'000;
  /// The same seed gives the same bytes on every machine, another seed other bytes.
  std::uint64_t seed = 1;
  /// Lines end with carriage return and line feed, not with a line feed alone.
  bool crlf = false;
};

/// What a text holds.
struct Contents {
  /// Per keyword, the number of blocks directly inside the module.
  std::map<std::string, std::size_t, std::less<>> objects;

  /// The sum of these numbers: figures per object refer to it.
  [[nodiscard]] std::size_t ObjectCount() const;
};

/// Writes the text of one project with one module. Half of the bytes are measurements, a third is
/// characteristics with their axes, the rest is everything that these refer to. Every name that the
/// text refers to is that of an object in it, and the text gives no warning.
Contents Generate(const GenerateOptions& options, std::ostream& out);

}  // namespace a2l::bench
