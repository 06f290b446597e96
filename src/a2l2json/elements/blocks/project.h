// SPDX-License-Identifier: MIT
//
// The upper levels of a file: the project, its header, its modules, and what a module says about
// the control unit as a whole.
#pragma once

#include <array>
#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

namespace a2l {

namespace words {

/// Use of a part of memory; 0 is no word.
inline constexpr Word kLayoutProgramTypeWords[] = {
    {1, "PRG_CODE"}, {2, "PRG_DATA"}, {3, "PRG_RESERVED"}};
inline constexpr WordTable kLayoutProgramType{kLayoutProgramTypeWords, 0};

/// Use of a memory segment. OFFLINE_DATA is never read: DATA comes first and is part of it.
inline constexpr Word kSegmentProgramTypeWords[] = {
    {1, "CALIBRATION_VARIABLES"}, {2, "CODE"},     {3, "DATA"},  {4, "EXCLUDE_FROM_FLASH"},
    {5, "OFFLINE_DATA"},          {6, "RESERVED"}, {7, "SERAM"}, {8, "VARIABLES"}};
inline constexpr WordTable kSegmentProgramType{kSegmentProgramTypeWords, 0};

inline constexpr Word kMemoryTypeWords[] = {{1, "EEPROM"}, {2, "EPROM"}, {3, "FLASH"},
                                            {4, "RAM"},    {5, "ROM"},   {6, "REGISTER"}};
inline constexpr WordTable kMemoryType{kMemoryTypeWords, 0};

inline constexpr Word kMemoryAttributeWords[] = {{1, "INTERN"}, {2, "EXTERN"}};
inline constexpr WordTable kMemoryAttribute{kMemoryAttributeWords, 0};

}  // namespace words

/// Offsets of the mirrored segments.
using MirrorOffsets = std::array<std::int32_t, 5>;

struct VoA2LElementProject final : Block<VoA2LElementProject, Kind::PROJECT> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER));
  static constexpr KindSet accepts = {Kind::HEADER, Kind::MODULE};
  static constexpr Lines lines{" PROJECT {0} {1}"};
};

struct VoA2LElementHeader final : Block<VoA2LElementHeader, Kind::HEADER> {
  std::string_view COMMENT;
  static constexpr auto parameters = Parameters(Text(&Self::COMMENT));
  static constexpr KindSet accepts = {Kind::PROJECT_NO, Kind::VERSION};
  static constexpr Lines lines{" HEADER {0}"};
};

/// The described objects of one control unit.
struct VoA2LElementModule final : Block<VoA2LElementModule, Kind::MODULE> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER));
  static constexpr KindSet accepts = {
      Kind::A2ML,
      Kind::AXIS_PTS,
      Kind::BLOB,
      Kind::CHARACTERISTIC,
      Kind::COMPU_METHOD,
      Kind::COMPU_TAB,
      Kind::COMPU_VTAB,
      Kind::COMPU_VTAB_RANGE,
      Kind::FRAME,
      Kind::FUNCTION,
      Kind::GROUP,
      Kind::IF_DATA,
      Kind::INSTANCE,
      Kind::MEASUREMENT,
      Kind::MOD_COMMON,
      Kind::MOD_PAR,
      Kind::RECORD_LAYOUT,
      Kind::TRANSFORMER,
      Kind::TYPEDEF_AXIS,
      Kind::TYPEDEF_BLOB,
      Kind::TYPEDEF_CHARACTERISTIC,
      Kind::TYPEDEF_MEASUREMENT,
      Kind::TYPEDEF_STRUCTURE,
      Kind::UNIT,
      Kind::USER_RIGHTS,
      Kind::VARIANT_CODING,
  };
  static constexpr Lines lines{" MODULE {0} {1}"};
};

