// SPDX-License-Identifier: MIT
#pragma once

#include "a2l2json/model/kind_set.h"

namespace a2l::mending {

/// True for the kinds of which the document shows as many as a block has. Of every other kind, it
/// shows one. A test compares this list with documents.
[[nodiscard]] constexpr bool IsRepeated(ElementKind kind) {
  constexpr KindSet kRepeated = {
      ElementKind::ADDR_EPK,
      ElementKind::ANNOTATION,
      ElementKind::AXIS_DESCR,
      ElementKind::AXIS_PTS,
      ElementKind::BLOB,
      ElementKind::CALIBRATION_HANDLE,
      ElementKind::CALIBRATION_METHOD,
      ElementKind::CHARACTERISTIC,
      ElementKind::COMPU_METHOD,
      ElementKind::COMPU_TAB,
      ElementKind::COMPU_VTAB,
      ElementKind::COMPU_VTAB_RANGE,
      ElementKind::FUNCTION,
      ElementKind::GROUP,
      ElementKind::IF_DATA,
      ElementKind::INSTANCE,
      ElementKind::MEASUREMENT,
      ElementKind::MEMORY_LAYOUT,
      ElementKind::MEMORY_SEGMENT,
      ElementKind::MODULE,
      ElementKind::OVERWRITE,
      ElementKind::RECORD_LAYOUT,
      ElementKind::REF_GROUP,
      ElementKind::RESERVED,
      ElementKind::STRUCTURE_COMPONENT,
      ElementKind::SYSTEM_CONSTANT,
      ElementKind::TRANSFORMER,
      ElementKind::TYPEDEF_AXIS,
      ElementKind::TYPEDEF_BLOB,
      ElementKind::TYPEDEF_CHARACTERISTIC,
      ElementKind::TYPEDEF_MEASUREMENT,
      ElementKind::TYPEDEF_STRUCTURE,
      ElementKind::UNIT,
      ElementKind::USER_RIGHTS,
      ElementKind::VAR_CHARACTERISTIC,
      ElementKind::VAR_CRITERION,
      ElementKind::VAR_FORBIDDEN_COMB,
      KIND_UNKNOWN,
  };
  return kRepeated.Contains(kind);
}

}  // namespace a2l::mending
