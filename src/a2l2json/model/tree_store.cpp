// SPDX-License-Identifier: MIT
#include "a2l2json/model/tree_store.h"

#include <cstdlib>
#include <new>

namespace a2l::detail {
namespace {

constexpr std::size_t kMostBlockSize = std::size_t{4} * 1024 * 1024;

}  // namespace

char* Blocks::MakeRoom(std::size_t size) {
  // What is left of the open block is lost when another is opened. A piece that is large against a
  // block does not cause that, so that little is lost.
  if (size > nextSize_ / 8) return AddBlock(size);
  const std::size_t room = nextSize_ - sizeof(Block);
  front_ = AddBlock(room);
  back_ = front_ + room;
  nextSize_ = std::min(nextSize_ * 2, kMostBlockSize);
  return nullptr;
}

char* Blocks::AddBlock(std::size_t size) {
  auto* const bytes = static_cast<char*>(::operator new(sizeof(Block) + size));
  last_ = new (bytes) Block{last_};
  return bytes + sizeof(Block);
}

void RunOutOfMemory() {
#ifdef __cpp_exceptions
  throw std::bad_alloc();
#else
  std::abort();
#endif
}

}  // namespace a2l::detail
