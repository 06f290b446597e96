// SPDX-License-Identifier: MIT
#pragma once

#include "a2l2json/model/element.h"

namespace a2l {

/// Makes the element of a keyword, in the tree and with the parent link of `parent`, but not yet
/// among its children. Null for the kinds without a class: ENCODING, which the reader does not
/// support, and numbers that are no keyword's.
[[nodiscard]] VoA2LElement* CreateElement(ElementKind kind, VoA2LElement& parent);

}  // namespace a2l
