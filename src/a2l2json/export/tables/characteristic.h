// SPDX-License-Identifier: MIT
//
// Characteristics, axes and blobs, and their types.
#pragma once

#include "a2l2json/elements/blocks/characteristic.h"
#include "a2l2json/elements/blocks/instance.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

inline constexpr Row kAxisDescrRows[] = {
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Field("FATTRIBUTE", WordOf<&VoA2LElementAxisDescr::ATTRIBUTE, words::kAxisAttribute>()),
    Child("FAXIS_PTS_REF", Kind::AXIS_PTS_REF),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCONVERSION", Value<&VoA2LElementAxisDescr::CONVERSION>()),
    Child("FCURVE_AXIS_REF", Kind::CURVE_AXIS_REF),
    Child("FDEPOSIT", Kind::DEPOSIT),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFIX_AXIS_PAR", Kind::FIX_AXIS_PAR),
    Child("FFIX_AXIS_PAR_DIST", Kind::FIX_AXIS_PAR_DIST),
    Child("FFIX_AXIS_PAR_LIST", Kind::FIX_AXIS_PAR_LIST),
    Child("FFORMAT", Kind::FORMAT),
    Field("FINPUT_QUANTITY", Value<&VoA2LElementAxisDescr::INPUT_QUANTITY>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementAxisDescr::LOWER_LIMIT>()),
    Field("FMAX_AXIS_POINTS", Value<&VoA2LElementAxisDescr::MAX_AXIS_POINTS>()),
    Child("FMAX_GRAD", Kind::MAX_GRAD),
    Child("FMONOTONY", Kind::MONOTONY),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Flag("FREAD_ONLY", Kind::READ_ONLY),
    Child("FSTEP_SIZE", Kind::STEP_SIZE),
    Field("FUPPER_LIMIT", Value<&VoA2LElementAxisDescr::UPPER_LIMIT>()),
};
inline constexpr ObjectTable kAxisDescr = MakeTable<kAxisDescrRows>();

// ENCODING is not supported by the reader, so its key never has a value.
inline constexpr Row kCharacteristicRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementCharacteristic::ADDRESS>()),
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Children("FAXIS_DESCR", Kind::AXIS_DESCR, kAxisDescr),
    Child("FBIT_MASK", Kind::BIT_MASK),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Child("FCALIBRATION_ACCESS", Kind::CALIBRATION_ACCESS),
    Field("FCHARACTERISTIC_TYPE",
          WordOf<&VoA2LElementCharacteristic::CHARACTERISTIC_TYPE, words::kCharacteristicType>()),
    Child("FCOMPARISON_QUANTITY", Kind::COMPARISON_QUANTITY),
    Field("FCONVERSION", Value<&VoA2LElementCharacteristic::CONVERSION>()),
    Child("FDEPENDENT_CHARACTERISTIC", Kind::DEPENDENT_CHARACTERISTIC),
    Field("FDEPOSIT", Value<&VoA2LElementCharacteristic::DEPOSIT>()),
    Flag("FDISCRETE", Kind::DISCRETE),
    Child("FDISPLAY_IDENTIFIER", Kind::DISPLAY_IDENTIFIER),
    Child("FECU_ADDRESS_EXTENSION", Kind::ECU_ADDRESS_EXTENSION),
    Never("FENCODING"),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFORMAT", Kind::FORMAT),
    Child("FFUNCTION_LIST", Kind::FUNCTION_LIST),
    Flag("FGUARD_RAILS", Kind::GUARD_RAILS),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FISVALID", kValidForm),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementCharacteristic::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementCharacteristic::LOWER_LIMIT>()),
    Child("FMAP_LIST", Kind::MAP_LIST),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Field("FMAX_DIFF", Value<&VoA2LElementCharacteristic::MAX_DIFF>()),
    Child("FMAX_REFRESH", Kind::MAX_REFRESH),
    Child("FMODEL_LINK", Kind::MODEL_LINK),
    Field("FNAME", Value<&VoA2LElementCharacteristic::NAME>()),
    Child("FNUMBER", Kind::NUMBER),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Flag("FREAD_ONLY", Kind::READ_ONLY),
    Child("FREF_MEMORY_SEGMENT", Kind::REF_MEMORY_SEGMENT),
    Child("FSTEP_SIZE", Kind::STEP_SIZE),
    Child("FSYMBOL_LINK", Kind::SYMBOL_LINK),
    Field("FUPPER_LIMIT", Value<&VoA2LElementCharacteristic::UPPER_LIMIT>()),
    Child("FVIRTUAL_CHARACTERISTIC", Kind::VIRTUAL_CHARACTERISTIC),
};
inline constexpr ObjectTable kCharacteristic = MakeTable<kCharacteristicRows>();

