// SPDX-License-Identifier: MIT
// A class accepts UNIT_CONVERSION, but no row shows it.
// Expected: the class accepts a child that no row shows
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"

namespace a2l {

constexpr Row kRows[] = {
    Child("FREF_UNIT"),
    Child("FSI_EXPONENTS"),
};
constexpr ObjectTable kTable = MakeTable<VoA2LElementUnit, kRows>();

}  // namespace a2l
