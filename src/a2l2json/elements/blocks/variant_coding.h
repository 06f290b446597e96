// SPDX-License-Identifier: MIT
//
// Objects whose address depends on the variant of the vehicle.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"

namespace a2l {

struct VoA2LElementVariantCoding final : Block<VoA2LElementVariantCoding, Kind::VARIANT_CODING> {
  static constexpr KindSet accepts = {Kind::VAR_CHARACTERISTIC, Kind::VAR_CRITERION,
                                      Kind::VAR_FORBIDDEN_COMB, Kind::VAR_NAMING,
                                      Kind::VAR_SEPARATOR};
  static constexpr Lines lines{" VARIANT_CODING"};
};

/// A criterion and the values that it can have.
struct VoA2LElementVarCriterion final : Block<VoA2LElementVarCriterion, Kind::VAR_CRITERION> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  List<std::string_view> VALUE;
  static constexpr auto parameters = Parameters(
      Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER), MoreIdentifiers(&Self::VALUE));
  static constexpr KindSet accepts = {Kind::VAR_MEASUREMENT, Kind::VAR_SELECTION_CHARACTERISTIC};
  static constexpr Lines lines{" VAR_CRITERION {0} {1}"};
  static constexpr std::string_view item = "{0} ";
};

/// A variant-coded characteristic and the criteria that its address depends on.
struct VoA2LElementVarCharacteristic final
    : Block<VoA2LElementVarCharacteristic, Kind::VAR_CHARACTERISTIC> {
  std::string_view NAME;
  List<std::string_view> CRITERION_NAME;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), MoreIdentifiers(&Self::CRITERION_NAME));
  static constexpr KindSet accepts = {Kind::VAR_ADDRESS};
  static constexpr Lines lines{" VAR_CHARACTERISTIC {0}"};
  static constexpr std::string_view item = "{0} ";
};

/// The addresses of a variant-coded characteristic.
struct VoA2LElementVarAddress final : Block<VoA2LElementVarAddress, Kind::VAR_ADDRESS> {
  List<std::uint32_t> VAR_ADDRESS;
  static constexpr auto parameters = Parameters(MoreUnsigned(&Self::VAR_ADDRESS));
  static constexpr Lines lines{" VAR_ADDRESS"};
  static constexpr std::string_view item = "0x{0:X} ";
  static constexpr bool keepsChildrenSilent = true;
};

/// A combination of values that cannot occur. A criterion at the end without a value is wrong;
/// it stays in its list all the same.
struct VoA2LElementVarForbiddenComb final
    : Block<VoA2LElementVarForbiddenComb, Kind::VAR_FORBIDDEN_COMB> {
  List<std::string_view> CRITERION_NAME;
  List<std::string_view> VALUE;
  static constexpr auto parameters = Parameters(PairList(&Self::CRITERION_NAME, &Self::VALUE));
  static constexpr Lines lines{" VAR_FORBIDDEN_COMB"};
  static constexpr std::string_view item = "{0}";
  static constexpr bool keepsChildrenSilent = true;
};

}  // namespace a2l
