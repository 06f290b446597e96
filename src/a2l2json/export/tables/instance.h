// SPDX-License-Identifier: MIT
//
// Instances and structure types.
#pragma once

#include "a2l2json/elements/blocks/instance.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/rows.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

// CONVERSION has no key here; "FADDRESS_TYPE" has one, but no property that could fill it.
inline constexpr Row kOverwriteRows[] = {
    Never("FADDRESS_TYPE"),    Field<&VoA2LElementOverwrite::AXIS_NUMBER>("FAXIS_NUMBER"),
    Child("FEXTENDED_LIMITS"), Child("FFORMAT"),
    Child("FINPUT_QUANTITY"),  Child("FLIMITS"),
    Child("FMONOTONY"),        Field<&VoA2LElementOverwrite::NAME>("FNAME"),
    Child("FPHYS_UNIT"),
};
inline constexpr ObjectTable kOverwrite =
    MakeTable<VoA2LElementOverwrite, kOverwriteRows, ElementKind::CONVERSION>();

inline constexpr Row kInstanceRows[] = {
    AddressField<&VoA2LElementInstance::ADDRESS>("FADDRESS"),
    Child("FADDRESS_TYPE"),
    Children("FANNOTATION", kAnnotation),
    Child("FCALIBRATION_ACCESS"),
    Child("FDISPLAY_IDENTIFIER"),
    Child("FECU_ADDRESS_EXTENSION"),
    Children("FIF_DATA", kIfData),
    Field("FISVALID", kValidForm),
    Child("FLAYOUT"),
    Field<&VoA2LElementInstance::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Child("FMATRIX_DIM", Absent::EmptyArray),
    Child("FMAX_REFRESH"),
    Child("FMODEL_LINK"),
    Field<&VoA2LElementInstance::NAME>("FNAME"),
    Children("FOVERWRITE", kOverwrite, Absent::Null),
    Flag("FREAD_WRITE"),
    Child("FSYMBOL_LINK"),
    Field<&VoA2LElementInstance::TYPEDEF_NAME>("FTYPEDEF_NAME"),
};
inline constexpr ObjectTable kInstance = MakeTable<VoA2LElementInstance, kInstanceRows>();

inline constexpr Row kStructureComponentRows[] = {
    Field<&VoA2LElementStructureComponent::ADDRESS_OFFSET>("FADDRESS_OFFSET"),
    Child("FADDRESS_TYPE"),
    Child("FLAYOUT"),
    Child("FMATRIX_DIM", Absent::EmptyArray),
    Field<&VoA2LElementStructureComponent::NAME>("FNAME"),
    Child("FSYMBOL_TYPE_LINK"),
    Field<&VoA2LElementStructureComponent::TYPEDEF_NAME>("FTYPEDEF_NAME"),
};
inline constexpr ObjectTable kStructureComponent =
    MakeTable<VoA2LElementStructureComponent, kStructureComponentRows>();

inline constexpr Row kTypedefStructureRows[] = {
    Child("FADDRESS_TYPE"),
    Flag("FCONSISTENT_EXCHANGE"),
    Field<&VoA2LElementTypedefStructure::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementTypedefStructure::NAME>("FNAME"),
    Field<&VoA2LElementTypedefStructure::SIZE>("FSIZE"),
    Children("FSTRUCTURE_COMPONENT", kStructureComponent, Absent::Null),
    Child("FSYMBOL_TYPE_LINK"),
};
inline constexpr ObjectTable kTypedefStructure =
    MakeTable<VoA2LElementTypedefStructure, kTypedefStructureRows>();

}  // namespace a2l::tables
