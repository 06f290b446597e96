// SPDX-License-Identifier: MIT
//
// Texts that elements keep, taken from parameter text.
#pragma once

#include <cstddef>
#include <string_view>

#include "a2l2json/model/tree_store.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l::detail {

/// Identifiers are cut to this length.
inline constexpr std::size_t kMostIdentifierBytes = 1024;

/// The next token of `text` as an identifier: cut, its quotes (if any) kept.
inline std::string_view ReadIdentifier(TreeStore& store, std::string_view& text) {
  return store.Copy(NextToken(text).substr(0, kMostIdentifierBytes));
}

/// The next token of `text` without its quotes; empty when it is not quoted.
inline std::string_view ReadText(TreeStore& store, std::string_view& text) {
  const std::string_view token = NextToken(text);
  if (token.size() < 2 || token.front() != '"') return {};
  const std::string_view inside = token.substr(1, token.size() - 2);
  const bool plain =
      inside.find('"') == std::string_view::npos && inside.find('\\') == std::string_view::npos;
  if (token.back() == '"' && plain) return store.Copy(inside);
  char* const bytes = store.AllocateBytes(token.size());
  return {bytes, UnquoteInto(token, bytes)};
}

}  // namespace a2l::detail
