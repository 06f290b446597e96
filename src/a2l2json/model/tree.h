// SPDX-License-Identifier: MIT
//
// Owning a tree of elements, and finding elements in it by their class:
//
//   for (const auto& measurement : Descendants<VoA2LElementMeasurement>(*tree))
//     if (const auto* address = FirstChild<VoA2LElementECUAddress>(measurement)) ...
//   const auto* speed = FindByName<VoA2LElementMeasurement>(*tree, "EngineSpeed");
//
// The class VoA2LElement finds elements of every class. What is found in a const element is const.
// While a loop like the above runs, do not add or remove children of the elements it is in. Texts
// of elements are views, which are valid as long as their tree.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "a2l2json/model/element.h"

#include "a2l2json/names_begin.h"

namespace a2l {

/// Owns a tree and destroys it with everything in it; a new one is empty. Use it like a
/// std::unique_ptr to the root, but the root of a const tree is const.
class Tree {
 public:
  Tree() : Tree(NewTree()) {}
  /// Takes over the tree with that root.
  explicit Tree(VoA2LElement* root) : root_(root) {}
  Tree(Tree&& other) noexcept : root_(other.release()) {}
  Tree& operator=(Tree&& other) noexcept {
    if (this != &other) DestroyTree(std::exchange(root_, other.release()));
    return *this;
  }
  ~Tree() { DestroyTree(root_); }

  /// The root; null where the tree was moved or given away.
  [[nodiscard]] VoA2LElement* get() { return root_; }
  [[nodiscard]] const VoA2LElement* get() const { return root_; }
  [[nodiscard]] VoA2LElement& operator*() { return *root_; }
  [[nodiscard]] const VoA2LElement& operator*() const { return *root_; }
  [[nodiscard]] VoA2LElement* operator->() { return root_; }
  [[nodiscard]] const VoA2LElement* operator->() const { return root_; }
  /// Gives the tree to the caller, who ends it with DestroyTree.
  [[nodiscard]] VoA2LElement* release() noexcept { return std::exchange(root_, nullptr); }

 private:
  VoA2LElement* root_;
};

/// Whether the element is of `Class`: its kind tells.
template <class Class>
[[nodiscard]] bool HasClass(const VoA2LElement& element) {
  if constexpr (std::is_same_v<Class, VoA2LElement>) {
    return true;
  } else {
    return std::ranges::find(Class::kinds, element.kind) != Class::kinds.end();
  }
}

/// The element as one of `Class`; null if it is of another class.
template <class Class>
[[nodiscard]] const Class* As(const VoA2LElement& element) {
  return HasClass<Class>(element) ? static_cast<const Class*>(&element) : nullptr;
}
template <class Class>
[[nodiscard]] Class* As(VoA2LElement& element) {
  return HasClass<Class>(element) ? static_cast<Class*>(&element) : nullptr;
}

namespace detail {

/// The end of every walk. (With that of <iterator>, every user would also include streams.)
struct EndOfWalk {};

/// A range: those of the elements that Steps::Next gives, one after the other, that are of `Class`.
/// Steps::Next gives null at the end.
template <class Class, class Steps>
class Walk {
 public:
  class Iterator {
   public:
    using value_type = std::remove_const_t<Class>;
    using difference_type = std::ptrdiff_t;

    explicit Iterator(Steps steps) : steps_(std::move(steps)) { ++*this; }

    Class& operator*() const { return *element_; }
    Class* operator->() const { return element_; }
    Iterator& operator++() {
      element_ = nullptr;
      while (VoA2LElement* next = steps_.Next()) {
        element_ = As<value_type>(*next);
        if (element_ != nullptr) break;
      }
      return *this;
    }
    void operator++(int) { ++*this; }
    friend bool operator==(const Iterator& iterator, EndOfWalk /*end*/) {
      return iterator.element_ == nullptr;
    }
    // Follows from ==, which static analysis does not see everywhere.
    friend bool operator!=(const Iterator& iterator, EndOfWalk /*end*/) {
      return iterator.element_ != nullptr;
    }

   private:
    Steps steps_;
    Class* element_ = nullptr;
  };

