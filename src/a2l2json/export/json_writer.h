// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <string>

#include "a2l2json/model/element.h"

namespace a2l {

/// Writes the JSON document of a tree to a file. A writer is used in one thread at a time; the tree
/// is not changed, here or by the functions below, so that several threads may export one tree.
class JsonWriter {
 public:
  /// Writes the document of the tree below `root` to the file at `path` (on Windows UTF-8),
  /// replacing what is there. False, with nothing written, when `root` is not the root of a tree,
  /// and when the file cannot be opened. An error while writing is not reported.
  bool Export(const std::string& path, const VoA2LElement* root);
};

/// The JSON document of the tree below `root`, which is the root of a tree (the document of any
/// other element has nothing in it): one line without a line feed. Memory that runs out
/// gives std::bad_alloc; nothing else can go wrong.
[[nodiscard]] std::string ToJson(const VoA2LElement& root);

/// The same into any stream, piece by piece, so that it is never in memory as a whole. Whether all
/// of it was taken, the stream tells: see its good().
void WriteJson(const VoA2LElement& root, std::ostream& out);

}  // namespace a2l
