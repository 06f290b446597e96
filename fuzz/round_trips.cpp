// SPDX-License-Identifier: MIT
#include "fuzz/round_trips.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

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
#include "fuzz/naive_tokenizer.h"

namespace a2l::fuzz {
namespace {

bool HasMarker(std::string_view text) {
  return text.find("/begin") != std::string_view::npos ||
         text.find("/end") != std::string_view::npos;
}

bool SurvivesAsText(std::string_view text) { return !text.ends_with('\\') && !HasMarker(text); }

bool SurvivesAsName(std::string_view name) {
  if (name.empty() || IsTrimmed(name.back()) || HasMarker(name)) return false;
  if (name.front() == '"') {
    std::string rest(name);
    const naive::Token token = naive::NextToken(rest);
    return token.closed && rest.empty();
  }
  return name.find('"') == std::string_view::npos && name.find("//") == std::string_view::npos &&
         name.find("/*") == std::string_view::npos;
}

bool SurvivesAtLineStart(std::string_view name) {
  return SurvivesAsName(name) && KeywordToKind(name) == KIND_UNKNOWN;
}

// True when no line of a kept text holds a comment.
bool SurvivesAsRawText(std::string_view text) {
  for (const std::string& line : naive::Lines(std::string(text))) {
    std::deque<std::string> none;
    if (naive::WithoutComments(line, none) != line) return false;
  }
  return true;
}

// One overload per kind of parameter. Self is the class that has the field, Class that or one that
// derives from it.
template <class Self, class Class>
bool Survives(const Identifier<Self>& field, const Class& self) {
  return SurvivesAsName(self.*field.member);
}
template <class Self, class Class>
bool Survives(const Text<Self>& field, const Class& self) {
  return SurvivesAsText(self.*field.member);
}
template <class Self, class Class>
bool Survives(const UnquotedText<Self>& /*field*/, const Class& /*self*/) {
  return false;
}
template <class Self, class Class, class Value, Converted<Value> (*kRead)(std::string_view)>
bool Survives(const NumberField<Self, Value, kRead>& field, const Class& self) {
  return self.kind != Kind::ECU_CALIBRATION_OFFSET || self.*field.member >= 0;
}
template <class Self, class Class, std::size_t kCount>
bool Survives(const SignedNumbers<Self, kCount>& /*field*/, const Class& /*self*/) {
  return true;
}
template <class Self, class Class>
bool Survives(const Choice<Self>& field, const Class& self) {
  return !field.table.ToText(self.*field.member).empty();
}
template <class Self, class Class, class Item, Item (*kRead)(TreeStore&, std::string_view&),
          bool kQuoted, OldItems kOldItems>
bool Survives(const TokenList<Self, Item, kRead, kQuoted, kOldItems>& field, const Class& self) {
  return std::ranges::all_of(self.*field.member, [](std::string_view item) {
    if (kQuoted) return SurvivesAsText(item);
    return kRead == ReadIdentifier && SurvivesAtLineStart(item);
  });
}
template <class Self, class Class, class Value, Converted<Value> (*kRead)(std::string_view),
          BadItem kBadItem, OldItems kOldItems>
bool Survives(const NumberList<Self, Value, kRead, kBadItem, kOldItems>& field, const Class& self) {
  return self.kind != Kind::CALIBRATION_HANDLE ||
         std::ranges::all_of(self.*field.member, [](Value item) { return item >= 0; });
}

template <class Self>
bool RowsSurvive(const Self& self) {
  return std::apply(
      [&self](const auto&... column) {
        const auto survives = [&self](const auto& each) {
          if (each.Size(self) != self.*Self::rows.count) return false;
          if constexpr (std::is_same_v<std::remove_cvref_t<decltype(each)>, TextColumn<Self>>) {
            return std::ranges::all_of(self.*each.member, SurvivesAsText);
          }
          return true;
        };
        return (survives(column) && ...);
      },
      Self::rows.columns);
}

template <class Class>
bool ElementSurvives(const VoA2LElement& element) {
  const auto& self = static_cast<const Class&>(element);
  if constexpr (std::is_same_v<Class, VoA2LElementIfData>) {
    const std::string_view firstLine = self.NAME.substr(0, self.NAME.find('\n'));
    if (HasMarker(self.NAME) || (!firstLine.empty() && IsTrimmed(firstLine.back()))) return false;
    return self.NAME.find('"') == std::string_view::npos &&
           self.NAME.size() < kMostIdentifierBytes && SurvivesAsRawText(self.NAME) &&
           SurvivesAsRawText(self.IF_DATA);
  } else if constexpr (std::is_same_v<Class, VoA2LElementVarForbiddenComb>) {
    return std::ranges::all_of(self.CRITERION_NAME, SurvivesAtLineStart) &&
           std::ranges::all_of(self.VALUE, SurvivesAsName);
  } else if constexpr (std::is_same_v<Class, VoA2LElementFormat>) {
    return !self.FORMAT.empty() && SurvivesAsText(self.FORMAT);
  } else if constexpr (std::is_same_v<Class, VoA2LElementA2ML> ||
                       std::is_same_v<Class, VoA2LElementCalibrationHandleText>) {
    return false;
  } else {
    bool survives =
        std::apply([&self](const auto&... field) { return (true && ... && Survives(field, self)); },
                   Class::parameters);
    if constexpr (!std::is_same_v<decltype(Class::rows), const std::nullptr_t>) {
      survives = survives && RowsSurvive(self);
    }
    return survives;
  }
}

template <class Class>
constexpr bool WritesChildren() {
  if constexpr (requires { Class::keepsChildrenSilent; }) return !Class::keepsChildrenSilent;
  return false;
}

// What has to be known of each kind.
struct KindRow {
  bool (*survives)(const VoA2LElement&) = nullptr;
  bool writesChildren = true;
};
using KindTable = std::array<KindRow, kKindIndexCount>;

template <class... Class>
constexpr KindTable MakeTable() {
  KindTable table{};
  const auto enter = [&table](const auto& kinds, KindRow row) {
    for (const ElementKind kind : kinds) table[KindIndex(kind)] = row;
  };
  (enter(Class::kinds, {&ElementSurvives<Class>, WritesChildren<Class>()}), ...);
  return table;
}

constexpr KindTable kTable = MakeTable<
    VoA2LElementProject, VoA2LElementHeader, VoA2LElementModule, VoA2LElementModPar,
    VoA2LElementModCommon, VoA2LElementMemoryLayout, VoA2LElementMemorySegment,
    VoA2LElementMeasurement, VoA2LElementBitOperation, VoA2LElementCharacteristic,
    VoA2LElementAxisDescr, VoA2LElementAxisPts, VoA2LElementBlob,
    VoA2LElementDependentCharacteristic, VoA2LElementVirtualCharacteristic,
    VoA2LElementFixAxisParList, VoA2LElementCompuMethod, VoA2LElementCompuTab,
    VoA2LElementCompuVtab, VoA2LElementCompuVtabRange, VoA2LElementFormula,
    VoA2LElementRecordLayout, VoA2LElementFunction, VoA2LElementGroup,
    VoA2LElementDefCharacteristic, VoA2LElementFunctionList, VoA2LElementInMeasurement,
    VoA2LElementLocMeasurement, VoA2LElementMapList, VoA2LElementOutMeasurement,
    VoA2LElementRefCharacteristic, VoA2LElementRefGroup, VoA2LElementRefMeasurement,
    VoA2LElementSubFunction, VoA2LElementSubGroup, VoA2LElementAnnotationText,
    VoA2LElementTransformerInObjects, VoA2LElementTransformerOutObjects, VoA2LElementInstance,
    VoA2LElementOverwrite, VoA2LElementStructureComponent, VoA2LElementTypedefAxis,
    VoA2LElementTypedefBlob, VoA2LElementTypedefCharacteristic, VoA2LElementTypedefMeasurement,
    VoA2LElementTypedefStructure, VoA2LElementFrame, VoA2LElementAnnotation,
    VoA2LElementArComponent, VoA2LElementCalibrationMethod, VoA2LElementCalibrationHandle,
    VoA2LElementTransformer, VoA2LElementUnit, VoA2LElementUserRights, VoA2LElementVirtual,
    VoA2LElementVariantCoding, VoA2LElementVarCriterion, VoA2LElementVarCharacteristic,
    VoA2LElementVarAddress, VoA2LElementVarForbiddenComb, VoA2LElementA2ML, VoA2LElementIfData,
    VoA2LElementUnknown, VoA2LElementAnnotationLabel, VoA2LElementAnnotationOrigin,
    VoA2LElementCalibrationHandleText, VoA2LElementCPUType, VoA2LElementCustomer,
    VoA2LElementCustomerNo, VoA2LElementDefaultValue, VoA2LElementECU, VoA2LElementEPK,
    VoA2LElementFormat, VoA2LElementFormulaInv, VoA2LElementFunctionVersion, VoA2LElementModelLink,
    VoA2LElementPhoneNo, VoA2LElementPhysUnit, VoA2LElementSupplier, VoA2LElementSymbolTypeLink,
    VoA2LElementUser, VoA2LElementVarSeparator, VoA2LElementVersion, VoA2LElementSystemConstant,
    VoA2LElementArPrototypeOf, VoA2LElementAxisPtsRef, VoA2LElementComparisonQuantity,
    VoA2LElementCompuTabRef, VoA2LElementConversion, VoA2LElementCurveAxisRef,
    VoA2LElementDisplayIdentifier, VoA2LElementInputQuantity, VoA2LElementProjectNo,
    VoA2LElementRefMemorySegment, VoA2LElementRefUnit, VoA2LElementSRecLayout,
    VoA2LElementStatusStringRef, VoA2LElementVarMeasurement, VoA2LElementVarSelectionCharacteristic,
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
    VoA2LElementSymbolLink, VoA2LElementByteOrder, VoA2LElementCalibrationAccess,
    VoA2LElementDeposit, VoA2LElementLayout, VoA2LElementMonotony, VoA2LElementVarNaming,
    VoA2LElementAddressType, VoA2LElementConsistentExchange, VoA2LElementDiscrete,
    VoA2LElementGuardRails, VoA2LElementReadOnly, VoA2LElementReadWrite, VoA2LElementRoot,
    VoA2LElementSignExtend, VoA2LElementStaticAddressOffsets, VoA2LElementStaticRecordLayout,
    VoA2LElementMatrixDim, VoA2LElementFrameMeasurement, VoA2LElementAxisPtsX,
    VoA2LElementAxisRescaleX, VoA2LElementFncValues, VoA2LElementDistOpX, VoA2LElementNoAxisPtsX,
    VoA2LElementNoRescaleX, VoA2LElementOffsetX, VoA2LElementRipAddrX, VoA2LElementShiftOpX,
    VoA2LElementSrcAddrX, VoA2LElementIdentification, VoA2LElementFixNoAxisPtsX,
    VoA2LElementReserved>();

constexpr bool EveryClassIsThere() {
  for (std::size_t i = 0; i <= kKeywordCount; ++i) {
    const bool hasClass = i != KindIndex(ElementKind::ENCODING);
    if ((kTable[i].survives != nullptr) != hasClass) return false;
  }
  return true;
}
static_assert(EveryClassIsThere());

const KindRow& RowOf(const VoA2LElement& element) { return kTable[KindIndex(element.kind)]; }

}  // namespace

bool RoundTrips(const VoA2LElement& root) {
  if (std::ranges::count(root.children, Kind::ASAP2_VERSION, &VoA2LElement::kind) > 1) return false;
  std::vector<const VoA2LElement*> waiting(root.children.begin(), root.children.end());
  while (!waiting.empty()) {
    const VoA2LElement& element = *waiting.back();
    waiting.pop_back();
    if (!RowOf(element).survives(element)) return false;
    if (!RowOf(element).writesChildren) continue;
    waiting.insert(waiting.end(), element.children.begin(), element.children.end());
  }
  return true;
}

void KeepWhatRoundTrips(VoA2LElement& root) {
  bool hasVersion = false;
  std::vector<VoA2LElement*> waiting = {&root};
  while (!waiting.empty()) {
    VoA2LElement& parent = *waiting.back();
    waiting.pop_back();
    parent.valid = 1;
    const std::vector<VoA2LElement*> children(parent.children.begin(), parent.children.end());
    parent.children = {};
    if (&parent != &root && !RowOf(parent).writesChildren) continue;
    for (VoA2LElement* child : children) {
      if (child->kind == KIND_UNKNOWN || !RowOf(*child).survives(*child)) continue;
      if (child->kind == Kind::ASAP2_VERSION && std::exchange(hasVersion, true)) continue;
      parent.AddChild(child);
      waiting.push_back(child);
    }
  }
}

}  // namespace a2l::fuzz
