// SPDX-License-Identifier: MIT
//
// A2L text for measurements: like the files that development tools write, of any wanted size.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>

namespace a2l::bench {

struct GenerateOptions {
  /// Wanted number of bytes. The text comes close to it, but for the smallest sizes, where one
  /// object more or less counts.
  std::size_t size = 1'000'000;
  /// The same seed gives the same bytes on every machine; another one gives other bytes.
  std::uint64_t seed = 1;
  /// Lines end with carriage return and line feed instead of line feed alone.
  bool crlf = false;
};

/// What a text holds.
struct Contents {
  /// Per keyword, the number of blocks directly inside the module.
  std::map<std::string, std::size_t, std::less<>> objects;

  /// The number of all of them: the objects that figures per object refer to.
  [[nodiscard]] std::size_t ObjectCount() const;
};

/// Writes the text of one project with one module: half the bytes are measurements, a third
/// characteristics with their axes, the rest is everything that these refer to. Every name that is
/// referred to is the name of an object in the text, and nothing in it gives a warning.
Contents Generate(const GenerateOptions& options, std::ostream& out);

}  // namespace a2l::bench
