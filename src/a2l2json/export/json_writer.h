// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <string>

#include "a2l2json/model/element.h"

namespace a2l {

/// Writes the JSON document of a tree to a file. Use a writer in one thread at a time. Neither it
/// nor the functions below change the tree, so several threads may export one tree.
class JsonWriter {
 public:
  /// Writes the document of the tree below `root` to the file at `path` (on Windows UTF-8),
  /// replacing what is there. False, with nothing written, when `root` is not the root of a tree,
  /// and when the file cannot be opened. An error while writing is not reported.
  bool Export(const std::string& path, const VoA2LElement* root);
};

/// The JSON document of the tree below `root`: one line without a line feed. `root` must be the
/// root of a tree; any other element gives the document of an empty file. Throws std::bad_alloc if
/// memory runs out, and nothing else.
[[nodiscard]] std::string ToJson(const VoA2LElement& root);

/// Writes the document to any stream, piece by piece, so that it is never in memory as a whole. The
/// stream tells whether it took everything: see its good().
void WriteJson(const VoA2LElement& root, std::ostream& out);

}  // namespace a2l
