// SPDX-License-Identifier: MIT
//
// Quantities of the control unit that are read while it runs.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

#include "a2l2json/names_begin.h"

namespace a2l {

struct VoA2LElementMeasurement final
    : detail::Block<VoA2LElementMeasurement, ElementKind::MEASUREMENT> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  DataType DATATYPE{};
  std::string_view CONVERSION;
  std::uint32_t RESOLUTION = 1;  ///< smallest change of the value, in bits
  double ACCURACY = 0;           ///< in percent
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,       Text<&Self::LONG_IDENTIFIER>, NextLine(Word<&Self::DATATYPE>),
      Identifier<&Self::CONVERSION>, Unsigned<&Self::RESOLUTION>,  Real<&Self::ACCURACY>,
      Real<&Self::LOWER_LIMIT>,      Real<&Self::UPPER_LIMIT>,
  };
  static constexpr OnBadNumber onBadNumber = OnBadNumber::MarkAndGoOn;
  static constexpr Kind accepts[] = {
      Kind::ADDRESS_TYPE,
      Kind::ANNOTATION,
      Kind::ARRAY_SIZE,
      Kind::BIT_MASK,
      Kind::BIT_OPERATION,
      Kind::BYTE_ORDER,
      Kind::DISCRETE,
      Kind::DISPLAY_IDENTIFIER,
      Kind::ECU_ADDRESS,
      Kind::ECU_ADDRESS_EXTENSION,
      Kind::ERROR_MASK,
      Kind::FORMAT,
      Kind::FUNCTION_LIST,
      Kind::IF_DATA,
      Kind::LAYOUT,
      Kind::MATRIX_DIM,
      Kind::MAX_REFRESH,
      Kind::MODEL_LINK,
      Kind::PHYS_UNIT,
      Kind::READ_WRITE,
      Kind::REF_MEMORY_SEGMENT,
      Kind::SYMBOL_LINK,
      Kind::VIRTUAL,
  };
};

/// Shifts and sign extension that are applied to a raw value, in its children.
struct VoA2LElementBitOperation final
    : detail::Block<VoA2LElementBitOperation, ElementKind::BIT_OPERATION> {
  static constexpr Kind accepts[] = {Kind::LEFT_SHIFT, Kind::RIGHT_SHIFT, Kind::SIGN_EXTEND};
};

}  // namespace a2l

#include "a2l2json/names_end.h"
