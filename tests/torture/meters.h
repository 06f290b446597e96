// SPDX-License-Identifier: MIT
//
// What a piece of code costs, told without a clock.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

namespace a2l::test {

/// Bytes that `work` takes from operator new in this thread, freed or not; nothing where they
/// cannot be counted.
std::optional<std::uint64_t> AllocatedBytes(const std::function<void()>& work);

/// Instructions that `work` executes; nothing where the system does not count them for us.
std::optional<std::uint64_t> ExecutedInstructions(const std::function<void()>& work);

}  // namespace a2l::test
