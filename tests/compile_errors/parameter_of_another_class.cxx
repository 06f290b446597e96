// SPDX-License-Identifier: MIT
// A parameter that is a field of another class.
// Expected: a parameter names a field of another class
#include "a2l2json/elements/elements.h"

namespace a2l {

struct VoA2LElementColour final : detail::Property<VoA2LElementColour, ElementKind::CUSTOMER> {
  static constexpr Parameter parameters[] = {Text<&VoA2LElementUser::USER>};
};
VoA2LElementColour colour;

}  // namespace a2l
