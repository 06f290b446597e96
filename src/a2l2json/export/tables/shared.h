// SPDX-License-Identifier: MIT
//
// What many objects have in common.
#pragma once

#include <string>
#include <string_view>

#include "a2l2json/elements/blocks/functions.h"
#include "a2l2json/elements/blocks/raw.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/rows.h"

namespace a2l::tables {

using Element = VoA2LElement;

// Whether the reader found nothing wrong with an object.
inline constexpr ClassForm kValidForm = {
    BoolForm{[](const Element& element) { return element.valid != 0; }}};

inline constexpr Row kAnnotationRows[] = {
    Child("FANNOTATION_LABEL", Absent::Omit),
    Child("FANNOTATION_ORIGIN", Absent::Omit),
    Child("FANNOTATION_TEXT", Absent::Omit),
};
inline constexpr ObjectTable kAnnotation = MakeTable<VoA2LElementAnnotation, kAnnotationRows>();

inline constexpr Row kIfDataRows[] = {
    Field<&VoA2LElementIfData::IF_DATA>("FIF_DATA"),
    Field<&VoA2LElementIfData::NAME>("FNAME"),
};
inline constexpr ObjectTable kIfData = MakeTable<VoA2LElementIfData, kIfDataRows>();

}  // namespace a2l::tables
