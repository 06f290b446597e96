// SPDX-License-Identifier: MIT
//
// The cost of a piece of code, measured without a clock.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

namespace a2l::test {

/// Bytes that `work` takes from operator new in this thread, freed or not. Nothing if they cannot
/// be counted.
std::optional<std::uint64_t> AllocatedBytes(const std::function<void()>& work);

/// Instructions that `work` executes. The system counts them, or Callgrind if it runs this program
/// (with A2L2JSON_CALLGRIND_OUT set to its output file). Nothing if neither does.
std::optional<std::uint64_t> ExecutedInstructions(const std::function<void()>& work);

}  // namespace a2l::test
