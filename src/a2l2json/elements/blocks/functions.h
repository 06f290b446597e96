// SPDX-License-Identifier: MIT
//
// Functions and groups, and the blocks that are nothing but a list of names or texts.
#pragma once

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// What a part of the software defines, refers to, reads and writes.
struct VoA2LElementFunction final : Block<VoA2LElementFunction, Kind::FUNCTION> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER));
  static constexpr KindSet accepts = {
      Kind::ANNOTATION,         Kind::AR_COMPONENT, Kind::DEF_CHARACTERISTIC,
      Kind::FUNCTION_VERSION,   Kind::IF_DATA,      Kind::IN_MEASUREMENT,
      Kind::LOC_MEASUREMENT,    Kind::SUB_FUNCTION, Kind::OUT_MEASUREMENT,
      Kind::REF_CHARACTERISTIC,
  };
  static constexpr Lines lines{" FUNCTION {0} {1}"};
};

/// Objects that are shown together. REF_GROUP has no place here, only in USER_RIGHTS.
struct VoA2LElementGroup final : Block<VoA2LElementGroup, Kind::GROUP> {
  std::string_view GROUP_NAME;
  std::string_view GROUP_LONG_IDENTIFIER;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::GROUP_NAME), Text(&Self::GROUP_LONG_IDENTIFIER));
  static constexpr KindSet accepts = {
      Kind::ANNOTATION,      Kind::FUNCTION_LIST, Kind::IF_DATA,  Kind::REF_CHARACTERISTIC,
      Kind::REF_MEASUREMENT, Kind::ROOT,          Kind::SUB_GROUP};
  static constexpr Lines lines{" GROUP {0} {1}"};
};

/// A block whose whole content is a list of names; each stands on a line of its own, with a
/// blank behind it.
template <class Class, ElementKind kKind>
struct NameList : Block<Class, kKind> {
  List<std::string_view> IDENTIFIER_LIST;
  static constexpr auto parameters = Parameters(Identifiers(&NameList::IDENTIFIER_LIST));
  static constexpr std::string_view item = "{0} ";
  static constexpr bool keepsChildrenSilent = true;
};

/// Characteristics that a function defines.
struct VoA2LElementDefCharacteristic final
    : NameList<VoA2LElementDefCharacteristic, Kind::DEF_CHARACTERISTIC> {
  static constexpr Lines lines{" DEF_CHARACTERISTIC"};
};

/// Functions that an object belongs to.
struct VoA2LElementFunctionList final : NameList<VoA2LElementFunctionList, Kind::FUNCTION_LIST> {
  static constexpr Lines lines{" FUNCTION_LIST"};
};

/// Measurements that a function reads.
struct VoA2LElementInMeasurement final : NameList<VoA2LElementInMeasurement, Kind::IN_MEASUREMENT> {
  static constexpr Lines lines{" IN_MEASUREMENT"};
};

/// Measurements that a function keeps locally.
struct VoA2LElementLocMeasurement final
    : NameList<VoA2LElementLocMeasurement, Kind::LOC_MEASUREMENT> {
  static constexpr Lines lines{" LOC_MEASUREMENT"};
};

/// Maps that a cuboid is made of.
struct VoA2LElementMapList final : NameList<VoA2LElementMapList, Kind::MAP_LIST> {
  static constexpr Lines lines{" MAP_LIST"};
};

/// Measurements that a function writes.
struct VoA2LElementOutMeasurement final
    : NameList<VoA2LElementOutMeasurement, Kind::OUT_MEASUREMENT> {
  static constexpr Lines lines{" OUT_MEASUREMENT"};
};

/// Characteristics that a function or a group refers to.
struct VoA2LElementRefCharacteristic final
    : NameList<VoA2LElementRefCharacteristic, Kind::REF_CHARACTERISTIC> {
  static constexpr Lines lines{" REF_CHARACTERISTIC"};
};

/// Groups that user rights apply to.
struct VoA2LElementRefGroup final : NameList<VoA2LElementRefGroup, Kind::REF_GROUP> {
  static constexpr Lines lines{" REF_GROUP"};
};

/// Measurements of a group.
struct VoA2LElementRefMeasurement final
    : NameList<VoA2LElementRefMeasurement, Kind::REF_MEASUREMENT> {
  static constexpr Lines lines{" REF_MEASUREMENT"};
};

/// Functions inside a function.
struct VoA2LElementSubFunction final : NameList<VoA2LElementSubFunction, Kind::SUB_FUNCTION> {
  static constexpr Lines lines{" SUB_FUNCTION"};
};

/// Groups inside a group.
struct VoA2LElementSubGroup final : NameList<VoA2LElementSubGroup, Kind::SUB_GROUP> {
  static constexpr Lines lines{" SUB_GROUP"};
};

/// The lines of an annotation.
struct VoA2LElementAnnotationText final : Block<VoA2LElementAnnotationText, Kind::ANNOTATION_TEXT> {
  List<std::string_view> TEXT_LIST;
  static constexpr auto parameters = Parameters(Texts(&Self::TEXT_LIST));
  static constexpr Lines lines{" ANNOTATION_TEXT"};
  static constexpr std::string_view item = "{0} ";
  static constexpr bool keepsChildrenSilent = true;
};

/// A list of objects of a transformer: quoted when it is read, but not when it is written.
template <class Class, ElementKind kKind>
struct TransformerObjects : Block<Class, kKind> {
  List<std::string_view> TEXT_LIST;
  static constexpr auto parameters = Parameters(UnquotedTexts(&TransformerObjects::TEXT_LIST));
  static constexpr auto revision = kRevision171;
  static constexpr std::string_view item = "{0} ";
  static constexpr bool keepsChildrenSilent = true;
};

struct VoA2LElementTransformerInObjects final
    : TransformerObjects<VoA2LElementTransformerInObjects, Kind::TRANSFORMER_IN_OBJECTS> {
  static constexpr Lines lines{" TRANSFORMER_IN_OBJECTS"};
};

struct VoA2LElementTransformerOutObjects final
    : TransformerObjects<VoA2LElementTransformerOutObjects, Kind::TRANSFORMER_OUT_OBJECTS> {
  static constexpr Lines lines{" TRANSFORMER_OUT_OBJECTS"};
};

}  // namespace a2l
