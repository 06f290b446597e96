// SPDX-License-Identifier: MIT
// What the other sources spoil, without a mistake.
// Expected: nothing
#include "a2l2json/elements/declaration_checks.h"

namespace a2l {

struct VoA2LElementColour final : detail::Block<VoA2LElementColour, ElementKind::UNIT> {
  std::string_view NAME;
  std::uint32_t SIZE = 0;
  DataType TYPE{};
  List<double> SHADES;
  static constexpr Parameter parameters[] = {Text<&Self::NAME>, Word<&Self::TYPE>,
                                             RowCount<&Self::SIZE>};
  static constexpr Parameter columns[] = {RealList<&Self::SHADES>};
  static constexpr ElementKind accepts[] = {ElementKind::ANNOTATION, ElementKind::USER, ElementKind::VERSION};
};
const auto* const kChecked = detail::Checked<VoA2LElementColour, ElementKind::UNIT>();

}  // namespace a2l
