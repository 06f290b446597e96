// SPDX-License-Identifier: MIT
#include "export/json_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

namespace a2l {
namespace {

// Room for any number and for any escape.
constexpr std::size_t kMostNumberBytes = 32;
constexpr std::size_t kMostEscapeBytes = 6;

// The escapes of one byte; a letter stands for a backslash and that letter.
constexpr char kPlain = 0;
constexpr char kCode = 1;       // \u and four digits
constexpr char kSeparator = 2;  // may begin U+2028 or U+2029
constexpr auto kEscapes = [] {
  std::array<char, 256> escapes{};
  for (std::size_t c = 0; c < 0x20; ++c)
    escapes[c] = kCode;
  for (const auto& [byte, letter] : {std::pair{'"', '"'},
                                     {'\\', '\\'},
                                     {'\b', 'b'},
                                     {'\f', 'f'},
                                     {'\n', 'n'},
                                     {'\r', 'r'},
                                     {'\t', 't'}}) {
    escapes[static_cast<unsigned char>(byte)] = letter;
  }
  escapes[0xE2] = kSeparator;
  return escapes;
}();

char EscapeOf(char c) {
  return kEscapes[static_cast<unsigned char>(c)];
}

bool IsSeparator(std::string_view text) {
  return text.starts_with("\xE2\x80\xA8") || text.starts_with("\xE2\x80\xA9");
}

}  // namespace

void JsonText::Flush() {
  if (used_ > 0)
    output_({buffer_.get(), used_});
  used_ = 0;
}

void JsonText::Put(std::string_view text) {
  while (text.size() > kBufferSize - used_) {
    const std::size_t size = kBufferSize - used_;
    std::memcpy(buffer_.get() + used_, text.data(), size);
    used_ = kBufferSize;
    text.remove_prefix(size);
    Flush();
  }
  std::memcpy(buffer_.get() + used_, text.data(), text.size());
  used_ += text.size();
}

void JsonText::Open(char bracket) {
  Reserve(1);
  buffer_[used_++] = bracket;
  first_ = true;
}

void JsonText::Close(char bracket) {
  Reserve(1);
  buffer_[used_++] = bracket;
  first_ = false;
}

void JsonText::Item() {
  if (!first_)
    Put(", ");
  first_ = false;
}

void JsonText::Key(std::string_view key) {
  Item();
  String(key);
  Put(": ");
}

void JsonText::Integer(std::int32_t value) {
  Reserve(kMostNumberBytes);
  char* const begin = buffer_.get() + used_;
  used_ +=
      static_cast<std::size_t>(std::to_chars(begin, begin + kMostNumberBytes, value).ptr - begin);
}

void JsonText::Real(double value) {
  if (!std::isfinite(value))
    return Null();
  Reserve(kMostNumberBytes);
  char* const begin = buffer_.get() + used_;
  char* const end = begin + kMostNumberBytes;
  used_ += static_cast<std::size_t>(
      std::to_chars(begin, end, value, std::chars_format::general, 17).ptr - begin);
}

void JsonText::String(std::string_view text) {
  Put("\"");
  while (!text.empty()) {
    const auto special = std::ranges::find_if(text, [](char c) { return EscapeOf(c) != kPlain; });
    const auto plain = static_cast<std::size_t>(special - text.begin());
    Put(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty())
      break;

    Reserve(kMostEscapeBytes);
    char* out = buffer_.get() + used_;
    const char escape = EscapeOf(text.front());
    std::size_t taken = 1;
    if (escape == kSeparator && !IsSeparator(text)) {
      *out++ = text.front();
    } else if (escape == kSeparator || escape == kCode) {
      constexpr std::string_view kDigits = "0123456789abcdef";
      unsigned code = static_cast<unsigned char>(text.front());
      if (escape == kSeparator) {
        code = text[2] == '\xA8' ? 0x2028 : 0x2029;
        taken = 3;
      }
      *out++ = '\\';
      *out++ = 'u';
      for (int shift = 12; shift >= 0; shift -= 4)
        *out++ = kDigits[(code >> shift) & 0xFU];
    } else {
      *out++ = '\\';
      *out++ = escape;
    }
    used_ = static_cast<std::size_t>(out - buffer_.get());
    text.remove_prefix(taken);
  }
  Put("\"");
}

}  // namespace a2l
