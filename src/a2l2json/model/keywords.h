// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

// A keyword of the format, and on some platforms a macro that <cstdlib> brings along.
#undef BYTE_ORDER

namespace a2l {

/// The kind of an element: a number per keyword of the format. The group that a number lies in
/// says how the keyword is written in a file; see IsBlock and IsProperty.
enum class ElementKind : std::int32_t {
  KIND_ROOT = 0,  ///< the root of a tree; it has no keyword
#define A2L_KEYWORD(number, keyword, Class) keyword = (number),
#include "a2l2json/model/keywords.def"
  KIND_UNKNOWN = 25535,  ///< any keyword that the format does not define
};

inline constexpr ElementKind KIND_ROOT = ElementKind::KIND_ROOT;
inline constexpr ElementKind KIND_UNKNOWN = ElementKind::KIND_UNKNOWN;

/// Number of keywords that the format defines.
inline constexpr std::size_t kKeywordCount = 205;

/// The kind of a keyword. The comparison is exact: upper case, no surrounding blanks. Any other
/// text, the empty one included, gives KIND_UNKNOWN.
[[nodiscard]] ElementKind KeywordToKind(std::string_view keyword);

/// The keyword of a kind; empty for the root, for KIND_UNKNOWN and for any number that is not
/// the number of a keyword.
[[nodiscard]] std::string_view KindToKeyword(ElementKind kind);

/// True for the keywords that are written between /begin and /end.
[[nodiscard]] constexpr bool IsBlock(ElementKind kind) {
  const auto number = static_cast<std::int32_t>(kind);
  return (number >= 1 && number <= 20) || (number >= 100 && number <= 141);
}

/// True for the keywords that are written without /begin, on a line of their own.
[[nodiscard]] constexpr bool IsProperty(ElementKind kind) {
  return static_cast<std::int32_t>(kind) > 1000 && kind != KIND_UNKNOWN;
}

/// A dense number for tables indexed by kind: 0 to kKeywordCount - 1 in the order of the
/// keyword list, kKeywordCount for KIND_UNKNOWN, kKeywordCount + 1 for everything else.
[[nodiscard]] constexpr std::size_t KindIndex(ElementKind kind) {
  const auto number = static_cast<std::size_t>(kind);
  if (number >= 1 && number <= 20) return number - 1;
  if (number >= 100 && number <= 141) return number - 100 + 20;
  if (number >= 1001 && number <= 1143) return number - 1001 + 62;
  return kind == KIND_UNKNOWN ? kKeywordCount : kKeywordCount + 1;
}

/// Size of a table indexed by KindIndex.
inline constexpr std::size_t kKindIndexCount = kKeywordCount + 2;

}  // namespace a2l
