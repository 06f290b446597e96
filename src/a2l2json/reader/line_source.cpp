// SPDX-License-Identifier: MIT
#include "a2l2json/reader/line_source.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "a2l2json/text/bytes.h"

namespace a2l {

// Goes on to the first block that holds a line feed.
bool LineSource::FindLineFeed() {
  while (lineFeedPlaces_ == 0) {
    KeepSlashes(slashPlaces_);
    slashPlaces_ = 0;
    if (blockEnd_ == end_ && !Refill()) return false;
    block_ = blockEnd_;
    blockEnd_ = std::min(block_ + bytes::kMany, end_);
    const auto [lineFeeds, slashes] = bytes::FindAll<'\n', '/'>(buffer_.get() + block_);
    const std::uint64_t read = ~std::uint64_t{0} >> (bytes::kMany - (blockEnd_ - block_));
    lineFeedPlaces_ = lineFeeds & read;
    slashPlaces_ = slashes & read;
  }
  return true;
}

bool LineSource::TakeRest(std::string_view& line) {
  line = std::string_view(buffer_.get() + begin_, end_ - begin_);
  begin_ = end_;
  return !Failed() && !line.empty();
}

bool LineSource::Refill() {
  if (bufferSize_ < end_ - begin_ + pieceSize_ + bytes::kMany) Enlarge();
  if (begin_ > 0) MoveUnread(buffer_.get());
  in_.read(buffer_.get() + end_, static_cast<std::streamsize>(pieceSize_));
  end_ += static_cast<std::size_t>(in_.gcount());
  std::memset(buffer_.get() + end_, 0, bytes::kBlock);  // what a padded line may be followed by
  return in_.gcount() > 0;
}

// Memory that nobody has written yet costs nothing: the buffer is not filled with zeros.
void LineSource::Enlarge() {
  bufferSize_ = std::max(bufferSize_ * 2, end_ - begin_ + pieceSize_ + bytes::kMany);
  auto larger = std::make_unique_for_overwrite<char[]>(bufferSize_);
  MoveUnread(larger.get());
  buffer_ = std::move(larger);
}

void LineSource::MoveUnread(char* to) {
  if (end_ > begin_) std::memmove(to, buffer_.get() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  blockEnd_ = end_;
}

}  // namespace a2l
