// SPDX-License-Identifier: MIT
//
// Blocks whose content is kept as text: the interface descriptions, their grammar, and blocks of
// keywords that the format does not define.
#pragma once

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// The grammar of the interface descriptions.
struct VoA2LElementA2ML final : detail::Block<VoA2LElementA2ML, ElementKind::A2ML> {
  /// What stands between the keyword and /end, line by line as in the file (comments removed).
  std::string_view A2ML;
  static constexpr Parameter parameters[] = {NextLine(RawText<&Self::A2ML>)};
};

/// A description of an interface.
struct VoA2LElementIfData final : detail::Block<VoA2LElementIfData, ElementKind::IF_DATA> {
  std::string_view NAME;
  /// What follows the name, line by line as in the file (comments removed).
  std::string_view IF_DATA;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      NextLineUnindented(RawText<&Self::IF_DATA>),
  };
};

/// A block of an unknown keyword. It is kept in the tree, and leaves no trace in A2L text: writing
/// it succeeds on every stream, even one of a file that is not open.
struct VoA2LElementUnknown final : detail::Block<VoA2LElementUnknown, ElementKind::KIND_UNKNOWN> {
  std::string_view TEXT;
  static constexpr Parameter parameters[] = {RawText<&Self::TEXT>};

  bool Write(int /*level*/, std::ostream& /*out*/) override { return true; }

 protected:
  void WriteOpening(int /*level*/, std::ostream& /*out*/) const override {}
  void WriteClosing(int /*level*/, std::ostream& /*out*/) const override {}
};

}  // namespace a2l
