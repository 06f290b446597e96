// SPDX-License-Identifier: MIT
//
// Texts that elements keep, taken from parameter text.
#pragma once

#include <cstddef>
#include <string_view>

#include "a2l2json/model/tree_store.h"
#include "a2l2json/text/bytes.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l::detail {

/// Identifiers are cut to this length.
inline constexpr std::size_t kMostIdentifierBytes = 1024;

/// A token as an identifier: cut, its quotes (if any) kept.
inline std::string_view KeepIdentifier(TreeStore& store, std::string_view token) {
  return store.Copy(token.substr(0, kMostIdentifierBytes));
}

/// A token without its quotes; empty when it is not quoted.
inline std::string_view KeepText(TreeStore& store, std::string_view token) {
  if (token.size() < 2 || token.front() != '"') return {};
  const std::string_view inside = token.substr(1, token.size() - 2);
  const char* const end = inside.data() + inside.size();
  const bool plain = bytes::Find<'"', '\\'>(inside.data(), end) == end;
  if (token.back() == '"' && plain) return store.Copy(inside);
  char* const bytes = store.AllocateBytes(token.size());
  return {bytes, UnquoteInto(token, bytes)};
}

/// The next token as an identifier.
inline std::string_view ReadIdentifier(TreeStore& store, TokenReader& tokens) {
  return KeepIdentifier(store, tokens.Next());
}

/// The next token without its quotes.
inline std::string_view ReadText(TreeStore& store, TokenReader& tokens) {
  return KeepText(store, tokens.Next());
}

}  // namespace a2l::detail
