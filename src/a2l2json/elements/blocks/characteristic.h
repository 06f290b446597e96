// SPDX-License-Identifier: MIT
//
// The adjustable objects of a control unit and their axes.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

namespace a2l {

namespace words {

/// Shape of a characteristic; 0 is no word.
inline constexpr Word kCharacteristicTypeWords[] = {{1, "ASCII"},   {2, "CURVE"},  {3, "MAP"},
                                                    {4, "CUBOID"},  {5, "CUBE_4"}, {6, "CUBE_5"},
                                                    {7, "VAL_BLK"}, {8, "VALUE"}};
inline constexpr WordTable kCharacteristicType{kCharacteristicTypeWords, 0};

/// Kind of an axis; 0 is no word.
inline constexpr Word kAxisAttributeWords[] = {
    {1, "CURVE_AXIS"}, {2, "COM_AXIS"}, {3, "FIX_AXIS"}, {4, "RES_AXIS"}, {5, "STD_AXIS"}};
inline constexpr WordTable kAxisAttribute{kAxisAttributeWords, 0};

}  // namespace words

/// A value, curve, map or block of values in memory.
struct VoA2LElementCharacteristic final : Block<VoA2LElementCharacteristic, Kind::CHARACTERISTIC> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t CHARACTERISTIC_TYPE = 0;
  std::uint32_t ADDRESS = 0;
  std::string_view DEPOSIT;  ///< name of the record layout
  double MAX_DIFF = 0;
  std::string_view CONVERSION;
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER),
                 Choice(&Self::CHARACTERISTIC_TYPE, words::kCharacteristicType),
                 Unsigned(&Self::ADDRESS), Identifier(&Self::DEPOSIT), Real(&Self::MAX_DIFF),
                 Identifier(&Self::CONVERSION), Real(&Self::LOWER_LIMIT), Real(&Self::UPPER_LIMIT));
  static constexpr auto onBadNumber = OnBadNumber::MarkAndGoOn;
  static constexpr KindSet accepts = {
      Kind::ANNOTATION,
      Kind::AXIS_DESCR,
      Kind::BIT_MASK,
      Kind::BYTE_ORDER,
      Kind::CALIBRATION_ACCESS,
      Kind::COMPARISON_QUANTITY,
      Kind::DEPENDENT_CHARACTERISTIC,
      Kind::DISCRETE,
      Kind::DISPLAY_IDENTIFIER,
      Kind::ECU_ADDRESS_EXTENSION,
      Kind::ENCODING,
      Kind::EXTENDED_LIMITS,
      Kind::FORMAT,
      Kind::FUNCTION_LIST,
      Kind::GUARD_RAILS,
      Kind::IF_DATA,
      Kind::MAP_LIST,
      Kind::MATRIX_DIM,
      Kind::MAX_REFRESH,
      Kind::MODEL_LINK,
      Kind::NUMBER,
      Kind::PHYS_UNIT,
      Kind::READ_ONLY,
      Kind::REF_MEMORY_SEGMENT,
      Kind::STEP_SIZE,
      Kind::SYMBOL_LINK,
      Kind::VIRTUAL_CHARACTERISTIC,
  };
  static constexpr Lines lines{" CHARACTERISTIC {0} {1}", "{0} 0x{1:X} {2} {3} {4} {5} {6}"};
};

/// One axis of a characteristic. Unlike the objects, it stops at the first bad number.
struct VoA2LElementAxisDescr final : Block<VoA2LElementAxisDescr, Kind::AXIS_DESCR> {
  std::uint32_t ATTRIBUTE = 0;
  std::string_view INPUT_QUANTITY;
  std::string_view CONVERSION;
  std::uint32_t MAX_AXIS_POINTS = 0;
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr auto parameters =
      Parameters(Choice(&Self::ATTRIBUTE, words::kAxisAttribute), Identifier(&Self::INPUT_QUANTITY),
                 Identifier(&Self::CONVERSION), Unsigned(&Self::MAX_AXIS_POINTS),
                 Real(&Self::LOWER_LIMIT), Real(&Self::UPPER_LIMIT));
  static constexpr KindSet accepts = {
      Kind::ANNOTATION,      Kind::AXIS_PTS_REF, Kind::BYTE_ORDER,        Kind::CURVE_AXIS_REF,
      Kind::DEPOSIT,         Kind::FIX_AXIS_PAR, Kind::FIX_AXIS_PAR_DIST, Kind::FIX_AXIS_PAR_LIST,
      Kind::EXTENDED_LIMITS, Kind::FORMAT,       Kind::MAX_GRAD,          Kind::MONOTONY,
      Kind::PHYS_UNIT,       Kind::READ_ONLY,    Kind::STEP_SIZE,
  };
  static constexpr Lines lines{" AXIS_DESCR", "{0} {1} {2} {3:d} {4} {5}"};
};

