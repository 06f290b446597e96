// SPDX-License-Identifier: MIT
// A class that is a property, of a keyword that is a block's.
// Expected: the number of this keyword is that of a block
#include "a2l2json/elements/element_class.h"

namespace a2l {

struct VoA2LElementColour final : detail::Property<VoA2LElementColour, ElementKind::UNIT> {};

}  // namespace a2l
