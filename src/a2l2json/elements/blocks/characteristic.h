// SPDX-License-Identifier: MIT
//
// The adjustable objects of a control unit and their axes.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

#include "a2l2json/names_begin.h"

namespace a2l {

/// A value, curve, map or block of values in memory.
struct VoA2LElementCharacteristic final
    : detail::Block<VoA2LElementCharacteristic, ElementKind::CHARACTERISTIC> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  CharacteristicType CHARACTERISTIC_TYPE{};
  std::uint32_t ADDRESS = 0;
  std::string_view DEPOSIT;  ///< name of the record layout
  double MAX_DIFF = 0;
  std::string_view CONVERSION;
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Word<&Self::CHARACTERISTIC_TYPE>),
      Hex<&Self::ADDRESS>,
      Identifier<&Self::DEPOSIT>,
      Real<&Self::MAX_DIFF>,
      Identifier<&Self::CONVERSION>,
      Real<&Self::LOWER_LIMIT>,
      Real<&Self::UPPER_LIMIT>,
  };
  static constexpr OnBadNumber onBadNumber = OnBadNumber::MarkAndGoOn;
  static constexpr ElementKind accepts[] = {
      ElementKind::ANNOTATION,
      ElementKind::AXIS_DESCR,
      ElementKind::BIT_MASK,
      ElementKind::BYTE_ORDER,
      ElementKind::CALIBRATION_ACCESS,
      ElementKind::COMPARISON_QUANTITY,
      ElementKind::DEPENDENT_CHARACTERISTIC,
      ElementKind::DISCRETE,
      ElementKind::DISPLAY_IDENTIFIER,
      ElementKind::ECU_ADDRESS_EXTENSION,
      ElementKind::ENCODING,
      ElementKind::EXTENDED_LIMITS,
      ElementKind::FORMAT,
      ElementKind::FUNCTION_LIST,
      ElementKind::GUARD_RAILS,
      ElementKind::IF_DATA,
      ElementKind::MAP_LIST,
      ElementKind::MATRIX_DIM,
      ElementKind::MAX_REFRESH,
      ElementKind::MODEL_LINK,
      ElementKind::NUMBER,
      ElementKind::PHYS_UNIT,
      ElementKind::READ_ONLY,
      ElementKind::REF_MEMORY_SEGMENT,
      ElementKind::STEP_SIZE,
      ElementKind::SYMBOL_LINK,
      ElementKind::VIRTUAL_CHARACTERISTIC,
  };
};

/// One axis of a characteristic. Unlike the objects, it stops at the first bad number.
struct VoA2LElementAxisDescr final : detail::Block<VoA2LElementAxisDescr, ElementKind::AXIS_DESCR> {
  AxisAttribute ATTRIBUTE{};
  std::uint32_t MAX_AXIS_POINTS = 0;
  std::string_view INPUT_QUANTITY;
  std::string_view CONVERSION;
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr Parameter parameters[] = {
      NextLine(Word<&Self::ATTRIBUTE>), Identifier<&Self::INPUT_QUANTITY>,
      Identifier<&Self::CONVERSION>,    Unsigned<&Self::MAX_AXIS_POINTS>,
      Real<&Self::LOWER_LIMIT>,         Real<&Self::UPPER_LIMIT>,
  };
  static constexpr ElementKind accepts[] = {
      ElementKind::ANNOTATION,     ElementKind::AXIS_PTS_REF,      ElementKind::BYTE_ORDER,
      ElementKind::CURVE_AXIS_REF, ElementKind::DEPOSIT,           ElementKind::EXTENDED_LIMITS,
      ElementKind::FIX_AXIS_PAR,   ElementKind::FIX_AXIS_PAR_DIST, ElementKind::FIX_AXIS_PAR_LIST,
      ElementKind::FORMAT,         ElementKind::MAX_GRAD,          ElementKind::MONOTONY,
      ElementKind::PHYS_UNIT,      ElementKind::READ_ONLY,         ElementKind::STEP_SIZE,
  };
};

