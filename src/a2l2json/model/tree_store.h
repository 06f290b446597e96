// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>

#include "a2l2json/text/bytes.h"

#include "a2l2json/names_begin.h"

namespace a2l {

class VoA2LElement;

namespace detail {

/// Memory that is given out piece by piece and released all at once. It is taken from the system in
/// blocks, small ones first, so that a small file costs little, and twice as large each time.
/// Objects fill a block from its front and bytes from its end, so that no text makes a gap before
/// an object.
class Blocks {
 public:
  Blocks() = default;
  Blocks(const Blocks&) = delete;
  Blocks& operator=(const Blocks&) = delete;
  ~Blocks();

  /// What objects are aligned to, and may at most ask for.
  static constexpr std::size_t kAlignment =
      std::max({alignof(void*), alignof(std::uint64_t), alignof(double)});

  /// `size` bytes (at least one) for an object or an array.
  [[nodiscard]] void* AllocateObject(std::size_t size) {
    const std::size_t rounded = (size + kAlignment - 1) & ~(kAlignment - 1);
    if (rounded > Left()) {
      if (char* const own = MakeRoom(rounded)) return own;
    }
    return std::exchange(front_, front_ + rounded);
  }

  /// `size` bytes (at least one) at any address.
  [[nodiscard]] char* AllocateBytes(std::size_t size) {
    if (size > Left()) {
      if (char* const own = MakeRoom(size)) return own;
    }
    return back_ -= size;
  }

 private:
  struct alignas(kAlignment) Block {
    Block* before;
    std::size_t size;
  };

  [[nodiscard]] std::size_t Left() const { return static_cast<std::size_t>(back_ - front_); }

  // Null where a new block with room for `size` bytes has been opened; otherwise a block of that
  // size alone, while the open one goes on being filled.
  char* MakeRoom(std::size_t size);
  char* AddBlock(std::size_t size);

  Block* last_ = nullptr;
  char* front_ = nullptr;  // of what is left in the open block
  char* back_ = nullptr;
  std::size_t nextSize_ = std::size_t{4} * 1024;
};

/// Throws std::bad_alloc; where there are no exceptions, ends the program.
[[noreturn]] void RunOutOfMemory();

}  // namespace detail

/// The memory of one tree: its elements, their lists and their texts. Everything in it lives
/// until the store is destroyed and goes at once, without a walk, however deep the tree is: a
/// conversion makes millions of small objects, and an allocation of its own for each would cost
/// more time and memory than reading them. Allocation failure gives std::bad_alloc.
///
/// Not for use by two threads at a time; two trees are independent of each other.
class TreeStore {
 public:
  TreeStore() = default;
  TreeStore(const TreeStore&) = delete;
  TreeStore& operator=(const TreeStore&) = delete;

  /// The root of the tree that owns this store (see NewTree); null for a store of its own.
  VoA2LElement* root = nullptr;

  /// Makes an element that belongs to this store, with `parent` (may be null) as its parent
  /// link. It is not yet among the parent's children: that is AddChild's decision.
  template <class Element, class... Argument>
  Element* Create(VoA2LElement* parent = nullptr, Argument... arguments) {
    static_assert(std::is_trivially_destructible_v<Element>,
                  "elements are released with their store, their destructors never run");
    static_assert(alignof(Element) <= detail::Blocks::kAlignment,
                  "the store's memory is not aligned for this element");
    auto* element = new (memory_.AllocateObject(sizeof(Element))) Element(arguments...);
    element->parent = parent;
    element->store = this;
    return element;
  }

  /// Copies `text` into the store.
  [[nodiscard]] std::string_view Copy(std::string_view text) {
    if (text.empty()) return {};
    char* const copy = AllocateBytes(text.size());
    bytes::Copy(copy, text.data(), text.size());
    return {copy, text.size()};
  }

  /// `size` bytes for a text (at least one).
  [[nodiscard]] char* AllocateBytes(std::size_t size) { return memory_.AllocateBytes(size); }

  /// An array of 2^`sizeClass` bytes, aligned for any element of a list.
  [[nodiscard]] void* AllocateArray(unsigned sizeClass) {
    if (FreeArray* array = freeArrays_[sizeClass]) {
      freeArrays_[sizeClass] = array->next;
      return array;
    }
    return memory_.AllocateObject(std::size_t{1} << sizeClass);
  }

  /// Takes back an array that a list has outgrown; the next list that grows to it uses it again.
  void RecycleArray(void* array, unsigned sizeClass) {
    freeArrays_[sizeClass] = new (array) FreeArray{freeArrays_[sizeClass]};
  }

 private:
  struct FreeArray {
    FreeArray* next;
  };

  detail::Blocks memory_;
  std::array<FreeArray*, std::numeric_limits<std::size_t>::digits> freeArrays_{};
};

/// A list whose items lie in a TreeStore. It owns nothing itself: the store does.
template <class Item>
class List {
  static_assert(std::is_trivially_copyable_v<Item> && std::is_trivially_destructible_v<Item>,
                "items are moved as bytes and end with their store, their destructors never run");
  static_assert(alignof(Item) <= detail::Blocks::kAlignment,
                "the store's memory is not aligned for these items");

 public:
  /// Appends `item`; the memory comes from `store`, the same one for every call on one list.
  void PushBack(TreeStore& store, Item item) {
    if (size_ == Capacity()) Grow(store);
    items_[size_++] = item;
  }

  void Clear() { size_ = 0; }

  /// Takes every occurrence of `item` out; the others keep their order.
  void Remove(const Item& item) {
    size_ = static_cast<std::uint32_t>(std::remove(begin(), end(), item) - begin());
  }

  [[nodiscard]] std::size_t size() const { return size_; }
  [[nodiscard]] bool empty() const { return size_ == 0; }
  [[nodiscard]] Item& operator[](std::size_t i) { return items_[i]; }
  [[nodiscard]] const Item& operator[](std::size_t i) const { return items_[i]; }
  [[nodiscard]] Item* begin() { return items_; }
  [[nodiscard]] Item* end() { return items_ + size_; }
  [[nodiscard]] const Item* begin() const { return items_; }
  [[nodiscard]] const Item* end() const { return items_ + size_; }

 private:
  static constexpr unsigned kFirstSizeClass = 5;
  static constexpr unsigned kMostSizeClass = std::numeric_limits<std::size_t>::digits - 2;

  [[nodiscard]] std::size_t Capacity() const {
    return items_ == nullptr ? 0 : (std::size_t{1} << sizeClass_) / sizeof(Item);
  }

  void Grow(TreeStore& store) {
    const unsigned sizeClass = items_ == nullptr ? kFirstSizeClass : sizeClass_ + 1U;
    // More items than can be counted are more than any memory holds.
    constexpr std::size_t kMostItems = std::numeric_limits<std::uint32_t>::max();
    if (sizeClass > kMostSizeClass || (std::size_t{1} << sizeClass) / sizeof(Item) > kMostItems) {
      detail::RunOutOfMemory();
    }
    auto* items = static_cast<Item*>(store.AllocateArray(sizeClass));
    if (items_ != nullptr) {
      std::memcpy(items, items_, size_ * sizeof(Item));
      store.RecycleArray(items_, sizeClass_);
    }
    items_ = items;
    sizeClass_ = static_cast<std::uint8_t>(sizeClass);
  }

  Item* items_ = nullptr;
  std::uint32_t size_ = 0;
  std::uint8_t sizeClass_ = 0;
};

}  // namespace a2l

#include "a2l2json/names_end.h"
