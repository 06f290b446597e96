// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/model/element.h"
#include "a2l2json/reader/diagnostics.h"

namespace a2l {

/// Reads A2L text into a tree of elements. Read and ReadFile (reader/read.h) do it in one call.
///
/// The tree stays the caller's, and keeps nothing of the reader or of what was read: both may go
/// before it. A reader is made for one file; what it has to say about further ones is appended.
///
/// Use a reader and the tree that it fills in one thread at a time. There is no global state, so
/// threads may read at the same time with a reader and a tree each, and a tree that nobody changes
/// may be looked at and exported by several. The only exception thrown is std::bad_alloc, where
/// memory runs out.
class A2LReader {
 public:
  /// Reads the file at `path` (on Windows UTF-8); everything in it is attached below `root`, as a
  /// rule a new tree (Tree, NewTree). True when the file was read to its end, with or without
  /// warnings. False, and no message, when `root` is null or the file cannot be opened; false when
  /// it cannot be read to its end (see fileError) or holds an error: the tree then has what was
  /// read before.
  bool Parse(const std::string& path, VoA2LElement* root);

  /// The same for text from any stream, which should be open in binary mode and, as every new
  /// stream, throw no exceptions. False for a stream that has failed already, such as one of a file
  /// that was not opened.
  bool Parse(std::istream& in, VoA2LElement* root);

  /// The same for text in memory, which is not copied as a whole.
  bool ParseText(std::string_view text, VoA2LElement* root);

  /// Every warning and error, one line each, in the order of the file.
  std::string message;
  /// The same as data.
  std::vector<Diagnostic> diagnostics;
  /// Why the last file, or stream, could not be opened or not read to its end.
  FileError fileError = FileError::None;

 private:
  void Report(const Diagnostic& diagnostic);
};

}  // namespace a2l
