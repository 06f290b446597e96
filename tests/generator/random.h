// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace a2l::test {

/// Random numbers that are the same for a seed on every platform. The distributions of the standard
/// library do not promise that.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}
  /// A seed for each name: what is picked for one does not depend on the others.
  explicit Random(std::string_view name) {
    for (const char c : name) state_ = (state_ ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  }

  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t bits = state_;
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    return bits ^ (bits >> 31U);
  }
  /// From 0 to `end` - 1.
  std::size_t Below(std::size_t end) { return static_cast<std::size_t>(Next() % end); }
  bool OneIn(std::size_t times) { return Below(times) == 0; }
  /// An element of a container that is not empty.
  template <class Container>
  const auto& Pick(const Container& container) {
    return container[Below(std::size(container))];
  }

 private:
  std::uint64_t state_ = 0xCBF29CE484222325U;
};

}  // namespace a2l::test
