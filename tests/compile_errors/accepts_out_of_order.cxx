// SPDX-License-Identifier: MIT
// Accepted children that are not in the order of their keywords.
// Expected: the kinds that a class accepts are to stand in the order of their keywords
#include "a2l2json/elements/declaration_checks.h"

namespace a2l {

struct VoA2LElementColour final : detail::Block<VoA2LElementColour, ElementKind::UNIT> {
  static constexpr ElementKind accepts[] = {ElementKind::ANNOTATION, ElementKind::VERSION, ElementKind::USER};
};
const auto* const kChecked = detail::Checked<VoA2LElementColour, ElementKind::UNIT>();

}  // namespace a2l
