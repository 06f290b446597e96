// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace a2l::detail {

/// The size of a large page, and what memory that shall have such pages is aligned to.
inline constexpr std::size_t kLargePage = std::size_t{2} * 1024 * 1024;

/// Asks the system to back memory with large pages where it has them: the first touch of each page
/// ends in the system, and a tree of 100 MB has 50 of them in place of 27,000. Changes nothing
/// else.
void AskForLargePages(void* memory, std::size_t size);

}  // namespace a2l::detail