/// An axis whose points are an object of their own.
struct VoA2LElementAxisPts final : Block<VoA2LElementAxisPts, Kind::AXIS_PTS> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t ADDRESS = 0;
  std::string_view INPUT_QUANTITY;
  std::string_view DEPOSIT;  ///< name of the record layout
  double MAX_DIFF = 0;
  std::string_view CONVERSION;
  std::uint32_t MAX_AXIS_POINTS = 0;
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr auto parameters = Parameters(
      Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER), Unsigned(&Self::ADDRESS),
      Identifier(&Self::INPUT_QUANTITY), Identifier(&Self::DEPOSIT), Real(&Self::MAX_DIFF),
      Identifier(&Self::CONVERSION), Unsigned(&Self::MAX_AXIS_POINTS), Real(&Self::LOWER_LIMIT),
      Real(&Self::UPPER_LIMIT));
  static constexpr auto onBadNumber = OnBadNumber::MarkAndGoOn;
  static constexpr KindSet accepts = {
      Kind::ANNOTATION,
      Kind::BYTE_ORDER,
      Kind::CALIBRATION_ACCESS,
      Kind::DEPOSIT,
      Kind::FORMAT,
      Kind::DISPLAY_IDENTIFIER,
      Kind::EXTENDED_LIMITS,
      Kind::GUARD_RAILS,
      Kind::ECU_ADDRESS_EXTENSION,
      Kind::FUNCTION_LIST,
      Kind::IF_DATA,
      Kind::MAX_REFRESH,
      Kind::MODEL_LINK,
      Kind::MONOTONY,
      Kind::PHYS_UNIT,
      Kind::REF_MEMORY_SEGMENT,
      Kind::READ_ONLY,
      Kind::STEP_SIZE,
      Kind::SYMBOL_LINK,
  };
  static constexpr Lines lines{" AXIS_PTS {0} {1}", "0x{0:X} {1} {2} {3} {4} {5:d} {6} {7}"};
};

/// A block of bytes without a known structure.
struct VoA2LElementBlob final : Block<VoA2LElementBlob, Kind::BLOB> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t ADDRESS = 0;
  std::uint32_t SIZE = 0;  ///< in bytes
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER), Unsigned(&Self::ADDRESS),
                 Unsigned(&Self::SIZE));
  static constexpr auto onBadNumber = OnBadNumber::MarkAndGoOn;
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {
      Kind::ADDRESS_TYPE,          Kind::ANNOTATION,
      Kind::CALIBRATION_ACCESS,    Kind::DISPLAY_IDENTIFIER,
      Kind::ECU_ADDRESS_EXTENSION, Kind::IF_DATA,
      Kind::MAX_REFRESH,           Kind::MODEL_LINK,
      Kind::SYMBOL_LINK,
  };
  static constexpr Lines lines{" BLOB {0} {1}", "0x{0:X} {1:d}"};
};

/// A characteristic that follows from others by a formula.
struct VoA2LElementDependentCharacteristic final
    : Block<VoA2LElementDependentCharacteristic, Kind::DEPENDENT_CHARACTERISTIC> {
  std::string_view FORMULA;
  List<std::string_view> CHARACTERISTIC;
  static constexpr auto parameters =
      Parameters(Text(&Self::FORMULA), Identifiers(&Self::CHARACTERISTIC));
  static constexpr Lines lines{" DEPENDENT_CHARACTERISTIC", "{0}"};
  static constexpr std::string_view item = "{0} ";
  static constexpr bool keepsChildrenSilent = true;
};

/// The same, for a characteristic without a place in memory.
struct VoA2LElementVirtualCharacteristic final
    : Block<VoA2LElementVirtualCharacteristic, Kind::VIRTUAL_CHARACTERISTIC> {
  std::string_view FORMULA;
  List<std::string_view> CHARACTERISTIC;
  static constexpr auto parameters =
      Parameters(Text(&Self::FORMULA), Identifiers(&Self::CHARACTERISTIC));
  static constexpr Lines lines{" VIRTUAL_CHARACTERISTIC", "{0}"};
  static constexpr std::string_view item = "{0}";
  static constexpr bool keepsChildrenSilent = true;
};

/// The points of an axis, listed in the file. A point that is not a number ends the list and
/// stays in it as 0.
struct VoA2LElementFixAxisParList final
    : Block<VoA2LElementFixAxisParList, Kind::FIX_AXIS_PAR_LIST> {
  List<double> FIX_AXIS_PAR_LIST;
  static constexpr auto parameters = Parameters(RealList(&Self::FIX_AXIS_PAR_LIST));
  static constexpr Lines lines{" FIX_AXIS_PAR_LIST"};
  static constexpr std::string_view item = "{0} ";
  static constexpr bool keepsChildrenSilent = true;
};

}  // namespace a2l
