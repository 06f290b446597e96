// SPDX-License-Identifier: MIT
//
// The JSON value of each kind of element that appears inside an object. It is the same in every
// object: the value of the field that has the name of the keyword. kOtherForms lists the
// exceptions.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>
#include <variant>

#include "a2l2json/elements/elements.h"
#include "a2l2json/export/forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/object_table.h"
#include "a2l2json/export/rows.h"

namespace a2l {

namespace tables {

inline constexpr Row kExtendedLimitsRows[] = {
    Field<&VoA2LElementExtendedLimits::LOWER_LIMIT>("FLOWER_LIMIT"),
    Field<&VoA2LElementExtendedLimits::UPPER_LIMIT>("FUPPER_LIMIT"),
};
inline constexpr ObjectTable kExtendedLimits =
    MakeTable<VoA2LElementExtendedLimits, kExtendedLimitsRows>();

inline constexpr Row kLimitsRows[] = {
    Field<&VoA2LElementLimits::LOWER_LIMIT>("FLOWER_LIMIT"),
    Field<&VoA2LElementLimits::UPPER_LIMIT>("FUPPER_LIMIT"),
};
inline constexpr ObjectTable kLimits = MakeTable<VoA2LElementLimits, kLimitsRows>();

inline constexpr Row kMaxRefreshRows[] = {
    Field<&VoA2LElementMaxRefresh::RATE>("FRATE"),
    Field<&VoA2LElementMaxRefresh::SCALING_UNIT>("FSCALING_UNIT"),
};
inline constexpr ObjectTable kMaxRefresh = MakeTable<VoA2LElementMaxRefresh, kMaxRefreshRows>();

inline constexpr Row kSymbolLinkRows[] = {
    Field<&VoA2LElementSymbolLink::OFFSET>("FOFFSET"),
    Field<&VoA2LElementSymbolLink::SYMBOL_NAME>("FSYMBOL_NAME"),
};
inline constexpr ObjectTable kSymbolLink = MakeTable<VoA2LElementSymbolLink, kSymbolLinkRows>();

inline constexpr Row kFixAxisParRows[] = {
    Field<&VoA2LElementFixAxisPar::NUMBERAPO>("FNUMBERAPO"),
    Field<&VoA2LElementFixAxisPar::OFFSET>("FOFFSET"),
    Field<&VoA2LElementFixAxisPar::SHIFT>("FSHIFT"),
};
inline constexpr ObjectTable kFixAxisPar = MakeTable<VoA2LElementFixAxisPar, kFixAxisParRows>();

inline constexpr Row kFixAxisParDistRows[] = {
    Field<&VoA2LElementFixAxisParDist::DISTANCE>("FDISTANCE"),
    Field<&VoA2LElementFixAxisParDist::NUMBERAPO>("FNUMBERAPO"),
    Field<&VoA2LElementFixAxisParDist::OFFSET>("FOFFSET"),
};
inline constexpr ObjectTable kFixAxisParDist =
    MakeTable<VoA2LElementFixAxisParDist, kFixAxisParDistRows>();

inline constexpr Row kSIExponentsRows[] = {
    Field<&VoA2LElementSIExponents::AMOUNT_OF_SUBSTANCE>("FAMOUNT_OF_SUBSTANCE"),
    Field<&VoA2LElementSIExponents::ELECTRIC_CURRENT>("FELECTRIC_CURRENT"),
    Field<&VoA2LElementSIExponents::LENGTH>("FLENGTH"),
    Field<&VoA2LElementSIExponents::LUMINOUS_INTENSITY>("FLUMINOUS_INTENSITY"),
    Field<&VoA2LElementSIExponents::MASS>("FMASS"),
    Field<&VoA2LElementSIExponents::TEMPERATURE>("FTEMPERATURE"),
    Field<&VoA2LElementSIExponents::TIME>("FTIME"),
};
inline constexpr ObjectTable kSIExponents = MakeTable<VoA2LElementSIExponents, kSIExponentsRows>();

inline constexpr Row kUnitConversionRows[] = {
    Field<&VoA2LElementUnitConversion::GRADIENT>("FGRADIENT"),
    Field<&VoA2LElementUnitConversion::OFFSET>("FOFFSET"),
};
inline constexpr ObjectTable kUnitConversion =
    MakeTable<VoA2LElementUnitConversion, kUnitConversionRows>();

// The characteristics that a dependent one refers to are an array, those of a virtual one a text.
inline constexpr Row kDependentCharacteristicRows[] = {
    Field<&VoA2LElementDependentCharacteristic::CHARACTERISTIC>("FCHARACTERISTIC"),
    Field<&VoA2LElementDependentCharacteristic::FORMULA>("FFORMULA"),
};
inline constexpr ObjectTable kDependentCharacteristic =
    MakeTable<VoA2LElementDependentCharacteristic, kDependentCharacteristicRows>();

inline constexpr Row kVirtualCharacteristicRows[] = {
    JoinedField<&VoA2LElementVirtualCharacteristic::CHARACTERISTIC>("FCHARACTERISTIC"),
    Field<&VoA2LElementVirtualCharacteristic::FORMULA>("FFORMULA"),
};
inline constexpr ObjectTable kVirtualCharacteristic =
    MakeTable<VoA2LElementVirtualCharacteristic, kVirtualCharacteristicRows>();

inline constexpr Row kAxisPtsEntryRows[] = {
    Field<&VoA2LElementAxisPtsX::ADDRESSING>("FADDRESSING"),
    Field<&VoA2LElementAxisPtsX::DATA_TYPE>("FDATA_TYPE"),
    Field<&VoA2LElementAxisPtsX::INDEX_INCR>("FINDEX_INCR"),
    Field<&VoA2LElementAxisPtsX::POSITION>("FPOSITION"),
};
inline constexpr ObjectTable kAxisPtsEntry = MakeTable<VoA2LElementAxisPtsX, kAxisPtsEntryRows>();

inline constexpr Row kAxisRescaleEntryRows[] = {
    Field<&VoA2LElementAxisRescaleX::ADDRESSING>("FADDRESSING"),
    Field<&VoA2LElementAxisRescaleX::DATA_TYPE>("FDATA_TYPE"),
    Field<&VoA2LElementAxisRescaleX::INDEX_INCR>("FINDEX_INCR"),
    Field<&VoA2LElementAxisRescaleX::MAX_NUMBER_OF_RESCALE_PAIRS>("FMAX_NUMBER_OF_RESCALE_PAIRS"),
    Field<&VoA2LElementAxisRescaleX::POSITION>("FPOSITION"),
};
inline constexpr ObjectTable kAxisRescaleEntry =
    MakeTable<VoA2LElementAxisRescaleX, kAxisRescaleEntryRows>();

inline constexpr Row kFixNoAxisPtsEntryRows[] = {
    Field<&VoA2LElementFixNoAxisPtsX::NUMBER_OF_AXIS_POINTS>("FNUMBER_OF_AXIS_POINTS"),
};
inline constexpr ObjectTable kFixNoAxisPtsEntry =
    MakeTable<VoA2LElementFixNoAxisPtsX, kFixNoAxisPtsEntryRows>();

inline constexpr Row kFncValuesRows[] = {
    Field<&VoA2LElementFncValues::ADDRESSING>("FADDRESS_TYPE"),
    Field<&VoA2LElementFncValues::DATA_TYPE>("FDATA_TYPE"),
    Field<&VoA2LElementFncValues::INDEX_MODE>("FINDEX_MODE"),
    Field<&VoA2LElementFncValues::POSITION>("FPOSITION"),
};
inline constexpr ObjectTable kFncValues = MakeTable<VoA2LElementFncValues, kFncValuesRows>();

// The entries that are a position and a data type.
template <class Class>
inline constexpr Row kPositionRows[] = {
    Field<&Class::DATA_TYPE>("FDATA_TYPE"),
    Field<&Class::POSITION>("FPOSITION"),
};
template <class Class>
inline constexpr ObjectTable kPosition = MakeTable<Class, kPositionRows<Class>>();

}  // namespace tables

/// An object with a table of its own.
constexpr ClassForm Object(const ObjectTable& table) { return {&table, table.kinds}; }

/// The forms of the classes whose value is not the field that has the name of the keyword.
inline constexpr ClassForm kOtherForms[] = {
    // All lines of the text, joined.
    Concatenated<&VoA2LElementAnnotationText::TEXT_LIST>(),
    Value<&VoA2LElementArComponent::COMPONENT_TYPE>(),
    Object(tables::kAxisPtsEntry),
    Object(tables::kAxisRescaleEntry),
    Value<&VoA2LElementCalibrationHandleText::HANDLE_TEXT>(),
    JoinedFields<&VoA2LElementCoeffs::A, &VoA2LElementCoeffs::B, &VoA2LElementCoeffs::C,
                 &VoA2LElementCoeffs::D, &VoA2LElementCoeffs::E, &VoA2LElementCoeffs::F>(),
    JoinedFields<&VoA2LElementCoeffsLinear::A, &VoA2LElementCoeffsLinear::B>(),
    Joined<&VoA2LElementDefCharacteristic::IDENTIFIER_LIST>(),
    Object(tables::kDependentCharacteristic),
    Object(tables::kPosition<VoA2LElementDistOpX>),
    AddressOf<&VoA2LElementECUAddress::ECU_ADDRESS>(),
    Object(tables::kExtendedLimits),
    Object(tables::kFixAxisPar),
    Object(tables::kFixAxisParDist),
    Joined<&VoA2LElementFixAxisParList::FIX_AXIS_PAR_LIST>(),
    Object(tables::kFixNoAxisPtsEntry),
    Object(tables::kFncValues),
    Joined<&VoA2LElementFunctionList::IDENTIFIER_LIST>(),
    Object(tables::kPosition<VoA2LElementIdentification>),
    Joined<&VoA2LElementInMeasurement::IDENTIFIER_LIST>(),
    Object(tables::kLimits),
    Joined<&VoA2LElementLocMeasurement::IDENTIFIER_LIST>(),
    Value<&VoA2LElementMapList::IDENTIFIER_LIST>(),
    Object(tables::kMaxRefresh),
    Object(tables::kPosition<VoA2LElementNoAxisPtsX>),
    Object(tables::kPosition<VoA2LElementNoRescaleX>),
    Object(tables::kPosition<VoA2LElementOffsetX>),
    Joined<&VoA2LElementOutMeasurement::IDENTIFIER_LIST>(),
    Joined<&VoA2LElementRefCharacteristic::IDENTIFIER_LIST>(),
    Joined<&VoA2LElementRefMeasurement::IDENTIFIER_LIST>(),
    Object(tables::kPosition<VoA2LElementRipAddrX>),
    Object(tables::kPosition<VoA2LElementShiftOpX>),
    Object(tables::kSIExponents),
    KeywordOf<VoA2LElementSignExtend>(),
    Object(tables::kPosition<VoA2LElementSrcAddrX>),
    Joined<&VoA2LElementSubFunction::IDENTIFIER_LIST>(),
    Joined<&VoA2LElementSubGroup::IDENTIFIER_LIST>(),
    Object(tables::kSymbolLink),
    Value<&VoA2LElementTransformerInObjects::TEXT_LIST>(),
    Value<&VoA2LElementTransformerOutObjects::TEXT_LIST>(),
    Object(tables::kUnitConversion),
    // Its keys are the names of the criteria.
    NamedFields<&VoA2LElementVarForbiddenComb::CRITERION_NAME,
                &VoA2LElementVarForbiddenComb::VALUE>(),
    Joined<&VoA2LElementVirtual::VIRTUAL>(),
    Object(tables::kVirtualCharacteristic),
};

constexpr bool HasNoClassTwice() {
  std::array<bool, kKindIndexCount> seen{};
  for (const ClassForm& form : kOtherForms) {
    if (seen[KindIndex(form.kinds.front())]) return false;
    seen[KindIndex(form.kinds.front())] = true;
  }
  return true;
}
static_assert(HasNoClassTwice(), "a class has two forms in kOtherForms");

// Per keyword, the form of the field that has its name; nothing for a class without such a field.
#define A2L_KEYWORD(number, keyword, Class)          \
  template <class Element>                           \
  consteval Form FieldOfTheName_##keyword() {        \
    if constexpr (requires { &Element::keyword; }) { \
      return Value<&Element::keyword>().form;        \
    } else {                                         \
      return {};                                     \
    }                                                \
  }
