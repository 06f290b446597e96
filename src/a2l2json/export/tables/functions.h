// SPDX-License-Identifier: MIT
//
// Functions, groups, frames, transformers and user rights.
#pragma once

#include <string>

#include "a2l2json/elements/blocks/functions.h"
#include "a2l2json/elements/blocks/other.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/rows.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

// The prototype stands below a component, in the first one that names any.
inline constexpr Row kFunctionRows[] = {
    Children("FANNOTATION", kAnnotation),
    Child("FAR_COMPONENT"),
    FirstField<&VoA2LElementArPrototypeOf::AR_PROTOTYPE_OF, ElementKind::AR_COMPONENT,
               ElementKind::AR_PROTOTYPE_OF>("FAR_PROTOTYPE_OF"),
    Child("FDEF_CHARACTERISTIC"),
    Child("FFUNCTION_VERSION"),
    Children("FIF_DATA", kIfData),
    Child("FIN_MEASUREMENT"),
    Child("FLOC_MEASUREMENT"),
    Field<&VoA2LElementFunction::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementFunction::NAME>("FNAME"),
    Child("FOUT_MEASUREMENT"),
    Child("FREF_CHARACTERISTIC"),
    Child("FSUB_FUNCTION"),
};
inline constexpr ObjectTable kFunction = MakeTable<VoA2LElementFunction, kFunctionRows>();

inline constexpr Row kGroupRows[] = {
    Children("FANNOTATION", kAnnotation),
    Child("FFUNCTION_LIST"),
    Field<&VoA2LElementGroup::GROUP_LONG_IDENTIFIER>("FGROUP_LONG_IDENTIFIER"),
    Field<&VoA2LElementGroup::GROUP_NAME>("FGROUP_NAME"),
    Children("FIF_DATA", kIfData),
    Child("FREF_CHARACTERISTIC"),
    Child("FREF_MEASUREMENT"),
    Flag("FROOT"),
    Child("FSUB_GROUP"),
};
inline constexpr ObjectTable kGroup = MakeTable<VoA2LElementGroup, kGroupRows>();

inline constexpr Row kFrameRows[] = {
    Child("FFRAME_MEASUREMENT"),
    Children("FIF_DATA", kIfData),
    Field<&VoA2LElementFrame::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementFrame::NAME>("FNAME"),
    Field<&VoA2LElementFrame::RATE>("FRATE"),
    Field<&VoA2LElementFrame::SCALING_UNIT>("FSCALING_UNIT"),
};
inline constexpr ObjectTable kFrame = MakeTable<VoA2LElementFrame, kFrameRows>();

inline constexpr Row kTransformerRows[] = {
    Field<&VoA2LElementTransformer::EXECUTABLE32>("FEXECUTABLE32"),
    Field<&VoA2LElementTransformer::EXECUTABLE64>("FEXECUTABLE64"),
    Field<&VoA2LElementTransformer::INVERSE_TRANSFORMER>("FINVERSE_TRANSFORMER"),
    Field<&VoA2LElementTransformer::NAME>("FNAME"),
    Field<&VoA2LElementTransformer::TIMEOUT>("FTIMEOUT"),
    Child("FTRANSFORMER_IN_OBJECTS"),
    Child("FTRANSFORMER_OUT_OBJECTS"),
    Field<&VoA2LElementTransformer::TRIGGER>("FTRIGGER"),
    Field<&VoA2LElementTransformer::VERSION>("FVERSION"),
};
inline constexpr ObjectTable kTransformer = MakeTable<VoA2LElementTransformer, kTransformerRows>();

// The groups of all REF_GROUP blocks; no comma stands between two blocks.
inline constexpr ClassForm kRefGroups = {
    BuiltTextForm{[](const Element& userRights, std::string& text) {
      ForEachChild<&VoA2LElementRefGroup::IDENTIFIER_LIST>(
          userRights, [&text](const auto& groups) { AppendJoined(text, groups); });
    }}};
inline constexpr Row kUserRightsRows[] = {
    Flag("FREAD_ONLY"),
    FromChildren("FREF_GROUP", kRefGroups),
    Field<&VoA2LElementUserRights::USER_LEVEL_ID>("FUSER_LEVEL_ID"),
};
inline constexpr ObjectTable kUserRights = MakeTable<VoA2LElementUserRights, kUserRightsRows>();

}  // namespace a2l::tables
