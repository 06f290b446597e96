// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "a2l2json/mend/line_map.h"
#include "capi/result.h"

namespace a2l::capi {

/// Mends `text`, the bytes of the input: the mended text and the findings go into the result.
/// `lines` learns where the lines of the mended text come from.
void MendInto(a2l2json_result& result, std::string_view text, const Input& input, LineMap& lines);

}  // namespace a2l::capi
