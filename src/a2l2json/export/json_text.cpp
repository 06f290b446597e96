// SPDX-License-Identifier: MIT
#include "a2l2json/export/json_text.h"

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
constexpr char kCode = 1;           // \u and four digits
constexpr char kLineSeparator = 2;  // may begin U+2028 or U+2029
constexpr auto kEscapes = [] {
  std::array<char, 256> escapes{};
  for (std::size_t c = 0; c < 0x20; ++c) escapes[c] = kCode;
  for (const auto& [byte, letter] : {std::pair{'"', '"'},
                                     {'\\', '\\'},
                                     {'\b', 'b'},
                                     {'\f', 'f'},
                                     {'\n', 'n'},
                                     {'\r', 'r'},
                                     {'\t', 't'}}) {
    escapes[static_cast<unsigned char>(byte)] = letter;
  }
  escapes[0xE2] = kLineSeparator;
  return escapes;
}();

char EscapeOf(char c) { return kEscapes[static_cast<unsigned char>(c)]; }

// True when no byte of a block can need an escape. All bytes are tested at once, each in the top
// bit of its place in a 64-bit word: it is set in a byte that is not ASCII, and a subtraction sets
// it in one that is too small (a control character; or, after the exclusive or, the quote or the
// backslash itself). Escaping byte by byte takes three times the instructions.
constexpr std::size_t kBlockSize = 8;
bool IsPlainBlock(const char* bytes) {
  constexpr std::uint64_t kEach = 0x0101010101010101;
  std::uint64_t block = 0;
  std::memcpy(&block, bytes, kBlockSize);
  const std::uint64_t special = block | (block - kEach * ' ') | ((block ^ (kEach * '"')) - kEach) |
                                ((block ^ (kEach * '\\')) - kEach);
  return (special & (kEach * 0x80)) == 0;
}

bool IsLineSeparator(std::string_view text) {
  return text.starts_with("\xE2\x80\xA8") || text.starts_with("\xE2\x80\xA9");
}

}  // namespace

void JsonText::Flush() {
  if (used_ > 0) output_({buffer_.get(), used_});
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

void JsonText::Item() {
  if (!first_) Put(kSeparator);
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
  if (!std::isfinite(value)) return Null();
  Reserve(kMostNumberBytes);
  char* const begin = buffer_.get() + used_;
  char* const end = begin + kMostNumberBytes;
  // Most reals in a file are whole numbers, whose 17 significant digits are their decimal ones. A
  // number too large for that is compared with 0, which it is not.
  constexpr double kMostWhole = 1e15;
  const auto whole = static_cast<std::int64_t>(std::abs(value) < kMostWhole ? value : 0);
  const auto result = static_cast<double>(whole) == value && !(whole == 0 && std::signbit(value))
                          ? std::to_chars(begin, end, whole)
                          : std::to_chars(begin, end, value, std::chars_format::general, 17);
  used_ += static_cast<std::size_t>(result.ptr - begin);
}

void JsonText::String(std::string_view text) {
  PutByte('"');
  while (text.size() > kPieceSize) {
    // A line separator, three bytes, must not fall between two pieces.
    std::size_t size = kPieceSize;
    if (IsLineSeparator(text.substr(kPieceSize - 1))) size -= 1;
    if (IsLineSeparator(text.substr(kPieceSize - 2))) size -= 2;
    PutEscaped(text.substr(0, size));
    text.remove_prefix(size);
  }
  PutEscaped(text);
  PutByte('"');
}

void JsonText::PutEscaped(std::string_view text) {
  static_assert(kPieceSize * kMostEscapeBytes <= kBufferSize);
  Reserve(text.size() * kMostEscapeBytes);
  char* out = buffer_.get() + used_;
  for (std::size_t i = 0; i < text.size(); ++i) {
    for (; i + kBlockSize <= text.size() && IsPlainBlock(text.data() + i); i += kBlockSize) {
      std::memcpy(out, text.data() + i, kBlockSize);
      out += kBlockSize;
    }
    if (i == text.size()) break;
    const char escape = EscapeOf(text[i]);
    if (escape == kPlain || (escape == kLineSeparator && !IsLineSeparator(text.substr(i)))) {
      *out++ = text[i];
    } else if (escape == kCode || escape == kLineSeparator) {
      unsigned code = static_cast<unsigned char>(text[i]);
      if (escape == kLineSeparator) {
        code = text[i + 2] == '\xA8' ? 0x2028 : 0x2029;
        i += 2;
      }
      constexpr std::string_view kDigits = "0123456789abcdef";
      *out++ = '\\';
      *out++ = 'u';
      for (int shift = 12; shift >= 0; shift -= 4) *out++ = kDigits[(code >> shift) & 0xFU];
    } else {
      *out++ = '\\';
      *out++ = escape;
    }
  }
  used_ = static_cast<std::size_t>(out - buffer_.get());
}

}  // namespace a2l
