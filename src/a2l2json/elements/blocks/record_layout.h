// SPDX-License-Identifier: MIT
#pragma once

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// The layout of a record in memory, by name. Where each item lies is told by its children, in
/// the order of the file.
struct VoA2LElementRecordLayout final
    : detail::Block<VoA2LElementRecordLayout, ElementKind::RECORD_LAYOUT> {
  std::string_view NAME;
  static constexpr Parameter parameters[] = {Identifier<&Self::NAME>};
  static constexpr Kind accepts[] = {
      Kind::ALIGNMENT_BYTE,
      Kind::ALIGNMENT_FLOAT16_IEEE,
      Kind::ALIGNMENT_FLOAT32_IEEE,
      Kind::ALIGNMENT_FLOAT64_IEEE,
      Kind::ALIGNMENT_INT64,
      Kind::ALIGNMENT_LONG,
      Kind::ALIGNMENT_WORD,
      Kind::AXIS_PTS_4,
      Kind::AXIS_PTS_5,
      Kind::AXIS_PTS_X,
      Kind::AXIS_PTS_Y,
      Kind::AXIS_PTS_Z,
      Kind::AXIS_RESCALE_4,
      Kind::AXIS_RESCALE_5,
      Kind::AXIS_RESCALE_X,
      Kind::AXIS_RESCALE_Y,
      Kind::AXIS_RESCALE_Z,
      Kind::DIST_OP_4,
      Kind::DIST_OP_5,
      Kind::DIST_OP_X,
      Kind::DIST_OP_Y,
      Kind::DIST_OP_Z,
      Kind::FIX_NO_AXIS_PTS_4,
      Kind::FIX_NO_AXIS_PTS_5,
      Kind::FIX_NO_AXIS_PTS_X,
      Kind::FIX_NO_AXIS_PTS_Y,
      Kind::FIX_NO_AXIS_PTS_Z,
      Kind::FNC_VALUES,
      Kind::IDENTIFICATION,
      Kind::NO_AXIS_PTS_4,
      Kind::NO_AXIS_PTS_5,
      Kind::NO_AXIS_PTS_X,
      Kind::NO_AXIS_PTS_Y,
      Kind::NO_AXIS_PTS_Z,
      Kind::NO_RESCALE_4,
      Kind::NO_RESCALE_5,
      Kind::NO_RESCALE_X,
      Kind::NO_RESCALE_Y,
      Kind::NO_RESCALE_Z,
      Kind::OFFSET_4,
      Kind::OFFSET_5,
      Kind::OFFSET_X,
      Kind::OFFSET_Y,
      Kind::OFFSET_Z,
      Kind::RESERVED,
      Kind::RIP_ADDR_4,
      Kind::RIP_ADDR_5,
      Kind::RIP_ADDR_W,
      Kind::RIP_ADDR_X,
      Kind::RIP_ADDR_Y,
      Kind::RIP_ADDR_Z,
      Kind::SHIFT_OP_4,
      Kind::SHIFT_OP_5,
      Kind::SHIFT_OP_X,
      Kind::SHIFT_OP_Y,
      Kind::SHIFT_OP_Z,
      Kind::SRC_ADDR_4,
      Kind::SRC_ADDR_5,
      Kind::SRC_ADDR_X,
      Kind::SRC_ADDR_Y,
      Kind::SRC_ADDR_Z,
      Kind::STATIC_ADDRESS_OFFSETS,
      Kind::STATIC_RECORD_LAYOUT,
  };
};

}  // namespace a2l
