// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <bit>
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

  /// Takes back `size` bytes that AllocateObject gave, at least as many as a Spare has.
  void TakeBack(void* memory, std::size_t size) { spare_ = new (memory) Spare{spare_, size}; }

 private:
  // Memory that was taken back and is opened before a new block is added.
  struct Spare {
    Spare* next;
    std::size_t size;
  };

  struct alignas(kAlignment) Block {
    Block* before;
    std::size_t size;
  };

  [[nodiscard]] std::size_t Left() const { return static_cast<std::size_t>(back_ - front_); }

  // Null where a new block, or a spare one, with room for `size` bytes has been opened; otherwise a
  // block of that size alone, while the open one goes on being filled.
  char* MakeRoom(std::size_t size);
  char* AddBlock(std::size_t size);

  Block* last_ = nullptr;
  Spare* spare_ = nullptr;
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
    if (parent == nullptr) element->children.Attach(*this);
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

  static constexpr std::size_t kArrayHead = 16;

  /// An array of 2^`sizeClass` bytes behind a head, aligned for any element of a list.
  [[nodiscard]] void* AllocateArray(unsigned sizeClass) {
    if (FreeArray* array = freeArrays_[sizeClass]) {
      freeArrays_[sizeClass] = array->next;
      return array;
    }
    return memory_.AllocateObject(ArraySize(sizeClass));
  }

  /// Takes back an array that a list has outgrown; the next list that grows to it uses it again.
  /// Few lists grow large, so large arrays become room for anything.
  void RecycleArray(void* array, unsigned sizeClass) {
    constexpr unsigned kLargeSizeClass = 12;
    if (sizeClass >= kLargeSizeClass) {
      memory_.TakeBack(array, ArraySize(sizeClass));
      return;
    }
    freeArrays_[sizeClass] = new (array) FreeArray{freeArrays_[sizeClass]};
  }

 private:
  struct FreeArray {
    FreeArray* next;
  };

  static constexpr std::size_t ArraySize(unsigned sizeClass) {
    return kArrayHead + (std::size_t{1} << sizeClass);
  }

  detail::Blocks memory_;
  std::array<FreeArray*, std::numeric_limits<std::size_t>::digits> freeArrays_{};
};

/// A list whose items lie in a TreeStore. It owns nothing itself: the store does. Most lists of a
/// tree stay empty, and an empty one is no more than a pointer; what a list is otherwise stands in
/// front of its items.
template <class Item>
class List {
  static_assert(std::is_trivially_copyable_v<Item> && std::is_trivially_destructible_v<Item>,
                "items are moved as bytes and end with their store, their destructors never run");
  static_assert(alignof(Item) <= detail::Blocks::kAlignment,
                "the store's memory is not aligned for these items");
  static_assert(std::has_single_bit(sizeof(Item)) && sizeof(Item) <= 16,
                "items fill an array, of which the first has 16 bytes");

 public:
  List() = default;
  // Two lists cannot share an array, and a root whose list is replaced would lose its store.
  List(const List&) = delete;
  List& operator=(const List&) = delete;

  /// Appends `item`; the memory comes from `store`, the same one for every call on one list.
  void PushBack(TreeStore& store, Item item) {
    if (array_ == nullptr || array_->size == array_->room) Grow(store);
    Items()[array_->size++] = item;
  }

  void Clear() {
    if (array_ != nullptr) array_->size = 0;
  }

  /// Takes every occurrence of `item` out; the others keep their order.
  void Remove(const Item& item) {
    if (array_ == nullptr) return;
    array_->size = static_cast<std::uint32_t>(std::remove(begin(), end(), item) - begin());
  }

  /// Forgets the items and their store, as if there had never been any.
  void Detach() { array_ = nullptr; }
  /// Makes `store` known to a list that has none yet, before there are items.
  void Attach(TreeStore& store) {
    if (array_ == nullptr) Grow(store);
  }
  /// The store that the items lie in; null for a list that never had any.
  [[nodiscard]] TreeStore* Store() const { return array_ != nullptr ? array_->store : nullptr; }

  [[nodiscard]] std::size_t size() const { return array_ != nullptr ? array_->size : 0; }
  [[nodiscard]] bool empty() const { return size() == 0; }
  [[nodiscard]] Item& operator[](std::size_t i) { return Items()[i]; }
  [[nodiscard]] const Item& operator[](std::size_t i) const { return Items()[i]; }
  [[nodiscard]] Item* begin() { return array_ != nullptr ? Items() : nullptr; }
  [[nodiscard]] Item* end() { return begin() + size(); }
  [[nodiscard]] const Item* begin() const { return array_ != nullptr ? Items() : nullptr; }
  [[nodiscard]] const Item* end() const { return begin() + size(); }

 private:
  // What stands in front of the items.
  struct alignas(detail::Blocks::kAlignment) Array {
    TreeStore* store;
    std::uint32_t size;
    std::uint32_t room;
  };
  static_assert(sizeof(Array) <= TreeStore::kArrayHead, "the items begin behind the head");

  static constexpr unsigned kFirstSizeClass = 4;
  static constexpr unsigned kMostSizeClass = std::numeric_limits<std::size_t>::digits - 2;

  [[nodiscard]] Item* Items() const { return reinterpret_cast<Item*>(array_ + 1); }

  [[nodiscard]] unsigned SizeClass() const {
    return static_cast<unsigned>(std::bit_width(array_->room * sizeof(Item) - 1));
  }

  void Grow(TreeStore& store) {
    const unsigned sizeClass = array_ == nullptr ? kFirstSizeClass : SizeClass() + 1U;
    // More items than can be counted are more than any memory holds.
    constexpr std::size_t kMostItems = std::numeric_limits<std::uint32_t>::max();
    const std::size_t room = (std::size_t{1} << sizeClass) / sizeof(Item);
    if (sizeClass > kMostSizeClass || room > kMostItems) detail::RunOutOfMemory();
    auto* const array = new (store.AllocateArray(sizeClass))
        Array{&store, static_cast<std::uint32_t>(size()), static_cast<std::uint32_t>(room)};
    if (array_ != nullptr) {
      std::memcpy(array + 1, begin(), array_->size * sizeof(Item));
      store.RecycleArray(array_, SizeClass());
    }
    array_ = array;
  }

  Array* array_ = nullptr;
};

}  // namespace a2l

#include "a2l2json/names_end.h"
