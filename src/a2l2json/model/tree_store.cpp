// SPDX-License-Identifier: MIT
#include "a2l2json/model/tree_store.h"

#include <cstdlib>
#include <new>

#include "a2l2json/model/large_pages.h"

namespace a2l::detail {
namespace {

constexpr std::size_t kMostBlockSize = kLargePage;

// A block that consists of large pages begins at one.
constexpr std::align_val_t AlignmentOf(std::size_t size) {
  return std::align_val_t{size % kLargePage == 0 ? kLargePageAlignment : alignof(std::max_align_t)};
}

}  // namespace

char* Blocks::MakeRoom(std::size_t size) {
  // What is left of the open block is lost when another is opened. A piece that is large against a
  // block does not cause that, so that little is lost.
  if (size > nextSize_ / 8) return AddBlock(size);
  if (spare_ != nullptr && spare_->size >= size) {
    front_ = reinterpret_cast<char*>(spare_);
    back_ = front_ + spare_->size;
    spare_ = spare_->next;
    return nullptr;
  }
  const std::size_t room = nextSize_ - sizeof(Block);
  front_ = AddBlock(room);
  back_ = front_ + room;
  nextSize_ = std::min(nextSize_ * 2, kMostBlockSize);
  return nullptr;
}

char* Blocks::AddBlock(std::size_t size) {
  const std::size_t whole = sizeof(Block) + size;
  void* const bytes = ::operator new(whole, AlignmentOf(whole));
  if (whole % kLargePage == 0) AskForLargePages(bytes, whole);
  last_ = new (bytes) Block{last_, whole};
  return static_cast<char*>(bytes) + sizeof(Block);
}

Blocks::~Blocks() {
  while (last_ != nullptr) {
    Block* const block = std::exchange(last_, last_->before);
    ::operator delete(block, AlignmentOf(block->size));
  }
}

void RunOutOfMemory() {
#ifdef __cpp_exceptions
  throw std::bad_alloc();
#else
  std::abort();
#endif
}

}  // namespace a2l::detail
