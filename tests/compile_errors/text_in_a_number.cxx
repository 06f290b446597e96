// SPDX-License-Identifier: MIT
// A text parameter whose field is a number.
// Expected: names and texts are kept in a std::string_view
#include "a2l2json/elements/element_class.h"

namespace a2l {

struct VoA2LElementColour final : detail::Property<VoA2LElementColour, ElementKind::CUSTOMER> {
  std::uint32_t COLOUR = 0;
  static constexpr Parameter parameters[] = {Text<&Self::COLOUR>};
};

}  // namespace a2l
