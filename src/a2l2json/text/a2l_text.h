// SPDX-License-Identifier: MIT
//
// Writing A2L text.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace a2l {

/// `text` in double quotes, with a backslash in front of backslashes, quotes and apostrophes,
/// and line feed, carriage return and tab as \n, \r and \t.
[[nodiscard]] std::string Quote(std::string_view text);
void AppendQuoted(std::string& line, std::string_view text);

/// "0x" and upper-case hexadecimal digits without leading zeros. A minus sign stands behind the x:
/// 0x-1A.
void AppendHex(std::string& line, std::uint32_t number);
void AppendHex(std::string& line, std::int32_t number);
void AppendHex(std::string& line, std::uint64_t number);

/// One line of text behind two blanks per level; the stream is flushed, so that what was written
/// is there even if the program that uses the library ends early.
void WriteLine(std::ostream& out, int level, std::string_view text);

}  // namespace a2l
