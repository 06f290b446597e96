// SPDX-License-Identifier: MIT
//
// Writing A2L text: how an element's fields become its lines.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace a2l {

/// `text` in double quotes, with a backslash in front of backslashes, quotes and apostrophes,
/// and line feed, carriage return and tab as \n, \r and \t.
[[nodiscard]] std::string Quote(std::string_view text);

/// A value for a place of a format string. Reals come as their shortest text.
using Argument = std::variant<std::string, std::uint32_t, std::int32_t, std::uint64_t>;
using Arguments = std::vector<Argument>;

/// Number of places ("{0}", "{1:d}", ...) in a format string.
constexpr std::size_t CountPlaces(std::string_view format) {
  std::size_t count = 0;
  for (const char c : format) count += c == '{' ? 1 : 0;
  return count;
}

/// `format` with its places filled: {0} with the first argument, {1} with the second ...
[[nodiscard]] std::string Format(std::string_view format, std::span<const Argument> arguments);

/// One line of text behind two blanks per level; the stream is flushed, so that what was written
/// is there even if the program that uses the library ends early.
void WriteLine(std::ostream& out, int level, std::string_view text);

}  // namespace a2l
