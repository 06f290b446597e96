// SPDX-License-Identifier: MIT
//
// Objects made from type definitions, and the type definitions.
#pragma once

#include <cstdint>

#include "a2l2json/elements/blocks/characteristic.h"
#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

namespace a2l {

/// An object of a type that is defined elsewhere in the module.
struct VoA2LElementInstance final : Block<VoA2LElementInstance, Kind::INSTANCE> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::string_view TYPEDEF_NAME;
  std::uint32_t ADDRESS = 0;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER),
                 Identifier(&Self::TYPEDEF_NAME), Unsigned(&Self::ADDRESS));
  static constexpr auto onBadNumber = OnBadNumber::MarkAndGoOn;
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {
      Kind::ADDRESS_TYPE, Kind::ANNOTATION,  Kind::CALIBRATION_ACCESS,
      Kind::IF_DATA,      Kind::LAYOUT,      Kind::DISPLAY_IDENTIFIER,
      Kind::MATRIX_DIM,   Kind::MAX_REFRESH, Kind::ECU_ADDRESS_EXTENSION,
      Kind::MODEL_LINK,   Kind::OVERWRITE,   Kind::READ_WRITE,
      Kind::SYMBOL_LINK,
  };
  static constexpr Lines lines{" INSTANCE {0} {1}", "{0} 0x{1:X}"};
};

/// What an instance changes of its type, or of one axis of it.
struct VoA2LElementOverwrite final : Block<VoA2LElementOverwrite, Kind::OVERWRITE> {
  std::string_view NAME;
  std::uint32_t AXIS_NUMBER = 0;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Unsigned(&Self::AXIS_NUMBER));
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {Kind::CONVERSION,     Kind::EXTENDED_LIMITS, Kind::FORMAT,
                                      Kind::INPUT_QUANTITY, Kind::LIMITS,          Kind::MONOTONY,
                                      Kind::PHYS_UNIT};
  static constexpr Lines lines{" OVERWRITE {0} {1:d}"};
};

/// A member of a structure type.
struct VoA2LElementStructureComponent final
    : Block<VoA2LElementStructureComponent, Kind::STRUCTURE_COMPONENT> {
  std::string_view NAME;
  std::string_view TYPEDEF_NAME;
  std::uint32_t ADDRESS_OFFSET = 0;  ///< in bytes, from the start of the structure
  static constexpr auto parameters = Parameters(
      Identifier(&Self::NAME), Identifier(&Self::TYPEDEF_NAME), Unsigned(&Self::ADDRESS_OFFSET));
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {Kind::ADDRESS_TYPE, Kind::LAYOUT, Kind::MATRIX_DIM,
                                      Kind::SYMBOL_TYPE_LINK};
  static constexpr Lines lines{" STRUCTURE_COMPONENT {0}", "{0} {1:d}"};
};

struct VoA2LElementTypedefAxis final : Block<VoA2LElementTypedefAxis, Kind::TYPEDEF_AXIS> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::string_view INPUT_QUANTITY;
  std::string_view RECORD_LAYOUT;
  double MAX_DIFF = 0;
  std::string_view CONVERSION;
  std::uint32_t MAX_AXIS_POINTS = 0;
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr auto parameters = Parameters(
      Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER), Identifier(&Self::INPUT_QUANTITY),
      Identifier(&Self::RECORD_LAYOUT), Real(&Self::MAX_DIFF), Identifier(&Self::CONVERSION),
      Unsigned(&Self::MAX_AXIS_POINTS), Real(&Self::LOWER_LIMIT), Real(&Self::UPPER_LIMIT));
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {Kind::BYTE_ORDER, Kind::DEPOSIT,  Kind::EXTENDED_LIMITS,
                                      Kind::FORMAT,     Kind::MONOTONY, Kind::PHYS_UNIT,
                                      Kind::STEP_SIZE};
  static constexpr Lines lines{" TYPEDEF_AXIS {0} {1}", "{0} {1} {2} {3} {4:d} {5} {6}"};
};

struct VoA2LElementTypedefBlob final : Block<VoA2LElementTypedefBlob, Kind::TYPEDEF_BLOB> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t SIZE = 0;  ///< in bytes
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER), Unsigned(&Self::SIZE));
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {Kind::ADDRESS_TYPE};
  static constexpr Lines lines{" TYPEDEF_BLOB {0} {1}", "{0:d}"};
};

struct VoA2LElementTypedefCharacteristic final
    : Block<VoA2LElementTypedefCharacteristic, Kind::TYPEDEF_CHARACTERISTIC> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t CHARACTERISTIC_TYPE = 0;
  std::string_view RECORD_LAYOUT;
  double MAX_DIFF = 0;
  std::string_view CONVERSION;
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER),
                 Choice(&Self::CHARACTERISTIC_TYPE, words::kCharacteristicType),
                 Identifier(&Self::RECORD_LAYOUT), Real(&Self::MAX_DIFF),
                 Identifier(&Self::CONVERSION), Real(&Self::LOWER_LIMIT), Real(&Self::UPPER_LIMIT));
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {Kind::AXIS_DESCR, Kind::BIT_MASK,   Kind::BYTE_ORDER,
                                      Kind::DISCRETE,   Kind::ENCODING,   Kind::EXTENDED_LIMITS,
                                      Kind::FORMAT,     Kind::MATRIX_DIM, Kind::NUMBER,
                                      Kind::PHYS_UNIT,  Kind::STEP_SIZE};
  static constexpr Lines lines{" TYPEDEF_CHARACTERISTIC {0} {1}", "{0} {1} {2} {3} {4} {5}"};
};

struct VoA2LElementTypedefMeasurement final
    : Block<VoA2LElementTypedefMeasurement, Kind::TYPEDEF_MEASUREMENT> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  DataType DATATYPE = 0;
  std::string_view CONVERSION;
  std::uint32_t RESOLUTION = 0;  ///< smallest change of the value, in bits
  double ACCURACY = 0;           ///< in percent
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER),
                 Choice(&Self::DATATYPE, words::kDataType), Identifier(&Self::CONVERSION),
                 Unsigned(&Self::RESOLUTION), Real(&Self::ACCURACY), Real(&Self::LOWER_LIMIT),
                 Real(&Self::UPPER_LIMIT));
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {
      Kind::ADDRESS_TYPE, Kind::BIT_MASK, Kind::BIT_OPERATION, Kind::BYTE_ORDER, Kind::DISCRETE,
      Kind::ERROR_MASK,   Kind::FORMAT,   Kind::LAYOUT,        Kind::MATRIX_DIM, Kind::PHYS_UNIT};
  static constexpr Lines lines{" TYPEDEF_MEASUREMENT {0} {1}", "{0} {1} {2:d} {3} {4} {5}"};
};

struct VoA2LElementTypedefStructure final
    : Block<VoA2LElementTypedefStructure, Kind::TYPEDEF_STRUCTURE> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t SIZE = 0;  ///< in bytes
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER), Unsigned(&Self::SIZE));
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {Kind::ADDRESS_TYPE, Kind::CONSISTENT_EXCHANGE,
                                      Kind::STRUCTURE_COMPONENT, Kind::SYMBOL_TYPE_LINK};
  static constexpr Lines lines{" TYPEDEF_STRUCTURE {0} {1}", "{0:d}"};
};

}  // namespace a2l
