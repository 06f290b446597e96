// SPDX-License-Identifier: MIT
// A TYPEDEF_BLOB has no BIT_MASK.
// Expected: a row shows a child that its class does not accept
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"

namespace a2l {

constexpr Row kRows[] = {
    Child("FADDRESS_TYPE"),
    Child("FBIT_MASK"),
};
constexpr ObjectTable kTable = MakeTable<VoA2LElementTypedefBlob, kRows>();

}  // namespace a2l
