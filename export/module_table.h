// SPDX-License-Identifier: MIT
#pragma once

#include "export/object_table.h"

namespace a2l {

/// The table of the object of one MODULE, with the tables of everything inside it.
[[nodiscard]] const ObjectTable& ModuleTable();

}  // namespace a2l
