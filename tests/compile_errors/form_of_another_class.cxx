// SPDX-License-Identifier: MIT
// An address that is found among the children of one keyword, but taken from the class of another.
// Expected: TheFormIsThatOfAnotherKeyword
#include "a2l2json/export/kind_forms.h"

namespace a2l {

constexpr Row kRow = Found("FECU_ADDRESS", FindFirst<ElementKind::ECU_ADDRESS>,
                           Value<&VoA2LElementSymbolLink::OFFSET>());

}  // namespace a2l
