// SPDX-License-Identifier: MIT
#include "a2l2json/reader/element_factory.h"

#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <string_view>
#include <typeinfo>

#include <gtest/gtest.h>

#include "a2l2json/elements/blocks/characteristic.h"
#include "a2l2json/elements/blocks/conversion.h"
#include "a2l2json/elements/blocks/functions.h"
#include "a2l2json/elements/blocks/instance.h"
#include "a2l2json/elements/blocks/measurement.h"
#include "a2l2json/elements/blocks/other.h"
#include "a2l2json/elements/blocks/project.h"
#include "a2l2json/elements/blocks/raw.h"
#include "a2l2json/elements/blocks/record_layout.h"
#include "a2l2json/elements/blocks/variant_coding.h"
#include "a2l2json/elements/properties/choices.h"
#include "a2l2json/elements/properties/flags.h"
#include "a2l2json/elements/properties/identifiers.h"
#include "a2l2json/elements/properties/lists.h"
#include "a2l2json/elements/properties/numbers.h"
#include "a2l2json/elements/properties/record_layout_entries.h"
#include "a2l2json/elements/properties/texts.h"
#include "tests/support/kinds.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

template <class Class>
bool Is(const VoA2LElement& element) {
  return typeid(element) == typeid(Class);
}

struct Row {
  std::string_view keywords;
  bool (*is)(const VoA2LElement&);
};

