// SPDX-License-Identifier: MIT
// A word whose field is a bare number.
// Expected: Word is for a field of one of the enumerations in model/value_sets.h
#include "a2l2json/elements/element_class.h"

namespace a2l {

struct VoA2LElementColour final : detail::Property<VoA2LElementColour, ElementKind::CUSTOMER> {
  std::uint32_t COLOUR = 0;
  static constexpr Parameter parameters[] = {Word<&Self::COLOUR>};
};

}  // namespace a2l
