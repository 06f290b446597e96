// SPDX-License-Identifier: MIT
//
// What places one item of a record in memory: the properties of a RECORD_LAYOUT. Only a number
// can be wrong; an unknown word is stored as the fallback of its table.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

namespace a2l {

namespace words {

/// How the values of a record follow each other; no word gives code 0.
inline constexpr Word kIndexModeWords[] = {{1, "ALTERNATE_CURVES"},
                                           {2, "ALTERNATE_WITH_X"},
                                           {3, "ALTERNATE_WITH_Y"},
                                           {4, "COLUMN_DIR"},
                                           {5, "ROW_DIR"}};
inline constexpr WordTable kIndexMode{kIndexModeWords, 0};

}  // namespace words

/// The points of an axis.
struct VoA2LElementAxisPtsX final
    : AxisProperty<VoA2LElementAxisPtsX, Kind::AXIS_PTS_X, Kind::AXIS_PTS_Y, Kind::AXIS_PTS_Z,
                   Kind::AXIS_PTS_4, Kind::AXIS_PTS_5> {
  using AxisProperty::AxisProperty;

  std::uint32_t POSITION = 0;
  std::uint32_t DATA_TYPE = 0;
  std::uint32_t INDEX_INCR = 0;
  std::uint32_t ADDRESSING = 0;
  static constexpr auto parameters = Parameters(
      Unsigned(&Self::POSITION), Choice(&Self::DATA_TYPE, words::kDataType),
      Choice(&Self::INDEX_INCR, words::kIndexOrder), Choice(&Self::ADDRESSING, words::kAddrType));
  static constexpr std::string_view line = "{0} {1:d} {2} {3} {4}";
};

/// The rescale pairs of an axis.
struct VoA2LElementAxisRescaleX final
    : AxisProperty<VoA2LElementAxisRescaleX, Kind::AXIS_RESCALE_X, Kind::AXIS_RESCALE_Y,
                   Kind::AXIS_RESCALE_Z, Kind::AXIS_RESCALE_4, Kind::AXIS_RESCALE_5> {
  using AxisProperty::AxisProperty;

  std::uint32_t POSITION = 0;
  std::uint32_t DATA_TYPE = 0;
  std::uint32_t MAX_NUMBER_OF_RESCALE_PAIRS = 0;
  std::uint32_t INDEX_INCR = 0;
  std::uint32_t ADDRESSING = 0;
  static constexpr auto parameters = Parameters(
      Unsigned(&Self::POSITION), Choice(&Self::DATA_TYPE, words::kDataType),
      Unsigned(&Self::MAX_NUMBER_OF_RESCALE_PAIRS), Choice(&Self::INDEX_INCR, words::kIndexOrder),
      Choice(&Self::ADDRESSING, words::kAddrType));
  static constexpr std::string_view line = "{0} {1:d} {2} {3:d} {4} {5}";
};

/// The values of a characteristic.
struct VoA2LElementFncValues final : Property<VoA2LElementFncValues, Kind::FNC_VALUES> {
  std::uint32_t POSITION = 0;
  std::uint32_t DATA_TYPE = 0;
  std::uint32_t INDEX_MODE = 0;
  std::uint32_t ADDRESSING = 0;
  static constexpr auto parameters = Parameters(
      Unsigned(&Self::POSITION), Choice(&Self::DATA_TYPE, words::kDataType),
      Choice(&Self::INDEX_MODE, words::kIndexMode), Choice(&Self::ADDRESSING, words::kAddrType));
  static constexpr std::string_view line = "FNC_VALUES {0:d} {1} {2} {3}";
};

/// What stands at a position of the record and has a data type, one per axis.
template <class Class, ElementKind... kKinds>
struct TypedPosition : AxisProperty<Class, kKinds...> {
  using AxisProperty<Class, kKinds...>::AxisProperty;