/// Data of the control unit: who makes it, its processor, its memory.
struct VoA2LElementModPar final : Block<VoA2LElementModPar, Kind::MOD_PAR> {
  std::string_view COMMENT;
  static constexpr auto parameters = Parameters(Text(&Self::COMMENT));
  static constexpr KindSet accepts = {
      Kind::ADDR_EPK,
      Kind::CALIBRATION_METHOD,
      Kind::CPU_TYPE,
      Kind::CUSTOMER,
      Kind::CUSTOMER_NO,
      Kind::ECU,
      Kind::EPK,
      Kind::ECU_CALIBRATION_OFFSET,
      Kind::MEMORY_LAYOUT,
      Kind::MEMORY_SEGMENT,
      Kind::NO_OF_INTERFACES,
      Kind::PHONE_NO,
      Kind::SUPPLIER,
      Kind::SYSTEM_CONSTANT,
      Kind::USER,
      Kind::VERSION,
  };
  static constexpr Lines lines{" MOD_PAR {0}"};
};

/// Defaults for all objects of a module.
struct VoA2LElementModCommon final : Block<VoA2LElementModCommon, Kind::MOD_COMMON> {
  std::string_view COMMENT;
  static constexpr auto parameters = Parameters(Text(&Self::COMMENT));
  static constexpr KindSet accepts = {
      Kind::ALIGNMENT_BYTE,
      Kind::ALIGNMENT_FLOAT16_IEEE,
      Kind::ALIGNMENT_FLOAT32_IEEE,
      Kind::ALIGNMENT_FLOAT64_IEEE,
      Kind::ALIGNMENT_INT64,
      Kind::ALIGNMENT_LONG,
      Kind::ALIGNMENT_WORD,
      Kind::BYTE_ORDER,
      Kind::DATA_SIZE,
      Kind::DEPOSIT,
      Kind::S_REC_LAYOUT,
  };
  static constexpr Lines lines{" MOD_COMMON {0}"};
};

/// A part of memory, in the older form; belongs into MOD_PAR.
struct VoA2LElementMemoryLayout final : Block<VoA2LElementMemoryLayout, Kind::MEMORY_LAYOUT> {
  std::uint32_t PRG_TYPE = 0;
  std::uint32_t ADDRESS = 0;
  std::uint32_t SIZE = 0;
  MirrorOffsets OFFSET{};
  static constexpr auto parameters =
      Parameters(Choice(&Self::PRG_TYPE, words::kLayoutProgramType), Unsigned(&Self::ADDRESS),
                 Unsigned(&Self::SIZE), SignedNumbers(&Self::OFFSET));
  static constexpr KindSet accepts = {Kind::IF_DATA};
  static constexpr Lines lines{" MEMORY_LAYOUT",
                               "{0} 0x{1:X} 0x{2:X} {3:d} {4:d} {5:d} {6:d} {7:d}"};
};

/// A part of memory; belongs into MOD_PAR.
struct VoA2LElementMemorySegment final : Block<VoA2LElementMemorySegment, Kind::MEMORY_SEGMENT> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t PRG_TYPE = 0;
  std::uint32_t MEMORY_TYPE = 0;
  std::uint32_t ATTRIBUTE = 0;
  std::uint32_t ADDRESS = 0;
  std::uint32_t SIZE = 0;
  MirrorOffsets OFFSET{};
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER),
                 Choice(&Self::PRG_TYPE, words::kSegmentProgramType),
                 Choice(&Self::MEMORY_TYPE, words::kMemoryType),
                 Choice(&Self::ATTRIBUTE, words::kMemoryAttribute), Unsigned(&Self::ADDRESS),
                 Unsigned(&Self::SIZE), SignedNumbers(&Self::OFFSET));
  static constexpr KindSet accepts = {Kind::IF_DATA};
  static constexpr Lines lines{" MEMORY_SEGMENT {0} {1}", "{0} {1} {2} 0x{3:X} 0x{4:X}",
                               "{0:d} {1:d} {2:d} {3:d} {4:d}"};
};

}  // namespace a2l
