// SPDX-License-Identifier: MIT
//
// All small inputs, for tests.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace a2l::test {

/// Every text over `alphabet` with at most `length` bytes, the empty one first.
inline std::vector<std::string> AllTexts(std::string_view alphabet, std::size_t length) {
  std::vector<std::string> texts = {""};
  for (std::size_t begin = 0, n = 0; n < length; ++n) {
    const std::size_t end = texts.size();
    for (; begin < end; ++begin) {
      for (const char c : alphabet) texts.push_back(texts[begin] + c);
    }
  }
  return texts;
}

}  // namespace a2l::test
