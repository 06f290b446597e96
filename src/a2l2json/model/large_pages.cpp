// SPDX-License-Identifier: MIT
#include "a2l2json/model/large_pages.h"

#ifdef __linux__
#include <memory>

#include <sys/mman.h>
#endif

namespace a2l::detail {

#ifdef __linux__
void AskForLargePages(void* memory, std::size_t size) {
  if (std::align(kLargePage, kLargePage, memory, size) == nullptr) return;
  // Where the system refuses, its usual pages do.
  static_cast<void>(madvise(memory, size / kLargePage * kLargePage, MADV_HUGEPAGE));
}
#else
void AskForLargePages(void* /*memory*/, std::size_t /*size*/) {}
#endif

}  // namespace a2l::detail
