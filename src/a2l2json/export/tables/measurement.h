// SPDX-License-Identifier: MIT
//
// Measurements and their type.
#pragma once

#include "a2l2json/elements/blocks/instance.h"
#include "a2l2json/elements/blocks/measurement.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

inline constexpr Row kBitOperationRows[] = {
    Child("FLEFT_SHIFT", Kind::LEFT_SHIFT),
    Child("FRIGHT_SHIFT", Kind::RIGHT_SHIFT),
    Child("FSIGN_EXTEND", Kind::SIGN_EXTEND),
};
inline constexpr ObjectTable kBitOperation = MakeTable<kBitOperationRows>();

// Resolution and accuracy are not those of the file: applications have always been given 1 and 0.
inline constexpr Row kMeasurementRows[] = {
    Field("FACCURACY", Constant<0>()),
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FARRAY_SIZE", Kind::ARRAY_SIZE),
    Child("FBIT_MASK", Kind::BIT_MASK),
    ChildObject("FBIT_OPERATION", Kind::BIT_OPERATION, kBitOperation),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCONVERSION", Value<&VoA2LElementMeasurement::CONVERSION>()),
    Field("FDATATYPE", WordOf<&VoA2LElementMeasurement::DATATYPE, words::kDataType>()),
    Flag("FDISCRETE", Kind::DISCRETE),
    Child("FDISPLAY_IDENTIFIER", Kind::DISPLAY_IDENTIFIER),
    Child("FECU_ADDRESS", Kind::ECU_ADDRESS),
    Child("FECU_ADDRESS_EXTENSION", Kind::ECU_ADDRESS_EXTENSION),
    Child("FERROR_MASK", Kind::ERROR_MASK),
    Child("FFORMAT", Kind::FORMAT),
    Child("FFUNCTION_LIST", Kind::FUNCTION_LIST),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FISVALID", kValidForm),
    Child("FLAYOUT", Kind::LAYOUT),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementMeasurement::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementMeasurement::LOWER_LIMIT>()),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Child("FMAX_REFRESH", Kind::MAX_REFRESH),
    Child("FMODEL_LINK", Kind::MODEL_LINK),
    Field("FNAME", Value<&VoA2LElementMeasurement::NAME>()),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Flag("FREAD_WRITE", Kind::READ_WRITE),
    Child("FREF_MEMORY_SEGMENT", Kind::REF_MEMORY_SEGMENT),
    Field("FRESOLUTION", Constant<1>()),
    Child("FSYMBOL_LINK", Kind::SYMBOL_LINK),
    Field("FUPPER_LIMIT", Value<&VoA2LElementMeasurement::UPPER_LIMIT>()),
    Child("FVIRTUAL", Kind::VIRTUAL),
};
inline constexpr ObjectTable kMeasurement = MakeTable<kMeasurementRows>();

inline constexpr Row kTypedefMeasurementRows[] = {
    Field("FACCURACY", Value<&VoA2LElementTypedefMeasurement::ACCURACY>()),
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Child("FBIT_MASK", Kind::BIT_MASK),
    ChildObject("FBIT_OPERATION", Kind::BIT_OPERATION, kBitOperation),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCONVERSION", Value<&VoA2LElementTypedefMeasurement::CONVERSION>()),
    Field("FDATATYPE", WordOf<&VoA2LElementTypedefMeasurement::DATATYPE, words::kDataType>()),
    Flag("FDISCRETE", Kind::DISCRETE),
    Child("FERROR_MASK", Kind::ERROR_MASK),
    Child("FFORMAT", Kind::FORMAT),
    Child("FLAYOUT", Kind::LAYOUT),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementTypedefMeasurement::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementTypedefMeasurement::LOWER_LIMIT>()),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Field("FNAME", Value<&VoA2LElementTypedefMeasurement::NAME>()),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Field("FRESOLUTION", Value<&VoA2LElementTypedefMeasurement::RESOLUTION>()),
    Field("FUPPER_LIMIT", Value<&VoA2LElementTypedefMeasurement::UPPER_LIMIT>()),
};
inline constexpr ObjectTable kTypedefMeasurement = MakeTable<kTypedefMeasurementRows>();

}  // namespace a2l::tables