// "FDEPOSIT" is the record layout; the property DEPOSIT, of the same name, does not appear.
inline constexpr Row kAxisPtsRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementAxisPts::ADDRESS>()),
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Child("FCALIBRATION_ACCESS", Kind::CALIBRATION_ACCESS),
    Field("FCONVERSION", Value<&VoA2LElementAxisPts::CONVERSION>()),
    Field("FDEPOSIT", Value<&VoA2LElementAxisPts::DEPOSIT>()),
    Child("FDISPLAY_IDENTIFIER", Kind::DISPLAY_IDENTIFIER),
    Child("FECU_ADDRESS_EXTENSION", Kind::ECU_ADDRESS_EXTENSION),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFORMAT", Kind::FORMAT),
    Child("FFUNCTION_LIST", Kind::FUNCTION_LIST),
    Flag("FGUARD_RAILS", Kind::GUARD_RAILS),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FINPUT_QUANTITY", Value<&VoA2LElementAxisPts::INPUT_QUANTITY>()),
    Field("FISVALID", kValidForm),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementAxisPts::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementAxisPts::LOWER_LIMIT>()),
    Field("FMAX_AXIS_POINTS", Value<&VoA2LElementAxisPts::MAX_AXIS_POINTS>()),
    Field("FMAX_DIFF", Value<&VoA2LElementAxisPts::MAX_DIFF>()),
    Child("FMAX_REFRESH", Kind::MAX_REFRESH),
    Child("FMODEL_LINK", Kind::MODEL_LINK),
    Child("FMONOTONY", Kind::MONOTONY),
    Field("FNAME", Value<&VoA2LElementAxisPts::NAME>()),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Flag("FREAD_ONLY", Kind::READ_ONLY),
    Child("FREF_MEMORY_SEGMENT", Kind::REF_MEMORY_SEGMENT),
    Child("FSTEP_SIZE", Kind::STEP_SIZE),
    Child("FSYMBOL_LINK", Kind::SYMBOL_LINK),
    Field("FUPPER_LIMIT", Value<&VoA2LElementAxisPts::UPPER_LIMIT>()),
};
inline constexpr ObjectTable kAxisPts = MakeTable<kAxisPtsRows>();

inline constexpr Row kTypedefCharacteristicRows[] = {
    Children("FAXIS_DESCR", Kind::AXIS_DESCR, kAxisDescr),
    Child("FBIT_MASK", Kind::BIT_MASK),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCHARACTERISTIC_TYPE", WordOf<&VoA2LElementTypedefCharacteristic::CHARACTERISTIC_TYPE,
                                         words::kCharacteristicType>()),
    Field("FCONVERSION", Value<&VoA2LElementTypedefCharacteristic::CONVERSION>()),
    Flag("FDISCRETE", Kind::DISCRETE),
    Never("FENCODING"),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFORMAT", Kind::FORMAT),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementTypedefCharacteristic::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementTypedefCharacteristic::LOWER_LIMIT>()),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Field("FMAX_DIFF", Value<&VoA2LElementTypedefCharacteristic::MAX_DIFF>()),
    Field("FNAME", Value<&VoA2LElementTypedefCharacteristic::NAME>()),
    Child("FNUMBER", Kind::NUMBER),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Field("FRECORD_LAYOUT", Value<&VoA2LElementTypedefCharacteristic::RECORD_LAYOUT>()),
    Child("FSTEP_SIZE", Kind::STEP_SIZE),
    Field("FUPPER_LIMIT", Value<&VoA2LElementTypedefCharacteristic::UPPER_LIMIT>()),
};
inline constexpr ObjectTable kTypedefCharacteristic = MakeTable<kTypedefCharacteristicRows>();

inline constexpr Row kTypedefAxisRows[] = {
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCONVERSION", Value<&VoA2LElementTypedefAxis::CONVERSION>()),
    Child("FDEPOSIT", Kind::DEPOSIT),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFORMAT", Kind::FORMAT),
    Field("FINPUT_QUANTITY", Value<&VoA2LElementTypedefAxis::INPUT_QUANTITY>()),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementTypedefAxis::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementTypedefAxis::LOWER_LIMIT>()),
    Field("FMAX_AXIS_POINTS", Value<&VoA2LElementTypedefAxis::MAX_AXIS_POINTS>()),
    Field("FMAX_DIFF", Value<&VoA2LElementTypedefAxis::MAX_DIFF>()),
    Child("FMONOTONY", Kind::MONOTONY),
    Field("FNAME", Value<&VoA2LElementTypedefAxis::NAME>()),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Field("FRECORD_LAYOUT", Value<&VoA2LElementTypedefAxis::RECORD_LAYOUT>()),
    Child("FSTEP_SIZE", Kind::STEP_SIZE),
    Field("FUPPER_LIMIT", Value<&VoA2LElementTypedefAxis::UPPER_LIMIT>()),
};
inline constexpr ObjectTable kTypedefAxis = MakeTable<kTypedefAxisRows>();

inline constexpr Row kBlobRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementBlob::ADDRESS>()),
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FCALIBRATION_ACCESS", Kind::CALIBRATION_ACCESS),
    Child("FDISPLAY_IDENTIFIER", Kind::DISPLAY_IDENTIFIER),
    Child("FECU_ADDRESS_EXTENSION", Kind::ECU_ADDRESS_EXTENSION),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FISVALID", kValidForm),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementBlob::LONG_IDENTIFIER>()),
    Child("FMAX_REFRESH", Kind::MAX_REFRESH),
    Child("FMODEL_LINK", Kind::MODEL_LINK),
    Field("FNAME", Value<&VoA2LElementBlob::NAME>()),
    Field("FSIZE", Value<&VoA2LElementBlob::SIZE>()),
    Child("FSYMBOL_LINK", Kind::SYMBOL_LINK),
};
inline constexpr ObjectTable kBlob = MakeTable<kBlobRows>();

inline constexpr Row kTypedefBlobRows[] = {
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementTypedefBlob::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementTypedefBlob::NAME>()),
    Field("FSIZE", Value<&VoA2LElementTypedefBlob::SIZE>()),
};
inline constexpr ObjectTable kTypedefBlob = MakeTable<kTypedefBlobRows>();

}  // namespace a2l::tables
