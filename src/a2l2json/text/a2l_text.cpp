// SPDX-License-Identifier: MIT
#include "a2l2json/text/a2l_text.h"

#include <ostream>

#include <fmt/args.h>
#include <fmt/format.h>

namespace a2l {

std::string Quote(std::string_view text) {
  constexpr std::string_view kBytes = "\\\"'\n\r\t";
  constexpr std::string_view kEscapes = "\\\"'nrt";
  std::string quoted = "\"";
  quoted.reserve(text.size() + 2);
  for (const char c : text) {
    if (const std::size_t escape = kBytes.find(c); escape != std::string_view::npos) {
      quoted += '\\';
      quoted += kEscapes[escape];
    } else {
      quoted += c;
    }
  }
  quoted += '"';
  return quoted;
}

std::string Format(std::string_view format, std::span<const Argument> arguments) {
  fmt::dynamic_format_arg_store<fmt::format_context> store;
  for (const Argument& argument : arguments) {
    std::visit([&store](const auto& value) { store.push_back(value); }, argument);
  }
  return fmt::vformat(fmt::string_view(format.data(), format.size()), store);
}

void WriteLine(std::ostream& out, int level, std::string_view text) {
  for (int i = 0; i < level; ++i) out << "  ";
  out << text << std::endl;  // NOLINT(performance-avoid-endl): the flush is promised
}

}  // namespace a2l
