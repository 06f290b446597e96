// SPDX-License-Identifier: MIT
//
// What mending is given besides the text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "a2l2json/mend/finding.h"
#include "a2l2json/mend/line_map.h"

namespace a2l {

/// The result of reading a file that another one includes.
struct IncludedFile {
  enum class Status : std::uint8_t {
    Read,
    Missing,  ///< it is not there, or cannot be read
    Refused,  ///< it must not be read
  };
  Status status = Status::Missing;
  std::string bytes;
  /// The same path for the same file, whatever name an /include gave it. It finds files that
  /// include themselves, and names inside the file are relative to it.
  std::string path;
  /// For Missing and Refused, in a few words.
  std::string problem;
};

/// Reads the file `name`, as it stands in an /include, for the file at `from`: the path of an
/// IncludedFile, or MendOptions::path.
using OpenIncluded = std::function<IncludedFile(std::string_view name, std::string_view from)>;

struct MendOptions {
  /// How findings name the file.
  std::string name;
  /// Where it lies; what `open` gets.
  std::string path;
  /// Reads included files; without it, every one of them is missing.
  OpenIncluded open;
  /// Called for every finding, mostly in the order of the text.
  std::function<void(const Finding& finding)> report;
  /// Called every now and then with the bytes of the text that are done.
  std::function<void(std::size_t done)> progress;
  /// Where it is given: an empty map, which learns where the lines of the mended text come from.
  LineMap* lines = nullptr;
};

}  // namespace a2l
