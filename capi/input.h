// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace a2l::capi {

/// A sentence about bytes that are surely no A2L text, by how they begin, as in "It is compressed
/// (gzip)."; empty where they may be such a text.
[[nodiscard]] std::string_view WhyNoA2l(std::string_view bytes);

/// How many bytes of an input WhyNoA2l looks at.
inline constexpr std::size_t kLookedAt = 8;

}  // namespace a2l::capi
