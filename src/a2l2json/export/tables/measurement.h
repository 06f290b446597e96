// SPDX-License-Identifier: MIT
//
// Measurements and their type.
#pragma once

#include "a2l2json/elements/blocks/instance.h"
#include "a2l2json/elements/blocks/measurement.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/rows.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

inline constexpr Row kBitOperationRows[] = {
    Child("FLEFT_SHIFT"),
    Child("FRIGHT_SHIFT"),
    Child("FSIGN_EXTEND"),
};
inline constexpr ObjectTable kBitOperation =
    MakeTable<VoA2LElementBitOperation, kBitOperationRows>();

// Resolution and accuracy are not those of the file: applications have always been given 1 and 0.
inline constexpr Row kMeasurementRows[] = {
    Field("FACCURACY", Constant<0>()),
    Child("FADDRESS_TYPE"),
    Children("FANNOTATION", kAnnotation),
    Child("FARRAY_SIZE"),
    Child("FBIT_MASK"),
    ChildObject("FBIT_OPERATION", kBitOperation),
    Child("FBYTE_ORDER"),
    Field<&VoA2LElementMeasurement::CONVERSION>("FCONVERSION"),
    Field<&VoA2LElementMeasurement::DATATYPE>("FDATATYPE"),
    Flag("FDISCRETE"),
    Child("FDISPLAY_IDENTIFIER"),
    Child("FECU_ADDRESS"),
    Child("FECU_ADDRESS_EXTENSION"),
    Child("FERROR_MASK"),
    Child("FFORMAT"),
    Child("FFUNCTION_LIST"),
    Children("FIF_DATA", kIfData),
    Field("FISVALID", kValidForm),
    Child("FLAYOUT"),
    Field<&VoA2LElementMeasurement::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementMeasurement::LOWER_LIMIT>("FLOWER_LIMIT"),
    Child("FMATRIX_DIM", Absent::EmptyArray),
    Child("FMAX_REFRESH"),
    Child("FMODEL_LINK"),
    Field<&VoA2LElementMeasurement::NAME>("FNAME"),
    Child("FPHYS_UNIT"),
    Flag("FREAD_WRITE"),
    Child("FREF_MEMORY_SEGMENT"),
    Field("FRESOLUTION", Constant<1>()),
    Child("FSYMBOL_LINK"),
    Field<&VoA2LElementMeasurement::UPPER_LIMIT>("FUPPER_LIMIT"),
    Child("FVIRTUAL"),
};
inline constexpr ObjectTable kMeasurement = MakeTable<VoA2LElementMeasurement, kMeasurementRows>();

inline constexpr Row kTypedefMeasurementRows[] = {
    Field<&VoA2LElementTypedefMeasurement::ACCURACY>("FACCURACY"),
    Child("FADDRESS_TYPE"),
    Child("FBIT_MASK"),
    ChildObject("FBIT_OPERATION", kBitOperation),
    Child("FBYTE_ORDER"),
    Field<&VoA2LElementTypedefMeasurement::CONVERSION>("FCONVERSION"),
    Field<&VoA2LElementTypedefMeasurement::DATATYPE>("FDATATYPE"),
    Flag("FDISCRETE"),
    Child("FERROR_MASK"),
    Child("FFORMAT"),
    Child("FLAYOUT"),
    Field<&VoA2LElementTypedefMeasurement::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementTypedefMeasurement::LOWER_LIMIT>("FLOWER_LIMIT"),
    Child("FMATRIX_DIM", Absent::EmptyArray),
    Field<&VoA2LElementTypedefMeasurement::NAME>("FNAME"),
    Child("FPHYS_UNIT"),
    Field<&VoA2LElementTypedefMeasurement::RESOLUTION>("FRESOLUTION"),
    Field<&VoA2LElementTypedefMeasurement::UPPER_LIMIT>("FUPPER_LIMIT"),
};
inline constexpr ObjectTable kTypedefMeasurement =
    MakeTable<VoA2LElementTypedefMeasurement, kTypedefMeasurementRows>();

}  // namespace a2l::tables
