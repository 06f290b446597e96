// SPDX-License-Identifier: MIT
// A key that holds one keyword, with the kind of another.
// Expected: TheKeyHoldsAKeyword_ItsKindCannotBeAnother
#include "a2l2json/export/kind_forms.h"

namespace a2l {

constexpr Row kRow = Child("FPHYS_UNIT", ElementKind::FORMAT);

}  // namespace a2l
