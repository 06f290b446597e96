// SPDX-License-Identifier: MIT
//
// What many objects have in common.
#pragma once

#include <string>
#include <string_view>

#include "a2l2json/elements/blocks/functions.h"
#include "a2l2json/elements/blocks/raw.h"
#include "a2l2json/export/kind_forms.h"

namespace a2l::tables {

using Element = VoA2LElement;

// Whether the reader found nothing wrong with an object.
inline constexpr Form kValidForm =
    BoolForm{[](const Element& element) { return element.valid != 0; }};

// All lines of the text, one behind the other.
inline constexpr Form kAnnotationText =
    BuiltTextForm{[](const Element& element, std::string& text) {
      for (const std::string_view line : FieldOf<&VoA2LElementAnnotationText::TEXT_LIST>(element)) {
        text += line;
      }
    }};
inline constexpr Row kAnnotationRows[] = {
    Child("FANNOTATION_LABEL", Kind::ANNOTATION_LABEL, Absent::Omit),
    Child("FANNOTATION_ORIGIN", Kind::ANNOTATION_ORIGIN, Absent::Omit),
    {.key = "FANNOTATION_TEXT",
     .source = Source::FirstChild,
     .absent = Absent::Omit,
     .kind = Kind::ANNOTATION_TEXT,
     .form = kAnnotationText},
};
inline constexpr ObjectTable kAnnotation = MakeTable<kAnnotationRows>();

inline constexpr Row kIfDataRows[] = {
    Field("FIF_DATA", Value<&VoA2LElementIfData::IF_DATA>()),
    Field("FNAME", Value<&VoA2LElementIfData::NAME>()),
};
inline constexpr ObjectTable kIfData = MakeTable<kIfDataRows>();

}  // namespace a2l::tables
