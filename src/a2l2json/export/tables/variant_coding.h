// SPDX-License-Identifier: MIT
//
// Variant coding.
#pragma once

#include "a2l2json/elements/blocks/variant_coding.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/rows.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

// The addresses count only where they come first in the block.
inline const Element* FindVarAddress(const Element& characteristic) {
  const Element* first = characteristic.Child(0);
  return first != nullptr && first->kind == ElementKind::VAR_ADDRESS ? first : nullptr;
}
inline constexpr Row kVarCharacteristicRows[] = {
    JoinedField<&VoA2LElementVarCharacteristic::CRITERION_NAME>("FCRITERION_NAME"),
    Field<&VoA2LElementVarCharacteristic::NAME>("FNAME"),
    Found("FVAR_ADDRESS", FindVarAddress, Joined<&VoA2LElementVarAddress::VAR_ADDRESS>()),
};
inline constexpr ObjectTable kVarCharacteristic =
    MakeTable<VoA2LElementVarCharacteristic, kVarCharacteristicRows>();

inline constexpr Row kVarCriterionRows[] = {
    Field<&VoA2LElementVarCriterion::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementVarCriterion::NAME>("FNAME"),
    JoinedField<&VoA2LElementVarCriterion::VALUE>("FVALUE"),
    Child("FVAR_MEASUREMENT"),
    Child("FVAR_SELECTION_CHARACTERISTIC"),
};
inline constexpr ObjectTable kVarCriterion =
    MakeTable<VoA2LElementVarCriterion, kVarCriterionRows>();

inline constexpr Row kVariantCodingRows[] = {
    Children("FVAR_CHARACTERISTIC", kVarCharacteristic),
    Children("FVAR_CRITERION", kVarCriterion),
    Children("FVAR_FORBIDDEN_COMB"),
    Child("FVAR_NAMING"),
    Child("FVAR_SEPARATOR"),
};
inline constexpr ObjectTable kVariantCoding =
    MakeTable<VoA2LElementVariantCoding, kVariantCodingRows>();

}  // namespace a2l::tables
