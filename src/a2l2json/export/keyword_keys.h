// SPDX-License-Identifier: MIT
//
// The keywords in the keys of the document: "F" and the keyword.
#pragma once

#include <string_view>

#include "a2l2json/model/keywords.h"

namespace a2l {

struct KeywordKey {
  ElementKind kind;
  std::string_view key;
};

/// The key of every keyword.
inline constexpr KeywordKey kKeywordKeys[] = {
#define A2L_KEYWORD(number, keyword, Class) {ElementKind::keyword, "F" #keyword},
#include "a2l2json/model/keywords.def"
};

/// The kind whose keyword stands in `key`; KIND_UNKNOWN where the key holds no keyword.
consteval ElementKind KindOfKey(std::string_view key) {
  for (const KeywordKey& keyword : kKeywordKeys) {
    if (keyword.key.size() == key.size() && keyword.key == key) return keyword.kind;
  }
  return KIND_UNKNOWN;
}

}  // namespace a2l
