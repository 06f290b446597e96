// SPDX-License-Identifier: MIT
//
// Padded texts (see text/bytes.h), for tests.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "a2l2json/text/bytes.h"

namespace a2l::test {

/// A text with bytes behind it that would change most results, and none behind these, so that
/// AddressSanitizer notices a read beyond what a padded text allows.
class Padded {
 public:
  explicit Padded(std::string_view text) : size_(text.size()) {
    bytes_.reserve(size_ + bytes::kBlock);
    bytes_.assign(text.begin(), text.end());
    for (std::size_t i = 0; i < bytes::kBlock; ++i) bytes_.push_back("\" a/"[i % 4]);
  }
  [[nodiscard]] std::string_view View() const { return {bytes_.data(), size_}; }

 private:
  std::vector<char> bytes_;
  std::size_t size_;
};

}  // namespace a2l::test
