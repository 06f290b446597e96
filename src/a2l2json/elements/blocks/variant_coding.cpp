// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/variant_coding.h"

#include <algorithm>
#include <ostream>

namespace a2l {

bool VoA2LElementVarForbiddenComb::ParseParameters(std::string_view& text) {
  for (text = Trim(text); !text.empty(); text = Trim(text)) {
    CRITERION_NAME.PushBack(Store(), ReadIdentifier(Store(), text));
    const std::string_view value = ReadIdentifier(Store(), text);
    if (value.empty()) return false;
    VALUE.PushBack(Store(), value);
  }
  return true;
}

void VoA2LElementVarForbiddenComb::WriteOpening(int level, std::ostream& out) const {
  Block::WriteOpening(level, out);
  for (std::size_t i = 0; i < std::min(CRITERION_NAME.size(), VALUE.size()); ++i) {
    const Arguments pair = {std::string(CRITERION_NAME[i]), std::string(VALUE[i])};
    WriteLine(out, level + 1, Format("{0} {1}", pair));
  }
}

}  // namespace a2l
