// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/model/tree.h"
#include "a2l2json/reader/diagnostics.h"

namespace a2l {

/// What a text or a file gave.
struct ReadResult {
  /// What was read; after an error, what stands before it. Keeps nothing of the text or the file.
  Tree tree;
  /// Every warning and error, in the order of the file.
  std::vector<Diagnostic> diagnostics;
  /// Why the file could not be opened, or not read to its end.
  FileError fileError = FileError::None;
  /// True when all was read, with or without warnings.
  bool ok = false;

  explicit operator bool() const { return ok; }

  /// All that there is to say, in lines: the diagnostics, then the file's error.
  [[nodiscard]] std::string Message() const;
};

/// Reads A2L text. Memory that runs out gives std::bad_alloc; nothing else is thrown.
[[nodiscard]] ReadResult Read(std::string_view text);

/// The same for the file at `path` (on Windows UTF-8).
[[nodiscard]] ReadResult ReadFile(const std::string& path);

}  // namespace a2l
