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
/// The tree belongs to the caller. It needs neither the reader nor the text afterwards. A reader is
/// made for one file; the messages about further ones are appended.
///
/// Use a reader and the tree that it fills in one thread at a time. There is no global state:
/// several threads may read at the same time, each with its own reader and tree. Several threads
/// may look at a tree, and export it, if none changes it. The only exception is std::bad_alloc, if
/// memory runs out.
class A2LReader {
 public:
  /// Reads the file at `path` (on Windows UTF-8). Everything in it is attached below `root`, most
  /// often that of a new tree (Tree, NewTree). True if the file was read to its end, with or
  /// without warnings. False if the file holds an error; the tree then has what was read before.
  /// Also false if the file cannot be opened or read completely (`fileError` says why, and there is
  /// no message about it), or if `root` is null.
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
  /// Why the last file or stream could not be opened or read completely.
  FileError fileError = FileError::None;

 private:
  void Report(const Diagnostic& diagnostic);
};

}  // namespace a2l
