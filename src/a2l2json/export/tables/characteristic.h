// SPDX-License-Identifier: MIT
//
// Characteristics, axes and blobs, and their types.
#pragma once

#include "a2l2json/elements/blocks/characteristic.h"
#include "a2l2json/elements/blocks/instance.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/rows.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

inline constexpr Row kAxisDescrRows[] = {
    Children("FANNOTATION", kAnnotation),
    Field<&VoA2LElementAxisDescr::ATTRIBUTE>("FATTRIBUTE"),
    Child("FAXIS_PTS_REF"),
    Child("FBYTE_ORDER"),
    Field<&VoA2LElementAxisDescr::CONVERSION>("FCONVERSION"),
    Child("FCURVE_AXIS_REF"),
    Child("FDEPOSIT"),
    Child("FEXTENDED_LIMITS"),
    Child("FFIX_AXIS_PAR"),
    Child("FFIX_AXIS_PAR_DIST"),
    Child("FFIX_AXIS_PAR_LIST"),
    Child("FFORMAT"),
    Field<&VoA2LElementAxisDescr::INPUT_QUANTITY>("FINPUT_QUANTITY"),
    Field<&VoA2LElementAxisDescr::LOWER_LIMIT>("FLOWER_LIMIT"),
    Field<&VoA2LElementAxisDescr::MAX_AXIS_POINTS>("FMAX_AXIS_POINTS"),
    Child("FMAX_GRAD"),
    Child("FMONOTONY"),
    Child("FPHYS_UNIT"),
    Flag("FREAD_ONLY"),
    Child("FSTEP_SIZE"),
    Field<&VoA2LElementAxisDescr::UPPER_LIMIT>("FUPPER_LIMIT"),
};
inline constexpr ObjectTable kAxisDescr = MakeTable<VoA2LElementAxisDescr, kAxisDescrRows>();

// ENCODING is not supported by the reader, so its key never has a value.
inline constexpr Row kCharacteristicRows[] = {
    AddressField<&VoA2LElementCharacteristic::ADDRESS>("FADDRESS"),
    Children("FANNOTATION", kAnnotation),
    Children("FAXIS_DESCR", kAxisDescr),
    Child("FBIT_MASK"),
    Child("FBYTE_ORDER"),
    Child("FCALIBRATION_ACCESS"),
    Field<&VoA2LElementCharacteristic::CHARACTERISTIC_TYPE>("FCHARACTERISTIC_TYPE"),
    Child("FCOMPARISON_QUANTITY"),
    Field<&VoA2LElementCharacteristic::CONVERSION>("FCONVERSION"),
    Child("FDEPENDENT_CHARACTERISTIC"),
    Field<&VoA2LElementCharacteristic::DEPOSIT>("FDEPOSIT"),
    Flag("FDISCRETE"),
    Child("FDISPLAY_IDENTIFIER"),
    Child("FECU_ADDRESS_EXTENSION"),
    Never("FENCODING"),
    Child("FEXTENDED_LIMITS"),
    Child("FFORMAT"),
    Child("FFUNCTION_LIST"),
    Flag("FGUARD_RAILS"),
    Children("FIF_DATA", kIfData),
    Field("FISVALID", kValidForm),
    Field<&VoA2LElementCharacteristic::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementCharacteristic::LOWER_LIMIT>("FLOWER_LIMIT"),
    Child("FMAP_LIST"),
    Child("FMATRIX_DIM", Absent::EmptyArray),
    Field<&VoA2LElementCharacteristic::MAX_DIFF>("FMAX_DIFF"),
    Child("FMAX_REFRESH"),
    Child("FMODEL_LINK"),
    Field<&VoA2LElementCharacteristic::NAME>("FNAME"),
    Child("FNUMBER"),
    Child("FPHYS_UNIT"),
    Flag("FREAD_ONLY"),
    Child("FREF_MEMORY_SEGMENT"),
    Child("FSTEP_SIZE"),
    Child("FSYMBOL_LINK"),
    Field<&VoA2LElementCharacteristic::UPPER_LIMIT>("FUPPER_LIMIT"),
    Child("FVIRTUAL_CHARACTERISTIC"),
};
inline constexpr ObjectTable kCharacteristic =
    MakeTable<VoA2LElementCharacteristic, kCharacteristicRows>();

// "FDEPOSIT" is the record layout; the property DEPOSIT, of the same name, does not appear.
inline constexpr Row kAxisPtsRows[] = {
    AddressField<&VoA2LElementAxisPts::ADDRESS>("FADDRESS"),
    Children("FANNOTATION", kAnnotation),
    Child("FBYTE_ORDER"),
    Child("FCALIBRATION_ACCESS"),
    Field<&VoA2LElementAxisPts::CONVERSION>("FCONVERSION"),
    Field<&VoA2LElementAxisPts::DEPOSIT>("FDEPOSIT"),
    Child("FDISPLAY_IDENTIFIER"),
    Child("FECU_ADDRESS_EXTENSION"),
    Child("FEXTENDED_LIMITS"),
    Child("FFORMAT"),
    Child("FFUNCTION_LIST"),
    Flag("FGUARD_RAILS"),
    Children("FIF_DATA", kIfData),
    Field<&VoA2LElementAxisPts::INPUT_QUANTITY>("FINPUT_QUANTITY"),
    Field("FISVALID", kValidForm),
    Field<&VoA2LElementAxisPts::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementAxisPts::LOWER_LIMIT>("FLOWER_LIMIT"),
    Field<&VoA2LElementAxisPts::MAX_AXIS_POINTS>("FMAX_AXIS_POINTS"),
    Field<&VoA2LElementAxisPts::MAX_DIFF>("FMAX_DIFF"),
    Child("FMAX_REFRESH"),
    Child("FMODEL_LINK"),
    Child("FMONOTONY"),
    Field<&VoA2LElementAxisPts::NAME>("FNAME"),
    Child("FPHYS_UNIT"),
    Flag("FREAD_ONLY"),
    Child("FREF_MEMORY_SEGMENT"),
    Child("FSTEP_SIZE"),
    Child("FSYMBOL_LINK"),
    Field<&VoA2LElementAxisPts::UPPER_LIMIT>("FUPPER_LIMIT"),
};
inline constexpr ObjectTable kAxisPts =
    MakeTable<VoA2LElementAxisPts, kAxisPtsRows, ElementKind::DEPOSIT>();

