// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/model/tree.h"
#include "a2l2json/reader/diagnostics.h"

namespace a2l {

/// The result of reading a text or a file.
struct ReadResult {
  /// What was read; after an error, what was read before it. It needs neither text nor file any
  /// more.
  Tree tree;
  /// Every warning and error, in the order of the file.
  std::vector<Diagnostic> diagnostics;
  /// Why the file could not be opened or read completely.
  FileError fileError = FileError::None;
  /// True if everything was read, with or without warnings.
  bool ok = false;

  explicit operator bool() const { return ok; }

  /// All messages, one per line: the diagnostics, then why the file could not be read.
  [[nodiscard]] std::string Message() const;
};

/// Reads A2L text. Throws std::bad_alloc if memory runs out, and nothing else.
[[nodiscard]] ReadResult Read(std::string_view text);

/// The same for the file at `path` (on Windows UTF-8).
[[nodiscard]] ReadResult ReadFile(const std::string& path);

}  // namespace a2l
