// SPDX-License-Identifier: MIT
//
// Properties whose parameters go on until the next keyword. They are written with each further
// value on a line of its own, below the first; an empty list writes the keyword alone.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// The dimensions of an array. The list ends at the first token that is not a number.
struct VoA2LElementMatrixDim final
    : detail::Property<VoA2LElementMatrixDim, ElementKind::MATRIX_DIM> {
  List<std::uint32_t> MATRIX_DIM;
  static constexpr Parameter parameters[] = {Adding(UnsignedList<&Self::MATRIX_DIM>)};
};

/// The measurements of a frame.
struct VoA2LElementFrameMeasurement final
    : detail::Property<VoA2LElementFrameMeasurement, ElementKind::FRAME_MEASUREMENT> {
  List<std::string_view> FRAME_MEASUREMENT;
  static constexpr Parameter parameters[] = {Identifiers<&Self::FRAME_MEASUREMENT>};
};

}  // namespace a2l
