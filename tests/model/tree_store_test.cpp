// SPDX-License-Identifier: MIT
#include "a2l2json/model/tree_store.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/model/element.h"
#include "tests/torture/meters.h"

namespace a2l::test {
namespace {

template <class Item>
std::vector<Item> Items(const List<Item>& list) {
  return {list.begin(), list.end()};
}

TEST(List, IsEmptyAtFirst) {
  const List<int> list;
  EXPECT_TRUE(list.empty());
  EXPECT_EQ(list.size(), 0U);
  EXPECT_EQ(list.begin(), list.end());
}

TEST(List, KeepsItemsInOrderWhileItGrows) {
  TreeStore store;
  List<std::uint64_t> list;
  for (std::uint64_t i = 0; i < 100000; ++i) {
    list.PushBack(store, i * i);
    ASSERT_EQ(list.size(), i + 1);
    ASSERT_EQ(list[i], i * i);
    ASSERT_EQ(list[i / 2], (i / 2) * (i / 2));
  }
  std::uint64_t i = 0;
  for (const std::uint64_t item : list) {
    ASSERT_EQ(item, i * i);
    ++i;
  }
  EXPECT_EQ(i, 100000U);
  EXPECT_FALSE(list.empty());
}

TEST(List, HoldsTexts) {
  TreeStore store;
  List<std::string_view> list;
  for (int i = 0; i < 1000; ++i) list.PushBack(store, store.Copy(std::to_string(i)));
  for (int i = 0; i < 1000; ++i) ASSERT_EQ(list[static_cast<std::size_t>(i)], std::to_string(i));
}

// Lists grow side by side, and use arrays that others have outgrown.
TEST(List, DoesNotDisturbOthersOfItsStore) {
  TreeStore store;
  constexpr std::size_t kLists = 50;
  std::vector<List<std::uint32_t>> numbers(kLists);
  std::vector<List<std::uint64_t>> wideNumbers(kLists);
  std::uint32_t next = 0;
  std::vector<std::vector<std::uint32_t>> expected(kLists);
  for (std::size_t round = 0; round < 2000; ++round) {
    for (std::size_t i = 0; i < kLists; ++i) {
      if (round % (i + 1) != 0) continue;
      numbers[i].PushBack(store, next);
      wideNumbers[i].PushBack(store, ~std::uint64_t{next});
      expected[i].push_back(next);
      ++next;
    }
  }
  for (std::size_t i = 0; i < kLists; ++i) {
    ASSERT_EQ(Items(numbers[i]), expected[i]) << i;
    ASSERT_EQ(wideNumbers[i].size(), expected[i].size());
    for (std::size_t j = 0; j < expected[i].size(); ++j)
      ASSERT_EQ(wideNumbers[i][j], ~std::uint64_t{expected[i][j]}) << i << " " << j;
  }
}

TEST(List, RemovesEveryOccurrence) {
  TreeStore store;
  List<int> list;
  list.Remove(1);
  EXPECT_TRUE(list.empty());
  for (const int item : {1, 2, 1, 3, 1, 1, 2}) list.PushBack(store, item);
  list.Remove(4);
  EXPECT_EQ(list.size(), 7U);
  list.Remove(1);
  EXPECT_EQ(Items(list), (std::vector<int>{2, 3, 2}));
  list.Remove(3);
  list.Remove(2);
  EXPECT_TRUE(list.empty());
  list.PushBack(store, 5);
  EXPECT_EQ(Items(list), std::vector<int>{5});
}

TEST(List, CanBeClearedAndFilledAgain) {
  TreeStore store;
  List<int> list;
  for (int i = 0; i < 100; ++i) list.PushBack(store, i);
  list.Clear();
  EXPECT_TRUE(list.empty());
  list.PushBack(store, 7);
  list.PushBack(store, 8);
  EXPECT_EQ(Items(list), (std::vector<int>{7, 8}));
}

TEST(List, KnowsItsStoreFromTheFirstItemOn) {
  TreeStore store;
  List<int> filled;
  EXPECT_EQ(filled.Store(), nullptr);
  filled.PushBack(store, 1);
  EXPECT_EQ(filled.Store(), &store);
  List<int> attached;
  attached.Attach(store);
  attached.Attach(store);
  EXPECT_EQ(attached.Store(), &store);
  EXPECT_TRUE(attached.empty());
  EXPECT_EQ(attached.begin(), attached.end());
}

TEST(TreeStore, GivesArraysOfTheirOwn) {
  TreeStore store;
  std::set<void*> arrays;
  for (int i = 0; i < 10; ++i) {
    void* array = store.AllocateArray(6);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(array) % alignof(std::uint64_t), 0U);
    EXPECT_TRUE(arrays.insert(array).second);
  }
}

TEST(TreeStore, UsesRecycledArraysAgain) {
  TreeStore store;
  void* const first = store.AllocateArray(5);
  void* const second = store.AllocateArray(5);
  void* const larger = store.AllocateArray(7);
  for (void* array : {first, second}) store.RecycleArray(array, 5);
  store.RecycleArray(larger, 7);

  const std::set<void*> again = {store.AllocateArray(5), store.AllocateArray(5)};
  EXPECT_EQ(again, (std::set<void*>{first, second}));
  EXPECT_EQ(store.AllocateArray(7), larger);
  EXPECT_FALSE(again.contains(store.AllocateArray(5)));
}

TEST(TreeStore, CopiesTexts) {
  TreeStore store;
  std::string source = "some text";
  source.resize(20, '\0');
  const std::string kept = source;
  const std::string_view copy = store.Copy(source);
  source.assign(source.size(), '#');
  EXPECT_EQ(copy, kept);
  EXPECT_EQ(store.Copy(""), "");
  EXPECT_EQ(store.Copy({}), "");

  std::string large;
  large.resize(10000000, 'x');
  EXPECT_TRUE(store.Copy(large) == large);
  EXPECT_EQ(copy, kept);
}

// Pieces of all sizes, small and larger than any block, next to each other: none overlaps another,
// and objects are aligned.
TEST(TreeStore, GivesEveryPieceItsOwnBytes) {
  TreeStore store;
  struct Piece {
    unsigned char* bytes;
    std::size_t size;
    unsigned char filling;
  };
  std::vector<Piece> pieces;
  const auto add = [&](void* bytes, std::size_t size) {
    const auto filling = static_cast<unsigned char>(pieces.size() % 251);
    pieces.push_back({static_cast<unsigned char*>(bytes), size, filling});
    std::memset(bytes, filling, size);
  };
  for (std::size_t i = 0; i < 3000; ++i) {
    add(store.AllocateBytes(1 + i % 37), 1 + i % 37);
    const auto sizeClass = static_cast<unsigned>(5 + i % 4);
    void* const array = store.AllocateArray(sizeClass);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(array) % alignof(std::uint64_t), 0U);
    add(array, std::size_t{1} << sizeClass);
    const std::size_t large = i * 7 + 1;
    if (i % 10 == 0) add(store.AllocateBytes(large), large);
    if (i % 300 == 0) add(store.AllocateArray(23), std::size_t{1} << 23U);
  }
  for (const Piece& piece : pieces) {
    unsigned char* const end = piece.bytes + piece.size;
    ASSERT_EQ(std::count(piece.bytes, end, piece.filling), end - piece.bytes) << piece.size;
  }
}

