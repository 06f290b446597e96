// SPDX-License-Identifier: MIT
//
// Objects whose address depends on the variant of the vehicle.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"

namespace a2l {

struct VoA2LElementVariantCoding final
    : detail::Block<VoA2LElementVariantCoding, ElementKind::VARIANT_CODING> {
  static constexpr ElementKind accepts[] = {
      ElementKind::VAR_CHARACTERISTIC, ElementKind::VAR_CRITERION, ElementKind::VAR_FORBIDDEN_COMB,
      ElementKind::VAR_NAMING,         ElementKind::VAR_SEPARATOR,
  };
};

/// A criterion and the values that it can have.
struct VoA2LElementVarCriterion final
    : detail::Block<VoA2LElementVarCriterion, ElementKind::VAR_CRITERION> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  List<std::string_view> VALUE;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      Adding(Identifiers<&Self::VALUE>),
  };
  static constexpr ElementKind accepts[] = {
      ElementKind::VAR_MEASUREMENT,
      ElementKind::VAR_SELECTION_CHARACTERISTIC,
  };
};

/// A variant-coded characteristic and the criteria that its address depends on.
struct VoA2LElementVarCharacteristic final
    : detail::Block<VoA2LElementVarCharacteristic, ElementKind::VAR_CHARACTERISTIC> {
  std::string_view NAME;
  List<std::string_view> CRITERION_NAME;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Adding(Identifiers<&Self::CRITERION_NAME>),
  };
  static constexpr ElementKind accepts[] = {ElementKind::VAR_ADDRESS};
};

/// The addresses of a variant-coded characteristic.
struct VoA2LElementVarAddress final
    : detail::Block<VoA2LElementVarAddress, ElementKind::VAR_ADDRESS> {
  List<std::uint32_t> VAR_ADDRESS;
  static constexpr Parameter parameters[] = {Adding(InHex(UnsignedList<&Self::VAR_ADDRESS>))};
};

/// A combination of values that cannot occur. A criterion at the end without a value is wrong;
/// it stays in its list all the same.
struct VoA2LElementVarForbiddenComb final
    : detail::Block<VoA2LElementVarForbiddenComb, ElementKind::VAR_FORBIDDEN_COMB> {
  List<std::string_view> CRITERION_NAME;
  List<std::string_view> VALUE;
  static constexpr Parameter parameters[] = {
      WithoutBlanks(Adding(NamedValues<&Self::CRITERION_NAME, &Self::VALUE>))};
};

}  // namespace a2l
