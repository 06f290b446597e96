// SPDX-License-Identifier: MIT
//
// Properties with one identifier, most often the name of another object. Every token is accepted,
// and so is a missing one. Quotes are kept.
#pragma once

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// Component prototype that a function is made from.
struct VoA2LElementArPrototypeOf final
    : detail::Property<VoA2LElementArPrototypeOf, ElementKind::AR_PROTOTYPE_OF> {
  std::string_view AR_PROTOTYPE_OF;
  static constexpr Parameter parameters[] = {Identifier<&Self::AR_PROTOTYPE_OF>};
  static constexpr std::uint32_t revision = kRevision171;
};

/// Axis points object that holds the points of an axis.
struct VoA2LElementAxisPtsRef final
    : detail::Property<VoA2LElementAxisPtsRef, ElementKind::AXIS_PTS_REF> {
  std::string_view AXIS_PTS_REF;
  static constexpr Parameter parameters[] = {Identifier<&Self::AXIS_PTS_REF>};
};

/// Measurement to compare a characteristic with.
struct VoA2LElementComparisonQuantity final
    : detail::Property<VoA2LElementComparisonQuantity, ElementKind::COMPARISON_QUANTITY> {
  std::string_view COMPARISON_QUANTITY;
  static constexpr Parameter parameters[] = {Identifier<&Self::COMPARISON_QUANTITY>};
};

/// Conversion table of a conversion method.
struct VoA2LElementCompuTabRef final
    : detail::Property<VoA2LElementCompuTabRef, ElementKind::COMPU_TAB_REF> {
  std::string_view COMPU_TAB_REF;
  static constexpr Parameter parameters[] = {Identifier<&Self::COMPU_TAB_REF>};
};

/// Conversion method that replaces the one of the type.
struct VoA2LElementConversion final
    : detail::Property<VoA2LElementConversion, ElementKind::CONVERSION> {
  std::string_view CONVERSION;
  static constexpr Parameter parameters[] = {Identifier<&Self::CONVERSION>};
  static constexpr std::uint32_t revision = kRevision171;
};

/// Curve that scales an axis.
struct VoA2LElementCurveAxisRef final
    : detail::Property<VoA2LElementCurveAxisRef, ElementKind::CURVE_AXIS_REF> {
  std::string_view CURVE_AXIS_REF;
  static constexpr Parameter parameters[] = {Identifier<&Self::CURVE_AXIS_REF>};
};

/// Name to display in place of the identifier.
struct VoA2LElementDisplayIdentifier final
    : detail::Property<VoA2LElementDisplayIdentifier, ElementKind::DISPLAY_IDENTIFIER> {
  std::string_view DISPLAY_IDENTIFIER;
  static constexpr Parameter parameters[] = {Identifier<&Self::DISPLAY_IDENTIFIER>};
};

/// Input quantity that replaces the one of the type.
struct VoA2LElementInputQuantity final
    : detail::Property<VoA2LElementInputQuantity, ElementKind::INPUT_QUANTITY> {
  std::string_view INPUT_QUANTITY;
  static constexpr Parameter parameters[] = {Identifier<&Self::INPUT_QUANTITY>};
  static constexpr std::uint32_t revision = kRevision171;
};

/// Identifier of the project.
struct VoA2LElementProjectNo final
    : detail::Property<VoA2LElementProjectNo, ElementKind::PROJECT_NO> {
  std::string_view PROJECT_NO;
  static constexpr Parameter parameters[] = {Identifier<&Self::PROJECT_NO>};
};

/// Memory segment that an object lies in.
struct VoA2LElementRefMemorySegment final
    : detail::Property<VoA2LElementRefMemorySegment, ElementKind::REF_MEMORY_SEGMENT> {
  std::string_view REF_MEMORY_SEGMENT;
  static constexpr Parameter parameters[] = {Identifier<&Self::REF_MEMORY_SEGMENT>};
};

/// Unit that a unit or a conversion method refers to.
struct VoA2LElementRefUnit final : detail::Property<VoA2LElementRefUnit, ElementKind::REF_UNIT> {
  std::string_view REF_UNIT;
  static constexpr Parameter parameters[] = {Identifier<&Self::REF_UNIT>};
};

/// Default record layout of a module.
struct VoA2LElementSRecLayout final
    : detail::Property<VoA2LElementSRecLayout, ElementKind::S_REC_LAYOUT> {
  std::string_view S_REC_LAYOUT;
  static constexpr Parameter parameters[] = {Identifier<&Self::S_REC_LAYOUT>};
};

/// Table of the texts for status values.
struct VoA2LElementStatusStringRef final
    : detail::Property<VoA2LElementStatusStringRef, ElementKind::STATUS_STRING_REF> {
  std::string_view STATUS_STRING_REF;
  static constexpr Parameter parameters[] = {Identifier<&Self::STATUS_STRING_REF>};
};

/// Measurement that tells the current value of a criterion.
struct VoA2LElementVarMeasurement final
    : detail::Property<VoA2LElementVarMeasurement, ElementKind::VAR_MEASUREMENT> {
  std::string_view VAR_MEASUREMENT;
  static constexpr Parameter parameters[] = {Identifier<&Self::VAR_MEASUREMENT>};
};

/// Characteristic that selects the value of a criterion.
struct VoA2LElementVarSelectionCharacteristic final
    : detail::Property<VoA2LElementVarSelectionCharacteristic,
                       ElementKind::VAR_SELECTION_CHARACTERISTIC> {
  std::string_view VAR_SELECTION_CHARACTERISTIC;
  static constexpr Parameter parameters[] = {Identifier<&Self::VAR_SELECTION_CHARACTERISTIC>};
};

}  // namespace a2l
