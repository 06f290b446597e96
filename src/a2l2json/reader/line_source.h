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
      : in_(in), pieceSize_(pieceSize) {}

  /// The next line, without its line feed, padded (see text/bytes.h); valid until the next call.
  /// False at the end of the input and when it cannot be read on (see Failed).
  bool Next(std::string_view& line) {
    slashes_ = {};
    if (lineFeedPlaces_ == 0 && !FindLineFeed()) return TakeRest(line);
    const std::uint64_t upToLineFeed = lineFeedPlaces_ ^ (lineFeedPlaces_ - 1);
    const std::size_t lineFeed = block_ + bytes::FirstBit(lineFeedPlaces_);
    KeepSlashes(slashPlaces_ & upToLineFeed);
    slashPlaces_ &= ~upToLineFeed;
    lineFeedPlaces_ &= ~upToLineFeed;
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
  bool FindLineFeed();
  bool TakeRest(std::string_view& line);
  bool Refill();
  void Enlarge();
  void MoveUnread(char* to);
  void KeepSlashes(std::uint64_t places) {
    if (places == 0) return;
    const std::size_t blockInLine = block_ - begin_;  // may wrap around; the sums do not
    if (slashes_.first == std::string_view::npos) {
      slashes_.first = blockInLine + bytes::FirstBit(places);
    }
    slashes_.last = blockInLine + bytes::LastBit(places);
  }

  std::istream& in_;
  std::size_t pieceSize_;
  // With room for a block behind what has been read.
  std::unique_ptr<char[]> buffer_;
  std::size_t bufferSize_ = 0;
  std::size_t begin_ = 0;  // of what has not been handed out
  std::size_t end_ = 0;    // of what has been read

  // The block that is looked at, and what has not been handed out of it: a bit for each place.
  std::size_t block_ = 0;
  std::size_t blockEnd_ = 0;
  std::uint64_t lineFeedPlaces_ = 0;
  std::uint64_t slashPlaces_ = 0;
  Slashes slashes_;
};

}  // namespace a2l
