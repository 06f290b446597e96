// SPDX-License-Identifier: MIT
// Rows whose number no parameter tells.
// Expected: a class with columns needs one parameter that is a RowCount
#include "a2l2json/elements/declaration_checks.h"

namespace a2l {

struct VoA2LElementColour final : detail::Block<VoA2LElementColour, ElementKind::UNIT> {
  std::uint32_t SIZE = 0;
  List<double> SHADES;
  static constexpr Parameter parameters[] = {Unsigned<&Self::SIZE>};
  static constexpr Parameter columns[] = {RealList<&Self::SHADES>};
};
const auto* const kChecked = detail::Checked<VoA2LElementColour, ElementKind::UNIT>();

}  // namespace a2l
