// SPDX-License-Identifier: MIT
// A row of INSTANCE that takes the name of a BLOB.
// Expected: a row takes a field of another class than its table
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"

namespace a2l {

constexpr Row kRows[] = {
    Field<&VoA2LElementInstance::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementBlob::NAME>("FNAME"),
};
constexpr ObjectTable kTable = MakeTable<VoA2LElementInstance, kRows>();

}  // namespace a2l