// One class per keyword, and one for all axes of a family.
constexpr Row kRows[] = {
    {"AXIS_DESCR", Is<VoA2LElementAxisDescr>},
    {"AXIS_PTS", Is<VoA2LElementAxisPts>},
    {"BLOB", Is<VoA2LElementBlob>},
    {"CHARACTERISTIC", Is<VoA2LElementCharacteristic>},
    {"COMPU_METHOD", Is<VoA2LElementCompuMethod>},
    {"COMPU_TAB", Is<VoA2LElementCompuTab>},
    {"COMPU_VTAB", Is<VoA2LElementCompuVtab>},
    {"COMPU_VTAB_RANGE", Is<VoA2LElementCompuVtabRange>},
    {"FRAME", Is<VoA2LElementFrame>},
    {"FUNCTION", Is<VoA2LElementFunction>},
    {"GROUP", Is<VoA2LElementGroup>},
    {"HEADER", Is<VoA2LElementHeader>},
    {"INSTANCE", Is<VoA2LElementInstance>},
    {"MEASUREMENT", Is<VoA2LElementMeasurement>},
    {"MOD_COMMON", Is<VoA2LElementModCommon>},
    {"MOD_PAR", Is<VoA2LElementModPar>},
    {"MODULE", Is<VoA2LElementModule>},
    {"PROJECT", Is<VoA2LElementProject>},
    {"RECORD_LAYOUT", Is<VoA2LElementRecordLayout>},
    {"TRANSFORMER", Is<VoA2LElementTransformer>},
    {"IF_DATA", Is<VoA2LElementIfData>},
    {"A2ML", Is<VoA2LElementA2ML>},
    {"ANNOTATION", Is<VoA2LElementAnnotation>},
    {"ANNOTATION_TEXT", Is<VoA2LElementAnnotationText>},
    {"AR_COMPONENT", Is<VoA2LElementArComponent>},
    {"BIT_OPERATION", Is<VoA2LElementBitOperation>},
    {"CALIBRATION_HANDLE", Is<VoA2LElementCalibrationHandle>},
    {"CALIBRATION_METHOD", Is<VoA2LElementCalibrationMethod>},
    {"DEF_CHARACTERISTIC", Is<VoA2LElementDefCharacteristic>},
    {"DEPENDENT_CHARACTERISTIC", Is<VoA2LElementDependentCharacteristic>},
    {"FIX_AXIS_PAR_LIST", Is<VoA2LElementFixAxisParList>},
    {"FORMULA", Is<VoA2LElementFormula>},
    {"FUNCTION_LIST", Is<VoA2LElementFunctionList>},
    {"IN_MEASUREMENT", Is<VoA2LElementInMeasurement>},
    {"LOC_MEASUREMENT", Is<VoA2LElementLocMeasurement>},
    {"MAP_LIST", Is<VoA2LElementMapList>},
    {"MEMORY_LAYOUT", Is<VoA2LElementMemoryLayout>},
    {"MEMORY_SEGMENT", Is<VoA2LElementMemorySegment>},
    {"OUT_MEASUREMENT", Is<VoA2LElementOutMeasurement>},
    {"OVERWRITE", Is<VoA2LElementOverwrite>},
    {"REF_CHARACTERISTIC", Is<VoA2LElementRefCharacteristic>},
    {"REF_GROUP", Is<VoA2LElementRefGroup>},
    {"REF_MEASUREMENT", Is<VoA2LElementRefMeasurement>},
    {"STRUCTURE_COMPONENT", Is<VoA2LElementStructureComponent>},
    {"SUB_FUNCTION", Is<VoA2LElementSubFunction>},
    {"SUB_GROUP", Is<VoA2LElementSubGroup>},
    {"TRANSFORMER_IN_OBJECTS", Is<VoA2LElementTransformerInObjects>},
    {"TRANSFORMER_OUT_OBJECTS", Is<VoA2LElementTransformerOutObjects>},
    {"TYPEDEF_AXIS", Is<VoA2LElementTypedefAxis>},
    {"TYPEDEF_BLOB", Is<VoA2LElementTypedefBlob>},
    {"TYPEDEF_CHARACTERISTIC", Is<VoA2LElementTypedefCharacteristic>},
    {"TYPEDEF_MEASUREMENT", Is<VoA2LElementTypedefMeasurement>},
    {"TYPEDEF_STRUCTURE", Is<VoA2LElementTypedefStructure>},
    {"UNIT", Is<VoA2LElementUnit>},
    {"USER_RIGHTS", Is<VoA2LElementUserRights>},
    {"VAR_ADDRESS", Is<VoA2LElementVarAddress>},
    {"VAR_CHARACTERISTIC", Is<VoA2LElementVarCharacteristic>},
    {"VAR_CRITERION", Is<VoA2LElementVarCriterion>},
    {"VAR_FORBIDDEN_COMB", Is<VoA2LElementVarForbiddenComb>},
    {"VARIANT_CODING", Is<VoA2LElementVariantCoding>},
    {"VIRTUAL", Is<VoA2LElementVirtual>},
    {"VIRTUAL_CHARACTERISTIC", Is<VoA2LElementVirtualCharacteristic>},
    {"A2ML_VERSION", Is<VoA2LElementA2MLVersion>},
    {"ADDR_EPK", Is<VoA2LElementAddrEPK>},
    {"ADDRESS_TYPE", Is<VoA2LElementAddressType>},
    {"ALIGNMENT_BYTE", Is<VoA2LElementAlignmentByte>},
    {"ALIGNMENT_FLOAT16_IEEE", Is<VoA2LElementAlignmentFloat16IEEE>},
    {"ALIGNMENT_FLOAT32_IEEE", Is<VoA2LElementAlignmentFloat32IEEE>},
    {"ALIGNMENT_FLOAT64_IEEE", Is<VoA2LElementAlignmentFloat64IEEE>},
    {"ALIGNMENT_INT64", Is<VoA2LElementAlignmentInt64>},
    {"ALIGNMENT_LONG", Is<VoA2LElementAlignmentLong>},
    {"ALIGNMENT_WORD", Is<VoA2LElementAlignmentWord>},
    {"ANNOTATION_LABEL", Is<VoA2LElementAnnotationLabel>},
    {"ANNOTATION_ORIGIN", Is<VoA2LElementAnnotationOrigin>},
    {"ARRAY_SIZE", Is<VoA2LElementArraySize>},
    {"ASAP2_VERSION", Is<VoA2LElementASAP2Version>},
    {"AR_PROTOTYPE_OF", Is<VoA2LElementArPrototypeOf>},
    {"AXIS_PTS_REF", Is<VoA2LElementAxisPtsRef>},
    {"AXIS_PTS_*", Is<VoA2LElementAxisPtsX>},
    {"AXIS_RESCALE_*", Is<VoA2LElementAxisRescaleX>},
    {"BIT_MASK", Is<VoA2LElementBitMask>},
    {"BYTE_ORDER", Is<VoA2LElementByteOrder>},
    {"CALIBRATION_ACCESS", Is<VoA2LElementCalibrationAccess>},
    {"CALIBRATION_HANDLE_TEXT", Is<VoA2LElementCalibrationHandleText>},
    {"COEFFS", Is<VoA2LElementCoeffs>},
    {"COEFFS_LINEAR", Is<VoA2LElementCoeffsLinear>},
    {"COMPARISON_QUANTITY", Is<VoA2LElementComparisonQuantity>},
    {"COMPU_TAB_REF", Is<VoA2LElementCompuTabRef>},
    {"CONSISTENT_EXCHANGE", Is<VoA2LElementConsistentExchange>},
    {"CONVERSION", Is<VoA2LElementConversion>},
    {"CPU_TYPE", Is<VoA2LElementCPUType>},
    {"CURVE_AXIS_REF", Is<VoA2LElementCurveAxisRef>},
    {"CUSTOMER", Is<VoA2LElementCustomer>},
    {"CUSTOMER_NO", Is<VoA2LElementCustomerNo>},
    {"DATA_SIZE", Is<VoA2LElementDataSize>},
    {"DEFAULT_VALUE", Is<VoA2LElementDefaultValue>},
    {"DEFAULT_VALUE_NUMERIC", Is<VoA2LElementDefaultValueNumeric>},
    {"DEPOSIT", Is<VoA2LElementDeposit>},
    {"DISCRETE", Is<VoA2LElementDiscrete>},
    {"DISPLAY_IDENTIFIER", Is<VoA2LElementDisplayIdentifier>},
    {"DIST_OP_*", Is<VoA2LElementDistOpX>},
    {"ECU", Is<VoA2LElementECU>},
    {"ECU_ADDRESS", Is<VoA2LElementECUAddress>},
    {"ECU_ADDRESS_EXTENSION", Is<VoA2LElementECUAddressExtension>},
    {"ECU_CALIBRATION_OFFSET", Is<VoA2LElementECUCalibrationOffset>},
    {"EPK", Is<VoA2LElementEPK>},
    {"ERROR_MASK", Is<VoA2LElementErrorMask>},
    {"EXTENDED_LIMITS", Is<VoA2LElementExtendedLimits>},
    {"FIX_AXIS_PAR", Is<VoA2LElementFixAxisPar>},
    {"FIX_AXIS_PAR_DIST", Is<VoA2LElementFixAxisParDist>},
    {"FIX_NO_AXIS_PTS_*", Is<VoA2LElementFixNoAxisPtsX>},
    {"FNC_VALUES", Is<VoA2LElementFncValues>},
    {"FORMAT", Is<VoA2LElementFormat>},
    {"FORMULA_INV", Is<VoA2LElementFormulaInv>},
    {"FRAME_MEASUREMENT", Is<VoA2LElementFrameMeasurement>},
    {"FUNCTION_VERSION", Is<VoA2LElementFunctionVersion>},
    {"GUARD_RAILS", Is<VoA2LElementGuardRails>},
    {"IDENTIFICATION", Is<VoA2LElementIdentification>},
    {"INPUT_QUANTITY", Is<VoA2LElementInputQuantity>},
    {"LAYOUT", Is<VoA2LElementLayout>},
    {"LEFT_SHIFT", Is<VoA2LElementLeftShift>},
    {"LIMITS", Is<VoA2LElementLimits>},
    {"MATRIX_DIM", Is<VoA2LElementMatrixDim>},
    {"MAX_GRAD", Is<VoA2LElementMaxGrad>},
    {"MAX_REFRESH", Is<VoA2LElementMaxRefresh>},
    {"MODEL_LINK", Is<VoA2LElementModelLink>},
    {"MONOTONY", Is<VoA2LElementMonotony>},
    {"NO_AXIS_PTS_*", Is<VoA2LElementNoAxisPtsX>},
    {"NO_OF_INTERFACES", Is<VoA2LElementNoOfInterfaces>},
    {"NO_RESCALE_*", Is<VoA2LElementNoRescaleX>},
    {"NUMBER", Is<VoA2LElementNumber>},
    {"OFFSET_*", Is<VoA2LElementOffsetX>},
    {"PHONE_NO", Is<VoA2LElementPhoneNo>},
    {"PHYS_UNIT", Is<VoA2LElementPhysUnit>},
    {"PROJECT_NO", Is<VoA2LElementProjectNo>},
    {"READ_ONLY", Is<VoA2LElementReadOnly>},
    {"READ_WRITE", Is<VoA2LElementReadWrite>},
    {"REF_MEMORY_SEGMENT", Is<VoA2LElementRefMemorySegment>},
    {"REF_UNIT", Is<VoA2LElementRefUnit>},
    {"RESERVED", Is<VoA2LElementReserved>},
    {"RIGHT_SHIFT", Is<VoA2LElementRightShift>},
    {"RIP_ADDR_W RIP_ADDR_*", Is<VoA2LElementRipAddrX>},
    {"ROOT", Is<VoA2LElementRoot>},
    {"SHIFT_OP_*", Is<VoA2LElementShiftOpX>},
    {"SIGN_EXTEND", Is<VoA2LElementSignExtend>},
    {"SI_EXPONENTS", Is<VoA2LElementSIExponents>},
    {"SRC_ADDR_*", Is<VoA2LElementSrcAddrX>},
    {"STATIC_ADDRESS_OFFSETS", Is<VoA2LElementStaticAddressOffsets>},
    {"STATIC_RECORD_LAYOUT", Is<VoA2LElementStaticRecordLayout>},
    {"STATUS_STRING_REF", Is<VoA2LElementStatusStringRef>},
    {"STEP_SIZE", Is<VoA2LElementStepSize>},
    {"SUPPLIER", Is<VoA2LElementSupplier>},
    {"SYMBOL_LINK", Is<VoA2LElementSymbolLink>},
    {"SYMBOL_TYPE_LINK", Is<VoA2LElementSymbolTypeLink>},
    {"SYSTEM_CONSTANT", Is<VoA2LElementSystemConstant>},
    {"S_REC_LAYOUT", Is<VoA2LElementSRecLayout>},
    {"UNIT_CONVERSION", Is<VoA2LElementUnitConversion>},
    {"USER", Is<VoA2LElementUser>},
    {"VAR_MEASUREMENT", Is<VoA2LElementVarMeasurement>},
    {"VAR_NAMING", Is<VoA2LElementVarNaming>},
    {"VAR_SEPARATOR", Is<VoA2LElementVarSeparator>},
    {"VAR_SELECTION_CHARACTERISTIC", Is<VoA2LElementVarSelectionCharacteristic>},
    {"VERSION", Is<VoA2LElementVersion>},
};

