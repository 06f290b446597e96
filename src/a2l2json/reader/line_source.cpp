// SPDX-License-Identifier: MIT
#include "a2l2json/reader/line_source.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace a2l {

bool LineSource::TakeRest(std::string_view& line) {
  line = std::string_view(buffer_.get() + begin_, end_ - begin_);
  begin_ = end_;
  return !Failed() && !line.empty();
}

bool LineSource::Refill() {
  if (bufferSize_ < Room()) Enlarge();
  if (begin_ > 0) MoveUnread(buffer_.get());
  in_.read(buffer_.get() + end_, static_cast<std::streamsize>(pieceSize_));
  end_ += static_cast<std::size_t>(in_.gcount());
  EndWithLineFeed();
  return in_.gcount() > 0;
}

// Memory that nobody has written yet costs nothing: the buffer is not filled with zeros.
void LineSource::Enlarge() {
  bufferSize_ = std::max(bufferSize_ * 2, Room());
  auto larger = std::make_unique_for_overwrite<char[]>(bufferSize_);
  MoveUnread(larger.get());
  buffer_ = std::move(larger);
  EndWithLineFeed();
}

void LineSource::MoveUnread(char* to) {
  if (end_ > begin_) std::memmove(to, buffer_.get() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
}

void LineSource::EndWithLineFeed() { std::memset(buffer_.get() + end_, '\n', 2 * bytes::kBlock); }

}  // namespace a2l
