// SPDX-License-Identifier: MIT
#pragma once

#include <json11.hpp>

#include "a2l2json/model/element.h"

namespace a2l {

/// The document of the tree below `root` as a value in memory, which keeps nothing of the tree; its
/// dump() is the text that ToJson gives. For applications that work on the document; it takes many
/// times the memory of the text.
[[nodiscard]] json11::Json ToJson11(const VoA2LElement& root);

}  // namespace a2l
