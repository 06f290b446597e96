// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <istream>
#include <string_view>
#include <vector>

namespace a2l {

/// Hands out the physical lines of a stream, one after the other, without copying them. A line
/// ends at a line feed, or with the input where that ends without one; a carriage return is part
/// of the line.
///
/// The input is read in pieces, so that a large file need not fit into memory; a line that is
/// longer than a piece makes the buffer grow.
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

  /// The next line, without its line feed; valid until the next call. False at the end of the
  /// input and when it cannot be read on (see Failed).
  bool Next(std::string_view& line);

  /// True after an error of the stream, as against its end.
  [[nodiscard]] bool Failed() const { return in_.bad(); }

 private:
  bool Refill();

  std::istream& in_;
  std::size_t pieceSize_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;  // of what has not been handed out
  std::size_t end_ = 0;    // of what has been read
};

}  // namespace a2l