#include "a2l2json/model/keywords.def"

namespace no_such_row {
void TheKeywordHasNoFieldOfItsName_ListItInTheOtherForms();
}  // namespace no_such_row

/// The form of the elements of `kind`, which must have one.
consteval Form FormOf(ElementKind kind) {
  for (const ClassForm& other : kOtherForms) {
    if (std::ranges::find(other.kinds, kind) != other.kinds.end()) return other.form;
  }
  Form form;
  switch (kind) {
#define A2L_KEYWORD(number, keyword, Class)   \
  case ElementKind::keyword:                  \
    form = FieldOfTheName_##keyword<Class>(); \
    break;
#include "a2l2json/model/keywords.def"
    default:
      break;
  }
  if (std::holds_alternative<std::monostate>(form)) {
    no_such_row::TheKeywordHasNoFieldOfItsName_ListItInTheOtherForms();
  }
  return form;
}

/// The first child of the keyword in the key.
consteval Row Child(std::string_view key, Absent absent = Absent::Null) {
  const ElementKind kind = KindInKey(key);
  return {.key = key,
          .source = Source::FirstChild,
          .absent = absent,
          .kind = kind,
          .form = FormOf(kind)};
}

/// The first child of `kind`, under a key that holds no keyword.
consteval Row Child(std::string_view key, ElementKind kind) {
  if (KindOfKey(key) != KIND_UNKNOWN) no_such_row::TheKeyHoldsAKeyword_ItsKindCannotBeAnother();
  return {.key = key, .source = Source::FirstChild, .kind = kind, .form = FormOf(kind)};
}

/// The first child of the keyword in the key or of `otherKind`, whichever comes first in the file.
consteval Row EitherChild(std::string_view key, ElementKind otherKind) {
  Row row = Child(key);
  row.otherKind = otherKind;
  row.otherForm = FormOf(otherKind);
  return row;
}

/// All children of the keyword in the key, as an array.
consteval Row Children(std::string_view key) {
  const ElementKind kind = KindInKey(key);
  return {.key = key,
          .source = Source::Children,
          .absent = Absent::EmptyArray,
          .kind = kind,
          .form = FormOf(kind)};
}

}  // namespace a2l
