// SPDX-License-Identifier: MIT
// An unsigned parameter whose field has a sign.
// Expected: Unsigned is for a std::uint32_t
#include "a2l2json/elements/element_class.h"

namespace a2l {

struct VoA2LElementColour final : detail::Property<VoA2LElementColour, ElementKind::CUSTOMER> {
  std::int32_t COLOUR = 0;
  static constexpr Parameter parameters[] = {Unsigned<&Self::COLOUR>};
};

}  // namespace a2l
