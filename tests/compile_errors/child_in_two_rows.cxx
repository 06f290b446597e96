// SPDX-License-Identifier: MIT
// SI_EXPONENTS under its own key and under that of another keyword.
// Expected: two rows take the same child
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"

namespace a2l {

constexpr Row kRows[] = {
    EitherChild("FREF_UNIT", ElementKind::SI_EXPONENTS),
    Child("FSI_EXPONENTS"),
    Child("FUNIT_CONVERSION"),
};
constexpr ObjectTable kTable = MakeTable<VoA2LElementUnit, kRows>();

}  // namespace a2l
