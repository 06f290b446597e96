// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

#include "a2l2json/text/bytes.h"

namespace a2l {

/// A text that is put together line by line and used many times over. Short lines are copied
/// without a call.
class GrowingText {
 public:
  /// Takes `text` in place of what is there.
  void Set(std::string_view text) {
    size_ = 0;
    if (room_ < text.size() || room_ == 0) Enlarge(text.size());
    bytes::Copy(bytes_.get(), text.data(), text.size());
    size_ = text.size();
    Pad();
  }
  [[gnu::always_inline]] void Append(char separator, std::string_view text) {
    if (room_ - size_ <= text.size()) Enlarge(text.size() + 1);
    bytes_[size_] = separator;
    bytes::Copy(bytes_.get() + size_ + 1, text.data(), text.size());
    size_ += text.size() + 1;
    Pad();
  }

  /// The whole text, until it changes; padded (see bytes.h).
  [[nodiscard]] std::string_view View() const { return {bytes_.get(), size_}; }

 private:
  void Pad() { std::memset(bytes_.get() + size_, 0, bytes::kBlock); }

  [[gnu::noinline]] void Enlarge(std::size_t more) {
    const std::size_t room = std::max(size_ + more, 2 * room_);
    auto larger = std::make_unique_for_overwrite<char[]>(room + bytes::kBlock);
    bytes::Copy(larger.get(), bytes_.get(), size_);
    bytes_ = std::move(larger);
    room_ = room;
  }

  std::unique_ptr<char[]> bytes_;
  std::size_t size_ = 0;
  std::size_t room_ = 0;
};

}  // namespace a2l