  explicit Walk(const VoA2LElement& from) : from_(&from) {}

  [[nodiscard]] Iterator begin() const { return Iterator(Steps(*from_)); }
  [[nodiscard]] EndOfWalk end() const { return {}; }
  /// Null where there is none.
  [[nodiscard]] Class* First() const {
    const Iterator first = begin();
    return first == end() ? nullptr : &*first;
  }

 private:
  const VoA2LElement* from_;
};

/// From child to child.
class ChildSteps {
 public:
  explicit ChildSteps(const VoA2LElement& parent) : parent_(&parent) {}
  VoA2LElement* Next() { return parent_->Child(next_++); }

 private:
  const VoA2LElement* parent_;
  std::size_t next_ = 0;
};

/// From an element to its first child or, where it has none, to what follows it in the file.
class DescendantSteps {
 public:
  explicit DescendantSteps(const VoA2LElement& ancestor) : path_{ChildSteps(ancestor)} {}
  VoA2LElement* Next() {
    // A file may nest its blocks as deep as it is long: the way back is not on the call stack.
    while (!path_.empty()) {
      if (VoA2LElement* element = path_.back().Next()) {
        path_.emplace_back(*element);
        return element;
      }
      path_.pop_back();
    }
    return nullptr;
  }

 private:
  std::vector<ChildSteps> path_;
};

/// The name of an element: its NAME, or its GROUP_NAME.
template <class Class>
std::string_view NameOf(const Class& element) {
  if constexpr (requires { std::string_view(element.GROUP_NAME); }) {
    return element.GROUP_NAME;
  } else {
    static_assert(
        requires { std::string_view(element.NAME); }, "elements of this class have no name");
    return element.NAME;
  }
}

/// The first of `elements` with that name; null where there is none.
template <class Class, class Steps>
Class* FirstWithName(const Walk<Class, Steps>& elements, std::string_view name) {
  for (Class& element : elements) {
    if (NameOf(element) == name) return &element;
  }
  return nullptr;
}

}  // namespace detail

/// The children of `parent` that are of `Class`, in the order of the file.
template <class Class>
[[nodiscard]] detail::Walk<const Class, detail::ChildSteps> ChildrenOf(const VoA2LElement& parent) {
  return detail::Walk<const Class, detail::ChildSteps>(parent);
}
template <class Class>
[[nodiscard]] detail::Walk<Class, detail::ChildSteps> ChildrenOf(VoA2LElement& parent) {
  return detail::Walk<Class, detail::ChildSteps>(parent);
}

/// The elements of `Class` below `ancestor`, on whatever level, in the order of the file.
template <class Class>
[[nodiscard]] detail::Walk<const Class, detail::DescendantSteps> Descendants(
    const VoA2LElement& ancestor) {
  return detail::Walk<const Class, detail::DescendantSteps>(ancestor);
}
template <class Class>
[[nodiscard]] detail::Walk<Class, detail::DescendantSteps> Descendants(VoA2LElement& ancestor) {
  return detail::Walk<Class, detail::DescendantSteps>(ancestor);
}

/// The first child of `parent` that is of `Class`; null where there is none.
template <class Class>
[[nodiscard]] const Class* FirstChild(const VoA2LElement& parent) {
  return ChildrenOf<Class>(parent).First();
}
template <class Class>
[[nodiscard]] Class* FirstChild(VoA2LElement& parent) {
  return ChildrenOf<Class>(parent).First();
}

/// The first element of `Class` below `ancestor` whose NAME (GROUP_NAME of a group) is `name`, in
/// the order of the file; null where there is none. Every element up to that one is looked at: for
/// many names, make a NameIndex (model/name_index.h).
template <class Class>
[[nodiscard]] const Class* FindByName(const VoA2LElement& ancestor, std::string_view name) {
  return detail::FirstWithName(Descendants<Class>(ancestor), name);
}
template <class Class>
[[nodiscard]] Class* FindByName(VoA2LElement& ancestor, std::string_view name) {
  return detail::FirstWithName(Descendants<Class>(ancestor), name);
}

}  // namespace a2l

#include "a2l2json/names_end.h"
