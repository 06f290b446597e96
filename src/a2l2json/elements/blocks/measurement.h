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
  std::uint32_t RESOLUTION = 1;  ///< smallest change of the value, in bits
  std::string_view CONVERSION;
  double ACCURACY = 0;  ///< in percent
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,       Text<&Self::LONG_IDENTIFIER>, NextLine(Word<&Self::DATATYPE>),
      Identifier<&Self::CONVERSION>, Unsigned<&Self::RESOLUTION>,  Real<&Self::ACCURACY>,
      Real<&Self::LOWER_LIMIT>,      Real<&Self::UPPER_LIMIT>,
  };
  static constexpr OnBadNumber onBadNumber = OnBadNumber::MarkAndGoOn;
  static constexpr ElementKind accepts[] = {
      ElementKind::ADDRESS_TYPE,
      ElementKind::ANNOTATION,
      ElementKind::ARRAY_SIZE,
      ElementKind::BIT_MASK,
      ElementKind::BIT_OPERATION,
      ElementKind::BYTE_ORDER,
      ElementKind::DISCRETE,
      ElementKind::DISPLAY_IDENTIFIER,
      ElementKind::ECU_ADDRESS,
      ElementKind::ECU_ADDRESS_EXTENSION,
      ElementKind::ERROR_MASK,
      ElementKind::FORMAT,
      ElementKind::FUNCTION_LIST,
      ElementKind::IF_DATA,
      ElementKind::LAYOUT,
      ElementKind::MATRIX_DIM,
      ElementKind::MAX_REFRESH,
      ElementKind::MODEL_LINK,
      ElementKind::PHYS_UNIT,
      ElementKind::READ_WRITE,
      ElementKind::REF_MEMORY_SEGMENT,
      ElementKind::SYMBOL_LINK,
      ElementKind::VIRTUAL,
  };
};

/// Shifts and sign extension that are applied to a raw value, in its children.
struct VoA2LElementBitOperation final
    : detail::Block<VoA2LElementBitOperation, ElementKind::BIT_OPERATION> {
  static constexpr ElementKind accepts[] = {ElementKind::LEFT_SHIFT, ElementKind::RIGHT_SHIFT,
                                            ElementKind::SIGN_EXTEND};
};

}  // namespace a2l

#include "a2l2json/names_end.h"
