// SPDX-License-Identifier: MIT
// The lower limit under two keys.
// Expected: two rows of a table take the same field
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"

namespace a2l {

constexpr Row kRows[] = {
    Field<&VoA2LElementLimits::LOWER_LIMIT>("FLOWER_LIMIT"),
    Field<&VoA2LElementLimits::LOWER_LIMIT>("FUPPER_LIMIT"),
};
constexpr ObjectTable kTable = MakeTable<VoA2LElementLimits, kRows>();

}  // namespace a2l
