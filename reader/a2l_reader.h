// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <istream>
#include <string>
#include <vector>

#include "model/element.h"
#include "reader/diagnostics.h"

namespace a2l {

/// Reads A2L text into a tree of elements. Use one reader per file and thread.
class A2LReader {
 public:
  /// Reads the file at `path`; everything in it is attached below `root`, a new tree as a rule
  /// (NewTree). True when the file was read to its end, with or without warnings. False, and no
  /// message, when `root` is null or the file cannot be opened; false when it cannot be read to
  /// its end or holds an error: the tree then has what was read before.
  bool Parse(const std::string& path, VoA2LElement* root);

  /// The same for text from any stream, which should be open in binary mode.
  bool Parse(std::istream& in, VoA2LElement* root);

  /// Every warning and error, one line each, in the order of the file.
  std::string message;
  /// The same as data.
  std::vector<Diagnostic> diagnostics;

 private:
  std::ifstream in_;

  void Report(const Diagnostic& diagnostic);
};

}  // namespace a2l
