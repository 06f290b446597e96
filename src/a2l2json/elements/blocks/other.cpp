// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/other.h"

#include "a2l2json/elements/properties/texts.h"

namespace a2l {

VoA2LElement* VoA2LElementCalibrationHandle::MakeChildInList() {
  return Store().Create<VoA2LElementCalibrationHandleText>(this);
}

}  // namespace a2l
