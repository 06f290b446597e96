// SPDX-License-Identifier: MIT
//
// The upper levels of a file: the project, its header, its modules, and what a module says about
// the control unit as a whole.
#pragma once

#include <array>
#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

#include "a2l2json/names_begin.h"

namespace a2l {

/// Offsets of the mirrored segments.
using MirrorOffsets = std::array<std::int32_t, 5>;

struct VoA2LElementProject final : detail::Block<VoA2LElementProject, ElementKind::PROJECT> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  static constexpr Parameter parameters[] = {Identifier<&Self::NAME>, Text<&Self::LONG_IDENTIFIER>};
  static constexpr Kind accepts[] = {Kind::HEADER, Kind::MODULE};
};

struct VoA2LElementHeader final : detail::Block<VoA2LElementHeader, ElementKind::HEADER> {
  std::string_view COMMENT;
  static constexpr Parameter parameters[] = {Text<&Self::COMMENT>};
  static constexpr Kind accepts[] = {Kind::PROJECT_NO, Kind::VERSION};
};

/// The described objects of one control unit.
struct VoA2LElementModule final : detail::Block<VoA2LElementModule, ElementKind::MODULE> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  static constexpr Parameter parameters[] = {Identifier<&Self::NAME>, Text<&Self::LONG_IDENTIFIER>};
  static constexpr Kind accepts[] = {
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
};

/// Data of the control unit: who makes it, its processor, its memory.
struct VoA2LElementModPar final : detail::Block<VoA2LElementModPar, ElementKind::MOD_PAR> {
  std::string_view COMMENT;
  static constexpr Parameter parameters[] = {Text<&Self::COMMENT>};
  static constexpr Kind accepts[] = {
      Kind::ADDR_EPK,
      Kind::CALIBRATION_METHOD,
      Kind::CPU_TYPE,
      Kind::CUSTOMER,
      Kind::CUSTOMER_NO,
      Kind::ECU,
      Kind::ECU_CALIBRATION_OFFSET,
      Kind::EPK,
      Kind::MEMORY_LAYOUT,
      Kind::MEMORY_SEGMENT,
      Kind::NO_OF_INTERFACES,
      Kind::PHONE_NO,
      Kind::SUPPLIER,
      Kind::SYSTEM_CONSTANT,
      Kind::USER,
      Kind::VERSION,
  };
};

/// Defaults for all objects of a module.
struct VoA2LElementModCommon final : detail::Block<VoA2LElementModCommon, ElementKind::MOD_COMMON> {
  std::string_view COMMENT;
  static constexpr Parameter parameters[] = {Text<&Self::COMMENT>};
  static constexpr Kind accepts[] = {
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
};

/// A part of memory, in the older form; belongs into MOD_PAR.
struct VoA2LElementMemoryLayout final
    : detail::Block<VoA2LElementMemoryLayout, ElementKind::MEMORY_LAYOUT> {
  LayoutProgramType PRG_TYPE{};
  std::uint32_t ADDRESS = 0;
  std::uint32_t SIZE = 0;
  MirrorOffsets OFFSET{};
  static constexpr Parameter parameters[] = {
      NextLine(Word<&Self::PRG_TYPE>),
      Hex<&Self::ADDRESS>,
      Hex<&Self::SIZE>,
      SignedNumbers<&Self::OFFSET>,
  };
  static constexpr Kind accepts[] = {Kind::IF_DATA};
};

/// A part of memory; belongs into MOD_PAR.
struct VoA2LElementMemorySegment final
    : detail::Block<VoA2LElementMemorySegment, ElementKind::MEMORY_SEGMENT> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  SegmentProgramType PRG_TYPE{};
  MemoryType MEMORY_TYPE{};
  MemoryAttribute ATTRIBUTE{};
  std::uint32_t ADDRESS = 0;
  std::uint32_t SIZE = 0;
  MirrorOffsets OFFSET{};
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Word<&Self::PRG_TYPE>),
      Word<&Self::MEMORY_TYPE>,
      Word<&Self::ATTRIBUTE>,
      Hex<&Self::ADDRESS>,
      Hex<&Self::SIZE>,
      NextLine(SignedNumbers<&Self::OFFSET>),
  };
  static constexpr Kind accepts[] = {Kind::IF_DATA};
};

}  // namespace a2l

#include "a2l2json/names_end.h"
