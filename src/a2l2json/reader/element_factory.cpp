// SPDX-License-Identifier: MIT
#include "a2l2json/reader/element_factory.h"

#include <array>

#include "a2l2json/elements/elements.h"

namespace a2l {
namespace {

template <class... Class>
struct ClassList {};

// Every element class, header by header.
using AllClasses = ClassList<
    // blocks/project.h
    VoA2LElementProject, VoA2LElementHeader, VoA2LElementModule, VoA2LElementModPar,
    VoA2LElementModCommon, VoA2LElementMemoryLayout, VoA2LElementMemorySegment,
    // blocks/measurement.h
    VoA2LElementMeasurement, VoA2LElementBitOperation,
    // blocks/characteristic.h
    VoA2LElementCharacteristic, VoA2LElementAxisDescr, VoA2LElementAxisPts, VoA2LElementBlob,
    VoA2LElementDependentCharacteristic, VoA2LElementVirtualCharacteristic,
    VoA2LElementFixAxisParList,
    // blocks/conversion.h
    VoA2LElementCompuMethod, VoA2LElementCompuTab, VoA2LElementCompuVtab,
    VoA2LElementCompuVtabRange, VoA2LElementFormula,
    // blocks/record_layout.h
    VoA2LElementRecordLayout,
    // blocks/functions.h
    VoA2LElementFunction, VoA2LElementGroup, VoA2LElementDefCharacteristic,
    VoA2LElementFunctionList, VoA2LElementInMeasurement, VoA2LElementLocMeasurement,
    VoA2LElementMapList, VoA2LElementOutMeasurement, VoA2LElementRefCharacteristic,
    VoA2LElementRefGroup, VoA2LElementRefMeasurement, VoA2LElementSubFunction, VoA2LElementSubGroup,
    VoA2LElementAnnotationText, VoA2LElementTransformerInObjects, VoA2LElementTransformerOutObjects,
    // blocks/instance.h
    VoA2LElementInstance, VoA2LElementOverwrite, VoA2LElementStructureComponent,
    VoA2LElementTypedefAxis, VoA2LElementTypedefBlob, VoA2LElementTypedefCharacteristic,
    VoA2LElementTypedefMeasurement, VoA2LElementTypedefStructure,
    // blocks/other.h
    VoA2LElementFrame, VoA2LElementAnnotation, VoA2LElementArComponent,
    VoA2LElementCalibrationMethod, VoA2LElementCalibrationHandle, VoA2LElementTransformer,
    VoA2LElementUnit, VoA2LElementUserRights, VoA2LElementVirtual,
    // blocks/variant_coding.h
    VoA2LElementVariantCoding, VoA2LElementVarCriterion, VoA2LElementVarCharacteristic,
    VoA2LElementVarAddress, VoA2LElementVarForbiddenComb,
    // blocks/raw.h
    VoA2LElementA2ML, VoA2LElementIfData, VoA2LElementUnknown,
    // properties/texts.h
    VoA2LElementAnnotationLabel, VoA2LElementAnnotationOrigin, VoA2LElementCalibrationHandleText,
    VoA2LElementCPUType, VoA2LElementCustomer, VoA2LElementCustomerNo, VoA2LElementDefaultValue,
    VoA2LElementECU, VoA2LElementEPK, VoA2LElementFormat, VoA2LElementFormulaInv,
    VoA2LElementFunctionVersion, VoA2LElementModelLink, VoA2LElementPhoneNo, VoA2LElementPhysUnit,
    VoA2LElementSupplier, VoA2LElementSymbolTypeLink, VoA2LElementUser, VoA2LElementVarSeparator,
    VoA2LElementVersion, VoA2LElementSystemConstant,
    // properties/identifiers.h
    VoA2LElementArPrototypeOf, VoA2LElementAxisPtsRef, VoA2LElementComparisonQuantity,
    VoA2LElementCompuTabRef, VoA2LElementConversion, VoA2LElementCurveAxisRef,
    VoA2LElementDisplayIdentifier, VoA2LElementInputQuantity, VoA2LElementProjectNo,
    VoA2LElementRefMemorySegment, VoA2LElementRefUnit, VoA2LElementSRecLayout,
    VoA2LElementStatusStringRef, VoA2LElementVarMeasurement, VoA2LElementVarSelectionCharacteristic,
    // properties/numbers.h
    VoA2LElementAddrEPK, VoA2LElementAlignmentByte, VoA2LElementAlignmentFloat16IEEE,
    VoA2LElementAlignmentFloat32IEEE, VoA2LElementAlignmentFloat64IEEE, VoA2LElementAlignmentInt64,
    VoA2LElementAlignmentLong, VoA2LElementAlignmentWord, VoA2LElementArraySize,
    VoA2LElementBitMask, VoA2LElementDataSize, VoA2LElementDefaultValueNumeric,
    VoA2LElementECUAddress, VoA2LElementECUAddressExtension, VoA2LElementECUCalibrationOffset,
    VoA2LElementErrorMask, VoA2LElementLeftShift, VoA2LElementMaxGrad, VoA2LElementNoOfInterfaces,
    VoA2LElementNumber, VoA2LElementRightShift, VoA2LElementStepSize, VoA2LElementA2MLVersion,
    VoA2LElementASAP2Version, VoA2LElementMaxRefresh, VoA2LElementCoeffs, VoA2LElementCoeffsLinear,
    VoA2LElementExtendedLimits, VoA2LElementLimits, VoA2LElementUnitConversion,
    VoA2LElementFixAxisPar, VoA2LElementFixAxisParDist, VoA2LElementSIExponents,
    VoA2LElementSymbolLink,
    // properties/choices.h
    VoA2LElementByteOrder, VoA2LElementCalibrationAccess, VoA2LElementDeposit, VoA2LElementLayout,
    VoA2LElementMonotony, VoA2LElementVarNaming, VoA2LElementAddressType,
    // properties/flags.h
    VoA2LElementConsistentExchange, VoA2LElementDiscrete, VoA2LElementGuardRails,
    VoA2LElementReadOnly, VoA2LElementReadWrite, VoA2LElementRoot, VoA2LElementSignExtend,
    VoA2LElementStaticAddressOffsets, VoA2LElementStaticRecordLayout,
    // properties/lists.h
    VoA2LElementMatrixDim, VoA2LElementFrameMeasurement,
    // properties/record_layout_entries.h
    VoA2LElementAxisPtsX, VoA2LElementAxisRescaleX, VoA2LElementFncValues, VoA2LElementDistOpX,
    VoA2LElementNoAxisPtsX, VoA2LElementNoRescaleX, VoA2LElementOffsetX, VoA2LElementRipAddrX,
    VoA2LElementShiftOpX, VoA2LElementSrcAddrX, VoA2LElementIdentification,
    VoA2LElementFixNoAxisPtsX, VoA2LElementReserved>;

using Creator = VoA2LElement* (*)(VoA2LElement& parent, ElementKind kind);

template <class Class>
VoA2LElement* Create(VoA2LElement& parent, [[maybe_unused]] ElementKind kind) {
  if constexpr (Class::kinds.size() > 1) {
    return parent.Store().Create<Class>(&parent, kind);
  } else {
    return parent.Store().Create<Class>(&parent);
  }
}

struct CreatorTable {
  std::array<Creator, kKindIndexCount> creators{};
  bool noKindTwice = true;
};

template <class... Class>
constexpr CreatorTable MakeCreators(ClassList<Class...> /*classes*/) {
  CreatorTable table;
  const auto enter = [&table](ElementKind kind, Creator creator) {
    Creator& place = table.creators[KindIndex(kind)];
    table.noKindTwice = table.noKindTwice && place == nullptr;
    place = creator;
  };
  const auto enterAll = [&enter](const auto& kinds, Creator creator) {
    for (const ElementKind kind : kinds) enter(kind, creator);
  };
  (enterAll(Class::kinds, &Create<Class>), ...);
  return table;
}

constexpr CreatorTable kTable = MakeCreators(AllClasses{});

constexpr bool EveryKeywordHasAClass() {
  for (std::size_t i = 0; i <= kKeywordCount; ++i) {
    if ((kTable.creators[i] != nullptr) != (i != KindIndex(ElementKind::ENCODING))) return false;
  }
  return true;
}
static_assert(EveryKeywordHasAClass(), "a keyword other than ENCODING has no element class");
static_assert(kTable.noKindTwice, "two element classes share a kind");

}  // namespace

VoA2LElement* CreateElement(ElementKind kind, VoA2LElement& parent) {
  const Creator create = kTable.creators[KindIndex(kind)];
  return create != nullptr ? create(parent, kind) : nullptr;
}

}  // namespace a2l