/// An axis whose points are an object of their own.
struct VoA2LElementAxisPts final : detail::Block<VoA2LElementAxisPts, ElementKind::AXIS_PTS> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t ADDRESS = 0;
  std::uint32_t MAX_AXIS_POINTS = 0;
  std::string_view INPUT_QUANTITY;
  std::string_view DEPOSIT;  ///< name of the record layout
  double MAX_DIFF = 0;
  std::string_view CONVERSION;
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,       Text<&Self::LONG_IDENTIFIER>,
      NextLine(Hex<&Self::ADDRESS>), Identifier<&Self::INPUT_QUANTITY>,
      Identifier<&Self::DEPOSIT>,    Real<&Self::MAX_DIFF>,
      Identifier<&Self::CONVERSION>, Unsigned<&Self::MAX_AXIS_POINTS>,
      Real<&Self::LOWER_LIMIT>,      Real<&Self::UPPER_LIMIT>,
  };
  static constexpr OnBadNumber onBadNumber = OnBadNumber::MarkAndGoOn;
  static constexpr ElementKind accepts[] = {
      ElementKind::ANNOTATION,
      ElementKind::BYTE_ORDER,
      ElementKind::CALIBRATION_ACCESS,
      ElementKind::DEPOSIT,
      ElementKind::DISPLAY_IDENTIFIER,
      ElementKind::ECU_ADDRESS_EXTENSION,
      ElementKind::EXTENDED_LIMITS,
      ElementKind::FORMAT,
      ElementKind::FUNCTION_LIST,
      ElementKind::GUARD_RAILS,
      ElementKind::IF_DATA,
      ElementKind::MAX_REFRESH,
      ElementKind::MODEL_LINK,
      ElementKind::MONOTONY,
      ElementKind::PHYS_UNIT,
      ElementKind::READ_ONLY,
      ElementKind::REF_MEMORY_SEGMENT,
      ElementKind::STEP_SIZE,
      ElementKind::SYMBOL_LINK,
  };
};

/// A block of bytes without a known structure.
struct VoA2LElementBlob final : detail::Block<VoA2LElementBlob, ElementKind::BLOB> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t ADDRESS = 0;
  std::uint32_t SIZE = 0;  ///< in bytes
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Hex<&Self::ADDRESS>),
      Unsigned<&Self::SIZE>,
  };
  static constexpr OnBadNumber onBadNumber = OnBadNumber::MarkAndGoOn;
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr ElementKind accepts[] = {
      ElementKind::ADDRESS_TYPE,          ElementKind::ANNOTATION,
      ElementKind::CALIBRATION_ACCESS,    ElementKind::DISPLAY_IDENTIFIER,
      ElementKind::ECU_ADDRESS_EXTENSION, ElementKind::IF_DATA,
      ElementKind::MAX_REFRESH,           ElementKind::MODEL_LINK,
      ElementKind::SYMBOL_LINK,
  };
};

/// A characteristic that follows from others by a formula.
struct VoA2LElementDependentCharacteristic final
    : detail::Block<VoA2LElementDependentCharacteristic, ElementKind::DEPENDENT_CHARACTERISTIC> {
  std::string_view FORMULA;
  List<std::string_view> CHARACTERISTIC;
  static constexpr Parameter parameters[] = {
      NextLine(Text<&Self::FORMULA>),
      Identifiers<&Self::CHARACTERISTIC>,
  };
};

/// The same, for a characteristic without a place in memory.
struct VoA2LElementVirtualCharacteristic final
    : detail::Block<VoA2LElementVirtualCharacteristic, ElementKind::VIRTUAL_CHARACTERISTIC> {
  std::string_view FORMULA;
  List<std::string_view> CHARACTERISTIC;
  static constexpr Parameter parameters[] = {
      NextLine(Text<&Self::FORMULA>),
      WithoutBlanks(Identifiers<&Self::CHARACTERISTIC>),
  };
};

/// The points of an axis, listed in the file. A point that is not a number ends the list and
/// stays in it as 0.
struct VoA2LElementFixAxisParList final
    : detail::Block<VoA2LElementFixAxisParList, ElementKind::FIX_AXIS_PAR_LIST> {
  List<double> FIX_AXIS_PAR_LIST;
  static constexpr Parameter parameters[] = {KeepingWrong(RealList<&Self::FIX_AXIS_PAR_LIST>)};
};

}  // namespace a2l

#include "a2l2json/names_end.h"
