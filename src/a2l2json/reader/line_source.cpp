// SPDX-License-Identifier: MIT
#include "a2l2json/reader/line_source.h"

#include <algorithm>
#include <cstring>

namespace a2l {

bool LineSource::Next(std::string_view& line) {
  std::size_t searched = 0;
  while (true) {
    const std::string_view unread(buffer_.data() + begin_, end_ - begin_);
    const std::size_t lineFeed = unread.find('\n', searched);
    if (lineFeed != std::string_view::npos) {
      line = unread.substr(0, lineFeed);
      begin_ += lineFeed + 1;
      return true;
    }
    searched = unread.size();
    if (!Refill()) break;
  }
  line = std::string_view(buffer_.data() + begin_, end_ - begin_);
  begin_ = end_;
  return !Failed() && !line.empty();
}

bool LineSource::Refill() {
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
  }
  if (buffer_.size() - end_ < pieceSize_) {
    buffer_.resize(std::max(buffer_.size() * 2, end_ + pieceSize_));
  }
  in_.read(buffer_.data() + end_, static_cast<std::streamsize>(pieceSize_));
  end_ += static_cast<std::size_t>(in_.gcount());
  return in_.gcount() > 0;
}

}  // namespace a2l
