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
  static constexpr ElementKind accepts[] = {
      ElementKind::ALIGNMENT_BYTE,
      ElementKind::ALIGNMENT_FLOAT16_IEEE,
      ElementKind::ALIGNMENT_FLOAT32_IEEE,
      ElementKind::ALIGNMENT_FLOAT64_IEEE,
      ElementKind::ALIGNMENT_INT64,
      ElementKind::ALIGNMENT_LONG,
      ElementKind::ALIGNMENT_WORD,
      ElementKind::AXIS_PTS_4,
      ElementKind::AXIS_PTS_5,
      ElementKind::AXIS_PTS_X,
      ElementKind::AXIS_PTS_Y,
      ElementKind::AXIS_PTS_Z,
      ElementKind::AXIS_RESCALE_4,
      ElementKind::AXIS_RESCALE_5,
      ElementKind::AXIS_RESCALE_X,
      ElementKind::AXIS_RESCALE_Y,
      ElementKind::AXIS_RESCALE_Z,
      ElementKind::DIST_OP_4,
      ElementKind::DIST_OP_5,
      ElementKind::DIST_OP_X,
      ElementKind::DIST_OP_Y,
      ElementKind::DIST_OP_Z,
      ElementKind::FIX_NO_AXIS_PTS_4,
      ElementKind::FIX_NO_AXIS_PTS_5,
      ElementKind::FIX_NO_AXIS_PTS_X,
      ElementKind::FIX_NO_AXIS_PTS_Y,
      ElementKind::FIX_NO_AXIS_PTS_Z,
      ElementKind::FNC_VALUES,
      ElementKind::IDENTIFICATION,
      ElementKind::NO_AXIS_PTS_4,
      ElementKind::NO_AXIS_PTS_5,
      ElementKind::NO_AXIS_PTS_X,
      ElementKind::NO_AXIS_PTS_Y,
      ElementKind::NO_AXIS_PTS_Z,
      ElementKind::NO_RESCALE_4,
      ElementKind::NO_RESCALE_5,
      ElementKind::NO_RESCALE_X,
      ElementKind::NO_RESCALE_Y,
      ElementKind::NO_RESCALE_Z,
      ElementKind::OFFSET_4,
      ElementKind::OFFSET_5,
      ElementKind::OFFSET_X,
      ElementKind::OFFSET_Y,
      ElementKind::OFFSET_Z,
      ElementKind::RESERVED,
      ElementKind::RIP_ADDR_4,
      ElementKind::RIP_ADDR_5,
      ElementKind::RIP_ADDR_W,
      ElementKind::RIP_ADDR_X,
      ElementKind::RIP_ADDR_Y,
      ElementKind::RIP_ADDR_Z,
      ElementKind::SHIFT_OP_4,
      ElementKind::SHIFT_OP_5,
      ElementKind::SHIFT_OP_X,
      ElementKind::SHIFT_OP_Y,
      ElementKind::SHIFT_OP_Z,
      ElementKind::SRC_ADDR_4,
      ElementKind::SRC_ADDR_5,
      ElementKind::SRC_ADDR_X,
      ElementKind::SRC_ADDR_Y,
      ElementKind::SRC_ADDR_Z,
      ElementKind::STATIC_ADDRESS_OFFSETS,
      ElementKind::STATIC_RECORD_LAYOUT,
  };
};

}  // namespace a2l
