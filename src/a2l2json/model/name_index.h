// SPDX-License-Identifier: MIT
//
// Finding many elements by their names:
//
//   const NameIndex<VoA2LElementCompuMethod> methods(*tree);
//   for (const auto& measurement : Descendants<VoA2LElementMeasurement>(*tree))
//     if (const auto* method = methods.Find(measurement.CONVERSION)) ...
#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_map>

#include "a2l2json/model/tree.h"

namespace a2l {

/// The elements of `Class` below an element, by their NAME (groups by their GROUP_NAME). The names
/// are views into the tree. Later changes of the tree do not change the index.
template <class Class>
class NameIndex {
 public:
  /// Looks at every element below `ancestor` once.
  explicit NameIndex(const VoA2LElement& ancestor) {
    for (const Class& element : Descendants<Class>(ancestor)) {
      elements_.emplace(detail::NameOf(element), &element);
    }
  }

  /// The element with that name, or null. If several have it, the first in the order of the file.
  /// The time does not depend on the number of elements.
  [[nodiscard]] const Class* Find(std::string_view name) const {
    const auto found = elements_.find(name);
    return found == elements_.end() ? nullptr : found->second;
  }

  /// Number of different names.
  [[nodiscard]] std::size_t size() const { return elements_.size(); }

 private:
  std::unordered_map<std::string_view, const Class*> elements_;
};

}  // namespace a2l
