// SPDX-License-Identifier: MIT
#include "a2l2json/reader/line_source.h"

#include <algorithm>
#include <cstring>

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
    const auto [lineFeeds, slashes] = bytes::FindAll<'\n', '/'>(buffer_.data() + block_);
    const std::uint64_t read = ~std::uint64_t{0} >> (bytes::kMany - (blockEnd_ - block_));
    lineFeedPlaces_ = lineFeeds & read;
    slashPlaces_ = slashes & read;
  }
  return true;
}

bool LineSource::TakeRest(std::string_view& line) {
  line = std::string_view(buffer_.data() + begin_, end_ - begin_);
  begin_ = end_;
  return !Failed() && !line.empty();
}

bool LineSource::Refill() {
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    blockEnd_ = end_;
  }
  if (buffer_.size() < end_ + pieceSize_ + bytes::kMany) {
    buffer_.resize(std::max(buffer_.size() * 2, end_ + pieceSize_ + bytes::kMany));
  }
  in_.read(buffer_.data() + end_, static_cast<std::streamsize>(pieceSize_));
  end_ += static_cast<std::size_t>(in_.gcount());
  return in_.gcount() > 0;
}

}  // namespace a2l