  std::uint32_t POSITION = 0;
  std::uint32_t DATA_TYPE = 0;
  static constexpr auto parameters = Parameters(
      Unsigned(&TypedPosition::POSITION), Choice(&TypedPosition::DATA_TYPE, words::kDataType));
  static constexpr std::string_view line = "{0} {1:d} {2}";
};

/// The distance of the points of a fixed axis.
struct VoA2LElementDistOpX final
    : TypedPosition<VoA2LElementDistOpX, Kind::DIST_OP_X, Kind::DIST_OP_Y, Kind::DIST_OP_Z,
                    Kind::DIST_OP_4, Kind::DIST_OP_5> {
  using TypedPosition::TypedPosition;
};

/// The number of points of an axis.
struct VoA2LElementNoAxisPtsX final
    : TypedPosition<VoA2LElementNoAxisPtsX, Kind::NO_AXIS_PTS_X, Kind::NO_AXIS_PTS_Y,
                    Kind::NO_AXIS_PTS_Z, Kind::NO_AXIS_PTS_4, Kind::NO_AXIS_PTS_5> {
  using TypedPosition::TypedPosition;
};

/// The number of rescale pairs of an axis.
struct VoA2LElementNoRescaleX final
    : TypedPosition<VoA2LElementNoRescaleX, Kind::NO_RESCALE_X, Kind::NO_RESCALE_Y,
                    Kind::NO_RESCALE_Z, Kind::NO_RESCALE_4, Kind::NO_RESCALE_5> {
  using TypedPosition::TypedPosition;
};

/// The offset of the points of a fixed axis.
struct VoA2LElementOffsetX final
    : TypedPosition<VoA2LElementOffsetX, Kind::OFFSET_X, Kind::OFFSET_Y, Kind::OFFSET_Z,
                    Kind::OFFSET_4, Kind::OFFSET_5> {
  using TypedPosition::TypedPosition;
};

/// Where the control unit keeps the result of an interpolation.
struct VoA2LElementRipAddrX final
    : TypedPosition<VoA2LElementRipAddrX, Kind::RIP_ADDR_X, Kind::RIP_ADDR_Y, Kind::RIP_ADDR_Z,
                    Kind::RIP_ADDR_4, Kind::RIP_ADDR_5, Kind::RIP_ADDR_W> {
  using TypedPosition::TypedPosition;
};

/// The shift of the points of a fixed axis.
struct VoA2LElementShiftOpX final
    : TypedPosition<VoA2LElementShiftOpX, Kind::SHIFT_OP_X, Kind::SHIFT_OP_Y, Kind::SHIFT_OP_Z,
                    Kind::SHIFT_OP_4, Kind::SHIFT_OP_5> {
  using TypedPosition::TypedPosition;
};

/// The address of the input quantity of an axis.
struct VoA2LElementSrcAddrX final
    : TypedPosition<VoA2LElementSrcAddrX, Kind::SRC_ADDR_X, Kind::SRC_ADDR_Y, Kind::SRC_ADDR_Z,
                    Kind::SRC_ADDR_4, Kind::SRC_ADDR_5> {
  using TypedPosition::TypedPosition;
};

/// An identifier of the record.
struct VoA2LElementIdentification final
    : Property<VoA2LElementIdentification, Kind::IDENTIFICATION> {
  std::uint32_t POSITION = 0;
  std::uint32_t DATA_TYPE = 0;
  static constexpr auto parameters =
      Parameters(Unsigned(&Self::POSITION), Choice(&Self::DATA_TYPE, words::kDataType));
  static constexpr std::string_view line = "IDENTIFICATION {0:d} {1}";
};

/// The fixed number of points of an axis.
struct VoA2LElementFixNoAxisPtsX final
    : AxisProperty<VoA2LElementFixNoAxisPtsX, Kind::FIX_NO_AXIS_PTS_X, Kind::FIX_NO_AXIS_PTS_Y,
                   Kind::FIX_NO_AXIS_PTS_Z, Kind::FIX_NO_AXIS_PTS_4, Kind::FIX_NO_AXIS_PTS_5> {
  using AxisProperty::AxisProperty;

  std::uint32_t NUMBER_OF_AXIS_POINTS = 0;
  static constexpr auto parameters = Parameters(Unsigned(&Self::NUMBER_OF_AXIS_POINTS));
  static constexpr std::string_view line = "{0} {1:d}";
};

/// A place that is not used.
struct VoA2LElementReserved final : Property<VoA2LElementReserved, Kind::RESERVED> {
  std::uint32_t POSITION = 0;
  std::uint32_t DATA_SIZE = 0;
  static constexpr auto parameters =
      Parameters(Unsigned(&Self::POSITION), Choice(&Self::DATA_SIZE, words::kDataSize));
  static constexpr std::string_view line = "RESERVED {0:d} {1}";
};

}  // namespace a2l
