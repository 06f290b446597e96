// SPDX-License-Identifier: MIT
//
// Objects made from type definitions, and the type definitions.
#pragma once

#include <cstdint>

#include "a2l2json/elements/blocks/characteristic.h"
#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

#include "a2l2json/names_begin.h"

namespace a2l {

/// An object of a type that is defined elsewhere in the module.
struct VoA2LElementInstance final : detail::Block<VoA2LElementInstance, ElementKind::INSTANCE> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::string_view TYPEDEF_NAME;
  std::uint32_t ADDRESS = 0;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Identifier<&Self::TYPEDEF_NAME>),
      Hex<&Self::ADDRESS>,
  };
  static constexpr OnBadNumber onBadNumber = OnBadNumber::MarkAndGoOn;
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr Kind accepts[] = {
      Kind::ADDRESS_TYPE,
      Kind::ANNOTATION,
      Kind::CALIBRATION_ACCESS,
      Kind::DISPLAY_IDENTIFIER,
      Kind::ECU_ADDRESS_EXTENSION,
      Kind::IF_DATA,
      Kind::LAYOUT,
      Kind::MATRIX_DIM,
      Kind::MAX_REFRESH,
      Kind::MODEL_LINK,
      Kind::OVERWRITE,
      Kind::READ_WRITE,
      Kind::SYMBOL_LINK,
  };
};

/// What an instance changes of its type, or of one axis of it.
struct VoA2LElementOverwrite final : detail::Block<VoA2LElementOverwrite, ElementKind::OVERWRITE> {
  std::string_view NAME;
  std::uint32_t AXIS_NUMBER = 0;
  static constexpr Parameter parameters[] = {Identifier<&Self::NAME>, Unsigned<&Self::AXIS_NUMBER>};
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr Kind accepts[] = {
      Kind::CONVERSION, Kind::EXTENDED_LIMITS, Kind::FORMAT,    Kind::INPUT_QUANTITY,
      Kind::LIMITS,     Kind::MONOTONY,        Kind::PHYS_UNIT,
  };
};

/// A member of a structure type.
struct VoA2LElementStructureComponent final
    : detail::Block<VoA2LElementStructureComponent, ElementKind::STRUCTURE_COMPONENT> {
  std::string_view NAME;
  std::string_view TYPEDEF_NAME;
  std::uint32_t ADDRESS_OFFSET = 0;  ///< in bytes, from the start of the structure
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      NextLine(Identifier<&Self::TYPEDEF_NAME>),
      Unsigned<&Self::ADDRESS_OFFSET>,
  };
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr Kind accepts[] = {
      Kind::ADDRESS_TYPE,
      Kind::LAYOUT,
      Kind::MATRIX_DIM,
      Kind::SYMBOL_TYPE_LINK,
  };
};

struct VoA2LElementTypedefAxis final
    : detail::Block<VoA2LElementTypedefAxis, ElementKind::TYPEDEF_AXIS> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::string_view INPUT_QUANTITY;
  std::string_view RECORD_LAYOUT;
  double MAX_DIFF = 0;
  std::string_view CONVERSION;
  std::uint32_t MAX_AXIS_POINTS = 0;
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Identifier<&Self::INPUT_QUANTITY>),
      Identifier<&Self::RECORD_LAYOUT>,
      Real<&Self::MAX_DIFF>,
      Identifier<&Self::CONVERSION>,
      Unsigned<&Self::MAX_AXIS_POINTS>,
      Real<&Self::LOWER_LIMIT>,
      Real<&Self::UPPER_LIMIT>,
  };
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr Kind accepts[] = {
      Kind::BYTE_ORDER, Kind::DEPOSIT,   Kind::EXTENDED_LIMITS, Kind::FORMAT,
      Kind::MONOTONY,   Kind::PHYS_UNIT, Kind::STEP_SIZE,
  };
};

struct VoA2LElementTypedefBlob final
    : detail::Block<VoA2LElementTypedefBlob, ElementKind::TYPEDEF_BLOB> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t SIZE = 0;  ///< in bytes
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Unsigned<&Self::SIZE>),
  };
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr Kind accepts[] = {Kind::ADDRESS_TYPE};
};

struct VoA2LElementTypedefCharacteristic final
    : detail::Block<VoA2LElementTypedefCharacteristic, ElementKind::TYPEDEF_CHARACTERISTIC> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  CharacteristicType CHARACTERISTIC_TYPE{};
  std::string_view RECORD_LAYOUT;
  double MAX_DIFF = 0;
  std::string_view CONVERSION;
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Word<&Self::CHARACTERISTIC_TYPE>),
      Identifier<&Self::RECORD_LAYOUT>,
      Real<&Self::MAX_DIFF>,
      Identifier<&Self::CONVERSION>,
      Real<&Self::LOWER_LIMIT>,
      Real<&Self::UPPER_LIMIT>,
  };
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr Kind accepts[] = {
      Kind::AXIS_DESCR, Kind::BIT_MASK,        Kind::BYTE_ORDER, Kind::DISCRETE,
      Kind::ENCODING,   Kind::EXTENDED_LIMITS, Kind::FORMAT,     Kind::MATRIX_DIM,
      Kind::NUMBER,     Kind::PHYS_UNIT,       Kind::STEP_SIZE,
  };
};

struct VoA2LElementTypedefMeasurement final
    : detail::Block<VoA2LElementTypedefMeasurement, ElementKind::TYPEDEF_MEASUREMENT> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  DataType DATATYPE{};
  std::string_view CONVERSION;
  std::uint32_t RESOLUTION = 0;  ///< smallest change of the value, in bits
  double ACCURACY = 0;           ///< in percent
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,       Text<&Self::LONG_IDENTIFIER>, NextLine(Word<&Self::DATATYPE>),
      Identifier<&Self::CONVERSION>, Unsigned<&Self::RESOLUTION>,  Real<&Self::ACCURACY>,
      Real<&Self::LOWER_LIMIT>,      Real<&Self::UPPER_LIMIT>,
  };
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr Kind accepts[] = {
      Kind::ADDRESS_TYPE, Kind::BIT_MASK, Kind::BIT_OPERATION, Kind::BYTE_ORDER, Kind::DISCRETE,
      Kind::ERROR_MASK,   Kind::FORMAT,   Kind::LAYOUT,        Kind::MATRIX_DIM, Kind::PHYS_UNIT,
  };
};

struct VoA2LElementTypedefStructure final
    : detail::Block<VoA2LElementTypedefStructure, ElementKind::TYPEDEF_STRUCTURE> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t SIZE = 0;  ///< in bytes
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Unsigned<&Self::SIZE>),
  };
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr Kind accepts[] = {
      Kind::ADDRESS_TYPE,
      Kind::CONSISTENT_EXCHANGE,
      Kind::STRUCTURE_COMPONENT,
      Kind::SYMBOL_TYPE_LINK,
  };
};

}  // namespace a2l

#include "a2l2json/names_end.h"
