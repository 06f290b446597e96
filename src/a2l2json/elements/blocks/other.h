// SPDX-License-Identifier: MIT
//
// Blocks with a topic of their own: frames, annotations, components, calibration methods,
// transformers, units, user rights and virtual measurements.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

#include "a2l2json/names_begin.h"

namespace a2l {

/// Measurements that are transferred together.
struct VoA2LElementFrame final : detail::Block<VoA2LElementFrame, ElementKind::FRAME> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t SCALING_UNIT = 0;
  std::uint32_t RATE = 0;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Unsigned<&Self::SCALING_UNIT>),
      Unsigned<&Self::RATE>,
  };
  static constexpr ElementKind accepts[] = {ElementKind::FRAME_MEASUREMENT, ElementKind::IF_DATA};
};

/// A labelled comment of several lines, in its children.
struct VoA2LElementAnnotation final
    : detail::Block<VoA2LElementAnnotation, ElementKind::ANNOTATION> {
  static constexpr ElementKind accepts[] = {
      ElementKind::ANNOTATION_LABEL,
      ElementKind::ANNOTATION_ORIGIN,
      ElementKind::ANNOTATION_TEXT,
  };
};

/// The component that a function stands for.
struct VoA2LElementArComponent final
    : detail::Block<VoA2LElementArComponent, ElementKind::AR_COMPONENT> {
  std::string_view COMPONENT_TYPE;
  static constexpr Parameter parameters[] = {NextLine(Text<&Self::COMPONENT_TYPE>)};
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr ElementKind accepts[] = {ElementKind::AR_PROTOTYPE_OF};
};

struct VoA2LElementCalibrationMethod final
    : detail::Block<VoA2LElementCalibrationMethod, ElementKind::CALIBRATION_METHOD> {
  std::string_view METHOD;
  std::uint32_t VERSION = 0;
  /// VERSION, for files where that is a macro; see names_begin.h.
  [[nodiscard]] auto VERSION_() const { return VERSION; }
  static constexpr Parameter parameters[] = {
      NextLine(Text<&Self::METHOD>),
      Unsigned<&Self::VERSION>,
  };
  static constexpr ElementKind accepts[] = {ElementKind::CALIBRATION_HANDLE};
};

/// Numbers that a calibration method goes by. A CALIBRATION_HANDLE_TEXT behind the numbers on
/// their line becomes a child, as it does on a line of its own. A handle that is not a number
/// ends the list and stays in it as 0.
struct VoA2LElementCalibrationHandle final
    : detail::Block<VoA2LElementCalibrationHandle, ElementKind::CALIBRATION_HANDLE> {
  List<std::int32_t> HANDLE;
  static constexpr Parameter parameters[] = {
      EndedBy(ElementKind::CALIBRATION_HANDLE_TEXT,
              WithoutBlanks(KeepingWrong(InHex(SignedList<&Self::HANDLE>))))};
  static constexpr ElementKind accepts[] = {ElementKind::CALIBRATION_HANDLE_TEXT};

 protected:
  VoA2LElement* MakeChildInList() override;
};

/// A program that computes values. What follows the executables in a file is checked (the
/// timeout must be a number) but not kept: TIMEOUT, TRIGGER and INVERSE_TRANSFORMER always have
/// their defaults. The texts are quoted when they are read, but not when they are written.
struct VoA2LElementTransformer final
    : detail::Block<VoA2LElementTransformer, ElementKind::TRANSFORMER> {
  std::string_view NAME;
  std::string_view VERSION;
  /// VERSION, for files where that is a macro; see names_begin.h.
  [[nodiscard]] auto VERSION_() const { return VERSION; }
  std::string_view EXECUTABLE32;
  std::string_view EXECUTABLE64;
  std::uint32_t TIMEOUT = 0;
  TransformerTrigger TRIGGER{};
  std::string_view INVERSE_TRANSFORMER;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      NextLine(UnquotedText<&Self::VERSION>),
      UnquotedText<&Self::EXECUTABLE32>,
      UnquotedText<&Self::EXECUTABLE64>,
      Dropped(Unsigned<&Self::TIMEOUT>),
      Dropped(Word<&Self::TRIGGER>),
      Dropped(Identifier<&Self::INVERSE_TRANSFORMER>),
  };
  static constexpr std::uint32_t revision = kRevision171;
  static constexpr ElementKind accepts[] = {
      ElementKind::TRANSFORMER_IN_OBJECTS,
      ElementKind::TRANSFORMER_OUT_OBJECTS,
  };
};

struct VoA2LElementUnit final : detail::Block<VoA2LElementUnit, ElementKind::UNIT> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::string_view DISPLAY;
  UnitType UNIT_TYPE{};
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Text<&Self::DISPLAY>),
      Word<&Self::UNIT_TYPE>,
  };
  static constexpr ElementKind accepts[] = {
      ElementKind::REF_UNIT,
      ElementKind::SI_EXPONENTS,
      ElementKind::UNIT_CONVERSION,
  };
};

/// What one level of users may do with groups.
struct VoA2LElementUserRights final
    : detail::Block<VoA2LElementUserRights, ElementKind::USER_RIGHTS> {
  std::string_view USER_LEVEL_ID;
  static constexpr Parameter parameters[] = {NextLine(Identifier<&Self::USER_LEVEL_ID>)};
  static constexpr ElementKind accepts[] = {ElementKind::READ_ONLY, ElementKind::REF_GROUP};
};

/// The measurements that a virtual one is computed from.
struct VoA2LElementVirtual final : detail::Block<VoA2LElementVirtual, ElementKind::VIRTUAL> {
  List<std::string_view> VIRTUAL;
  static constexpr Parameter parameters[] = {WithoutBlanks(Identifiers<&Self::VIRTUAL>)};
};

}  // namespace a2l

#include "a2l2json/names_end.h"
