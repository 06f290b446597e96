// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace a2l::detail {

/// The size of a large page.
inline constexpr std::size_t kLargePage = std::size_t{2} * 1024 * 1024;

/// The alignment of memory that shall have large pages; on systems without them, the usual one.
#ifdef __linux__
inline constexpr std::size_t kLargePageAlignment = kLargePage;
#else
inline constexpr std::size_t kLargePageAlignment = alignof(std::max_align_t);
#endif

/// Asks the system to back memory with large pages where it has them: the first touch of each page
/// ends in the system, and a tree of 100 MB has 50 of them in place of 27,000. Changes nothing
/// else. Of memory that is not aligned, these are the large pages that lie in it as a whole.
void AskForLargePages(void* memory, std::size_t size);

}  // namespace a2l::detail
