// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace a2l {

/// The version of this library and of the program, as in "1.0.0".
[[nodiscard]] std::string_view Version();

}  // namespace a2l
