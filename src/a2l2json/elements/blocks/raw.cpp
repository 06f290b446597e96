// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/raw.h"

#include <ostream>

namespace a2l {

bool VoA2LElementA2ML::ParseParameters(std::string_view& text) {
  A2ML = Store().Copy(text);
  return true;
}

void VoA2LElementA2ML::WriteOpening(int level, std::ostream& out) const {
  Block::WriteOpening(level, out);
  WriteLine(out, level + 1, A2ML);
}

bool VoA2LElementIfData::ParseParameters(std::string_view& text) {
  NAME = ReadIdentifier(Store(), text);
  IF_DATA = Store().Copy(text);
  return true;
}

void VoA2LElementIfData::WriteOpening(int level, std::ostream& out) const {
  WriteLine(out, level, "/begin IF_DATA " + std::string(NAME));
  WriteLine(out, 0, IF_DATA);
}

bool VoA2LElementUnknown::ParseParameters(std::string_view& text) {
  TEXT = Store().Copy(text);
  return true;
}

}  // namespace a2l
