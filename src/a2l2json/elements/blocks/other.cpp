// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/other.h"

#include "a2l2json/elements/properties/texts.h"

namespace a2l {

bool VoA2LElementCalibrationHandle::ParseParameters(std::string_view& text) {
  HANDLE.Clear();
  for (text = Trim(text); !text.empty(); text = Trim(text)) {
    const std::string_view token = NextToken(text);
    if (token.find(KindToKeyword(Kind::CALIBRATION_HANDLE_TEXT)) != std::string_view::npos) {
      auto* handleText = Store().Create<VoA2LElementCalibrationHandleText>(this);
      handleText->ParseParameters(text);
      return AddChild(handleText);
    }
    const auto [handle, ok] = ReadSigned(token);
    HANDLE.PushBack(Store(), handle);
    if (!ok) return false;
  }
  return true;
}

}  // namespace a2l
