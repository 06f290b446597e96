// SPDX-License-Identifier: MIT
#include "a2l2json/text/a2l_text.h"

#include <ostream>

namespace a2l {

std::string Quote(std::string_view text) {
  std::string quoted;
  quoted.reserve(text.size() + 2);
  AppendQuoted(quoted, text);
  return quoted;
}

void AppendQuoted(std::string& line, std::string_view text) {
  constexpr std::string_view kBytes = "\\\"'\n\r\t";
  constexpr std::string_view kEscapes = "\\\"'nrt";
  line += '"';
  for (const char c : text) {
    if (const std::size_t escape = kBytes.find(c); escape != std::string_view::npos) {
      line += '\\';
      line += kEscapes[escape];
    } else {
      line += c;
    }
  }
  line += '"';
}

void AppendHex(std::string& line, std::uint64_t number) {
  int digits = 1;
  for (std::uint64_t rest = number / 16; rest != 0; rest /= 16) ++digits;
  line += "0x";
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    line += "0123456789ABCDEF"[(number >> shift) % 16];
  }
}

void AppendHex(std::string& line, std::uint32_t number) {
  AppendHex(line, static_cast<std::uint64_t>(number));
}

void AppendHex(std::string& line, std::int32_t number) {
  const auto wide = static_cast<std::int64_t>(number);
  const std::size_t start = line.size();
  AppendHex(line, static_cast<std::uint64_t>(wide < 0 ? -wide : wide));
  if (number < 0) line.insert(start + 2, 1, '-');
}

void WriteLine(std::ostream& out, int level, std::string_view text) {
  for (int i = 0; i < level; ++i) out << "  ";
  out << text << std::endl;  // NOLINT(performance-avoid-endl): the flush is promised
}

}  // namespace a2l
