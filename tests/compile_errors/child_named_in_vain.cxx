// SPDX-License-Identifier: MIT
// REF_UNIT has a row, but is named as a child without one.
// Expected: MakeTable is told of a child without a row that has one
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"

namespace a2l {

constexpr Row kRows[] = {
    Child("FREF_UNIT"),
    Child("FSI_EXPONENTS"),
    Child("FUNIT_CONVERSION"),
};
constexpr ObjectTable kTable = MakeTable<VoA2LElementUnit, kRows, ElementKind::REF_UNIT>();

}  // namespace a2l