TEST(TreeStore, TakesLittleMemoryForASmallTree) {
  const auto bytes = AllocatedBytes([] {
    TreeStore store;
    for (int i = 0; i < 20; ++i) {
      store.Create<VoA2LElement>();
      static_cast<void>(store.Copy("a text"));
    }
  });
  if (!bytes.has_value()) GTEST_SKIP() << "allocations cannot be counted here";
  EXPECT_LT(*bytes, 8192U);
}

// Nearly all of every block is used, except for the one that is open.
TEST(TreeStore, LosesLittleMemory) {
  constexpr std::size_t kPieces = 200000;
  constexpr std::size_t kSize = 100;
  TreeStore store;
  std::uint64_t given = 0;
  const auto bytes = AllocatedBytes([&] {
    for (std::size_t i = 0; i < kPieces; ++i) {
      const std::size_t size = i % 20000 == 0 ? 35000 * kSize : kSize;
      static_cast<void>(store.AllocateBytes(size));
      given += size;
    }
  });
  if (!bytes.has_value()) GTEST_SKIP() << "allocations cannot be counted here";
  EXPECT_LT(*bytes, given + given / 50 + std::uint64_t{4} * 1024 * 1024);
}

// What large lists have outgrown becomes room for texts and objects.
TEST(TreeStore, FillsTheArraysThatALargeListHasOutgrown) {
  constexpr std::size_t kItems = std::size_t{1} << 20;
  constexpr std::size_t kTexts = kItems * sizeof(std::uint64_t) * 9 / 10;
  TreeStore store;
  List<std::uint64_t> list;
  for (std::uint64_t i = 0; i < kItems + 1; ++i) list.PushBack(store, i);
  const std::string text(64, 'x');
  const auto bytes = AllocatedBytes([&] {
    for (std::size_t used = 0; used < kTexts; used += text.size()) {
      static_cast<void>(store.Copy(text));
    }
  });
  for (std::uint64_t i = 0; i < kItems + 1; ++i) ASSERT_EQ(list[i], i);
  if (!bytes.has_value()) GTEST_SKIP() << "allocations cannot be counted here";
  EXPECT_LT(*bytes, kTexts / 4);
}

TEST(TreeStore, CreatesElementsThatKnowIt) {
  TreeStore store;
  EXPECT_EQ(store.root, nullptr);
  auto* parent = store.Create<VoA2LElement>();
  auto* child = store.Create<VoA2LElement>(parent);
  EXPECT_EQ(parent->parent, nullptr);
  EXPECT_EQ(&parent->Store(), &store);
  EXPECT_EQ(child->parent, parent);
  EXPECT_EQ(&child->Store(), &store);
  EXPECT_TRUE(parent->children.empty());
}

TEST(TreeStore, OfANewTreeKnowsTheRoot) {
  VoA2LElement* root = NewTree();
  EXPECT_EQ(root->Store().root, root);
  DestroyTree(root);
}

}  // namespace
}  // namespace a2l::test
