// SPDX-License-Identifier: MIT
//
// One key of an object of the JSON document.
#pragma once

#include <cstdint>
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

}  // namespace a2l
