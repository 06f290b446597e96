// SPDX-License-Identifier: MIT
//
// What places one item of a record in memory: the properties of a RECORD_LAYOUT. Only a number
// can be wrong; an unknown word is stored as the fallback of its table.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

namespace a2l {

/// The points of an axis.
struct VoA2LElementAxisPtsX final
    : detail::AxisProperty<VoA2LElementAxisPtsX, ElementKind::AXIS_PTS_X, ElementKind::AXIS_PTS_Y,
                           ElementKind::AXIS_PTS_Z, ElementKind::AXIS_PTS_4,
                           ElementKind::AXIS_PTS_5> {
  using AxisProperty::AxisProperty;

  std::uint32_t POSITION = 0;
  DataType DATA_TYPE{};
  IndexOrder INDEX_INCR{};
  AddrType ADDRESSING{};
  static constexpr Parameter parameters[] = {
      Unsigned<&Self::POSITION>,
      Word<&Self::DATA_TYPE>,
      Word<&Self::INDEX_INCR>,
      Word<&Self::ADDRESSING>,
  };
};

/// The rescale pairs of an axis.
struct VoA2LElementAxisRescaleX final
    : detail::AxisProperty<VoA2LElementAxisRescaleX, ElementKind::AXIS_RESCALE_X,
                           ElementKind::AXIS_RESCALE_Y, ElementKind::AXIS_RESCALE_Z,
                           ElementKind::AXIS_RESCALE_4, ElementKind::AXIS_RESCALE_5> {
  using AxisProperty::AxisProperty;

  std::uint32_t POSITION = 0;
  DataType DATA_TYPE{};
  std::uint32_t MAX_NUMBER_OF_RESCALE_PAIRS = 0;
  IndexOrder INDEX_INCR{};
  AddrType ADDRESSING{};
  static constexpr Parameter parameters[] = {
      Unsigned<&Self::POSITION>,
      Word<&Self::DATA_TYPE>,
      Unsigned<&Self::MAX_NUMBER_OF_RESCALE_PAIRS>,
      Word<&Self::INDEX_INCR>,
      Word<&Self::ADDRESSING>,
  };
};

/// The values of a characteristic.
struct VoA2LElementFncValues final
    : detail::Property<VoA2LElementFncValues, ElementKind::FNC_VALUES> {
  std::uint32_t POSITION = 0;
  DataType DATA_TYPE{};
  IndexMode INDEX_MODE{};
  AddrType ADDRESSING{};
  static constexpr Parameter parameters[] = {
      Unsigned<&Self::POSITION>,
      Word<&Self::DATA_TYPE>,
      Word<&Self::INDEX_MODE>,
      Word<&Self::ADDRESSING>,
  };
};

namespace detail {

/// What stands at a position of the record and has a data type, one per axis.
template <class Class, ElementKind... kKinds>
struct TypedPosition : AxisProperty<Class, kKinds...> {
  using AxisProperty<Class, kKinds...>::AxisProperty;

