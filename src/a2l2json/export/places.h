// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "a2l2json/export/object_table.h"
#include "a2l2json/model/element.h"

namespace a2l {

/// The children of one element, sorted to the rows of its table in one pass: per row the first
/// child of its kinds, and per child the next one of the same row.
class Places {
 public:
  /// The arrays of all objects that are being written.
  struct Stack {
    std::vector<std::uint32_t> places;
    std::size_t used = 0;
  };

  Places(Stack& stack, const ObjectTable& table, const VoA2LElement& element)
      : stack_(stack),
        rows_(table.always),
        first_(stack.used),
        next_(first_ + table.rows.size()),
        element_(element) {
    const List<VoA2LElement*>& children = element.children;
    stack.used = next_ + children.size();
    // A module has most of the places; what the objects in it need is little.
    if (stack.places.size() < stack.used) stack.places.resize(stack.used + stack.used / 8 + 64);
    for (std::size_t i = children.size(); i-- > 0;) {
      const std::uint8_t row = table.rowOfKind[KindIndex(children[i]->kind)];
      if (row == 0) continue;
      stack.places[next_ + i] = First(row - 1U);
      stack.places[first_ + row - 1] = static_cast<std::uint32_t>(i + 1);
      rows_.Add(row - 1U);
      hasChild_.Add(row - 1U);
    }
  }
  Places(const Places&) = delete;
  Places& operator=(const Places&) = delete;
  ~Places() { stack_.used = first_; }

  /// The rows to look at.
  [[nodiscard]] const RowSet& Rows() const { return rows_; }

  // Positions count from 1; 0 is none.
  [[nodiscard]] std::uint32_t First(std::size_t row) const {
    return hasChild_.Contains(row) ? stack_.places[first_ + row] : 0;
  }
  [[nodiscard]] std::uint32_t Next(std::uint32_t position) const {
    return stack_.places[next_ + position - 1];
  }
  [[nodiscard]] const VoA2LElement& Child(std::uint32_t position) const {
    return *element_.children[position - 1];
  }

 private:
  Stack& stack_;
  RowSet rows_;
  RowSet hasChild_;
  std::size_t first_;
  std::size_t next_;
  const VoA2LElement& element_;
};

}  // namespace a2l
