// SPDX-License-Identifier: MIT
//
// Large texts, made while they are read.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <functional>
#include <istream>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/trees.h"

namespace a2l::test {

/// Unoptimised and instrumented builds divide the sizes by this, so that the tests take only
/// seconds there, too.
#if defined(__SANITIZE_ADDRESS__) || !defined(NDEBUG)
inline constexpr std::size_t kScaleDown = 16;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr std::size_t kScaleDown = 16;
#else
inline constexpr std::size_t kScaleDown = 1;
#endif
#else
inline constexpr std::size_t kScaleDown = 1;
#endif

inline constexpr std::size_t kMillion = 1000000 / kScaleDown;
inline constexpr std::size_t kMegabyte = std::size_t{1024} * 1024 / kScaleDown;

/// A text, repeated `times` times.
struct Part {
  Part(const char* bytes) : text(bytes) {}  // NOLINT(google-explicit-constructor)
  Part(std::string_view bytes, std::size_t count) : text(bytes), times(count) {}
  /// A text for each number from 0 to `count` - 1.
  Part(std::function<std::string(std::size_t)> function, std::size_t count)
      : make(std::move(function)), times(count) {}

  std::string text;
  std::function<std::string(std::size_t)> make;
  std::size_t times = 1;
};
using Parts = std::vector<Part>;

class GeneratedBuffer : public std::streambuf {
 public:
  explicit GeneratedBuffer(Parts parts) : parts_(std::move(parts)) {}

 protected:
  int_type underflow() override {
    std::size_t size = 0;
    while (size < room_.size() && FindText()) {
      const std::size_t piece = std::min(room_.size() - size, text_.size());
      std::memcpy(room_.data() + size, text_.data(), piece);
      text_.remove_prefix(piece);
      size += piece;
    }
    if (size == 0) return traits_type::eof();
    setg(room_.data(), room_.data(), room_.data() + size);
    return traits_type::to_int_type(room_[0]);
  }

 private:
  // Fills `text_` with the next bytes. False at the end.
  bool FindText() {
    while (text_.empty()) {
      if (part_ == parts_.size()) return false;
      const Part& part = parts_[part_];
      if (given_ == part.times) {
        ++part_;
        given_ = 0;
        continue;
      }
      if (part.make) made_ = part.make(given_);
      text_ = part.make ? made_ : part.text;
      ++given_;
    }
    return true;
  }

  Parts parts_;
  std::size_t part_ = 0;
  std::size_t given_ = 0;
  std::string made_;
  std::string_view text_;
  std::array<char, std::size_t{64} * 1024> room_{};
};

inline Reading ReadParts(Parts parts) {
  Reading reading{false, Tree(NewTree()), {}};
  GeneratedBuffer buffer(std::move(parts));
  std::istream in(&buffer);
  reading.ok = reading.reader.Parse(in, reading.root.get());
  return reading;
}

}  // namespace a2l::test
