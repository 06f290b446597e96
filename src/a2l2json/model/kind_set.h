// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>

#include "a2l2json/model/keywords.h"

namespace a2l {

/// A set of element kinds, fixed at compile time; says which children a block accepts.
class KindSet {
 public:
  constexpr KindSet() = default;
  constexpr KindSet(std::initializer_list<ElementKind> kinds) : KindSet(std::span(kinds)) {}
  constexpr explicit KindSet(std::span<const ElementKind> kinds) {
    for (const ElementKind kind : kinds) *this = With(kind);
  }

  /// This set and `kind`.
  [[nodiscard]] constexpr KindSet With(ElementKind kind) const {
    KindSet set = *this;
    set.words_[KindIndex(kind) / 64] |= std::uint64_t{1} << (KindIndex(kind) % 64);
    return set;
  }

  [[nodiscard]] constexpr bool Contains(ElementKind kind) const {
    const std::size_t index = KindIndex(kind);
    return index <= kKeywordCount && ((words_[index / 64] >> (index % 64)) & 1U) != 0;
  }

 private:
  std::array<std::uint64_t, kKindIndexCount / 64 + 1> words_{};
};

}  // namespace a2l
