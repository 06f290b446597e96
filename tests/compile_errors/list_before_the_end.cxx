// SPDX-License-Identifier: MIT
// A parameter behind an open list, which takes all tokens that are left.
// Expected: only the last parameter can be an open list
#include "a2l2json/elements/declaration_checks.h"

namespace a2l {

struct VoA2LElementColour final : detail::Block<VoA2LElementColour, ElementKind::UNIT> {
  std::string_view NAME;
  List<std::string_view> SHADES;
  static constexpr Parameter parameters[] = {Identifiers<&Self::SHADES>, Identifier<&Self::NAME>};
};
const auto* const kChecked = detail::Checked<VoA2LElementColour, ElementKind::UNIT>();

}  // namespace a2l
