// SPDX-License-Identifier: MIT
//
// The keywords in the keys of the document: "F" and the keyword.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "a2l2json/model/keywords.h"

namespace a2l {

struct KeywordKey {
  ElementKind kind;
  std::string_view key;
};

/// The key of every keyword, in the order of the keys.
inline constexpr auto kKeywordKeys = [] {
  std::array keys = {
#define A2L_KEYWORD(number, keyword, Class) KeywordKey{ElementKind::keyword, "F" #keyword},
#include "a2l2json/model/keywords.def"
  };
  std::ranges::sort(keys, {}, &KeywordKey::key);
  return keys;
}();

/// The kind whose keyword stands in `key`; KIND_UNKNOWN where the key holds no keyword.
consteval ElementKind KindOfKey(std::string_view key) {
  const auto* const found = std::ranges::lower_bound(kKeywordKeys, key, {}, &KeywordKey::key);
  return found != kKeywordKeys.end() && found->key == key ? found->kind : KIND_UNKNOWN;
}

}  // namespace a2l
