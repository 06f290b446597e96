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

/// One key of an object.
struct Row {
  std::string_view key;
  Source source = Source::Element;
  Absent absent = Absent::Null;
  ElementKind kind = KIND_ROOT;
  /// A second kind that feeds the key; the child that comes first in the file counts.
  ElementKind otherKind = KIND_ROOT;
  ElementKind grandchild = KIND_ROOT;
  Form form = {};
  Form otherForm = {};
  const VoA2LElement* (*find)(const VoA2LElement&) = nullptr;
};

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
  std::span<const Row> rows;
  std::span<const KeyText> keys;  // of the rows
  /// Per KindIndex, 1 + the row that children of the kind go to; 0 where they go nowhere.
  std::array<std::uint8_t, kKindIndexCount> rowOfKind{};
};

constexpr bool IsSortedWithoutDoubles(std::span<const Row> rows) {
  for (std::size_t i = 1; i < rows.size(); ++i) {
    if (!(rows[i - 1].key < rows[i].key)) return false;
  }
  return true;
}

/// The keys of an array of rows.
template <const auto& kRows>
consteval auto MakeKeys() {
  std::array<KeyText, std::size(kRows)> keys;
  for (std::size_t i = 0; i < keys.size(); ++i) keys[i] = KeyText(kRows[i].key);
  return keys;
}
template <const auto& kRows>
inline constexpr auto kKeysOf = MakeKeys<kRows>();

/// The table with these rows, which must be sorted.
template <const auto& kRows>
consteval ObjectTable MakeTable() {
  static_assert(IsSortedWithoutDoubles(kRows), "the keys of a table are not in ascending order");
  ObjectTable table{kRows, kKeysOf<kRows>, {}};
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    for (const ElementKind kind : {table.rows[i].kind, table.rows[i].otherKind}) {
      if (kind != KIND_ROOT) table.rowOfKind[KindIndex(kind)] = static_cast<std::uint8_t>(i + 1);
    }
  }
  return table;
}

/// A parameter of the element.
constexpr Row Field(std::string_view key, Form form) { return {.key = key, .form = form}; }

/// Whether there is a child of `kind`.
constexpr Row Flag(std::string_view key, ElementKind kind) {
  return {.key = key, .source = Source::Presence, .kind = kind};
}

/// All children of `kind`, as an array of objects.
constexpr Row Children(std::string_view key, ElementKind kind, const ObjectTable& table,
                       Absent absent = Absent::EmptyArray) {
  return {.key = key, .source = Source::Children, .absent = absent, .kind = kind, .form = &table};
}

/// All children of the kind `grandchild` of the children of `kind`, as an array of objects.
constexpr Row Grandchildren(std::string_view key, ElementKind kind, ElementKind grandchild,
                            const ObjectTable& table) {
  return {.key = key,
          .source = Source::Grandchildren,
          .absent = Absent::EmptyArray,
          .kind = kind,
          .grandchild = grandchild,
          .form = &table};
}

/// An element that `find` looks for; null when it finds none.
constexpr Row Found(std::string_view key, const VoA2LElement* (*find)(const VoA2LElement&),
                    Form form) {
  return {.key = key, .source = Source::Found, .form = form, .find = find};
}

/// A key that never has a value.
constexpr Row Never(std::string_view key) { return {.key = key}; }

}  // namespace a2l
