// SPDX-License-Identifier: MIT
// Annotations as objects of IF_DATA.
// Expected: TheTableIsThatOfAnotherKeyword
#include "a2l2json/export/tables/shared.h"

namespace a2l {

constexpr Row kRow = Children("FANNOTATION", tables::kIfData);

}  // namespace a2l
