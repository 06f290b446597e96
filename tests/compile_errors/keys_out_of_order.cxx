// SPDX-License-Identifier: MIT
// The lower limit below the upper one.
// Expected: the keys of a table are not in ascending order
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"

namespace a2l {

constexpr Row kRows[] = {
    Field<&VoA2LElementLimits::UPPER_LIMIT>("FUPPER_LIMIT"),
    Field<&VoA2LElementLimits::LOWER_LIMIT>("FLOWER_LIMIT"),
};
constexpr ObjectTable kTable = MakeTable<VoA2LElementLimits, kRows>();

}  // namespace a2l
