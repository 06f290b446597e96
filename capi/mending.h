// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "capi/result.h"

namespace a2l::capi {

/// Whether this library has been built with the room that mends.
[[nodiscard]] bool CanMend();

/// Mends the text of the file called `name`: the mended text and the findings go into the result.
void MendInto(a2l2json_result& result, std::string_view text, std::string_view name);

}  // namespace a2l::capi
