// SPDX-License-Identifier: MIT
// READ_ONLY has no value, only a flag.
// Expected: TheKeywordHasNoFieldOfItsName_ListItInTheOtherForms
#include "a2l2json/export/kind_forms.h"

namespace a2l {

constexpr Row kRow = Child("FREAD_ONLY");

}  // namespace a2l
