// SPDX-License-Identifier: MIT
//
// The lines of a text as the converter has them: without comments, and joined where a comment goes
// over a line end. Every byte of a line knows where in the text it stands.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace a2l::mending {

class LogicalLines {
 public:
  explicit LogicalLines(std::string_view text) : text_(text) {}

  /// Goes on at `position`, as if a line began there.
  void Restart(std::size_t position) { next_ = position; }

  /// False at the end of the text, and where it ends inside of a comment (see CommentIsOpen).
  bool Next();

  /// The line, without its line feed; valid until the next call of Next.
  [[nodiscard]] std::string_view Line() const { return line_; }
  /// Where its first slash stands; behind its last byte where it has none.
  [[nodiscard]] std::size_t FirstSlash() const { return firstSlash_; }
  /// Where in the text the byte at `offset` of the line stands.
  [[nodiscard]] std::size_t PositionOf(std::size_t offset) const {
    return pieces_.empty() ? begin_ + offset : PositionInPieces(offset);
  }
  /// Where the byte behind the bytes up to `offset` stands; `offset` is not 0.
  [[nodiscard]] std::size_t EndOf(std::size_t offset) const { return PositionOf(offset - 1) + 1; }

  [[nodiscard]] bool CommentIsOpen() const { return commentIsOpen_; }
  /// Where the line begins in the text; also of one that is not handed out for an open comment.
  [[nodiscard]] std::size_t Begin() const { return begin_; }

 private:
  /// From `offset` of the joined line on, its bytes are those from `position` of the text on.
  struct Piece {
    std::size_t offset;
    std::size_t position;
  };

  [[nodiscard]] std::size_t PositionInPieces(std::size_t offset) const;
  bool NextPhysical(std::string_view& line);
  bool RemoveComments(std::string_view line);
  bool SkipBlockComment(std::string_view& line);
  void Append(std::string_view piece);
  [[nodiscard]] std::size_t PositionIn(std::string_view piece) const {
    return static_cast<std::size_t>(piece.data() - text_.data());
  }

  std::string_view text_;
  std::size_t next_ = 0;
  std::size_t begin_ = 0;
  std::string_view line_;
  std::size_t firstSlash_ = 0;
  std::string joined_;
  std::vector<Piece> pieces_;
  bool commentIsOpen_ = false;
};

}  // namespace a2l::mending
