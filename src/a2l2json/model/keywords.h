// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "a2l2json/names_begin.h"

namespace a2l {

/// The kind of an element: a number per keyword of the format. The group that a number lies in
/// says how the keyword is written in a file; see IsBlock and IsProperty.
enum class ElementKind : std::int32_t {
  KIND_ROOT = 0,  ///< the root of a tree; it has no keyword
#define A2L_KEYWORD(number, keyword, Class) keyword = (number),
#include "a2l2json/model/keywords.def"
  KIND_UNKNOWN = 25535,  ///< any keyword that the format does not define

  // For files where these keywords are macros; see names_begin.h.
  BYTE_ORDER_ = BYTE_ORDER,
  VERSION_ = VERSION,
};

inline constexpr ElementKind KIND_ROOT = ElementKind::KIND_ROOT;
inline constexpr ElementKind KIND_UNKNOWN = ElementKind::KIND_UNKNOWN;

namespace detail {

/// Keywords with numbers that follow each other.
struct KeywordGroup {
  std::int32_t first = 0;
  std::int32_t last = 0;

  [[nodiscard]] constexpr bool Has(std::int32_t number) const {
    return number >= first && number <= last;
  }
};

inline constexpr std::int32_t kKeywordNumbers[] = {
#define A2L_KEYWORD(number, keyword, Class) number,
#include "a2l2json/model/keywords.def"
};

/// The group at `place`, counted from 0; an empty one behind the last.
consteval KeywordGroup GroupAt(std::size_t place) {
  KeywordGroup group;
  for (std::size_t i = 0; i < std::size(kKeywordNumbers); ++i) {
    const std::int32_t number = kKeywordNumbers[i];
    if (i == 0 || number != kKeywordNumbers[i - 1] + 1) {
      if (i != 0 && place-- == 0) return group;
      group = {number, number};
    }
    group.last = number;
  }
  return place == 0 ? group : KeywordGroup{};
}

inline constexpr KeywordGroup kMainBlocks = GroupAt(0);
inline constexpr KeywordGroup kFurtherBlocks = GroupAt(1);
inline constexpr KeywordGroup kProperties = GroupAt(2);
static_assert(GroupAt(3).first == 0,
              "keywords.def has more than three groups: a number is missing, or out of order");

}  // namespace detail

/// Number of keywords that the format defines.
inline constexpr std::size_t kKeywordCount = std::size(detail::kKeywordNumbers);

namespace detail {
/// The KindIndex of every number up to the last that a keyword has.
inline constexpr auto kIndexOfNumber = [] {
  std::array<std::uint8_t, static_cast<std::size_t>(kProperties.last) + 1> indices{};
  indices.fill(kKeywordCount + 1);
  for (std::size_t i = 0; i < kKeywordCount; ++i) {
    indices.at(static_cast<std::size_t>(kKeywordNumbers[i])) = static_cast<std::uint8_t>(i);
  }
  return indices;
}();
}  // namespace detail

/// The kind of a keyword. The comparison is exact: upper case, no surrounding blanks. Any other
/// text, the empty one included, gives KIND_UNKNOWN.
[[nodiscard]] ElementKind KeywordToKind(std::string_view keyword);
/// The same for a padded text (see text/bytes.h).
[[nodiscard]] ElementKind PaddedKeywordToKind(std::string_view keyword);

/// The keyword of a kind; empty for the root, for KIND_UNKNOWN and for any number that is not
/// the number of a keyword.
[[nodiscard]] std::string_view KindToKeyword(ElementKind kind);

/// True for the keywords that are written between /begin and /end.
[[nodiscard]] constexpr bool IsBlock(ElementKind kind) {
  const auto number = static_cast<std::int32_t>(kind);
  return detail::kMainBlocks.Has(number) || detail::kFurtherBlocks.Has(number);
}

/// True for the keywords that are written without /begin, on a line of their own: every kind from
/// that of the first property on.
[[nodiscard]] constexpr bool IsProperty(ElementKind kind) {
  return static_cast<std::int32_t>(kind) >= detail::kProperties.first && kind != KIND_UNKNOWN;
}

/// A dense number for tables indexed by kind: 0 to kKeywordCount - 1 in the order of the
/// keyword list, kKeywordCount for KIND_UNKNOWN, kKeywordCount + 1 for everything else.
[[nodiscard]] constexpr std::size_t KindIndex(ElementKind kind) {
  const auto number = static_cast<std::size_t>(kind);
  if (number < detail::kIndexOfNumber.size()) return detail::kIndexOfNumber[number];
  return kind == KIND_UNKNOWN ? kKeywordCount : kKeywordCount + 1;
}

/// Size of a table indexed by KindIndex.
inline constexpr std::size_t kKindIndexCount = kKeywordCount + 2;

}  // namespace a2l

#include "a2l2json/names_end.h"
