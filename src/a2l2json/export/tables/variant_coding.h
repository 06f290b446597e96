// SPDX-License-Identifier: MIT
//
// Variant coding.
#pragma once

#include "a2l2json/elements/blocks/variant_coding.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

// The addresses count only where they come first in the block.
inline const Element* FindVarAddress(const Element& characteristic) {
  const Element* first = characteristic.Child(0);
  return first != nullptr && first->kind == Kind::VAR_ADDRESS ? first : nullptr;
}
inline constexpr Row kVarCharacteristicRows[] = {
    Field("FCRITERION_NAME", Joined<&VoA2LElementVarCharacteristic::CRITERION_NAME>()),
    Field("FNAME", Value<&VoA2LElementVarCharacteristic::NAME>()),
    Found("FVAR_ADDRESS", FindVarAddress, Joined<&VoA2LElementVarAddress::VAR_ADDRESS>()),
};
inline constexpr ObjectTable kVarCharacteristic = MakeTable<kVarCharacteristicRows>();

inline constexpr Row kVarCriterionRows[] = {
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementVarCriterion::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementVarCriterion::NAME>()),
    Field("FVALUE", Joined<&VoA2LElementVarCriterion::VALUE>()),
    Child("FVAR_MEASUREMENT", Kind::VAR_MEASUREMENT),
    Child("FVAR_SELECTION_CHARACTERISTIC", Kind::VAR_SELECTION_CHARACTERISTIC),
};
inline constexpr ObjectTable kVarCriterion = MakeTable<kVarCriterionRows>();

// An object whose keys are the names of the criteria.
inline constexpr Form kForbiddenCombination = NamedValuesForm{[](const Element& element) {
  return NamedValues{FieldOf<&VoA2LElementVarForbiddenComb::CRITERION_NAME>(element),
                     FieldOf<&VoA2LElementVarForbiddenComb::VALUE>(element)};
}};
inline constexpr Row kVariantCodingRows[] = {
    Children("FVAR_CHARACTERISTIC", Kind::VAR_CHARACTERISTIC, kVarCharacteristic),
    Children("FVAR_CRITERION", Kind::VAR_CRITERION, kVarCriterion),
    {.key = "FVAR_FORBIDDEN_COMB",
     .source = Source::Children,
     .absent = Absent::EmptyArray,
     .kind = Kind::VAR_FORBIDDEN_COMB,
     .form = kForbiddenCombination},
    Child("FVAR_NAMING", Kind::VAR_NAMING),
    Child("FVAR_SEPARATOR", Kind::VAR_SEPARATOR),
};
inline constexpr ObjectTable kVariantCoding = MakeTable<kVariantCodingRows>();

}  // namespace a2l::tables
