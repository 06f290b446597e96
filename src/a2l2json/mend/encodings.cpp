// SPDX-License-Identifier: MIT
#include "a2l2json/mend/encodings.h"

#include <algorithm>
#include <cstddef>

namespace a2l::mending {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

constexpr bool IsHighHalf(std::uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool IsLowHalf(std::uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

void AppendUtf8(std::string& text, std::uint32_t code) {
  const auto append = [&text](std::uint32_t byte) { text += static_cast<char>(byte); };
  if (code < 0x80) {
    append(code);
    return;
  }
  if (code < 0x800) {
    append(0xC0U | code >> 6U);
  } else {
    if (code < 0x10000) {
      append(0xE0U | code >> 12U);
    } else {
      append(0xF0U | code >> 18U);
      append(0x80U | (code >> 12U & 0x3FU));
    }
    append(0x80U | (code >> 6U & 0x3FU));
  }
  append(0x80U | (code & 0x3FU));
}

Encoding EncodingOf(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE")) return Encoding::LittleEndian;
  if (bytes.starts_with("\xFE\xFF")) return Encoding::BigEndian;
  if (bytes.size() >= 4) {
    const auto isZero = [bytes](std::size_t i) { return bytes[i] == '\0'; };
    if (isZero(1) && isZero(3) && !isZero(0) && !isZero(2)) return Encoding::LittleEndian;
    if (isZero(0) && isZero(2) && !isZero(1) && !isZero(3)) return Encoding::BigEndian;
  }
  return Encoding::Bytes;
}

std::string Utf8Of(std::string_view bytes, Encoding encoding) {
  const std::size_t high = encoding == Encoding::LittleEndian ? 1 : 0;
  const auto unitAt = [bytes, high](std::size_t i) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i + high])) << 8U |
           static_cast<unsigned char>(bytes[i + 1 - high]);
  };
  std::string text;
  text.reserve(bytes.size() / 2 + bytes.size() / 16);
  std::size_t i = bytes.size() >= 2 && unitAt(0) == 0xFEFF ? 2 : 0;
  for (; i + 1 < bytes.size(); i += 2) {
    std::uint32_t code = unitAt(i);
    if (IsHighHalf(code) && i + 3 < bytes.size() && IsLowHalf(unitAt(i + 2))) {
      code = 0x10000 + ((code - 0xD800) << 10U) + (unitAt(i + 2) - 0xDC00);
      i += 2;
    } else if (IsHighHalf(code) || IsLowHalf(code)) {
      code = kReplacement;
    }
    AppendUtf8(text, code);
  }
  if (i < bytes.size()) AppendUtf8(text, kReplacement);
  return text;
}

bool MakeLineFeeds(std::string_view text, std::string& changed) {
  if (text.find('\n') != std::string_view::npos) return false;
  if (text.find('\r') == std::string_view::npos) return false;
  changed = text;
  std::ranges::replace(changed, '\r', '\n');
  return true;
}

}  // namespace a2l::mending