inline constexpr Row kTypedefCharacteristicRows[] = {
    Children("FAXIS_DESCR", kAxisDescr),
    Child("FBIT_MASK"),
    Child("FBYTE_ORDER"),
    Field<&VoA2LElementTypedefCharacteristic::CHARACTERISTIC_TYPE>("FCHARACTERISTIC_TYPE"),
    Field<&VoA2LElementTypedefCharacteristic::CONVERSION>("FCONVERSION"),
    Flag("FDISCRETE"),
    Never("FENCODING"),
    Child("FEXTENDED_LIMITS"),
    Child("FFORMAT"),
    Field<&VoA2LElementTypedefCharacteristic::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementTypedefCharacteristic::LOWER_LIMIT>("FLOWER_LIMIT"),
    Child("FMATRIX_DIM", Absent::EmptyArray),
    Field<&VoA2LElementTypedefCharacteristic::MAX_DIFF>("FMAX_DIFF"),
    Field<&VoA2LElementTypedefCharacteristic::NAME>("FNAME"),
    Child("FNUMBER"),
    Child("FPHYS_UNIT"),
    Field<&VoA2LElementTypedefCharacteristic::RECORD_LAYOUT>("FRECORD_LAYOUT"),
    Child("FSTEP_SIZE"),
    Field<&VoA2LElementTypedefCharacteristic::UPPER_LIMIT>("FUPPER_LIMIT"),
};
inline constexpr ObjectTable kTypedefCharacteristic =
    MakeTable<VoA2LElementTypedefCharacteristic, kTypedefCharacteristicRows>();

inline constexpr Row kTypedefAxisRows[] = {
    Child("FBYTE_ORDER"),
    Field<&VoA2LElementTypedefAxis::CONVERSION>("FCONVERSION"),
    Child("FDEPOSIT"),
    Child("FEXTENDED_LIMITS"),
    Child("FFORMAT"),
    Field<&VoA2LElementTypedefAxis::INPUT_QUANTITY>("FINPUT_QUANTITY"),
    Field<&VoA2LElementTypedefAxis::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementTypedefAxis::LOWER_LIMIT>("FLOWER_LIMIT"),
    Field<&VoA2LElementTypedefAxis::MAX_AXIS_POINTS>("FMAX_AXIS_POINTS"),
    Field<&VoA2LElementTypedefAxis::MAX_DIFF>("FMAX_DIFF"),
    Child("FMONOTONY"),
    Field<&VoA2LElementTypedefAxis::NAME>("FNAME"),
    Child("FPHYS_UNIT"),
    Field<&VoA2LElementTypedefAxis::RECORD_LAYOUT>("FRECORD_LAYOUT"),
    Child("FSTEP_SIZE"),
    Field<&VoA2LElementTypedefAxis::UPPER_LIMIT>("FUPPER_LIMIT"),
};
inline constexpr ObjectTable kTypedefAxis = MakeTable<VoA2LElementTypedefAxis, kTypedefAxisRows>();

inline constexpr Row kBlobRows[] = {
    AddressField<&VoA2LElementBlob::ADDRESS>("FADDRESS"),
    Child("FADDRESS_TYPE"),
    Children("FANNOTATION", kAnnotation),
    Child("FCALIBRATION_ACCESS"),
    Child("FDISPLAY_IDENTIFIER"),
    Child("FECU_ADDRESS_EXTENSION"),
    Children("FIF_DATA", kIfData),
    Field("FISVALID", kValidForm),
    Field<&VoA2LElementBlob::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Child("FMAX_REFRESH"),
    Child("FMODEL_LINK"),
    Field<&VoA2LElementBlob::NAME>("FNAME"),
    Field<&VoA2LElementBlob::SIZE>("FSIZE"),
    Child("FSYMBOL_LINK"),
};
inline constexpr ObjectTable kBlob = MakeTable<VoA2LElementBlob, kBlobRows>();

inline constexpr Row kTypedefBlobRows[] = {
    Child("FADDRESS_TYPE"),
    Field<&VoA2LElementTypedefBlob::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementTypedefBlob::NAME>("FNAME"),
    Field<&VoA2LElementTypedefBlob::SIZE>("FSIZE"),
};
inline constexpr ObjectTable kTypedefBlob = MakeTable<VoA2LElementTypedefBlob, kTypedefBlobRows>();

}  // namespace a2l::tables
