// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <memory>
#include <string_view>

#include "a2l2json/text/bytes.h"

namespace a2l {

/// Hands out the physical lines of a stream, one after the other, without copying them. A line
/// ends at a line feed, or with the input where that ends without one; a carriage return is part
/// of the line.
///
/// The input is read in pieces, so that a large file need not fit into memory. A line that is
/// longer than a piece makes the buffer grow. One look at each byte finds the ends of lines and the
/// slashes. Most lines have no slash, so the reader knows that they hold no marker and no comment.
class LineSource {
 public:
#ifdef A2L2JSON_SMALL_BUFFERS
  static constexpr std::size_t kPieceSize = 16;
#else
  static constexpr std::size_t kPieceSize = std::size_t{256} * 1024;
#endif

  /// `in` stays the caller's and must outlive this object.
  explicit LineSource(std::istream& in, std::size_t pieceSize = kPieceSize)
      : in_(in), pieceSize_(pieceSize) {
    Enlarge();
  }

  /// The next line, without its line feed, padded (see text/bytes.h); valid until the next call.
  /// False at the end of the input and when it cannot be read on (see Failed).
  bool Next(std::string_view& line) {
    slashes_ = {};
    std::size_t lineFeed = FindLineFeed(begin_);
    while (lineFeed == end_) {  // the one behind what has been read
      const std::size_t unread = end_ - begin_;
      if (!Refill()) return TakeRest(line);
      lineFeed = FindLineFeed(begin_ + unread);
    }
    line = std::string_view(buffer_.get() + begin_, lineFeed - begin_);
    begin_ = lineFeed + 1;
    return true;
  }

  /// Where the slashes of a line stand.
  struct Slashes {
    std::size_t first = std::string_view::npos;  ///< none
    std::size_t last = std::string_view::npos;
  };
  /// Those of the line that was handed out last.
  [[nodiscard]] const Slashes& SlashesOfLine() const { return slashes_; }

  /// True after an error of the stream, as against its end.
  [[nodiscard]] bool Failed() const { return in_.bad(); }

 private:
  // The first line feed from `from` on; keeps the slashes in front of it.
  [[nodiscard]] std::size_t FindLineFeed(std::size_t from) {
    for (;; from += bytes::kBlock) {
      const bytes::Block block = bytes::Block::Load(buffer_.get() + from);
      const auto lineFeed = block.Equal('\n');
      const auto slash = block.Equal('/');
      if (bytes::Bits(lineFeed | slash) == 0) continue;
      const std::uint32_t lineFeeds = bytes::Bits(lineFeed);
      KeepSlashes(from, bytes::Bits(slash) & (lineFeeds - 1) & ~lineFeeds);
      if (lineFeeds != 0) return from + bytes::FirstBit(lineFeeds);
    }
  }
  bool TakeRest(std::string_view& line);
  bool Refill();
  // What the buffer must hold for the next piece: a search may begin at the line feed behind it.
  [[nodiscard]] std::size_t Room() const { return end_ - begin_ + pieceSize_ + 2 * bytes::kBlock; }
  void Enlarge();
  void MoveUnread(char* to);
  void EndWithLineFeed();
  // `places` are those of slashes in the block at `block`.
  void KeepSlashes(std::size_t block, std::uint32_t places) {
    if (places == 0) return;
    const std::size_t blockInLine = block - begin_;
    if (slashes_.first == std::string_view::npos) {
      slashes_.first = blockInLine + bytes::FirstBit(places);
    }
    slashes_.last = blockInLine + bytes::LastBit(places);
  }

  std::istream& in_;
  std::size_t pieceSize_;
  // A line feed stands behind what has been read, so that every search ends, and bytes behind that
  // fill a block.
  std::unique_ptr<char[]> buffer_;
  std::size_t bufferSize_ = 0;
  std::size_t begin_ = 0;  // of what has not been handed out
  std::size_t end_ = 0;    // of what has been read
  Slashes slashes_;
};

}  // namespace a2l
