// SPDX-License-Identifier: MIT
//
// Properties with one identifier: the name of another object, as a rule. Any token is accepted,
// none at all included; quotes are kept.
#pragma once

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// Component prototype that a function is made from.
struct VoA2LElementArPrototypeOf final
    : Property<VoA2LElementArPrototypeOf, Kind::AR_PROTOTYPE_OF> {
  std::string_view AR_PROTOTYPE_OF;
  static constexpr auto parameters = Parameters(Identifier(&Self::AR_PROTOTYPE_OF));
  static constexpr std::string_view line = "AR_PROTOTYPE_OF {0}";
  static constexpr auto revision = kRevision171;
};

/// Axis points object that holds the points of an axis.
struct VoA2LElementAxisPtsRef final : Property<VoA2LElementAxisPtsRef, Kind::AXIS_PTS_REF> {
  std::string_view AXIS_PTS_REF;
  static constexpr auto parameters = Parameters(Identifier(&Self::AXIS_PTS_REF));
  static constexpr std::string_view line = "AXIS_PTS_REF {0}";
};

/// Measurement to compare a characteristic with.
struct VoA2LElementComparisonQuantity final
    : Property<VoA2LElementComparisonQuantity, Kind::COMPARISON_QUANTITY> {
  std::string_view COMPARISON_QUANTITY;
  static constexpr auto parameters = Parameters(Identifier(&Self::COMPARISON_QUANTITY));
  static constexpr std::string_view line = "COMPARISON_QUANTITY {0}";
};

/// Conversion table of a conversion method.
struct VoA2LElementCompuTabRef final : Property<VoA2LElementCompuTabRef, Kind::COMPU_TAB_REF> {
  std::string_view COMPU_TAB_REF;
  static constexpr auto parameters = Parameters(Identifier(&Self::COMPU_TAB_REF));
  static constexpr std::string_view line = "COMPU_TAB_REF {0}";
};

/// Conversion method that replaces the one of the type.
struct VoA2LElementConversion final : Property<VoA2LElementConversion, Kind::CONVERSION> {
  std::string_view CONVERSION;
  static constexpr auto parameters = Parameters(Identifier(&Self::CONVERSION));
  static constexpr std::string_view line = "CONVERSION {0}";
  static constexpr auto revision = kRevision171;
};

/// Curve that scales an axis.
struct VoA2LElementCurveAxisRef final : Property<VoA2LElementCurveAxisRef, Kind::CURVE_AXIS_REF> {
  std::string_view CURVE_AXIS_REF;
  static constexpr auto parameters = Parameters(Identifier(&Self::CURVE_AXIS_REF));
  static constexpr std::string_view line = "CURVE_AXIS_REF {0}";
};

/// Name to display in place of the identifier.
struct VoA2LElementDisplayIdentifier final
    : Property<VoA2LElementDisplayIdentifier, Kind::DISPLAY_IDENTIFIER> {
  std::string_view DISPLAY_IDENTIFIER;
  static constexpr auto parameters = Parameters(Identifier(&Self::DISPLAY_IDENTIFIER));
  static constexpr std::string_view line = "DISPLAY_IDENTIFIER {0}";
};

/// Input quantity that replaces the one of the type.
struct VoA2LElementInputQuantity final : Property<VoA2LElementInputQuantity, Kind::INPUT_QUANTITY> {
  std::string_view INPUT_QUANTITY;
  static constexpr auto parameters = Parameters(Identifier(&Self::INPUT_QUANTITY));
  static constexpr std::string_view line = "INPUT_QUANTITY {0}";
  static constexpr auto revision = kRevision171;
};

/// Identifier of the project.
struct VoA2LElementProjectNo final : Property<VoA2LElementProjectNo, Kind::PROJECT_NO> {
  std::string_view PROJECT_NO;
  static constexpr auto parameters = Parameters(Identifier(&Self::PROJECT_NO));
  static constexpr std::string_view line = "PROJECT_NO {0}";
};

/// Memory segment that an object lies in.
struct VoA2LElementRefMemorySegment final
    : Property<VoA2LElementRefMemorySegment, Kind::REF_MEMORY_SEGMENT> {
  std::string_view REF_MEMORY_SEGMENT;
  static constexpr auto parameters = Parameters(Identifier(&Self::REF_MEMORY_SEGMENT));
  static constexpr std::string_view line = "REF_MEMORY_SEGMENT {0}";
};

/// Unit that a unit or a conversion method refers to.
struct VoA2LElementRefUnit final : Property<VoA2LElementRefUnit, Kind::REF_UNIT> {
  std::string_view REF_UNIT;
  static constexpr auto parameters = Parameters(Identifier(&Self::REF_UNIT));
  static constexpr std::string_view line = "REF_UNIT {0}";
};

/// Default record layout of a module.
struct VoA2LElementSRecLayout final : Property<VoA2LElementSRecLayout, Kind::S_REC_LAYOUT> {
  std::string_view S_REC_LAYOUT;
  static constexpr auto parameters = Parameters(Identifier(&Self::S_REC_LAYOUT));
  static constexpr std::string_view line = "S_REC_LAYOUT {0}";
};

/// Table of the texts for status values.
struct VoA2LElementStatusStringRef final
    : Property<VoA2LElementStatusStringRef, Kind::STATUS_STRING_REF> {
  std::string_view STATUS_STRING_REF;
  static constexpr auto parameters = Parameters(Identifier(&Self::STATUS_STRING_REF));
  static constexpr std::string_view line = "STATUS_STRING_REF {0}";
};

/// Measurement that tells the current value of a criterion.
struct VoA2LElementVarMeasurement final
    : Property<VoA2LElementVarMeasurement, Kind::VAR_MEASUREMENT> {
  std::string_view VAR_MEASUREMENT;
  static constexpr auto parameters = Parameters(Identifier(&Self::VAR_MEASUREMENT));
  static constexpr std::string_view line = "VAR_MEASUREMENT {0}";
};

/// Characteristic that selects the value of a criterion.
struct VoA2LElementVarSelectionCharacteristic final
    : Property<VoA2LElementVarSelectionCharacteristic, Kind::VAR_SELECTION_CHARACTERISTIC> {
  std::string_view VAR_SELECTION_CHARACTERISTIC;
  static constexpr auto parameters = Parameters(Identifier(&Self::VAR_SELECTION_CHARACTERISTIC));
  static constexpr std::string_view line = "VAR_SELECTION_CHARACTERISTIC {0}";
};

}  // namespace a2l