  std::uint32_t POSITION = 0;
  DataType DATA_TYPE{};
  static constexpr Parameter parameters[] = {
      ParameterWords<Class>::template Unsigned<&TypedPosition::POSITION>,
      ParameterWords<Class>::template Word<&TypedPosition::DATA_TYPE>,
  };
};

}  // namespace detail

/// The distance of the points of a fixed axis.
struct VoA2LElementDistOpX final
    : detail::TypedPosition<VoA2LElementDistOpX, ElementKind::DIST_OP_X, ElementKind::DIST_OP_Y,
                            ElementKind::DIST_OP_Z, ElementKind::DIST_OP_4,
                            ElementKind::DIST_OP_5> {
  using TypedPosition::TypedPosition;
};

/// The number of points of an axis.
struct VoA2LElementNoAxisPtsX final
    : detail::TypedPosition<VoA2LElementNoAxisPtsX, ElementKind::NO_AXIS_PTS_X,
                            ElementKind::NO_AXIS_PTS_Y, ElementKind::NO_AXIS_PTS_Z,
                            ElementKind::NO_AXIS_PTS_4, ElementKind::NO_AXIS_PTS_5> {
  using TypedPosition::TypedPosition;
};

/// The number of rescale pairs of an axis.
struct VoA2LElementNoRescaleX final
    : detail::TypedPosition<VoA2LElementNoRescaleX, ElementKind::NO_RESCALE_X,
                            ElementKind::NO_RESCALE_Y, ElementKind::NO_RESCALE_Z,
                            ElementKind::NO_RESCALE_4, ElementKind::NO_RESCALE_5> {
  using TypedPosition::TypedPosition;
};

/// The offset of the points of a fixed axis.
struct VoA2LElementOffsetX final
    : detail::TypedPosition<VoA2LElementOffsetX, ElementKind::OFFSET_X, ElementKind::OFFSET_Y,
                            ElementKind::OFFSET_Z, ElementKind::OFFSET_4, ElementKind::OFFSET_5> {
  using TypedPosition::TypedPosition;
};

/// Where the control unit keeps the result of an interpolation.
struct VoA2LElementRipAddrX final
    : detail::TypedPosition<VoA2LElementRipAddrX, ElementKind::RIP_ADDR_X, ElementKind::RIP_ADDR_Y,
                            ElementKind::RIP_ADDR_Z, ElementKind::RIP_ADDR_4,
                            ElementKind::RIP_ADDR_5, ElementKind::RIP_ADDR_W> {
  using TypedPosition::TypedPosition;
};

/// The shift of the points of a fixed axis.
struct VoA2LElementShiftOpX final
    : detail::TypedPosition<VoA2LElementShiftOpX, ElementKind::SHIFT_OP_X, ElementKind::SHIFT_OP_Y,
                            ElementKind::SHIFT_OP_Z, ElementKind::SHIFT_OP_4,
                            ElementKind::SHIFT_OP_5> {
  using TypedPosition::TypedPosition;
};

/// The address of the input quantity of an axis.
struct VoA2LElementSrcAddrX final
    : detail::TypedPosition<VoA2LElementSrcAddrX, ElementKind::SRC_ADDR_X, ElementKind::SRC_ADDR_Y,
                            ElementKind::SRC_ADDR_Z, ElementKind::SRC_ADDR_4,
                            ElementKind::SRC_ADDR_5> {
  using TypedPosition::TypedPosition;
};

/// An identifier of the record.
struct VoA2LElementIdentification final
    : detail::Property<VoA2LElementIdentification, ElementKind::IDENTIFICATION> {
  std::uint32_t POSITION = 0;
  DataType DATA_TYPE{};
  static constexpr Parameter parameters[] = {Unsigned<&Self::POSITION>, Word<&Self::DATA_TYPE>};
};

/// The fixed number of points of an axis.
struct VoA2LElementFixNoAxisPtsX final
    : detail::AxisProperty<VoA2LElementFixNoAxisPtsX, ElementKind::FIX_NO_AXIS_PTS_X,
                           ElementKind::FIX_NO_AXIS_PTS_Y, ElementKind::FIX_NO_AXIS_PTS_Z,
                           ElementKind::FIX_NO_AXIS_PTS_4, ElementKind::FIX_NO_AXIS_PTS_5> {
  using AxisProperty::AxisProperty;

  std::uint32_t NUMBER_OF_AXIS_POINTS = 0;
  static constexpr Parameter parameters[] = {Unsigned<&Self::NUMBER_OF_AXIS_POINTS>};
};

/// A place that is not used.
struct VoA2LElementReserved final : detail::Property<VoA2LElementReserved, ElementKind::RESERVED> {
  std::uint32_t POSITION = 0;
  DataSize DATA_SIZE{};
  static constexpr Parameter parameters[] = {Unsigned<&Self::POSITION>, Word<&Self::DATA_SIZE>};
};

}  // namespace a2l
