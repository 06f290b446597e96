// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace a2l::fuzz {

/// Returns `text` with one change that people and programs make in A2L files: a line is inserted,
/// repeated, removed, moved, broken in two or joined with the next, a token is replaced, or a whole
/// block is inserted. The same seed gives the same change. The result has at most `mostBytes`
/// bytes.
std::string Mutated(std::string_view text, std::uint64_t seed, std::size_t mostBytes);

}  // namespace a2l::fuzz
