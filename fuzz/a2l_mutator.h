// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace a2l::fuzz {

/// `text` with one change of the kind that people and programs make in A2L files: a line inserted,
/// repeated, removed, moved, broken in two or joined with the next, a token replaced, a whole block
/// put in. The same for the same seed, and at most `mostBytes` long.
std::string Mutated(std::string_view text, std::uint64_t seed, std::size_t mostBytes);

}  // namespace a2l::fuzz
