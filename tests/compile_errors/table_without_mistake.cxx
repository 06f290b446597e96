// SPDX-License-Identifier: MIT
// Like the others, but without a mistake: if all of them have the same fault, such as a missing file,
// it shows here.
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
