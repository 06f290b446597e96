// SPDX-License-Identifier: MIT
//
// The encoding of a file, by its first bytes, and its line ends.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace a2l::mending {

/// The byte order mark of UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

enum class Encoding : std::uint8_t {
  Bytes,         ///< UTF-8, or any other in which ASCII is ASCII
  LittleEndian,  ///< UTF-16
  BigEndian,
};

/// Puts the character of this code behind `text`.
void AppendUtf8(std::string& text, std::uint32_t code);

/// By the byte order mark; without one, by where the zero bytes of the first two characters are,
/// which are ASCII in every A2L file.
[[nodiscard]] Encoding EncodingOf(std::string_view bytes);

/// UTF-16 as UTF-8, without its byte order mark. Half a character, and an odd byte at the end,
/// become the replacement character.
[[nodiscard]] std::string Utf8Of(std::string_view bytes, Encoding encoding);

/// If the lines of `text` end in carriage returns alone, gives true, and `changed` is the text with
/// line feeds in their place. Otherwise, that is with a line feed or without a carriage return,
/// gives false and changes nothing.
bool MakeLineFeeds(std::string_view text, std::string& changed);

}  // namespace a2l::mending
