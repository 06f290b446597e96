// SPDX-License-Identifier: MIT
//
// Other encodings than UTF-8: a few of our own, which work wherever the program does, and those of
// the system. This is the only place that knows iconv, and the code pages of Windows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace a2l {

/// Whether ToUtf8 can convert from the encoding of this name.
bool KnowsEncoding(const std::string& name);

/// A text in UTF-8, or what kept it from becoming one.
struct Converted {
  bool isDone = false;
  std::string text;
  /// Where it is not done: the bytes before the first one, or the line, that is not in the
  /// encoding.
  std::size_t good = 0;
};

/// Converts `bytes` from the encoding of this name.
Converted ToUtf8(const std::string& name, std::string_view bytes);

}  // namespace a2l
