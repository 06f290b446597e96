// SPDX-License-Identifier: MIT
//
// The JSON value of each kind of element that appears inside an object: the same wherever the
// kind appears.
#pragma once

#include <string_view>

#include "a2l2json/elements/blocks/characteristic.h"
#include "a2l2json/elements/blocks/conversion.h"
#include "a2l2json/elements/blocks/functions.h"
#include "a2l2json/elements/blocks/other.h"
#include "a2l2json/elements/properties/choices.h"
#include "a2l2json/elements/properties/identifiers.h"
#include "a2l2json/elements/properties/lists.h"
#include "a2l2json/elements/properties/numbers.h"
#include "a2l2json/elements/properties/record_layout_entries.h"
#include "a2l2json/elements/properties/texts.h"
#include "a2l2json/export/object_table.h"

namespace a2l {

namespace tables {

inline constexpr Row kExtendedLimitsRows[] = {
    Field("FLOWER_LIMIT", Value<&VoA2LElementExtendedLimits::LOWER_LIMIT>()),
    Field("FUPPER_LIMIT", Value<&VoA2LElementExtendedLimits::UPPER_LIMIT>()),
};
inline constexpr ObjectTable kExtendedLimits = MakeTable<kExtendedLimitsRows>();

inline constexpr Row kLimitsRows[] = {
    Field("FLOWER_LIMIT", Value<&VoA2LElementLimits::LOWER_LIMIT>()),
    Field("FUPPER_LIMIT", Value<&VoA2LElementLimits::UPPER_LIMIT>()),
};
inline constexpr ObjectTable kLimits = MakeTable<kLimitsRows>();

inline constexpr Row kMaxRefreshRows[] = {
    Field("FRATE", Value<&VoA2LElementMaxRefresh::RATE>()),
    Field("FSCALING_UNIT", Value<&VoA2LElementMaxRefresh::SCALING_UNIT>()),
};
inline constexpr ObjectTable kMaxRefresh = MakeTable<kMaxRefreshRows>();

inline constexpr Row kSymbolLinkRows[] = {
    Field("FOFFSET", Value<&VoA2LElementSymbolLink::OFFSET>()),
    Field("FSYMBOL_NAME", Value<&VoA2LElementSymbolLink::SYMBOL_NAME>()),
};
inline constexpr ObjectTable kSymbolLink = MakeTable<kSymbolLinkRows>();

inline constexpr Row kFixAxisParRows[] = {
    Field("FNUMBERAPO", Value<&VoA2LElementFixAxisPar::NUMBERAPO>()),
    Field("FOFFSET", Value<&VoA2LElementFixAxisPar::OFFSET>()),
    Field("FSHIFT", Value<&VoA2LElementFixAxisPar::SHIFT>()),
};
inline constexpr ObjectTable kFixAxisPar = MakeTable<kFixAxisParRows>();

inline constexpr Row kFixAxisParDistRows[] = {
    Field("FDISTANCE", Value<&VoA2LElementFixAxisParDist::DISTANCE>()),
    Field("FNUMBERAPO", Value<&VoA2LElementFixAxisParDist::NUMBERAPO>()),
    Field("FOFFSET", Value<&VoA2LElementFixAxisParDist::OFFSET>()),
};
inline constexpr ObjectTable kFixAxisParDist = MakeTable<kFixAxisParDistRows>();

inline constexpr Row kSIExponentsRows[] = {
    Field("FAMOUNT_OF_SUBSTANCE", Value<&VoA2LElementSIExponents::AMOUNT_OF_SUBSTANCE>()),
    Field("FELECTRIC_CURRENT", Value<&VoA2LElementSIExponents::ELECTRIC_CURRENT>()),
    Field("FLENGTH", Value<&VoA2LElementSIExponents::LENGTH>()),
    Field("FLUMINOUS_INTENSITY", Value<&VoA2LElementSIExponents::LUMINOUS_INTENSITY>()),
    Field("FMASS", Value<&VoA2LElementSIExponents::MASS>()),
    Field("FTEMPERATURE", Value<&VoA2LElementSIExponents::TEMPERATURE>()),
    Field("FTIME", Value<&VoA2LElementSIExponents::TIME>()),
};
inline constexpr ObjectTable kSIExponents = MakeTable<kSIExponentsRows>();

inline constexpr Row kUnitConversionRows[] = {
    Field("FGRADIENT", Value<&VoA2LElementUnitConversion::GRADIENT>()),
    Field("FOFFSET", Value<&VoA2LElementUnitConversion::OFFSET>()),
};
inline constexpr ObjectTable kUnitConversion = MakeTable<kUnitConversionRows>();

// The characteristics that a dependent one refers to are an array, those of a virtual one a text.
inline constexpr Row kDependentCharacteristicRows[] = {
    Field("FCHARACTERISTIC", Value<&VoA2LElementDependentCharacteristic::CHARACTERISTIC>()),
    Field("FFORMULA", Value<&VoA2LElementDependentCharacteristic::FORMULA>()),
};
inline constexpr ObjectTable kDependentCharacteristic = MakeTable<kDependentCharacteristicRows>();

inline constexpr Row kVirtualCharacteristicRows[] = {
    Field("FCHARACTERISTIC", Joined<&VoA2LElementVirtualCharacteristic::CHARACTERISTIC>()),
    Field("FFORMULA", Value<&VoA2LElementVirtualCharacteristic::FORMULA>()),
};
inline constexpr ObjectTable kVirtualCharacteristic = MakeTable<kVirtualCharacteristicRows>();

inline constexpr Row kAxisPtsEntryRows[] = {
    Field("FADDRESSING", WordOf<&VoA2LElementAxisPtsX::ADDRESSING, words::kAddrType>()),
    Field("FDATA_TYPE", WordOf<&VoA2LElementAxisPtsX::DATA_TYPE, words::kDataType>()),
    Field("FINDEX_INCR", WordOf<&VoA2LElementAxisPtsX::INDEX_INCR, words::kIndexOrder>()),
    Field("FPOSITION", Value<&VoA2LElementAxisPtsX::POSITION>()),
};
inline constexpr ObjectTable kAxisPtsEntry = MakeTable<kAxisPtsEntryRows>();

inline constexpr Row kAxisRescaleEntryRows[] = {
    Field("FADDRESSING", WordOf<&VoA2LElementAxisRescaleX::ADDRESSING, words::kAddrType>()),
    Field("FDATA_TYPE", WordOf<&VoA2LElementAxisRescaleX::DATA_TYPE, words::kDataType>()),
    Field("FINDEX_INCR", WordOf<&VoA2LElementAxisRescaleX::INDEX_INCR, words::kIndexOrder>()),
    Field("FMAX_NUMBER_OF_RESCALE_PAIRS",
          Value<&VoA2LElementAxisRescaleX::MAX_NUMBER_OF_RESCALE_PAIRS>()),
    Field("FPOSITION", Value<&VoA2LElementAxisRescaleX::POSITION>()),
};
inline constexpr ObjectTable kAxisRescaleEntry = MakeTable<kAxisRescaleEntryRows>();

inline constexpr Row kFixNoAxisPtsEntryRows[] = {
    Field("FNUMBER_OF_AXIS_POINTS", Value<&VoA2LElementFixNoAxisPtsX::NUMBER_OF_AXIS_POINTS>()),
};
inline constexpr ObjectTable kFixNoAxisPtsEntry = MakeTable<kFixNoAxisPtsEntryRows>();

inline constexpr Row kFncValuesRows[] = {
    Field("FADDRESS_TYPE", WordOf<&VoA2LElementFncValues::ADDRESSING, words::kAddrType>()),
    Field("FDATA_TYPE", WordOf<&VoA2LElementFncValues::DATA_TYPE, words::kDataType>()),
    Field("FINDEX_MODE", WordOf<&VoA2LElementFncValues::INDEX_MODE, words::kIndexMode>()),
    Field("FPOSITION", Value<&VoA2LElementFncValues::POSITION>()),
};
inline constexpr ObjectTable kFncValues = MakeTable<kFncValuesRows>();

// The entries that are a position and a data type.
template <class Class>
inline constexpr Row kPositionRows[] = {
    Field("FDATA_TYPE", WordOf<&Class::DATA_TYPE, words::kDataType>()),
    Field("FPOSITION", Value<&Class::POSITION>()),
};
template <class Class>
inline constexpr ObjectTable kPosition = MakeTable<kPositionRows<Class>>();

}  // namespace tables

/// The form of the elements of one kind.
struct KindForm {
  ElementKind kind;
  Form form;
};

/// Every kind that a row of a table can name as a child, with its form.
inline constexpr KindForm kKindForms[] = {
    {Kind::ADDRESS_TYPE, WordOf<&VoA2LElementAddressType::ADDRESS_TYPE, words::kAddrType>()},
    {Kind::ALIGNMENT_BYTE, Value<&VoA2LElementAlignmentByte::ALIGNMENT_BYTE>()},
    {Kind::ALIGNMENT_FLOAT16_IEEE,
     Value<&VoA2LElementAlignmentFloat16IEEE::ALIGNMENT_FLOAT16_IEEE>()},
    {Kind::ALIGNMENT_FLOAT32_IEEE,
     Value<&VoA2LElementAlignmentFloat32IEEE::ALIGNMENT_FLOAT32_IEEE>()},
    {Kind::ALIGNMENT_FLOAT64_IEEE,
     Value<&VoA2LElementAlignmentFloat64IEEE::ALIGNMENT_FLOAT64_IEEE>()},
    {Kind::ALIGNMENT_INT64, Value<&VoA2LElementAlignmentInt64::ALIGNMENT_INT64>()},
    {Kind::ALIGNMENT_LONG, Value<&VoA2LElementAlignmentLong::ALIGNMENT_LONG>()},
    {Kind::ALIGNMENT_WORD, Value<&VoA2LElementAlignmentWord::ALIGNMENT_WORD>()},
    {Kind::ANNOTATION_LABEL, Value<&VoA2LElementAnnotationLabel::ANNOTATION_LABEL>()},
    {Kind::ANNOTATION_ORIGIN, Value<&VoA2LElementAnnotationOrigin::ANNOTATION_ORIGIN>()},
    {Kind::ARRAY_SIZE, Value<&VoA2LElementArraySize::ARRAY_SIZE>()},
    {Kind::AR_COMPONENT, Value<&VoA2LElementArComponent::COMPONENT_TYPE>()},
    {Kind::AR_PROTOTYPE_OF, Value<&VoA2LElementArPrototypeOf::AR_PROTOTYPE_OF>()},
    {Kind::AXIS_PTS_4, &tables::kAxisPtsEntry},
    {Kind::AXIS_PTS_5, &tables::kAxisPtsEntry},
    {Kind::AXIS_PTS_REF, Value<&VoA2LElementAxisPtsRef::AXIS_PTS_REF>()},
    {Kind::AXIS_PTS_X, &tables::kAxisPtsEntry},
    {Kind::AXIS_PTS_Y, &tables::kAxisPtsEntry},
    {Kind::AXIS_PTS_Z, &tables::kAxisPtsEntry},
    {Kind::AXIS_RESCALE_4, &tables::kAxisRescaleEntry},
    {Kind::AXIS_RESCALE_5, &tables::kAxisRescaleEntry},
    {Kind::AXIS_RESCALE_X, &tables::kAxisRescaleEntry},
    {Kind::AXIS_RESCALE_Y, &tables::kAxisRescaleEntry},
    {Kind::AXIS_RESCALE_Z, &tables::kAxisRescaleEntry},
    {Kind::BIT_MASK, Value<&VoA2LElementBitMask::BIT_MASK>()},
    {Kind::BYTE_ORDER, WordOf<&VoA2LElementByteOrder::BYTE_ORDER, words::kByteOrder>()},
    {Kind::CALIBRATION_ACCESS,
     WordOf<&VoA2LElementCalibrationAccess::CALIBRATION_ACCESS, words::kCalibrationAccess>()},
    {Kind::CALIBRATION_HANDLE_TEXT, Value<&VoA2LElementCalibrationHandleText::HANDLE_TEXT>()},
    {Kind::COEFFS,
     JoinedFields<&VoA2LElementCoeffs::A, &VoA2LElementCoeffs::B, &VoA2LElementCoeffs::C,
                  &VoA2LElementCoeffs::D, &VoA2LElementCoeffs::E, &VoA2LElementCoeffs::F>()},
    {Kind::COEFFS_LINEAR,
     JoinedFields<&VoA2LElementCoeffsLinear::A, &VoA2LElementCoeffsLinear::B>()},
    {Kind::COMPARISON_QUANTITY, Value<&VoA2LElementComparisonQuantity::COMPARISON_QUANTITY>()},
    {Kind::COMPU_TAB_REF, Value<&VoA2LElementCompuTabRef::COMPU_TAB_REF>()},
    {Kind::CPU_TYPE, Value<&VoA2LElementCPUType::CPU_TYPE>()},
    {Kind::CURVE_AXIS_REF, Value<&VoA2LElementCurveAxisRef::CURVE_AXIS_REF>()},
    {Kind::CUSTOMER, Value<&VoA2LElementCustomer::CUSTOMER>()},
    {Kind::CUSTOMER_NO, Value<&VoA2LElementCustomerNo::CUSTOMER_NO>()},
    {Kind::DATA_SIZE, Value<&VoA2LElementDataSize::DATA_SIZE>()},
    {Kind::DEFAULT_VALUE, Value<&VoA2LElementDefaultValue::DEFAULT_VALUE>()},
    {Kind::DEFAULT_VALUE_NUMERIC, Value<&VoA2LElementDefaultValueNumeric::DEFAULT_VALUE_NUMERIC>()},
    {Kind::DEF_CHARACTERISTIC, Joined<&VoA2LElementDefCharacteristic::IDENTIFIER_LIST>()},
    {Kind::DEPENDENT_CHARACTERISTIC, &tables::kDependentCharacteristic},
    {Kind::DEPOSIT, WordOf<&VoA2LElementDeposit::DEPOSIT, words::kDeposit>()},
    {Kind::DISPLAY_IDENTIFIER, Value<&VoA2LElementDisplayIdentifier::DISPLAY_IDENTIFIER>()},
    {Kind::DIST_OP_4, &tables::kPosition<VoA2LElementDistOpX>},
    {Kind::DIST_OP_5, &tables::kPosition<VoA2LElementDistOpX>},
    {Kind::DIST_OP_X, &tables::kPosition<VoA2LElementDistOpX>},
    {Kind::DIST_OP_Y, &tables::kPosition<VoA2LElementDistOpX>},
    {Kind::DIST_OP_Z, &tables::kPosition<VoA2LElementDistOpX>},
    {Kind::ECU, Value<&VoA2LElementECU::ECU>()},
    {Kind::ECU_ADDRESS, AddressOf<&VoA2LElementECUAddress::ECU_ADDRESS>()},
    {Kind::ECU_ADDRESS_EXTENSION, Value<&VoA2LElementECUAddressExtension::ECU_ADDRESS_EXTENSION>()},
    {Kind::ECU_CALIBRATION_OFFSET,
     Value<&VoA2LElementECUCalibrationOffset::ECU_CALIBRATION_OFFSET>()},
    {Kind::EPK, Value<&VoA2LElementEPK::EPK>()},
    {Kind::ERROR_MASK, Value<&VoA2LElementErrorMask::ERROR_MASK>()},
    {Kind::EXTENDED_LIMITS, &tables::kExtendedLimits},
    {Kind::FIX_AXIS_PAR, &tables::kFixAxisPar},
    {Kind::FIX_AXIS_PAR_DIST, &tables::kFixAxisParDist},
    {Kind::FIX_AXIS_PAR_LIST, Joined<&VoA2LElementFixAxisParList::FIX_AXIS_PAR_LIST>()},
    {Kind::FIX_NO_AXIS_PTS_4, &tables::kFixNoAxisPtsEntry},
    {Kind::FIX_NO_AXIS_PTS_5, &tables::kFixNoAxisPtsEntry},
    {Kind::FIX_NO_AXIS_PTS_X, &tables::kFixNoAxisPtsEntry},
    {Kind::FIX_NO_AXIS_PTS_Y, &tables::kFixNoAxisPtsEntry},
    {Kind::FIX_NO_AXIS_PTS_Z, &tables::kFixNoAxisPtsEntry},
    {Kind::FNC_VALUES, &tables::kFncValues},
    {Kind::FORMAT, Value<&VoA2LElementFormat::FORMAT>()},
    {Kind::FORMULA_INV, Value<&VoA2LElementFormulaInv::FORMULA_INV>()},
    {Kind::FRAME_MEASUREMENT, Value<&VoA2LElementFrameMeasurement::FRAME_MEASUREMENT>()},
    {Kind::FUNCTION_LIST, Joined<&VoA2LElementFunctionList::IDENTIFIER_LIST>()},
    {Kind::FUNCTION_VERSION, Value<&VoA2LElementFunctionVersion::FUNCTION_VERSION>()},
    {Kind::IDENTIFICATION, &tables::kPosition<VoA2LElementIdentification>},
    {Kind::INPUT_QUANTITY, Value<&VoA2LElementInputQuantity::INPUT_QUANTITY>()},
    {Kind::IN_MEASUREMENT, Joined<&VoA2LElementInMeasurement::IDENTIFIER_LIST>()},
    {Kind::LAYOUT, WordOf<&VoA2LElementLayout::LAYOUT, words::kLayout>()},
    {Kind::LEFT_SHIFT, Value<&VoA2LElementLeftShift::LEFT_SHIFT>()},
    {Kind::LIMITS, &tables::kLimits},
    {Kind::LOC_MEASUREMENT, Joined<&VoA2LElementLocMeasurement::IDENTIFIER_LIST>()},
    {Kind::MAP_LIST, Value<&VoA2LElementMapList::IDENTIFIER_LIST>()},
    {Kind::MATRIX_DIM, Value<&VoA2LElementMatrixDim::MATRIX_DIM>()},
    {Kind::MAX_GRAD, Value<&VoA2LElementMaxGrad::MAX_GRAD>()},
    {Kind::MAX_REFRESH, &tables::kMaxRefresh},
    {Kind::MODEL_LINK, Value<&VoA2LElementModelLink::MODEL_LINK>()},
    {Kind::MONOTONY, WordOf<&VoA2LElementMonotony::MONOTONY, words::kMonotony>()},
    {Kind::NO_AXIS_PTS_4, &tables::kPosition<VoA2LElementNoAxisPtsX>},
    {Kind::NO_AXIS_PTS_5, &tables::kPosition<VoA2LElementNoAxisPtsX>},
    {Kind::NO_AXIS_PTS_X, &tables::kPosition<VoA2LElementNoAxisPtsX>},
    {Kind::NO_AXIS_PTS_Y, &tables::kPosition<VoA2LElementNoAxisPtsX>},
    {Kind::NO_AXIS_PTS_Z, &tables::kPosition<VoA2LElementNoAxisPtsX>},
    {Kind::NO_OF_INTERFACES, Value<&VoA2LElementNoOfInterfaces::NO_OF_INTERFACES>()},
    {Kind::NO_RESCALE_4, &tables::kPosition<VoA2LElementNoRescaleX>},
    {Kind::NO_RESCALE_5, &tables::kPosition<VoA2LElementNoRescaleX>},
    {Kind::NO_RESCALE_X, &tables::kPosition<VoA2LElementNoRescaleX>},
    {Kind::NO_RESCALE_Y, &tables::kPosition<VoA2LElementNoRescaleX>},
    {Kind::NO_RESCALE_Z, &tables::kPosition<VoA2LElementNoRescaleX>},
    {Kind::NUMBER, Value<&VoA2LElementNumber::NUMBER>()},
    {Kind::OFFSET_4, &tables::kPosition<VoA2LElementOffsetX>},
    {Kind::OFFSET_5, &tables::kPosition<VoA2LElementOffsetX>},
    {Kind::OFFSET_X, &tables::kPosition<VoA2LElementOffsetX>},
    {Kind::OFFSET_Y, &tables::kPosition<VoA2LElementOffsetX>},
    {Kind::OFFSET_Z, &tables::kPosition<VoA2LElementOffsetX>},
    {Kind::OUT_MEASUREMENT, Joined<&VoA2LElementOutMeasurement::IDENTIFIER_LIST>()},
    {Kind::PHONE_NO, Value<&VoA2LElementPhoneNo::PHONE_NO>()},
    {Kind::PHYS_UNIT, Value<&VoA2LElementPhysUnit::PHYS_UNIT>()},
    {Kind::PROJECT_NO, Value<&VoA2LElementProjectNo::PROJECT_NO>()},
    {Kind::REF_CHARACTERISTIC, Joined<&VoA2LElementRefCharacteristic::IDENTIFIER_LIST>()},
    {Kind::REF_MEASUREMENT, Joined<&VoA2LElementRefMeasurement::IDENTIFIER_LIST>()},
    {Kind::REF_MEMORY_SEGMENT, Value<&VoA2LElementRefMemorySegment::REF_MEMORY_SEGMENT>()},
    {Kind::REF_UNIT, Value<&VoA2LElementRefUnit::REF_UNIT>()},
    {Kind::RIGHT_SHIFT, Value<&VoA2LElementRightShift::RIGHT_SHIFT>()},
    {Kind::RIP_ADDR_4, &tables::kPosition<VoA2LElementRipAddrX>},
    {Kind::RIP_ADDR_5, &tables::kPosition<VoA2LElementRipAddrX>},
    {Kind::RIP_ADDR_W, &tables::kPosition<VoA2LElementRipAddrX>},
    {Kind::RIP_ADDR_X, &tables::kPosition<VoA2LElementRipAddrX>},
    {Kind::RIP_ADDR_Y, &tables::kPosition<VoA2LElementRipAddrX>},
    {Kind::RIP_ADDR_Z, &tables::kPosition<VoA2LElementRipAddrX>},
    {Kind::SHIFT_OP_4, &tables::kPosition<VoA2LElementShiftOpX>},
    {Kind::SHIFT_OP_5, &tables::kPosition<VoA2LElementShiftOpX>},
    {Kind::SHIFT_OP_X, &tables::kPosition<VoA2LElementShiftOpX>},
    {Kind::SHIFT_OP_Y, &tables::kPosition<VoA2LElementShiftOpX>},
    {Kind::SHIFT_OP_Z, &tables::kPosition<VoA2LElementShiftOpX>},
    {Kind::SIGN_EXTEND, kKeywordForm},
    {Kind::SI_EXPONENTS, &tables::kSIExponents},
    {Kind::SRC_ADDR_4, &tables::kPosition<VoA2LElementSrcAddrX>},
    {Kind::SRC_ADDR_5, &tables::kPosition<VoA2LElementSrcAddrX>},
    {Kind::SRC_ADDR_X, &tables::kPosition<VoA2LElementSrcAddrX>},
    {Kind::SRC_ADDR_Y, &tables::kPosition<VoA2LElementSrcAddrX>},
    {Kind::SRC_ADDR_Z, &tables::kPosition<VoA2LElementSrcAddrX>},
    {Kind::STATUS_STRING_REF, Value<&VoA2LElementStatusStringRef::STATUS_STRING_REF>()},
    {Kind::STEP_SIZE, Value<&VoA2LElementStepSize::STEP_SIZE>()},
    {Kind::SUB_FUNCTION, Joined<&VoA2LElementSubFunction::IDENTIFIER_LIST>()},
    {Kind::SUB_GROUP, Joined<&VoA2LElementSubGroup::IDENTIFIER_LIST>()},
    {Kind::SUPPLIER, Value<&VoA2LElementSupplier::SUPPLIER>()},
    {Kind::SYMBOL_LINK, &tables::kSymbolLink},
    {Kind::SYMBOL_TYPE_LINK, Value<&VoA2LElementSymbolTypeLink::SYMBOL_TYPE_LINK>()},
    {Kind::S_REC_LAYOUT, Value<&VoA2LElementSRecLayout::S_REC_LAYOUT>()},
    {Kind::TRANSFORMER_IN_OBJECTS, Value<&VoA2LElementTransformerInObjects::TEXT_LIST>()},
    {Kind::TRANSFORMER_OUT_OBJECTS, Value<&VoA2LElementTransformerOutObjects::TEXT_LIST>()},
    {Kind::UNIT_CONVERSION, &tables::kUnitConversion},
    {Kind::USER, Value<&VoA2LElementUser::USER>()},
    {Kind::VAR_MEASUREMENT, Value<&VoA2LElementVarMeasurement::VAR_MEASUREMENT>()},
    {Kind::VAR_NAMING, WordOf<&VoA2LElementVarNaming::VAR_NAMING, words::kVarNaming>()},
    {Kind::VAR_SELECTION_CHARACTERISTIC,
     Value<&VoA2LElementVarSelectionCharacteristic::VAR_SELECTION_CHARACTERISTIC>()},
    {Kind::VAR_SEPARATOR, Value<&VoA2LElementVarSeparator::VAR_SEPARATOR>()},
    {Kind::VERSION, Value<&VoA2LElementVersion::VERSION>()},
    {Kind::VIRTUAL, Joined<&VoA2LElementVirtual::VIRTUAL>()},
    {Kind::VIRTUAL_CHARACTERISTIC, &tables::kVirtualCharacteristic},
};

/// The form of the elements of `kind`, which must be in the list above.
consteval Form FormOf(ElementKind kind) {
  for (const KindForm& row : kKindForms) {
    if (row.kind == kind) return row.form;
  }
  throw "a kind without a JSON form";  // ends the build: this never runs
}

/// The first child of `kind`.
consteval Row Child(std::string_view key, ElementKind kind, Absent absent = Absent::Null) {
  return {.key = key,
          .source = Source::FirstChild,
          .absent = absent,
          .kind = kind,
          .form = FormOf(kind)};
}

/// The first child of either kind, whichever comes first in the file.
consteval Row EitherChild(std::string_view key, ElementKind kind, ElementKind otherKind) {
  Row row = Child(key, kind);
  row.otherKind = otherKind;
  row.otherForm = FormOf(otherKind);
  return row;
}

/// The first child of `kind`, as an object with a table of its own.
constexpr Row ChildObject(std::string_view key, ElementKind kind, const ObjectTable& table) {
  return {.key = key, .source = Source::FirstChild, .kind = kind, .form = &table};
}

}  // namespace a2l
