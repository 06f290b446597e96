// SPDX-License-Identifier: MIT
// A child by a key that does not hold a keyword.
// Expected: TheKeyHoldsNoKeyword_GiveTheKindBehindIt
#include "a2l2json/export/kind_forms.h"

namespace a2l {

constexpr Row kRow = Child("FPHYSICAL_UNIT");

}  // namespace a2l
