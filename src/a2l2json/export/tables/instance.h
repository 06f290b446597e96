// SPDX-License-Identifier: MIT
//
// Instances and structure types.
#pragma once

#include "a2l2json/elements/blocks/instance.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

// CONVERSION has no key here; "FADDRESS_TYPE" has one, but no property that could fill it.
inline constexpr Row kOverwriteRows[] = {
    Never("FADDRESS_TYPE"),
    Field("FAXIS_NUMBER", Value<&VoA2LElementOverwrite::AXIS_NUMBER>()),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFORMAT", Kind::FORMAT),
    Child("FINPUT_QUANTITY", Kind::INPUT_QUANTITY),
    Child("FLIMITS", Kind::LIMITS),
    Child("FMONOTONY", Kind::MONOTONY),
    Field("FNAME", Value<&VoA2LElementOverwrite::NAME>()),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
};
inline constexpr ObjectTable kOverwrite = MakeTable<kOverwriteRows>();

inline constexpr Row kInstanceRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementInstance::ADDRESS>()),
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FCALIBRATION_ACCESS", Kind::CALIBRATION_ACCESS),
    Child("FDISPLAY_IDENTIFIER", Kind::DISPLAY_IDENTIFIER),
    Child("FECU_ADDRESS_EXTENSION", Kind::ECU_ADDRESS_EXTENSION),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FISVALID", kValidForm),
    Child("FLAYOUT", Kind::LAYOUT),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementInstance::LONG_IDENTIFIER>()),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Child("FMAX_REFRESH", Kind::MAX_REFRESH),
    Child("FMODEL_LINK", Kind::MODEL_LINK),
    Field("FNAME", Value<&VoA2LElementInstance::NAME>()),
    Children("FOVERWRITE", Kind::OVERWRITE, kOverwrite, Absent::Null),
    Flag("FREAD_WRITE", Kind::READ_WRITE),
    Child("FSYMBOL_LINK", Kind::SYMBOL_LINK),
    Field("FTYPEDEF_NAME", Value<&VoA2LElementInstance::TYPEDEF_NAME>()),
};
inline constexpr ObjectTable kInstance = MakeTable<kInstanceRows>();

inline constexpr Row kStructureComponentRows[] = {
    Field("FADDRESS_OFFSET", Value<&VoA2LElementStructureComponent::ADDRESS_OFFSET>()),
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Child("FLAYOUT", Kind::LAYOUT),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Field("FNAME", Value<&VoA2LElementStructureComponent::NAME>()),
    Child("FSYMBOL_TYPE_LINK", Kind::SYMBOL_TYPE_LINK),
    Field("FTYPEDEF_NAME", Value<&VoA2LElementStructureComponent::TYPEDEF_NAME>()),
};
inline constexpr ObjectTable kStructureComponent = MakeTable<kStructureComponentRows>();

inline constexpr Row kTypedefStructureRows[] = {
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Flag("FCONSISTENT_EXCHANGE", Kind::CONSISTENT_EXCHANGE),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementTypedefStructure::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementTypedefStructure::NAME>()),
    Field("FSIZE", Value<&VoA2LElementTypedefStructure::SIZE>()),
    Children("FSTRUCTURE_COMPONENT", Kind::STRUCTURE_COMPONENT, kStructureComponent, Absent::Null),
    Child("FSYMBOL_TYPE_LINK", Kind::SYMBOL_TYPE_LINK),
};
inline constexpr ObjectTable kTypedefStructure = MakeTable<kTypedefStructureRows>();

}  // namespace a2l::tables
