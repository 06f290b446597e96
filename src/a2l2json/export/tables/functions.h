// SPDX-License-Identifier: MIT
//
// Functions, groups, frames, transformers and user rights.
#pragma once

#include <string>

#include "a2l2json/elements/blocks/functions.h"
#include "a2l2json/elements/blocks/other.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

// The prototype stands below a component, in the first one that names any.
inline const Element* FindPrototype(const Element& function) {
  for (const Element* child : function.children) {
    if (child->kind != Kind::AR_COMPONENT) continue;
    for (const Element* property : child->children) {
      if (property->kind == Kind::AR_PROTOTYPE_OF) return property;
    }
  }
  return nullptr;
}
inline constexpr Row kFunctionRows[] = {
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FAR_COMPONENT", Kind::AR_COMPONENT),
    Found("FAR_PROTOTYPE_OF", FindPrototype, FormOf(Kind::AR_PROTOTYPE_OF)),
    Child("FDEF_CHARACTERISTIC", Kind::DEF_CHARACTERISTIC),
    Child("FFUNCTION_VERSION", Kind::FUNCTION_VERSION),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Child("FIN_MEASUREMENT", Kind::IN_MEASUREMENT),
    Child("FLOC_MEASUREMENT", Kind::LOC_MEASUREMENT),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementFunction::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementFunction::NAME>()),
    Child("FOUT_MEASUREMENT", Kind::OUT_MEASUREMENT),
    Child("FREF_CHARACTERISTIC", Kind::REF_CHARACTERISTIC),
    Child("FSUB_FUNCTION", Kind::SUB_FUNCTION),
};
inline constexpr ObjectTable kFunction = MakeTable<kFunctionRows>();

inline constexpr Row kGroupRows[] = {
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FFUNCTION_LIST", Kind::FUNCTION_LIST),
    Field("FGROUP_LONG_IDENTIFIER", Value<&VoA2LElementGroup::GROUP_LONG_IDENTIFIER>()),
    Field("FGROUP_NAME", Value<&VoA2LElementGroup::GROUP_NAME>()),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Child("FREF_CHARACTERISTIC", Kind::REF_CHARACTERISTIC),
    Child("FREF_MEASUREMENT", Kind::REF_MEASUREMENT),
    Flag("FROOT", Kind::ROOT),
    Child("FSUB_GROUP", Kind::SUB_GROUP),
};
inline constexpr ObjectTable kGroup = MakeTable<kGroupRows>();

inline constexpr Row kFrameRows[] = {
    Child("FFRAME_MEASUREMENT", Kind::FRAME_MEASUREMENT),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementFrame::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementFrame::NAME>()),
    Field("FRATE", Value<&VoA2LElementFrame::RATE>()),
    Field("FSCALING_UNIT", Value<&VoA2LElementFrame::SCALING_UNIT>()),
};
inline constexpr ObjectTable kFrame = MakeTable<kFrameRows>();

inline constexpr Row kTransformerRows[] = {
    Field("FEXECUTABLE32", Value<&VoA2LElementTransformer::EXECUTABLE32>()),
    Field("FEXECUTABLE64", Value<&VoA2LElementTransformer::EXECUTABLE64>()),
    Field("FINVERSE_TRANSFORMER", Value<&VoA2LElementTransformer::INVERSE_TRANSFORMER>()),
    Field("FNAME", Value<&VoA2LElementTransformer::NAME>()),
    Field("FTIMEOUT", Value<&VoA2LElementTransformer::TIMEOUT>()),
    Child("FTRANSFORMER_IN_OBJECTS", Kind::TRANSFORMER_IN_OBJECTS),
    Child("FTRANSFORMER_OUT_OBJECTS", Kind::TRANSFORMER_OUT_OBJECTS),
    Field("FTRIGGER", WordOf<&VoA2LElementTransformer::TRIGGER, words::kTransformerTrigger>()),
    Field("FVERSION", Value<&VoA2LElementTransformer::VERSION>()),
};
inline constexpr ObjectTable kTransformer = MakeTable<kTransformerRows>();

// The groups of all REF_GROUP blocks; no comma stands between two blocks.
inline constexpr Form kRefGroups = BuiltTextForm{[](const Element& userRights, std::string& text) {
  for (const Element* child : userRights.children) {
    if (child->kind == Kind::REF_GROUP) {
      AppendJoined(text, FieldOf<&VoA2LElementRefGroup::IDENTIFIER_LIST>(*child));
    }
  }
}};
inline constexpr Row kUserRightsRows[] = {
    Flag("FREAD_ONLY", Kind::READ_ONLY),
    Field("FREF_GROUP", kRefGroups),
    Field("FUSER_LEVEL_ID", Value<&VoA2LElementUserRights::USER_LEVEL_ID>()),
};
inline constexpr ObjectTable kUserRights = MakeTable<kUserRightsRows>();

}  // namespace a2l::tables
