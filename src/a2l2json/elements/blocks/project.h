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
  static constexpr ElementKind accepts[] = {ElementKind::HEADER, ElementKind::MODULE};
};

struct VoA2LElementHeader final : detail::Block<VoA2LElementHeader, ElementKind::HEADER> {
  std::string_view COMMENT;
  static constexpr Parameter parameters[] = {Text<&Self::COMMENT>};
  static constexpr ElementKind accepts[] = {ElementKind::PROJECT_NO, ElementKind::VERSION};
};

/// The described objects of one control unit.
struct VoA2LElementModule final : detail::Block<VoA2LElementModule, ElementKind::MODULE> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  static constexpr Parameter parameters[] = {Identifier<&Self::NAME>, Text<&Self::LONG_IDENTIFIER>};
  static constexpr ElementKind accepts[] = {
      ElementKind::A2ML,
      ElementKind::AXIS_PTS,
      ElementKind::BLOB,
      ElementKind::CHARACTERISTIC,
      ElementKind::COMPU_METHOD,
      ElementKind::COMPU_TAB,
      ElementKind::COMPU_VTAB,
      ElementKind::COMPU_VTAB_RANGE,
      ElementKind::FRAME,
      ElementKind::FUNCTION,
      ElementKind::GROUP,
      ElementKind::IF_DATA,
      ElementKind::INSTANCE,
      ElementKind::MEASUREMENT,
      ElementKind::MOD_COMMON,
      ElementKind::MOD_PAR,
      ElementKind::RECORD_LAYOUT,
      ElementKind::TRANSFORMER,
      ElementKind::TYPEDEF_AXIS,
      ElementKind::TYPEDEF_BLOB,
      ElementKind::TYPEDEF_CHARACTERISTIC,
      ElementKind::TYPEDEF_MEASUREMENT,
      ElementKind::TYPEDEF_STRUCTURE,
      ElementKind::UNIT,
      ElementKind::USER_RIGHTS,
      ElementKind::VARIANT_CODING,
  };
};

/// Data of the control unit: who makes it, its processor, its memory.
struct VoA2LElementModPar final : detail::Block<VoA2LElementModPar, ElementKind::MOD_PAR> {
  std::string_view COMMENT;
  static constexpr Parameter parameters[] = {Text<&Self::COMMENT>};
  static constexpr ElementKind accepts[] = {
      ElementKind::ADDR_EPK,
      ElementKind::CALIBRATION_METHOD,
      ElementKind::CPU_TYPE,
      ElementKind::CUSTOMER,
      ElementKind::CUSTOMER_NO,
      ElementKind::ECU,
      ElementKind::ECU_CALIBRATION_OFFSET,
      ElementKind::EPK,
      ElementKind::MEMORY_LAYOUT,
      ElementKind::MEMORY_SEGMENT,
      ElementKind::NO_OF_INTERFACES,
      ElementKind::PHONE_NO,
      ElementKind::SUPPLIER,
      ElementKind::SYSTEM_CONSTANT,
      ElementKind::USER,
      ElementKind::VERSION,
  };
};

/// Defaults for all objects of a module.
struct VoA2LElementModCommon final : detail::Block<VoA2LElementModCommon, ElementKind::MOD_COMMON> {
  std::string_view COMMENT;
  static constexpr Parameter parameters[] = {Text<&Self::COMMENT>};
  static constexpr ElementKind accepts[] = {
      ElementKind::ALIGNMENT_BYTE,
      ElementKind::ALIGNMENT_FLOAT16_IEEE,
      ElementKind::ALIGNMENT_FLOAT32_IEEE,
      ElementKind::ALIGNMENT_FLOAT64_IEEE,
      ElementKind::ALIGNMENT_INT64,
      ElementKind::ALIGNMENT_LONG,
      ElementKind::ALIGNMENT_WORD,
      ElementKind::BYTE_ORDER,
      ElementKind::DATA_SIZE,
      ElementKind::DEPOSIT,
      ElementKind::S_REC_LAYOUT,
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
  static constexpr ElementKind accepts[] = {ElementKind::IF_DATA};
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
  static constexpr ElementKind accepts[] = {ElementKind::IF_DATA};
};

}  // namespace a2l

#include "a2l2json/names_end.h"
