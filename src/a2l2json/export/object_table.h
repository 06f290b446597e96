// SPDX-License-Identifier: MIT
//
// What the objects of the JSON document are made of: one table per object, one row per key, in
// ascending byte order of the keys, which is their order in the document.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "a2l2json/export/prepared_rows.h"
#include "a2l2json/export/row.h"
#include "a2l2json/model/keywords.h"

namespace a2l {

/// The table of one object.
struct ObjectTable {
  /// The kinds of the class that the object is made of; none for the whole document.
  std::span<const ElementKind> kinds;
  std::span<const Row> rows;
  /// The prepared text of the rows, where that of each begins, and where the last one ends.
  const char* text = nullptr;
  std::span<const RowText> texts;
  /// Per KindIndex, 1 + the row that children of the kind go to; 0 where they go nowhere.
  std::array<std::uint8_t, kKindIndexCount> rowOfKind{};
  /// The rows that are written, or looked at, whatever children there are.
  RowSet always;
};

}  // namespace a2l
