// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace a2l {

/// True where the slash at that place and the byte behind it begin a comment, if not in a quoted
/// text.
[[nodiscard]] inline bool OpensComment(std::string_view text, std::size_t slash) {
  return slash + 1 < text.size() && (text[slash + 1] == '/' || text[slash + 1] == '*');
}

/// Takes comments out of the lines of a file: from "//" to the end of the line, and from "/*" to
/// the next "*/", over as many lines as it takes. Inside a quoted text nothing is a comment; a
/// quoted text that its line does not close hides the rest of that line.
class CommentRemover {
 public:
  /// Supplies the next physical line; false at the end of the input. The line before it need
  /// not stay readable.
  using NextLine = std::function<bool(std::string_view& line)>;

  /// Removes the comments of `line`. While a block comment is open, `nextLine` supplies the
  /// lines that it goes on in; what stands behind its end joins the line, with nothing between.
  /// The line then refers to this object's memory, until the next call, and is padded (see
  /// text/bytes.h). False when the input ends inside a comment.
  bool Remove(std::string_view& line, const NextLine& nextLine);

 private:
  std::string text_;
};

}  // namespace a2l
