// SPDX-License-Identifier: MIT
// What the others get wrong, right: a mistake in all of them, such as a missing file, shows here.
// Expected: nothing
#include "a2l2json/export/tables/shared.h"

namespace a2l {

constexpr Row kRows[] = {
    Child("FADDRESS_TYPE"),
    Field<&VoA2LElementTypedefBlob::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementTypedefBlob::NAME>("FNAME"),
};
constexpr ObjectTable kTable = MakeTable<VoA2LElementTypedefBlob, kRows>();
constexpr Row kRow = Children("FANNOTATION", tables::kAnnotation);
constexpr WordForm kForm = WordForm::Of<&VoA2LElementMeasurement::DATATYPE>();

}  // namespace a2l
