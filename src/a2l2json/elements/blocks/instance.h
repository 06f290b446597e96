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
  static constexpr ElementKind accepts[] = {
      ElementKind::ADDRESS_TYPE,
      ElementKind::ANNOTATION,
      ElementKind::CALIBRATION_ACCESS,
      ElementKind::DISPLAY_IDENTIFIER,
      ElementKind::ECU_ADDRESS_EXTENSION,
      ElementKind::IF_DATA,
      ElementKind::LAYOUT,
      ElementKind::MATRIX_DIM,
      ElementKind::MAX_REFRESH,
      ElementKind::MODEL_LINK,
      ElementKind::OVERWRITE,
      ElementKind::READ_WRITE,
      ElementKind::SYMBOL_LINK,
  };
};

/// What an instance changes of its type, or of one axis of it.
struct VoA2LElementOverwrite final : detail::Block<VoA2LElementOverwrite, ElementKind::OVERWRITE> {
  std::string_view NAME;
  std::uint32_t AXIS_NUMBER = 0;
  static constexpr Parameter parameters[] = {Identifier<&Self::NAME>, Unsigned<&Self::AXIS_NUMBER>};
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr ElementKind accepts[] = {
      ElementKind::CONVERSION,     ElementKind::EXTENDED_LIMITS, ElementKind::FORMAT,
      ElementKind::INPUT_QUANTITY, ElementKind::LIMITS,          ElementKind::MONOTONY,
      ElementKind::PHYS_UNIT,
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
  static constexpr ElementKind accepts[] = {
      ElementKind::ADDRESS_TYPE,
      ElementKind::LAYOUT,
      ElementKind::MATRIX_DIM,
      ElementKind::SYMBOL_TYPE_LINK,
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
  static constexpr ElementKind accepts[] = {
      ElementKind::BYTE_ORDER, ElementKind::DEPOSIT,  ElementKind::EXTENDED_LIMITS,
      ElementKind::FORMAT,     ElementKind::MONOTONY, ElementKind::PHYS_UNIT,
      ElementKind::STEP_SIZE,
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
  static constexpr ElementKind accepts[] = {ElementKind::ADDRESS_TYPE};
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
  static constexpr ElementKind accepts[] = {
      ElementKind::AXIS_DESCR, ElementKind::BIT_MASK,   ElementKind::BYTE_ORDER,
      ElementKind::DISCRETE,   ElementKind::ENCODING,   ElementKind::EXTENDED_LIMITS,
      ElementKind::FORMAT,     ElementKind::MATRIX_DIM, ElementKind::NUMBER,
      ElementKind::PHYS_UNIT,  ElementKind::STEP_SIZE,
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
  static constexpr ElementKind accepts[] = {
      ElementKind::ADDRESS_TYPE, ElementKind::BIT_MASK, ElementKind::BIT_OPERATION,
      ElementKind::BYTE_ORDER,   ElementKind::DISCRETE, ElementKind::ERROR_MASK,
      ElementKind::FORMAT,       ElementKind::LAYOUT,   ElementKind::MATRIX_DIM,
      ElementKind::PHYS_UNIT,
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
  static constexpr ElementKind accepts[] = {
      ElementKind::ADDRESS_TYPE,
      ElementKind::CONSISTENT_EXCHANGE,
      ElementKind::STRUCTURE_COMPONENT,
      ElementKind::SYMBOL_TYPE_LINK,
  };
};

}  // namespace a2l

#include "a2l2json/names_end.h"
