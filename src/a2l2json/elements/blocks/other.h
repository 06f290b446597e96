// SPDX-License-Identifier: MIT
//
// Blocks with a topic of their own: frames, annotations, components, calibration methods,
// transformers, units, user rights and virtual measurements.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"

namespace a2l {

namespace words {

/// What makes a transformer run; 0 is no word.
inline constexpr Word kTransformerTriggerWords[] = {{1, "ON_CHANGE"}, {2, "ON_USER_REQUEST"}};
inline constexpr WordTable kTransformerTrigger{kTransformerTriggerWords, 0};

/// Kind of a unit; 0 is no word.
inline constexpr Word kUnitTypeWords[] = {{1, "DERIVED"}, {2, "EXTENDED_SI"}};
inline constexpr WordTable kUnitType{kUnitTypeWords, 0};

}  // namespace words

/// Measurements that are transferred together.
struct VoA2LElementFrame final : Block<VoA2LElementFrame, Kind::FRAME> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t SCALING_UNIT = 0;
  std::uint32_t RATE = 0;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER),
                 Unsigned(&Self::SCALING_UNIT), Unsigned(&Self::RATE));
  static constexpr KindSet accepts = {Kind::FRAME_MEASUREMENT, Kind::IF_DATA};
  static constexpr Lines lines{" FRAME {0} {1}", "{0:d} {1:d}"};
};

/// A labelled comment of several lines, in its children.
struct VoA2LElementAnnotation final : Block<VoA2LElementAnnotation, Kind::ANNOTATION> {
  static constexpr KindSet accepts = {Kind::ANNOTATION_LABEL, Kind::ANNOTATION_ORIGIN,
                                      Kind::ANNOTATION_TEXT};
  static constexpr Lines lines{" ANNOTATION"};
};

/// The component that a function stands for.
struct VoA2LElementArComponent final : Block<VoA2LElementArComponent, Kind::AR_COMPONENT> {
  std::string_view COMPONENT_TYPE;
  static constexpr auto parameters = Parameters(Text(&Self::COMPONENT_TYPE));
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {Kind::AR_PROTOTYPE_OF};
  static constexpr Lines lines{" AR_COMPONENT", "{0}"};
};

struct VoA2LElementCalibrationMethod final
    : Block<VoA2LElementCalibrationMethod, Kind::CALIBRATION_METHOD> {
  std::string_view METHOD;
  std::uint32_t VERSION = 0;
  static constexpr auto parameters = Parameters(Text(&Self::METHOD), Unsigned(&Self::VERSION));
  static constexpr KindSet accepts = {Kind::CALIBRATION_HANDLE};
  static constexpr Lines lines{" CALIBRATION_METHOD", "{0} {1:d}"};
};

/// Numbers that a calibration method goes by. A CALIBRATION_HANDLE_TEXT behind the numbers on
/// their line becomes a child, as it does on a line of its own. A handle that is not a number
/// ends the list and stays in it as 0.
struct VoA2LElementCalibrationHandle final
    : Block<VoA2LElementCalibrationHandle, Kind::CALIBRATION_HANDLE> {
  List<std::int32_t> HANDLE;
  static constexpr auto parameters =
      Parameters(NumberList<Self, std::int32_t, ReadSigned, BadItem::KeepAsZero, OldItems::Drop>{
          &Self::HANDLE});
  static constexpr ElementKind childInList = Kind::CALIBRATION_HANDLE_TEXT;
  static constexpr KindSet accepts = {Kind::CALIBRATION_HANDLE_TEXT};
  static constexpr Lines lines{" CALIBRATION_HANDLE"};
  static constexpr std::string_view item = "0x{0:X}";

  bool ParseParameters(std::string_view& text) override;
};

/// A program that computes values. What follows the executables in a file is checked (the
/// timeout must be a number) but not kept: TIMEOUT, TRIGGER and INVERSE_TRANSFORMER always have
/// their defaults. The texts are quoted when they are read, but not when they are written.
struct VoA2LElementTransformer final : Block<VoA2LElementTransformer, Kind::TRANSFORMER> {
  std::string_view NAME;
  std::string_view VERSION;
  std::string_view EXECUTABLE32;
  std::string_view EXECUTABLE64;
  std::uint32_t TIMEOUT = 0;
  std::uint32_t TRIGGER = 0;
  std::string_view INVERSE_TRANSFORMER;
  static constexpr auto parameters = Parameters(
      Identifier(&Self::NAME), UnquotedText(&Self::VERSION), UnquotedText(&Self::EXECUTABLE32),
      UnquotedText(&Self::EXECUTABLE64), Dropped(Unsigned(&Self::TIMEOUT)),
      Dropped(Choice(&Self::TRIGGER, words::kTransformerTrigger)),
      Dropped(Identifier(&Self::INVERSE_TRANSFORMER)));
  static constexpr auto revision = kRevision171;
  static constexpr KindSet accepts = {Kind::TRANSFORMER_IN_OBJECTS, Kind::TRANSFORMER_OUT_OBJECTS};
  static constexpr Lines lines{" TRANSFORMER {0}", "{0} {1} {2} {3:d} {4} {5}"};
};

struct VoA2LElementUnit final : Block<VoA2LElementUnit, Kind::UNIT> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::string_view DISPLAY;
  std::uint32_t UNIT_TYPE = 0;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER), Text(&Self::DISPLAY),
                 Choice(&Self::UNIT_TYPE, words::kUnitType));
  static constexpr KindSet accepts = {Kind::REF_UNIT, Kind::SI_EXPONENTS, Kind::UNIT_CONVERSION};
  static constexpr Lines lines{" UNIT {0} {1}", "{0} {1}"};
};

/// What one level of users may do with groups.
struct VoA2LElementUserRights final : Block<VoA2LElementUserRights, Kind::USER_RIGHTS> {
  std::string_view USER_LEVEL_ID;
  static constexpr auto parameters = Parameters(Identifier(&Self::USER_LEVEL_ID));
  static constexpr KindSet accepts = {Kind::REF_GROUP, Kind::READ_ONLY};
  static constexpr Lines lines{" USER_RIGHTS", "{0}"};
};

/// The measurements that a virtual one is computed from.
struct VoA2LElementVirtual final : Block<VoA2LElementVirtual, Kind::VIRTUAL> {
  List<std::string_view> VIRTUAL;
  static constexpr auto parameters = Parameters(Identifiers(&Self::VIRTUAL));
  static constexpr Lines lines{" VIRTUAL"};
  static constexpr std::string_view item = "{0}";
  static constexpr bool keepsChildrenSilent = true;
};

}  // namespace a2l
