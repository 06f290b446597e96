// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <iosfwd>
#include <string>

#include "model/element.h"

namespace a2l {

/// Writes the JSON document of a tree to a file.
class JsonWriter {
 public:
  /// Writes the document of the tree below `root` to the file at `path`, replacing what is
  /// there. False, with nothing written, when `root` is not the root of a tree, and when the
  /// file cannot be opened. An error while writing is not reported.
  bool Export(const std::string& path, const VoA2LElement* root);

 private:
  std::ofstream out_;
};

/// The JSON document of the tree below `root`.
[[nodiscard]] std::string ToJson(const VoA2LElement& root);

/// The same into any stream, piece by piece.
void WriteJson(const VoA2LElement& root, std::ostream& out);

}  // namespace a2l
