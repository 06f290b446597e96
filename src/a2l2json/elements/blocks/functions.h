// SPDX-License-Identifier: MIT
//
// Functions and groups, and the blocks that are nothing but a list of names or texts.
#pragma once

#include "a2l2json/elements/element_class.h"

#include "a2l2json/names_begin.h"

namespace a2l {

/// What a part of the software defines, refers to, reads and writes.
struct VoA2LElementFunction final : detail::Block<VoA2LElementFunction, ElementKind::FUNCTION> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  static constexpr Parameter parameters[] = {Identifier<&Self::NAME>, Text<&Self::LONG_IDENTIFIER>};
  static constexpr ElementKind accepts[] = {
      ElementKind::ANNOTATION,       ElementKind::AR_COMPONENT,    ElementKind::DEF_CHARACTERISTIC,
      ElementKind::FUNCTION_VERSION, ElementKind::IF_DATA,         ElementKind::IN_MEASUREMENT,
      ElementKind::LOC_MEASUREMENT,  ElementKind::OUT_MEASUREMENT, ElementKind::REF_CHARACTERISTIC,
      ElementKind::SUB_FUNCTION,
  };
};

/// Objects that are shown together. REF_GROUP has no place here, only in USER_RIGHTS.
struct VoA2LElementGroup final : detail::Block<VoA2LElementGroup, ElementKind::GROUP> {
  std::string_view GROUP_NAME;
  /// GROUP_NAME, for files where that is a macro; see names_begin.h.
  [[nodiscard]] auto GROUP_NAME_() const { return GROUP_NAME; }
  std::string_view GROUP_LONG_IDENTIFIER;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::GROUP_NAME>,
      Text<&Self::GROUP_LONG_IDENTIFIER>,
  };
  static constexpr ElementKind accepts[] = {
      ElementKind::ANNOTATION,         ElementKind::FUNCTION_LIST,   ElementKind::IF_DATA,
      ElementKind::REF_CHARACTERISTIC, ElementKind::REF_MEASUREMENT, ElementKind::ROOT,
      ElementKind::SUB_GROUP,
  };
};

namespace detail {

/// A block whose whole content is a list of names; each stands on a line of its own, with a
/// blank behind it.
template <class Class, ElementKind kKind>
struct NameList : Block<Class, kKind> {
  List<std::string_view> IDENTIFIER_LIST;
  static constexpr Parameter parameters[] = {
      ParameterWords<Class>::template Identifiers<&NameList::IDENTIFIER_LIST>};
};

}  // namespace detail

/// Characteristics that a function defines.
struct VoA2LElementDefCharacteristic final
    : detail::NameList<VoA2LElementDefCharacteristic, ElementKind::DEF_CHARACTERISTIC> {};

/// Functions that an object belongs to.
struct VoA2LElementFunctionList final
    : detail::NameList<VoA2LElementFunctionList, ElementKind::FUNCTION_LIST> {};

/// Measurements that a function reads.
struct VoA2LElementInMeasurement final
    : detail::NameList<VoA2LElementInMeasurement, ElementKind::IN_MEASUREMENT> {};

/// Measurements that a function keeps locally.
struct VoA2LElementLocMeasurement final
    : detail::NameList<VoA2LElementLocMeasurement, ElementKind::LOC_MEASUREMENT> {};

/// Maps that a cuboid is made of.
struct VoA2LElementMapList final : detail::NameList<VoA2LElementMapList, ElementKind::MAP_LIST> {};

/// Measurements that a function writes.
struct VoA2LElementOutMeasurement final
    : detail::NameList<VoA2LElementOutMeasurement, ElementKind::OUT_MEASUREMENT> {};

/// Characteristics that a function or a group refers to.
struct VoA2LElementRefCharacteristic final
    : detail::NameList<VoA2LElementRefCharacteristic, ElementKind::REF_CHARACTERISTIC> {};

/// Groups that user rights apply to.
struct VoA2LElementRefGroup final : detail::NameList<VoA2LElementRefGroup, ElementKind::REF_GROUP> {
};

/// Measurements of a group.
struct VoA2LElementRefMeasurement final
    : detail::NameList<VoA2LElementRefMeasurement, ElementKind::REF_MEASUREMENT> {};

/// Functions inside a function.
struct VoA2LElementSubFunction final
    : detail::NameList<VoA2LElementSubFunction, ElementKind::SUB_FUNCTION> {};

/// Groups inside a group.
struct VoA2LElementSubGroup final : detail::NameList<VoA2LElementSubGroup, ElementKind::SUB_GROUP> {
};

/// The lines of an annotation.
struct VoA2LElementAnnotationText final
    : detail::Block<VoA2LElementAnnotationText, ElementKind::ANNOTATION_TEXT> {
  List<std::string_view> TEXT_LIST;
  static constexpr Parameter parameters[] = {Texts<&Self::TEXT_LIST>};
};

namespace detail {

/// A list of objects of a transformer: quoted when it is read, but not when it is written.
template <class Class, ElementKind kKind>
struct TransformerObjects : Block<Class, kKind> {
  List<std::string_view> TEXT_LIST;
  static constexpr Parameter parameters[] = {
      ParameterWords<Class>::template UnquotedTexts<&TransformerObjects::TEXT_LIST>};
  static constexpr std::uint32_t revision = kRevision171;
};

}  // namespace detail

struct VoA2LElementTransformerInObjects final
    : detail::TransformerObjects<VoA2LElementTransformerInObjects,
                                 ElementKind::TRANSFORMER_IN_OBJECTS> {};

struct VoA2LElementTransformerOutObjects final
    : detail::TransformerObjects<VoA2LElementTransformerOutObjects,
                                 ElementKind::TRANSFORMER_OUT_OBJECTS> {};

}  // namespace a2l

#include "a2l2json/names_end.h"
