// SPDX-License-Identifier: MIT
#pragma once

#include "a2l2json/export/object_table.h"

namespace a2l {

/// The table of the whole document, whose element is the root of a tree, with the tables of
/// everything inside it.
[[nodiscard]] const ObjectTable& DocumentTable();

}  // namespace a2l
