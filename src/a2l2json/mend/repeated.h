// SPDX-License-Identifier: MIT
#pragma once

#include "a2l2json/model/kind_set.h"

namespace a2l::mending {

/// True for the kinds of which the document holds as many as the file has. It has room for one of
/// every other, in each block; a test holds this against the document.
[[nodiscard]] constexpr bool IsRepeated(ElementKind kind) {
  using Kind = ElementKind;
  constexpr KindSet kRepeated = {
      Kind::ADDR_EPK,
      Kind::ANNOTATION,
      Kind::AXIS_DESCR,
      Kind::AXIS_PTS,
      Kind::BLOB,
      Kind::CALIBRATION_HANDLE,
      Kind::CALIBRATION_METHOD,
      Kind::CHARACTERISTIC,
      Kind::COMPU_METHOD,
      Kind::COMPU_TAB,
      Kind::COMPU_VTAB,
      Kind::COMPU_VTAB_RANGE,
      Kind::FUNCTION,
      Kind::GROUP,
      Kind::IF_DATA,
      Kind::INSTANCE,
      Kind::MEASUREMENT,
      Kind::MEMORY_LAYOUT,
      Kind::MEMORY_SEGMENT,
      Kind::MODULE,
      Kind::OVERWRITE,
      Kind::RECORD_LAYOUT,
      Kind::REF_GROUP,
      Kind::RESERVED,
      Kind::STRUCTURE_COMPONENT,
      Kind::SYSTEM_CONSTANT,
      Kind::TRANSFORMER,
      Kind::TYPEDEF_AXIS,
      Kind::TYPEDEF_BLOB,
      Kind::TYPEDEF_CHARACTERISTIC,
      Kind::TYPEDEF_MEASUREMENT,
      Kind::TYPEDEF_STRUCTURE,
      Kind::UNIT,
      Kind::USER_RIGHTS,
      Kind::VAR_CHARACTERISTIC,
      Kind::VAR_CRITERION,
      Kind::VAR_FORBIDDEN_COMB,
      KIND_UNKNOWN,
  };
  return kRepeated.Contains(kind);
}

}  // namespace a2l::mending