TEST(ElementFactory, GivesEachKeywordItsClass) {
  Tree root(NewTree());
  std::set<std::string> seen;
  for (const Row& row : kRows) {
    for (const std::string& keyword : Words(row.keywords)) {
      SCOPED_TRACE(keyword);
      const VoA2LElement* element = CreateElement(KeywordToKind(keyword), *root);
      ASSERT_NE(element, nullptr);
      EXPECT_TRUE(row.is(*element)) << typeid(*element).name();
      EXPECT_EQ(KindToKeyword(element->kind), keyword);
      EXPECT_EQ(element->parent, root.get());
      EXPECT_EQ(element->store, root->store);
      EXPECT_TRUE(seen.insert(keyword).second);
    }
  }
  EXPECT_EQ(seen.size(), 204U);
  EXPECT_EQ(root->ChildCount(), 0U);
}

TEST(ElementFactory, KeepsUnknownBlocksInAClassOfTheirOwn) {
  Tree root(NewTree());
  const VoA2LElement* element = CreateElement(KIND_UNKNOWN, *root);
  ASSERT_NE(element, nullptr);
  EXPECT_TRUE(Is<VoA2LElementUnknown>(*element));
  EXPECT_EQ(element->kind, KIND_UNKNOWN);
}

TEST(ElementFactory, HasNothingForOtherKinds) {
  Tree root(NewTree());
  EXPECT_EQ(CreateElement(ElementKind::ENCODING, *root), nullptr);
  for (const std::int32_t number :
       {0, -1, 21, 99, 142, 1000, 1144, 25534, 25536, std::numeric_limits<std::int32_t>::max(),
        std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_EQ(CreateElement(static_cast<ElementKind>(number), *root), nullptr) << number;
  }
}

}  // namespace
}  // namespace a2l::test
