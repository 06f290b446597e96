// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace a2l {

/// A line of a file.
struct SourceLine {
  /// As findings name it; the view is that of the map.
  std::string_view file;
  std::size_t line = 1;
};

/// Which line of which file each line of a mended text comes from, so that what the converter says
/// about the one can be told about the other. Its size is that of the differences: lines that
/// follow each other in both texts are held as one run.
class LineMap {
 public:
  /// Where the line number `mended` of the mended text, the first being 1, begins in the source.
  /// What is behind the end belongs to the last line; an empty text to the first of no file.
  [[nodiscard]] SourceLine Of(std::size_t mended) const;

  /// The map of a text that was mended from the mended text of this map, `next` being its map.
  [[nodiscard]] LineMap Through(const LineMap& next) const;

  // How it is filled, line by line.

  /// Another line, which begins at `line` of `file`.
  void BeginLine(std::string_view file, std::size_t line);
  /// Takes the last line away again.
  void DropLine();
  /// So many lines stand before all others.
  void SetLinesBefore(std::size_t count) { before_ = count; }

 private:
  struct Run {
    std::size_t first;  // line of the mended text
    std::size_t line;   // of the file
    std::size_t file;   // index
  };

  std::vector<Run> runs_;
  std::deque<std::string> files_;
  std::size_t lines_ = 0;
  std::size_t before_ = 0;
};

}  // namespace a2l
