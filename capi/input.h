// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace a2l::capi {

/// A sentence about bytes that are surely no A2L text, by how they begin, as in "It is empty.";
/// empty where they may be such a text. Mending reads more than the converter does.
[[nodiscard]] std::string WhyNoA2l(std::string_view bytes, bool isMended);

/// How many bytes of an input WhyNoA2l looks at.
inline constexpr std::size_t kLookedAt = 8;

}  // namespace a2l::capi
