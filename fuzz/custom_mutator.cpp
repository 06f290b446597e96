// SPDX-License-Identifier: MIT
//
// Lets libFuzzer use the changes of a2l_mutator in addition to its own. Only libFuzzer programs
// hold this file.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/a2l_mutator.h"

// A function of libFuzzer: makes one of its own changes.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed) {
  if (seed % 2 == 0) return LLVMFuzzerMutate(data, size, maxSize);
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::string mutated = a2l::fuzz::Mutated(text, seed, maxSize);
  std::ranges::copy(mutated, data);
  return mutated.size();
}
