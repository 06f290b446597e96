// SPDX-License-Identifier: MIT
//
// What the objects of the JSON document are made of: one table per object, one row per key, in
// ascending byte order of the keys, which is their order in the document.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "a2l2json/export/forms.h"
#include "a2l2json/model/keywords.h"

namespace a2l {

/// Where the value of a row comes from.
enum class Source : std::uint8_t {
  Element,        ///< the element itself
  FirstChild,     ///< its first child of a kind
  Presence,       ///< whether it has a child of a kind
  Children,       ///< all its children of a kind, as an array
  Grandchildren,  ///< all children of a kind of all these, as one array
  Found,          ///< an element that a function finds
};

/// What stands in the document where the source has nothing.
enum class Absent : std::uint8_t {
  Null,
  EmptyArray,
  Omit,  ///< the key is left out
};

/// One key of an object. The functions of rows.h make rows.
struct Row {
  std::string_view key;
  Source source = Source::Element;
  Absent absent = Absent::Null;
  /// The kind of the children that feed the key; KIND_ROOT where none do.
  ElementKind kind = KIND_ROOT;
  /// A second kind that feeds the key; the child that comes first in the file counts.
  ElementKind otherKind = KIND_ROOT;
  ElementKind grandchild = KIND_ROOT;
  Form form = {};
  Form otherForm = {};
  const VoA2LElement* (*find)(const VoA2LElement&) = nullptr;
  /// Of a field of the element: the first kind of its class, and what tells the field from others.
  ElementKind owner = KIND_ROOT;
  const char* field = nullptr;
};

/// True where the children of its kinds go straight to a row.
constexpr bool TakesChildren(const Row& row) {
  return row.source != Source::Element && row.source != Source::Found;
}

/// The text of a member up to its value, `, "FNAME": `, followed by "null". It is made at compile
/// time and of fixed size, so that writing it is a copy without a loop: keys are two thirds of a
/// document, and most of its values are null.
class KeyText {
 public:
  static constexpr std::size_t kBytes = 48;

  constexpr KeyText() = default;
  constexpr explicit KeyText(std::string_view key) {
    Append(", \"");
    Append(key);
    Append("\": ");
    size_ = used_;
    Append("null");
  }

  [[nodiscard]] constexpr const char* Bytes() const { return bytes_.data(); }
  /// Bytes up to the value, and with the "null".
  [[nodiscard]] constexpr std::size_t Size() const { return size_; }
  [[nodiscard]] constexpr std::size_t SizeWithNull() const { return used_; }
  [[nodiscard]] constexpr std::string_view Key() const {
    return std::string_view(bytes_.data(), size_).substr(3, size_ - 6U);
  }

 private:
  constexpr void Append(std::string_view text) {
    for (const char c : text) bytes_.at(used_++) = c;
  }

  std::array<char, kBytes> bytes_{};
  std::uint8_t size_ = 0;
  std::uint8_t used_ = 0;
};

/// The table of one object.
struct ObjectTable {
  /// The kinds of the class that the object is made of; none for the whole document.
  std::span<const ElementKind> kinds;
  std::span<const Row> rows;
  std::span<const KeyText> keys;  // of the rows
  /// Per KindIndex, 1 + the row that children of the kind go to; 0 where they go nowhere.
  std::array<std::uint8_t, kKindIndexCount> rowOfKind{};
};

}  // namespace a2l
