// SPDX-License-Identifier: MIT
#include "a2l2json/export/json_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

#include "a2l2json/text/bytes.h"
#include "a2l2json/text/digits.h"

namespace a2l {
namespace {

// Room for any escape.
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

// The bytes of a block that can need an escape.
std::uint32_t SpecialBytes(const bytes::Block& block) {
  return bytes::Bits(block.Below(' ') | block.Equal('"') | block.Equal('\\') | block.Equal('\xE2'));
}

bool IsLineSeparator(std::string_view text) {
  return text.starts_with("\xE2\x80\xA8") || text.starts_with("\xE2\x80\xA9");
}

// Writes the first byte of `text`, with its escape where it needs one, and takes it off; a line
// separator, three bytes, as a whole.
char* EscapeOne(std::string_view& text, char* out) {
  const char escape = EscapeOf(text.front());
  if (escape == kPlain || (escape == kLineSeparator && !IsLineSeparator(text))) {
    *out++ = text.front();
  } else if (escape == kCode || escape == kLineSeparator) {
    unsigned code = static_cast<unsigned char>(text.front());
    if (escape == kLineSeparator) {
      code = text[2] == '\xA8' ? 0x2028 : 0x2029;
      text.remove_prefix(2);
    }
    constexpr std::string_view kDigits = "0123456789abcdef";
    *out++ = '\\';
    *out++ = 'u';
    for (int shift = 12; shift >= 0; shift -= 4) *out++ = kDigits[(code >> shift) & 0xFU];
  } else {
    *out++ = '\\';
    *out++ = escape;
  }
  text.remove_prefix(1);
  return out;
}

// Copies `text` up to the first byte that can need an escape; gives the number of bytes. What is
// behind them is written over: there must be room for a whole block.
[[gnu::always_inline]] inline std::size_t CopyPlain(std::string_view text, char* out) {
  using bytes::Block;
  using bytes::kBlock;
  if (text.size() < kBlock) {
    const Block part = Block::LoadPart(text.data(), text.size());
    part.Store(out);
    return bytes::FirstBit(SpecialBytes(part) | 1U << text.size());
  }
  const std::size_t last = text.size() - kBlock;
  for (std::size_t i = 0; i < last; i += kBlock) {
    const Block block = Block::Load(text.data() + i);
    block.Store(out + i);
    if (const std::uint32_t special = SpecialBytes(block)) return i + bytes::FirstBit(special);
  }
  const Block block = Block::Load(text.data() + last);  // overlaps the one before
  block.Store(out + last);
  return last + bytes::FirstBit(SpecialBytes(block) | 1U << kBlock);
}

// Writes `text` with its escapes; gives the end of what was written.
char* Escape(std::string_view text, char* out) {
  while (true) {
    const std::size_t plain = CopyPlain(text, out);
    text.remove_prefix(plain);
    out += plain;
    if (text.empty()) return out;
    out = EscapeOne(text, out);
  }
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

void JsonText::PutPrepared(const char* begin, const char* end) {
  if (first_) begin += kSeparator.size();
  first_ = false;
  const auto size = static_cast<std::size_t>(end - begin);
  if (kBufferSize - used_ < size + bytes::kBlock) return Put({begin, size});
  bytes::CopyInBlocks(End(), begin, size);
  used_ += size;
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
  Reserve(kMostDigits);
  SetEnd(std::to_chars(End(), End() + kMostDigits, value).ptr);
}

void JsonText::Real(double value) {
  if (!std::isfinite(value)) return Null();
  Reserve(kMostDigits);
  SetEnd(Write17Digits(value, End()));
}

// Most texts are short and need no escape.
void JsonText::String(std::string_view text) {
  constexpr std::size_t kMore = bytes::kBlock + std::string_view("\"\"").size();
  if (text.size() > kPieceSize || kBufferSize - used_ < text.size() + kMore) {
    return EscapedString(text);
  }
  char* const out = End();
  *out = '"';
  if (CopyPlain(text, out + 1) != text.size()) return EscapedString(text);
  out[1 + text.size()] = '"';
  used_ += text.size() + 2;
}

void JsonText::EscapedString(std::string_view text) {
  PutByte('"');
  while (!text.empty()) {
    std::size_t size = std::min(text.size(), kPieceSize);
    // A line separator, three bytes, must not fall between two pieces.
    if (size < text.size()) {
      if (IsLineSeparator(text.substr(size - 1))) size -= 1;
      if (IsLineSeparator(text.substr(size - 2))) size -= 2;
    }
    static_assert(kPieceSize * kMostEscapeBytes + bytes::kBlock <= kBufferSize,
                  "a piece may not fit the buffer if each of its bytes needs an escape");
    Reserve(size * kMostEscapeBytes + bytes::kBlock);
    SetEnd(Escape(text.substr(0, size), End()));
    text.remove_prefix(size);
  }
  PutByte('"');
}

}  // namespace a2l
